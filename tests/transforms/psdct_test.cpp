// Cosine transforms against their definition at every length, and what each route promises.
#include "model/dct.h"
#include "support/guarded.h"
#include "transforms/dct_kinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tarn::test {
namespace {

/// Values between -1 and 1 that single precision has.
std::vector<float> noise(std::size_t N, unsigned seed)
{
    std::vector<float> x(N);
    std::uint32_t state = seed * 2654435761U + 1;
    for (float& value : x) {
        state = state * 1664525U + 1013904223U;
        value = static_cast<float>(static_cast<std::int32_t>(state >> 8) - (1 << 23)) * 0x1p-23F;
    }
    return x;
}

/// The largest error relative to the root mean square of what is expected, in units of the element's precision.
template <class T>
double errorOf(const std::vector<long double>& expected, const std::vector<T>& actual)
{
    long double squares = 0;
    long double worst = 0;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        squares += expected[i] * expected[i];
        const long double error = std::fabs(static_cast<long double>(actual[i]) - expected[i]);
        worst = error <= worst ? worst : error; // a NaN is worst of all
    }
    return static_cast<double>(worst / std::sqrt(squares / static_cast<long double>(expected.size())) /
                               static_cast<long double>(std::numeric_limits<T>::epsilon()));
}

const DctKind& kindOf(bool forward, std::size_t bytes)
{
    return *std::find_if(dctKinds().begin(), dctKinds().end(),
                         [&](const DctKind& kind) { return kind.forward == forward && kind.bytes == bytes; });
}

template <class T>
std::vector<T> transformed(const DctKind& kind, const std::vector<float>& values, TarnHintAlgorithm hint)
{
    const DctSpec spec(kind, static_cast<int>(values.size()), hint);
    const std::vector<T> src(values.begin(), values.end());
    std::vector<T> dst(values.size(), T{77});
    EXPECT_EQ(tarnStsNoErr, kind.run(src.data(), dst.data(), spec.get(), 0, nullptr));
    return dst;
}

bool isPowerOfTwo(int N) { return std::has_single_bit(static_cast<unsigned>(N)); }

/// What the error may be at a length: sums of products round with the root of their number, transforms with its
/// logarithm, and the way by halves, which divides by small cosines, with the length itself.
double boundOf(int N, TarnHintAlgorithm hint)
{
    if (isPowerOfTwo(N) && !(hint == tarnAlgHintAccurate && N > 512))
        return 4 + 0.25 * N;
    return N <= 100 ? 4 + 0.1 * N : 4 + 1.2 * std::log2(N);
}

template <class T>
void expectDefinition(int N, TarnHintAlgorithm hint, const std::vector<float>& x,
                      const std::vector<long double>& coefficients, const std::vector<long double>& samples)
{
    const double bound = boundOf(N, hint);
    EXPECT_LE(errorOf(coefficients, transformed<T>(kindOf(true, sizeof(T)), x, hint)), bound)
        << "forward, length " << N << ", bytes " << sizeof(T) << ", hint " << hint;
    EXPECT_LE(errorOf(samples, transformed<T>(kindOf(false, sizeof(T)), x, hint)), bound)
        << "inverse, length " << N << ", bytes " << sizeof(T) << ", hint " << hint;
}

TEST(Dct, IsWhatItIsDefinedToBeAtEveryLength)
{
    for (int N = 1; N <= 512; ++N) {
        const auto x = noise(static_cast<std::size_t>(N), static_cast<unsigned>(N));
        const auto coefficients = model::dctForward(std::span<const float>(x));
        const auto samples = model::dctInverse(std::span<const float>(x));
        expectDefinition<Tarn32f>(N, tarnAlgHintNone, x, coefficients, samples);
        expectDefinition<Tarn64f>(N, tarnAlgHintFast, x, coefficients, samples);
    }
}

// Sums in double precision are exact enough for single precision; in double precision a transform and its inverse have
// to give the signal back, which two wrong ones would not.
TEST(Dct, AtLargerLengthsToo)
{
    for (int N : {513, 768, 1000, 1023, 1024, 1025, 1999, 2048, 3001, 4096})
        for (TarnHintAlgorithm hint : {tarnAlgHintFast, tarnAlgHintAccurate}) {
            if (hint == tarnAlgHintAccurate && !isPowerOfTwo(N))
                continue;
            const auto x = noise(static_cast<std::size_t>(N), 5);
            expectDefinition<Tarn32f>(N, hint, x, model::dctForward<double>(std::span<const float>(x)),
                                      model::dctInverse<double>(std::span<const float>(x)));
        }
}

