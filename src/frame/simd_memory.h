// Words of memory: access that knows something of the address, halves of registers, single elements on their way from
// one place to another, and requests to the caches.
#pragma once

#include "frame/simd_pack.h"

namespace tarn {

// -- Registers that lie on register boundaries ------------------------------------------------------------------------

// From an address on a boundary of the narrowest register: unlike an access to any address, it can be an instruction's
// operand. Wider registers need no boundary for that.
template <int N, typename T>
TARN_INLINE Pack<T, N> loadAligned(const T* p)
{
    if constexpr (fillsWideRegister<T, N>) {
        return loadPack<N>(p);
    } else if constexpr (N > registerLanes<T>) {
        return {loadAligned<N / 2>(p), loadAligned<N / 2>(p + N / 2)};
    } else if constexpr (isSingle<T>) {
        return {_mm_load_ps(reinterpret_cast<const float*>(p))};
    } else if constexpr (isDouble<T>) {
        return {_mm_load_pd(reinterpret_cast<const double*>(p))};
    } else {
        return {_mm_load_si128(reinterpret_cast<const __m128i*>(p))};
    }
}

// The elements of one narrowest register, from a boundary of it, as often as a pack holds them.
template <int N, typename T>
TARN_INLINE Pack<T, N> loadRepeated(const T* p)
{
    if constexpr (fillsWideRegister<T, N>) {
        Native<Tarn8u, bytesOf<T, N>> all;
        native::splat(all, _mm_load_si128(reinterpret_cast<const __m128i*>(p)));
        return reinterpretPack<T>(Pack<Tarn8u, bytesOf<T, N>>{all});
    } else if constexpr (N > registerLanes<T>) {
        const auto half = loadRepeated<N / 2>(p);
        return join(half, half);
    } else {
        return loadAligned<N>(p);
    }
}

template <typename T, int N>
TARN_INLINE void storeAligned(T* p, Pack<T, N> x)
{
    if constexpr (fillsWideRegister<T, N>) {
        store(p, x);
    } else if constexpr (N > registerLanes<T>) {
        storeAligned(p, lowHalf(x));
        storeAligned(p + N / 2, highHalf(x));
    } else if constexpr (isSingle<T>) {
        _mm_store_ps(reinterpret_cast<float*>(p), x.v);
    } else if constexpr (isDouble<T>) {
        _mm_store_pd(reinterpret_cast<double*>(p), x.v);
    } else {
        _mm_store_si128(reinterpret_cast<__m128i*>(p), x.v);
    }
}

// Stores past the caches; `p` lies on a boundary of the widest vector. A run of them ends with streamFence.
template <typename T, int N>
TARN_INLINE void storeStream(T* p, Pack<T, N> x)
{
    if constexpr (AnyRegister<Pack<T, N>>) {
        native::stream(p, x.v);
    } else {
        storeStream(p, lowHalf(x));
        storeStream(p + N / 2, highHalf(x));
    }
}

TARN_INLINE void streamFence() { _mm_sfence(); }

// -- Halves -----------------------------------------------------------------------------------------------------------

// N / 2 elements in the lower half of a pack, zeros above.
template <int N, typename T>
TARN_INLINE Pack<T, N> loadHalf(const T* p)
{
    if constexpr (N > registerLanes<T>) {
        return {loadPack<N / 2>(p), splat<Pack<T, N / 2>>(T{})};
    } else {
        return {reinterpret_cast<Native<T>>(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
    }
}

// The lower and the upper half of a register, each from a place of its own.
template <typename T>
TARN_INLINE Register<T> loadHalves(const T* low, const T* high)
{
    const __m128i half = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(low));
    return {reinterpret_cast<Native<T>>(
        _mm_loadh_pi(reinterpret_cast<__m128>(half), reinterpret_cast<const __m64*>(high)))};
}

// The lower and the upper half of a vector, each to a place of its own.
template <typename T>
TARN_INLINE void storeHalves(T* low, T* high, Register<T> x)
{
    _mm_storel_epi64(reinterpret_cast<__m128i*>(low), reinterpret_cast<__m128i>(x.v));
    _mm_storeh_pi(reinterpret_cast<__m64*>(high), reinterpret_cast<__m128>(x.v));
}

// -- Pairs of elements ------------------------------------------------------------------------------------------------

// A pair from one place, twice, and two pairs from two places.
template <typename T>
TARN_INLINE Pack<T, 4> loadPairTwice(const T* p)
{
    if constexpr (isSingle<T>) {
        const __m128d pair = _mm_castsi128_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))); // at any address
        return {_mm_castpd_ps(_mm_unpacklo_pd(pair, pair))};
    } else {
        const auto pair = loadPack<2>(p);
        return {pair, pair};
    }
}
template <typename T>
TARN_INLINE Pack<T, 4> loadTwoPairs(const T* p, const T* q)
{
    if constexpr (isSingle<T>) {
        const __m128d first = _mm_castsi128_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
        return {_mm_castpd_ps(_mm_loadh_pd(first, reinterpret_cast<const double*>(q)))};
    } else {
        return {loadPack<2>(p), loadPack<2>(q)};
    }
}

// -- One element, in a register that takes it whole -------------------------------------------------------------------

// The compiler may copy a double of a 32-bit program in two halves, and reading it back at once would wait until both
// have left the store buffer.

template <typename T>
TARN_INLINE auto hold(const T* p)
{
    if constexpr (sizeof(T) == 8) {
        __m128i x = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        asm("" : "+x"(x)); // as it is, a copy through two general registers to the compiler
        return x;
    } else {
        return loadElement(p);
    }
}

template <typename T>
TARN_INLINE void release(T* p, decltype(hold(p)) element)
{
    if constexpr (sizeof(T) == 8) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(p), element);
    } else {
        store(p, element);
    }
}

// The element itself, to be computed with.
template <typename T>
TARN_INLINE T valueOf(decltype(hold(static_cast<const T*>(nullptr))) element)
{
    if constexpr (std::is_same_v<T, Tarn64f>) {
        return _mm_cvtsd_f64(_mm_castsi128_pd(element));
    } else {
        return element;
    }
}

template <typename T>
TARN_INLINE void moveElement(T* to, const T* from)
{
    release(to, hold(from));
}

template <typename T>
TARN_INLINE void swapElements(T* a, T* b)
{
    const auto x = hold(a);
    moveElement(a, b);
    release(b, x);
}

// -- The caches -------------------------------------------------------------------------------------------------------

// Asks for the cache line that holds p: to stay, or to be read once. Any address may be asked for.
TARN_INLINE void prefetch(const void* p) { _mm_prefetch(static_cast<const char*>(p), _MM_HINT_T0); }
TARN_INLINE void prefetchOnce(const void* p) { _mm_prefetch(static_cast<const char*>(p), _MM_HINT_NTA); }

} // namespace tarn
