// Kernels of the order of a vector: how many bits its largest magnitude takes, or which binary exponent it has.
#include "levels/statistics/psminmax.h"

#include "frame/flags.h"
#include "frame/reduce.h"
#include "frame/simd.h"

#include <bit>

using namespace tarn;

namespace {

// |x| as a bit pattern: that of the lowest integer stays as it is.
template <typename X>
TARN_INLINE X magnitudeBits(X x)
{
    const auto sign = shiftRight(x, 8 * static_cast<int>(sizeof(Element<X>)) - 1);
    return sub(bitXor(x, sign), sign);
}

struct OrMagnitude {
    template <typename X>
    TARN_INLINE X operator()(X bits, X x) const
    {
        return bitOr(bits, magnitudeBits(x));
    }
};

// The largest magnitude among those of finite floats, and whether there were others.
template <typename X>
struct FiniteMaximum {
    X bits;
    X rejected;
};

struct TakeFinite {
    template <typename X>
    TARN_INLINE FiniteMaximum<X> operator()(FiniteMaximum<X> state, X x) const
    {
        const auto magnitude = bitAnd(x, splat<X>(highest<Tarn32s>));
        const auto finite = less(magnitude, splat<X>(infinity));
        const auto none = splat<X>(0);
        return {max(state.bits, tarn::select(finite, magnitude, none)),
                tarn::select(finite, state.rejected, splat<X>(-1))};
    }

    static constexpr Tarn32s infinity = std::bit_cast<Tarn32s>(std::numeric_limits<Tarn32f>::infinity());
};

constexpr int mantissaBits_32f = 23;
constexpr int exponentOfHalf_32f = 126;

bool orderOfFinite(const Tarn32f* p, int len, int* order)
{
    constexpr int step = reducedLanes<Tarn32s>;
    const auto* bits = reinterpret_cast<const Tarn32s*>(p);
    const auto none = splat<Reduced<Tarn32s>>(0);
    FiniteMaximum<Reduced<Tarn32s>> all{none, none};
    const Index i = takePacks<step>(all, 0, len, TakeFinite{}, bits);
    FiniteMaximum<Tarn32s> state{foldLanes(all.bits, max), foldLanes(all.rejected, bitOr)};
    takeElements(state, i, len, TakeFinite{}, bits);
    store(order, state.bits == 0 ? 0 : (state.bits >> mantissaBits_32f) - exponentOfHalf_32f);
    return state.rejected != 0;
}

// -- Doubles by their upper halves -----------------------------------------------------------------------------------

constexpr int mantissaBitsAbove_64f = 20;
constexpr int exponentOfHalf_64f = 1022;
constexpr Tarn32u largestAbove = 0x7FEFFFFF;
constexpr Tarn32u upper16Bits = 0xFFFF0000;

TARN_INLINE Tarn32u upperHalf(Tarn64f magnitude)
{
    return static_cast<Tarn32u>(std::bit_cast<unsigned long long>(magnitude) >> 32);
}

void storeOrder(Tarn32u upper, int* order)
{
    store(order, upper == 0 ? 0 : static_cast<int>(upper >> mantissaBitsAbove_64f) - exponentOfHalf_64f);
}

// The upper 16 bits have the exponent, and decide. The last of each four elements is held to a stricter bound than the
// others: with the upper half of the largest double it is rejected.
void orderOfFinite(const Tarn64f* p, int len, int* order)
{
    const int whole = len - len % 4;
    Tarn32u largest = 0;
    for (int i = 0; i < len; ++i) {
        const Tarn32u upper = upperHalf(absolute(loadElement(p + i)));
        const Tarn32u bound = i < whole && i % 4 == 3 ? largestAbove - 1 : largestAbove;
        if (upper <= bound) {
            largest = std::max(largest, upper & upper16Bits);
        }
    }
    storeOrder(largest, order);
}

// True if a NaN has met the maximum that was computed last, or the flag was up before.
bool sawInvalid() { return (readMxcsr() & mxcsrInvalid) != 0; }

} // namespace

void MaxOrder_16s_W7(const Tarn16s* pSrc, int len, int* pOrder)
{
    Tarn16s smallest;
    Tarn16s largest;
    MiniMax_16s_T7(pSrc, len, &smallest, &largest);
    const int magnitudes = std::max<int>(0, largest) | -std::min<int>(0, smallest);
    store(pOrder, std::bit_width(static_cast<unsigned>(magnitudes)));
}

void MaxOrder_32s_W7(const Tarn32s* pSrc, int len, int* pOrder)
{
    const Tarn32s magnitudes = reduce<4>(Tarn32s{0}, len, OrMagnitude{}, bitOr, pSrc);
    store(pOrder, std::bit_width(static_cast<unsigned>(magnitudes)));
}

// With the running maximum as first operand a NaN pushes it out, so that a raised flag makes it worthless.
int MaxOrder_32f_T7(const Tarn32f* pSrc, int len, int* pOrder)
{
    const auto take = [](auto largest, auto x) { return max(largest, absolute(x)); };
    Tarn32f largest = reduce<4>(0.0F, len, take, max, pSrc);
    settle(largest);
    const auto bits = std::bit_cast<Tarn32s>(largest);
    int rejected = 0;
    if (sawInvalid() || bits >= TakeFinite::infinity) {
        rejected = orderOfFinite(pSrc, len, pOrder);
    } else {
        store(pOrder, bits == 0 ? 0 : (bits >> mantissaBits_32f) - exponentOfHalf_32f);
    }
    clearFlags(mxcsrInvalid);
    return rejected;
}

// With the running maximum as second operand a NaN is passed over, so that the maximum stands.
int MaxOrder_64f_T7(const Tarn64f* pSrc, int len, int* pOrder)
{
    const auto take = [](auto largest, auto x) { return max(absolute(x), largest); };
    Tarn64f largest = reduce<4>(0.0, len, take, max, pSrc);
    settle(largest);
    int rejected = sawInvalid();
    if (upperHalf(largest) > largestAbove) {
        orderOfFinite(pSrc, len, pOrder);
        rejected = 1;
    } else {
        storeOrder(upperHalf(largest), pOrder);
    }
    clearFlags(mxcsrInvalid);
    return rejected;
}
