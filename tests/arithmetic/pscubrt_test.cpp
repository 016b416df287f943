// Cube roots against the C library's in extended precision.
#include "tarns/roots.h"

#include "model/quotient.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/scaled.h"

namespace tarn::test {
namespace {

Tarn32f nearestRoot(Tarn32f x) { return static_cast<Tarn32f>(std::cbrt(static_cast<long double>(x))); }

// In groups of four within two units; what is left over is the nearest float.
TEST(CubeRoot, OfFloats)
{
    const auto check = [](const Tarn32f* src, Tarn32f* dst, int len) {
        const std::vector<Tarn32f> x(src, src + len); // in place they will be gone
        const TarnStatus status = tarnsCubrt_32f(src, dst, len);
        for (int i = len / 4 * 4; i < len; ++i) {
            Tarn32f root;
            std::memcpy(&root, reinterpret_cast<const char*>(dst) + 4 * i, sizeof root);
            EXPECT_TRUE(valuesMatch<Tarn32f>(nearestRoot(x[static_cast<std::size_t>(i)]), root));
        }
        return status;
    };
    sweepElementwise<Tarn32f, Tarn32f>(tarnsCubrt_32f, nearestRoot, {.match = {.ulps = 2}});
    const std::vector<Tarn32f> x = randomValues<Tarn32f>(1000, 1);
    std::vector<Tarn32f> y(1000);
    for (const RoundingMode mode : allRoundingModes)
        for (int len = 1; len < 20; ++len) {
            std::vector<Tarn32f> roots(20);
            {
                const RoundingModeScope scope(mode);
                EXPECT_EQ(tarnStsNoErr, tarnsCubrt_32f(x.data() + 20 * len, roots.data(), len));
            }
            std::vector<Tarn32f> again(20);
            EXPECT_EQ(tarnStsNoErr, check(x.data() + 20 * len, again.data(), len));
            EXPECT_TRUE(arraysMatch<Tarn32f>(again.data(), roots.data(), 20));
        }
}

TEST(CubeRoot, OfFloatsWorthATest)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const Tarn32f x[] = {0.0F, -0.0F, infinity, -infinity, 27, -27, 1e-45F, 3.4e38F};
    for (const int len : {8, 3}) {
        Tarn32f y[8];
        for (int from = 0; from + len <= 8; from += len) {
            EXPECT_EQ(tarnStsNoErr, tarnsCubrt_32f(x + from, y + from, len));
            for (int i = from; i < from + len; ++i)
                EXPECT_TRUE(valuesMatch<Tarn32f>(nearestRoot(x[i]), y[i], {.ulps = len == 3 ? 0.0 : 2.0}));
        }
    }
}

// Every significand, and every exponent modulo three.
TEST(CubeRoot, OfFloatsIsGoodToTwoUnits)
{
    std::vector<Tarn32f> x(1 << 16), y(1 << 16);
    for (unsigned high = 0; high < 384; high += 7) {
        for (unsigned low = 0; low < x.size(); ++low)
            x[low] = std::bit_cast<Tarn32f>(0x3F800000U + (high << 16) + low);
        ASSERT_EQ(tarnStsNoErr, tarnsCubrt_32f(x.data(), y.data(), static_cast<int>(x.size())));
        for (std::size_t i = 0; i < x.size(); ++i)
            ASSERT_LE(std::fabs(y[i] - std::cbrt(static_cast<double>(x[i]))), 0x1p-22) << toText(x[i]);
    }
}

TEST(CubeRoot, OfIntegersAtEveryScale)
{
    auto columns = makeColumns<Tarn32s>();
    auto& values = std::get<0>(columns);
    // Cubes and their neighbours, whose halves are ties or next to them.
    for (int root = 1; root <= 1290; root += 3)
        for (int d = -1; d <= 1; ++d) {
            values.push_back(root * root * root + d);
            values.push_back(-root * root * root + d);
        }
    for (const int s : scaleFactors(-16, 13)) {
        SCOPED_TRACE(s);
        sweepElementwise<Tarn16s, Tarn32s>(
            [s](const Tarn32s* src, Tarn16s* dst, int len) { return tarnsCubrt_32s16s_Sfs(src, dst, len, s); },
            [s](Tarn32s x) {
                const auto root = static_cast<Tarn32f>(std::cbrt(static_cast<long double>(x)));
                return model::nearest<Tarn16s>(std::ldexp(root, -std::clamp(s, -100, 100)));
            },
            {.depth = s == 0 ? Depth::full : Depth::quick}, columns);
    }
}

TEST(CubeRoot, ChecksInOrder)
{
    expectChecks(tarnsCubrt_32f);
    for (const int s : {0, 1, 100, -100})
        expectChecks(tarnsCubrt_32s16s_Sfs, {}, array, array, length, s);
}

} // namespace
} // namespace tarn::test