template <class T>
void expectReturn(int N, TarnHintAlgorithm hint)
{
    const auto x = noise(static_cast<std::size_t>(N), 9);
    const std::vector<T> signal(x.begin(), x.end());
    std::vector<T> data = signal;
    for (bool forward : {true, false}) {
        const DctKind& kind = kindOf(forward, sizeof(T));
        const DctSpec spec(kind, N, hint);
        std::vector<Tarn8u> buffer(static_cast<std::size_t>(spec.bufSize()));
        ASSERT_EQ(tarnStsNoErr, kind.run(data.data(), data.data(), spec.get(), 0, buffer.data()));
        long double squares = 0;
        for (const T value : data)
            squares += static_cast<long double>(value) * static_cast<long double>(value);
        EXPECT_NEAR(N / 3.0, static_cast<double>(squares), N / 20.0 + 1) << "orthonormal";
    }
    const std::vector<long double> expected(signal.begin(), signal.end());
    EXPECT_LE(errorOf(expected, data), 4 * boundOf(N, hint)) << N << ", bytes " << sizeof(T) << ", hint " << hint;
}

TEST(Dct, TheInverseGivesTheSignalBack)
{
    for (int N : {1000, 1024, 2048, 5000, 16384, 33333, 1 << 16})
        for (TarnHintAlgorithm hint : {tarnAlgHintNone, tarnAlgHintAccurate}) {
            expectReturn<Tarn32f>(N, hint);
            expectReturn<Tarn64f>(N, hint);
        }
}

// The accurate hint is worth its name where it counts, and only there.
TEST(Dct, TheAccurateHintKeepsErrorsSmall)
{
    for (int N : {512, 1024, 1 << 18}) {
        const auto x = noise(static_cast<std::size_t>(N), 3);
        const auto exact = transformed<Tarn64f>(kindOf(true, 8), x, tarnAlgHintAccurate);
        const std::vector<long double> expected(exact.begin(), exact.end());
        const auto fast = transformed<Tarn32f>(kindOf(true, 4), x, tarnAlgHintFast);
        const auto accurate = transformed<Tarn32f>(kindOf(true, 4), x, tarnAlgHintAccurate);
        if (N == 512) {
            EXPECT_EQ(fast, accurate);
            continue;
        }
        EXPECT_LE(errorOf(expected, accurate), 12);
        EXPECT_GE(errorOf(expected, fast), 40);
        if (N == 1 << 18) {
            EXPECT_GE(errorOf(expected, fast), 500);
            EXPECT_LE(errorOf(expected, fast), 5000);
        }
    }
}

TEST(Dct, TheFixedFormsOfOneTwoAndFourPoints)
{
    const std::vector<float> x = {0.3F, -0.7F, 0.11F, 0.9F};
    constexpr float half = 0.70710677F;
    for (bool forward : {true, false}) {
        EXPECT_EQ(std::vector<float>{-0.0F}, transformed<Tarn32f>(kindOf(forward, 4), {-0.0F}, tarnAlgHintNone));
        const auto two = transformed<Tarn32f>(kindOf(forward, 4), {x[0], x[1]}, tarnAlgHintNone);
        EXPECT_EQ(x[0] * half + x[1] * half, two[0]);
        EXPECT_EQ(x[0] * half - x[1] * half, two[1]);
    }
    const auto four = transformed<Tarn32f>(kindOf(true, 4), x, tarnAlgHintNone);
    const float p = x[0] + x[3];
    const float q = x[1] + x[2];
    const float r = x[0] - x[3];
    const float t = x[1] - x[2];
    EXPECT_EQ(0.5F * (p + q), four[0]);
    EXPECT_EQ(0.6532815F * r + 0.27059805F * t, four[1]);
    EXPECT_EQ(0.5F * (p - q), four[2]);
    EXPECT_EQ(0.27059805F * r - 0.6532815F * t, four[3]);
}

// -- Memory -----------------------------------------------------------------------------------------------------------

/// A transform between guards, at all addresses, in place and not, with a buffer of just the size: the same bits.
TEST(Dct, NothingDependsOnAddresses)
{
    for (const DctKind& kind : dctKinds())
        for (int N : {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 17, 31, 32, 50, 64, 100, 101, 102, 128, 200, 256, 1024})
            for (TarnHintAlgorithm hint : {tarnAlgHintNone, tarnAlgHintAccurate}) {
                if (hint == tarnAlgHintAccurate && N != 1024)
                    continue;
                SCOPED_TRACE(testing::Message() << kind.name << " length " << N);
                const DctSpec spec(kind, N, hint);
                const std::size_t bytes = static_cast<std::size_t>(N) * kind.bytes;
                std::vector<unsigned char> values(bytes);
                const auto x = noise(static_cast<std::size_t>(N), 1);
                for (std::size_t i = 0; i < x.size(); ++i) {
                    const double wide = static_cast<double>(x[i]);
                    const auto word = static_cast<Tarn16s>(x[i] * 20000.0F);
                    const void* from = kind.bytes == 8   ? static_cast<const void*>(&wide)
                                       : kind.bytes == 4 ? static_cast<const void*>(&x[i])
                                                         : &word;
                    std::memcpy(values.data() + i * kind.bytes, from, kind.bytes);
                }
                std::vector<unsigned char> expected(bytes);
                ASSERT_EQ(tarnStsNoErr, kind.run(values.data(), expected.data(), spec.get(), 1, nullptr));
                for (unsigned turn = 0; turn < 6; ++turn) {
                    const auto at = [&](unsigned offset) {
                        return turn == 4   ? Placement::atEnd()
                               : turn == 5 ? Placement::atStart()
                                           : Placement::offset(offset);
                    };
                    GuardedBytes src(bytes, at(turn == 3 ? 3 : 4 * turn));
                    GuardedBytes dst(bytes, at(turn == 2 ? 1 : 8 * turn % 32));
                    GuardedBytes buffer(static_cast<std::size_t>(spec.bufSize()), at(turn * 5));
                    std::memcpy(src.bytes(), values.data(), bytes);
                    EXPECT_EQ(tarnStsNoErr, kind.run(src.bytes(), dst.bytes(), spec.get(), 1, buffer.bytes()));
                    EXPECT_EQ(0, std::memcmp(expected.data(), dst.bytes(), bytes)) << turn;
                    EXPECT_EQ(0, std::memcmp(values.data(), src.bytes(), bytes)) << "the source is kept";
                    EXPECT_EQ(tarnStsNoErr, kind.run(src.bytes(), src.bytes(), spec.get(), 1, buffer.bytes()));
                    EXPECT_EQ(0, std::memcmp(expected.data(), src.bytes(), bytes)) << "in place " << turn;
                }
            }
}

