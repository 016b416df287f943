// Plain loops beside windows and tones: one cosf for every element.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void windowLoop(const Tarn16s* src, Tarn16s* dst, int len);
void windowLoop(const Tarn16sc* src, Tarn16sc* dst, int len);
void windowLoop(const Tarn32f* src, Tarn32f* dst, int len);
void windowLoop(const Tarn32fc* src, Tarn32fc* dst, int len);
void windowLoop(const Tarn64f* src, Tarn64f* dst, int len);
void windowLoop(const Tarn64fc* src, Tarn64fc* dst, int len);

void toneLoop(Tarn32f* dst, int len, Tarn32f magn, Tarn32f freq, Tarn32f phase);

} // namespace tarn::bench
