// The fast road of mixed-radix transforms: N points as a grid of rows of C neighbours. Its columns are transformed in
// the lanes, then the rows of their results, which are in the lanes once they have been transposed.
//
//   X[k + R s] = sum over j of W_C^(j s) W_N^(j k) sum over i of W_R^(i k) x[j + C i]
//
// Vectors at the end of a row overlap those before them, so that no length leaves single columns over. No result
// depends on their width.
#pragma once

#include "frame/simd_transpose.h"
#include "levels/transforms/psdftfact_lanes.h"

namespace tarn::dft {

template <typename T>
struct Grid {
    int rows;
    int columns;
    int width;          // of the vectors, in elements
    LanePlan<T> down;   // of `rows` points
    LanePlan<T> across; // of `columns` points
    const T* factors;   // W_N^(j k) in the order in which columns are transposed
};

// Calls f(j) for vectors of `width` columns from j on; the last one ends with the last column.
template <typename F>
TARN_INLINE void forVectors(int width, int columns, F f)
{
    for (int j = 0; j < columns; j += width) {
        f(std::min(j, columns - width));
    }
}

// The elements from a place on, `stride` apart, each with its neighbours.
template <typename Array, int W>
struct ColumnsOf {
    Array array;
    std::ptrdiff_t stride;

    TARN_INLINE ColumnsOf from(int i, int step) const { return {array + i * stride, stride * step}; }
    TARN_INLINE auto get(int i) const { return array.template neighbours<W>(i * stride); }
    template <typename X>
    TARN_INLINE void put(int i, Complex<X> x) const
    {
        array.put(i * stride, x);
    }
};

// A square of points, lanes for points, times its factors, to as many rows.
template <int W, typename T, typename Get>
TARN_INLINE void transposeTo(PartArrays<T> rows, std::ptrdiff_t distance, const T* factors, Get get)
{
    std::array<Pack<T, W>, W> re;
    std::array<Pack<T, W>, W> im;
    repeat<W>([&](auto k) {
        const Complex<Pack<T, W>> x = get(k);
        re[k] = x.re;
        im[k] = x.im;
    });
    re = transposeSquare<T, W>(re);
    im = transposeSquare<T, W>(im);
    repeat<W>([&](auto j) {
        const T* const p = factors + 2 * W * j;
        const Complex<Pack<T, W>> factor = {loadAligned<W>(p), loadAligned<W>(p + W)};
        (rows + j * distance).put(0, times(Complex<Pack<T, W>>{re[j], im[j]}, factor));
    });
}

template <int W, typename T, typename In, typename Out>
inline void transformGridBy(const Grid<T>& grid, In src, Out dst, T* work)
{
    alignas(bytesOf<T, W>) T points[realsOfArea<T>];
    const LaneArea<T, W> area{points};
    const int rows = grid.rows;
    const int columns = grid.columns;
    const PartArrays<T> turned{work, work + std::ptrdiff_t{rows} * columns};
    const T* factors = grid.factors;
    forVectors(W, columns, [&](int j) {
        transformLanes(grid.down, ColumnsOf<In, W>{src + j, columns}, area, area);
        const PartArrays<T> to = turned + std::ptrdiff_t{j} * rows;
        forVectors(W, rows, [&](int k) {
            transposeTo<W>(to + k, rows, factors, [&](int i) { return area.get(k + i); });
            factors += W * 2 * W;
        });
    });
    forVectors(W, rows, [&](int k) {
        transformLanes(grid.across, ColumnsOf<PartArrays<T>, W>{turned + k, rows}, area,
                       ColumnsOf<Out, W>{dst + k, rows});
    });
}

// From arrays to arrays of complex elements; `work` holds N of them. In place or not.
template <typename T, int W = widestLanes<T>, typename In, typename Out>
inline void transformGrid(const Grid<T>& grid, In src, Out dst, T* work)
{
    if constexpr (W > blockLanes<T>) {
        if (grid.width < W) {
            transformGrid<T, W / 2>(grid, src, dst, work);
            return;
        }
    }
    transformGridBy<W>(grid, src, dst, work);
}

} // namespace tarn::dft
