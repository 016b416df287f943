// Kernels of conversion from and to half precision: a sign, 5 bits of exponent, 10 bits of significand.
#include "levels/data/psconvert.h"
#include "levels/data/psconvert_scale.h"

using namespace tarn;

namespace {

using tarn::select; // the system has one as well

constexpr int singleFraction = 23;
constexpr int halfFraction = 10;
constexpr int dropped = singleFraction - halfFraction;
constexpr Tarn32s halfSign = 0x8000;
constexpr Tarn32s halfMagnitude = 0x7FFF;
constexpr Tarn32s halfInfinity = 0x7C00;
constexpr Tarn32s halfQuiet = 0x200;
constexpr Tarn32s smallestNormalHalf = 0x400;
constexpr Tarn32s singleInfinity = 0x7F800000;

// By how much the exponent fields of one value differ.
constexpr int biasDifference = 127 - 15;

// While it lives, results are rounded as `rndMode` says.
class HalfRounding {
public:
    explicit HalfRounding(int rndMode) : saved(tarn_set_rc_ssx(rndMode == 1 ? 0 : mxcsrRoundingField)) {}
    ~HalfRounding() { tarn_set_cw_ssx(saved); }
    HalfRounding(const HalfRounding&) = delete;
    HalfRounding& operator=(const HalfRounding&) = delete;

private:
    unsigned saved;
};

// The bits of the half closest to a positive float, in the current rounding mode. Adding a power of two that is 2^13
// times the float's own leaves a half's bits of it in the significand and rounds the rest away: a sum of any size in
// one instruction. Below the normal halves the power stays what it is for the smallest of them. The carry of a
// significand that rounds up to the next power goes into the exponent by itself, up to the pattern of infinity.
template <typename X>
TARN_INLINE auto roundToHalf(X magnitude)
{
    constexpr Tarn32s smallestNormal = (biasDifference + 1) << singleFraction;
    // The smallest normal half has the exponent 1 and no fraction, but the sum counts its leading bit as well.
    constexpr Tarn32s base = (biasDifference + dropped + 1) << halfFraction;
    using I = Like<X, Tarn32s>;
    const auto power = bitAnd(bitsOf(magnitude), splat<I>(singleInfinity));
    const auto atLeast = bitsOf(max(floatOfBits(power), splat<X>(std::bit_cast<Tarn32f>(smallestNormal))));
    const auto shifter = add(atLeast, splat<I>(dropped << singleFraction));
    const auto significand = sub(bitsOf(add(magnitude, floatOfBits(shifter))), shifter);
    return add(significand, sub(shiftRightLogical(shifter, dropped), splat<I>(base)));
}

// A sign bit of 32 as one of 16, extended so that narrowing keeps the bits.
template <typename I>
TARN_INLINE I withSignOf(I bits, I half)
{
    return bitOr(bitAnd(shiftRight(bits, 16), splat<I>(~halfMagnitude)), half);
}

// Infinities and NaN: the low bits of the longer exponent are those of the shorter one. The top bits of a NaN's payload
// are kept, and the one that makes it quiet is set.
template <typename I>
TARN_INLINE I specialToHalf(I magnitude)
{
    const auto top = bitAnd(shiftRight(magnitude, dropped), splat<I>(halfMagnitude));
    return bitOr(top, keepWhere(greater(magnitude, splat<I>(singleInfinity)), splat<I>(halfQuiet)));
}

// What is beyond `largest` becomes infinity where it is 2^16, and the largest half where it is the float below that.
template <typename X>
TARN_INLINE auto toHalf(X x, Tarn32f largest)
{
    using I = Like<X, Tarn32s>;
    const auto bits = bitsOf(x);
    const auto magnitude = bitAnd(bits, splat<I>(highest<Tarn32s>));
    const auto isSpecial = greater(magnitude, splat<I>(singleInfinity - 1));
    auto half = roundToHalf(min(floatOfBits(magnitude), splat<X>(largest)));
    // Signals have none of them as a rule, and then nobody waits for the selection.
    if (anyOf(isSpecial)) [[unlikely]] {
        half = select(isSpecial, specialToHalf(magnitude), half);
    }
    return withSignOf(bits, half);
}

// An integer of 16 bits has no way out of the halves.
template <typename I>
TARN_INLINE I integerToHalf(I x)
{
    const auto bits = bitsOf(convert<Tarn32f>(x));
    return withSignOf(bits, roundToHalf(floatOfBits(bitAnd(bits, splat<I>(highest<Tarn32s>)))));
}

// Exact in any rounding mode. Denormal halves are small integers in a unit of 2^-24, and normal floats.
template <typename I>
TARN_INLINE auto fromHalf(I half)
{
    using F = Like<I, Tarn32f>;
    constexpr Tarn32s rebias = biasDifference << singleFraction;
    const auto magnitude = bitAnd(half, splat<I>(halfMagnitude));
    const auto sign = shiftLeft(bitAnd(half, splat<I>(halfSign)), 16);
    const auto normal = add(shiftLeft(magnitude, dropped), splat<I>(rebias));
    const auto denormal = bitsOf(mul(convert<Tarn32f>(magnitude), splat<F>(0x1p-24F)));
    const auto finite = select(greater(splat<I>(smallestNormalHalf), magnitude), denormal, normal);
    // The largest exponent of one format becomes that of the other by as much again.
    const auto special = keepWhere(greater(magnitude, splat<I>(halfInfinity - 1)), splat<I>(rebias));
    return floatOfBits(bitOr(add(finite, special), sign));
}

struct SingleToHalf {
    Tarn32f largest;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        const auto limit = largest;
        return narrowSaturated<Tarn16s>(byRegister(x, [limit](auto t) { return toHalf(t, limit); }));
    }
};

