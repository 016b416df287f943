// Adaptive filters in floating point: states for blocks, and calls of one sample without a state.
#include "levels/recursive/pslms.h"
#include "frame/checks.h"
#include "frame/delay_line.h"

using namespace tarn;

namespace {

// -- States -----------------------------------------------------------------------------------------------------------

template <typename State>
void fillCopies(State* state, const typename State::Sample* pDlyLine, int dlyLineIndex)
{
    const int len = state->tapsLen;
    state->dlyLineIndex = dlyLineIndex;
    zeroFill(state->pDlyLine, lineRoom(state));
    for (int k = 0; pDlyLine != nullptr && k < lineCopies; ++k) {
        Tarn32f* const line = state->pDlyLine + std::ptrdiff_t{k} * copyStride(state);
        copyConverted(pDlyLine, line, len);
        copyConverted(pDlyLine, line + len, len);
    }
}

template <typename State>
TarnStatus allocateState(State** ppState, const Tarn32f* pTaps, int tapsLen, const typename State::Sample* pDlyLine,
                         int dlyLineIndex)
{
    if (const TarnStatus status = check(tapsLen, ppState)) {
        return status;
    }
    const auto layout = LmsLayout::of(tapsLen, sizeof(State));
    Owned<Tarn8u[]> block = allocate<Tarn8u>(layout.bytes);
    if (!block) {
        return tarnStsNoMemErr;
    }
    zeroFill(block.get(), static_cast<int>(layout.bytes));
    auto* const state = reinterpret_cast<State*>(block.get());
    state->idCtx = State::identifier;
    state->pTaps = reinterpret_cast<Tarn32f*>(block.get() + layout.taps);
    state->pDlyLine = reinterpret_cast<Tarn32f*>(block.get() + layout.line);
    state->tapsLen = tapsLen;
    state->dlyCopyStride = static_cast<int>(layout.stride);
    fillDelay(pTaps, state->pTaps, tapsLen);
    fillCopies(state, pDlyLine, dlyLineIndex);
    store(ppState, state);
    block.release();
    return tarnStsNoErr;
}

// Whatever its identifier says.
template <typename State>
TarnStatus freeAny(State* state)
{
    if (state != nullptr) {
        releaseObject(state);
    }
    return tarnStsNoErr;
}

// -- Blocks -----------------------------------------------------------------------------------------------------------

// As many samples at a time as there is room for behind the last window, in the memory of all copies. The samples of
// the caller are not looked at after outputs were written, which may lie in their place.
template <typename State, typename S>
void adaptInChunks(const S* pSrc, const S* pRef, S* pDst, int len, Tarn32f mu, State* state)
{
    const int tapsLen = state->tapsLen;
    Tarn32f* const line = state->pDlyLine;
    int begin = placeInRing(state->dlyLineIndex, tapsLen);
    for (int done = 0; done < len;) {
        const int count = std::min(len - done, lineRoom(state) - begin - tapsLen);
        takeSamples(pSrc + done, line + begin + tapsLen, count);
        adaptAlong(line + begin + 1, pRef + done, pDst + done, count, mu, state->pTaps, tapsLen);
        move(line + begin + count, line, tapsLen);
        begin = 0;
        done += count;
    }
    state->dlyLineIndex = 0;
}

template <typename State, typename S>
TarnStatus adaptBlock(const S* pSrc, const S* pRef, S* pDst, int len, Tarn32f mu, State* state)
{
    if (const TarnStatus status = check(len, pSrc, pRef, pDst, state)) {
        return status;
    }
    if (const TarnStatus status = checkObject(state)) {
        return status;
    }
    if (state->tapsLen >= copiesPayFrom) {
        adaptInCopies(pSrc, pRef, pDst, len, mu, state);
    } else {
        adaptInChunks(pSrc, pRef, pDst, len, mu, state);
    }
    return tarnStsNoErr;
}

// -- One sample -------------------------------------------------------------------------------------------------------

template <typename T, typename S>
TarnStatus checkOne(const T* pTapsInv, int tapsLen, const S* pDlyLine, const int* pDlyLineIndex, const S* pDstVal)
{
    if (const TarnStatus status = check(tapsLen, pTapsInv, pDlyLine, pDlyLineIndex, pDstVal)) {
        return status;
    }
    const int index = loadElement(pDlyLineIndex);
    return index < 0 || index >= tapsLen ? tarnStsDlyLineIndexErr : tarnStsNoErr;
}

} // namespace

