// Conversions from and to 24-bit elements against plain models.
#include "tarns.h"

#include "model/convert.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <climits>

namespace tarn::test {
namespace {

using model::Rounding;

constexpr Tarn64s min24s = -8388608;
constexpr Tarn64s max24s = 8388607;
constexpr Tarn64s max24u = 16777215;

Bytes24 stored(Tarn64s value)
{
    return {{static_cast<unsigned char>(value & 255), static_cast<unsigned char>(value >> 8 & 255),
             static_cast<unsigned char>(value >> 16 & 255)}};
}

Tarn32s unsignedValue(Bytes24 x) { return x.bytes[0] + 256 * x.bytes[1] + 65536 * x.bytes[2]; }
Tarn32s signedValue(Bytes24 x) { return x.bytes[2] < 128 ? unsignedValue(x) : unsignedValue(x) - 16777216; }

template <class D, class Value>
void sweepFrom24(TarnStatus (*function)(const Tarn8u*, D*, int), Value value)
{
    sweepElementwise<D, Bytes24>(
        [&](const Bytes24* src, D* dst, int len) { return function(reinterpret_cast<const Tarn8u*>(src), dst, len); },
        [=](Bytes24 x) { return static_cast<D>(value(x)); });
}

TEST(Convert24, Widens)
{
    sweepFrom24(tarnsConvert_24u32u, unsignedValue);
    sweepFrom24(tarnsConvert_24s32s, signedValue);
    sweepFrom24(tarnsConvert_24u32f, unsignedValue);
    sweepFrom24(tarnsConvert_24s32f, signedValue);
}

TEST(Convert24, AllOnesAreMinusOne)
{
    const Tarn8u bytes[3] = {0xFF, 0xFF, 0xFF};
    Tarn32s result = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsConvert_24s32s(bytes, &result, 1));
    EXPECT_EQ(-1, result);
}

template <class S>
void sweepNarrowing(TarnStatus (*function)(const S*, Tarn8u*, int, int), Tarn64s lower, Tarn64s upper)
{
    for (const int s : scaleFactors(-31, 31)) {
        SCOPED_TRACE(s);
        const int used = std::clamp(s, -31, 31);
        sweepElementwise<Bytes24, S>(
            [&](const S* src, Bytes24* dst, int len) { return function(src, reinterpret_cast<Tarn8u*>(dst), len, s); },
            [=](S x) {
                const Tarn64s t = x;
                const Tarn64s r = used >= 0 ? model::roundedQuotient(t, used) : t * (Tarn64s{1} << -used);
                return stored(std::clamp(r, lower, upper));
            },
            {.depth = s == 0 || s == 1 || s == -1 ? Depth::full : Depth::quick});
    }
}

TEST(Convert24, NarrowsByTheScaleRule)
{
    sweepNarrowing(tarnsConvert_32s24s_Sfs, min24s, max24s);
    sweepNarrowing(tarnsConvert_32u24u_Sfs, 0, max24u);
}

template <class S>
Bytes24 one(TarnStatus (*function)(const S*, Tarn8u*, int, int), std::type_identity_t<S> x, int s)
{
    Bytes24 result{};
    EXPECT_EQ(tarnStsNoErr, function(&x, result.bytes, 1, s));
    return result;
}

TEST(Convert24, WorkedValues)
{
    EXPECT_EQ(stored(8388607), one(tarnsConvert_32s24s_Sfs, 8388608, 0));
    EXPECT_EQ(stored(-8388608), one(tarnsConvert_32s24s_Sfs, INT_MIN, 0));
    for (const int s : {31, 32, 100, INT_MAX}) {
        EXPECT_EQ(stored(-1), one(tarnsConvert_32s24s_Sfs, INT_MIN, s)) << s;
        EXPECT_EQ(stored(1), one(tarnsConvert_32s24s_Sfs, INT_MAX, s)) << s;
        EXPECT_EQ(stored(2), one(tarnsConvert_32u24u_Sfs, UINT_MAX, s)) << s;
    }
    for (const int s : {-31, -32, INT_MIN}) {
        EXPECT_EQ(stored(min24s), one(tarnsConvert_32s24s_Sfs, -1, s)) << s;
        EXPECT_EQ(stored(max24s), one(tarnsConvert_32s24s_Sfs, 1, s)) << s;
        EXPECT_EQ(stored(max24u), one(tarnsConvert_32u24u_Sfs, 1, s)) << s;
        EXPECT_EQ(stored(0), one(tarnsConvert_32u24u_Sfs, 0, s)) << s;
    }
}

std::vector<Tarn32f> floatsAround(int s)
{
    std::vector<Tarn32f> values = hardValues<Tarn32f>();
    for (const double bound : {0.0, 100.0, 4194304.0, 8388607.0, 8388608.0, 16777215.0}) {
        for (const double offset : {-1.5, -1.0, -0.75, -0.5, -0.25, 0.0, 0.25, 0.5, 0.75, 1.0, 1.5}) {
            values.push_back(static_cast<Tarn32f>(std::ldexp(bound + offset, s)));
            values.push_back(-values.back());
        }
    }
    const std::vector<Tarn32f> random = randomValues<Tarn32f>(600, 77, Values::random);
    values.insert(values.end(), random.begin(), random.end());
    return values;
}

void sweepFloats(TarnStatus (*function)(const Tarn32f*, Tarn8u*, int, int), Tarn64s lower, Tarn64s upper)
{
    for (const int s : {0, 1, -1, 5, -5, 23, -23, 126, 127, 129, -126, -127, -128, -200, INT_MIN, INT_MAX}) {
        SCOPED_TRACE(s);
        sweepElementwise<Bytes24, Tarn32f>(
            [&](const Tarn32f* src, Bytes24* dst, int len) {
                return function(src, reinterpret_cast<Tarn8u*>(dst), len, s);
            },
            [=](Tarn32f x) { return stored(model::toInteger(x, s, Rounding::toNearest, lower, upper)); },
            {.depth = s == 0 || s == 1 ? Depth::full : Depth::quick},
            Columns<Tarn32f>{floatsAround(std::clamp(s, -100, 90))});
    }
}

TEST(Convert24, FloatsInEveryRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        SCOPED_TRACE(static_cast<int>(mode));
        const RoundingModeScope scope(mode);
        sweepFloats(tarnsConvert_32f24s_Sfs, min24s, max24s);
        sweepFloats(tarnsConvert_32f24u_Sfs, 0, max24u);
    }
}

