// Plain loops of running averages and of pre-emphasis, as a user would write them.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void linearLoop_32f(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha);
void linearLoop_64f(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha);
void powerLoop_32f(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha);
void powerLoop_64f(const Tarn16s* x, int len, Tarn32s* average, int shift, Tarn16s alpha);

void emphasisLoop(Tarn32f* x, int len, Tarn32f val);
void emphasisLoop(Tarn16s* x, int len, Tarn32f val);

} // namespace tarn::bench
