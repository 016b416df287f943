// Plain loops for reductions, as a user would write them.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

// With leave to reorder: the compiler sums in lanes.
void sumLoop(const Tarn32f* x, int len, Tarn32f* sum);
void dotLoop(const Tarn32f* x, const Tarn32f* y, int len, Tarn32f* dot);
void dotLoop(const Tarn64f* x, const Tarn64f* y, int len, Tarn64f* dot);
void deviationLoop(const Tarn32f* x, int len, Tarn32f* deviation);
void normLoop(const Tarn32f* x, int len, Tarn32f* norm);

// In the order of the source.
void sumExtendedLoop(const Tarn32f* x, int len, Tarn32f* sum);
void logLoop(const Tarn32f* x, int len, Tarn32f* sum);
void sumLoop(const Tarn16s* x, int len, Tarn32s* sum);
void sumLoop(const Tarn32s* x, int len, Tarn32s* sum);
void dotLoop(const Tarn16s* x, const Tarn16s* y, int len, Tarn64s* dot);
void dotScaledLoop(const Tarn16s* x, const Tarn16s* y, int len, Tarn16s* dot);
void largestLoop(const Tarn32f* x, int len, Tarn32f* largest);
void smallestIndexLoop(const Tarn16s* x, int len, int* index);

// Smallest and largest element.
template <typename T>
void extremesLoop(const T* x, int len, T* extremes);

} // namespace tarn::bench
