// Products of a vector and a constant against plain ones.
#include "tarns.h"

#include "model/product.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/nans.h"
#include "support/scaled.h"

#include <cmath>

namespace tarn::test {
namespace {

using model::saturated;
using model::scaledProduct;

constexpr ScaleRange range_8u{.down = 16, .up = 7};
constexpr ScaleRange range_16s{.down = 30, .up = 15};
constexpr ScaleRange range_16sc{.down = 31, .up = 15};
constexpr ScaleRange range_32s{.down = 62, .up = 31};
constexpr ScaleRange range_32sc{.down = 63, .up = 31};
constexpr Tarn32s top = 2147483647;
constexpr Tarn32s bottom = -top - 1;

constexpr auto exactProduct = [](auto a, auto val, int s) { return scaledProduct<decltype(a)>(a, val, s); };

TEST(MulC, ScaledProductsOfBytesAndWords)
{
    sweepScaledConstant<Tarn8u>(tarnsMulC_8u_Sfs, tarnsMulC_8u_ISfs, range_8u, {3, 0, 1, 128, 255}, exactProduct);
    sweepScaledConstant<Tarn16s>(tarnsMulC_16s_Sfs, tarnsMulC_16s_ISfs, range_16s, {-3, 0, 1, 32767, -32768},
                                 exactProduct);
    for (const int val : {0, 1, -1, 7, 32767, -32768}) {
        const auto constant = static_cast<Tarn16s>(val);
        sweepInPlace<Tarn16s>([=](Tarn16s* srcDst, int len) { return tarnsMulC_16s_I(constant, srcDst, len); },
                              [=](int a) { return saturated<Tarn16s>(a * val); });
    }
}

// A constant with and without a negative imaginary part of its own width: the twins.
TEST(MulC, ScaledProductsOfComplexWords)
{
    sweepScaledConstant<Tarn16sc>(tarnsMulC_16sc_Sfs, tarnsMulC_16sc_ISfs, range_16sc,
                                  {{-3, 1000}, {0, 0}, {1, 0}, {-32768, 32767}, {-32768, -32767}}, exactProduct);
    sweepScaledConstant<Tarn16sc>(tarnsMulC_16sc_Sfs, tarnsMulC_16sc_ISfs, range_16sc,
                                  {{-32768, -32768}, {32767, -32768}, {0, -32768}}, exactProduct);
}

TEST(MulC, EveryPairOfExtremeComplexWords)
{
    const int parts[] = {-32768, -32767, -1, 0, 1, 32766, 32767};
    std::vector<Tarn16sc> elements;
    for (const int re : parts)
        for (const int im : parts)
            elements.push_back({static_cast<Tarn16s>(re), static_cast<Tarn16s>(im)});
    const auto len = static_cast<int>(elements.size());
    for (const Tarn16sc val : elements) {
        for (int s = -17; s <= 33; ++s) {
            std::vector<Tarn16sc> products(elements.size());
            EXPECT_EQ(tarnStsNoErr, tarnsMulC_16sc_Sfs(elements.data(), val, products.data(), len, s));
            for (std::size_t i = 0; i < elements.size(); ++i)
                ASSERT_TRUE(valuesMatch<Tarn16sc>(scaledProduct<Tarn16sc>(elements[i], val, s), products[i]))
                    << toText(elements[i]) << " times " << toText(val) << " at " << s;
        }
    }
}

TEST(MulC, ExactScaledProductsOf32Bits)
{
    for (const RoundingMode mode : {RoundingMode::nearest, RoundingMode::up}) {
        const RoundingModeScope scope(mode);
        sweepScaledConstant<Tarn32s>(tarnsMulC_32s_Sfs, tarnsMulC_32s_ISfs, range_32s, {1150120499, 0, 1, top, bottom},
                                     exactProduct);
    }
}

TEST(MulC, ExactScaledProductsOf32BitComplexElements)
{
    auto columns = makeColumns<Tarn32sc>(Values::random, 500);
    auto& elements = std::get<0>(columns);
    elements[0] = {bottom, bottom};
    elements[1] = {top, bottom};
    elements[2] = {bottom, top};
    const std::vector<Tarn32sc> constants = {{5, -77777}, {0, 0}, {1, 0}, {bottom, bottom}, {bottom, top}};
    std::size_t turn = 0;
    for (const int s : range_32sc.factors()) {
        for (std::size_t i = 0; i < constants.size(); ++i) {
            const Tarn32sc val = constants[i];
            const SweepOptions options{.name = toText(val) + " at " + std::to_string(s),
                                       .depth = std::max(Depth::quick, depthOfConstant(i, turn, range_32sc.depth(s)))};
            const auto model = [=](Tarn32sc a) { return scaledProduct<Tarn32sc>(a, val, s); };
            sweepElementwise<Tarn32sc, Tarn32sc>(
                [=](const Tarn32sc* a, Tarn32sc* dst, int len) { return tarnsMulC_32sc_Sfs(a, val, dst, len, s); },
                model, options, columns);
            sweepInPlace<Tarn32sc>([=](Tarn32sc* a, int len) { return tarnsMulC_32sc_ISfs(val, a, len, s); }, model,
                                   options, columns);
        }
        ++turn;
    }
}

template <class T>
std::vector<T> realFloats()
{
    constexpr T infinity = std::numeric_limits<T>::infinity();
    constexpr T nan = std::numeric_limits<T>::quiet_NaN();
    return {T(1.1), T(0),     -T(0),     T(1),       nan,
            -nan,   infinity, -infinity, T(-1e-30L), std::numeric_limits<T>::denorm_min()};
}

template <class T>
std::vector<T> complexFloats()
{
    using R = RealOf<T>;
    constexpr R nan = std::numeric_limits<R>::quiet_NaN();
    return {{R(1.1), -2}, {0, 0}, {1, 0}, {-R(0), 1}, {nan, 3}, {0, nan}, {std::numeric_limits<R>::infinity(), 0}};
}

// One and NaN leave a real vector as it is, to the bit, and zeros of either sign make zeros of all; complex constants
// multiply.
template <class T>
T floatProduct(T a, T val)
{
    if constexpr (requires { a.re; }) {
        volatile RealOf<T> rere = a.re * val.re;
        volatile RealOf<T> imim = a.im * val.im;
        volatile RealOf<T> reim = a.re * val.im;
        volatile RealOf<T> imre = a.im * val.re;
        return {rere - imim, reim + imre};
    } else {
        return val == 1 || std::isnan(val) ? a : val == 0 ? T(0) : a * val;
    }
}

TEST(MulC, FloatProductsInEveryRoundingMode)
{
    const auto model = [](auto a, auto val) { return floatProduct(a, val); };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const Depth depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick;
        sweepBothConstant(tarnsMulC_32f, tarnsMulC_32f_I, realFloats<Tarn32f>(), model, depth);
        sweepBothConstant(tarnsMulC_64f, tarnsMulC_64f_I, realFloats<Tarn64f>(), model, depth);
        sweepBothConstant(tarnsMulC_32fc, tarnsMulC_32fc_I, complexFloats<Tarn32fc>(), model, depth);
        sweepBothConstant(tarnsMulC_64fc, tarnsMulC_64fc_I, complexFloats<Tarn64fc>(), model, depth);
    }
}

// Rounded to nearest whatever the mode: the library of the compiler's C rounds like that only in its default mode.
Tarn32s nearestInteger(Tarn32f x)
{
    const RoundingModeScope nearest(RoundingMode::nearest);
    return static_cast<Tarn32s>(std::nearbyint(x));
}

// The product of an element and the scaled constant, each rounded once, as the kernel's mode has it.
Tarn16s limitedProduct(Tarn32f x, Tarn32f val, int s)
{
    volatile Tarn32f factor = std::ldexp(1.0F, -std::clamp(s, -127, 126));
    volatile Tarn32f constant = s == 0 ? val : val * factor;
    const RoundingModeScope nearest(RoundingMode::nearest);
    volatile Tarn32f product = x * constant;
    if (std::isnan(product) || product < -32768)
        return -32768;
    return product > 32767 ? Tarn16s{32767} : static_cast<Tarn16s>(nearestInteger(product));
}

std::vector<int> factorsOfFloats()
{
    return {0, 1, -1, 2, -3, 15, -15, 125, 126, 127, 128, 1000, -126, -127, -128, -129, -1000, INT_MAX, INT_MIN};
}

TEST(MulC, FloatsToWordsRoundToNearestInEveryMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const int s : factorsOfFloats()) {
            for (const Tarn32f val : {1.0F, 0.5F, 0.0F, -0.1F, 1e38F, 3e-39F, INFINITY, std::nanf("")}) {
                SCOPED_TRACE(toText(val) + " at " + std::to_string(s));
                sweepElementwise<Tarn16s, Tarn32f>(
                    [=](const Tarn32f* a, Tarn16s* dst, int len) { return tarnsMulC_32f16s_Sfs(a, val, dst, len, s); },
                    [=](Tarn32f a) { return limitedProduct(a, val, s); },
                    {.depth = s == 1 && val == 0.5F ? Depth::full : Depth::quick});
            }
        }
    }
}

