// Kernels of square roots.
#include "levels/arithmetic/pssqrt.h"

#include "frame/factor.h"
#include "frame/narrow_float.h"
#include "frame/newton_root.h"
#include "frame/report.h"
#include "frame/rounding.h"
#include "frame/simd.h"
#include "frame/simd_extended_root.h"
#include "frame/walk_groups.h"
#include "frame/walk_singly.h"

#include <algorithm>
#include <cmath>

namespace tarn {
namespace {

// -- Integers: single precision holds the root of 16 bits -------------------------------------------------------------

// Beyond these factors every root but 0 saturates, and every root rounds to 0.
struct RootLimits {
    int up, down;
};

inline Tarn32f rootFactor(int scaleFactor, RootLimits limits)
{
    return twoToMinus<Tarn32f>(std::clamp(scaleFactor, -limits.up, limits.down));
}

template <typename X>
TARN_INLINE auto wordsAsFloats(X x)
{
    if constexpr (sizeof(Element<X>) == 1) {
        return convert<Tarn32f>(widen(widen(x)));
    } else {
        return convert<Tarn32f>(widen(x));
    }
}

template <typename T>
struct ScaledRoot {
    Tarn32f factor;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        const auto root = squareRoot(wordsAsFloats(x));
        return roundedTo<T>(mul(root, splat<std::remove_const_t<decltype(root)>>(factor)));
    }
};

struct ScaledRootOfSigned {
    ScaledRoot<Tarn16s> root;

    template <typename X>
    TARN_INLINE X operator()(Met& negatives, X x) const
    {
        const auto zero = splat<X>(0);
        negatives.note(less(x, zero));
        return root(max(x, zero));
    }
};

struct ScaledRootOf64s {
    Extended factor;

    TARN_INLINE Tarn64s operator()(Met& negatives, Tarn64s x) const
    {
        if (x < 0) {
            negatives.note(true);
            return 0;
        }
        return roundExtendedSaturated(squareRootExtended(static_cast<Extended>(x)) * factor);
    }
};

// -- Floats -----------------------------------------------------------------------------------------------------------

struct TrueRoot {
    template <typename X>
    TARN_INLINE X operator()(Met& negatives, X x) const
    {
        negatives.note(less(x, splat<X>(0)));
        return squareRoot(x);
    }
};

struct NewtonRoot {
    bool& negatives;

    template <typename X>
    TARN_INLINE X ordinary(Doubts& doubts, X x) const
    {
        return byRegister(x, [&doubts](auto r) {
            const auto root = ordinaryRoot(r);
            doubts.note(root);
            return root;
        });
    }
    template <typename X>
    X rare(X x) const
    {
        negatives |= anyOf(less(x, splat<X>(0)));
        return byRegister(x, [](auto r) { return newtonRoot(r); });
    }
};

// The steps are taken by groups of eight elements from a boundary of the destination on, if there are as many elements
// as this.
constexpr int shortestVector = 11;
constexpr int rootGroup = 8;
constexpr int rootsAtOnce = 16;

// -- Complex elements -------------------------------------------------------------------------------------------------

template <typename X>
struct RootParts {
    X re, im;
};

// The larger part of a principal root, t = sqrt((|re| + |z|) / 2), which has no cancellation. Squares must stay in
// range.
template <typename X>
TARN_INLINE X largerPart(X re, X im)
{
    const auto magnitude = squareRoot(add(mul(re, re), mul(im, im)));
    return squareRoot(mul(splat<X>(0.5), add(absolute(re), magnitude)));
}

// The root with that part. The other one is im / 2t, and they change places where re is negative. An infinite im makes
// both infinite; zero is its own root.
template <typename X>
TARN_INLINE RootParts<X> principalRoot(X re, X im, X larger)
{
    const auto zero = splat<X>(0);
    const auto smaller = tarn::div(im, add(larger, larger));
    const auto turned = less(re, zero);
    RootParts<X> root{tarn::select(turned, absolute(smaller), larger),
                      tarn::select(turned, copySign(larger, im), smaller)};
    const auto isZero = equal(larger, zero);
    const auto isInfinite = equal(absolute(im), splat<X>(tarnConstantOfINF_64f));
    if (anyOf(isZero)) {
        root = {tarn::select(isZero, zero, root.re), tarn::select(isZero, im, root.im)};
    }
    if (anyOf(isInfinite)) {
        root = {tarn::select(isInfinite, absolute(im), root.re), tarn::select(isInfinite, im, root.im)};
    }
    return root;
}
template <typename X>
TARN_INLINE RootParts<X> principalRoot(X re, X im)
{
    return principalRoot(re, im, largerPart(re, im));
}

// The parts of floats have squares within the range of doubles.
struct ComplexRoot_32fc {
    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        const auto root = principalRoot(widen(reOf(z)), widen(imOf(z)));
        return complexFrom<Tarn32fc>(narrowFloat(root.re), narrowFloat(root.im));
    }
};

