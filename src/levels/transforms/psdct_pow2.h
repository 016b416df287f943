// Cosine transforms of powers of two, unscaled, by halves: sums s and differences d of what lies opposite, the latter
// times the table, are transformed in turn; the even coefficients are those of s, the odd ones neighbouring sums of
// those of d.
//
// After two such steps there are four transforms of a quarter of the length. They are computed in the four lanes of
// rows, row i having point i of each, so that nothing below is a shuffle; rows come and go in one pass at each end.
// In between a pass takes two steps at once, from one of two areas to the other.
#pragma once

#include "levels/transforms/psdct_points.h"

namespace tarn::dct {

inline constexpr int rowLanes = 4;
// What is computed at once: a row, or half of one.
template <typename T>
inline constexpr int laneGroup = 16 / static_cast<int>(sizeof(T));
template <typename T>
using RowGroup = Pack<T, laneGroup<T>>;

// The factors of transforms of M points, in the table of one of N.
template <typename T>
TARN_INLINE const T* levelOf(const T* table, int N, int M)
{
    return table + (N - M);
}

// 0.5 / cos(pi (2 i + 1) / 16), which no table holds.
template <typename T>
inline constexpr T eightLevel[] = {static_cast<T>(0.50979557910415916894), static_cast<T>(0.60134488693504528054),
                                   static_cast<T>(0.89997622313641570464), static_cast<T>(2.56291544774150617881)};

// -- Down ------------------------------------------------------------------------------------------------------------

// Two steps for four points that belong together: i, M / 2 - 1 - i, M / 2 + i, M - 1 - i.
template <typename X>
TARN_INLINE Points<X, 4> twoSteps(X x0, X x1, X x2, X x3, X outer, X outerOpposite, X inner)
{
    const X s = add(x0, x3);
    const X sOpposite = add(x1, x2);
    const X d = mul(sub(x0, x3), outer);
    const X dOpposite = mul(sub(x1, x2), outerOpposite);
    return {add(s, sOpposite), mul(sub(s, sOpposite), inner), add(d, dOpposite), mul(sub(d, dOpposite), inner)};
}

// Natural order to rows.
template <typename T>
TARN_INLINE void enterRows(const T* x, T* rows, int N, const T* outer, const T* inner)
{
    constexpr int count = rowLanes;
    for (int i = 0; i < N / 4; i += count) {
        const auto quarters = twoSteps(loadPack<count>(x + i), reverse(loadPack<count>(x + N / 2 - count - i)),
                                       loadPack<count>(x + N / 2 + i), reverse(loadPack<count>(x + N - count - i)),
                                       loadPack<count>(outer + i), reverse(loadPack<count>(outer + N / 2 - count - i)),
                                       loadPack<count>(inner + i));
        const auto woven = weave(quarters);
        for (int k = 0; k < count; ++k) {
            store(rows + rowLanes * (i + k), woven[static_cast<std::size_t>(k)]);
        }
    }
}

// Blocks of M rows to four times as many.
template <typename T>
TARN_INLINE void stepRowsDown(const T* from, T* to, int rows, int M, const T* outer, const T* inner)
{
    using X = RowGroup<T>;
    const Index quarter = Index{rowLanes} * M / 4;
    for (Index block = 0; block < Index{rowLanes} * rows; block += 4 * quarter) {
        for (int i = 0; i < M / 4; ++i) {
            const X a = splat<X>(outer[i]);
            const X b = splat<X>(outer[M / 2 - 1 - i]);
            const X c = splat<X>(inner[i]);
            for (int lane = 0; lane < rowLanes; lane += X::size) {
                const T* const rising = from + block + rowLanes * Index{i} + lane;
                const T* const falling = from + block + 2 * quarter - rowLanes * Index{i + 1} + lane;
                const auto y = twoSteps(loadPack<X::size>(rising), loadPack<X::size>(falling),
                                        loadPack<X::size>(rising + 2 * quarter),
                                        loadPack<X::size>(falling + 2 * quarter), a, b, c);
                T* const dst = to + block + rowLanes * Index{i} + lane;
                store(dst, y[0]);
                store(dst + quarter, y[1]);
                store(dst + 2 * quarter, y[2]);
                store(dst + 3 * quarter, y[3]);
            }
        }
    }
}

// -- The innermost transforms, in place -------------------------------------------------------------------------------

template <std::size_t count, typename T>
TARN_INLINE void transformRows(T* rows)
{
    using X = RowGroup<T>;
    Points<X, count> x;
    repeat<static_cast<int>(count)>([&](auto k) { x[k] = loadPack<X::size>(rows + rowLanes * k); });
    x = forwardPoints(x);
    repeat<static_cast<int>(count)>([&](auto k) { store(rows + rowLanes * k, x[k]); });
}

// 16 points, by one more step.
template <typename T>
TARN_INLINE void transformSixteenRows(T* rows, const T* level)
{
    using X = RowGroup<T>;
    const auto row = [rows](int i) { return loadPack<X::size>(rows + rowLanes * i); };
    Points<X, 8> s;
    alignas(16) T d[8 * X::size];
    repeat<8>([&](auto i) {
        const X a = row(i);
        const X b = row(15 - i);
        s[i] = add(a, b);
        storeAligned(d + X::size * i, mul(sub(a, b), splat<X>(level[i])));
    });
    s = forwardPoints(s);
    repeat<8>([&](auto i) { store(rows + rowLanes * 2 * i, s[i]); });
    repeat<8>([&](auto i) { s[i] = loadAligned<X::size>(d + X::size * i); });
    s = forwardPoints(s);
    repeat<7>([&](auto i) { store(rows + rowLanes * (2 * i + 1), add(s[i], s[i + 1])); });
    store(rows + rowLanes * 15, s[7]);
}

// -- Up --------------------------------------------------------------------------------------------------------------

// Blocks of four quarters to blocks of M rows. What lies behind the last coefficient adds nothing.
template <typename T>
TARN_INLINE void stepRowsUp(const T* from, T* to, int rows, int M)
{
    using X = RowGroup<T>;
    const Index quarter = Index{rowLanes} * M / 4;
    for (Index block = 0; block < Index{rowLanes} * rows; block += 4 * quarter) {
        for (int lane = 0; lane < rowLanes; lane += X::size) {
            const T* a = from + block + lane;
            T* dst = to + block + lane;
            X b = loadPack<X::size>(a + quarter);
            X c = loadPack<X::size>(a + 2 * quarter);
            X e = loadPack<X::size>(a + 3 * quarter);
            for (int k = 1; k < M / 4; ++k, a += rowLanes, dst += 4 * rowLanes) {
                const X bNext = loadPack<X::size>(a + quarter + rowLanes);
                const X cNext = loadPack<X::size>(a + 2 * quarter + rowLanes);
                const X eNext = loadPack<X::size>(a + 3 * quarter + rowLanes);
                const X odd = add(e, eNext);
                store(dst, loadPack<X::size>(a));
                store(dst + rowLanes, add(c, odd));
                store(dst + 2 * rowLanes, add(b, bNext));
                store(dst + 3 * rowLanes, add(odd, cNext));
                b = bNext;
                c = cNext;
                e = eNext;
            }
            store(dst, loadPack<X::size>(a));
            store(dst + rowLanes, add(c, e));
            store(dst + 2 * rowLanes, b);
            store(dst + 3 * rowLanes, e);
        }
    }
}

// Rows to natural order: of a row (a, b, c, e) and the next one a, c + (e + e'), b + b', (e + e') + c'.
template <typename T>
TARN_INLINE void leaveRows(const T* rows, T* dst, int N)
{
    using Row = Pack<T, rowLanes>;
    Row row = loadPack<rowLanes>(rows);
    const auto put = [](T * to, Row now, Row next) __attribute__((always_inline))
    {
        const Row sums = withFirstLane(add(now, next), firstLane(now));
        const Row upper = zipHigh(now, next); // c, c', e, e'
        const Row twofold = add(upper, swapParts(upper));
        store(to, zipLow(sums, add(upper, highHalves(twofold, twofold))));
    };
    for (int k = 0; k < N - rowLanes; k += rowLanes) {
        const Row next = loadPack<rowLanes>(rows + k + rowLanes);
        put(dst + k, row, next);
        row = next;
    }
    put(dst + N - rowLanes, row, splat<Row>(-T{0}));
}

// -- The whole --------------------------------------------------------------------------------------------------------

// 8 points, or 16 and more. What is in `dst` is of no use until the end; `work` holds N elements.
template <typename T>
inline void forwardPow2(const T* src, T* dst, int N, const T* table, T* work)
{
    if (N == 8) {
        Points<T, 8> x;
        repeat<8>([&](auto i) { x[i] = loadElement(src + i); });
        x = forwardPoints(x);
        repeat<8>([&](auto i) { store(dst + i, x[i]); });
        return;
    }
    enterRows(src, work, N, table, N == 16 ? static_cast<const T*>(eightLevel<T>) : levelOf(table, N, N / 2));
    const int rows = N / rowLanes;
    T* from = work;
    T* to = dst;
    int M = rows;
    for (; M > 16; M /= 4) {
        stepRowsDown(from, to, rows, M, levelOf(table, N, M), levelOf(table, N, M / 2));
        std::swap(from, to);
    }
    for (int k = 0; k < N; k += rowLanes * M) {
        for (int lane = 0; lane < rowLanes; lane += laneGroup<T>) {
            T* const block = from + k + lane;
            if (M == 16) {
                transformSixteenRows(block, levelOf(table, N, 16));
            } else if (M == 8) {
                transformRows<8>(block);
            } else {
                transformRows<4>(block);
            }
        }
    }
    while (M < rows) {
        M *= 4;
        stepRowsUp(from, to, rows, M);
        std::swap(from, to);
    }
    leaveRows(from, dst, N);
}

// The inverse has the coefficients with even index in an inverse transform of half the length. What the odd ones
// contribute is a transform that is its own transpose: the forward one of before, with the table in front and the
// neighbouring sums behind.
template <typename T>
inline void inversePow2(const T* src, T* dst, int N, const T* table, T* work)
{
    if (N == 8) {
        Points<T, 8> y;
        repeat<8>([&](auto i) { y[i] = loadElement(src + i); });
        y = inversePoints(y);
        repeat<8>([&](auto i) { store(dst + i, y[i]); });
        return;
    }
    using X = RowGroup<T>;
    constexpr int step = X::size;
    const int half = N / 2;
    T* const even = work;
    T* const odd = work + half;
    for (int i = 0; i < half; i += step) {
        const auto y = loadPack<2 * step>(src + 2 * i);
        store(even + i, evenElements(y));
        store(odd + i, mul(oddElements(y), loadPack<step>(table + i)));
    }
    inversePow2(static_cast<const T*>(even), even, half, table + half, dst);
    forwardPow2(static_cast<const T*>(odd), odd, half, table + half, dst);
    const auto put = [&](int i, X following) __attribute__((always_inline))
    {
        const X e = loadPack<step>(even + i);
        const X o = add(loadPack<step>(odd + i), following);
        store(dst + i, add(e, o));
        store(dst + N - step - i, reverse(sub(e, o)));
    };
    for (int i = 0; i < half - step; i += step) {
        put(i, loadPack<step>(odd + i + 1));
    }
    put(half - step, lanesDown<1>(loadPack<step>(odd + half - step)));
}

} // namespace tarn::dct
