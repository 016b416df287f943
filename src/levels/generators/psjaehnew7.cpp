// Kernels of the Jaehne signal.
#include "levels/generators/psjaehne.h"

#include "frame/counting.h"
#include "frame/precise.h"
#include "frame/rounding.h"
#include "frame/simd_angle.h"
#include "levels/statistics/psminmax.h"

namespace tarn {

namespace {

constexpr double halfOfPi = 1.5707963267948966;

// Up to here phases are ordinary angles in their precision.
template <Float T>
constexpr double nearPhase = isSingle<T> ? 2900 : 990000;

// The phase k n^2 in double precision, and the sample, one at a time.
struct Chirp {
    double k;
    double magn;

    Chirp(int len, double magnitude) : k(halfOfPi / len), magn(magnitude) {}

    double operator()(int n) const { return preciseSine(k * n * n) * magn; }
};

// The samples from i up to `end`, as `put` stores a double.
template <typename T, typename Put>
void chirpElements(T* dst, int i, int end, Chirp chirp, Put put)
{
    for (; i < end; ++i) {
        store(dst + i, put(chirp(i)));
    }
}

// Groups of samples of a 16-byte block, in the precision of the elements from the index on.
template <Float T>
struct ChirpGroups {
    static constexpr int group = 16 / static_cast<int>(sizeof(T));
    using X = Pack<T, group>;

    T k;
    T magn;

    TARN_INLINE X phases(int n) const
    {
        X index;
        if constexpr (isSingle<T>) {
            index = convert<Tarn32f>(loadPack<group>(Counting{n}));
        } else {
            alignas(16) static constexpr T first[group] = {0, 1};
            index = add(splat<X>(static_cast<T>(n)), loadPack<group>(first));
        }
        return mul(mul(splat<X>(k), index), index);
    }
    // Of phases that single precision reduces to a turn without loss, and of others.
    TARN_INLINE X near(int n) const { return mul(CircularMethod::ordinary(phases(n)).sine, splat<X>(magn)); }
    TARN_INLINE X far(int n) const
    {
        if constexpr (isSingle<T>) {
            return mul(narrowFloat(sineAndCosine(widen(phases(n))).sine), splat<X>(magn));
        } else {
            return mul(sineAndCosine(phases(n)).sine, splat<X>(magn));
        }
    }
};

// From this many elements on groups are worth their set-up.
template <Float T>
constexpr int shortestGrouped = isSingle<T> ? 7 : 3;

template <Float T>
void chirpFloats(T* dst, int len, double magn)
{
    using Groups = ChirpGroups<T>;
    constexpr std::uintptr_t boundary = 16;
    const Chirp chirp(len, magn);
    const auto put = [](double y) { return static_cast<T>(y); };
    int i = 0;
    if (len >= shortestGrouped<T> && addressOf(dst) % sizeof(T) == 0) {
        const int head = static_cast<int>((0 - addressOf(dst)) % boundary / sizeof(T));
        chirpElements(dst, 0, head, chirp, put);
        i = head;
        const StandardArithmetic guard;
        const Groups groups{static_cast<T>(chirp.k), static_cast<T>(magn)};
        const int nearEnd = std::min(len, static_cast<int>(squareRoot(nearPhase<T> / chirp.k)));
        for (; i <= nearEnd - Groups::group; i += Groups::group) {
            store(dst + i, groups.near(i));
        }
        for (; i <= len - Groups::group; i += Groups::group) {
            store(dst + i, groups.far(i));
        }
    }
    chirpElements(dst, i, len, chirp, put);
}

// The integer part of a double below 2^32 in magnitude: the upper half of the unsigned range is converted 2^31 lower.
template <typename T>
T truncatedTo(double x)
{
    if constexpr (std::is_same_v<T, Tarn32u>) {
        constexpr double half = 0x1p31;
        const bool isUpper = x >= half;
        return static_cast<Tarn32u>(truncateToInteger(isUpper ? x - half : x)) + (isUpper ? 0x80000000U : 0U);
    } else {
        return static_cast<T>(truncateToInteger(x));
    }
}

} // namespace

template <typename T>
void jaehne(T* dst, int len, double magn)
{
    if (len == 1) {
        store(dst, T{0});
    } else if constexpr (std::is_floating_point_v<T>) {
        chirpFloats(dst, len, magn);
    } else {
        chirpElements(dst, 0, len, Chirp(len, magn),
                      [](double y) { return truncatedTo<T>(y >= 0 ? y + 0.5 : y - 0.5); });
    }
}

template <typename T>
void jaehneUnsigned(T* dst, int len, double magn, Tarn64f* work)
{
    jaehne(work, len, magn);
    Tarn64f smallest;
    Tarn64f largest;
    MiniMax_64f_T7(work, len, &smallest, &largest);
    const double range = largest - smallest;
    const double scale = range > 0 ? magn / range : 0.0;
    for (int i = 0; i < len; ++i) {
        store(dst + i, truncatedTo<T>((work[i] - smallest) * scale + 0.5));
    }
}

template void jaehne<Tarn8s>(Tarn8s*, int, double);
template void jaehne<Tarn16s>(Tarn16s*, int, double);
template void jaehne<Tarn32s>(Tarn32s*, int, double);
template void jaehne<Tarn32f>(Tarn32f*, int, double);
template void jaehne<Tarn64f>(Tarn64f*, int, double);
template void jaehneUnsigned<Tarn8u>(Tarn8u*, int, double, Tarn64f*);
template void jaehneUnsigned<Tarn16u>(Tarn16u*, int, double, Tarn64f*);
template void jaehneUnsigned<Tarn32u>(Tarn32u*, int, double, Tarn64f*);

} // namespace tarn
