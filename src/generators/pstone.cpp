// Front ends of the tone generators, and the tone object.
#include "tarns/generators.h"

#include "frame/checks.h"
#include "frame/object.h"
#include "frame/phase.h"
#include "levels/generators/pstone.h"

using namespace tarn;

// Packed, so that one layout serves both ABIs and any address that a caller builds it at.
struct [[gnu::packed]] TarnsToneState_16s {
    static constexpr Tarn32u identifier = 0x4C4D535A;
    Tarn32u idCtx;
    double magn;
    double rFreq;
    double phase;
    Tarn32s nextIndex;
    Tarn32s owned;
    Tarn32s started;
};

namespace {

template <typename T, typename Magn, typename Real>
TarnStatus toneDirect(T* pDst, int len, Magn magn, Real rFreq, Real* pPhase, TarnHintAlgorithm hint)
{
    if (pPhase == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (!(magn > 0)) {
        return tarnStsToneMagnErr;
    }
    if (!isFrequency(rFreq)) {
        return tarnStsToneFreqErr;
    }
    const Real phase = loadElement(pPhase);
    if (!isPhase(phase)) {
        return tarnStsTonePhaseErr;
    }
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    store(pPhase, advancedPhase(phase, rFreq, len));
    const auto kernel = hint == tarnAlgHintFast ? toneFast<T> : toneAccurate<T>;
    kernel(pDst, len, {static_cast<double>(magn), rFreq, phase});
    return tarnStsNoErr;
}

TarnStatus checkToneQ15(int magn, int rFreqQ15, int phaseQ15)
{
    if (magn < 1) {
        return tarnStsToneMagnErr;
    }
    if (rFreqQ15 < 0 || rFreqQ15 > highestFrequencyQ15) {
        return tarnStsToneFreqErr;
    }
    return phaseQ15 < 0 || phaseQ15 > highestPhaseQ15 ? tarnStsTonePhaseErr : tarnStsNoErr;
}

void setState(TarnsToneState_16s* state, int magn, int rFreqQ15, int phaseQ15, bool owned)
{
    *state = {
        TarnsToneState_16s::identifier, static_cast<double>(magn), fromQ15(rFreqQ15), fromQ15(phaseQ15), 0, owned, 0};
}

} // namespace

TarnStatus tarnsToneQ15_Direct_16s(Tarn16s* pDst, int len, Tarn16s magn, Tarn16s rFreqQ15, Tarn32s phaseQ15)
{
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    if (const TarnStatus status = checkToneQ15(magn, rFreqQ15, phaseQ15)) {
        return status;
    }
    toneQ15(pDst, len, {static_cast<double>(magn), fromQ15(rFreqQ15), fromQ15(phaseQ15)}, 0);
    return tarnStsNoErr;
}

TarnStatus tarnsToneInitQ15_16s(TarnsToneState_16s* pState, Tarn16s magn, Tarn16s rFreqQ15, Tarn32s phaseQ15)
{
    if (pState == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (const TarnStatus status = checkToneQ15(magn, rFreqQ15, phaseQ15)) {
        return status;
    }
    setState(pState, magn, rFreqQ15, phaseQ15, false);
    return tarnStsNoErr;
}

TarnStatus tarnsToneInitAllocQ15_16s(TarnsToneState_16s** ppState, Tarn16s magn, Tarn16s rFreqQ15, Tarn32s phaseQ15)
{
    if (ppState == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (const TarnStatus status = checkToneQ15(magn, rFreqQ15, phaseQ15)) {
        return status;
    }
    Owned<TarnsToneState_16s[]> state = allocate<TarnsToneState_16s>(1);
    if (!state) {
        return tarnStsNoMemErr;
    }
    setState(state.get(), magn, rFreqQ15, phaseQ15, true);
    store(ppState, state.release());
    return tarnStsNoErr;
}

TarnStatus tarnsToneGetStateSizeQ15_16s(int* pSize)
{
    if (pSize == nullptr) {
        return tarnStsNullPtrErr;
    }
    store(pSize, static_cast<int>(sizeof(TarnsToneState_16s)));
    return tarnStsNoErr;
}

TarnStatus tarnsToneQ15_16s(Tarn16s* pDst, int len, TarnsToneState_16s* pState)
{
    if (const TarnStatus status = check(len, pDst, pState)) {
        return status;
    }
    if (const TarnStatus status = checkObject(pState)) {
        return status;
    }
    const int firstIndex = pState->started != 0 ? pState->nextIndex : 0;
    toneQ15(pDst, len, {pState->magn, pState->rFreq, pState->phase}, firstIndex);
    pState->started = 1;
    pState->nextIndex = AddInteger::of(firstIndex, len);
    return tarnStsNoErr;
}

TarnStatus tarnsToneFree(TarnsToneState_16s* pState)
{
    if (const TarnStatus status = checkObject(pState)) {
        return status;
    }
    if (pState->owned == 1) {
        releaseObject(pState);
    }
    return tarnStsNoErr;
}

#define TARN_TONE_DIRECT(TAG, MAGN, REAL)                                                            \
    TarnStatus tarnsTone_Direct_##TAG(Tarn##TAG* pDst, int len, MAGN magn, REAL rFreq, REAL* pPhase, \
                                      TarnHintAlgorithm hint)                                        \
    {                                                                                                \
        return toneDirect(pDst, len, magn, rFreq, pPhase, hint);                                     \
    }

TARN_TONE_DIRECT(16s, Tarn16s, Tarn32f)
TARN_TONE_DIRECT(16sc, Tarn16s, Tarn32f)
TARN_TONE_DIRECT(32f, Tarn32f, Tarn32f)
TARN_TONE_DIRECT(32fc, Tarn32f, Tarn32f)
TARN_TONE_DIRECT(64f, Tarn64f, Tarn64f)
TARN_TONE_DIRECT(64fc, Tarn64f, Tarn64f)
