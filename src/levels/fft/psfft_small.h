// The transforms of 1, 2, 4 and 8 points, complete with their order of elements: no table, no buffer, in place or not.
#pragma once

#include "levels/fft/psfft_butterflies.h"

namespace tarn::fft {

// The factor that a transform is to be scaled by goes into the results of the first layer.
template <typename T>
struct Unscaled {
    TARN_INLINE T operator()(T x) const { return x; }
    TARN_INLINE Complex<T> operator()(Complex<T> x) const { return x; }
};
template <typename T>
struct Scaled {
    T factor;

    TARN_INLINE T operator()(T x) const { return x * factor; }
    TARN_INLINE Complex<T> operator()(Complex<T> x) const { return {x.re * factor, x.im * factor}; }
};

template <typename T>
inline constexpr T COSPI4 = static_cast<T>(0.70710678118654752440);
template <typename T>
inline constexpr T SINPI4 = -COSPI4<T>;
template <typename T>
inline constexpr T COSPI4D = static_cast<T>(1.41421356237309504880);
template <typename T>
inline constexpr T SINPI4D = -COSPI4D<T>;

// -- Complex elements ------------------------------------------------------------------------------------------------

template <typename T, int count>
using Points = std::array<Complex<T>, count>;

struct ComplexOne {
    static constexpr int count = 1;

    template <typename T, typename Scale>
    static TARN_INLINE Points<T, 1> transform(const Points<T, 1>& x, Scale scale)
    {
        return {scale(x[0])};
    }
};

struct ComplexTwo {
    static constexpr int count = 2;

    template <typename T, typename Scale>
    static TARN_INLINE Points<T, 2> transform(const Points<T, 2>& x, Scale scale)
    {
        return {scale(x[0] + x[1]), scale(x[0] - x[1])};
    }
};

// Four points out of the sums and differences of those that lie two apart.
template <bool forward, typename T>
TARN_INLINE Points<T, 4> joinPairs(Complex<T> a, Complex<T> b, Complex<T> c, Complex<T> d)
{
    return {a + c, plusQuarterTurn<forward>(b, d), a - c, minusQuarterTurn<forward>(b, d)};
}

template <bool forward>
struct ComplexFour {
    static constexpr int count = 4;

    template <typename T, typename Scale>
    static TARN_INLINE Points<T, 4> transform(const Points<T, 4>& x, Scale scale)
    {
        return joinPairs<forward>(scale(x[0] + x[2]), scale(x[0] - x[2]), scale(x[1] + x[3]), scale(x[1] - x[3]));
    }
};

template <bool forward>
struct ComplexEight {
    static constexpr int count = 8;

    template <typename T, typename Scale>
    static TARN_INLINE Points<T, 8> transform(const Points<T, 8>& x, Scale scale)
    {
        const auto half = [&](int first) {
            return joinPairs<forward>(scale(x[first] + x[first + 4]), scale(x[first] - x[first + 4]),
                                      scale(x[first + 2] + x[first + 6]), scale(x[first + 2] - x[first + 6]));
        };
        const Points<T, 4> even = half(0);
        const Points<T, 4> odd = half(1);
        const Complex<T> odd1 = rotate<forward>(odd[1], Complex<T>{COSPI4<T>, SINPI4<T>});
        const Complex<T> odd3 = rotate<forward>(odd[3], Complex<T>{SINPI4<T>, SINPI4<T>});
        return {even[0] + odd[0], even[1] + odd1, plusQuarterTurn<forward>(even[2], odd[2]),  even[3] + odd3,
                even[0] - odd[0], even[1] - odd1, minusQuarterTurn<forward>(even[2], odd[2]), even[3] - odd3};
    }
};

// -- Real elements and the Perm spectrum -----------------------------------------------------------------------------

template <typename T, int count>
using Reals = std::array<T, count>;

struct RealOne {
    static constexpr int count = 1;

    template <typename T, typename Scale>
    static TARN_INLINE Reals<T, 1> transform(const Reals<T, 1>& x, Scale scale)
    {
        return {scale(x[0])};
    }
};

struct RealTwo {
    static constexpr int count = 2;

    template <typename T, typename Scale>
    static TARN_INLINE Reals<T, 2> transform(const Reals<T, 2>& x, Scale scale)
    {
        return {scale(x[0] + x[1]), scale(x[0] - x[1])};
    }
};

template <bool forward>
struct RealFour {
    static constexpr int count = 4;

    template <typename T, typename Scale>
    static TARN_INLINE Reals<T, 4> transform(const Reals<T, 4>& x, Scale scale)
    {
        if constexpr (forward) {
            const T a = scale(x[0] + x[2]);
            const T b = scale(x[1] + x[3]);
            return {a + b, a - b, scale(x[0] - x[2]), scale(x[3] - x[1])};
        } else {
            const T a = scale(x[0] + x[1]);
            const T b = scale(x[0] - x[1]);
            const T re = 2 * scale(x[2]);
            const T im = 2 * scale(x[3]);
            return {a + re, b - im, a - re, b + im};
        }
    }
};

template <bool forward>
struct RealEight {
    static constexpr int count = 8;

