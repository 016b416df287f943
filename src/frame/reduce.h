// The reducer: makes one value of many. Whole steps go into accumulators side by side, so that their latencies overlap;
// the accumulators are joined, the lanes folded, and what is left of the array is taken one element at a time.
//
// Families give it an operation `take(state, x...)` on elements and packs, and the `join` of two states. How many
// accumulators there are is part of a floating-point sum's rounding and stands with the family; how many lanes each has
// follows from the level.
#pragma once

#include "frame/simd.h"
#include "frame/walk.h"

#include <array>

namespace tarn {

template <typename State, int count>
struct Accumulators {
    std::array<State, static_cast<std::size_t>(count)> at;

    explicit TARN_INLINE Accumulators(State start)
    {
        repeat<count>([&](auto k) { at[k] = start; });
    }

    // In the order first with third, second with fourth, then those two.
    template <typename Join>
    TARN_INLINE State joined(Join join) const
    {
        Accumulators left = *this;
        repeat<count / 2>([&](auto k) { left.at[k] = join(at[k], at[k + count / 2]); });
        if constexpr (count == 4) {
            return join(left.at[0], left.at[1]);
        } else {
            static_assert(count <= 2);
            return left.at[0];
        }
    }
};

// Four accumulators that registers of this level hold in pairs. Two chains of additions, where one in the widest
// register would have the longest latency, and four would wait for the ports that add.
template <typename State>
inline constexpr bool fitsTwice = false;
template <typename T, int N>
inline constexpr bool fitsTwice<Pack<T, N>> = bytesOf<T, N> < widestRegister;

// Takes packs of `step` elements from i on, one for each accumulator in turn, as long as there is one for each; tells
// where it stopped. Two turns between tests of the loop's end, since a turn may be no more than two instructions.
template <int step, typename State, int count, typename Take, typename... S>
TARN_INLINE Index takeSteps(Accumulators<State, count>& states, Index i, Index len, Take take, S... src)
{
    constexpr int turn = count * step;
    if constexpr (fitsTwice<State> && count == 4) {
        constexpr int half = turn / 2;
        auto first = join(states.at[0], states.at[1]);
        auto second = join(states.at[2], states.at[3]);
        const auto takeHalves = [&](Index at) __attribute__((always_inline))
        {
            first = take(first, loadPack<half>(src + at)...);
            second = take(second, loadPack<half>(src + (at + half))...);
        };
        for (; i <= len - 2 * turn; i += 2 * turn) {
            takeHalves(i);
            takeHalves(i + turn);
        }
        if (i <= len - turn) {
            takeHalves(i);
            i += turn;
        }
        states.at = {lowHalf(first), highHalf(first), lowHalf(second), highHalf(second)};
        return i;
    }
    // One address for each source, from which all packs have constant distances.
    const auto takeTurn = [&](auto offset, auto... at) __attribute__((always_inline))
    {
        repeat<count>([&](auto k) { states.at[k] = take(states.at[k], loadPack<step>(at + (offset + k * step))...); });
    };
    constexpr std::integral_constant<int, 0> first;
    constexpr std::integral_constant<int, turn> second;
    for (; i <= len - 2 * turn; i += 2 * turn) {
        takeTurn(first, (src + i)...);
        takeTurn(second, (src + i)...);
    }
    if (i <= len - turn) {
        takeTurn(first, (src + i)...);
        i += turn;
    }
    return i;
}

// The rest, one pack at a time.
template <int step, typename State, typename Take, typename... S>
TARN_INLINE Index takePacks(State& state, Index i, Index len, Take take, S... src)
{
    for (; i <= len - step; i += step) {
        state = take(state, loadPack<step>(src + i)...);
    }
    return i;
}

// The elements from i up to `end`.
template <typename State, typename Take, typename... S>
TARN_INLINE Index takeElements(State& state, Index i, Index end, Take take, S... src)
{
    for (; i < end; ++i) {
        state = take(state, loadElement(src + i)...);
    }
    return i;
}

// The lanes of one accumulator. How many partial sums of floats there are is part of their result, as is the boundary
// on which their vectors lie: 16 bytes at every width. Integers have no order to keep, and take the width of the level.
inline constexpr int reducedBytes = 16;
template <typename T>
inline constexpr int reducedLanes = std::is_integral_v<Part<T>> ? lanes<T> : reducedBytes / static_cast<int>(sizeof(T));
template <typename T>
using Reduced = Pack<T, reducedLanes<T>>;

// How many elements one array is walked before its vectors lie on boundaries, if there are as many. Two arrays need not
// agree, and are taken as they lie.
template <typename T>
TARN_INLINE Index headOf(Index len, const T* src)
{
    return std::min<Index>(len, elementsToBoundary<reducedBytes>(src));
}
template <typename... S>
TARN_INLINE Index headOf(Index /*len*/, S... /*src*/)
{
    return 0;
}

// The reduction of len elements to one T, from `start`, which take() and join() must not be changed by: 0 of a sum or
// of magnitudes, any element of an extreme.
template <int count, typename T, typename Take, typename Join, typename... S>
TARN_INLINE T reduce(T start, Index len, Take take, Join join, S... src)
{
    constexpr int step = reducedLanes<T>;
    T total = start;
    Index i = takeElements(total, 0, headOf(len, src...), take, src...);
    if (len - i >= step) {
        Accumulators<Reduced<T>, count> states(splat<Reduced<T>>(start));
        i = takeSteps<step>(states, i, len, take, src...);
        auto lanesOfAll = states.joined(join);
        i = takePacks<step>(lanesOfAll, i, len, take, src...);
        total = join(total, foldLanes(lanesOfAll, join));
    }
    takeElements(total, i, len, take, src...);
    return total;
}

// Exact sums in 64-bit lanes: `widen` makes a register of them from the packs of one step, `one` an integer from single
// elements. No order of summation shows.
template <int step, typename Widen, typename One, typename... S>
TARN_INLINE Tarn64s sumExact(Index len, Widen widen, One one, S... src)
{
    const auto take = [widen](Vector<Tarn64s> sum, auto... x) { return add(sum, widen(x...)); };
    Accumulators<Vector<Tarn64s>, 2> sums(splat<Vector<Tarn64s>>(0));
    Index i = takeSteps<step>(sums, 0, len, take, src...);
    auto lanesOfAll = sums.joined(add);
    i = takePacks<step>(lanesOfAll, i, len, take, src...);
    Tarn64s total = foldLanes(lanesOfAll, add);
    for (; i < len; ++i) {
        total += one(loadElement(src + i)...);
    }
    return total;
}

// -- Both extremes ----------------------------------------------------------------------------------------------------

template <typename X>
struct Extremes {
    X smallest;
    X largest;
};

// The running values come first: that decides where floats are NaNs or zeros.
struct WidenExtremes {
    template <typename X>
    TARN_INLINE Extremes<X> operator()(Extremes<X> extremes, X x) const
    {
        return {min(extremes.smallest, x), max(extremes.largest, x)};
    }
    template <typename X>
    TARN_INLINE Extremes<X> operator()(Extremes<X> a, Extremes<X> b) const
    {
        return {min(a.smallest, b.smallest), max(a.largest, b.largest)};
    }
};

// The smaller and the larger of each two lanes. Where the level has no such instructions one comparison serves both.
template <Integer T>
TARN_INLINE Extremes<Vector<T>> ordered(Vector<T> x, Vector<T> y)
{
    if constexpr (sizeof(T) == sizeof(Tarn32s)) {
        const auto exchanged = bitAnd(bitXor(x, y), greater(x, y));
        return {bitXor(x, exchanged), bitXor(y, exchanged)};
    } else {
        return {min(x, y), max(x, y)};
    }
}

template <typename T>
TARN_INLINE Extremes<T> foldExtremes(Extremes<Reduced<T>> extremes)
{
    return {foldLanes(extremes.smallest, min), foldLanes(extremes.largest, max)};
}

// -- Views -----------------------------------------------------------------------------------------------------------

// The elementwise operation of two arrays as a source of its own, for the reductions of a difference.
template <typename Operation, typename T>
struct Elementwise {
    using Element = decltype(Operation{}(T{}, T{}));
    const T* a;
    const T* b;

