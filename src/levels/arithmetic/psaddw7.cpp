// Kernels of the Add family.
#include "levels/arithmetic/psadd.h"

namespace {

using namespace tarn;

struct Sum {
    template <typename X>
    static TARN_INLINE X saturated(X a, X b)
    {
        return addSaturated(a, b);
    }
    template <typename X>
    static TARN_INLINE auto exact(X a, X b)
    {
        if constexpr (std::is_same_v<Element<X>, Tarn32s>) {
            return exactSum(a, b);
        } else {
            return sumWidened(a, b);
        }
    }
};

// Sums of unsigned bytes need no saturation in 16 bits.
struct SumTo16u {
    template <typename X>
    TARN_INLINE auto operator()(X a, X b) const
    {
        return retype<Tarn16u>(sumWidened(a, b));
    }
};

struct SumToFloat {
    template <typename X>
    TARN_INLINE auto operator()(X a, X b) const
    {
        return convert<Tarn32f>(sumWidened(a, b));
    }
};

using Real = Cases<Sum>;
using Complex = CasesPerPart<Sum>;
constexpr PerPart<Word<Add>> addParts{add};

} // namespace

TARN_DEFINE_SCALED_KERNELS(ownsAdd_8u, VECTORS, Tarn8u, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAdd_8u_I, VECTORS_I, Tarn8u, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAdd_16s, VECTORS, Tarn16s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAdd_16s_I, VECTORS_I, Tarn16s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAdd_32s, VECTORS, Tarn32s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAdd_32s_I, VECTORS_I, Tarn32s, Real)
TARN_DEFINE_KERNEL(ownsAdd_8u_Bound, VECTORS, Tarn8u, Real::Sign{})
TARN_DEFINE_KERNEL(ownsAdd_8u_I_Bound, VECTORS_I, Tarn8u, Real::Sign{})
TARN_DEFINE_KERNEL(ownsAdd_16s_Bound, VECTORS, Tarn16s, Real::Sign{})
TARN_DEFINE_KERNEL(ownsAdd_16s_I_Bound, VECTORS_I, Tarn16s, Real::Sign{})
TARN_DEFINE_KERNEL(tarn::addBound_32s, VECTORS, Tarn32s, Real::Sign{})
TARN_DEFINE_KERNEL(tarn::addBound_32s_I, VECTORS_I, Tarn32s, Real::Sign{})

void ownsAdd_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len)
{
    walk(pDst, len, SumTo16u{}, pSrc1, pSrc2);
}

void ownsAdd_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    walk(pDst, len, SumToFloat{}, pSrc1, pSrc2);
}

TARN_DEFINE_KERNEL(ownsAdd_16u, VECTORS, Tarn16u, addSaturated)
TARN_DEFINE_KERNEL(ownsAdd_32u, VECTORS, Tarn32u, addSaturated)
TARN_DEFINE_KERNEL(ownsAdd_32f, VECTORS, Tarn32f, add)
TARN_DEFINE_KERNEL(ownsAdd_32f_I, VECTORS_I, Tarn32f, add)
TARN_DEFINE_KERNEL(ownsAdd_64f, VECTORS, Tarn64f, add)
TARN_DEFINE_KERNEL(ownsAdd_64f_I, VECTORS_I, Tarn64f, add)

TARN_DEFINE_SCALED_KERNELS(ownsAddC_8u, CONSTANT, Tarn8u, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_8u_I, CONSTANT_I, Tarn8u, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_16s, CONSTANT, Tarn16s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_16s_I, CONSTANT_I, Tarn16s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_16sc, CONSTANT, Tarn16sc, Complex)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_16sc_I, CONSTANT_I, Tarn16sc, Complex)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_32s, CONSTANT, Tarn32s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_32s_I, CONSTANT_I, Tarn32s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_32sc, CONSTANT, Tarn32sc, Complex)
TARN_DEFINE_SCALED_KERNELS(ownsAddC_32sc_I, CONSTANT_I, Tarn32sc, Complex)
TARN_DEFINE_KERNEL(ownsAddC_8u_Bound, CONSTANT, Tarn8u, Real::Sign{})
TARN_DEFINE_KERNEL(ownsAddC_8u_I_Bound, CONSTANT_I, Tarn8u, Real::Sign{})
TARN_DEFINE_KERNEL(ownsAddC_16s_Bound, CONSTANT, Tarn16s, Real::Sign{})
TARN_DEFINE_KERNEL(ownsAddC_16s_I_Bound, CONSTANT_I, Tarn16s, Real::Sign{})
TARN_DEFINE_KERNEL(ownsAddC_16sc_Bound, CONSTANT, Tarn16sc, Complex::Sign{})
TARN_DEFINE_KERNEL(ownsAddC_16sc_I_Bound, CONSTANT_I, Tarn16sc, Complex::Sign{})
TARN_DEFINE_KERNEL(tarn::addCBound_32s, CONSTANT, Tarn32s, Real::Sign{})
TARN_DEFINE_KERNEL(tarn::addCBound_32s_I, CONSTANT_I, Tarn32s, Real::Sign{})
TARN_DEFINE_KERNEL(tarn::addCBound_32sc, CONSTANT, Tarn32sc, Complex::Sign{})
TARN_DEFINE_KERNEL(tarn::addCBound_32sc_I, CONSTANT_I, Tarn32sc, Complex::Sign{})

TARN_DEFINE_KERNEL(ownsAddC_32f, CONSTANT, Tarn32f, add)
TARN_DEFINE_KERNEL(ownsAddC_32f_I, CONSTANT_I, Tarn32f, add)
TARN_DEFINE_KERNEL(ownsAddC_64f, CONSTANT, Tarn64f, add)
TARN_DEFINE_KERNEL(ownsAddC_64f_I, CONSTANT_I, Tarn64f, add)
TARN_DEFINE_KERNEL(ownsAddC_32fc, CONSTANT, Tarn32fc, addParts)
TARN_DEFINE_KERNEL(ownsAddC_32fc_I, CONSTANT_I, Tarn32fc, addParts)
TARN_DEFINE_KERNEL(ownsAddC_64fc, CONSTANT, Tarn64fc, addParts)
TARN_DEFINE_KERNEL(ownsAddC_64fc_I, CONSTANT_I, Tarn64fc, addParts)
