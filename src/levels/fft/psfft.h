// Kernels of the power-of-two transforms: tables, cores, bit reversal, recombination, the block route.
#pragma once

#include "frame/kernels.h"
#include "levels/fft/psfft_spec.h"

// -- Tables, from tarnsMalloc_8u; null if there is no memory ---------------------------------------------------------

// sin(2 pi j / N), j from 0 to N / 4: what every other table is made of.
TARN_KERNEL Tarn32f* tarns_createTabTwdBase_32f(int order);
TARN_KERNEL Tarn64f* tarns_createTabTwdBase_64f(int order);

// The order in which a transform of N points reads its quadruples, as real-element indices, N / 4 + 1 words.
TARN_KERNEL Tarn32s* tarns_createTabBitRevNorm(int order);

// The exchanges of a bit reversal in place: pairs, 0, fixed points, 0; N / 4 + 1 words.
TARN_KERNEL Tarn32s* tarns_createTabBitRev(int order);

// The twiddle factors of all the radix-4 stages of one length, from a base table of order `baseOrder`.
TARN_KERNEL Tarn32f* tarns_createTabTwd_L1_32f(int order, const Tarn32f* base, int baseOrder);
TARN_KERNEL Tarn64f* tarns_createTabTwd_L1_64f(int order, const Tarn64f* base, int baseOrder);

// -- The radix-4 core, 8 points and more -----------------------------------------------------------------------------
//
// Norm: from natural order, read through the table `rev`; the others from bit-reversed order, in place, leaving pairs
// if `interleave` is 1 and the working arrangement otherwise. Results are in natural order. `work` holds N complex
// elements on a vector boundary; the interleaved calls do without it where the destination is on one and not the
// source.
#define TARN_FFT_DECLARE_CORES(T, DIRECTION)                                                                          \
    TARN_KERNEL void tarns_cRadix4##DIRECTION##Norm_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int N,           \
                                                           const Tarn##T* twd, const Tarn32s* rev, Tarn##T* work);    \
    TARN_KERNEL void tarns_cRadix4##DIRECTION##_##T##c(Tarn##T##c* pData, int N, const Tarn##T* twd, Tarn##T* work,   \
                                                       int interleave);                                               \
    TARN_KERNEL void tarns_crRadix4##DIRECTION##Norm_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm,                \
                                                         Tarn##T* pDstRe, Tarn##T* pDstIm, int N, const Tarn##T* twd, \
                                                         const Tarn32s* rev, Tarn##T* work);                          \
    TARN_KERNEL void tarns_crRadix4##DIRECTION##_##T(Tarn##T* pRe, Tarn##T* pIm, int N, const Tarn##T* twd,           \
                                                     Tarn##T* work)

TARN_FFT_DECLARE_CORES(32f, Fwd);
TARN_FFT_DECLARE_CORES(32f, Inv);
TARN_FFT_DECLARE_CORES(64f, Fwd);
TARN_FFT_DECLARE_CORES(64f, Inv);

// Scale `len` reals in place.
TARN_KERNEL void tarns_rbMpy1_32f(Tarn32f factor, Tarn32f* pData, int len);
TARN_KERNEL void tarns_rbMpy1_64f(Tarn64f factor, Tarn64f* pData, int len);

// -- Bit reversal of N elements, 4 and more, by the table of tarns_createTabBitRev; 1 in place, 2 from array to array
// ---

#define TARN_FFT_DECLARE_REVERSAL_IN_PLACE(NAME, T) TARN_KERNEL void NAME(T* pSrcDst, int N, const Tarn32s* table)
#define TARN_FFT_DECLARE_REVERSAL(NAME, T) TARN_KERNEL void NAME(const T* pSrc, T* pDst, int N, const Tarn32s* table)

TARN_FFT_DECLARE_REVERSAL_IN_PLACE(tarns_BitRev1_C, Tarn32fc);
TARN_FFT_DECLARE_REVERSAL_IN_PLACE(tarns_BitRev1_Z, Tarn64fc);
TARN_FFT_DECLARE_REVERSAL_IN_PLACE(tarns_BitRev1_D, Tarn64f);
TARN_FFT_DECLARE_REVERSAL_IN_PLACE(tarns_BitRev1_4, void);  // elements of 4 bytes
TARN_FFT_DECLARE_REVERSAL_IN_PLACE(tarns_BitRev1_8, void);  // of 8 bytes
TARN_FFT_DECLARE_REVERSAL_IN_PLACE(tarns_BitRev1_16, void); // of 16 bytes
TARN_FFT_DECLARE_REVERSAL(tarns_BitRev2_C, Tarn32fc);
TARN_FFT_DECLARE_REVERSAL(tarns_BitRev2_Z, Tarn64fc);
TARN_FFT_DECLARE_REVERSAL(tarns_BitRev2_S, Tarn32f);
TARN_FFT_DECLARE_REVERSAL(tarns_BitRev2_D, Tarn64f);
TARN_FFT_DECLARE_REVERSAL(tarns_BitRev2_4, void);
TARN_FFT_DECLARE_REVERSAL(tarns_BitRev2_8, void);
TARN_FFT_DECLARE_REVERSAL(tarns_BitRev2_16, void);

