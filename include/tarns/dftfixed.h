/* Fourier transforms of any length of 16-bit samples. */
#ifndef TARNS_DFTFIXED_H
#define TARNS_DFTFIXED_H

#include "tarncore.h"
#include "tarns/dft.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup dftfixed Fourier transforms of any length of 16-bit samples
    Fourier transforms of any number of 16-bit samples, with a scale factor.

    @code{.c}
    const Tarn16s x[6] = {600, -600, 600, -600, 600, -600};
    Tarn16sc X[4];
    TarnsDFTSpec_R_16s* spec;
    if (tarnsDFTInitAlloc_R_16s(&spec, 6, TARN_FFT_DIV_FWD_BY_N, tarnAlgHintNone) == tarnStsNoErr) {
        tarnsDFTFwd_RToCCS_16s_Sfs(x, &X[0].re, spec, 0, NULL);
        printf("%d %d\n", X[0].re, X[3].re); // 0 600
        tarnsDFTFree_R_16s(spec);
    }
    @endcode

    __Accuracy:__ results are the exact ones, rounded, but for those next to a half.

    __Cost:__ the transform of floats of the same length, and two conversions.

    __Guide:__ [Fourier transforms of any length](docs/dft.md), and [of 16-bit samples](docs/fft.md).

    The transforms of any length of 16-bit samples, with a scale factor: what the [transforms of floats](@ref dft)
    compute, times 2^-scaleFactor, rounded to nearest, ties to even, and saturated to 16 bits. Objects, flags and packed
    spectra are those of floats.

    Without a scale a spectrum of N points is up to N times as large as the signal: results that do not fit saturate
    without a word. Divide by a flag, or by the scale factor.

    The samples are converted to single precision, transformed, and converted back, at every length. A power of two has
    the same results as the transforms of tarns/fftfixed.h have through floats.

    The caller's rounding mode shows in what the transform of floats computes, but not in the conversion back.
    @{ */

/** Specification objects: of interleaved complex data, of complex data in two arrays, of real data. Opaque. */
///@{
typedef struct TarnsDFTSpec_C_16sc TarnsDFTSpec_C_16sc;
typedef struct TarnsDFTSpec_C_16s TarnsDFTSpec_C_16s;
typedef struct TarnsDFTSpec_R_16s TarnsDFTSpec_R_16s;
///@}

/** Creates a specification object for transforms of 16-bit samples.

    @param ppSpec where to store the address of the object; keeps its value on failure
    @param length number of points N, 1 and more. The limit is memory, of which a table can have 2^31 - 1 bytes.
    @param flag   one of the TARN_FFT_... flags
    @param hint   kept in the object without effect; any value
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppSpec`; tarnStsSizeErr for a length below 1; tarnStsNoMemErr if
            there is no memory; tarnStsFftFlagErr for any other flag */
///@{
TARN_API TarnStatus tarnsDFTInitAlloc_C_16sc(TarnsDFTSpec_C_16sc** ppSpec, int length, int flag,
                                             TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDFTInitAlloc_C_16s(TarnsDFTSpec_C_16s** ppSpec, int length, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDFTInitAlloc_R_16s(TarnsDFTSpec_R_16s** ppSpec, int length, int flag, TarnHintAlgorithm hint);
///@}

/** Frees an object for transforms of 16-bit samples.

    @param pSpec object of the function's kind
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsDFTFree_C_16sc(TarnsDFTSpec_C_16sc* pSpec);
TARN_API TarnStatus tarnsDFTFree_C_16s(TarnsDFTSpec_C_16s* pSpec);
TARN_API TarnStatus tarnsDFTFree_R_16s(TarnsDFTSpec_R_16s* pSpec);
///@}

/** Tells how large a work buffer the transforms of an object need: room for the samples as floats, and what the
    transform of floats needs.

    @param pSpec object of the function's kind
    @param pSize where to store the size in bytes; 0 for a length of 1 only
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsDFTGetBufSize_C_16sc(const TarnsDFTSpec_C_16sc* pSpec, int* pSize);
TARN_API TarnStatus tarnsDFTGetBufSize_C_16s(const TarnsDFTSpec_C_16s* pSpec, int* pSize);
TARN_API TarnStatus tarnsDFTGetBufSize_R_16s(const TarnsDFTSpec_R_16s* pSpec, int* pSize);
///@}

/** Transforms interleaved complex samples.

    @param pSrc        N elements at any address
    @param pDst        N results; may be `pSrc`, which otherwise is left as it is
    @param pSpec       object of length N
    @param scaleFactor any integer: results are multiplied by 2^-scaleFactor
    @param pBuffer     as many bytes as tarnsDFTGetBufSize tells, at any address; or null, and the call allocates them
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `pSpec`; tarnStsContextMatchErr for an object of another kind;
            tarnStsNullPtrErr for a null array; tarnStsNoMemErr if there is no buffer and no memory for one */
///@{
TARN_API TarnStatus tarnsDFTFwd_CToC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, const TarnsDFTSpec_C_16sc* pSpec,
                                              int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CToC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, const TarnsDFTSpec_C_16sc* pSpec,
                                              int scaleFactor, Tarn8u* pBuffer);
///@}

/** Transforms complex samples whose real and imaginary parts are arrays of their own.

    @param pSrcRe      N real parts at any address
    @param pSrcIm      N imaginary parts at any address
    @param pDstRe      real parts of the N results; may be either source
    @param pDstIm      imaginary parts of the N results; may be either source
    @param pSpec       object of length N
    @param scaleFactor any integer: results are multiplied by 2^-scaleFactor
    @param pBuffer     as many bytes as tarnsDFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for interleaved data */
///@{
TARN_API TarnStatus tarnsDFTFwd_CToC_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDstRe,
                                             Tarn16s* pDstIm, const TarnsDFTSpec_C_16s* pSpec, int scaleFactor,
                                             Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CToC_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDstRe,
                                             Tarn16s* pDstIm, const TarnsDFTSpec_C_16s* pSpec, int scaleFactor,
                                             Tarn8u* pBuffer);
///@}

/** Transforms real samples to a packed spectrum: see the transforms of floats for the three formats.

    @param pSrc        N samples at any address
    @param pDst        N samples; in CCS N + 2 of an even length and N + 1 of an odd one. May be `pSrc`, which otherwise
    is left as it is.
    @param pSpec       object of length N
    @param scaleFactor any integer: results are multiplied by 2^-scaleFactor
    @param pBuffer     as many bytes as tarnsDFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for complex data */
///@{
TARN_API TarnStatus tarnsDFTFwd_RToPerm_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsDFTSpec_R_16s* pSpec,
                                                int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_RToPack_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsDFTSpec_R_16s* pSpec,
                                                int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_RToCCS_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsDFTSpec_R_16s* pSpec,
                                               int scaleFactor, Tarn8u* pBuffer);
///@}

/** Transforms a packed spectrum back to real samples. What a CCS spectrum holds in place of its zeros is not looked at.

    @param pSrc        spectrum at any address, with as many samples as its format has (1 is read for N = 1)
    @param pDst        N samples; may be `pSrc`, which otherwise is left as it is
    @param pSpec       object of length N
    @param scaleFactor any integer: results are multiplied by 2^-scaleFactor
    @param pBuffer     as many bytes as tarnsDFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for complex data */
///@{
TARN_API TarnStatus tarnsDFTInv_PermToR_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsDFTSpec_R_16s* pSpec,
                                                int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_PackToR_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsDFTSpec_R_16s* pSpec,
                                                int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CCSToR_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsDFTSpec_R_16s* pSpec,
                                               int scaleFactor, Tarn8u* pBuffer);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
