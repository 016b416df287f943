// Kernels of the Haar transform of 32-bit and 64-bit integers.
#include "levels/coding/pswthaar.h"
#include "levels/coding/pswthaar_scaled.h"

namespace tarn {
namespace {

// Half of sum and difference, ties to even. Where the difference of the halves rounded down is the highest value, that
// is the high value, whatever the bits below say; in 32 bits the low value is 0 there, which is -1 rounded otherwise in
// one case.
template <typename T>
struct Halves {
    static constexpr int stepsAtOnce = 1;

    template <typename X>
    TARN_INLINE auto operator()(Both<X, X> pair) const
    {
        const auto [a, b] = pair;
        const auto most = splat<X>(highest<T>);
        const auto extreme = equal(sub(shiftRight(b, 1), shiftRight(a, 1)), most);
        const X high = select(extreme, most, halveRounded(exactDifference(b, a)));
        const X low = halveRounded(exactSum(a, b));
        if constexpr (sizeof(T) == 4) {
            return Both{select(extreme, splat<X>(T{0}), low), high};
        } else {
            return Both{low, high};
        }
    }
};

} // namespace
} // namespace tarn

using namespace tarn;

#define TARN_DEFINE_HAAR_KERNELS(T, TAG)                                                                   \
    void ownsWTHaarFwd_##TAG(const T* pSrc, int len, T* pDstLow, T* pDstHigh)                              \
    {                                                                                                      \
        analyseHalves(pSrc, len, pDstLow, pDstHigh, Halves<T>{});                                          \
    }                                                                                                      \
    void ownsWTHaarFwd_##TAG##_Sfs(const T* pSrc, int len, T* pDstLow, T* pDstHigh, int scaleFactor)       \
    {                                                                                                      \
        analyseScaled(pSrc, len, pDstLow, pDstHigh, scaleFactor);                                          \
    }                                                                                                      \
    void ownsWTHaarInv_##TAG(const T* pSrcLow, const T* pSrcHigh, T* pDst, int len)                        \
    {                                                                                                      \
        synthesiseUnscaled(pSrcLow, pSrcHigh, pDst, len, SaturatedHaarInverse{});                          \
    }                                                                                                      \
    void ownsWTHaarInv_##TAG##_Sfs(const T* pSrcLow, const T* pSrcHigh, T* pDst, int len, int scaleFactor) \
    {                                                                                                      \
        synthesiseScaled(pSrcLow, pSrcHigh, pDst, len, scaleFactor);                                       \
    }

TARN_DEFINE_HAAR_KERNELS(Tarn32s, 32s)
TARN_DEFINE_HAAR_KERNELS(Tarn64s, 64s)
