// Conversions between integers and floats against plain models.
#include "tarns.h"

#include "model/convert.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <climits>
#include <map>

namespace tarn::test {
namespace {

using model::Rounding;
using model::scaled;
using model::toInteger;

constexpr Tarn32f nan32 = std::numeric_limits<Tarn32f>::quiet_NaN();
constexpr Tarn32f infinity32 = std::numeric_limits<Tarn32f>::infinity();

// Any value but 0 rounds to nearest.
constexpr int rndModes[] = {tarnRndZero, tarnRndNear, 2, INT_MIN};

// -- Exact forms ------------------------------------------------------------------------------------------------------

template <class D, class S>
void sweepValues(TarnStatus (*function)(const S*, D*, int), std::vector<int> thresholds = {})
{
    sweepElementwise<D, S>(function, [](S x) { return static_cast<D>(x); }, {.thresholds = thresholds});
}

TEST(Convert, WidensIntegers)
{
    sweepValues(tarnsConvert_8s16s);
    sweepValues(tarnsConvert_16s32s, {43675});
}

TEST(Convert, IntegersAsFloatsExactly)
{
    sweepValues(tarnsConvert_8s32f);
    sweepValues(tarnsConvert_8u32f);
    sweepValues(tarnsConvert_16s32f);
    sweepValues(tarnsConvert_16u32f);
    sweepValues(tarnsConvert_32s64f);
}

TEST(Convert, InTheCallersRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepValues(tarnsConvert_32s32f, {11});
        sweepValues(tarnsConvert_64f32f);
        sweepValues(tarnsConvert_32f64f);
    }
}

TEST(Convert, RoundsToSingleAsTheModeSays)
{
    const Tarn32s odd = 16777217;
    const Tarn32f expected[] = {16777216, 16777216, 16777218, 16777216};
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const std::vector<Tarn32s> source(23, odd);
        std::vector<Tarn32f> result(23);
        ASSERT_EQ(tarnStsNoErr, tarnsConvert_32s32f(source.data(), result.data(), 23));
        EXPECT_EQ(std::vector<Tarn32f>(23, expected[static_cast<int>(mode)]), result);
    }
}

// Every order of the two arrays keeps each element until it is read.
TEST(Convert, OverlappingArraysOf32Bits)
{
    for (const int s : {0, 3}) {
        for (int len : {1, 5, 6, 10, 11, 12, 64, 300}) {
            for (int distance = -19; distance <= 19; ++distance) {
                std::vector<Tarn32s> memory(static_cast<std::size_t>(len) + 40);
                for (std::size_t i = 0; i < memory.size(); ++i)
                    memory[i] = static_cast<Tarn32s>(i * i * 7) - 999;
                const std::vector<Tarn32s> before = memory;
                const Tarn32s* const source = memory.data() + 20;
                auto* const destination = reinterpret_cast<Tarn32f*>(memory.data() + 20 + distance);
                ASSERT_EQ(tarnStsNoErr, s == 0 ? tarnsConvert_32s32f(source, destination, len)
                                               : tarnsConvert_32s32f_Sfs(source, destination, len, s));
                for (int i = 0; i < len; ++i) {
                    Tarn32f result;
                    std::memcpy(&result, destination + i, sizeof result);
                    const Tarn32s from = before[static_cast<std::size_t>(20 + i)];
                    ASSERT_EQ(static_cast<Tarn32f>(from) / static_cast<Tarn32f>(1 << s), result)
                        << "element " << i << " of " << len << ", destination " << distance << " behind the source";
                }
            }
        }
    }
}

// -- Scaled integers as floats ----------------------------------------------------------------------------------------

