// Plain loops beside the generators: what one writes with the C++ library.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void rampLoop(Tarn32f* dst, int len, Tarn32f offset, Tarn32f slope);
void chirpLoop(Tarn32f* dst, int len, Tarn32f magn);
void chirpLoop(Tarn64f* dst, int len, Tarn64f magn);
void uniformLoop(Tarn32f* dst, int len);
void uniformLoop(Tarn64f* dst, int len);
void normalLoop(Tarn32f* dst, int len);
void normalLoop(Tarn64f* dst, int len);
/// I0 by the published polynomials, in double precision.
void kaiserLoop(const Tarn32f* src, Tarn32f* dst, int len, double alpha);
void kaiserLoop(const Tarn64f* src, Tarn64f* dst, int len, double alpha);
void kaiserLoop(const Tarn16s* src, Tarn16s* dst, int len, double alpha);

} // namespace tarn::bench