#define TARN_DEFINE_LMS(TAIL, S)                                                                                  \
    TarnStatus tarnsFIRLMSInitAlloc##TAIL(TarnsFIRLMSState##TAIL** ppState, const Tarn32f* pTaps, int tapsLen,    \
                                          const S* pDlyLine, int dlyLineIndex)                                    \
    {                                                                                                             \
        return allocateState(ppState, pTaps, tapsLen, pDlyLine, dlyLineIndex);                                    \
    }                                                                                                             \
    TarnStatus tarnsFIRLMSFree##TAIL(TarnsFIRLMSState##TAIL* pState) { return freeAny(pState); }                  \
    TarnStatus tarnsFIRLMSGetTaps##TAIL(const TarnsFIRLMSState##TAIL* pState, Tarn32f* pTaps)                     \
    {                                                                                                             \
        return withState([=] { reverseConverted(pState->pTaps, pTaps, pState->tapsLen); }, pState, pTaps);        \
    }                                                                                                             \
    TarnStatus tarnsFIRLMSSetDlyLine##TAIL(TarnsFIRLMSState##TAIL* pState, const S* pDlyLine, int dlyLineIndex)   \
    {                                                                                                             \
        return withState([=] { fillCopies(pState, pDlyLine, dlyLineIndex); }, pState);                            \
    }                                                                                                             \
    TarnStatus tarnsFIRLMSGetDlyLine##TAIL(const TarnsFIRLMSState##TAIL* pState, S* pDlyLine, int* pDlyLineIndex) \
    {                                                                                                             \
        return withState(                                                                                         \
            [=] {                                                                                                 \
                copyConverted(pState->pDlyLine, pDlyLine, pState->tapsLen);                                       \
                store(pDlyLineIndex, pState->dlyLineIndex);                                                       \
            },                                                                                                    \
            pState, pDlyLine, pDlyLineIndex);                                                                     \
    }                                                                                                             \
    TarnStatus tarnsFIRLMS##TAIL(const S* pSrc, const S* pRef, S* pDst, int len, Tarn32f mu,                      \
                                 TarnsFIRLMSState##TAIL* pState)                                                  \
    {                                                                                                             \
        return adaptBlock(pSrc, pRef, pDst, len, mu, pState);                                                     \
    }

#define TARN_DEFINE_LMS_ONE(NAME, KERNEL, T, S, M)                                                                \
    TarnStatus NAME(S src, S refVal, S* pDstVal, T* pTapsInv, int tapsLen, M mu, S* pDlyLine, int* pDlyLineIndex) \
    {                                                                                                             \
        if (const TarnStatus status = checkOne(pTapsInv, tapsLen, pDlyLine, pDlyLineIndex, pDstVal)) {            \
            return status;                                                                                        \
        }                                                                                                         \
        KERNEL(src, refVal, pDstVal, pTapsInv, tapsLen, mu, pDlyLine, pDlyLineIndex);                             \
        return tarnStsNoErr;                                                                                      \
    }

TARN_DEFINE_LMS(_32f, Tarn32f)
TARN_DEFINE_LMS(32f_16s, Tarn16s)
TARN_DEFINE_LMS_ONE(tarnsFIRLMSOne_Direct_32f, ownLMSOne_32f, Tarn32f, Tarn32f, Tarn32f)
TARN_DEFINE_LMS_ONE(tarnsFIRLMSOne_Direct32f_16s, ownLMSOne32f_16s, Tarn32f, Tarn16s, Tarn32f)
TARN_DEFINE_LMS_ONE(tarnsFIRLMSOne_DirectQ15_16s, ownLMSOneQ15_16s_64t, Tarn32s, Tarn16s, int)
