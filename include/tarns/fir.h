/* Filtering with FIR filters: blocks, single samples, in place. */
#ifndef TARNS_FIR_H
#define TARNS_FIR_H

#include "tarns/firstate.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fir FIR filtering
    Filters a signal by the taps in a [state](@ref firstate), block by block or sample by sample.

    @code{.c}
    const Tarn32f taps[2] = {0.5F, 0.5F}, x[4] = {1, 3, 5, 7};
    Tarn32f y[4];
    TarnsFIRState_32f* state;
    if (tarnsFIRInitAlloc_32f(&state, taps, 2, NULL) == tarnStsNoErr) {
        tarnsFIR_32f(x, y, 3, state);
        tarnsFIROne_32f(x[3], &y[3], state); // goes on where the block ended
        printf("%g %g %g %g\n", y[0], y[1], y[2], y[3]); // 0.5 2 4 6
        tarnsFIRFree_32f(state);
    }
    @endcode

    __Accuracy:__ that of sums in the type of the taps; integer results are rounded once.

    __Cost:__ directly 0.2 to 0.3 of a plain loop; by transforms 0.04 of it for 128 taps and 0.005 for 1024. Two threads
    take 0.55 to 0.7 of one's time where a call is long enough.

    __Guide:__ [FIR filters](docs/fir.md).

    y[n] = sum of h[k] x[n-k] over k from 0 to tapsLen - 1, where the samples before the first one of a call come from
    the state's delay line. A call leaves the last samples there, so that a signal can be cut into calls of any lengths,
    single samples included.

    Blocks take one of two roads. The direct one adds the products of four taps at a time as (p0 + p1) + (p2 + p3),
    oldest samples first, one such sum after the other; so an output does not depend on how the signal is cut. Filters
    with a transform (see firstate.h) filter by overlap-save where a call has more samples than the transform; outputs
    of the two roads agree up to rounding. Single samples are filtered by a dot product, whose order of additions is
    its own. NaN and infinities spread over the `tapsLen` outputs that they reach, on the transforms' road over those of
    their block.

    Real filters of more than 1600 samples a call, complex ones of more than 800, are shared out to threads on both
    roads if the call is worth it, which it is from about a quarter of a millisecond on one thread. There are as many
    threads as OpenMP's settings allow (`OMP_NUM_THREADS`, `omp_set_num_threads`), one in a forked child of a process
    that has threads. Outputs are the same on any number of them, and the caller's rounding mode holds in all. Filters
    with integer taps run on the calling thread.

    Results of integer type (`Sfs`) are those of the filter times 2^-scaleFactor. Blocks round them to the nearest
    integer, ties to even, whatever the rounding mode, and saturate; a NaN becomes the lowest integer. Single samples
    are rounded in the current mode by a conversion to 32 bits: 16-bit results saturate, but what is 2^31 or more
    becomes the lowest integer in either type. Filters with integer taps add products modulo 2^32 and shift the sum by s
    = tapsFactor - scaleFactor, left without saturation, or right with rounding to nearest, ties to even; then they
    saturate.

    With a multi-rate state (firmr.h) an iteration consumes `downFactor` samples and produces `upFactor` outputs. Each
    is the sum of its products in their order, oldest sample first. Those of four outputs are added together, and where
    one window serves all four it is multiplied by zeros in place of what is none of an output's; so a NaN may reach the
    neighbours of the outputs that it is a sample of. Above 1600 iterations (complex filters: 800) a call is shared out
    as above. Results of integer type are rounded in the current mode and saturate, a NaN becomes the lowest integer;
    but the last outputs of a call have halves rounded away from zero. These are the last outputs that make no whole
    cycle of 4 upFactor; in a call of more samples than pass through the delay buffer also the cycle before them, and in
    one to be shared what does not divide into equal numbers of cycles for OpenMP's number of threads. With integer taps
    ties go to even everywhere.
    @{ */

/** Filters a block.

    @param pSrc        samples, `numIters` elements (of a multi-rate filter numIters downFactor); must not overlap
    `pDst`
    @param pDst        destination, `numIters` elements (of a multi-rate filter numIters upFactor)
    @param numIters    number of samples, or of iterations, at least 1
    @param pState      state of the filter
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `numIters` below 1;
            tarnStsContextMatchErr for a state of another kind; the status of a transform that fails */
///@{
TARN_API TarnStatus tarnsFIR_32f(const Tarn32f* pSrc, Tarn32f* pDst, int numIters, TarnsFIRState_32f* pState);
TARN_API TarnStatus tarnsFIR_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int numIters, TarnsFIRState_32fc* pState);
TARN_API TarnStatus tarnsFIR32f_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, TarnsFIRState32f_16s* pState,
                                        int scaleFactor);
