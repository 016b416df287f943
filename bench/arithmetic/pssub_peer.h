// Plain loops beside the Sub family.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void subLoop(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len);
void subLoop(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len, int s);
void subLoop(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, int s);
void subLoop(const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len, int s);
void subConstantLoop(const Tarn32f* src, Tarn32f val, Tarn32f* dst, int len);
void subFromConstantLoop(const Tarn32f* src, Tarn32f val, Tarn32f* dst, int len);
void subFromConstantLoop(const Tarn16s* src, Tarn16s val, Tarn16s* dst, int len, int s);

} // namespace tarn::bench
