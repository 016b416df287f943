// The normalised adaptive filter of integer taps in Q15, computed in double precision.
#include "frame/delay_line.h"
#include "frame/reduce.h"
#include "frame/simd_mul.h"
#include "frame/simd_round.h"
#include "levels/recursive/pslms.h"

using namespace tarn;

namespace {

constexpr int atOnce = 4;
using Doubles = Pack<Tarn64f, atOnce>;

// Both are exact.
TARN_INLINE Doubles samplesAsDoubles(const Tarn16s* p) { return widen(loadSamples<atOnce>(p)); }
TARN_INLINE Doubles tapsAsDoubles(const Tarn32s* p) { return convert<Tarn64f>(loadPack<atOnce>(p)); }

// The sum of products, exact up to 2^53.
Tarn64f filterWindow(const Tarn32s* taps, const Tarn16s* window, int tapsLen)
{
    Doubles sums = splat<Doubles>(0);
    int i = 0;
    for (; i <= tapsLen - atOnce; i += atOnce) {
        sums = add(sums, mul(tapsAsDoubles(taps + i), samplesAsDoubles(window + i)));
    }
    Tarn64f rest = 0;
    for (; i < tapsLen; ++i) {
        rest += Tarn64f{static_cast<Tarn64f>(loadElement(taps + i))} * loadElement(window + i);
    }
    return foldLanes(sums, add) + rest;
}

// The sum of squares. That of a pair may be 2^31, which is unsigned then.
Tarn64s energyOf(const Tarn16s* window, int tapsLen)
{
    return sumExact<lanes<Tarn16s>>(
        tapsLen, [](auto x) { return pairSums(retype<Tarn32u>(mulAddPairs(x, x))); },
        [](Tarn16s x) { return Tarn64s{x} * x; }, window);
}

// The step of the taps is x g. A tap below all integers becomes the lowest one in the conversion.
TARN_INLINE auto adapted(auto tap, auto x, auto g)
{
    return roundToInteger(min(add(tap, mul(x, g)), splat<decltype(tap)>(highest<Tarn32s>)));
}

void adaptToWindow(Tarn32s* taps, const Tarn16s* window, int tapsLen, Tarn64f g)
{
    int i = 0;
    for (; i <= tapsLen - atOnce; i += atOnce) {
        store(taps + i, adapted(tapsAsDoubles(taps + i), samplesAsDoubles(window + i), splat<Doubles>(g)));
    }
    for (; i < tapsLen; ++i) {
        const auto tap = static_cast<Tarn64f>(loadElement(taps + i));
        store(taps + i, adapted(tap, static_cast<Tarn64f>(loadElement(window + i)), g));
    }
}

// To the nearest, ties to even, in any rounding mode.
Tarn16s asSample(Tarn64f y)
{
    const Tarn64f limited = std::min<Tarn64f>(std::max<Tarn64f>(y, lowest<Tarn16s>), highest<Tarn16s>);
    const Tarn32s whole = truncateToInteger(limited);
    const Tarn64f rest = limited - whole; // exact
    const Tarn64f size = absolute(rest);
    const bool isAway = size > 0.5 || (size == 0.5 && (whole & 1) != 0);
    return static_cast<Tarn16s>(isAway ? whole + (rest > 0 ? 1 : -1) : whole);
}

} // namespace

void ownLMSOneQ15_16s_64t(Tarn16s src, Tarn16s refVal, Tarn16s* pDstVal, Tarn32s* pTapsInv, int tapsLen, int mu,
                          Tarn16s* pDlyLine, int* pDlyLineIndex)
{
    int begin = loadElement(pDlyLineIndex);
    const Tarn16s* const window = enterSample(pDlyLine, begin, tapsLen, src);
    store(pDlyLineIndex, begin);
    const Tarn64s energy = energyOf(window, tapsLen);
    if (energy == 0) {
        return;
    }
    const Tarn64f y = filterWindow(pTapsInv, window, tapsLen) * 0x1p-15;
    store(pDstVal, asSample(y));
    adaptToWindow(pTapsInv, window, tapsLen, mu * (refVal - y) / static_cast<Tarn64f>(energy));
}
