// Front ends of the Sub family: a vector from a vector, a constant from a vector, a vector from a constant.
#include "tarns/subtract.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psadd.h"
#include "levels/arithmetic/pssub.h"

using namespace tarn;

namespace {

constexpr VectorKernels<Tarn8u> sub_8u TARN_SCALED_TABLE(ownsSub_8u, differenceLimits_8u);
constexpr VectorKernels_I<Tarn8u> sub_8u_I TARN_SCALED_TABLE(ownsSub_8u_I, differenceLimits_8u);
constexpr VectorKernels<Tarn16s> sub_16s TARN_SCALED_TABLE(ownsSub_16s, differenceLimits_16s);
constexpr VectorKernels_I<Tarn16s> sub_16s_I TARN_SCALED_TABLE(ownsSub_16s_I, differenceLimits_16s);
constexpr VectorKernels<Tarn32s> sub_32s{differenceLimits_32s, ownsSub_32s,        ownsSub_32s_1Sfs,
                                         ownsSub_32s_PosSfs,   ownsSub_32s_NegSfs, subBound_32s};
constexpr VectorKernels_I<Tarn32s> sub_32s_I{differenceLimits_32s, ownsSub_32s_I,        ownsSub_32s_I_1Sfs,
                                             ownsSub_32s_I_PosSfs, ownsSub_32s_I_NegSfs, subBound_32s_I};

constexpr ConstantKernels<Tarn8u> subC_8u TARN_SCALED_TABLE(ownsSubC_8u, differenceLimits_8u);
constexpr ConstantKernels_I<Tarn8u> subC_8u_I TARN_SCALED_TABLE(ownsSubC_8u_I, differenceLimits_8u);
constexpr ConstantKernels<Tarn16s> subC_16s TARN_SCALED_TABLE(ownsSubC_16s, differenceLimits_16s);
constexpr ConstantKernels_I<Tarn16s> subC_16s_I TARN_SCALED_TABLE(ownsSubC_16s_I, differenceLimits_16s);
constexpr ConstantKernels_I<Tarn16sc> subC_16sc_I TARN_SCALED_TABLE(ownsSubC_16sc_I, differenceLimits_16s);
constexpr ConstantKernels<Tarn32s> subC_32s{differenceLimits_32s, ownsSubC_32s,        ownsSubC_32s_1Sfs,
                                            ownsSubC_32s_PosSfs,  ownsSubC_32s_NegSfs, subCBound_32s};
constexpr ConstantKernels_I<Tarn32s> subC_32s_I{differenceLimits_32s,  ownsSubC_32s_I,        ownsSubC_32s_I_1Sfs,
                                                ownsSubC_32s_I_PosSfs, ownsSubC_32s_I_NegSfs, subCBound_32s_I};
constexpr ConstantKernels<Tarn32sc> subC_32sc{differenceLimits_32s, ownsSubC_32sc,        ownsSubC_32sc_1Sfs,
                                              ownsSubC_32sc_PosSfs, ownsSubC_32sc_NegSfs, subCBound_32sc};
constexpr ConstantKernels_I<Tarn32sc> subC_32sc_I{differenceLimits_32s,   ownsSubC_32sc_I,        ownsSubC_32sc_I_1Sfs,
                                                  ownsSubC_32sc_I_PosSfs, ownsSubC_32sc_I_NegSfs, subCBound_32sc_I};

constexpr ConstantKernels_I<Tarn16s> subCRev_16s_I TARN_SCALED_TABLE(ownsSubCRev_16s_I, differenceLimits_16s);
constexpr ConstantKernels_I<Tarn16sc> subCRev_16sc_I TARN_SCALED_TABLE(ownsSubCRev_16sc_I, differenceLimits_16s);
constexpr ConstantKernels<Tarn32s> subCRev_32s{differenceLimits_32s,   ownsSubCRev_32s,        ownsSubCRev_32s_1Sfs,
                                               ownsSubCRev_32s_PosSfs, ownsSubCRev_32s_NegSfs, subCRevBound_32s};
constexpr ConstantKernels_I<Tarn32s> subCRev_32s_I{differenceLimits_32s,     ownsSubCRev_32s_I,
                                                   ownsSubCRev_32s_I_1Sfs,   ownsSubCRev_32s_I_PosSfs,
                                                   ownsSubCRev_32s_I_NegSfs, subCRevBound_32s_I};
constexpr ConstantKernels<Tarn32sc> subCRev_32sc{differenceLimits_32s,    ownsSubCRev_32sc,
                                                 ownsSubCRev_32sc_1Sfs,   ownsSubCRev_32sc_PosSfs,
                                                 ownsSubCRev_32sc_NegSfs, subCRevBound_32sc};
constexpr ConstantKernels_I<Tarn32sc> subCRev_32sc_I{differenceLimits_32s,      ownsSubCRev_32sc_I,
                                                     ownsSubCRev_32sc_I_1Sfs,   ownsSubCRev_32sc_I_PosSfs,
                                                     ownsSubCRev_32sc_I_NegSfs, subCRevBound_32sc_I};

// Where the sign decides, bytes from which nothing is taken are above 0 or 0, as those to which nothing is added.
bool passesSign(Tarn8u val, int scaleFactor) { return scaleFactor < -differenceLimits_8u.up && val == 0; }

} // namespace

