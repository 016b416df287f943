// Kernels of the ramps: offset + slope n.
#pragma once

#include "frame/kernels.h"

namespace tarn {

template <typename T>
void ramp(T* dst, int len, Tarn32f offset, Tarn32f slope);

} // namespace tarn
