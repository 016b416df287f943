// Kernels of both extremes in one pass, and of the search for their places.
#include "levels/statistics/psminmax.h"

#include "frame/reduce.h"

using namespace tarn;

namespace {

template <typename T>
TARN_INLINE void storeExtremes(Extremes<T> extremes, T* smallest, T* largest)
{
    store(smallest, extremes.smallest);
    store(largest, extremes.largest);
}

// Two vectors a step, which start as the first step; the tail goes to the first lane, and is all there is of an array
// shorter than a step.
template <typename T>
TARN_INLINE void minMaxOfFloats(const T* p, int len, T* smallest, T* largest)
{
    constexpr int step = reducedLanes<T>;
    const T first = loadElement(p);
    Extremes<T> extremes{first, first};
    if (len < 2 * step) {
        takeElements(extremes, 1, len, WidenExtremes{}, p);
    } else {
        const auto at = [p](Index i) {
            const auto x = loadPack<step>(p + i);
            return Extremes<Reduced<T>>{x, x};
        };
        Accumulators<Extremes<Reduced<T>>, 2> states(at(0));
        states.at[1] = at(step);
        const Index i = takeSteps<step>(states, 2 * step, len, WidenExtremes{}, p);
        const auto all = states.joined(WidenExtremes{});
        Extremes<T> tail{firstLane(all.smallest), firstLane(all.largest)};
        takeElements(tail, i, len, WidenExtremes{}, p);
        extremes =
            foldExtremes<T>({withFirstLane(all.smallest, tail.smallest), withFirstLane(all.largest, tail.largest)});
    }
    storeExtremes(extremes, smallest, largest);
}

// Integers have no order to keep, so that vectors meet each other before they meet the running extremes. Unsigned ones
// are moved to where the signed instructions see their order.
template <typename T, typename Moved>
TARN_INLINE void minMaxOfIntegers(const T* p, int len, T* smallest, T* largest, Moved moved)
{
    constexpr int step = reducedLanes<T>;
    const T first = loadElement(p);
    Extremes<T> extremes{first, first};
    Index i = 0;
    if (len >= step) {
        const auto start = moved(loadPack<step>(p));
        using State = Extremes<std::remove_const_t<decltype(start)>>;
        const auto takePair = [moved](State state, Pack<T, 2 * step> x) {
            return WidenExtremes{}(state, ordered(moved(lowHalf(x)), moved(highHalf(x))));
        };
        const auto takeOne = [moved](State state, Reduced<T> x) { return WidenExtremes{}(state, moved(x)); };
        Accumulators<State, 1> states(State{start, start});
        i = takeSteps<2 * step>(states, step, len, takePair, p);
        auto all = states.at[0];
        i = takePacks<step>(all, i, len, takeOne, p);
        const auto folded = foldExtremes<Element<decltype(all.smallest)>>(all);
        extremes = {moved(folded.smallest), moved(folded.largest)};
    }
    takeElements(extremes, i, len, WidenExtremes{}, p);
    storeExtremes(extremes, smallest, largest);
}

} // namespace

void MiniMax_8u_T7(const Tarn8u* pSrc, int len, Tarn8u* pMin, Tarn8u* pMax)
{
    minMaxOfIntegers(pSrc, len, pMin, pMax, Identity{});
}

void MiniMax_16u_W7(const Tarn16u* pSrc, int len, Tarn16u* pMin, Tarn16u* pMax)
{
    minMaxOfIntegers(pSrc, len, pMin, pMax, moveOrder);
}

void MiniMax_16s_T7(const Tarn16s* pSrc, int len, Tarn16s* pMin, Tarn16s* pMax)
{
    minMaxOfIntegers(pSrc, len, pMin, pMax, Identity{});
}

void MiniMax_32s_T7(const Tarn32s* pSrc, int len, Tarn32s* pMin, Tarn32s* pMax)
{
    minMaxOfIntegers(pSrc, len, pMin, pMax, Identity{});
}

void tarn::minMax_32u(const Tarn32u* pSrc, int len, Tarn32u* pMin, Tarn32u* pMax)
{
    minMaxOfIntegers(pSrc, len, pMin, pMax, moveOrder);
}

void MiniMax_32f_W7(const Tarn32f* pSrc, int len, Tarn32f* pMin, Tarn32f* pMax)
{
    minMaxOfFloats(pSrc, len, pMin, pMax);
}

void MiniMax_64f_T7(const Tarn64f* pSrc, int len, Tarn64f* pMin, Tarn64f* pMax)
{
    minMaxOfFloats(pSrc, len, pMin, pMax);
}

template <typename T>
int tarn::firstMatch(const T* pSrc, int len, T value)
{
    return std::max(indexOfFirst<lanes<T>>(pSrc, len, value, matchesUnordered), 0);
}

template int tarn::firstMatch(const Tarn8u* pSrc, int len, Tarn8u value);
template int tarn::firstMatch(const Tarn16u* pSrc, int len, Tarn16u value);
template int tarn::firstMatch(const Tarn16s* pSrc, int len, Tarn16s value);
template int tarn::firstMatch(const Tarn32u* pSrc, int len, Tarn32u value);
template int tarn::firstMatch(const Tarn32s* pSrc, int len, Tarn32s value);
template int tarn::firstMatch(const Tarn32f* pSrc, int len, Tarn32f value);
template int tarn::firstMatch(const Tarn64f* pSrc, int len, Tarn64f value);