template <class D, class S>
void sweepToFloat(TarnStatus (*function)(const S*, D*, int, int), int lowest, int highest)
{
    const auto all = makeColumns<S>();
    for (const int s : scaleFactors(lowest, highest)) {
        SCOPED_TRACE(s);
        const int used = std::clamp(s, lowest, highest);
        // Of the hundreds between the ends every 37th at all lengths; of the thousands not all values either.
        const bool between = s > lowest + 3 && s < highest - 3 && s % 37 != 0 && std::abs(s) > 2 && s != 5;
        sweepElementwise<D, S>([&](const S* src, D* dst, int len) { return function(src, dst, len, s); },
                               [used](S x) { return std::ldexp(static_cast<D>(x), -used); },
                               {.depth = s == 0 || s == 5 ? Depth::full
                                         : between        ? Depth::values
                                                          : Depth::quick},
                               between && sizeof(D) == 8 ? thinnedColumns(all, static_cast<std::size_t>(s - lowest))
                                                         : all);
    }
}

TEST(Convert, ScaledIntegersAsFloats)
{
    sweepToFloat(tarnsConvert_16s32f_Sfs, -112, 126);
    sweepToFloat(tarnsConvert_16s64f_Sfs, -1008, 1022);
    sweepToFloat(tarnsConvert_32s64f_Sfs, -992, 1022);
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepToFloat(tarnsConvert_32s32f_Sfs, -96, 126);
    }
}

// One element through a function.
template <class D, class S, class... Further>
D one(TarnStatus (*function)(const S*, D*, int, Further...), std::type_identity_t<S> x,
      std::type_identity_t<Further>... further)
{
    D result{};
    EXPECT_EQ(tarnStsNoErr, function(&x, &result, 1, further...));
    return result;
}

TEST(Convert, ClampsOfScaledFloats)
{
    EXPECT_EQ(0x1p112F, one(tarnsConvert_16s32f_Sfs, 1, -112));
    EXPECT_EQ(0x1p112F, one(tarnsConvert_16s32f_Sfs, 1, -113));
    EXPECT_EQ(-0x1p127F, one(tarnsConvert_16s32f_Sfs, -32768, INT_MIN));
    EXPECT_EQ(0x1p-126F, one(tarnsConvert_16s32f_Sfs, 1, 127));
    EXPECT_EQ(0x1p-126F, one(tarnsConvert_16s32f_Sfs, 1, INT_MAX));
    EXPECT_EQ(0x1p1008, one(tarnsConvert_16s64f_Sfs, 1, -1009));
    EXPECT_EQ(0x1p-1022, one(tarnsConvert_16s64f_Sfs, 1, 1023));
    EXPECT_EQ(0x1p96F, one(tarnsConvert_32s32f_Sfs, 1, -97));
    EXPECT_EQ(0x1p-126F, one(tarnsConvert_32s32f_Sfs, 1, 127));
    EXPECT_EQ(0x1p992, one(tarnsConvert_32s64f_Sfs, 1, -993));
    EXPECT_EQ(0x1p-1022, one(tarnsConvert_32s64f_Sfs, 1, INT_MAX));
}

// -- Narrowing integers -----------------------------------------------------------------------------------------------

TEST(Convert, NarrowsBySaturation)
{
    sweepElementwise<Tarn16s, Tarn32s>(tarnsConvert_32s16s, [](Tarn32s x) { return model::saturated<Tarn16s>(x); },
                                       {.thresholds = {43675}});
}

TEST(Convert, NarrowsByTheScaleRule)
{
    for (const int s : scaleFactors(-15, 31)) {
        SCOPED_TRACE(s);
        const int used = std::clamp(s, -15, 31);
        sweepElementwise<Tarn16s, Tarn32s>(
            [&](const Tarn32s* src, Tarn16s* dst, int len) { return tarnsConvert_32s16s_Sfs(src, dst, len, s); },
            [used](Tarn32s x) { return scaled<Tarn16s>(x, used); },
            {.depth = s == 0 || s == 1 || s == -1 ? Depth::full : Depth::quick});
    }
}

