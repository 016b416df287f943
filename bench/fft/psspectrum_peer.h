// Plain loops beside the operations on packed spectra.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void mulPermLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len);
void mulPermLoop(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len);
void mulPermLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, int shift);
void mulPackLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len);
void mulPackConjLoop(const Tarn32f* src, Tarn32f* srcDst, int len);

void conjPermLoop(const Tarn32f* src, Tarn32fc* dst, int len);
void conjPermLoop(const Tarn64f* src, Tarn64fc* dst, int len);
void conjPermLoop(const Tarn16s* src, Tarn16sc* dst, int len);
void conjPackLoop(const Tarn32f* src, Tarn32fc* dst, int len);

void conjFlipLoop(const Tarn32fc* src, Tarn32fc* dst, int len);
void conjFlipLoop(const Tarn16sc* src, Tarn16sc* dst, int len);

} // namespace tarn::bench
