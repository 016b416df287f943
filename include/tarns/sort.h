/* Order: sorting, and search in a sorted table. */
#ifndef TARNS_SORT_H
#define TARNS_SORT_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup sort Sorting and search
    Sorts arrays in place, and finds the nearest entries of a sorted table.

    @code{.c}
    Tarn16s x[5] = {3, -1, 7, 0, 3};
    tarnsSortAscend_16s_I(x, 5);
    printf("%d %d %d %d %d\n", x[0], x[1], x[2], x[3], x[4]); // -1 0 3 3 7
    const Tarn16u table[4] = {0, 10, 100, 1000};
    Tarn16u value;
    Tarn32s index;
    tarnsFindNearestOne_16u(60, &value, &index, table, 4);
    printf("%d at %d\n", value, index); // 100 at 2
    @endcode

    __Accuracy:__ exact.

    __Cost:__ 0.5 to 0.7 of `std::sort` for random elements, 0.02 for bytes; a search is 0.6 to 1.2 of
    `std::lower_bound`.

    __Guide:__ [Working on vectors](docs/vectors.md).
    @{ */

/** Sorts an array in place, from the smallest to the largest. Not stable, which shows in the order of +0 and -0 only.
    If there are NaNs the order has no defined meaning, though every element is still there.

    A hybrid of quicksort, by the median of three and without branches on the data, with insertion sort for short
    ranges. It neither recurs nor allocates, and its time is at most proportional to len log(len). Bytes are counted
    instead from 128 of them on.

    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSortAscend_8u_I(Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsSortAscend_16s_I(Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsSortAscend_32s_I(Tarn32s* pSrcDst, int len);
TARN_API TarnStatus tarnsSortAscend_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsSortAscend_64f_I(Tarn64f* pSrcDst, int len);
///@}

/** Sorts an array in place, from the largest to the smallest. Not stable, which shows in the order of +0 and -0 only.
    If there are NaNs the order has no defined meaning, though every element is still there.

    A hybrid of quicksort, by the median of three and without branches on the data, with insertion sort for short
    ranges. It neither recurs nor allocates, and its time is at most proportional to len log(len). Bytes are counted
    instead from 128 of them on.

    @param pSrcDst array of `len` elements
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSortDescend_8u_I(Tarn8u* pSrcDst, int len);
TARN_API TarnStatus tarnsSortDescend_16s_I(Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsSortDescend_32s_I(Tarn32s* pSrcDst, int len);
TARN_API TarnStatus tarnsSortDescend_32f_I(Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsSortDescend_64f_I(Tarn64f* pSrcDst, int len);
///@}

/** Finds the entries of a table that are nearest to given values: pOutIndexes[i] is the index at which
    |pTable[k] - pVals[i]| is smallest, pOutVals[i] the entry. Of two entries at the same distance the lower one is
   taken. Of equal entries a value at or below the first gets the first, a value at or above the last gets the last, and
    any other value gets the last of those below or equal to it, or the first of those above it.

    @param pVals       values to look for, `len` of them
    @param pOutVals    gets the nearest entries, `len` of them; may be `pVals` itself, and must not overlap it otherwise
    @param pOutIndexes gets their indexes, `len` of them
    @param len         number of values, at least 1
    @param pTable      table in ascending order, which is not tested; `tblLen` entries
    @param tblLen      number of entries, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` or `tblLen` below 1 */
TARN_API TarnStatus tarnsFindNearest_16u(const Tarn16u* pVals, Tarn16u* pOutVals, Tarn32s* pOutIndexes, int len,
                                         const Tarn16u* pTable, int tblLen);

/** Finds the entry of a table that is nearest to one value.

    @param inpVal    value to look for
    @param pOutVal   gets the nearest entry
    @param pOutIndex gets its index
    @param pTable    table in ascending order, which is not tested; `tblLen` entries
    @param tblLen    number of entries, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `tblLen` below 1 */
TARN_API TarnStatus tarnsFindNearestOne_16u(Tarn16u inpVal, Tarn16u* pOutVal, Tarn32s* pOutIndex, const Tarn16u* pTable,
                                            int tblLen);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
