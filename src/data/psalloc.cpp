// Aligned memory. A block is: slack, the address that malloc() gave, the caller's area on a 32-byte boundary.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "tarns.h"

namespace {

constexpr std::uintptr_t alignment = 32;
constexpr Tarn32u surplus = alignment + sizeof(void*);

void* allocateBytes(int len, Tarn32u elementBytes)
{
    if (len < 1)
        return nullptr;
    // An impossible length wraps around, as callers have always known it. Where the request wraps below the surplus
    // itself, the stored address must still lie inside the block: malloc() aligns to a pointer at least, so that it
    // ends no more than `alignment` bytes into it.
    const Tarn32u bytes = static_cast<Tarn32u>(len) * elementBytes + surplus;
    auto* block = static_cast<char*>(std::malloc(std::max(bytes, static_cast<Tarn32u>(alignment))));
    if (!block)
        return nullptr;
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    char* area = block + (((address + surplus - 1) & ~(alignment - 1)) - address);
    reinterpret_cast<void**>(area)[-1] = block;
    return area;
}

template <typename T>
T* allocate(int len)
{
    return static_cast<T*>(allocateBytes(len, sizeof(T)));
}

} // namespace

Tarn8u* tarnsMalloc_8u(int len) { return allocate<Tarn8u>(len); }
Tarn8s* tarnsMalloc_8s(int len) { return allocate<Tarn8s>(len); }
Tarn16u* tarnsMalloc_16u(int len) { return allocate<Tarn16u>(len); }
Tarn16s* tarnsMalloc_16s(int len) { return allocate<Tarn16s>(len); }
Tarn32u* tarnsMalloc_32u(int len) { return allocate<Tarn32u>(len); }
Tarn32s* tarnsMalloc_32s(int len) { return allocate<Tarn32s>(len); }
Tarn64s* tarnsMalloc_64s(int len) { return allocate<Tarn64s>(len); }
Tarn32f* tarnsMalloc_32f(int len) { return allocate<Tarn32f>(len); }
Tarn64f* tarnsMalloc_64f(int len) { return allocate<Tarn64f>(len); }
Tarn8sc* tarnsMalloc_8sc(int len) { return allocate<Tarn8sc>(len); }
Tarn16sc* tarnsMalloc_16sc(int len) { return allocate<Tarn16sc>(len); }
Tarn32sc* tarnsMalloc_32sc(int len) { return allocate<Tarn32sc>(len); }
Tarn64sc* tarnsMalloc_64sc(int len) { return allocate<Tarn64sc>(len); }
Tarn32fc* tarnsMalloc_32fc(int len) { return allocate<Tarn32fc>(len); }
Tarn64fc* tarnsMalloc_64fc(int len) { return allocate<Tarn64fc>(len); }

void tarnsFree(void* ptr)
{
    if (ptr)
        std::free(static_cast<void**>(ptr)[-1]);
}
