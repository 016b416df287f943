// The columns of the block route: transforms of R points down the columns of a matrix of R rows, whose elements are
// multiplied by twiddle factors as they are read. The rows stand in bit-reversed order.
#pragma once

#include "levels/fft/psfft_passes.h"

namespace tarn::fft {

// -- Access to rows of C elements, in blocks of blockLanes<T> columns
// -----------------------------------------------------

// T may be constant where rows are only read.

// One array that is in the working arrangement when the columns are read; afterwards it is of pairs, or stays so.
template <typename T, bool pairsAfter>
struct RowsOfPairs {
    using Value = std::remove_const_t<T>;

    T* data;
    std::ptrdiff_t rowLength;

    TARN_INLINE Block<Value> load(std::ptrdiff_t row, std::ptrdiff_t column) const
    {
        const Value* p = inWork(row, column);
        return {loadPack<blockLanes<T>>(p), loadPack<blockLanes<T>>(p + workLanes<Value>)};
    }
    TARN_INLINE void put(std::ptrdiff_t row, std::ptrdiff_t column, Block<T> x) const
    {
        if constexpr (pairsAfter) {
            storePairs(data + 2 * (row * rowLength + column), x);
        } else {
            T* p = inWork(row, column);
            store(p, x.re);
            store(p + workLanes<T>, x.im);
        }
    }

private:
    TARN_INLINE T* inWork(std::ptrdiff_t row, std::ptrdiff_t column) const
    {
        return data + placeInWork<Value>(row * rowLength + column);
    }
};

// Arrays of real and of imaginary parts.
template <typename T>
struct RowsOfParts {
    using Value = std::remove_const_t<T>;

    T* re;
    T* im;
    std::ptrdiff_t rowLength;

    TARN_INLINE Block<Value> load(std::ptrdiff_t row, std::ptrdiff_t column) const
    {
        const std::ptrdiff_t at = row * rowLength + column;
        const Value* partsRe = re + at;
        const Value* partsIm = im + at;
        return {loadPack<blockLanes<T>>(partsRe), loadPack<blockLanes<T>>(partsIm)};
    }
    TARN_INLINE void put(std::ptrdiff_t row, std::ptrdiff_t column, Block<T> x) const
    {
        const std::ptrdiff_t at = row * rowLength + column;
        store(re + at, x.re);
        store(im + at, x.im);
    }
};

// -- The grid of twiddle factors -------------------------------------------------------------------------------------

// Columns whose factors stand together: those of each row in blocks, row after row.
inline constexpr int gridColumns = 4;

// The factors of a block of columns in one row.
template <typename T>
TARN_INLINE const T* gridBlock(const T* grid, std::ptrdiff_t rows, std::ptrdiff_t row, std::ptrdiff_t column)
{
    return grid + 2 * (column / gridColumns * (rows * gridColumns) + row * gridColumns + column % gridColumns);
}

// -- Short columns ---------------------------------------------------------------------------------------------------
//
// A register holds one row of as many columns: the radix-4 core with vectors for elements, in which every twiddle
// factor is the same in all lanes and nothing is shuffled. Several blocks of columns run side by side, so that rows are
// read in whole cache lines and a factor that has been spread serves all of them.

inline constexpr int shortColumnRows = 64;

template <bool forward, typename T, typename Rows>
class ShortColumns {
public:
    static constexpr int blocks = 8;
    static constexpr int columns = blocks * blockLanes<T>;

    // `work` holds R rows of `columns` elements, `twd` is the stage table of R points.
    ShortColumns(Rows rows, T* work, const T* grid, int R, const T* twd)
        : rows(rows), work(work), grid(grid), R(R), twd(twd)
    {
    }