// No limit and no mode of its own: what does not fit 32 bits is the lowest word whatever its sign.
TEST(MulC, LowFloatsToWords)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const Tarn32f val : {1.0F, 0.5F, -0.1F, 1e38F, INFINITY, std::nanf("")}) {
            SCOPED_TRACE(toText(val));
            const auto model = [val](Tarn32f x) {
                volatile Tarn32f product = x * val;
                const bool fits = std::fabs(product) < 2147483648.0F;
                return fits ? saturated<Tarn16s>(static_cast<Tarn64s>(std::nearbyint(product))) : Tarn16s{-32768};
            };
            sweepElementwise<Tarn16s, Tarn32f>(
                [val](const Tarn32f* a, Tarn16s* dst, int len) { return tarnsMulC_Low_32f16s(a, val, dst, len); },
                model, {.depth = val == 0.5F ? Depth::full : Depth::quick});
        }
    }
}

TEST(MulC, ZeroAndOneAreShortcuts)
{
    const Tarn16s source[] = {3, 5, 7, -1, -3, 32767, -32768};
    for (const int s : {-1000, -16, -15, -1, 0, 1, 2, 30, 31, 1000}) {
        Tarn16s result[7] = {9, 9, 9, 9, 9, 9, 9};
        EXPECT_EQ(tarnStsNoErr, tarnsMulC_16s_Sfs(source, 0, result, 7, s));
        for (const Tarn16s x : result)
            EXPECT_EQ(0, x);
    }
    Tarn16s halves[7];
    EXPECT_EQ(tarnStsNoErr, tarnsMulC_16s_Sfs(source, 1, halves, 7, 1));
    EXPECT_EQ((std::vector<Tarn16s>{2, 2, 4, 0, -2, 16384, -16384}), std::vector<Tarn16s>(halves, halves + 7));
}