TarnStatus tarnsSub_8u_Sfs(const Tarn8u* pSrc1, const Tarn8u* pSrc2, Tarn8u* pDst, int len, int scaleFactor)
{
    return runScaled(sub_8u, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsSub_8u_ISfs(const Tarn8u* pSrc, Tarn8u* pSrcDst, int len, int scaleFactor)
{
    return runScaled(sub_8u_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSub_16s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len)
{
    return runKernel(ownsSub_16s, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsSub_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len)
{
    return runKernel(ownsSub_16s_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsSub_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len, int scaleFactor)
{
    return runScaled(sub_16s, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsSub_16s_ISfs(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len, int scaleFactor)
{
    return runScaled(sub_16s_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSub_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn32f* pDst, int len)
{
    return runKernel(ownsSub_16s32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsSub_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, Tarn16sc* pDst, int len, int scaleFactor)
{
    return forwardParts(tarnsSub_16s_Sfs, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsSub_16sc_ISfs(const Tarn16sc* pSrc, Tarn16sc* pSrcDst, int len, int scaleFactor)
{
    return forwardParts(tarnsSub_16s_ISfs, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSub_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, Tarn32s* pDst, int len, int scaleFactor)
{
    return runScaled(sub_32s, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsSub_32s_ISfs(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return runScaled(sub_32s_I, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSub_32sc_Sfs(const Tarn32sc* pSrc1, const Tarn32sc* pSrc2, Tarn32sc* pDst, int len, int scaleFactor)
{
    return forwardParts(tarnsSub_32s_Sfs, pSrc1, pSrc2, pDst, len, scaleFactor);
}

TarnStatus tarnsSub_32sc_ISfs(const Tarn32sc* pSrc, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return forwardParts(tarnsSub_32s_ISfs, pSrc, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSub_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len)
{
    return runKernel(ownsSub_32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsSub_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len)
{
    return runKernel(ownsSub_32f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsSub_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, Tarn64f* pDst, int len)
{
    return runKernel(ownsSub_64f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsSub_64f_I(const Tarn64f* pSrc, Tarn64f* pSrcDst, int len)
{
    return runKernel(ownsSub_64f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsSub_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst, int len)
{
    return forwardParts(tarnsSub_32f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsSub_32fc_I(const Tarn32fc* pSrc, Tarn32fc* pSrcDst, int len)
{
    return forwardParts(tarnsSub_32f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsSub_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, Tarn64fc* pDst, int len)
{
    return forwardParts(tarnsSub_64f, pSrc1, pSrc2, pDst, len);
}

TarnStatus tarnsSub_64fc_I(const Tarn64fc* pSrc, Tarn64fc* pSrcDst, int len)
{
    return forwardParts(tarnsSub_64f_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsSubC_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor)
{
    if (passesSign(val, scaleFactor)) {
        return runKernel(ownsAddC_8u_Bound, pSrc, val, pDst, len);
    }
    return runScaledUnlessNeutral(0, subC_8u, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubC_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, subC_8u_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len)
{
    return runScaledUnlessNeutral(0, subC_16s_I, val, pSrcDst, len, 0);
}

TarnStatus tarnsSubC_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, subC_16s, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubC_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, subC_16s_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor)
{
    return runScaled(subC_16sc, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubC_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(subC_16sc_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubC_32s_Sfs(const Tarn32s* pSrc, Tarn32s val, Tarn32s* pDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, subC_32s, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubC_32s_ISfs(Tarn32s val, Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return runScaledUnlessNeutral(0, subC_32s_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubC_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc val, Tarn32sc* pDst, int len, int scaleFactor)
{
    return runScaled(subC_32sc, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubC_32sc_ISfs(Tarn32sc val, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(subC_32sc_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubC_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len)
{
    return runUnlessNeutral(0, ownsSubC_32f, pSrc, val, pDst, len);
}

TarnStatus tarnsSubC_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len)
{
    return runUnlessNeutral(0, ownsSubC_32f_I, val, pSrcDst, len);
}

TarnStatus tarnsSubC_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len)
{
    return runUnlessNeutral(0, ownsSubC_64f, pSrc, val, pDst, len);
}

TarnStatus tarnsSubC_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len)
{
    return runUnlessNeutral(0, ownsSubC_64f_I, val, pSrcDst, len);
}

TarnStatus tarnsSubC_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len)
{
    return runKernel(ownsSubC_32fc, pSrc, val, pDst, len);
}

TarnStatus tarnsSubC_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len)
{
    return runKernel(ownsSubC_32fc_I, val, pSrcDst, len);
}

TarnStatus tarnsSubC_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len)
{
    return runKernel(ownsSubC_64fc, pSrc, val, pDst, len);
}

TarnStatus tarnsSubC_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len)
{
    return runKernel(ownsSubC_64fc_I, val, pSrcDst, len);
}

TarnStatus tarnsSubCRev_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor)
{
    return runScaled(subCRev_8u, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor)
{
    return runScaled(subCRev_8u_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor)
{
    return runScaled(subCRev_16s, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor)
{
    return runScaled(subCRev_16s_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor)
{
    return runScaled(subCRev_16sc, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(subCRev_16sc_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_32s_Sfs(const Tarn32s* pSrc, Tarn32s val, Tarn32s* pDst, int len, int scaleFactor)
{
    return runScaled(subCRev_32s, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_32s_ISfs(Tarn32s val, Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return runScaled(subCRev_32s_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc val, Tarn32sc* pDst, int len, int scaleFactor)
{
    return runScaled(subCRev_32sc, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_32sc_ISfs(Tarn32sc val, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(subCRev_32sc_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsSubCRev_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len)
{
    return runKernel(ownsSubCRev_32f, pSrc, val, pDst, len);
}

TarnStatus tarnsSubCRev_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len)
{
    return runKernel(ownsSubCRev_32f_I, val, pSrcDst, len);
}

TarnStatus tarnsSubCRev_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len)
{
    return runKernel(ownsSubCRev_64f, pSrc, val, pDst, len);
}

TarnStatus tarnsSubCRev_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len)
{
    return runKernel(ownsSubCRev_64f_I, val, pSrcDst, len);
}

TarnStatus tarnsSubCRev_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len)
{
    return runKernel(ownsSubCRev_32fc, pSrc, val, pDst, len);
}

TarnStatus tarnsSubCRev_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len)
{
    return runKernel(ownsSubCRev_32fc_I, val, pSrcDst, len);
}

TarnStatus tarnsSubCRev_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len)
{
    return runKernel(ownsSubCRev_64fc, pSrc, val, pDst, len);
}

TarnStatus tarnsSubCRev_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len)
{
    return runKernel(ownsSubCRev_64fc_I, val, pSrcDst, len);
}
