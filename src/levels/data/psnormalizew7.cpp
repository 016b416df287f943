// Kernels of normalization: an offset taken away, then one product with the reciprocal of the divisor.
#include "levels/data/psnormalize.h"

#include "frame/factor.h"
#include "frame/rounding.h"
#include "frame/simd_mul.h"

namespace {

using namespace tarn;

// The difference of parts that alternate between re and im is taken on complex elements; everything else is the same
// for both parts.
template <typename T>
struct Normalized {
    T offset;
    Part<T> reciprocal;

    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        if constexpr (isPack<X>) {
            using P = decltype(reinterpretPack<Part<T>>(x));
            const auto parts = reinterpretPack<Part<T>>(x);
            const auto offsets = reinterpretPack<Part<T>>(splat<X>(offset));
            return reinterpretPack<T>(mul(sub(parts, offsets), splat<P>(reciprocal)));
        } else if constexpr (isComplex<T>) {
            return {mul(sub(x.re, offset.re), reciprocal), mul(sub(x.im, offset.im), reciprocal)};
        } else {
            return mul(sub(x, offset), reciprocal);
        }
    }
};

// Differences of words are exact as doubles. What lies beyond the bounds is limited before it is converted, where it
// could leave 32 bits.
template <typename X>
TARN_INLINE X normalizedWord(X x, X offset, Tarn64f reciprocal)
{
    const auto difference = convert<Tarn64f>(sub(widen(x), widen(offset)));
    using D = std::remove_const_t<decltype(difference)>;
    return roundLimited<Tarn16s>(mul(difference, splat<D>(reciprocal)));
}

template <typename T>
struct NormalizedWords {
    T offset;
    Tarn64f reciprocal;

    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        if constexpr (isPack<X>) {
            return reinterpretPack<T>(
                normalizedWord(reinterpretPack<Tarn16s>(x), reinterpretPack<Tarn16s>(splat<X>(offset)), reciprocal));
        } else if constexpr (isComplex<T>) {
            return {normalizedWord(x.re, offset.re, reciprocal), normalizedWord(x.im, offset.im, reciprocal)};
        } else {
            return normalizedWord(x, offset, reciprocal);
        }
    }
};

template <typename T>
void normalizeWords(const T* pSrc, T* pDst, int len, T vSub, int vDiv, int scaleFactor)
{
    // Beyond these every difference but 0 saturates, or every one rounds to 0: and the factor stays finite, so that 0
    // stays 0.
    constexpr int farthest = 100;
    const NearestRounding rounding;
    const Tarn64f factor = twoToMinus<Tarn64f>(std::clamp(scaleFactor, -farthest, farthest));
    walk(pDst, len, NormalizedWords<T>{vSub, factor / vDiv}, pSrc);
}

} // namespace

#define TARN_NORMALIZE_KERNEL(TAG, DIVISOR)                                                                 \
    void ownsNormalize_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, Tarn##TAG vSub, DIVISOR vDiv) \
    {                                                                                                       \
        walk(pDst, len, Normalized<Tarn##TAG>{vSub, 1 / vDiv}, pSrc);                                       \
    }

TARN_NORMALIZE_KERNEL(32f, Tarn32f)
TARN_NORMALIZE_KERNEL(32fc, Tarn32f)
TARN_NORMALIZE_KERNEL(64f, Tarn64f)
TARN_NORMALIZE_KERNEL(64fc, Tarn64f)

void ownsNormalize_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, Tarn16s vSub, int vDiv, int scaleFactor)
{
    normalizeWords(pSrc, pDst, len, vSub, vDiv, scaleFactor);
}

void ownsNormalize_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, Tarn16sc vSub, int vDiv, int scaleFactor)
{
    normalizeWords(pSrc, pDst, len, vSub, vDiv, scaleFactor);
}
