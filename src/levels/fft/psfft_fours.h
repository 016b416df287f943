// Transforms of 8, 16 and 32 points in packs of four lanes: all of them in registers.
#pragma once

#include "levels/fft/psfft_wide.h"

namespace tarn::fft {

// Of pairs in natural order.
template <typename T>
struct FoursOfPairs {
    static constexpr int W = groupLanes;

    int size;
    const T* src;

    static constexpr bool takes(int size) { return size <= 32; }

    template <bool forward, typename Sink>
    TARN_INLINE void run(const T* twd, Sink sink) const
    {
        if (size == 8) {
            eightPoints<forward>(sink);
        } else if (size == 16) {
            oneStage<forward, 1>(twd, sink);
        } else {
            oneStage<forward, 2>(twd, sink);
        }
    }

private:
    // The even points and the odd ones are two transforms of four points, in a register of two pairs.
    template <bool forward, typename Sink>
    TARN_INLINE void eightPoints(Sink sink) const
    {
        const auto x = fourPointPairs<forward>(
            std::array{loadPack<W>(src), loadPack<W>(src + 8), loadPack<W>(src + 4), loadPack<W>(src + 12)});
        const auto even = deinterleave(lowHalves(x[0], x[1]), lowHalves(x[2], x[3]));
        const auto odd = deinterleave(highHalves(x[0], x[1]), highHalves(x[2], x[3]));
        const auto rotated =
            rotate<forward>(odd, Complex<Pack<T, W>>{loadAligned<W>(TwdTbl_03<T>.re), loadAligned<W>(TwdTbl_03<T>.im)});
        sink.put(0, even + rotated);
        sink.put(8, even - rotated);
    }

    template <bool forward, int quads, typename Sink>
    TARN_INLINE void oneStage(const T* stage, Sink sink) const
    {
        std::array<std::array<Complex<Pack<T, W>>, 4>, quads> x;
        repeat<quads>([&](auto e) __attribute__((always_inline)) {
            const auto element = [&](int quarter) __attribute__((always_inline))
            {
                return loadPairs<W>(src + 8 * (e + quarter * quads));
            };
            const auto result = rowsOfQuads<forward, T, W>({element(0), element(2), element(1), element(3)});
            x[e] = {result[0], result[2], result[1], result[3]};
        });
        if constexpr (quads == 2) {
            const Complex<Pack<T, W>> roots = {loadAligned<W>(TwdTbl_03<T>.re), loadAligned<W>(TwdTbl_03<T>.im)};
            repeat<4>([&](auto j) __attribute__((always_inline)) {
                const auto even = x[0][j];
                const auto odd = rotate<forward>(x[1][j], roots);
                x[0][j] = even + odd;
                x[1][j] = even - odd;
            });
        }
        const int group = factorLanes<T>(16 * quads);
        repeat<quads>([&](auto e) __attribute__((always_inline)) {
            butterfly<forward>(
                [&](int i) __attribute__((always_inline)) { return x[e][i]; },
                factorsAt<W>(factorsOf(stage, group, 4 * e), group),
                [&](int quarter, Complex<Pack<T, W>> y)
                    __attribute__((always_inline)) { sink.put(8 * (quads * quarter + e), y); });
        });
    }
};

} // namespace tarn::fft
