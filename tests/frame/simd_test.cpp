// Every word of the vocabulary gives an element and a vector the same bits.
#include "support/words.h"

namespace tarn::test {
namespace {

template <class F>
void forIntegers(F f)
{
    f.template operator()<Tarn8u>();
    f.template operator()<Tarn8s>();
    f.template operator()<Tarn16u>();
    f.template operator()<Tarn16s>();
    f.template operator()<Tarn32u>();
    f.template operator()<Tarn32s>();
}

TEST(Simd, BitsOfIntegers)
{
    forIntegers([]<class T>() {
        expectAgreement<T, T>(bitAnd);
        expectAgreement<T, T>(bitOr);
        expectAgreement<T, T>(bitXor);
        expectAgreement<T, T>(bitAndNot);
    });
}

TEST(Simd, WrappingArithmetic)
{
    forIntegers([]<class T>() {
        expectAgreement<T, T>(add);
        expectAgreement<T, T>(sub);
    });
    expectAgreement<Tarn64s, Tarn64s>(add);
    expectAgreement<Tarn64s, Tarn64s>(sub);
}

TEST(Simd, SaturatingArithmetic)
{
    expectAgreement<Tarn8u, Tarn8u>(addSaturated);
    expectAgreement<Tarn8s, Tarn8s>(addSaturated);
    expectAgreement<Tarn8s, Tarn8s>(subSaturated);
    expectAgreement<Tarn64s, Tarn64s>(addSaturated);
    expectAgreement<Tarn64s, Tarn64s>(subSaturated);
    expectAgreement<Tarn16u, Tarn16u>(addSaturated);
    expectAgreement<Tarn16s, Tarn16s>(addSaturated);
    expectAgreement<Tarn32u, Tarn32u>(addSaturated);
    expectAgreement<Tarn32s, Tarn32s>(addSaturated);
    expectAgreement<Tarn8u, Tarn8u>(subSaturated);
    expectAgreement<Tarn16u, Tarn16u>(subSaturated);
    expectAgreement<Tarn16s, Tarn16s>(subSaturated);
    expectAgreement<Tarn32s, Tarn32s>(subSaturated);
    expectAgreement<Tarn16s>(boundOfSign);
    expectAgreement<Tarn32s>(boundOfSign);
    expectAgreement<Tarn64s>(boundOfSign);
}

TEST(Simd, ComparisonsAndChoices)
{
    forIntegers([]<class T>() {
        expectAgreement<T, T>(greater);
        expectAgreement<T, T>(less);
        expectAgreement<T, T>(equal);
        expectAgreement<T, T>(min);
        expectAgreement<T, T>(max);
        expectAgreement<T, T>([](auto a, auto b) { return select(greater(a, b), a, sub(b, a)); });
    });
    expectAgreement<Tarn64s, Tarn64s>(greater);
    expectAgreement<Tarn64s, Tarn64s>(less);
    expectAgreement<Tarn64s, Tarn64s>(equal);
    expectAgreement<Tarn64s, Tarn64s>([](auto a, auto b) { return equal(shiftRight(a, 40), shiftRight(b, 40)); });
}

TEST(Simd, FloatsIncludingNanAndSignedZero)
{
    const auto all = []<class T>() {
        expectAgreement<T, T>(add);
        expectAgreement<T, T>(sub);
        expectAgreement<T, T>(mul);
        expectAgreement<T, T>(div);
        expectAgreement<T, T>(min);
        expectAgreement<T, T>(max);
        expectAgreement<T, T>(greater);
        expectAgreement<T, T>(less);
        expectAgreement<T, T>(equal);
        expectAgreement<T, T>([](auto a, auto b) { return select(less(a, b), b, a); });
    };
    all.operator()<Tarn32f>();
    all.operator()<Tarn64f>();
}

TEST(Simd, ShiftsAtEveryCount)
{
    for (int n = 0; n <= 70; ++n) {
        SCOPED_TRACE(n);
        const auto left = [n](auto x) { return shiftLeft(x, n); };
        const auto right = [n](auto x) { return shiftRight(x, n); };
        const auto logical = [n](auto x) { return shiftRightLogical(x, n); };
        expectAgreement<Tarn16s>(left);
        expectAgreement<Tarn16u>(left);
        expectAgreement<Tarn32s>(left);
        expectAgreement<Tarn32u>(left);
        expectAgreement<Tarn64s>(left);
        expectAgreement<Tarn16s>(right);
        expectAgreement<Tarn16u>(right);
        expectAgreement<Tarn32s>(right);
        expectAgreement<Tarn32u>(right);
        expectAgreement<Tarn64s>(right);
        expectAgreement<Tarn16s>(logical);
        expectAgreement<Tarn32s>(logical);
    }
}

TEST(Simd, SaturatingLeftShifts)
{
    for (int n = 0; n < 64; ++n) {
        SCOPED_TRACE(n);
        const auto up = [n](auto x) { return shiftLeftSaturated(x, n); };
        expectAgreement<Tarn64s>(up);
        if (n < 8)
            expectAgreement<Tarn8u>(up);
        if (n < 16)
            expectAgreement<Tarn16s>(up);
        if (n < 32)
            expectAgreement<Tarn32s>(up);
    }
}

TEST(Simd, ChangesOfType)
{
    expectAgreement<Tarn8u>(widen);
    expectAgreement<Tarn8s>(widen);
    expectAgreement<Tarn16u>(widen);
    expectAgreement<Tarn16s>(widen);
    expectAgreement<Tarn8u, Tarn8u>(sumWidened);
    expectAgreement<Tarn16s, Tarn16s>(sumWidened);
    expectAgreement<Tarn32s>(convert<Tarn32f>);
    expectAgreement<Tarn16s>(retype<Tarn16u>);
    expectAgreement<Tarn8u>(
        [](auto x) { return narrowSaturated<Tarn8u>(sub(widen(x), splat<decltype(widen(x))>(100))); });
    expectAgreement<Tarn16s, Tarn16s>([](auto a, auto b) { return narrowSaturated<Tarn16s>(sumWidened(a, b)); });
    expectAgreement<Tarn8s, Tarn8s>([](auto a, auto b) { return narrowSaturated<Tarn8s>(sumWidened(a, b)); });
    expectAgreement<Tarn16s>(narrowSaturated<Tarn16s>);
}

TEST(Simd, MovedBytes)
{
    expectAgreement<Tarn16u>(swapBytes);
    expectAgreement<Tarn32u>(swapBytes);
}

template <class T>
void expectReversed()
{
    constexpr int n = 4 * lanes<T>;
    T elements[n];
    for (int i = 0; i < n; ++i)
        std::memset(&elements[i], i + 1, sizeof(T));
    T reversed[n];
    store(reversed, reverse(loadPack<n>(elements)));
    for (int i = 0; i < n; ++i)
        EXPECT_EQ(0, std::memcmp(&elements[i], &reversed[n - 1 - i], sizeof(T))) << i;
    EXPECT_EQ(0, std::memcmp(&elements[1], std::addressof(static_cast<const T&>(reverse(elements[1]))), sizeof(T)));
}

TEST(Simd, ReversedPacks)
{
    expectReversed<Tarn8u>();
    expectReversed<Tarn16u>();
    expectReversed<Tarn32s>();
    expectReversed<Tarn32f>();
    expectReversed<Tarn64f>();
    expectReversed<Tarn64s>();
}

TEST(Simd, AnyLaneOfAMask)
{
    for (int set = -1; set < 2 * lanes<Tarn16s>; ++set) {
        Tarn16s mask[2 * lanes<Tarn16s>] = {};
        if (set >= 0)
            mask[set] = -1;
        EXPECT_EQ(set >= 0, anyOf(loadPack<2 * lanes<Tarn16s>>(mask))) << set;
        for (Tarn16s& lane : mask)
            lane = static_cast<Tarn16s>(~lane);
        EXPECT_EQ(set < 0, allOf(loadPack<2 * lanes<Tarn16s>>(mask))) << set;
    }
    EXPECT_TRUE(anyOf(true));
    EXPECT_FALSE(anyOf(false));
}

template <class T>
void expectSplat(T value)
{
    constexpr int n = 2 * lanes<T>;
    T everywhere[n];
    store(everywhere, splat<Pack<T, n>>(value));
    for (const T& element : everywhere)
        EXPECT_EQ(0, std::memcmp(&element, &value, sizeof value));
}

TEST(Simd, SplatFillsEveryPlace)
{
    expectSplat<Tarn8u>(0xA5);
    expectSplat<Tarn16s>(-12345);
    expectSplat<Tarn32s>(0x12345678);
    expectSplat<Tarn64s>(0x123456789ABCDEF0);
    expectSplat<Tarn32f>(1.5F);
    expectSplat<Tarn64f>(-0.1);
    expectSplat<Tarn16sc>({-2, 3});
    expectSplat<Tarn32sc>({-200000, 300000});
    expectSplat<Tarn64sc>({-2, 3});
    expectSplat<Tarn32fc>({-2.5F, 3.5F});
    expectSplat<Tarn64fc>({-2.5, 3.5});
}

TEST(Simd, ComplexElementsActPartByPart)
{
    const auto difference = PerPart<Word<Sub>>{sub};
    const Tarn32fc a[4] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}};
    const Tarn32fc b[4] = {{10, 20}, {30, 50}, {70, 110}, {130, 170}};
    Tarn32fc packed[4];
    store(packed, difference(loadPack<4>(a), loadPack<4>(b)));
    for (int i = 0; i < 4; ++i) {
        const Tarn32fc one = difference(a[i], b[i]);
        EXPECT_EQ(a[i].re - b[i].re, one.re);
        EXPECT_EQ(a[i].im - b[i].im, one.im);
        EXPECT_EQ(one.re, packed[i].re);
        EXPECT_EQ(one.im, packed[i].im);
    }
}

} // namespace
} // namespace tarn::test
