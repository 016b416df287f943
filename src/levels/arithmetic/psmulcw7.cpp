// Kernels that multiply a vector and a constant.
#include "levels/arithmetic/psmulc.h"

#include "frame/kernel_table.h"
#include "frame/simd_ordered.h"
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
using Words = ExactCases<Tarn16s, ProductOfWords>;
using ComplexWords = ExactCases<Tarn16sc, ComplexProductByConstant>;
using ComplexWordsOvf = ExactCases<Tarn16sc, ComplexProduct>;
using Real32s = ExactCases<Tarn32s, FullProduct>;
using Complex32s = ExactCases<Tarn32sc, ComplexProduct>;

} // namespace

TARN_MULC_SCALED(TARN_DEFINE_SCALED_MEMBER)
TARN_MULC_PLAIN(TARN_DEFINE_PLAIN_MEMBER)

TARN_DEFINE_SCALED_KERNELS(ownsMulC_8u, CONSTANT, Tarn8u, Bytes)
TARN_DEFINE_SCALED_KERNELS_IN_PLACE(ownsMulC_8u, CONSTANT, Tarn8u)
TARN_DEFINE_KERNEL(ownsMulC_8u_I_Bound, CONSTANT_I, Tarn8u, Bytes::Sign{})

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

void ownsMulC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len) { ownsMulC_16s(pSrcDst, val, pSrcDst, len); }

void ownsMulC_16s_I_1Sfs(Tarn16s val, Tarn16s* pSrcDst, int len) { ownsMulC_16s_PosSfs(pSrcDst, val, pSrcDst, len, 1); }

void ownsMulC_16s_I_PosSfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor)
{
    ownsMulC_16s_PosSfs(pSrcDst, val, pSrcDst, len, scaleFactor);
}

void ownsMulC_16s_I_NegSfs(Tarn16s val, Tarn16s* pSrcDst, int len, int shift)
{
    ownsMulC_16s_NegSfs(pSrcDst, val, pSrcDst, len, shift);
}

void ownsMulC_16s_I_Bound(Tarn16s val, Tarn16s* pSrcDst, int len) { ownsMulC_16s_Bound(pSrcDst, val, pSrcDst, len); }

constinit const ConstantKernels<Tarn32s> tarn::mulC_32s = tableOf<ConstantKernels<Tarn32s>, Real32s>(productLimits_32s);
constinit const ConstantKernels<Tarn32sc> tarn::mulC_32sc =
    tableOf<ConstantKernels<Tarn32sc>, Complex32s>(productLimits_32sc);

void ownsMulC_32f16s(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len)
{
    const NearestRounding nearest;
    walk(pDst, len, WithConstant<LimitedProductTo16s, Tarn32f>{{}, val}, pSrc);
}

void ownsMulC_Low_32f16s(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len)
{
    walk(pDst, len, WithConstant<ProductTo16s, Tarn32f>{{}, val}, pSrc);
}

// For a constant whose imaginary part lacks a negative.
#define TARN_DEFINE_OVERFLOW_KERNELS(SHAPE, NAME, ...)                                                          \
    void NAME##_Ovf(TARN_##SHAPE##_PARAMETERS(Tarn16sc)) { overflow.plain(__VA_ARGS__); }                       \
    void NAME##_1OvfSfs(TARN_##SHAPE##_PARAMETERS(Tarn16sc)) { overflow.one(__VA_ARGS__); }                     \
    void NAME##_PosOvfSfs(TARN_##SHAPE##_PARAMETERS(Tarn16sc), int scaleFactor)                                 \
    {                                                                                                           \
        overflow.pos(__VA_ARGS__, scaleFactor);                                                                 \
    }                                                                                                           \
    void NAME##_NegOvfSfs(TARN_##SHAPE##_PARAMETERS(Tarn16sc), int shift) { overflow.neg(__VA_ARGS__, shift); } \
    void NAME##_BoundOvf(TARN_##SHAPE##_PARAMETERS(Tarn16sc)) { overflow.bound(__VA_ARGS__); }

namespace {
constexpr auto overflow = tableOf<ConstantKernels<Tarn16sc>, ComplexWordsOvf>(productLimits_16sc);
} // namespace

TARN_DEFINE_OVERFLOW_KERNELS(CONSTANT, ownsMulC_16sc, TARN_CONSTANT_ARGUMENTS)
TARN_DEFINE_OVERFLOW_KERNELS(CONSTANT_I, ownsMulC_16sc_I, TARN_CONSTANT_IN_PLACE)
