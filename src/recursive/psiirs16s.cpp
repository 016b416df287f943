// IIR filters of 16-bit data without a state: integer taps, and a delay line of 32-bit integers, in the caller's hands.
#include "frame/checks.h"
#include "frame/factor.h"
#include "levels/recursive/psiir.h"
#include "recursive/psiir_build.h"
#include "tarns/convert.h"
#include "tarns/iir.h"

using namespace tarn;

namespace {

// Where the exponent stands in the taps of a section of order two: in the place of a0.
constexpr int sectionExponent = 3;

template <typename... P>
TarnStatus checkDirect(bool isGoodOrder, const P*... pointers)
{
    if (!isGoodOrder) {
        return tarnStsIIROrderErr;
    }
    return ((pointers == nullptr) || ...) ? tarnStsNullPtrErr : tarnStsNoErr;
}

// -- Single samples ---------------------------------------------------------------------------------------------------

// Integers of 32 bits that wrap.
using Wrapped = std::uint32_t;

Wrapped wrapped(int x) { return static_cast<Wrapped>(x); }
int asSigned(Wrapped x) { return static_cast<int>(x); }

// Shift counts are taken modulo 32.
constexpr int shiftBits = 31;

// x 2^-s to the nearest, ties to even.
Wrapped roundedEven(Wrapped x, int s)
{
    const int count = s & shiftBits;
    if (count == 0) {
        return x;
    }
    const Wrapped half = Wrapped{1} << (count - 1);
    return wrapped(asSigned(x + half - 1 + (x >> count & 1)) >> count);
}

// The same, ties upward.
Wrapped roundedUpward(Wrapped x, int s)
{
    const int count = s & shiftBits;
    return count == 0 ? x : wrapped(asSigned(x + (Wrapped{1} << (count - 1))) >> count);
}

Tarn32s valueOf(const Tarn32s* p) { return loadElement(p); }

void filterOneSample(Tarn16s src, Tarn16s* dst, const Tarn16s* taps, int order, Tarn32s* line)
{
    const Tarn16s* const a = taps + order + 1; // a[0] is the exponent
    const int s = loadElement(a);
    const Wrapped x = wrapped(src);
    const auto b = [=](int k) { return wrapped(loadElement(taps + k)); };
    if (order == 0) {
        store(dst, clampTo<Tarn16s>(asSigned(roundedUpward(b(0) * x, s))));
        return;
    }
    const Wrapped y = roundedEven(b(0) * x + wrapped(valueOf(line)), s);
    for (int j = 0; j < order; ++j) {
        const Wrapped following = j < order - 1 ? wrapped(valueOf(line + j + 1)) : 0;
        const Wrapped sum = b(j + 1) * x - wrapped(loadElement(a + j + 1)) * y + following;
        store(line + j, asSigned(sum));
    }
    store(dst, clampTo<Tarn16s>(asSigned(y)));
}

// Up to the first section whose exponent is out of range; those in front of it have gone on by then.
TarnStatus filterOneCascade(Tarn16s src, Tarn16s* dst, const Tarn16s* taps, int numBq, Tarn32s* line)
{
    Wrapped w = wrapped(src);
    for (int section = 0; section < numBq; ++section, taps += givenSectionTaps, line += sectionOrder) {
        const auto tap = [=](int k) { return wrapped(loadElement(taps + k)); };
        const int s = loadElement(taps + sectionExponent);
        if (s < 0) {
            return tarnStsScaleRangeErr;
        }
        const Wrapped y = roundedEven(tap(0) * w + wrapped(valueOf(line)), s);
        store(line, asSigned(tap(1) * w + wrapped(valueOf(line + 1)) - tap(4) * y));
        store(line + 1, asSigned(tap(2) * w - tap(5) * y));
        w = y;
    }
    store(dst, clampTo<Tarn16s>(asSigned(w)));
    return tarnStsNoErr;
}

// -- Blocks: a float state for the length of a call -------------------------------------------------------------------

using State = TarnsIIRState32f_16s;
using Fields = IirFields<Tarn32f>;

void toFloats(const Tarn16s* src, Tarn32f* dst, std::ptrdiff_t len, Tarn32f scale)
{
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        dst[i] = static_cast<Tarn32f>(loadElement(src + i)) * scale;
    }
}
void toFloats(const Tarn32s* src, Tarn32f* dst, std::ptrdiff_t len, Tarn32f scale)
{
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        dst[i] = static_cast<Tarn32f>(loadElement(src + i)) * scale;
    }
}
Tarn32f scaleBy(int s) { return static_cast<Tarn32f>(twoToMinusAny(s)); }

