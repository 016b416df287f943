// An array read from its last element to its first, as a source of the walker.
#pragma once

#include "frame/walk.h"

namespace tarn {

template <typename T>
struct Backwards {
    using Element = T;
    const T* last;

    TARN_INLINE Backwards operator+(Index elements) const { return {last - elements}; }
};

template <typename T>
TARN_INLINE T loadElement(Backwards<T> source)
{
    return tarn::loadElement(source.last);
}
template <int N, typename T>
TARN_INLINE Pack<T, N> loadPack(Backwards<T> source)
{
    return reverse(tarn::loadPack<N>(source.last - (N - 1)));
}

} // namespace tarn
