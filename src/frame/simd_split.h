// Words that take complex elements apart into their parts and put them together: real and imaginary parts as arrays of
// their own, as many elements as before.
#pragma once

#include "frame/simd_interleave.h"
#include "frame/simd_mul.h"

namespace tarn {

struct SplitParts {
    // A complex word times (1, 0) or (0, 1) is the sign-extended part.
    static TARN_INLINE Vector<Tarn16s> re(Pack<Tarn16sc, 2 * lanes<Tarn16sc>> x)
    {
        return narrowSaturated<Tarn16s>(dotParts(x, splat<decltype(x)>({1, 0})));
    }
    static TARN_INLINE Vector<Tarn16s> im(Pack<Tarn16sc, 2 * lanes<Tarn16sc>> x)
    {
        return narrowSaturated<Tarn16s>(dotParts(x, splat<decltype(x)>({0, 1})));
    }
    static TARN_INLINE Vector<Tarn32s> re(Pack<Tarn32sc, 2 * lanes<Tarn32sc>> x)
    {
        return reinterpretPack<Tarn32s>(re(reinterpretPack<Tarn32fc>(x)));
    }
    static TARN_INLINE Vector<Tarn32s> im(Pack<Tarn32sc, 2 * lanes<Tarn32sc>> x)
    {
        return reinterpretPack<Tarn32s>(im(reinterpretPack<Tarn32fc>(x)));
    }
    template <typename T>
        requires(Float<Part<T>>)
    static TARN_INLINE Vector<Part<T>> re(Pack<T, 2 * lanes<T>> x) { return evenElements(reinterpretPack<Part<T>>(x)); }
    static TARN_INLINE Vector<Tarn32f> im(Pack<Tarn32fc, 2 * lanes<Tarn32fc>> x)
    {
        return {_mm_shuffle_ps(x.lo.v, x.hi.v, 0xDD)};
    }
    static TARN_INLINE Vector<Tarn64f> im(Pack<Tarn64fc, 2 * lanes<Tarn64fc>> x)
    {
        return {_mm_unpackhi_pd(x.lo.v, x.hi.v)};
    }
};

// The real parts, and the imaginary parts.
struct ReOf {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Part<T> of(T z) { return z.re; }
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Vector<Part<T>> of(Pack<T, 2 * lanes<T>> z) { return SplitParts::re(z); }
};
inline constexpr Word<ReOf> reOf;

struct ImOf {
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Part<T> of(T z) { return z.im; }
    template <typename T>
        requires isComplex<T>
    static TARN_INLINE Vector<Part<T>> of(Pack<T, 2 * lanes<T>> z) { return SplitParts::im(z); }
};
inline constexpr Word<ImOf> imOf;

// Complex elements C of these parts.
template <typename C>
struct ComplexFrom {
    static TARN_INLINE C of(Part<C> re, Part<C> im) { return {re, im}; }
    static TARN_INLINE Pack<C, 2 * lanes<C>> of(Vector<Part<C>> re, Vector<Part<C>> im)
    {
        return reinterpretPack<C>(join(ZipLow::of(re, im), ZipHigh::of(re, im)));
    }
};
template <typename C>
inline constexpr Word<ComplexFrom<C>> complexFrom;

} // namespace tarn
