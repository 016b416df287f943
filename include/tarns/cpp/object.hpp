// How the C++ face owns what the library allocates.
#pragma once

#include <tarns/cpp/face.hpp>

#include <memory>

namespace tarns::detail {

template <auto release>
struct Release {
    template <class Object>
    void operator()(Object* object) const noexcept
    {
        release(object);
    }
};

/// Moves, and frees its object at the end. Without one, calls answer tarnStsNullPtrErr.
template <class Object, auto release>
using Handle = std::unique_ptr<Object, Release<release>>;

using Buffer = Handle<Tarn8u, &tarnsFree>;

/// Memory for a call to work in. An object that needs none has none.
inline TarnStatus allocate(int bytes, Buffer& buffer)
{
    if (bytes > 0)
        buffer.reset(tarnsMalloc_8u(bytes));
    return bytes > 0 && !buffer ? tarnStsNoMemErr : tarnStsNoErr;
}

/// The type in which the C interface has an element.
template <class T>
struct InC {
    using Type = T;
};
template <>
struct InC<std::complex<float>> {
    using Type = Tarn32fc;
};
template <>
struct InC<std::complex<double>> {
    using Type = Tarn64fc;
};
template <class T>
using CType = typename InC<T>::Type;

template <class T, std::size_t extent>
auto elements(std::span<T, extent> span) noexcept
{
    return data<CType<std::remove_const_t<T>>>(span);
}

} // namespace tarns::detail
