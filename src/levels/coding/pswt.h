// Wavelet banks inside: kernels, the filters of a channel, and what the states of all element types have in common.
// Blocks check nothing; counts of samples are those of memory.
#pragma once

#include "frame/kernels.h"
#include "levels/coding/pswt_state.h"

#include <cstddef>

namespace tarn {

// Elements of the kernels' tables for a filter of so many taps.
long long downTableLen(long long len);
long long upTableLen(long long len);
void writeDownTable(const Tarn32f* pTaps, int len, Tarn32f* pTable);
void writeUpTable(const Tarn32f* pTaps, int len, Tarn32f* pTable);

// Bytes of a channel's filter with all that belongs to it.
long long convDown2OffsetBytes(long long len, long long offs);
long long up2ConvOffsetBytes(long long len, long long offs);

} // namespace tarn

// -- Kernels ----------------------------------------------------------------------------------------------------------

// Output k is the sum of h[j] pSrc[len - 1 + 2k - j], so that the first one takes the first len samples; and outputs
// 2k and 2k + 1 are the sums of h[j] pSrc[n - 1 + k - j / 2] over even j and over odd j, n = (len + 1) / 2.
TARN_KERNEL void ownsConvDown2_32f(const Tarn32f* pSrc, Tarn32f* pDst, std::ptrdiff_t count,
                                   const tarn::WaveletKernel* pKernel);
TARN_KERNEL void ownsUp2Conv_32f(const Tarn32f* pSrc, Tarn32f* pDst, std::ptrdiff_t count,
                                 const tarn::WaveletKernel* pKernel);
TARN_KERNEL void ownsUp2ConvAdd_32f(const Tarn32f* pSrc, Tarn32f* pDst, std::ptrdiff_t count,
                                    const tarn::WaveletKernel* pKernel);

// -- Filters of a channel ---------------------------------------------------------------------------------------------

// In memory of the bytes told above, at a boundary of 16 bytes.
TARN_KERNEL tarn::ConvDown2Offset* convDown2OffsetInit_32f(const tarn::WaveletFilter* pFilter, Tarn8u* pMemory);
TARN_KERNEL tarn::Up2ConvOffset* up2ConvOffsetInit_32f(const tarn::WaveletFilter* pFilter, Tarn8u* pMemory);

// 1 for a filter that is whole.
TARN_KERNEL int convDown2OffsetCheck_32f(const tarn::ConvDown2Offset* pConv);
TARN_KERNEL int up2ConvOffsetCheck_32f(const tarn::Up2ConvOffset* pConv);

// len samples in.
TARN_KERNEL void convDown2OffsetBlock_32f(tarn::ConvDown2Offset* pConv, const Tarn32f* pSrc, std::ptrdiff_t len,
                                          Tarn32f* pDst);

// len samples out: written, or added to what is there. Those of an inner filter answer with the samples that went in.
TARN_KERNEL void up2ConvOffsetBlock_32f(tarn::Up2ConvOffset* pConv, const Tarn32f* pSrc, std::ptrdiff_t len,
                                        Tarn32f* pDst);
TARN_KERNEL void up2ConvOffsetBlockAdd_32f(tarn::Up2ConvOffset* pConv, const Tarn32f* pSrc, std::ptrdiff_t len,
                                           Tarn32f* pDst);
TARN_KERNEL std::ptrdiff_t up2ConvBlock_32f(tarn::Up2Conv* pConv, const Tarn32f* pSrc, std::ptrdiff_t len,
                                            Tarn32f* pDst);
TARN_KERNEL std::ptrdiff_t up2ConvBlockAdd_32f(tarn::Up2Conv* pConv, const Tarn32f* pSrc, std::ptrdiff_t len,
                                               Tarn32f* pDst);
TARN_KERNEL std::ptrdiff_t up2ConvBlockByAppend_32f(tarn::Up2Conv* pConv, const Tarn32f* pSrc, std::ptrdiff_t len,
                                                    Tarn32f* pDst);

// A sample in, two outputs.
TARN_KERNEL void up2ConvPair_32f(tarn::Up2Conv* pConv, Tarn32f src, Tarn32f* pPair);

TARN_KERNEL int up2ConvGetPhase_32f(const tarn::Up2Conv* pConv);
TARN_KERNEL void up2ConvSetPhase_32f(tarn::Up2Conv* pConv, int phase);

// -- States of all element types --------------------------------------------------------------------------------------

TARN_KERNEL TarnStatus WTFwdBaseInit_32f(TarnsWTFwdState** ppState, Tarn32s tag, const tarn::WaveletFilter* pLow,
                                         const tarn::WaveletFilter* pHigh, int scratchLen);
TARN_KERNEL TarnStatus WTInvBaseInit_32f(TarnsWTInvState** ppState, Tarn32s tag, const tarn::WaveletFilter* pLow,
                                         const tarn::WaveletFilter* pHigh, int scratchLen);
TARN_KERNEL void WTFwdBaseFree_32f(TarnsWTFwdState* pState);
TARN_KERNEL void WTInvBaseFree_32f(TarnsWTInvState* pState);
TARN_KERNEL void WTFwdBaseSetDlyLine_32f(TarnsWTFwdState* pState, const Tarn32f* pDlyLow, const Tarn32f* pDlyHigh);
TARN_KERNEL void WTFwdBaseGetDlyLine_32f(const TarnsWTFwdState* pState, Tarn32f* pDlyLow, Tarn32f* pDlyHigh);
TARN_KERNEL void WTInvBaseSetDlyLine_32f(TarnsWTInvState* pState, const Tarn32f* pDlyLow, const Tarn32f* pDlyHigh);
TARN_KERNEL void WTInvBaseGetDlyLine_32f(const TarnsWTInvState* pState, Tarn32f* pDlyLow, Tarn32f* pDlyHigh);
TARN_KERNEL void WTFwdBaseGetDlyLen_32f(const TarnsWTFwdState* pState, int* pLenLow, int* pLenHigh);
TARN_KERNEL void WTFwdBaseGetFiltTaps_32f(const TarnsWTFwdState* pState, Tarn32f* pTapsLow, Tarn32f* pTapsHigh);