TARN_API TarnStatus tarnsFIR32fc_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                          TarnsFIRState32fc_16sc* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR_64f(const Tarn64f* pSrc, Tarn64f* pDst, int numIters, TarnsFIRState_64f* pState);
TARN_API TarnStatus tarnsFIR_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int numIters, TarnsFIRState_64fc* pState);
TARN_API TarnStatus tarnsFIR64f_32f(const Tarn32f* pSrc, Tarn32f* pDst, int numIters, TarnsFIRState64f_32f* pState);
TARN_API TarnStatus tarnsFIR64fc_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int numIters,
                                      TarnsFIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsFIR64f_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int numIters, TarnsFIRState64f_32s* pState,
                                        int scaleFactor);
TARN_API TarnStatus tarnsFIR64fc_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc* pDst, int numIters,
                                          TarnsFIRState64fc_32sc* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR64f_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, TarnsFIRState64f_16s* pState,
                                        int scaleFactor);
TARN_API TarnStatus tarnsFIR64fc_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                          TarnsFIRState64fc_16sc* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR32s_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, TarnsFIRState32s_16s* pState,
                                        int scaleFactor);
TARN_API TarnStatus tarnsFIR32sc_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                          TarnsFIRState32sc_16sc* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR32s_16s32f_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters,
                                           TarnsFIRState32s_16s32f* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR32sc_16sc32fc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                              TarnsFIRState32sc_16sc32fc* pState, int scaleFactor);
///@}

/** Filters a block in place.

    The signal goes through a buffer of the state, 4096 samples at a time. Where samples have the taps' type each such
    part takes the road that suits its own length; otherwise the call's length decides, and parts on the transforms'
    road have 8192 samples.

    A multi-rate filter whose `upFactor` is not 1, or whose taps are integers, allocates a copy of all samples. With an
    `upFactor` of 1 it goes through the buffer, 4096 iterations at a time (8192 where samples are converted). Note that
    each part begins behind the outputs of the one before, not behind the samples that were consumed for them: with a
    `downFactor` above 1 use calls of at most one part.

    @param pSrcDst     samples, and destination: `numIters` elements, of a multi-rate filter numIters times the larger
                       factor
    @param numIters    number of samples, or of iterations, at least 1
    @param pState      state of the filter
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `numIters` below 1;
            tarnStsContextMatchErr for a state of another kind; tarnStsNoMemErr if there is no memory for the copy, or
    it would be larger than 2^31 - 1 bytes; the status of a transform that fails, in which case the parts before it are
    written */
