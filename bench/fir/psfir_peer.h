// FIR filters as a user would write them: y[i] = the sum of h[k] x[i + k], h in reversed order.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void firLoop(const Tarn32f* h, int taps, const Tarn32f* x, Tarn32f* y, int len);
void firLoop(const Tarn64f* h, int taps, const Tarn64f* x, Tarn64f* y, int len);
void firLoop(const Tarn32fc* h, int taps, const Tarn32fc* x, Tarn32fc* y, int len);
void firLoop(const Tarn32s* h, int taps, const Tarn16s* x, Tarn16s* y, int len);

} // namespace tarn::bench
