// Medians of few elements by minima and maxima alone, of single elements and of packs, and the walk of a window of so
// many elements along an array.
#pragma once

#include "frame/walk.h"

#include <array>

namespace tarn {

// The median of an odd number of elements by forgetting: of a little more than half of them neither the smallest nor
// the largest can be the median of all, so both are dropped, and one of the others takes their place until three are
// left. Few elements are alive at a time, which suits the eight registers of 32-bit code.
template <int size>
struct MedianOf;

template <>
struct MedianOf<3> {
    template <typename X>
    TARN_INLINE X operator()(X a, X b, X c) const
    {
        return min(max(a, b), max(c, min(a, b)));
    }
};

template <>
struct MedianOf<5> {
    template <typename X>
    TARN_INLINE X operator()(X a, X b, X c, X d, X e) const
    {
        return MedianOf<3>{}(max(min(a, b), min(c, d)), min(max(a, b), max(c, d)), e);
    }
};

template <>
struct MedianOf<7> {
    template <typename X>
    TARN_INLINE X operator()(X a, X b, X c, X d, X e, X f, X g) const
    {
        const X lowAB = min(a, b);
        const X highAB = max(a, b);
        const X lowCD = min(c, d);
        const X highCD = max(c, d);
        const X middle = min(max(highAB, highCD), max(min(lowAB, lowCD), e));
        return MedianOf<5>{}(max(lowAB, lowCD), min(highAB, highCD), middle, f, g);
    }
};

template <>
struct MedianOf<9> {
    template <typename X>
    TARN_INLINE X operator()(X a, X b, X c, X d, X e, X f, X g, X h, X i) const
    {
        const X lowAB = min(a, b);
        const X highAB = max(a, b);
        const X lowCD = min(c, d);
        const X highCD = max(c, d);
        const X lowEF = min(e, f);
        const X highEF = max(e, f);
        return MedianOf<7>{}(max(lowAB, lowCD), max(min(lowAB, lowCD), lowEF), min(highAB, highCD),
                             min(max(highAB, highCD), highEF), g, h, i);
    }
};

// The median around one element. Beyond its ends the array goes on with its first and its last element.
template <int size, typename T>
TARN_INLINE T medianAround(const T* src, int len, int place)
{
    return [&]<int... k>(std::integer_sequence<int, k...>) __attribute__((always_inline))
    {
        return MedianOf<size>{}(loadElement(src + std::clamp(place + k - size / 2, 0, len - 1))...);
    }
    (std::make_integer_sequence<int, size>{});
}

// The medians in the places first, ..., first + count - 1: an array that is taken before anything is written.
template <int size, int most, typename T>
class MediansApart {
public:
    MediansApart(const T* src, int len, int first, int count) : first(first), count(count)
    {
        TARN_ROLLED
        for (int k = 0; k < count; ++k) {
            medians[k] = medianAround<size>(src, len, first + k);
        }
    }
    void storeTo(T* dst) const
    {
        TARN_ROLLED
        for (int k = 0; k < count; ++k) {
            store(dst + first + k, medians[k]);
        }
    }

private:
    T medians[most] = {};
    int first;
    int count;
};

// Medians in consecutive places of an array, as many as a pack has elements.
template <int size, typename T, int step>
struct MedianStep {
    static constexpr int reach = size / 2;
    using Medians = Pack<T, step>;
    using Behind = std::array<Medians, reach>;

    // What lies 1, 2, ... places behind those from p on.
    static TARN_INLINE Behind behind(const T* p)
    {
        Behind packs;
        repeat<reach>([&](auto k) __attribute__((always_inline)) { packs[k] = loadPack<step>(p - (k + 1)); });
        return packs;
    }
    static TARN_INLINE Medians at(const T* p, const Behind& behind)
    {
        return [&]<int... k>(std::integer_sequence<int, k...>) __attribute__((always_inline))
        {
            return MedianOf<size>{}(behind[k]..., loadPack<step>(p), loadPack<step>(p + (k + 1))...);
        }
        (std::make_integer_sequence<int, reach>{});
    }
    static TARN_INLINE Medians at(const T* p) { return at(p, behind(p)); }
};

// How many steps are written side by side: small networks take less than their loop does.
template <int size>
inline constexpr int networksAtOnce = 1;
template <>
inline constexpr int networksAtOnce<3> = 4;
template <>
inline constexpr int networksAtOnce<5> = 2;

// The least number of medians in one step: those of the narrowest register, and not fewer than the reach.
template <int size, typename T>
inline constexpr int narrowestStep = std::max(registerLanes<T>, 2 * ((size / 2 + 1) / 2));

// dst[n] = the median of src[n - size/2], ..., src[n + size/2] for all n but the first and the last, which are not
// written. The source may be the destination: what a step needs of the elements behind it is read before the step
// behind it writes, and both ends are found first.
template <int size, typename T, int step = std::max(lanes<T>, narrowestStep<size, T>)>
void slideNetwork(const T* src, T* dst, int len)
{
    constexpr int reach = size / 2;
    constexpr int together = networksAtOnce<size>;
    using Step = MedianStep<size, T, step>;
    using Medians = typename Step::Medians;

    if (len < 2 * reach + step) {
        // Single elements and packs come to a network in different order, which NaN and zeros of both signs show: which
        // are taken singly must not follow from the level.
        if constexpr (std::is_floating_point_v<T> && step > narrowestStep<size, T>) {
            slideNetwork<size, T, step / 2>(src, dst, len);
            return;
        }
        if (len > 2) {
            MediansApart<size, 2 * reach + step, T>(src, len, 1, len - 2).storeTo(dst);
        }
        return;
    }

    // Whole steps begin where the destination has a boundary, so that none of their stores touches two lines.
    const MediansApart<size, reach, T> front(src, len, 1, reach - 1);
    const MediansApart<size, reach, T> back(src, len, len - reach, reach - 1);
    const Medians first = Step::at(src + reach);
    const Medians last = Step::at(src + (len - reach - step));
    const int begin = reach + elementsToBoundary(dst + reach);

    const T* from = src + begin;
    T* to = dst + begin;
    Index left = len - reach - begin;
    if (left >= step) {
        typename Step::Behind behind = Step::behind(from);
        if constexpr (together > 1) {
            for (; left >= (together + 1) * step; left -= together * step) {
                std::array<Medians, together> medians;
                medians[0] = Step::at(from, behind);
                repeat<together - 1>([&](auto k) __attribute__((always_inline)) {
                    medians[k + 1] = Step::at(from + (k + 1) * step);
                });
                from += together * step;
                behind = Step::behind(from);
                repeat<together>([&](auto k) __attribute__((always_inline)) { store(to + k * step, medians[k]); });
                to += together * step;
            }
        }
        for (; left >= 2 * step; left -= step) {
            const Medians medians = Step::at(from, behind);
            from += step;
            behind = Step::behind(from);
            store(to, medians);
            to += step;
        }
        store(to, Step::at(from, behind));
    }
    store(dst + reach, first);
    store(dst + (len - reach - step), last);
    front.storeTo(dst);
    back.storeTo(dst);
}

} // namespace tarn
