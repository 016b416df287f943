// A walk over two destinations writes either as a walk of its own would, also where they are the sources.
#include "frame/two_arrays.h"

#include "support/sweep.h"

namespace tarn::test {
namespace {

struct SumAndDifference {
    template <typename X>
    auto operator()(X a, X b) const
    {
        return Both{add(a, b), sub(a, b)};
    }
};

template <typename T>
T sumOf(T a, T b)
{
    return add(a, b);
}
template <typename T>
T differenceOf(T a, T b)
{
    return sub(a, b);
}

template <typename T>
void sweepEither()
{
    std::vector<T> other(100000);
    sweepElementwise<T, T, T>(
        [&](const T* a, const T* b, T* dst, int len) {
            walk(twoArrays(dst, other.data()), len, SumAndDifference{}, a, b);
            return tarnStsNoErr;
        },
        sumOf<T>);
    sweepElementwise<T, T, T>(
        [&](const T* a, const T* b, T* dst, int len) {
            walk(twoArrays(other.data() + 1, dst), len, SumAndDifference{}, a, b);
            return tarnStsNoErr;
        },
        differenceOf<T>);
}

TEST(TwoArrays, EitherAtEveryAddress)
{
    sweepEither<Tarn8u>();
    sweepEither<Tarn32u>();
    sweepEither<Tarn64f>();
}

// Both destinations are sources, in order or exchanged.
TEST(TwoArrays, InPlace)
{
    for (std::size_t len = 1; len <= 300; ++len) {
        for (const unsigned offset : {0U, 2U, 5U, 16U}) {
            std::vector<Tarn16u> x(len), y(len);
            for (std::size_t i = 0; i < len; ++i) {
                x[i] = static_cast<Tarn16u>(i * 577);
                y[i] = static_cast<Tarn16u>(i * i + 3);
            }
            std::vector<Tarn16u> sums(len), differences(len);
            for (std::size_t i = 0; i < len; ++i) {
                sums[i] = static_cast<Tarn16u>(x[i] + y[i]);
                differences[i] = static_cast<Tarn16u>(x[i] - y[i]);
            }
            for (const bool exchanged : {false, true}) {
                GuardedArray<Tarn16u> a(x, Placement::offset(offset));
                GuardedArray<Tarn16u> b(y, Placement::offset(3 * offset));
                auto& first = exchanged ? b : a;
                auto& second = exchanged ? a : b;
                walk(twoArrays(first.data(), second.data()), static_cast<Index>(len), SumAndDifference{},
                     static_cast<const Tarn16u*>(a.data()), static_cast<const Tarn16u*>(b.data()));
                EXPECT_EQ(sums, first.copy()) << "len " << len << ", offset " << offset << ", " << exchanged;
                EXPECT_EQ(differences, second.copy()) << "len " << len << ", offset " << offset << ", " << exchanged;
            }
        }
    }
}

struct WidenedAndSame {
    auto operator()(auto x) const { return Both{widen(x), x}; }
};

TEST(TwoArrays, OfDifferentWidths)
{
    std::vector<Tarn16s> narrow(100000);
    sweepElementwise<Tarn32s, Tarn16s>(
        [&](const Tarn16s* src, Tarn32s* dst, int len) {
            walk(twoArrays(dst, narrow.data()), len, WidenedAndSame{}, src);
            return std::equal(src, src + len, narrow.data()) ? tarnStsNoErr : tarnStsErr;
        },
        [](Tarn16s x) { return Tarn32s{x}; });
    std::vector<Tarn32s> wide(100000);
    sweepElementwise<Tarn16s, Tarn16s>(
        [&](const Tarn16s* src, Tarn16s* dst, int len) {
            walk(twoArrays(wide.data(), dst), len, WidenedAndSame{}, src);
            return tarnStsNoErr;
        },
        [](Tarn16s x) { return x; });
}

// Long enough to be written past the caches, with both destinations on a boundary and with one of them beside it.
TEST(TwoArrays, LongArrays)
{
    constexpr int len = static_cast<int>(streamBytes / sizeof(Tarn64f)) + 5;
    std::vector<Tarn64f> source(len), sums(len + 2), differences(len + 2);
    for (int i = 0; i < len; ++i)
        source[static_cast<std::size_t>(i)] = i;
    const Tarn64f* src = source.data();
    for (const int offset : {0, 1}) {
        std::fill(sums.begin(), sums.end(), -1);
        std::fill(differences.begin(), differences.end(), -1);
        walk(twoArrays(sums.data(), differences.data() + offset), len, SumAndDifference{}, src, Everywhere<Tarn64f>{9});
        int wrong = 0;
        for (std::size_t i = 0; i < len; ++i)
            wrong += sums[i] != source[i] + 9 || differences[i + static_cast<std::size_t>(offset)] != source[i] - 9;
        EXPECT_EQ(0, wrong) << offset;
        EXPECT_EQ(-1, sums[len]) << offset;
        EXPECT_EQ(-1, differences[static_cast<std::size_t>(len + offset)]) << offset;
    }
}

} // namespace
} // namespace tarn::test
