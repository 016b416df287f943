// Recursive filters as a user would write them: the transposed direct form II, taps divided by a0.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

// b0..bN, a1..aN, and an accumulator more than the order.
template <class T, class S>
void iirLoop(const T* taps, int order, T* d, const S* x, S* y, int len);

// Five taps and two accumulators a section, sample by sample.
template <class T>
void cascadeLoop(const T* taps, int sections, T* d, const T* x, T* y, int len);

} // namespace tarn::bench
