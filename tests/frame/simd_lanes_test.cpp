// Words across lanes, and sums of elements of parts.
#include "frame/simd.h"
#include "frame/simd_neighbours.h"
#include "frame/walk.h"
#include "support/words.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(SimdLanes, ComplexElementsAdd)
{
    expectAgreement<Tarn32f, Tarn32f>(add);
    expectAgreement<Tarn64f, Tarn64f>(add);
    expectAgreement<Tarn32fc, Tarn32fc>(add);
    expectAgreement<Tarn64fc, Tarn64fc>(add);
}

TEST(SimdLanes, SpreadSamplesGiveComplexProducts)
{
    const Tarn64fc x = {3, -5};
    const Tarn64fc w = {7, 11};
    const Tarn64fc swapped = {11, 7};
    Tarn64fc y{};
    store(&y, mulSpread(loadPack<1>(&x), loadPack<2>(&w.re), loadPack<2>(&swapped.re)));
    EXPECT_EQ(3 * 7 + 5 * 11, y.re);
    EXPECT_EQ(3 * 11 - 5 * 7, y.im);
}

TEST(SimdLanes, SumsOfLanesKeepTheirOrder)
{
    const Tarn32s rows[4][4] = {{1, 2, 3, 4}, {50, 60, 70, 80}, {-1, -20, 300, 9}, {INT32_MAX, 1, 0, 5}};
    const auto row = [&](int i) { return loadPack<4>(rows[i]); };
    Tarn32s sums[4];
    store(sums, sumsOfLanes(row(0), row(1), row(2), row(3)));
    EXPECT_EQ(10, sums[0]);
    EXPECT_EQ(260, sums[1]);
    EXPECT_EQ(288, sums[2]);
    EXPECT_EQ(INT32_MIN + 5, sums[3]);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(sums[i], foldLanes(row(i), add));
    const Tarn32f singles[4] = {1, 20, 300, 4000};
    EXPECT_EQ(4321, foldLanes(loadPack<4>(singles), add));
    const Tarn64f doubles[2] = {1, 20};
    EXPECT_EQ(21, foldLanes(loadPack<2>(doubles), add));
}

TEST(SimdLanes, SlideOverTwoPacks)
{
    const auto expectSlides = [](auto type) {
        using T = decltype(type);
        const auto expectSlide = [](auto pack, auto at) {
            constexpr int n = decltype(pack)::value;
            constexpr int k = decltype(at)::value;
            T lanes[2 * n];
            for (int i = 0; i < 2 * n; ++i)
                lanes[i] = static_cast<T>(i + 1);
            const auto slid = lanesAsArray(slide<k>(loadPack<n>(lanes), loadPack<n>(lanes + n)));
            for (int i = 0; i < n; ++i)
                EXPECT_EQ(lanes[i + k], slid[static_cast<std::size_t>(i)]) << n << " lanes from " << k;
        };
        repeat<4>([&](auto k) { expectSlide(std::integral_constant<int, 4>{}, k); });
        repeat<8>([&](auto k) { expectSlide(std::integral_constant<int, 8>{}, k); });
    };
    expectSlides(Tarn32f{});
    expectSlides(Tarn64f{});
}

TEST(SimdLanes, LanesSpreadOverAll)
{
    const Tarn32f singles[4] = {1, 20, 300, 4000};
    const Tarn64f doubles[4] = {1, 20, 300, 4000};
    const auto expectAll = [](auto x, double value) {
        for (const auto lane : lanesAsArray(x))
            EXPECT_EQ(value, lane);
    };
    expectAll(spreadLane<0>(loadPack<4>(singles)), 1);
    expectAll(spreadLane<1>(loadPack<4>(singles)), 20);
    expectAll(spreadLane<2>(loadPack<4>(singles)), 300);
    expectAll(spreadLane<3>(loadPack<4>(singles)), 4000);
    expectAll(spreadLane<0>(loadPack<4>(doubles)), 1);
    expectAll(spreadLane<1>(loadPack<4>(doubles)), 20);
    expectAll(spreadLane<2>(loadPack<4>(doubles)), 300);
    expectAll(spreadLane<3>(loadPack<4>(doubles)), 4000);
}

TEST(SimdLanes, HalvesComeFromTwoPlaces)
{
    const Tarn32fc values[2] = {{1, 2}, {3, 4}};
    Tarn32fc crossed[2];
    store(crossed, loadHalves(values + 1, values));
    EXPECT_EQ(3, crossed[0].re);
    EXPECT_EQ(4, crossed[0].im);
    EXPECT_EQ(1, crossed[1].re);
    EXPECT_EQ(2, crossed[1].im);
    Tarn32s lanes[4];
    store(lanes, lanesOf(5, 6, 7, 8));
    EXPECT_EQ(5, lanes[0]);
    EXPECT_EQ(8, lanes[3]);
}

TEST(SimdLanes, HalvesHaveZerosAbove)
{
    const Tarn32f singles[2] = {1, 20};
    EXPECT_EQ(21, foldLanes(loadHalf<4>(singles), add));
    const Tarn64f one = 7;
    EXPECT_EQ(7, foldLanes(loadHalf<2>(&one), add));
}

template <class T, int n>
void expectNeighbours()
{
    T rising[3 * n];
    for (int i = 0; i < 3 * n; ++i)
        rising[i] = static_cast<T>(i + 1);
    const auto x = loadPack<n>(rising + n);
    T next[n];
    store(next, fromNextLanes(x, loadPack<n>(rising + 2 * n)));
    T previous[n];
    store(previous, fromPreviousLanes(x, loadPack<n>(rising)));
    for (int i = 0; i < n; ++i) {
        EXPECT_EQ(rising[n + i + 1], next[i]);
        EXPECT_EQ(rising[n + i - 1], previous[i]);
    }
}

TEST(SimdLanes, NeighboursCrossPacks)
{
    expectNeighbours<Tarn8u, 16>();
    expectNeighbours<Tarn32s, 4>();
    expectNeighbours<Tarn32f, 4>();
    expectNeighbours<Tarn32f, 16>();
    expectNeighbours<Tarn64f, 2>();
    expectNeighbours<Tarn64f, 8>();
}

} // namespace
} // namespace tarn::test
