// Kernels of shifts by a constant.
#include "levels/arithmetic/pslogic.h"

namespace {

using namespace tarn;

// No instruction shifts bytes: pairs of them are shifted as 16-bit lanes, and what crossed from one byte into the other
// is masked out.
template <typename Word>
struct ShiftedBytes {
    Word shift;
    int n;

    TARN_INLINE Tarn8u operator()(Tarn8u x) const { return shift(x, n); }
    template <int N>
    TARN_INLINE Pack<Tarn8u, N> operator()(Pack<Tarn8u, N> x) const
    {
        const auto pairs = shift(reinterpretPack<Tarn16u>(x), n);
        return bitAnd(reinterpretPack<Tarn8u>(pairs), splat<Pack<Tarn8u, N>>(shift(highest<Tarn8u>, n)));
    }
};

template <typename Word>
struct Shifted {
    Word shift;
    int n;

    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return shift(x, n);
    }
};

template <typename Word, typename T>
void shiftAll(Word shift, const T* pSrc, int val, T* pDst, int len)
{
    if constexpr (sizeof(T) == 1) {
        walk(pDst, len, ShiftedBytes<Word>{shift, val}, pSrc);
    } else {
        walk(pDst, len, Shifted<Word>{shift, val}, pSrc);
    }
}

} // namespace

#define TARN_DEFINE_SHIFT(OP, TAG, WORD, BEYOND)                                      \
    void ownps_##OP##_##TAG(const Tarn##TAG* pSrc, int val, Tarn##TAG* pDst, int len) \
    {                                                                                 \
        shiftAll(WORD, pSrc, val, pDst, len);                                         \
    }                                                                                 \
    void ownps_##OP##_##TAG##_I(int val, Tarn##TAG* pSrcDst, int len)                 \
    {                                                                                 \
        ownps_##OP##_##TAG(pSrcDst, val, pSrcDst, len);                               \
    }

TARN_SHIFTS(TARN_DEFINE_SHIFT)
