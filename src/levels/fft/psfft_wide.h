// The first pass in blocks as wide as the vectors: quadruples of as many places as there are lanes side by side, turned
// into rows of four lanes, and the first stage, whose quarters are shorter than a block, on groups of four lanes that
// belong to different transforms. What leaves it fills whole blocks.
#pragma once

#include "frame/walk.h"
#include "levels/fft/psfft_work.h"

namespace tarn::fft {

// A group of 16 points in even orders, of 32 in odd ones, is 4 units of one quadruple or of two: unit j of `rows` times
// `groups` such groups is x[row][j], with group g in the lanes from 4 g.
template <typename T, int rows, int quads>
using Units = std::array<std::array<std::array<Complex<Pack<T, workLanes<T>>>, quads>, groupLanes>, rows>;

template <typename T>
struct WideSource {
    static constexpr int width = workLanes<T>;
    static constexpr int groups = width / groupLanes;
};

// Transforms of four points, one in each lane, turned into one row for each four lanes.
template <bool forward, typename T, int W>
TARN_INLINE std::array<Complex<Pack<T, W>>, groupLanes> rowsOfQuads(Quad<Pack<T, W>> x)
{
    x = fourPoint<forward>(x);
    const auto re = transposeFours<T, W>({x[0].re, x[1].re, x[2].re, x[3].re});
    const auto im = transposeFours<T, W>({x[0].im, x[1].im, x[2].im, x[3].im});
    return {Complex<Pack<T, W>>{re[0], im[0]}, {re[1], im[1]}, {re[2], im[2]}, {re[3], im[3]}};
}

// -- Natural order ----------------------------------------------------------------------------------------------------
//
// As many consecutive elements as there are lanes belong to as many stretches of the work area.

template <typename T>
struct WideReading : WideSource<T> {
    static constexpr int streams = workLanes<T>;
    static constexpr int rows = 4;
    static constexpr int neighbours = 1;

    const Tarn32s* table;
    int size;

    static constexpr bool takes(int size) { return size >= firstStage(size) * streams; }

protected:
    static constexpr int reversedLane(int i)
    {
        int result = 0;
        for (int bit = 1; bit < streams; bit *= 2) {
            result = 2 * result + i / bit % 2;
        }
        return result;
    }

    // quad(i) tells the points of quadruples i, by their quarters, for as many streams as there are lanes.
    template <bool forward, int quads, typename Quads>
    static TARN_INLINE void readUnits(Quads quad, Units<T, 4, quads>& x)
    {
        repeat<4 * quads>([&](auto i) __attribute__((always_inline)) {
            const auto point = quad(i);
            const auto result = rowsOfQuads<forward, T, workLanes<T>>({point(0), point(2), point(1), point(3)});
            repeat<4>([&](auto m) __attribute__((always_inline)) { x[m][i / quads][i % quads] = result[m]; });
        });
    }
};

template <typename T>
struct WideReadPairs : WideReading<T> {
    static constexpr int W = workLanes<T>;

    const T* src;

    template <bool forward, int quads>
    TARN_INLINE void read(int at, Units<T, 4, quads>& x) const
    {
        const std::ptrdiff_t step = this->size / 2;
        const auto quad = [&](int i) __attribute__((always_inline))
        {
            const T* const p = src + this->table[at / 4 + i];
            const auto point = [=](int quarter) __attribute__((always_inline))
            {
                const T* const from = p + quarter * step;
                return deinterleaveInLanes(loadPack<W>(from), loadPack<W>(from + W));
            };
            return point;
        };
        this->template readUnits<forward, quads>(quad, x);
    }
    TARN_INLINE std::ptrdiff_t groupOffset(int row, int group) const
    {
        return this->reversedLane(elementInLane<T, workLanes<T>>(4 * group + row)) *
               std::ptrdiff_t{this->size / workLanes<T>};
    }
};

template <typename T>
struct WideReadParts : WideReading<T> {
    static constexpr int W = workLanes<T>;

    const T* srcRe;
    const T* srcIm;

