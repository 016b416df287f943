/* Fourier transforms of power-of-two lengths. */
#ifndef TARNS_FFT_H
#define TARNS_FFT_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fft Fourier transforms of power-of-two lengths
    Fourier transforms of N = 2^order points, complex or real: spectra, fast convolution, filter banks.

    @code{.c}
    const Tarn32f x[8] = {1, 0, -1, 0, 1, 0, -1, 0}; // two periods
    Tarn32fc X[5];
    TarnsFFTSpec_R_32f* spec;
    if (tarnsFFTInitAlloc_R_32f(&spec, 3, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone) == tarnStsNoErr) {
        tarnsFFTFwd_RToCCS_32f(x, &X[0].re, spec, NULL);
        printf("%g %g %g\n", X[0].re, X[2].re, X[4].re); // 0 4 0
        tarnsFFTFree_R_32f(spec);
    }
    @endcode

    __Accuracy:__ the root mean square of the error, relative to that of the result, is 6e-8 at order 3, 1.1e-7 at 10
    and 1.4e-7 at 16 in single precision; in double precision 3e-16 at the largest lengths.

    __Cost:__ 2.5 ns a point at 16,384 points (`32fc`), 5.8 ns at a million. Beside FFTW, which has vectors of 256 or
    512 bits, real transforms take 0.6 to 1.1 of its time in single and 1.0 to 1.9 in double precision, complex ones 0.4
    to 2.5.

    __Guide:__ [Fourier transforms](docs/fft.md), and [packed spectra](docs/packed-formats.md) of real signals.

    A specification object is created once for a length N = 2^order, serves any number of transforms in both directions,
    and is freed. Results come in natural order.

    - forward: X[k] = s * sum over n of x[n] exp(-2 pi i n k / N)
    - inverse: x[n] = s * sum over k of X[k] exp(+2 pi i n k / N)

    The scales s are chosen at creation, see the TARN_FFT_... flags. The method is a radix-4 transform by decimation in
    time, above 65536 points (16384 in double precision) of the rows and columns of a matrix; real signals of N points
    go through a complex transform of N / 2. The root mean square of the error, relative to that of the result, is about
    1.5e-7 (single) or 3e-16 (double precision) at the largest lengths and less below.

    Transforms only read their object: threads may share one, each with a work buffer of its own.
    @{ */

/** Scales of a transform of N points. Exactly one is given at creation. */
enum {
    TARN_FFT_DIV_FWD_BY_N = 1, /**< forward 1 / N, inverse 1 */
    TARN_FFT_DIV_INV_BY_N = 2, /**< forward 1, inverse 1 / N */
    TARN_FFT_DIV_BY_SQRTN = 4, /**< 1 / sqrt(N) both */
    TARN_FFT_NODIV_BY_ANY = 8  /**< 1 both */
};

/** Specification objects: of interleaved complex data, of complex data in two arrays, of real data. Opaque. */
///@{
typedef struct TarnsFFTSpec_C_32fc TarnsFFTSpec_C_32fc;
typedef struct TarnsFFTSpec_C_32f TarnsFFTSpec_C_32f;
typedef struct TarnsFFTSpec_R_32f TarnsFFTSpec_R_32f;
typedef struct TarnsFFTSpec_C_64fc TarnsFFTSpec_C_64fc;
typedef struct TarnsFFTSpec_C_64f TarnsFFTSpec_C_64f;
typedef struct TarnsFFTSpec_R_64f TarnsFFTSpec_R_64f;
///@}

/** Creates a specification object: tables of twiddle factors and of bit reversal for one length. The time is that of
    some tens of transforms at most.

    @param ppSpec where to store the address of the object; keeps its value on failure
    @param order  logarithm of the length to base 2, 0 to 30. The tables of the largest orders cannot be had, whatever
                  memory there is: an allocation is limited to 2^31 - 1 bytes. That ends complex transforms at order 27
                  (single) and 26 (double precision), real ones one order above.
    @param flag   one of the TARN_FFT_... flags
    @param hint   kept in the object without effect on floating-point transforms; any value
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppSpec`; tarnStsFftOrderErr for an order out of range;
            tarnStsNoMemErr if there is no memory; tarnStsFftFlagErr for any other flag */
///@{
TARN_API TarnStatus tarnsFFTInitAlloc_C_32fc(TarnsFFTSpec_C_32fc** ppSpec, int order, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsFFTInitAlloc_C_32f(TarnsFFTSpec_C_32f** ppSpec, int order, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsFFTInitAlloc_R_32f(TarnsFFTSpec_R_32f** ppSpec, int order, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsFFTInitAlloc_C_64fc(TarnsFFTSpec_C_64fc** ppSpec, int order, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsFFTInitAlloc_C_64f(TarnsFFTSpec_C_64f** ppSpec, int order, int flag, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsFFTInitAlloc_R_64f(TarnsFFTSpec_R_64f** ppSpec, int order, int flag, TarnHintAlgorithm hint);
///@}

/** Frees an object and its tables.

    @param pSpec object of the function's kind
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsFFTFree_C_32fc(TarnsFFTSpec_C_32fc* pSpec);
TARN_API TarnStatus tarnsFFTFree_C_32f(TarnsFFTSpec_C_32f* pSpec);
TARN_API TarnStatus tarnsFFTFree_R_32f(TarnsFFTSpec_R_32f* pSpec);
TARN_API TarnStatus tarnsFFTFree_C_64fc(TarnsFFTSpec_C_64fc* pSpec);
TARN_API TarnStatus tarnsFFTFree_C_64f(TarnsFFTSpec_C_64f* pSpec);
TARN_API TarnStatus tarnsFFTFree_R_64f(TarnsFFTSpec_R_64f* pSpec);
///@}

/** Tells how large a work buffer the transforms of an object need.

    @param pSpec object of the function's kind
    @param pSize where to store the size in bytes; 0 below order 4
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsFFTGetBufSize_C_32fc(const TarnsFFTSpec_C_32fc* pSpec, int* pSize);
TARN_API TarnStatus tarnsFFTGetBufSize_C_32f(const TarnsFFTSpec_C_32f* pSpec, int* pSize);
TARN_API TarnStatus tarnsFFTGetBufSize_R_32f(const TarnsFFTSpec_R_32f* pSpec, int* pSize);
TARN_API TarnStatus tarnsFFTGetBufSize_C_64fc(const TarnsFFTSpec_C_64fc* pSpec, int* pSize);
TARN_API TarnStatus tarnsFFTGetBufSize_C_64f(const TarnsFFTSpec_C_64f* pSpec, int* pSize);
TARN_API TarnStatus tarnsFFTGetBufSize_R_64f(const TarnsFFTSpec_R_64f* pSpec, int* pSize);
///@}

/** Transforms interleaved complex data.

    @param pSrc    N elements at any address
    @param pDst    N results; may be `pSrc`, which otherwise is left as it is
    @param pSpec   object of order log2 N
    @param pBuffer as many bytes as tarnsFFTGetBufSize tells, at any address; or null, and the call allocates them
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `pSpec`; tarnStsContextMatchErr for an object of another kind;
            tarnStsNullPtrErr for a null array; tarnStsNoMemErr if there is no buffer and no memory for one. Infinities
            and NaNs spread to all results they enter by IEEE arithmetic. */
///@{
TARN_API TarnStatus tarnsFFTFwd_CToC_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, const TarnsFFTSpec_C_32fc* pSpec,
                                          Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CToC_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, const TarnsFFTSpec_C_32fc* pSpec,
                                          Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_CToC_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, const TarnsFFTSpec_C_64fc* pSpec,
                                          Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CToC_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, const TarnsFFTSpec_C_64fc* pSpec,
                                          Tarn8u* pBuffer);
///@}

/** Transforms complex data whose real and imaginary parts are arrays of their own.

    @param pSrcRe  N real parts at any address
    @param pSrcIm  N imaginary parts at any address
    @param pDstRe  real parts of the N results; may be `pSrcRe`, whether or not `pDstIm` is `pSrcIm`
    @param pDstIm  imaginary parts of the N results; may be `pSrcIm`
    @param pSpec   object of order log2 N
    @param pBuffer as many bytes as tarnsFFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for interleaved data */
///@{
TARN_API TarnStatus tarnsFFTFwd_CToC_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDstRe, Tarn32f* pDstIm,
                                         const TarnsFFTSpec_C_32f* pSpec, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CToC_32f(const Tarn32f* pSrcRe, const Tarn32f* pSrcIm, Tarn32f* pDstRe, Tarn32f* pDstIm,
                                         const TarnsFFTSpec_C_32f* pSpec, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_CToC_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDstRe, Tarn64f* pDstIm,
                                         const TarnsFFTSpec_C_64f* pSpec, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CToC_64f(const Tarn64f* pSrcRe, const Tarn64f* pSrcIm, Tarn64f* pDstRe, Tarn64f* pDstIm,
                                         const TarnsFFTSpec_C_64f* pSpec, Tarn8u* pBuffer);
///@}

/** Transforms a real signal to one of the packed spectra, of which R and I are the real and imaginary parts of X[k], k
    from 0 to N / 2:

    - Perm: R0, R(N/2), R1, I1, R2, I2, ..., R(N/2-1), I(N/2-1)
    - Pack: R0, R1, I1, R2, I2, ..., R(N/2-1), I(N/2-1), R(N/2)
    - CCS: R0, 0, R1, I1, ..., R(N/2-1), I(N/2-1), R(N/2), 0

    @param pSrc    N reals at any address
    @param pDst    N reals, N + 2 in CCS (2 for N = 1); may be `pSrc`, which otherwise is left as it is
    @param pSpec   object of order log2 N
    @param pBuffer as many bytes as tarnsFFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for complex data */
///@{
TARN_API TarnStatus tarnsFFTFwd_RToPerm_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsFFTSpec_R_32f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_RToPerm_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsFFTSpec_R_64f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_RToPack_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsFFTSpec_R_32f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_RToPack_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsFFTSpec_R_64f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_RToCCS_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsFFTSpec_R_32f* pSpec,
                                           Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTFwd_RToCCS_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsFFTSpec_R_64f* pSpec,
                                           Tarn8u* pBuffer);
///@}

/** Transforms a packed spectrum back to the real signal. What a CCS spectrum holds in place of its two zeros is not
    looked at. Without scaling the result is N times the signal whose forward transform the spectrum is.

    @param pSrc    spectrum, N reals, N + 2 in CCS (1 is read for N = 1), at any address
    @param pDst    N reals; may be `pSrc`, which otherwise is left as it is
    @param pSpec   object of order log2 N
    @param pBuffer as many bytes as tarnsFFTGetBufSize tells, at any address; or null, and the call allocates them
    @return as for complex data */
///@{
TARN_API TarnStatus tarnsFFTInv_PermToR_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsFFTSpec_R_32f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_PermToR_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsFFTSpec_R_64f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_PackToR_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsFFTSpec_R_32f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_PackToR_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsFFTSpec_R_64f* pSpec,
                                            Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CCSToR_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsFFTSpec_R_32f* pSpec,
                                           Tarn8u* pBuffer);
TARN_API TarnStatus tarnsFFTInv_CCSToR_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsFFTSpec_R_64f* pSpec,
                                           Tarn8u* pBuffer);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
