// Kernels of A-law and mu-law. A code of seven bits is a floating-point number of three bits of exponent and four of
// fraction, so that conversion between integers and floats, whose bits those are too, finds the segments.
#include "levels/coding/pslaw.h"

#include "levels/coding/pslaw_tables.h"

using namespace tarn;

namespace {

// The fraction of a float below the four bits of a code.
constexpr int fractionBelow = 23 - 4;

// The exponent's field for a value from 2^n on, at the place where it stands above the four bits of a code.
constexpr int exponentOf(int n) { return (127 + n) << 4; }

// -- From samples to codes -------------------------------------------------------------------------------------------

// Exponent and upper fraction of positive 16-bit integers, as seven or eight bits.
template <typename X>
TARN_INLINE X floatCode(X x)
{
    return narrowSaturated<Tarn16s>(shiftRight(bitsOf(convert<Tarn32f>(widen(retype<Tarn16u>(x)))), fractionBelow));
}

// The magnitude by one's complement.
template <typename X>
TARN_INLINE X onesMagnitude(X sample)
{
    return bitXor(sample, shiftRight(sample, 15));
}

struct LinToALaw {
    // One sample by the search of the Recommendation.
    static TARN_INLINE Tarn8u code(Tarn16s sample)
    {
        const int v = onesMagnitude(sample) >> 3;
        int seg = 0;
        while (v > seg_end[static_cast<std::size_t>(seg)] >> 3) {
            ++seg;
        }
        const int m = (v >> std::max(seg, 1)) & 15;
        return static_cast<Tarn8u>(((seg << 4) | m) ^ (sample < 0 ? 0x55 : 0xD5));
    }
    // The first two segments are one with the steps of the second, where the float's fraction would go on getting
    // finer.
    template <int N>
    static TARN_INLINE auto code(Pack<Tarn16s, N> sample)
    {
        using X = Pack<Tarn16s, N>;
        constexpr int lastLinear = 31;
        const X v = shiftRight(onesMagnitude(sample), 3);
        const X linear = min(shiftRight(v, 1), splat<X>(lastLinear));
        const X segmented = sub(floatCode(v), splat<X>(exponentOf(5) - 16));
        const X sign = bitAnd(sample, splat<X>(lowest<Tarn16s>));
        const X positive = bitXor(max(linear, segmented), splat<X>(0xD5));
        return narrowSaturated<Tarn8u>(bitXor(positive, shiftRightLogical(sign, 8)));
    }

    template <typename X>
    TARN_INLINE auto operator()(X sample) const
    {
        return code(sample);
    }
};

// The code of a sample whose sign comes apart.
template <typename X, typename Mask>
TARN_INLINE auto muLawCode(X sample, Mask isPositive)
{
    constexpr Tarn16s bias = 33;
    constexpr Tarn16s highestBiased = 8191;
    const X biased = min(add(shiftRight(onesMagnitude(sample), 2), splat<X>(bias)), splat<X>(highestBiased));
    const X magnitude = sub(splat<X>(exponentOf(5) + 0x7F), floatCode(biased));
    return narrowSaturated<Tarn8u>(bitOr(magnitude, keepWhere(isPositive, splat<X>(0x80))));
}

struct LinToMuLaw {
    template <typename X>
    TARN_INLINE auto operator()(X sample) const
    {
        return muLawCode(sample, greater(sample, splat<X>(-1)));
    }
};

// -- From floats to codes --------------------------------------------------------------------------------------------

// A mask of floats for integers of so many bits; that of a single element is for all.
template <typename T, typename Mask>
TARN_INLINE auto maskFor(Mask mask)
{
    if constexpr (isPack<Mask>) {
        return narrowSaturated<T>(reinterpretPack<Tarn32s>(mask));
    } else {
        return mask;
    }
}

// The nearest samples, halves away from zero. The upper limit is taken of floats, in the order that lets a NaN pass;
// the lower one is that of narrowing, which must not see the lowest integer that conversion makes of a NaN.
template <typename X>
TARN_INLINE auto toSamples(X x)
{
    using I = Like<X, Tarn32s>;
    constexpr Tarn32s half = 0x3F000000;
    const X v = min(splat<X>(highest<Tarn16s>), mul(x, splat<X>(32768)));
    const X signedHalf = floatOfBits(bitOr(bitAnd(bitsOf(v), splat<I>(lowest<Tarn32s>)), splat<I>(half)));
    const I rounded = truncateToInteger(add(v, signedHalf));
    return narrowSaturated<Tarn16s>(keepWhere(maskFor<Tarn32s>(equal(v, v)), rounded));
}

struct FloatToALaw {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return LinToALaw::code(toSamples(x));
    }
};

struct FloatToMuLaw {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return muLawCode(toSamples(x), maskFor<Tarn16s>(equal(x, absolute(x))));
    }
};

// -- From codes to samples -------------------------------------------------------------------------------------------

