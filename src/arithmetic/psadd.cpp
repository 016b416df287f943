// Front ends of the Add family: two vectors, a vector and a constant.
#include "tarns/arithmetic.h"
#include "tarns/data.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psadd.h"

using namespace tarn;

namespace {

// A sum has one bit more than its operands.
constexpr ScaleLimits limits_8u{9, 7};
constexpr ScaleLimits limits_16s{16, 15};
constexpr ScaleLimits limits_32s{32, 30};

constexpr VectorKernels<Tarn8u> add_8u TARN_SCALED_TABLE(ownsAdd_8u, limits_8u);
constexpr VectorKernels_I<Tarn8u> add_8u_I TARN_SCALED_TABLE(ownsAdd_8u_I, limits_8u);
constexpr VectorKernels<Tarn16s> add_16s TARN_SCALED_TABLE(ownsAdd_16s, limits_16s);
constexpr VectorKernels_I<Tarn16s> add_16s_I TARN_SCALED_TABLE(ownsAdd_16s_I, limits_16s);
constexpr VectorKernels<Tarn32s> add_32s{limits_32s,         ownsAdd_32s,        ownsAdd_32s_1Sfs,
                                         ownsAdd_32s_PosSfs, ownsAdd_32s_NegSfs, addBound_32s};
constexpr VectorKernels_I<Tarn32s> add_32s_I{limits_32s,           ownsAdd_32s_I,        ownsAdd_32s_I_1Sfs,
                                             ownsAdd_32s_I_PosSfs, ownsAdd_32s_I_NegSfs, addBound_32s_I};

constexpr ConstantKernels<Tarn8u> addC_8u TARN_SCALED_TABLE(ownsAddC_8u, limits_8u);
constexpr ConstantKernels_I<Tarn8u> addC_8u_I TARN_SCALED_TABLE(ownsAddC_8u_I, limits_8u);
constexpr ConstantKernels<Tarn16s> addC_16s TARN_SCALED_TABLE(ownsAddC_16s, limits_16s);
constexpr ConstantKernels_I<Tarn16s> addC_16s_I TARN_SCALED_TABLE(ownsAddC_16s_I, limits_16s);
constexpr ConstantKernels<Tarn16sc> addC_16sc TARN_SCALED_TABLE(ownsAddC_16sc, limits_16s);
constexpr ConstantKernels_I<Tarn16sc> addC_16sc_I TARN_SCALED_TABLE(ownsAddC_16sc_I, limits_16s);
constexpr ConstantKernels<Tarn32s> addC_32s{limits_32s,          ownsAddC_32s,        ownsAddC_32s_1Sfs,
                                            ownsAddC_32s_PosSfs, ownsAddC_32s_NegSfs, addCBound_32s};
constexpr ConstantKernels_I<Tarn32s> addC_32s_I{
    limits_32s, ownsAddC_32s_I, ownsAddC_32s_I_1Sfs, ownsAddC_32s_I_PosSfs, ownsAddC_32s_I_NegSfs, addCBound_32s_I};
constexpr ConstantKernels<Tarn32sc> addC_32sc{limits_32s,           ownsAddC_32sc,        ownsAddC_32sc_1Sfs,
                                              ownsAddC_32sc_PosSfs, ownsAddC_32sc_NegSfs, addCBound_32sc};
constexpr ConstantKernels_I<Tarn32sc> addC_32sc_I{
    limits_32s,      ownsAddC_32sc_I, ownsAddC_32sc_I_1Sfs, ownsAddC_32sc_I_PosSfs, ownsAddC_32sc_I_NegSfs,
    addCBound_32sc_I};

// Every sum of bytes with a constant above 0 is above 0, so that where the sign decides it decides alike for all.
bool fillsWithBound(Tarn8u val, int scaleFactor) { return scaleFactor < -limits_8u.up && val > 0; }

} // namespace

