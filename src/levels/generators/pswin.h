// Kernels of the windows. All lengths are at least 3; dst may be src.
#pragma once

#include "frame/kernels.h"

namespace tarn {

// What the weights of a window of cosines start from: cos(t) and cos(s t), with t = 2 pi / (len - 1) and the stride s
// of the recurrence that the element type runs.
struct WindowCosines {
    double one;
    double stride;
};

// The strides, in elements: single-precision lanes for 16-bit elements, double ones for the others. The Blackman window
// of single-precision elements runs one element at a time, in extended precision.
template <typename T>
inline constexpr int raisedCosineStride = (sizeof(Part<T>) == sizeof(Tarn16s) ? 4 : 2) / (isComplex<T> ? 2 : 1);
template <typename T>
inline constexpr int blackmanStride = isSingle<T> ? 1 : raisedCosineStride<T>;

// w[n] = pedestal - amplitude cos(n t).
struct RaisedCosineShape {
    double pedestal;
    double amplitude;
};
template <typename T>
void windowRaisedCosine(const T* src, T* dst, int len, RaisedCosineShape shape, WindowCosines cosines);

// w[n] = (alpha + 1) / 2 - cos(n t) / 2 - alpha / 2 cos(2 n t).
template <typename T>
void windowBlackman(const T* src, T* dst, int len, double alpha, WindowCosines cosines);

// w[n] = 2 n / (len - 1).
template <typename T>
void windowBartlett(const T* src, T* dst, int len);

} // namespace tarn

// The Blackman window times a factor, the middle element of an odd length included. `cosOne` and `cosStride` are
// cos(t) and cos(4 t).
TARN_KERNEL void Blacman16s_q15sfs_W7(Tarn16s* pSrcDst, int len, Tarn32f alpha, Tarn32f factor, Tarn64f cosOne,
                                      Tarn64f cosStride);
