/* Discrete cosine transforms. */
#ifndef TARNS_DCT_H
#define TARNS_DCT_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup dct Cosine transforms
    Cosine transforms of any length: compact spectra of real signals, coding, cepstra, smoothing.

    @code{.c}
    Tarn32f x[4] = {1, 1, 1, 1}, y[4];
    TarnsDCTFwdSpec_32f* spec;
    if (tarnsDCTFwdInitAlloc_32f(&spec, 4, tarnAlgHintNone) == tarnStsNoErr) {
        tarnsDCTFwd_32f(x, y, spec, NULL);
        printf("%.4f %.4f\n", y[0], y[1]); // 2.0000 0.0000
        tarnsDCTFwdFree_32f(spec);
    }
    @endcode

    __Accuracy:__ some units of the last place of the largest result, but for powers of two by the fast way in single
    precision: 25 of them at 1024 points and 350 at 262,144; tarnAlgHintAccurate has 2 at any length.

    __Cost:__ 0.2 to 0.35 of FFTW's time in single precision, 0.3 to 0.6 in double; 100 points, by direct sums, 0.7 and
    1.3.

    __Guide:__ [Cosine transforms](docs/cosine-transforms.md).

    The orthonormal transform of type II and its inverse, of any length N:

    - forward: y[k] = c(k) * sum over n of x[n] cos(pi (2 n + 1) k / (2 N))
    - inverse: x[n] = sum over k of c(k) y[k] cos(pi (2 n + 1) k / (2 N))

    with c(0) = sqrt(1 / N) and c(k) = sqrt(2 / N) for all other k. A specification object is created once for a length
    and one direction, serves any number of transforms, and is freed. docs/cosine-transforms.md compares the scaling
    with other definitions and tells what each length costs.

    The method follows from the length: 1, 2, 4 and 8 points are computed by fixed code; larger powers of two by halves,
    or behind tarnAlgHintAccurate, above 512 points, by a real Fourier transform of 2 N points; other lengths up to 100
    by direct sums, and above by a real Fourier transform of the length itself or, where it has a prime factor above 31,
    by a convolution with a chirp.

    What may surprise: the way by halves, the fastest, divides by cosines near 0 on its way, and its largest errors grow
    with N, to some 380 units of 2^-23 of the largest coefficient at 2^18 points in single precision. With
    tarnAlgHintAccurate they do not grow, at about the same price. No other length has a choice.

    Transforms only read their object: threads may share one, each with a work buffer of its own.
    @{ */

/** Specification objects, one type a direction and precision. Opaque. */
///@{
typedef struct TarnsDCTFwdSpec_16s TarnsDCTFwdSpec_16s;
typedef struct TarnsDCTInvSpec_16s TarnsDCTInvSpec_16s;
typedef struct TarnsDCTFwdSpec_32f TarnsDCTFwdSpec_32f;
typedef struct TarnsDCTInvSpec_32f TarnsDCTInvSpec_32f;
typedef struct TarnsDCTFwdSpec_64f TarnsDCTFwdSpec_64f;
typedef struct TarnsDCTInvSpec_64f TarnsDCTInvSpec_64f;
///@}

/** Creates a specification object: the tables of one length and direction.

    @param ppSpec where to store the address of the object; keeps its value on failure
    @param length number of points, at least 1
    @param hint   tarnAlgHintAccurate has powers of two above 512 points transformed without growing errors, in `32f`
    and `64f`; any other value, and any value for integers, the fast way
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppSpec`; tarnStsSizeErr for `length` below 1; tarnStsNoMemErr if
            there is no memory, or if a table would have 2^31 bytes or more */
///@{
TARN_API TarnStatus tarnsDCTFwdInitAlloc_16s(TarnsDCTFwdSpec_16s** ppSpec, int length, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDCTInvInitAlloc_16s(TarnsDCTInvSpec_16s** ppSpec, int length, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDCTFwdInitAlloc_32f(TarnsDCTFwdSpec_32f** ppSpec, int length, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDCTInvInitAlloc_32f(TarnsDCTInvSpec_32f** ppSpec, int length, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDCTFwdInitAlloc_64f(TarnsDCTFwdSpec_64f** ppSpec, int length, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDCTInvInitAlloc_64f(TarnsDCTInvSpec_64f** ppSpec, int length, TarnHintAlgorithm hint);
///@}

/** Frees an object and its tables.

    @param pSpec object of the function's kind
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsDCTFwdFree_16s(TarnsDCTFwdSpec_16s* pSpec);
TARN_API TarnStatus tarnsDCTInvFree_16s(TarnsDCTInvSpec_16s* pSpec);
TARN_API TarnStatus tarnsDCTFwdFree_32f(TarnsDCTFwdSpec_32f* pSpec);
TARN_API TarnStatus tarnsDCTInvFree_32f(TarnsDCTInvSpec_32f* pSpec);
TARN_API TarnStatus tarnsDCTFwdFree_64f(TarnsDCTFwdSpec_64f* pSpec);
TARN_API TarnStatus tarnsDCTInvFree_64f(TarnsDCTInvSpec_64f* pSpec);
///@}

/** Tells how large a work buffer the transforms of an object need.

    @param pSpec object of the function's kind
    @param pSize where to store the size in bytes; 0 for 1, 2, 4 and 8 points in `32f` and `64f`, and for 1 point in
                 `16s`
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsDCTFwdGetBufSize_16s(const TarnsDCTFwdSpec_16s* pSpec, int* pSize);
TARN_API TarnStatus tarnsDCTInvGetBufSize_16s(const TarnsDCTInvSpec_16s* pSpec, int* pSize);
TARN_API TarnStatus tarnsDCTFwdGetBufSize_32f(const TarnsDCTFwdSpec_32f* pSpec, int* pSize);
TARN_API TarnStatus tarnsDCTInvGetBufSize_32f(const TarnsDCTInvSpec_32f* pSpec, int* pSize);
TARN_API TarnStatus tarnsDCTFwdGetBufSize_64f(const TarnsDCTFwdSpec_64f* pSpec, int* pSize);
TARN_API TarnStatus tarnsDCTInvGetBufSize_64f(const TarnsDCTInvSpec_64f* pSpec, int* pSize);
///@}

/** Transforms forward or back. A NaN or an infinity anywhere in the source may make any result a NaN.

    @param pSrc    samples, or coefficients for the inverse, as many as the object has points
    @param pDst    coefficients, or samples for the inverse; may be the source
    @param pSpec   object of the function's kind
    @param pBuffer work buffer of the size that the object asks for, at any address, or null to have one allocated
    @return tarnStsNoErr; in this order tarnStsNullPtrErr for a null `pSpec`, tarnStsContextMatchErr for an object of
            another kind, one of the other direction included, tarnStsNullPtrErr for a null array; tarnStsNoMemErr if a
            buffer cannot be allocated */
///@{
TARN_API TarnStatus tarnsDCTFwd_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsDCTFwdSpec_32f* pSpec,
                                    Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDCTInv_32f(const Tarn32f* pSrc, Tarn32f* pDst, const TarnsDCTInvSpec_32f* pSpec,
                                    Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDCTFwd_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsDCTFwdSpec_64f* pSpec,
                                    Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDCTInv_64f(const Tarn64f* pSrc, Tarn64f* pDst, const TarnsDCTInvSpec_64f* pSpec,
                                    Tarn8u* pBuffer);
///@}

/** Transforms 16-bit integers forward or back, times 2^-scaleFactor. It is computed in single precision, with an error
    far below one half up to some thousand points, and rounded to the nearest integer, ties to the even one; results
    saturate. Of one point the sample itself is scaled. The coefficients of full-scale samples need up to log2(N) / 2
    bits more than the samples.

    @param pSrc        samples, or coefficients for the inverse, as many as the object has points
    @param pDst        coefficients, or samples for the inverse; may be the source
    @param pSpec       object of the function's kind
    @param scaleFactor results are scaled by 2^-scaleFactor, any integer
    @param pBuffer     work buffer of the size that the object asks for, at any address, or null to have one allocated
    @return tarnStsNoErr; in this order tarnStsNullPtrErr for a null `pSpec`, tarnStsContextMatchErr for an object of
            another kind, one of the other direction included, tarnStsNullPtrErr for a null array; tarnStsNoMemErr if a
            buffer cannot be allocated */
///@{
TARN_API TarnStatus tarnsDCTFwd_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsDCTFwdSpec_16s* pSpec,
                                        int scaleFactor, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDCTInv_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, const TarnsDCTInvSpec_16s* pSpec,
                                        int scaleFactor, Tarn8u* pBuffer);
///@}
/** @} */

#ifdef __cplusplus
}
#endif

#endif
