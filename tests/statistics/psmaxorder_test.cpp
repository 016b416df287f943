// The order of a vector: bits of integers, exponents of floats, and the dependence on the invalid-operation flag.
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/placed.h"
#include "support/sweep.h"
#include "tarns/statistics.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>

namespace tarn::test {
namespace {

constexpr std::uint32_t invalidFlag = 1;
constexpr auto infinity = std::numeric_limits<Tarn32f>::infinity();
constexpr auto nan = std::numeric_limits<Tarn32f>::quiet_NaN();

template <class T>
Outcome<int> call(TarnStatus (*function)(const T*, int, int*), const T* p, std::size_t len)
{
    GuardedArray<int> order(1, Placement::offset(1));
    const TarnStatus status = function(p, static_cast<int>(len), order.data());
    return {order.get(0), status};
}
template <class T>
Outcome<int> call(TarnStatus (*function)(const T*, int, int*), const std::vector<T>& x)
{
    const GuardedArray<T> array(std::span<const T>(x), Placement::atEnd());
    return call(function, array.data(), x.size());
}

void expectOutcome(int order, int status, const Outcome<int>& actual)
{
    EXPECT_EQ(order, actual.value);
    EXPECT_EQ(status, actual.status);
}

// Bits of the largest magnitude, one at a time.
int bitsOf(std::uint64_t magnitude)
{
    int bits = 0;
    for (; magnitude != 0; magnitude >>= 1)
        ++bits;
    return bits;
}

template <class T>
int integerOrder(std::span<const T> x)
{
    std::uint64_t largest = 0;
    for (std::int64_t element : x)
        largest = std::max(largest, static_cast<std::uint64_t>(element < 0 ? -element : element));
    return bitsOf(largest);
}

TEST(MaxOrder, OfIntegersCountsBits)
{
    for (const auto kind : {Values::mixed, Values::unit}) {
        sweepReduction<int, Tarn16s>(tarnsMaxOrder_16s, integerOrder<Tarn16s>, {.values = kind});
        sweepReduction<int, Tarn32s>(tarnsMaxOrder_32s, integerOrder<Tarn32s>, {.values = kind});
    }
    for (int bit = 0; bit < 15; ++bit) {
        std::vector<Tarn16s> x(70, static_cast<Tarn16s>(1 << bit));
        EXPECT_EQ(bit + 1, call(tarnsMaxOrder_16s, x).value);
        x.assign(70, static_cast<Tarn16s>(-(1 << bit)));
        EXPECT_EQ(bit + 1, call(tarnsMaxOrder_16s, x).value);
    }
    EXPECT_EQ(0, call(tarnsMaxOrder_16s, std::vector<Tarn16s>(50, 0)).value);
    EXPECT_EQ(16, call(tarnsMaxOrder_16s, {0, 5, -32768}).value);
    EXPECT_EQ(15, call(tarnsMaxOrder_16s, {32767}).value);
    EXPECT_EQ(32, call(tarnsMaxOrder_32s, {1, INT_MIN}).value);
    EXPECT_EQ(31, call(tarnsMaxOrder_32s, {INT_MAX}).value);
    EXPECT_EQ(0, call(tarnsMaxOrder_32s, {0, 0, 0}).value);
}

// With the flag clear on entry.
Outcome<int> order32f(std::span<const Tarn32f> x)
{
    int status = 0;
    Tarn32f largest = 0;
    for (Tarn32f element : x) {
        if (!std::isfinite(element))
            status = tarnStsNanArg;
        else
            largest = std::max(largest, std::fabs(element));
    }
    if (largest == 0)
        return {0, status};
    return {largest < std::numeric_limits<Tarn32f>::min() ? -126 : std::ilogb(largest) + 1, status};
}

// The quick look passes NaNs over; an infinity makes for a second look at 16 bits of each element.
Outcome<int> order64f(std::span<const Tarn64f> x)
{
    const auto upperOf = [](Tarn64f element) {
        return static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(element) >> 32) & 0x7FFFFFFF;
    };
    bool infinite = false;
    bool anyNaN = false;
    std::uint32_t upper = 0;
    for (Tarn64f element : x) {
        infinite = infinite || std::isinf(element);
        anyNaN = anyNaN || std::isnan(element);
        if (!std::isnan(element))
            upper = std::max(upper, upperOf(element));
    }
    if (infinite) {
        upper = 0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const bool fourth = i % 4 == 3;
            const bool finite = fourth ? upperOf(x[i]) < 0x7FEFFFFF : upperOf(x[i]) <= 0x7FEFFFFF;
            if (finite)
                upper = std::max(upper, upperOf(x[i]) >> 16 << 16);
        }
    }
    const int order = upper == 0 ? 0 : static_cast<int>(upper >> 20) - 1022;
    return {order, infinite || anyNaN ? int{tarnStsNanArg} : 0};
}

template <class T, class Model>
void expectOrders(TarnStatus (*function)(const T*, int, int*), Model model, const std::vector<T>& values)
{
    atOffsets(values, lengths({4, 8, 16, 32}), [&](const T* p, std::span<const T> x, unsigned) {
        const auto expected = model(x);
        const MxcsrScope scope(0x1F80);
        const auto actual = call(function, p, x.size());
        EXPECT_EQ(0U, readMxcsr() & invalidFlag);
        expectOutcome(expected.value, expected.status, actual);
    });
}

