// Kernels that multiply two vectors.
#include "levels/arithmetic/psmul.h"

#include "frame/kernel_table.h"
#include "frame/simd_ordered.h"
#include "levels/arithmetic/psproducts.h"

namespace {

using namespace tarn;

struct ProductToFloat {
    template <typename X>
    TARN_INLINE auto operator()(X a, X b) const
    {
        return convert<Tarn32f>(mulWidened(a, b));
    }
};

// A real element times a complex one.
struct MixedProduct {
    TARN_INLINE auto operator()(Tarn32s a, Tarn32sc b) const
    {
        return FullWidth{Tarn64sc{mulWidened(a, b.re), mulWidened(a, b.im)}};
    }
    template <int N>
    TARN_INLINE auto operator()(Pack<Tarn32s, N> a, Pack<Tarn32sc, N> b) const
    {
        const auto twice = complexFrom<Tarn32sc>(a, a);
        return FullWidth{
            reinterpretPack<Tarn64sc>(mulWidened(reinterpretPack<Tarn32s>(twice), reinterpretPack<Tarn32s>(b)))};
    }
};

// The factor is applied to the first operand.
struct ProductByDoubles {
    template <typename X>
    static TARN_INLINE X plain(X a, X b)
    {
        return mul(a, b);
    }
    template <typename X>
    static TARN_INLINE X scaled(Tarn64f factor, X a, X b)
    {
        return mul(mul(a, splat<X>(factor)), b);
    }
};

using Bytes = ExactCases<Tarn8u, FullProduct>;
using Words = ExactCases<Tarn16s, ProductOfWords>;
using UnsignedWords = ExactCases<Tarn16s, FullProduct>;
using WordsTo32s = ExactCases<Tarn32s, ExactProduct>;
using ComplexWords = ExactCases<Tarn16sc, ComplexProduct>;
using Complex32s = ExactCases<Tarn32sc, ComplexProduct>;
using Mixed32s = ExactCases<Tarn32sc, MixedProduct>;

} // namespace

TARN_MUL_SCALED(TARN_DEFINE_SCALED_MEMBER)
TARN_MUL_PLAIN(TARN_DEFINE_PLAIN_MEMBER)

TARN_DEFINE_SCALED_KERNELS_BY_DOUBLES(ownsMul_32s, VECTORS, ProductByDoubles)
TARN_DEFINE_SCALED_KERNELS_IN_PLACE(ownsMul_32s, VECTORS, Tarn32s)
TARN_DEFINE_KERNEL(tarn::ownsMul_32s_Bound, VECTORS, Tarn32s, SignOfWhole<ProductByDoubles>{})
TARN_DEFINE_SCALED_KERNELS(ownsMul_16s32s, TO_32S, Tarn16s, WordsTo32s)
TARN_DEFINE_KERNEL(tarn::ownsMul_16s32s_Bound, TO_32S, Tarn16s, WordsTo32s::Sign{})
TARN_DEFINE_SCALED_KERNELS(ownsMul_16u16s, WITH_16U, Tarn16s, UnsignedWords)
TARN_DEFINE_KERNEL(ownsMul_16u16s_Bound, WITH_16U, Tarn16s, UnsignedWords::Sign{})

constinit const MixedKernels tarn::mul_32s32sc = tableOf<MixedKernels, Mixed32s>(productLimits_32s);
constinit const VectorKernels<Tarn32sc> tarn::mul_32sc =
    tableOf<VectorKernels<Tarn32sc>, Complex32s>(productLimits_32sc);

void ownsMul_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len)
{
    walk(pDst, len, mulWidened, pSrc1, pSrc2);
}

void ownsMul_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    walk(pDst, len, ProductToFloat{}, pSrc1, pSrc2);
}
