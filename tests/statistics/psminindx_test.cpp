// Extremes with their places: the first index on a tie, through every path, and what a NaN does on each of them.
#include "support/checks.h"
#include "support/placed.h"
#include "support/sweep.h"
#include "tarns/statistics.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>

namespace tarn::test {
namespace {

constexpr auto nan32 = std::numeric_limits<Tarn32f>::quiet_NaN();
constexpr auto nan64 = std::numeric_limits<Tarn64f>::quiet_NaN();

template <class T>
struct Found {
    T value;
    int index;
};

template <class T>
using Function = TarnStatus (*)(const T*, int, T*, int*);

template <class T>
Found<T> call(Function<T> function, const T* p, std::size_t len)
{
    GuardedArray<T> value(1, Placement::offset(1));
    GuardedArray<int> index(1, Placement::offset(3));
    EXPECT_EQ(tarnStsNoErr, function(p, static_cast<int>(len), value.data(), index.data()));
    return {value.get(0), index.get(0)};
}

template <class T>
void expectSame(const Found<T>& expected, const Found<T>& actual)
{
    EXPECT_TRUE(valuesMatch(expected.value, actual.value, {.nan = NanRule::sameBits}));
    EXPECT_EQ(expected.index, actual.index);
}

// A minimum gives way unless the element is at or above it, a maximum only to what is above it.
template <class T>
bool takesMinimum(T x, T m)
{
    return !(x >= m);
}
template <class T>
bool takesMaximum(T x, T m)
{
    return x > m;
}

template <class T, class Takes>
Found<T> byElement(std::span<const T> x, Takes takes)
{
    // A NaN that has been taken gives way to all that follows, in turn.
    bool taken = takes(x[0], x[0]);
    Found<T> found{x[0], 0};
    for (std::size_t i = 1; i < x.size(); ++i)
        if (taken || takes(x[i], found.value)) {
            found = {x[i], static_cast<int>(i)};
            taken = taken || x[i] != x[i];
        }
    return found;
}

// Blocks: the extreme of each by eight lanes, and the first element with its bits if it is a new record.
template <bool minimum>
Found<Tarn32f> byBlock(std::span<const Tarn32f> x, unsigned offset)
{
    const auto takes = [](Tarn32f a, Tarn32f m) { return minimum ? takesMinimum(a, m) : takesMaximum(a, m); };
    const auto better = [](Tarn32f m, Tarn32f a) { return minimum ? (m < a ? m : a) : (m > a ? m : a); };
    Found<Tarn32f> found{x[0], 0};
    std::size_t i = 0;
    const auto scan = [&](std::size_t end) {
        for (; i < end; ++i)
            if (i > 0 && takes(x[i], found.value))
                found = {x[i], static_cast<int>(i)};
    };
    scan((16 - offset % 16) % 16 / 4);
    std::size_t whole = (x.size() - i) / 8 * 8;
    while (whole > 0) {
        const std::size_t len = std::min<std::size_t>(whole, 2048);
        std::array<Tarn32f, 8> lane;
        std::copy_n(x.begin() + static_cast<std::ptrdiff_t>(i), 8, lane.begin());
        for (std::size_t k = 8; k < len; ++k)
            lane[k % 8] = better(lane[k % 8], x[i + k]);
        for (std::size_t left = 4; left > 0; left /= 2)
            for (std::size_t k = 0; k < left; ++k)
                lane[k] = better(lane[k], lane[k + left]);
        if (takes(lane[0], found.value)) {
            std::size_t k = 0;
            while (std::bit_cast<std::uint32_t>(x[i + k]) != std::bit_cast<std::uint32_t>(lane[0]))
                ++k;
            found = {lane[0], static_cast<int>(i + k)};
        }
        i += len;
        whole -= len;
    }
    scan(x.size());
    return found;
}

TEST(MinIndx_16s, IsTheFirst)
{
    // Few distinct values: ties everywhere.
    std::vector<Tarn16s> values = randomValues<Tarn16s>(30000, 71);
    for (std::size_t i = 0; i < values.size(); i += 2)
        values[i] = static_cast<Tarn16s>(values[i] % 5);
    for (std::size_t i = 0; i < values.size(); i += 3)
        values[i] = std::numeric_limits<Tarn16s>::min();
    for (std::size_t i = 1; i < values.size(); i += 97)
        values[i] = std::numeric_limits<Tarn16s>::max();
    atOffsets(values, lengths({32, 4096, 8192, 12288}), [](const Tarn16s* p, std::span<const Tarn16s> x, unsigned) {
        expectSame(byElement(x, takesMinimum<Tarn16s>), call(tarnsMinIndx_16s, p, x.size()));
        expectSame(byElement(x, takesMaximum<Tarn16s>), call(tarnsMaxIndx_16s, p, x.size()));
    });
}

TEST(MinIndx_16s, ImprovesFromBlockToBlock)
{
    std::vector<Tarn16s> falling(20000);
    for (std::size_t i = 0; i < falling.size(); ++i)
        falling[i] = static_cast<Tarn16s>(10000 - static_cast<int>(i));
    std::vector<Tarn16s> rising(falling.rbegin(), falling.rend());
    expectSame({-9999, 19999}, call(tarnsMinIndx_16s, falling.data(), 20000));
    expectSame({10000, 0}, call(tarnsMaxIndx_16s, falling.data(), 20000));
    expectSame({-9999, 0}, call(tarnsMinIndx_16s, rising.data(), 20000));
    expectSame({10000, 19999}, call(tarnsMaxIndx_16s, rising.data(), 20000));
}

void expectPathsOfMinIndx(const std::vector<Tarn32f>& values)
{
    atOffsets(values, lengths({34, 2048, 4096, 6144}),
              [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned offset) {
                  const bool blocks = x.size() >= 34 && offset % 4 == 0;
                  expectSame(blocks ? byBlock<true>(x, offset) : byElement(x, takesMinimum<Tarn32f>),
                             call(tarnsMinIndx_32f, p, x.size()));
                  expectSame(blocks ? byBlock<false>(x, offset) : byElement(x, takesMaximum<Tarn32f>),
                             call(tarnsMaxIndx_32f, p, x.size()));
              });
}

TEST(MinIndx_32f, TakesThePathOfItsLengthAndAddress)
{
    for (const auto kind : {Values::unit, Values::hard, Values::mixed})
        expectPathsOfMinIndx(randomValues<Tarn32f>(20000, 73, kind));
}

// Which of the zeros is found shows the lanes in which they were compared.
TEST(MinIndx_32f, TellsZerosOfBothSignsApart)
{
    for (const Tarn32f other : {-1.0F, 1.0F}) {
        const Tarn32f choice[] = {0.0F, -0.0F, other, 2 * other};
        Random random(79);
        std::vector<Tarn32f> values(20000);
        for (Tarn32f& value : values)
            value = choice[random.next() >> 62];
        expectPathsOfMinIndx(values);
    }
}

TEST(MinIndx_32f, WithoutNaNAllPathsAgree)
{
    const auto values = randomValues<Tarn32f>(100, 75, Values::unit);
    for (std::size_t len : {33, 34, 35})
        for (unsigned offset : {0, 2, 4, 6, 8, 12}) {
            const auto x = std::span(values).first(len);
            const GuardedArray<Tarn32f> array(x, Placement::offset(offset));
            expectSame(byElement(std::span<const Tarn32f>(x), takesMinimum<Tarn32f>),
                       call(tarnsMinIndx_32f, array.data(), len));
            expectSame(byElement(std::span<const Tarn32f>(x), takesMaximum<Tarn32f>),
                       call(tarnsMaxIndx_32f, array.data(), len));
        }
}

TEST(MinIndx_64f, FollowsTheAsymmetricTests)
{
    for (const auto kind : {Values::unit, Values::hard, Values::mixed}) {
        atOffsets(randomValues<Tarn64f>(3000, 77, kind), lengths({34}),
                  [](const Tarn64f* p, std::span<const Tarn64f> x, unsigned) {
                      expectSame(byElement(x, takesMinimum<Tarn64f>), call(tarnsMinIndx_64f, p, x.size()));
                      expectSame(byElement(x, takesMaximum<Tarn64f>), call(tarnsMaxIndx_64f, p, x.size()));
                  });
    }
    std::vector<Tarn64f> x = {5, 4, 3, nan64, 1, 2, 9, 8, 7, 6};
    expectSame({6.0, 9}, call(tarnsMinIndx_64f, x.data(), 10));
    expectSame({9.0, 6}, call(tarnsMaxIndx_64f, x.data(), 10));
    x = {nan64, 4, 3};
    expectSame({nan64, 0}, call(tarnsMaxIndx_64f, x.data(), 3));
}

template <class T>
void expectEqualElements(Function<T> min, Function<T> max)
{
    for (std::size_t len : {1, 5, 31, 32, 33, 34, 70, 2048, 5000, 9000})
        for (unsigned offset : {0U, 1U, 2U, 4U, 8U, 12U}) {
            const std::vector<T> values(len, T{7});
            const GuardedArray<T> array(std::span<const T>(values), Placement::offset(offset));
            expectSame({T{7}, 0}, call(min, array.data(), len));
            expectSame({T{7}, 0}, call(max, array.data(), len));
        }
}

TEST(MinIndx, OfEqualElementsIsTheFirst)
{
    expectEqualElements<Tarn16s>(tarnsMinIndx_16s, tarnsMaxIndx_16s);
    expectEqualElements<Tarn32f>(tarnsMinIndx_32f, tarnsMaxIndx_32f);
    expectEqualElements<Tarn64f>(tarnsMinIndx_64f, tarnsMaxIndx_64f);
}

TEST(MinIndx, TheEarlierOfTwoBlocksWins)
{
    for (std::size_t first : {0, 3, 17, 2047, 4095})
        for (std::size_t second : {5000, 9000, 12001}) {
            std::vector<Tarn32f> singles(12002, 1.0F);
            std::vector<Tarn16s> integers(12002, 1);
            singles[first] = singles[second] = -3;
            integers[first] = integers[second] = -3;
            const int index = static_cast<int>(first);
            expectSame({-3.0F, index}, call(tarnsMinIndx_32f, singles.data(), 12002));
            expectSame({Tarn16s{-3}, index}, call(tarnsMinIndx_16s, integers.data(), 12002));
            singles[first] = singles[second] = 3;
            integers[first] = integers[second] = 3;
            expectSame({3.0F, index}, call(tarnsMaxIndx_32f, singles.data(), 12002));
            expectSame({Tarn16s{3}, index}, call(tarnsMaxIndx_16s, integers.data(), 12002));
        }
}

TEST(MinIndx, TheIndexIsOptional)
{
    const Tarn16s integers[] = {4, -3, 9};
    Tarn16s value = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsMinIndx_16s(integers, 3, &value, nullptr));
    EXPECT_EQ(-3, value);
    EXPECT_EQ(tarnStsNoErr, tarnsMaxIndx_16s(integers, 3, &value, nullptr));
    EXPECT_EQ(9, value);
    // It is the call without an index that runs, NaNs and all: here the element behind the NaN.
    const Tarn64f doubles[] = {4, nan64, 2, 3};
    Tarn64f best = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsMaxIndx_64f(doubles, 4, &best, nullptr));
    EXPECT_EQ(3.0, best);
    int index = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsMaxIndx_64f(doubles, 4, &best, &index));
    EXPECT_EQ(4.0, best);
    EXPECT_EQ(0, index);
    for (auto function : {tarnsMinIndx_16s, tarnsMaxIndx_16s}) {
        EXPECT_EQ(tarnStsNullPtrErr, function(nullptr, 0, &value, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, function(integers, 0, nullptr, nullptr));
        EXPECT_EQ(tarnStsSizeErr, function(integers, 0, &value, nullptr));
    }
}