TEST(Convert, WorkedValuesOfNarrowing)
{
    EXPECT_EQ(2, one(tarnsConvert_32s16s_Sfs, 3, 1));
    EXPECT_EQ(2, one(tarnsConvert_32s16s_Sfs, 5, 1));
    EXPECT_EQ(32767, one(tarnsConvert_32s16s_Sfs, 40000, 0));
    for (const int s : {31, 32, 100, INT_MAX}) {
        EXPECT_EQ(1, one(tarnsConvert_32s16s_Sfs, INT_MAX, s)) << s;
        EXPECT_EQ(-1, one(tarnsConvert_32s16s_Sfs, INT_MIN, s)) << s;
        EXPECT_EQ(0, one(tarnsConvert_32s16s_Sfs, 1 << 30, s)) << s;
    }
    for (const int s : {-15, -16, INT_MIN}) {
        EXPECT_EQ(32767, one(tarnsConvert_32s16s_Sfs, 1, s)) << s;
        EXPECT_EQ(-32768, one(tarnsConvert_32s16s_Sfs, -1, s)) << s;
        EXPECT_EQ(0, one(tarnsConvert_32s16s_Sfs, 0, s)) << s;
    }
}

// -- Floats to integers -----------------------------------------------------------------------------------------------

// Floats whose scaled values fall on integers, halves and their neighbours around every bound.
template <class S>
const std::vector<S>& floatsAround(int s)
{
    static std::map<int, std::vector<S>> known;
    std::vector<S>& values = known[s];
    if (!values.empty())
        return values;
    values = hardValues<S>();
    const double bounds[] = {0,     127,     128,      255,        256,         32767,       32768, 65535,
                             65536, 8388607, 16777215, 2147483647, 2147483648., 4294967296., 1e10};
    for (const double bound : bounds) {
        for (const double offset : {-1.5, -1.0, -0.75, -0.5, -0.25, 0.0, 0.25, 0.5, 0.75, 1.0, 1.5}) {
            const S value = static_cast<S>(std::ldexp(bound + offset, s));
            for (const S x : {value, std::nextafter(value, S(0)), std::nextafter(value, 2 * value)}) {
                values.push_back(x);
                values.push_back(-x);
            }
        }
    }
    const std::vector<S> random = randomValues<S>(600, static_cast<unsigned>(s) + 5, Values::random);
    values.insert(values.end(), random.begin(), random.end());
    return values;
}

const std::vector<int>& factorsForFloats()
{
    static const std::vector<int> factors = {0,   1,   -1,   2,    3,    -3,  7,   -7,   15,   -15,     24,     31,
                                             -31, 126, -126, -127, -128, 127, 129, -150, -200, INT_MAX, INT_MIN};
    return factors;
}

template <class D, class S>
void sweepToInteger(TarnStatus (*function)(const S*, D*, int, int, int), RoundingMode mode)
{
    const auto sweep = [&](int s, int rndMode, Depth depth) {
        SCOPED_TRACE(std::to_string(s) + " rounded by " + std::to_string(rndMode));
        const Rounding rounding = rndMode == 0 ? Rounding::toZero : Rounding::toNearest;
        sweepElementwise<D, S>([&](const S* src, D* dst, int len) { return function(src, dst, len, rndMode, s); },
                               [=](S x) { return toInteger<D>(x, s, rounding); }, {.depth = depth},
                               Columns<S>{floatsAround<S>(std::clamp(s, -100, 90))});
    };
    for (const int s : factorsForFloats())
        for (const int rndMode : rndModes)
            sweep(s, rndMode, (s == 0 || s == 1) && rndMode != 2 && rndMode != INT_MIN ? Depth::full : Depth::quick);
    // Every factor that a float has, rounded one way or the other: the mode of the processor makes no difference.
    for (int s = -130; s <= 130; ++s)
        sweep(s, (s + static_cast<int>(mode)) & 1, Depth::values);
}

template <class Sweep>
void inEveryRoundingMode(Sweep sweep)
{
    for (const RoundingMode mode : allRoundingModes) {
        SCOPED_TRACE(static_cast<int>(mode));
        const RoundingModeScope scope(mode);
        sweep(mode);
    }
}

TEST(ConvertFloats, To8Bits)
{
    inEveryRoundingMode([](RoundingMode mode) {
        sweepToInteger(tarnsConvert_32f8s_Sfs, mode);
        sweepToInteger(tarnsConvert_32f8u_Sfs, mode);
    });
}

