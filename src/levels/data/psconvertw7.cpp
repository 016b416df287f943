// Kernels of conversion between integers, integers and floats, and the float precisions.
#include "levels/data/psconvert.h"
#include "levels/data/psconvert_scale.h"

using namespace tarn;

namespace {

// -- Integers to floats ----------------------------------------------------------------------------------------------

// Integers of up to 32 bits as floats, exact but for 32 bits as single precision.
template <typename F>
struct ToFloat {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        using T = Element<X>;
        if constexpr (std::is_same_v<T, Tarn8u>) {
            return (*this)(retype<Tarn16u>(widen(x)));
        } else if constexpr (std::is_same_v<T, Tarn16u>) {
            return (*this)(widen(x));
        } else if constexpr (sizeof(T) < sizeof(Tarn32s)) {
            return (*this)(widenBySign(x));
        } else {
            return convert<F>(x);
        }
    }
};

template <typename F>
struct ToScaledFloat {
    F factor;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return ByFactor<F>{factor}(ToFloat<F>{}(x));
    }
};

template <typename F>
ToScaledFloat<F> toScaledFloat(int scaleFactor)
{
    return {twoToMinus<F>(scaleFactor)};
}

// The only conversion to floats between elements of one size, and so the only one in which arrays that overlap still
// have an order that reads each element before it is overwritten.
template <typename Operation>
void walkOverlapping(const Tarn32s* src, Tarn32f* dst, int len, Operation operation)
{
    const auto convertElement = [&](int i) { store(dst + i, operation(loadElement(src + i))); };
    const auto bytes = static_cast<std::uintptr_t>(static_cast<unsigned>(len)) * sizeof(Tarn32s);
    const auto ahead = addressOf(src) - addressOf(dst);
    if (ahead != 0 && ahead < bytes) {
        for (int i = 0; i < len; ++i) {
            convertElement(i);
        }
    } else if (ahead != 0 && 0 - ahead < bytes) {
        for (int i = len; i-- > 0;) {
            convertElement(i);
        }
    } else {
        walk(dst, len, operation, src);
    }
}

// -- Integers to integers --------------------------------------------------------------------------------------------

struct Bounds16s {
    template <typename X>
    static TARN_INLINE X limit(X x)
    {
        return x;
    }
    template <typename X>
    static TARN_INLINE auto narrow(X x)
    {
        return narrowSaturated<Tarn16s>(x);
    }
};

// What is beyond the bounds stays there under a left shift.
struct ShiftedUp16s {
    int n;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return shiftLeftSaturated(narrowSaturated<Tarn16s>(x), n);
    }
};

// -- Floats to integers ----------------------------------------------------------------------------------------------

// The upper limit is applied to floats, in the order of operands that lets a NaN pass. Conversion makes the lowest
// integer of a NaN and of all that is too far below, and narrowing saturates that.
template <typename D, typename X>
TARN_INLINE X limitAbove(X x)
{
    return min(splat<X>(static_cast<Element<X>>(highest<D>)), x);
}

template <typename D, typename Rounding>
struct RoundTo {
    template <typename X>
    static TARN_INLINE auto of(X x)
    {
        const auto narrow = narrowSaturated<Tarn16s>(Rounding::single(limitAbove<D>(x)));
        if constexpr (sizeof(D) == 1) {
            return narrowSaturated<D>(narrow);
        } else {
            return narrow;
        }
    }
};

// Narrowing to 16 bits is a signed one, so that its range is moved to that of the unsigned; that cannot serve the
// lowest integer, and 0 is a limit of its own. It replaces a NaN.
template <typename Rounding>
struct RoundTo<Tarn16u, Rounding> {
    template <typename X>
    static TARN_INLINE auto of(X x)
    {
        const auto integer = Rounding::single(limitAbove<Tarn16u>(max(x, splat<X>(0))));
        const auto moved = narrowSaturated<Tarn16s>(sub(integer, splat<Like<X, Tarn32s>>(0x8000)));
        return retype<Tarn16u>(bitXor(moved, splat<Like<X, Tarn16s>>(lowest<Tarn16s>)));
    }
};

template <typename Rounding>
struct RoundTo<Tarn32s, Rounding> {
    template <typename X>
    static TARN_INLINE auto of(X x)
    {
        if constexpr (isSingle<Element<X>>) {
            return Rounding::saturated(x);
        } else {
            return Rounding::twice(limitAbove<Tarn32s>(x));
        }
    }
};

template <typename D, typename Rounding, typename Scale>
struct ToInteger {
    Scale scale;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return RoundTo<D, Rounding>::of(scale(x));
    }
};

template <typename Rounding, typename S, typename D, typename Scale>
void convertRounded(const S* src, D* dst, int len, Scale scale)
{
    const typename Rounding::Control control;
    walk(dst, len, ToInteger<D, Rounding, Scale>{scale}, src);
}

template <typename S, typename D, typename Scale>
void toIntegers(const S* src, D* dst, int len, int rndMode, Scale scale)
{
    if (rndMode != 0) {
        convertRounded<ToNearest>(src, dst, len, scale);
    } else {
        convertRounded<TowardsZero>(src, dst, len, scale);
    }
}

template <typename S, typename D>
void toScaledIntegers(const S* src, D* dst, int len, int rndMode, int scaleFactor)
{
    withPower<S>(scaleFactor, [&](auto scale) { toIntegers(src, dst, len, rndMode, scale); });
}

} // namespace

