// The transforms that filters and convolutions are computed by, for a type of elements.
#pragma once

#include "frame/object.h"
#include "levels/fft/psfft_kinds.h"
#include "tarns/fft.h"
#include "tarns/multiply.h"
#include "tarns/spectrum.h"

namespace tarn {

// The calls for a type. The spectrum of real data is in Perm format.
template <typename T>
struct TransformCalls;

template <>
struct TransformCalls<Tarn32f> {
    using Spec = TransformOf<Tarn32f>::Spec;
    static constexpr auto initAlloc = tarnsFFTInitAlloc_R_32f;
    static constexpr auto getBufSize = tarnsFFTGetBufSize_R_32f;
    static constexpr auto forward = tarnsFFTFwd_RToPerm_32f;
    static constexpr auto multiply = tarnsMulPerm_32f_I;
    static constexpr auto inverse = tarnsFFTInv_PermToR_32f;
    static constexpr auto free = tarnsFFTFree_R_32f;
};
template <>
struct TransformCalls<Tarn32fc> {
    using Spec = TransformOf<Tarn32fc>::Spec;
    static constexpr auto initAlloc = tarnsFFTInitAlloc_C_32fc;
    static constexpr auto getBufSize = tarnsFFTGetBufSize_C_32fc;
    static constexpr auto forward = tarnsFFTFwd_CToC_32fc;
    static constexpr auto multiply = tarnsMul_32fc_I;
    static constexpr auto inverse = tarnsFFTInv_CToC_32fc;
    static constexpr auto free = tarnsFFTFree_C_32fc;
};
template <>
struct TransformCalls<Tarn64f> {
    using Spec = TransformOf<Tarn64f>::Spec;
    static constexpr auto initAlloc = tarnsFFTInitAlloc_R_64f;
    static constexpr auto getBufSize = tarnsFFTGetBufSize_R_64f;
    static constexpr auto forward = tarnsFFTFwd_RToPerm_64f;
    static constexpr auto multiply = tarnsMulPerm_64f_I;
    static constexpr auto inverse = tarnsFFTInv_PermToR_64f;
    static constexpr auto free = tarnsFFTFree_R_64f;
};
template <>
struct TransformCalls<Tarn64fc> {
    using Spec = TransformOf<Tarn64fc>::Spec;
    static constexpr auto initAlloc = tarnsFFTInitAlloc_C_64fc;
    static constexpr auto getBufSize = tarnsFFTGetBufSize_C_64fc;
    static constexpr auto forward = tarnsFFTFwd_CToC_64fc;
    static constexpr auto multiply = tarnsMul_64fc_I;
    static constexpr auto inverse = tarnsFFTInv_CToC_64fc;
    static constexpr auto free = tarnsFFTFree_C_64fc;
};

// A specification with an owner.
template <typename T>
struct ReleaseSpec {
    void operator()(typename TransformOf<T>::Spec* spec) const { TransformCalls<T>::free(spec); }
};
template <typename T>
using OwnedSpec = std::unique_ptr<typename TransformOf<T>::Spec, ReleaseSpec<T>>;

} // namespace tarn
