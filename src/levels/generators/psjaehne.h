// Kernels of the Jaehne signal, magn sin(pi n^2 / (2 len)): a chirp from frequency 0 to half the sampling rate.
#pragma once

#include "frame/kernels.h"

namespace tarn {

// Floats, and integers with a sign.
template <typename T>
void jaehne(T* dst, int len, double magn);

// Integers without a sign, by way of `work`, of the same length: moved and scaled to span 0 to magn.
template <typename T>
void jaehneUnsigned(T* dst, int len, double magn, Tarn64f* work);

} // namespace tarn
