// Kernels of magnitudes and of their squares, the power spectra.
#include "levels/arithmetic/psmagn.h"

#include "frame/factor.h"
#include "frame/flags.h"
#include "frame/narrow_float.h"
#include "frame/newton_root.h"
#include "frame/rounding.h"
#include "frame/scale_choice.h"
#include "frame/simd.h"
#include "frame/simd_extended.h"
#include "frame/walk_groups.h"

#include <algorithm>

namespace tarn {
namespace {

// -- Squared magnitudes -----------------------------------------------------------------------------------------------

// Of words, exact in 32 bits without a sign: 2^31 is the largest.
struct PowerOfWords {
    template <typename X>
    TARN_INLINE auto operator()(X re, X im) const
    {
        return retype<Tarn32u>(add(mulWidened(re, re), mulWidened(im, im)));
    }
    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        return retype<Tarn32u>(mulAddPairs(z, z));
    }
};

struct PowerOfFloats {
    template <typename X>
    TARN_INLINE auto operator()(X re, X im) const
    {
        return add(mul(re, re), mul(im, im));
    }
    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        return (*this)(reOf(z), imOf(z));
    }
};

// 2^31 alone looks negative to the conversion.
template <typename X>
TARN_INLINE auto powerAsFloat(X power)
{
    return absolute(convert<Tarn32f>(retype<Tarn32s>(power)));
}

struct PowerToFloat {
    template <typename... X>
    TARN_INLINE auto operator()(X... z) const
    {
        return powerAsFloat(PowerOfWords{}(z...));
    }
};

// The five cases of a power in 16 bits.
struct ScaledPowers {
    struct Plain {
        template <typename... X>
        TARN_INLINE auto operator()(X... z) const
        {
            // 2^31 becomes one less, which has a sign that tells the truth.
            const auto power = retype<Tarn32s>(PowerOfWords{}(z...));
            return narrowSaturated<Tarn16s>(add(power, shiftRight(power, 31)));
        }
    };
    struct Pos {
        int s;
        template <typename... X>
        TARN_INLINE auto operator()(X... z) const
        {
            return narrowSaturated<Tarn16s>(retype<Tarn32s>(shiftRounded(PowerOfWords{}(z...), s)));
        }
    };
    struct One {
        template <typename... X>
        TARN_INLINE auto operator()(X... z) const
        {
            return Pos{1}(z...);
        }
    };
    struct Neg {
        int n;
        template <typename... X>
        TARN_INLINE auto operator()(X... z) const
        {
            return shiftLeftSaturated(Plain{}(z...), n);
        }
    };
    struct Sign {
        template <typename... X>
        TARN_INLINE auto operator()(X... z) const
        {
            return signBound(Plain{}(z...));
        }
    };
};

constexpr ScaleLimits powerLimits{powerVanishes_16s - 1, 14};

template <typename... S>
TARN_INLINE void scalePowers(Tarn16s* pDst, int len, int scaleFactor, const S*... pSrc)
{
    chooseCase<ScaledPowers>(powerLimits, scaleFactor, [=](auto power) { walk(pDst, len, power, pSrc...); });
}

// -- Magnitudes -------------------------------------------------------------------------------------------------------

struct MagnitudeToFloat {
    template <typename... X>
    TARN_INLINE auto operator()(X... z) const
    {
        return squareRoot(PowerToFloat{}(z...));
    }
};

struct TrueMagnitude {
    template <typename... X>
    TARN_INLINE auto operator()(X... z) const
    {
        return squareRoot(PowerOfFloats{}(z...));
    }
};

struct NewtonMagnitude {
    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        return newtonRoot(PowerOfFloats{}(z));
    }
    template <int N>
    TARN_INLINE auto ordinary(Doubts& doubts, Pack<Tarn32fc, N> z) const
    {
        if constexpr (!isOneRegister<Tarn32f, N>) {
            return join(ordinary(doubts, lowHalf(z)), ordinary(doubts, highHalf(z)));
        } else {
            const auto root = ordinaryRoot(PowerOfFloats{}(z));
            doubts.note(root);
            return root;
        }
    }
    template <int N>
    auto rare(Pack<Tarn32fc, N> z) const
    {
        return (*this)(z);
    }
};

constexpr int magnitudesAtOnce = 16;

struct ScaledMagnitude {
    Tarn32f factor;

    template <typename... X>
    TARN_INLINE auto operator()(X... z) const
    {
        const auto magnitude = MagnitudeToFloat{}(z...);
        return roundedTo<Tarn16s>(mul(magnitude, splat<std::remove_const_t<decltype(magnitude)>>(factor)));
    }
};

// At a factor of 16 every magnitude is 0 or 1; single precision would not tell those next to one half apart.
struct MagnitudeAboveHalf {
    template <typename... X>
    TARN_INLINE auto operator()(X... z) const
    {
        const auto power = PowerOfWords{}(z...);
        using W = std::remove_const_t<decltype(power)>;
        const auto one = tarn::select(greater(power, splat<W>(0x40000000)), splat<W>(1), splat<W>(0));
        return narrowSaturated<Tarn16s>(retype<Tarn32s>(one));
    }
};

constexpr int highestRootScale = 15;

template <typename... S>
TARN_INLINE void scaleMagnitudes(Tarn16s* pDst, int len, int scaleFactor, const S*... pSrc)
{
    if (scaleFactor > highestRootScale) {
        walk(pDst, len, MagnitudeAboveHalf{}, pSrc...);
    } else {
        // From 2^15 on every magnitude saturates.
        const NearestRounding nearest;
        walk(pDst, len, ScaledMagnitude{twoToMinus<Tarn32f>(std::max(scaleFactor, -15))}, pSrc...);
    }
}