// -- Both extremes with their places ---------------------------------------------------------------------------------

template <class T>
using BothFunction = TarnStatus (*)(const T*, int, T*, int*, T*, int*);
template <class T>
using ValuesFunction = TarnStatus (*)(const T*, int, T*, T*);

template <class T>
std::pair<Found<T>, Found<T>> callBoth(BothFunction<T> function, const T* p, std::size_t len)
{
    GuardedArray<T> smallest(1, Placement::offset(1));
    GuardedArray<int> smallestIndex(1, Placement::offset(2));
    GuardedArray<T> largest(1, Placement::offset(3));
    GuardedArray<int> largestIndex(1, Placement::offset(5));
    EXPECT_EQ(tarnStsNoErr, function(p, static_cast<int>(len), smallest.data(), smallestIndex.data(), largest.data(),
                                     largestIndex.data()));
    return {{smallest.get(0), smallestIndex.get(0)}, {largest.get(0), largestIndex.get(0)}};
}

// Equal or unordered, as the search has it.
template <class T>
int firstMatch(std::span<const T> x, T value)
{
    for (std::size_t i = 0; i < x.size(); ++i)
        if (!(x[i] < value) && !(x[i] > value))
            return static_cast<int>(i);
    return 0;
}

template <class T>
void expectBoth(BothFunction<T> function, ValuesFunction<T> values)
{
    for (const auto kind : {Values::hard, Values::mixed, Values::unit})
        atOffsets(randomValues<T>(3000, 79, kind), lengths({6, 32}), [&](const T* p, std::span<const T> x, unsigned) {
            T smallest{};
            T largest{};
            ASSERT_EQ(tarnStsNoErr, values(p, static_cast<int>(x.size()), &smallest, &largest));
            const auto found = callBoth(function, p, x.size());
            expectSame({smallest, firstMatch(x, smallest)}, found.first);
            expectSame({largest, firstMatch(x, largest)}, found.second);
            if constexpr (std::is_integral_v<T>) {
                expectSame(byElement(x, takesMinimum<T>), found.first);
                expectSame(byElement(x, takesMaximum<T>), found.second);
            }
        });
    const std::vector<T> same(100, T{3});
    for (std::size_t len = 1; len < 100; ++len) {
        const auto found = callBoth(function, same.data(), len);
        expectSame({T{3}, 0}, found.first);
        expectSame({T{3}, 0}, found.second);
    }
}

