// Adaptive filters in floating point: y = sum of taps times window, then taps += e window. Nothing can be done for
// several samples at once, since each needs the taps of the one before: vectors run along the taps.
//
// The pass that changes the taps for a sample sums their products with the next window on its way. It takes the sums in
// the order of a pass of their own, so that the results are those of the rule, however long the block.
#include "frame/delay_line.h"
#include "frame/reduce.h"
#include "frame/simd_round.h"
#include "levels/recursive/pslms.h"

using namespace tarn;

namespace {

// -- Passes over the taps ---------------------------------------------------------------------------------------------

using Four = Pack<Tarn32f, 4>;

// How an array is read: anywhere, or on a boundary of four elements.
struct Anywhere {
    template <typename X, typename T>
    static TARN_INLINE X load(const T* p)
    {
        if constexpr (isPack<X>) {
            return loadSamples<X::size>(p);
        } else {
            return static_cast<X>(loadElement(p));
        }
    }
    template <typename X>
    static TARN_INLINE void put(Tarn32f* p, X x)
    {
        store(p, x);
    }
};
struct OnBoundary {
    template <typename X>
    static TARN_INLINE X load(const Tarn32f* p)
    {
        if constexpr (isPack<X>) {
            return loadAligned<X::size>(p);
        } else {
            return *p;
        }
    }
    template <typename X>
    static TARN_INLINE void put(Tarn32f* p, X x)
    {
        if constexpr (isPack<X>) {
            storeAligned(p, x);
        } else {
            *p = x;
        }
    }
};

// Where a pass has come to. Packs are reached from here at constant distances.
template <typename Tap, typename S>
struct Place {
    Tap* taps;
    const S* window;
    const S* next; // the window after that

    TARN_INLINE void advance(int count)
    {
        taps += count;
        window += count;
        next += count;
    }
};

// The sum of the terms of all taps. Those of four at a time go into four registers in turn, so that few of them wait
// for each other: all wait for the error of the sample before. What is left over is taken one by one.
template <typename At, typename Term>
TARN_INLINE Tarn32f sumOfTerms(At at, int tapsLen, Term term)
{
    constexpr int step = Four::size;
    constexpr int turn = 4 * step;
    Four sums[4];
    repeat<4>([&](auto k) __attribute__((always_inline)) { sums[k] = splat<Four>(0); });
    int left = tapsLen;
    for (; left >= turn; left -= turn) {
        repeat<4>([&](auto k) __attribute__((always_inline)) { sums[k] = add(sums[k], term(Four{}, at, k * step)); });
        at.advance(turn);
    }
    if (left >= 2 * step) {
        sums[0] = add(sums[0], term(Four{}, at, 0));
        sums[1] = add(sums[1], term(Four{}, at, step));
        at.advance(2 * step);
        left -= 2 * step;
    }
    if (left >= step) {
        sums[2] = add(sums[2], term(Four{}, at, 0));
        at.advance(step);
        left -= step;
    }
    const Tarn32f sum = foldLanes(add(add(sums[0], sums[1]), add(sums[2], sums[3])), add);
    if (left == 0) {
        return sum;
    }
    Tarn32f rest = 0;
    for (; left > 0; --left) {
        rest = add(rest, term(Tarn32f{}, at, 0));
        at.advance(1);
    }
    return add(sum, rest);
}

template <typename Taps, typename Window, typename S>
TARN_INLINE Tarn32f filterWindow(const Tarn32f* taps, const S* window, int tapsLen)
{
    return sumOfTerms(
        Place<const Tarn32f, S>{taps, window, window}, tapsLen, // there is no pass over a next one
        [](auto kind, const auto& at, int i) __attribute__((always_inline)) {
            using X = decltype(kind);
            return mul(Taps::template load<X>(at.taps + i), Window::template load<X>(at.window + i));
        });
}

// Changes some taps and gives them.
template <typename X, typename Taps, typename Window, typename S>
TARN_INLINE X adaptTaps(Tarn32f* taps, Tarn32f e, const S* window)
{
    const X changed = add(Taps::template load<X>(taps), mul(splat<X>(e), Window::template load<X>(window)));
    Taps::put(taps, changed);
    return changed;
}

template <typename Taps, typename Window, typename S>
TARN_INLINE void adaptToWindow(Tarn32f* taps, Tarn32f e, const S* window, int tapsLen)
{
    int i = 0;
    for (; i <= tapsLen - Four::size; i += Four::size) {
        adaptTaps<Four, Taps, Window>(taps + i, e, window + i);
    }
    for (; i < tapsLen; ++i) {
        adaptTaps<Tarn32f, Taps, Window>(taps + i, e, window + i);
    }
}

template <typename Taps, typename Window>
TARN_INLINE Tarn32f adaptAndFilter(Tarn32f* taps, Tarn32f e, const Tarn32f* window, const Tarn32f* next, int tapsLen)
{
    return sumOfTerms(
        Place<Tarn32f, Tarn32f>{taps, window, next},
        tapsLen, [e](auto kind, const auto& at, int i) __attribute__((always_inline)) {
            using X = decltype(kind);
            return mul(adaptTaps<X, Taps, Window>(at.taps + i, e, at.window + i),
                       Window::template load<X>(at.next + i));
        });
}

// -- Samples ----------------------------------------------------------------------------------------------------------

// A block's outputs from sums, and the factor of its errors. Taps for 16-bit samples count 2^-16.
template <typename S>
struct BlockScale;
template <>
struct BlockScale<Tarn32f> {
    static TARN_INLINE Tarn32f output(Tarn32f sum) { return sum; }
    static TARN_INLINE Tarn32f step(Tarn32f mu) { return 2 * mu; }
};
template <>
struct BlockScale<Tarn16s> {
    static TARN_INLINE Tarn32f output(Tarn32f sum) { return sum * 0x1p-16F; }
    static TARN_INLINE Tarn32f step(Tarn32f mu) { return mu * 0x1p-15F; }
};

template <typename S>
TARN_INLINE S asSample(Tarn32f y)
{
    if constexpr (std::is_same_v<S, Tarn32f>) {
        return y;
    } else {
        return roundLimited<S>(y);
    }
}

// len samples, the window of each given by its number. Each reference is read before the output is written, which may
// be its place.
template <typename Window, typename S, typename WindowOf>
TARN_INLINE void adaptBlock(const S* pRef, S* pDst, int len, Tarn32f mu, Tarn32f* taps, int tapsLen, WindowOf windowOf)
{
    const Tarn32f step = BlockScale<S>::step(mu);
    const Tarn32f* window = windowOf(0);
    Tarn32f sum = filterWindow<OnBoundary, Window>(taps, window, tapsLen);
    for (int n = 0;; ++n) {
        const Tarn32f y = BlockScale<S>::output(sum);
        const Tarn32f e = (static_cast<Tarn32f>(loadElement(pRef + n)) - y) * step;
        store(pDst + n, asSample<S>(y));
        if (n + 1 == len) {
            adaptToWindow<OnBoundary, Window>(taps, e, window, tapsLen);
            return;
        }
        const Tarn32f* const next = windowOf(n + 1);
        sum = adaptAndFilter<OnBoundary, Window>(taps, e, window, next, tapsLen);
        window = next;
    }
}

// The upper half of a doubled line has room for as many samples as there are up to its end. They enter it at once, and
// the lower half when the windows have gone over them: the first one still begins there.
template <typename State, typename S>
TARN_INLINE void adaptByCopies(const S* pSrc, const S* pRef, S* pDst, int len, Tarn32f mu, State* state)
{
    const int tapsLen = state->tapsLen;
    const std::ptrdiff_t stride = copyStride(state);
    Tarn32f* const line = state->pDlyLine;
    int begin = placeInRing(state->dlyLineIndex, tapsLen);
    while (len > 0) {
        const int count = std::min(len, tapsLen - begin);
        Tarn32f* const entered = line + begin + tapsLen;
        takeSamples(pSrc, entered, count);
        for (int k = 1; k < lineCopies; ++k) {
            copy<Tarn32f>(entered, entered + k * stride, count);
        }
        const int first = begin + 1;
        adaptBlock<OnBoundary>(
            pRef, pDst, count, mu, state->pTaps, tapsLen, [=](int n) __attribute__((always_inline)) {
                const int at = first + n;
                return line + (-at & (lineCopies - 1)) * stride + at;
            });
        for (int k = 0; k < lineCopies; ++k) {
            copy<Tarn32f>(entered, line + k * stride + begin, count);
        }
        begin = begin + count == tapsLen ? 0 : begin + count;
        pSrc += count;
        pRef += count;
        pDst += count;
        len -= count;
    }
    state->dlyLineIndex = begin;
}

template <typename S>
TARN_INLINE void adaptOne(S src, S refVal, S* pDstVal, Tarn32f* taps, int tapsLen, Tarn32f mu, S* line, int* pIndex)
{
    int begin = loadElement(pIndex);
    const S* const window = enterSample(line, begin, tapsLen, src);
    store(pIndex, begin);
    const Tarn32f y = filterWindow<Anywhere, Anywhere>(taps, window, tapsLen);
    store(pDstVal, asSample<S>(y));
    adaptToWindow<Anywhere, Anywhere>(taps, (static_cast<Tarn32f>(refVal) - y) * (2 * mu), window, tapsLen);
}

} // namespace

