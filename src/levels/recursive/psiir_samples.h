// Samples of the caller's type as elements of the type that a filter computes in, and its results as such samples.
#pragma once

#include "frame/delay_line.h"
#include "frame/factor.h"
#include "frame/rounding.h"
#include "frame/samples.h"
#include "frame/simd.h"

namespace tarn {

// 2^-scaleFactor. In single precision the exponent takes the low 7 bits of the factor's magnitude.
template <Float P>
P scaleOf(int scaleFactor)
{
    if constexpr (isSingle<P>) {
        constexpr unsigned lowBits = 127;
        const auto factor = static_cast<unsigned>(scaleFactor);
        const int magnitude = static_cast<int>((scaleFactor < 0 ? 0U - factor : factor) & lowBits);
        return twoToMinus<Tarn32f>(scaleFactor < 0 ? -magnitude : magnitude);
    } else {
        return twoToMinusAny(scaleFactor);
    }
}

// Filters of integers compute to the nearest whatever the caller's rounding mode is, since their results are rounded
// while they go on; filters of floats compute in the caller's mode.
struct CallersRounding {
    CallersRounding() {} // not trivial, so that a guard of it is no unused variable
};
template <typename S>
using SamplesRounding = std::conditional_t<std::is_floating_point_v<Part<S>>, CallersRounding, NearestRounding>;

// One sample, exact.
template <typename T, typename S>
TARN_INLINE T sampleAs(const S* p)
{
    return convertedTo<T>(loadElement(p));
}

// Parts of results as parts of samples: integers rounded and limited, a NaN to the lowest.
template <Float D, typename X>
TARN_INLINE void storeResults(D* p, X x, Element<X> /*scale*/)
{
    store(p, narrowFloat(x));
}
template <Integer D, Float P>
TARN_INLINE void storeResults(D* p, P x, P scale)
{
    store(p, roundLimited<D>(mul(x, scale)));
}
template <Integer D, Float P, int N>
TARN_INLINE void storeResults(D* p, Pack<P, N> x, P scale)
{
    using X = Pack<P, N>;
    const auto limited = min(max(mul(x, splat<X>(scale)), splat<X>(lowest<D>)), splat<X>(highest<D>));
    if constexpr (std::is_same_v<D, Tarn16s>) {
        storeNarrowed(p, roundToInteger(limited));
    } else {
        store(p, roundToInteger(limited));
    }
}

// Where results go that are elements of the caller's own type.
template <typename T>
struct Results {
    T* values;

    TARN_INLINE Results operator+(int n) const { return {values + n}; }
    TARN_INLINE void put(int i, T x) const { store(values + i, x); }
    template <int N>
    TARN_INLINE void put(int i, Pack<Part<T>, N> x) const
    {
        store(reinterpret_cast<Part<T>*>(values + i), x);
    }
};

// Where results go that become samples of another type: they are kept as well, since the recursion needs them
// unrounded.
template <typename T, typename S>
struct ConvertedResults {
    T* values;
    S* samples;
    Part<T> scale;

    TARN_INLINE ConvertedResults operator+(int n) const { return {values + n, samples + n, scale}; }
    TARN_INLINE void put(int i, T x) const
    {
        store(values + i, x);
        auto* const parts = reinterpret_cast<Part<S>*>(samples + i);
        if constexpr (isComplex<T>) {
            storeResults(parts, x.re, scale);
            storeResults(parts + 1, x.im, scale);
        } else {
            storeResults(parts, x, scale);
        }
    }
    template <int N>
    TARN_INLINE void put(int i, Pack<Part<T>, N> x) const
    {
        store(reinterpret_cast<Part<T>*>(values + i), x);
        storeResults(reinterpret_cast<Part<S>*>(samples + i), x, scale);
    }
    // The samples of all that is kept already.
    void convertAll(int len) const
    {
        constexpr int partsOf = static_cast<int>(sizeof(T) / sizeof(Part<T>));
        const auto* const from = reinterpret_cast<const Part<T>*>(values);
        auto* const to = reinterpret_cast<Part<S>*>(samples);
        const int parts = len * partsOf;
        int i = 0;
        for (; i <= parts - partsAtOnce; i += partsAtOnce) {
            storeResults(to + i, loadPack<partsAtOnce>(from + i), scale);
        }
        for (; i < parts; ++i) {
            storeResults(to + i, loadElement(from + i), scale);
        }
    }

private:
    static constexpr int partsAtOnce = 4;
};

} // namespace tarn
