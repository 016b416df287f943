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

// ln x and 10 log10 x times a factor, rounded to nearest; the lowest integer for x below 1.
TARN_KERNEL void Ln32s_W7(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32f factor);
TARN_KERNEL void Ten_Lg32s_W7(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32f factor);

namespace tarn {

// Of integers the first element below 1 decides.
int firstWarning(const Tarn16s* src, int len);
int firstWarning(const Tarn32s* src, int len);

// By decision trees, for scale factors of at least 0; those of 16 bits for any scale factor.
void logarithms(const Tarn16s* src, Tarn16s* dst, int len, int scaleFactor);
void logarithms(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor);
void logarithms(const Tarn32s* src, Tarn16s* dst, int len, int scaleFactor);
void decibels(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor);

// Ln32s_W7 with results of 16 bits.
void logarithmsByFactor(const Tarn32s* src, Tarn16s* dst, int len, Tarn32f factor);

} // namespace tarn
