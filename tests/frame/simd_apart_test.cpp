// Words for complex data: arithmetic agrees between elements and registers, and the moves put every element where they
// say.
#include "frame/simd_apart.h"
#include "support/compare.h"
#include "support/hard_values.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace tarn::test {
namespace {

template <class T>
class SimdApart : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(SimdApart, Precisions);

// The real or the imaginary part of a result, as a word of four operands.
template <class Operation>
auto part(bool imaginary, Operation operation)
{
    return [=](auto a, auto b, auto c, auto d) {
        using X = decltype(a);
        const auto result = operation(Complex<X>{a, b}, Complex<X>{c, d});
        return imaginary ? result.im : result.re;
    };
}

TYPED_TEST(SimdApart, ArithmeticAgrees)
{
    using T = TypeParam;
    const auto agree = [](auto operation) {
        for (bool imaginary : {false, true})
            expectAgreement<T, T, T, T>(part(imaginary, operation));
    };
    agree([](auto a, auto b) { return a + b; });
    agree([](auto a, auto b) { return a - b; });
    agree([](auto a, auto b) { return plusTurned(a, b); });
    agree([](auto a, auto b) { return minusTurned(a, b); });
    agree([](auto a, auto b) { return times(a, b); });
    agree([](auto a, auto b) { return timesConjugate(a, b); });
}

TYPED_TEST(SimdApart, ArithmeticIsThatOfComplexNumbers)
{
    using C = Complex<TypeParam>;
    const C a{2, 3};
    const C b{5, 7};
    const auto expect = [](TypeParam re, TypeParam im, C actual) {
        EXPECT_EQ(re, actual.re);
        EXPECT_EQ(im, actual.im);
    };
    expect(7, 10, a + b);
    expect(-3, -4, a - b);
    expect(-5, 8, plusTurned(a, b));
    expect(9, -2, minusTurned(a, b));
    expect(-11, 29, times(a, b));
    expect(31, 1, timesConjugate(a, b));
}

template <class T>
std::vector<T> counted(int count)
{
    std::vector<T> values(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<T>(i + 1);
    return values;
}

template <class T>
void expectElements(const std::vector<T>& expected, Register<T> actual)
{
    std::vector<T> elements(registerLanes<T>);
    store(elements.data(), actual);
    EXPECT_EQ(expected, elements);
}

TYPED_TEST(SimdApart, PairsAreTakenApartAndJoined)
{
    using T = TypeParam;
    constexpr int width = registerLanes<T>;
    const auto pairs = counted<T>(2 * width + 1);
    for (int offset : {0, 1}) {
        const T* p = pairs.data() + offset;
        std::vector<T> re, im;
        for (int i = 0; i < width; ++i) {
            re.push_back(p[2 * i]);
            im.push_back(p[2 * i + 1]);
        }
        const auto parts = loadPairs<width>(p);
        expectElements(re, parts.re);
        expectElements(im, parts.im);
        std::vector<T> back(2 * width + 1);
        storePairs(back.data() + offset, parts);
        EXPECT_EQ(0, std::memcmp(p, back.data() + offset, 2 * width * sizeof(T)));

        const auto turned = loadPairsReversed<width>(p);
        expectElements(std::vector<T>(re.rbegin(), re.rend()), turned.re);
        expectElements(std::vector<T>(im.rbegin(), im.rend()), turned.im);
        storePairsReversed(back.data() + offset, turned);
        EXPECT_EQ(0, std::memcmp(p, back.data() + offset, 2 * width * sizeof(T)));
    }
}

TYPED_TEST(SimdApart, MovesWithinRegisters)
{
    using T = TypeParam;
    constexpr int width = registerLanes<T>;
    const auto values = counted<T>(width * width);
    Square<T> rows;
    for (int i = 0; i < width; ++i)
        rows[static_cast<std::size_t>(i)] = loadPack<width>(values.data() + i * width);
    const auto columns = transpose<T>(rows);
    for (int i = 0; i < width; ++i) {
        std::vector<T> expected;
        for (int j = 0; j < width; ++j)
            expected.push_back(values[static_cast<std::size_t>(j * width + i)]);
        expectElements(expected, columns[static_cast<std::size_t>(i)]);
    }

    const auto a = rows[0];
    const auto b = rows[1];
    std::vector<T> low, high, swapped, subAdded, inverted;
    for (int half = 0; half < 2; ++half)
        for (int i = 0; i < width / 2; ++i) {
            low.push_back(values[static_cast<std::size_t>(half * width + i)]);
            high.push_back(values[static_cast<std::size_t>(half * width + width / 2 + i)]);
        }
    for (int i = 0; i < width; ++i) {
        const T x = values[static_cast<std::size_t>(i)];
        const T y = values[static_cast<std::size_t>(width + i)];
        swapped.push_back(values[static_cast<std::size_t>(i ^ 1)]);
        subAdded.push_back(i % 2 == 0 ? x - y : x + y);
        inverted.push_back(-x);
    }
    expectElements(low, lowHalves(a, b));
    expectElements(high, highHalves(a, b));
    expectElements(swapped, swapParts(a));
    expectElements(subAdded, subAdd(a, b));
    expectElements(inverted, invertSigns(a));
}

TYPED_TEST(SimdApart, AlignedAccessIsAccess)
{
    using T = TypeParam;
    alignas(registerBytes) T from[registerLanes<T>];
    alignas(registerBytes) T to[registerLanes<T>];
    for (int i = 0; i < registerLanes<T>; ++i)
        from[i] = static_cast<T>(i + 1);
    storeAligned(to, loadAligned<registerLanes<T>>(from));
    EXPECT_EQ(0, std::memcmp(from, to, sizeof from));
}

TYPED_TEST(SimdApart, SignsOfZerosAndNansInvert)
{
    using T = TypeParam;
    for (T value : {T{0}, -T{0}, std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN()}) {
        std::vector<T> elements(registerLanes<T>);
        store(elements.data(), invertSigns(splat<Register<T>>(value)));
        EXPECT_EQ(!std::signbit(value), std::signbit(elements[0]));
    }
}

} // namespace
} // namespace tarn::test
