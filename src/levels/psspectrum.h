// Kernels of packed spectra: products, and expansion to all bins.
#pragma once

#include "frame/kernels.h"

TARN_KERNEL void ownsConjFlip_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len);
TARN_KERNEL void ownsConjFlip_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len);
TARN_KERNEL void ownsConjFlip_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len);

namespace tarn {

// Where a packed spectrum of `len` reals keeps what: bin 0 at position 0; of an even length the real bin len / 2 at
// `middle`, which is 0 if there is none; the (len - 1) / 2 complex bins between them in pairs from `pairs` on.
struct Packing {
    int middle, pairs;
};

constexpr Packing permPacking(int len) { return len % 2 == 0 ? Packing{1, 2} : Packing{0, 1}; }
constexpr Packing packPacking(int len) { return len % 2 == 0 ? Packing{len - 1, 1} : Packing{0, 1}; }
constexpr int pairCount(int len) { return (len - 1) / 2; }

// dst = a b, bin by bin. Either source may be the destination itself.
void multiplySpectra(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len, Packing packing);
void multiplySpectra(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len, Packing packing);
void multiplySpectra(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, Packing packing, int scaleFactor);

// srcDst = src times the conjugate of srcDst, bin by bin.
void multiplyByConjugate(const Tarn32f* src, Tarn32f* srcDst, int len, Packing packing);
void multiplyByConjugate(const Tarn64f* src, Tarn64f* srcDst, int len, Packing packing);

// All `len` bins of a packed spectrum, which may lie where the bins begin.
template <typename C>
void expandPerm(const Part<C>* src, C* dst, int len);
template <typename C>
void expandPack(const Part<C>* src, C* dst, int len);
template <typename C>
void expandCcs(const Part<C>* src, C* dst, int len);

} // namespace tarn
