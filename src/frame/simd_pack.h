// Packs of elements in vector registers, and the machinery that makes one word serve elements and packs alike.
#pragma once

#include "tarncore.h"

#include <pmmintrin.h>

#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#define TARN_INLINE __attribute__((always_inline)) inline

namespace tarn {

// The width of this level's registers, and that of its widest vector, which is made of so many of them: one, or more to
// prove that no result depends on the width. The only place that knows.
#ifndef TARNS_VECTOR_REGISTERS
#define TARNS_VECTOR_REGISTERS 1
#endif
inline constexpr int registerBytes = 16;
inline constexpr int vectorBytes = TARNS_VECTOR_REGISTERS * registerBytes;
static_assert(vectorBytes == 16 || vectorBytes == 32 || vectorBytes == 64);

// The elements of one register, and those of the widest vector. Only what shows in no result and in no layout may
// follow the latter; a family that fixes a number of lanes writes that number.
template <typename T>
inline constexpr int registerLanes = registerBytes / static_cast<int>(sizeof(T));
template <typename T>
inline constexpr int lanes = TARNS_VECTOR_REGISTERS* registerLanes<T>;

// What a complex element is made of; a real element is its own part.
template <typename T>
struct PartOf {
    using type = T;
};
template <>
struct PartOf<Tarn16sc> {
    using type = Tarn16s;
};
template <>
struct PartOf<Tarn32sc> {
    using type = Tarn32s;
};
template <>
struct PartOf<Tarn64sc> {
    using type = Tarn64s;
};
template <>
struct PartOf<Tarn32fc> {
    using type = Tarn32f;
};
template <>
struct PartOf<Tarn64fc> {
    using type = Tarn64f;
};
template <typename T>
using Part = typename PartOf<T>::type;

template <typename T>
inline constexpr bool isComplex = !std::is_same_v<Part<T>, T>;

template <typename T>
inline constexpr bool isSingle = std::is_same_v<Part<T>, Tarn32f>;
template <typename T>
inline constexpr bool isDouble = std::is_same_v<Part<T>, Tarn64f>;

// The register type that holds elements of a kind.
template <bool single, bool twice>
struct NativeOf {
    using type = __m128i;
};
template <>
struct NativeOf<true, false> {
    using type = __m128;
};
template <>
struct NativeOf<false, true> {
    using type = __m128d;
};
template <typename T>
using Native = typename NativeOf<isSingle<T>, isDouble<T>>::type;

// N consecutive elements, in whatever registers they need: one when they fill it, two halves above that. The element
// counts of all operands of an operation agree, however many registers each type needs for them.
template <typename T, int N>
struct Pack {
    static_assert(N > registerLanes<T> && N % 2 == 0, "a pack fills whole registers");
    using Element = T;
    static constexpr int size = N;
    Pack<T, N / 2> lo, hi;
};

template <typename T, int N>
    requires(N == registerLanes<T>)
struct Pack<T, N> {
    using Element = T;
    static constexpr int size = N;
    Native<T> v;
};

template <typename T>
using Register = Pack<T, registerLanes<T>>;
template <typename T>
using Vector = Pack<T, lanes<T>>;

template <typename X>
inline constexpr bool isPack = false;
template <typename T, int N>
inline constexpr bool isPack<Pack<T, N>> = true;

// The element type of a pack, or of an element itself.
template <typename X>
struct ElementOf {
    using type = X;
};
template <typename T, int N>
struct ElementOf<Pack<T, N>> {
    using type = T;
};
template <typename X>
using Element = typename ElementOf<X>::type;

// The same number of elements of another type.
template <typename X, typename U>
struct WithElement {
    using type = U;
};
template <typename T, int N, typename U>
struct WithElement<Pack<T, N>, U> {
    using type = Pack<U, N>;
};
template <typename X, typename U>
using Like = typename WithElement<X, U>::type;

template <typename T, int N>
TARN_INLINE Pack<T, 2 * N> join(Pack<T, N> lo, Pack<T, N> hi)
{
    return {lo, hi};
}

// A word of the vocabulary: `Impl::of` has an overload for the element and one for the register of every type that has
// the operation; a longer pack is served half by half. Arguments that are not packs (shift counts) go to both halves.
template <typename Impl>
struct Word {
    template <typename... X>
    TARN_INLINE auto operator()(X... x) const
    {
        if constexpr (requires { Impl::of(x...); }) {
            return Impl::of(x...);
        } else {
            return join((*this)(low(x)...), (*this)(high(x)...));
        }
    }

private:
    template <typename X>
    static TARN_INLINE auto low(X x)
    {
        if constexpr (isPack<X>) {
            return x.lo;
        } else {
            return x;
        }
    }
    template <typename X>
    static TARN_INLINE auto high(X x)
    {
        if constexpr (isPack<X>) {
            return x.hi;
        } else {
            return x;
        }
    }
};

// Memory. Nothing is assumed of an address: element access is a byte copy to the compiler and one move to the machine.

template <typename T>
TARN_INLINE T loadElement(const T* p)
{
    T x;
    std::memcpy(&x, static_cast<const void*>(p), sizeof x);
    return x;
}

template <typename T>
TARN_INLINE void store(T* p, std::type_identity_t<T> x)
{
    std::memcpy(static_cast<void*>(p), &x, sizeof x);
}

template <int N, typename T>
TARN_INLINE Pack<T, N> loadPack(const T* p)
{
    if constexpr (N > registerLanes<T>) {
        return {loadPack<N / 2>(p), loadPack<N / 2>(p + N / 2)};
    } else if constexpr (isSingle<T>) {
        return {_mm_loadu_ps(reinterpret_cast<const float*>(p))};
    } else if constexpr (isDouble<T>) {
        return {_mm_loadu_pd(reinterpret_cast<const double*>(p))};
    } else {
        return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))};
    }
}

