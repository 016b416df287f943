// Front ends of norms.
#include "tarns/norms.h"

#include "frame/checks.h"
#include "frame/scale_total.h"
#include "frame/simd.h"
#include "levels/statistics/psnorm.h"

using namespace tarn;

namespace {

// -- Scale factors of norms: they truncate ---------------------------------------------------------------------------

// A 32-bit norm. Unscaled it is taken as it is.
Tarn32s scaleNorm(Tarn32u value, int scaleFactor)
{
    if (scaleFactor >= 0) {
        return static_cast<Tarn32s>(ShiftRight::of(value, scaleFactor));
    }
    const int n = -std::max(scaleFactor, -31);
    return static_cast<Tarn32s>(std::min(Tarn64s{value} << n, Tarn64s{highest<Tarn32s>}));
}

// The sum over a long vector, which has up to 47 bits.
Tarn32s scaleNorm(Tarn64s value, int scaleFactor)
{
    if (scaleFactor >= 0) {
        value >>= std::min(scaleFactor, 63);
        return static_cast<Tarn32s>(std::min(value, Tarn64s{highest<Tarn32s>}));
    }
    const int n = -std::max(scaleFactor, -32);
    return value > (Tarn64s{highest<Tarn32s>} >> n) ? highest<Tarn32s> : static_cast<Tarn32s>(value << n);
}

// The signed power of two that a factor stands for: its exponent modulo 32 in a 32-bit integer, so that 32 is as good
// as 0, and 31 is negative.
Tarn64f powerOfFactor(int scaleFactor) { return static_cast<Tarn32s>(1U << (magnitudeOf(scaleFactor) % 32)); }

Tarn32s scaleRoot(Tarn64f root, int scaleFactor)
{
    const Tarn64f power = powerOfFactor(scaleFactor);
    const Tarn64f scaled = scaleFactor > 0 ? root / power : root * power;
    return scaled > highest<Tarn32s> ? highest<Tarn32s> : truncateToInteger(scaled);
}

// A 64-bit integer as a float, rounded once.
Tarn32f toFloat(Tarn64s value) { return static_cast<Tarn32f>(static_cast<long double>(value)); }

// As a signed integer, and 2^32 added to a negative one: two roundings where the top bit is set.
Tarn32f toFloat(Tarn32u value)
{
    const auto x = static_cast<Tarn32f>(static_cast<Tarn32s>(value));
    return value > static_cast<Tarn32u>(highest<Tarn32s>) ? x + 4294967296.0F : x;
}

// -- Sums over 16-bit vectors ----------------------------------------------------------------------------------------

// So many magnitudes fit an unsigned 32-bit sum.
constexpr int longestShortSum = 65536;

// What a kernel makes of one vector, or of the difference of two.
template <typename X, typename Kernel, typename... S>
X valueOf(Kernel kernel, int len, S... src)
{
    X value;
    kernel(src..., len, &value);
    return value;
}

// The sum of magnitudes, as `finish` makes a result of it.
template <typename Finish, typename Kernel, typename... S>
auto finishSum(Finish finish, Kernel kernel, int len, S... src)
{
    if (len <= longestShortSum) {
        return finish(valueOf<Tarn32u>(kernel, len, src...));
    }
    Tarn64s sum = 0;
    for (int i = 0, taken = 0; i < len; i += taken) {
        taken = std::min(len - i, longestShortSum);
        sum += valueOf<Tarn32u>(kernel, taken, (src + i)...);
    }
    return finish(sum);
}

// What becomes of an exact sum.
struct AsFloat {
    template <typename X>
    Tarn32f operator()(X value) const
    {
        return toFloat(value);
    }
};
struct Scaled {
    int scaleFactor;
    template <typename X>
    Tarn32s operator()(X value) const
    {
        return scaleNorm(value, scaleFactor);
    }
};

Tarn64f rootOf(Tarn64s sumOfSquares) { return squareRoot(static_cast<Tarn64f>(sumOfSquares)); }

// Checks, and a kernel that takes the call's own arguments.
template <typename T, typename D>
TarnStatus norm(void (*kernel)(const T*, int, D*), const T* pSrc, int len, D* pNorm)
{
    if (const TarnStatus status = check(len, pSrc, pNorm)) {
        return status;
    }
    kernel(pSrc, len, pNorm);
    return tarnStsNoErr;
}
template <typename T, typename D>
TarnStatus normDiff(void (*kernel)(const T*, const T*, int, D*), const T* pSrc1, const T* pSrc2, int len, D* pNorm)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pNorm)) {
        return status;
    }
    kernel(pSrc1, pSrc2, len, pNorm);
    return tarnStsNoErr;
}

} // namespace

