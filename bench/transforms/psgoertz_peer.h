// Plain loops of single bins: the recurrence in double precision, from exp(i w).
#pragma once

#include "tarncore.h"

namespace tarn::bench {

Tarn64fc goertzelLoop(const Tarn32f* src, int len, Tarn64fc turn);
Tarn64fc goertzelLoop(const Tarn32fc* src, int len, Tarn64fc turn);
Tarn64fc goertzelLoop(const Tarn64fc* src, int len, Tarn64fc turn);
Tarn64fc goertzelLoop(const Tarn16s* src, int len, Tarn64fc turn);
Tarn64fc goertzelLoop(const Tarn16sc* src, int len, Tarn64fc turn);

} // namespace tarn::bench
