// Kernels of the Add family.
#include "levels/arithmetic/psadd.h"

#include "frame/simd_ordered.h"

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
        if constexpr (std::is_signed_v<Element<X>>) {
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

} // namespace

TARN_ADD_SCALED(TARN_DEFINE_SCALED_MEMBER)
TARN_ADD_PLAIN(TARN_DEFINE_PLAIN_MEMBER)

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
