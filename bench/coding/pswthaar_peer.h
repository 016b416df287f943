// Plain loops of the Haar transform, as a user would write them.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

template <class T>
TarnStatus haarForwardLoop(const T* x, int len, T* low, T* high);
template <class T>
TarnStatus haarInverseLoop(const T* low, const T* high, T* x, int len);

} // namespace tarn::bench
