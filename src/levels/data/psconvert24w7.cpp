// Kernels of conversion from and to 24-bit elements.
#include "frame/simd_24.h"
#include "levels/data/psconvert.h"
#include "levels/data/psconvert_scale.h"

using namespace tarn;

namespace {

using tarn::select; // the system has one as well

constexpr Tarn32s max24s = 0x7FFFFF;
constexpr Tarn32u max24u = 0xFFFFFF;

// The same as floats, all of which hold them exactly.
constexpr Tarn32f min24sF = -0x800000;
constexpr Tarn32f max24sF = max24s;
constexpr Tarn32f min24uF = 0;
constexpr Tarn32f max24uF = max24u;

template <typename W>
Source24<W> sourceOf(const Tarn8u* src)
{
    return {src};
}

Stored24* destinationOf(Tarn8u* dst) { return reinterpret_cast<Stored24*>(dst); }

// A 24-bit integer is one whose upper bits are all its sign; what is not has the bound of its sign.
template <typename X>
TARN_INLINE X limit24(X x)
{
    if constexpr (std::is_signed_v<Element<X>>) {
        const auto signs = shiftRight(x, 31);
        return select(equal(shiftRight(x, 23), signs), x, bitXor(signs, splat<X>(max24s)));
    } else {
        return select(equal(shiftRight(x, 24), splat<X>(0)), x, splat<X>(max24u));
    }
}

struct Bounds24 {
    template <typename X>
    static TARN_INLINE X limit(X x)
    {
        return limit24(x);
    }
    template <typename X>
    static TARN_INLINE auto narrow(X x)
    {
        return store24(x);
    }
};

struct WithinBounds24 : Bounds24 {
    template <typename X>
    static TARN_INLINE X limit(X x)
    {
        return x;
    }
};

// From this scale factor on nothing is left to limit: even 2^31 less one rounds to 2^22 at most.
constexpr int withinFrom = 9;

template <typename S>
void roundDown24(const S* src, Tarn8u* dst, int len, int scaleFactor)
{
    if (scaleFactor >= withinFrom) {
        walk(destinationOf(dst), len, RoundedDown<WithinBounds24>{scaleFactor}, src);
    } else {
        walk(destinationOf(dst), len, RoundedDown<Bounds24>{scaleFactor}, src);
    }
}

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
        const int count = n;
        return store24(byRegister(x, [count](auto t) { return limit24(shiftedUp(t, count)); }));
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
        const auto limited = [this](auto t) {
            using F = decltype(t);
            return roundToInteger(min(max(scale(t), splat<F>(lower)), splat<F>(upper)));
        };
        return store24(byRegister(x, limited));
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

#define TARN_DEFINE_24(NAME, S)                                              \
    void NAME##0_W7(const S* pSrc, Tarn8u* pDst, int len)                    \
    {                                                                        \
        walk(destinationOf(pDst), len, Limited<Bounds24>{}, pSrc);           \
    }                                                                        \
    void NAME##Pos_W7(const S* pSrc, Tarn8u* pDst, int len, int scaleFactor) \
    {                                                                        \
        roundDown24(pSrc, pDst, len, scaleFactor);                           \
    }                                                                        \
    void NAME##Neg_W7(const S* pSrc, Tarn8u* pDst, int len, int scaleFactor) \
    {                                                                        \
        walk(destinationOf(pDst), len, ShiftedUp24{scaleFactor}, pSrc);      \
    }

TARN_DEFINE_24(ownsConvert_32s24s_Sfs, Tarn32s)
TARN_DEFINE_24(ownsConvert_32u24u_Sfs, Tarn32u)
