// Objects that a caller creates and frees: the word in front that says what they are, and the memory they own.
#pragma once

#include "tarns/memory.h"

#include <cstring>
#include <memory>

namespace tarn {

// An object's first word is its kind's identifier, 0 once it is freed; a kind names its own as `identifier`.
template <typename Object>
concept Identified = requires(Object object)
{
    object.idCtx;
    Object::identifier;
};

// The checks of an object and arrays handed in by a caller: they are there, and the object is of the function's kind.
template <Identified Object, typename... P>
inline TarnStatus checkObject(const Object* object, const P*... pointers)
{
    if (object == nullptr || ((pointers == nullptr) || ...)) {
        return tarnStsNullPtrErr;
    }
    return object->idCtx == Object::identifier ? tarnStsNoErr : tarnStsContextMatchErr;
}

// Memory of the library's allocator with an owner.
struct Release {
    void operator()(void* block) const { tarnsFree(block); }
};
template <typename T>
using Owned = std::unique_ptr<T, Release>;

// Room for `count` elements; null if there is no memory, or if an allocation cannot be as large: lengths are 32-bit.
template <typename T>
inline Owned<T[]> allocate(long long count)
{
    constexpr long long largest = 0x7FFFFFFF / static_cast<long long>(sizeof(T));
    const int bytes = count > largest ? 0 : static_cast<int>(count * static_cast<long long>(sizeof(T)));
    return Owned<T[]>(count > largest ? nullptr : reinterpret_cast<T*>(tarnsMalloc_8u(bytes)));
}

// A new object, all zero but for the identifier; null if there is no memory.
template <Identified Object>
inline Object* createObject()
{
    Owned<Object[]> object = allocate<Object>(1);
    if (object) {
        std::memset(static_cast<void*>(object.get()), 0, sizeof(Object));
        object[0].idCtx = Object::identifier;
    }
    return object.release();
}

// Frees an object, whose own blocks are gone already. A stale pointer may still be told by the identifier.
template <Identified Object>
inline void releaseObject(Object* object)
{
    object->idCtx = 0;
    tarnsFree(object);
}

} // namespace tarn