    // Transforms the columns from `column` on.
    void run(int column) const
    {
        const auto toWork = [this](int row, int block, Block<T> x) { storeBlock(place(row, block), x); };
        const auto toRows = [this, column](int row, int block, Block<T> x) {
            rows.put(row, column + block * blockLanes<T>, x);
        };
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
    static constexpr int cacheLine = 64;
    static constexpr int gridBytes = gridColumns * static_cast<int>(sizeof(Complex<T>));

    TARN_INLINE T* place(int row, int block) const { return work + (row * blocks + block) * (2 * blockLanes<T>); }

    // The first pass: rows of the matrix to transforms of four in the work area.
    TARN_INLINE void quads(int column) const
    {
        for (int row = 0; row < R; row += 4) {
            for (int block = 0; block < blocks; ++block) {
                const int at = column + block * blockLanes<T>;
                // The factors of the next columns, which come in steps too wide for the processor to foresee.
                for (int i = 0; i < 4; i += cacheLine / gridBytes) {
                    prefetch(gridBlock(grid, R, row + i, at + columns));
                }
                const auto element = [&](int i) {
                    return rotate<forward>(rows.load(row + i, at), loadBlock(gridBlock(grid, R, row + i, at)));
                };
                const auto x = fourPoint<forward>(Quad<BlockPart<T>>{element(0), element(1), element(2), element(3)});
                for (int i = 0; i < 4; ++i) {
                    storeBlock(place(row + i, block), x[i]);
                }
            }
        }
    }

    template <typename Put>
    TARN_INLINE void joinEights(int row, Put put) const
    {
        for (int k = 0; k < 4; ++k) {
            const Block<T> root = {splat<BlockPart<T>>(TwdTbl_03<T>.re[k]), splat<BlockPart<T>>(TwdTbl_03<T>.im[k])};
            for (int block = 0; block < blocks; ++block) {
                const auto even = loadBlock(place(row + k, block));
                const auto odd = rotate<forward>(loadBlock(place(row + k + 4, block)), root);
                put(row + k, block, even + odd);
                put(row + k + 4, block, even - odd);
            }
        }
    }

    template <typename Put>
    TARN_INLINE void stageOfRows(int L, Put put) const
    {
        constexpr int width = 2 * blockLanes<T>;
        const int quarter = L / 4;
        const T* factors = stageTwiddles(twd, firstStage(R), L);
        const int group = factorLanes<T>(L);
        for (int k = 0; k < quarter; ++k) {
            const T* from = factorsOf(factors, group, k);
            alignas(blockBytes) T w[3 * width];
            for (int i = 0; i < 6; ++i) {
                storeAligned(w + i * blockLanes<T>, splat<BlockPart<T>>(from[i * group]));
            }
            for (int row = k; row < R; row += L) {
                for (int block = 0; block < blocks; ++block) {
                    const T* const p = place(row, block);
                    butterfly<forward>(
                        [&](int i) { return loadBlock(p + std::ptrdiff_t{i} * quarter * blocks * width); },
                        factorsAt<blockLanes<T>>(w, blockLanes<T>),
                        [&](int part, Block<T> x) { put(row + part * quarter, block, x); });
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
            return rotate<forward>(rows.load(row, column), loadBlock(gridBlock(grid, R, row, column)));
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
    for (int column = 0; column < gridColumns; column += blockLanes<T>) {
        const T* area = work + std::ptrdiff_t{2} * column * R;
        for (int row = 0; row < R; row += blockLanes<T>) {
            Square<T> re;
            Square<T> im;
            for (int lane = 0; lane < blockLanes<T>; ++lane) {
                const T* p = area + std::ptrdiff_t{2} * lane * R + placeInWork<T>(row);
                re[lane] = loadPack<blockLanes<T>>(p);
                im[lane] = loadPack<blockLanes<T>>(p + workLanes<T>);
            }
            re = transpose<T>(re);
            im = transpose<T>(im);
            for (int lane = 0; lane < blockLanes<T>; ++lane) {
                rows.put(row + lane, column, {re[lane], im[lane]});
            }
        }
    }
}

} // namespace tarn::fft
