// A running median as a user would write it.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

// Each window is copied, and std::nth_element finds its middle. The h = maskSize/2 results at either end are copies.
template <class T>
void nthElementLoop(const T* src, T* dst, int len, int maskSize);

} // namespace tarn::bench
