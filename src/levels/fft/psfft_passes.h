// The passes of the radix-4 core: a first pass that reads the data from wherever it lies, stages of radix 4 in the
// working arrangement, and a last stage that writes to the destination.
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
    const auto x = fourPointPairs<forward, T>(quad);
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
            return [p = part + first, quarter](int i) {
                constexpr int reversedOfFour[] = {0, 2, 1, 3};
                return loadPack<blockLanes<T>>(p + reversedOfFour[i] * quarter);
            };
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
        storeWork(work, at, x);
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

// -- Passes ----------------------------------------------------------------------------------------------------------

// The lengths of the stages: the first pass has finished transforms of 4 or, in odd orders, 8 points.
constexpr bool isOddOrder(int size) { return (static_cast<unsigned>(size) & 0xAAAAAAAAu) != 0; }
constexpr int firstStage(int size) { return isOddOrder(size) ? 32 : 16; }

// Where in a stage table the stage of length L begins: before it lie 3/4 of each shorter length.
template <typename T>
TARN_INLINE const T* stageTwiddles(const T* twd, int first, int L)
{
    return twd + (L - first) / 2;
}

// A butterfly on the four packs of N elements that load(i) gives. Within a stage the quarters are in bit-reversed
// order, hence W(2k) for the second and W(k) for the third; the factors are three blocks at `w` for each block of
// elements. Results go to put(quarter's number, value).
template <bool forward, int N, typename T, typename Load, typename Put>
TARN_INLINE void butterflyOf(Load load, const T* w, Put put)
{
    constexpr int width = 2 * blockLanes<T>;
    const auto c = rotate<forward>(load(2), loadFactors<N>(w));
    const auto d = rotate<forward>(load(3), loadFactors<N>(w + 2 * width));
    const auto t0 = c + d;
    const auto t1 = c - d;
    const auto b = rotate<forward>(load(1), loadFactors<N>(w + width));
    const auto a = load(0);
    const auto s0 = a + b;
    const auto s1 = a - b;
    put(0, s0 + t0);
    put(2, s0 - t0);
    put(1, plusQuarterTurn<forward>(s1, t1));
    put(3, minusQuarterTurn<forward>(s1, t1));
}

// The same on blocks `quarter` reals apart.
template <bool forward, typename T, typename Put>
TARN_INLINE void butterfly(const T* p, std::ptrdiff_t quarter, const T* w, Put put)
{
    butterflyOf<forward, blockLanes<T>>([=](int i) { return loadBlock(p + i * quarter); }, w, put);
}

// One stage of radix 4 over `count` elements at `first` of the work area: transforms of L / 4 points become transforms
// of L points. As many of them side by side as a vector holds, or a quarter has.
template <bool forward, int N, typename T, typename Sink>
inline void stageOf(const T* work, std::ptrdiff_t first, std::ptrdiff_t count, std::ptrdiff_t L, const T* twd,
                    Sink sink)
{
    if constexpr (N > blockLanes<T>) {
        if (L / 4 < N) {
            stageOf<forward, N / 2>(work, first, count, L, twd, sink);
            return;
        }
    }
    constexpr int width = 2 * N;
    const std::ptrdiff_t quarter = L / 2;
    const std::ptrdiff_t end = 2 * (first + count);
    for (std::ptrdiff_t block = 2 * first; block < end; block += 4 * quarter) {
        const T* w = twd;
        for (std::ptrdiff_t at = block; at < block + quarter; at += width, w += 3 * width) {
            butterflyOf<forward, N>(
                [=](int i) __attribute__((always_inline)) { return loadWork<N>(work, at + i * quarter); }, w,
                [&](int part, Complex<Pack<T, N>> x)
                    __attribute__((always_inline)) { sink.put(at + part * quarter, x); });
        }
    }
}

// A transform whose data is read by a source and worked on in `work`, which is aligned.
template <bool forward, typename T, typename Source>
class Transform {
public:
    Transform(Source source, T* work, int size, const T* twd)
        : source(source), work(work), size(size), twd(twd), shortest(firstStage(size))
    {
    }

    template <typename Sink>
    TARN_INLINE void run(Sink sink) const
    {
        if (size == 8) {
            eightElements(sink);
            return;
        }
        if (size == 16) {
            sixteenElements(sink);
            return;
        }
        if (size <= wholeSize) {
            firstPass(0, size / Source::streams);
            for (int L = shortest; L < size; L *= 4) {
                stageInWork(0, size, L);
            }
        } else {
            for (int at = 0; at < size / Source::streams; at += size / 4) {
                build(at, size / 4);
            }
        }
        stageOf<forward, workLanes<T>>(work, 0, size, size, stageTwiddles(twd, shortest, size), sink);
    }

private:
    // Up to this size every pass sweeps the whole array; above, the array is built up from parts of `partSize` that
    // stay in the first-level cache until their own stages are done. The order of the butterflies changes no result.
    static constexpr int wholeSize = 4096 / (sizeof(T) / 4);
    static constexpr int partSize = 1024 / (sizeof(T) / 4) / Source::streams;