    template <bool forward, int quads>
    TARN_INLINE void read(int at, Units<T, 4, quads>& x) const
    {
        const std::ptrdiff_t step = this->size / 4;
        const auto quad = [&](int i) __attribute__((always_inline))
        {
            const T* const re = srcRe + this->table[at / 4 + i] / 2;
            const T* const im = srcIm + this->table[at / 4 + i] / 2;
            const auto point = [=](int quarter) __attribute__((always_inline))
            {
                return Complex<Pack<T, W>>{loadPack<W>(re + quarter * step), loadPack<W>(im + quarter * step)};
            };
            return point;
        };
        this->template readUnits<forward, quads>(quad, x);
    }
    TARN_INLINE std::ptrdiff_t groupOffset(int row, int group) const
    {
        return this->reversedLane(4 * group + row) * std::ptrdiff_t{this->size / workLanes<T>};
    }
};

// -- Natural order, few points ----------------------------------------------------------------------------------------
//
// Of 64 or 128 points a register holds places of all four groups: what lies in the lanes' upper bits is the unit.

template <typename T>
struct WideFew : WideSource<T> {
    static constexpr int W = workLanes<T>;
    static constexpr int streams = 1;
    static constexpr int places = 16; // of quadruples, four in each group
    static constexpr int registers = places / W;
    static constexpr int rows = registers;
    static constexpr int neighbours = 4;

    int size;

    static constexpr bool takes(int size) { return W > groupLanes && size == 4 * firstStage(size); }
    TARN_INLINE std::ptrdiff_t groupOffset(int row, int group) const
    {
        return std::ptrdiff_t{reversedOfFour[row * WideSource<T>::groups + group]} * firstStage(size);
    }

protected:
    // load(place, quarter): as many places as there are lanes.
    template <bool forward, int quads, typename Load>
    TARN_INLINE void readUnits(Load load, Units<T, rows, quads>& x) const
    {
        constexpr int groups = WideSource<T>::groups;
        repeat<quads * registers>([&](auto i) __attribute__((always_inline)) {
            constexpr int e = i / registers;
            constexpr int h = i % registers;
            const int place = e * places + h * W;
            const auto result =
                rowsOfQuads<forward, T, W>({load(place, 0), load(place, 2), load(place, 1), load(place, 3)});
            repeat<rows>([&](auto row) __attribute__((always_inline)) {
                std::array<Pack<T, W>, groups> re, im;
                repeat<groups>([&](auto g) __attribute__((always_inline)) {
                    re[g] = result[row * groups + g].re;
                    im[g] = result[row * groups + g].im;
                });
                re = transposeGroups<T, W>(re);
                im = transposeGroups<T, W>(im);
                repeat<groups>([&](auto g) __attribute__((always_inline)) {
                    x[row][reversedOfFour[h * groups + g]][e] = {re[g], im[g]};
                });
            });
        });
    }
};

template <typename T>
struct WideFewPairs : WideFew<T> {
    static constexpr int W = workLanes<T>;

    const T* src;

    template <bool forward, int quads>
    TARN_INLINE void read(int /*at*/, Units<T, WideFew<T>::rows, quads>& x) const
    {
        const T* const p = src;
        this->template readUnits<forward, quads>(
            [=](int place, int quarter)
                __attribute__((always_inline)) { return loadPairs<W>(p + 2 * (place + quarter * 16 * quads)); },
            x);
    }
};

template <typename T>
struct WideFewParts : WideFew<T> {
    static constexpr int W = workLanes<T>;

    const T* srcRe;
    const T* srcIm;

    template <bool forward, int quads>
    TARN_INLINE void read(int /*at*/, Units<T, WideFew<T>::rows, quads>& x) const
    {
        const T* const re = srcRe;
        const T* const im = srcIm;
        this->template readUnits<forward, quads>(
            [=](int place, int quarter) __attribute__((always_inline)) {
                const int from = place + quarter * 16 * quads;
                return Complex<Pack<T, W>>{loadPack<W>(re + from), loadPack<W>(im + from)};
            },
            x);
    }
};

// -- Bit-reversed order -----------------------------------------------------------------------------------------------
//
// Neighbouring groups of points stand side by side. All are read before anything is written, so that the data may be
// the work area.

template <typename T>
struct WideSequential : WideSource<T> {
    static constexpr int W = workLanes<T>;
    static constexpr int streams = 1;
    static constexpr int rows = 1;
    static constexpr int neighbours = workLanes<T> / groupLanes;

    int size;

    static constexpr bool takes(int size) { return arrangedLanes<T>(size) == workLanes<T>; }
    TARN_INLINE std::ptrdiff_t groupOffset(int /*row*/, int group) const
    {
        return std::ptrdiff_t{group} * firstStage(size);
    }

protected:
    template <bool forward, int quads, typename Load>
    TARN_INLINE void readUnits(Load load, Units<T, 1, quads>& x) const
    {
        repeat<quads>([&](auto e) __attribute__((always_inline)) {
            const std::array<Complex<Pack<T, W>>, 4> unit = {load(e), load(quads + e), load(2 * quads + e),
                                                             load(3 * quads + e)};
            const auto re = transposeFours<T, W>({unit[0].re, unit[1].re, unit[2].re, unit[3].re});
            const auto im = transposeFours<T, W>({unit[0].im, unit[1].im, unit[2].im, unit[3].im});
            const auto result = rowsOfQuads<forward, T, W>(
                {Complex<Pack<T, W>>{re[0], im[0]}, {re[1], im[1]}, {re[2], im[2]}, {re[3], im[3]}});
            repeat<4>([&](auto j) __attribute__((always_inline)) { x[0][j][e] = result[j]; });
        });
    }
};

template <typename T>
struct WideSequentialPairs : WideSequential<T> {
    static constexpr int W = workLanes<T>;

