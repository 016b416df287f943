/* Steps of a Viterbi decoder for four-dimensional trellis codes. */
#ifndef TARNS_VITERBI_H
#define TARNS_VITERBI_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup viterbi Viterbi decoding
    Decodes the trellis codes of fast modems: the inner steps of a decoder for codes of 16, 32 or 64 states whose
    symbols are two consecutive points of a square constellation.

    @code{.c}
    Tarn16u metrics[16] = {5, 3, 9}, least; // new metrics of the states
    Tarn16u from[16];
    Tarn8u best;
    tarnsSet_16s(100, (Tarn16s*)metrics + 3, 13);
    tarnsUpdatePathMetricsDV_16u(metrics, &least, &best, from, 16);
    printf("%d at state %d, then %d %d %d\n", least, best, from[0], from[1], from[2]); // 3 at state 1, then 2 0 6
    @endcode

    __Accuracy:__ integers; metrics have 16 bits, and stay within them if the smallest is taken away in each step.

    __Cost:__ 270, 450 and 1480 ns a symbol for 16, 32 and 64 states: 0.63, 0.36 and 0.26 of plain loops.

    __Guide:__ [Coding](docs/coding.md), section Viterbi decoding, which puts a decoder together.

    For one trellis step call

    1. tarnsGetVarPointDV_16sc() for each of the two received points: the nearest point of every 2-D subset,
    2. tarnsBuildSymblTableDV4D_16sc(): the errors of the 4-D subsets, which the branches of the trellis carry,
    3. tarnsCalcStatesDV_16sc(): add, compare, select,
    4. tarnsUpdatePathMetricsDV_16u(): the best state, and metrics that stay within 16 bits.

    The trellis, the constellation and the way back along the survivors are the caller's. What the functions pass on to
    each other:

    - a received point: in units in which the constellation's points lie at odd multiples of 128;
    - subset errors: for each of eight 2-D subsets (four for 16 states) a word with the squared error in the low half,
      and the number of its nearest point, 0 to 11, in the high half;
    - branch table: for each 4-D subset, 8, 16 or 32 of them for 16, 32 or 64 states, a word with the code in the low
      half (the number of the first point in the low byte, that of the second in the high one) and the error in the high
      half;
    - next states: for each state a row of bytes, one for each branch: 4, 8 or 16;
    - path metrics: the accumulated error of each state;
    - survivors: for each step a row of `numStates` words with the code of the winning branch in the low half and the
      previous state in the high half.

    A squared distance of (2 x 128)^2, that of neighbouring points, counts 4096. Nothing is allocated, and nothing is
    kept from call to call.
    @{ */

/** Finds the nearest point of every 2-D subset to a received point, and its squared error.

    With dx = (re & 255) ^ 128 and dy = (im & 255) ^ 128 the base point is (re - dx, im - dy), the point of the grid
    below and left of the received one; near the lower bound of 16 bits it wraps. It stands in column
    (((re - dx - 128) >> 8) + 258) & 3 and, by im and dy, in the row of the same formula; to the right and upwards,
    columns and rows count modulo 4. The subset of a place is pSubsetMap[column + 4 row] & 7, for 16 states & 3. With
    D(a) = a^2 >> 4, and col and row those of the base point, the points are

    | Point   | Subset at         | Error                                                |
    | ------- | ----------------- | ---------------------------------------------------- |
    | 0       | col, row          | D(dx) + D(dy)                                        |
    | 1       | col + 1, row      | D(256 - dx) + D(dy)                                  |
    | 2       | col + 1, row + 1  | D(256 - dx) + D(256 - dy)                            |
    | 3       | col, row + 1      | D(dx) + D(256 - dy)                                  |
    | 4 or 8  | col, row + 2      | D(dx) + D(512 - dy) or D(dy) + D(512 - dx)           |
    | 5 or 9  | col + 1, row + 2  | D(256 - dx) + D(512 - dy) or D(dy) + D(dx + 256)     |
    | 6 or 10 | col + 1, row + 3  | D(512 - dx) + D(256 - dy) or D(dx) + D(dy + 256)     |
    | 7 or 11 | col, row + 3      | D(256 - dx) + D(dy + 256) or D(256 - dy) + D(dx + 256) |

    For 16 states only the first four are written, for all others the smaller of two, on a tie the second. Where the map
    has a subset at several of these places the last one stays.

    Of the last two rows each has the errors of the place of the other: points 6 and 10 lie at col, row + 3, and points
    7 and 11 at col + 1, row + 3, both more than a grid step off the received point. That is how these tables have
    always been built; the error of a subset that has a corner of the cell around the received point is not touched by
    it.

    @param pSrc         the received point
    @param pBasePoint   where the base point goes
    @param pSubsetError subset errors, eight words; for 16 states the last four are not written
    @param pSubsetMap   the subset of each place of a 4 x 4 lattice, 16 bytes, at column + 4 row
    @param numStates    16 for four subsets, anything else for eight
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
TARN_API TarnStatus tarnsGetVarPointDV_16sc(const Tarn16sc* pSrc, Tarn16sc* pBasePoint, Tarn32u* pSubsetError,
                                            const Tarn8u* pSubsetMap, int numStates);

/** Computes the errors of the 4-D subsets. Each joins two pairs of 2-D subsets (for 32 states four), a pair's error is
    the sum of the two errors, and the smaller wins; on a tie the pair that stands first. Sums wrap at 16 bits and are
    compared as signed.

    For entry i of the table and k = i ^ bitInversion, a = k >> 2, b = (k + a) & 3 they are

    - 16 states, 8 entries: (a, b), ((a + 2) & 3, (b + 2) & 3);
    - 64 states, 32 entries: (a, b), ((a + 4) & 7, b + 4);
    - 32 states, 16 entries: 2 (i & 8) is added to k; with c = (k ^ 8) >> 2 and d = ((k ^ 8) + c) & 3 they are (c, d),
      ((c + 4) & 7, d + 4), (a, b), ((a + 4) & 7, b + 4).

    With eight subsets, and both received points exactly on points of the grid, the pair two steps off in both counts
    2 x 16384 = 32768, which is read as -32768: such a symbol prefers it to the right one. Received points that have an
    odd unit somewhere, or noise, never come to that.

    An inversion that leaves the table's entries may name subsets that there are none of; the call then reads some word
    of the two arrays for it.

    @param pSubsetError subset errors of the first and of the second point, twice eight words; point numbers below 256
    @param pBranchTable where the table goes: 8, 16 or 32 words for 16, 32 or 64 states
    @param numStates    16, 32, or anything else for 64
    @param bitInversion bits of an entry's index that are inverted before its subsets are found, 0 for none
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
TARN_API TarnStatus tarnsBuildSymblTableDV4D_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable, int numStates,
                                                  int bitInversion);

/** Takes one step through the trellis: add, compare, select. State s has branches to pNextState[s branches + j], which
    carry entry (s & 1) + 2 j of the branch table: even states the even entries, odd states the odd ones. For all
    states, and all branches of a state, in ascending order: where pPathMetric[s] plus the branch's error (taken as
    signed) is below pNewMetric of the next state t, it is stored there, modulo 2^16, and pSurvivor[offset + t] gets s
    and the branch's code. So of equal metrics the one of the lowest state stays, and of its lowest branch.

    A state that no branch improves keeps its new metric and its survivor.

    @param pPathMetric  metric of each state, `numStates` elements
    @param pNextState   next state of each branch, `numStates` rows of 4 bytes for 16 states, 8 for 32, 16 otherwise;
                        all below `numStates`: for 16, 32 and 64 states branches to others are passed over
    @param pNewMetric   new metrics, `numStates` elements: 65535 all of them to begin with, which is how
                        tarnsUpdatePathMetricsDV_16u() leaves them
    @param pBranchTable branch table of the step
    @param pSurvivor    survivors
    @param numStates    number of states: 16, 32, 64, or another one, with 16 branches each; none if below 1
    @param offset       of the step's row in `pSurvivor`, in words
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
TARN_API TarnStatus tarnsCalcStatesDV_16sc(const Tarn16u* pPathMetric, const Tarn8u* pNextState, Tarn16u* pNewMetric,
                                           const Tarn32u* pBranchTable, Tarn32u* pSurvivor, int numStates, int offset);

/** Finds the smallest new metric, and makes path metrics of the new ones by taking it away from all of them. The new
    metrics become 65535, ready for the next step.

    @param pNewMetric  new metrics, one for each state
    @param pMinMetric  where the smallest goes
    @param pMinState   where its state goes, the first one that has it
    @param pPathMetric path metrics, one for each state
    @param numStates   number of states: 16, 32, or anything else for 64
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
TARN_API TarnStatus tarnsUpdatePathMetricsDV_16u(Tarn16u* pNewMetric, Tarn16u* pMinMetric, Tarn8u* pMinState,
                                                 Tarn16u* pPathMetric, int numStates);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
