// Plain loops beside the thresholds.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void limitLoop(const Tarn32f* src, Tarn32f* dst, int len, Tarn32f level);
void limitLoop(const Tarn64f* src, Tarn64f* dst, int len, Tarn64f level);
void limitLoop(const Tarn16s* src, Tarn16s* dst, int len, Tarn16s level);
void limitLoop(const Tarn32s* src, Tarn32s* dst, int len, Tarn32s level);
void limitLoop(const Tarn32fc* src, Tarn32fc* dst, int len, Tarn32f level);
void limitLoop(const Tarn16sc* src, Tarn16sc* dst, int len, Tarn16s level);
void replaceLoop(const Tarn32f* src, Tarn32f* dst, int len, Tarn32f level, Tarn32f value);
void replaceLoop(const Tarn16s* src, Tarn16s* dst, int len, Tarn16s level, Tarn16s value);
void invertLoop(const Tarn32f* src, Tarn32f* dst, int len, Tarn32f level);

} // namespace tarn::bench
