// The Add family against plain sums.
#include "tarns.h"

#include "model/scale.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/nans.h"
#include "support/scaled.h"

#include <cmath>

namespace tarn::test {
namespace {

using model::saturated;
using model::scaled;

template <class T>
T sum(T a, T b, int s)
{
    if constexpr (requires { a.re; })
        return {sum(a.re, b.re, s), sum(a.im, b.im, s)};
    else
        return scaled<T>(Tarn64s{a} + b, s);
}

template <class T>
T floatSum(T a, T b)
{
    if constexpr (requires { a.re; })
        return {a.re + b.re, a.im + b.im};
    else
        return a + b;
}

constexpr ScaleRange range_8u{.down = 9, .up = 7};
constexpr ScaleRange range_16s{.down = 16, .up = 15};
constexpr ScaleRange range_32s{.down = 32, .up = 30};
constexpr auto exactSum = [](auto a, auto b, int s) { return sum(a, b, s); };

TEST(Add, ScaledSums)
{
    sweepScaled<Tarn8u>(tarnsAdd_8u_Sfs, tarnsAdd_8u_ISfs, range_8u, exactSum);
    sweepScaled<Tarn16s>(tarnsAdd_16s_Sfs, tarnsAdd_16s_ISfs, range_16s, exactSum);
    sweepScaled<Tarn32s>(tarnsAdd_32s_Sfs, tarnsAdd_32s_ISfs, range_32s, exactSum);
    sweepScaled<Tarn16sc>(tarnsAdd_16sc_Sfs, tarnsAdd_16sc_ISfs, range_16s, exactSum);
    sweepScaled<Tarn32sc>(tarnsAdd_32sc_Sfs, tarnsAdd_32sc_ISfs, range_32s, exactSum);
}

TEST(Add, SumsWithoutAScale)
{
    sweepElementwise<Tarn16s, Tarn16s, Tarn16s>(tarnsAdd_16s, [](int a, int b) { return saturated<Tarn16s>(a + b); });
    sweepInPlace<Tarn16s, Tarn16s>(tarnsAdd_16s_I, [](int a, int b) { return saturated<Tarn16s>(a + b); });
    sweepElementwise<Tarn16u, Tarn16u, Tarn16u>(tarnsAdd_16u, [](int a, int b) { return saturated<Tarn16u>(a + b); });
    sweepElementwise<Tarn32u, Tarn32u, Tarn32u>(tarnsAdd_32u,
                                                [](Tarn64s a, Tarn64s b) { return saturated<Tarn32u>(a + b); });
    sweepElementwise<Tarn16u, Tarn8u, Tarn8u>(tarnsAdd_8u16u, [](int a, int b) { return static_cast<Tarn16u>(a + b); });
    sweepElementwise<Tarn32f, Tarn16s, Tarn16s>(tarnsAdd_16s32f,
                                                [](int a, int b) { return static_cast<Tarn32f>(a + b); });
}

TEST(Add, FloatSumsInEveryRoundingMode)
{
    const auto model = [](auto a, auto b) { return floatSum(a, b); };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const SweepOptions options{.depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick};
        sweepBoth<Tarn32f>(tarnsAdd_32f, tarnsAdd_32f_I, model, options);
        sweepBoth<Tarn64f>(tarnsAdd_64f, tarnsAdd_64f_I, model, options);
        sweepBoth<Tarn32fc>(tarnsAdd_32fc, tarnsAdd_32fc_I, model, options);
        sweepBoth<Tarn64fc>(tarnsAdd_64fc, tarnsAdd_64fc_I, model, options);
    }
}

TEST(AddC, ScaledSums)
{
    constexpr Tarn32s top = 2147483647;
    sweepScaledConstant<Tarn8u>(tarnsAddC_8u_Sfs, tarnsAddC_8u_ISfs, range_8u, {1, 0, 255}, exactSum);
    sweepScaledConstant<Tarn16s>(tarnsAddC_16s_Sfs, tarnsAddC_16s_ISfs, range_16s, {-3, 0, 32767, -32768}, exactSum);
    sweepScaledConstant<Tarn32s>(tarnsAddC_32s_Sfs, tarnsAddC_32s_ISfs, range_32s, {5, 0, top, -top - 1}, exactSum);
    sweepScaledConstant<Tarn16sc>(tarnsAddC_16sc_Sfs, tarnsAddC_16sc_ISfs, range_16s,
                                  {{-3, 1000}, {0, 0}, {32767, -32768}}, exactSum);
    sweepScaledConstant<Tarn32sc>(tarnsAddC_32sc_Sfs, tarnsAddC_32sc_ISfs, range_32s,
                                  {{5, -77777}, {0, 0}, {top, -top - 1}}, exactSum);
    for (const Tarn16s val : std::initializer_list<Tarn16s>{-32768, -1, 0, 1, 32767})
        sweepInPlace<Tarn16s>([val](Tarn16s* srcDst, int len) { return tarnsAddC_16s_I(val, srcDst, len); },
                              [val](int a) { return saturated<Tarn16s>(a + val); });
}

constexpr Tarn32f nan32 = std::numeric_limits<Tarn32f>::quiet_NaN();
constexpr Tarn64f nan64 = std::numeric_limits<Tarn64f>::quiet_NaN();

// A constant that is zero or a NaN leaves a real vector as it is, to the bit.
template <class T>
T realSum(T a, T val)
{
    return val == 0 || std::isnan(val) ? a : a + val;
}

template <class T>
const std::vector<T> floats = {T(1.1),
                               T(0),
                               -T(0),
                               std::numeric_limits<T>::quiet_NaN(),
                               std::numeric_limits<T>::infinity(),
                               -std::numeric_limits<T>::denorm_min()};

TEST(AddC, FloatSums)
{
    const auto model = [](auto a, auto val) { return realSum(a, val); };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const Depth depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick;
        sweepBothConstant(tarnsAddC_32f, tarnsAddC_32f_I, floats<Tarn32f>, model, depth);
        sweepBothConstant(tarnsAddC_64f, tarnsAddC_64f_I, floats<Tarn64f>, model, depth);
    }
}

