// The walker: makes a kernel of an operation on elements and packs. All the alignment code of the library is here.
#pragma once

#include "frame/simd.h"

#include <cstddef>

// In front of a loop that is to stay one: compilers spread out those of which they know that they turn few times.
#define TARN_ROLLED _Pragma("GCC unroll 1")

namespace tarn {

// Destinations of this many bytes and more are written past the caches. Below it a result is likely to be read again
// from the cache that it was written to; above it reading each destination line in before overwriting it is what costs.
// docs/performance.md has the measurement.
inline constexpr std::size_t streamBytes = std::size_t{8} << 20;

// From this many vectors on it pays to bring the destination to a vector boundary first.
inline constexpr int vectorsWorthAligning = 32;

// How many steps are written between two tests of the loop's end, unless the operation knows better.
inline constexpr int unrolledSteps = 4;

// Of an element. A complex array is taken as its parts, of which there may be more than an int counts.
using Index = std::ptrdiff_t;

// f of 0, 1, ... count - 1, as constants.
template <int count, typename F>
TARN_INLINE void repeat(F f)
{
    [&]<int... k>(std::integer_sequence<int, k...>) __attribute__((always_inline))
    {
        (f(std::integral_constant<int, k>{}), ...);
    }
    (std::make_integer_sequence<int, count>{});
}

// A source is a pointer to elements, or a view: a type with a member type Element, with + to advance by elements, and
// with loadElement and loadPack. A destination is a pointer, or a view for which the functions below are there too.
template <typename S>
struct ViewedElement {
    using type = typename S::Element;
};
template <typename T>
struct ViewedElement<const T*> {
    using type = T;
};
template <typename T>
struct ViewedElement<T*> {
    using type = T;
};
template <typename S>
using SourceElement = typename ViewedElement<S>::type;

// The elements of one step: one register of the narrowest type, as many registers as it takes of the others.
template <typename... T>
inline constexpr int stepSize = std::max({lanes<T>...});

template <typename T>
TARN_INLINE std::uintptr_t addressOf(const T* p)
{
    return reinterpret_cast<std::uintptr_t>(p);
}

// How many elements lie before the next boundary of so many bytes; 0 if no element starts on one. Where the boundary is
// part of a result it is a constant of the family's: the register's width changes from level to level.
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
TARN_INLINE bool streams(Index len)
{
    return static_cast<std::size_t>(len) >= streamBytes / sizeof(T);
}

// How many steps of an operation to write side by side. One that takes a few instructions gains from it; one that takes
// twenty has enough to do between two tests, and each copy costs a cache of instructions that others need.
template <typename Operation>
inline constexpr int stepsAtOnce = unrolledSteps;
template <typename Operation>
    requires(Operation::stepsAtOnce > 0)
inline constexpr int stepsAtOnce<Operation> = Operation::stepsAtOnce;
template <typename Operation>
inline constexpr int stepsAtOnce<PerPart<Operation>> = stepsAtOnce<Operation>;

// The elements from i to end, one at a time.
template <typename Destination, typename Operation, typename... S>
TARN_INLINE void walkElements(Destination dst, Index i, Index end, Operation operation, S... src)
{
    TARN_ROLLED
    for (; i < end; ++i) {
        store(dst + i, operation(loadElement(src + i)...));
    }
}

// Fewer elements than a step has: two packs of half as many that may overlap, or of half as many again, down to the
// narrowest registers; then single elements.
template <int step, int narrowest, typename Destination, typename Operation, typename... S>
TARN_INLINE void walkShort(Destination dst, Index len, Operation operation, S... src)
{
    if constexpr (step > narrowest) {
        constexpr int half = step / 2;
        if (len < half) {
            walkShort<half, narrowest>(dst, len, operation, src...);
        } else {
            const auto first = operation(loadPack<half>(src)...);
            const auto last = operation(loadPack<half>(src + (len - half))...);
            store(dst, first);
            store(dst + (len - half), last);
        }
    } else {
        walkElements(dst, 0, len, operation, src...);
    }
}

// dst[i] = operation(src[i]...) for all i below len. A source may be the destination itself; other overlap is not
// defined. The operation is called with elements or with packs of stepSize elements and answers in kind, in no stated
// order.
//
// The ends of the array are vectors that overlap their neighbours, so that single elements are left to arrays shorter
// than a step. Since a source may be the destination, the ends are found before anything is written, and written last.
template <typename Destination, typename Operation, typename... S>
TARN_INLINE void walk(Destination dst, Index len, Operation operation, S... src)
{
    using D = SourceElement<Destination>;
    constexpr int step = stepSize<D, SourceElement<S>...>;
    constexpr int steps = stepsAtOnce<Operation>;
    const auto stepAt = [&](Index k) __attribute__((always_inline)) { return operation(loadPack<step>(src + k)...); };

    if (len < step) {
        walkShort<step, step * registerBytes / widestRegister>(dst, len, operation, src...);
        return;
    }

    Index i = 0;
    if (len >= vectorsWorthAligning * lanes<D> && !isOnBoundary(dst)) {
        i = elementsToBoundary(dst);
    }
    decltype(stepAt(0)) ends[2];
    Index placeOfEnd[2];
    int countOfEnds = 0;
    if (i > 0) {
        placeOfEnd[countOfEnds++] = 0;
    }
    if ((len - i) % step != 0) {
        placeOfEnd[countOfEnds++] = len - step;
    }
    TARN_ROLLED
    for (int k = 0; k < countOfEnds; ++k) {
        ends[k] = stepAt(placeOfEnd[k]);
    }

    if (streams<D>(len) && isOnBoundary(dst + i)) {
        for (; i <= len - step; i += step) {
            storeStream(dst + i, stepAt(i));
        }
        streamFence();
    }
    if constexpr (steps > 1) {
        for (; i <= len - steps * step; i += steps * step) {
            repeat<steps>([&](auto k)
                              __attribute__((always_inline)) { store(dst + (i + k * step), stepAt(i + k * step)); });
        }
    }
    for (; i <= len - step; i += step) {
        store(dst + i, stepAt(i));
    }

    TARN_ROLLED
    for (int k = 0; k < countOfEnds; ++k) {
        store(dst + placeOfEnd[k], ends[k]);
    }
}

// A source that is the same everywhere.
template <typename T>
struct Everywhere {
    using Element = T;
    T value;

    TARN_INLINE Everywhere operator+(Index /*elements*/) const { return *this; }
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

template <typename Operation, typename T>
inline constexpr int stepsAtOnce<WithConstant<Operation, T>> = stepsAtOnce<Operation>;

} // namespace tarn
