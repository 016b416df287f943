// Kernels of dot products in floating point: of floats, and of 32-bit integers in double precision.
#include "levels/statistics/psdotprod.h"

#include "frame/factor.h"
#include "frame/reduce.h"
#include "frame/rounding.h"
#include "frame/simd_mul.h"

using namespace tarn;

namespace {

// -- Elements in the precision F that a kernel works in --------------------------------------------------------------

template <typename F>
struct Working {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        using T = Element<X>;
        if constexpr (isComplex<T>) {
            return parts(x);
        } else if constexpr (std::is_same_v<T, F>) {
            return x;
        } else if constexpr (std::is_same_v<T, Tarn32f>) {
            return widen(x);
        } else if constexpr (std::is_same_v<T, Tarn16s>) {
            return convert<Tarn64f>(widen(x));
        } else {
            return convert<Tarn64f>(x);
        }
    }

private:
    struct Pair {
        F re;
        F im;
    };

    // Of a complex pack the parts in their order.
    template <typename X>
    TARN_INLINE auto parts(X x) const
    {
        if constexpr (isPack<X>) {
            return (*this)(reinterpretPack<Part<Element<X>>>(x));
        } else {
            return Pair{(*this)(x.re), (*this)(x.im)};
        }
    }
};

template <typename F>
using ComplexOf = std::conditional_t<isDouble<F>, Tarn64fc, Tarn32fc>;

// -- What is accumulated ---------------------------------------------------------------------------------------------

// The two halves of a complex product whose difference is taken at the end only: by the first operand's real part and
// by its imaginary part.
template <typename X>
struct Halves {
    X byRe;
    X byIm;
};

struct AddUp {
    template <typename X>
    TARN_INLINE X operator()(X a, X b) const
    {
        return add(a, b);
    }
    template <typename X>
    TARN_INLINE Halves<X> operator()(Halves<X> a, Halves<X> b) const
    {
        return {add(a.byRe, b.byRe), add(a.byIm, b.byIm)};
    }
};

template <typename F>
struct TakeReal {
    template <typename X, typename A, typename B>
    TARN_INLINE X operator()(X sum, A a, B b) const
    {
        const Working<F> working;
        return add(sum, mul(working(a), working(b)));
    }
};

// A real element and both parts of a complex one.
template <typename F>
struct TakeMixed {
    template <typename X, typename A, typename B>
    TARN_INLINE X operator()(X sum, A a, B b) const
    {
        const Working<F> working;
        return add(sum, mul(twice(working(a)), working(b)));
    }
};

template <typename F>
struct TakeComplex {
    template <typename X, typename A, typename B>
    TARN_INLINE Halves<X> operator()(Halves<X> sum, A a, B b) const
    {
        const Working<F> working;
        const auto left = reinterpretPack<ComplexOf<F>>(working(a));
        const auto right = working(b);
        return {add(sum.byRe, mul(reinterpretPack<F>(bothRe(left)), right)),
                add(sum.byIm, mul(reinterpretPack<F>(bothIm(left)), right))};
    }
};

// -- The sums --------------------------------------------------------------------------------------------------------

// One step is 16 bytes of the narrower elements.
template <typename A, typename B>
constexpr int stepOf = reducedBytes / static_cast<int>(std::min(sizeof(A), sizeof(B)));

// Registers of accumulators, as many as hide the latency of an addition and leave room for operands.
constexpr int accumulatorRegisters = 4;

template <typename T, int N>
TARN_INLINE Reduced<T> inOneRegister(Pack<T, N> x)
{
    if constexpr (N > reducedLanes<T>) {
        return add(inOneRegister(lowHalf(x)), inOneRegister(highHalf(x)));
    } else {
        return x;
    }
}

// What the whole steps add up to, and where they end.
template <int step, typename State, typename Take, typename A, typename B>
TARN_INLINE State sumPacks(State none, Index& i, int len, Take take, const A* a, const B* b)
{
    constexpr int registers = sizeof(State) / reducedBytes;
    Accumulators<State, std::max(1, accumulatorRegisters / registers)> sums(none);
    i = takeSteps<step>(sums, 0, len, take, a, b);
    auto sum = sums.joined(AddUp{});
    i = takePacks<step>(sum, i, len, take, a, b);
    return sum;
}

template <typename F, typename A, typename B>
TARN_INLINE F dotReal(const A* a, const B* b, int len)
{
    constexpr int step = stepOf<A, B>;
    Index i = 0;
    const auto sums = sumPacks<step>(splat<Pack<F, step>>(0), i, len, TakeReal<F>{}, a, b);
    F sum = foldLanes(inOneRegister(sums), add);
    takeElements(sum, i, len, TakeReal<F>{}, a, b);
    return sum;
}

template <typename F, typename A, typename B>
TARN_INLINE ComplexOf<F> dotMixed(const A* a, const B* b, int len)
{
    constexpr int step = stepOf<A, B>;
    Index i = 0;
    const auto sums = sumPacks<step>(splat<Pack<F, 2 * step>>(0), i, len, TakeMixed<F>{}, a, b);
    const auto parts = foldTo<2>(inOneRegister(sums), add);
    ComplexOf<F> sum{firstLane(parts), firstLane(lanesDown<1>(parts))};
    const Working<F> working;
    for (; i < len; ++i) {
        const F x = working(loadElement(a + i));
        const auto y = working(loadElement(b + i));
        sum.re += x * y.re;
        sum.im += x * y.im;
    }
    return sum;
}

