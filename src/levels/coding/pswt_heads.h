// Sums in double precision that go across the beginning of a block, where it goes on far enough: the line is filled
// anew behind it, so that samples need not go through.
#pragma once

#include "frame/simd.h"
#include "levels/coding/pswt_lines.h"

namespace tarn {

// Filters of more taps take each sample through the line.
inline constexpr int mostHeadTaps = 64;

inline constexpr int sumsAtOnce = 4;

// The samples of a line, the oldest first, then those of a block; and room for loads of what is not needed.
class HeadSamples {
public:
    HeadSamples(const CircularLine& line, const Tarn32f* src, int count)
    {
        copyElements(line.pBuffer + line.pos, samples, line.len);
        copyElements(src, samples + line.len, count);
        store(samples + line.len + count, splat<Pack<Tarn32f, room>>(0));
    }

    // out[k] = the sum of the samples from first + step k on times len taps, in the order of the line; `out` has room
    // for whole groups of sums.
    template <int step>
    void sum(int first, const Tarn32f* taps, int len, int count, Tarn32f* out) const
    {
        for (int k = 0; k < count; k += sumsAtOnce) {
            const Tarn32f* const begin = samples + first + step * k;
            auto total = splat<Pack<Tarn64f, sumsAtOnce>>(0);
            for (int i = 0; i < len; ++i) {
                total = add(total, mul(widen(every<step>(begin + i)), splat<Pack<Tarn64f, sumsAtOnce>>(taps[i])));
            }
            store(out + k, narrowFloat(total));
        }
    }

    static constexpr int mostSums = (mostHeadTaps + sumsAtOnce - 1) / sumsAtOnce * sumsAtOnce + sumsAtOnce;

private:
    static constexpr int room = 2 * sumsAtOnce;

    template <int step>
    static TARN_INLINE Pack<Tarn32f, sumsAtOnce> every(const Tarn32f* p)
    {
        if constexpr (step == 2) {
            return evenElements(loadPack<2 * sumsAtOnce>(p));
        } else {
            return loadPack<sumsAtOnce>(p);
        }
    }

    // Few: a call would take longer.
    static TARN_INLINE void copyElements(const Tarn32f* src, Tarn32f* dst, int count)
    {
        int i = 0;
        for (; i <= count - sumsAtOnce; i += sumsAtOnce) {
            store(dst + i, loadPack<sumsAtOnce>(src + i));
        }
        for (; i < count; ++i) {
            moveElement(dst + i, src + i);
        }
    }

    Tarn32f samples[2 * mostHeadTaps + room + sumsAtOnce * 2];
};

} // namespace tarn
