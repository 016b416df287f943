// Plain loops beside the Add family.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void addLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len);
void addLoop(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len);
void addLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len, int s);
void addLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, int s);
void addLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len, int s);
void addSaturatedLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len);
void addConstantLoop(const Tarn32f* src, Tarn32f val, Tarn32f* dst, int len);
void addConstantLoop(const Tarn16s* src, Tarn16s val, Tarn16s* dst, int len, int s);

} // namespace tarn::bench
