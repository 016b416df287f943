// Kernels of phases, and of the way from polar coordinates.
#include "levels/arithmetic/psphase.h"

#include "frame/narrow_float.h"
#include "frame/rounding.h"
#include "frame/simd.h"
#include "frame/simd_angle.h"
#include "frame/two_arrays.h"
#include "frame/walk_groups.h"

namespace tarn {
namespace {

// -- Phases -----------------------------------------------------------------------------------------------------------

template <typename T>
constexpr T infinity = std::numeric_limits<T>::infinity();

// Above this a sum of two could overflow.
template <typename T>
constexpr T huge = highest<T> / 4;

// The smaller and the larger of |re| and |im|.
template <typename X>
struct Sides {
    X low, high;
};

// What has the same ratio and can be divided: zeros have that of 0 to 1, two infinities that of 1 to 1, and what is
// huge is made smaller. NaN stay.
template <typename X>
TARN_INLINE Sides<X> divisible(Sides<X> sides)
{
    using T = Element<X>;
    const X one = splat<X>(1);
    const auto isHuge = greater(sides.high, splat<X>(huge<T>));
    const X factor = tarn::select(isHuge, splat<X>(T(0.0625)), one);
    const auto isInfinite = equal(sides.high, splat<X>(infinity<T>));
    const auto bothInfinite = equal(sides.low, splat<X>(infinity<T>));
    const auto isZero = equal(sides.high, splat<X>(0));
    const X ofInfinite = tarn::select(bothInfinite, one, mul(sides.low, splat<X>(0)));
    const X high = tarn::select(isZero, one, mul(sides.high, factor));
    return {tarn::select(isInfinite, ofInfinite, mul(sides.low, factor)), tarn::select(isInfinite, one, high)};
}

// Of re + i im, from -Pi to Pi: the sign bits tell the quadrant, so that zeros have phases too.
struct Phase {
    template <typename X>
    TARN_INLINE X operator()(X re, X im) const
    {
        using T = Element<X>;
        const X width = absolute(re);
        const X height = absolute(im);
        const auto isSteep = greater(height, width);
        // In this order a NaN on either side gets into one of the two.
        Sides<X> sides{min(height, width), max(width, height)};
        const auto isOrdinary = less(splat<X>(0), sides.high);
        const auto isTame = less(sides.high, splat<X>(huge<T>));
        if (!allOf(isOrdinary) || !allOf(isTame)) [[unlikely]] {
            sides = divisible(sides);
        }
        const X two = splat<X>(2);
        // 0 or 4 eighths on the axis of real numbers, 2 on the other one; the angle grows away from the positive real
        // axis and from the negative imaginary one.
        const X eighths = tarn::select(isSteep, two, sub(two, copySign(two, re)));
        const X steep = tarn::select(isSteep, splat<X>(-1), splat<X>(0));
        const X angle = angleOfRatio(sides.low, sides.high, eighths, bitXor(bitsOf(re), bitsOf(steep)));
        return flippedBy(bitsOf(im), angle);
    }
    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        return (*this)(reOf(z), imOf(z));
    }
};

// The real parts of complex words, for a choice of (1, 0), or the imaginary ones, for (0, 1): the products sum to the
// sign-extended part.
template <typename X>
TARN_INLINE auto partOfWords(X z, Tarn16sc choice)
{
    return mulAddPairs(z, splat<X>(choice));
}

// Words in either precision.
template <typename T>
struct PhaseOfWords {
    template <typename X>
    TARN_INLINE auto operator()(X re, X im) const
    {
        return Phase{}(convert<T>(widen(re)), convert<T>(widen(im)));
    }
    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        return Phase{}(convert<T>(partOfWords(z, {1, 0})), convert<T>(partOfWords(z, {0, 1})));
    }
};

struct UnscaledPhase {
    template <typename... X>
    TARN_INLINE auto operator()(X... z) const
    {
        return roundedTo<Tarn16s>(PhaseOfWords<Tarn32f>{}(z...));
    }
};

struct ScaledPhase {
    Tarn32f factor;

    template <typename... X>
    TARN_INLINE auto operator()(X... z) const
    {
        const auto phase = PhaseOfWords<Tarn32f>{}(z...);
        return roundedTo<Tarn16s>(mul(phase, splat<std::remove_const_t<decltype(phase)>>(factor)));
    }
};

// Rounded half away from zero: one half is added to the magnitude, and the fraction dropped.
struct PhaseByDoubles {
    Tarn64f factor;

    template <typename... X>
    TARN_INLINE auto operator()(X... z) const
    {
        const auto phase = PhaseOfWords<Tarn64f>{}(z...);
        using P = std::remove_const_t<decltype(phase)>;
        const auto scaled = mul(phase, splat<P>(factor));
        const auto moved = add(scaled, copySign(splat<P>(0.5), scaled));
        const auto limited = max(min(moved, splat<P>(highest<Tarn16s>)), splat<P>(lowest<Tarn16s>));
        return narrowSaturated<Tarn16s>(truncateToInteger(limited));
    }
};

