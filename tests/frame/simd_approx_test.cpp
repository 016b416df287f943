// The vector approximations: elements and packs agree, errors stay below one unit of the last place, and the ends are
// what they should be. bench/accuracy looks at all arguments.
#include "frame/simd_angle.h"
#include "frame/simd_exp.h"
#include "support/compare.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

namespace tarn::test {
namespace {

struct Exponential {
    template <class X>
    X operator()(X x) const
    {
        return exponential(x);
    }
    static long double reference(long double x) { return std::exp(x); }
};
struct Logarithm {
    template <class X>
    X operator()(X x) const
    {
        return logarithm(x);
    }
    static long double reference(long double x) { return std::log(x); }
};
struct Arctan {
    template <class X>
    X operator()(X x) const
    {
        return arctangent(x);
    }
    static long double reference(long double x) { return std::atan(x); }
};
struct Sine {
    template <class X>
    X operator()(X x) const
    {
        return sineAndCosine(x).sine;
    }
    static long double reference(long double x) { return std::sin(x); }
};
struct Cosine {
    template <class X>
    X operator()(X x) const
    {
        return sineAndCosine(x).cosine;
    }
    static long double reference(long double x) { return std::cos(x); }
};

template <class T>
std::vector<T> arguments()
{
    using Limits = std::numeric_limits<T>;
    std::vector<T> x = {T{0},
                        T(-0.0),
                        T{1},
                        T{-1},
                        Limits::denorm_min(),
                        -Limits::denorm_min(),
                        Limits::min(),
                        Limits::max(),
                        Limits::lowest(),
                        Limits::infinity(),
                        -Limits::infinity(),
                        Limits::quiet_NaN()};
    std::mt19937_64 random(4);
    using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
    for (int i = 0; i < 20000; ++i)
        x.push_back(std::bit_cast<T>(static_cast<Bits>(random())));
    for (const double radius : {0.001, 0.7, 1.1, 3.0, 100.0, 800.0, 4000.0, 2e6})
        for (int i = 0; i < 20000; ++i)
            x.push_back(static_cast<T>(radius * (static_cast<double>(random() >> 11) * 0x1p-52 - 1)));
    for (const double power : {0.01, 0.3, 1.0})
        for (int i = 0; i < 20000; ++i)
            x.push_back(static_cast<T>(std::exp2(power * (static_cast<double>(random() >> 11) * 0x1p-52 - 1))));
    while (x.size() % 16 != 0)
        x.push_back(T{2});
    return x;
}

template <class Pair>
class Approximations : public ::testing::Test {
};

using Functions = ::testing::Types<std::pair<Exponential, Tarn32f>, std::pair<Exponential, Tarn64f>,
                                   std::pair<Logarithm, Tarn32f>, std::pair<Logarithm, Tarn64f>,
                                   std::pair<Arctan, Tarn32f>, std::pair<Arctan, Tarn64f>, std::pair<Sine, Tarn32f>,
                                   std::pair<Sine, Tarn64f>, std::pair<Cosine, Tarn32f>, std::pair<Cosine, Tarn64f>>;
TYPED_TEST_SUITE(Approximations, Functions);

TYPED_TEST(Approximations, AreWithinOneUnitOfTheLastPlace)
{
    using F = typename TypeParam::first_type;
    using T = typename TypeParam::second_type;
    for (const T x : arguments<T>()) {
        const long double exact = F::reference(x);
        const T rounded = static_cast<T>(exact);
        // What overflows is infinite, and the last finite number's unit is no measure of it.
        if (!std::isfinite(rounded)) {
            ASSERT_TRUE(valuesMatch(rounded, F{}(x))) << x;
            continue;
        }
        const int exponent =
            std::max(exact == 0 ? -20000 : std::ilogb(exact) + 1, std::numeric_limits<T>::min_exponent);
        const long double ulp = std::ldexp(1.0L, exponent - std::numeric_limits<T>::digits);
        ASSERT_LE(std::fabs(F{}(x)-exact), ulp) << x;
    }
}

TYPED_TEST(Approximations, GiveElementsAndPacksTheSameBits)
{
    using F = typename TypeParam::first_type;
    using T = typename TypeParam::second_type;
    const auto x = arguments<T>();
    const auto expectAgreement = [&x]<int N>(std::integral_constant<int, N>) {
        for (std::size_t i = 0; i + N <= x.size(); i += N) {
            T y[N];
            store(y, F{}(loadPack<N>(x.data() + i)));
            for (std::size_t k = 0; k < N; ++k)
                ASSERT_TRUE(valuesMatch(F{}(x[i + k]), y[k])) << x[i + k];
        }
    };
    expectAgreement(std::integral_constant<int, lanes<T>>{});
    expectAgreement(std::integral_constant<int, 16>{});
}

template <class T>
class ApproximationEnds : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(ApproximationEnds, Precisions);

TYPED_TEST(ApproximationEnds, AreExact)
{
    using T = TypeParam;
    using Limits = std::numeric_limits<T>;
    const T infinity = Limits::infinity();
    EXPECT_TRUE(valuesMatch(T{1}, exponential(T{0})));
    EXPECT_TRUE(valuesMatch(T{0}, exponential(-infinity)));
    EXPECT_TRUE(valuesMatch(infinity, exponential(infinity)));
    EXPECT_TRUE(valuesMatch(T{0}, logarithm(T{1})));
    EXPECT_TRUE(valuesMatch(-infinity, logarithm(T{0})));
    EXPECT_TRUE(valuesMatch(-infinity, logarithm(T(-0.0))));
    EXPECT_TRUE(valuesMatch(infinity, logarithm(infinity)));
    EXPECT_TRUE(std::isnan(logarithm(T{-1})) && std::signbit(logarithm(T{-1})));
    EXPECT_TRUE(std::isnan(logarithm(-infinity)) && std::signbit(logarithm(-infinity)));
    EXPECT_TRUE(valuesMatch(static_cast<T>(1.5707963267948966), arctangent(infinity)));
    EXPECT_TRUE(valuesMatch(static_cast<T>(-1.5707963267948966), arctangent(-infinity)));
    EXPECT_TRUE(valuesMatch(T(-0.0), arctangent(T(-0.0))));
    EXPECT_TRUE(valuesMatch(T(-0.0), sineAndCosine(T(-0.0)).sine));
    EXPECT_TRUE(valuesMatch(-Limits::denorm_min(), arctangent(-Limits::denorm_min())));
    EXPECT_TRUE(valuesMatch(Limits::denorm_min(), sineAndCosine(Limits::denorm_min()).sine));
    EXPECT_TRUE(std::isnan(sineAndCosine(infinity).cosine));
    for (const T nan : {Limits::quiet_NaN(), -Limits::quiet_NaN()})
        EXPECT_TRUE(std::isnan(exponential(nan)) && std::isnan(logarithm(nan)) && std::isnan(arctangent(nan)) &&
                    std::isnan(sineAndCosine(nan).sine));
}

} // namespace
} // namespace tarn::test
