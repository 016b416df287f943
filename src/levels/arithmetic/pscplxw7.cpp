// Kernels of conjugates, and of complex vectors taken apart and put together.
#include "levels/arithmetic/pscplx.h"

#include "frame/simd.h"
#include "frame/two_arrays.h"

namespace tarn {
namespace {

// The first of every two doubles, as a source of the walker that does not read the second.
struct EverySecond_64f {
    using Element = Tarn64f;
    const Tarn64f* p;

    TARN_INLINE EverySecond_64f operator+(Index elements) const { return {p + 2 * elements}; }
};
TARN_INLINE Tarn64f loadElement(EverySecond_64f source) { return tarn::loadElement(source.p); }
template <int N>
TARN_INLINE Pack<Tarn64f, N> loadPack(EverySecond_64f source)
{
    if constexpr (N == 2) {
        return lanesOf(tarn::loadElement(source.p), tarn::loadElement(source.p + 2));
    } else {
        return join(loadPack<N / 2>(source), loadPack<N / 2>(source + N / 2));
    }
}

template <typename C>
struct FromReal {
    template <typename X>
    TARN_INLINE auto operator()(X re) const
    {
        return complexFrom<C>(re, splat<X>(0));
    }
};

template <typename C>
struct FromImaginary {
    template <typename X>
    TARN_INLINE auto operator()(X im) const
    {
        return complexFrom<C>(splat<X>(0), im);
    }
};

struct BothParts {
    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        return Both{reOf(z), imOf(z)};
    }
};

} // namespace

template <typename C>
void splitParts(const C* src, Part<C>* re, Part<C>* im, int len)
{
    walk(twoArrays(re, im), len, BothParts{}, src);
}
template void splitParts(const Tarn16sc*, Tarn16s*, Tarn16s*, int);
template void splitParts(const Tarn32fc*, Tarn32f*, Tarn32f*, int);

} // namespace tarn

using namespace tarn;

#define TARN_DEFINE_CPLX_KERNELS(C, T)                                                                        \
    void ownsConj_##C##_T7(const Tarn##C* pSrc, Tarn##C* pDst, int len) { walk(pDst, len, conjugate, pSrc); } \
    void ownsConj_##C##_I_T7(Tarn##C* pSrcDst, int len) { walk(pSrcDst, len, conjugate, pSrcDst); }           \
    void ownsRealToCplx_##T##_W7(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##C* pDst, int len)        \
    {                                                                                                         \
        walk(pDst, len, complexFrom<Tarn##C>, pSrcRe, pSrcIm);                                                \
    }                                                                                                         \
    void ownsRealToCplxRe_##T##_W7(const Tarn##T* pSrcRe, Tarn##C* pDst, int len)                             \
    {                                                                                                         \
        walk(pDst, len, FromReal<Tarn##C>{}, pSrcRe);                                                         \
    }                                                                                                         \
    void ownsRealToCplxIm_##T##_W7(const Tarn##T* pSrcIm, Tarn##C* pDst, int len)                             \
    {                                                                                                         \
        walk(pDst, len, FromImaginary<Tarn##C>{}, pSrcIm);                                                    \
    }

TARN_DEFINE_CPLX_KERNELS(16sc, 16s)
TARN_DEFINE_CPLX_KERNELS(32fc, 32f)
TARN_DEFINE_CPLX_KERNELS(64fc, 64f)

void ownsReal_16sc_W7(const Tarn16sc* pSrc, Tarn16s* pDst, int len) { walk(pDst, len, reOf, pSrc); }

void ownsReal_32fc_W7(const Tarn32fc* pSrc, Tarn32f* pDst, int len) { walk(pDst, len, reOf, pSrc); }

void ownsReal_64fc_W7(const Tarn64fc* pSrc, Tarn64f* pDst, int len)
{
    walk(pDst, len, Identity{}, EverySecond_64f{reinterpret_cast<const Tarn64f*>(pSrc)});
}

void ownsImag_16sc_W7(const Tarn16sc* pSrc, Tarn16s* pDst, int len) { walk(pDst, len, imOf, pSrc); }

void ownsImag_32fc_W7(const Tarn32fc* pSrc, Tarn32f* pDst, int len) { walk(pDst, len, imOf, pSrc); }
