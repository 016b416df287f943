// Kernels of quotients by a constant, and of a constant by each element.
#include "levels/arithmetic/psdivc.h"

#include "levels/arithmetic/psdiv_quotients.h"

namespace tarn {
namespace {

// -- By a constant: its reciprocal is taken once, and the quotients are products --------------------------------------

TARN_INLINE Tarn32f asFloat(int val) { return static_cast<Tarn32f>(val); }

struct WordByReciprocal {
    Tarn32f reciprocal;
    Tarn32f factor;

    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        const auto number = convert<Tarn32f>(widen(x));
        using F = std::remove_const_t<decltype(number)>;
        const auto quotient = mul(mul(number, splat<F>(reciprocal)), splat<F>(factor));
        return roundedTo<Tarn16s>(quotient);
    }
};

struct ByteByReciprocal {
    Tarn32f reciprocal;
    Tarn32f factor;

    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        const auto number = convert<Tarn32f>(widen(widen(x)));
        using F = std::remove_const_t<decltype(number)>;
        const auto quotient = mul(mul(number, splat<F>(reciprocal)), splat<F>(factor));
        return roundedTo<Tarn8u>(quotient);
    }
};

// A divisor in every place of a pack's parts.
template <typename P>
TARN_INLINE ComplexDivisor<P> everywhere(ComplexDivisor<Tarn64f> b)
{
    return {splat<P>(b.re), splat<P>(b.im), splat<P>(b.squared), splat<P>(b.reciprocal)};
}

template <typename X>
TARN_INLINE auto quotientByConstant(X x, ComplexDivisor<Tarn64f> divisor)
{
    const auto re = partAsDouble(reOf(x));
    const auto im = partAsDouble(imOf(x));
    return complexQuotient(re, im, everywhere<std::remove_const_t<decltype(re)>>(divisor));
}

template <typename C>
struct ComplexByConstant {
    ComplexDivisor<Tarn64f> divisor;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return fromDoubleParts<C>(quotientByConstant(x, divisor));
    }
};

struct ComplexWordByConstant {
    ComplexDivisor<Tarn64f> divisor;
    Tarn64f factor;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return roundedComplex(quotientByConstant(x, divisor), factor);
    }
};

// -- Of a constant ----------------------------------------------------------------------------------------------------

// An infinite quotient is limited as every other that is too large.
struct WordUnderConstant {
    Tarn32f val;

    template <typename X>
    TARN_INLINE X operator()(Met& zeros, X x) const
    {
        zeros.note(equal(x, splat<X>(0)));
        const auto divisor = convert<Tarn32f>(widen(x));
        using F = std::remove_const_t<decltype(divisor)>;
        return roundedTo<Tarn16u>(tarn::div(splat<F>(val), divisor));
    }
};

template <typename Quotient>
struct UnderConstant {
    Tarn32f val;

    template <typename X>
    TARN_INLINE X operator()(Met& zeros, X x) const
    {
        return Quotient{}(zeros, x, splat<X>(val));
    }
};

constexpr int shortestVectorUnderConstant = 16;

} // namespace
} // namespace tarn

using namespace tarn;

void ownps_dkDivC_8u_Sfs(TARN_DIVC_PARAMETERS(8u), int scaleFactor)
{
    walk(pDst, len, ByteByReciprocal{1 / asFloat(val), quotientFactor<Tarn32f>(scaleFactor)}, pSrc);
}

void ownps_dkDivC_PX_16s_Sfs(TARN_DIVC_PARAMETERS(16s), int scaleFactor)
{
    const NearestRounding nearest;
    const WordByReciprocal quotient{1 / asFloat(val), quotientFactor<Tarn32f>(scaleFactor)};
    walkSingly(pDst, len, quotient, pSrc);
}

void ownps_dkDivC_16s_Sfs(TARN_DIVC_PARAMETERS(16s), int scaleFactor)
{
    if (len < shortestVector) {
        ownps_dkDivC_PX_16s_Sfs(pSrc, val, pDst, len, scaleFactor);
        return;
    }
    const NearestRounding nearest;
    walk(pDst, len, WordByReciprocal{1 / asFloat(val), quotientFactor<Tarn32f>(scaleFactor)}, pSrc);
}

void ownps_dkDivC_16sc_Sfs(TARN_DIVC_PARAMETERS(16sc), int scaleFactor)
{
    const NearestRounding nearest;
    walkAlike(pDst, len, ComplexWordByConstant{complexDivisorOf(val), quotientFactor<Tarn64f>(scaleFactor)}, pSrc);
}

void ownps_dkDivC_32fc(TARN_DIVC_PARAMETERS(32fc))
{
    walkAlike(pDst, len, ComplexByConstant<Tarn32fc>{complexDivisorOf(val)}, pSrc);
}

void ownps_dkDivC_64fc(TARN_DIVC_PARAMETERS(64fc))
{
    walkAlike(pDst, len, ComplexByConstant<Tarn64fc>{complexDivisorOf(val)}, pSrc);
}

int ownps_dkDivCRev_PX_16u(TARN_DIVC_PARAMETERS(16u))
{
    const NearestRounding nearest;
    Met zeros;
    const auto quotient = reportingTo(zeros, WordUnderConstant{asFloat(val)});
    walkSingly(pDst, len, quotient, pSrc);
    return zeros.any();
}

int ownps_dkDivCRev_16u(TARN_DIVC_PARAMETERS(16u))
{
    if (len < shortestVectorUnderConstant) {
        return ownps_dkDivCRev_PX_16u(pSrc, val, pDst, len);
    }
    const NearestRounding nearest;
    Met zeros;
    walk(pDst, len, reportingTo(zeros, WordUnderConstant{asFloat(val)}), pSrc);
    return zeros.any();
}

int ownps_dkDivCRev_PX_32f(TARN_DIVC_PARAMETERS(32f))
{
    Met zeros;
    walkSingly(pDst, len, reportingTo(zeros, UnderConstant<QuotientOfElements>{val}), pSrc);
    return zeros.any();
}

int ownps_DivCRev_32f(TARN_DIVC_PARAMETERS(32f))
{
    Met zeros;
    walkGroups<divisionGroup>(pDst, len, len < shortestVectorUnderConstant ? len : 0,
                              reportingTo(zeros, UnderConstant<QuotientOfGroups<TrueQuotient>>{val}),
                              reportingTo(zeros, UnderConstant<QuotientOfElements>{val}), pSrc);
    return zeros.any();
}
