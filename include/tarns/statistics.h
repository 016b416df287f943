/* Statistics: sums, means, deviations, sums of logarithms, extremes, order. */
#ifndef TARNS_STATISTICS_H
#define TARNS_STATISTICS_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup sums Sums, means and deviations
    Totals, means and standard deviations of vectors, and sums of logarithms. Each reduces a vector to one value and
    rounds once, at the end. Integer totals are exact before they are scaled. Saturation is silent.

    @code{.c}
    const Tarn32f x[4] = {1, 2, 3, 6};
    Tarn32f mean, deviation;
    tarnsMean_32f(x, 4, &mean, tarnAlgHintAccurate);
    tarnsStdDev_32f(x, 4, &deviation, tarnAlgHintAccurate); // of a sample: squares divided by len - 1
    printf("%g %.4f\n", mean, deviation); // 3 2.1602
    @endcode

    __Accuracy:__ accurate sums of `32f` have 64 bits of significand, fast ones 24, in lanes for short stretches.
    Deviations are found in one pass, from n s2 - s1^2, and lose 2 log2(mean / deviation) bits to cancellation. See
    tarnsStdDev_64f() for what that does in double precision, and for what to do instead.

    __Cost:__ the fast sum of `32f` 0.26 to 0.35 of a loop with `-ffast-math`, the accurate one that of a loop of eight
    `long double`; a deviation 1.5 times the fast sum.

    __Guide:__ [Reductions and their accuracy](docs/statistics.md).

    The `hint` of single-precision forms chooses the pass: tarnAlgHintFast (1) sums in single-precision lanes, block by
    block; every other value, whatever it is, sums in the processor's extended format.
    @{ */

/** Adds up a vector of floats: *pSum = sum of pSrc[i], each part of a complex one. NaN and infinities spread as
    additions spread them. The fast pass cuts the vector into blocks of 32768 floats, each summed in four vectors of
    lanes; if `pSrc` is not on a vector boundary, down to whole floats, it adds one element at a time instead.

    @param pSrc vector, `len` elements
    @param len  number of elements, at least 1
    @param pSum where the sum goes
    @param hint tarnAlgHintFast for the fast pass, anything else for the accurate one
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSum_32f(const Tarn32f* pSrc, int len, Tarn32f* pSum, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsSum_32fc(const Tarn32fc* pSrc, int len, Tarn32fc* pSum, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsSum_64f(const Tarn64f* pSrc, int len, Tarn64f* pSum);
TARN_API TarnStatus tarnsSum_64fc(const Tarn64fc* pSrc, int len, Tarn64fc* pSum);
///@}

/** Adds up a vector of integers: *pSum = (sum of pSrc[i]) * 2^-scaleFactor, each part of a complex one, saturated at
    the bounds of the result's type. The sum is exact. 16-bit sums are halved or doubled |scaleFactor| times in double
    precision and rounded to 32 bits in the current rounding mode (normally to nearest, ties to the even integer); a
    16-bit result is saturated after that. `32s` sums are rounded to nearest, ties to the even integer, in integers, and
    a factor counts as 63 above that and as -31 below that.

    @param pSrc        vector, `len` elements
    @param len         number of elements, at least 1
    @param pSum        where the sum goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsSum_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16s* pSum, int scaleFactor);
TARN_API TarnStatus tarnsSum_16sc_Sfs(const Tarn16sc* pSrc, int len, Tarn16sc* pSum, int scaleFactor);
TARN_API TarnStatus tarnsSum_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pSum, int scaleFactor);
TARN_API TarnStatus tarnsSum_16sc32sc_Sfs(const Tarn16sc* pSrc, int len, Tarn32sc* pSum, int scaleFactor);
TARN_API TarnStatus tarnsSum_32s_Sfs(const Tarn32s* pSrc, int len, Tarn32s* pSum, int scaleFactor);
///@}

/** Computes the arithmetic mean of a vector of floats: *pMean = (sum of pSrc[i]) / len, each part of a complex one. The
    sum is that of tarnsSum(), in double precision, and the quotient is formed in double precision; `64fc` multiplies by
    the reciprocal of `len` instead of dividing. NaN and infinities spread.

    @param pSrc  vector, `len` elements
    @param len   number of elements, at least 1
    @param pMean where the mean goes
    @param hint  tarnAlgHintFast for the fast pass, anything else for the accurate one
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMean_32f(const Tarn32f* pSrc, int len, Tarn32f* pMean, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsMean_32fc(const Tarn32fc* pSrc, int len, Tarn32fc* pMean, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsMean_64f(const Tarn64f* pSrc, int len, Tarn64f* pMean);
TARN_API TarnStatus tarnsMean_64fc(const Tarn64fc* pSrc, int len, Tarn64fc* pMean);
///@}

/** Computes the arithmetic mean of a vector of 16-bit integers: *pMean = (sum of pSrc[i]) * 2^-scaleFactor / len, each
    part of a complex one, rounded to the nearest integer, ties to the even one. A mean above 32767 gives 32767. A real
    mean below -32768, which takes a negative factor, gives the low 16 bits of its 32-bit integer; a complex one
    saturates at both ends.

    @param pSrc        vector, `len` elements
    @param len         number of elements, at least 1
    @param pMean       where the mean goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMean_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16s* pMean, int scaleFactor);
TARN_API TarnStatus tarnsMean_16sc_Sfs(const Tarn16sc* pSrc, int len, Tarn16sc* pMean, int scaleFactor);
///@}

/** Computes the standard deviation of a sample of floats, by the sums s1 of its elements and s2 of their squares:
    *pStdDev = sqrt((len * s2 - s1^2) / (len * (len - 1))). What rounding makes negative gives 0.

    Elements that differ by little beside their mean lose digits in the difference, 2 log2(mean / deviation) bits of
    those that the sums have. The accurate pass forms them in the extended format, with 64 bits, the fast one sums
    blocks of 1024 elements in single precision, with 24, and `64f` is computed in double precision throughout, with 53:
    of 1000 elements it errs by 4e-10 of the deviation at a mean of 1000 deviations, by 8e-5 at 10^6, and from 10^8 on
    the result is 0 or a number of no meaning. Where the mean may be that large take it away first: by tarnsMean_64f()
    and tarnsSubC_64f(), after which tarnsStdDev_64f() is good to some 2^-52.

    @param pSrc    sample, `len` elements
    @param len     number of elements, at least 2
    @param pStdDev where the deviation goes
    @param hint    tarnAlgHintFast for the fast pass, anything else for the accurate one
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 2 */
///@{
TARN_API TarnStatus tarnsStdDev_32f(const Tarn32f* pSrc, int len, Tarn32f* pStdDev, TarnHintAlgorithm hint);
TARN_API TarnStatus tarnsStdDev_64f(const Tarn64f* pSrc, int len, Tarn64f* pStdDev);
///@}

/** Computes the standard deviation of a sample of 16-bit integers, by the same formula from exact sums: the root, in
    the extended format, times 2^-scaleFactor, rounded in the current rounding mode (normally to nearest, ties to the
    even integer) and saturated.

    @param pSrc        sample, `len` elements
    @param len         number of elements, at least 2
    @param pStdDev     where the deviation goes
    @param scaleFactor the result is scaled by 2^-scaleFactor, any integer
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 2 */
///@{
TARN_API TarnStatus tarnsStdDev_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pStdDev, int scaleFactor);
TARN_API TarnStatus tarnsStdDev_16s_Sfs(const Tarn16s* pSrc, int len, Tarn16s* pStdDev, int scaleFactor);
///@}

