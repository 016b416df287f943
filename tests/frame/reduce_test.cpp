// Words of the reductions and the reducer itself: elements and vectors agree, every element is taken once.
#include "frame/reduce.h"
#include "frame/simd_extended.h"
#include "support/sweep.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <numeric>

namespace tarn::test {
namespace {

template <class T>
std::vector<T> lanesOfVector(Register<T> x)
{
    std::vector<T> values(registerLanes<T>);
    store(values.data(), x);
    return values;
}

TEST(ReduceWords, AgreeForElementAndVector)
{
    expectAgreement<Tarn32f>(widen);
    expectAgreement<Tarn32fc>(bothRe);
    expectAgreement<Tarn64fc>(bothRe);
    expectAgreement<Tarn32fc>(bothIm);
    expectAgreement<Tarn64fc>(bothIm);
    expectAgreement<Tarn16s, Tarn16s>(distance);
    expectAgreement<Tarn8u>(moveOrder);
    expectAgreement<Tarn16u>(moveOrder);
    expectAgreement<Tarn16s>(moveOrder);
    expectAgreement<Tarn32u>(moveOrder);
    expectAgreement<Tarn32s>(moveOrder);
    expectAgreement<Tarn8u, Tarn8u>(matchesUnordered);
    expectAgreement<Tarn16s, Tarn16s>(matchesUnordered);
    expectAgreement<Tarn32s, Tarn32s>(matchesUnordered);
    expectAgreement<Tarn32f, Tarn32f>(matchesUnordered);
    expectAgreement<Tarn64f, Tarn64f>(matchesUnordered);
}

TEST(ReduceWords, MoveOrderKeepsTheOrder)
{
    const Tarn16u values[] = {0, 1, 32767, 32768, 65535};
    for (Tarn16u a : values)
        for (Tarn16u b : values)
            EXPECT_EQ(a < b, moveOrder(a) < moveOrder(b));
}

TEST(ReduceWords, PairsOf16Bits)
{
    const auto values = randomValues<Tarn16s>(4000, 3);
    const auto others = randomValues<Tarn16s>(4000, 4);
    for (std::size_t i = 0; i + 8 <= values.size(); i += 8) {
        const auto x = loadPack<8>(&values[i]);
        const auto y = loadPack<8>(&others[i]);
        const auto products = lanesOfVector(mulAddPairs(x, y));
        const auto sums = lanesOfVector(pairSums(x));
        const auto magnitudes = lanesOfVector(pairMagnitudes(x));
        const auto distances = lanesOfVector(pairMagnitudes(distance(x, y)));
        std::vector<Tarn32u> squared(8);
        store(squared.data(), squares(distance(x, y)));
        for (std::size_t k = 0; k < 4; ++k) {
            const std::int64_t a = values[i + 2 * k];
            const std::int64_t b = values[i + 2 * k + 1];
            const std::int64_t c = others[i + 2 * k];
            const std::int64_t d = others[i + 2 * k + 1];
            EXPECT_EQ(static_cast<Tarn32u>(a * c + b * d), static_cast<Tarn32u>(products[k]));
            EXPECT_EQ(a + b, sums[k]);
            EXPECT_EQ(std::abs(a) + std::abs(b), magnitudes[k]);
            EXPECT_EQ(std::abs(a - c) + std::abs(b - d), distances[k]);
            EXPECT_EQ((a - c) * (a - c), squared[2 * k]);
            EXPECT_EQ((b - d) * (b - d), squared[2 * k + 1]);
        }
    }
}

TEST(ReduceWords, LanesOf64Bits)
{
    const Tarn32u values[] = {0xFFFFFFFF, 1, 0x80000000, 0xFFFFFFFE};
    const auto x = loadPack<4>(values);
    EXPECT_EQ((std::vector<Tarn64s>{0xFFFFFFFF, 0x80000000}), lanesOfVector(widenEven(x)));
    EXPECT_EQ((std::vector<Tarn64s>{1, 0xFFFFFFFE}), lanesOfVector(widenOdd(x)));
    EXPECT_EQ((std::vector<Tarn64s>{0x100000000, 0x17FFFFFFE}), lanesOfVector(pairSums(x)));
}

TEST(ReduceWords, LanesFoldUpperOntoLower)
{
    const Tarn32f values[] = {1, 20, 300, 4000};
    const auto x = loadPack<4>(values);
    EXPECT_EQ(301.0F, firstLane(foldTo<2>(x, add)));
    EXPECT_EQ(4020.0F, firstLane(lanesDown<1>(foldTo<2>(x, add))));
    EXPECT_EQ(4321.0F, foldLanes(x, add));
    const Tarn8u bytes[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 250};
    EXPECT_EQ(250, foldLanes(loadPack<16>(bytes), max));
    EXPECT_EQ((std::vector<Tarn32f>{7, 0, 0, 0}), lanesOfVector(inFirstLane<Register<Tarn32f>>(7)));
    EXPECT_EQ((std::vector<Tarn64f>{7, 0}), lanesOfVector(inFirstLane<Register<Tarn64f>>(7)));
    EXPECT_EQ((std::vector<Tarn32f>{7, 20, 300, 4000}), lanesOfVector(withFirstLane(x, 7.0F)));
    EXPECT_EQ((std::vector<Tarn32f>{1, 20, 0, 0}), lanesOfVector(loadHalf<4>(values)));
}

template <class T, int n>
void expectFirstSet()
{
    for (int first = 0; first < n; ++first) {
        T values[n] = {};
        for (int k = first; k < n; k += 2)
            values[k] = -1;
        EXPECT_EQ(first, firstSet(loadPack<n>(values))) << n << " lanes";
    }
}

TEST(ReduceWords, FirstSetLane)
{
    expectFirstSet<Tarn16s, 8>();
    expectFirstSet<Tarn16s, 2 * lanes<Tarn16s>>();
    expectFirstSet<Tarn8s, lanes<Tarn8s>>();
    expectFirstSet<Tarn32s, 4 * lanes<Tarn32s>>();
}

TEST(ReduceWords, LogarithmOfTheProcessor)
{
    for (long double x : {1.0L, 2.0L, 1e-4000L, 1e4000L, 0.1L})
        EXPECT_NEAR(static_cast<double>(std::log(x)), static_cast<double>(naturalLog(x)), 1e-12);
    EXPECT_EQ(0.0L, naturalLog(1));
    EXPECT_TRUE(std::isinf(naturalLog(0)));
}

// Every length and address: powers of two make every element's share visible.
TEST(Reducer, TakesEveryElementOnce)
{
    for (int len = 1; len < 200; ++len)
        for (unsigned offset = 0; offset < 20; ++offset) {
            std::vector<Tarn32s> values(static_cast<std::size_t>(len));
            std::iota(values.begin(), values.end(), 1);
            const GuardedArray<Tarn32s> array(std::span<const Tarn32s>(values), Placement::offset(offset));
            const GuardedArray<Tarn32s> atEnd(std::span<const Tarn32s>(values), Placement::atEnd());
            const int expected = len * (len + 1) / 2;
            const auto product = [](auto sum, auto a, auto b) { return add(sum, sub(add(a, a), b)); };
            ASSERT_EQ(expected, (reduce<4>(Tarn32s{0}, len, add, add, static_cast<const Tarn32s*>(array.data()))));
            ASSERT_EQ(expected, (reduce<1>(Tarn32s{0}, len, add, add, static_cast<const Tarn32s*>(atEnd.data()))));
            ASSERT_EQ(expected, (reduce<2>(Tarn32s{0}, len, product, add, static_cast<const Tarn32s*>(array.data()),
                                           static_cast<const Tarn32s*>(atEnd.data()))));
            const auto wide = [](Vector<Tarn32s> x) { return pairSums(retype<Tarn32u>(x)); };
            const auto one = [](Tarn32s x) { return Tarn64s{x}; };
            ASSERT_EQ(expected, (sumExact<lanes<Tarn32s>>(len, wide, one, static_cast<const Tarn32s*>(atEnd.data()))));
            const DifferenceOf<Tarn32s> none{array.data(), atEnd.data()};
            ASSERT_EQ(0, (reduce<4>(Tarn32s{0}, len, add, add, none)));
        }
}

TEST(Reducer, FindsTheFirst)
{
    for (int len = 1; len < 70; ++len)
        for (int at = 0; at < len; ++at) {
            std::vector<Tarn16s> values(static_cast<std::size_t>(len), 5);
            values[static_cast<std::size_t>(at)] = 7;
            values.back() = 7;
            const GuardedArray<Tarn16s> array(std::span<const Tarn16s>(values), Placement::atEnd());
            const auto* p = static_cast<const Tarn16s*>(array.data());
            ASSERT_EQ(at, (indexOfFirst<lanes<Tarn16s>>(p, len, Tarn16s{7}, equal)));
            ASSERT_EQ(-1, (indexOfFirst<lanes<Tarn16s>>(p, len, Tarn16s{9}, equal)));
        }
}

} // namespace
} // namespace tarn::test
