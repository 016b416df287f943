// Kernels of the tone generators: magn cos(2 pi freq n + phase), and its sine as the imaginary part.
#pragma once

#include "frame/kernels.h"

namespace tarn {

struct Tone {
    double magn;
    double freq;
    double phase;
};

// Double-precision recurrences over the whole array.
template <typename T>
void toneAccurate(T* dst, int len, Tone tone);

// Blocks, each starting from true cosines: the recurrence of the block runs in the precision of the samples.
template <typename T>
void toneFast(T* dst, int len, Tone tone);

// A cosine for every sample. The index of the first one is given, and wraps around.
void toneQ15(Tarn16s* dst, int len, Tone tone, int firstIndex);

} // namespace tarn
