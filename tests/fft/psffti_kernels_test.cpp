// Kernels of the transforms in fixed point: tables, words of samples and back, the core, recombination.
#include "levels/fft/psffti.h"
#include "model/fft.h"
#include "support/guarded.h"
#include "tarns/memory.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <memory>
#include <numbers>
#include <random>
#include <vector>

namespace tarn::test {
namespace {

struct FreeBlock {
    void operator()(void* block) const { tarnsFree(block); }
};
using Table = std::unique_ptr<Tarn16s[], FreeBlock>;

template <class T>
std::span<const T> first(const std::vector<T>& values, std::size_t count)
{
    return {values.data(), count};
}
template <class T>
std::span<const T> last(const std::vector<T>& values, std::size_t count)
{
    return {values.data() + values.size() - count, count};
}

TEST(FixedFftTables, BaseIsAQuarterOfASine)
{
    for (int order = 0; order <= 12; ++order) {
        const Table base(tarns_createTabTwdBase_16s(order));
        ASSERT_TRUE(base);
        const int size = 1 << order;
        for (int j = 0; j <= size / 4; ++j) {
            const double step = 2 * std::numbers::pi / size;
            const double sine = j <= size / 8 ? std::sin(j * step) : std::cos((size / 4 - j) * step);
            EXPECT_EQ(static_cast<int>(sine * 16384.0 + 0.5), base[static_cast<std::size_t>(j)])
                << "order " << order << " entry " << j;
        }
    }
    const Table base(tarns_createTabTwdBase_16s(3));
    EXPECT_EQ(0, base[0]);
    EXPECT_EQ(11585, base[1]);
    EXPECT_EQ(16384, base[2]);
}

// Four words c, s, -s, c. Sines of the circle come from the base by symmetry.
TEST(FixedFftTables, RotationsStandForTheWholeCircle)
{
    for (int order = 0; order <= 8; ++order)
        for (int baseOrder : {order, order + 1, order + 2}) {
            const Table base(tarns_createTabTwdBase_16s(baseOrder));
            const Table words(tarns_createTabTwd_R4_16s(order, base.get(), baseOrder));
            ASSERT_TRUE(words);
            const int size = 1 << order;
            for (int k = 0; k < size; ++k) {
                const double angle = 2 * std::numbers::pi * k / size;
                const auto word = [](double x) {
                    return static_cast<int>(std::copysign(std::fabs(x) * 16384 + 0.5, x));
                };
                const int c = word(std::cos(angle));
                const int s = word(std::sin(angle));
                const Tarn16s* entry = words.get() + 4 * k;
                EXPECT_EQ(c, entry[0]) << "order " << order << " k " << k;
                EXPECT_EQ(s, entry[1]) << "order " << order << " k " << k;
                EXPECT_EQ(-s, entry[2]) << "order " << order << " k " << k;
                EXPECT_EQ(c, entry[3]) << "order " << order << " k " << k;
            }
        }
}

TEST(FixedFftWords, SamplesStandSoManyPlacesUp)
{
    const std::vector<Tarn16s> samples = {0,  1,     -1,     2, 32767, -32768, 1000, -1000, 7,
                                          -7, 12345, -12345, 5, -5,    3,      100,  -1};
    for (std::size_t len = 1; len <= samples.size(); ++len)
        for (int shift : {0, 1, 6, 12, 13, 14, 15, 16})
            for (unsigned offset : {0u, 2u, 4u, 5u}) {
                const GuardedArray<Tarn16s> src(first(samples, len), Placement::offset(offset));
                const GuardedArray<Tarn32s> dst(len, Placement::offset(offset));
                tarns_cnvrt_16s32s(src.data(), dst.data(), static_cast<int>(len), shift);
                for (std::size_t i = 0; i < len; ++i)
                    ASSERT_EQ(samples[i] * (1LL << shift), dst.get(i)) << "shift " << shift << " element " << i;
            }
}

TEST(FixedFftWords, WordsBecomeSamplesWithHalvesRoundedUp)
{
    const std::vector<Tarn32s> words = {0,     1,      -1,      2,       3,       -3,          4,          -4,
                                        5,     -5,     6,       32767,   -32768,  32768,       -32769,     65535,
                                        98303, -98304, 1 << 30, INT_MAX, INT_MIN, INT_MAX - 1, -(1 << 30), 0x3FFFFFFF};
    for (int shift : {0,    1,       2,  3,  8,   15,  16,  17,  29,  30,  31,  32,  33,  40,     64,
                      1000, INT_MAX, -1, -2, -14, -15, -16, -17, -30, -31, -32, -33, -64, INT_MIN})
        for (std::size_t len : {std::size_t{1}, std::size_t{2}, std::size_t{7}, std::size_t{8}, words.size()}) {
            const GuardedArray<Tarn32s> src(last(words, len), Placement::atEnd());
            const GuardedArray<Tarn16s> dst(len, Placement::atEnd());
            tarns_cnvrt_32s16s(src.data(), dst.data(), static_cast<int>(len), shift);
            for (std::size_t i = 0; i < len; ++i) {
                const auto word = static_cast<long double>(src.get(i));
                const long double x = std::floor(std::ldexp(word, -std::max(-200, std::min(200, shift))) + 0.5L);
                ASSERT_EQ(std::fmin(std::fmax(x, -32768.0L), 32767.0L), dst.get(i))
                    << "shift " << shift << " of " << word;
            }
        }
}

TEST(FixedFftWords, TimesTheRootOfOneHalfIsNearest)
{
    std::mt19937 random(3);
    std::vector<Tarn32s> words = {0, 1, -1, INT_MAX, INT_MIN, 1 << 30, -(1 << 30), 12345, -12345};
    while (words.size() < 41)
        words.push_back(static_cast<Tarn32s>(random()));
    for (std::size_t len = 1; len <= words.size(); ++len) {
        const GuardedArray<Tarn32s> data(last(words, len), Placement::atEnd());
        tarns_ibMpyBySqrt2_32s(data.data(), static_cast<int>(len));
        for (std::size_t i = 0; i < len; ++i) {
            const long double exact = words[words.size() - len + i] / std::numbers::sqrt2_v<long double>;
            // The factor is as good as 32 places allow.
            ASSERT_NEAR(static_cast<double>(exact), data.get(i), 0.51) << "element " << i << " of " << len;
        }
    }
}

TEST(FixedFftWords, ArraysMergeAndSplit)
{
    for (std::size_t len = 1; len <= 40; ++len) {
        std::vector<Tarn16s> re(len);
        std::vector<Tarn16s> im(len);
        for (std::size_t i = 0; i < len; ++i) {
            re[i] = static_cast<Tarn16s>(1000 + static_cast<int>(i));
            im[i] = static_cast<Tarn16s>(-32768 + static_cast<int>(i));
        }
        const GuardedArray<Tarn16s> srcRe(re, Placement::atEnd());
        const GuardedArray<Tarn16s> srcIm(im, Placement::offset(2));
        const GuardedArray<Tarn16sc> pairs(len, Placement::atEnd());
        tarns_vbFftMerge_16s(srcRe.data(), srcIm.data(), pairs.data(), static_cast<int>(len));
        for (std::size_t i = 0; i < len; ++i) {
            ASSERT_EQ(re[i], pairs.get(i).re);
            ASSERT_EQ(im[i], pairs.get(i).im);
        }
        const GuardedArray<Tarn16s> dstRe(len, Placement::atEnd());
        const GuardedArray<Tarn16s> dstIm(len, Placement::offset(6));
        tarns_vbFftSplit_16s(pairs.data(), dstRe.data(), dstIm.data(), static_cast<int>(len));
        ASSERT_EQ(re, dstRe.copy());
        ASSERT_EQ(im, dstIm.copy());
    }
}

int reversed(int i, int size)
{
    int result = 0;
    for (int bit = 1; bit < size; bit *= 2)
        result = 2 * result + ((i & bit) != 0 ? 1 : 0);
    return result;
}

struct Aligned {
    alignas(16) Tarn32s words[16];
};

TEST(FixedFftCore, TransformsToBitReversedOrder)
{
    std::mt19937 random(11);
    // 8 points have a factor of sqrt(1/2) as 11585 / 16384.
    const double factorError = std::numbers::sqrt2 / 2 - 11585.0 / 16384;
    for (int order = 0; order <= 3; ++order) {
        const int size = 1 << order;
        const Table base(tarns_createTabTwdBase_16s(order));
        const Table words(tarns_createTabTwd_R4_16s(order, base.get(), order));
        std::uniform_int_distribution<int> uniform(-(1 << 26), 1 << 26);
        for (int round = 0; round < 50; ++round)
            for (int direction : {1, -1}) {
                Aligned data;
                std::vector<model::Bin> x(static_cast<std::size_t>(size));
                double total = 0;
                for (std::size_t i = 0; i < x.size(); ++i) {
                    data.words[2 * i] = uniform(random);
                    data.words[2 * i + 1] = uniform(random);
                    x[i] = {static_cast<long double>(data.words[2 * i]),
                            static_cast<long double>(data.words[2 * i + 1])};
                    total += std::fabs(data.words[2 * i]) + std::fabs(data.words[2 * i + 1]);
                }
                tarns_jFft_Core_16s(reinterpret_cast<Tarn32sc*>(data.words), size, direction, words.get());
                const auto expected = model::transformByDefinition(x, -direction);
                const double tolerance = order < 3 ? 1e-6 : factorError * total + 4;
                for (int k = 0; k < size; ++k) {
                    const Tarn32s* element = data.words + 2 * reversed(k, size);
                    const model::Bin bin = expected[static_cast<std::size_t>(k)];
                    ASSERT_NEAR(static_cast<double>(bin.re), element[0], tolerance) << "order " << order << " k " << k;
                    ASSERT_NEAR(static_cast<double>(bin.im), element[1], tolerance) << "order " << order << " k " << k;
                }
            }
    }
}

// The products are exact and rounded once, a half up: the parts of an element turned by an eighth.
TEST(FixedFftCore, RotationsRoundOnce)
{
    const Table base(tarns_createTabTwdBase_16s(3));
    const Table words(tarns_createTabTwd_R4_16s(3, base.get(), 3));
    std::mt19937 random(5);
    for (int round = 0; round < 2000; ++round) {
        const auto re = static_cast<Tarn32s>(random()) >> 2;
        const auto im = static_cast<Tarn32s>(random()) >> 2;
        Aligned data{};
        data.words[2] = re;
        data.words[3] = im;
        tarns_jFft_Core_16s(reinterpret_cast<Tarn32sc*>(data.words), 8, 1, words.get());
        // X[1] is element 4.
        const auto rounded = [](long long sum) { return (sum + 8192) >> 14; };
        ASSERT_EQ(rounded(11585LL * re + 11585LL * im), data.words[8]) << re << " " << im;
        ASSERT_EQ(rounded(11585LL * im - 11585LL * re), data.words[9]) << re << " " << im;
    }
}

TEST(FixedFftCore, RecombinationIsUndoneUpToAFactorOfTwo)
{
    // For k = 1 of 8 samples: (1 - s, c, -c, 1 - s), which count half, then (-s, -c, c, -s).
    const Tarn16s table[] = {4799, 11585, -11585, 4799, -11585, -11585, 11585, -11585};
    std::mt19937 random(8);
    std::uniform_int_distribution<int> uniform(-(1 << 26), 1 << 26);
    for (int M : {1, 2, 4})
        for (int round = 0; round < 100; ++round) {
            Aligned before{};
            for (int i = 0; i < 2 * M; ++i)
                before.words[i] = uniform(random);
            Aligned data = before;
            tarns_jRealRecombine_16s(data.words, M, 1, table);
            tarns_jCcsRecombine_16s(data.words, M, -1, table);
            EXPECT_EQ(before.words[0], data.words[0]) << "slot 0 is the caller's";
            EXPECT_EQ(before.words[1], data.words[1]);
            // Off by the factors' error, 1.5e-5 each of up to 2^28, twice.
            for (int i = 2; i < 2 * M; ++i)
                ASSERT_NEAR(2.0 * before.words[i], data.words[i], M == 4 ? 16000 : 0) << "M " << M << " word " << i;
        }
}

} // namespace
} // namespace tarn::test
