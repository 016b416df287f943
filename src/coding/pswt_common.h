// What forward and inverse wavelet banks share: memory, delay lines, checks, conversion by chunks.
#pragma once

#include "frame/bytes.h"
#include "frame/checks.h"
#include "frame/state.h"
#include "levels/coding/pswt.h"
#include "levels/coding/pswt_lines.h"
#include "tarns/convert.h"

#include <algorithm>

namespace tarn {

// -- Building ---------------------------------------------------------------------------------------------------------

// Bytes of `count` elements as a region.
template <typename T>
constexpr long long regionBytes(long long count)
{
    return roundedUp(count * static_cast<long long>(sizeof(T)));
}

// A line of zeros.
inline void layOutLine(RegionPlacer& placer, CircularLine& line, int len)
{
    placer.take(line.pBuffer, regionBytes<Tarn32f>(2LL * len));
    zeroFill(line.pBuffer, 2 * len);
    line.len = len;
    line.pos = 0;
}

inline void layOutKernel(RegionPlacer& placer, WaveletKernel& kernel, const WaveletFilter& filter, long long tableLen,
                         void (*writeTable)(const Tarn32f*, int, Tarn32f*))
{
    placer.take(kernel.pTaps, regionBytes<Tarn32f>(filter.len));
    // One tap has no table; what stands for it is never read.
    placer.take(kernel.pTable, regionBytes<Tarn32f>(std::max(tableLen, 1LL)));
    kernel.len = filter.len;
    copy(filter.pTaps, kernel.pTaps, filter.len);
    writeTable(filter.pTaps, filter.len, kernel.pTable);
}

// A state with two filters and a scratch in one block; null if there is no memory.
template <typename State, typename Conv>
inline State* buildState(Tarn32s tag, const WaveletFilter& low, const WaveletFilter& high, int scratchLen,
                         long long (*bytesOf)(long long, long long), Conv* (*init)(const WaveletFilter*, Tarn8u*))
{
    const long long lowBytes = bytesOf(low.len, low.offs);
    const long long highBytes = bytesOf(high.len, high.offs);
    const long long scratchBytes = regionBytes<Tarn32f>(scratchLen);
    constexpr long long fieldBytes = regionBytes<State>(1);
    Owned<Tarn8u[]> block = allocate<Tarn8u>(fieldBytes + lowBytes + highBytes + scratchBytes);
    if (!block) {
        return nullptr;
    }
    auto* const state = reinterpret_cast<State*>(block.release());
    RegionPlacer placer(state, fieldBytes);
    Tarn8u* lowMemory = nullptr;
    Tarn8u* highMemory = nullptr;
    placer.take(lowMemory, lowBytes);
    placer.take(highMemory, highBytes);
    placer.take(state->pScratch, scratchBytes);
    state->pLow = init(&low, lowMemory);
    state->pHigh = init(&high, highMemory);
    state->scratchLen = scratchLen;
    state->tag = tag;
    return state;
}

// A stale pointer is told by its tag as long as the memory is not used again.
template <typename State>
inline void freeBank(State* state)
{
    state->tag = 0;
    tarnsFree(state);
}

// -- Delay lines ------------------------------------------------------------------------------------------------------

// The newest `count` samples of a filter's line, then those that have not gone in yet.
inline void getLines(const CircularLine& line, int count, const CircularLine* offsetLine, Tarn32f* pDly)
{
    if (count > 0) {
        copy(line.pBuffer + line.pos + (line.len - count), pDly, count);
        pDly += count;
    }
    if (offsetLine != nullptr) {
        copy(offsetLine->pBuffer + offsetLine->pos, pDly, offsetLine->len);
    }
}
inline void setLines(const Tarn32f* pDly, CircularLine& line, int count, CircularLine* offsetLine)
{
    if (count > 0) {
        enterSamples(line, pDly, count);
        pDly += count;
    }
    if (offsetLine != nullptr) {
        enterSamples(*offsetLine, pDly, offsetLine->len);
    }
}

// Samples of a filter's line that still count: forward as many as miss for the next output, and inverse those that the
// next ones have in their sums.
inline int countOf(const ConvDown2& conv) { return conv.len - conv.phase - 1; }
inline int countOf(const Up2Conv& conv) { return (conv.len + conv.phase - 1) / 2; }

template <typename State>
inline void setBankLines(State* state, const Tarn32f* pDlyLow, const Tarn32f* pDlyHigh)
{
    const auto set = [](const auto& conv, const Tarn32f* pDly) {
        setLines(pDly, *conv.pConv->pLine, countOf(*conv.pConv), conv.pOffsetLine);
    };
    set(*state->pLow, pDlyLow);
    set(*state->pHigh, pDlyHigh);
}
template <typename State>
inline void getBankLines(const State* state, Tarn32f* pDlyLow, Tarn32f* pDlyHigh)
{
    const auto get = [](const auto& conv, Tarn32f* pDly) {
        getLines(*conv.pConv->pLine, countOf(*conv.pConv), conv.pOffsetLine, pDly);
    };
    get(*state->pLow, pDlyLow);
    get(*state->pHigh, pDlyHigh);
}

// -- Checks -----------------------------------------------------------------------------------------------------------

inline TarnStatus checkFilters(const void* ppState, const WaveletFilter& low, const WaveletFilter& high)
{
    if (ppState == nullptr || low.pTaps == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (low.len < 1) {
        return tarnStsSizeErr;
    }
    if (const TarnStatus status = check(high.len, high.pTaps)) {
        return status;
    }
    return low.offs < -1 || high.offs < -1 ? tarnStsWtOffsetErr : tarnStsNoErr;
}

inline bool isWhole(const CircularLine* line)
{
    return line != nullptr && line->pBuffer != nullptr && line->len > 0 && line->pos >= 0 && line->pos < line->len;
}
inline bool isWhole(const WaveletKernel* kernel)
{
    return kernel != nullptr && kernel->len > 0 && kernel->pTaps != nullptr && kernel->pTable != nullptr;
}
inline bool isPhase(int phase) { return phase == 0 || phase == 1; }

inline bool isWhole(const ConvDown2Offset* conv) { return convDown2OffsetCheck_32f(conv) != 0; }
inline bool isWhole(const Up2ConvOffset* conv) { return up2ConvOffsetCheck_32f(conv) != 0; }

// A state of the function's own kind, with all that the function is going to touch.
template <typename State>
inline TarnStatus checkBankState(const State* state, Tarn32s tag)
{
    if (state == nullptr) {
        return tarnStsNullPtrErr;
    }
    const bool converts = tag != fwd32f && tag != inv32f;
    const bool isGood = state->tag == tag && isWhole(state->pLow) && isWhole(state->pHigh) && state->scratchLen >= 0 &&
                        (state->pScratch != nullptr) == (state->scratchLen > 0) &&
                        (!converts || state->scratchLen == scratchSamples);
    return isGood ? tarnStsNoErr : tarnStsContextMatchErr;
}
template <typename State>
inline TarnStatus checkLines(const State* state, Tarn32s tag, const Tarn32f* pDlyLow, const Tarn32f* pDlyHigh)
{
    if (const TarnStatus status = checkBankState(state, tag)) {
        return status;
    }
    return pDlyLow == nullptr || pDlyHigh == nullptr ? tarnStsNullPtrErr : tarnStsNoErr;
}

// -- Chunks -----------------------------------------------------------------------------------------------------------

// Calls `run` with places and lengths, at half rate, of chunks whose samples fit into the scratch.
template <typename Run>
inline void byChunks(int len, Run run)
{
    constexpr int chunk = scratchSamples / 2;
    std::ptrdiff_t begin = 0;
    for (; len > chunk; len -= chunk, begin += chunk) {
        run(begin, chunk);
    }
    run(begin, len);
}

inline void samplesToFloats(const Tarn8u* src, Tarn32f* dst, int len) { tarnsConvert_8u32f(src, dst, len); }
inline void samplesToFloats(const Tarn8s* src, Tarn32f* dst, int len) { tarnsConvert_8s32f(src, dst, len); }
inline void samplesToFloats(const Tarn16u* src, Tarn32f* dst, int len) { tarnsConvert_16u32f(src, dst, len); }
inline void samplesToFloats(const Tarn16s* src, Tarn32f* dst, int len) { tarnsConvert_16s32f(src, dst, len); }

inline constexpr int toNearest = 1;
inline void floatsToSamples(const Tarn32f* src, Tarn8u* dst, int len)
{
    tarnsConvert_32f8u_Sfs(src, dst, len, toNearest, 0);
}
inline void floatsToSamples(const Tarn32f* src, Tarn8s* dst, int len)
{
    tarnsConvert_32f8s_Sfs(src, dst, len, toNearest, 0);
}
inline void floatsToSamples(const Tarn32f* src, Tarn16u* dst, int len)
{
    tarnsConvert_32f16u_Sfs(src, dst, len, toNearest, 0);
}
inline void floatsToSamples(const Tarn32f* src, Tarn16s* dst, int len)
{
    tarnsConvert_32f16s_Sfs(src, dst, len, toNearest, 0);
}

} // namespace tarn

// -- Front ends -------------------------------------------------------------------------------------------------------

// All that a state has but its transform. WAY is Fwd or Inv.
#define TARN_DEFINE_WT_STATE(WAY, TAIL, TAG, SCRATCH)                                                         \
    TarnStatus tarnsWT##WAY##InitAlloc_##TAIL(TarnsWT##WAY##State_##TAIL** ppState, const Tarn32f* pTapsLow,  \
                                              int lenLow, int offsLow, const Tarn32f* pTapsHigh, int lenHigh, \
                                              int offsHigh)                                                   \
    {                                                                                                         \
        const WaveletFilter low{pTapsLow, lenLow, offsLow};                                                   \
        const WaveletFilter high{pTapsHigh, lenHigh, offsHigh};                                               \
        const TarnStatus status = checkFilters(ppState, low, high);                                           \
        return status != tarnStsNoErr ? status : WT##WAY##BaseInit_32f(ppState, TAG, &low, &high, SCRATCH);   \
    }                                                                                                         \
    TarnStatus tarnsWT##WAY##Free_##TAIL(TarnsWT##WAY##State_##TAIL* pState)                                  \
    {                                                                                                         \
        const TarnStatus status = checkBankState(pState, TAG);                                                \
        if (status == tarnStsNoErr) {                                                                         \
            WT##WAY##BaseFree_32f(pState);                                                                    \
        }                                                                                                     \
        return status;                                                                                        \
    }                                                                                                         \
    TarnStatus tarnsWT##WAY##SetDlyLine_##TAIL(TarnsWT##WAY##State_##TAIL* pState, const Tarn32f* pDlyLow,    \
                                               const Tarn32f* pDlyHigh)                                       \
    {                                                                                                         \
        const TarnStatus status = checkLines(pState, TAG, pDlyLow, pDlyHigh);                                 \
        if (status == tarnStsNoErr) {                                                                         \
            WT##WAY##BaseSetDlyLine_32f(pState, pDlyLow, pDlyHigh);                                           \
        }                                                                                                     \
        return status;                                                                                        \
    }                                                                                                         \
    TarnStatus tarnsWT##WAY##GetDlyLine_##TAIL(const TarnsWT##WAY##State_##TAIL* pState, Tarn32f* pDlyLow,    \
                                               Tarn32f* pDlyHigh)                                             \
    {                                                                                                         \
        const TarnStatus status = checkLines(pState, TAG, pDlyLow, pDlyHigh);                                 \
        if (status == tarnStsNoErr) {                                                                         \
            WT##WAY##BaseGetDlyLine_32f(pState, pDlyLow, pDlyHigh);                                           \
        }                                                                                                     \
        return status;                                                                                        \
    }