// A shortcut to zeros does not read its source: here it cannot.
TEST(MulC, ZeroReadsNothing)
{
    const GuardedArray<Tarn64s> guarded(1, Placement::atEnd());
    const void* unreadable = guarded.data() + 1;
    const auto expectZeros = [&]<class T>(TarnStatus (*function)(const T*, T, T*, int)) {
        for (const T zero : {T(0), -T(0)}) {
            std::vector<T> destination(40, T(7));
            EXPECT_EQ(tarnStsNoErr, function(static_cast<const T*>(unreadable), zero, destination.data(), 40));
            for (const T x : destination)
                EXPECT_TRUE(valuesMatch<T>(T(0), x));
        }
    };
    expectZeros(tarnsMulC_32f);
    expectZeros(tarnsMulC_64f);
    Tarn8u bytes[3] = {1, 2, 3};
    EXPECT_EQ(tarnStsNoErr, tarnsMulC_8u_Sfs(static_cast<const Tarn8u*>(unreadable), 0, bytes, 3, -9));
    EXPECT_EQ((std::vector<Tarn8u>{0, 0, 0}), std::vector<Tarn8u>(bytes, bytes + 3));
}

TEST(MulC, AConstantNaNCopiesAndZeroSwallowsInfinity)
{
    const Tarn32f infinity = std::numeric_limits<Tarn32f>::infinity();
    const Tarn32f source[] = {1, infinity, -2};
    Tarn32f result[3];
    EXPECT_EQ(tarnStsNoErr, tarnsMulC_32f(source, std::nanf(""), result, 3));
    EXPECT_EQ((std::vector<Tarn32f>{1, infinity, -2}), std::vector<Tarn32f>(result, result + 3));
    EXPECT_EQ(tarnStsNoErr, tarnsMulC_32f(source, 0, result, 3));
    EXPECT_EQ((std::vector<Tarn32f>{0, 0, 0}), std::vector<Tarn32f>(result, result + 3));
}

