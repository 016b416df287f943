// The Jaehne signal against the C library's sine in extended precision.
#include "tarns.h"

#include "support/checks.h"
#include "support/fpstate.h"
#include "support/memory_watch.h"
#include "support/sweep.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarn::test {
namespace {

template <class T>
using JaehneCall = TarnStatus (*)(T*, int, T);

constexpr double halfOfPi = 1.5707963267948966;

double stored(double x)
{
    const volatile double rounded = x;
    return rounded;
}

// The phase in double precision, and its sine with digits to spare.
long double sampleAt(int n, int len)
{
    const double k = stored(halfOfPi / len);
    return sinl(stored(stored(k * n) * n));
}

const int shortAndLong[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 15, 16, 17, 31, 33, 100, 257, 1000, 4099};

// -- Integers with a sign: half away from zero ------------------------------------------------------------------------

template <class T>
void expectSigned(JaehneCall<T> call, const std::vector<T>& magnitudes)
{
    for (const T magn : magnitudes)
        for (const int len : shortAndLong) {
            GuardedArray<T> dst(static_cast<std::size_t>(len), Placement::atEnd());
            const FpState before = FpState::current();
            ASSERT_EQ(tarnStsNoErr, call(dst.data(), len, magn));
            EXPECT_EQ("", before.changesSince());
            for (int n = 0; n < len; ++n) {
                const double v = len == 1 ? 0 : static_cast<double>(static_cast<double>(sampleAt(n, len)) * magn);
                const double expected = std::trunc(v >= 0 ? v + 0.5 : v - 0.5);
                // A sample next to a half may fall to either side.
                const bool isClose = std::fabs(std::fabs(v - std::trunc(v)) - 0.5) < 1e-15 * magn;
                ASSERT_NEAR(expected, dst.get(static_cast<std::size_t>(n)), isClose ? 1 : 0) << n << " of " << len;
            }
        }
}

TEST(Jaehne, IntegersWithASign)
{
    expectSigned<Tarn8s>(tarnsVectorJaehne_8s, {0, 1, 2, 100, 127});
    expectSigned<Tarn16s>(tarnsVectorJaehne_16s, {0, 1, 1000, 32767});
    expectSigned<Tarn32s>(tarnsVectorJaehne_32s, {0, 1, 123456, 2147483647});
}

// -- Integers without one: the signal between its extremes ------------------------------------------------------------

template <class T>
void expectUnsigned(JaehneCall<T> call, const std::vector<T>& magnitudes)
{
    for (const T magn : magnitudes)
        for (const int len : shortAndLong) {
            GuardedArray<T> dst(static_cast<std::size_t>(len), Placement::atEnd());
            ASSERT_EQ(tarnStsNoErr, call(dst.data(), len, magn));
            std::vector<double> y;
            for (int n = 0; n < len; ++n)
                y.push_back(static_cast<double>(sampleAt(n, len)) * magn);
            const auto [low, high] = std::minmax_element(y.begin(), y.end());
            const double scale = *high - *low > 0 ? magn / (*high - *low) : 0;
            bool reachesEnds[2] = {false, false};
            for (int n = 0; n < len; ++n) {
                const double u = (y[static_cast<std::size_t>(n)] - *low) * scale + 0.5;
                const T x = dst.get(static_cast<std::size_t>(n));
                // The sines of the groups are good to the last places of a double.
                const bool isClose = std::fabs(u - std::nearbyint(u)) < 1e-14 * (magn + 1.0);
                ASSERT_NEAR(std::trunc(u), x, isClose ? 1 : 0) << n << " of " << len;
                reachesEnds[0] = reachesEnds[0] || x == 0;
                reachesEnds[1] = reachesEnds[1] || x == magn;
            }
            EXPECT_TRUE(reachesEnds[0]);
            EXPECT_TRUE(reachesEnds[1] || len == 1) << len << ", " << +magn;
        }
}

TEST(Jaehne, IntegersWithoutASign)
{
    expectUnsigned<Tarn8u>(tarnsVectorJaehne_8u, {0, 1, 200, 255});
    expectUnsigned<Tarn16u>(tarnsVectorJaehne_16u, {0, 1, 1000, 65535});
    expectUnsigned<Tarn32u>(tarnsVectorJaehne_32u, {0, 1, 70000, 2147483648U, 4294967295U});
}

TEST(Jaehne, UnsignedReturnsItsMemory)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    Tarn16u dst[100] = {77};
    int outstanding = -1;
    TarnStatus status = tarnStsNoErr;
    {
        const MemoryWatch watch(0);
        status = tarnsVectorJaehne_16u(dst, 100, 1000);
        outstanding = watch.outstanding();
    }
    EXPECT_EQ(tarnStsNoMemErr, status);
    EXPECT_EQ(0, outstanding);
    EXPECT_EQ(77, dst[0]);
    {
        const MemoryWatch watch;
        status = tarnsVectorJaehne_16u(dst, 100, 1000);
        outstanding = watch.outstanding();
    }
    EXPECT_EQ(tarnStsNoErr, status);
    EXPECT_EQ(0, outstanding);
}

// -- Floats: groups from a 16-byte boundary on ------------------------------------------------------------------------

template <class T>
struct Group;
template <>
struct Group<Tarn32f> {
    static constexpr int shortest = 7;
    static constexpr double lastPlaces = 4; // of the sine
};
template <>
struct Group<Tarn64f> {
    static constexpr int shortest = 3;
    static constexpr double lastPlaces = 4;
};