TEST(MinMaxIndx, FindsTheFirstOfEach)
{
    expectBoth<Tarn8u>(tarnsMinMaxIndx_8u, tarnsMinMax_8u);
    expectBoth<Tarn16u>(tarnsMinMaxIndx_16u, tarnsMinMax_16u);
    expectBoth<Tarn16s>(tarnsMinMaxIndx_16s, tarnsMinMax_16s);
    expectBoth<Tarn32u>(tarnsMinMaxIndx_32u, tarnsMinMax_32u);
    expectBoth<Tarn32s>(tarnsMinMaxIndx_32s, tarnsMinMax_32s);
    expectBoth<Tarn32f>(tarnsMinMaxIndx_32f, tarnsMinMax_32f);
    expectBoth<Tarn64f>(tarnsMinMaxIndx_64f, tarnsMinMax_64f);
}

TEST(MinMaxIndx, AnEarlierNaNIsFoundInTheExtremesPlace)
{
    std::vector<Tarn32f> x(64, 1.0F);
    x[5] = nan32;
    x[40] = -2;
    x[50] = 6;
    const auto found = callBoth(tarnsMinMaxIndx_32f, x.data(), 64);
    expectSame({-2.0F, 5}, found.first);
    expectSame({6.0F, 5}, found.second);
    std::vector<Tarn64f> y(64, 1.0);
    y[50] = nan64;
    y[40] = -2;
    y[41] = 6;
    const auto foundBefore = callBoth(tarnsMinMaxIndx_64f, y.data(), 64);
    EXPECT_EQ(40, foundBefore.first.index);
    EXPECT_EQ(41, foundBefore.second.index);
}

