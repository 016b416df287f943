// The integers in order as a source of the walker: for what depends on an element's place alone.
#pragma once

#include "frame/walk.h"

namespace tarn {

struct Counting {
    using Element = Tarn32s;
    Tarn32s first;

    TARN_INLINE Counting operator+(Index elements) const { return {first + static_cast<Tarn32s>(elements)}; }
};

TARN_INLINE Tarn32s loadElement(Counting source) { return source.first; }

template <int N>
struct FirstIntegers {
    Tarn32s values[N];

    constexpr FirstIntegers() : values{}
    {
        for (int i = 0; i < N; ++i) {
            values[i] = i;
        }
    }
};
template <int N>
TARN_INLINE Pack<Tarn32s, N> loadPack(Counting source)
{
    alignas(vectorBytes) static constexpr FirstIntegers<N> places;
    return add(splat<Pack<Tarn32s, N>>(source.first), tarn::loadPack<N>(places.values));
}

} // namespace tarn
