// The transform of three points, and the tables of those of one to four, which need no table and no buffer.
#pragma once

#include "levels/fft/psfft_small.h"

namespace tarn::dft {

template <typename T>
inline constexpr T COS2PI3M = static_cast<T>(-0.5);
template <typename T>
inline constexpr T SIN2PI3M = static_cast<T>(-0.86602540378443864676);

template <bool forward>
struct ComplexThree {
    static constexpr int count = 3;

    template <typename T, typename Scale>
    static TARN_INLINE fft::Points<T, 3> transform(const fft::Points<T, 3>& x, Scale scale)
    {
        const Complex<T> first = scale(x[0]);
        const Complex<T> sum = scale(x[1] + x[2]);
        const Complex<T> difference = scale(x[1] - x[2]);
        const Complex<T> a = {first.re + COS2PI3M<T> * sum.re, first.im + COS2PI3M<T> * sum.im};
        const Complex<T> b = {SIN2PI3M<T> * difference.re, SIN2PI3M<T> * difference.im};
        return {first + sum, forward ? plusTurned(a, b) : minusTurned(a, b),
                forward ? minusTurned(a, b) : plusTurned(a, b)};
    }
};

// R[0], R[1], I[1].
template <bool forward>
struct RealThree {
    static constexpr int count = 3;

    template <typename T, typename Scale>
    static TARN_INLINE fft::Reals<T, 3> transform(const fft::Reals<T, 3>& x, Scale scale)
    {
        const T first = scale(x[0]);
        if constexpr (forward) {
            const T sum = scale(x[1] + x[2]);
            return {first + sum, first + COS2PI3M<T> * sum, SIN2PI3M<T> * scale(x[1] - x[2])};
        } else {
            const T re = 2 * scale(x[1]);
            const T im = 2 * scale(x[2]);
            const T a = first + COS2PI3M<T> * re;
            const T b = SIN2PI3M<T> * im;
            return {first + re, a + b, a - b};
        }
    }
};

// Lengths up to this one are transforms of these tables, at the place before their length.
inline constexpr int smallLengths = 4;

template <bool forward, typename T>
inline constexpr fft::SmallTable<void(const T*, T*)> tbl_cDFT_small = {
    fft::cFFT<fft::ComplexOne, T>, fft::cFFT<fft::ComplexTwo, T>, fft::cFFT<ComplexThree<forward>, T>,
    fft::cFFT<fft::ComplexFour<forward>, T>};
template <bool forward, typename T>
inline constexpr fft::SmallTable<void(const T*, T*, T)> tbl_cDFT_norm_small = {
    fft::cFFT<fft::ComplexOne, T, T>, fft::cFFT<fft::ComplexTwo, T, T>, fft::cFFT<ComplexThree<forward>, T, T>,
    fft::cFFT<fft::ComplexFour<forward>, T, T>};

template <bool forward, typename T>
inline constexpr fft::SmallTable<void(const T*, const T*, T*, T*)> tbl_crDFT_small = {
    fft::crFFT<fft::ComplexOne, T>, fft::crFFT<fft::ComplexTwo, T>, fft::crFFT<ComplexThree<forward>, T>,
    fft::crFFT<fft::ComplexFour<forward>, T>};
template <bool forward, typename T>
inline constexpr fft::SmallTable<void(const T*, const T*, T*, T*, T)> tbl_crDFT_norm_small = {
    fft::crFFT<fft::ComplexOne, T, T>, fft::crFFT<fft::ComplexTwo, T, T>, fft::crFFT<ComplexThree<forward>, T, T>,
    fft::crFFT<fft::ComplexFour<forward>, T, T>};

template <bool forward, typename T>
inline constexpr fft::SmallTable<void(const T*, T*)> tbl_rDFT_small = {
    fft::rFFT<fft::RealOne, T>, fft::rFFT<fft::RealTwo, T>, fft::rFFT<RealThree<forward>, T>,
    fft::rFFT<fft::RealFour<forward>, T>};
template <bool forward, typename T>
inline constexpr fft::SmallTable<void(const T*, T*, T)> tbl_rDFT_norm_small = {
    fft::rFFT<fft::RealOne, T, T>, fft::rFFT<fft::RealTwo, T, T>, fft::rFFT<RealThree<forward>, T, T>,
    fft::rFFT<fft::RealFour<forward>, T, T>};

} // namespace tarn::dft
