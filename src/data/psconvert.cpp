// Front ends of conversion between element types.
#include "tarns/convert.h"

#include "frame/frontend.h"
#include "levels/data/psconvert.h"

using namespace tarn;

namespace {

// A scale factor outside its range stands for the nearest end of it.
struct ScaleRange {
    int lowest;
    int highest;

    constexpr int limit(int scaleFactor) const { return std::clamp(scaleFactor, lowest, highest); }
};

constexpr ScaleRange range_32s16s{-15, 31};
constexpr ScaleRange range_24{-31, 31};
constexpr ScaleRange anyScale{lowest<int>, highest<int>};

// Integers of up to b bits times a power of two remain normal floats in these ranges: the largest power that adds b to
// its exponent without overflow, the smallest that is normal.
constexpr ScaleRange range_16s32f{-(128 - 16), 126};
constexpr ScaleRange range_32s32f{-(128 - 32), 126};
constexpr ScaleRange range_16s64f{-(1024 - 16), 1022};
constexpr ScaleRange range_32s64f{-(1024 - 32), 1022};

template <typename S, typename D>
using Kernel = void (*)(const S*, D*, int);
template <typename S, typename D>
using ScaledKernel = void (*)(const S*, D*, int, int);

// Checks, then the kernel for no scale or the one that multiplies.
template <typename S, typename D>
TarnStatus runMultiplied(ScaleRange range, Kernel<S, D> plain, ScaledKernel<S, D> posNeg, const S* pSrc, D* pDst,
                         int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (scaleFactor == 0) {
        plain(pSrc, pDst, len);
    } else {
        posNeg(pSrc, pDst, len, range.limit(scaleFactor));
    }
    return tarnStsNoErr;
}

// The kernels that narrow integers by the scale rule.
template <typename S, typename D>
struct NarrowingKernels {
    ScaleRange range;
    Kernel<S, D> plain;
    ScaledKernel<S, D> pos;
    ScaledKernel<S, D> neg;
};

constexpr NarrowingKernels<Tarn32s, Tarn16s> narrow_32s16s{range_32s16s, ownsConvert_32s16s_W7,
                                                           ownsConvert_32s16s_SfsPos_W7, ownsConvert_32s16s_SfsNeg_W7};
constexpr NarrowingKernels<Tarn32s, Tarn8u> narrow_32s24s{range_24, ownsConvert_32s24s_Sfs0_W7,
                                                          ownsConvert_32s24s_SfsPos_W7, ownsConvert_32s24s_SfsNeg_W7};
constexpr NarrowingKernels<Tarn32u, Tarn8u> narrow_32u24u{range_24, ownsConvert_32u24u_Sfs0_W7,
                                                          ownsConvert_32u24u_SfsPos_W7, ownsConvert_32u24u_SfsNeg_W7};

template <typename S, typename D>
TarnStatus runNarrowing(const NarrowingKernels<S, D>& kernels, const S* pSrc, D* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    const int s = kernels.range.limit(scaleFactor);
    if (s == 0) {
        kernels.plain(pSrc, pDst, len);
    } else if (s > 0) {
        kernels.pos(pSrc, pDst, len, s);
    } else {
        kernels.neg(pSrc, pDst, len, -s);
    }
    return tarnStsNoErr;
}

// Floats to integers, rounded as told.
template <typename S, typename D>
TarnStatus runRounded(void (*plain)(const S*, D*, int, int), void (*posNeg)(const S*, D*, int, int, int), const S* pSrc,
                      D* pDst, int len, int rndMode, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (scaleFactor == 0) {
        plain(pSrc, pDst, len, rndMode);
    } else {
        posNeg(pSrc, pDst, len, rndMode, scaleFactor);
    }
    return tarnStsNoErr;
}

// Kernels that take the arguments of the call as they are.
template <typename S, typename D, typename... Further>
TarnStatus runDirect(void (*kernel)(const S*, D*, int, Further...), const S* pSrc, D* pDst, int len, Further... further)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    kernel(pSrc, pDst, len, further...);
    return tarnStsNoErr;
}

} // namespace

