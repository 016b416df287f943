// Watches malloc() and free() under a call of the library, and refuses memory on demand. Defines both, so that it is
// included in one file of a test program only.
//
//     MemoryWatch watch(1);                        // one allocation succeeds, the next ones fail
//     const TarnStatus status = tarnsFIRGenBandpass_64f(...);
//     EXPECT_EQ(0, watch.outstanding());           // what was allocated has been freed
//
// Test frameworks allocate too: keep nothing but calls of the library in the scope of a watch.
#pragma once

#include <cstddef>
#include <limits>

namespace tarn::test {

/// Set while a watch lives.
struct MemoryWatched {
    bool armed = false;
    int allowed = 0;
    int allocated = 0;
    int freed = 0;
    std::size_t largest = 0;
};
inline MemoryWatched memoryWatched;

/// False where the sanitizer owns malloc(): then nothing is refused or counted.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool canRefuseMemory = false;
#else
inline constexpr bool canRefuseMemory = true;
#endif

class MemoryWatch {
public:
    explicit MemoryWatch(int allowed = std::numeric_limits<int>::max()) { memoryWatched = {true, allowed, 0, 0, 0}; }
    ~MemoryWatch() { memoryWatched.armed = false; }
    MemoryWatch(const MemoryWatch&) = delete;
    MemoryWatch& operator=(const MemoryWatch&) = delete;

    int allocated() const { return memoryWatched.allocated; }
    /// Bytes of the largest block that was asked for and given.
    std::size_t largest() const { return memoryWatched.largest; }
    int outstanding() const { return memoryWatched.allocated - memoryWatched.freed; }
};

} // namespace tarn::test

#if !defined(__SANITIZE_ADDRESS__)
// Definitions in the executable come before the C library's, for the shared object too.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void __libc_free(void* block);

extern "C" void* malloc(std::size_t size) noexcept
{
    auto& watched = tarn::test::memoryWatched;
    if (watched.armed && watched.allocated >= watched.allowed)
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
#endif
