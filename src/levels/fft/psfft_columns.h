// The columns of the block route: transforms of R points down the columns of a matrix of R rows, whose elements are
// multiplied by twiddle factors as they are read. The rows stand in bit-reversed order.
#pragma once

#include "levels/fft/psfft_passes.h"

namespace tarn::fft {

// -- Access to rows of C elements, in blocks of blockLanes<T> columns -------------------------------------------------

// T may be constant where rows are only read.

// One array that is in the working arrangement when the columns are read; afterwards it is of pairs, or stays so.
template <typename T, bool pairsAfter>
struct RowsOfPairs {
    using Value = std::remove_const_t<T>;

    T* data;
    std::ptrdiff_t rowLength;

    template <int W>
    TARN_INLINE Complex<Pack<Value, W>> load(std::ptrdiff_t row, std::ptrdiff_t column) const
    {
        const Value* p = at(row, column);
        return loadBlocks<W>(p);
    }
    template <typename X>
    TARN_INLINE void put(std::ptrdiff_t row, std::ptrdiff_t column, Complex<X> x) const
    {
        T* p = at(row, column);
        if constexpr (pairsAfter) {
            storePairs(p, x);
        } else {
            storeBlocks(p, x);
        }
    }

private:
    TARN_INLINE T* at(std::ptrdiff_t row, std::ptrdiff_t column) const { return data + 2 * (row * rowLength + column); }
};

// Arrays of real and of imaginary parts.
template <typename T>
struct RowsOfParts {
    using Value = std::remove_const_t<T>;

    T* re;
    T* im;
    std::ptrdiff_t rowLength;

    template <int W>
    TARN_INLINE Complex<Pack<Value, W>> load(std::ptrdiff_t row, std::ptrdiff_t column) const
    {
        const std::ptrdiff_t at = row * rowLength + column;
        const Value* partsRe = re + at;
        const Value* partsIm = im + at;
        return {loadPack<W>(partsRe), loadPack<W>(partsIm)};
    }
    template <typename X>
    TARN_INLINE void put(std::ptrdiff_t row, std::ptrdiff_t column, Complex<X> x) const
    {
        const std::ptrdiff_t at = row * rowLength + column;
        store(re + at, x.re);
        store(im + at, x.im);
    }
};

// -- The grid of twiddle factors -------------------------------------------------------------------------------------

// Columns that are done one by one are read four at a time, and columns of few rows side by side, in whole vectors.
inline constexpr int gridColumns = 4;
inline constexpr int shortColumnRows = 64;

// Columns whose factors stand together: those of each row in blocks, row after row.
template <typename T>
constexpr int columnsTogether(std::ptrdiff_t rows)
{
    return rows <= shortColumnRows ? std::max(gridColumns, workLanes<T>) : gridColumns;
}
template <typename T>
constexpr int gridLanes(std::ptrdiff_t rows)
{
    return rows <= shortColumnRows ? workLanes<T> : blockLanes<T>;
}

// The factors of a block of columns in one row, of which so many columns stand together.
template <typename T>
TARN_INLINE const T* gridBlock(const T* grid, std::ptrdiff_t rows, std::ptrdiff_t row, std::ptrdiff_t column,
                               int together = gridColumns)
{
    return grid + 2 * (column / together * (rows * together) + row * together + column % together);
}

// -- Short columns ---------------------------------------------------------------------------------------------------
//
// A register holds one row of as many columns: the radix-4 core with vectors for elements, in which every twiddle
// factor is the same in all lanes and nothing is shuffled. Several blocks of columns run side by side, so that rows are
// read in whole cache lines and a factor that has been spread serves all of them.

template <bool forward, typename T, typename Rows>
class ShortColumns {
public:
    static constexpr int W = workLanes<T>;
    static constexpr int columns = 8 * blockLanes<T>;
    static constexpr int blocks = columns / W;

    // `work` holds R rows of `columns` elements, `twd` is the stage table of R points.
    ShortColumns(Rows rows, T* work, const T* grid, int R, const T* twd)
        : rows(rows), work(work), grid(grid), R(R), twd(twd)
    {
    }

    // Transforms the columns from `column` on.
    void run(int column) const
    {
        const auto toWork = [this](int row, int block, Lanes x) { storeWork(place(row, block), x); };
        const auto toRows = [this, column](int row, int block, Lanes x) { rows.put(row, column + block * W, x); };
        quads(column);
        if (R == 8) {
            joinEights(0, toRows);
            return;
        }
        const int first = firstStage(R);
        if (first == 32) {
            for (int row = 0; row < R; row += 8) {
                joinEights(row, toWork);
            }
        }
        for (int L = first; L < R; L *= 4) {
            stageOfRows(L, toWork);
        }
        stageOfRows(R, toRows);
    }

private:
    using Lanes = Complex<Pack<T, W>>;
    static constexpr int cacheLine = 64 / sizeof(T);
    static constexpr int together = std::max(gridColumns, W);

    TARN_INLINE T* place(int row, int block) const { return work + (row * blocks + block) * (2 * W); }

