// Front ends of phases, and of polar coordinates.
#include "tarns/polar.h"

#include "frame/factor.h"
#include "frame/frontend.h"
#include "levels/arithmetic/psphase.h"
#include "tarns/magnitude.h"

#include <algorithm>

using namespace tarn;

namespace {

// Above the first no phase is left, though a quarter of a turn would still round to 1; below the last a word takes
// double precision to tell what does not saturate.
constexpr int highestScale = 1;
constexpr int lowestScale = -28;
// From here on every phase but 0 saturates: the smallest are those of 1 over the largest real part.
constexpr int saturatingScale_16s = -31;
constexpr int saturatingScale_32s = -63;

// The kernels of one shape: unscaled, by a factor, and by a factor in double precision.
template <typename... S>
struct PhaseKernels {
    void (*unscaled)(S..., Tarn16s*, int);
    void (*scaled)(S..., Tarn16s*, int, Tarn32f);
    void (*byDoubles)(S..., Tarn16s*, int, Tarn64f);

    TarnStatus run(S... pSrc, Tarn16s* pDst, int len, int scaleFactor) const
    {
        if (const TarnStatus status = check(len, pSrc..., pDst)) {
            return status;
        }
        if (scaleFactor > highestScale) {
            zeroFill(pDst, len);
        } else if (scaleFactor == 0) {
            unscaled(pSrc..., pDst, len);
        } else if (scaleFactor >= lowestScale) {
            scaled(pSrc..., pDst, len, twoToMinus<Tarn32f>(scaleFactor));
        } else {
            byDoubles(pSrc..., pDst, len, twoToMinus<Tarn64f>(std::max(scaleFactor, saturatingScale_16s)));
        }
        return tarnStsNoErr;
    }
};

constexpr PhaseKernels<const Tarn16s*, const Tarn16s*> phase_16s{Pase_16sf0_A6, Pase_16s_A6, phaseByDoubles_16s};
constexpr PhaseKernels<const Tarn16sc*> phase_16sc{Pase_16scf0_A6, Pase_16sc_A6, phaseByDoubles_16sc};

// Both conversions are made whatever the first one says, and the first status that is not zero is the answer.
TarnStatus firstOf(TarnStatus magnitude, TarnStatus phase) { return magnitude != tarnStsNoErr ? magnitude : phase; }

} // namespace

TarnStatus tarnsPhase_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len, int scaleFactor)
{
    return phase_16s.run(pSrcRe, pSrcIm, pDst, len, scaleFactor);
}

TarnStatus tarnsPhase_16sc_Sfs(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    return phase_16sc.run(pSrc, pDst, len, scaleFactor);
}

TarnStatus tarnsPhase_32sc_Sfs(const Tarn32sc* pSrc, Tarn32s* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (scaleFactor > highestScale) {
        zeroFill(pDst, len);
    } else {
        Phase_32sc_W7(pSrc, pDst, len, twoToMinus<Tarn64f>(std::max(scaleFactor, saturatingScale_32s)));
    }
    return tarnStsNoErr;
}

#define TARN_PHASE_FRONT_END(S, TAG, D)                                                               \
    TarnStatus tarnsPhase_##TAG(const Tarn##S* pSrcRe, const Tarn##S* pSrcIm, Tarn##D* pDst, int len) \
    {                                                                                                 \
        return runKernel(Phase_##TAG##_W7, pSrcRe, pSrcIm, pDst, len);                                \
    }
#define TARN_COMPLEX_PHASE_FRONT_END(S, TAG, D)                              \
    TarnStatus tarnsPhase_##TAG(const Tarn##S* pSrc, Tarn##D* pDst, int len) \
    {                                                                        \
        return runKernel(Phase_##TAG##_W7, pSrc, pDst, len);                 \
    }
TARN_PHASE_FRONT_END(16s, 16s32f, 32f)
TARN_PHASE_FRONT_END(32f, 32f, 32f)
TARN_PHASE_FRONT_END(64f, 64f, 64f)
TARN_COMPLEX_PHASE_FRONT_END(16sc, 16sc32f, 32f)
TARN_COMPLEX_PHASE_FRONT_END(32fc, 32fc, 32f)
TARN_COMPLEX_PHASE_FRONT_END(64fc, 64fc, 64f)

#define TARN_POLAR_FRONT_ENDS(R, C)                                                                            \
    TarnStatus tarnsCartToPolar_##R(const Tarn##R* pSrcRe, const Tarn##R* pSrcIm, Tarn##R* pDstMagn,           \
                                    Tarn##R* pDstPhase, int len)                                               \
    {                                                                                                          \
        const TarnStatus magnitude = tarnsMagnitude_##R(pSrcRe, pSrcIm, pDstMagn, len);                        \
        return firstOf(magnitude, tarnsPhase_##R(pSrcRe, pSrcIm, pDstPhase, len));                             \
    }                                                                                                          \
    TarnStatus tarnsCartToPolar_##C(const Tarn##C* pSrc, Tarn##R* pDstMagn, Tarn##R* pDstPhase, int len)       \
    {                                                                                                          \
        const TarnStatus magnitude = tarnsMagnitude_##C(pSrc, pDstMagn, len);                                  \
        return firstOf(magnitude, tarnsPhase_##C(pSrc, pDstPhase, len));                                       \
    }                                                                                                          \
    TarnStatus tarnsPolarToCart_##R(const Tarn##R* pSrcMagn, const Tarn##R* pSrcPhase, Tarn##R* pDstRe,        \
                                    Tarn##R* pDstIm, int len)                                                  \
    {                                                                                                          \
        if (const TarnStatus status = check(len, pSrcMagn, pSrcPhase, pDstRe, pDstIm)) {                       \
            return status;                                                                                     \
        }                                                                                                      \
        Plr2Crt_##R(pSrcMagn, pSrcPhase, pDstRe, pDstIm, len);                                                 \
        return tarnStsNoErr;                                                                                   \
    }                                                                                                          \
    TarnStatus tarnsPolarToCart_##C(const Tarn##R* pSrcMagn, const Tarn##R* pSrcPhase, Tarn##C* pDst, int len) \
    {                                                                                                          \
        return runKernel(Plr2Crt_##C, pSrcMagn, pSrcPhase, pDst, len);                                         \
    }
TARN_POLAR_FRONT_ENDS(32f, 32fc)
TARN_POLAR_FRONT_ENDS(64f, 64fc)
