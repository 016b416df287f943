// Plain loops beside the conversions.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void convertLoop(const Tarn16s* src, Tarn32f* dst, int len);
void convertLoop(const Tarn8u* src, Tarn32f* dst, int len);
void convertLoop(const Tarn32s* src, Tarn32f* dst, int len);
void convertLoop(const Tarn16s* src, Tarn32s* dst, int len);
void convertLoop(const Tarn64f* src, Tarn32f* dst, int len);
void narrowLoop(const Tarn32s* src, Tarn16s* dst, int len, int s);

// Floats as integers, to nearest.
void roundLoop(const Tarn32f* src, Tarn8u* dst, int len, int s);
void roundLoop(const Tarn32f* src, Tarn16s* dst, int len, int s);
void roundLoop(const Tarn32f* src, Tarn32s* dst, int len, int s);
void roundLoop(const Tarn64f* src, Tarn32s* dst, int len, int s);

// 24-bit elements, three bytes each.
void from24Loop(const Tarn8u* src, Tarn32s* dst, int len);
void from24Loop(const Tarn8u* src, Tarn32f* dst, int len);
void to24Loop(const Tarn32s* src, Tarn8u* dst, int len, int s);
void to24Loop(const Tarn32f* src, Tarn8u* dst, int len, int s);

// Half precision, to nearest.
void fromHalfLoop(const Tarn16s* src, Tarn32f* dst, int len);
void toHalfLoop(const Tarn32f* src, Tarn16s* dst, int len);
void toHalfLoop(const Tarn16s* src, Tarn16s* dst, int len);
void halfToIntegerLoop(const Tarn16s* src, Tarn16s* dst, int len, int s);

} // namespace tarn::bench
