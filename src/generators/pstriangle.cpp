// Front ends of the triangle generators, and the triangle object.
#include "tarns/generators.h"

#include "frame/checks.h"
#include "frame/object.h"
#include "frame/phase.h"
#include "levels/generators/pstriangle.h"

using namespace tarn;

// Packed, so that one layout serves both ABIs and any address that a caller builds it at.
struct [[gnu::packed]] TarnsTriangleState_16s {
    static constexpr Tarn32u identifier = 0x4C4D535B;
    Tarn32u idCtx;
    double magn;
    double rFreq;
    double phase;
    double asym;
    TriangleWalker walker;
    Tarn32s rising;
    Tarn32s owned;
    Tarn32s started;
};

namespace {

template <typename T, typename Magn, typename Real>
TarnStatus triangleFrom(T* pDst, int len, Magn magn, Real rFreq, Real asym, Real* pPhase)
{
    if (pPhase == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (!(magn > 0)) {
        return tarnStsTrnglMagnErr;
    }
    if (!isFrequency(rFreq)) {
        return tarnStsTrnglFreqErr;
    }
    if (asym < -pi || asym >= pi) {
        return tarnStsTrnglAsymErr;
    }
    const Real phase = loadElement(pPhase);
    if (!isPhase(phase)) {
        return tarnStsTrnglPhaseErr;
    }
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    store(pPhase, advancedPhase(phase, rFreq, len));
    triangleDirect(pDst, len, {static_cast<double>(magn), rFreq, asym, phase});
    return tarnStsNoErr;
}

TarnStatus checkTriangleQ15(int magn, int rFreqQ15, int phaseQ15, int asymQ15)
{
    if (magn < 1) {
        return tarnStsTrnglMagnErr;
    }
    if (rFreqQ15 < 0 || rFreqQ15 > highestFrequencyQ15) {
        return tarnStsTrnglFreqErr;
    }
    if (phaseQ15 < 0 || phaseQ15 > highestPhaseQ15) {
        return tarnStsTrnglPhaseErr;
    }
    return asymQ15 < -highestAsymmetryQ15 || asymQ15 > highestAsymmetryQ15 ? tarnStsTrnglAsymErr : tarnStsNoErr;
}

void setState(TarnsTriangleState_16s* state, int magn, int rFreqQ15, int phaseQ15, int asymQ15, bool owned)
{
    *state = {TarnsTriangleState_16s::identifier,
              static_cast<double>(magn),
              fromQ15(rFreqQ15),
              fromQ15(phaseQ15),
              fromQ15(asymQ15),
              {},
              0,
              owned,
              0};
}

} // namespace

TarnStatus tarnsTriangleQ15_Direct_16s(Tarn16s* pDst, int len, Tarn16s magn, Tarn16s rFreqQ15, Tarn32s phaseQ15,
                                       Tarn32s asymQ15)
{
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    if (const TarnStatus status = checkTriangleQ15(magn, rFreqQ15, phaseQ15, asymQ15)) {
        return status;
    }
    triangleQ15(pDst, len, magn,
                startTriangle({static_cast<double>(magn), fromQ15(rFreqQ15), fromQ15(asymQ15), fromQ15(phaseQ15)}));
    return tarnStsNoErr;
}

TarnStatus tarnsTriangleInitQ15_16s(TarnsTriangleState_16s* pState, Tarn16s magn, Tarn16s rFreqQ15, Tarn32s phaseQ15,
                                    Tarn32s asymQ15)
{
    if (pState == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (const TarnStatus status = checkTriangleQ15(magn, rFreqQ15, phaseQ15, asymQ15)) {
        return status;
    }
    setState(pState, magn, rFreqQ15, phaseQ15, asymQ15, false);
    return tarnStsNoErr;
}

TarnStatus tarnsTriangleInitAllocQ15_16s(TarnsTriangleState_16s** ppState, Tarn16s magn, Tarn16s rFreqQ15,
                                         Tarn32s phaseQ15, Tarn32s asymQ15)
{
    if (ppState == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (const TarnStatus status = checkTriangleQ15(magn, rFreqQ15, phaseQ15, asymQ15)) {
        return status;
    }
    Owned<TarnsTriangleState_16s[]> state = allocate<TarnsTriangleState_16s>(1);
    if (!state) {
        return tarnStsNoMemErr;
    }
    setState(state.get(), magn, rFreqQ15, phaseQ15, asymQ15, true);
    store(ppState, state.release());
    return tarnStsNoErr;
}

TarnStatus tarnsTriangleGetStateSizeQ15_16s(int* pSize)
{
    if (pSize == nullptr) {
        return tarnStsNullPtrErr;
    }
    store(pSize, static_cast<int>(sizeof(TarnsTriangleState_16s)));
    return tarnStsNoErr;
}

TarnStatus tarnsTriangleQ15_16s(Tarn16s* pDst, int len, TarnsTriangleState_16s* pState)
{
    if (const TarnStatus status = check(len, pDst, pState)) {
        return status;
    }
    if (const TarnStatus status = checkObject(pState)) {
        return status;
    }
    const auto start = pState->started != 0 ? WalkingTriangle{pState->walker, pState->rising}
                                            : startTriangle({pState->magn, pState->rFreq, pState->asym, pState->phase});
    const auto [walker, rising] = triangleQ15(pDst, len, pState->magn, start);
    pState->walker = walker;
    pState->rising = rising;
    pState->started = 1;
    return tarnStsNoErr;
}

TarnStatus tarnsTriangleFree(TarnsTriangleState_16s* pState)
{
    if (const TarnStatus status = checkObject(pState)) {
        return status;
    }
    if (pState->owned == 1) {
        releaseObject(pState);
    }
    return tarnStsNoErr;
}

#define TARN_TRIANGLE_DIRECT(TAG, MAGN, REAL)                                                                       \
    TarnStatus tarnsTriangle_Direct_##TAG(Tarn##TAG* pDst, int len, MAGN magn, REAL rFreq, REAL asym, REAL* pPhase) \
    {                                                                                                               \
        return triangleFrom(pDst, len, magn, rFreq, asym, pPhase);                                                  \
    }

TARN_TRIANGLE_DIRECT(16s, Tarn16s, Tarn32f)
TARN_TRIANGLE_DIRECT(16sc, Tarn16s, Tarn32f)
TARN_TRIANGLE_DIRECT(32f, Tarn32f, Tarn32f)
TARN_TRIANGLE_DIRECT(32fc, Tarn32f, Tarn32f)
TARN_TRIANGLE_DIRECT(64f, Tarn64f, Tarn64f)
TARN_TRIANGLE_DIRECT(64fc, Tarn64f, Tarn64f)