TarnStatus tarnsAdd_8u_Sfs(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len, int scaleFactor)
{
    return runScaled(add_8u, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsAdd_8u_ISfs(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len, int scaleFactor)
{
    return runScaled(add_8u_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAdd_8u16u(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn16u* pDst, int len)
{
    return runKernel(ownsAdd_8u16u, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_16u(const Tarn16u* pSrc1, const Tarn16u* pSrc2, Tarn16u* pDst, int len)
{
    return runKernel(ownsAdd_16u, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_16s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len)
{
    return runKernel(ownsAdd_16s, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len)
{
    return runKernel(ownsAdd_16s_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsAdd_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len, int scaleFactor)
{
    return runScaled(add_16s, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsAdd_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor)
{
    return runScaled(add_16s_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAdd_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    return runKernel(ownsAdd_16s32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, Tarn16sc* pDst, int len, int scaleFactor)
{
    return forwardParts(tarnsAdd_16s_Sfs, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsAdd_16sc_ISfs(const Tarn16sc* pSrc, Tarn16sc* pSrcDst, int len, int scaleFactor)
{
    return forwardParts(tarnsAdd_16s_ISfs, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAdd_32u(const Tarn32u* pSrc1, const Tarn32u* pSrc2, Tarn32u* pDst, int len)
{
    return runKernel(ownsAdd_32u, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pDst, int len, int scaleFactor)
{
    return runScaled(add_32s, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsAdd_32s_ISfs(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return runScaled(add_32s_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAdd_32sc_Sfs(const Tarn32sc* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len, int scaleFactor)
{
    return forwardParts(tarnsAdd_32s_Sfs, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsAdd_32sc_ISfs(const Tarn32sc* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return forwardParts(tarnsAdd_32s_ISfs, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAdd_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len)
{
    return runKernel(ownsAdd_32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len)
{
    return runKernel(ownsAdd_32f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsAdd_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len)
{
    return runKernel(ownsAdd_64f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len)
{
    return runKernel(ownsAdd_64f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsAdd_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst, int len)
{
    return forwardParts(tarnsAdd_32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_32fc_I(const Tarn32fc* pSrc, Tarn32fc* pSrcDst, int len)
{
    return forwardParts(tarnsAdd_32f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsAdd_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pDst, int len)
{
    return forwardParts(tarnsAdd_64f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsAdd_64fc_I(const Tarn64fc* pSrc, Tarn64fc* pSrcDst, int len)
{
    return forwardParts(tarnsAdd_64f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsAddC_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor)
{
    if (fillsWithBound(val, scaleFactor)) {
        const TarnStatus status = check(len, pSrc, pDst);
        return status ? status : tarnsSet_8u(255, pDst, len);
    }
    return runScaledUnlessNeutral(0, addC_8u, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsAddC_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor)
{
    if (fillsWithBound(val, scaleFactor)) {
        return tarnsSet_8u(255, pSrcDst, len);
    }
    return runScaledUnlessNeutral(0, addC_8u_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAddC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len)
{
    return runScaledUnlessNeutral(0, addC_16s_I, val, pSrcDst, len, 0);
}

TarnStatus tarnsAddC_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, addC_16s, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsAddC_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, addC_16s_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAddC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor)
{
    return runScaled(addC_16sc, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsAddC_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(addC_16sc_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAddC_32s_Sfs(const Tarn32s* pSrc, Tarn32s val, Tarn32s* pDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, addC_32s, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsAddC_32s_ISfs(Tarn32s val, Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, addC_32s_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAddC_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc val, Tarn32sc* pDst, int len, int scaleFactor)
{
    return runScaled(addC_32sc, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsAddC_32sc_ISfs(Tarn32sc val, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(addC_32sc_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsAddC_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len)
{
    return runUnlessNeutral(0, ownsAddC_32f, pSrc, val, pDst, len);
}

TarnStatus tarnsAddC_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len)
{
    return runUnlessNeutral(0, ownsAddC_32f_I, val, pSrcDst, len);
}

TarnStatus tarnsAddC_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len)
{
    return runUnlessNeutral(0, ownsAddC_64f, pSrc, val, pDst, len);
}

TarnStatus tarnsAddC_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len)
{
    return runUnlessNeutral(0, ownsAddC_64f_I, val, pSrcDst, len);
}

TarnStatus tarnsAddC_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len)
{
    return runKernel(ownsAddC_32fc, pSrc, val, pDst, len);
}

TarnStatus tarnsAddC_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len)
{
    return runKernel(ownsAddC_32fc_I, val, pSrcDst, len);
}

TarnStatus tarnsAddC_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len)
{
    return runKernel(ownsAddC_64fc, pSrc, val, pDst, len);
}

TarnStatus tarnsAddC_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len)
{
    return runKernel(ownsAddC_64fc_I, val, pSrcDst, len);
}