TarnStatus lineToIntegers(const Tarn32f* src, Tarn32s* dst, int len, int s)
{
    constexpr int toNearest = 1;
    return len == 0 ? tarnStsNoErr : tarnsConvert_32f32s_Sfs(src, dst, len, toNearest, -s);
}

struct FreeState {
    void operator()(Fields* state) const { freeState(static_cast<State*>(state)); }
};
using OwnedState = std::unique_ptr<Fields, FreeState>;

TarnStatus filterBlock(const Tarn16s* src, Tarn16s* dst, int len, const Tarn16s* taps, int order, Tarn32s* line)
{
    Fields* built = nullptr;
    if (const TarnStatus status = ownsIIRInitAlloc_16s(&built, taps, order, line)) {
        return status;
    }
    const OwnedState state(built);
    tarnsIIRAR32f_16s_Sfs(src, dst, len, static_cast<State*>(built), 0);
    return lineToIntegers(built->pDlyLine, line, order, loadElement(taps + order + 1));
}

TarnStatus filterBlockOfSections(const Tarn16s* src, Tarn16s* dst, int len, const Tarn16s* taps, int numBq,
                                 Tarn32s* line)
{
    Fields* built = nullptr;
    if (const TarnStatus status = ownsIIRInitAlloc_BiQuad_16s(&built, taps, numBq, line)) {
        return status;
    }
    const OwnedState state(built);
    tarnsIIRBQ32f_16s_Sfs(src, dst, len, static_cast<State*>(built), 0);
    for (int section = 0; section < numBq; ++section) {
        const std::ptrdiff_t begin = std::ptrdiff_t{sectionOrder} * section;
        const int s = loadElement(taps + std::ptrdiff_t{givenSectionTaps} * section + sectionExponent);
        if (const TarnStatus status = lineToIntegers(built->pDlyLine + begin, line + begin, sectionOrder, s)) {
            return status;
        }
    }
    return tarnStsNoErr;
}

} // namespace

TarnStatus ownsIIRInitAlloc_16s(IirFields<Tarn32f>** ppState, const Tarn16s* pTaps, int order, const Tarn32s* pDlyLine)
{
    Fields* const state = allocateFields<Tarn32f>({order, 0, true}, nullptr, State::orderId);
    *ppState = state;
    if (state == nullptr) {
        return tarnStsNoMemErr;
    }
    const Tarn16s* const exponent = pTaps + order + 1;
    const Tarn32f scale = scaleBy(loadElement(exponent));
    toFloats(pTaps, state->pTaps, order + 1, scale);
    toFloats(exponent + 1, state->pTaps + order + 1, order, scale);
    toFloats(pDlyLine, state->pDlyLine, order, scale);
    writeOrderTables(state);
    return tarnStsNoErr;
}

TarnStatus ownsIIRInitAlloc_BiQuad_16s(IirFields<Tarn32f>** ppState, const Tarn16s* pTaps, int numBq,
                                       const Tarn32s* pDlyLine)
{
    Fields* const state = allocateFields<Tarn32f>({0, numBq, true}, nullptr, State::biquadId);
    *ppState = state;
    if (state == nullptr) {
        return tarnStsNoMemErr;
    }
    Tarn32f* taps = state->pTaps;
    Tarn32f* line = state->pDlyLine;
    for (int section = 0; section < numBq; ++section) {
        const Tarn32f scale = scaleBy(loadElement(pTaps + sectionExponent));
        toFloats(pTaps, taps, sectionExponent, scale);
        toFloats(pTaps + sectionExponent + 1, taps + sectionExponent, sectionOrder, scale);
        toFloats(pDlyLine, line, sectionOrder, scale);
        pTaps += givenSectionTaps;
        pDlyLine += sectionOrder;
        taps += sectionTaps;
        line += sectionOrder;
    }
    writeSectionTables(state);
    return tarnStsNoErr;
}

