// Sums of products of two sequences that lie against each other at many distances: what correlations and convolutions
// are made of when they are computed directly.
//
// The order of the additions is part of the result. The terms of an output are added in the order of x, in runs of
// termsOfRun elements of x, each run beginning with zero; the runs' sums are added to the destination one after the
// other. So an output depends neither on those beside it nor on the width of a vector, and the sum of a long signal
// loses no more than that of its runs.
#pragma once

#include "frame/simd.h"

namespace tarn {

inline constexpr int termsOfRun = 256;

// Where the first result goes: backwards, the last element of the destination.
enum class Results { forward, backward };

// Adds the sum over i of conj(x[i]) s[lag + n + i] to dst[n], n from 0 to len - 1, with zero outside s. Backwards it is
// the conjugate of the sum that goes to dst[len - 1 - n]. S is T, or a type of which each element is one of T.
//
// Complex sums are sums of real products: those with the real parts of x, and those with the imaginary ones.
template <typename T, typename S>
void addCorrelation(const S* x, int xLen, const S* s, int sLen, T* dst, int len, long long lag,
                    Results results = Results::forward);

// Adds the sum over j of x[j] s[n - j] to dst[n], n from 0 to len - 1, with zero outside s.
template <typename T>
void addConvolution(const T* x, int xLen, const T* s, int sLen, T* dst, int len);

} // namespace tarn
