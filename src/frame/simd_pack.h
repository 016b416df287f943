// Packs of elements in vector registers, and the machinery that makes one word serve elements and packs alike.
#pragma once

#include "tarncore.h"

#include "frame/simd_native_moves.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

namespace tarn {

// The narrowest register, which every level has, and the widest vector, which is one of the level's widest registers,
// or several to prove that no result depends on the width.
#ifndef TARNS_VECTOR_REGISTERS
#define TARNS_VECTOR_REGISTERS 1
#endif
inline constexpr int registerBytes = 16;
inline constexpr int vectorBytes = TARNS_VECTOR_REGISTERS * widestRegister;
static_assert(vectorBytes == 16 || vectorBytes == 32 || vectorBytes == 64);

// The elements of the narrowest register, and those of the widest vector. Only what shows in no result and in no layout
// may follow the latter; a family that fixes a number of lanes writes that number.
template <typename T>
inline constexpr int registerLanes = registerBytes / static_cast<int>(sizeof(T));
template <typename T>
inline constexpr int lanes = vectorBytes / registerBytes* registerLanes<T>;

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

// The compiler's type for a register of so many bytes that holds elements of a kind.
template <typename T, int bytes = registerBytes>
using Native = typename native::RegisterType<isSingle<T>, isDouble<T>, bytes>::type;

// A level whose registers hold so many bytes has all narrower ones, too.
template <typename T, int N>
inline constexpr int bytesOf = N* static_cast<int>(sizeof(T));
template <typename T, int N>
inline constexpr bool fillsWideRegister = bytesOf<T, N> <= widestRegister &&
                                          (bytesOf<T, N> == 32 || bytesOf<T, N> == 64);

// N consecutive elements, in whatever registers they need: one where they fill it, two halves above that. The element
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

template <typename T, int N>
    requires(fillsWideRegister<T, N>)
struct Pack<T, N> {
    using Element = T;
    static constexpr int size = N;
    Native<T, bytesOf<T, N>> v;

    Pack() = default;
    TARN_INLINE Pack(Native<T, bytesOf<T, N>> all) : v(all) {}
    TARN_INLINE Pack(Pack<T, N / 2> low, Pack<T, N / 2> high) : v(native::join(low.v, high.v)) {}
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

// A pack that is one register.
template <typename X>
concept AnyRegister = isPack<X> && requires(X x)
{
    x.v;
};
// One of elements of this type.
template <typename X, typename T>
concept RegisterOf = AnyRegister<X> && std::is_same_v<Element<X>, T>;

// One that is wider than the narrowest.
template <typename X>
concept WideRegister = AnyRegister<X> && sizeof(X) > registerBytes;
// One of a level that has no wider ones.
template <typename X>
concept OnlyRegister = AnyRegister<X> && widestRegister == registerBytes;
template <typename T, int N>
inline constexpr bool isOneRegister = bytesOf<T, N> == registerBytes || fillsWideRegister<T, N>;

// The pack of other elements in as many bytes, and the one of half or twice as many elements.
template <typename X, typename U>
using SameBytes = Pack<U, X::size* static_cast<int>(sizeof(Element<X>)) / static_cast<int>(sizeof(U))>;
template <typename X>
using HalfOf = Pack<Element<X>, X::size / 2>;
template <typename X>
using TwiceAs = Pack<Element<X>, 2 * X::size>;

template <typename T, int N>
TARN_INLINE Pack<T, 2 * N> join(Pack<T, N> lo, Pack<T, N> hi)
{
    return {lo, hi};
}

template <typename T, int N>
TARN_INLINE Pack<T, N / 2> lowHalf(Pack<T, N> x)
{
    if constexpr (AnyRegister<Pack<T, N>>) {
        return {native::low(x.v)};
    } else {
        return x.lo;
    }
}
template <typename T, int N>
TARN_INLINE Pack<T, N / 2> highHalf(Pack<T, N> x)
{
    if constexpr (AnyRegister<Pack<T, N>>) {
        return {native::high(x.v)};
    } else {
        return x.hi;
    }
}

// A word of the vocabulary: `Impl::of` has an overload for the element and one for the registers of every type that has
// the operation, or for the narrowest of them; a longer pack is served half by half. Arguments that are not packs
// (shift counts) go to both halves.
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
            return lowHalf(x);
        } else {
            return x;
        }
    }
    template <typename X>
    static TARN_INLINE auto high(X x)
    {
        if constexpr (isPack<X>) {
            return highHalf(x);
        } else {
            return x;
        }
    }
};

// One word from parts that each serve some of the types.
template <typename... Parts>
struct Overloads : Parts... {
    using Parts::of...;
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
    using X = Pack<T, N>;
    if constexpr (AnyRegister<X>) {
        X x;
        native::load(x.v, p);
        return x;
    } else {
        return {loadPack<N / 2>(p), loadPack<N / 2>(p + N / 2)};
    }
}

template <typename T, int N>
TARN_INLINE void store(T* p, Pack<T, N> x)
{
    if constexpr (AnyRegister<Pack<T, N>>) {
        native::store(p, x.v);
    } else {
        store(p, x.lo);
        store(p + N / 2, x.hi);
    }
}

// A value in every place of X, which is an element type or a pack.
template <typename X>
TARN_INLINE X splat(Element<X> value)
{
    using T = Element<X>;
    if constexpr (!isPack<X>) {
        return value;
    } else if constexpr (!AnyRegister<X>) {
        const auto half = splat<HalfOf<X>>(value);
        return {half, half};
    } else if constexpr (std::is_floating_point_v<T>) {
        X x;
        native::splat(x.v, value);
        return x;
    } else {
        Native<Tarn8u, sizeof(X)> all;
        if constexpr (sizeof(T) == 16) {
            native::splat(all, reinterpret_cast<__m128i>(loadPack<1>(&value).v));
        } else if constexpr (sizeof(T) == 8) {
            const __m128i pair = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&value));
            native::splat(all, _mm_unpacklo_epi64(pair, pair));
        } else if constexpr (sizeof(T) == 4) {
            native::splat(all, std::bit_cast<Tarn32s>(value));
        } else if constexpr (sizeof(T) == 2) {
            native::splat(all, static_cast<Tarn16s>(value));
        } else {
            native::splat(all, static_cast<Tarn8s>(value));
        }
        return {reinterpret_cast<decltype(X::v)>(all)};
    }
}

// The same bits under another element type: complex elements as twice as many parts and back, signed as unsigned,
// masks as integers.

template <typename U, typename T, int N>
TARN_INLINE auto reinterpretPack(Pack<T, N> x)
{
    using X = SameBytes<Pack<T, N>, U>;
    if constexpr (AnyRegister<Pack<T, N>>) {
        return X{reinterpret_cast<decltype(X::v)>(x.v)};
    } else {
        return join(reinterpretPack<U>(x.lo), reinterpretPack<U>(x.hi));
    }
}

} // namespace tarn
