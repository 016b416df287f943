/* Packed spectra of real signals: products bin by bin, and expansion to all bins. */
#ifndef TARNS_SPECTRUM_H
#define TARNS_SPECTRUM_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup spectra Packed spectra
    Products and conjugates of the packed spectra that transforms of real signals give: filtering, correlation, and all
    bins of a spectrum one by one.

    @code{.c}
    Tarn32f x[8] = {1, 2, 3}, h[8] = {1, -1}, X[8], H[8];
    TarnsFFTSpec_R_32f* spec;
    if (tarnsFFTInitAlloc_R_32f(&spec, 3, TARN_FFT_DIV_INV_BY_N, tarnAlgHintNone) == tarnStsNoErr) {
        tarnsFFTFwd_RToPerm_32f(x, X, spec, NULL);
        tarnsFFTFwd_RToPerm_32f(h, H, spec, NULL);
        tarnsMulPerm_32f_I(H, X, 8);
        tarnsFFTInv_PermToR_32f(X, x, spec, NULL); // x convolved with h
        printf("%.2f %.2f %.2f %.2f\n", x[0], x[1], x[2], x[3]); // 1.00 1.00 1.00 -3.00
        tarnsFFTFree_R_32f(spec);
    }
    @endcode

    __Accuracy:__ conjugates are exact; products are those of complex floats. 16-bit products scale in a way of their
    own, by shifts without rounding.

    __Cost:__ products 0.85 to 1.0 of a plain loop, 0.25 for 16 bits; conjugates 0.2 to 0.4, those of `64fc` 0.9.

    __Guide:__ [Packed spectra](docs/packed-formats.md).

    The spectrum of a real signal of N samples has about N/2 independent bins, since X[N - k] is the conjugate of X[k].
    They are kept in one of three layouts. With R and I for the parts of a bin:

        Perm, even N   R[0] R[N/2] R[1] I[1] R[2] I[2] ... R[N/2-1] I[N/2-1]        N reals
        Pack, even N   R[0] R[1] I[1] R[2] I[2] ... R[N/2-1] I[N/2-1] R[N/2]        N reals
        CCS,  even N   R[0] 0 R[1] I[1] R[2] I[2] ... R[N/2-1] I[N/2-1] R[N/2] 0    N + 2 reals
        Perm, odd N    R[0] R[1] I[1] R[2] I[2] ... R[(N-1)/2] I[(N-1)/2]           N reals
        Pack, odd N    the same as Perm                                            N reals
        CCS,  odd N    R[0] 0 R[1] I[1] R[2] I[2] ... R[(N-1)/2] I[(N-1)/2]         N + 1 reals

    The length of a call is that N, and decides the layout by its parity.
    @{ */

/** Multiplies two spectra in Perm layout, which is the circular convolution of their signals: real bins as reals, pairs
    as complex numbers, re = a.re b.re - a.im b.im and im = a.re b.im + a.im b.re, every operation rounded once in the
    current rounding mode. Infinities and NaN follow IEEE arithmetic.

    @param pSrc1   first spectrum, `len` reals
    @param pSrc2   second spectrum, `len` reals
    @param pSrc    first spectrum, `len` reals
    @param pDst    product, `len` reals; may be one of the sources, must not overlap them otherwise
    @param pSrcDst second spectrum, replaced by the product, `len` reals
    @param len     length of the signals, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMulPerm_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMulPerm_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsMulPerm_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsMulPerm_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len);
///@}

/** Multiplies two spectra in Pack layout; otherwise the same as tarnsMulPerm.

    @param pSrc1   first spectrum, `len` reals
    @param pSrc2   second spectrum, `len` reals
    @param pSrc    first spectrum, `len` reals
    @param pDst    product, `len` reals; may be one of the sources, must not overlap them otherwise
    @param pSrcDst second spectrum, replaced by the product, `len` reals
    @param len     length of the signals, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMulPack_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
TARN_API TarnStatus tarnsMulPack_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len);
TARN_API TarnStatus tarnsMulPack_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsMulPack_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len);
///@}

/** Multiplies two 16-bit spectra in Perm or Pack layout. The results are multiplied by 2 to the power -scaleFactor in a
    way of their own, which is not the scale rule of the arithmetic functions: nothing is rounded.

    A real bin is the 32-bit product. A positive factor shifts it right arithmetically, so that it is rounded down; a
    negative one first limits the product to 16 bits and then shifts it left. Of a pair each part is a sum of two
    products in 32 bits, shifted right arithmetically or left as it is. All this is arithmetic modulo 2^32: what a shift
    to the left moves beyond the upper end of 32 bits is lost. At last every value is limited to -32768 .. 32767.

    @param pSrc1       first spectrum, `len` integers
    @param pSrc2       second spectrum, `len` integers
    @param pSrc        first spectrum, `len` integers
    @param pDst        product, `len` integers; may be one of the sources, must not overlap them otherwise
    @param pSrcDst     second spectrum, replaced by the product, `len` integers
    @param len         length of the signals, at least 1
    @param scaleFactor number of shifts to the right, or if negative to the left; any value. 32 and more shifts leave a
                       sign (0 or -1) on the right, and 0 on the left
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMulPerm_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                         int scaleFactor);
TARN_API TarnStatus tarnsMulPerm_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor);
TARN_API TarnStatus tarnsMulPack_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len,
                                         int scaleFactor);
TARN_API TarnStatus tarnsMulPack_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor);
///@}

/** Multiplies a spectrum in Pack layout by the conjugate of another, which is the circular correlation of their
    signals. With s of `pSrc` and d of `pSrcDst` a pair becomes re = s.re d.re + s.im d.im, im = s.im d.re - s.re d.im;
    real bins are plain products. Of a spectrum with itself this is the power spectrum, its imaginary parts 0.

    @param pSrc    the spectrum that is taken as it is, `len` reals; may be `pSrcDst`
    @param pSrcDst the spectrum that is conjugated, replaced by the product, `len` reals
    @param len     length of the signals, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMulPackConj_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsMulPackConj_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len);
///@}

/** Expands a spectrum in Perm layout to all its bins: pDst[k] = X[k] and pDst[len - k] = the conjugate of X[k]. The
    imaginary parts of pDst[0] and, for even `len`, of pDst[len/2] are 0. Values are moved, not computed: NaNs keep
   their payload, and in the conjugates the sign of the imaginary part is flipped, that of a zero or NaN included. In 16
    bits the negative of -32768 is 32767.

    @param pSrc    packed spectrum, `len` reals; may begin where `pDst` begins, must not overlap it otherwise
    @param pDst    all bins, `len` complex elements
    @param pSrcDst `len` complex elements whose first `len` reals are the packed spectrum; replaced by all bins
    @param len     number of bins, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConjPerm_16sc(const Tarn16s* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsConjPerm_32fc(const Tarn32f* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsConjPerm_64fc(const Tarn64f* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsConjPerm_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsConjPerm_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsConjPerm_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Expands a spectrum in Pack layout to all its bins; otherwise the same as tarnsConjPerm.

    @param pSrc    packed spectrum, `len` reals; may begin where `pDst` begins, must not overlap it otherwise
    @param pDst    all bins, `len` complex elements
    @param pSrcDst `len` complex elements whose first `len` reals are the packed spectrum; replaced by all bins
    @param len     number of bins, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConjPack_16sc(const Tarn16s* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsConjPack_32fc(const Tarn32f* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsConjPack_64fc(const Tarn64f* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsConjPack_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsConjPack_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsConjPack_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Expands a spectrum in CCS layout to all its bins, as tarnsConjPerm does. The imaginary parts of bin 0 and, for even
    `len`, of bin len/2 are copied as they stand, zero or not.

    @param pSrc    packed spectrum, `len` + 2 reals for even and `len` + 1 for odd `len`; may begin where `pDst` begins,
                   must not overlap it otherwise
    @param pDst    all bins, `len` complex elements
    @param pSrcDst `len` complex elements whose first reals are the packed spectrum; replaced by all bins
    @param len     number of bins, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConjCcs_16sc(const Tarn16s* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsConjCcs_32fc(const Tarn32f* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsConjCcs_64fc(const Tarn64f* pSrc, Tarn64fc* pDst, int len);
TARN_API TarnStatus tarnsConjCcs_16sc_I(Tarn16sc* pSrcDst, int len);
TARN_API TarnStatus tarnsConjCcs_32fc_I(Tarn32fc* pSrcDst, int len);
TARN_API TarnStatus tarnsConjCcs_64fc_I(Tarn64fc* pSrcDst, int len);
///@}

/** Conjugates an array and turns it round: pDst[len - 1 - i] = the conjugate of pSrc[i]. Of a filter's taps this makes
    the matched filter. The sign of every imaginary part is flipped, that of a zero or NaN included; in 16 bits the
    negative of -32768 is 32767.

    @param pSrc source, `len` elements; must not overlap `pDst`, nor be the same array
    @param pDst destination, `len` elements
    @param len  number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsConjFlip_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_API TarnStatus tarnsConjFlip_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_API TarnStatus tarnsConjFlip_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
