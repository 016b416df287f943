// The passes of the radix-4 core: a first pass that reads the data from wherever it lies, stages of radix 4 in the
// working arrangement, and a last stage that writes to the destination.
#pragma once

#include "levels/fft/psfft_sources.h"
#include "levels/fft/psfft_wide.h"

namespace tarn::fft {

// One stage of radix 4 over `count` elements at `first` of a work area of blocks of W: transforms of L / 4 points
// become transforms of L points.
template <bool forward, int W, typename T, typename Sink>
inline void stageOf(const T* work, std::ptrdiff_t first, std::ptrdiff_t count, int L, const T* stage, Sink sink)
{
    constexpr int width = 2 * W;
    const std::ptrdiff_t quarter = L / 2;
    const std::ptrdiff_t end = 2 * (first + count);
    for (std::ptrdiff_t block = 2 * first; block < end; block += 4 * quarter) {
        const T* w = stage;
        for (std::ptrdiff_t at = block; at < block + quarter; at += width) {
            const auto load = [=](int i) __attribute__((always_inline))
            {
                return loadWork<W>(work + at + i * quarter);
            };
            const auto put = [&](int part, Complex<Pack<T, W>> x) __attribute__((always_inline))
            {
                sink.put(at + part * quarter, x);
            };
            if constexpr (W == workLanes<T>) {
                butterfly<forward>(load, factorsAt<W>(w, W), put);
                w += 3 * width;
            } else {
                const int group = factorLanes<T>(L);
                const int k = static_cast<int>(at - block) / 2;
                butterfly<forward>(load, factorsAt<W>(factorsOf(stage, group, k), group), put);
            }
        }
    }
}

// A transform whose data is read by a source and worked on in `work`, which is aligned.
template <bool forward, typename T, typename Source>
class Transform {
public:
    Transform(Source source, T* work, int size, const T* twd)
        : source(source), work(work), size(size), twd(twd), shortest(firstStage(size)),
          firstInWork(isWide ? 4 * shortest : shortest)
    {
    }

    template <typename Sink>
    TARN_INLINE void run(Sink sink) const
    {
        if constexpr (!isWide) {
            if (size == 8) {
                eightElements(sink);
                return;
            }
            if (size == 16) {
                sixteenElements(sink);
                return;
            }
        }
        constexpr int streams = Source::streams;
        int L = firstInWork;
        if (size <= wholeSize) {
            firstPass(0, size / streams);
        } else {
            int part = size / 4;
            while (part > size / streams) {
                part /= 4;
            }
            for (int at = 0; at < size / streams; at += part) {
                build(at, part);
            }
            L = 4 * part;
        }
        for (; L < size; L *= 4) {
            stageInWork(0, size, L);
        }
        stageOf<forward, W>(work, 0, size, size, stageTwiddles(twd, shortest, size), sink);
    }

private:
    static constexpr int W = Source::width;
    static constexpr bool isWide = W > blockLanes<T>;

    // Up to this size every pass sweeps the whole array; above, the array is built up from parts of `partSize` that
    // stay in the first-level cache until their own stages are done. The order of the butterflies changes no result.
    static constexpr int wholeSize = 4096 / (sizeof(T) / 4);
    static constexpr int partSize = 1024 / (sizeof(T) / 4) / Source::streams;

    void build(int at, int L) const
    {
        if (L <= partSize) {
            firstPass(at, L);
            for (int length = firstInWork; length <= L; length *= 4) {
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
        stageOf<forward, W>(work, at, count, L, stageTwiddles(twd, shortest, L), WriteWork<T>{work});
    }

    // Transforms of 4 or 8 points, or the first stage as well, in the stretch of `count` elements at `first` of every
    // stream. The members are copied: the compiler cannot know that the results do not overwrite them.
    void firstPass(int first, int count) const
    {
        if constexpr (isWide) {
            if (shortest == 16) {
                weave<forward, 1>(source, first, count, twd, work);
            } else {
                weave<forward, 2>(source, first, count, twd, work);
            }
        } else {
            narrowFirstPass(first, count);
        }
    }

    void narrowFirstPass(int first, int count) const
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
                    at, 4, [&](int lane, int block, Block<T> x) { storeWork(to + place(at, 4, lane, block), x); });
            }
            return;
        }
        for (int at = first; at < end; at += from.step(8)) {
            from.template transformQuads<forward>(
                at, 8, [&](int lane, int block, Block<T> x) { storeWork(to + place(at, 8, lane, block), x); });
            // The second four points of each group of eight join the first four.
            from.template transformQuads<forward>(at + 4, 8, [&](int lane, int block, Block<T> x) {
                T* const p = to + place(at, 8, lane, block);
                const auto odd = rotate<forward>(x, TwdTbl_03<T>.block(block * blockLanes<T>));
                const auto even = loadBlock(p);
                storeWork(p, even + odd);
                storeWork(p + 8, even - odd);
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
            const int group = factorLanes<T>(16);
            butterfly<forward>([&](int i) { return x[k + i * blocksPerQuad<T>]; },
                               factorsAt<blockLanes<T>>(factorsOf(twd, group, k * blockLanes<T>), group),
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
    int firstInWork; // the length of the first stage that is not the first pass's
};

} // namespace tarn::fft
