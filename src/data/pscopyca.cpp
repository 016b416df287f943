// Front ends of data movement: copy, move, zero, set, flip, swap of bytes.
#include "tarns/data.h"

#include "frame/frontend.h"
#include "levels/data/pscopyca.h"

using namespace tarn;

namespace {

// Most of this family treats an array as bytes, or as integers of the elements' width.

template <typename T>
TarnStatus copyElements(const T* pSrc, T* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    tarn::copy(pSrc, pDst, len);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus moveElements(const T* pSrc, T* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    tarn::move(pSrc, pDst, len);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus zeroElements(T* pDst, int len)
{
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    zeroFill(pDst, len);
    return tarnStsNoErr;
}

template <typename Word, typename T>
TarnStatus setElements(void (*kernel)(Word, Word*, int), T val, T* pDst, int len)
{
    static_assert(sizeof(Word) == sizeof(T));
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    kernel(std::bit_cast<Word>(val), reinterpret_cast<Word*>(pDst), len);
    return tarnStsNoErr;
}

// Out of place a flip reads what it has not written yet; onto itself an array is flipped in place.
template <typename T>
TarnStatus flipElements(void (*kernel)(const T*, T*, int), void (*inPlace)(T*, int), const T* pSrc, T* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (pSrc == pDst) {
        inPlace(pDst, len);
    } else {
        kernel(pSrc, pDst, len);
    }
    return tarnStsNoErr;
}

template <typename T>
TarnStatus runInPlace(void (*kernel)(T*, int), T* pSrcDst, int len)
{
    if (const TarnStatus status = check(len, pSrcDst)) {
        return status;
    }
    kernel(pSrcDst, len);
    return tarnStsNoErr;
}

} // namespace

#define TARN_BYTE_FRONT_ENDS(TAG)                                               \
    TarnStatus tarnsCopy_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len) \
    {                                                                           \
        return copyElements(pSrc, pDst, len);                                   \
    }                                                                           \
    TarnStatus tarnsMove_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len) \
    {                                                                           \
        return moveElements(pSrc, pDst, len);                                   \
    }                                                                           \
    TarnStatus tarnsZero_##TAG(Tarn##TAG* pDst, int len) { return zeroElements(pDst, len); }

TARN_BYTE_FRONT_ENDS(8u)
TARN_BYTE_FRONT_ENDS(16s)
TARN_BYTE_FRONT_ENDS(16sc)
TARN_BYTE_FRONT_ENDS(32f)
TARN_BYTE_FRONT_ENDS(32fc)
TARN_BYTE_FRONT_ENDS(64f)
TARN_BYTE_FRONT_ENDS(64fc)

#define TARN_SET_FRONT_END(TAG, KERNEL) \
    TarnStatus tarnsSet_##TAG(Tarn##TAG val, Tarn##TAG* pDst, int len) { return setElements(KERNEL, val, pDst, len); }

TARN_SET_FRONT_END(8u, ownsSet_8u)
TARN_SET_FRONT_END(16s, ownsSet_16u)
TARN_SET_FRONT_END(16sc, ownsSet_32s)
TARN_SET_FRONT_END(32s, ownsSet_32s)
TARN_SET_FRONT_END(32f, ownsSet_32s)
TARN_SET_FRONT_END(32sc, ownsSet_64s)
TARN_SET_FRONT_END(32fc, ownsSet_64s)
TARN_SET_FRONT_END(64s, ownsSet_64s)
TARN_SET_FRONT_END(64f, ownsSet_64s)
TARN_SET_FRONT_END(64sc, ownsSet_64sc)
TARN_SET_FRONT_END(64fc, ownsSet_64sc)

#define TARN_FLIP_FRONT_ENDS(TAG)                                                         \
    TarnStatus tarnsFlip_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len)           \
    {                                                                                     \
        return flipElements(ownsFlip_##TAG##_T7, ownsFlip_##TAG##_I_W7, pSrc, pDst, len); \
    }                                                                                     \
    TarnStatus tarnsFlip_##TAG##_I(Tarn##TAG* pSrcDst, int len)                           \
    {                                                                                     \
        return runInPlace(ownsFlip_##TAG##_I_W7, pSrcDst, len);                           \
    }

TARN_FLIP_FRONT_ENDS(8u)
TARN_FLIP_FRONT_ENDS(16u)
TARN_FLIP_FRONT_ENDS(32f)
TARN_FLIP_FRONT_ENDS(64f)

#define TARN_SWAP_FRONT_ENDS(TAG, WORD)                                    \
    TarnStatus tarnsSwapBytes_##TAG(const WORD* pSrc, WORD* pDst, int len) \
    {                                                                      \
        return runKernel(ownsSwapBytes_##TAG, pSrc, pDst, len);            \
    }                                                                      \
    TarnStatus tarnsSwapBytes_##TAG##_I(WORD* pSrcDst, int len)            \
    {                                                                      \
        return runInPlace(ownsSwapBytes_##TAG##_I, pSrcDst, len);          \
    }

TARN_SWAP_FRONT_ENDS(16u, Tarn16u)
TARN_SWAP_FRONT_ENDS(24u, Tarn8u)
TARN_SWAP_FRONT_ENDS(32u, Tarn32u)
