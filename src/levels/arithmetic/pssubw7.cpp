// Kernels of the Sub family.
#include "levels/arithmetic/pssub.h"

#include "frame/kernel_table.h"

namespace {

using namespace tarn;

// a minus b in the wide type, exact.
template <typename X>
TARN_INLINE auto differenceOf(X a, X b)
{
    if constexpr (std::is_same_v<Element<X>, Tarn32s>) {
        return exactDifference(a, b);
    } else {
        return sub(widen(a), widen(b));
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
        return convert<Tarn32f>(differenceOf(b, a));
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

TARN_DEFINE_SCALED_KERNELS(ownsSub_8u, VECTORS, Tarn8u, RealRev)
TARN_DEFINE_SCALED_KERNELS(ownsSub_8u_I, VECTORS_I, Tarn8u, RealRev)
TARN_DEFINE_SCALED_KERNELS(ownsSub_16s, VECTORS, Tarn16s, RealRev)
TARN_DEFINE_SCALED_KERNELS(ownsSub_16s_I, VECTORS_I, Tarn16s, RealRev)
TARN_DEFINE_SCALED_KERNELS(ownsSub_32s, VECTORS, Tarn32s, RealRev)
TARN_DEFINE_SCALED_KERNELS(ownsSub_32s_I, VECTORS_I, Tarn32s, RealRev)
TARN_DEFINE_KERNEL(ownsSub_8u_Bound, VECTORS, Tarn8u, RealRev::Sign{})
TARN_DEFINE_KERNEL(ownsSub_8u_I_Bound, VECTORS_I, Tarn8u, RealRev::Sign{})
TARN_DEFINE_KERNEL(ownsSub_16s_Bound, VECTORS, Tarn16s, RealRev::Sign{})
TARN_DEFINE_KERNEL(ownsSub_16s_I_Bound, VECTORS_I, Tarn16s, RealRev::Sign{})
TARN_DEFINE_KERNEL(tarn::subBound_32s, VECTORS, Tarn32s, RealRev::Sign{})
TARN_DEFINE_KERNEL(tarn::subBound_32s_I, VECTORS_I, Tarn32s, RealRev::Sign{})

void ownsSub_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    walk(pDst, len, DifferenceToFloat{}, pSrc1, pSrc2);
}

TARN_DEFINE_KERNEL(ownsSub_32f, VECTORS, Tarn32f, subFromSecond)
TARN_DEFINE_KERNEL(ownsSub_32f_I, VECTORS_I, Tarn32f, subFromSecond)
TARN_DEFINE_KERNEL(ownsSub_64f, VECTORS, Tarn64f, subFromSecond)
TARN_DEFINE_KERNEL(ownsSub_64f_I, VECTORS_I, Tarn64f, subFromSecond)

TARN_DEFINE_SCALED_KERNELS(ownsSubC_8u, CONSTANT, Tarn8u, Real)
TARN_DEFINE_SCALED_KERNELS(ownsSubC_8u_I, CONSTANT_I, Tarn8u, Real)
TARN_DEFINE_SCALED_KERNELS(ownsSubC_16s, CONSTANT, Tarn16s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsSubC_16s_I, CONSTANT_I, Tarn16s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsSubC_16sc_I, CONSTANT_I, Tarn16sc, Complex)
TARN_DEFINE_SCALED_KERNELS(ownsSubC_32s, CONSTANT, Tarn32s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsSubC_32s_I, CONSTANT_I, Tarn32s, Real)
TARN_DEFINE_SCALED_KERNELS(ownsSubC_32sc, CONSTANT, Tarn32sc, Complex)
TARN_DEFINE_SCALED_KERNELS(ownsSubC_32sc_I, CONSTANT_I, Tarn32sc, Complex)
TARN_DEFINE_KERNEL(ownsSubC_8u_Bound, CONSTANT, Tarn8u, Real::Sign{})
TARN_DEFINE_KERNEL(ownsSubC_8u_I_Bound, CONSTANT_I, Tarn8u, Real::Sign{})
TARN_DEFINE_KERNEL(ownsSubC_16s_Bound, CONSTANT, Tarn16s, Real::Sign{})
TARN_DEFINE_KERNEL(ownsSubC_16s_I_Bound, CONSTANT_I, Tarn16s, Real::Sign{})
TARN_DEFINE_KERNEL(ownsSubC_16sc_I_Bound, CONSTANT_I, Tarn16sc, Complex::Sign{})
TARN_DEFINE_KERNEL(tarn::subCBound_32s, CONSTANT, Tarn32s, Real::Sign{})
TARN_DEFINE_KERNEL(tarn::subCBound_32s_I, CONSTANT_I, Tarn32s, Real::Sign{})
TARN_DEFINE_KERNEL(tarn::subCBound_32sc, CONSTANT, Tarn32sc, Complex::Sign{})
TARN_DEFINE_KERNEL(tarn::subCBound_32sc_I, CONSTANT_I, Tarn32sc, Complex::Sign{})
constinit const ConstantKernels<Tarn16sc> tarn::subC_16sc =
    tableOf<ConstantKernels<Tarn16sc>, Complex>(differenceLimits_16s);

TARN_DEFINE_KERNEL(ownsSubC_32f, CONSTANT, Tarn32f, sub)
TARN_DEFINE_KERNEL(ownsSubC_32f_I, CONSTANT_I, Tarn32f, sub)
TARN_DEFINE_KERNEL(ownsSubC_64f, CONSTANT, Tarn64f, sub)
TARN_DEFINE_KERNEL(ownsSubC_64f_I, CONSTANT_I, Tarn64f, sub)
TARN_DEFINE_KERNEL(ownsSubC_32fc, CONSTANT, Tarn32fc, subParts)
TARN_DEFINE_KERNEL(ownsSubC_32fc_I, CONSTANT_I, Tarn32fc, subParts)
TARN_DEFINE_KERNEL(ownsSubC_64fc, CONSTANT, Tarn64fc, subParts)
TARN_DEFINE_KERNEL(ownsSubC_64fc_I, CONSTANT_I, Tarn64fc, subParts)

TARN_DEFINE_SCALED_KERNELS(ownsSubCRev_16s_I, CONSTANT_I, Tarn16s, RealRev)
TARN_DEFINE_SCALED_KERNELS(ownsSubCRev_16sc_I, CONSTANT_I, Tarn16sc, ComplexRev)
TARN_DEFINE_SCALED_KERNELS(ownsSubCRev_32s, CONSTANT, Tarn32s, RealRev)
TARN_DEFINE_SCALED_KERNELS(ownsSubCRev_32s_I, CONSTANT_I, Tarn32s, RealRev)
TARN_DEFINE_SCALED_KERNELS(ownsSubCRev_32sc, CONSTANT, Tarn32sc, ComplexRev)
TARN_DEFINE_SCALED_KERNELS(ownsSubCRev_32sc_I, CONSTANT_I, Tarn32sc, ComplexRev)
TARN_DEFINE_KERNEL(ownsSubCRev_16s_I_Bound, CONSTANT_I, Tarn16s, RealRev::Sign{})
TARN_DEFINE_KERNEL(ownsSubCRev_16sc_I_Bound, CONSTANT_I, Tarn16sc, ComplexRev::Sign{})
TARN_DEFINE_KERNEL(tarn::subCRevBound_32s, CONSTANT, Tarn32s, RealRev::Sign{})
TARN_DEFINE_KERNEL(tarn::subCRevBound_32s_I, CONSTANT_I, Tarn32s, RealRev::Sign{})
TARN_DEFINE_KERNEL(tarn::subCRevBound_32sc, CONSTANT, Tarn32sc, ComplexRev::Sign{})
TARN_DEFINE_KERNEL(tarn::subCRevBound_32sc_I, CONSTANT_I, Tarn32sc, ComplexRev::Sign{})
constinit const ConstantKernels<Tarn8u> tarn::subCRev_8u =
    tableOf<ConstantKernels<Tarn8u>, RealRev>(differenceLimits_8u);
constinit const ConstantKernels_I<Tarn8u> tarn::subCRev_8u_I =
    tableOf<ConstantKernels_I<Tarn8u>, RealRev>(differenceLimits_8u);
constinit const ConstantKernels<Tarn16s> tarn::subCRev_16s =
    tableOf<ConstantKernels<Tarn16s>, RealRev>(differenceLimits_16s);
constinit const ConstantKernels<Tarn16sc> tarn::subCRev_16sc =
    tableOf<ConstantKernels<Tarn16sc>, ComplexRev>(differenceLimits_16s);

TARN_DEFINE_KERNEL(ownsSubCRev_32f, CONSTANT, Tarn32f, subFromSecond)
TARN_DEFINE_KERNEL(ownsSubCRev_32f_I, CONSTANT_I, Tarn32f, subFromSecond)
TARN_DEFINE_KERNEL(ownsSubCRev_64f, CONSTANT, Tarn64f, subFromSecond)
TARN_DEFINE_KERNEL(ownsSubCRev_64f_I, CONSTANT_I, Tarn64f, subFromSecond)
TARN_DEFINE_KERNEL(ownsSubCRev_32fc, CONSTANT, Tarn32fc, subPartsFromSecond)
TARN_DEFINE_KERNEL(ownsSubCRev_32fc_I, CONSTANT_I, Tarn32fc, subPartsFromSecond)
TARN_DEFINE_KERNEL(ownsSubCRev_64fc, CONSTANT, Tarn64fc, subPartsFromSecond)
TARN_DEFINE_KERNEL(ownsSubCRev_64fc_I, CONSTANT_I, Tarn64fc, subPartsFromSecond)