TarnStatus tarnsConvert_8s16s(const Tarn8s* pSrc, Tarn16s* pDst, int len)
{
    return runKernel(ownsConvert_8s16s_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_16s32s(const Tarn16s* pSrc, Tarn32s* pDst, int len)
{
    return runKernel(ownsConvert_16s32s_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_24u32u(const Tarn8u* pSrc, Tarn32u* pDst, int len)
{
    return runKernel(ownsConvert_24u32u_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_24s32s(const Tarn8u* pSrc, Tarn32s* pDst, int len)
{
    return runKernel(ownsConvert_24s32s_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_8s32f(const Tarn8s* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_8s32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_8u32f(const Tarn8u* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_8u32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_16s32f(const Tarn16s* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_16s32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_16u32f(const Tarn16u* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_16u32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_24s32f(const Tarn8u* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_24s32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_24u32f(const Tarn8u* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_24u32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_32s32f(const Tarn32s* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_32s32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_32s64f(const Tarn32s* pSrc, Tarn64f* pDst, int len)
{
    return runKernel(owntarnsCnvrt_32s64f, pSrc, pDst, len);
}

TarnStatus tarnsConvert_32f64f(const Tarn32f* pSrc, Tarn64f* pDst, int len)
{
    return runKernel(ownsConvert_32f64f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_16s32f_Sfs(const Tarn16s* pSrc, Tarn32f* pDst, int len, int scaleFactor)
{
    return runMultiplied(range_16s32f, ownsConvert_16s32f_W7, ownsConvert_16s32f_SfsPosNeg_W7, pSrc, pDst, len,
                         scaleFactor);
}

TarnStatus tarnsConvert_16s64f_Sfs(const Tarn16s* pSrc, Tarn64f* pDst, int len, int scaleFactor)
{
    return runMultiplied(range_16s64f, ownsConvert_16s64f_Sfs0_W7, ownsConvert_16s64f_SfsPosNeg_W7, pSrc, pDst, len,
                         scaleFactor);
}

TarnStatus tarnsConvert_32s32f_Sfs(const Tarn32s* pSrc, Tarn32f* pDst, int len, int scaleFactor)
{
    return runMultiplied(range_32s32f, ownsConvert_32s32f_W7, ownsConvert_32s32f_SfsPosNeg_W7, pSrc, pDst, len,
                         scaleFactor);
}

TarnStatus tarnsConvert_32s64f_Sfs(const Tarn32s* pSrc, Tarn64f* pDst, int len, int scaleFactor)
{
    return runMultiplied(range_32s64f, owntarnsCnvrt_32s64f, ownsConvert_32s64f_SfsPosNeg_W7, pSrc, pDst, len,
                         scaleFactor);
}

TarnStatus tarnsConvert_32s16s(const Tarn32s* pSrc, Tarn16s* pDst, int len)
{
    return runKernel(ownsConvert_32s16s_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_32s16s_Sfs(const Tarn32s* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    return runNarrowing(narrow_32s16s, pSrc, pDst, len, scaleFactor);
}

TarnStatus tarnsConvert_32s24s_Sfs(const Tarn32s* pSrc, Tarn8u* pDst, int len, int scaleFactor)
{
    return runNarrowing(narrow_32s24s, pSrc, pDst, len, scaleFactor);
}

TarnStatus tarnsConvert_32u24u_Sfs(const Tarn32u* pSrc, Tarn8u* pDst, int len, int scaleFactor)
{
    return runNarrowing(narrow_32u24u, pSrc, pDst, len, scaleFactor);
}

TarnStatus tarnsConvert_32f8s_Sfs(const Tarn32f* pSrc, Tarn8s* pDst, int len, int rndMode, int scaleFactor)
{
    return runRounded(ownsConvert_32f8s_Sfs0_W7, ownsConvert_32f8s_SfsPosNeg_W7, pSrc, pDst, len, rndMode, scaleFactor);
}

TarnStatus tarnsConvert_32f8u_Sfs(const Tarn32f* pSrc, Tarn8u* pDst, int len, int rndMode, int scaleFactor)
{
    return runRounded(ownsConvert_32f8u_Sfs0_W7, ownsConvert_32f8u_SfsPosNeg_W7, pSrc, pDst, len, rndMode, scaleFactor);
}

TarnStatus tarnsConvert_32f16s_Sfs(const Tarn32f* pSrc, Tarn16s* pDst, int len, int rndMode, int scaleFactor)
{
    return runRounded(ownsConvert_32f16s_Sfs0_W7, ownsConvert_32f16s_SfsPosNeg_W7, pSrc, pDst, len, rndMode,
                      scaleFactor);
}

TarnStatus tarnsConvert_32f16u_Sfs(const Tarn32f* pSrc, Tarn16u* pDst, int len, int rndMode, int scaleFactor)
{
    return runRounded(ownsConvert_32f16u_Sfs0_W7, ownsConvert_32f16u_SfsPosNeg_W7, pSrc, pDst, len, rndMode,
                      scaleFactor);
}

TarnStatus tarnsConvert_32f32s_Sfs(const Tarn32f* pSrc, Tarn32s* pDst, int len, int rndMode, int scaleFactor)
{
    return runRounded(ownsConvert_32f32s_Sfs0_W7, ownsConvert_32f32s_SfsPosNeg_W7, pSrc, pDst, len, rndMode,
                      scaleFactor);
}

TarnStatus tarnsConvert_64f32s_Sfs(const Tarn64f* pSrc, Tarn32s* pDst, int len, int rndMode, int scaleFactor)
{
    return runDirect(owntarnsCnvrt_64f32s_Sfs, pSrc, pDst, len, rndMode, scaleFactor);
}

TarnStatus tarnsConvert_32f24s_Sfs(const Tarn32f* pSrc, Tarn8u* pDst, int len, int scaleFactor)
{
    return runMultiplied(anyScale, ownsConvert_32f24s_Sfs0_W7, ownsConvert_32f24s_SfsPosNeg_W7, pSrc, pDst, len,
                         scaleFactor);
}

TarnStatus tarnsConvert_32f24u_Sfs(const Tarn32f* pSrc, Tarn8u* pDst, int len, int scaleFactor)
{
    return runMultiplied(anyScale, ownsConvert_32f24u_Sfs0_W7, ownsConvert_32f24u_SfsPosNeg_W7, pSrc, pDst, len,
                         scaleFactor);
}

TarnStatus tarnsConvert_64f32f(const Tarn64f* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_64f32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_16s16f(const Tarn16s* pSrc, Tarn16s* pDst, int len, int rndMode)
{
    return runDirect(ownsConvert_16s16f_W7, pSrc, pDst, len, rndMode);
}

TarnStatus tarnsConvert_32f16f(const Tarn32f* pSrc, Tarn16s* pDst, int len, int rndMode)
{
    return runDirect(ownsConvert_32f16f_W7, pSrc, pDst, len, rndMode);
}

TarnStatus tarnsConvert_16f32f(const Tarn16s* pSrc, Tarn32f* pDst, int len)
{
    return runKernel(ownsConvert_16f32f_W7, pSrc, pDst, len);
}

TarnStatus tarnsConvert_16f16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int rndMode, int scaleFactor)
{
    return runDirect(owntarnsCnvrt_16f16s_Sfs, pSrc, pDst, len, rndMode, scaleFactor);
}
