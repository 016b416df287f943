// The words that interleave, hold and search elements.

#include "frame/simd.h"
#include "frame/simd_transpose.h"
#include "support/compare.h"
#include "support/hard_values.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

namespace tarn::test {
namespace {

// Of one register in each row, two and four: those of the wider levels, too.
template <typename T, int N>
void testSquare()
{
    T values[N * N];
    std::iota(std::begin(values), std::end(values), T{1});
    std::array<Pack<T, N>, N> rows;
    for (std::size_t i = 0; i < N; ++i)
        rows[i] = loadPack<N>(values + N * i);
    const auto columns = transposeSquare<T, N>(rows);
    for (std::size_t i = 0; i < N; ++i) {
        T column[N];
        store(static_cast<T*>(column), columns[i]);
        for (std::size_t j = 0; j < N; ++j)
            EXPECT_EQ(values[N * j + i], column[j]) << "column " << i << " row " << j << " of " << N;
    }
}

TEST(SimdInterleave, RowsBecomeColumns)
{
    testSquare<Tarn32f, 4>();
    testSquare<Tarn32f, 8>();
    testSquare<Tarn32f, 16>();
    testSquare<Tarn64f, 2>();
    testSquare<Tarn64f, 4>();
    testSquare<Tarn64f, 8>();
}

template <std::size_t Channels>
void testWeave()
{
    constexpr std::size_t step = registerLanes<Tarn16s>;
    std::array<Register<Tarn16s>, Channels> channels;
    std::vector<Tarn16s> expected(Channels * step);
    for (std::size_t c = 0; c < Channels; ++c) {
        Tarn16s samples[step];
        for (std::size_t i = 0; i < step; ++i)
            expected[i * Channels + c] = samples[i] = static_cast<Tarn16s>(1000 * c + i);
        channels[c] = loadPack<static_cast<int>(step)>(samples);
    }
    std::vector<Tarn16s> woven(Channels * step);
    const auto vectors = weave(channels);
    for (std::size_t k = 0; k < Channels; ++k)
        store(woven.data() + k * step, vectors[k]);
    EXPECT_EQ(expected, woven);
}

TEST(SimdInterleave, WeavesChannels)
{
    testWeave<1>();
    testWeave<2>();
    testWeave<4>();
    testWeave<8>();
}

template <class T>
void testEvenAndSpread()
{
    constexpr int step = registerLanes<T>;
    const std::vector<T> values = randomValues<T>(2 * step, 3);
    T even[step];
    store(even, evenElements(loadPack<2 * step>(values.data())));
    T odd[step];
    if constexpr (sizeof(T) > 2)
        store(odd, oddElements(loadPack<2 * step>(values.data())));
    T spreadFirst[2 * step];
    T spreadSecond[2 * step];
    store(spreadFirst, spreadEven(loadPack<step>(values.data())));
    store(spreadSecond, spreadOdd(loadPack<step>(values.data())));
    for (std::size_t i = 0; i < step; ++i) {
        EXPECT_TRUE(valuesMatch<T>(values[2 * i], even[i], {.nan = NanRule::sameBits}));
        if constexpr (sizeof(T) > 2) {
            EXPECT_TRUE(valuesMatch<T>(values[2 * i + 1], odd[i], {.nan = NanRule::sameBits}));
        }
        EXPECT_TRUE(valuesMatch<T>(values[i], spreadFirst[2 * i], {.nan = NanRule::sameBits}));
        EXPECT_TRUE(valuesMatch<T>(T{0}, spreadFirst[2 * i + 1]));
        EXPECT_TRUE(valuesMatch<T>(T{0}, spreadSecond[2 * i]));
        EXPECT_TRUE(valuesMatch<T>(values[i], spreadSecond[2 * i + 1], {.nan = NanRule::sameBits}));
    }
}

TEST(SimdInterleave, TakesEvenElementsAndSpreadsThem)
{
    testEvenAndSpread<Tarn16s>();
    testEvenAndSpread<Tarn32s>();
    testEvenAndSpread<Tarn64s>();
    testEvenAndSpread<Tarn32f>();
    testEvenAndSpread<Tarn64f>();
}

TEST(SimdInterleave, ZipsBytes)
{
    Tarn8s elements[32];
    std::iota(elements, elements + 32, Tarn8s{0});
    Tarn8s zipped[32];
    store(zipped, zip(loadPack<16>(elements), loadPack<16>(elements + 16)));
    for (std::size_t i = 0; i < 32; ++i)
        EXPECT_EQ(elements[i / 2 + 16 * (i % 2)], zipped[i]);
}

TEST(SimdInterleave, StoresHalvesAnywhere)
{
    const Tarn16s words[] = {1, 2, 3, 4, 5, 6, 7, 8};
    for (std::size_t offset = 0; offset < 8; ++offset) {
        unsigned char bytes[32] = {};
        storeHalves(reinterpret_cast<Tarn16s*>(bytes + offset), reinterpret_cast<Tarn16s*>(bytes + offset + 11),
                    loadPack<8>(words));
        EXPECT_EQ(0, std::memcmp(bytes + offset, words, 8));
        EXPECT_EQ(0, std::memcmp(bytes + offset + 11, words + 4, 8));
    }
}

template <class T>
void testHeld()
{
    for (const T x : hardValues<T>()) {
        unsigned char bytes[3 * sizeof(T)] = {};
        T* const a = reinterpret_cast<T*>(bytes + 1);
        T* const b = reinterpret_cast<T*>(bytes + 1 + sizeof(T));
        store(a, x);
        store(b, T{1});
        EXPECT_TRUE(valuesMatch<T>(x, valueOf<T>(hold(a))));
        swapElements(a, b);
        EXPECT_TRUE(valuesMatch<T>(T{1}, loadElement(a)));
        EXPECT_EQ(0, std::memcmp(b, &x, sizeof x));
        moveElement(a, b);
        EXPECT_EQ(0, std::memcmp(a, &x, sizeof x));
    }
}

TEST(SimdHeld, MovesEveryBit)
{
    testHeld<Tarn8u>();
    testHeld<Tarn16s>();
    testHeld<Tarn32s>();
    testHeld<Tarn32f>();
    testHeld<Tarn64f>();
}

TEST(SimdSearch, CountsWordsNotAbove)
{
    for (const unsigned first : {0U, 100U, 32760U, 65535U - 3 * wordsSearched}) {
        Tarn16u sorted[wordsSearched];
        for (unsigned i = 0; i < wordsSearched; ++i)
            sorted[i] = static_cast<Tarn16u>(first + 3 * (i / 2));
        for (unsigned value = 0; value < 65536; ++value) {
            int expected = 0;
            for (const Tarn16u x : sorted)
                expected += x <= value;
            ASSERT_EQ(expected, wordsNotAbove(sorted, static_cast<Tarn16u>(value)));
        }
    }
}

} // namespace
} // namespace tarn::test
