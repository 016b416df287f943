// Where the passes of the radix-4 core read and write: sources of bit-reversed quadruples, and what becomes of results.
#pragma once

#include "levels/fft/psfft_work.h"

#include <cstddef>

namespace tarn::fft {

// -- Where the first pass reads --------------------------------------------------------------------------------------
//
// A source transforms blockLanes<T> bit-reversed quadruples of its data at a time and hands the results on in blocks:
// emit(lane, block, value) for each lane's 4 / blockLanes<T> blocks. The lanes are `streams` stretches of the work area
// that are filled side by side, or neighbouring groups of 4 or 8 elements of one stretch.

template <typename T>
inline constexpr int blocksPerQuad = 4 / blockLanes<T>;

// Results of quadruples in interleaved pairs, of which a register holds one or two.
template <bool forward, typename T, typename Emit>
TARN_INLINE void emitPairs(int lane, const std::array<BlockPart<T>, 4>& quad, Emit emit)
{
    const auto x = fourPointPairs<forward>(quad);
    if constexpr (blockLanes<T> == 4) {
        const auto columns = transpose<T>(x);
        emit(lane, 0, Block<T>{columns[0], columns[1]});
        emit(lane + 1, 0, Block<T>{columns[2], columns[3]});
    } else {
        emit(lane, 0, deinterleave(x[0], x[1]));
        emit(lane, 1, deinterleave(x[2], x[3]));
    }
}

// What the real or the imaginary parts of a quadruple in bit-reversed order contribute to its transform.
template <typename T>
struct QuadPart {
    BlockPart<T> sum, alternating, first, second; // of all; of both pairs; the pairs' differences

    template <typename Load>
    explicit TARN_INLINE QuadPart(Load load)
    {
        const auto x0 = load(0);
        const auto x1 = load(1);
        const auto s = add(x0, x1);
        first = sub(x0, x1);
        const auto x2 = load(2);
        const auto x3 = load(3);
        const auto t = add(x2, x3);
        second = sub(x2, x3);
        sum = add(s, t);
        alternating = sub(s, t);
    }
};

// Results of as many quadruples as there are lanes, real and imaginary parts apart: one part after the other, since few
// registers hold both.
template <bool forward, typename T, typename LoadRe, typename LoadIm, typename Emit>
TARN_INLINE void emitParts(LoadRe loadRe, LoadIm loadIm, Emit emit)
{
    const QuadPart<T> partRe(loadRe);
    const QuadPart<T> partIm(loadIm);
    const auto plus = plusQuarterTurn<forward>(Block<T>{partRe.first, partIm.first}, {partRe.second, partIm.second});
    const auto minus = minusQuarterTurn<forward>(Block<T>{partRe.first, partIm.first}, {partRe.second, partIm.second});
    const Quad<BlockPart<T>> x = {Block<T>{partRe.sum, partIm.sum}, plus,
                                  Block<T>{partRe.alternating, partIm.alternating}, minus};
    if constexpr (blockLanes<T> == 4) {
        const auto re = transpose<T>({x[0].re, x[1].re, x[2].re, x[3].re});
        const auto im = transpose<T>({x[0].im, x[1].im, x[2].im, x[3].im});
        emit(0, 0, Block<T>{re[0], im[0]});
        emit(1, 0, Block<T>{re[1], im[1]});
        emit(2, 0, Block<T>{re[2], im[2]});
        emit(3, 0, Block<T>{re[3], im[3]});
    } else {
        const auto re01 = transpose<T>({x[0].re, x[1].re});
        const auto im01 = transpose<T>({x[0].im, x[1].im});
        const auto re23 = transpose<T>({x[2].re, x[3].re});
        const auto im23 = transpose<T>({x[2].im, x[3].im});
        emit(0, 0, Block<T>{re01[0], im01[0]});
        emit(1, 0, Block<T>{re01[1], im01[1]});
        emit(0, 1, Block<T>{re23[0], im23[0]});
        emit(1, 1, Block<T>{re23[1], im23[1]});
    }
}

template <typename T>
inline constexpr int pairsPerVector = blockLanes<T> / 2;

// Natural order, through the reading table: consecutive elements belong to stretches in bit-reversed order.
template <typename T>
struct ReadingSource {
    static constexpr int width = blockLanes<T>;
    static constexpr int streams = blockLanes<T>;
    static constexpr int reversedOfEight[] = {0, 4, 2, 6, 1, 5, 3, 7};

    const Tarn32s* table;
    int size;

    TARN_INLINE int step(int group) const { return group; }
    TARN_INLINE std::ptrdiff_t laneOffset(int lane, int /*group*/) const
    {
        return (streams == 4 ? (lane & 1) * 2 + lane / 2 : lane) * (size / streams);
    }
};

template <typename T>
struct ReadPairs : ReadingSource<T> {
    const T* src;

    template <bool forward, typename Emit>
    TARN_INLINE void transformQuads(int at, int /*group*/, Emit emit) const
    {
        constexpr int width = blockLanes<T>;
        const T* p = src + this->table[at / 4];
        const std::ptrdiff_t quarter = this->size / 2;
        const T* p3 = p + 3 * quarter;
        const auto quad = [=](int offset) {
            return std::array{loadPack<width>(p + offset), loadPack<width>(p + 2 * quarter + offset),
                              loadPack<width>(p + quarter + offset), loadPack<width>(p3 + offset)};
        };
        emitPairs<forward, T>(0, quad(0), emit);
        emitPairs<forward, T>(pairsPerVector<T>, quad(width), emit);
    }
    TARN_INLINE Complex<T> element(int i) const
    {
        const T* p = src + 2 * this->reversedOfEight[i];
        return {loadElement(p), loadElement(p + 1)};
    }
};

template <typename T>
struct ReadParts : ReadingSource<T> {
    const T* srcRe;
    const T* srcIm;