// Which elements belong to a group.
template <class T>
bool isGrouped(const void* address, int len, int n)
{
    constexpr int group = 16 / sizeof(T);
    const auto place = reinterpret_cast<std::uintptr_t>(address);
    if (len < Group<T>::shortest || place % sizeof(T) != 0)
        return false;
    const int head = static_cast<int>((16 - place % 16) % 16 / sizeof(T));
    return n >= head && n < head + (len - head) / group * group;
}

template <class T>
void expectFloats(JaehneCall<T> call, int len, T magn, Placement placement)
{
    GuardedArray<T> dst(static_cast<std::size_t>(len), placement);
    const FpState before = FpState::current();
    ASSERT_EQ(tarnStsNoErr, call(dst.data(), len, magn));
    EXPECT_EQ("", before.changesSince());
    const double epsilon = std::numeric_limits<T>::epsilon();
    const auto k = static_cast<T>(stored(halfOfPi / len));
    for (int n = 0; n < len; ++n) {
        long double expected = len == 1 ? 0 : sampleAt(n, len) * magn;
        // One rounding to the elements' type; in double precision those of the sine and of the product.
        const double roundings = sizeof(T) == sizeof(double) ? 1.51 : 0.501;
        double bound = roundings * epsilon * std::fabs(static_cast<double>(expected));
        if (isGrouped<T>(dst.data(), len, n)) {
            // The phase in the precision of the elements: each product is rounded.
            const volatile T first = k * static_cast<T>(n);
            const volatile T phase = first * static_cast<T>(n);
            expected = sinl(static_cast<long double>(phase)) * magn;
            bound = Group<T>::lastPlaces * epsilon * static_cast<double>(magn);
        }
        ASSERT_NEAR(static_cast<double>(expected), static_cast<double>(dst.get(static_cast<std::size_t>(n))),
                    bound + std::numeric_limits<T>::denorm_min())
            << n << " of " << len;
    }
}

template <class T>
void expectFloats(JaehneCall<T> call)
{
    for (const int len : shortAndLong)
        for (unsigned offset = 0; offset<20; offset += len> 100 ? 3 : 1)
            expectFloats<T>(call, len, static_cast<T>(1000.25), Placement::offset(offset));
    for (int len = 1; len < 40; ++len)
        expectFloats<T>(call, len, 1, Placement::atEnd());
    for (const T magn : {T{0}, std::numeric_limits<T>::denorm_min(), std::numeric_limits<T>::max()})
        expectFloats<T>(call, 40, magn, Placement::offset(0));
    // Phases far beyond those of short arrays.
    expectFloats<T>(call, 300001, 1, Placement::offset(8));
}

TEST(Jaehne, SinglePrecision) { expectFloats<Tarn32f>(tarnsVectorJaehne_32f); }
TEST(Jaehne, DoublePrecision) { expectFloats<Tarn64f>(tarnsVectorJaehne_64f); }

TEST(Jaehne, OneElementIsZero)
{
    Tarn32f single = 5;
    ASSERT_EQ(tarnStsNoErr, tarnsVectorJaehne_32f(&single, 1, std::numeric_limits<Tarn32f>::infinity()));
    EXPECT_EQ(0, single);
    Tarn8u byte = 5;
    ASSERT_EQ(tarnStsNoErr, tarnsVectorJaehne_8u(&byte, 1, 200));
    EXPECT_EQ(0, byte);
}

// Control words that a caller may have set change neither the sines nor themselves.
TEST(Jaehne, ControlWords)
{
    std::vector<Tarn64f> expected(50);
    ASSERT_EQ(tarnStsNoErr, tarnsVectorJaehne_64f(expected.data(), 50, 1));
    for (const RoundingMode mode : allRoundingModes) {
        std::vector<Tarn64f> y(50);
        {
            const RoundingModeScope scope(mode);
            ASSERT_EQ(tarnStsNoErr, tarnsVectorJaehne_64f(y.data(), 50, 1));
        }
        // Phases that are formed in another mode are other phases.
        for (std::size_t n = 0; n < y.size(); ++n)
            EXPECT_NEAR(expected[n], y[n], 1e-13);
    }
}

TEST(Jaehne, Checks)
{
    const auto magnitude = [](auto good, auto... bad) {
        using T = decltype(good);
        return param<T>(good, {static_cast<T>(bad)...}, tarnStsMagnitudeErr);
    };
    expectChecks(tarnsVectorJaehne_8u, {}, array, length, Tarn8u{7});
    expectChecks(tarnsVectorJaehne_16u, {}, array, length, Tarn16u{7});
    expectChecks(tarnsVectorJaehne_32u, {}, array, length, Tarn32u{7});
    expectChecks(tarnsVectorJaehne_8s, {}, array, length, magnitude(Tarn8s{7}, -1, -128));
    expectChecks(tarnsVectorJaehne_16s, {}, array, length, magnitude(Tarn16s{7}, -1, -32768));
    expectChecks(tarnsVectorJaehne_32s, {}, array, length, magnitude(7, -1, std::numeric_limits<int>::min()));
    expectChecks(tarnsVectorJaehne_32f, {}, array, length,
                 magnitude(7.0F, -1, -1e-45F, -std::numeric_limits<float>::infinity(), std::nanf("")));
    expectChecks(tarnsVectorJaehne_64f, {}, array, length,
                 magnitude(7.0, -1, -5e-324, -std::numeric_limits<double>::infinity(), std::nan("")));
}

} // namespace
} // namespace tarn::test