TEST(MaxOrder, OfFloatsIsTheExponent)
{
    for (const auto kind : {Values::unit, Values::random, Values::hard, Values::mixed}) {
        expectOrders<Tarn32f>(tarnsMaxOrder_32f, order32f, randomValues<Tarn32f>(4000, 81, kind));
        expectOrders<Tarn64f>(tarnsMaxOrder_64f, order64f, randomValues<Tarn64f>(4000, 83, kind));
    }
    // One value that is no number among ordinary ones, in every place.
    for (Tarn32f bad : {nan, -nan, infinity, -infinity})
        for (std::size_t len : {1, 4, 7, 16, 33, 70})
            for (std::size_t at = 0; at < len; ++at) {
                const MxcsrScope scope(0x1F80);
                std::vector<Tarn32f> singles(len, 0.25F);
                singles[at] = bad;
                expectOutcome(len == 1 ? 0 : -1, tarnStsNanArg, call(tarnsMaxOrder_32f, singles));
                std::vector<Tarn64f> doubles(len, 0.25);
                doubles[at] = bad;
                expectOutcome(len == 1 ? 0 : -1, tarnStsNanArg, call(tarnsMaxOrder_64f, doubles));
            }
}

TEST(MaxOrder, OfSingleFloats)
{
    const MxcsrScope scope(0x1F80);
    for (auto [value, order] :
         {std::pair{1.0F, 1}, {0.75F, 0}, {0.25F, -1}, {0.3F, -1}, {-4.0F, 3}, {1e-40F, -126}, {0.0F, 0}})
        expectOutcome(order, 0, call(tarnsMaxOrder_32f, std::vector<Tarn32f>{value}));
    expectOutcome(-126, 0, call(tarnsMaxOrder_32f, {std::numeric_limits<Tarn32f>::denorm_min()}));
    expectOutcome(-125, 0, call(tarnsMaxOrder_32f, {std::numeric_limits<Tarn32f>::min()}));
    expectOutcome(128, 0, call(tarnsMaxOrder_32f, {std::numeric_limits<Tarn32f>::max()}));
    expectOutcome(0, tarnStsNanArg, call(tarnsMaxOrder_32f, {0.0F, infinity}));
    for (auto [value, order] : {std::pair{1.0, 1}, {0.75, 0}, {-0.25, -1}, {0x1p-1030, -1022}, {0x1p-1070, 0}})
        expectOutcome(order, 0, call(tarnsMaxOrder_64f, std::vector<Tarn64f>{value}));
    expectOutcome(1024, 0, call(tarnsMaxOrder_64f, {std::numeric_limits<Tarn64f>::max()}));
}

TEST(MaxOrder, ASecondLookAtDoublesIsCoarse)
{
    const MxcsrScope scope(0x1F80);
    const Tarn64f inf = HUGE_VAL;
    const Tarn64f largest = std::numeric_limits<Tarn64f>::max();
    // The fourth of each four is rejected for the upper half of the largest double, the others are not.
    expectOutcome(1, tarnStsNanArg, call(tarnsMaxOrder_64f, {inf, 1, 1, largest}));
    expectOutcome(1024, tarnStsNanArg, call(tarnsMaxOrder_64f, {inf, 1, largest, 1}));
    expectOutcome(1024, tarnStsNanArg, call(tarnsMaxOrder_64f, {inf, 1, 1, 1, 1, 1, largest}));
    // A denormal whose upper 16 bits are zero counts as 0 then, one with a bit among them does not.
    expectOutcome(0, tarnStsNanArg,
                  call(tarnsMaxOrder_64f, {inf, std::bit_cast<Tarn64f>(std::uint64_t{0xFFFF} << 32)}));
    expectOutcome(-1022, tarnStsNanArg,
                  call(tarnsMaxOrder_64f, {inf, std::bit_cast<Tarn64f>(std::uint64_t{0x10000} << 32)}));
    // Without an infinity it has its upper half.
    expectOutcome(-1022, 0, call(tarnsMaxOrder_64f, {std::bit_cast<Tarn64f>(std::uint64_t{1} << 32)}));
}

TEST(MaxOrder, AFlagLeftByTheCallerCountsAsANaN)
{
    const MxcsrScope scope(0x1F80 | invalidFlag);
    // Single floats are looked at again, and found to be in order.
    expectOutcome(2, 0, call(tarnsMaxOrder_32f, {2.5F, 1.0F}));
    EXPECT_EQ(0U, readMxcsr() & invalidFlag);
    const MxcsrScope again(0x1F80 | invalidFlag);
    expectOutcome(2, tarnStsNanArg, call(tarnsMaxOrder_64f, {2.5, 1.0}));
    EXPECT_EQ(0U, readMxcsr() & invalidFlag);
    expectOutcome(2, 0, call(tarnsMaxOrder_64f, {2.5, 1.0}));
}

TEST(MaxOrder, OtherFlagsAndModesStay)
{
    for (std::uint32_t word : {0x1F80U | 0x3E, 0x1F80U | 0x3F, 0x7F80U | 0x20}) {
        const MxcsrScope scope(word);
        call(tarnsMaxOrder_32f, {1.0F, nan});
        EXPECT_EQ(word & ~invalidFlag, readMxcsr());
    }
}

TEST(MaxOrder, Checks)
{
    const ChecksOptions lengthFirst{.order = {Check::length, Check::pointer, Check::parameter}};
    expectChecks(tarnsMaxOrder_16s, lengthFirst, array, length, array);
    expectChecks(tarnsMaxOrder_32s, lengthFirst, array, length, array);
    const MxcsrScope scope(0x1F80);
    const std::vector<Tarn64f> ones(8, 1.0);
    const std::vector<Tarn32f> singles(8, 1.0F);
    expectChecks(tarnsMaxOrder_32f, lengthFirst, object(singles.data()), length, array);
    expectChecks(tarnsMaxOrder_64f, lengthFirst, object(ones.data()), length, array);
}

} // namespace
} // namespace tarn::test
