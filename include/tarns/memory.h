/* Aligned memory: blocks on a 32-byte boundary, on top of malloc() and free(). */
#ifndef TARNS_MEMORY_H
#define TARNS_MEMORY_H

#include "../tarncore.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup memory Aligned memory
    Allocates arrays of any element type on a boundary of 32 bytes. No function needs it: arrays may lie anywhere. A few
    are faster, or sum in another order, where an array begins on such a boundary.

    @code{.c}
    Tarn32f* x = tarnsMalloc_32f(1000);
    if (x != NULL)
        tarnsZero_32f(x, 1000);
    printf("%d\n", (int)((size_t)x % 32)); // 0
    tarnsFree(x);
    @endcode

    __Accuracy:__ nothing is computed.

    __Cost:__ that of `malloc` and `free`, and some bytes more for the boundary.

    __Guide:__ [Working on vectors](docs/vectors.md).
    @{ */

/** Allocates an array of `len` elements of the tag's type. Its first element stands on a 32-byte boundary; the contents
    are undefined.

    The block's size in bytes, len times the element size plus the room that the alignment takes, is computed modulo
    2^32: an impossible length is not detected, it gets a block of the wrapped size.

    @param len number of elements, any value
    @return the array, to be released with tarnsFree(); null if len is below 1 or if there is no memory */
///@{
TARN_API Tarn8u* tarnsMalloc_8u(int len);
TARN_API Tarn8s* tarnsMalloc_8s(int len);
TARN_API Tarn16u* tarnsMalloc_16u(int len);
TARN_API Tarn16s* tarnsMalloc_16s(int len);
TARN_API Tarn32u* tarnsMalloc_32u(int len);
TARN_API Tarn32s* tarnsMalloc_32s(int len);
TARN_API Tarn64s* tarnsMalloc_64s(int len);
TARN_API Tarn32f* tarnsMalloc_32f(int len);
TARN_API Tarn64f* tarnsMalloc_64f(int len);
TARN_API Tarn8sc* tarnsMalloc_8sc(int len);
TARN_API Tarn16sc* tarnsMalloc_16sc(int len);
TARN_API Tarn32sc* tarnsMalloc_32sc(int len);
TARN_API Tarn64sc* tarnsMalloc_64sc(int len);
TARN_API Tarn32fc* tarnsMalloc_32fc(int len);
TARN_API Tarn64fc* tarnsMalloc_64fc(int len);
///@}

/** Releases an array of the tarnsMalloc family.

    @param ptr the array, or null, which does nothing; any other address is undefined */
TARN_API void tarnsFree(void* ptr);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