    TARN_INLINE Elementwise operator+(Index elements) const { return {a + elements, b + elements}; }
};
template <typename Operation, typename T>
TARN_INLINE auto loadElement(Elementwise<Operation, T> source)
{
    return Operation{}(tarn::loadElement(source.a), tarn::loadElement(source.b));
}
template <int N, typename Operation, typename T>
TARN_INLINE auto loadPack(Elementwise<Operation, T> source)
{
    return Operation{}(tarn::loadPack<N>(source.a), tarn::loadPack<N>(source.b));
}

template <typename T>
using DifferenceOf = Elementwise<std::conditional_t<isComplex<T>, PerPart<Word<Sub>>, Word<Sub>>, T>;

// -- Search ----------------------------------------------------------------------------------------------------------

// The index of the first element that `matches(x, value)`, -1 if none of the len elements does; `step` of them are read
// at once.
template <int step, typename T, typename Matches>
TARN_INLINE int indexOfFirst(const T* p, int len, T value, Matches matches)
{
    const auto wanted = splat<Pack<T, step>>(value);
    int i = 0;
    for (; i <= len - step; i += step) {
        const auto found = matches(loadPack<step>(p + i), wanted);
        if (anyOf(found)) {
            return i + firstSet(found);
        }
    }
    for (; i < len; ++i) {
        if (matches(loadElement(p + i), value)) {
            return i;
        }
    }
    return -1;
}

} // namespace tarn
