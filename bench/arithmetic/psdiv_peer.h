// Plain loops beside the quotients.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

// The first array is the divisor.
void divLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len);
void divLoop(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len);
void divLoop(const Tarn32fc* a, const Tarn32fc* b, Tarn32fc* dst, int len);
void divLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len);
void divLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len);
void divLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len);

} // namespace tarn::bench
