// The walker: makes a kernel of an operation on elements and packs. All the alignment code of the library is here.
#pragma once

#include "frame/simd.h"

#include <cstddef>

namespace tarn {

// Destinations of this many bytes and more are written past the caches. Below it a result is likely to be read again
// from the cache that it was written to; above it reading each destination line in before overwriting it is what costs.
// docs/performance.md has the measurement.
inline constexpr std::size_t streamBytes = std::size_t{8} << 20;

// From this many vectors on it pays to bring the destination to a vector boundary first.
inline constexpr int vectorsWorthAligning = 32;

// How many vectors are written between two tests of the loop's end.
inline constexpr int unrolledSteps = 4;

// A source is a pointer to elements, or a view: a type with a member type Element, with + to advance by elements, and
// with loadElement and loadPack.
template <typename S>
struct SourceElementOf {
    using type = typename S::Element;
};
template <typename T>
struct SourceElementOf<const T*> {
    using type = T;
};
template <typename T>
struct SourceElementOf<T*> {
    using type = T;
};
template <typename S>
using SourceElement = typename SourceElementOf<S>::type;

// The elements of one step: one register of the narrowest type, as many registers as it takes of the others.
template <typename... T>
inline constexpr int stepSize = std::max({lanes<T>...});

template <typename T>
TARN_INLINE std::uintptr_t addressOf(const T* p)
{
    return reinterpret_cast<std::uintptr_t>(p);
}

// How many elements lie before the next boundary of so many bytes, of a vector if nothing is said; 0 if no element
// starts on one.
template <int boundary = vectorBytes, typename T>
TARN_INLINE int elementsToBoundary(const T* p)
{
    const auto gap = (0 - addressOf(p)) % boundary;
    return gap % sizeof(T) == 0 ? static_cast<int>(gap / sizeof(T)) : 0;
}

template <typename T>
TARN_INLINE bool isOnBoundary(const T* p)
{
    return addressOf(p) % vectorBytes == 0;
}

// True if a destination of that many elements is to be written past the caches.
template <typename T>
TARN_INLINE bool streams(int len)
{
    return static_cast<std::size_t>(len) >= streamBytes / sizeof(T);
}

// True if the source is not the destination itself.
template <typename S, typename D>
TARN_INLINE bool isApart(S src, D* dst)
{
    if constexpr (std::is_pointer_v<S>) {
        return addressOf(src) != addressOf(dst);
    } else {
        return true;
    }
}

// One step of a walk: the elements from k on.
template <int step, typename Operation, typename... S>
TARN_INLINE auto stepAt(int k, Operation operation, S... src)
{
    return operation(loadPack<step>(src + k)...);
}

// The elements from i to end, one at a time.
template <typename D, typename Operation, typename... S>
TARN_INLINE void walkElements(D* dst, int i, int end, Operation operation, S... src)
{
    for (; i < end; ++i) {
        store(dst + i, operation(loadElement(src + i)...));
    }
}

// Brings the destination to a vector boundary; answers how many elements are done then.
template <int step, typename D, typename Operation, typename... S>
TARN_INLINE int walkToBoundary(D* dst, Operation operation, S... src)
{
    const int head = elementsToBoundary(dst);
    if ((isApart(src, dst) && ...)) {
        store(dst, stepAt<step>(0, operation, src...));
    } else {
        walkElements(dst, 0, head, operation, src...);
    }
    return head;
}

// What is left behind the last whole step before i.
template <int step, typename D, typename Operation, typename... S>
TARN_INLINE void walkTail(D* dst, int i, int len, Operation operation, S... src)
{
    if (len >= step && (isApart(src, dst) && ...)) {
        store(dst + len - step, stepAt<step>(len - step, operation, src...));
    } else {
        walkElements(dst, i, len, operation, src...);
    }
}

// dst[i] = operation(src[i]...) for all i below len. A source may be the destination itself; other overlap is not
// defined. The operation is called with elements or with packs of stepSize elements and answers in kind. Where no
// source is the destination, writing an element twice does no harm: then the ends of the array are vectors that overlap
// their neighbours, and single elements are left to arrays shorter than a step.
template <typename D, typename Operation, typename... S>
TARN_INLINE void walk(D* dst, int len, Operation operation, S... src)
{
    constexpr int step = stepSize<D, SourceElement<S>...>;
    constexpr int block = unrolledSteps * step;

    int i = 0;
    if (len >= vectorsWorthAligning * lanes<D>) {
        if (!isOnBoundary(dst)) {
            i = walkToBoundary<step>(dst, operation, src...);
        }
        if (streams<D>(len) && isOnBoundary(dst + i)) {
            for (; i <= len - step; i += step) {
                storeStream(dst + i, stepAt<step>(i, operation, src...));
            }
            streamFence();
        }
    }
    for (; i <= len - block; i += block) {
        store(dst + i, stepAt<step>(i, operation, src...));
        store(dst + i + step, stepAt<step>(i + step, operation, src...));
        store(dst + i + 2 * step, stepAt<step>(i + 2 * step, operation, src...));
        store(dst + i + 3 * step, stepAt<step>(i + 3 * step, operation, src...));
    }
    for (; i <= len - step; i += step) {
        store(dst + i, stepAt<step>(i, operation, src...));
    }
    if (i < len) {
        walkTail<step>(dst, i, len, operation, src...);
    }
}

// A source that is the same everywhere.
template <typename T>
struct Everywhere {
    using Element = T;
    T value;

    TARN_INLINE Everywhere operator+(int /*elements*/) const { return *this; }
};
template <typename T>
TARN_INLINE T loadElement(Everywhere<T> source)
{
    return source.value;
}
template <int N, typename T>
TARN_INLINE Pack<T, N> loadPack(Everywhere<T> source)
{
    return splat<Pack<T, N>>(source.value);
}

// An operation with its last operand fixed.
template <typename Operation, typename T>
struct WithConstant {
    Operation operation;
    T constant;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return operation(x, splat<Like<X, T>>(constant));
    }
};

} // namespace tarn
