// Words that put lanes in another order.
#include "frame/simd_permute.h"

#include <gtest/gtest.h>

#include <array>

namespace tarn::test {
namespace {

template <int a, int b, int c, int d, typename T>
void expectOrder(const std::array<T, 4>& values)
{
    std::array<T, 4> lanes{};
    store(lanes.data(), fourLanes<a, b, c, d>(loadPack<4>(values.data())));
    EXPECT_EQ((std::array<T, 4>{values[a], values[b], values[c], values[d]}), lanes);
}

template <typename T>
void expectOrders(const std::array<T, 4>& values)
{
    expectOrder<0, 1, 2, 3>(values);
    expectOrder<1, 2, 3, 0>(values);
    expectOrder<3, 3, 0, 2>(values);
    expectOrder<2, 1, 1, 0>(values);
}

TEST(SimdPermute, LanesInAnyOrder)
{
    expectOrders<Tarn32s>({5, -7, 11, 13});
    expectOrders<Tarn32u>({1, 0xFFFFFFFF, 3, 4});
    expectOrders<Tarn32f>({1.5F, -2.5F, 3, 4});
}

} // namespace
} // namespace tarn::test
