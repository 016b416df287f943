// Kernels of the transforms of 16-bit samples in fixed point: lengths up to 8, in 32-bit words.
#pragma once

#include "frame/kernels.h"
#include "levels/fft/psfft_spec.h"

// -- Tables, from tarnsMalloc_8u; null if there is no memory. Factors are words, 1 being 16384. ----------------------

// sin(2 pi j / N), j from 0 to N / 4.
TARN_KERNEL Tarn16s* tarns_createTabTwdBase_16s(int order);

// Four words (c, s, -s, c) for each k below N, c and s being cosine and sine of 2 pi k / N: the two pairs multiplied
// with a complex element and added up are the parts of its product with exp(-2 pi i k / N). `base` is a base table of
// order `baseOrder`.
TARN_KERNEL Tarn16s* tarns_createTabTwd_R4_16s(int order, const Tarn16s* base, int baseOrder);

namespace tarn::fft {

// Two times four such words for each k from 1 to a quarter of the real length: those that join a complex transform of
// half the length to a real one, 1 being 32768 in them, and those that take it apart. `base` is the base table of that
// order.
Tarn16s* createRealTable_16s(int order, const Tarn16s* base);

} // namespace tarn::fft

// -- Samples to words and back ---------------------------------------------------------------------------------------

// x 2^shift for a shift of up to 16: the sample in the upper half of a word, shifted down by 16 - shift.
TARN_KERNEL void tarns_cnvrt_16s32s(const Tarn16s* pSrc, Tarn32s* pDst, int len, int shift);
// x 2^-shift for any shift, a half rounded up, saturated.
TARN_KERNEL void tarns_cnvrt_32s16s(const Tarn32s* pSrc, Tarn16s* pDst, int len, int shift);

// Two arrays to one of pairs, and back.
TARN_KERNEL void tarns_vbFftMerge_16s(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16sc* pDst, int len);
TARN_KERNEL void tarns_vbFftSplit_16s(const Tarn16sc* pSrc, Tarn16s* pDstRe, Tarn16s* pDstIm, int len);

// -- Transforms of words, in place -----------------------------------------------------------------------------------

// N of 1, 2, 4 or 8 elements from natural to bit-reversed order, forward for a direction of 1, inverse for -1. The
// table is that of this length. Sums wrap around: the elements leave room for them on top.
TARN_KERNEL void tarns_jFft_Core_16s(Tarn32sc* pData, int N, int direction, const Tarn16s* twd);

// Words times sqrt(1/2), rounded to nearest.
TARN_KERNEL void tarns_ibMpyBySqrt2_32s(Tarn32s* pData, int len);

// Slots 1 to M - 1 of a spectrum of M slots; slot 0 is the caller's. `direction` is 1 in the first and -1 in the second
// and changes nothing, as in the transforms of floats.
TARN_KERNEL void tarns_jRealRecombine_16s(Tarn32s* pData, int M, int direction, const Tarn16s* table);
TARN_KERNEL void tarns_jCcsRecombine_16s(Tarn32s* pData, int M, int direction, const Tarn16s* table);
