// Inverse wavelet banks: states, and front ends.
#include "coding/pswt_common.h"

using namespace tarn;

// -- Filters of a channel ---------------------------------------------------------------------------------------------

namespace {

struct UpFilter {
    Up2ConvOffset outer;
    Up2Conv inner;
    WaveletKernel kernel;
    CircularLine line;
    CircularLine offsetLine;
};

// Taps `first`, first + 2, .. of a filter, the last one in front.
void reverseEverySecond(const WaveletFilter& filter, int first, Tarn32f* taps, int count)
{
    for (int i = 0; i < count; ++i) {
        taps[count - 1 - i] = loadElement(filter.pTaps + first + std::ptrdiff_t{2} * i);
    }
}

} // namespace

long long tarn::up2ConvOffsetBytes(long long len, long long offs)
{
    const long long evenLen = (len + 1) / 2;
    const long long oddLen = len / 2;
    return regionBytes<UpFilter>(1) + regionBytes<Tarn32f>(2 * evenLen) + regionBytes<Tarn32f>(offs / 2 * 2) +
           regionBytes<Tarn32f>(len) + regionBytes<Tarn32f>(std::max(upTableLen(len), 1LL)) +
           regionBytes<Tarn32f>(evenLen) + regionBytes<Tarn32f>(oddLen);
}

Up2ConvOffset* up2ConvOffsetInit_32f(const WaveletFilter* pFilter, Tarn8u* pMemory)
{
    const int len = pFilter->len;
    const int delay = pFilter->offs / 2;
    auto* const filter = reinterpret_cast<UpFilter*>(pMemory);
    RegionPlacer placer(filter, regionBytes<UpFilter>(1));
    Up2Conv& inner = filter->inner;
    inner.evenLen = len - len / 2;
    inner.oddLen = len / 2;
    layOutLine(placer, filter->line, inner.evenLen);
    if (delay > 0) {
        layOutLine(placer, filter->offsetLine, delay);
    }
    layOutKernel(placer, filter->kernel, *pFilter, upTableLen(len), writeUpTable);
    placer.take(inner.pEven, regionBytes<Tarn32f>(inner.evenLen));
    placer.take(inner.pOdd, regionBytes<Tarn32f>(inner.oddLen));
    reverseEverySecond(*pFilter, 0, inner.pEven, inner.evenLen);
    reverseEverySecond(*pFilter, 1, inner.pOdd, inner.oddLen);
    inner.pKernel = &filter->kernel;
    inner.pLine = &filter->line;
    inner.len = len;
    up2ConvSetPhase_32f(&inner, pFilter->offs & 1);
    // An offset of -1 counts half a sample less: the shift rounds down.
    filter->outer = {&inner, delay > 0 ? &filter->offsetLine : nullptr, (pFilter->offs + len - 1) >> 1};
    return &filter->outer;
}

int up2ConvOffsetCheck_32f(const Up2ConvOffset* pConv)
{
    if (pConv == nullptr || pConv->pConv == nullptr) {
        return 0;
    }
    const Up2Conv& inner = *pConv->pConv;
    return isWhole(inner.pKernel) && isWhole(inner.pLine) && inner.len > 0 && isPhase(up2ConvGetPhase_32f(&inner)) &&
           inner.pEven != nullptr && inner.evenLen > 0 && inner.oddLen >= 0 &&
           (inner.pOdd != nullptr) == (inner.oddLen > 0) &&
           (pConv->pOffsetLine == nullptr || isWhole(pConv->pOffsetLine));
}

int up2ConvGetPhase_32f(const Up2Conv* pConv) { return pConv->phase; }
void up2ConvSetPhase_32f(Up2Conv* pConv, int phase) { pConv->phase = phase; }

// -- States of all element types --------------------------------------------------------------------------------------

TarnStatus WTInvBaseInit_32f(TarnsWTInvState** ppState, Tarn32s tag, const WaveletFilter* pLow,
                             const WaveletFilter* pHigh, int scratchLen)
{
    *ppState = buildState<TarnsWTInvState>(tag, *pLow, *pHigh, scratchLen, up2ConvOffsetBytes, up2ConvOffsetInit_32f);
    return *ppState == nullptr ? tarnStsNoMemErr : tarnStsNoErr;
}

void WTInvBaseFree_32f(TarnsWTInvState* pState) { freeBank(pState); }

void WTInvBaseSetDlyLine_32f(TarnsWTInvState* pState, const Tarn32f* pDlyLow, const Tarn32f* pDlyHigh)
{
    setBankLines(pState, pDlyLow, pDlyHigh);
}

void WTInvBaseGetDlyLine_32f(const TarnsWTInvState* pState, Tarn32f* pDlyLow, Tarn32f* pDlyHigh)
{
    getBankLines(pState, pDlyLow, pDlyHigh);
}

// -- Front ends -------------------------------------------------------------------------------------------------------

namespace {

TarnStatus checkJoin(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, int srcLen, const void* pDst)
{
    if (const TarnStatus status = check(srcLen, pSrcLow, pSrcHigh)) {
        return status;
    }
    return pDst == nullptr ? tarnStsNullPtrErr : tarnStsNoErr;
}

template <typename D>
TarnStatus runInverse(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, int srcLen, D* pDst, TarnsWTInvState* pState,
                      Tarn32s tag)
{
    if (const TarnStatus status = checkBankState(pState, tag)) {
        return status;
    }
    if (const TarnStatus status = checkJoin(pSrcLow, pSrcHigh, srcLen, pDst)) {
        return status;
    }
    const auto join = [=](std::ptrdiff_t begin, std::ptrdiff_t len, Tarn32f* dst) {
        up2ConvOffsetBlock_32f(pState->pLow, pSrcLow + begin, 2 * len, dst);
        up2ConvOffsetBlockAdd_32f(pState->pHigh, pSrcHigh + begin, 2 * len, dst);
    };
    if constexpr (std::is_same_v<D, Tarn32f>) {
        join(0, srcLen, pDst);
    } else {
        byChunks(srcLen, [=](std::ptrdiff_t begin, int len) {
            join(begin, len, pState->pScratch);
            floatsToSamples(pState->pScratch, pDst + 2 * begin, 2 * len);
        });
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_DEFINE_WT_INV(TAIL, D, SCRATCH)                                                           \
    TARN_DEFINE_WT_STATE(Inv, TAIL, inv##TAIL, SCRATCH)                                                \
    TarnStatus tarnsWTInv_##TAIL(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, int srcLen, D* pDst, \
                                 TarnsWTInvState_##TAIL* pState)                                       \
    {                                                                                                  \
        return runInverse(pSrcLow, pSrcHigh, srcLen, pDst, pState, inv##TAIL);                         \
    }

TARN_DEFINE_WT_INV(32f, Tarn32f, 0)
TARN_DEFINE_WT_INV(32f8u, Tarn8u, scratchSamples)
TARN_DEFINE_WT_INV(32f8s, Tarn8s, scratchSamples)
TARN_DEFINE_WT_INV(32f16u, Tarn16u, scratchSamples)
TARN_DEFINE_WT_INV(32f16s, Tarn16s, scratchSamples)
