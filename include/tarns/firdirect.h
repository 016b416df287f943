/* FIR filters without a state: the caller has taps, delay line and its index, and passes them with every call. */
#ifndef TARNS_FIRDIRECT_H
#define TARNS_FIRDIRECT_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup firdirect Direct FIR filtering
    Filters without an object: taps and delay line are the caller's, in every call. For filters that are used once, and
    for programs that lay out their own memory.

    @code{.c}
    const Tarn32f taps[2] = {0.5F, 0.5F}, x[4] = {1, 3, 5, 7};
    Tarn32f y[4], line[4] = {0};
    int index = 0;
    tarnsFIR_Direct_32f(x, y, 2, taps, 2, line, &index);
    tarnsFIR_Direct_32f(x + 2, y + 2, 2, taps, 2, line, &index); // goes on
    printf("%g %g %g %g\n", y[0], y[1], y[2], y[3]); // 0.5 2 4 6
    @endcode

    __Accuracy:__ single precision is computed in double and rounded once a result.

    __Cost:__ 0.2 of a plain loop in double precision; 16-bit taps and samples that of a state.

    __Guide:__ [FIR filters](docs/fir.md), section Without a state.

    y[n] = sum of h[k] x[n-k] over k from 0 to tapsLen - 1, as of fir.h, without an object: nothing is prepared, and
    nothing is left but the caller's delay line. A state is the faster way for filters that live long.

    The word before `Direct` is the type of the taps where it differs from that of the samples, which the name ends
    with. Products and sums are computed in the type of the taps, those of `_32f` and `_32fc` in double precision. Four
    products are added at a time, oldest samples first, as (p0 + p1) + (p2 + p3), one such sum after the other; blocks
    and single samples give the same. Results of integer type (`Sfs`) are multiplied by 2^-scaleFactor, rounded to
    nearest with halves away from zero, and saturated; a NaN becomes the lowest integer.

    With integer taps (`32s`, `32sc`, and the `16s` of Q15, which stand for taps 2^-15) products are added modulo 2^32.
    A sum is multiplied by 2^(tapsFactor - scaleFactor), with a tapsFactor of -15 in Q15: left without saturation, or
    right with rounding to nearest, ties to even. Then it is saturated.

    The delay line of single samples and blocks is a doubled one: 2 tapsLen elements, of which tapsLen from
    `*pDlyLineIndex` on are the last samples, oldest first. A sample is written at the index and tapsLen behind it, then
    the index goes on, and from tapsLen - 1 back to 0. Begin with zeros and an index of 0. Blocks and single samples may
    follow each other.

    The block functions of Q15 taps (`tarnsFIR_Direct_16s_Sfs`, `tarnsFIR_Direct_16s_ISfs`) are an exception: they
    filter by a state that lives as long as the call, take `tapsLen` samples from `*pDlyLineIndex` on as the last ones,
    newest first, and leave the last ones newest first at the line's beginning, with an index of 0. So a block may
    follow a block, and not a single sample a block.
    @{ */

/** Filters one sample.

    @param src           sample
    @param pDstVal       where the output goes
    @param pTaps         taps, `tapsLen` elements; the first one applies to the newest sample
    @param tapsLen       number of taps, at least 1
    @param tapsFactor    integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param pDlyLine      delay line, 2 tapsLen elements
    @param pDlyLineIndex where its window begins, 0 to tapsLen - 1; only the functions of Q15 taps check it
    @param scaleFactor   the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsFIRLenErr for `tapsLen` below 1. These are
            checked in the order of the arguments. Q15 taps: all pointers come before `tapsLen`, and behind it
            tarnStsDlyLineIndexErr for an index that is not from 0 to tapsLen - 1 */
///@{
TARN_API TarnStatus tarnsFIROne_Direct_32f(Tarn32f src, Tarn32f* pDstVal, const Tarn32f* pTaps, int tapsLen,
                                           Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne_Direct_32fc(Tarn32fc src, Tarn32fc* pDstVal, const Tarn32fc* pTaps, int tapsLen,
                                            Tarn32fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne_Direct_64f(Tarn64f src, Tarn64f* pDstVal, const Tarn64f* pTaps, int tapsLen,
                                           Tarn64f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne_Direct_64fc(Tarn64fc src, Tarn64fc* pDstVal, const Tarn64fc* pTaps, int tapsLen,
                                            Tarn64fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne64f_Direct_32f(Tarn32f src, Tarn32f* pDstVal, const Tarn64f* pTaps, int tapsLen,
                                              Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne64fc_Direct_32fc(Tarn32fc src, Tarn32fc* pDstVal, const Tarn64fc* pTaps, int tapsLen,
                                                Tarn32fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne32f_Direct_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, const Tarn32f* pTaps, int tapsLen,
                                                  Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne32fc_Direct_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, const Tarn32fc* pTaps, int tapsLen,
                                                    Tarn16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne64f_Direct_32s_Sfs(Tarn32s src, Tarn32s* pDstVal, const Tarn64f* pTaps, int tapsLen,
                                                  Tarn32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne64fc_Direct_32sc_Sfs(Tarn32sc src, Tarn32sc* pDstVal, const Tarn64fc* pTaps, int tapsLen,
                                                    Tarn32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne64f_Direct_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, const Tarn64f* pTaps, int tapsLen,
                                                  Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne64fc_Direct_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, const Tarn64fc* pTaps, int tapsLen,
                                                    Tarn16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne32s_Direct_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, const Tarn32s* pTaps, int tapsLen,
                                                  int tapsFactor, Tarn16s* pDlyLine, int* pDlyLineIndex,
                                                  int scaleFactor);
TARN_API TarnStatus tarnsFIROne32sc_Direct_16sc_Sfs(Tarn16sc src, Tarn16sc* pDstVal, const Tarn32sc* pTaps, int tapsLen,
                                                    int tapsFactor, Tarn16sc* pDlyLine, int* pDlyLineIndex,
                                                    int scaleFactor);
TARN_API TarnStatus tarnsFIROne_Direct_16s_Sfs(Tarn16s src, Tarn16s* pDstVal, const Tarn16s* pTaps, int tapsLen,
                                               Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
///@}

/** Filters one sample in place.

    @param pSrcDstVal    sample, and output
    @param pTaps         taps, `tapsLen` elements; the first one applies to the newest sample
    @param tapsLen       number of taps, at least 1
    @param tapsFactor    integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param pDlyLine      delay line, 2 tapsLen elements
    @param pDlyLineIndex where its window begins, 0 to tapsLen - 1; only the functions of Q15 taps check it
    @param scaleFactor   the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsFIRLenErr for `tapsLen` below 1. These are
            checked in the order of the arguments. Q15 taps: all pointers come before `tapsLen`, and behind it
            tarnStsDlyLineIndexErr for an index that is not from 0 to tapsLen - 1 */
///@{
TARN_API TarnStatus tarnsFIROne_Direct_32f_I(Tarn32f* pSrcDstVal, const Tarn32f* pTaps, int tapsLen, Tarn32f* pDlyLine,
                                             int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne_Direct_32fc_I(Tarn32fc* pSrcDstVal, const Tarn32fc* pTaps, int tapsLen,
                                              Tarn32fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne_Direct_64f_I(Tarn64f* pSrcDstVal, const Tarn64f* pTaps, int tapsLen, Tarn64f* pDlyLine,
                                             int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne_Direct_64fc_I(Tarn64fc* pSrcDstVal, const Tarn64fc* pTaps, int tapsLen,
                                              Tarn64fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne64f_Direct_32f_I(Tarn32f* pSrcDstVal, const Tarn64f* pTaps, int tapsLen,
                                                Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne64fc_Direct_32fc_I(Tarn32fc* pSrcDstVal, const Tarn64fc* pTaps, int tapsLen,
                                                  Tarn32fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIROne32f_Direct_16s_ISfs(Tarn16s* pSrcDstVal, const Tarn32f* pTaps, int tapsLen,
                                                   Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne32fc_Direct_16sc_ISfs(Tarn16sc* pSrcDstVal, const Tarn32fc* pTaps, int tapsLen,
                                                     Tarn16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne64f_Direct_32s_ISfs(Tarn32s* pSrcDstVal, const Tarn64f* pTaps, int tapsLen,
                                                   Tarn32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne64fc_Direct_32sc_ISfs(Tarn32sc* pSrcDstVal, const Tarn64fc* pTaps, int tapsLen,
                                                     Tarn32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne64f_Direct_16s_ISfs(Tarn16s* pSrcDstVal, const Tarn64f* pTaps, int tapsLen,
                                                   Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne64fc_Direct_16sc_ISfs(Tarn16sc* pSrcDstVal, const Tarn64fc* pTaps, int tapsLen,
                                                     Tarn16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIROne32s_Direct_16s_ISfs(Tarn16s* pSrcDstVal, const Tarn32s* pTaps, int tapsLen,
                                                   int tapsFactor, Tarn16s* pDlyLine, int* pDlyLineIndex,
                                                   int scaleFactor);
TARN_API TarnStatus tarnsFIROne32sc_Direct_16sc_ISfs(Tarn16sc* pSrcDstVal, const Tarn32sc* pTaps, int tapsLen,
                                                     int tapsFactor, Tarn16sc* pDlyLine, int* pDlyLineIndex,
                                                     int scaleFactor);
TARN_API TarnStatus tarnsFIROne_Direct_16s_ISfs(Tarn16s* pSrcDstVal, const Tarn16s* pTaps, int tapsLen,
                                                Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
///@}

/** Filters a block.

    @param pSrc          samples, `numIters` elements
    @param pDst          destination, `numIters` elements; it may be `pSrc`
    @param numIters      number of samples, at least 1
    @param pTaps         taps, `tapsLen` elements; the first one applies to the newest sample
    @param tapsLen       number of taps, at least 1
    @param tapsFactor    integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param pDlyLine      delay line, 2 tapsLen elements
    @param pDlyLineIndex where its window begins, 0 to tapsLen - 1; only the functions of Q15 taps check it
    @param scaleFactor   the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `numIters`
            below 1; tarnStsFIRLenErr for `tapsLen` below 1. These are
            checked in the order of the arguments. Q15 taps: all pointers come before `tapsLen`, and behind it
            tarnStsDlyLineIndexErr for an index that is not from 0 to tapsLen - 1; tarnStsNoMemErr if
            there is no memory for the state */
///@{
TARN_API TarnStatus tarnsFIR_Direct_32f(const Tarn32f* pSrc, Tarn32f* pDst, int numIters, const Tarn32f* pTaps,
                                        int tapsLen, Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR_Direct_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int numIters, const Tarn32fc* pTaps,
                                         int tapsLen, Tarn32fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR_Direct_64f(const Tarn64f* pSrc, Tarn64f* pDst, int numIters, const Tarn64f* pTaps,
                                        int tapsLen, Tarn64f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR_Direct_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int numIters, const Tarn64fc* pTaps,
                                         int tapsLen, Tarn64fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR64f_Direct_32f(const Tarn32f* pSrc, Tarn32f* pDst, int numIters, const Tarn64f* pTaps,
                                           int tapsLen, Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR64fc_Direct_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int numIters, const Tarn64fc* pTaps,
                                             int tapsLen, Tarn32fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR32f_Direct_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, const Tarn32f* pTaps,
                                               int tapsLen, Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR32fc_Direct_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                                 const Tarn32fc* pTaps, int tapsLen, Tarn16sc* pDlyLine,
                                                 int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR64f_Direct_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int numIters, const Tarn64f* pTaps,
                                               int tapsLen, Tarn32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR64fc_Direct_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc* pDst, int numIters,
                                                 const Tarn64fc* pTaps, int tapsLen, Tarn32sc* pDlyLine,
                                                 int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR64f_Direct_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, const Tarn64f* pTaps,
                                               int tapsLen, Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR64fc_Direct_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                                 const Tarn64fc* pTaps, int tapsLen, Tarn16sc* pDlyLine,
                                                 int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR32s_Direct_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, const Tarn32s* pTaps,
                                               int tapsLen, int tapsFactor, Tarn16s* pDlyLine, int* pDlyLineIndex,
                                               int scaleFactor);
TARN_API TarnStatus tarnsFIR32sc_Direct_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                                 const Tarn32sc* pTaps, int tapsLen, int tapsFactor, Tarn16sc* pDlyLine,
                                                 int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR_Direct_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, const Tarn16s* pTaps,
                                            int tapsLen, Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
///@}

/** Filters a block in place.

    @param pSrcDst       samples, and destination, `numIters` elements
    @param numIters      number of samples, at least 1
    @param pTaps         taps, `tapsLen` elements; the first one applies to the newest sample
    @param tapsLen       number of taps, at least 1
    @param tapsFactor    integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param pDlyLine      delay line, 2 tapsLen elements
    @param pDlyLineIndex where its window begins, 0 to tapsLen - 1; only the functions of Q15 taps check it
    @param scaleFactor   the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `numIters`
            below 1; tarnStsFIRLenErr for `tapsLen` below 1. These are
            checked in the order of the arguments. Q15 taps: all pointers come before `tapsLen`, and behind it
            tarnStsDlyLineIndexErr for an index that is not from 0 to tapsLen - 1; tarnStsNoMemErr if
            there is no memory for the state */
///@{
TARN_API TarnStatus tarnsFIR_Direct_32f_I(Tarn32f* pSrcDst, int numIters, const Tarn32f* pTaps, int tapsLen,
                                          Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR_Direct_32fc_I(Tarn32fc* pSrcDst, int numIters, const Tarn32fc* pTaps, int tapsLen,
                                           Tarn32fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR_Direct_64f_I(Tarn64f* pSrcDst, int numIters, const Tarn64f* pTaps, int tapsLen,
                                          Tarn64f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR_Direct_64fc_I(Tarn64fc* pSrcDst, int numIters, const Tarn64fc* pTaps, int tapsLen,
                                           Tarn64fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR64f_Direct_32f_I(Tarn32f* pSrcDst, int numIters, const Tarn64f* pTaps, int tapsLen,
                                             Tarn32f* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR64fc_Direct_32fc_I(Tarn32fc* pSrcDst, int numIters, const Tarn64fc* pTaps, int tapsLen,
                                               Tarn32fc* pDlyLine, int* pDlyLineIndex);
TARN_API TarnStatus tarnsFIR32f_Direct_16s_ISfs(Tarn16s* pSrcDst, int numIters, const Tarn32f* pTaps, int tapsLen,
                                                Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR32fc_Direct_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, const Tarn32fc* pTaps, int tapsLen,
                                                  Tarn16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR64f_Direct_32s_ISfs(Tarn32s* pSrcDst, int numIters, const Tarn64f* pTaps, int tapsLen,
                                                Tarn32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR64fc_Direct_32sc_ISfs(Tarn32sc* pSrcDst, int numIters, const Tarn64fc* pTaps, int tapsLen,
                                                  Tarn32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR64f_Direct_16s_ISfs(Tarn16s* pSrcDst, int numIters, const Tarn64f* pTaps, int tapsLen,
                                                Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR64fc_Direct_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, const Tarn64fc* pTaps, int tapsLen,
                                                  Tarn16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR32s_Direct_16s_ISfs(Tarn16s* pSrcDst, int numIters, const Tarn32s* pTaps, int tapsLen,
                                                int tapsFactor, Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
TARN_API TarnStatus tarnsFIR32sc_Direct_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, const Tarn32sc* pTaps, int tapsLen,
                                                  int tapsFactor, Tarn16sc* pDlyLine, int* pDlyLineIndex,
                                                  int scaleFactor);
TARN_API TarnStatus tarnsFIR_Direct_16s_ISfs(Tarn16s* pSrcDst, int numIters, const Tarn16s* pTaps, int tapsLen,
                                             Tarn16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
///@}

/** Changes the rate of a signal, as firmr.h tells it: what one gets by inserting upFactor - 1 zeros between samples,
    filtering, and keeping every downFactor-th result. Products are added newest sample first, four at a time.

    @param pSrc        samples, numIters downFactor elements; must not overlap `pDst`
    @param pDst        destination, numIters upFactor elements
    @param numIters    number of iterations, at least 1
    @param pTaps       taps, `tapsLen` elements
    @param tapsLen     number of taps, at least 1
    @param tapsFactor  integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param upFactor    time between two samples on the fast clock, at least 1
    @param upPhase     time of the first sample, 0 to upFactor - 1
    @param downFactor  time between two outputs on the fast clock, at least 1
    @param downPhase   time of the first output, 0 to downFactor - 1
    @param pDlyLine    the samples before the first one, newest first, (tapsLen + upFactor - 1) / upFactor elements; the
                       call leaves the last ones there
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `numIters` below 1; tarnStsFIRLenErr
            for `tapsLen` below 1; tarnStsFIRMRFactorErr for a factor below 1; tarnStsFIRMRPhaseErr for a phase out of
            range. These are checked in the order of the arguments, except that factors come before phases */
///@{
TARN_API TarnStatus tarnsFIRMR_Direct_32f(const Tarn32f* pSrc, Tarn32f* pDst, int numIters, const Tarn32f* pTaps,
                                          int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                          Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRMR_Direct_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int numIters, const Tarn32fc* pTaps,
                                           int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                           Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMR_Direct_64f(const Tarn64f* pSrc, Tarn64f* pDst, int numIters, const Tarn64f* pTaps,
                                          int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                          Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsFIRMR_Direct_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int numIters, const Tarn64fc* pTaps,
                                           int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                           Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMR64f_Direct_32f(const Tarn32f* pSrc, Tarn32f* pDst, int numIters, const Tarn64f* pTaps,
                                             int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                             Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRMR64fc_Direct_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int numIters,
                                               const Tarn64fc* pTaps, int tapsLen, int upFactor, int upPhase,
                                               int downFactor, int downPhase, Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMR32f_Direct_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, const Tarn32f* pTaps,
                                                 int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                                 Tarn16s* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR32fc_Direct_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                                   const Tarn32fc* pTaps, int tapsLen, int upFactor, int upPhase,
                                                   int downFactor, int downPhase, Tarn16sc* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR64f_Direct_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int numIters, const Tarn64f* pTaps,
                                                 int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                                 Tarn32s* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR64fc_Direct_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc* pDst, int numIters,
                                                   const Tarn64fc* pTaps, int tapsLen, int upFactor, int upPhase,
                                                   int downFactor, int downPhase, Tarn32sc* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR64f_Direct_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, const Tarn64f* pTaps,
                                                 int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                                 Tarn16s* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR64fc_Direct_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                                   const Tarn64fc* pTaps, int tapsLen, int upFactor, int upPhase,
                                                   int downFactor, int downPhase, Tarn16sc* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR32s_Direct_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, const Tarn32s* pTaps,
                                                 int tapsLen, int tapsFactor, int upFactor, int upPhase, int downFactor,
                                                 int downPhase, Tarn16s* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR32sc_Direct_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc* pDst, int numIters,
                                                   const Tarn32sc* pTaps, int tapsLen, int tapsFactor, int upFactor,
                                                   int upPhase, int downFactor, int downPhase, Tarn16sc* pDlyLine,
                                                   int scaleFactor);
TARN_API TarnStatus tarnsFIRMR_Direct_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int numIters, const Tarn16s* pTaps,
                                              int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
                                              Tarn16s* pDlyLine, int scaleFactor);
///@}

/** Changes the rate of a signal in place, by way of a copy of the samples.

    @param pSrcDst     samples, and destination: numIters times the larger factor
    @param numIters    number of iterations, at least 1
    @param pTaps       taps, `tapsLen` elements
    @param tapsLen     number of taps, at least 1
    @param tapsFactor  integer taps: the filter has the taps pTaps[k] 2^tapsFactor
    @param upFactor    time between two samples on the fast clock, at least 1
    @param upPhase     time of the first sample, 0 to upFactor - 1
    @param downFactor  time between two outputs on the fast clock, at least 1
    @param downPhase   time of the first output, 0 to downFactor - 1
    @param pDlyLine    the samples before the first one, newest first, (tapsLen + upFactor - 1) / upFactor elements; the
                       call leaves the last ones there
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `numIters` below 1; tarnStsFIRLenErr
            for `tapsLen` below 1; tarnStsFIRMRFactorErr for a factor below 1; tarnStsFIRMRPhaseErr for a phase out of
            range. These are checked in the order of the arguments, except that factors come before phases;
    tarnStsNoMemErr if there is no memory for the copy, or it would be larger than 2^31 - 1 bytes */
///@{
TARN_API TarnStatus tarnsFIRMR_Direct_32f_I(Tarn32f* pSrcDst, int numIters, const Tarn32f* pTaps, int tapsLen,
                                            int upFactor, int upPhase, int downFactor, int downPhase,
                                            Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRMR_Direct_32fc_I(Tarn32fc* pSrcDst, int numIters, const Tarn32fc* pTaps, int tapsLen,
                                             int upFactor, int upPhase, int downFactor, int downPhase,
                                             Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMR_Direct_64f_I(Tarn64f* pSrcDst, int numIters, const Tarn64f* pTaps, int tapsLen,
                                            int upFactor, int upPhase, int downFactor, int downPhase,
                                            Tarn64f* pDlyLine);
TARN_API TarnStatus tarnsFIRMR_Direct_64fc_I(Tarn64fc* pSrcDst, int numIters, const Tarn64fc* pTaps, int tapsLen,
                                             int upFactor, int upPhase, int downFactor, int downPhase,
                                             Tarn64fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMR64f_Direct_32f_I(Tarn32f* pSrcDst, int numIters, const Tarn64f* pTaps, int tapsLen,
                                               int upFactor, int upPhase, int downFactor, int downPhase,
                                               Tarn32f* pDlyLine);
TARN_API TarnStatus tarnsFIRMR64fc_Direct_32fc_I(Tarn32fc* pSrcDst, int numIters, const Tarn64fc* pTaps, int tapsLen,
                                                 int upFactor, int upPhase, int downFactor, int downPhase,
                                                 Tarn32fc* pDlyLine);
TARN_API TarnStatus tarnsFIRMR32f_Direct_16s_ISfs(Tarn16s* pSrcDst, int numIters, const Tarn32f* pTaps, int tapsLen,
                                                  int upFactor, int upPhase, int downFactor, int downPhase,
                                                  Tarn16s* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR32fc_Direct_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, const Tarn32fc* pTaps, int tapsLen,
                                                    int upFactor, int upPhase, int downFactor, int downPhase,
                                                    Tarn16sc* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR64f_Direct_32s_ISfs(Tarn32s* pSrcDst, int numIters, const Tarn64f* pTaps, int tapsLen,
                                                  int upFactor, int upPhase, int downFactor, int downPhase,
                                                  Tarn32s* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR64fc_Direct_32sc_ISfs(Tarn32sc* pSrcDst, int numIters, const Tarn64fc* pTaps, int tapsLen,
                                                    int upFactor, int upPhase, int downFactor, int downPhase,
                                                    Tarn32sc* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR64f_Direct_16s_ISfs(Tarn16s* pSrcDst, int numIters, const Tarn64f* pTaps, int tapsLen,
                                                  int upFactor, int upPhase, int downFactor, int downPhase,
                                                  Tarn16s* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR64fc_Direct_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, const Tarn64fc* pTaps, int tapsLen,
                                                    int upFactor, int upPhase, int downFactor, int downPhase,
                                                    Tarn16sc* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR32s_Direct_16s_ISfs(Tarn16s* pSrcDst, int numIters, const Tarn32s* pTaps, int tapsLen,
                                                  int tapsFactor, int upFactor, int upPhase, int downFactor,
                                                  int downPhase, Tarn16s* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR32sc_Direct_16sc_ISfs(Tarn16sc* pSrcDst, int numIters, const Tarn32sc* pTaps, int tapsLen,
                                                    int tapsFactor, int upFactor, int upPhase, int downFactor,
                                                    int downPhase, Tarn16sc* pDlyLine, int scaleFactor);
TARN_API TarnStatus tarnsFIRMR_Direct_16s_ISfs(Tarn16s* pSrcDst, int numIters, const Tarn16s* pTaps, int tapsLen,
                                               int upFactor, int upPhase, int downFactor, int downPhase,
                                               Tarn16s* pDlyLine, int scaleFactor);
///@}

/** @} */

#ifdef __cplusplus
}
#endif

#endif
