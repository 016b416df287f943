// Kernels of FIR filters with 16-bit taps and samples: sums modulo 2^32, shifted and saturated.
#include "frame/delay_line.h"
#include "frame/simd.h"
#include "levels/fir/psfir.h"
#include "levels/fir/psfir_shift.h"

#include <bit>

using namespace tarn;

namespace {

// -- Real filters -----------------------------------------------------------------------------------------------------

// Outputs that are computed together, from the same registers of taps.
constexpr int outputsTogether = 4;
constexpr int samplesAtOnce = 8;
constexpr int sumsAtOnce = 4;

// The taps of a state as they lie in memory: copy c of the reversed taps, with zeros behind it.
const Tarn16s* tapsCopy(const TarnsFIRState32s_16s* state, int c)
{
    return state->pTapsTable + c * state->tapsTableStride + c + 1;
}

// One output, reading nothing but its window.
TARN_INLINE Tarn32s filterWindow(const Tarn16s* x, const Tarn16s* taps, int tapsLen)
{
    auto sums = splat<Pack<Tarn32s, sumsAtOnce>>(0);
    int i = 0;
    for (; i <= tapsLen - samplesAtOnce; i += samplesAtOnce) {
        sums = add(sums, mulAddPairs(loadPack<samplesAtOnce>(x + i), loadPack<samplesAtOnce>(taps + i)));
    }
    Tarn32s sum = foldLanes(sums, add);
    for (; i < tapsLen; ++i) {
        sum = add(sum, Tarn32s{loadElement(x + i)} * loadElement(taps + i));
    }
    return sum;
}

// Four outputs. It reads whole registers of samples and taps: what is behind the last tap is multiplied by zero.
TARN_INLINE Pack<Tarn32s, sumsAtOnce> filterFour(const Tarn16s* x, const Tarn16s* taps, int tapsLen)
{
    const auto zero = splat<Pack<Tarn32s, sumsAtOnce>>(0);
    Pack<Tarn32s, sumsAtOnce> sums[outputsTogether] = {zero, zero, zero, zero};
    for (int i = 0; i < tapsLen; i += samplesAtOnce) {
        const auto w = loadPack<samplesAtOnce>(taps + i);
        for (int k = 0; k < outputsTogether; ++k) {
            sums[k] = add(sums[k], mulAddPairs(loadPack<samplesAtOnce>(x + i + k), w));
        }
    }
    return sumsOfLanes(sums[0], sums[1], sums[2], sums[3]);
}

template <typename Shift>
void filterBlock(const Tarn16s* src, Tarn16s* dst, int len, const TarnsFIRState32s_16s* state, Shift shift)
{
    const int tapsLen = state->tapsLen;
    const Tarn16s* const taps = tapsCopy(state, 0);
    // The samples are len + tapsLen - 1: so many outputs can be computed without a look beyond them.
    const int beyond = (tapsLen + samplesAtOnce - 1) / samplesAtOnce * samplesAtOnce - tapsLen;
    constexpr int block = 2 * outputsTogether;
    int i = 0;
    for (; i <= len - block - beyond; i += block) {
        const auto first = filterFour(src + i, taps, tapsLen);
        const auto second = filterFour(src + i + outputsTogether, taps, tapsLen);
        store(dst + i, narrowSaturated<Tarn16s>(shift(join(first, second))));
    }
    for (; i < len; ++i) {
        store(dst + i, narrowSaturated<Tarn16s>(shift(filterWindow(src + i, taps, tapsLen))));
    }
}

// -- Complex filters --------------------------------------------------------------------------------------------------

// Two lists of the reversed taps: (re, -im) and (im, re). A pair product with one of them is a part of the result.
struct PairLists {
    const Tarn16sc* re;
    const Tarn16sc* im;
};

PairLists pairLists(const TarnsFIRState32sc_16sc* state)
{
    const auto* const first = reinterpret_cast<const Tarn16sc*>(state->pTapsTable);
    return {first, first + state->tapsLen};
}

TARN_INLINE Tarn32sc filterWindow(const Tarn16sc* x, PairLists taps, int tapsLen)
{
    Tarn32sc sum{0, 0};
    for (int i = 0; i < tapsLen; ++i) {
        const Tarn16sc sample = loadElement(x + i);
        sum.re = add(sum.re, mulAddPairs(sample, taps.re[i]));
        sum.im = add(sum.im, mulAddPairs(sample, taps.im[i]));
    }
    return sum;
}

// Two registers of outputs: their four registers of sums leave room for the taps and the samples.
template <typename Shift>
TARN_INLINE void filterRegisters(const Tarn16sc* src, Tarn16sc* dst, PairLists taps, int tapsLen, Shift shift)
{
    constexpr int step = sumsAtOnce;
    const auto zero = splat<Pack<Tarn32s, sumsAtOnce>>(0);
    Pack<Tarn32s, sumsAtOnce> re[2] = {zero, zero};
    Pack<Tarn32s, sumsAtOnce> im[2] = {zero, zero};
    for (int i = 0; i < tapsLen; ++i) {
        const auto reTap = splat<Pack<Tarn16sc, step>>(taps.re[i]);
        const auto imTap = splat<Pack<Tarn16sc, step>>(taps.im[i]);
        for (int k = 0; k < 2; ++k) {
            const auto x = loadPack<step>(src + i + k * step);
            re[k] = add(re[k], mulAddPairs(x, reTap));
            im[k] = add(im[k], mulAddPairs(x, imTap));
        }
    }
    for (int k = 0; k < 2; ++k) {
        const auto sums = reinterpretPack<Tarn32s>(complexFrom<Tarn32sc>(re[k], im[k]));
        store(dst + k * step, reinterpretPack<Tarn16sc>(narrowSaturated<Tarn16s>(shift(sums))));
    }
}

template <typename Shift>
void filterBlock(const Tarn16sc* src, Tarn16sc* dst, int len, const TarnsFIRState32sc_16sc* state, Shift shift)
{
    constexpr int block = 2 * sumsAtOnce;
    const int tapsLen = state->tapsLen;
    const PairLists taps = pairLists(state);
    int i = 0;
    for (; i <= len - block; i += block) {
        filterRegisters(src + i, dst + i, taps, tapsLen, shift);
    }
    for (; i < len; ++i) {
        store(dst + i, toSample(filterWindow(src + i, taps, tapsLen), shift));
    }
}

// -- Delay line -------------------------------------------------------------------------------------------------------

template <typename S>
void moveSamples(const S* src, S* dst, int len)
{
    tarn::move(src, dst, len);
}

// The first outputs come from the delay buffer, until the window has left it; the others read the caller's samples.
template <typename State, typename S>
void filter(const S* src, S* dst, int len, State* state, int scaleFactor)
{
    const int tapsLen = state->tapsLen;
    S* const line = state->pDlyLine;
    if (state->dlyLineIdx != 0) {
        moveSamples(line + state->dlyLineIdx, line, tapsLen);
        state->dlyLineIdx = 0;
    }
    const int head = std::min(len, tapsLen);
    moveSamples(src, line + tapsLen, head);
    withShift(state->tapsFactor, scaleFactor, [=](auto shift) {
        filterBlock(line + 1, dst, head, state, shift);
        if (len > head) {
            filterBlock(src + 1, dst + head, len - head, state, shift);
        }
    });
    if (len < tapsLen) {
        moveSamples(line + len, line, tapsLen);
    } else {
        moveSamples(src + len - tapsLen, line, tapsLen);
    }
}

template <typename State, typename S>
TARN_INLINE S* enter(State* state, S src)
{
    return enterSample(state->pDlyLine, state->dlyLineIdx, state->tapsLen, src);
}

// -- Float taps -------------------------------------------------------------------------------------------------------

constexpr std::uint32_t signOfSingle = 0x80000000;
constexpr std::uint32_t infiniteSingle = 0x7F800000;

// The value of a tap, also of a denormal one whose caller has the processor take those for zero. In double precision no
// power of two that scales taps leaves the range.
Tarn64f exactDouble(Tarn32f x)
{
    constexpr std::uint32_t firstNormal = 0x00800000;
    constexpr Tarn64f smallest = 0x1p-149;
    const auto bits = std::bit_cast<std::uint32_t>(x);
    const std::uint32_t magnitude = bits & ~signOfSingle;
    if (magnitude >= firstNormal) {
        return x;
    }
    const Tarn64f value = static_cast<Tarn32s>(magnitude) * smallest;
    return bits == magnitude ? value : -value;
}

} // namespace

