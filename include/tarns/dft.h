/* Fourier transforms of any length. */
#ifndef TARNS_DFT_H
#define TARNS_DFT_H

#include "tarns/fft.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup dft Fourier transforms of any length
    Fourier transforms of any number of points: a period of a hum, a frame of a standard, a length that small factors
    make.

    @code{.c}
    const Tarn32f x[6] = {1, -1, 1, -1, 1, -1};
    Tarn32fc X[4];
    TarnsDFTSpec_R_32f* spec;
    if (tarnsDFTInitAlloc_R_32f(&spec, 6, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone) == tarnStsNoErr) {
        tarnsDFTFwd_RToCCS_32f(x, &X[0].re, spec, NULL);
        printf("%.4f %.4f\n", X[0].re, X[3].re); // 0.0000 6.0000
        tarnsDFTFree_R_32f(spec);
    }
    @endcode

    __Accuracy:__ the root mean square of the error, relative to that of the result, is about 1e-7 (single) or 2e-16
    (double precision) by factors, twice to three times as much by convolution.

    __Cost:__ small factors cost about what powers of two do; a prime above 150 four times as much. Beside FFTW primes
    take 0.4 to 0.9 of its time in single precision, 0.6 to 1.3 in double.

    __Guide:__ [Fourier transforms of any length](docs/dft.md).

    The transforms of tarns/fft.h for every length N from 1 on: the same definition, flags, order of results, packed
    spectra and work buffers, with the length in place of its logarithm.

    - forward: X[k] = s * sum over n of x[n] exp(-2 pi i n k / N)
    - inverse: x[n] = s * sum over k of X[k] exp(+2 pi i n k / N)

    The scales s are chosen at creation, see the TARN_FFT_... flags. The method is chosen there too, by the arithmetic
    of N:

    - up to 4: a transform written out;
    - a power of two: the transform of tarns/fft.h, with its results to the bit;
    - factors, all of them at most 150: a mixed-radix transform by decimation in time;
    - a prime up to 150: direct sums, in which each product serves two results and two points;
    - anything else: a convolution with a chirp, exp(-i pi k^2 / N), by power-of-two transforms of at least 2 N - 1
      points.

    Real signals of an even length go through the complex transform of half the length and take the method of N / 2;
    those of an odd length have methods of their own, direct sums up to 180. Scaled results are multiplied by the factor
    at the end, but for lengths up to 4 and powers of two. docs/dft.md tells what the methods cost and how accurate they
    are: the root mean square of the error, relative to that of the result, is about 1e-7 (single) or 2e-16 (double
    precision) by factors, about three times as much by convolution.

    Transforms only read their object: threads may share one, each with a work buffer of its own.
    @{ */

/** Specification objects: of interleaved complex data, of complex data in two arrays, of real data. Opaque. */
///@{
typedef struct TarnsDFTSpec_C_32fc TarnsDFTSpec_C_32fc;
typedef struct TarnsDFTSpec_C_32f TarnsDFTSpec_C_32f;
typedef struct TarnsDFTSpec_R_32f TarnsDFTSpec_R_32f;
typedef struct TarnsDFTSpec_C_64fc TarnsDFTSpec_C_64fc;
typedef struct TarnsDFTSpec_C_64f TarnsDFTSpec_C_64f;
typedef struct TarnsDFTSpec_R_64f TarnsDFTSpec_R_64f;
///@}

/** Creates a specification object: the tables of one length. The time is that of some tens of transforms at most.

    @param ppSpec where to store the address of the object; keeps its value on failure
    @param length number of points N, 1 and more. The limit is memory, of which a table can have 2^31 - 1 bytes.
    @param flag   one of the TARN_FFT_... flags
    @param hint   kept in the object without effect on floating-point transforms; any value
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppSpec`; tarnStsSizeErr for a length below 1; tarnStsNoMemErr if
            there is no memory; tarnStsFftFlagErr for any other flag */
///@{
TARN_API TarnStatus tarnsDFTInitAlloc_C_32fc(TarnsDFTSpec_C_32fc** ppSpec, int length, int flag,
                                             TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDFTInitAlloc_C_32f(TarnsDFTSpec_C_32f** ppSpec, int length, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDFTInitAlloc_R_32f(TarnsDFTSpec_R_32f** ppSpec, int length, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDFTInitAlloc_C_64fc(TarnsDFTSpec_C_64fc** ppSpec, int length, int flag,
                                             TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDFTInitAlloc_C_64f(TarnsDFTSpec_C_64f** ppSpec, int length, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDFTInitAlloc_R_64f(TarnsDFTSpec_R_64f** ppSpec, int length, int flag, TarnHintAlgorithm hint);
///@}

/** Frees an object and its tables.

    @param pSpec object of the function's kind
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsDFTFree_C_32fc(TarnsDFTSpec_C_32fc* pSpec);
TARN_API TarnStatus tarnsDFTFree_C_32f(TarnsDFTSpec_C_32f* pSpec);
TARN_API TarnStatus tarnsDFTFree_R_32f(TarnsDFTSpec_R_32f* pSpec);
TARN_API TarnStatus tarnsDFTFree_C_64fc(TarnsDFTSpec_C_64fc* pSpec);
TARN_API TarnStatus tarnsDFTFree_C_64f(TarnsDFTSpec_C_64f* pSpec);
TARN_API TarnStatus tarnsDFTFree_R_64f(TarnsDFTSpec_R_64f* pSpec);
///@}

/** Tells how large a work buffer the transforms of an object need.

    @param pSpec object of the function's kind
    @param pSize where to store the size in bytes; 0 for lengths up to 4
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsDFTGetBufSize_C_32fc(const TarnsDFTSpec_C_32fc* pSpec, int* pSize);
TARN_API TarnStatus tarnsDFTGetBufSize_C_32f(const TarnsDFTSpec_C_32f* pSpec, int* pSize);
TARN_API TarnStatus tarnsDFTGetBufSize_R_32f(const TarnsDFTSpec_R_32f* pSpec, int* pSize);
TARN_API TarnStatus tarnsDFTGetBufSize_C_64fc(const TarnsDFTSpec_C_64fc* pSpec, int* pSize);
TARN_API TarnStatus tarnsDFTGetBufSize_C_64f(const TarnsDFTSpec_C_64f* pSpec, int* pSize);
TARN_API TarnStatus tarnsDFTGetBufSize_R_64f(const TarnsDFTSpec_R_64f* pSpec, int* pSize);
///@}

/** Transforms interleaved complex data.

    @param pSrc    N elements at any address
    @param pDst    N results; may be `pSrc`, which otherwise is left as it is
    @param pSpec   object of length N
    @param pBuffer as many bytes as tarnsDFTGetBufSize tells, at any address; or null, and the call allocates them
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `pSpec`; tarnStsContextMatchErr for an object of another kind;
            tarnStsNullPtrErr for a null array; tarnStsNoMemErr if there is no buffer and no memory for one. Infinities
            and NaNs spread to all results they enter by IEEE arithmetic, by a convolution to all there are. */
///@{
TARN_API TarnStatus tarnsDFTFwd_CToC_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, const TarnsDFTSpec_C_32fc* pSpec,
                                          Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CToC_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, const TarnsDFTSpec_C_32fc* pSpec,
                                          Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_CToC_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, const TarnsDFTSpec_C_64fc* pSpec,
                                          Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CToC_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, const TarnsDFTSpec_C_64fc* pSpec,
                                          Tarn8u* pBuffer);
///@}

/** Transforms complex data whose real and imaginary parts are arrays of their own.

    @param pSrcRe  N real parts at any address
    @param pSrcIm  N imaginary parts at any address
    @param pDstRe  real parts of the N results; may be `pSrcRe`, whether or not `pDstIm` is `pSrcIm`
    @param pDstIm  imaginary parts of the N results; may be `pSrcIm`
    @param pSpec   object of length N
    @param pBuffer as many bytes as tarnsDFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for interleaved data */
///@{
TARN_API TarnStatus tarnsDFTFwd_CToC_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDstRe, Tarn32f* pDstIm,
                                         const TarnsDFTSpec_C_32f* pSpec, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CToC_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDstRe, Tarn32f* pDstIm,
                                         const TarnsDFTSpec_C_32f* pSpec, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_CToC_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDstRe, Tarn64f* pDstIm,
                                         const TarnsDFTSpec_C_64f* pSpec, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CToC_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDstRe, Tarn64f* pDstIm,
                                         const TarnsDFTSpec_C_64f* pSpec, Tarn8u* pBuffer);
///@}

/** Transforms a real signal to one of the packed spectra, of which R and I are the real and imaginary parts of X[k].
    For an even N, with H = N / 2:

    - Perm: R0, R(H), R1, I1, R2, I2, ..., R(H-1), I(H-1)
    - Pack: R0, R1, I1, R2, I2, ..., R(H-1), I(H-1), R(H)
    - CCS: R0, 0, R1, I1, ..., R(H-1), I(H-1), R(H), 0

    For an odd N, with H = (N - 1) / 2:

    - Perm and Pack: R0, R1, I1, R2, I2, ..., R(H), I(H)
    - CCS: R0, 0, R1, I1, ..., R(H), I(H)

    @param pSrc    N reals at any address
    @param pDst    N reals; in CCS N + 2 of an even length and N + 1 of an odd one. May be `pSrc`, which otherwise is
                   left as it is.
    @param pSpec   object of length N
    @param pBuffer as many bytes as tarnsDFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for complex data */
///@{
TARN_API TarnStatus tarnsDFTFwd_RToPerm_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsDFTSpec_R_32f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_RToPerm_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsDFTSpec_R_64f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_RToPack_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsDFTSpec_R_32f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_RToPack_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsDFTSpec_R_64f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_RToCCS_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsDFTSpec_R_32f* pSpec,
                                           Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTFwd_RToCCS_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsDFTSpec_R_64f* pSpec,
                                           Tarn8u* pBuffer);
///@}

/** Transforms a packed spectrum back to the real signal. What a CCS spectrum holds in place of its zeros is not looked
    at. Without scaling the result is N times the signal whose forward transform the spectrum is.

    @param pSrc    spectrum at any address, with as many reals as its format has (1 is read for N = 1)
    @param pDst    N reals; may be `pSrc`, which otherwise is left as it is
    @param pSpec   object of length N
    @param pBuffer as many bytes as tarnsDFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for complex data */
///@{
TARN_API TarnStatus tarnsDFTInv_PermToR_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsDFTSpec_R_32f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_PermToR_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsDFTSpec_R_64f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_PackToR_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsDFTSpec_R_32f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_PackToR_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsDFTSpec_R_64f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CCSToR_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsDFTSpec_R_32f* pSpec,
                                           Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTInv_CCSToR_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsDFTSpec_R_64f* pSpec,
                                           Tarn8u* pBuffer);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
