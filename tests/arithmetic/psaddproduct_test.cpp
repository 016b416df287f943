// Products added to a third vector, against plain sums.
#include "tarns.h"

#include "model/product.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/nans.h"
#include "support/scaled.h"

#include <cmath>

namespace tarn::test {
namespace {

using model::scaled;

constexpr ScaleRange range_16s{.down = 30, .up = 14};
constexpr ScaleRange range_16s32s{.down = 30, .up = 30};
constexpr ScaleRange range_32s{.down = 62, .up = 30};
constexpr Tarn32s top = 2147483647;
constexpr Tarn32s bottom = -top - 1;

// Above its limit a factor gives zero, whatever the sum.
template <class D, class S>
D sum(S a, S b, D old, int s, ScaleRange range)
{
    return s > range.down ? D{0} : scaled<D>(Tarn64s{a} * b + old, s);
}

// Hard values in all three places.
template <class... Src>
Columns<Src...> hardColumns()
{
    auto columns = makeColumns<Src...>();
    const auto cross = [](auto& values, std::size_t stride) {
        using T = typename std::remove_cvref_t<decltype(values)>::value_type;
        const T extremes[] = {std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), T{0}, T{1}, T{-1}};
        for (std::size_t i = 0; i < 125; ++i)
            values[i] = extremes[i / stride % 5];
    };
    cross(std::get<0>(columns), 1);
    cross(std::get<1>(columns), 5);
    cross(std::get<2>(columns), 25);
    return columns;
}

TEST(AddProduct, ScaledSumsOfWords)
{
    for (const int s : range_16s.factors()) {
        SCOPED_TRACE(s);
        sweepInPlace<Tarn16s, Tarn16s, Tarn16s>(
            [s](auto... arguments) { return tarnsAddProduct_16s_Sfs(arguments..., s); },
            [s](Tarn16s a, Tarn16s b, Tarn16s old) { return sum(a, b, old, s, range_16s); },
            {.depth = range_16s.depth(s)}, hardColumns<Tarn16s, Tarn16s, Tarn16s>());
    }
    for (const int s : range_16s32s.factors()) {
        SCOPED_TRACE(s);
        sweepInPlace<Tarn32s, Tarn16s, Tarn16s>(
            [s](auto... arguments) { return tarnsAddProduct_16s32s_Sfs(arguments..., s); },
            [s](Tarn16s a, Tarn16s b, Tarn32s old) { return sum(a, b, old, s, range_16s32s); },
            {.depth = range_16s32s.depth(s)}, hardColumns<Tarn16s, Tarn16s, Tarn32s>());
    }
}

TEST(AddProduct, ScaledSumsOf32BitsByWayOfDoubles)
{
    const auto columns = hardColumns<Tarn32s, Tarn32s, Tarn32s>();
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const int s : range_32s.factors()) {
            SCOPED_TRACE(s);
            const Depth depth = mode == RoundingMode::nearest ? range_32s.depth(s) : Depth::quick;
            sweepInPlace<Tarn32s, Tarn32s, Tarn32s>(
                [s](auto... arguments) { return tarnsAddProduct_32s_Sfs(arguments..., s); },
                [s](Tarn32s a, Tarn32s b, Tarn32s old) {
                    return s > range_32s.down ? 0 : model::sumByDoubles(a, b, old, s);
                },
                {.depth = depth}, columns);
        }
    }
}

TEST(AddProduct, AFactorAboveTheLimitForgetsTheOldValue)
{
    const Tarn16s zeros[40] = {};
    std::vector<Tarn32s> sums(40, top);
    EXPECT_EQ(tarnStsNoErr, tarnsAddProduct_16s32s_Sfs(zeros, zeros, sums.data(), 40, 30));
    EXPECT_EQ(std::vector<Tarn32s>(40, 2), sums);
    sums.assign(40, top);
    EXPECT_EQ(tarnStsNoErr, tarnsAddProduct_16s32s_Sfs(zeros, zeros, sums.data(), 40, 31));
    EXPECT_EQ(std::vector<Tarn32s>(40, 0), sums);
}

