// Kernels that add a product of two vectors to a third one.
#pragma once

#include "frame/kernels.h"

namespace tarn {

// An array that is the last operand and the destination as well, behind two others.
template <typename D>
struct Accumulator {
    D* array;
};
template <typename D>
Accumulator(D*) -> Accumulator<D>;

template <typename Operation, typename T, typename D>
TARN_INLINE void apply(Operation operation, const T* pSrc1, const T* pSrc2, Accumulator<D> sum, int len)
{
    walk(sum.array, len, operation, pSrc1, pSrc2, sum.array);
}

} // namespace tarn

#define TARN_ACCUMULATE_PARAMETERS(T) const T *pSrc1, const T *pSrc2, T *pSrcDst, int len
#define TARN_ACCUMULATE_ARGUMENTS pSrc1, pSrc2, tarn::Accumulator{pSrcDst}, len
#define TARN_ACCUMULATE_32S_PARAMETERS(T) const T *pSrc1, const T *pSrc2, Tarn32s *pSrcDst, int len
#define TARN_ACCUMULATE_32S_ARGUMENTS pSrc1, pSrc2, tarn::Accumulator{pSrcDst}, len

TARN_DECLARE_SCALED_KERNELS(ownsAddProduct_16s, ACCUMULATE, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsAddProduct_16s32s, ACCUMULATE_32S, Tarn16s);
TARN_DECLARE_SCALED_KERNELS(ownsAddProduct_32s, ACCUMULATE, Tarn32s);
TARN_DECLARE_KERNEL(ownsAddProduct_16s_Bound, ACCUMULATE, Tarn16s);
TARN_DECLARE_KERNEL(ownsAddProduct_32fc, ACCUMULATE, Tarn32fc);
TARN_DECLARE_KERNEL(ownsAddProduct_64fc, ACCUMULATE, Tarn64fc);

// Kernels without exported names.
namespace tarn {
void addProductBound_16s32s(TARN_ACCUMULATE_32S_PARAMETERS(Tarn16s));
void addProductBound_32s(TARN_ACCUMULATE_PARAMETERS(Tarn32s));
void addProduct_32f(TARN_ACCUMULATE_PARAMETERS(Tarn32f));
void addProduct_64f(TARN_ACCUMULATE_PARAMETERS(Tarn64f));
} // namespace tarn