#define TARN_DEFINE_CONVERSION(NAME, S, D, ...) \
    void NAME(const S* pSrc, D* pDst, int len) { walk(pDst, len, __VA_ARGS__, pSrc); }
#define TARN_DEFINE_SCALED_CONVERSION(NAME, S, D, ...) \
    void NAME(const S* pSrc, D* pDst, int len, int scaleFactor) { walk(pDst, len, __VA_ARGS__, pSrc); }

TARN_DEFINE_CONVERSION(ownsConvert_8s16s_W7, Tarn8s, Tarn16s, widenBySign)
TARN_DEFINE_CONVERSION(ownsConvert_16s32s_W7, Tarn16s, Tarn32s, widenBySign)
TARN_DEFINE_CONVERSION(ownsConvert_8s32f_W7, Tarn8s, Tarn32f, ToFloat<Tarn32f>{})
TARN_DEFINE_CONVERSION(ownsConvert_8u32f_W7, Tarn8u, Tarn32f, ToFloat<Tarn32f>{})
TARN_DEFINE_CONVERSION(ownsConvert_16s32f_W7, Tarn16s, Tarn32f, ToFloat<Tarn32f>{})
TARN_DEFINE_CONVERSION(ownsConvert_16u32f_W7, Tarn16u, Tarn32f, ToFloat<Tarn32f>{})
TARN_DEFINE_CONVERSION(ownsConvert_16s64f_Sfs0_W7, Tarn16s, Tarn64f, ToFloat<Tarn64f>{})
TARN_DEFINE_CONVERSION(owntarnsCnvrt_32s64f, Tarn32s, Tarn64f, ToFloat<Tarn64f>{})
TARN_DEFINE_CONVERSION(ownsConvert_32f64f_W7, Tarn32f, Tarn64f, widen)
TARN_DEFINE_CONVERSION(ownsConvert_64f32f_W7, Tarn64f, Tarn32f, narrowFloat)
TARN_DEFINE_SCALED_CONVERSION(ownsConvert_16s32f_SfsPosNeg_W7, Tarn16s, Tarn32f, toScaledFloat<Tarn32f>(scaleFactor))
TARN_DEFINE_SCALED_CONVERSION(ownsConvert_16s64f_SfsPosNeg_W7, Tarn16s, Tarn64f, toScaledFloat<Tarn64f>(scaleFactor))
TARN_DEFINE_SCALED_CONVERSION(ownsConvert_32s64f_SfsPosNeg_W7, Tarn32s, Tarn64f, toScaledFloat<Tarn64f>(scaleFactor))

void ownsConvert_32s32f_W7(const Tarn32s* pSrc, Tarn32f* pDst, int len)
{
    walkOverlapping(pSrc, pDst, len, ToFloat<Tarn32f>{});
}

void ownsConvert_32s32f_SfsPosNeg_W7(const Tarn32s* pSrc, Tarn32f* pDst, int len, int scaleFactor)
{
    walkOverlapping(pSrc, pDst, len, toScaledFloat<Tarn32f>(scaleFactor));
}

TARN_DEFINE_CONVERSION(ownsConvert_32s16s_W7, Tarn32s, Tarn16s, Limited<Bounds16s>{})
TARN_DEFINE_SCALED_CONVERSION(ownsConvert_32s16s_SfsPos_W7, Tarn32s, Tarn16s, RoundedDown<Bounds16s>{scaleFactor})
TARN_DEFINE_SCALED_CONVERSION(ownsConvert_32s16s_SfsNeg_W7, Tarn32s, Tarn16s, ShiftedUp16s{scaleFactor})

#define TARN_DEFINE_ROUNDED_CONVERSION(NAME, S, D)                                      \
    void NAME##0_W7(const S* pSrc, D* pDst, int len, int rndMode)                       \
    {                                                                                   \
        toIntegers(pSrc, pDst, len, rndMode, Identity{});                               \
    }                                                                                   \
    void NAME##PosNeg_W7(const S* pSrc, D* pDst, int len, int rndMode, int scaleFactor) \
    {                                                                                   \
        toScaledIntegers(pSrc, pDst, len, rndMode, scaleFactor);                        \
    }

TARN_DEFINE_ROUNDED_CONVERSION(ownsConvert_32f8s_Sfs, Tarn32f, Tarn8s)
TARN_DEFINE_ROUNDED_CONVERSION(ownsConvert_32f8u_Sfs, Tarn32f, Tarn8u)
TARN_DEFINE_ROUNDED_CONVERSION(ownsConvert_32f16s_Sfs, Tarn32f, Tarn16s)
TARN_DEFINE_ROUNDED_CONVERSION(ownsConvert_32f16u_Sfs, Tarn32f, Tarn16u)
TARN_DEFINE_ROUNDED_CONVERSION(ownsConvert_32f32s_Sfs, Tarn32f, Tarn32s)

void owntarnsCnvrt_64f32s_Sfs(const Tarn64f* pSrc, Tarn32s* pDst, int len, int rndMode, int scaleFactor)
{
    if (scaleFactor == 0) {
        toIntegers(pSrc, pDst, len, rndMode, Identity{});
    } else {
        toScaledIntegers(pSrc, pDst, len, rndMode, scaleFactor);
    }
}
