// Kernels that turn an array round.
#include "levels/data/pscopyca.h"

#include "frame/backwards.h"

using namespace tarn;

namespace {

template <typename T>
void flip(const T* src, T* dst, int len)
{
    walk(dst, len, Identity{}, Backwards<T>{src + (len - 1)});
}

// Swaps vectors from both ends inwards, then the elements that are left between them.
template <typename T>
void flipInPlace(T* p, int len)
{
    constexpr int step = lanes<T>;
    int first = 0;
    int end = len;
    for (; end - first >= 2 * step; first += step, end -= step) {
        const auto front = tarn::loadPack<step>(p + first);
        const auto back = tarn::loadPack<step>(p + end - step);
        store(p + first, reverse(back));
        store(p + end - step, reverse(front));
    }
    for (; end - first >= 2; ++first, --end) {
        const T front = tarn::loadElement(p + first);
        store(p + first, tarn::loadElement(p + end - 1));
        store(p + end - 1, front);
    }
}

} // namespace

void ownsFlip_8u_T7(const Tarn8u* pSrc, Tarn8u* pDst, int len) { flip(pSrc, pDst, len); }

void ownsFlip_16u_T7(const Tarn16u* pSrc, Tarn16u* pDst, int len) { flip(pSrc, pDst, len); }

void ownsFlip_32f_T7(const Tarn32f* pSrc, Tarn32f* pDst, int len) { flip(pSrc, pDst, len); }

void ownsFlip_64f_T7(const Tarn64f* pSrc, Tarn64f* pDst, int len) { flip(pSrc, pDst, len); }

void ownsFlip_8u_I_W7(Tarn8u* pSrcDst, int len) { flipInPlace(pSrcDst, len); }

void ownsFlip_16u_I_W7(Tarn16u* pSrcDst, int len) { flipInPlace(pSrcDst, len); }

void ownsFlip_32f_I_W7(Tarn32f* pSrcDst, int len) { flipInPlace(pSrcDst, len); }

void ownsFlip_64f_I_W7(Tarn64f* pSrcDst, int len) { flipInPlace(pSrcDst, len); }
