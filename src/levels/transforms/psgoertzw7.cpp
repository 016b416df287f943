// Kernels of single bins. The time of a sample is the latency of three operations, product, difference and sum, which
// no reordering may shorten: their order is part of the result. Two parts, and two bins, take hardly longer than one.
#include "levels/transforms/psgoertz.h"

#include "frame/simd.h"
#include "frame/simd_ordered.h"

using namespace tarn;

namespace {

// The recurrence, with lanes of their own for the parts and the bins.
template <typename X>
struct Resonator {
    X factor; // 2 cos w
    X last = splat<X>(0);
    X beforeLast = splat<X>(0);

    TARN_INLINE void take(X x)
    {
        const X next = addInOrder(sub(mul(factor, last), beforeLast), x);
        beforeLast = last;
        last = next;
    }
};

TARN_INLINE Tarn64f sampleOf(Tarn32f x) { return widen(x); }
TARN_INLINE Tarn64f sampleOf(Tarn16s x) { return convert<Tarn64f>(widen(x)); }

// One bin of real data.
template <typename T>
TARN_INLINE void realBin(const T* src, int len, Tarn32fc* val, const Tarn64fc* turn)
{
    const Tarn64fc w = loadElement(turn);
    Resonator<Tarn64f> bin{2 * w.re};
    for (Index i = 0; i < len; ++i) {
        bin.take(sampleOf(loadElement(src + i)));
    }
    store(val, {narrowFloat(bin.last * w.re - bin.beforeLast), narrowFloat(bin.last * w.im)});
}

// -- Complex data -----------------------------------------------------------------------------------------------------

// The parts of one element.
using Parts = Pack<Tarn64f, 2>;

// Elements that are converted at once: those of 16 bytes.
template <typename T>
inline constexpr int elementsAtOnce = 16 / static_cast<int>(sizeof(T));

template <int N, typename Take>
TARN_INLINE void takeEach(Pack<Tarn64f, N> parts, Take take)
{
    if constexpr (N > Parts::size) {
        takeEach(lowHalf(parts), take);
        takeEach(highHalf(parts), take);
    } else {
        take(parts);
    }
}

// Hands the elements to `take` one by one, as parts.
template <typename T, typename Take>
TARN_INLINE void takeAll(const T* src, int len, Take take)
{
    constexpr int step = elementsAtOnce<T>;
    Index i = 0;
    for (; i <= len - step; i += step) {
        takeEach(asDoubles(loadPack<step>(src + i)), take);
    }
    for (; i < len; ++i) {
        take(asDoubles(loadElement(src + i)));
    }
}

// The bins of the last states: u exp(i w) - v, the real part's products turned in the order -im sin - v + re cos.
template <typename X>
TARN_INLINE X binsOf(X u, X v, X cosines, X crossed)
{
    return addInOrder(sub(mul(swapParts(u), crossed), v), mul(u, cosines));
}

// What a turn contributes to lanes of parts: its cosine for both, and -sine, sine.
TARN_INLINE Parts cosineLanes(Tarn64fc turn) { return lanesOf(turn.re, turn.re); }
TARN_INLINE Parts crossedLanes(Tarn64fc turn) { return lanesOf(-turn.im, turn.im); }

TARN_INLINE void storeBins(Tarn64fc* val, Parts bin) { store(val, reinterpretPack<Tarn64fc>(bin)); }
TARN_INLINE void storeBins(Tarn32fc* val, Parts bin) { store(val, fromDoubles<Tarn32fc>(bin)); }

template <typename T, typename D>
TARN_INLINE void oneBin(const T* src, int len, D* val, const Tarn64fc* turns)
{
    const Tarn64fc w = loadElement(turns);
    const Parts cosines = cosineLanes(w);
    Resonator<Parts> bin{add(cosines, cosines)};
    takeAll(src, len, [&](Parts x) { bin.take(x); });
    storeBins(val, binsOf(bin.last, bin.beforeLast, cosines, crossedLanes(w)));
}

template <typename X>
TARN_INLINE X roundedToSingle(X x)
{
    return widen(narrowFloat(x));
}

// Both bins side by side. In single precision the states are rounded before bins are made of them.
template <bool statesRounded, typename T, typename D>
TARN_INLINE void twoBins(const T* src, int len, D* val, const Tarn64fc* turns)
{
    const Tarn64fc first = loadElement(turns);
    const Tarn64fc second = loadElement(turns + 1);
    const auto cosines = join(cosineLanes(first), cosineLanes(second));
    Resonator<Pack<Tarn64f, 4>> bins{add(cosines, cosines)};
    takeAll(src, len, [&](Parts x) { bins.take(join(x, x)); });
    if constexpr (statesRounded) {
        bins.last = roundedToSingle(bins.last);
        bins.beforeLast = roundedToSingle(bins.beforeLast);
    }
    const auto both = binsOf(bins.last, bins.beforeLast, cosines, join(crossedLanes(first), crossedLanes(second)));
    storeBins(val, lowHalf(both));
    storeBins(val + 1, highHalf(both));
}

} // namespace

#define TARN_DEFINE_GOERTZEL(NAME, T, D, ...) \
    void NAME(const T* pSrc, int len, D* pVal, const Tarn64fc* pTurns) { __VA_ARGS__(pSrc, len, pVal, pTurns); }

TARN_DEFINE_GOERTZEL(ownps_Goertz_PX_32f, Tarn32f, Tarn32fc, realBin)
TARN_DEFINE_GOERTZEL(ownps_Goertz_PX_16s_Sfs, Tarn16s, Tarn32fc, realBin)
TARN_DEFINE_GOERTZEL(ownps_dkGoertz_PX_32fc, Tarn32fc, Tarn32fc, oneBin)
TARN_DEFINE_GOERTZEL(ownps_dkGoertz_PX_64fc, Tarn64fc, Tarn64fc, oneBin)
TARN_DEFINE_GOERTZEL(ownps_dkGoertz_PX_16sc, Tarn16sc, Tarn32fc, oneBin)
TARN_DEFINE_GOERTZEL(ownps_dkGoertzTwo_PX_32fc, Tarn32fc, Tarn32fc, twoBins<true>)
TARN_DEFINE_GOERTZEL(ownps_dkGoertzTwo_PX_64fc, Tarn64fc, Tarn64fc, twoBins<false>)
TARN_DEFINE_GOERTZEL(ownps_dkGoertzTwo_PX_16sc, Tarn16sc, Tarn32fc, twoBins<false>)
