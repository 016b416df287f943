// Wavelet banks as a user would write them, over whole arrays: the samples before the first one lie in front of it.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

// 2 n samples into n of each channel. The number of taps is known where it is called, or where it is compiled.
void splitLoop(const Tarn32f* tapsLow, const Tarn32f* tapsHigh, int taps, const Tarn32f* x, Tarn32f* low, Tarn32f* high,
               int n);
void splitLoopOf8(const Tarn32f* tapsLow, const Tarn32f* tapsHigh, const Tarn32f* x, Tarn32f* low, Tarn32f* high,
                  int n);

// n samples of each channel into 2 n.
void joinLoop(const Tarn32f* tapsLow, const Tarn32f* tapsHigh, int taps, const Tarn32f* low, const Tarn32f* high,
              Tarn32f* y, int n);
void joinLoopOf8(const Tarn32f* tapsLow, const Tarn32f* tapsHigh, const Tarn32f* low, const Tarn32f* high, Tarn32f* y,
                 int n);

} // namespace tarn::bench
