// Results of recursive filters as samples of the caller's type.
#pragma once

#include "frame/factor.h"
#include "frame/rounding.h"
#include "frame/samples.h"
#include "frame/simd_round.h"
#include "frame/walk.h"

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

// Parts of results as parts of samples: integers rounded to the nearest and limited, a NaN to the lowest.
template <typename D, Float P>
struct ToSamples {
    P scale;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        if constexpr (std::is_floating_point_v<D>) {
            return narrowFloat(x);
        } else {
            return roundLimited<D>(mul(x, splat<X>(scale)));
        }
    }
};

template <typename S, typename T>
void resultsToSamples(const T* src, S* dst, int len, int scaleFactor)
{
    using D = Part<S>;
    using P = Part<T>;
    const ToSamples<D, P> convert{scaleOf<P>(scaleFactor)};
    const int parts = len * static_cast<int>(sizeof(T) / sizeof(P));
    if constexpr (std::is_floating_point_v<D>) {
        walk(reinterpret_cast<D*>(dst), parts, convert, reinterpret_cast<const P*>(src));
    } else {
        const NearestRounding nearest;
        walk(reinterpret_cast<D*>(dst), parts, convert, reinterpret_cast<const P*>(src));
    }
}

} // namespace tarn