    template <bool forward, typename Emit>
    TARN_INLINE void transformQuads(int at, int /*group*/, Emit emit) const
    {
        const std::ptrdiff_t first = this->table[at / 4] / 2;
        const std::ptrdiff_t quarter = this->size / 4;
        const auto from = [=](const T* part) {
            return
                [p = part + first, quarter](int i) { return loadPack<blockLanes<T>>(p + reversedOfFour[i] * quarter); };
        };
        emitParts<forward, T>(from(srcRe), from(srcIm), emit);
    }
    TARN_INLINE Complex<T> element(int i) const
    {
        const int from = this->reversedOfEight[i];
        return {loadElement(srcRe + from), loadElement(srcIm + from)};
    }
};

// Bit-reversed order: the lanes are neighbouring groups of 4 or 8.
template <typename T>
struct SequentialSource {
    static constexpr int width = blockLanes<T>;
    static constexpr int streams = 1;

    TARN_INLINE int step(int group) const { return group * blockLanes<T>; }
    TARN_INLINE std::ptrdiff_t laneOffset(int lane, int group) const { return lane * group; }
};

template <typename T>
struct SequentialPairs : SequentialSource<T> {
    const T* src;

    template <bool forward, typename Emit>
    TARN_INLINE void transformQuads(int at, int group, Emit emit) const
    {
        const T* p = src + 2 * at;
        const std::ptrdiff_t row = 2 * group;
        if constexpr (blockLanes<T> == 4) {
            emitPairs<forward, T>(0, quad(p, p + row), emit);
            emitPairs<forward, T>(2, quad(p + 2 * row, p + 3 * row), emit);
        } else {
            emitPairs<forward, T>(0, {loadPack<2>(p), loadPack<2>(p + 2), loadPack<2>(p + 4), loadPack<2>(p + 6)},
                                  emit);
            p += row;
            emitPairs<forward, T>(1, {loadPack<2>(p), loadPack<2>(p + 2), loadPack<2>(p + 4), loadPack<2>(p + 6)},
                                  emit);
        }
    }
    TARN_INLINE Complex<T> element(int i) const { return {loadElement(src + 2 * i), loadElement(src + 2 * i + 1)}; }

private:
    // Two quadruples side by side.
    static TARN_INLINE std::array<BlockPart<T>, 4> quad(const T* a, const T* b)
    {
        const auto lowA = loadPack<4>(a);
        const auto lowB = loadPack<4>(b);
        const auto highA = loadPack<4>(a + 4);
        const auto highB = loadPack<4>(b + 4);
        return {lowHalves(lowA, lowB), highHalves(lowA, lowB), lowHalves(highA, highB), highHalves(highA, highB)};
    }
};

template <typename T>
struct SequentialParts : SequentialSource<T> {
    const T* srcRe;
    const T* srcIm;

    template <bool forward, typename Emit>
    TARN_INLINE void transformQuads(int at, int group, Emit emit) const
    {
        const auto re = columns(srcRe + at, group);
        const auto im = columns(srcIm + at, group);
        emitParts<forward, T>([&](int i) { return re[i]; }, [&](int i) { return im[i]; }, emit);
    }
    TARN_INLINE Complex<T> element(int i) const { return {loadElement(srcRe + i), loadElement(srcIm + i)}; }

private:
    static TARN_INLINE std::array<BlockPart<T>, 4> columns(const T* p, std::ptrdiff_t row)
    {
        if constexpr (blockLanes<T> == 4) {
            return transpose<T>(
                {loadPack<4>(p), loadPack<4>(p + row), loadPack<4>(p + 2 * row), loadPack<4>(p + 3 * row)});
        } else {
            const auto low = transpose<T>({loadPack<2>(p), loadPack<2>(p + row)});
            const auto high = transpose<T>({loadPack<2>(p + 2), loadPack<2>(p + 2 + row)});
            return {low[0], low[1], high[0], high[1]};
        }
    }
};

// -- Where the last stage writes -------------------------------------------------------------------------------------

template <typename T>
struct WritePairs {
    T* dst;

    template <typename X>
    TARN_INLINE void put(std::ptrdiff_t at, Complex<X> x) const
    {
        storePairs(dst + at, x);
    }
};

template <typename T>
struct WriteParts {
    T* dstRe;
    T* dstIm;

    template <typename X>
    TARN_INLINE void put(std::ptrdiff_t at, Complex<X> x) const
    {
        store(dstRe + at / 2, x.re);
        store(dstIm + at / 2, x.im);
    }
};

// To be read by the next stage, and to be left for the caller.
template <typename T>
struct WriteWork {
    T* work;

    template <typename X>
    TARN_INLINE void put(std::ptrdiff_t at, Complex<X> x) const
    {
        storeWork(work + at, x);
    }
};

template <typename T>
struct WriteBlocks {
    T* dst;

    template <typename X>
    TARN_INLINE void put(std::ptrdiff_t at, Complex<X> x) const
    {
        storeBlocks(dst + at, x);
    }
};

} // namespace tarn::fft
