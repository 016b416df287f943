// The scale rule as a plain loop would have it, for the peers: exact result in a wide integer, one case a call.
#pragma once

#include "tarncore.h"

#include <limits>

namespace tarn::bench {

// t * 2^-s, rounded to the nearest integer, ties to the even one, saturated.
template <class T, class Wide>
inline T scaled(Wide t, int s)
{
    constexpr Wide low = std::numeric_limits<T>::min();
    constexpr Wide high = std::numeric_limits<T>::max();
    if (s > 0) {
        const Wide quotient = t >> s;
        const Wide remainder = t - (quotient << s);
        const Wide half = Wide{1} << (s - 1);
        t = quotient + (remainder > half || (remainder == half && (quotient & 1) != 0));
    } else if (s < 0) {
        const Wide lowest = low >> -s;
        const Wide highest = high >> -s;
        return t < lowest    ? static_cast<T>(low)
               : t > highest ? static_cast<T>(high)
                             : static_cast<T>(static_cast<Wide>(t * (Wide{1} << -s)));
    }
    return static_cast<T>(t < low ? low : t > high ? high : t);
}

} // namespace tarn::bench
