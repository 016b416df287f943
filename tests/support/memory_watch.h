// Watches malloc() and free() under a call of the library, and refuses memory on demand. A program that asks whether
// it can gets both from memory_watch.cpp, a sanitized one from unwatched/memory_watch.cpp.
//
//     MemoryWatch watch(1);                        // one allocation succeeds, the next ones fail
//     const TarnStatus status = tarnsFIRGenBandpass_64f(...);
//     EXPECT_EQ(0, watch.outstanding());           // what was allocated has been freed
//     MemoryWatch watch(10, 1 << 20);              // no block of more than so many bytes either
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
    std::size_t most = 0; ///< bytes of a block
    int allocated = 0;
    int freed = 0;
    std::size_t largest = 0;
};
extern MemoryWatched memoryWatched;

/// False where the sanitizer owns malloc(): then nothing is refused or counted.
extern const bool canRefuseMemory;

class MemoryWatch {
public:
    explicit MemoryWatch(int allowed = std::numeric_limits<int>::max(),
                         std::size_t most = std::numeric_limits<std::size_t>::max())
    {
        memoryWatched = {true, allowed, most, 0, 0, 0};
    }
    ~MemoryWatch() { memoryWatched.armed = false; }
    MemoryWatch(const MemoryWatch&) = delete;
    MemoryWatch& operator=(const MemoryWatch&) = delete;

    int allocated() const { return memoryWatched.allocated; }
    /// Bytes of the largest block that was asked for and given.
    std::size_t largest() const { return memoryWatched.largest; }
    int outstanding() const { return memoryWatched.allocated - memoryWatched.freed; }
};

} // namespace tarn::test
