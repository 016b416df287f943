// The hybrid sort: quicksort around the median of three down to short ranges, insertion sort for those.
#pragma once

#include "frame/simd.h"

#include <algorithm>
#include <bit>

namespace tarn {

// Which of two elements comes first. With a NaN neither does.
template <bool descend>
struct Order {
    template <typename T>
    TARN_INLINE bool operator()(T a, T b) const
    {
        return descend ? b < a : a < b;
    }
};

// An array at any address.
template <typename T>
struct Elements {
    T* p;

    TARN_INLINE T operator[](std::ptrdiff_t i) const { return valueOf<T>(hold(p + i)); }
    TARN_INLINE void move(std::ptrdiff_t to, std::ptrdiff_t from) const { moveElement(p + to, p + from); }
    TARN_INLINE void swap(std::ptrdiff_t i, std::ptrdiff_t k) const { swapElements(p + i, p + k); }
};

// Ranges of this many elements and fewer are left to insertion sort.
inline constexpr int shortRange = 9;

// Bad pivots of ranges of fewer elements do no harm, and are common.
inline constexpr int rangesToWatch = 128;

template <typename T, typename Before>
void sortShort(Elements<T> a, int first, int last, Before before)
{
    for (int i = first + 1; i <= last; ++i) {
        const auto held = hold(a.p + i);
        const T x = valueOf<T>(held);
        int k = i;
        if (before(x, a[first])) {
            for (; k > first; --k) {
                a.move(k, k - 1);
            }
        } else {
            // The first element ends the loop: x does not come before it.
            for (; before(x, a[k - 1]); --k) {
                a.move(k, k - 1);
            }
        }
        release(a.p + k, held);
    }
}

// The smaller one to the front.
template <typename T, typename Before>
TARN_INLINE void orderPair(Elements<T> a, int i, int k, Before before)
{
    if (before(a[k], a[i])) {
        a.swap(i, k);
    }
}

// Places, counted from one end of a window inwards, whose elements belong to the other end.
struct Misplaced {
    static constexpr int most = 64;

    unsigned char offsets[most];
    int begin = 0;
    int count = 0;

    // Every offset is noted and the noting taken back where the element is right: there is no branch for the data to
    // mislead.
    template <typename IsMisplaced>
    TARN_INLINE void collect(int size, IsMisplaced isMisplaced)
    {
        begin = 0;
        count = 0;
        for (int k = 0; k < size; ++k) {
            offsets[count] = static_cast<unsigned char>(k);
            count += isMisplaced(k);
        }
    }
};

// Splits the elements from `first` to before `end` so that none in front of the returned place comes after the pivot
// and none from there on comes before it. Both ends are scanned a block at a time, and what is misplaced in the one is
// exchanged for what is misplaced in the other. Elements equal to the pivot count as misplaced on both sides, which
// splits a range of equal elements in the middle.
template <typename T, typename Before>
int partition(Elements<T> a, int first, int end, T pivot, Before before)
{
    Misplaced front;
    Misplaced back;
    const auto collectFront = [&](int size) {
        front.collect(size, [&](int k) { return !before(a[first + k], pivot); });
    };
    const auto collectBack = [&](int size) {
        back.collect(size, [&](int k) { return !before(pivot, a[end - 1 - k]); });
    };
    const auto exchange = [&] {
        const int pairs = std::min(front.count, back.count);
        for (int k = 0; k < pairs; ++k) {
            a.swap(first + front.offsets[front.begin + k], end - 1 - back.offsets[back.begin + k]);
        }
        front.begin += pairs;
        front.count -= pairs;
        back.begin += pairs;
        back.count -= pairs;
    };

    while (end - first > 2 * Misplaced::most) {
        if (front.count == 0) {
            collectFront(Misplaced::most);
        }
        if (back.count == 0) {
            collectBack(Misplaced::most);
        }
        exchange();
        first += front.count == 0 ? Misplaced::most : 0;
        end -= back.count == 0 ? Misplaced::most : 0;
    }

    // The rest: what is left of a block that is not done on one side, and the unseen elements.
    int frontSize = Misplaced::most;
    int backSize = Misplaced::most;
    if (front.count == 0 && back.count == 0) {
        frontSize = (end - first) / 2;
        backSize = end - first - frontSize;
        collectFront(frontSize);
        collectBack(backSize);
    } else if (front.count == 0) {
        frontSize = end - first - backSize;
        collectFront(frontSize);
    } else {
        backSize = end - first - frontSize;
        collectBack(backSize);
    }
    exchange();

    // One side may have misplaced elements left: they go next to the border, the farthest first.
    int border = first + frontSize;
    while (front.count > 0) {
        --front.count;
        a.swap(first + front.offsets[front.begin + front.count], --border);
    }
    while (back.count > 0) {
        --back.count;
        a.swap(end - 1 - back.offsets[back.begin + back.count], border++);
    }
    return border;
}

template <typename T, typename Before>
void siftDown(Elements<T> a, int first, int root, int count, Before before)
{
    const auto held = hold(a.p + first + root);
    const T x = valueOf<T>(held);
    // Only a place in the first half has elements below it, and only then does an int hold where they are.
    while (root < count / 2) {
        int child = 2 * root + 1;
        if (child + 1 < count && before(a[first + child], a[first + child + 1])) {
            ++child;
        }
        if (!before(x, a[first + child])) {
            break;
        }
        a.move(first + root, first + child);
        root = child;
    }
    release(a.p + first + root, held);
}

// For ranges on which the pivots were bad again and again.
template <typename T, typename Before>
void sortHeap(Elements<T> a, int first, int last, Before before)
{
    int count = last - first + 1;
    for (int root = count / 2 - 1; root >= 0; --root) {
        siftDown(a, first, root, count, before);
    }
    while (count > 1) {
        --count;
        a.swap(first, first + count);
        siftDown(a, first, 0, count, before);
    }
}

template <typename T, typename Before>
void sortHybrid(T* pSrcDst, int len, Before before)
{
    struct Range {
        int first, last;
    };
    // The larger part waits, so that every range is at most half as long as the one below it.
    Range waiting[32];
    int depth = 0;

    const Elements<T> a{pSrcDst};
    int badSplits = std::bit_width(static_cast<unsigned>(len));
    int first = 0;
    int last = len - 1;
    for (;;) {
        while (last - first >= shortRange && badSplits > 0) {
            const int middle = first + (last - first) / 2;
            orderPair(a, first, middle, before);
            orderPair(a, middle, last, before);
            orderPair(a, first, middle, before);
            // The ends are on their sides already, so that either part is shorter than the whole, whatever the
            // comparisons say.
            const int border = partition(a, first + 1, last, a[middle], before);
            const int inFront = border - first;
            const int behind = last - border + 1;
            badSplits -= last - first > rangesToWatch && std::min(inFront, behind) < (last - first) / 8;
            if (inFront < behind) {
                waiting[depth++] = {border, last};
                last = border - 1;
            } else {
                waiting[depth++] = {first, border - 1};
                first = border;
            }
        }
        if (last - first >= shortRange) {
            sortHeap(a, first, last, before);
        } else {
            sortShort(a, first, last, before);
        }
        if (depth == 0) {
            break;
        }
        --depth;
        first = waiting[depth].first;
        last = waiting[depth].last;
    }
}

} // namespace tarn
