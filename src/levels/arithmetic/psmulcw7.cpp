// Kernels that multiply a vector and a constant.
#include "levels/arithmetic/psmulc.h"

#include "frame/kernel_table.h"
#include "frame/simd_round.h"
#include "levels/arithmetic/psproducts.h"

namespace {

using namespace tarn;

// A constant whose imaginary part has a negative: either part of a product is one pair product with a constant that is
// turned and signed for it beforehand, and neither can wrap.
struct ComplexProductByConstant {
    template <typename X>
    TARN_INLINE auto operator()(X x, X val) const
    {
        return FullWidth{complexFrom<Tarn32sc>(mulAddPairs(x, conjugateWrapped(val)), mulAddPairs(x, swapParts(val)))};
    }
};

// The lowest integer, which a conversion gives for all that does not fit, ends at the lower bound: right for what is
// below, and for NaN, but the upper limit is held beforehand. In this order of operands the minimum lets NaN through.
struct LimitedProductTo16s {
    template <typename X>
    TARN_INLINE auto operator()(X x, X val) const
    {
        return narrowSaturated<Tarn16s>(roundToInteger(min(splat<X>(Tarn32f{highest<Tarn16s>}), mul(x, val))));
    }
};

struct ProductTo16s {
    template <typename X>
    TARN_INLINE auto operator()(X x, X val) const
    {
        return narrowSaturated<Tarn16s>(roundToInteger(mul(x, val)));
    }
};

using Bytes = ExactCases<Tarn8u, FullProduct>;
using Words = ExactCases<Tarn16s, ExactProduct>;
using ComplexWords = ExactCases<Tarn16sc, ComplexProductByConstant>;
using ComplexWordsOvf = ExactCases<Tarn16sc, ComplexProduct>;
using Real32s = ExactCases<Tarn32s, FullProduct>;
using Complex32s = ExactCases<Tarn32sc, ComplexProduct>;

} // namespace

TARN_DEFINE_SCALED_KERNELS(ownsMulC_8u, CONSTANT, Tarn8u, Bytes)
TARN_DEFINE_SCALED_KERNELS(ownsMulC_8u_I, CONSTANT_I, Tarn8u, Bytes)
TARN_DEFINE_SCALED_KERNELS(ownsMulC_16s_I, CONSTANT_I, Tarn16s, Words)
TARN_DEFINE_SCALED_KERNELS(ownsMulC_16sc, CONSTANT, Tarn16sc, ComplexWords)
TARN_DEFINE_SCALED_KERNELS(ownsMulC_16sc_I, CONSTANT_I, Tarn16sc, ComplexWords)
TARN_DEFINE_KERNEL(ownsMulC_8u_I_Bound, CONSTANT_I, Tarn8u, Bytes::Sign{})
TARN_DEFINE_KERNEL(ownsMulC_16s_I_Bound, CONSTANT_I, Tarn16s, Words::Sign{})
TARN_DEFINE_KERNEL(ownsMulC_16sc_Bound, CONSTANT, Tarn16sc, ComplexWords::Sign{})
TARN_DEFINE_KERNEL(ownsMulC_16sc_I_Bound, CONSTANT_I, Tarn16sc, ComplexWords::Sign{})

TARN_DEFINE_KERNEL(ownsMulC_16s, CONSTANT, Tarn16s, Words::Plain{})
TARN_DEFINE_KERNEL(ownsMulC_16s_Bound, CONSTANT, Tarn16s, Words::Sign{})

void ownsMulC_16s_PosSfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor)
{
    apply(Words::Pos{scaleFactor}, pSrc, val, pDst, len);
}

void ownsMulC_16s_NegSfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int shift)
{
    apply(Words::Neg{shift}, pSrc, val, pDst, len);
}

constinit const ConstantKernels<Tarn32s> tarn::mulC_32s = tableOf<ConstantKernels<Tarn32s>, Real32s>(productLimits_32s);
constinit const ConstantKernels_I<Tarn32s> tarn::mulC_32s_I =
    tableOf<ConstantKernels_I<Tarn32s>, Real32s>(productLimits_32s);
constinit const ConstantKernels<Tarn32sc> tarn::mulC_32sc =
    tableOf<ConstantKernels<Tarn32sc>, Complex32s>(productLimits_32sc);
constinit const ConstantKernels_I<Tarn32sc> tarn::mulC_32sc_I =
    tableOf<ConstantKernels_I<Tarn32sc>, Complex32s>(productLimits_32sc);

void ownsMulC_32f16s(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len)
{
    const NearestRounding nearest;
    walk(pDst, len, WithConstant<LimitedProductTo16s, Tarn32f>{{}, val}, pSrc);
}

void ownsMulC_Low_32f16s(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len)
{
    walk(pDst, len, WithConstant<ProductTo16s, Tarn32f>{{}, val}, pSrc);
}

TARN_DEFINE_KERNEL(ownsMulC_32f, CONSTANT, Tarn32f, mul)
TARN_DEFINE_KERNEL(ownsMulC_32f_I, CONSTANT_I, Tarn32f, mul)
TARN_DEFINE_KERNEL(ownsMulC_64f, CONSTANT, Tarn64f, mul)
TARN_DEFINE_KERNEL(ownsMulC_64f_I, CONSTANT_I, Tarn64f, mul)
TARN_DEFINE_KERNEL(ownsMulC_32fc, CONSTANT, Tarn32fc, mulComplex)
TARN_DEFINE_KERNEL(ownsMulC_32fc_I, CONSTANT_I, Tarn32fc, mulComplex)
TARN_DEFINE_KERNEL(ownsMulC_64fc, CONSTANT, Tarn64fc, mulComplex)
TARN_DEFINE_KERNEL(ownsMulC_64fc_I, CONSTANT_I, Tarn64fc, mulComplex)

#define TARN_DEFINE_OVERFLOW_KERNELS(NAME, SHAPE)                               \
    TARN_DEFINE_KERNEL(NAME##_Ovf, SHAPE, Tarn16sc, ComplexWordsOvf::Plain{})   \
    TARN_DEFINE_KERNEL(NAME##_1OvfSfs, SHAPE, Tarn16sc, ComplexWordsOvf::One{}) \
    void NAME##_PosOvfSfs(TARN_##SHAPE##_PARAMETERS(Tarn16sc), int scaleFactor) \
    {                                                                           \
        apply(ComplexWordsOvf::Pos{scaleFactor}, TARN_##SHAPE##_ARGUMENTS);     \
    }                                                                           \
    void NAME##_NegOvfSfs(TARN_##SHAPE##_PARAMETERS(Tarn16sc), int shift)       \
    {                                                                           \
        apply(ComplexWordsOvf::Neg{shift}, TARN_##SHAPE##_ARGUMENTS);           \
    }                                                                           \
    TARN_DEFINE_KERNEL(NAME##_BoundOvf, SHAPE, Tarn16sc, ComplexWordsOvf::Sign{})
TARN_DEFINE_OVERFLOW_KERNELS(ownsMulC_16sc, CONSTANT)
TARN_DEFINE_OVERFLOW_KERNELS(ownsMulC_16sc_I, CONSTANT_I)
