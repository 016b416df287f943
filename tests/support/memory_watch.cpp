// malloc() and free() of the test programs that watch them.
#include "support/memory_watch.h"

// Definitions in the executable come before the C library's, for the shared object too.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void __libc_free(void* block);

extern "C" void* malloc(std::size_t size) noexcept
{
    auto& watched = tarn::test::memoryWatched;
    if (watched.armed && (watched.allocated >= watched.allowed || size > watched.most))
        return nullptr;
    void* const block = __libc_malloc(size);
    if (watched.armed && block != nullptr) {
        ++watched.allocated;
        watched.largest = watched.largest < size ? size : watched.largest;
    }
    return block;
}

extern "C" void free(void* block) noexcept
{
    auto& watched = tarn::test::memoryWatched;
    if (watched.armed && block != nullptr)
        ++watched.freed;
    __libc_free(block);
}

namespace tarn::test {
MemoryWatched memoryWatched;
const bool canRefuseMemory = true;
} // namespace tarn::test
