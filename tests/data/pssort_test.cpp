// Sorting, and the search for the nearest entry of a table.
#include "tarns/sort.h"

#include "support/checks.h"
#include "support/fpstate.h"
#include "support/hard_values.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cmath>
#include <numeric>

namespace tarn::test {
namespace {

template <class T>
using Sort = TarnStatus (*)(T*, int);

/// The bit patterns in an order of their own: equal where arrays consist of the same elements.
template <class T>
std::vector<BitsOf<T>> census(const std::vector<T>& values)
{
    std::vector<BitsOf<T>> patterns(values.size());
    std::memcpy(patterns.data(), values.data(), values.size() * sizeof(T));
    std::sort(patterns.begin(), patterns.end());
    return patterns;
}

/// Sorts in guarded memory; the result has to be in order and to consist of the same elements.
template <class T>
void expectSorted(Sort<T> sort, const std::vector<T>& values, bool descend, Placement placement = Placement::atEnd())
{
    GuardedArray<T> array(values, placement);
    const FpState before = FpState::current();
    ASSERT_EQ(tarnStsNoErr, sort(array.data(), static_cast<int>(values.size())));
    EXPECT_EQ("", before.changesSince());
    const std::vector<T> sorted = array.copy();
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        const bool wrong = descend ? sorted[i - 1] < sorted[i] : sorted[i] < sorted[i - 1];
        ASSERT_FALSE(wrong) << "at " << i << " of " << sorted.size() << ": " << toText(sorted[i - 1]) << " and "
                            << toText(sorted[i]);
    }
    ASSERT_EQ(census(values), census(sorted));
}

template <class T>
T ramp(int i)
{
    if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(i) * T(0.37) - T(20);
    else
        return static_cast<T>(i * 3 - 300);
}

/// Orders that quicksorts have trouble with.
template <class T>
std::vector<std::vector<T>> patterns(int len)
{
    const auto make = [len](auto at) {
        std::vector<T> values;
        for (int i = 0; i < len; ++i)
            values.push_back(at(i));
        return values;
    };
    std::vector<std::vector<T>> all;
    all.push_back(make([](int i) { return ramp<T>(i); }));
    all.push_back(make([len](int i) { return ramp<T>(len - i); }));
    all.push_back(make([](int) { return T(7); }));
    all.push_back(make([](int i) { return T(i % 2); }));
    all.push_back(make([](int i) { return T(i % 7 % 3); }));
    all.push_back(make([len](int i) { return ramp<T>(std::min(i, len - i)); })); // organ pipe
    all.push_back(make([len](int i) { return ramp<T>(std::max(i, len - i)); }));
    all.push_back(make([len](int i) { return ramp<T>(i < len / 2 ? 2 * i : 2 * i - len); })); // two runs
    all.push_back(make([len](int i) { return i == len / 2 ? ramp<T>(-5) : ramp<T>(i); }));
    all.push_back(make([](int i) { return ramp<T>(i ^ 1); }));
    for (unsigned seed = 1; seed <= 3; ++seed) {
        Random random(seed + static_cast<unsigned>(len));
        all.push_back(make([&](int) {
            T x;
            do
                x = randomValue<T>(random, seed == 1 ? Values::random : Values::mixed);
            while (x != x);
            return x;
        }));
    }
    return all;
}

template <class T>
void testSort(Sort<T> ascend, Sort<T> descend)
{
    unsigned place = 0;
    std::vector<int> lens(300);
    std::iota(lens.begin(), lens.end(), 1);
    for (const int len : {511, 512, 1000, 4096, 10000})
        lens.push_back(len);
    for (const int len : lens) {
        SCOPED_TRACE("length " + std::to_string(len));
        for (const auto& values : patterns<T>(len)) {
            const Placement placement = place % 3 == 0   ? Placement::atEnd(place % 2)
                                        : place % 3 == 1 ? Placement::atStart()
                                                         : Placement::offset(place % 16);
            ++place;
            expectSorted(ascend, values, false, placement);
            expectSorted(descend, values, true, placement);
            if (::testing::Test::HasFailure())
                return;
        }
    }
    expectChecks(ascend);
    expectChecks(descend);
}

TEST(Sort, Integers)
{
    testSort(tarnsSortAscend_8u_I, tarnsSortDescend_8u_I);
    testSort(tarnsSortAscend_16s_I, tarnsSortDescend_16s_I);
    testSort(tarnsSortAscend_32s_I, tarnsSortDescend_32s_I);
}

TEST(Sort, Floats)
{
    testSort(tarnsSortAscend_32f_I, tarnsSortDescend_32f_I);
    testSort(tarnsSortAscend_64f_I, tarnsSortDescend_64f_I);
}

TEST(Sort, EqualBytesStay)
{
    for (const std::size_t len : {127U, 128U, 129U}) {
        const std::vector<Tarn8u> values(len, 42);
        GuardedArray<Tarn8u> array(values, Placement::atEnd());
        EXPECT_EQ(tarnStsNoErr, tarnsSortAscend_8u_I(array.data(), static_cast<int>(len)));
        EXPECT_TRUE(arraysMatch(values, array));
        EXPECT_EQ(tarnStsNoErr, tarnsSortDescend_8u_I(array.data(), static_cast<int>(len)));
        EXPECT_TRUE(arraysMatch(values, array));
    }
}

/// NaNs may end up anywhere, but the call ends, keeps within the array and loses no element.
template <class T>
void testNans(Sort<T> sort)
{
    const T nan = std::numeric_limits<T>::quiet_NaN();
    for (const int len : {2, 3, 8, 9, 10, 11, 12, 20, 50, 127, 128, 129, 200, 300, 1000, 5000}) {
        for (unsigned share = 1; share <= 16; share *= 2) {
            for (unsigned seed = 1; seed <= 20; ++seed) {
                Random random(seed * 100 + share);
                std::vector<T> values;
                for (int i = 0; i < len; ++i)
                    values.push_back(random.below(share) == 0 ? nan : static_cast<T>(random.below(1000)));
                if (seed == 1)
                    values.front() = nan;
                if (seed == 2)
                    values.back() = nan;
                if (seed == 3)
                    values[values.size() / 2] = nan;
                GuardedArray<T> array(values, seed % 2 == 0 ? Placement::atEnd() : Placement::atStart());
                ASSERT_EQ(tarnStsNoErr, sort(array.data(), len));
                ASSERT_EQ(census(values), census(array.copy()));
            }
        }
    }
}

TEST(Sort, EndsWithNans)
{
    testNans<Tarn32f>(tarnsSortAscend_32f_I);
    testNans<Tarn32f>(tarnsSortDescend_32f_I);
    testNans<Tarn64f>(tarnsSortAscend_64f_I);
    testNans<Tarn64f>(tarnsSortDescend_64f_I);
}

/// An order in which the median of the first, middle and last element splits off next to nothing, time after time:
/// found by sorting elements that get their values only when they are compared. Such an array takes hours if nothing
/// but the median of three stands against it.
TEST(Sort, BadPivotsDoNotMakeItQuadratic)
{
    constexpr int len = 200000;
    // The places that will hold pivots get the smallest values that are left, two at a time.
    std::vector<int> places(len);
    std::iota(places.begin(), places.end(), 0);
    std::vector<Tarn32s> values(len);
    int first = 0;
    int value = 0;
    while (len - first > 200) {
        const int middle = first + (len - 1 - first) / 2;
        values[static_cast<std::size_t>(places[static_cast<std::size_t>(first)])] = value++;
        values[static_cast<std::size_t>(places[static_cast<std::size_t>(middle)])] = value++;
        std::swap(places[static_cast<std::size_t>(middle)], places[static_cast<std::size_t>(first + 1)]);
        first += 2;
    }
    for (; first < len; ++first)
        values[static_cast<std::size_t>(places[static_cast<std::size_t>(first)])] = value++;
    const auto start = std::chrono::steady_clock::now();
    expectSorted(tarnsSortAscend_32s_I, values, false);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    // Some 20 ms; quadratic time would be about 10 s.
    EXPECT_LT(time.count(), 3.0);
}

// -- Search -----------------------------------------------------------------------------------------------------------

/// By looking at every entry. Steps 1 and 2 decide among equal entries at the ends.
int nearestIndex(const std::vector<Tarn16u>& table, Tarn16u value)
{
    const int last = static_cast<int>(table.size()) - 1;
    if (last == 0 || value <= table.front())
        return 0;
    if (value >= table.back())
        return last;
    int left = 0;
    for (int i = 0; i <= last; ++i)
        if (table[static_cast<std::size_t>(i)] <= value)
            left = i;
    const int below = value - table[static_cast<std::size_t>(left)];
    const int above = table[static_cast<std::size_t>(left + 1)] - value;
    return below > above ? left + 1 : left;
}

void testTable(const std::vector<Tarn16u>& entries, const std::vector<Tarn16u>& values, unsigned seed)
{
    SCOPED_TRACE(std::to_string(entries.size()) + " entries, " + std::to_string(values.size()) + " values");
    const GuardedArray<Tarn16u> table(entries, seed % 2 == 0 ? Placement::atEnd() : Placement::atStart(seed % 3));
    const GuardedArray<Tarn16u> source(values, Placement::atEnd(seed % 2));
    GuardedArray<Tarn16u> found(values.size(), Placement::atEnd());
    GuardedArray<Tarn32s> indexes(values.size(), Placement::atEnd(seed % 3));
    const int len = static_cast<int>(values.size());
    const int tblLen = static_cast<int>(entries.size());
    std::vector<Tarn16u> expected;
    std::vector<Tarn32s> expectedIndexes;
    for (const Tarn16u value : values) {
        expectedIndexes.push_back(nearestIndex(entries, value));
        expected.push_back(entries[static_cast<std::size_t>(expectedIndexes.back())]);
        Tarn16u one = 0;
        Tarn32s index = -1;
        ASSERT_EQ(tarnStsNoErr, tarnsFindNearestOne_16u(value, &one, &index, table.data(), tblLen));
        EXPECT_EQ(expected.back(), one);
        EXPECT_EQ(expectedIndexes.back(), index);
    }
    ASSERT_EQ(tarnStsNoErr,
              tarnsFindNearest_16u(source.data(), found.data(), indexes.data(), len, table.data(), tblLen));
    EXPECT_TRUE(arraysMatch(expected, found));
    EXPECT_TRUE(arraysMatch(expectedIndexes, indexes));
    // Onto the values themselves.
    GuardedArray<Tarn16u> inPlace(values, Placement::offset(seed % 16));
    ASSERT_EQ(tarnStsNoErr,
              tarnsFindNearest_16u(inPlace.data(), inPlace.data(), indexes.data(), len, table.data(), tblLen));
    EXPECT_TRUE(arraysMatch(expected, inPlace));
}

TEST(FindNearest, AgreesWithTheModel)
{
    unsigned seed = 1;
    std::vector<int> tableLens(60);
    std::iota(tableLens.begin(), tableLens.end(), 1);
    for (const int len : {255, 256, 257, 271, 272, 273, 288, 289, 290, 1000, 5000})
        tableLens.push_back(len);
    for (const int tblLen : tableLens) {
        for (const unsigned spread : {1U, 4U, 100U, 65536U}) {
            Random random(++seed);
            std::vector<Tarn16u> entries;
            for (int i = 0; i < tblLen; ++i) {
                const bool extreme = random.below(20) == 0;
                entries.push_back(extreme ? (random.below(2) == 0 ? Tarn16u{0} : Tarn16u{65535})
                                          : static_cast<Tarn16u>(30000 + random.below(spread)));
            }
            std::sort(entries.begin(), entries.end());
            std::vector<Tarn16u> values = {0, 1, 65535, 65534, 32767, 32768, entries.front(), entries.back()};
            for (int i = 0; i < 40; ++i) {
                const Tarn16u entry = entries[random.below(entries.size())];
                values.push_back(static_cast<Tarn16u>(entry + random.below(5) - 2));
                values.push_back(static_cast<Tarn16u>(random.next()));
            }
            values.resize(1 + random.below(values.size()));
            testTable(entries, values, seed);
            if (::testing::Test::HasFailure())
                return;
        }
    }
}

TEST(FindNearest, EveryValue)
{
    std::vector<Tarn16u> values(65536);
    std::iota(values.begin(), values.end(), Tarn16u{0});
    for (const unsigned step : {257U, 5000U}) {
        std::vector<Tarn16u> entries;
        for (unsigned x = 100; x < 65536; x += step)
            entries.push_back(static_cast<Tarn16u>(x));
        testTable(entries, values, step);
    }
}

TEST(FindNearest, WorkedValues)
{
    const Tarn16u table[] = {10, 20};
    const Tarn16u values[] = {15, 16, 5, 25};
    Tarn16u found[4];
    Tarn32s indexes[4];
    ASSERT_EQ(tarnStsNoErr, tarnsFindNearest_16u(values, found, indexes, 4, table, 2));
    const Tarn16u expected[] = {10, 20, 10, 20};
    const Tarn32s expectedIndexes[] = {0, 1, 0, 1};
    EXPECT_TRUE(arraysMatch<Tarn16u>(expected, found, 4));
    EXPECT_TRUE(arraysMatch<Tarn32s>(expectedIndexes, indexes, 4));
    ASSERT_EQ(tarnStsNoErr, tarnsFindNearest_16u(values, found, indexes, 4, table, 1));
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(10, found[i]);
        EXPECT_EQ(0, indexes[i]);
    }
}

TEST(FindNearest, Checks)
{
    expectChecks(tarnsFindNearest_16u, {}, array, array, array, length, array,
                 param(8, {0, -1, INT_MIN}, tarnStsSizeErr));
    expectChecks(tarnsFindNearestOne_16u, {}, Tarn16u{3}, array, array, array, length);
}

} // namespace
} // namespace tarn::test
