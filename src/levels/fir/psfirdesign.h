// Kernels of FIR design. Taps are built in the left half of the array, which for odd lengths ends before the centre
// tap, and mirrored at last.
#pragma once

#include "frame/kernels.h"

namespace tarn {

// taps[half - k] = tone[k - 1] / d for k from 1 to half, from the centre outward, with d = pi (k - 1 + first). The
// upper half becomes zero.
void divideTone(const Tarn64f* tone, Tarn64f* taps, int tapsLen);

// The sum of two tones, in place of the second.
void addTone(const Tarn64f* other, Tarn64f* tone, int len);

// The amplitude at a frequency, of which the left half is only half the sum; the centre tap is `centre`.
double gainAtZero(const Tarn64f* taps, int half, double centre);
double gainAtNyquist(const Tarn64f* taps, int half, double centre);
double gainAt(double freq, const Tarn64f* taps, int half, double centre, double firstDistance);

void scaleTaps(Tarn64f* taps, int count, double scale);

// taps[tapsLen - 1 - i] = sign taps[i] for the left half.
void mirrorTaps(Tarn64f* taps, int tapsLen, double sign);

} // namespace tarn
