// Plain loops beside roots, magnitudes, phases, and complex vectors taken apart.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void sqrtLoop(const Tarn32f* src, Tarn32f* dst, int len);
void sqrtLoop(const Tarn64f* src, Tarn64f* dst, int len);
void cbrtLoop(const Tarn32f* src, Tarn32f* dst, int len);
void magnitudeLoop(const Tarn32fc* src, Tarn32f* dst, int len);
void magnitudeLoop(const Tarn64fc* src, Tarn64f* dst, int len);
void powerLoop(const Tarn32fc* src, Tarn32f* dst, int len);
void phaseLoop(const Tarn32fc* src, Tarn32f* dst, int len);
void phaseLoop(const Tarn64fc* src, Tarn64f* dst, int len);
void fromPolarLoop(const Tarn32f* magn, const Tarn32f* phase, Tarn32fc* dst, int len);
void fromPolarLoop(const Tarn64f* magn, const Tarn64f* phase, Tarn64fc* dst, int len);

} // namespace tarn::bench
