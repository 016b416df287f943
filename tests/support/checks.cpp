// Runs every fault alone and in pairs.
#include "support/checks.h"

#include <algorithm>

namespace tarn::test::detail {
namespace {

constexpr std::size_t bufferBytes = 1024;

std::size_t rank(const Fault& fault, const std::vector<Check>& order)
{
    if (fault.last)
        return order.size();
    return static_cast<std::size_t>(std::find(order.begin(), order.end(), fault.check) - order.begin());
}

} // namespace

void* ChecksRun::newBuffer()
{
    // An odd address: no check may ask for alignment.
    buffers.push_back(std::make_unique<GuardedBytes>(bufferBytes, Placement::offset(1)));
    buffers.back()->fillPattern();
    return buffers.back()->bytes();
}

void ChecksRun::expectStatus(int status, const std::string& faultsText)
{
    std::vector<std::vector<unsigned char>> before;
    for (const auto& buffer : buffers)
        before.emplace_back(buffer->bytes(), buffer->bytes() + bufferBytes);
    const int actual = call();
    const std::string context = options.name + (options.name.empty() ? "" : ": ") + faultsText;
    EXPECT_EQ(status, actual) << context;
    for (std::size_t i = 0; i < buffers.size(); ++i) {
        EXPECT_EQ(0, std::memcmp(before[i].data(), buffers[i]->bytes(), bufferBytes))
            << context << ": array " << i << " was changed";
        buffers[i]->checkRedZones();
    }
}

void ChecksRun::run()
{
    // Stable: checks of one kind are made in argument order.
    std::stable_sort(faults.begin(), faults.end(),
                     [&](const Fault& a, const Fault& b) { return rank(a, options.order) < rank(b, options.order); });
    for (std::size_t i = 0; i < faults.size(); ++i) {
        const Fault& first = faults[i];
        first.apply();
        expectStatus(first.status, first.text);
        for (std::size_t j = i + 1; j < faults.size(); ++j) {
            const Fault& second = faults[j];
            if (second.argument == first.argument)
                continue;
            second.apply();
            expectStatus(first.status, first.text + " and " + second.text);
            second.undo();
        }
        first.undo();
    }
    EXPECT_EQ(options.goodStatus, call()) << options.name << ": the call without a fault";
    for (const auto& buffer : buffers)
        buffer->checkRedZones();
}

} // namespace tarn::test::detail
