// Sorted windows of which one element leaves and another one enters at a time.
#pragma once

#include "frame/bytes.h"
#include "frame/simd.h"
#include "frame/simd_neighbours.h"
#include "frame/walk.h"

#include <limits>

namespace tarn {

// The type that elements are sorted as.
template <typename T>
using Sorted = std::conditional_t<std::is_integral_v<T>, Tarn32s, T>;

// Above and below which there is nothing.
template <typename V>
inline constexpr V top = std::numeric_limits<V>::has_infinity ? std::numeric_limits<V>::infinity() : highest<V>;
template <typename V>
inline constexpr V bottom = std::numeric_limits<V>::has_infinity ? -top<V> : lowest<V>;

// Work memory of a window is a multiple of so many elements.
inline constexpr int windowGranule = std::max(8, lanes<Tarn32s>);
constexpr long long windowRoom(int size)
{
    return (static_cast<long long>(size) + windowGranule - 1) / windowGranule * windowGranule;
}

// An element as a window holds it. No order has a place for a NaN: it counts as infinite, so that what leaves the
// window later is found.
template <typename T>
TARN_INLINE Sorted<T> admitted(const T* p)
{
    if constexpr (std::is_integral_v<T>) {
        return loadElement(p);
    } else {
        return min(loadElement(p), top<T>);
    }
}

// A window whose elements lie in columns: row j of so many rows holds the elements of ranks j, j + rows, j + 2 rows,
// ... So the neighbours in rank of a whole row are the rows beside it, and one pass of minima and maxima, without a
// branch on the data, takes one element out and puts another one in: it rewrites all of the window, which is fast while
// that is small.
template <typename V>
class ColumnWindow {
public:
    // `sorted` may not be in the memory of the window.
    ColumnWindow(V* memory, const V* sorted, int size) : window(memory), rows((size + lanes<V> - 1) / lanes<V>)
    {
        for (int rank = 0; rank < rows * lanes<V>; ++rank) {
            window[placeOf(rank)] = rank < size ? sorted[rank] : top<V>;
        }
    }

    TARN_INLINE V at(int place) const { return window[place]; }

    int placeOf(int rank) const { return rank % rows * lanes<V> + rank / rows; }

    // Without the first element that is `old`, and with `fresh` behind those that are not above it.
    TARN_INLINE void replace(V old, V fresh)
    {
        const auto leaves = splat<Row>(old);
        const auto enters = splat<Row>(fresh);
        V* const lastRow = window + Index{rows - 1} * lanes<V>;
        // What is left of a row: from the one that leaves on, each rank's successor.
        const auto kept = [&](Row row, Row next) __attribute__((always_inline))
        {
            return select(less(row, leaves), row, next);
        };

        Row row = loadRow(window);
        const Row behind = fromNextLanes(row, splat<Row>(top<V>));
        const Row lastKept = kept(loadRow(lastRow), behind);
        Row below = fromPreviousLanes(lastKept, splat<Row>(bottom<V>));
        for (V* p = window; p != lastRow; p += lanes<V>) {
            const Row next = loadRow(p + lanes<V>);
            const Row left = kept(row, next);
            storeAligned(p, max(below, min(enters, left)));
            below = left;
            row = next;
        }
        storeAligned(lastRow, max(below, min(enters, lastKept)));
    }

private:
    using Row = Vector<V>;
    static TARN_INLINE Row loadRow(const V* p) { return loadAligned<lanes<V>>(p); }

    V* window;
    int rows;
};

// A window in one sorted run, of which only what lies between the element that leaves and the one that enters moves.
template <typename V>
class RunWindow {
public:
    RunWindow(V* sorted, int size) : window(sorted), size(size) {}

    TARN_INLINE V at(int place) const { return window[place]; }

    int placeOf(int rank) const { return rank; }

    TARN_INLINE void replace(V old, V fresh)
    {
        const int from = std::min(countWhile([&](V x) { return x < old; }), size - 1);
        const int notAbove = countWhile([&](V x) { return !(fresh < x); });
        if (notAbove > from) {
            tarn::move(window + from + 1, window + from, notAbove - from - 1);
            window[notAbove - 1] = fresh;
        } else {
            tarn::move(window + notAbove, window + notAbove + 1, from - notAbove);
            window[notAbove] = fresh;
        }
    }

private:
    // How many elements in front have a property; halves are taken without a branch on the data.
    template <typename Property>
    TARN_INLINE int countWhile(Property has) const
    {
        const V* first = window;
        for (int count = size; count > 1;) {
            const int half = count / 2;
            first = has(first[half - 1]) ? first + half : first;
            count -= half;
        }
        return static_cast<int>(first - window) + static_cast<int>(has(*first));
    }

    V* window;
    int size;
};

// The elements of the window in the order in which they came.
template <typename V>
class Arrivals {
public:
    Arrivals(V* memory, int size) : arrivals(memory), size(size) {}

    // The element that came first, whose place another one takes.
    TARN_INLINE V exchange(V fresh)
    {
        const V old = arrivals[oldest];
        arrivals[oldest] = fresh;
        oldest = oldest + 1 == size ? 0 : oldest + 1;
        return old;
    }

private:
    V* arrivals;
    int size;
    int oldest = 0;
};

// The window moves on one element an output. `taken` elements of the source are in the window or were; behind the last
// one that element comes again and again.
template <typename Window, typename T>
TARN_INLINE void slideWindow(const T* src, T* dst, int len, int size, int taken, Arrivals<Sorted<T>> arrivals,
                             Window window)
{
    const int middle = window.placeOf(size / 2);
    const auto next = [&](Sorted<T> fresh, Index n) __attribute__((always_inline))
    {
        window.replace(arrivals.exchange(fresh), fresh);
        store(dst + n, static_cast<T>(window.at(middle)));
    };
    const Sorted<T> final = admitted(src + len - 1);
    Index n = 1;
    for (Index k = taken; k < len; ++k, ++n) {
        next(admitted(src + k), n);
    }
    for (; n < len - 1; ++n) {
        next(final, n);
    }
}

} // namespace tarn
