// Kernels of the Haar transform of floats.
//
// Forward, h = (b - a) / 2 and a + h are defined in the extended format, whatever flags and modes the vector unit has.
// Of single-precision elements single and double precision give the same bits as long as the mode is to nearest:
//
// - In double precision a difference or sum of elements is exact, or so much larger than one of them that single
//   precision does not see what was lost; and halving is exact.
// - In single precision b / 2 - a / 2 and b / 2 + (a - a / 2) are the same roundings of the same values, and of an
//   infinite one the same NaN, if no halving lost a bit. It does for denormals only, and then leaves a flag.
#include "levels/coding/pswthaar.h"
#include "levels/coding/pswthaar_pairs.h"

#include "frame/flags.h"
#include "frame/rounding.h"
#include "frame/simd_ordered.h"
#include "frame/walk_singly.h"

namespace {

using namespace tarn;

// Pairs whose flags are looked at together.
constexpr int block = 4096;

struct InExtended {
    template <typename T>
    TARN_INLINE Both<T, T> operator()(Both<T, T> pair) const
    {
        const Extended a = pair.first;
        const Extended half = (Extended{pair.second} - a) * Extended{0.5};
        return {static_cast<T>(a + half), static_cast<T>(half)};
    }
};

struct InDouble {
    static constexpr int stepsAtOnce = 1;

    template <typename X>
    TARN_INLINE auto operator()(Both<X, X> pair) const
    {
        const auto a = widen(pair.first);
        using D = std::remove_const_t<decltype(a)>;
        const auto half = mul(sub(widen(pair.second), a), splat<D>(0.5));
        return Both{narrowFloat(addInOrder(half, a)), narrowFloat(half)};
    }
};

struct InSingle {
    template <typename X>
    TARN_INLINE auto operator()(Both<X, X> pair) const
    {
        const auto half = splat<X>(0.5F);
        const auto halfOfA = mul(pair.first, half);
        const auto halfOfB = mul(pair.second, half);
        return Both{addInOrder(halfOfB, sub(pair.first, halfOfA)), sub(halfOfB, halfOfA)};
    }
};

struct Inverse {
    template <typename X>
    TARN_INLINE auto operator()(X low, X high) const
    {
        return Both{sub(low, high), addInOrder(low, high)};
    }
};

// True if the extended format rounds to nearest and to its full precision.
bool extendedIsStandard()
{
    constexpr unsigned precisionField = 0x0300;
    return (readX87Control() & (x87RoundingField | precisionField)) == precisionField;
}

bool overlap(const Tarn32f* a, int lenOfA, const Tarn32f* b, int lenOfB)
{
    return addressOf(a) < addressOf(b + lenOfB) && addressOf(b) < addressOf(a + lenOfA);
}

bool sawUnderflow()
{
    asm volatile("" : : : "memory"); // the stores have been made, and so has what is stored
    return (readMxcsr() & mxcsrUnderflow) != 0;
}

// In single precision where that does, block by block: those with a flag are done again in double precision.
void analyseBlocks(const Tarn32f* pSrc, int pairs, Tarn32f* pDstLow, Tarn32f* pDstHigh)
{
    const StandardArithmetic guard;
    if (overlap(pSrc, 2 * pairs, pDstLow, pairs) || overlap(pSrc, 2 * pairs, pDstHigh, pairs)) {
        walk(twoArrays(pDstLow, pDstHigh), pairs, InDouble{}, Neighbours<Tarn32f>{pSrc});
        return;
    }
    clearFlags(mxcsrUnderflow);
    const int size = streams<Both<Tarn32f, Tarn32f>>(pairs) ? pairs : block;
    for (int i = 0; i < pairs; i += size) {
        const auto dst = twoArrays(pDstLow + i, pDstHigh + i);
        const Neighbours<Tarn32f> src{pSrc + 2 * i};
        const int count = std::min(size, pairs - i);
        walk(dst, count, InSingle{}, src);
        if (sawUnderflow()) [[unlikely]] {
            walk(dst, count, InDouble{}, src);
            clearFlags(mxcsrUnderflow);
        }
    }
}

template <typename T>
void analyseExtended(const T* pSrc, int pairs, T* pDstLow, T* pDstHigh)
{
    const auto dst = twoArrays(pDstLow, pDstHigh);
    const Neighbours<T> src{pSrc};
    walkElements(dst, 0, pairs, InExtended{}, src);
}

} // namespace

void ownsWTHaarFwd_32f(const Tarn32f* pSrc, int len, Tarn32f* pDstLow, Tarn32f* pDstHigh)
{
    const auto last = hold(pSrc + len - 1);
    if (extendedIsStandard()) {
        analyseBlocks(pSrc, len / 2, pDstLow, pDstHigh);
    } else {
        analyseExtended(pSrc, len / 2, pDstLow, pDstHigh);
    }
    if (len % 2 != 0) {
        release(pDstLow + len / 2, last);
    }
}

void ownsWTHaarFwd_64f(const Tarn64f* pSrc, int len, Tarn64f* pDstLow, Tarn64f* pDstHigh)
{
    const auto last = hold(pSrc + len - 1);
    analyseExtended(pSrc, len / 2, pDstLow, pDstHigh);
    if (len % 2 != 0) {
        release(pDstLow + len / 2, last);
    }
}

void ownsWTHaarInv_32f(const Tarn32f* pSrcLow, const Tarn32f* pSrcHigh, Tarn32f* pDst, int len)
{
    synthesiseUnscaled(pSrcLow, pSrcHigh, pDst, len, Inverse{});
}

void ownsWTHaarInv_64f(const Tarn64f* pSrcLow, const Tarn64f* pSrcHigh, Tarn64f* pDst, int len)
{
    synthesiseUnscaled(pSrcLow, pSrcHigh, pDst, len, Inverse{});
}