TEST(ConvertFloats, To16Bits)
{
    inEveryRoundingMode([](RoundingMode mode) {
        sweepToInteger(tarnsConvert_32f16s_Sfs, mode);
        sweepToInteger(tarnsConvert_32f16u_Sfs, mode);
    });
}

TEST(ConvertFloats, To32Bits)
{
    inEveryRoundingMode([](RoundingMode mode) {
        sweepToInteger(tarnsConvert_32f32s_Sfs, mode);
        sweepToInteger(tarnsConvert_64f32s_Sfs, mode);
    });
}

TEST(ConvertFloats, WorkedValues)
{
    EXPECT_EQ(2, one(tarnsConvert_32f16s_Sfs, 2.5F, tarnRndNear, 0));
    EXPECT_EQ(2, one(tarnsConvert_32f16s_Sfs, 2.5F, tarnRndZero, 0));
    EXPECT_EQ(4, one(tarnsConvert_32f16s_Sfs, 3.5F, tarnRndNear, 0));
    EXPECT_EQ(3, one(tarnsConvert_32f16s_Sfs, 3.5F, tarnRndZero, 0));
    for (const int rndMode : {tarnRndZero, tarnRndNear}) {
        EXPECT_EQ(32767, one(tarnsConvert_32f16s_Sfs, 1e10F, rndMode, 0));
        EXPECT_EQ(-32768, one(tarnsConvert_32f16s_Sfs, -1e10F, rndMode, 0));
        EXPECT_EQ(0, one(tarnsConvert_32f8u_Sfs, -1.0F, rndMode, 0));
        EXPECT_EQ(INT_MAX, one(tarnsConvert_32f32s_Sfs, infinity32, rndMode, 0));
        EXPECT_EQ(INT_MIN, one(tarnsConvert_32f32s_Sfs, nan32, rndMode, 0));
        EXPECT_EQ(INT_MAX, one(tarnsConvert_64f32s_Sfs, 1e300, rndMode, 0));
        EXPECT_EQ(-128, one(tarnsConvert_32f8s_Sfs, nan32, rndMode, 0));
        EXPECT_EQ(0, one(tarnsConvert_32f8u_Sfs, nan32, rndMode, 0));
        EXPECT_EQ(0, one(tarnsConvert_32f16u_Sfs, nan32, rndMode, 0));
    }
}

// A zero stays one at every scale, where an infinite factor would make a NaN of it.
TEST(ConvertFloats, ZeroAtEveryScale)
{
    for (const int s : {-126, -127, -128, -300, -1023, -1024, -5000, INT_MIN, 127, 150, 1023, 5000, INT_MAX}) {
        for (const Tarn32f zero : {0.0F, -0.0F}) {
            EXPECT_EQ(0, one(tarnsConvert_32f16s_Sfs, zero, tarnRndNear, s)) << s;
            EXPECT_EQ(0, one(tarnsConvert_32f32s_Sfs, zero, tarnRndZero, s)) << s;
            EXPECT_EQ(0, one(tarnsConvert_64f32s_Sfs, zero, tarnRndNear, s)) << s;
        }
    }
}

// -- The control word -------------------------------------------------------------------------------------------------

constexpr std::uint32_t masked = 0x1F80;
constexpr std::uint32_t denormalsAreZero = 0x0040;
constexpr std::uint32_t flushToZero = 0x8000;

std::uint32_t withMode(RoundingMode mode) { return masked | static_cast<std::uint32_t>(mode) << 13; }

// The whole word comes back, flags included, although what is converted would raise some.
TEST(ConvertFloats, ControlWordIsKept)
{
    for (const RoundingMode mode : allRoundingModes) {
        for (const std::uint32_t further : {0U, denormalsAreZero, flushToZero, denormalsAreZero | flushToZero, 0x3FU}) {
            for (const int rndMode : {tarnRndZero, tarnRndNear}) {
                for (const int s : {0, 1, -200}) {
                    const std::uint32_t word = withMode(mode) | further;
                    const MxcsrScope scope(word);
                    EXPECT_EQ(-32768, one(tarnsConvert_32f16s_Sfs, nan32, rndMode, s));
                    EXPECT_EQ(word, readMxcsr());
                    EXPECT_EQ(INT_MAX, one(tarnsConvert_64f32s_Sfs, 1e300, rndMode, s));
                    EXPECT_EQ(word, readMxcsr());
                }
            }
        }
    }
}

