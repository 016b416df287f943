// Products of two vectors against plain ones.
#include "tarns.h"

#include "model/product.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/nans.h"
#include "support/scaled.h"

namespace tarn::test {
namespace {

using model::saturated;
using model::scaledProduct;

constexpr ScaleRange range_8u{.down = 16, .up = 7};
constexpr ScaleRange range_16s{.down = 30, .up = 15};
constexpr ScaleRange range_16sc{.down = 31, .up = 15};
constexpr ScaleRange range_16u16s{.down = 31, .up = 15};
constexpr ScaleRange range_16s32s{.down = 30, .up = 30};
constexpr ScaleRange range_32s{.down = 62, .up = 31};
constexpr ScaleRange range_32sc{.down = 63, .up = 31};
constexpr Tarn32s top = 2147483647;
constexpr Tarn32s bottom = -top - 1;

constexpr auto exactProduct = [](auto a, auto b, int s) { return scaledProduct<decltype(b)>(a, b, s); };

TEST(Mul, ScaledProductsOfBytesAndWords)
{
    sweepScaled<Tarn8u>(tarnsMul_8u_Sfs, tarnsMul_8u_ISfs, range_8u, exactProduct);
    sweepScaled<Tarn16s>(tarnsMul_16s_Sfs, tarnsMul_16s_ISfs, range_16s, exactProduct);
    sweepScaled<Tarn16sc>(tarnsMul_16sc_Sfs, tarnsMul_16sc_ISfs, range_16sc, exactProduct);
}

TEST(Mul, ScaledProductsOfMixedTypes)
{
    for (const int s : range_16s32s.factors()) {
        SCOPED_TRACE(s);
        sweepElementwise<Tarn32s, Tarn16s, Tarn16s>(
            [s](auto... arguments) { return tarnsMul_16s32s_Sfs(arguments..., s); },
            [s](Tarn16s a, Tarn16s b) { return scaledProduct<Tarn32s>(a, b, s); }, {.depth = range_16s32s.depth(s)});
    }
    for (const int s : range_16u16s.factors()) {
        SCOPED_TRACE(s);
        sweepElementwise<Tarn16s, Tarn16u, Tarn16s>(
            [s](auto... arguments) { return tarnsMul_16u16s_Sfs(arguments..., s); },
            [s](Tarn16u a, Tarn16s b) { return scaledProduct<Tarn16s>(a, b, s); }, {.depth = range_16u16s.depth(s)});
    }
    for (const int s : range_32s.factors()) {
        SCOPED_TRACE(s);
        const auto model = [s](Tarn32s a, Tarn32sc b) { return scaledProduct<Tarn32sc>(a, b, s); };
        sweepElementwise<Tarn32sc, Tarn32s, Tarn32sc>(
            [s](auto... arguments) { return tarnsMul_32s32sc_Sfs(arguments..., s); }, model, {.depth = Depth::quick});
        sweepInPlace<Tarn32sc, Tarn32s>([s](auto... arguments) { return tarnsMul_32s32sc_ISfs(arguments..., s); },
                                        model, {.depth = Depth::quick});
    }
}

TEST(Mul, ScaledProductsOf32BitComplexElements)
{
    for (const int s : range_32sc.factors()) {
        SCOPED_TRACE(s);
        const auto model = [s](Tarn32sc a, Tarn32sc b) { return scaledProduct<Tarn32sc>(a, b, s); };
        auto columns = makeColumns<Tarn32sc, Tarn32sc>(Values::random, 500);
        // The one product that does not fit 64 bits, and its neighbours.
        std::get<0>(columns)[0] = std::get<1>(columns)[0] = {bottom, bottom};
        std::get<0>(columns)[1] = {bottom, bottom};
        std::get<1>(columns)[1] = {top, bottom};
        std::get<0>(columns)[2] = {bottom, bottom};
        std::get<1>(columns)[2] = {bottom, bottom + 1};
        sweepElementwise<Tarn32sc, Tarn32sc, Tarn32sc>(
            [s](auto... arguments) { return tarnsMul_32sc_Sfs(arguments..., s); }, model, {.depth = Depth::quick},
            columns);
        sweepInPlace<Tarn32sc, Tarn32sc>([s](auto... arguments) { return tarnsMul_32sc_ISfs(arguments..., s); }, model,
                                         {.depth = Depth::quick}, columns);
    }
}

// Both ways to such a product, by a vector and by a constant.
TEST(Mul, EveryPairOfExtreme32BitComplexElements)
{
    const Tarn32s parts[] = {bottom, bottom + 1, -1, 0, 1, top - 1, top};
    std::vector<Tarn32sc> elements;
    for (const Tarn32s re : parts)
        for (const Tarn32s im : parts)
            elements.push_back({re, im});
    const auto len = static_cast<int>(elements.size());
    for (const int s : {-33, -32, -31, -30, -1, 0, 1, 2, 3, 30, 31, 32, 33, 34, 61, 62, 63, 64, 65}) {
        for (const Tarn32sc val : elements) {
            const std::vector<Tarn32sc> vals(elements.size(), val);
            std::vector<Tarn32sc> products(elements.size());
            std::vector<Tarn32sc> productsByConstant(elements.size());
            EXPECT_EQ(tarnStsNoErr, tarnsMul_32sc_Sfs(elements.data(), vals.data(), products.data(), len, s));
            EXPECT_EQ(tarnStsNoErr, tarnsMulC_32sc_Sfs(elements.data(), val, productsByConstant.data(), len, s));
            for (std::size_t i = 0; i < elements.size(); ++i) {
                const auto expected = scaledProduct<Tarn32sc>(elements[i], val, s);
                ASSERT_TRUE(valuesMatch<Tarn32sc>(expected, products[i]))
                    << toText(elements[i]) << " times " << toText(val) << " at " << s;
                ASSERT_TRUE(valuesMatch<Tarn32sc>(expected, productsByConstant[i]))
                    << toText(elements[i]) << " times " << toText(val) << " at " << s;
            }
        }
    }
}

TEST(Mul, ProductsOf32BitsByWayOfDoubles)
{
    sweepScaled<Tarn32s>(tarnsMul_32s_Sfs, tarnsMul_32s_ISfs, range_32s,
                         [](Tarn32s a, Tarn32s b, int s) { return model::productByDoubles(a, b, s); });
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const int s : {0, 1, 2, 20, 31, 40, 62, -1, -31, -32}) {
            SCOPED_TRACE(s);
            const auto model = [s](Tarn32s a, Tarn32s b) { return model::productByDoubles(a, b, s); };
            const SweepOptions options{.depth = Depth::quick, .values = s > 20 ? Values::random : Values::mixed};
            sweepElementwise<Tarn32s, Tarn32s, Tarn32s>(
                [s](auto... arguments) { return tarnsMul_32s_Sfs(arguments..., s); }, model, options);
            sweepInPlace<Tarn32s, Tarn32s>([s](auto... arguments) { return tarnsMul_32s_ISfs(arguments..., s); }, model,
                                           options);
        }
    }
}

