// Loops over the C library's functions.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void expLoop(const Tarn32f* src, Tarn32f* dst, int len);
void expLoop(const Tarn64f* src, Tarn64f* dst, int len);
void expLoop(const Tarn32f* src, Tarn64f* dst, int len);
void lnLoop(const Tarn32f* src, Tarn32f* dst, int len);
void lnLoop(const Tarn64f* src, Tarn64f* dst, int len);
void lnLoop(const Tarn64f* src, Tarn32f* dst, int len);
void atanLoop(const Tarn32f* src, Tarn32f* dst, int len);
void atanLoop(const Tarn64f* src, Tarn64f* dst, int len);

// Integers through double precision, scaled by 2^-scaleFactor, rounded and saturated.
template <class T>
void expLoop(const T* src, T* dst, int len, int scaleFactor);
template <class S, class D>
void lnLoop(const S* src, D* dst, int len, int scaleFactor);
void decibelLoop(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor);

} // namespace tarn::bench
