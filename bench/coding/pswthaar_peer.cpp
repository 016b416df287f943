#include "pswthaar_peer.h"

#include <algorithm>
#include <limits>
#include <type_traits>

namespace tarn::bench {
namespace {

// (a + b) / 2 to nearest, ties to even, in twice the width; of 64 bits from the halves. Doubles as they are defined.
template <class T>
T halved(T a, T b)
{
    if constexpr (std::is_same_v<T, Tarn64f>) {
        return static_cast<T>((static_cast<long double>(a) + static_cast<long double>(b)) * 0.5L);
    } else if constexpr (std::is_floating_point_v<T>) {
        return (a + b) * T(0.5);
    } else if constexpr (sizeof(T) == 8) {
        const T half = (a & b) + ((a ^ b) >> 1);
        return half + ((a ^ b) & half & 1);
    } else {
        using Wide = std::conditional_t<sizeof(T) < 4, int, long long>;
        const Wide sum = static_cast<Wide>(a) + b;
        return static_cast<T>(std::min<Wide>((sum + ((sum >> 1) & 1)) >> 1, std::numeric_limits<T>::max()));
    }
}

template <class T>
T limitedSum(T a, T b)
{
    if constexpr (sizeof(T) == 8) {
        T sum;
        return !__builtin_add_overflow(a, b, &sum) ? sum
               : a < 0                             ? std::numeric_limits<T>::min()
                                                   : std::numeric_limits<T>::max();
    } else {
        using Wide = std::conditional_t<sizeof(T) < 4, int, long long>;
        return static_cast<T>(
            std::clamp<Wide>(static_cast<Wide>(a) + b, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    }
}

} // namespace

template <class T>
TarnStatus haarForwardLoop(const T* x, int len, T* low, T* high)
{
    for (int k = 0; k < len / 2; ++k) {
        low[k] = halved<T>(x[2 * k], x[2 * k + 1]);
        high[k] = halved<T>(static_cast<T>(-x[2 * k]), x[2 * k + 1]);
    }
    return tarnStsNoErr;
}

template <class T>
TarnStatus haarInverseLoop(const T* low, const T* high, T* x, int len)
{
    for (int k = 0; k < len / 2; ++k) {
        if constexpr (std::is_floating_point_v<T>) {
            x[2 * k] = low[k] - high[k];
            x[2 * k + 1] = low[k] + high[k];
        } else {
            x[2 * k] = limitedSum<T>(low[k], static_cast<T>(-high[k]));
            x[2 * k + 1] = limitedSum<T>(low[k], high[k]);
        }
    }
    return tarnStsNoErr;
}

#define HAAR_LOOPS(T)                                           \
    template TarnStatus haarForwardLoop(const T*, int, T*, T*); \
    template TarnStatus haarInverseLoop(const T*, const T*, T*, int);
HAAR_LOOPS(Tarn8s)
HAAR_LOOPS(Tarn16s)
HAAR_LOOPS(Tarn32s)
HAAR_LOOPS(Tarn64s)
HAAR_LOOPS(Tarn32f)
HAAR_LOOPS(Tarn64f)

} // namespace tarn::bench
