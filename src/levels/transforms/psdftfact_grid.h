// The fast road of mixed-radix transforms: N points as a grid of rows of C neighbours. Its columns are transformed in
// the lanes, then the rows of their results, which are in the lanes once they have been transposed.
//
//   X[k + R s] = sum over j of W_C^(j s) W_N^(j k) sum over i of W_R^(i k) x[j + C i]
//
// Vectors at the end of a row overlap those before them, so that no length leaves single columns over.
#pragma once

#include "levels/transforms/psdftfact_lanes.h"

namespace tarn::dft {

template <typename T>
struct Grid {
    int rows;
    int columns;
    LanePlan<T> down;   // of `rows` points
    LanePlan<T> across; // of `columns` points
    const T* factors;   // W_N^(j k) in the order in which columns are transposed
};

// Calls f(j) for vectors of `width` columns from j on; the last one ends with the last column.
template <int width, typename F>
TARN_INLINE void forVectors(int columns, F f)
{
    for (int j = 0; j < columns; j += width) {
        f(std::min(j, columns - width));
    }
}

// The elements from a place on, `stride` apart, each with its neighbours.
template <typename Array>
struct ColumnsOf {
    Array array;
    std::ptrdiff_t stride;

    TARN_INLINE ColumnsOf from(int i, int step) const { return {array + i * stride, stride * step}; }
    TARN_INLINE auto get(int i) const { return array.neighbours(i * stride); }
    template <typename X>
    TARN_INLINE void put(int i, Complex<X> x) const
    {
        array.put(i * stride, x);
    }
};

// A square of points, lanes for points, times its factors, to as many rows.
template <typename T, typename Get>
TARN_INLINE void transposeTo(PartArrays<T> rows, std::ptrdiff_t distance, const T* factors, Get get)
{
    Square<T> re;
    Square<T> im;
    repeat<blockLanes<T>>([&](auto k) {
        const Lanes<T> x = get(k);
        re[k] = x.re;
        im[k] = x.im;
    });
    re = transpose<T>(re);
    im = transpose<T>(im);
    repeat<blockLanes<T>>([&](auto j) {
        (rows + j * distance).put(0, times(Lanes<T>{re[j], im[j]}, fft::loadBlock(factors + j * realsOfLanes<T>)));
    });
}

// From arrays to arrays of complex elements; `work` holds N of them. In place or not.
template <typename T, typename In, typename Out>
inline void transformGrid(const Grid<T>& grid, In src, Out dst, T* work)
{
    constexpr int width = blockLanes<T>;
    alignas(fft::blockBytes) T points[longestLanes * realsOfLanes<T>];
    const LaneArea<T> area{points};
    const int rows = grid.rows;
    const int columns = grid.columns;
    const PartArrays<T> turned{work, work + std::ptrdiff_t{rows} * columns};
    const T* factors = grid.factors;
    forVectors<width>(columns, [&](int j) {
        transformLanes(grid.down, ColumnsOf<In>{src + j, columns}, area, area);
        const PartArrays<T> to = turned + std::ptrdiff_t{j} * rows;
        forVectors<width>(rows, [&](int k) {
            transposeTo(to + k, rows, factors, [&](int i) { return area.get(k + i); });
            factors += width * realsOfLanes<T>;
        });
    });
    forVectors<width>(rows, [&](int k) {
        transformLanes(grid.across, ColumnsOf<PartArrays<T>>{turned + k, rows}, area, ColumnsOf<Out>{dst + k, rows});
    });
}

} // namespace tarn::dft