TEST(Convert24, ControlWordIsKept)
{
    for (std::uint32_t mode = 0; mode < 4; ++mode) {
        const std::uint32_t word = 0x1FC0 | mode << 13;
        const MxcsrScope scope(word);
        EXPECT_EQ(stored(min24s), one(tarnsConvert_32f24s_Sfs, std::numeric_limits<Tarn32f>::quiet_NaN(), 1));
        EXPECT_EQ(stored(2), one(tarnsConvert_32f24u_Sfs, 2.5F, 0));
        EXPECT_EQ(word, readMxcsr());
    }
}

TEST(Convert24, NarrowsWithinOneArray)
{
    for (int len = 1; len < 700; ++len) {
        std::vector<Tarn32s> words(static_cast<std::size_t>(len));
        for (int i = 0; i < len; ++i)
            words[static_cast<std::size_t>(i)] = i * 7919 - 3000000;
        const std::vector<Tarn32s> before = words;
        auto* const bytes = reinterpret_cast<Tarn8u*>(words.data());
        ASSERT_EQ(tarnStsNoErr, tarnsConvert_32s24s_Sfs(words.data(), bytes, len, 0));
        for (int i = 0; i < len; ++i) {
            Bytes24 result;
            std::memcpy(&result, bytes + 3 * i, sizeof result);
            ASSERT_EQ(stored(before[static_cast<std::size_t>(i)]), result) << i << " of " << len;
        }
    }
}

TEST(Convert24, ChecksInOrder)
{
    expectChecks(tarnsConvert_24u32u);
    expectChecks(tarnsConvert_24s32s);
    expectChecks(tarnsConvert_24u32f);
    expectChecks(tarnsConvert_24s32f);
    for (const int s : {0, 1, -1, INT_MIN, INT_MAX}) {
        expectChecks(tarnsConvert_32s24s_Sfs, {}, array, array, length, s);
        expectChecks(tarnsConvert_32u24u_Sfs, {}, array, array, length, s);
        expectChecks(tarnsConvert_32f24s_Sfs, {}, array, array, length, s);
        expectChecks(tarnsConvert_32f24u_Sfs, {}, array, array, length, s);
    }
}

} // namespace
} // namespace tarn::test