struct ScaledMagnitude_32s {
    Tarn64f factor;

    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        const auto re = convert<Tarn64f>(reOf(z));
        const auto im = convert<Tarn64f>(imOf(z));
        const auto magnitude = squareRoot(add(mul(re, re), mul(im, im)));
        return roundedTo<Tarn32s>(mul(magnitude, splat<std::remove_const_t<decltype(magnitude)>>(factor)));
    }
};

// -- Squares of 32-bit elements ---------------------------------------------------------------------------------------

// Scaled and limited; what reaches the upper limit has no integer, and the conversion gives the lowest one for it.
template <typename X>
TARN_INLINE auto scaledSquare(X square, Tarn32f factor)
{
    constexpr Tarn32f limit = 2147483648.0F;
    return roundToInteger(max(min(mul(square, splat<X>(factor)), splat<X>(limit)), splat<X>(-limit)));
}

struct SquaresByFours {
    Tarn32f factor;

    template <typename X>
    TARN_INLINE auto operator()(X z) const
    {
        return scaledSquare(PowerOfFloats{}(convert<Tarn32f>(reOf(z)), convert<Tarn32f>(imOf(z))), factor);
    }
};

// Exact in the extended format, and rounded once.
struct SquareByItself {
    Tarn32f factor;

    TARN_INLINE Tarn32s operator()(Tarn32sc z) const
    {
        const Extended re = z.re;
        const Extended im = z.im;
        return scaledSquare(static_cast<Tarn32f>(re * re + im * im), factor);
    }
};

constexpr int squaresAtOnce = 4;

} // namespace
} // namespace tarn

using namespace tarn;

void owntarnsMagn_16s_Sfs(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len, int scaleFactor)
{
    scaleMagnitudes(pDst, len, scaleFactor, pSrcRe, pSrcIm);
}

void owntarnsMagn_16sc16s_Sfs(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    scaleMagnitudes(pDst, len, scaleFactor, pSrc);
}

void owntarnsMagn_32sc32s_Sfs(const Tarn32sc* pSrc, Tarn32s* pDst, int len, int scaleFactor)
{
    // Beyond these factors every magnitude but 0 saturates, or rounds to 0.
    const NearestRounding nearest;
    walk(pDst, len, ScaledMagnitude_32s{twoToMinus<Tarn64f>(std::clamp(scaleFactor, -32, 34))}, pSrc);
}

void tarnsPwrStr_16s_T7(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16s* pDst, int len, int scaleFactor)
{
    scalePowers(pDst, len, scaleFactor, pSrcRe, pSrcIm);
}

void tarnsPwrStr_16sc_T7(const Tarn16sc* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    scalePowers(pDst, len, scaleFactor, pSrc);
}

#define TARN_DEFINE_FROM_PARTS(NAME, S, D, OPERATION)                               \
    void NAME(const Tarn##S* pSrcRe, const Tarn##S* pSrcIm, Tarn##D* pDst, int len) \
    {                                                                               \
        walk(pDst, len, OPERATION{}, pSrcRe, pSrcIm);                               \
    }
#define TARN_DEFINE_FROM_COMPLEX(NAME, S, D, OPERATION) \
    void NAME(const Tarn##S* pSrc, Tarn##D* pDst, int len) { walk(pDst, len, OPERATION{}, pSrc); }

TARN_DEFINE_FROM_PARTS(owntarnsMagn_16s32f, 16s, 32f, MagnitudeToFloat)
TARN_DEFINE_FROM_COMPLEX(owntarnsMagn_16sc32f, 16sc, 32f, MagnitudeToFloat)
TARN_DEFINE_FROM_PARTS(owntarnsMagn_32f, 32f, 32f, TrueMagnitude)
TARN_DEFINE_FROM_PARTS(owntarnsMagn_64f, 64f, 64f, TrueMagnitude)
TARN_DEFINE_FROM_COMPLEX(owntarnsMagn_64fc, 64fc, 64f, TrueMagnitude)
TARN_DEFINE_FROM_PARTS(tarnsPwrStr_16s32f_T7, 16s, 32f, PowerToFloat)
TARN_DEFINE_FROM_COMPLEX(tarnsPwrStr_16sc32f_T7, 16sc, 32f, PowerToFloat)
TARN_DEFINE_FROM_PARTS(tarnsPwrStr_32f_T7, 32f, 32f, PowerOfFloats)
TARN_DEFINE_FROM_COMPLEX(tarnsPwrStr_32fc_T7, 32fc, 32f, PowerOfFloats)
TARN_DEFINE_FROM_PARTS(tarnsPwrStr_64f_T7, 64f, 64f, PowerOfFloats)
TARN_DEFINE_FROM_COMPLEX(tarnsPwrStr_64fc_T7, 64fc, 64f, PowerOfFloats)

void owntarnsMagn_32fc(const Tarn32fc* pSrc, Tarn32f* pDst, int len)
{
    const Index whole = walkOrdinary<magnitudesAtOnce>(pDst, 0, len, NewtonMagnitude{}, pSrc);
    walk(pDst + whole, len - whole, NewtonMagnitude{}, pSrc + whole);
}

void ownMagSquared_Sfs_W7(const Tarn32sc* pSrc, Tarn32s* pDst, int len, Tarn32f factor)
{
    walkGroups<squaresAtOnce>(pDst, len, 0, SquaresByFours{factor}, SquareByItself{factor}, pSrc);
    clearFlags(mxcsrInvalid | mxcsrUnderflow);
}
