// Kernels of the logarithms. A source may be the destination itself.
#pragma once

#include "frame/kernels.h"

// What a kernel of logarithms met, as its answer: nothing, a zero, or something negative.
namespace tarn {
inline constexpr int logarithmsMetZero = 2;
inline constexpr int logarithmsMetNegative = 4;
} // namespace tarn

// A negative element decides, whatever zeros there are.
TARN_KERNEL int Ln32f_W7(const Tarn32f* pSrc, Tarn32f* pDst, int len);
TARN_KERNEL int tarnsLn64f_P6(const Tarn64f* pSrc, Tarn64f* pDst, int len);
TARN_KERNEL int tarnsLn64f32f_P6(const Tarn64f* pSrc, Tarn32f* pDst, int len);

// Of integers the first element below 1 decides.

// ln x and 10 log10 x times a factor, rounded to nearest; the lowest integer for x below 1.
TARN_KERNEL int Ln32s_W7(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32f factor);
TARN_KERNEL int Ten_Lg32s_W7(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32f factor);

namespace tarn {

// Ln32s_W7 with results of 16 bits.
int logarithmsByFactor(const Tarn32s* src, Tarn16s* dst, int len, Tarn32f factor);

// By decision trees, for scale factors of at least 0; those of 16 bits for any scale factor.
int logarithms(const Tarn16s* src, Tarn16s* dst, int len, int scaleFactor);
int logarithms(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor);
int logarithms(const Tarn32s* src, Tarn16s* dst, int len, int scaleFactor);
int decibels(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor);

} // namespace tarn