// The middle of a segment's interval of mu-law, biased, of seven bits of code in bytes: (8 m + 132) << s.
template <int N>
TARN_INLINE Pack<Tarn16s, N> middles(Pack<Tarn8u, N> code)
{
    using I = Pack<Tarn32s, N>;
    constexpr Tarn32s halfStep = 1 << (fractionBelow - 1);
    const I bits = shiftLeft(widen(retype<Tarn16u>(widen(code))), fractionBelow);
    const auto value = floatOfBits(add(bits, splat<I>((exponentOf(7) << fractionBelow) + halfStep)));
    return narrowSaturated<Tarn16s>(truncateToInteger(value));
}

// The value, negated where the byte has no sign bit.
template <int N>
TARN_INLINE Pack<Tarn16s, N> signedBy(Pack<Tarn8u, N> byte, Pack<Tarn16s, N> value)
{
    const auto isNegative = greater(retype<Tarn8s>(byte), splat<Pack<Tarn8s, N>>(-1));
    const auto ones = widenBySign(isNegative);
    return sub(bitXor(value, ones), ones);
}

struct ALawToLin {
    TARN_INLINE Tarn16s operator()(Tarn8u byte) const { return _a2l[byte]; }
    // A-law has no bias, and in segment 0 the steps of segment 1: 16 m + 8 is 8 m + 132 less what that is below 256.
    template <int N>
    TARN_INLINE Pack<Tarn16s, N> operator()(Pack<Tarn8u, N> byte) const
    {
        using B = Pack<Tarn8u, N>;
        const auto code = bitAnd(bitXor(byte, splat<B>(0x55)), splat<B>(0x7F));
        const auto value = retype<Tarn16u>(middles(code));
        const auto excess = subSaturated(splat<Pack<Tarn16u, N>>(256), value);
        return signedBy(byte, retype<Tarn16s>(sub(value, excess)));
    }
};

struct MuLawToLin {
    TARN_INLINE Tarn16s operator()(Tarn8u byte) const { return _u2l[byte]; }
    template <int N>
    TARN_INLINE Pack<Tarn16s, N> operator()(Pack<Tarn8u, N> byte) const
    {
        const auto code = bitAndNot(byte, splat<Pack<Tarn8u, N>>(0x7F));
        return signedBy(byte, sub(middles(code), splat<Pack<Tarn16s, N>>(132)));
    }
};

template <typename ToSample>
struct ToFloat {
    template <typename X>
    TARN_INLINE auto operator()(X byte) const
    {
        const auto value = convert<Tarn32f>(widenBySign(ToSample{}(byte)));
        return mul(value, splat<std::remove_const_t<decltype(value)>>(minInt2Float));
    }
};

// -- From law to law -------------------------------------------------------------------------------------------------

// Bytes by a table, a few between two tests of the end.
TARN_INLINE void translate(const std::array<Tarn8u, 256>& table, const Tarn8u* pSrc, Tarn8u* pDst, int len)
{
    constexpr int atOnce = 8;
    int i = 0;
    for (; i <= len - atOnce; i += atOnce) {
        repeat<atOnce>([&](auto k) __attribute__((always_inline)) { pDst[i + k] = table[pSrc[i + k]]; });
    }
    for (; i < len; ++i) {
        pDst[i] = table[pSrc[i]];
    }
}

} // namespace

#define TARN_DEFINE_LAW_KERNEL(NAME, S, D, ...) \
    void NAME(const S* pSrc, D* pDst, int len) { walk(pDst, len, __VA_ARGS__, pSrc); }

TARN_DEFINE_LAW_KERNEL(ownsALawToLin_8u16s, Tarn8u, Tarn16s, ALawToLin{})
TARN_DEFINE_LAW_KERNEL(ownsALawToLin_8u32f, Tarn8u, Tarn32f, ToFloat<ALawToLin>{})
TARN_DEFINE_LAW_KERNEL(ownsMuLawToLin_8u16s, Tarn8u, Tarn16s, MuLawToLin{})
TARN_DEFINE_LAW_KERNEL(ownsMuLawToLin_8u32f, Tarn8u, Tarn32f, ToFloat<MuLawToLin>{})

TARN_DEFINE_LAW_KERNEL(ownsLinToALaw_16s8u, Tarn16s, Tarn8u, LinToALaw{})
TARN_DEFINE_LAW_KERNEL(ownsLinToALaw_32f8u, Tarn32f, Tarn8u, FloatToALaw{})
TARN_DEFINE_LAW_KERNEL(ownsLinToMuLaw_16s8u, Tarn16s, Tarn8u, LinToMuLaw{})
TARN_DEFINE_LAW_KERNEL(ownsLinToMuLaw_32f8u, Tarn32f, Tarn8u, FloatToMuLaw{})

void ownsALawToMuLaw_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len) { translate(_a2u, pSrc, pDst, len); }
void ownsMuLawToALaw_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len) { translate(_u2a, pSrc, pDst, len); }