template <class T, class A, class B, class... Scale>
T one(TarnStatus (*function)(const A*, const B*, T*, int, Scale...), std::type_identity_t<A> a,
      std::type_identity_t<B> b, std::type_identity_t<Scale>... s)
{
    // As a single element, and in the middle of vectors.
    T alone{};
    EXPECT_EQ(tarnStsNoErr, function(&a, &b, &alone, 1, s...));
    const std::vector<A> as(67, a);
    const std::vector<B> bs(67, b);
    std::vector<T> products(67);
    EXPECT_EQ(tarnStsNoErr, function(as.data(), bs.data(), products.data(), 67, s...));
    EXPECT_TRUE(valuesMatch<T>(alone, products[33]));
    return alone;
}

// The exact product lies just above a tie and would be rounded up. 53 bits do not tell it from the tie.
TEST(Mul, ProductsOf32BitsThatDoublesRoundTwice)
{
    constexpr Tarn32s a = 825415931;
    constexpr Tarn32s b = 1150120499;
    constexpr Tarn64s exact = Tarn64s{a} * b;
    const auto even = static_cast<Tarn32s>(exact >> 30);
    EXPECT_EQ(even + 1, model::scaled<Tarn32s>(exact, 30));
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        EXPECT_EQ(even, one(tarnsMul_32s_Sfs, a, b, 30));
        Tarn32s byConstant = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsMulC_32s_Sfs(&a, b, &byConstant, 1, 30));
        EXPECT_EQ(even + 1, byConstant);
    }
}

