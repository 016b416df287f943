// Kernels of conversion from and to 24-bit elements.
#include "frame/simd_24.h"
#include "levels/psconvert.h"
#include "levels/psconvert_scale.h"

using namespace tarn;

namespace {

using tarn::select; // the system has one as well

constexpr Tarn32s min24s = -0x800000;
constexpr Tarn32s max24s = 0x7FFFFF;
constexpr Tarn32u max24u = 0xFFFFFF;

// The same as floats, all of which hold them exactly.
constexpr Tarn32f min24sF = min24s;
constexpr Tarn32f max24sF = max24s;
constexpr Tarn32f min24uF = 0;
constexpr Tarn32f max24uF = max24u;

template <typename W>
Source24<W> sourceOf(const Tarn8u* src)
{
    return {src};
}

Stored24* destinationOf(Tarn8u* dst) { return reinterpret_cast<Stored24*>(dst); }

template <typename X>
TARN_INLINE X limit24(X x)
{
    if constexpr (std::is_signed_v<Element<X>>) {
        return min(max(x, splat<X>(min24s)), splat<X>(max24s));
    } else {
        return min(x, splat<X>(max24u));
    }
}

struct LimitTo24 {
    template <typename X>
    static TARN_INLINE auto of(X x)
    {
        return store24(limit24(x));
    }
};

// x times 2^n, saturated in 32 bits or below.
template <typename X>
TARN_INLINE X shiftedUp(X x, int n)
{
    if constexpr (std::is_signed_v<Element<X>>) {
        return shiftLeftSaturated(x, n);
    } else {
        const auto shifted = shiftLeft(x, n);
        return select(equal(shiftRight(shifted, n), x), shifted, splat<X>(highest<Tarn32u>));
    }
}

struct ShiftedUp24 {
    int n;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return LimitTo24::of(shiftedUp(x, n));
    }
};

// Both limits are applied to floats. The lower one comes first and replaces a NaN.
template <typename Scale>
struct ToInteger24 {
    Scale scale;
    Tarn32f lower, upper;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return store24(roundSingle(min(max(scale(x), splat<X>(lower)), splat<X>(upper))));
    }
};

template <typename Scale>
void to24(const Tarn32f* src, Tarn8u* dst, int len, Scale scale, Tarn32f lower, Tarn32f upper)
{
    const NearestRoundingOfDenormals control;
    walk(destinationOf(dst), len, ToInteger24<Scale>{scale, lower, upper}, src);
}

void toScaled24(const Tarn32f* src, Tarn8u* dst, int len, int scaleFactor, Tarn32f lower, Tarn32f upper)
{
    withPower<Tarn32f>(scaleFactor, [&](auto scale) { to24(src, dst, len, scale, lower, upper); });
}

} // namespace

void ownsConvert_24u32u_W7(const Tarn8u* pSrc, Tarn32u* pDst, int len)
{
    walk(pDst, len, Identity{}, sourceOf<Tarn32u>(pSrc));
}

void ownsConvert_24s32s_W7(const Tarn8u* pSrc, Tarn32s* pDst, int len)
{
    walk(pDst, len, Identity{}, sourceOf<Tarn32s>(pSrc));
}

// 24 bits without a sign are positive in 32 bits with one.
void ownsConvert_24u32f_W7(const Tarn8u* pSrc, Tarn32f* pDst, int len)
{
    walk(
        pDst, len, [](auto x) { return convert<Tarn32f>(retype<Tarn32s>(x)); }, sourceOf<Tarn32u>(pSrc));
}

void ownsConvert_24s32f_W7(const Tarn8u* pSrc, Tarn32f* pDst, int len)
{
    walk(pDst, len, convert<Tarn32f>, sourceOf<Tarn32s>(pSrc));
}

void ownsConvert_32f24s_Sfs0_W7(const Tarn32f* pSrc, Tarn8u* pDst, int len)
{
    to24(pSrc, pDst, len, Identity{}, min24sF, max24sF);
}

void ownsConvert_32f24s_SfsPosNeg_W7(const Tarn32f* pSrc, Tarn8u* pDst, int len, int scaleFactor)
{
    toScaled24(pSrc, pDst, len, scaleFactor, min24sF, max24sF);
}

void ownsConvert_32f24u_Sfs0_W7(const Tarn32f* pSrc, Tarn8u* pDst, int len)
{
    to24(pSrc, pDst, len, Identity{}, min24uF, max24uF);
}

void ownsConvert_32f24u_SfsPosNeg_W7(const Tarn32f* pSrc, Tarn8u* pDst, int len, int scaleFactor)
{
    toScaled24(pSrc, pDst, len, scaleFactor, min24uF, max24uF);
}

#define TARN_DEFINE_24(NAME, S)                                                    \
    void NAME##0_W7(const S* pSrc, Tarn8u* pDst, int len)                          \
    {                                                                              \
        walk(destinationOf(pDst), len, Limited<LimitTo24>{}, pSrc);                \
    }                                                                              \
    void NAME##Pos_W7(const S* pSrc, Tarn8u* pDst, int len, int scaleFactor)       \
    {                                                                              \
        walk(destinationOf(pDst), len, RoundedDown<LimitTo24>{scaleFactor}, pSrc); \
    }                                                                              \
    void NAME##Neg_W7(const S* pSrc, Tarn8u* pDst, int len, int scaleFactor)       \
    {                                                                              \
        walk(destinationOf(pDst), len, ShiftedUp24{scaleFactor}, pSrc);            \
    }

TARN_DEFINE_24(ownsConvert_32s24s_Sfs, Tarn32s)
TARN_DEFINE_24(ownsConvert_32u24u_Sfs, Tarn32u)