template <typename F, typename A, typename B>
TARN_INLINE ComplexOf<F> dotComplex(const A* a, const B* b, int len)
{
    constexpr int step = stepOf<A, B>;
    using State = Pack<F, 2 * step>;
    Index i = 0;
    const Halves<State> none{splat<State>(0), splat<State>(0)};
    const auto sums = sumPacks<step>(none, i, len, TakeComplex<F>{}, a, b);
    const auto byRe = foldTo<2>(inOneRegister(sums.byRe), add);
    const auto byIm = reinterpretPack<ComplexOf<F>>(foldTo<2>(inOneRegister(sums.byIm), add));
    const auto parts = subAdd(byRe, reinterpretPack<F>(swapParts(byIm)));
    ComplexOf<F> sum{firstLane(parts), firstLane(lanesDown<1>(parts))};
    const Working<F> working;
    for (; i < len; ++i) {
        const auto x = working(loadElement(a + i));
        const auto y = working(loadElement(b + i));
        sum.re += x.re * y.re - x.im * y.im;
        sum.im += x.re * y.im + x.im * y.re;
    }
    return sum;
}

// -- 32-bit results of sums in double precision ----------------------------------------------------------------------

// Between these a factor counts as it is.
constexpr int lowestFactor = -31;
constexpr int highestFactor = 93;

TARN_INLINE Tarn32s scaled(Tarn64f total, int scaleFactor)
{
    const Tarn64f x = total * twoToMinus<Tarn64f>(std::clamp(scaleFactor, lowestFactor, highestFactor));
    return x > highest<Tarn32s> ? highest<Tarn32s> : x < lowest<Tarn32s> ? lowest<Tarn32s> : roundToInteger(x);
}
TARN_INLINE Tarn32sc scaled(Tarn64fc total, int scaleFactor)
{
    return {scaled(total.re, scaleFactor), scaled(total.im, scaleFactor)};
}

} // namespace

#define TARN_DEFINE_DOT(NAME, A, B, D, ...) \
    void NAME(const A* pSrc1, const B* pSrc2, int len, D* pDp) { store(pDp, __VA_ARGS__(pSrc1, pSrc2, len)); }

TARN_DEFINE_DOT(ownsDotProd_32f, Tarn32f, Tarn32f, Tarn32f, dotReal<Tarn32f>)
TARN_DEFINE_DOT(ownsDotProd_32fc, Tarn32fc, Tarn32fc, Tarn32fc, dotComplex<Tarn32f>)
TARN_DEFINE_DOT(ownsDotProd_32f32fc, Tarn32f, Tarn32fc, Tarn32fc, dotMixed<Tarn32f>)
TARN_DEFINE_DOT(ownsDotProd_64f, Tarn64f, Tarn64f, Tarn64f, dotReal<Tarn64f>)
TARN_DEFINE_DOT(ownsDotProd_64fc, Tarn64fc, Tarn64fc, Tarn64fc, dotComplex<Tarn64f>)
TARN_DEFINE_DOT(ownsDotProd_64f64fc, Tarn64f, Tarn64fc, Tarn64fc, dotMixed<Tarn64f>)
TARN_DEFINE_DOT(ownsDotProd_32f64f, Tarn32f, Tarn32f, Tarn64f, dotReal<Tarn64f>)
TARN_DEFINE_DOT(ownsDotProd_32fc64fc, Tarn32fc, Tarn32fc, Tarn64fc, dotComplex<Tarn64f>)
TARN_DEFINE_DOT(ownsDotProd_32f32fc64fc, Tarn32f, Tarn32fc, Tarn64fc, dotMixed<Tarn64f>)

#define TARN_DEFINE_SCALED_DOT(NAME, A, B, D, ...)                              \
    void NAME(const A* pSrc1, const B* pSrc2, int len, D* pDp, int scaleFactor) \
    {                                                                           \
        const NearestRounding guard;                                            \
        store(pDp, scaled(__VA_ARGS__(pSrc1, pSrc2, len), scaleFactor));        \
    }

TARN_DEFINE_SCALED_DOT(ownsDotProd_32s_Sfs, Tarn32s, Tarn32s, Tarn32s, dotReal<Tarn64f>)
TARN_DEFINE_SCALED_DOT(ownsDotProd_32sc_Sfs, Tarn32sc, Tarn32sc, Tarn32sc, dotComplex<Tarn64f>)
TARN_DEFINE_SCALED_DOT(ownsDotProd_32s32sc_Sfs, Tarn32s, Tarn32sc, Tarn32sc, dotMixed<Tarn64f>)
TARN_DEFINE_SCALED_DOT(ownsDotProd_16s32s32s_Sfs, Tarn16s, Tarn32s, Tarn32s, dotReal<Tarn64f>)