TarnStatus tarnsNorm_Inf_32f(const Tarn32f* pSrc, int len, Tarn32f* pNorm)
{
    return norm(ownps_Norm_Inf_32f, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_Inf_64f(const Tarn64f* pSrc, int len, Tarn64f* pNorm)
{
    return norm(ownps_Norm_Inf_64f, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_Inf_32fc32f(const Tarn32fc* pSrc, int len, Tarn32f* pNorm)
{
    return norm(Norm_32fc_Inf_T7, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_Inf_64fc64f(const Tarn64fc* pSrc, int len, Tarn64f* pNorm)
{
    return norm(Norm_64fc_Inf_T7, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_L1_32f(const Tarn32f* pSrc, int len, Tarn32f* pNorm)
{
    return norm(ownps_Norm_L1_32f, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_L1_64f(const Tarn64f* pSrc, int len, Tarn64f* pNorm)
{
    return norm(ownps_Norm_L1_64f, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_L1_32fc64f(const Tarn32fc* pSrc, int len, Tarn64f* pNorm)
{
    return norm(Norm_32fc_L1_T7, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_L1_64fc64f(const Tarn64fc* pSrc, int len, Tarn64f* pNorm)
{
    return norm(Norm_64fc_L1_T7, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_L2_32f(const Tarn32f* pSrc, int len, Tarn32f* pNorm)
{
    return norm(ownps_Norm_L2_32f, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_L2_64f(const Tarn64f* pSrc, int len, Tarn64f* pNorm)
{
    return norm(ownps_Norm_L2_64f, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_L2_32fc64f(const Tarn32fc* pSrc, int len, Tarn64f* pNorm)
{
    return norm(Norm_32fc_L2_T7, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_L2_64fc64f(const Tarn64fc* pSrc, int len, Tarn64f* pNorm)
{
    return norm(Norm_64fc_L2_T7, pSrc, len, pNorm);
}

TarnStatus tarnsNorm_Inf_16s32f(const Tarn16s* pSrc, int len, Tarn32f* pNorm)
{
    if (const TarnStatus status = check(len, pSrc, pNorm)) {
        return status;
    }
    store(pNorm, static_cast<Tarn32f>(valueOf<Tarn32s>(ownps_Norm_Inf_16s32s, len, pSrc)));
    return tarnStsNoErr;
}

TarnStatus tarnsNorm_Inf_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pNorm, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pNorm)) {
        return status;
    }
    store(pNorm, scaleNorm(static_cast<Tarn32u>(valueOf<Tarn32s>(ownps_Norm_Inf_16s32s, len, pSrc)), scaleFactor));
    return tarnStsNoErr;
}

TarnStatus tarnsNorm_L1_16s32f(const Tarn16s* pSrc, int len, Tarn32f* pNorm)
{
    if (const TarnStatus status = check(len, pSrc, pNorm)) {
        return status;
    }
    store(pNorm, finishSum(AsFloat{}, ownps_Norm_L1_16s32u, len, pSrc));
    return tarnStsNoErr;
}

TarnStatus tarnsNorm_L1_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pNorm, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pNorm)) {
        return status;
    }
    store(pNorm, finishSum(Scaled{scaleFactor}, ownps_Norm_L1_16s32u, len, pSrc));
    return tarnStsNoErr;
}

TarnStatus tarnsNorm_L2_16s32f(const Tarn16s* pSrc, int len, Tarn32f* pNorm)
{
    if (const TarnStatus status = check(len, pSrc, pNorm)) {
        return status;
    }
    store(pNorm, static_cast<Tarn32f>(rootOf(valueOf<Tarn64s>(ownps_Norm_L2_16s64s, len, pSrc))));
    return tarnStsNoErr;
}

TarnStatus tarnsNorm_L2_16s32s_Sfs(const Tarn16s* pSrc, int len, Tarn32s* pNorm, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pNorm)) {
        return status;
    }
    store(pNorm, scaleRoot(rootOf(valueOf<Tarn64s>(ownps_Norm_L2_16s64s, len, pSrc)), scaleFactor));
    return tarnStsNoErr;
}

TarnStatus tarnsNormDiff_Inf_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn32f* pNorm)
{
    return normDiff(ownps_NormDiff_Inf_32f, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_Inf_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, int len, Tarn64f* pNorm)
{
    return normDiff(ownps_NormDiff_Inf_64f, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_Inf_32fc32f(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn32f* pNorm)
{
    return normDiff(NormDiff_32fc_Inf_T7, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_Inf_64fc64f(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64f* pNorm)
{
    return normDiff(NormDiff_64fc_Inf_T7, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_L1_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn32f* pNorm)
{
    return normDiff(ownps_NormDiff_L1_32f, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_L1_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, int len, Tarn64f* pNorm)
{
    return normDiff(ownps_NormDiff_L1_64f, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_L1_32fc64f(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn64f* pNorm)
{
    return normDiff(NormDiff_32fc_L1_T7, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_L1_64fc64f(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64f* pNorm)
{
    return normDiff(NormDiff_64fc_L1_T7, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_L2_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn32f* pNorm)
{
    return normDiff(ownps_NormDiff_L2_32f, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_L2_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, int len, Tarn64f* pNorm)
{
    return normDiff(ownps_NormDiff_L2_64f, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_L2_32fc64f(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn64f* pNorm)
{
    return normDiff(NormDiff_32fc_L2_T7, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_L2_64fc64f(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64f* pNorm)
{
    return normDiff(NormDiff_64fc_L2_T7, pSrc1, pSrc2, len, pNorm);
}

TarnStatus tarnsNormDiff_Inf_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32f* pNorm)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pNorm)) {
        return status;
    }
    store(pNorm, static_cast<Tarn32f>(valueOf<Tarn32s>(ownps_NormDiff_Inf_16s32s, len, pSrc1, pSrc2)));
    return tarnStsNoErr;
}

TarnStatus tarnsNormDiff_Inf_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32s* pNorm,
                                        int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pNorm)) {
        return status;
    }
    store(pNorm,
          scaleNorm(static_cast<Tarn32u>(valueOf<Tarn32s>(ownps_NormDiff_Inf_16s32s, len, pSrc1, pSrc2)), scaleFactor));
    return tarnStsNoErr;
}

TarnStatus tarnsNormDiff_L1_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32f* pNorm)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pNorm)) {
        return status;
    }
    store(pNorm, finishSum(AsFloat{}, ownps_NormDiff_L1_16s32u, len, pSrc1, pSrc2));
    return tarnStsNoErr;
}

TarnStatus tarnsNormDiff_L1_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32s* pNorm,
                                       int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pNorm)) {
        return status;
    }
    store(pNorm, finishSum(Scaled{scaleFactor}, ownps_NormDiff_L1_16s32u, len, pSrc1, pSrc2));
    return tarnStsNoErr;
}

TarnStatus tarnsNormDiff_L2_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32f* pNorm)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pNorm)) {
        return status;
    }
    store(pNorm, static_cast<Tarn32f>(rootOf(valueOf<Tarn64s>(ownps_NormDiff_L2_16s64s, len, pSrc1, pSrc2))));
    return tarnStsNoErr;
}

TarnStatus tarnsNormDiff_L2_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32s* pNorm,
                                       int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pNorm)) {
        return status;
    }
    store(pNorm, scaleRoot(rootOf(valueOf<Tarn64s>(ownps_NormDiff_L2_16s64s, len, pSrc1, pSrc2)), scaleFactor));
    return tarnStsNoErr;
}
