// Forward wavelet banks: states, and front ends.
#include "coding/pswt_common.h"

using namespace tarn;

// -- Filters of a channel ---------------------------------------------------------------------------------------------

namespace {

// The parts of a filter that have no length of their own.
struct DownFilter {
    ConvDown2Offset outer;
    ConvDown2 inner;
    WaveletKernel kernel;
    CircularLine line;
    CircularLine offsetLine;
};

} // namespace

long long tarn::convDown2OffsetBytes(long long len, long long offs)
{
    return regionBytes<DownFilter>(1) + regionBytes<Tarn32f>(2 * len) + regionBytes<Tarn32f>(2 * std::max(offs, 0LL)) +
           2 * regionBytes<Tarn32f>(len) + regionBytes<Tarn32f>(std::max(downTableLen(len), 1LL));
}

ConvDown2Offset* convDown2OffsetInit_32f(const WaveletFilter* pFilter, Tarn8u* pMemory)
{
    const int len = pFilter->len;
    const int delay = std::max(pFilter->offs, 0);
    auto* const filter = reinterpret_cast<DownFilter*>(pMemory);
    RegionPlacer placer(filter, regionBytes<DownFilter>(1));
    layOutLine(placer, filter->line, len);
    if (delay > 0) {
        layOutLine(placer, filter->offsetLine, delay);
    }
    layOutKernel(placer, filter->kernel, *pFilter, downTableLen(len), writeDownTable);
    ConvDown2& inner = filter->inner;
    placer.take(inner.pReversed, regionBytes<Tarn32f>(len));
    for (int i = 0; i < len; ++i) {
        inner.pReversed[i] = filter->kernel.pTaps[len - 1 - i];
    }
    inner.pKernel = &filter->kernel;
    inner.pLine = &filter->line;
    inner.len = len;
    inner.phase = pFilter->offs == -1 ? 1 : 0;
    filter->outer = {&inner, delay > 0 ? &filter->offsetLine : nullptr, len + delay - 1};
    return &filter->outer;
}

int convDown2OffsetCheck_32f(const ConvDown2Offset* pConv)
{
    if (pConv == nullptr || pConv->pConv == nullptr) {
        return 0;
    }
    const ConvDown2& inner = *pConv->pConv;
    return isWhole(inner.pKernel) && isWhole(inner.pLine) && inner.len > 0 && inner.pReversed != nullptr &&
           isPhase(inner.phase) && (pConv->pOffsetLine == nullptr || isWhole(pConv->pOffsetLine));
}

// -- States of all element types --------------------------------------------------------------------------------------

TarnStatus WTFwdBaseInit_32f(TarnsWTFwdState** ppState, Tarn32s tag, const WaveletFilter* pLow,
                             const WaveletFilter* pHigh, int scratchLen)
{
    *ppState =
        buildState<TarnsWTFwdState>(tag, *pLow, *pHigh, scratchLen, convDown2OffsetBytes, convDown2OffsetInit_32f);
    return *ppState == nullptr ? tarnStsNoMemErr : tarnStsNoErr;
}

void WTFwdBaseFree_32f(TarnsWTFwdState* pState) { freeBank(pState); }

void WTFwdBaseSetDlyLine_32f(TarnsWTFwdState* pState, const Tarn32f* pDlyLow, const Tarn32f* pDlyHigh)
{
    setBankLines(pState, pDlyLow, pDlyHigh);
}

void WTFwdBaseGetDlyLine_32f(const TarnsWTFwdState* pState, Tarn32f* pDlyLow, Tarn32f* pDlyHigh)
{
    getBankLines(pState, pDlyLow, pDlyHigh);
}

void WTFwdBaseGetDlyLen_32f(const TarnsWTFwdState* pState, int* pLenLow, int* pLenHigh)
{
    *pLenLow = pState->pLow->dlyLen;
    *pLenHigh = pState->pHigh->dlyLen;
}

void WTFwdBaseGetFiltTaps_32f(const TarnsWTFwdState* pState, Tarn32f* pTapsLow, Tarn32f* pTapsHigh)
{
    const auto get = [](const WaveletKernel& kernel, Tarn32f* pTaps) { copy(kernel.pTaps, pTaps, kernel.len); };
    get(*pState->pLow->pConv->pKernel, pTapsLow);
    get(*pState->pHigh->pConv->pKernel, pTapsHigh);
}

// -- Front ends -------------------------------------------------------------------------------------------------------

namespace {

template <typename S>
TarnStatus runForward(const S* pSrc, Tarn32f* pDstLow, Tarn32f* pDstHigh, int dstLen, TarnsWTFwdState* pState,
                      Tarn32s tag)
{
    if (const TarnStatus status = checkBankState(pState, tag)) {
        return status;
    }
    if (const TarnStatus status = check(dstLen, pSrc, pDstLow, pDstHigh)) {
        return status;
    }
    const auto split = [=](const Tarn32f* src, std::ptrdiff_t begin, std::ptrdiff_t len) {
        convDown2OffsetBlock_32f(pState->pLow, src, 2 * len, pDstLow + begin);
        convDown2OffsetBlock_32f(pState->pHigh, src, 2 * len, pDstHigh + begin);
    };
    if constexpr (std::is_same_v<S, Tarn32f>) {
        split(pSrc, 0, dstLen);
    } else {
        byChunks(dstLen, [=](std::ptrdiff_t begin, int len) {
            samplesToFloats(pSrc + 2 * begin, pState->pScratch, 2 * len);
            split(pState->pScratch, begin, len);
        });
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_DEFINE_WT_FWD(TAIL, S, SCRATCH)                                                     \
    TARN_DEFINE_WT_STATE(Fwd, TAIL, fwd##TAIL, SCRATCH)                                          \
    TarnStatus tarnsWTFwd_##TAIL(const S* pSrc, Tarn32f* pDstLow, Tarn32f* pDstHigh, int dstLen, \
                                 TarnsWTFwdState_##TAIL* pState)                                 \
    {                                                                                            \
        return runForward(pSrc, pDstLow, pDstHigh, dstLen, pState, fwd##TAIL);                   \
    }

TARN_DEFINE_WT_FWD(32f, Tarn32f, 0)
TARN_DEFINE_WT_FWD(8u32f, Tarn8u, scratchSamples)
TARN_DEFINE_WT_FWD(8s32f, Tarn8s, scratchSamples)
TARN_DEFINE_WT_FWD(16u32f, Tarn16u, scratchSamples)
TARN_DEFINE_WT_FWD(16s32f, Tarn16s, scratchSamples)
