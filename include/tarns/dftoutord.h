/* Fourier transforms whose spectra stay in the order in which they come out. */
#ifndef TARNS_DFTOUTORD_H
#define TARNS_DFTOUTORD_H

#include "tarns/fft.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup dftoutord Fourier transforms out of order
    Transforms for spectra that nobody looks at in order: to multiply two of them and transform back.

    @code{.c}
    Tarn64fc x[600] = {{1, 0}}, X[600]; // an impulse: all bins are 1
    TarnsDFTOutOrdSpec_C_64fc* spec;
    if (tarnsDFTOutOrdInitAlloc_C_64fc(&spec, 600, TARN_FFT_DIV_INV_BY_N, tarnAlgHintNone) == tarnStsNoErr) {
        tarnsDFTOutOrdFwd_CToC_64fc(x, X, spec, NULL);
        tarnsMul_64fc_I(X, X, 600); // bin by bin, in whatever order
        tarnsDFTOutOrdInv_CToC_64fc(X, x, spec, NULL);
        printf("%.4f %.4f\n", x[0].re, x[1].re); // 1.0000 0.0000
        tarnsDFTOutOrdFree_C_64fc(spec);
    }
    @endcode

    __Accuracy:__ that of the [transforms in order](@ref dft).

    __Cost:__ that of the transforms in order, less one pass of reordering in each direction.

    __Guide:__ [Fourier transforms of any length](docs/dft.md).

    Transforms of complex data as those of tarns/dft.h, for spectra that nobody looks at but element by element: to
    filter by them, multiply two of them and transform back. The forward transform of a long length with small prime
    factors leaves its results in the order in which its levels produce them, every result once, and the inverse takes
    them in that order. Neither puts anything in order, so neither has to read or write out of sequence.

    Out of order are lengths from 2001 (single precision) or 501 points on (double precision) that are transformed by
    factors. All others, powers of two among them, have their results in natural order and are the transforms of
    tarns/dft.h to the bit. The order depends on the length alone and is nobody's business: spectra of one kind and
    length belong together, of whichever object.
    @{ */

/** Specification objects: of interleaved complex data. Opaque; they are no objects of tarns/dft.h, and the other way
    round. */
///@{
typedef struct TarnsDFTOutOrdSpec_C_32fc TarnsDFTOutOrdSpec_C_32fc;
typedef struct TarnsDFTOutOrdSpec_C_64fc TarnsDFTOutOrdSpec_C_64fc;
///@}

/** Creates a specification object: the tables of one length.

    @param ppSpec where to store the address of the object; keeps its value on failure
    @param length number of points N, 1 and more. The limit is memory, of which a table can have 2^31 - 1 bytes.
    @param flag   one of the TARN_FFT_... flags
    @param hint   kept in the object without effect; any value
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `ppSpec`; tarnStsSizeErr for a length below 1; tarnStsNoMemErr if
            there is no memory; tarnStsFftFlagErr for any other flag */
///@{
TARN_API TarnStatus tarnsDFTOutOrdInitAlloc_C_32fc(TarnsDFTOutOrdSpec_C_32fc** ppSpec, int length, int flag,
                                                   TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsDFTOutOrdInitAlloc_C_64fc(TarnsDFTOutOrdSpec_C_64fc** ppSpec, int length, int flag,
                                                   TarnHintAlgorithm hint);
///@}

/** Frees an object and its tables.

    @param pSpec object of the function's kind
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsDFTOutOrdFree_C_32fc(TarnsDFTOutOrdSpec_C_32fc* pSpec);
TARN_API TarnStatus tarnsDFTOutOrdFree_C_64fc(TarnsDFTOutOrdSpec_C_64fc* pSpec);
///@}

/** Tells how large a work buffer the transforms of an object need.

    @param pSpec object of the function's kind
    @param pSize where to store the size in bytes, room to align any buffer included; 0 if no buffer is needed
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object of another kind */
///@{
TARN_API TarnStatus tarnsDFTOutOrdGetBufSize_C_32fc(const TarnsDFTOutOrdSpec_C_32fc* pSpec, int* pSize);
TARN_API TarnStatus tarnsDFTOutOrdGetBufSize_C_64fc(const TarnsDFTOutOrdSpec_C_64fc* pSpec, int* pSize);
///@}

/** Transforms forward, to X[k] = s * sum over n of x[n] exp(-2 pi i n k / N): pDst holds every X[k] once, in the order
    of the length. With a null buffer each call allocates its work memory. A NaN or an infinity may reach every result.

    @param pSrc    N points
    @param pDst    N results; may be pSrc
    @param pSpec   object of the function's kind
    @param pBuffer work buffer at any address, of the size that tarnsDFTOutOrdGetBufSize tells, or null
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `pSpec`, then tarnStsContextMatchErr for an object of another
            kind, then tarnStsNullPtrErr for a null array; tarnStsNoMemErr if there is no work memory */
///@{
TARN_API TarnStatus tarnsDFTOutOrdFwd_CToC_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst,
                                                const TarnsDFTOutOrdSpec_C_32fc* pSpec, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTOutOrdFwd_CToC_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst,
                                                const TarnsDFTOutOrdSpec_C_64fc* pSpec, Tarn8u* pBuffer);
///@}

/** Transforms a spectrum in the order of the length back, to x[n] = s * sum over k of X[k] exp(+2 pi i n k / N), in
    natural order. Arguments and statuses are those of the forward one.

    @param pSrc    N values in the order in which tarnsDFTOutOrdFwd leaves them
    @param pDst    N points; may be pSrc
    @param pSpec   object of the function's kind
    @param pBuffer work buffer at any address, of the size that tarnsDFTOutOrdGetBufSize tells, or null
    @return tarnStsNoErr; tarnStsNullPtrErr for a null `pSpec`, then tarnStsContextMatchErr for an object of another
            kind, then tarnStsNullPtrErr for a null array; tarnStsNoMemErr if there is no work memory */
///@{
TARN_API TarnStatus tarnsDFTOutOrdInv_CToC_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst,
                                                const TarnsDFTOutOrdSpec_C_32fc* pSpec, Tarn8u* pBuffer);
TARN_API TarnStatus tarnsDFTOutOrdInv_CToC_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst,
                                                const TarnsDFTOutOrdSpec_C_64fc* pSpec, Tarn8u* pBuffer);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