struct ScaledPhase_32s {
    Tarn64f factor;

    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        const auto phase = Phase{}(convert<Tarn64f>(reOf(z)), convert<Tarn64f>(imOf(z)));
        return roundedTo<Tarn32s>(mul(phase, splat<std::remove_const_t<decltype(phase)>>(factor)));
    }
};

// -- From polar coordinates -------------------------------------------------------------------------------------------

struct PartsFromPolar {
    template <typename X>
    TARN_INLINE auto operator()(X magnitude, X phase) const
    {
        const auto angle = sineAndCosine(phase);
        return Both{mul(magnitude, angle.cosine), mul(magnitude, angle.sine)};
    }
};

template <typename C>
struct ComplexFromPolar {
    template <typename X>
    TARN_INLINE auto operator()(X magnitude, X phase) const
    {
        const auto angle = sineAndCosine(phase);
        return complexFrom<C>(mul(magnitude, angle.cosine), mul(magnitude, angle.sine));
    }
};

// Under arithmetic that no caller has set otherwise.
template <typename T, typename... S>
TARN_INLINE void walkStandard(TwoArrays<T, T> dst, int len, PartsFromPolar operation, S... src)
{
    const StandardArithmetic standard;
    walkGroups<lanes<T>>(dst, len, 0, operation, operation, src...);
}
template <typename Destination, typename Operation, typename... S>
TARN_INLINE void walkStandard(Destination dst, int len, Operation operation, S... src)
{
    const StandardArithmetic standard;
    walk(dst, len, operation, src...);
}

} // namespace
} // namespace tarn

using namespace tarn;

#define TARN_DEFINE_PHASE(NAME, S, D, OPERATION)                                    \
    void NAME(const Tarn##S* pSrcRe, const Tarn##S* pSrcIm, Tarn##D* pDst, int len) \
    {                                                                               \
        walkStandard(pDst, len, OPERATION{}, pSrcRe, pSrcIm);                       \
    }
#define TARN_DEFINE_COMPLEX_PHASE(NAME, S, D, OPERATION) \
    void NAME(const Tarn##S* pSrc, Tarn##D* pDst, int len) { walkStandard(pDst, len, OPERATION{}, pSrc); }

TARN_DEFINE_PHASE(Phase_16s32f_W7, 16s, 32f, PhaseOfWords<Tarn32f>)
TARN_DEFINE_PHASE(Phase_32f_W7, 32f, 32f, Phase)
TARN_DEFINE_PHASE(Phase_64f_W7, 64f, 64f, Phase)
TARN_DEFINE_PHASE(Pase_16sf0_A6, 16s, 16s, UnscaledPhase)
TARN_DEFINE_COMPLEX_PHASE(Phase_16sc32f_W7, 16sc, 32f, PhaseOfWords<Tarn32f>)
TARN_DEFINE_COMPLEX_PHASE(Phase_32fc_W7, 32fc, 32f, Phase)
TARN_DEFINE_COMPLEX_PHASE(Phase_64fc_W7, 64fc, 64f, Phase)
TARN_DEFINE_COMPLEX_PHASE(Pase_16scf0_A6, 16sc, 16s, UnscaledPhase)

void Pase_16s_A6(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len, Tarn32f factor)
{
    walkStandard(pDst, len, ScaledPhase{factor}, pSrcRe, pSrcIm);
}

void Pase_16sc_A6(const Tarn16sc* pSrc, Tarn16s* pDst, int len, Tarn32f factor)
{
    walkStandard(pDst, len, ScaledPhase{factor}, pSrc);
}

void tarn::phaseByDoubles_16s(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len, Tarn64f factor)
{
    walkStandard(pDst, len, PhaseByDoubles{factor}, pSrcRe, pSrcIm);
}

void tarn::phaseByDoubles_16sc(const Tarn16sc* pSrc, Tarn16s* pDst, int len, Tarn64f factor)
{
    walkStandard(pDst, len, PhaseByDoubles{factor}, pSrc);
}

void Phase_32sc_W7(const Tarn32sc* pSrc, Tarn32s* pDst, int len, Tarn64f factor)
{
    walkStandard(pDst, len, ScaledPhase_32s{factor}, pSrc);
}

#define TARN_DEFINE_FROM_POLAR(R, C)                                                                               \
    void Plr2Crt_##R(const Tarn##R* pSrcMagn, const Tarn##R* pSrcPhase, Tarn##R* pDstRe, Tarn##R* pDstIm, int len) \
    {                                                                                                              \
        walkStandard(twoArrays(pDstRe, pDstIm), len, PartsFromPolar{}, pSrcMagn, pSrcPhase);                       \
    }                                                                                                              \
    void Plr2Crt_##C(const Tarn##R* pSrcMagn, const Tarn##R* pSrcPhase, Tarn##C* pDst, int len)                    \
    {                                                                                                              \
        walkStandard(pDst, len, ComplexFromPolar<Tarn##C>{}, pSrcMagn, pSrcPhase);                                 \
    }

TARN_DEFINE_FROM_POLAR(32f, 32fc)
TARN_DEFINE_FROM_POLAR(64f, 64fc)