/** Computes the sum of natural logarithms: *pSum = sum of ln pSrc[i]. Elements are taken apart, x = 2^e m: exponents
    are added and mantissas multiplied, so that one logarithm serves 1024 elements. They are taken in groups (four
    `32f`, two `64f`, eight `16s`), what is left behind the last group one at a time. A denormal in a group counts as (1
    + fraction) times the power of two that an exponent field of 0 stands for; behind the groups it has its true
    logarithm.

    The first element that has no logarithm ends the sum. In a group, *pSum is the sum of the complete blocks of 1024
    before it; behind the groups, of all elements before it. A group with an infinity or a NaN, and no element at or
    below zero, ends the sum as well: *pSum is 0, without a warning. Behind the groups such an element has the logarithm
    that the processor gives it.

    @param pSrc vector, `len` elements
    @param len  number of elements, at least 1
    @param pSum where the sum goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1; the warning
            tarnStsLnZeroArg if the sum ended at an element of +0, tarnStsLnNegArg if at a negative one or -0 */
///@{
TARN_API TarnStatus tarnsSumLn_32f(const Tarn32f* pSrc, int len, Tarn32f* pSum);
TARN_API TarnStatus tarnsSumLn_64f(const Tarn64f* pSrc, int len, Tarn64f* pSum);
TARN_API TarnStatus tarnsSumLn_32f64f(const Tarn32f* pSrc, int len, Tarn64f* pSum);
TARN_API TarnStatus tarnsSumLn_16s32f(const Tarn16s* pSrc, int len, Tarn32f* pSum);
///@}
/** @} */

