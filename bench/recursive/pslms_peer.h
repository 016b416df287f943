// Adaptive filters as a user would write them, a sample after the other.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

// Taps for the oldest sample first; the window of the first sample begins at x.
void lmsLoop(const Tarn32f* x, const Tarn32f* ref, Tarn32f* y, int len, Tarn32f mu, Tarn32f* taps, int tapsLen);

// One sample by a doubled ring; taps in Q15, the step normalised.
void lmsLoopQ15(Tarn16s x, Tarn16s ref, Tarn16s* y, Tarn32s* taps, int tapsLen, int mu, Tarn16s* line, int* index);

// The output of a window of samples `step` apart, and a step of the taps.
Tarn32s lmsLoopOutput(const Tarn32s* taps, const Tarn16s* window, int tapsLen, int step);
void lmsLoopUpdate(Tarn32s* taps, const Tarn16s* window, int tapsLen, int step, int g);

} // namespace tarn::bench