template <typename T, int N>
TARN_INLINE void store(T* p, Pack<T, N> x)
{
    if constexpr (N > registerLanes<T>) {
        store(p, x.lo);
        store(p + N / 2, x.hi);
    } else if constexpr (isSingle<T>) {
        _mm_storeu_ps(reinterpret_cast<float*>(p), x.v);
    } else if constexpr (isDouble<T>) {
        _mm_storeu_pd(reinterpret_cast<double*>(p), x.v);
    } else {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(p), x.v);
    }
}

// A value in every place of X, which is an element type or a pack.
template <typename X>
TARN_INLINE X splat(Element<X> value)
{
    using T = Element<X>;
    if constexpr (!isPack<X>) {
        return value;
    } else if constexpr (X::size > registerLanes<T>) {
        const auto half = splat<decltype(X::lo)>(value);
        return {half, half};
    } else if constexpr (std::is_same_v<T, Tarn32f>) {
        return {_mm_set1_ps(value)};
    } else if constexpr (std::is_same_v<T, Tarn64f>) {
        return {_mm_set1_pd(value)};
    } else if constexpr (sizeof(T) == 16) {
        return loadPack<1>(&value);
    } else if constexpr (sizeof(T) == 8) {
        const __m128i pair = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&value));
        const __m128i both = _mm_unpacklo_epi64(pair, pair);
        if constexpr (isSingle<T>) {
            return {_mm_castsi128_ps(both)};
        } else {
            return {both};
        }
    } else if constexpr (sizeof(T) == 4) {
        return {_mm_set1_epi32(std::bit_cast<Tarn32s>(value))};
    } else if constexpr (sizeof(T) == 2) {
        return {_mm_set1_epi16(static_cast<Tarn16s>(value))};
    } else {
        return {_mm_set1_epi8(static_cast<char>(value))};
    }
}

// The same bits under another element type: complex elements as twice as many parts and back, signed as unsigned,
// masks as integers.

template <typename U, typename T, int N>
TARN_INLINE auto reinterpretPack(Pack<T, N> x)
{
    constexpr int M = N * static_cast<int>(sizeof(T)) / static_cast<int>(sizeof(U));
    if constexpr (N > registerLanes<T>) {
        return join(reinterpretPack<U>(x.lo), reinterpretPack<U>(x.hi));
    } else {
        return Pack<U, M>{reinterpret_cast<Native<U>>(x.v)};
    }
}

} // namespace tarn
