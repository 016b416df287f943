// Kernels of the Sub family.
#include "levels/arithmetic/pssub.h"

#include "frame/kernel_table.h"

namespace {

using namespace tarn;

// a minus b in the wide type, exact.
template <typename X>
TARN_INLINE auto differenceWidened(X a, X b)
{
    return sub(widen(a), widen(b));
}

// Unsigned bytes have no form of a difference with one bit more.
template <typename X>
TARN_INLINE auto differenceOf(X a, X b)
{
    if constexpr (std::is_signed_v<Element<X>>) {
        return exactDifference(a, b);
    } else {
        return differenceWidened(a, b);
    }
}

// What is taken from the first operand: a constant from a vector.
struct FirstMinusSecond {
    template <typename X>
    static TARN_INLINE X saturated(X a, X b)
    {
        return subSaturated(a, b);
    }
    template <typename X>
    static TARN_INLINE auto exact(X a, X b)
    {
        return differenceOf(a, b);
    }
};

// What the first operand is taken from: a vector from another, a vector from a constant.
struct SecondMinusFirst {
    template <typename X>
    static TARN_INLINE X saturated(X a, X b)
    {
        return subSaturated(b, a);
    }
    template <typename X>
    static TARN_INLINE auto exact(X a, X b)
    {
        return differenceOf(b, a);
    }
};

struct SubFromSecond {
    template <typename X>
    TARN_INLINE X operator()(X a, X b) const
    {
        return sub(b, a);
    }
};

struct DifferenceToFloat {
    template <typename X>
    TARN_INLINE auto operator()(X a, X b) const
    {
        return convert<Tarn32f>(differenceWidened(b, a));
    }
};

using Real = Cases<FirstMinusSecond>;
using Complex = CasesPerPart<FirstMinusSecond>;
using RealRev = Cases<SecondMinusFirst>;
using ComplexRev = CasesPerPart<SecondMinusFirst>;
constexpr SubFromSecond subFromSecond;
constexpr PerPart<Word<Sub>> subParts{sub};
constexpr PerPart<SubFromSecond> subPartsFromSecond{subFromSecond};

} // namespace

TARN_SUB_SCALED(TARN_DEFINE_SCALED_MEMBER)
TARN_SUB_PLAIN(TARN_DEFINE_PLAIN_MEMBER)

void ownsSub_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    walk(pDst, len, DifferenceToFloat{}, pSrc1, pSrc2);
}

constinit const ConstantKernels<Tarn16sc> tarn::subC_16sc =
    tableOf<ConstantKernels<Tarn16sc>, Complex>(differenceLimits_16s);
constinit const ConstantKernels<Tarn8u> tarn::subCRev_8u =
    tableOf<ConstantKernels<Tarn8u>, RealRev>(differenceLimits_8u);
constinit const ConstantKernels<Tarn16s> tarn::subCRev_16s =
    tableOf<ConstantKernels<Tarn16s>, RealRev>(differenceLimits_16s);
constinit const ConstantKernels<Tarn16sc> tarn::subCRev_16sc =
    tableOf<ConstantKernels<Tarn16sc>, ComplexRev>(differenceLimits_16s);

TARN_DEFINE_SCALED_KERNELS_IN_PLACE_OF(ownsSubC_16sc, CONSTANT, Tarn16sc, subC_16sc)
TARN_DEFINE_SCALED_KERNELS_IN_PLACE_OF(ownsSubCRev_16s, CONSTANT, Tarn16s, subCRev_16s)
TARN_DEFINE_SCALED_KERNELS_IN_PLACE_OF(ownsSubCRev_16sc, CONSTANT, Tarn16sc, subCRev_16sc)