/** @defgroup extremes Extremes and order
    The smallest and largest elements of vectors with their places, element by element of two vectors, and the number of
    bits that a vector needs.

    @code{.c}
    const Tarn32f x[5] = {0.5F, -2, 3, 1, 3};
    Tarn32f peak;
    int place;
    tarnsMaxIndx_32f(x, 5, &peak, &place);
    printf("%g at %d\n", peak, place); // 3 at 2
    @endcode

    __Accuracy:__ exact, but NaN is dropped: a float extreme is a running selection, m = (m < x) ? m : x for a minimum
    and m = (m > x) ? m : x for a maximum. The new element wins against a NaN, when it is one itself, and between zeros.
    So a NaN is replaced by the next element of its lane, together with all that the lane had seen before; it shows in
    the result only from the last place of a lane, and no status tells of it. If there may be one, look first:
    `tarnsSum_64f` is NaN where an element is.

    __Cost:__ both extremes in one pass take about as long as a fast sum of the same bytes, 2.5 to 3 times as long for
    32-bit integers; places 0.12 to 0.28 of VOLK.

    __Guide:__ [Reductions and their accuracy](docs/statistics.md).
    @{ */

/** Finds the smallest element: *pMin = min of pSrc[i]. NaNs are dropped, and nothing tells of them.

    @param pSrc vector, `len` elements
    @param len  number of elements, at least 1
    @param pMin where the extreme goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMin_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin);
TARN_API TarnStatus tarnsMin_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin);
TARN_API TarnStatus tarnsMin_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin);
///@}

/** Finds the largest element: *pMax = max of pSrc[i]. NaNs are dropped, and nothing tells of them.

    @param pSrc vector, `len` elements
    @param len  number of elements, at least 1
    @param pMax where the extreme goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMax_16s(const Tarn16s* pSrc, int len, Tarn16s* pMax);
TARN_API TarnStatus tarnsMax_32f(const Tarn32f* pSrc, int len, Tarn32f* pMax);
TARN_API TarnStatus tarnsMax_64f(const Tarn64f* pSrc, int len, Tarn64f* pMax);
///@}

/** Finds the smallest element and the index of its first occurrence. A NaN takes the place of the running minimum, and
    every element takes the place of a NaN, one at a time: with a NaN among them the result of `64f` is the last
    element, and so is that of `32f` below 34 elements. Longer `32f` vectors find the extreme of each block of 2048 by
    lanes, as above, and then its place.

    @param pSrc  vector, `len` elements
    @param len   number of elements, at least 1
    @param pMin  where the extreme goes
    @param pIndx where its index goes, counted from 0; null if it is not wanted, and then it is tarnsMin() that runs
    @return tarnStsNoErr; tarnStsNullPtrErr if `pSrc` or `pMin` is null; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMinIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin, int* pIndx);
TARN_API TarnStatus tarnsMinIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin, int* pIndx);
TARN_API TarnStatus tarnsMinIndx_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin, int* pIndx);
///@}

/** Finds the largest element and the index of its first occurrence. A NaN never takes the place of the running maximum;
    one in the first place stays, in `64f`, and in `32f` below 34 elements. Longer `32f` vectors find the extreme of
    each block of 2048 by lanes, as above, and then its place.

    @param pSrc  vector, `len` elements
    @param len   number of elements, at least 1
    @param pMax  where the extreme goes
    @param pIndx where its index goes, counted from 0; null if it is not wanted, and then it is tarnsMax() that runs
    @return tarnStsNoErr; tarnStsNullPtrErr if `pSrc` or `pMax` is null; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMaxIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMax, int* pIndx);
TARN_API TarnStatus tarnsMaxIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMax, int* pIndx);
TARN_API TarnStatus tarnsMaxIndx_64f(const Tarn64f* pSrc, int len, Tarn64f* pMax, int* pIndx);
///@}

/** Finds the smallest and largest element in one pass. NaNs are dropped, and nothing tells of them.

    @param pSrc vector, `len` elements
    @param len  number of elements, at least 1
    @param pMin where the minimum goes
    @param pMax where the maximum goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMinMax_8u(const Tarn8u* pSrc, int len, Tarn8u* pMin, Tarn8u* pMax);
TARN_API TarnStatus tarnsMinMax_16u(const Tarn16u* pSrc, int len, Tarn16u* pMin, Tarn16u* pMax);
TARN_API TarnStatus tarnsMinMax_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin, Tarn16s* pMax);
TARN_API TarnStatus tarnsMinMax_32u(const Tarn32u* pSrc, int len, Tarn32u* pMin, Tarn32u* pMax);
TARN_API TarnStatus tarnsMinMax_32s(const Tarn32s* pSrc, int len, Tarn32s* pMin, Tarn32s* pMax);
TARN_API TarnStatus tarnsMinMax_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin, Tarn32f* pMax);
TARN_API TarnStatus tarnsMinMax_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin, Tarn64f* pMax);
///@}

/** Finds the smallest and largest element and the indices of their first occurrences. Float extremes are those of
    tarnsMinMax(); their search takes an element that is equal or unordered, so that an earlier NaN is found in their
    place.

    @param pSrc     vector, `len` elements
    @param len      number of elements, at least 1
    @param pMin     where the minimum goes
    @param pMinIndx where its index goes, counted from 0
    @param pMax     where the maximum goes
    @param pMaxIndx where its index goes, counted from 0
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMinMaxIndx_8u(const Tarn8u* pSrc, int len, Tarn8u* pMin, int* pMinIndx, Tarn8u* pMax,
                                       int* pMaxIndx);
TARN_API TarnStatus tarnsMinMaxIndx_16u(const Tarn16u* pSrc, int len, Tarn16u* pMin, int* pMinIndx, Tarn16u* pMax,
                                        int* pMaxIndx);
TARN_API TarnStatus tarnsMinMaxIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin, int* pMinIndx, Tarn16s* pMax,
                                        int* pMaxIndx);
TARN_API TarnStatus tarnsMinMaxIndx_32u(const Tarn32u* pSrc, int len, Tarn32u* pMin, int* pMinIndx, Tarn32u* pMax,
                                        int* pMaxIndx);
TARN_API TarnStatus tarnsMinMaxIndx_32s(const Tarn32s* pSrc, int len, Tarn32s* pMin, int* pMinIndx, Tarn32s* pMax,
                                        int* pMaxIndx);
TARN_API TarnStatus tarnsMinMaxIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin, int* pMinIndx, Tarn32f* pMax,
                                        int* pMaxIndx);
TARN_API TarnStatus tarnsMinMaxIndx_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin, int* pMinIndx, Tarn64f* pMax,
                                        int* pMaxIndx);
///@}

/** Takes element by element the smaller or the larger of two vectors: pSrcDst[i] = min(pSrc[i], pSrcDst[i]), or max.
    Where one of two floats is a NaN, or both are zeros, the element of `pSrcDst` stays.

    @param pSrc    operand, `len` elements
    @param pSrcDst operand and destination, `len` elements; must not overlap `pSrc` unless it is the same array
    @param len     number of elements, at least 1
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1 */
///@{
TARN_API TarnStatus tarnsMinEvery_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsMinEvery_32s_I(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len);
TARN_API TarnStatus tarnsMinEvery_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
TARN_API TarnStatus tarnsMaxEvery_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len);
TARN_API TarnStatus tarnsMaxEvery_32s_I(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len);
TARN_API TarnStatus tarnsMaxEvery_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len);
///@}