// Denormals count for nothing only where the caller asked for that and its rounding mode was not replaced.
TEST(ConvertFloats, DenormalsGrownToIntegers)
{
    const std::vector<Tarn32f> source(19, 3 * 0x1p-140F);
    for (const RoundingMode mode : allRoundingModes) {
        for (const std::uint32_t daz : {0U, denormalsAreZero}) {
            for (const int rndMode : {tarnRndZero, tarnRndNear}) {
                std::vector<Tarn16s> result(19);
                {
                    const MxcsrScope scope(withMode(mode) | daz);
                    ASSERT_EQ(tarnStsNoErr, tarnsConvert_32f16s_Sfs(source.data(), result.data(), 19, rndMode, -140));
                }
                const bool taken = daz != 0 && (rndMode == tarnRndZero || mode == RoundingMode::nearest);
                EXPECT_EQ(std::vector<Tarn16s>(19, taken ? 0 : 3), result);
            }
        }
    }
}

// -- Same array, checks -----------------------------------------------------------------------------------------------

TEST(Convert, NarrowsWithinOneArray)
{
    for (int len = 1; len < 400; ++len) {
        std::vector<Tarn32f> floats(static_cast<std::size_t>(len));
        for (int i = 0; i < len; ++i)
            floats[static_cast<std::size_t>(i)] = static_cast<Tarn32f>(i * 91 % 4001) - 2000.5F;
        const std::vector<Tarn32f> before = floats;
        auto* const words = reinterpret_cast<Tarn16s*>(floats.data());
        ASSERT_EQ(tarnStsNoErr, tarnsConvert_32f16s_Sfs(floats.data(), words, len, tarnRndNear, 0));
        for (int i = 0; i < len; ++i) {
            Tarn16s result;
            std::memcpy(&result, words + i, sizeof result);
            ASSERT_EQ(toInteger<Tarn16s>(before[static_cast<std::size_t>(i)], 0, Rounding::toNearest), result);
        }
    }
}

TEST(Convert, ChecksInOrder)
{
    expectChecks(tarnsConvert_8s16s);
    expectChecks(tarnsConvert_16s32s);
    expectChecks(tarnsConvert_8s32f);
    expectChecks(tarnsConvert_8u32f);
    expectChecks(tarnsConvert_16s32f);
    expectChecks(tarnsConvert_16u32f);
    expectChecks(tarnsConvert_32s32f);
    expectChecks(tarnsConvert_32s64f);
    expectChecks(tarnsConvert_32f64f);
    expectChecks(tarnsConvert_64f32f);
    expectChecks(tarnsConvert_32s16s);
    for (const int s : {0, 1, -1, INT_MIN, INT_MAX}) {
        expectChecks(tarnsConvert_16s32f_Sfs, {}, array, array, length, s);
        expectChecks(tarnsConvert_16s64f_Sfs, {}, array, array, length, s);
        expectChecks(tarnsConvert_32s32f_Sfs, {}, array, array, length, s);
        expectChecks(tarnsConvert_32s64f_Sfs, {}, array, array, length, s);
        expectChecks(tarnsConvert_32s16s_Sfs, {}, array, array, length, s);
        for (const int rndMode : rndModes) {
            expectChecks(tarnsConvert_32f8s_Sfs, {}, array, array, length, rndMode, s);
            expectChecks(tarnsConvert_32f8u_Sfs, {}, array, array, length, rndMode, s);
            expectChecks(tarnsConvert_32f16s_Sfs, {}, array, array, length, rndMode, s);
            expectChecks(tarnsConvert_32f16u_Sfs, {}, array, array, length, rndMode, s);
            expectChecks(tarnsConvert_32f32s_Sfs, {}, array, array, length, rndMode, s);
            expectChecks(tarnsConvert_64f32s_Sfs, {}, array, array, length, rndMode, s);
        }
    }
}

} // namespace
} // namespace tarn::test
