// Lists of lengths and scale factors, and the plan of a sweep.
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <cstring>

namespace tarn::test {
namespace {

void sortUnique(std::vector<int>& values)
{
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

// Longer than 70: past an unrolled body of four vectors of bytes with the longest head and tail, and into its second
// turn.
constexpr int longerLengths[] = {71, 80, 95, 96, 97, 127, 128, 129, 143, 160, 191, 200, 257};
constexpr int beyondThreshold = 17;

} // namespace

std::vector<int> lengths(const std::vector<int>& thresholds)
{
    std::vector<int> list(std::begin(longerLengths), std::end(longerLengths));
    for (int len = 1; len <= 70; ++len)
        list.push_back(len);
    for (int threshold : thresholds)
        for (int len : {threshold - 1, threshold, threshold + 1, threshold + beyondThreshold})
            if (len >= 1)
                list.push_back(len);
    sortUnique(list);
    return list;
}

std::vector<int> lengths(std::initializer_list<int> thresholds) { return lengths(std::vector<int>(thresholds)); }

std::vector<int> scaleFactors(int lo, int hi)
{
    std::vector<int> list;
    for (int s = lo - 3; s <= hi + 3; ++s)
        list.push_back(s);
    for (int s : {31, 32, 33, 62, 63, 64, 65, 127, 128, 129, 255, 256, 1000, 65536})
        for (int sign : {-1, 1})
            list.push_back(sign * s);
    for (int s : {INT_MIN, INT_MIN + 1, INT_MAX - 1, INT_MAX})
        list.push_back(s);
    sortUnique(list);
    return list;
}

// Under sanitizers: what they see beyond the guards depends on the code that runs, and a quick sweep runs all of it.
bool sweepsAreQuick()
{
    static const char* const depth = std::getenv("TARNS_TEST_DEPTH");
    return depth != nullptr && std::strcmp(depth, "quick") == 0;
}

namespace detail {

std::size_t shortestColumn(const SweepOptions& options)
{
    constexpr int forTheLengths = 400;
    int len = forTheLengths;
    for (int threshold : options.thresholds)
        len = std::max(len, threshold + 2 * beyondThreshold);
    return static_cast<std::size_t>(len);
}

// Each test begins anew, so that alone it does what it does among others.
std::size_t nextTurn()
{
    static const ::testing::TestInfo* last = nullptr;
    static std::size_t turn = 0;
    const ::testing::TestInfo* const current = ::testing::UnitTest::GetInstance()->current_test_info();
    if (current != last)
        turn = 0;
    last = current;
    return turn++;
}

Plan makePlan(const SweepOptions& options, std::size_t longest, bool windowsByLength)
{
    Plan plan;
    plan.full = options.depth == Depth::full && !sweepsAreQuick();
    plan.valuesOnly = options.depth == Depth::values;
    plan.turn = static_cast<unsigned>(nextTurn());
    plan.lengths = lengths(options.thresholds);
    plan.longest = static_cast<int>(longest);
    plan.windowsByLength = windowsByLength;
    return plan;
}

} // namespace detail
} // namespace tarn::test