/** Tells the order of a vector. For integers it is the number of bits of the largest magnitude: 0 for all zeros, 15 for
    32767, 16 for -32768. For floats it is the exponent e with which the largest magnitude is f * 2^e, f in [0.5, 1): 1
    for 1.0, 0 for 0.75, -126 for every denormal of `32f`. Zeros have order 0; in `64f` so have denormals whose upper
    half is zero, and other denormals have -1022.

    Elements that are infinite or NaN count as 0. Whether there are any is told by the invalid-operation flag of the SSE
    unit, which is cleared on the way out and not on the way in: one that the caller left set makes `32f` look again,
    and makes `64f` warn. Where `64f` looks again, for an infinity, the upper 16 bits of each element decide, and the
    fourth of each four elements counts as 0 if its upper half is that of the largest double.

    @param pSrc   vector, `len` elements
    @param len    number of elements, at least 1
    @param pOrder where the order goes
    @return tarnStsNoErr; tarnStsSizeErr for `len` below 1, which is tested first; tarnStsNullPtrErr for a null pointer;
            the warning tarnStsNanArg (`32f`, `64f`) if there were infinities or NaNs, with the order of the others */
///@{
TARN_API TarnStatus tarnsMaxOrder_16s(const Tarn16s* pSrc, int len, int* pOrder);
TARN_API TarnStatus tarnsMaxOrder_32s(const Tarn32s* pSrc, int len, int* pOrder);
TARN_API TarnStatus tarnsMaxOrder_32f(const Tarn32f* pSrc, int len, int* pOrder);
TARN_API TarnStatus tarnsMaxOrder_64f(const Tarn64f* pSrc, int len, int* pOrder);
///@}
/** @} */

#ifdef __cplusplus
}
#endif

#endif