// Those of doubles are moved into it by a power of four, and back by its root.
struct ComplexRoot_64fc {
    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        const auto re = reOf(z);
        const auto im = imOf(z);
        using P = std::remove_const_t<decltype(re)>;
        const auto size = max(absolute(re), absolute(im));
        const auto high = greater(size, splat<P>(0x1p500));
        const auto low = less(size, splat<P>(0x1p-400));
        const auto choose = [=](Tarn64f ofHigh, Tarn64f ofLow) {
            return tarn::select(high, splat<P>(ofHigh), tarn::select(low, splat<P>(ofLow), splat<P>(1)));
        };
        const auto there = choose(0x1p-600, 0x1p600);
        const auto back = choose(0x1p300, 0x1p-300);
        const auto root = principalRoot(re, im, mul(largerPart(mul(re, there), mul(im, there)), back));
        return complexFrom<Tarn64fc>(root.re, root.im);
    }
};

struct ScaledComplexRoot {
    Tarn64f factor;

    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        const auto part = [](auto words) { return convert<Tarn64f>(widen(words)); };
        const auto root = principalRoot(part(reOf(z)), part(imOf(z)));
        using P = std::remove_const_t<decltype(root.re)>;
        const auto rounded = [this](auto x) { return roundedTo<Tarn16s>(mul(x, splat<P>(factor))); };
        return complexFrom<Tarn16sc>(rounded(root.re), rounded(root.im));
    }
};

// As many elements as make whole registers of their parts.
template <int group, typename C, typename Operation>
TARN_INLINE void walkComplex(const C* pSrc, C* pDst, int len, Operation operation)
{
    const MaskedExceptions masked;
    walkGroups<group>(pDst, len, 0, operation, operation, pSrc);
}

constexpr RootLimits limits_8u{8, 5};
constexpr RootLimits limits_16s{15, 9};
constexpr RootLimits limits_16u{16, 9};
constexpr RootLimits limits_16sc{25, 9}; // the smallest part of a root is 1 / 362
constexpr RootLimits limits_64s{64, 34};

} // namespace
} // namespace tarn

using namespace tarn;

void owntarnsSqrt_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len, int scaleFactor)
{
    const NearestRounding nearest;
    walk(pDst, len, ScaledRoot<Tarn8u>{rootFactor(scaleFactor, limits_8u)}, pSrc);
}

int owntarnsSqrt_16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    const NearestRounding nearest;
    Met negatives;
    walk(pDst, len, reportingTo(negatives, ScaledRootOfSigned{{rootFactor(scaleFactor, limits_16s)}}), pSrc);
    return negatives.any();
}

void owntarnsSqrt_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len, int scaleFactor)
{
    const NearestRounding nearest;
    walk(pDst, len, ScaledRoot<Tarn16u>{rootFactor(scaleFactor, limits_16u)}, pSrc);
}

void owntarnsSqrt_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len, int scaleFactor)
{
    const NearestRounding nearest;
    walkComplex<8>(pSrc, pDst, len, ScaledComplexRoot{rootFactor(scaleFactor, limits_16sc)});
}

int owntarnsSqrt_64s(const Tarn64s* pSrc, Tarn64s* pDst, int len, int scaleFactor)
{
    const NearestExtended nearest;
    Met negatives;
    const Extended factor = std::ldexp(Extended{1}, -std::clamp(scaleFactor, -limits_64s.up, limits_64s.down));
    walkSingly(pDst, len, reportingTo(negatives, ScaledRootOf64s{factor}), pSrc);
    return negatives.any();
}

int owntarnsSqrt_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len)
{
    bool negatives = false;
    const auto single = [&negatives](Index i, Index end, const Tarn32f* src, Tarn32f* dst) {
        walkElements(
            dst, i, end,
            [&negatives](Tarn32f x) {
                negatives |= x < 0;
                return squareRoot(x);
            },
            src);
    };
    const NewtonRoot root{negatives};
    Index i = len < shortestVector ? len : headOfGroups(pDst, len);
    single(0, i, pSrc, pDst);
    i = walkOrdinary<rootsAtOnce>(pDst, i, len, root, pSrc);
    i = walkOrdinary<rootGroup>(pDst, i, len, root, pSrc);
    single(i, len, pSrc, pDst);
    return negatives;
}

void owntarnsSqrt_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len)
{
    walkComplex<4>(pSrc, pDst, len, ComplexRoot_32fc{});
}

int owntarnsSqrt_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len)
{
    Met negatives;
    walk(pDst, len, reportingTo(negatives, TrueRoot{}), pSrc);
    return negatives.any();
}

void owntarnsSqrt_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len)
{
    walkComplex<2>(pSrc, pDst, len, ComplexRoot_64fc{});
}
