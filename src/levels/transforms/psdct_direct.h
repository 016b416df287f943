// Direct sums of cosine transforms, unscaled: sums and differences of opposite elements halve them.
#pragma once

#include "frame/simd.h"
#include "levels/transforms/psdct_points.h"
#include "levels/transforms/psdct_spec.h"
#include "levels/transforms/psdft_tables.h"

#include <algorithm>

namespace tarn::dct {

template <typename T>
inline constexpr int sumLanes = 16 / static_cast<int>(sizeof(T));

// Behind the period of 4 N cosines stand the factors of the sums, in a row for each n below N / 2: those of the
// coefficients with even index, then as many places for those with odd index, each filled up to whole registers.
constexpr int columns(int N)
{
    constexpr int whole = 4;
    return ((N + 1) / 2 + whole - 1) / whole * whole;
}
inline constexpr int mostColumns = columns(largestDirect);
template <typename T>
TARN_INLINE const T* rowOf(const T* table, int N, int n)
{
    return table + 4 * N + 2 * columns(N) * n;
}

template <typename T>
inline Owned<T[]> directTable(int N)
{
    const int period = 4 * N;
    const int half = N / 2;
    const int width = columns(N);
    Owned<T[]> table = allocate<T>(period + 2LL * half * width);
    if (!table) {
        return table;
    }
    for (int j = 0; j <= 2 * N; ++j) {
        table[j] = dft::root<T>(j, period).re;
        table[(period - j) % period] = table[j];
    }
    for (int n = 0; n < half; ++n) {
        T* const row = table.get() + period + 2 * width * n;
        for (int j = 0; j < width; ++j) {
            const auto factor = [&](int k) { return k < N ? table[(2 * n + 1) * k % period] : T{0}; };
            row[j] = factor(2 * j);
            row[width + j] = factor(2 * j + 1);
        }
    }
    return table;
}

// What the middle element of an odd number contributes to the coefficients with even index: itself and its negative in
// turn.
template <typename T>
TARN_INLINE auto alternating(T middle)
{
    using X = Pack<T, sumLanes<T>>;
    return zipLow(splat<X>(middle), splat<X>(-middle));
}

// `count` registers of coefficients with even index, and as many with odd index, each summed up in the order of the
// elements.
template <int count, typename T>
TARN_INLINE void forwardSums(const T* pairs, T* dst, int N, const T* table, int column, Pack<T, sumLanes<T>> start)
{
    using X = Pack<T, sumLanes<T>>;
    constexpr int lanes = X::size;
    std::array<X, count> even;
    std::array<X, count> odd;
    repeat<count>([&](auto i) {
        even[i] = start;
        odd[i] = splat<X>(0);
    });
    const T* row = rowOf(table, N, 0) + column;
    const int width = columns(N);
    for (int n = 0; n < N / 2; ++n, row += 2 * width) {
        const X s = splat<X>(pairs[2 * n]);
        const X d = splat<X>(pairs[2 * n + 1]);
        repeat<count>([&](auto i) {
            even[i] = add(even[i], mul(s, loadPack<lanes>(row + i * lanes)));
            odd[i] = add(odd[i], mul(d, loadPack<lanes>(row + width + i * lanes)));
        });
    }
    repeat<count>([&](auto i) {
        const int first = 2 * (column + i * lanes);
        const auto y = zip(even[i], odd[i]);
        if (first + 2 * lanes <= N) {
            store(dst + first, y);
        } else if (first < N) {
            T last[2 * lanes];
            store(static_cast<T*>(last), y);
            std::copy_n(static_cast<const T*>(last), N - first, dst + first);
        }
    });
}

template <typename T>
inline void forwardDirect(const T* src, T* dst, int N, const T* table, T* work)
{
    for (int n = 0; n < N / 2; ++n) {
        const T a = loadElement(src + n);
        const T b = loadElement(src + N - 1 - n);
        work[2 * n] = a + b;
        work[2 * n + 1] = a - b;
    }
    const auto start = alternating(N % 2 != 0 ? loadElement(src + N / 2) : T{0});
    constexpr int lanes = sumLanes<T>;
    int column = 0;
    for (; column + 2 * lanes <= columns(N); column += 2 * lanes) {
        forwardSums<2>(work, dst, N, table, column, start);
    }
    if (column < columns(N)) {
        forwardSums<1>(work, dst, N, table, column, start);
    }
}

// The sums of a row's factors and as many coefficients, for as many rows as a register has lanes.
template <typename T>
TARN_INLINE auto inverseSums(const T* y, const T* row, int rowStride, int width)
{
    using X = Pack<T, sumLanes<T>>;
    constexpr int lanes = X::size;
    std::array<X, lanes> sums;
    sums.fill(splat<X>(0));
    for (int j = 0; j < width; j += lanes) {
        const X coefficients = loadPack<lanes>(y + j);
        repeat<lanes>(
            [&](auto i) { sums[i] = add(sums[i], mul(coefficients, loadPack<lanes>(row + i * rowStride + j))); });
    }
    const auto parts = transpose<T>(sums);
    X sum = parts[0];
    repeat<lanes - 1>([&](auto i) { sum = add(sum, parts[i + 1]); });
    return sum;
}

template <typename T>
inline void inverseDirect(const T* src, T* dst, int N, const T* table)
{
    constexpr int lanes = sumLanes<T>;
    const int half = N / 2;
    const int width = columns(N);
    alignas(16) T even[mostColumns];
    alignas(16) T odd[mostColumns];
    for (int j = 0; j < width; ++j) {
        even[j] = 2 * j < N ? loadElement(src + 2 * j) : T{0};
        odd[j] = 2 * j + 1 < N ? loadElement(src + 2 * j + 1) : T{0};
    }
    if (N % 2 != 0) {
        T middle = 0;
        for (int j = 0; j <= half; j += 2) {
            middle = middle + (even[j] - even[j + 1]);
        }
        store(dst + half, middle);
    }
    const T* const rows = rowOf(table, N, 0);
    const int stride = 2 * width;
    if (half < lanes) {
        for (int n = 0; n < half; ++n) {
            const T* const row = rows + stride * n;
            const auto e = inverseSums(static_cast<const T*>(even), row, 0, width);
            const auto o = inverseSums(static_cast<const T*>(odd), row + width, 0, width);
            store(dst + n, firstLane(add(e, o)));
            store(dst + N - 1 - n, firstLane(sub(e, o)));
        }
        return;
    }
    // The last group goes back over rows that have been there.
    for (int done = 0; done < half; done += lanes) {
        const int n = std::min(done, half - lanes);
        const T* const row = rows + stride * n;
        const auto e = inverseSums(static_cast<const T*>(even), row, stride, width);
        const auto o = inverseSums(static_cast<const T*>(odd), row + width, stride, width);
        store(dst + n, add(e, o));
        store(dst + N - lanes - n, reverse(sub(e, o)));
    }
}

} // namespace tarn::dct
