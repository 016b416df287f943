// Runs every fault alone and in pairs.
#include "support/checks.h"

#include "support/guarded.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <memory>

namespace tarn::test::detail {
namespace {

constexpr std::size_t bufferBytes = 1024;

/// One way to spoil one argument.
struct Fault {
    std::string text;
    int status;
    Check check;
    std::size_t argument;
    Slot bad;
    bool last = false; ///< comes behind all the other checks
};

class ChecksRun {
public:
    ChecksRun(AnyFunction function, const ChecksOptions& options) : called(function), how(options) {}

    void add(const AnyArgument& argument);
    void run();

private:
    int call() const { return called.thunk(called.function, values.data()); }
    void expectStatus(int status, const std::string& faultsText) const;
    std::size_t rank(const Fault& fault) const;
    void* newBuffer();

    AnyFunction called;
    const ChecksOptions& how;
    std::vector<Slot> values; ///< the arguments as they are now
    std::vector<Fault> faults;
    std::vector<std::unique_ptr<GuardedBytes>> buffers;
};

void* ChecksRun::newBuffer()
{
    // An odd address: no check may ask for alignment.
    buffers.push_back(std::make_unique<GuardedBytes>(bufferBytes, Placement::offset(1)));
    buffers.back()->fillPattern();
    return buffers.back()->bytes();
}

void ChecksRun::add(const AnyArgument& argument)
{
    const std::size_t index = values.size();
    const std::string where = "argument " + std::to_string(index);
    values.push_back(argument.good);
    switch (argument.kind) {
    case ArgumentKind::array:
        values.back() = Slot::of(newBuffer());
        [[fallthrough]];
    case ArgumentKind::object:
        faults.push_back({where + " null", how.pointerStatus, Check::pointer, index, Slot::of<void*>(nullptr)});
        break;
    case ArgumentKind::length: {
        const int status = argument.status != 0 ? argument.status : how.lengthStatus;
        const auto text = [&](int bad) { return where + " = " + std::to_string(bad); };
        for (int bad : {0, -1, INT_MIN})
            faults.push_back({text(bad), status, Check::length, index, Slot::of(bad)});
        for (int bad : how.wrappedLengths)
            faults.push_back({text(bad), status, Check::length, index, Slot::of(bad), true});
        break;
    }
    case ArgumentKind::parameter:
        for (const Slot& bad : argument.bad)
            faults.push_back({where + " a bad parameter", argument.status, Check::parameter, index, bad});
        break;
    case ArgumentKind::value:
        break;
    }
}

std::size_t ChecksRun::rank(const Fault& fault) const
{
    if (fault.last)
        return how.order.size();
    return static_cast<std::size_t>(std::find(how.order.begin(), how.order.end(), fault.check) - how.order.begin());
}

void ChecksRun::expectStatus(int status, const std::string& faultsText) const
{
    std::vector<std::vector<unsigned char>> before;
    for (const auto& buffer : buffers)
        before.emplace_back(buffer->bytes(), buffer->bytes() + bufferBytes);
    const int actual = call();
    const std::string context = how.name + (how.name.empty() ? "" : ": ") + faultsText;
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
    std::stable_sort(faults.begin(), faults.end(), [&](const Fault& a, const Fault& b) { return rank(a) < rank(b); });
    const std::vector<Slot> good = values;
    for (std::size_t i = 0; i < faults.size(); ++i) {
        const Fault& first = faults[i];
        values[first.argument] = first.bad;
        expectStatus(first.status, first.text);
        for (std::size_t j = i + 1; j < faults.size(); ++j) {
            const Fault& second = faults[j];
            if (second.argument == first.argument)
                continue;
            values[second.argument] = second.bad;
            expectStatus(first.status, first.text + " and " + second.text);
            values[second.argument] = good[second.argument];
        }
        values[first.argument] = good[first.argument];
    }
    EXPECT_EQ(how.goodStatus, call()) << how.name << ": the call without a fault";
    for (const auto& buffer : buffers)
        buffer->checkRedZones();
}

} // namespace

void runChecks(AnyFunction function, std::initializer_list<AnyArgument> arguments, const ChecksOptions& options)
{
    ChecksRun run(function, options);
    for (const AnyArgument& argument : arguments)
        run.add(argument);
    run.run();
}

void runChecks(AnyFunction function, std::initializer_list<ParameterKind> kinds, const ChecksOptions& options)
{
    ChecksRun run(function, options);
    const std::size_t lengthAt = lengthIndex(kinds);
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (kinds.begin()[i] == ParameterKind::pointer)
            run.add({ArgumentKind::array, {}, {}, 0});
        else if (i == lengthAt)
            run.add({ArgumentKind::length, Slot::of(length.good), {}, 0});
        else
            run.add({});
    }
    run.run();
}

} // namespace tarn::test::detail
