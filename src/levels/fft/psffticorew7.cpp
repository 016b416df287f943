// The transforms in fixed point.
//
// A complex element turns by two sums of products with the words of a table. The products are exact: an element is
// hi 2^16 + lo with 16-bit parts, both signed, and each part has its own sums.
#include "frame/simd.h"
#include "frame/simd_apart.h"
#include "frame/two_arrays.h"
#include "levels/fft/psfft_tables.h"
#include "levels/fft/psffti.h"

#include <algorithm>

using namespace tarn;
using tarn::fft::fixedOneBits;

namespace {

// -- Samples and words -----------------------------------------------------------------------------------------------

struct ToWord {
    int shift; // up to 16

    TARN_INLINE Tarn32s operator()(Tarn16s x) const { return shiftRight(shiftLeft(Tarn32s{x}, 16), 16 - shift); }
    template <int N>
    TARN_INLINE auto operator()(Pack<Tarn16s, N> x) const
    {
        return shiftRight(reinterpretPack<Tarn32s>(spreadOdd(x)), 16 - shift);
    }
};

// The half that rounds is the highest bit that the shift drops. Once all are dropped it is the sign, which makes 0 of
// -1.
struct ToSampleDown {
    int shift; // above 0

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return narrowSaturated<Tarn16s>(
            add(shiftRight(x, shift), bitAnd(shiftRight(x, shift - 1), splat<X>(Tarn32s{1}))));
    }
};

struct ToSampleUp {
    int shift; // 0 to 31

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return narrowSaturated<Tarn16s>(shiftLeftSaturated(x, shift));
    }
};

// x + x (c - 1) for c = sqrt(1/2) as a fraction of 2^32, of which c - 1 is a 32-bit number.
struct TimesRootOfHalf {
    static constexpr auto factor = static_cast<Tarn32s>(3037000500LL - (1LL << 32));
    static constexpr Tarn64s half = 1LL << 31;

    TARN_INLINE Tarn32s operator()(Tarn32s x) const
    {
        return x + static_cast<Tarn32s>((Tarn64s{x} * factor + half) >> 32);
    }
    template <int N>
    TARN_INLINE auto operator()(Pack<Tarn32s, N> x) const
    {
        const auto product = add(mulWidened(x, splat<Pack<Tarn32s, N>>(factor)), splat<Pack<Tarn64s, N>>(half));
        return add(x, reinterpretPack<Tarn32s>(oddElements(reinterpretPack<Tarn32f>(product))));
    }
};

struct PartsOfPair {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return Both{reOf(x), imOf(x)};
    }
};

// -- Transforms ------------------------------------------------------------------------------------------------------

// Two complex elements.
using Two = Pack<Tarn32s, 4>;

TARN_INLINE Two firsts(Two a, Two b)
{
    return reinterpretPack<Tarn32s>(lowHalves(reinterpretPack<Tarn64f>(a), reinterpretPack<Tarn64f>(b)));
}
TARN_INLINE Two seconds(Two a, Two b)
{
    return reinterpretPack<Tarn32s>(highHalves(reinterpretPack<Tarn64f>(a), reinterpretPack<Tarn64f>(b)));
}

// Two elements turned by four words each. Their parts are below 2^31 - 2^15.
TARN_INLINE Two rotated(Two x, const Tarn16s* words)
{
    const auto sums = [words](Pack<Tarn16s, 8> parts) {
        const Two pairs = reinterpretPack<Tarn32s>(parts);
        return mulAddPairs(reinterpretPack<Tarn16s>(zipLow(pairs, pairs)), loadPack<8>(words));
    };
    const auto both = join(x, x);
    const Two low = sums(evenElements(reinterpretPack<Tarn16s>(both)));
    const Two high = sums(narrowSaturated<Tarn16s>(shiftRight(add(both, splat<Pack<Tarn32s, 8>>(1 << 15)), 16)));
    const Two rounded = shiftRight(add(low, splat<Two>(1 << (fixedOneBits - 1))), fixedOneBits);
    return add(shiftLeft(high, 16 - fixedOneBits), rounded);
}

void twoPoints(Tarn32s* p)
{
    const Two x = loadPack<4>(p);
    const Two first = firsts(x, x);
    const Two second = seconds(x, x);
    store(p, firsts(add(first, second), sub(first, second)));
}

// Four points to p, in bit-reversed order.
TARN_INLINE void fourPoints(Two x01, Two x23, Tarn32s* p)
{
    const Two s = add(x01, x23);
    const Two d = sub(x01, x23);
    const Two turned = reinterpretPack<Tarn32s>(swapParts(reinterpretPack<Tarn32fc>(d)));
    // The last part of the element that takes a quarter turn changes its sign.
    alignas(16) static constexpr Tarn32s signs[4] = {0, 0, 0, -1};
    const Two sign = loadPack<4>(static_cast<const Tarn32s*>(signs));
    const Two even = firsts(s, d);
    const Two odd = sub(bitXor(seconds(s, turned), sign), sign);
    const Two sum = add(even, odd);
    const Two difference = sub(even, odd);
    store(p, firsts(sum, difference));
    store(p + 4, seconds(sum, difference));
}