// -- One section of any order -----------------------------------------------------------------------------------------

TarnStatus tarnsIIR_Direct_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, const Tarn16s* pTaps, int order,
                               Tarn32s* pDlyLine)
{
    if (const TarnStatus status = checkDirect(order >= 0, pSrc, pDst, pTaps, pDlyLine)) {
        return status;
    }
    if (loadElement(pTaps + order + std::ptrdiff_t{1}) < 0) {
        return tarnStsScaleRangeErr;
    }
    return len < 1 ? tarnStsSizeErr : filterBlock(pSrc, pDst, len, pTaps, order, pDlyLine);
}
TarnStatus tarnsIIR_Direct_16s_I(Tarn16s* pSrcDst, int len, const Tarn16s* pTaps, int order, Tarn32s* pDlyLine)
{
    return tarnsIIR_Direct_16s(pSrcDst, pSrcDst, len, pTaps, order, pDlyLine);
}

TarnStatus tarnsIIROne_Direct_16s(Tarn16s src, Tarn16s* pDstVal, const Tarn16s* pTaps, int order, Tarn32s* pDlyLine)
{
    if (const TarnStatus status = checkDirect(order >= 0, pDstVal, pTaps, pDlyLine)) {
        return status;
    }
    if (loadElement(pTaps + order + std::ptrdiff_t{1}) < 0) {
        return tarnStsScaleRangeErr;
    }
    filterOneSample(src, pDstVal, pTaps, order, pDlyLine);
    return tarnStsNoErr;
}
TarnStatus tarnsIIROne_Direct_16s_I(Tarn16s* pSrcDstVal, const Tarn16s* pTaps, int order, Tarn32s* pDlyLine)
{
    const Tarn16s src = pSrcDstVal == nullptr ? Tarn16s{} : loadElement(pSrcDstVal);
    return tarnsIIROne_Direct_16s(src, pSrcDstVal, pTaps, order, pDlyLine);
}

// -- Cascades of sections of order two --------------------------------------------------------------------------------

TarnStatus tarnsIIR_BiQuadDirect_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, const Tarn16s* pTaps, int numBq,
                                     Tarn32s* pDlyLine)
{
    if (const TarnStatus status = checkDirect(numBq >= 1, pSrc, pDst, pTaps, pDlyLine)) {
        return status;
    }
    for (int section = 0; section < numBq; ++section) {
        if (loadElement(pTaps + std::ptrdiff_t{givenSectionTaps} * section + sectionExponent) < 0) {
            return tarnStsScaleRangeErr;
        }
    }
    return len < 1 ? tarnStsSizeErr : filterBlockOfSections(pSrc, pDst, len, pTaps, numBq, pDlyLine);
}
TarnStatus tarnsIIR_BiQuadDirect_16s_I(Tarn16s* pSrcDst, int len, const Tarn16s* pTaps, int numBq, Tarn32s* pDlyLine)
{
    return tarnsIIR_BiQuadDirect_16s(pSrcDst, pSrcDst, len, pTaps, numBq, pDlyLine);
}

TarnStatus tarnsIIROne_BiQuadDirect_16s(Tarn16s src, Tarn16s* pDstVal, const Tarn16s* pTaps, int numBq,
                                        Tarn32s* pDlyLine)
{
    if (const TarnStatus status = checkDirect(numBq >= 1, pDstVal, pTaps, pDlyLine)) {
        return status;
    }
    return filterOneCascade(src, pDstVal, pTaps, numBq, pDlyLine);
}
TarnStatus tarnsIIROne_BiQuadDirect_16s_I(Tarn16s* pSrcDstVal, const Tarn16s* pTaps, int numBq, Tarn32s* pDlyLine)
{
    const Tarn16s src = pSrcDstVal == nullptr ? Tarn16s{} : loadElement(pSrcDstVal);
    return tarnsIIROne_BiQuadDirect_16s(src, pSrcDstVal, pTaps, numBq, pDlyLine);
}