TEST(AddC, ComplexFloatsAlwaysAdd)
{
    for (const Tarn32fc val : {Tarn32fc{1.1F, -2}, Tarn32fc{0, 0}, Tarn32fc{nan32, 3}, Tarn32fc{-0.0F, nan32}}) {
        const auto model = [val](Tarn32fc a) { return floatSum(a, val); };
        sweepElementwise<Tarn32fc, Tarn32fc>(
            [val](const Tarn32fc* src, Tarn32fc* dst, int len) { return tarnsAddC_32fc(src, val, dst, len); }, model);
        sweepInPlace<Tarn32fc>([val](Tarn32fc* srcDst, int len) { return tarnsAddC_32fc_I(val, srcDst, len); }, model);
    }
    for (const Tarn64fc val : {Tarn64fc{1.1, -2}, Tarn64fc{0, 0}, Tarn64fc{nan64, 3}, Tarn64fc{-0.0, nan64}}) {
        const auto model = [val](Tarn64fc a) { return floatSum(a, val); };
        sweepElementwise<Tarn64fc, Tarn64fc>(
            [val](const Tarn64fc* src, Tarn64fc* dst, int len) { return tarnsAddC_64fc(src, val, dst, len); }, model);
        sweepInPlace<Tarn64fc>([val](Tarn64fc* srcDst, int len) { return tarnsAddC_64fc_I(val, srcDst, len); }, model);
    }
}

// One element through a function.
template <class T, class... S, class... Values>
T one(TarnStatus (*function)(const T*, const T*, T*, int, S...), T a, T b, Values... scale)
{
    T result{};
    EXPECT_EQ(tarnStsNoErr, function(&a, &b, &result, 1, scale...));
    return result;
}

TEST(Add, WorkedValuesOfTheScaleRule)
{
    struct {
        int t, s, r;
    } const worked[] = {{3, 1, 2},       {5, 1, 2},       {7, 1, 4},         {-1, 1, 0},        {-3, 1, -2},
                        {6, 2, 2},       {10, 2, 2},      {-6, 2, -2},       {65534, 16, 1},    {-65536, 16, -1},
                        {-65536, 17, 0}, {1, -15, 32767}, {-1, -15, -32768}, {20000, -1, 32767}};
    for (const auto& [t, s, r] : worked) {
        const auto a = static_cast<Tarn16s>(t / 2);
        const auto b = static_cast<Tarn16s>(t - t / 2);
        EXPECT_EQ(r, one(tarnsAdd_16s_Sfs, a, b, s)) << t << " at " << s;
        const std::vector<Tarn16s> many(67, a);
        const std::vector<Tarn16s> others(67, b);
        std::vector<Tarn16s> sums(67);
        EXPECT_EQ(tarnStsNoErr, tarnsAdd_16s_Sfs(many.data(), others.data(), sums.data(), 67, s));
        EXPECT_EQ(std::vector<Tarn16s>(67, static_cast<Tarn16s>(r)), sums) << t << " at " << s;
    }
}

