/* IIR filters: blocks and single samples through a state, and calls on 16-bit data without a state. */
#ifndef TARNS_IIR_H
#define TARNS_IIR_H

#include "tarncore.h"
#include "tarns/iirstate.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup iir IIR filters
    Filters a signal recursively, by the taps in a [state](@ref iirstate) or by taps of the caller's.

    @code{.c}
    const Tarn32f taps[4] = {1, 0, 1, -0.5F}, x[4] = {1, 0, 0, 0}; // y[n] = x[n] + y[n-1] / 2
    Tarn32f y[4];
    TarnsIIRState_32f* state;
    if (tarnsIIRInitAlloc_32f(&state, taps, 1, NULL) == tarnStsNoErr) {
        tarnsIIR_32f(x, y, 4, state);
        printf("%g %g %g %g\n", y[0], y[1], y[2], y[3]); // 1 0.5 0.25 0.125
        tarnsIIRFree_32f(state);
    }
    @endcode

    __Accuracy:__ depends on the poles. Butterworth low-passes at a tenth of the rate err by 2e-8 (order 2) to 2e-6
    (order 6) of the input in single precision; sections with poles within 0.01 of the unit circle and near frequency 0
    want `64f` taps.

    __Cost:__ 1.5 ns a sample for a biquad and 4.4 ns for four in single precision, 2.0 and 6.2 ns in double: 0.2 to
    0.75 of a plain loop.

    __Guide:__ [Recursive filters](docs/iir.md).

    Recursive filters, by blocks of any length and by single samples; a signal may be cut into calls as it comes.

    Long blocks are computed four outputs at a time, by tables that look so far ahead; short ones, the first samples of
    a block and single samples go through the transposed direct form II. Both leave the same delay line behind, up to
    the rounding of sums in another order. Where the tables of a high order would amplify rounding errors, the state
    knows it from its taps, and blocks go sample by sample, too.

    NaN and infinite values pass through as they are, and stay in the recursion until the delay line is set; in blocks
    they may show up to three outputs early. A filter whose input has ended decays into denormal numbers, which take
    many processors seventy times as long. MXCSR is the caller's: with flush-to-zero and denormals-are-zero set in it
    they cost nothing. Filters of integer samples compute to the nearest in any rounding mode.
    @{ */

/** Filters a block: y[n] = sum of b[k] x[n-k] - sum of a[k] y[n-k], or a cascade of such sections.

    Results of integer samples are multiplied by 2^-scaleFactor, rounded to the nearest integer, ties to even, and
    saturate; the recursion goes on with the values before that. A NaN becomes the lowest integer. Of the factor's
    magnitude single precision takes the low 7 bits.

    @param pSrc        samples, `len` elements
    @param pDst        destination, `len` elements; it may be the source
    @param len         number of samples, at least 1
    @param pState      state, whose delay line goes on
    @param scaleFactor integer samples: the results are multiplied by 2^-scaleFactor
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsContextMatchErr
            for a state of another kind */
///@{
TARN_API TarnStatus tarnsIIR_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, TarnsIIRState_32f* pState);
TARN_API TarnStatus tarnsIIR_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, TarnsIIRState_32fc* pState);
TARN_API TarnStatus tarnsIIR32f_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, TarnsIIRState32f_16s* pState,
                                        int scaleFactor);
TARN_API TarnStatus tarnsIIR32fc_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, TarnsIIRState32fc_16sc* pState,
                                          int scaleFactor);
TARN_API TarnStatus tarnsIIR32s_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, TarnsIIRState32s_16s* pState,
                                        int scaleFactor);
TARN_API TarnStatus tarnsIIR32sc_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, TarnsIIRState32sc_16sc* pState,
                                          int scaleFactor);
TARN_API TarnStatus tarnsIIR32s_16s32f_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, TarnsIIRState32s_16s32f* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsIIR32sc_16sc32fc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int len,
                                              TarnsIIRState32sc_16sc32fc* pState, int scaleFactor);
TARN_API TarnStatus tarnsIIR_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, TarnsIIRState_64f* pState);
TARN_API TarnStatus tarnsIIR_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len, TarnsIIRState_64fc* pState);
TARN_API TarnStatus tarnsIIR64f_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, TarnsIIRState64f_32f* pState);
TARN_API TarnStatus tarnsIIR64fc_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len, TarnsIIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsIIR64f_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int len, TarnsIIRState64f_32s* pState,
                                        int scaleFactor);
TARN_API TarnStatus tarnsIIR64fc_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc* pDst, int len, TarnsIIRState64fc_32sc* pState,
                                          int scaleFactor);
TARN_API TarnStatus tarnsIIR64f_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, TarnsIIRState64f_16s* pState,
                                        int scaleFactor);
TARN_API TarnStatus tarnsIIR64fc_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, TarnsIIRState64fc_16sc* pState,
                                          int scaleFactor);
///@}

