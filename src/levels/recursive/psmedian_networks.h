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
    T medians[most];
    int first;
    int count;
};

// dst[n] = the median of src[n - size/2], ..., src[n + size/2] for all n but the first and the last, which are not
// written. The source may be the destination: what a step needs of the elements in front of it is read before the step
// in front of it writes, and both ends are found first.
template <int size, typename T>
void slideNetwork(const T* src, T* dst, int len)
{
    constexpr int reach = size / 2;
    constexpr int step = std::max(lanes<T>, 2 * ((reach + 1) / 2)); // not less than the reach
    using Step = Pack<T, step>;

    if (len < 2 * reach + step) {
        if (len > 2) {
            MediansApart<size, 2 * reach + step, T>(src, len, 1, len - 2).storeTo(dst);
        }
        return;
    }

    const MediansApart<size, reach, T> front(src, len, 1, reach - 1);
    const MediansApart<size, reach, T> back(src, len, len - reach, reach - 1);
    const auto median = [&]<int... k, int... j>(const std::array<Step, reach>& behind, Index n,
                                                std::integer_sequence<int, k...>, std::integer_sequence<int, j...>)
        __attribute__((always_inline))
    {
        return MedianOf<size>{}(behind[k]..., loadPack<step>(src + n + j)...);
    };
    const auto medianAt = [&](const std::array<Step, reach>& behind, Index n) __attribute__((always_inline))
    {
        return median(behind, n, std::make_integer_sequence<int, reach>{},
                      std::make_integer_sequence<int, reach + 1>{});
    };
    const auto behindAt = [&](Index n) __attribute__((always_inline))
    {
        std::array<Step, reach> behind;
        repeat<reach>([&](auto k) __attribute__((always_inline)) { behind[k] = loadPack<step>(src + n + k - reach); });
        return behind;
    };

    const Index end = len - reach;
    const Step last = medianAt(behindAt(end - step), end - step);
    std::array<Step, reach> behind = behindAt(reach);
    Index n = reach;
    for (; n <= end - 2 * step; n += step) {
        const Step medians = medianAt(behind, n);
        behind = behindAt(n + step);
        store(dst + n, medians);
    }
    store(dst + n, medianAt(behind, n));
    store(dst + (end - step), last);
    front.storeTo(dst);
    back.storeTo(dst);
}

} // namespace tarn
