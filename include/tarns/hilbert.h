/* Analytic signals by the Hilbert transform. */
#ifndef TARNS_HILBERT_H
#define TARNS_HILBERT_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup hilbert Analytic signals
    Makes the analytic signal of a real one: its envelope and its instantaneous frequency.

    @code{.c}
    const Tarn32f x[8] = {1, 0, -1, 0, 1, 0, -1, 0};
    Tarn32fc z[8];
    Tarn32f envelope[8];
    TarnsHilbertSpec_32f32fc* spec;
    if (tarnsHilbertInitAlloc_32f32fc(&spec, 8, tarnAlgHintNone) == tarnStsNoErr) {
        tarnsHilbert_32f32fc(x, z, spec);
        tarnsMagnitude_32fc(z, envelope, 8);
        printf("%.4f %.4f %.4f\n", z[1].im, envelope[0], envelope[1]); // 1.0000 1.0000 1.0000
        tarnsHilbertFree_32f32fc(spec);
    }
    @endcode

    __Accuracy:__ that of two Fourier transforms, some 1e-7 of the signal; where end and beginning do not meet the
    method itself disturbs both.

    __Cost:__ 1.6 to 2.2 times a complex transform of the length.

    __Guide:__ [Analytic signals and single bins](docs/analytic-signals.md).

    A real signal of N samples becomes a complex one whose real part is the signal and whose imaginary part is its
    Hilbert transform: every frequency between 0 and half the sampling rate turned back by a quarter of a cycle. The
    magnitude of the result is the signal's envelope, the step of its phase from sample to sample its instantaneous
    frequency.

    It is made in the frequency domain: of the discrete Fourier transform positive frequencies are doubled and negative
    ones cleared, those at 0 and at half the sampling rate stay. So the signal counts as periodic: where its end and its
    beginning do not meet, the results near both are disturbed. The real part is the signal up to the rounding of two
    transforms. N may be any number; what a length costs is what a complex and a real Fourier transform of it cost. One
    and two samples have no frequency in between: their imaginary parts are 0.

    Transforms only read their object, so threads may share one. Work memory of up to 16384 bytes is on the stack,
    larger one is allocated for the length of the call.
    @{ */

/** Specification objects, by types of samples and of results. Opaque. */
///@{
typedef struct TarnsHilbertSpec_32f32fc TarnsHilbertSpec_32f32fc;
typedef struct TarnsHilbertSpec_16s32fc TarnsHilbertSpec_16s32fc;
typedef struct TarnsHilbertSpec_16s16sc TarnsHilbertSpec_16s16sc;
///@}

/** Creates a specification object: the Fourier transforms of one length.

    If those cannot be made, the object stays in `*ppSpec` with what it has got. It serves no transform, but can be
    freed.

    @param ppSpec where to store the address of the object
    @param length number of samples, at least 1
    @param hint   handed on to the Fourier transforms, on which it has no effect; any value
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppSpec`; tarnStsSizeErr for `length` below 1; tarnStsNoMemErr if
            there is no memory */
///@{
TARN_API TarnStatus tarnsHilbertInitAlloc_32f32fc(TarnsHilbertSpec_32f32fc** ppSpec, int length,
                                                  TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsHilbertInitAlloc_16s32fc(TarnsHilbertSpec_16s32fc** ppSpec, int length,
                                                  TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsHilbertInitAlloc_16s16sc(TarnsHilbertSpec_16s16sc** ppSpec, int length,
                                                  TarnHintAlgorithm hint);
///@}

/** Frees an object, also one whose creation failed on its way.

    @param pSpec object of the function's kind
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsHilbertFree_32f32fc(TarnsHilbertSpec_32f32fc* pSpec);
TARN_API TarnStatus tarnsHilbertFree_16s32fc(TarnsHilbertSpec_16s32fc* pSpec);
TARN_API TarnStatus tarnsHilbertFree_16s16sc(TarnsHilbertSpec_16s16sc* pSpec);
///@}

/** Makes the analytic signal in single precision. A NaN or an infinity anywhere may make every result a NaN.

    @param pSrc  samples, as many as the object was made for
    @param pDst  as many complex results
    @param pSpec object of the function's kind
    @return tarnStsNoErr; in this order tarnStsNullPtrErr for a null pointer, tarnStsContextMatchErr for an object of
            another kind; tarnStsNoMemErr if work memory cannot be allocated, or the Fourier transforms are missing */
///@{
TARN_API TarnStatus tarnsHilbert_32f32fc(const Tarn32f* pSrc, Tarn32fc* pDst, const TarnsHilbertSpec_32f32fc* pSpec);
TARN_API TarnStatus tarnsHilbert_16s32fc(const Tarn16s* pSrc, Tarn32fc* pDst, const TarnsHilbertSpec_16s32fc* pSpec);
///@}

/** Makes the analytic signal of 16-bit integers as such, times 2^-scaleFactor. It is computed in single precision and
    rounded to the nearest integer, ties to the even one; results saturate. Of one and of two samples the scaled values
    are truncated towards zero instead.

    @param pSrc        samples, as many as the object was made for
    @param pDst        as many complex results
    @param pSpec       object of the function's kind
    @param scaleFactor results are scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; in this order tarnStsNullPtrErr for a null pointer, tarnStsContextMatchErr for an object of
            another kind; tarnStsNoMemErr if work memory cannot be allocated, or the Fourier transforms are missing */
TARN_API TarnStatus tarnsHilbert_16s16sc_Sfs(const Tarn16s* pSrc, Tarn16sc* pDst, const TarnsHilbertSpec_16s16sc* pSpec,
                                             int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