    const T* src;

    template <bool forward, int quads>
    TARN_INLINE void read(int at, Units<T, 1, quads>& x) const
    {
        const T* const p = src + 2 * at;
        const auto quad = [=](int i) __attribute__((always_inline))
        {
            const auto both = loadGroups<2 * W, 8>(p + 8 * i, 32 * quads);
            return Complex<Pack<T, W>>{evenElements(both), oddElements(both)};
        };
        this->template readUnits<forward, quads>(quad, x);
    }
};

template <typename T>
struct WideSequentialParts : WideSequential<T> {
    static constexpr int W = workLanes<T>;

    const T* srcRe;
    const T* srcIm;

    template <bool forward, int quads>
    TARN_INLINE void read(int at, Units<T, 1, quads>& x) const
    {
        const T* const re = srcRe + at;
        const T* const im = srcIm + at;
        const auto quad = [=](int i) __attribute__((always_inline))
        {
            return Complex<Pack<T, W>>{loadGroups<W, 4>(re + 4 * i, 16 * quads),
                                       loadGroups<W, 4>(im + 4 * i, 16 * quads)};
        };
        this->template readUnits<forward, quads>(quad, x);
    }
};

// -- The pass ---------------------------------------------------------------------------------------------------------

// The second four points of each group of eight join the first four.
template <bool forward, typename T, int rows>
TARN_INLINE void joinEights(Units<T, rows, 2>& x)
{
    constexpr int W = workLanes<T>;
    const Complex<Pack<T, W>> roots = {repeatFour<W>(TwdTbl_03<T>.re), repeatFour<W>(TwdTbl_03<T>.im)};
    repeat<rows * 4>([&](auto i) __attribute__((always_inline)) {
        auto& unit = x[i / 4][i % 4];
        const auto even = unit[0];
        const auto odd = rotate<forward>(unit[1], roots);
        unit = {even + odd, even - odd};
    });
}

// Transforms of 16 points, or of 32 where there are two quadruples in a unit, of `count` elements from `first` of every
// stream; `stage` has their factors.
template <bool forward, int quads, typename T, typename Source>
inline void weave(Source source, int first, int count, const T* stage, T* work)
{
    constexpr int W = Source::width;
    constexpr int groups = Source::groups;
    constexpr int size = 16 * quads;
    const int group = factorLanes<T>(size);
    for (int at = first; at < first + count; at += size * Source::neighbours) {
        Units<T, Source::rows, quads> x;
        source.template read<forward, quads>(at, x);
        if constexpr (quads == 2) {
            joinEights<forward, T, Source::rows>(x);
        }
        repeat<Source::rows>([&](auto row) __attribute__((always_inline)) {
            std::array<Pack<T, W>, 4 * quads> re, im;
            repeat<quads>([&](auto e) __attribute__((always_inline)) {
                butterfly<forward>(
                    [&](int i) __attribute__((always_inline)) { return x[row][i][e]; },
                    factorsRepeated<W>(factorsOf(stage, group, 4 * e), group),
                    [&](int quarter, Complex<Pack<T, W>> y) __attribute__((always_inline)) {
                        re[quarter * quads + e] = y.re;
                        im[quarter * quads + e] = y.im;
                    });
            });
            repeat<4 * quads / groups>([&](auto c) __attribute__((always_inline)) {
                std::array<Pack<T, W>, groups> partRe, partIm;
                repeat<groups>([&](auto g) __attribute__((always_inline)) {
                    partRe[g] = re[c * groups + g];
                    partIm[g] = im[c * groups + g];
                });
                partRe = transposeGroups<T, W>(partRe);
                partIm = transposeGroups<T, W>(partIm);
                repeat<groups>([&](auto g) __attribute__((always_inline)) {
                    T* const to = work + 2 * (at + source.groupOffset(row, g)) + 2 * W * c;
                    storeWork(to, Complex<Pack<T, W>>{partRe[g], partIm[g]});
                });
            });
        });
    }
}

} // namespace tarn::fft