template <class T>
void expectConstantChecks(TarnStatus (*outOfPlace)(const T*, T, T*, int, int), TarnStatus (*inPlace)(T, T*, int, int))
{
    for (const int s : {0, 1, 100, -100}) {
        for (const auto& val : {T{}, hardValues<T>()[1], hardValues<T>()[4]}) {
            SCOPED_TRACE(toText(val) + " at " + std::to_string(s));
            expectChecks(outOfPlace, {}, array, val, array, length, s);
            expectChecks(inPlace, {}, val, array, length, s);
        }
    }
}

template <class T>
void expectConstantChecks(TarnStatus (*outOfPlace)(const T*, T, T*, int), TarnStatus (*inPlace)(T, T*, int))
{
    for (const auto& val : {T{}, hardValues<T>()[2], hardValues<T>()[20]}) {
        SCOPED_TRACE(toText(val));
        expectChecks(outOfPlace, {}, array, val, array, length);
        expectChecks(inPlace, {}, val, array, length);
    }
}

// With constants that take the shortcuts, others, and a factor that zeroes.
TEST(MulC, ChecksInOrder)
{
    expectConstantChecks(tarnsMulC_8u_Sfs, tarnsMulC_8u_ISfs);
    expectConstantChecks(tarnsMulC_16s_Sfs, tarnsMulC_16s_ISfs);
    expectConstantChecks(tarnsMulC_16sc_Sfs, tarnsMulC_16sc_ISfs);
    expectConstantChecks(tarnsMulC_32s_Sfs, tarnsMulC_32s_ISfs);
    expectConstantChecks(tarnsMulC_32sc_Sfs, tarnsMulC_32sc_ISfs);
    expectConstantChecks(tarnsMulC_32f, tarnsMulC_32f_I);
    expectConstantChecks(tarnsMulC_64f, tarnsMulC_64f_I);
    expectConstantChecks(tarnsMulC_32fc, tarnsMulC_32fc_I);
    expectConstantChecks(tarnsMulC_64fc, tarnsMulC_64fc_I);
    for (const int val : {0, 1, 3})
        expectChecks(tarnsMulC_16s_I, {}, static_cast<Tarn16s>(val), array, length);
    for (const Tarn32f val : {0.0F, 1.0F, 3.0F}) {
        expectChecks(tarnsMulC_32f16s_Sfs, {}, array, val, array, length, 1000);
        expectChecks(tarnsMulC_Low_32f16s, {}, array, val, array, length);
    }
}

// Of two NaNs the real part of the constant survives.
TEST(MulC, TwoNans)
{
    const auto realOfSecond = [](auto /*a*/, auto b) { return decltype(b){b.re, b.re}; };
    sweepNansWithConstant<Tarn32fc>(tarnsMulC_32fc, realOfSecond);
    sweepNansWithConstant<Tarn64fc>(tarnsMulC_64fc, realOfSecond);
}

} // namespace
} // namespace tarn::test
