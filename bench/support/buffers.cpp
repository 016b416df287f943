// The shared buffers of the benchmarks.
#include "support/buffers.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include <sys/mman.h>

namespace tarn::bench {
namespace {

constexpr std::size_t slots = 8;
constexpr std::size_t stagger = 64 * 7;

struct Slot {
    unsigned char* mapping = nullptr;
    std::size_t bytes = 0;
};
std::array<Slot, slots> buffers;

} // namespace

void* buffer(unsigned slot, std::size_t bytes)
{
    Slot& place = buffers.at(slot);
    const std::size_t needed = bytes + slots * stagger;
    if (place.bytes < needed) {
        if (place.mapping != nullptr)
            munmap(place.mapping, place.bytes);
        void* mapped = mmap(nullptr, needed, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (mapped == MAP_FAILED) {
            std::fprintf(stderr, "no memory for a buffer of %zu bytes\n", needed);
            std::abort();
        }
        place = {static_cast<unsigned char*>(mapped), needed};
    }
    return place.mapping + slot * stagger;
}

std::uint32_t detail::nextRandom(std::uint32_t& state)
{
    state = state * 1664525 + 1013904223;
    // The low bits of such a generator have short periods.
    return state ^ (state >> 16);
}

} // namespace tarn::bench