/** Filters a block in place, with the same results.

    @param pSrcDst     samples, and destination, `len` elements
    @param len         number of samples, at least 1
    @param pState      state, whose delay line goes on
    @param scaleFactor integer samples: the results are multiplied by 2^-scaleFactor
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; tarnStsContextMatchErr
            for a state of another kind */
///@{
TARN_API TarnStatus tarnsIIR_32f_I(Tarn32f* pSrcDst, int len, TarnsIIRState_32f* pState);
TARN_API TarnStatus tarnsIIR_32fc_I(Tarn32fc* pSrcDst, int len, TarnsIIRState_32fc* pState);
TARN_API TarnStatus tarnsIIR32f_16s_ISfs(Tarn16s* pSrcDst, int len, TarnsIIRState32f_16s* pState, int scaleFactor);
TARN_API TarnStatus tarnsIIR32fc_16sc_ISfs(Tarn16sc* pSrcDst, int len, TarnsIIRState32fc_16sc* pState, int scaleFactor);
TARN_API TarnStatus tarnsIIR32s_16s_ISfs(Tarn16s* pSrcDst, int len, TarnsIIRState32s_16s* pState, int scaleFactor);
TARN_API TarnStatus tarnsIIR32sc_16sc_ISfs(Tarn16sc* pSrcDst, int len, TarnsIIRState32sc_16sc* pState, int scaleFactor);
TARN_API TarnStatus tarnsIIR32s_16s32f_ISfs(Tarn16s* pSrcDst, int len, TarnsIIRState32s_16s32f* pState,
                                            int scaleFactor);
TARN_API TarnStatus tarnsIIR32sc_16sc32fc_ISfs(Tarn16sc* pSrcDst, int len, TarnsIIRState32sc_16sc32fc* pState,
                                               int scaleFactor);
