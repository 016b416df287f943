// Convolution as a user would write it: every output a sum.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void convolutionLoop(const Tarn32f* x, int xLen, const Tarn32f* y, int yLen, Tarn32f* dst);
void convolutionLoop(const Tarn64f* x, int xLen, const Tarn64f* y, int yLen, Tarn64f* dst);
void convolutionLoop(const Tarn16s* x, int xLen, const Tarn16s* y, int yLen, Tarn16s* dst);

/// The same with the sums of all outputs growing side by side, which the compiler makes vectors of.
void convolutionRows(const Tarn32f* x, int xLen, const Tarn32f* y, int yLen, Tarn32f* dst);

void cyclicLoop(const Tarn32f* x, const Tarn32f* y, Tarn32f* dst);
void cyclicLoop(const Tarn32f* x, const Tarn32fc* y, Tarn32fc* dst);
void cyclicLoop(const Tarn16s* x, const Tarn16s* y, Tarn16s* dst);

} // namespace tarn::bench