TEST(Add, ExtremesOf16s)
{
    const Tarn16s top = 32767;
    const Tarn16s bottom = -32768;
    for (const int s : {0, 1, -1})
        EXPECT_EQ(32767, one(tarnsAdd_16s_Sfs, top, top, s)) << s;
    EXPECT_EQ(-32768, one(tarnsAdd_16s_Sfs, bottom, bottom, 1));
    EXPECT_EQ(-1, one(tarnsAdd_16s_Sfs, bottom, bottom, 16));
}

TEST(Add, SumsThatWrapIn32Bits)
{
    const Tarn32s top = 2147483647;
    const Tarn32s bottom = -top - 1;
    EXPECT_EQ(top, one(tarnsAdd_32s_Sfs, top, top, 1));
    EXPECT_EQ(top, one(tarnsAdd_32s_Sfs, top, Tarn32s{1}, -1));
    EXPECT_EQ(bottom, one(tarnsAdd_32s_Sfs, bottom, Tarn32s{-1}, -1));
}

TEST(Add, BytesAtTheLastFactorThatLeavesSomething)
{
    EXPECT_EQ(1, one(tarnsAdd_8u_Sfs, Tarn8u{255}, Tarn8u{255}, 9));
    EXPECT_EQ(0, one(tarnsAdd_8u_Sfs, Tarn8u{255}, Tarn8u{255}, 10));
}

// Above its limit a factor zeroes the destination, and the sources are not even read: here they cannot be.
TEST(Add, FactorsAboveTheLimitReadNothing)
{
    const GuardedArray<Tarn32s> guarded(1, Placement::atEnd());
    const Tarn32s* unreadable = guarded.data() + 1;
    Tarn32s destination[40];
    std::fill(std::begin(destination), std::end(destination), 7);
    EXPECT_EQ(tarnStsNoErr, tarnsAdd_32s_Sfs(unreadable, unreadable, destination, 40, 33));
    for (const Tarn32s x : destination)
        EXPECT_EQ(0, x);
}

TEST(AddC, NoShortcutWhileSomethingIsScaled)
{
    const Tarn16s source[] = {3, 5, 7, -1, -3};
    Tarn16s halves[5];
    EXPECT_EQ(tarnStsNoErr, tarnsAddC_16s_Sfs(source, 0, halves, 5, 1));
    EXPECT_EQ((std::vector<Tarn16s>{2, 2, 4, 0, -2}), std::vector<Tarn16s>(halves, halves + 5));
}

TEST(AddC, BytesWhereTheSignDecides)
{
    const Tarn8u source[] = {0, 1, 255, 0};
    Tarn8u result[4];
    EXPECT_EQ(tarnStsNoErr, tarnsAddC_8u_Sfs(source, 1, result, 4, -8));
    EXPECT_EQ((std::vector<Tarn8u>{255, 255, 255, 255}), std::vector<Tarn8u>(result, result + 4));
    EXPECT_EQ(tarnStsNoErr, tarnsAddC_8u_Sfs(source, 0, result, 4, -8));
    EXPECT_EQ((std::vector<Tarn8u>{0, 255, 255, 0}), std::vector<Tarn8u>(result, result + 4));
}

TEST(Add, ChecksInOrder)
{
    expectChecks(tarnsAdd_8u_Sfs);
    expectChecks(tarnsAdd_8u_ISfs);
    expectChecks(tarnsAdd_8u16u);
    expectChecks(tarnsAdd_16u);
    expectChecks(tarnsAdd_16s);
    expectChecks(tarnsAdd_16s_I);
    expectChecks(tarnsAdd_16s_Sfs);
    expectChecks(tarnsAdd_16s_ISfs);
    expectChecks(tarnsAdd_16s32f);
    expectChecks(tarnsAdd_32u);
    expectChecks(tarnsAdd_32s_Sfs);
    expectChecks(tarnsAdd_32s_ISfs);
    expectChecks(tarnsAdd_32f);
    expectChecks(tarnsAdd_32f_I);
    expectChecks(tarnsAdd_64f);
    expectChecks(tarnsAdd_64f_I);
}