TARN_API TarnStatus tarnsIIR_64f_I(Tarn64f* pSrcDst, int len, TarnsIIRState_64f* pState);
TARN_API TarnStatus tarnsIIR_64fc_I(Tarn64fc* pSrcDst, int len, TarnsIIRState_64fc* pState);
TARN_API TarnStatus tarnsIIR64f_32f_I(Tarn32f* pSrcDst, int len, TarnsIIRState64f_32f* pState);
TARN_API TarnStatus tarnsIIR64fc_32fc_I(Tarn32fc* pSrcDst, int len, TarnsIIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsIIR64f_32s_ISfs(Tarn32s* pSrcDst, int len, TarnsIIRState64f_32s* pState, int scaleFactor);
TARN_API TarnStatus tarnsIIR64fc_32sc_ISfs(Tarn32sc* pSrcDst, int len, TarnsIIRState64fc_32sc* pState, int scaleFactor);
TARN_API TarnStatus tarnsIIR64f_16s_ISfs(Tarn16s* pSrcDst, int len, TarnsIIRState64f_16s* pState, int scaleFactor);
TARN_API TarnStatus tarnsIIR64fc_16sc_ISfs(Tarn16sc* pSrcDst, int len, TarnsIIRState64fc_16sc* pState, int scaleFactor);
///@}

/** Filters one sample.

    @param src         sample
    @param pDstVal     where the result goes
    @param pState      state, whose delay line goes on
    @param scaleFactor integer samples: the result is multiplied by 2^-scaleFactor
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsIIROne_32f(Tarn32f src, Tarn32f* pDstVal, TarnsIIRState_32f* pState);
TARN_API TarnStatus tarnsIIROne_32fc(Tarn32fc src, Tarn32fc* pDstVal, TarnsIIRState_32fc* pState);
TARN_API TarnStatus tarnsIIROne32f_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, TarnsIIRState32f_16s* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsIIROne32fc_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, TarnsIIRState32fc_16sc* pState,
                                             int scaleFactor);
TARN_API TarnStatus tarnsIIROne32s_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, TarnsIIRState32s_16s* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsIIROne32sc_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, TarnsIIRState32sc_16sc* pState,
                                             int scaleFactor);
TARN_API TarnStatus tarnsIIROne32s_16s32f_Sfs(Tarn16s src, Tarn16s* pDstVal, TarnsIIRState32s_16s32f* pState,
                                              int scaleFactor);
TARN_API TarnStatus tarnsIIROne32sc_16sc32fc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, TarnsIIRState32sc_16sc32fc* pState,
                                                 int scaleFactor);
TARN_API TarnStatus tarnsIIROne_64f(Tarn64f src, Tarn64f* pDstVal, TarnsIIRState_64f* pState);
TARN_API TarnStatus tarnsIIROne_64fc(Tarn64fc src, Tarn64fc* pDstVal, TarnsIIRState_64fc* pState);
TARN_API TarnStatus tarnsIIROne64f_32f(Tarn32f src, Tarn32f* pDstVal, TarnsIIRState64f_32f* pState);
TARN_API TarnStatus tarnsIIROne64fc_32fc(Tarn32fc src, Tarn32fc* pDstVal, TarnsIIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsIIROne64f_32s_Sfs(Tarn32s src, Tarn32s* pDstVal, TarnsIIRState64f_32s* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsIIROne64fc_32sc_Sfs(Tarn32sc src, Tarn32sc* pDstVal, TarnsIIRState64fc_32sc* pState,
                                             int scaleFactor);
TARN_API TarnStatus tarnsIIROne64f_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, TarnsIIRState64f_16s* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsIIROne64fc_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, TarnsIIRState64fc_16sc* pState,
                                             int scaleFactor);
///@}

/** Filters a block by taps and a delay line in the caller's hands. It is computed in single precision, by a state that
    lives as long as the call, so that the delay line, which is rounded to integers at the end, loses low bits.

    @param pSrc     samples, `len` elements
    @param pDst     destination, `len` elements; results saturate
    @param pSrcDst  samples, and destination, `len` elements
    @param len      number of samples, at least 1
    @param pTaps    the 2 `order` + 2 taps b0..bN, s, a1..aN, each meaning its integer times 2^-s; a0 is 2^s
    @param order    order N, at least 0
    @param pDlyLine accumulators of the transposed form times 2^s, `order` elements
    @return tarnStsIIROrderErr for `order` below 0; tarnStsNullPtrErr for a null pointer; tarnStsScaleRangeErr for s
            below 0; tarnStsSizeErr for `len` below 1; tarnStsNoMemErr if there is no memory; in this order;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsIIR_Direct_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, const Tarn16s* pTaps, int order,
                                        Tarn32s* pDlyLine);
TARN_API TarnStatus tarnsIIR_Direct_16s_I(Tarn16s* pSrcDst, int len, const Tarn16s* pTaps, int order,
                                          Tarn32s* pDlyLine);
///@}

/** Filters one sample in integers of 32 bits, which wrap.

    With an order above 0 the sum is rounded by 2^s to the nearest, ties to even; of a gain, order 0, ties go up. The
    recursion goes on with the value before it saturates.

    @param src      sample
    @param pDstVal  where the result goes
    @param pSrcDstVal sample, and where the result goes
    @param pTaps    the 2 `order` + 2 taps b0..bN, s, a1..aN, as above
    @param order    order N, at least 0
    @param pDlyLine accumulators of the transposed form times 2^s, `order` elements
    @return tarnStsIIROrderErr for `order` below 0; tarnStsNullPtrErr for a null pointer; tarnStsScaleRangeErr for s
            below 0; in this order; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsIIROne_Direct_16s(Tarn16s src, Tarn16s* pDstVal, const Tarn16s* pTaps, int order,
                                           Tarn32s* pDlyLine);
TARN_API TarnStatus tarnsIIROne_Direct_16s_I(Tarn16s* pSrcDstVal, const Tarn16s* pTaps, int order, Tarn32s* pDlyLine);
///@}

/** Filters a block by biquads in the caller's hands, computed in single precision as above.

    @param pSrc     samples, `len` elements
    @param pDst     destination, `len` elements; results saturate
    @param pSrcDst  samples, and destination, `len` elements
    @param len      number of samples, at least 1
    @param pTaps    six taps a section: b0, b1, b2, s, a1, a2, each meaning its integer times 2^-s
    @param numBq    number of sections, at least 1
    @param pDlyLine accumulators of the transposed form, two a section, times its 2^s
    @return tarnStsIIROrderErr for `numBq` below 1; tarnStsNullPtrErr for a null pointer; tarnStsScaleRangeErr for an s
            below 0; tarnStsSizeErr for `len` below 1; tarnStsNoMemErr if there is no memory; in this order;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsIIR_BiQuadDirect_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, const Tarn16s* pTaps,
                                              int numBq, Tarn32s* pDlyLine);
TARN_API TarnStatus tarnsIIR_BiQuadDirect_16s_I(Tarn16s* pSrcDst, int len, const Tarn16s* pTaps, int numBq,
                                                Tarn32s* pDlyLine);
///@}

/** Filters one sample by biquads, in integers of 32 bits that wrap. Each section's result is rounded by its 2^s to the
    nearest, ties to even; only the last one saturates.

    @param src      sample
    @param pDstVal  where the result goes
    @param pSrcDstVal sample, and where the result goes
    @param pTaps    six taps a section: b0, b1, b2, s, a1, a2, as above
    @param numBq    number of sections, at least 1
    @param pDlyLine accumulators of the transposed form, two a section, times its 2^s
    @return tarnStsIIROrderErr for `numBq` below 1; tarnStsNullPtrErr for a null pointer; in this order;
            tarnStsScaleRangeErr for an s below 0: sections in front of that one have gone on by then; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsIIROne_BiQuadDirect_16s(Tarn16s src, Tarn16s* pDstVal, const Tarn16s* pTaps, int numBq,
                                                 Tarn32s* pDlyLine);
TARN_API TarnStatus tarnsIIROne_BiQuadDirect_16s_I(Tarn16s* pSrcDstVal, const Tarn16s* pTaps, int numBq,
                                                   Tarn32s* pDlyLine);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
