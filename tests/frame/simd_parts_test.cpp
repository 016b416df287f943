// Complex elements as pairs of doubles: an element and a pack give the same.
#include "frame/simd_parts.h"

#include "support/compare.h"
#include "support/hard_values.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

template <class T>
void testParts()
{
    constexpr int step = registerLanes<T>;
    const std::vector<T> values = randomValues<T>(400, 7);
    for (std::size_t first = 0; first + step <= values.size(); first += step) {
        const auto pack = loadPack<step>(values.data() + first);
        const auto parts = asDoubles(pack);
        Tarn64f doubles[2 * step];
        store(doubles, parts);
        T back[step];
        store(back, fromDoubles<std::remove_const_t<decltype(pack)>>(parts));
        const auto squares = squaredMagnitudes(parts);
        const auto spread = inBothParts<std::remove_const_t<decltype(parts)>>(squares);
        Tarn64f sums[2 * step];
        store(sums, spread);
        using P = std::remove_const_t<decltype(pack)>;
        T chosen[step];
        // The masks of integers are of integers.
        if constexpr (std::is_same_v<T, Tarn16sc>) {
            const auto large = greater(mulAddPairs(pack, pack), splat<Register<Tarn32s>>(100));
            store(chosen, tarn::select(large, pack, splat<P>(T{1, 2})));
        } else {
            const auto large = greater(squares, splat<std::remove_const_t<decltype(squares)>>(100.0));
            store(chosen, tarn::select(elementMask<P>(large), pack, splat<P>(T{1, 2})));
        }
        for (std::size_t k = 0; k < step; ++k) {
            const T z = values[first + k];
            const Tarn64f re = z.re;
            const Tarn64f im = z.im;
            EXPECT_TRUE(valuesMatch<Tarn64f>(re, doubles[2 * k]));
            EXPECT_TRUE(valuesMatch<Tarn64f>(im, doubles[2 * k + 1]));
            EXPECT_TRUE(valuesMatch<T>(z, back[k]));
            const Tarn64f square = re * re + im * im;
            EXPECT_TRUE(valuesMatch<Tarn64f>(square, sums[2 * k]));
            EXPECT_TRUE(valuesMatch<Tarn64f>(square, sums[2 * k + 1]));
            const bool wraps = square == 0x1p31; // of the lowest word twice, which mulAddPairs holds modulo 2^32
            if (!std::is_same_v<T, Tarn16sc> || !wraps) {
                EXPECT_TRUE(valuesMatch<T>(square > 100.0 ? z : T{1, 2}, chosen[k]));
            }

            const auto ofOne = asDoubles(z);
            Tarn64f both[2];
            store(both, ofOne);
            EXPECT_TRUE(valuesMatch<Tarn64f>(re, both[0]));
            EXPECT_TRUE(valuesMatch<Tarn64f>(im, both[1]));
            EXPECT_TRUE(valuesMatch<T>(z, fromDoubles<T>(ofOne)));
            store(both, squaredMagnitudes(ofOne));
            EXPECT_TRUE(valuesMatch<Tarn64f>(square, both[0]));
        }
    }
}

TEST(SimdParts, ElementsAgreeWithVectors)
{
    testParts<Tarn16sc>();
    testParts<Tarn32fc>();
    testParts<Tarn64fc>();
}

TEST(SimdParts, RoundsAndSaturatesWords)
{
    const Tarn64f parts[] = {0.5, 1.5, -2.5, 40000.0, -40000.0, 32767.4, 7.0, -0.5};
    using Words = Pack<Tarn16sc, registerLanes<Tarn16sc>>;
    Tarn16sc words[registerLanes<Tarn16sc>];
    store(words, fromDoubles<Words>(loadPack<2 * registerLanes<Tarn16sc>>(parts)));
    const Tarn16sc expected[] = {{0, 2}, {-2, 32767}, {-32768, 32767}, {7, 0}};
    EXPECT_TRUE(arraysMatch<Tarn16sc>(expected, words, registerLanes<Tarn16sc>));
    for (std::size_t k = 0; k < registerLanes<Tarn16sc>; ++k) {
        const auto pair = loadPack<registerLanes<Tarn64f>>(parts + 2 * k);
        EXPECT_TRUE(valuesMatch<Tarn16sc>(expected[k], fromDoubles<Tarn16sc>(pair)));
    }
}

} // namespace
} // namespace tarn::test
