// Correlations as a user would write them: every lag a sum.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void correlationLoop(const Tarn32f* x, int xLen, const Tarn32f* y, int yLen, Tarn32f* dst, int dstLen, int lowLag);
void correlationLoop(const Tarn64f* x, int xLen, const Tarn64f* y, int yLen, Tarn64f* dst, int dstLen, int lowLag);
void correlationLoop(const Tarn32fc* x, int xLen, const Tarn32fc* y, int yLen, Tarn32fc* dst, int dstLen, int lowLag);
void correlationLoop(const Tarn16s* x, int xLen, const Tarn16s* y, int yLen, Tarn16s* dst, int dstLen, int lowLag);

} // namespace tarn::bench