    void build(int at, int L) const
    {
        if (L <= partSize) {
            firstPass(at, L);
            for (int length = shortest; length <= L; length *= 4) {
                stageInStreams(at, L, length);
            }
        } else {
            for (int part = 0; part < 4; ++part) {
                build(at + part * (L / 4), L / 4);
            }
            stageInStreams(at, L, L);
        }
    }

    void stageInStreams(int at, int count, int L) const
    {
        for (int stream = 0; stream < Source::streams; ++stream) {
            stageInWork(stream * (size / Source::streams) + at, count, L);
        }
    }

    void stageInWork(int at, int count, int L) const
    {
        stageOf<forward, workLanes<T>>(work, at, count, L, stageTwiddles(twd, shortest, L), WriteWork<T>{work});
    }

    // Transforms of 4 or 8 points in the stretch of `count` elements at `first` of every stream. The members are
    // copied: the compiler cannot know that the results do not overwrite them.
    void firstPass(int first, int count) const
    {
        const Source from = source;
        T* const to = work;
        const auto place = [=](int at, int group, int lane, int block) {
            return 2 * (at + from.laneOffset(lane, group) + blockLanes<T> * block);
        };
        const int end = first + count;
        if (shortest == 16) {
            for (int at = first; at < end; at += from.step(4)) {
                from.template transformQuads<forward>(
                    at, 4, [&](int lane, int block, Block<T> x) { storeWork(to, place(at, 4, lane, block), x); });
            }
            return;
        }
        for (int at = first; at < end; at += from.step(8)) {
            from.template transformQuads<forward>(
                at, 8, [&](int lane, int block, Block<T> x) { storeWork(to, place(at, 8, lane, block), x); });
            // The second four points of each group of eight join the first four.
            from.template transformQuads<forward>(at + 4, 8, [&](int lane, int block, Block<T> x) {
                const auto p = place(at, 8, lane, block);
                const auto odd = rotate<forward>(x, TwdTbl_03<T>.block(block * blockLanes<T>));
                const auto even = loadWork<blockLanes<T>>(to, p);
                storeWork(to, p, even + odd);
                storeWork(to, p + 8, even - odd);
            });
        }
    }

    // With the length known nothing is left of the loops, and no work area is needed.
    template <typename Sink>
    TARN_INLINE void sixteenElements(Sink sink) const
    {
        Source from = source;
        if constexpr (requires { from.size; }) {
            from.size = 16;
        }
        constexpr int width = 2 * blockLanes<T>;
        Block<T> x[4 * blocksPerQuad<T>];
        for (int at = 0; at < 16 / Source::streams; at += from.step(4)) {
            from.template transformQuads<forward>(at, 4, [&](int lane, int block, Block<T> value) {
                x[(at + from.laneOffset(lane, 4)) / blockLanes<T> + block] = value;
            });
        }
        for (int k = 0; k < blocksPerQuad<T>; ++k) {
            butterflyOf<forward, blockLanes<T>>([&](int i) { return x[k + i * blocksPerQuad<T>]; }, twd + 3 * width * k,
                                                [&](int part, Block<T> y) { sink.put(k * width + part * 8, y); });
        }
    }

    // Eight points are fewer than the lanes need.
    template <typename Sink>
    void eightElements(Sink sink) const
    {
        const auto element = [&](int i) { return source.element(i); };
        const auto even = fourPoint<forward>(Quad<T>{element(0), element(1), element(2), element(3)});
        const auto odd = fourPoint<forward>(Quad<T>{element(4), element(5), element(6), element(7)});
        for (int k = 0; k < 4; ++k) {
            const auto rotated = rotate<forward>(odd[k], Complex<T>{TwdTbl_03<T>.re[k], TwdTbl_03<T>.im[k]});
            setElement(k, even[k] + rotated);
            setElement(k + 4, even[k] - rotated);
        }
        for (int at = 0; at < 16; at += 2 * blockLanes<T>) {
            sink.put(at, loadBlock(work + at));
        }
    }

    TARN_INLINE void setElement(int k, Complex<T> x) const
    {
        T* p = work + k / blockLanes<T> * 2 * blockLanes<T> + k % blockLanes<T>;
        p[0] = x.re;
        p[blockLanes<T>] = x.im;
    }

    Source source;
    T* work;
    int size;
    const T* twd;
    int shortest;
};

} // namespace tarn::fft
