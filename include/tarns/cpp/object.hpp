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

/// A length for C, of which one beyond its range becomes one that is refused.
inline int lengthOf(std::size_t size) noexcept
{
    return size <= static_cast<std::size_t>(std::numeric_limits<int>::max()) ? static_cast<int>(size) : 0;
}

/// A call of an object for arrays of `size` elements.
template <class Function, class Array, class... Arguments>
Warning callOf(std::size_t size, Function function, Array array, const Arguments&... arguments)
{
    return array.size() == size ? call(function, array, arguments...) : warning(tarnStsSizeErr);
}

} // namespace tarns::detail
