// Kernels of the ramps. Every element comes from its index, so that nothing accumulates.
#include "levels/generators/psramp.h"

#include "frame/counting.h"

namespace tarn {

namespace {

struct Line {
    Tarn32f offset;
    Tarn32f slope;

    template <typename N>
    TARN_INLINE auto operator()(N index) const
    {
        using X = Like<N, Tarn32f>;
        return add(mul(splat<X>(slope), convert<Tarn32f>(index)), splat<X>(offset));
    }
};

// To the nearest integer, halves away from zero, in every rounding mode: all steps are exact. From 2^23 on there are no
// fractions; NaN and infinities stay.
template <typename X>
TARN_INLINE X roundedAway(X t)
{
    const auto hasFraction = less(absolute(t), splat<X>(0x1p23F));
    const auto whole = tarn::select(hasFraction, convert<Tarn32f>(truncateToInteger(t)), t);
    const auto isFar = notLess(absolute(sub(t, whole)), splat<X>(0.5F));
    return add(whole, tarn::select(isFar, copySign(splat<X>(1), t), splat<X>(0)));
}

// A float, whole or NaN, as an element of type T: saturated. In elements narrower than the processor's conversions a
// NaN leaves the low bits of the lowest integer, which are 0.
template <typename T>
struct WholeTo {
    template <typename X>
    static TARN_INLINE auto of(X t)
    {
        const auto number = tarn::select(equal(t, t), t, splat<X>(0));
        const auto limited = min(max(number, splat<X>(lowest<T>)), splat<X>(highest<T>));
        const auto words = [](auto x) { return narrowSaturated<Tarn16s>(x); };
        if constexpr (std::is_same_v<T, Tarn16u>) {
            const auto moved = words(sub(truncateToInteger(limited), splat<Like<X, Tarn32s>>(0x8000)));
            return retype<Tarn16u>(bitXor(moved, splat<Like<X, Tarn16s>>(lowest<Tarn16s>)));
        } else {
            return narrowSaturated<T>(words(truncateToInteger(limited)));
        }
    }
};
template <>
struct WholeTo<Tarn32s> {
    template <typename X>
    static TARN_INLINE auto of(X t)
    {
        return truncateSaturated(t);
    }
};
// The upper half of the range is converted 2^31 lower; the top bit makes up for it. A NaN is the top bit alone.
template <>
struct WholeTo<Tarn32u> {
    template <typename X>
    static TARN_INLINE auto of(X t)
    {
        constexpr Tarn32f half = 0x1p31F;
        constexpr Tarn32f belowHalf = 0x1.fffffep30F;
        const auto positive = max(splat<X>(0), t);
        const auto isUpper = greater(positive, splat<X>(belowHalf));
        const auto moved = truncateSaturated(sub(positive, tarn::select(isUpper, splat<X>(half), splat<X>(0))));
        const auto topBit = bitsOf(tarn::select(isUpper, splat<X>(-0.0F), splat<X>(0)));
        return retype<Tarn32u>(bitXor(moved, topBit));
    }
};

template <typename T>
struct LineTo {
    Line line;

    template <typename N>
    TARN_INLINE auto operator()(N index) const
    {
        return WholeTo<T>::of(roundedAway(line(index)));
    }
};

} // namespace

template <typename T>
void ramp(T* dst, int len, Tarn32f offset, Tarn32f slope)
{
    walk(dst, len, LineTo<T>{{offset, slope}}, Counting{0});
}

// Indices that single precision counts exactly go on by an addition; the others are converted one by one.
template <>
void ramp(Tarn32f* dst, int len, Tarn32f offset, Tarn32f slope)
{
    using X = Vector<Tarn32f>;
    constexpr int step = lanes<Tarn32f>;
    constexpr int block = unrolledSteps * step;
    constexpr int exact = 1 << 24;
    const auto at = [=](X index) { return add(mul(splat<X>(slope), index), splat<X>(offset)); };
    const int counted = std::min(len, exact);
    int i = 0;
    if (counted >= block) {
        X index = convert<Tarn32f>(loadPack<step>(Counting{0}));
        store(dst, at(index));
        // From a boundary on, over some of these.
        i = elementsToBoundary(dst);
        index = add(index, splat<X>(static_cast<Tarn32f>(i)));
        const auto next = [&](int k) { return at(add(index, splat<X>(static_cast<Tarn32f>(k * step)))); };
        for (; i <= counted - block; i += block) {
            store(dst + i, at(index));
            store(dst + i + step, next(1));
            store(dst + i + 2 * step, next(2));
            store(dst + i + 3 * step, next(3));
            index = add(index, splat<X>(Tarn32f{block}));
        }
    }
    walk(dst + i, len - i, Line{offset, slope}, Counting{i});
}

// Whole steps from a 16-byte boundary on are formed in double precision; what lies before and behind them, and arrays
// too short for a step or with elements at odd addresses, in single precision.
template <>
void ramp(Tarn64f* dst, int len, Tarn32f offset, Tarn32f slope)
{
    constexpr int step = 8;
    constexpr int shortest = step + 1;
    constexpr std::uintptr_t boundary = 16;
    const Line line{offset, slope};
    const auto narrow = [&](int i, int end) {
        for (; i < end; ++i) {
            store(dst + i, widen(line(Tarn32s{i})));
        }
    };
    if (len < shortest || addressOf(dst) % sizeof(Tarn64f) != 0) {
        narrow(0, len);
        return;
    }
    using Indices = Pack<Tarn32s, step>;
    using Doubles = Pack<Tarn64f, step>;
    const int head = addressOf(dst) % boundary != 0 ? 1 : 0;
    narrow(0, head);
    int i = head;
    for (; i <= len - step; i += step) {
        const Indices indices = loadPack<step>(Counting{i});
        store(dst + i, add(mul(convert<Tarn64f>(indices), splat<Doubles>(slope)), splat<Doubles>(offset)));
    }
    narrow(i, len);
}

template void ramp<Tarn8u>(Tarn8u*, int, Tarn32f, Tarn32f);
template void ramp<Tarn8s>(Tarn8s*, int, Tarn32f, Tarn32f);
template void ramp<Tarn16u>(Tarn16u*, int, Tarn32f, Tarn32f);
template void ramp<Tarn16s>(Tarn16s*, int, Tarn32f, Tarn32f);
template void ramp<Tarn32u>(Tarn32u*, int, Tarn32f, Tarn32f);
template void ramp<Tarn32s>(Tarn32s*, int, Tarn32f, Tarn32f);

} // namespace tarn
