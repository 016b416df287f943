// Plain loops beside logic and shifts.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void andLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len);
void andLoop(const Tarn32u* a, const Tarn32u* b, Tarn32u* dst, int len);
void orLoop(const Tarn32u* a, const Tarn32u* b, Tarn32u* dst, int len);
void xorConstantLoop(const Tarn16u* src, Tarn16u val, Tarn16u* dst, int len);
void xorConstantLoop(const Tarn32u* src, Tarn32u val, Tarn32u* dst, int len);
void notLoop(const Tarn8u* src, Tarn8u* dst, int len);

// Counts below the element's width.
void shiftLeftLoop(const Tarn8u* src, int val, Tarn8u* dst, int len);
void shiftLeftLoop(const Tarn16u* src, int val, Tarn16u* dst, int len);
void shiftLeftLoop(const Tarn32s* src, int val, Tarn32s* dst, int len);
void shiftRightLoop(const Tarn8u* src, int val, Tarn8u* dst, int len);
void shiftRightLoop(const Tarn16s* src, int val, Tarn16s* dst, int len);
void shiftRightLoop(const Tarn32s* src, int val, Tarn32s* dst, int len);

} // namespace tarn::bench
