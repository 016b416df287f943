// Arrays of complex elements as arrays of reals, and back.
#pragma once

#include "frame/simd_pack.h"

namespace tarn {

// The complex element of a type of parts.
template <typename T>
using PairOf = std::conditional_t<std::is_same_v<T, Tarn32f>, Tarn32fc, Tarn64fc>;

template <typename T>
inline const PairOf<T>* asPairs(const T* p)
{
    return reinterpret_cast<const PairOf<T>*>(p);
}
template <typename T>
inline PairOf<T>* asPairs(T* p)
{
    return reinterpret_cast<PairOf<T>*>(p);
}

// Complex arrays as real ones of twice the length.
template <typename T>
inline const Part<T>* asParts(const T* p)
{
    return reinterpret_cast<const Part<T>*>(p);
}
template <typename T>
inline Part<T>* asParts(T* p)
{
    return reinterpret_cast<Part<T>*>(p);
}

} // namespace tarn
