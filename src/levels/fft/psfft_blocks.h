// The block route of the large orders, the four-step scheme in place: transforms of the rows of a matrix, then of its
// columns, whose lengths are 2^b with b from a table. Rows that are too long themselves take a further step.
#pragma once

#include "frame/object.h"
#include "levels/fft/psfft_calls.h"
#include "levels/fft/psfft_columns.h"
#include "levels/fft/psfft_tables.h"

namespace tarn::fft {

// Orders from this one on are cut; those below are the radix-4 core's.
template <typename T>
inline constexpr int leafLimit = std::is_same_v<T, Tarn32f> ? 17 : 15;

// The block order of a step, from order 9 up.
inline constexpr int firstTableOrder = 9;
template <typename T>
inline constexpr int tbl_blk_order[22] = {};
template <>
inline constexpr int tbl_blk_order<Tarn32f>[22] = {0, 0, 0, 0,  0,  0,  0,  0,  3,  4,  3,
                                                   4, 5, 6, 12, 12, 11, 12, 13, 14, 10, 10};
template <>
inline constexpr int tbl_blk_order<Tarn64f>[22] = {0, 0, 0,  0,  0,  0,  3,  3,  3,  4,  4,
                                                   5, 6, 10, 10, 10, 10, 10, 10, 10, 10, 10};

template <typename T>
constexpr int blockOrder(int order)
{
    return tbl_blk_order<T>[order - firstTableOrder];
}

// True if the rows of a step at that level take a step of their own. No order that the table holds needs more levels.
template <typename T>
constexpr bool isCutFurther(int rowOrder, int level)
{
    return rowOrder >= leafLimit<T> && level + 1 < maxLevels;
}

// The twiddle factors between the rows and the columns of a step: row r of column c takes W^(rev(r) c).
template <typename T>
inline Owned<T[]> gridTable(int order, int block, const T* base, int baseOrder)
{
    Owned<T[]> table = allocate<T>(2LL << order);
    if (!table) {
        return table;
    }
    const Circle<T> circle(base, baseOrder, order);
    const int columns = 1 << (order - block);
    const int rows = 1 << block;
    const int together = columnsTogether<T>(rows);
    const int width = gridLanes<T>(rows);
    T* to = table.get();
    for (int column = 0; column < columns; column += together) {
        ReversedCounter reversed(block);
        for (int row = 0; row < rows; ++row, reversed.advance()) {
            for (int j = 0; j < together; ++j) {
                const Complex<T> w = circle.factor(reversed.value() * (column + j));
                T* p = to + j / width * (2 * width) + j % width;
                p[0] = w.re;
                p[width] = w.im;
            }
            to += 2 * together;
        }
    }
    return table;
}

// The largest scratch of a leaf, and the room for alignment.
template <typename T>
inline constexpr int largeBufSize = (2 * sizeof(T) << (std::is_same_v<T, Tarn32f> ? 16 : 14)) + 16;

// The tables of one level and of those below it.
template <typename T>
inline TarnStatus createTabTwd_Step(Spec<T>& spec, int order, const T* base, int baseOrder, int level)
{
    const int block = blockOrder<T>(order);
    const int rowOrder = order - block;
    if (isCutFurther<T>(rowOrder, level)) {
        if (const TarnStatus status = createTabTwd_Step(spec, rowOrder, base, baseOrder, level + 1)) {
            return status;
        }
    } else if (!spec.keep(twdTab, stageTable(rowOrder, base, baseOrder))) {
        return tarnStsNoMemErr;
    }
    if (!spec.keep(blkStageTab + level, stageTable(block, base, baseOrder)) ||
        !spec.keep(blkTwdTab + level, gridTable(order, block, base, baseOrder))) {
        return tarnStsNoMemErr;
    }
    spec.bufSize = std::max(spec.bufSize, static_cast<int>(gridColumns * 2 * sizeof(T)) << block);
    return tarnStsNoErr;
}

template <typename T>
inline TarnStatus createLargeTables(Spec<T>& spec, int order, const T* base, int baseOrder)
{
    spec.bufSize = 0;
    const TarnStatus status = createTabTwd_Step(spec, order, base, baseOrder, 0);
    spec.bufSize += largeBufSize<T>;
    return status;
}

// -- The data of a step: one array or two ----------------------------------------------------------------------------

template <typename T>
struct PairsData {
    T* data;