void ownsLMS_32f(const Tarn32f* pSrc, const Tarn32f* pRef, Tarn32f* pDst, int len, Tarn32f mu, Tarn32f* pTaps,
                 int tapsLen)
{
    adaptBlock<Anywhere>(pRef, pDst, len, mu, pTaps, tapsLen, [=](int n) { return pSrc + n; });
}
void ownsLMS_32f16s(const Tarn32f* pSrc, const Tarn16s* pRef, Tarn16s* pDst, int len, Tarn32f mu, Tarn32f* pTaps,
                    int tapsLen)
{
    adaptBlock<Anywhere>(pRef, pDst, len, mu, pTaps, tapsLen, [=](int n) { return pSrc + n; });
}

void ownLMS_32f(const Tarn32f* pSrc, const Tarn32f* pRef, Tarn32f* pDst, int len, Tarn32f mu,
                TarnsFIRLMSState_32f* pState)
{
    adaptByCopies(pSrc, pRef, pDst, len, mu, pState);
}
void ownLMS32f_16s(const Tarn16s* pSrc, const Tarn16s* pRef, Tarn16s* pDst, int len, Tarn32f mu,
                   TarnsFIRLMSState32f_16s* pState)
{
    adaptByCopies(pSrc, pRef, pDst, len, mu, pState);
}

void ownLMSOne_32f(Tarn32f src, Tarn32f refVal, Tarn32f* pDstVal, Tarn32f* pTapsInv, int tapsLen, Tarn32f mu,
                   Tarn32f* pDlyLine, int* pDlyLineIndex)
{
    adaptOne(src, refVal, pDstVal, pTapsInv, tapsLen, mu, pDlyLine, pDlyLineIndex);
}
void ownLMSOne32f_16s(Tarn16s src, Tarn16s refVal, Tarn16s* pDstVal, Tarn32f* pTapsInv, int tapsLen, Tarn32f mu,
                      Tarn16s* pDlyLine, int* pDlyLineIndex)
{
    adaptOne(src, refVal, pDstVal, pTapsInv, tapsLen, mu, pDlyLine, pDlyLineIndex);
}