// -- Recombination ----------------------------------------------------------------------------------------------------

// The factors that join a complex transform of half the length to a real one of 2^order points, and those that take it
// apart; `base` is the base table of that order.
TARN_KERNEL Tarn32f* tarns_createTabTwdRealRec_32f(int order, const Tarn32f* base);
TARN_KERNEL Tarn64f* tarns_createTabTwdRealRec_64f(int order, const Tarn64f* base);
TARN_KERNEL Tarn32f* tarns_createTabTwdCcsRec_32f(int order, const Tarn32f* base);
TARN_KERNEL Tarn64f* tarns_createTabTwdCcsRec_64f(int order, const Tarn64f* base);

// Slots 1 to M - 1 of a spectrum of M slots; slot 0 is the caller's. `direction` is 1 in the first and -1 in the second
// and changes nothing: each call has one direction only.
TARN_KERNEL void tarns_cRealRecombine_32f(Tarn32f* pData, int M, int direction, const Tarn32f* table);
TARN_KERNEL void tarns_cRealRecombine_64f(Tarn64f* pData, int M, int direction, const Tarn64f* table);
TARN_KERNEL void tarns_cCcsRecombine_32f(const Tarn32f* pSrc, Tarn32f* pDst, int M, int direction,
                                         const Tarn32f* table);
TARN_KERNEL void tarns_cCcsRecombine_64f(const Tarn64f* pSrc, Tarn64f* pDst, int M, int direction,
                                         const Tarn64f* table);

// -- Large orders: transforms of rows, then of the columns that their results form ------------------------------------

// The tables of a block route, kept by the object.
TARN_KERNEL TarnStatus tarns_createTabTwd_Large_32f(tarn::fft::Spec<Tarn32f>* pSpec, int order, const Tarn32f* base,
                                                    int baseOrder);
TARN_KERNEL TarnStatus tarns_createTabTwd_Large_64f(tarn::fft::Spec<Tarn64f>* pSpec, int order, const Tarn64f* base,
                                                    int baseOrder);

// In place, from bit-reversed to natural order, the rows scaled if the object says so.
#define TARN_FFT_DECLARE_LARGE(T, DIRECTION)                                                                        \
    TARN_KERNEL void tarns_cFft##DIRECTION##_Large_##T##c(const tarn::fft::Spec<Tarn##T>* pSpec, Tarn##T##c* pData, \
                                                          int order, Tarn##T* work);                                \
    TARN_KERNEL void tarns_crFft##DIRECTION##_Large_##T(const tarn::fft::Spec<Tarn##T>* pSpec, Tarn##T* pDataRe,    \
                                                        Tarn##T* pDataIm, int order, Tarn##T* work)

TARN_FFT_DECLARE_LARGE(32f, Fwd);
TARN_FFT_DECLARE_LARGE(32f, Inv);
TARN_FFT_DECLARE_LARGE(64f, Fwd);
TARN_FFT_DECLARE_LARGE(64f, Inv);

// Four columns of R rows, C elements apart, out of the data into four areas of `work`, multiplied by their factors of
// the grid or (`forward` 0) by the conjugates; and back out of the working arrangement, as pairs if `interleave` is 1.
#define TARN_FFT_DECLARE_COLUMNS(T)                                                                               \
    TARN_KERNEL void tarns_cFftBlkMergeMpy_##T##c(const Tarn##T##c* pCols, Tarn##T##c* work, const Tarn##T* grid, \
                                                  int forward, int C, int R);                                     \
    TARN_KERNEL void tarns_cFftBlkSplit_##T##c(Tarn##T##c* pCols, const Tarn##T##c* work, int C, int R,           \
                                               int interleave);                                                   \
    TARN_KERNEL void tarns_crFftBlkMergeMpy_##T(const Tarn##T* pRe, const Tarn##T* pIm, Tarn##T##c* work,         \
                                                const Tarn##T* grid, int forward, int C, int R);                  \
    TARN_KERNEL void tarns_crFftBlkSplit_##T(Tarn##T* pRe, Tarn##T* pIm, const Tarn##T##c* work, int C, int R)

TARN_FFT_DECLARE_COLUMNS(32f);
TARN_FFT_DECLARE_COLUMNS(64f);
