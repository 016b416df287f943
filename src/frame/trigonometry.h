// Sine and cosine of several arguments at once, for the tables that are made when an object is created.
#pragma once

#include "frame/kernels.h"

// Four sines, four cosines of single-precision arguments; two of double-precision ones. Arguments in radians, of any
// size; the error stays below 0.501 units of the element's last place.
TARN_KERNEL void zplsSin4(const Tarn32f* x, Tarn32f* y);
TARN_KERNEL void zplsCos4(const Tarn32f* x, Tarn32f* y);
TARN_KERNEL void zpldSin2(const Tarn64f* x, Tarn64f* y);
TARN_KERNEL void zpldCos2(const Tarn64f* x, Tarn64f* y);

namespace tarn {

// As many double-precision ones as there are, with the same bits. The control word is looked after once for all of
// them, and no argument waits for the one before. The results must not lie where the arguments do.
void sinesOf(const Tarn64f* x, Tarn64f* y, int count);
void cosinesOf(const Tarn64f* x, Tarn64f* y, int count);

} // namespace tarn
