// Tables of the power-of-two transforms, and bit reversal.
#include "frame/simd_pack.h"
#include "levels/fft/psfft.h"
#include "support/compare.h"
#include "support/guarded.h"
#include "tarns/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <numbers>

namespace tarn::test {
namespace {

struct FreeBlock {
    void operator()(void* block) const { tarnsFree(block); }
};
template <class T>
using Table = std::unique_ptr<T[], FreeBlock>;

std::uint32_t reversed(std::uint32_t i, int bits)
{
    std::uint32_t result = 0;
    for (int bit = 0; bit < bits; ++bit)
        result |= (i >> bit & 1) << (bits - 1 - bit);
    return result;
}

template <class T>
class FftTables : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(FftTables, Precisions);

Tarn32f* createBase(int order, Tarn32f) { return tarns_createTabTwdBase_32f(order); }
Tarn64f* createBase(int order, Tarn64f) { return tarns_createTabTwdBase_64f(order); }
Tarn32f* createStages(int order, const Tarn32f* base, int baseOrder)
{
    return tarns_createTabTwd_L1_32f(order, base, baseOrder);
}
Tarn64f* createStages(int order, const Tarn64f* base, int baseOrder)
{
    return tarns_createTabTwd_L1_64f(order, base, baseOrder);
}
Tarn32f* createRealRec(int order, const Tarn32f* base) { return tarns_createTabTwdRealRec_32f(order, base); }
Tarn64f* createRealRec(int order, const Tarn64f* base) { return tarns_createTabTwdRealRec_64f(order, base); }
Tarn32f* createCcsRec(int order, const Tarn32f* base) { return tarns_createTabTwdCcsRec_32f(order, base); }
Tarn64f* createCcsRec(int order, const Tarn64f* base) { return tarns_createTabTwdCcsRec_64f(order, base); }

TYPED_TEST(FftTables, BaseIsAQuarterOfASine)
{
    using T = TypeParam;
    for (int order = 0; order <= 14; ++order) {
        const Table<T> base(createBase(order, T{}));
        ASSERT_TRUE(base);
        const int quarter = (1 << order) / 4;
        EXPECT_TRUE(valuesMatch(T{0}, base[0]));
        if (quarter > 0) {
            EXPECT_TRUE(valuesMatch(T{1}, base[static_cast<std::size_t>(quarter)]));
        }
        for (int j = 0; j <= quarter; ++j) {
            const double step = 2 * std::numbers::pi / (1 << order);
            const bool bySine = j <= (1 << order) / 8;
            const long double angle = (bySine ? j : quarter - j) * step;
            const long double expected = bySine ? std::sin(angle) : std::cos(angle);
            const T entry = base[static_cast<std::size_t>(j)];
            const T ulp = std::fabs(std::nextafter(entry, T{0}) - entry);
            EXPECT_LE(std::fabs(entry - expected), 0.501L * ulp) << "order " << order << " entry " << j;
        }
    }
}

TYPED_TEST(FftTables, StagesHoldThreeFactorsInBlocks)
{
    using T = TypeParam;
    for (int order = 4; order <= 12; ++order)
        for (int baseOrder : {order, order + 1, order + 3}) {
            const Table<T> base(createBase(baseOrder, T{}));
            const Table<T> stages(createStages(order, base.get(), baseOrder));
            ASSERT_TRUE(stages);
            const T* entry = stages.get();
            for (int L = order % 2 == 0 ? 16 : 32; L <= 1 << order; L *= 4) {
                const int stride = (1 << baseOrder) / L;
                const int group = std::min(L / 4, lanes<T>);
                // Sine of m parts of the circle of L, out of the quarter that the base holds.
                const auto sine = [&](int m) {
                    m = (m % L + L) % L;
                    const T sign = m > L / 2 ? T{-1} : T{1};
                    const int half = m % (L / 2);
                    return sign * base[static_cast<std::size_t>((half > L / 4 ? L / 2 - half : half) * stride)];
                };
                for (int k = 0; k < L / 4; k += group)
                    for (int power = 1; power <= 3; ++power)
                        for (int part = 0; part < 2; ++part)
                            for (int lane = 0; lane < group; ++lane, ++entry) {
                                const int m = power * (k + lane);
                                const T expected = part == 0 ? sine(m + L / 4) : -sine(m);
                                ASSERT_EQ(expected, *entry) << "order " << order << " L " << L << " m " << m;
                            }
            }
        }
    const Table<T> base(createBase(3, T{}));
    for (int order = 0; order <= 3; ++order)
        EXPECT_TRUE(Table<T>(createStages(order, base.get(), 3)));
}

TYPED_TEST(FftTables, RecombinationFactorsStandInBlocks)
{
    using T = TypeParam;
    for (int order = 4; order <= 10; ++order) {
        const Table<T> base(createBase(order, T{}));
        const Table<T> real(createRealRec(order, base.get()));
        const Table<T> ccs(createCcsRec(order, base.get()));
        const std::size_t quarter = (std::size_t{1} << order) / 4;
        const std::size_t group = std::min(quarter, static_cast<std::size_t>(lanes<T>));
        for (std::size_t k = 1; k <= quarter; ++k) {
            const std::size_t at = (k - 1) / group * (2 * group) + (k - 1) % group;
            EXPECT_EQ(T(0.5) * base[quarter - k], real[at]) << "order " << order << " k " << k;
            EXPECT_EQ(T(-0.5) * base[k] + T(0.5), real[at + group]);
            EXPECT_EQ(base[quarter - k], ccs[at]);
            EXPECT_EQ(-base[k], ccs[at + group]);
        }
    }
    const Table<T> base(createBase(3, T{}));
    EXPECT_TRUE(Table<T>(createRealRec(3, base.get())));
    EXPECT_TRUE(Table<T>(createCcsRec(3, base.get())));
}

TEST(FftReversalTables, ReadingTableListsQuadruples)
{
    for (int order = 0; order <= 12; ++order) {
        const Table<Tarn32s> table(tarns_createTabBitRevNorm(order));
        ASSERT_TRUE(table);
        const std::uint32_t quarter = (1u << order) / 4;
        for (std::uint32_t i = 0; i < quarter; ++i)
            EXPECT_EQ(static_cast<Tarn32s>(2 * reversed(i, order - 2)), table[i]);
        EXPECT_EQ(0, table[quarter]);
    }
}

TEST(FftReversalTables, PairTableListsExchangesThenFixedPoints)
{
    const std::vector<Tarn32s> ofFour = {4, 8, 0, 12, 0};
    const std::vector<Tarn32s> ofFive = {4, 16, 12, 24, 0, 28, 20, 8, 0};
    EXPECT_EQ(0, std::memcmp(Table<Tarn32s>(tarns_createTabBitRev(4)).get(), ofFour.data(), 4 * ofFour.size()));
    EXPECT_EQ(0, std::memcmp(Table<Tarn32s>(tarns_createTabBitRev(5)).get(), ofFive.data(), 4 * ofFive.size()));
    for (int order = 2; order <= 13; ++order) {
        const Table<Tarn32s> table(tarns_createTabBitRev(order));
        const std::uint32_t quarter = (1u << order) / 4;
        std::vector<Tarn32s> expected;
        std::vector<Tarn32s> fixed;
        for (std::uint32_t i = 1; i < quarter; ++i) {
            const std::uint32_t j = reversed(i, order - 2);
            if (i < j) {
                expected.push_back(static_cast<Tarn32s>(4 * i));
                expected.push_back(static_cast<Tarn32s>(4 * j));
            } else if (i == j) {
                fixed.push_back(static_cast<Tarn32s>(4 * i));
            }
        }
        expected.push_back(0);
        expected.insert(expected.end(), fixed.rbegin(), fixed.rend());
        expected.push_back(0);
        ASSERT_EQ(quarter + 1, expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            ASSERT_EQ(expected[i], table[i]) << "order " << order << " word " << i;
    }
    for (int order : {0, 1})
        EXPECT_EQ(0, Table<Tarn32s>(tarns_createTabBitRev(order))[0]);
}

using Reversal = void (*)(const void* src, void* dst, int N, const Tarn32s* table);

template <auto function>
void inPlace(const void* src, void* dst, int N, const Tarn32s* table)
{
    EXPECT_EQ(src, dst);
    using First =
        decltype([]<class T>(void (*)(T*, int, const Tarn32s*)) { return static_cast<T*>(nullptr); }(function));
    function(static_cast<First>(dst), N, table);
}
template <auto function>
void outOfPlace(const void* src, void* dst, int N, const Tarn32s* table)
{
    using Second = decltype(
        []<class T>(void (*)(const T*, T*, int, const Tarn32s*)) { return static_cast<T*>(nullptr); }(function));
    function(static_cast<Second>(const_cast<void*>(src)), static_cast<Second>(dst), N, table);
}

struct ReversalCase {
    const char* name;
    std::size_t bytes;
    bool isInPlace;
    Reversal call;
};
const ReversalCase reversals[] = {
    {"BitRev1_C", 8, true, inPlace<tarns_BitRev1_C>},       {"BitRev1_Z", 16, true, inPlace<tarns_BitRev1_Z>},
    {"BitRev1_D", 8, true, inPlace<tarns_BitRev1_D>},       {"BitRev1_4", 4, true, inPlace<tarns_BitRev1_4>},
    {"BitRev1_8", 8, true, inPlace<tarns_BitRev1_8>},       {"BitRev1_16", 16, true, inPlace<tarns_BitRev1_16>},
    {"BitRev2_C", 8, false, outOfPlace<tarns_BitRev2_C>},   {"BitRev2_Z", 16, false, outOfPlace<tarns_BitRev2_Z>},
    {"BitRev2_S", 4, false, outOfPlace<tarns_BitRev2_S>},   {"BitRev2_D", 8, false, outOfPlace<tarns_BitRev2_D>},
    {"BitRev2_4", 4, false, outOfPlace<tarns_BitRev2_4>},   {"BitRev2_8", 8, false, outOfPlace<tarns_BitRev2_8>},
    {"BitRev2_16", 16, false, outOfPlace<tarns_BitRev2_16>}};

TEST(FftReversal, PutsEveryElementInItsPlace)
{
    for (const ReversalCase& reversal : reversals)
        for (int order = 2; order <= 18; ++order)
            for (unsigned offset : {0u, 8u, 4u, 3u}) {
                if (order > 14 && offset != 3)
                    continue;
                const std::size_t size = std::size_t{1} << order;
                const Table<Tarn32s> table(tarns_createTabBitRev(order));
                GuardedArray<Tarn8u> src(size * reversal.bytes, Placement::offset(offset));
                // Every four bytes tell the place, with the bits of a signalling NaN on top: nothing may quiet them.
                for (std::uint32_t word = 0; word < size * reversal.bytes / 4; ++word) {
                    const std::uint32_t value = 0x7F800000u | (word + 1);
                    std::memcpy(src.data() + 4 * word, &value, sizeof value);
                }
                const std::vector<Tarn8u> original = src.copy();
                std::vector<Tarn8u> expected(original.size());
                for (std::uint32_t i = 0; i < size; ++i)
                    std::memcpy(expected.data() + reversed(i, order) * reversal.bytes,
                                original.data() + i * reversal.bytes, reversal.bytes);
                GuardedArray<Tarn8u> other(original.size(), Placement::offset(64 - offset - 1));
                GuardedArray<Tarn8u>& dst = reversal.isInPlace ? src : other;
                reversal.call(src.data(), dst.data(), static_cast<int>(size), table.get());
                ASSERT_TRUE(expected == dst.copy()) << reversal.name << " order " << order << " offset " << offset;
                if (reversal.isInPlace) {
                    reversal.call(src.data(), dst.data(), static_cast<int>(size), table.get());
                    ASSERT_TRUE(original == src.copy()) << reversal.name << " twice";
                } else {
                    ASSERT_TRUE(original == src.copy()) << reversal.name << " changed its source";
                }
            }
}

TEST(FftReversal, LeavesFewerThanFourElementsAlone)
{
    const Tarn32s table[] = {0, 0};
    Tarn32fc data[] = {{1, 2}, {3, 4}, {5, 6}};
    for (int size : {0, 1, 2, 3})
        tarns_BitRev1_C(data, size, table);
    EXPECT_EQ(3, data[1].re);
    EXPECT_EQ(5, data[2].re);
}

} // namespace
} // namespace tarn::test
