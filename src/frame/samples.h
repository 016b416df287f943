// Arrays of samples as elements of the type that they are filtered in.
#pragma once

#include "frame/simd_pack.h"
#include "levels/data/psconvert.h"

namespace tarn {

// Samples as elements of the taps' type, exact. Complex ones are converted as twice as many parts.
inline void samplesToTaps(const Tarn16s* src, Tarn32f* dst, int len) { ownsConvert_16s32f_W7(src, dst, len); }
inline void samplesToTaps(const Tarn16s* src, Tarn64f* dst, int len) { ownsConvert_16s64f_Sfs0_W7(src, dst, len); }
inline void samplesToTaps(const Tarn32s* src, Tarn64f* dst, int len) { owntarnsCnvrt_32s64f(src, dst, len); }
inline void samplesToTaps(const Tarn32f* src, Tarn64f* dst, int len) { ownsConvert_32f64f_W7(src, dst, len); }
template <typename S, typename T>
    requires isComplex<S>
inline void samplesToTaps(const S* src, T* dst, int len)
{
    samplesToTaps(reinterpret_cast<const Part<S>*>(src), reinterpret_cast<Part<T>*>(dst), 2 * len);
}

} // namespace tarn