///@{
TARN_API TarnStatus tarnsFIR_32f_I(Tarn32f* pSrcDst, int numIters, TarnsFIRState_32f* pState);
TARN_API TarnStatus tarnsFIR_32fc_I(Tarn32fc* pSrcDst, int numIters, TarnsFIRState_32fc* pState);
TARN_API TarnStatus tarnsFIR32f_16s_ISfs(Tarn16s* pSrcDst, int numIters, TarnsFIRState32f_16s* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR32fc_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, TarnsFIRState32fc_16sc* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsFIR_64f_I(Tarn64f* pSrcDst, int numIters, TarnsFIRState_64f* pState);
TARN_API TarnStatus tarnsFIR_64fc_I(Tarn64fc* pSrcDst, int numIters, TarnsFIRState_64fc* pState);
TARN_API TarnStatus tarnsFIR64f_32f_I(Tarn32f* pSrcDst, int numIters, TarnsFIRState64f_32f* pState);
TARN_API TarnStatus tarnsFIR64fc_32fc_I(Tarn32fc* pSrcDst, int numIters, TarnsFIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsFIR64f_32s_ISfs(Tarn32s* pSrcDst, int numIters, TarnsFIRState64f_32s* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR64fc_32sc_ISfs(Tarn32sc* pSrcDst, int numIters, TarnsFIRState64fc_32sc* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsFIR64f_16s_ISfs(Tarn16s* pSrcDst, int numIters, TarnsFIRState64f_16s* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR64fc_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, TarnsFIRState64fc_16sc* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsFIR32s_16s_ISfs(Tarn16s* pSrcDst, int numIters, TarnsFIRState32s_16s* pState, int scaleFactor);
TARN_API TarnStatus tarnsFIR32sc_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, TarnsFIRState32sc_16sc* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsFIR32s_16s32f_ISfs(Tarn16s* pSrcDst, int numIters, TarnsFIRState32s_16s32f* pState,
                                            int scaleFactor);
TARN_API TarnStatus tarnsFIR32sc_16sc32fc_ISfs(Tarn16sc* pSrcDst, int numIters, TarnsFIRState32sc_16sc32fc* pState,
                                               int scaleFactor);
///@}

/** Filters one sample.

    @param src         sample
    @param pDstVal     where the output goes
    @param pState      state of the filter
    @param scaleFactor the result is scaled by 2^-scaleFactor; for float taps the power has to be a normal number
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for a state of another kind */
///@{
TARN_API TarnStatus tarnsFIROne_32f(Tarn32f src, Tarn32f* pDstVal, TarnsFIRState_32f* pState);
TARN_API TarnStatus tarnsFIROne_32fc(Tarn32fc src, Tarn32fc* pDstVal, TarnsFIRState_32fc* pState);
TARN_API TarnStatus tarnsFIROne32f_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, TarnsFIRState32f_16s* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsFIROne32fc_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, TarnsFIRState32fc_16sc* pState,
                                             int scaleFactor);
TARN_API TarnStatus tarnsFIROne_64f(Tarn64f src, Tarn64f* pDstVal, TarnsFIRState_64f* pState);
TARN_API TarnStatus tarnsFIROne_64fc(Tarn64fc src, Tarn64fc* pDstVal, TarnsFIRState_64fc* pState);
TARN_API TarnStatus tarnsFIROne64f_32f(Tarn32f src, Tarn32f* pDstVal, TarnsFIRState64f_32f* pState);
TARN_API TarnStatus tarnsFIROne64fc_32fc(Tarn32fc src, Tarn32fc* pDstVal, TarnsFIRState64fc_32fc* pState);
TARN_API TarnStatus tarnsFIROne64f_32s_Sfs(Tarn32s src, Tarn32s* pDstVal, TarnsFIRState64f_32s* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsFIROne64fc_32sc_Sfs(Tarn32sc src, Tarn32sc* pDstVal, TarnsFIRState64fc_32sc* pState,
                                             int scaleFactor);
TARN_API TarnStatus tarnsFIROne64f_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, TarnsFIRState64f_16s* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsFIROne64fc_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, TarnsFIRState64fc_16sc* pState,
                                             int scaleFactor);
TARN_API TarnStatus tarnsFIROne32s_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, TarnsFIRState32s_16s* pState,
                                           int scaleFactor);
TARN_API TarnStatus tarnsFIROne32sc_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, TarnsFIRState32sc_16sc* pState,
                                             int scaleFactor);
TARN_API TarnStatus tarnsFIROne32s_16s32f_Sfs(Tarn16s src, Tarn16s* pDstVal, TarnsFIRState32s_16s32f* pState,
                                              int scaleFactor);
TARN_API TarnStatus tarnsFIROne32sc_16sc32fc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, TarnsFIRState32sc_16sc32fc* pState,
                                                 int scaleFactor);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