TEST(MinIndx, Checks)
{
    int index = 7;
    const auto optional = [&] { return &index; };
    expectChecks(tarnsMinIndx_16s, {}, array, length, array, optional());
    expectChecks(tarnsMinIndx_32f, {}, array, length, array, optional());
    expectChecks(tarnsMinIndx_64f, {}, array, length, array, optional());
    expectChecks(tarnsMaxIndx_16s, {}, array, length, array, optional());
    expectChecks(tarnsMaxIndx_32f, {}, array, length, array, optional());
    expectChecks(tarnsMaxIndx_64f, {}, array, length, array, optional());
    expectChecks(tarnsMinMaxIndx_8u, {}, array, length, array, array, array, array);
    expectChecks(tarnsMinMaxIndx_16u, {}, array, length, array, array, array, array);
    expectChecks(tarnsMinMaxIndx_16s, {}, array, length, array, array, array, array);
    expectChecks(tarnsMinMaxIndx_32u, {}, array, length, array, array, array, array);
    expectChecks(tarnsMinMaxIndx_32s, {}, array, length, array, array, array, array);
    expectChecks(tarnsMinMaxIndx_32f, {}, array, length, array, array, array, array);
    expectChecks(tarnsMinMaxIndx_64f, {}, array, length, array, array, array, array);
}

} // namespace
} // namespace tarn::test