// The sum is formed before it saturates.
TEST(AddProduct, SumsBeyondTheBoundsThatComeBack)
{
    const std::vector<Tarn16s> a(19, -32768);
    std::vector<Tarn32s> wide(19, bottom);
    EXPECT_EQ(tarnStsNoErr, tarnsAddProduct_16s32s_Sfs(a.data(), a.data(), wide.data(), 19, 0));
    EXPECT_EQ(std::vector<Tarn32s>(19, -(1 << 30)), wide);
    wide.assign(19, top);
    EXPECT_EQ(tarnStsNoErr, tarnsAddProduct_16s32s_Sfs(a.data(), a.data(), wide.data(), 19, 1));
    EXPECT_EQ(std::vector<Tarn32s>(19, 1610612736), wide);
}

template <class T>
T floatSum(T a, T b, T old)
{
    if constexpr (requires { a.re; }) {
        volatile RealOf<T> rere = a.re * b.re;
        volatile RealOf<T> imim = a.im * b.im;
        volatile RealOf<T> reim = a.re * b.im;
        volatile RealOf<T> imre = a.im * b.re;
        volatile RealOf<T> re = rere - imim;
        volatile RealOf<T> im = reim + imre;
        return {re + old.re, im + old.im};
    } else {
        volatile T product = a * b;
        return product + old;
    }
}

TEST(AddProduct, FloatSumsInEveryRoundingMode)
{
    const auto sweep = []<class T>(TarnStatus (*function)(const T*, const T*, T*, int)) {
        sweepInPlace<T, T, T>(function, [](T a, T b, T old) { return floatSum(a, b, old); });
    };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweep(tarnsAddProduct_32f);
        sweep(tarnsAddProduct_64f);
        sweep(tarnsAddProduct_32fc);
        sweep(tarnsAddProduct_64fc);
    }
}

// One array in all three places.
TEST(AddProduct, SquaresAddedToThemselves)
{
    std::vector<Tarn16s> x(67);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = static_cast<Tarn16s>(997 * static_cast<int>(i) - 30000);
    std::vector<Tarn16s> expected;
    for (const Tarn16s value : x)
        expected.push_back(sum(value, value, value, 15, range_16s));
    EXPECT_EQ(tarnStsNoErr, tarnsAddProduct_16s_Sfs(x.data(), x.data(), x.data(), 67, 15));
    EXPECT_EQ(expected, x);
}

TEST(AddProduct, ChecksInOrder)
{
    for (const int s : {0, 1, 100, -100}) {
        expectChecks(tarnsAddProduct_16s_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsAddProduct_16s32s_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsAddProduct_32s_Sfs, {}, array, array, array, length, s);
    }
    expectChecks(tarnsAddProduct_32f);
    expectChecks(tarnsAddProduct_64f);
    expectChecks(tarnsAddProduct_32fc);
    expectChecks(tarnsAddProduct_64fc);
}

// The product comes first, and its first operand in it.
template <class T, class Call, class Survivor>
void sweepThreeNans(Call call, Survivor survivor)
{
    sweepInPlace<T, T, T>(call, survivor, {.match = {.nan = NanRule::sameBits}}, nanColumns<T, T, T>());
}

TEST(AddProduct, ThreeNans)
{
    const auto first = [](auto a, auto /*b*/, auto /*sum*/) { return a; };
    sweepThreeNans<Tarn32f>(tarnsAddProduct_32f, first);
    sweepThreeNans<Tarn64f>(tarnsAddProduct_64f, first);
    const auto realOfSecond = [](auto /*a*/, auto b, auto /*sum*/) { return decltype(b){b.re, b.re}; };
    sweepThreeNans<Tarn32fc>(tarnsAddProduct_32fc, realOfSecond);
    sweepThreeNans<Tarn64fc>(tarnsAddProduct_64fc, realOfSecond);
}

} // namespace
} // namespace tarn::test