// -- Integers ---------------------------------------------------------------------------------------------------------

long double scaledAndRounded(long double value, int s)
{
    const long double scaled = std::ldexp(value, -std::clamp(s, -100, 100));
    return std::clamp(std::nearbyint(scaled), -32768.0L, 32767.0L);
}

TEST(Dct_16s, IsTheFloatingTransformRounded)
{
    for (bool forward : {true, false})
        for (int N : {2, 3, 4, 8, 16, 24, 64, 100, 101, 150, 512, 1024})
            for (int s : {0, 1, 4, -2}) {
                const auto x = noise(static_cast<std::size_t>(N), static_cast<unsigned>(N + s));
                std::vector<Tarn16s> src(x.size());
                std::transform(x.begin(), x.end(), src.begin(),
                               [](float value) { return static_cast<Tarn16s>(value * 32767.0F); });
                const auto exact = forward ? model::dctForward<double>(std::span<const Tarn16s>(src))
                                           : model::dctInverse<double>(std::span<const Tarn16s>(src));
                const DctKind& kind = kindOf(forward, 2);
                const DctSpec spec(kind, N, tarnAlgHintAccurate);
                std::vector<Tarn16s> dst(src.size());
                EXPECT_EQ(tarnStsNoErr, kind.run(src.data(), dst.data(), spec.get(), s, nullptr));
                for (std::size_t i = 0; i < dst.size(); ++i) {
                    // Single precision misses the exact value by less than that up to these lengths.
                    constexpr long double error = 0.25;
                    ASSERT_GE(dst[i], scaledAndRounded(exact[i] - error, s)) << N << " scaled by " << s << " at " << i;
                    ASSERT_LE(dst[i], scaledAndRounded(exact[i] + error, s)) << N << " scaled by " << s << " at " << i;
                }
            }
}

TEST(Dct_16s, OnePointIsRescaled)
{
    for (bool forward : {true, false}) {
        const DctKind& kind = kindOf(forward, 2);
        const DctSpec spec(kind, 1, tarnAlgHintAccurate);
        for (const auto& [sample, s, expected] :
             {std::tuple{5, 0, 5}, {5, 1, 2}, {7, 1, 4}, {-5, 1, -2}, {20000, -1, 32767}, {-20000, -1, -32768}}) {
            const auto src = static_cast<Tarn16s>(sample);
            Tarn16s dst = 99;
            EXPECT_EQ(tarnStsNoErr, kind.run(&src, &dst, spec.get(), s, nullptr));
            EXPECT_EQ(expected, dst) << sample << " scaled by " << s;
        }
    }
}

// -- Special values ---------------------------------------------------------------------------------------------------

TEST(Dct, ANaNShowsAndDoesNotEscape)
{
    for (const DctKind& kind : dctKinds()) {
        if (kind.bytes != 4)
            continue;
        for (int N : {1, 2, 4, 8, 9, 16, 64, 100, 101, 1024}) {
            const DctSpec spec(kind, N);
            for (std::size_t at : {std::size_t{0}, static_cast<std::size_t>(N) / 2, static_cast<std::size_t>(N) - 1}) {
                std::vector<float> x(static_cast<std::size_t>(N), 1.0F);
                x[at] = std::numeric_limits<float>::quiet_NaN();
                std::vector<float> y(x.size());
                EXPECT_EQ(tarnStsNoErr, kind.run(x.data(), y.data(), spec.get(), 0, nullptr));
                EXPECT_TRUE(std::any_of(y.begin(), y.end(), [](float v) { return std::isnan(v); })) << kind.name << N;
                // Nothing is left of it in the object.
                std::fill(x.begin(), x.end(), 1.0F);
                EXPECT_EQ(tarnStsNoErr, kind.run(x.data(), y.data(), spec.get(), 0, nullptr));
                EXPECT_TRUE(std::none_of(y.begin(), y.end(), [](float v) { return std::isnan(v); })) << kind.name << N;
            }
        }
    }
}

} // namespace
} // namespace tarn::test