TEST(Mul, ProductsWithoutAScale)
{
    sweepBoth<Tarn16s>(tarnsMul_16s, tarnsMul_16s_I, [](int a, int b) { return saturated<Tarn16s>(a * b); });
    sweepElementwise<Tarn16u, Tarn8u, Tarn8u>(tarnsMul_8u16u, [](int a, int b) { return static_cast<Tarn16u>(a * b); });
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepElementwise<Tarn32f, Tarn16s, Tarn16s>(tarnsMul_16s32f,
                                                    [](int a, int b) { return static_cast<Tarn32f>(a * b); });
    }
}

template <class T>
T floatProduct(T a, T b)
{
    if constexpr (requires { a.re; }) {
        // Each operation rounds by itself.
        volatile RealOf<T> rere = a.re * b.re;
        volatile RealOf<T> imim = a.im * b.im;
        volatile RealOf<T> reim = a.re * b.im;
        volatile RealOf<T> imre = a.im * b.re;
        return {rere - imim, reim + imre};
    } else {
        return a * b;
    }
}

TEST(Mul, FloatProductsInEveryRoundingMode)
{
    const auto model = [](auto a, auto b) { return floatProduct(a, b); };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const SweepOptions options{.depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick};
        sweepBoth<Tarn32f>(tarnsMul_32f, tarnsMul_32f_I, model, options);
        sweepBoth<Tarn64f>(tarnsMul_64f, tarnsMul_64f_I, model, options);
        sweepBoth<Tarn32fc>(tarnsMul_32fc, tarnsMul_32fc_I, model, options);
        sweepBoth<Tarn64fc>(tarnsMul_64fc, tarnsMul_64fc_I, model, options);
    }
}

TEST(Mul, ExtremesOfWords)
{
    EXPECT_EQ(32767, one(tarnsMul_16s_Sfs, -32768, -32768, 0));
    EXPECT_EQ(1, one(tarnsMul_16s_Sfs, -32768, -32768, 30));
    EXPECT_EQ(0, one(tarnsMul_16s_Sfs, -32768, -32768, 31));
    const Tarn16sc lowest{-32768, -32768};
    for (const auto& [s, im] :
         {std::pair{0, 32767}, {15, 32767}, {16, 32767}, {17, 16384}, {30, 2}, {31, 1}, {32, 0}}) {
        const Tarn16sc product = one(tarnsMul_16sc_Sfs, lowest, lowest, s);
        EXPECT_EQ(0, product.re) << s;
        EXPECT_EQ(im, product.im) << s;
    }
}

TEST(Mul, ExtremesOf32Bits)
{
    EXPECT_EQ(1, one(tarnsMul_32s_Sfs, top, top, 62));
    EXPECT_EQ(0, one(tarnsMul_32s_Sfs, top, top, 63));
    EXPECT_EQ(top, one(tarnsMul_32s_Sfs, bottom, bottom, 0));
    EXPECT_EQ(top, one(tarnsMul_32s_Sfs, 1, 1, -31));
    EXPECT_EQ(bottom, one(tarnsMul_32s_Sfs, 1, -1, -31));
    EXPECT_EQ(bottom, one(tarnsMul_32s_Sfs, 1, -1, -32));
}