    // The first pass: rows of the matrix to transforms of four in the work area.
    TARN_INLINE void quads(int column) const
    {
        for (int row = 0; row < R; row += 4) {
            for (int block = 0; block < blocks; ++block) {
                const int at = column + block * W;
                // The factors of the next columns, which come in steps too wide for the processor to foresee.
                for (int i = 0; i < 4 * 2 * together; i += cacheLine) {
                    prefetch(gridBlock(grid, R, row, at + columns, together) + i);
                }
                const auto element = [&](int i) {
                    return rotate<forward>(rows.template load<W>(row + i, at),
                                           loadWork<W>(gridBlock(grid, R, row + i, at, together)));
                };
                const auto x = fourPoint<forward>(Quad<Pack<T, W>>{element(0), element(1), element(2), element(3)});
                for (int i = 0; i < 4; ++i) {
                    storeWork(place(row + i, block), x[i]);
                }
            }
        }
    }

    template <typename Put>
    TARN_INLINE void joinEights(int row, Put put) const
    {
        for (int k = 0; k < 4; ++k) {
            const Lanes root = {splat<Pack<T, W>>(TwdTbl_03<T>.re[k]), splat<Pack<T, W>>(TwdTbl_03<T>.im[k])};
            for (int block = 0; block < blocks; ++block) {
                const auto even = loadWork<W>(place(row + k, block));
                const auto odd = rotate<forward>(loadWork<W>(place(row + k + 4, block)), root);
                put(row + k, block, even + odd);
                put(row + k + 4, block, even - odd);
            }
        }
    }

    template <typename Put>
    TARN_INLINE void stageOfRows(int L, Put put) const
    {
        constexpr int width = 2 * W;
        const int quarter = L / 4;
        const T* factors = stageTwiddles(twd, firstStage(R), L);
        const int group = factorLanes<T>(L);
        for (int k = 0; k < quarter; ++k) {
            const T* from = factorsOf(factors, group, k);
            alignas(Pack<T, W>) T w[3 * width];
            for (int i = 0; i < 6; ++i) {
                storeAligned(w + i * W, splat<Pack<T, W>>(from[i * group]));
            }
            for (int row = k; row < R; row += L) {
                for (int block = 0; block < blocks; ++block) {
                    const T* const p = place(row, block);
                    butterfly<forward>(
                        [&](int i) { return loadWork<W>(p + std::ptrdiff_t{i} * quarter * blocks * width); },
                        factorsAt<W>(w, W), [&](int part, Lanes x) { put(row + part * quarter, block, x); });
                }
            }
        }
    }

    Rows rows;
    T* work;
    const T* grid;
    int R;
    const T* twd;
};

// -- Long columns ----------------------------------------------------------------------------------------------------
//
// Four columns at a time become four arrays of their own for the core, and come back out of its working arrangement.

template <bool forward, typename T, typename Rows>
inline void mergeLongColumns(Rows rows, T* work, const T* grid, int R)
{
    for (int column = 0; column < gridColumns; column += blockLanes<T>) {
        T* area = work + std::ptrdiff_t{2} * column * R;
        const auto value = [&](int row) {
            return rotate<forward>(rows.template load<blockLanes<T>>(row, column),
                                   loadBlock(gridBlock(grid, R, row, column)));
        };
        for (int row = 0; row < R; row += 2, area += 4) {
            const auto first = value(row);
            const auto second = value(row + 1);
            if constexpr (blockLanes<T> == 4) {
                const std::ptrdiff_t next = std::ptrdiff_t{2} * R;
                store(area, lowHalves(zipLow(first.re, first.im), zipLow(second.re, second.im)));
                store(area + next, highHalves(zipLow(first.re, first.im), zipLow(second.re, second.im)));
                store(area + 2 * next, lowHalves(zipHigh(first.re, first.im), zipHigh(second.re, second.im)));
                store(area + 3 * next, highHalves(zipHigh(first.re, first.im), zipHigh(second.re, second.im)));
            } else {
                const std::ptrdiff_t next = std::ptrdiff_t{2} * R;
                store(area, zipLow(first.re, first.im));
                store(area + 2, zipLow(second.re, second.im));
                store(area + next, zipHigh(first.re, first.im));
                store(area + next + 2, zipHigh(second.re, second.im));
            }
        }
    }
}

template <typename T, typename Rows>
inline void splitLongColumns(Rows rows, const T* work, int R)
{
    constexpr int width = 2 * blockLanes<T>;
    for (int column = 0; column < gridColumns; column += blockLanes<T>) {
        const T* area = work + std::ptrdiff_t{2} * column * R;
        for (int row = 0; row < R; row += blockLanes<T>, area += width) {
            Square<T> re;
            Square<T> im;
            for (int lane = 0; lane < blockLanes<T>; ++lane) {
                const T* p = area + std::ptrdiff_t{2} * lane * R;
                re[lane] = loadPack<blockLanes<T>>(p);
                im[lane] = loadPack<blockLanes<T>>(p + blockLanes<T>);
            }
            re = transpose<T>(re);
            im = transpose<T>(im);
            for (int lane = 0; lane < blockLanes<T>; ++lane) {
                rows.put(row + lane, column, Block<T>{re[lane], im[lane]});
            }
        }
    }
}

} // namespace tarn::fft