    template <typename T, typename Scale>
    static TARN_INLINE Reals<T, 8> transform(const Reals<T, 8>& x, Scale scale)
    {
        if constexpr (forward) {
            const T a0 = scale(x[0] + x[4]);
            const T a1 = scale(x[1] + x[5]);
            const T a2 = scale(x[2] + x[6]);
            const T a3 = scale(x[3] + x[7]);
            const T b0 = scale(x[0] - x[4]);
            const T b1 = scale(x[1] - x[5]);
            const T b2 = scale(x[2] - x[6]);
            const T b3 = scale(x[3] - x[7]);
            const T even = a0 + a2;
            const T odd = a1 + a3;
            const T re = (b1 - b3) * COSPI4<T>;
            const T im = (b1 + b3) * SINPI4<T>;
            return {even + odd, even - odd, b0 + re, im - b2, a0 - a2, a3 - a1, b0 - re, im + b2};
        } else {
            const T a = scale(x[0] + x[1]);
            const T b = scale(x[0] - x[1]);
            const T re = 2 * scale(x[4]);
            const T im = 2 * scale(x[5]);
            const T u = 2 * scale(x[2] + x[6]);
            const T w = 2 * scale(x[3] - x[7]);
            const T v = scale(x[2] - x[6]);
            const T z = scale(x[3] + x[7]);
            const T minus = (v - z) * COSPI4D<T>;
            const T plus = (v + z) * SINPI4D<T>;
            return {(a + re) + u, (b - im) + minus, (a - re) - w, (b + im) + plus,
                    (a + re) - u, (b - im) - minus, (a - re) + w, (b + im) - plus};
        }
    }
};

// -- Calls ------------------------------------------------------------------------------------------------------------

// On interleaved pairs: the arrays, and a factor if there is one.
template <typename Rule, typename T, typename... Factor>
void cFFT(const T* src, T* dst, Factor... factor)
{
    using Scale = std::conditional_t<sizeof...(Factor) == 0, Unscaled<T>, Scaled<T>>;
    Points<T, Rule::count> x;
    for (int i = 0; i < Rule::count; ++i) {
        x[i] = {loadElement(src + 2 * i), loadElement(src + 2 * i + 1)};
    }
    x = Rule::transform(x, Scale{factor...});
    for (int i = 0; i < Rule::count; ++i) {
        store(dst + 2 * i, x[i].re);
        store(dst + 2 * i + 1, x[i].im);
    }
}

// On arrays of real and of imaginary parts.
template <typename Rule, typename T, typename... Factor>
void crFFT(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, Factor... factor)
{
    using Scale = std::conditional_t<sizeof...(Factor) == 0, Unscaled<T>, Scaled<T>>;
    Points<T, Rule::count> x;
    for (int i = 0; i < Rule::count; ++i) {
        x[i] = {loadElement(srcRe + i), loadElement(srcIm + i)};
    }
    x = Rule::transform(x, Scale{factor...});
    for (int i = 0; i < Rule::count; ++i) {
        store(dstRe + i, x[i].re);
        store(dstIm + i, x[i].im);
    }
}

template <typename Rule, typename T, typename... Factor>
void rFFT(const T* src, T* dst, Factor... factor)
{
    using Scale = std::conditional_t<sizeof...(Factor) == 0, Unscaled<T>, Scaled<T>>;
    Reals<T, Rule::count> x;
    for (int i = 0; i < Rule::count; ++i) {
        x[i] = loadElement(src + i);
    }
    x = Rule::transform(x, Scale{factor...});
    for (int i = 0; i < Rule::count; ++i) {
        store(dst + i, x[i]);
    }
}

// Orders below this one are transforms of this file.
inline constexpr int smallOrders = 4;

template <typename Call>
using SmallTable = std::array<Call*, smallOrders>;

template <bool forward, typename T>
inline constexpr SmallTable<void(const T*, T*)> tbl_cFFT_small = {
    cFFT<ComplexOne, T>, cFFT<ComplexTwo, T>, cFFT<ComplexFour<forward>, T>, cFFT<ComplexEight<forward>, T>};
template <bool forward, typename T>
inline constexpr SmallTable<void(const T*, T*, T)> tbl_cFFT_norm_small = {
    cFFT<ComplexOne, T, T>, cFFT<ComplexTwo, T, T>, cFFT<ComplexFour<forward>, T, T>,
    cFFT<ComplexEight<forward>, T, T>};

template <bool forward, typename T>
inline constexpr SmallTable<void(const T*, const T*, T*, T*)> tbl_crFFT_small = {
    crFFT<ComplexOne, T>, crFFT<ComplexTwo, T>, crFFT<ComplexFour<forward>, T>, crFFT<ComplexEight<forward>, T>};
template <bool forward, typename T>
inline constexpr SmallTable<void(const T*, const T*, T*, T*, T)> tbl_crFFT_norm_small = {
    crFFT<ComplexOne, T, T>, crFFT<ComplexTwo, T, T>, crFFT<ComplexFour<forward>, T, T>,
    crFFT<ComplexEight<forward>, T, T>};

template <bool forward, typename T>
inline constexpr SmallTable<void(const T*, T*)> tbl_rFFT_small = {
    rFFT<RealOne, T>, rFFT<RealTwo, T>, rFFT<RealFour<forward>, T>, rFFT<RealEight<forward>, T>};
template <bool forward, typename T>
inline constexpr SmallTable<void(const T*, T*, T)> tbl_rFFT_norm_small = {
    rFFT<RealOne, T, T>, rFFT<RealTwo, T, T>, rFFT<RealFour<forward>, T, T>, rFFT<RealEight<forward>, T, T>};

} // namespace tarn::fft