// Above its limit a factor zeroes the destination, and the sources are not even read: here they cannot be.
TEST(Mul, FactorsAboveTheLimitReadNothing)
{
    const GuardedArray<Tarn64s> guarded(1, Placement::atEnd());
    const void* unreadable = guarded.data() + 1;
    const auto expectZeros = [&]<class A, class B, class D>(TarnStatus (*function)(const A*, const B*, D*, int, int),
                                                            int s) {
        std::vector<D> destination(40);
        randomFill<D>(destination, 1, Values::random);
        EXPECT_EQ(tarnStsNoErr, function(static_cast<const A*>(unreadable), static_cast<const B*>(unreadable),
                                         destination.data(), 40, s));
        const std::vector<D> zeros(40);
        EXPECT_TRUE(arraysMatch<D>(zeros.data(), destination.data(), 40));
    };
    expectZeros(tarnsMul_8u_Sfs, 17);
    expectZeros(tarnsMul_16s_Sfs, 31);
    expectZeros(tarnsMul_16s32s_Sfs, 31);
    expectZeros(tarnsMul_16u16s_Sfs, 32);
    expectZeros(tarnsMul_16sc_Sfs, 32);
    expectZeros(tarnsMul_32s_Sfs, 63);
    expectZeros(tarnsMul_32s32sc_Sfs, 63);
    expectZeros(tarnsMul_32sc_Sfs, 64);
}

TEST(Mul, ChecksInOrder)
{
    expectChecks(tarnsMul_8u_Sfs);
    expectChecks(tarnsMul_8u_ISfs);
    expectChecks(tarnsMul_8u16u);
    expectChecks(tarnsMul_16s);
    expectChecks(tarnsMul_16s_I);
    expectChecks(tarnsMul_16s_Sfs);
    expectChecks(tarnsMul_16s_ISfs);
    expectChecks(tarnsMul_16s32f);
    expectChecks(tarnsMul_16s32s_Sfs);
    expectChecks(tarnsMul_16u16s_Sfs);
    expectChecks(tarnsMul_16sc_Sfs);
    expectChecks(tarnsMul_16sc_ISfs);
    expectChecks(tarnsMul_32s_Sfs);
    expectChecks(tarnsMul_32s_ISfs);
    expectChecks(tarnsMul_32s32sc_Sfs);
    expectChecks(tarnsMul_32s32sc_ISfs);
    expectChecks(tarnsMul_32sc_Sfs);
    expectChecks(tarnsMul_32sc_ISfs);
    expectChecks(tarnsMul_32f);
    expectChecks(tarnsMul_32f_I);
    expectChecks(tarnsMul_32fc);
    expectChecks(tarnsMul_32fc_I);
    expectChecks(tarnsMul_64f);
    expectChecks(tarnsMul_64f_I);
    expectChecks(tarnsMul_64fc);
    expectChecks(tarnsMul_64fc_I);
    for (const int s : {100, -100})
        expectChecks(tarnsMul_32s_Sfs, {}, array, array, array, length, s);
}

// Of two NaNs the first operand's survives, wherever in an array the element lies; in complex products, which start
// with the second operand, the real part of that one.
TEST(Mul, TwoNans)
{
    const auto first = [](auto a, auto /*b*/) { return a; };
    sweepNans<Tarn32f>(tarnsMul_32f, tarnsMul_32f_I, first);
    sweepNans<Tarn64f>(tarnsMul_64f, tarnsMul_64f_I, first);
    const auto realOfSecond = [](auto /*a*/, auto b) { return decltype(b){b.re, b.re}; };
    sweepNans<Tarn32fc>(tarnsMul_32fc, tarnsMul_32fc_I, realOfSecond);
    sweepNans<Tarn64fc>(tarnsMul_64fc, tarnsMul_64fc_I, realOfSecond);
}

} // namespace
} // namespace tarn::test
