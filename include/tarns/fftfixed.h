/* Fourier transforms of power-of-two lengths of 16-bit samples. */
#ifndef TARNS_FFTFIXED_H
#define TARNS_FFTFIXED_H

#include "tarncore.h"
#include "tarns/fft.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fftfixed Fourier transforms of 16-bit samples
    Fourier transforms of 2^order 16-bit samples, as sound cards and modems have them, with a scale factor in place of
    conversions of one's own.

    @code{.c}
    const Tarn16s x[8] = {1000, 0, -1000, 0, 1000, 0, -1000, 0};
    Tarn16sc X[5];
    TarnsFFTSpec_R_16s* spec;
    if (tarnsFFTInitAlloc_R_16s(&spec, 3, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone) == tarnStsNoErr) {
        tarnsFFTFwd_RToCCS_16s_Sfs(x, &X[0].re, spec, 2, NULL); // a quarter
        printf("%d %d %d\n", X[0].re, X[2].re, X[4].re); // 0 1000 0
        tarnsFFTFree_R_16s(spec);
    }
    @endcode

    __Accuracy:__ results are the exact ones, rounded, but for those next to a half: the error before rounding is about
    1e-7 of the spectrum's root mean square, and 2.0e-5 at order 3 in fixed point.

    __Cost:__ 1.0 to 1.6 of the transform of floats from order 6 on, up to three times as much at order 4.

    __Guide:__ [Fourier transforms](docs/fft.md), section Samples of 16 bits.

    The transforms of power-of-two lengths of 16-bit samples, with a scale factor: what the [transforms of floats]
    (@ref fft) compute, times 2^-scaleFactor, rounded and saturated to 16 bits. Objects, flags and packed spectra are
    those of floats.

    Without a scale a spectrum of N points is up to N times as large as the signal: results that do not fit saturate
    without a word. Divide by a flag, which costs no accuracy, or by the scale factor.

    There are two ways to compute, by the object:

    - orders 1 to 3 with a hint of `tarnAlgHintNone` or `tarnAlgHintFast`: in fixed point. Words of 32 bits hold the
      sums, factors have 14 binary places, and halves round up. The factors of sqrt(1/2) that 8 points need are off by
      2.0e-5 of themselves; orders 1 and 2 are exact up to the last rounding.
    - all else: through single precision. The samples are converted, transformed, and converted back with rounding to
      nearest, ties to even. The error is that of the transform of floats, about 1e-7 of the spectrum's root mean
      square.

    The caller's rounding mode shows in what the transform of floats computes, but not in the conversion back.
    @{ */

/** Specification objects: of interleaved complex data, of complex data in two arrays, of real data. Opaque. */
///@{
typedef struct TarnsFFTSpec_C_16sc TarnsFFTSpec_C_16sc;
typedef struct TarnsFFTSpec_C_16s TarnsFFTSpec_C_16s;
typedef struct TarnsFFTSpec_R_16s TarnsFFTSpec_R_16s;
///@}

/** Creates a specification object for transforms of 16-bit samples.

    @param ppSpec where to store the address of the object; keeps its value on failure
    @param order  logarithm of the length to base 2, 0 to 30. There is no memory for orders above 27 (complex) or 28
                  (real), see the objects of floats.
    @param flag   one of the TARN_FFT_... flags
    @param hint   `tarnAlgHintNone` or `tarnAlgHintFast`: in fixed point up to order 3. Any other value: always through
                  floats.
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppSpec`; tarnStsFftOrderErr for an order out of range;
            tarnStsNoMemErr if there is no memory; tarnStsFftFlagErr for any other flag */
///@{
TARN_API TarnStatus tarnsFFTInitAlloc_C_16sc(TarnsFFTSpec_C_16sc** ppSpec, int order, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsFFTInitAlloc_C_16s(TarnsFFTSpec_C_16s** ppSpec, int order, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsFFTInitAlloc_R_16s(TarnsFFTSpec_R_16s** ppSpec, int order, int flag, TarnHintAlgorithm hint);
///@}

/** Frees an object for transforms of 16-bit samples.

    @param pSpec object of the function's kind
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsFFTFree_C_16sc(TarnsFFTSpec_C_16sc* pSpec);
TARN_API TarnStatus tarnsFFTFree_C_16s(TarnsFFTSpec_C_16s* pSpec);
TARN_API TarnStatus tarnsFFTFree_R_16s(TarnsFFTSpec_R_16s* pSpec);
///@}

/** Tells how large a work buffer the transforms of an object need: room for the samples as floats or words, and what
    the transform of floats needs.

    @param pSpec object of the function's kind
    @param pSize where to store the size in bytes; 0 at order 0 only
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsFFTGetBufSize_C_16sc(const TarnsFFTSpec_C_16sc* pSpec, int* pSize);
TARN_API TarnStatus tarnsFFTGetBufSize_C_16s(const TarnsFFTSpec_C_16s* pSpec, int* pSize);
TARN_API TarnStatus tarnsFFTGetBufSize_R_16s(const TarnsFFTSpec_R_16s* pSpec, int* pSize);
///@}

/** Transforms interleaved complex samples. At order 0 the element is divided by 2^scaleFactor, a half rounded up.

    @param pSrc        N elements at any address
    @param pDst        N results; may be `pSrc`, which otherwise is left as it is
    @param pSpec       object of order log2 N
    @param scaleFactor any integer: results are multiplied by 2^-scaleFactor
    @param pBuffer     as many bytes as tarnsFFTGetBufSize tells, at any address; or null, and the call allocates them
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `pSpec`; tarnStsContextMatchErr for an object of another kind;
            tarnStsNullPtrErr for a null array; tarnStsNoMemErr if there is no buffer and no memory for one */
///@{
TARN_API TarnStatus tarnsFFTFwd_CToC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, const TarnsFFTSpec_C_16sc* pSpec,
                                              int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CToC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, const TarnsFFTSpec_C_16sc* pSpec,
                                              int scaleFactor, Tarn8u* pBuffer);
///@}

/** Transforms complex samples whose real and imaginary parts are arrays of their own.

    @param pSrcRe      N real parts at any address
    @param pSrcIm      N imaginary parts at any address
    @param pDstRe      real parts of the N results; may be either source
    @param pDstIm      imaginary parts of the N results; may be either source
    @param pSpec       object of order log2 N
    @param scaleFactor any integer: results are multiplied by 2^-scaleFactor
    @param pBuffer     as many bytes as tarnsFFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for interleaved data */
///@{
TARN_API TarnStatus tarnsFFTFwd_CToC_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDstRe,
                                             Tarn16s* pDstIm, const TarnsFFTSpec_C_16s* pSpec, int scaleFactor,
                                             Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CToC_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDstRe,
                                             Tarn16s* pDstIm, const TarnsFFTSpec_C_16s* pSpec, int scaleFactor,
                                             Tarn8u* pBuffer);
///@}

/** Transforms real samples to a packed spectrum: see the transforms of floats for the three formats.

    @param pSrc        N samples at any address
    @param pDst        N samples, N + 2 in CCS (2 for N = 1); may be `pSrc`, which otherwise is left as it is
    @param pSpec       object of order log2 N
    @param scaleFactor any integer: results are multiplied by 2^-scaleFactor
    @param pBuffer     as many bytes as tarnsFFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for complex data */
///@{
TARN_API TarnStatus tarnsFFTFwd_RToPerm_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsFFTSpec_R_16s* pSpec,
                                                int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_RToPack_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsFFTSpec_R_16s* pSpec,
                                                int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_RToCCS_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsFFTSpec_R_16s* pSpec,
                                               int scaleFactor, Tarn8u* pBuffer);
///@}

/** Transforms a packed spectrum back to real samples. What a CCS spectrum holds in place of its two zeros is not looked
    at.

    @param pSrc        spectrum, N samples, N + 2 in CCS (1 is read for N = 1), at any address
    @param pDst        N samples; may be `pSrc`, which otherwise is left as it is
    @param pSpec       object of order log2 N
    @param scaleFactor any integer: results are multiplied by 2^-scaleFactor
    @param pBuffer     as many bytes as tarnsFFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for complex data */
///@{
TARN_API TarnStatus tarnsFFTInv_PermToR_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsFFTSpec_R_16s* pSpec,
                                                int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_PackToR_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsFFTSpec_R_16s* pSpec,
                                                int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CCSToR_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsFFTSpec_R_16s* pSpec,
                                               int scaleFactor, Tarn8u* pBuffer);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