    PairsData operator+(std::ptrdiff_t elements) const { return {data + 2 * elements}; }

    template <bool forward>
    void transformRow(const Spec<T>& spec, int size, T* work, bool scaled) const
    {
        directed<T, forward>.inPlace(asPairs(data), size, spec.table(twdTab), work, 0);
        if (scaled) {
            kernels<T>.scale(spec.normFactor, data, 2 * size);
        }
    }
    // The outermost level leaves pairs, the others what the level around them reads.
    template <typename Use>
    void withRows(int rowLength, int level, Use use) const
    {
        if (level == 0) {
            use(RowsOfPairs<T, true>{data, rowLength});
        } else {
            use(RowsOfPairs<T, false>{data, rowLength});
        }
    }
    void merge(T* work, const T* grid, bool forward, int C, int R) const
    {
        kernels<T>.merge(asPairs(data), asPairs(work), grid, forward, C, R);
    }
    void split(const T* work, int C, int R, int level) const
    {
        kernels<T>.split(asPairs(data), asPairs(work), C, R, level == 0);
    }
};

template <typename T>
struct PartsData {
    T* re;
    T* im;

    PartsData operator+(std::ptrdiff_t elements) const { return {re + elements, im + elements}; }

    template <bool forward>
    void transformRow(const Spec<T>& spec, int size, T* work, bool scaled) const
    {
        directed<T, forward>.inPlaceParts(re, im, size, spec.table(twdTab), work);
        if (scaled) {
            kernels<T>.scale(spec.normFactor, re, size);
            kernels<T>.scale(spec.normFactor, im, size);
        }
    }
    template <typename Use>
    void withRows(int rowLength, int /*level*/, Use use) const
    {
        use(RowsOfParts<T>{re, im, rowLength});
    }
    void merge(T* work, const T* grid, bool forward, int C, int R) const
    {
        kernels<T>.mergeParts(re, im, asPairs(work), grid, forward, C, R);
    }
    void split(const T* work, int C, int R, int /*level*/) const { kernels<T>.splitParts(re, im, asPairs(work), C, R); }
};

// One level of the transform of bit-reversed data. The rows carry the only scaling.
template <bool forward, typename T, typename Data>
inline void blockStep(const Spec<T>& spec, Data data, int order, int level, T* work)
{
    const int block = blockOrder<T>(order);
    const int rowOrder = order - block;
    const int R = 1 << block;
    const int C = 1 << rowOrder;
    for (int row = 0; row < R; ++row) {
        const Data rowData = data + static_cast<std::ptrdiff_t>(row) * C;
        if (isCutFurther<T>(rowOrder, level)) {
            blockStep<forward>(spec, rowData, rowOrder, level + 1, work);
        } else {
            rowData.template transformRow<forward>(spec, C, work, (forward ? spec.doFwdDiv : spec.doInvDiv) != 0);
        }
    }
    const T* stages = spec.table(blkStageTab + level);
    const T* grid = spec.table(blkTwdTab + level);
    if (R <= shortColumnRows) {
        data.withRows(C, level, [&](auto rows) {
            const ShortColumns<forward, T, decltype(rows)> columns(rows, work, grid, R, stages);
            for (int column = 0; column < C; column += columns.columns) {
                columns.run(column);
            }
        });
        return;
    }
    for (int column = 0; column < C; column += gridColumns) {
        (data + column).merge(work, gridBlock(grid, R, 0, column), forward, C, R);
        for (int area = 0; area < gridColumns; ++area) {
            T* p = work + std::ptrdiff_t{2} * area * R;
            directed<T, forward>.inPlace(asPairs(p), R, stages, nullptr, 0);
        }
        (data + column).split(work, C, R, level);
    }
}

} // namespace tarn::fft