// Handing the complex call on at twice its length puts the length first, and a length whose double wraps last.
TEST(Add, ChecksOfTheComplexForms)
{
    const ChecksOptions lengthFirst{.order = {Check::length, Check::pointer, Check::parameter},
                                    .wrappedLengths = doublingWraps};
    expectChecks(tarnsAdd_16sc_Sfs, lengthFirst);
    expectChecks(tarnsAdd_16sc_ISfs, lengthFirst);
    expectChecks(tarnsAdd_32sc_Sfs, lengthFirst);
    expectChecks(tarnsAdd_32sc_ISfs, lengthFirst);
    expectChecks(tarnsAdd_32fc, lengthFirst);
    expectChecks(tarnsAdd_32fc_I, lengthFirst);
    expectChecks(tarnsAdd_64fc, lengthFirst);
    expectChecks(tarnsAdd_64fc_I, lengthFirst);
}

// With a constant that runs the kernel, one that takes the shortcut, and a factor that zeroes.
TEST(AddC, ChecksInOrder)
{
    for (const int s : {0, 1, 100, -100}) {
        SCOPED_TRACE(s);
        for (const Tarn8u val : std::initializer_list<Tarn8u>{0, 3}) {
            expectChecks(tarnsAddC_8u_Sfs, {}, array, val, array, length, s);
            expectChecks(tarnsAddC_8u_ISfs, {}, val, array, length, s);
            expectChecks(tarnsAddC_16s_Sfs, {}, array, Tarn16s{val}, array, length, s);
            expectChecks(tarnsAddC_16s_ISfs, {}, Tarn16s{val}, array, length, s);
            expectChecks(tarnsAddC_32s_Sfs, {}, array, Tarn32s{val}, array, length, s);
            expectChecks(tarnsAddC_32s_ISfs, {}, Tarn32s{val}, array, length, s);
            expectChecks(tarnsAddC_16sc_Sfs, {}, array, Tarn16sc{val, 0}, array, length, s);
            expectChecks(tarnsAddC_16sc_ISfs, {}, Tarn16sc{val, 0}, array, length, s);
            expectChecks(tarnsAddC_32sc_Sfs, {}, array, Tarn32sc{val, 0}, array, length, s);
            expectChecks(tarnsAddC_32sc_ISfs, {}, Tarn32sc{val, 0}, array, length, s);
        }
    }
    for (const Tarn32f val : {0.0F, 1.5F, nan32}) {
        expectChecks(tarnsAddC_16s_I, {}, static_cast<Tarn16s>(val == 1.5F), array, length);
        expectChecks(tarnsAddC_32f, {}, array, val, array, length);
        expectChecks(tarnsAddC_32f_I, {}, val, array, length);
        expectChecks(tarnsAddC_64f, {}, array, Tarn64f{val}, array, length);
        expectChecks(tarnsAddC_64f_I, {}, Tarn64f{val}, array, length);
        expectChecks(tarnsAddC_32fc, {}, array, Tarn32fc{val, 1}, array, length);
        expectChecks(tarnsAddC_32fc_I, {}, Tarn32fc{val, 1}, array, length);
        expectChecks(tarnsAddC_64fc, {}, array, Tarn64fc{val, 1}, array, length);
        expectChecks(tarnsAddC_64fc_I, {}, Tarn64fc{val, 1}, array, length);
    }
}

// Of two NaNs the first operand's survives, wherever in an array the element lies.
TEST(Add, TwoNans)
{
    const auto first = [](auto a, auto /*b*/) { return a; };
    sweepNans<Tarn32f>(tarnsAdd_32f, tarnsAdd_32f_I, first);
    sweepNans<Tarn64f>(tarnsAdd_64f, tarnsAdd_64f_I, first);
    sweepNans<Tarn32fc>(tarnsAdd_32fc, tarnsAdd_32fc_I, first);
    sweepNans<Tarn64fc>(tarnsAdd_64fc, tarnsAdd_64fc_I, first);
}

TEST(AddC, TwoNans)
{
    const auto first = [](auto a, auto /*b*/) { return a; };
    sweepNansWithConstant<Tarn32fc>(tarnsAddC_32fc, first);
    sweepNansWithConstant<Tarn64fc>(tarnsAddC_64fc, first);
}

} // namespace
} // namespace tarn::test
