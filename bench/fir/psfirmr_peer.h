// Changes of rate, and filters on the caller's delay line, as a user would write them.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

// Polyphase: `phases` has the taps of each phase side by side, oldest sample first, `len` of them; x begins with
// len - 1 samples of history.
void rateLoop(const Tarn32f* phases, int len, int up, int down, const Tarn32f* x, Tarn32f* y, int outputs);

// y[i] = the sum of h[k] x[i - k] in double precision, by a doubled delay line.
void directLoop(const Tarn32f* h, int taps, const Tarn32f* x, Tarn32f* y, int len, Tarn32f* line, int* index);

} // namespace tarn::bench