struct IntegerToHalf {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return narrowSaturated<Tarn16s>(byRegister(widenBySign(x), [](auto t) { return integerToHalf(t); }));
    }
};

struct HalfToSingle {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return byRegister(widen(retype<Tarn16u>(x)), [](auto t) { return fromHalf(t); });
    }
};

// In the current rounding mode.
struct HalfToInteger {
    Tarn32f factor;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        const auto integer = [this](auto t) {
            const auto scaled = ByFactor<Tarn32f>{factor}(fromHalf(t));
            return roundToInteger(min(splat<std::remove_const_t<decltype(scaled)>>(highest<Tarn16s>), scaled));
        };
        return narrowSaturated<Tarn16s>(byRegister(widen(retype<Tarn16u>(x)), integer));
    }
};

} // namespace

void ownsConvert_16s16f_W7(const Tarn16s* pSrc, Tarn16s* pDst, int len, int rndMode)
{
    const HalfRounding rounding(rndMode);
    walk(pDst, len, IntegerToHalf{}, pSrc);
}

void ownsConvert_32f16f_W7(const Tarn32f* pSrc, Tarn16s* pDst, int len, int rndMode)
{
    const HalfRounding rounding(rndMode);
    walk(pDst, len, SingleToHalf{rndMode == 1 ? 0x1p16F : 0x1.FFFFFEp15F}, pSrc);
}

void ownsConvert_16f32f_W7(const Tarn16s* pSrc, Tarn32f* pDst, int len) { walk(pDst, len, HalfToSingle{}, pSrc); }

void owntarnsCnvrt_16f16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int rndMode, int scaleFactor)
{
    // Halves lie between 2^-24 and 2^16, so that 2^41 takes every one but 0 to a bound, and 2^-41 all finite ones to 0.
    constexpr int farthest = 41;
    const HalfRounding rounding(rndMode);
    walk(pDst, len, HalfToInteger{twoToMinus<Tarn32f>(std::clamp(scaleFactor, -farthest, farthest))}, pSrc);
}
