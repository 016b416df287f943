/* Generators of uniformly and of normally distributed random numbers. */
#ifndef TARNS_RANDOM_H
#define TARNS_RANDOM_H

#include "tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup random Random numbers
    Uniform and normal random numbers from a seed: noise, dither, test signals. They are the same on every machine, and
    no secrets.

    @code{.c}
    unsigned int seed = 1;
    Tarn32f noise[1000], mean;
    tarnsRandGauss_Direct_32f(noise, 1000, 0, 1, &seed);
    tarnsMean_32f(noise, 1000, &mean, tarnAlgHintAccurate);
    printf("%d\n", mean > -0.1F && mean < 0.1F); // 1
    @endcode

    __Accuracy:__ 32 random bits a number. One generator serves them all: the sum of a linear congruential sequence,
    x' = 69069 x + 1013904243, and a subtract-with-borrow sequence to the modulus 2^32 - 18 (Marsaglia and Zaman, 1991),
    both of 32 bits.

    __Cost:__ uniform numbers 0.4 to 0.5 of `std::mt19937`, normal ones 0.25 to 0.6 of `std::normal_distribution` on it.

    __Guide:__ [Windows, tones and filter design](docs/windows.md).
    @{ */

/** Writes uniformly distributed numbers: pDst[n] = draw span + mid in double precision, draws being signed 32-bit
    integers, mid = (low + high) / 2 and span = (high - low) 2^-32. The numbers lie in [low, high); a `high` below `low`
    is accepted, and acts through the formula.

    `16s` numbers are rounded in the current rounding mode, so that `high` itself may come out; the bounds have half the
    weight of the numbers between them. `64f` numbers have the 32 random bits of one draw.

    Every call starts the generator from the seed, and leaves one of its words as the seed of the next call. So calls
    one after the other do not give the numbers of one long call: objects (tarnsRandUniformInitAlloc_32f() and kin) do.

    @param pDst  destination, `len` elements
    @param len   number of elements, at least 1
    @param low   lower bound
    @param high  upper bound
    @param pSeed the seed; becomes another one for the next call
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandUniform_Direct_16s(Tarn16s* pDst, int len, Tarn16s low, Tarn16s high, unsigned int* pSeed);
TARN_API TarnStatus tarnsRandUniform_Direct_32f(Tarn32f* pDst, int len, Tarn32f low, Tarn32f high, unsigned int* pSeed);
TARN_API TarnStatus tarnsRandUniform_Direct_64f(Tarn64f* pDst, int len, Tarn64f low, Tarn64f high, unsigned int* pSeed);
///@}

/** Writes normally distributed numbers of a mean and a standard deviation, by Marsaglia's polar method: pairs of draws
    are taken as a point (u1, u2) of the unit square until it lies in the circle, and stdDev sqrt(-2 ln(s) / s) u2 and
    the same of u1, with s = u1^2 + u2^2, are two independent numbers around 0. No number lies further from the mean
    than some 9 deviations.

    `16s` numbers are truncated towards zero and saturate; the mean of `32f` numbers is added in single precision. A
    negative deviation is accepted, and mirrors the numbers.

    Every call starts the generator from the seed, and leaves one of its words as the seed of the next call; the second
    number of a pair that an odd `len` leaves over is lost.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param mean   mean
    @param stdDev standard deviation
    @param pSeed  the seed; becomes another one for the next call
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandGauss_Direct_16s(Tarn16s* pDst, int len, Tarn16s mean, Tarn16s stdDev,
                                              unsigned int* pSeed);
TARN_API TarnStatus tarnsRandGauss_Direct_32f(Tarn32f* pDst, int len, Tarn32f mean, Tarn32f stdDev,
                                              unsigned int* pSeed);
TARN_API TarnStatus tarnsRandGauss_Direct_64f(Tarn64f* pDst, int len, Tarn64f mean, Tarn64f stdDev,
                                              unsigned int* pSeed);
///@}

/** Random generators that go on from call to call. Each belongs to one caller at a time. */
///@{
typedef struct TarnsRandUniformState_8u TarnsRandUniformState_8u;
typedef struct TarnsRandUniformState_16s TarnsRandUniformState_16s;
typedef struct TarnsRandUniformState_32f TarnsRandUniformState_32f;
typedef struct TarnsRandGaussState_8u TarnsRandGaussState_8u;
typedef struct TarnsRandGaussState_16s TarnsRandGaussState_16s;
typedef struct TarnsRandGaussState_32f TarnsRandGaussState_32f;
///@}

/** Creates a generator of uniformly distributed numbers: in a block of the library's own, to be released by
    tarnsRandUniformFree_8u() and kin, or in the caller's memory, of the size that tarnsRandUniformGetSize_16s() tells
    and at any address.

    @param ppState where the address of the new object goes; not touched on error
    @param pState  memory that becomes the object
    @param low     lower bound
    @param high    upper bound
    @param seed    where the generator begins; any value
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsNoMemErr if there is no memory;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandUniformInitAlloc_8u(TarnsRandUniformState_8u** ppState, Tarn8u low, Tarn8u high,
                                                 unsigned int seed);
TARN_API TarnStatus tarnsRandUniformInitAlloc_16s(TarnsRandUniformState_16s** ppState, Tarn16s low, Tarn16s high,
                                                  unsigned int seed);
TARN_API TarnStatus tarnsRandUniformInitAlloc_32f(TarnsRandUniformState_32f** ppState, Tarn32f low, Tarn32f high,
                                                  unsigned int seed);
TARN_API TarnStatus tarnsRandUniformInit_16s(TarnsRandUniformState_16s* pState, Tarn16s low, Tarn16s high,
                                             unsigned int seed);
///@}

/** Creates a generator of normally distributed numbers: in a block of the library's own, to be released by
    tarnsRandGaussFree_8u() and kin, or in the caller's memory, of the size that tarnsRandGaussGetSize_16s() tells and
    at any address.

    @param ppState where the address of the new object goes; not touched on error
    @param pState  memory that becomes the object
    @param mean    mean
    @param stdDev  standard deviation
    @param seed    where the generator begins; any value
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsNoMemErr if there is no memory;
            tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandGaussInitAlloc_8u(TarnsRandGaussState_8u** ppState, Tarn8u mean, Tarn8u stdDev,
                                               unsigned int seed);
TARN_API TarnStatus tarnsRandGaussInitAlloc_16s(TarnsRandGaussState_16s** ppState, Tarn16s mean, Tarn16s stdDev,
                                                unsigned int seed);
TARN_API TarnStatus tarnsRandGaussInitAlloc_32f(TarnsRandGaussState_32f** ppState, Tarn32f mean, Tarn32f stdDev,
                                                unsigned int seed);
TARN_API TarnStatus tarnsRandGaussInit_16s(TarnsRandGaussState_16s* pState, Tarn16s mean, Tarn16s stdDev,
                                           unsigned int seed);
///@}

/** Tells how much memory a generator takes.

    @param pSize where the number of bytes goes
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer */
///@{
TARN_API TarnStatus tarnsRandUniformGetSize_16s(int* pSize);
TARN_API TarnStatus tarnsRandGaussGetSize_16s(int* pSize);
///@}

/** Writes the next uniformly distributed numbers, as tarnsRandUniform_Direct_32f() makes them, but that integers are
    truncated towards zero: two calls give the numbers of one call of their joint length.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param pState the generator
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsContextMatchErr for an object that is no such generator; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandUniform_8u(Tarn8u* pDst, int len, TarnsRandUniformState_8u* pState);
TARN_API TarnStatus tarnsRandUniform_16s(Tarn16s* pDst, int len, TarnsRandUniformState_16s* pState);
TARN_API TarnStatus tarnsRandUniform_32f(Tarn32f* pDst, int len, TarnsRandUniformState_32f* pState);
///@}

/** Writes the next normally distributed numbers, as tarnsRandGauss_Direct_32f() makes them; the second number of a pair
    waits for the next call, so that two calls give the numbers of one call of their joint length.

    @param pDst   destination, `len` elements
    @param len    number of elements, at least 1
    @param pState the generator
    @return the first that applies of: tarnStsNullPtrErr for a null pointer; tarnStsSizeErr for `len` below 1;
            tarnStsContextMatchErr for an object that is no such generator; tarnStsNoErr */
///@{
TARN_API TarnStatus tarnsRandGauss_8u(Tarn8u* pDst, int len, TarnsRandGaussState_8u* pState);
TARN_API TarnStatus tarnsRandGauss_16s(Tarn16s* pDst, int len, TarnsRandGaussState_16s* pState);
TARN_API TarnStatus tarnsRandGauss_32f(Tarn32f* pDst, int len, TarnsRandGaussState_32f* pState);
///@}

/** Releases a generator of the library's own; one in the caller's memory needs no release, and must not be given here.

    @param pState the generator
    @return tarnStsNoErr; tarnStsNullPtrErr for a null pointer; tarnStsContextMatchErr for an object that is no such
            generator */
///@{
TARN_API TarnStatus tarnsRandUniformFree_8u(TarnsRandUniformState_8u* pState);
TARN_API TarnStatus tarnsRandUniformFree_16s(TarnsRandUniformState_16s* pState);
TARN_API TarnStatus tarnsRandUniformFree_32f(TarnsRandUniformState_32f* pState);
TARN_API TarnStatus tarnsRandGaussFree_8u(TarnsRandGaussState_8u* pState);
TARN_API TarnStatus tarnsRandGaussFree_16s(TarnsRandGaussState_16s* pState);
TARN_API TarnStatus tarnsRandGaussFree_32f(TarnsRandGaussState_32f* pState);
///@}
/** @} */

#ifdef __cplusplus
}
#endif

#endif
