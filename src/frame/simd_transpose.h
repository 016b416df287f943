// Words for packs of several groups of four lanes: four rows turned into columns within each group, groups exchanged
// between packs, and pairs taken apart in whatever order costs least.
#pragma once

#include "frame/simd_apart.h"
#include "frame/simd_memory.h"

namespace tarn {

inline constexpr int groupLanes = 4;

namespace native {

// Of units in groups of two, the first ones of both operands, and the second ones.
struct FirstOfTwo {
    static constexpr int at(int i, int n) { return i % 2 == 0 ? i : n + i - 1; }
};
struct SecondOfTwo {
    static constexpr int at(int i, int n) { return i % 2 == 0 ? i + 1 : n + i; }
};
// The elements at even places, and at odd ones, of each 16 bytes of one operand, then of those of the other.
template <int bytes, int odd>
struct ApartInLanes {
    static constexpr int at(int i, int n)
    {
        constexpr int all = 16 / bytes;
        const int from = i / all * all + 2 * (i % (all / 2)) + odd;
        return i % all < all / 2 ? from : n + from;
    }
};

// Pairs in opposite order, parted, from two operands that hold them: `odd` is 1 for the second parts; and parts from
// two operands as such pairs, those of the upper lanes first, or of the lower ones.
template <int odd>
struct ApartBackward {
    static constexpr int at(int i, int n) { return 2 * (n - 1 - i) + odd; }
};
template <int lower>
struct ZipBackward {
    static constexpr int at(int i, int n) { return (lower != 0 ? n / 2 : n) - 1 - i / 2 + i % 2 * n; }
};

} // namespace native

template <typename T, int N>
using FourRows = std::array<Pack<T, N>, groupLanes>;

// Lane k of group g of row m to lane m of group g of row k.
template <typename T, int N>
TARN_INLINE FourRows<T, N> transposeFours(const FourRows<T, N>& x)
{
    const auto rows = [&](auto take) __attribute__((always_inline))
    {
        return std::array{take(x[0]), take(x[1]), take(x[2]), take(x[3])};
    };
    const auto low = [](auto row) { return lowHalf(row); };
    const auto high = [](auto row) { return highHalf(row); };
    if constexpr (N == registerLanes<T>) {
        return transpose<T>(x);
    } else if constexpr (fillsWideRegister<T, N>) {
        constexpr int bytes = sizeof(T);
        using Order = native::FirstOfTwo;
        using Other = native::SecondOfTwo;
        if constexpr (bytes == 4) {
            const auto low01 = native::zipLowInLanes(x[0].v, x[1].v);
            const auto low23 = native::zipLowInLanes(x[2].v, x[3].v);
            const auto high01 = native::zipHighInLanes(x[0].v, x[1].v);
            const auto high23 = native::zipHighInLanes(x[2].v, x[3].v);
            return {Pack<T, N>{native::shuffle<8, Order>(low01, low23)},
                    {native::shuffle<8, Other>(low01, low23)},
                    {native::shuffle<8, Order>(high01, high23)},
                    {native::shuffle<8, Other>(high01, high23)}};
        } else {
            const auto even01 = native::zipLowInLanes(x[0].v, x[1].v);
            const auto even23 = native::zipLowInLanes(x[2].v, x[3].v);
            const auto odd01 = native::zipHighInLanes(x[0].v, x[1].v);
            const auto odd23 = native::zipHighInLanes(x[2].v, x[3].v);
            return {Pack<T, N>{native::shuffle<16, Order>(even01, even23)},
                    {native::shuffle<16, Order>(odd01, odd23)},
                    {native::shuffle<16, Other>(even01, even23)},
                    {native::shuffle<16, Other>(odd01, odd23)}};
        }
    } else if constexpr (N > groupLanes) {
        const FourRows<T, N / 2> lows = transposeFours<T, N / 2>(rows(low));
        const FourRows<T, N / 2> highs = transposeFours<T, N / 2>(rows(high));
        return {join(lows[0], highs[0]), join(lows[1], highs[1]), join(lows[2], highs[2]), join(lows[3], highs[3])};
    } else {
        const auto l = rows(low);
        const auto h = rows(high);
        return {join(zipLow(l[0], l[1]), zipLow(l[2], l[3])), join(zipHigh(l[0], l[1]), zipHigh(l[2], l[3])),
                join(zipLow(h[0], h[1]), zipLow(h[2], h[3])), join(zipHigh(h[0], h[1]), zipHigh(h[2], h[3]))};
    }
}

// Group g of row r to group r of row g, of as many rows as a pack has groups.
template <typename T, int N>
TARN_INLINE std::array<Pack<T, N>, N / groupLanes> transposeGroups(const std::array<Pack<T, N>, N / groupLanes>& x)
{
    if constexpr (N == groupLanes) {
        return x;
    } else if constexpr (N == 2 * groupLanes) {
        return {lowHalves(x[0], x[1]), highHalves(x[0], x[1])};
    } else {
        static_assert(N == 4 * groupLanes && sizeof(T) * groupLanes == registerBytes);
        const auto even = [](Pack<T, N> a, Pack<T, N> b) {
            if constexpr (fillsWideRegister<T, N>) {
                return Pack<T, N>{native::shuffle<registerBytes, native::Even>(a.v, b.v)};
            } else {
                return join(lowHalves(lowHalf(a), highHalf(a)), lowHalves(lowHalf(b), highHalf(b)));
            }
        };
        const auto odd = [](Pack<T, N> a, Pack<T, N> b) {
            if constexpr (fillsWideRegister<T, N>) {
                return Pack<T, N>{native::shuffle<registerBytes, native::Odd>(a.v, b.v)};
            } else {
                return join(highHalves(lowHalf(a), highHalf(a)), highHalves(lowHalf(b), highHalf(b)));
            }
        };
        const auto low01 = lowHalves(x[0], x[1]);
        const auto low23 = lowHalves(x[2], x[3]);
        const auto high01 = highHalves(x[0], x[1]);
        const auto high23 = highHalves(x[2], x[3]);
        return {even(low01, low23), odd(low01, low23), even(high01, high23), odd(high01, high23)};
    }
}

// Lane k of row m to lane m of row k, of as many rows as a pack has lanes.
template <typename T, int N>
TARN_INLINE std::array<Pack<T, N>, N> transposeSquare(const std::array<Pack<T, N>, N>& x)
{
    if constexpr (N == registerLanes<T>) {
        return transpose<T>(x);
    } else {
        constexpr int groups = N / groupLanes;
        FourRows<T, N> turned[groups];
        for (int b = 0; b < groups; ++b) {
            turned[b] = transposeFours<T, N>({x[4 * b], x[4 * b + 1], x[4 * b + 2], x[4 * b + 3]});
        }
        std::array<Pack<T, N>, N> result;
        for (int m = 0; m < groupLanes; ++m) {
            std::array<Pack<T, N>, groups> column;
            for (int b = 0; b < groups; ++b) {
                column[b] = turned[b][m];
            }
            column = transposeGroups<T, N>(column);
            for (int g = 0; g < groups; ++g) {
                result[4 * g + m] = column[g];
            }
        }
        return result;
    }
}

// Groups of so many elements that lie `distance` elements apart.
template <int N, int group, typename T>
TARN_INLINE Pack<T, N> loadGroups(const T* p, std::ptrdiff_t distance)
{
    if constexpr (N == group) {
        return loadPack<N>(p);
    } else {
        return join(loadGroups<N / 2, group>(p, distance),
                    loadGroups<N / 2, group>(p + N / 2 / group * distance, distance));
    }
}

// The same four elements in every group, from a boundary of the narrowest register.
template <int N, typename T>
TARN_INLINE Pack<T, N> repeatFour(const T* p)
{
    if constexpr (N == groupLanes) {
        return loadAligned<N>(p);
    } else if constexpr (sizeof(T) * groupLanes == registerBytes) {
        return loadRepeated<N>(p);
    } else {
        const auto half = repeatFour<N / 2>(p);
        return join(half, half);
    }
}

// Pairs taken apart without regard to their order: lane i has the pair elementInLane<T, N>(i).
template <typename T, int N>
TARN_INLINE Complex<Pack<T, N>> deinterleaveInLanes(Pack<T, N> lo, Pack<T, N> hi)
{
    if constexpr (fillsWideRegister<T, N>) {
        constexpr int bytes = sizeof(T);
        return {{native::shuffle<bytes, native::ApartInLanes<bytes, 0>>(lo.v, hi.v)},
                {native::shuffle<bytes, native::ApartInLanes<bytes, 1>>(lo.v, hi.v)}};
    } else {
        return deinterleave(lo, hi);
    }
}
template <typename T, int N>
constexpr int elementInLane(int lane)
{
    if constexpr (fillsWideRegister<T, N>) {
        return native::ApartInLanes<static_cast<int>(sizeof(T)), 0>::at(lane, N) / 2;
    } else {
        return lane;
    }
}

// Pairs in opposite order, in one register of each part: a shuffle does both.
template <int N, Float T>
    requires fillsWideRegister<T, N> TARN_INLINE Complex<Pack<T, N>> loadPairsReversed(const T* p)
    {
        const auto lo = loadPack<N>(p);
        const auto hi = loadPack<N>(p + N);
        return {{native::shuffle<sizeof(T), native::ApartBackward<0>>(lo.v, hi.v)},
                {native::shuffle<sizeof(T), native::ApartBackward<1>>(lo.v, hi.v)}};
    }
template <Float T, int N>
requires fillsWideRegister<T, N> TARN_INLINE void storePairsReversed(T* p, Complex<Pack<T, N>> x)
{
    store(p, Pack<T, N>{native::shuffle<sizeof(T), native::ZipBackward<0>>(x.re.v, x.im.v)});
    store(p + N, Pack<T, N>{native::shuffle<sizeof(T), native::ZipBackward<1>>(x.re.v, x.im.v)});
}

} // namespace tarn
