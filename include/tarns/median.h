/* Median filters. */
#ifndef TARNS_MEDIAN_H
#define TARNS_MEDIAN_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup median Median filters
    Takes clicks and dropouts out and leaves edges where they are.

    @code{.c}
    const Tarn32f x[8] = {1, 1, 9, 1, 1, 5, 5, 5};
    Tarn32f y[8];
    tarnsFilterMedian_32f(x, y, 8, 3);
    printf("%g %g %g %g %g %g\n", y[1], y[2], y[3], y[4], y[5], y[6]); // 1 1 1 1 5 5
    @endcode

    __Accuracy:__ exact: results are elements of the array.

    __Cost:__ masks of 3 to 9 take 0.003 to 0.05 of a loop of `std::nth_element`, larger ones 0.02 to 0.1.

    __Guide:__ [Median filters](docs/median-filters.md).

    The running median of an array: with m the size of the mask, and h = (m - 1) / 2,

        y[n] = the median of x[n - h], ..., x[n + h]     for 1 <= n <= len - 2,

    where x[0] stands for what lies in front of the array and x[len - 1] for what lies behind it. The first and the last
    element are never changed: y[0] = x[0], y[len - 1] = x[len - 1].

    An array is filtered as it is given, so blocks of a longer signal have to overlap by m - 1 elements; the h results
    at either end of a block that is not an end of the signal are to be dropped.

    Masks of 3, 5, 7 and 9 are networks of minima and maxima, without a branch on the data and without memory but the
    data. Larger ones keep a sorted copy of the window, in which one element leaves and one enters for each result; its
    memory is allocated for the length of the call.

    A window that holds a NaN has no median. Masks up to 9 give some element of it, a NaN or not, and masks from 10 on
    count the NaN as +infinity. No other result is touched by it.
    @{ */

/** Filters by the running median.

    `32s` elements have one particularity. A mask of 11 or more elements may be even there: it is used as it is, the
    window is x[n - maskSize/2], ..., x[n + maskSize/2 - 1], the upper one of the two elements in its middle is the
    result, and there is no warning. Smaller masks filter the elements as doubles, exactly, for which memory is
    allocated from 513 elements on.

    @param pSrc     array, `len` elements
    @param pDst     gets the result, `len` elements; may be `pSrc` itself, and must not overlap it otherwise
    @param pSrcDst  array that is filtered in place, `len` elements; the results are those of the other form
    @param len      number of elements, at least 1; one or two stay as they are
    @param maskSize number of elements of the window, at least 1, and of no upper limit but memory; an even number
                    counts as the odd one below it, and the call answers with a warning; 1 and 2 change nothing
    @return tarnStsNoErr; tarnStsEvenMedianMaskSize, a warning, for an even mask that was made odd; tarnStsNullPtrErr
            for a null pointer; tarnStsSizeErr for `len` or `maskSize` below 1; tarnStsNoMemErr if there is no memory
            for the window or for the doubles: the data in place is as it was, and pDst holds a copy of pSrc if it was
            the window that could not be had, and what it held before if it was the doubles */
///@{
TARN_API TarnStatus tarnsFilterMedian_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_8u_I(Tarn8u* pSrcDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_16s_I(Tarn16s* pSrcDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_32s_I(Tarn32s* pSrcDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_32f_I(Tarn32f* pSrcDst, int len, int maskSize);
TARN_API TarnStatus tarnsFilterMedian_64f_I(Tarn64f* pSrcDst, int len, int maskSize);
///@}
/** @} */

#ifdef __cplusplus
}
#endif

#endif