void eightPoints(Tarn32s* p, const Tarn16s* twd)
{
    const Two x01 = loadPack<4>(p);
    const Two x23 = loadPack<4>(p + 4);
    const Two x45 = loadPack<4>(p + 8);
    const Two x67 = loadPack<4>(p + 12);
    const Two d01 = rotated(sub(x01, x45), twd);
    const Two d23 = rotated(sub(x23, x67), twd + 8);
    fourPoints(add(x01, x45), add(x23, x67), p);
    fourPoints(d01, d23, p + 8);
}

// -- Recombination ---------------------------------------------------------------------------------------------------

struct Slot {
    Tarn32s re, im;
};

// What four words make of an element, `bits` being those of 1 in them.
Slot turned(Tarn32s re, Tarn32s im, const Tarn16s* words, int bits)
{
    const Tarn64s half = 1LL << (bits - 1);
    return {static_cast<Tarn32s>((Tarn64s{re} * words[0] + Tarn64s{im} * words[1] + half) >> bits),
            static_cast<Tarn32s>((Tarn64s{re} * words[2] + Tarn64s{im} * words[3] + half) >> bits)};
}

// Joins slots 1 to M - 1: facing ones by join(low, high, words), the middle one by middle(slot).
template <typename Join, typename Middle>
void recombine(Tarn32s* data, int M, const Tarn16s* table, Join join, Middle middle)
{
    auto* slots = reinterpret_cast<Slot*>(data);
    for (int k = 1; k < M / 2; ++k) {
        join(slots[k], slots[M - k], table + 8 * (k - 1));
    }
    if (M > 1) {
        middle(slots[M / 2]);
    }
}

} // namespace

void tarns_cnvrt_16s32s(const Tarn16s* pSrc, Tarn32s* pDst, int len, int shift)
{
    walk(pDst, len, ToWord{shift}, pSrc);
}

void tarns_cnvrt_32s16s(const Tarn32s* pSrc, Tarn16s* pDst, int len, int shift)
{
    if (shift > 0) {
        walk(pDst, len, ToSampleDown{shift}, pSrc);
    } else {
        walk(pDst, len, ToSampleUp{shift < -31 ? 31 : -shift}, pSrc);
    }
}

void tarns_vbFftMerge_16s(const Tarn16s* pSrcRe, const Tarn16s* pSrcIm, Tarn16sc* pDst, int len)
{
    walk(pDst, len, complexFrom<Tarn16sc>, pSrcRe, pSrcIm);
}

void tarns_vbFftSplit_16s(const Tarn16sc* pSrc, Tarn16s* pDstRe, Tarn16s* pDstIm, int len)
{
    walk(twoArrays(pDstRe, pDstIm), len, PartsOfPair{}, pSrc);
}

void tarns_jFft_Core_16s(Tarn32sc* pData, int N, int direction, const Tarn16s* twd)
{
    if (direction < 0) {
        std::reverse(pData + 1, pData + N);
    }
    auto* p = reinterpret_cast<Tarn32s*>(pData);
    switch (N) {
    case 2:
        twoPoints(p);
        break;
    case 4:
        fourPoints(loadPack<4>(p), loadPack<4>(p + 4), p);
        break;
    case 8:
        eightPoints(p, twd);
        break;
    default:
        break;
    }
}

void tarns_ibMpyBySqrt2_32s(Tarn32s* pData, int len) { walk(pData, len, TimesRootOfHalf{}, pData); }

void tarns_jRealRecombine_16s(Tarn32s* pData, int M, int /*direction*/, const Tarn16s* table)
{
    recombine(
        pData, M, table,
        [](Slot& low, Slot& high, const Tarn16s* words) {
            const Slot x = turned(low.re - high.re, low.im + high.im, words, fixedOneBits + 1);
            const Slot joined{high.re + x.re, x.im - high.im};
            high = {low.re - x.re, x.im - low.im};
            low = joined;
        },
        [](Slot& x) { x.im = -x.im; });
}

void tarns_jCcsRecombine_16s(Tarn32s* pData, int M, int /*direction*/, const Tarn16s* table)
{
    recombine(
        pData, M, table,
        [](Slot& low, Slot& high, const Tarn16s* words) {
            const Slot x = turned(low.re - high.re, low.im + high.im, words + 4, fixedOneBits);
            const Slot sum{low.re + high.re, low.im - high.im};
            low = {sum.re + x.re, sum.im + x.im};
            high = {sum.re - x.re, x.im - sum.im};
        },
        [](Slot& x) {
            x = {2 * x.re, -2 * x.im};
        });
}
