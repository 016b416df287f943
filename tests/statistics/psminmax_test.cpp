// Extremes without their places: which NaN and which zero survives on every path, pairs of extremes, elementwise ones.
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/placed.h"
#include "support/sweep.h"
#include "tarns/statistics.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <utility>

namespace tarn::test {
namespace {

// The selections, running value first.
struct Smaller {
    template <class T>
    T operator()(T m, T x) const
    {
        return m < x ? m : x;
    }
};
struct Larger {
    template <class T>
    T operator()(T m, T x) const
    {
        return m > x ? m : x;
    }
};

template <class T, class Better>
T extremeOf(std::span<const T> x, Better better)
{
    T m = x[0];
    for (T element : x)
        m = better(m, element);
    return m;
}

template <class T>
constexpr std::size_t lanesOf = 16 / sizeof(T);

// Lanes folded pairwise, the upper half onto the lower one.
template <class T, std::size_t n, class Better>
T folded(std::array<T, n> lane, Better better)
{
    for (std::size_t left = n / 2; left > 0; left /= 2)
        for (std::size_t k = 0; k < left; ++k)
            lane[k] = better(lane[k], lane[k + left]);
    return lane[0];
}

// Floats: single elements to a boundary, one vector to a boundary of twice the size, four vectors side by side, and the
// tail one by one. All of them start from the first element.
template <class T, class Better>
T floatExtreme(std::span<const T> x, unsigned offset, Better better)
{
    constexpr std::size_t n = lanesOf<T>;
    std::size_t i = 0;
    T m = x[0];
    if (offset % sizeof(T) == 0)
        for (; i < x.size() && (offset + i * sizeof(T)) % 16 != 0; ++i)
            m = better(m, x[i]);
    if (i + 4 * n <= x.size()) {
        std::array<std::array<T, n>, 4> v;
        for (auto& vector : v)
            vector.fill(x[0]);
        const auto take = [&](std::array<T, n>& vector) {
            for (T& lane : vector)
                lane = better(lane, x[i++]);
        };
        if ((offset + i * sizeof(T)) % 32 == 16)
            take(v[0]);
        while (i + 4 * n <= x.size())
            for (auto& vector : v)
                take(vector);
        std::array<T, n> joined;
        for (std::size_t k = 0; k < n; ++k) {
            const T lower = better(v[0][k], v[1][k]);
            const T upper = better(v[2][k], v[3][k]);
            joined[k] = better(lower, upper);
        }
        m = better(m, folded(joined, better));
    }
    for (; i < x.size(); ++i)
        m = better(m, x[i]);
    return m;
}

// Both extremes of floats: two vectors a step from the first step on, the tail into the first lane.
template <class T, class Better>
T pairedExtreme(std::span<const T> x, Better better)
{
    constexpr std::size_t n = lanesOf<T>;
    if (x.size() < 2 * n)
        return extremeOf(x, better);
    std::array<T, 2 * n> lane;
    std::copy_n(x.begin(), 2 * n, lane.begin());
    std::size_t i = 2 * n;
    while (i + 2 * n <= x.size())
        for (T& m : lane)
            m = better(m, x[i++]);
    std::array<T, n> joined;
    for (std::size_t k = 0; k < n; ++k)
        joined[k] = better(lane[k], lane[k + n]);
    for (; i < x.size(); ++i)
        joined[0] = better(joined[0], x[i]);
    return folded(joined, better);
}

template <class T>
T call(TarnStatus (*function)(const T*, int, T*), const T* p, std::size_t len)
{
    GuardedArray<T> result(1, Placement::offset(1));
    EXPECT_EQ(tarnStsNoErr, function(p, static_cast<int>(len), result.data()));
    return result.get(0);
}

template <class T>
std::pair<T, T> callBoth(TarnStatus (*function)(const T*, int, T*, T*), const T* p, std::size_t len)
{
    GuardedArray<T> smallest(1, Placement::offset(1));
    GuardedArray<T> largest(1, Placement::offset(3));
    EXPECT_EQ(tarnStsNoErr, function(p, static_cast<int>(len), smallest.data(), largest.data()));
    return {smallest.get(0), largest.get(0)};
}

constexpr Match bitsOfNaN{.nan = NanRule::sameBits};

template <class T>
void expectFloatExtremes(TarnStatus (*min)(const T*, int, T*), TarnStatus (*max)(const T*, int, T*),
                         TarnStatus (*minMax)(const T*, int, T*, T*))
{
    // Hard values alone: a NaN or a zero in every other place.
    for (const auto kind : {Values::hard, Values::mixed, Values::unit}) {
        const auto values = randomValues<T>(5000, 61, kind);
        atOffsets(values, lengths({2, 4, 8, 16, 32}), [&](const T* p, std::span<const T> x, unsigned offset) {
            EXPECT_TRUE(valuesMatch(floatExtreme(x, offset, Smaller{}), call(min, p, x.size()), bitsOfNaN));
            EXPECT_TRUE(valuesMatch(floatExtreme(x, offset, Larger{}), call(max, p, x.size()), bitsOfNaN));
            const auto both = callBoth(minMax, p, x.size());
            EXPECT_TRUE(valuesMatch(pairedExtreme(x, Smaller{}), both.first, bitsOfNaN));
            EXPECT_TRUE(valuesMatch(pairedExtreme(x, Larger{}), both.second, bitsOfNaN));
        });
    }
}

TEST(MinMax, OfFloatsKeepsTheSelection)
{
    expectFloatExtremes<Tarn32f>(tarnsMin_32f, tarnsMax_32f, tarnsMinMax_32f);
    expectFloatExtremes<Tarn64f>(tarnsMin_64f, tarnsMax_64f, tarnsMinMax_64f);
}

TEST(MinMax, ALoneNaNGivesWayToTheNextElementOfItsLane)
{
    const Tarn32f nan = std::numeric_limits<Tarn32f>::quiet_NaN();
    const Tarn32f last[] = {3, 1, nan};
    EXPECT_TRUE(std::isnan(call(tarnsMin_32f, last, 3)));
    EXPECT_TRUE(std::isnan(call(tarnsMax_32f, last, 3)));
    const Tarn32f middle[] = {3, nan, 2};
    EXPECT_EQ(2.0F, call(tarnsMin_32f, middle, 3));
    EXPECT_EQ(2.0F, call(tarnsMax_32f, middle, 3));
    const Tarn32f first[] = {nan, 5, 4};
    EXPECT_EQ(4.0F, call(tarnsMin_32f, first, 3));
    EXPECT_EQ(5.0F, call(tarnsMax_32f, first, 3));
}

TEST(MinMax, OfZerosIsTheLaterOne)
{
    const Tarn64f zeros[] = {-0.0, 0.0};
    EXPECT_TRUE(valuesMatch(0.0, call(tarnsMin_64f, zeros, 2)));
    const Tarn64f turned[] = {0.0, -0.0};
    EXPECT_TRUE(valuesMatch(-0.0, call(tarnsMax_64f, turned, 2)));
}

template <class T>
void expectIntegerExtremes(TarnStatus (*minMax)(const T*, int, T*, T*))
{
    for (const auto kind : {Values::mixed, Values::unit}) {
        const auto values = randomValues<T>(5000, 63, kind);
        atOffsets(values, lengths({16, 32, 64}), [&](const T* p, std::span<const T> x, unsigned) {
            const auto both = callBoth(minMax, p, x.size());
            EXPECT_EQ(extremeOf(x, Smaller{}), both.first);
            EXPECT_EQ(extremeOf(x, Larger{}), both.second);
        });
    }
    // The extreme in every place of an otherwise even vector.
    for (std::size_t len : {1, 2, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100})
        for (std::size_t at = 0; at < len; ++at) {
            std::vector<T> x(len, T{100});
            x[at] = std::numeric_limits<T>::max();
            EXPECT_EQ(std::numeric_limits<T>::max(), callBoth(minMax, x.data(), len).second);
            x[at] = std::numeric_limits<T>::min();
            EXPECT_EQ(std::numeric_limits<T>::min(), callBoth(minMax, x.data(), len).first);
        }
}

TEST(MinMax, OfIntegers)
{
    expectIntegerExtremes<Tarn8u>(tarnsMinMax_8u);
    expectIntegerExtremes<Tarn16u>(tarnsMinMax_16u);
    expectIntegerExtremes<Tarn16s>(tarnsMinMax_16s);
    expectIntegerExtremes<Tarn32u>(tarnsMinMax_32u);
    expectIntegerExtremes<Tarn32s>(tarnsMinMax_32s);
    sweepReduction<Tarn16s, Tarn16s>([](const Tarn16s* p, int len, Tarn16s* m) { return tarnsMin_16s(p, len, m); },
                                     [](std::span<const Tarn16s> x) { return extremeOf(x, Smaller{}); });
    sweepReduction<Tarn16s, Tarn16s>([](const Tarn16s* p, int len, Tarn16s* m) { return tarnsMax_16s(p, len, m); },
                                     [](std::span<const Tarn16s> x) { return extremeOf(x, Larger{}); });
}

TEST(MinMaxEvery, SelectsByElement)
{
    const auto smaller = [](auto src, auto dst) { return src < dst ? src : dst; };
    const auto larger = [](auto src, auto dst) { return src > dst ? src : dst; };
    sweepInPlace<Tarn16s, Tarn16s>(tarnsMinEvery_16s_I, smaller);
    sweepInPlace<Tarn16s, Tarn16s>(tarnsMaxEvery_16s_I, larger);
    sweepInPlace<Tarn32s, Tarn32s>(tarnsMinEvery_32s_I, smaller);
    sweepInPlace<Tarn32s, Tarn32s>(tarnsMaxEvery_32s_I, larger);
    // Where one is a NaN, or both are zeros, the element of the destination stays, bit for bit.
    sweepInPlace<Tarn32f, Tarn32f>(tarnsMinEvery_32f_I, smaller, {.match = bitsOfNaN});
    sweepInPlace<Tarn32f, Tarn32f>(tarnsMaxEvery_32f_I, larger, {.match = bitsOfNaN});
}

TEST(MinMax, Checks)
{
    expectChecks(tarnsMin_16s, {}, array, length, array);
    expectChecks(tarnsMin_32f, {}, array, length, array);
    expectChecks(tarnsMin_64f, {}, array, length, array);
    expectChecks(tarnsMax_16s, {}, array, length, array);
    expectChecks(tarnsMax_32f, {}, array, length, array);
    expectChecks(tarnsMax_64f, {}, array, length, array);
    expectChecks(tarnsMinMax_8u, {}, array, length, array, array);
    expectChecks(tarnsMinMax_16u, {}, array, length, array, array);
    expectChecks(tarnsMinMax_16s, {}, array, length, array, array);
    expectChecks(tarnsMinMax_32u, {}, array, length, array, array);
    expectChecks(tarnsMinMax_32s, {}, array, length, array, array);
    expectChecks(tarnsMinMax_32f, {}, array, length, array, array);
    expectChecks(tarnsMinMax_64f, {}, array, length, array, array);
    expectChecks(tarnsMinEvery_16s_I);
    expectChecks(tarnsMinEvery_32s_I);
    expectChecks(tarnsMinEvery_32f_I);
    expectChecks(tarnsMaxEvery_16s_I);
    expectChecks(tarnsMaxEvery_32s_I);
    expectChecks(tarnsMaxEvery_32f_I);
}

} // namespace
} // namespace tarn::test
