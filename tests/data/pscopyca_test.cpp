// Data movement against plain loops, at every length and address.
#include "tarns.h"

#include "support/checks.h"
#include "support/sweep.h"

#include <algorithm>
#include <cstring>

namespace tarn::test {
namespace {

// Patterns that arithmetic would disturb: every movement is of bits.
constexpr Match sameBits{.nan = NanRule::sameBits};

template <class T>
void sweepCopies(TarnStatus (*copy)(const T*, T*, int), TarnStatus (*move)(const T*, T*, int),
                 TarnStatus (*zero)(T*, int))
{
    sweepElementwise<T, T>(copy, [](T x) { return x; }, {.match = sameBits});
    sweepElementwise<T, T>(move, [](T x) { return x; }, {.match = sameBits});
    sweepElementwise<T>(zero, [] { return T{}; }, {.match = sameBits});
    expectChecks(copy);
    expectChecks(move);
    expectChecks(zero);
}

TEST(Movement, CopiesAndZeros)
{
    sweepCopies<Tarn8u>(tarnsCopy_8u, tarnsMove_8u, tarnsZero_8u);
    sweepCopies<Tarn16s>(tarnsCopy_16s, tarnsMove_16s, tarnsZero_16s);
    sweepCopies<Tarn16sc>(tarnsCopy_16sc, tarnsMove_16sc, tarnsZero_16sc);
    sweepCopies<Tarn32f>(tarnsCopy_32f, tarnsMove_32f, tarnsZero_32f);
    sweepCopies<Tarn32fc>(tarnsCopy_32fc, tarnsMove_32fc, tarnsZero_32fc);
    sweepCopies<Tarn64f>(tarnsCopy_64f, tarnsMove_64f, tarnsZero_64f);
    sweepCopies<Tarn64fc>(tarnsCopy_64fc, tarnsMove_64fc, tarnsZero_64fc);
}

// Bytes of many shapes, the length counted in bytes: every tail of the byte kernels at every address.
TEST(Movement, CopiesOfEveryByteCount)
{
    sweepElementwise<Tarn8u, Tarn8u>(tarnsCopy_8u, [](Tarn8u x) { return x; },
                                     {.thresholds = {128, 256, 1024, 4096, 65536}});
}

TEST(Movement, OverlappingMovesInBothDirections)
{
    for (const int len : lengths()) {
        for (const int distance : {-33, -16, -15, -1, 0, 1, 2, 7, 16, 17, 40}) {
            std::vector<Tarn8u> bytes(static_cast<std::size_t>(len) + 200);
            for (std::size_t i = 0; i < bytes.size(); ++i)
                bytes[i] = static_cast<Tarn8u>(i * 37 + 11);
            std::vector<Tarn8u> expected = bytes;
            for (int i = 0; i < len; ++i)
                expected[static_cast<std::size_t>(100 + distance + i)] = bytes[static_cast<std::size_t>(100 + i)];
            EXPECT_EQ(tarnStsNoErr, tarnsMove_8u(bytes.data() + 100, bytes.data() + 100 + distance, len));
            ASSERT_EQ(expected, bytes) << "len " << len << " distance " << distance;
        }
    }
}

TEST(Movement, AMoveOneByteUpShiftsTheArray)
{
    Tarn8u bytes[] = {1, 2, 3, 4, 5};
    EXPECT_EQ(tarnStsNoErr, tarnsMove_8u(bytes, bytes + 1, 4));
    EXPECT_EQ((std::vector<Tarn8u>{1, 1, 2, 3, 4}), std::vector<Tarn8u>(bytes, bytes + 5));
}

template <class T>
void sweepSet(TarnStatus (*set)(T, T*, int))
{
    for (const T& value : hardValues<T>())
        sweepElementwise<T>([&](T* dst, int len) { return set(value, dst, len); }, [&] { return value; },
                            {.depth = Depth::quick, .match = sameBits});
    const T value = hardValues<T>().back();
    sweepElementwise<T>([&](T* dst, int len) { return set(value, dst, len); }, [&] { return value; },
                        {.match = sameBits});
    expectChecks(set, {}, value, array, length);
}

TEST(Movement, SetsEveryElement)
{
    sweepSet<Tarn8u>(tarnsSet_8u);
    sweepSet<Tarn16s>(tarnsSet_16s);
    sweepSet<Tarn16sc>(tarnsSet_16sc);
    sweepSet<Tarn32s>(tarnsSet_32s);
    sweepSet<Tarn32sc>(tarnsSet_32sc);
    sweepSet<Tarn32f>(tarnsSet_32f);
    sweepSet<Tarn32fc>(tarnsSet_32fc);
    sweepSet<Tarn64s>(tarnsSet_64s);
    sweepSet<Tarn64sc>(tarnsSet_64sc);
    sweepSet<Tarn64f>(tarnsSet_64f);
    sweepSet<Tarn64fc>(tarnsSet_64fc);
}

template <class T>
void sweepFlips(TarnStatus (*flip)(const T*, T*, int), TarnStatus (*inPlace)(T*, int))
{
    const auto model = [](std::span<const T> src) { return std::vector<T>(src.rbegin(), src.rend()); };
    sweepElementwise<T, T>(flip, model, {.match = sameBits});
    sweepAliased<T>(flip, model, {.match = sameBits});
    sweepInPlace<T>(inPlace, model, {.match = sameBits});
    expectChecks(flip);
    expectChecks(inPlace);
}

TEST(Movement, Flips)
{
    sweepFlips<Tarn8u>(tarnsFlip_8u, tarnsFlip_8u_I);
    sweepFlips<Tarn16u>(tarnsFlip_16u, tarnsFlip_16u_I);
    sweepFlips<Tarn32f>(tarnsFlip_32f, tarnsFlip_32f_I);
    sweepFlips<Tarn64f>(tarnsFlip_64f, tarnsFlip_64f_I);
}

TEST(Movement, FlipsOfOneElementAndOfAnOddNumber)
{
    Tarn8u one = 42;
    EXPECT_EQ(tarnStsNoErr, tarnsFlip_8u_I(&one, 1));
    EXPECT_EQ(42, one);
    for (const int len : {3, 17, 33}) {
        std::vector<Tarn32f> values(static_cast<std::size_t>(len));
        for (int i = 0; i < len; ++i)
            values[static_cast<std::size_t>(i)] = static_cast<Tarn32f>(i);
        EXPECT_EQ(tarnStsNoErr, tarnsFlip_32f_I(values.data(), len));
        EXPECT_EQ(static_cast<Tarn32f>(len / 2), values[static_cast<std::size_t>(len / 2)]);
    }
}

// Signalling NaNs move like any other bits.
TEST(Movement, PayloadsSurvive)
{
    std::vector<Tarn32u> bits(37, 0x7F812345);
    bits[0] = 0xFF800001;
    std::vector<Tarn32u> moved(37);
    const auto asFloats = [](std::vector<Tarn32u>& words) { return reinterpret_cast<Tarn32f*>(words.data()); };
    EXPECT_EQ(tarnStsNoErr, tarnsFlip_32f(asFloats(bits), asFloats(moved), 37));
    EXPECT_EQ(0xFF800001, moved[36]);
    EXPECT_EQ(0x7F812345U, moved[0]);
    EXPECT_EQ(tarnStsNoErr, tarnsFlip_32f_I(asFloats(moved), 37));
    EXPECT_EQ(bits, moved);
    EXPECT_EQ(tarnStsNoErr, tarnsCopy_32f(asFloats(bits), asFloats(moved), 37));
    EXPECT_EQ(bits, moved);
}

template <class T>
T bytesSwapped(T x)
{
    T result = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i, x = static_cast<T>(x >> 8))
        result = static_cast<T>(result << 8 | (x & 0xFF));
    return result;
}

// Three bytes of the array are one element: the shape that the sweep needs to count in elements.
struct ThreeBytes {
    Tarn8u byte[3];
    bool operator==(const ThreeBytes&) const = default;
};

TEST(Movement, SwapsTheBytesOfElements)
{
    sweepElementwise<Tarn16u, Tarn16u>(tarnsSwapBytes_16u, bytesSwapped<Tarn16u>);
    sweepInPlace<Tarn16u>(tarnsSwapBytes_16u_I, bytesSwapped<Tarn16u>);
    sweepElementwise<Tarn32u, Tarn32u>(tarnsSwapBytes_32u, bytesSwapped<Tarn32u>);
    sweepInPlace<Tarn32u>(tarnsSwapBytes_32u_I, bytesSwapped<Tarn32u>);
    expectChecks(tarnsSwapBytes_16u);
    expectChecks(tarnsSwapBytes_16u_I);
    expectChecks(tarnsSwapBytes_24u);
    expectChecks(tarnsSwapBytes_24u_I);
    expectChecks(tarnsSwapBytes_32u);
    expectChecks(tarnsSwapBytes_32u_I);
}

TEST(Movement, SwapsTheBytesOfThreeByteElements)
{
    const Tarn8u source[] = {1, 2, 3};
    Tarn8u swapped[3];
    EXPECT_EQ(tarnStsNoErr, tarnsSwapBytes_24u(source, swapped, 1));
    EXPECT_EQ((std::vector<Tarn8u>{3, 2, 1}), std::vector<Tarn8u>(swapped, swapped + 3));

    for (const int len : lengths()) {
        const auto bytes = static_cast<std::size_t>(3 * len);
        for (unsigned offset = 0; offset < 16; ++offset) {
            for (const bool atEnd : {false, true}) {
                const auto place = atEnd ? Placement::atEnd() : Placement::offset(offset);
                GuardedArray<Tarn8u> from(bytes, place);
                GuardedArray<Tarn8u> to(bytes, atEnd ? Placement::atStart() : Placement::offset(15 - offset));
                randomFill(from, static_cast<std::uint64_t>(len));
                std::vector<Tarn8u> expected(bytes);
                for (std::size_t i = 0; i < bytes; ++i)
                    expected[i] = from.get(i - i % 3 + 2 - i % 3);
                EXPECT_EQ(tarnStsNoErr, tarnsSwapBytes_24u(from.data(), to.data(), len));
                ASSERT_TRUE(arraysMatch<Tarn8u>(expected, to)) << "len " << len << " offset " << offset;
                EXPECT_EQ(tarnStsNoErr, tarnsSwapBytes_24u_I(from.data(), len));
                ASSERT_TRUE(arraysMatch<Tarn8u>(expected, from)) << "in place, len " << len << " offset " << offset;
            }
        }
    }
}

} // namespace
} // namespace tarn::test