void ownFIRSR32s_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, TarnsFIRState32s_16s* pState,
                         int scaleFactor)
{
    filter(pSrc, pDst, numIters, pState, scaleFactor);
}

void ownFIRSR32sc_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters, TarnsFIRState32sc_16sc* pState,
                           int scaleFactor)
{
    filter(pSrc, pDst, numIters, pState, scaleFactor);
}

void ownFIRSROne32s_16s_Sfs(TarnsFIRState32s_16s* pState, Tarn16s src, Tarn16s* pDstVal, int scaleFactor)
{
    const Tarn32s sum = filterWindow(enter(pState, src), tapsCopy(pState, 3), pState->tapsLen);
    withShift(pState->tapsFactor, scaleFactor,
              [=](auto shift) { store(pDstVal, narrowSaturated<Tarn16s>(shift(sum))); });
}

void ownFIRSROne32sc_16sc_Sfs(TarnsFIRState32sc_16sc* pState, Tarn16sc src, Tarn16sc* pDstVal, int scaleFactor)
{
    const Tarn32sc sum = filterWindow(enter(pState, src), pairLists(pState), pState->tapsLen);
    withShift(pState->tapsFactor, scaleFactor, [=](auto shift) { store(pDstVal, toSample(sum, shift)); });
}

int scale32fTaps32s(const Tarn32f* pSrc, Tarn32s* pDst, int len)
{
    constexpr Tarn64f limit = 32767;
    // Of magnitudes that are numbers, by their bits.
    std::uint32_t largest = 0;
    for (int i = 0; i < len; ++i) {
        const std::uint32_t bits = std::bit_cast<std::uint32_t>(loadElement(pSrc + i)) & ~signOfSingle;
        largest = bits > infiniteSingle ? largest : std::max(largest, bits);
    }
    Tarn64f scale = 1;
    int exponent = 0;
    // Without a finite magnitude above zero there is nothing to scale, and no end to it.
    if (largest != 0 && largest != infiniteSingle) {
        Tarn64f magnitude = exactDouble(std::bit_cast<Tarn32f>(largest));
        for (; magnitude > limit; ++exponent) {
            magnitude *= 0.5;
            scale *= 0.5;
        }
        for (; exponent <= 0 && 2 * magnitude < limit; --exponent) {
            magnitude *= 2;
            scale *= 2;
        }
    }
    for (int i = 0; i < len; ++i) {
        const Tarn64f scaled = scale * exactDouble(loadElement(pSrc + i));
        store(pDst + i, truncateToInteger(scaled + (scaled < 0 ? -0.5 : 0.5)));
    }
    return exponent;
}
