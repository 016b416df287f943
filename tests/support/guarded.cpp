// Pooled mappings with an unmapped page on either side, and the red zones within them.
#include "support/guarded.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <mutex>
#include <new>

#include <sys/mman.h>
#include <unistd.h>

namespace tarn::test {
namespace {

// Larger mappings go back to the system, since 32-bit address space is scarce.
constexpr std::size_t largestPooled = std::size_t{8} << 20;
constexpr std::size_t boundary = 64;

std::size_t pageBytes()
{
    static const auto bytes = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return bytes;
}

unsigned char* mapBetweenGuards(std::size_t capacity)
{
    const std::size_t page = pageBytes();
    void* whole = mmap(nullptr, capacity + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (whole == MAP_FAILED)
        throw std::bad_alloc();
    unsigned char* inner = static_cast<unsigned char*>(whole) + page;
    if (mprotect(inner, capacity, PROT_READ | PROT_WRITE) != 0) {
        munmap(whole, capacity + 2 * page);
        throw std::bad_alloc();
    }
    return inner;
}

class Pool {
public:
    unsigned char* take(std::size_t capacity)
    {
        {
            std::lock_guard lock(mutex);
            auto& free = freeOf(capacity);
            if (!free.empty()) {
                unsigned char* mapping = free.back();
                free.pop_back();
                return mapping;
            }
        }
        return mapBetweenGuards(capacity);
    }

    void giveBack(unsigned char* mapping, std::size_t capacity)
    {
        if (capacity > largestPooled) {
            munmap(mapping - pageBytes(), capacity + 2 * pageBytes());
            return;
        }
        std::lock_guard lock(mutex);
        freeOf(capacity).push_back(mapping);
    }

private:
    std::vector<unsigned char*>& freeOf(std::size_t capacity)
    {
        std::size_t order = 0;
        while ((pageBytes() << order) < capacity)
            ++order;
        return freeByOrder.at(order);
    }

    std::mutex mutex;
    std::array<std::vector<unsigned char*>, 32> freeByOrder;
};

// Never destroyed: arrays with static storage may outlive it.
Pool& pool()
{
    static Pool* const instance = new Pool;
    return *instance;
}

std::size_t capacityFor(std::size_t bytes)
{
    std::size_t capacity = pageBytes();
    while (capacity < bytes)
        capacity *= 2;
    return capacity;
}

// No period below 128, so that a block which is moved or written again elsewhere does not look untouched.
constexpr std::size_t patternBytes = 256;

const std::array<unsigned char, patternBytes>& pattern()
{
    static const auto bytes = [] {
        std::array<unsigned char, patternBytes> made{};
        unsigned state = 0x5A;
        for (auto& byte : made) {
            state = (state * 167 + 13) & 0xFFFF;
            byte = static_cast<unsigned char>((state >> 5) ^ 0xC3);
        }
        return made;
    }();
    return bytes;
}

} // namespace

std::string toString(Placement placement)
{
    const std::string bytes = std::to_string(placement.bytes);
    switch (placement.kind) {
    case Placement::Kind::atEnd:
        return "ends " + bytes + " bytes before an unmapped page";
    case Placement::Kind::atStart:
        return "starts " + bytes + " bytes behind an unmapped page";
    case Placement::Kind::offset:
        break;
    }
    return "starts " + bytes + " bytes above a boundary";
}

GuardedBytes::GuardedBytes(std::size_t byteCount, Placement placement)
    : mappedBytes(capacityFor(byteCount + 2 * zoneBytes + boundary)), size(byteCount), where(placement)
{
    mapping = pool().take(mappedBytes);
    switch (placement.kind) {
    case Placement::Kind::offset:
        start = mapping + zoneBytes + placement.bytes;
        break;
    case Placement::Kind::atEnd:
        start = mapping + mappedBytes - placement.bytes - size;
        break;
    case Placement::Kind::atStart:
        start = mapping + placement.bytes;
        break;
    }
    zoneBefore = std::min(zoneBytes, static_cast<std::size_t>(start - mapping));
    zoneBehind = std::min(zoneBytes, static_cast<std::size_t>(mapping + mappedBytes - (start + size)));
    repairRedZones();
}

GuardedBytes::~GuardedBytes()
{
    checkRedZones();
    pool().giveBack(mapping, mappedBytes);
}

void GuardedBytes::repairRedZones()
{
    std::memcpy(start - zoneBefore, pattern().data(), zoneBefore);
    std::memcpy(start + size, pattern().data(), zoneBehind);
    reported = false;
}

std::string GuardedBytes::redZoneDamage() const
{
    const unsigned char* before = start - zoneBefore;
    const unsigned char* behind = start + size;
    if (std::memcmp(before, pattern().data(), zoneBefore) == 0 &&
        std::memcmp(behind, pattern().data(), zoneBehind) == 0)
        return {};

    std::string text;
    for (std::size_t i = zoneBefore; i-- > 0;) {
        if (before[i] != pattern()[i]) {
            text += "byte " + std::to_string(zoneBefore - i) + " before the array was overwritten; ";
            break;
        }
    }
    for (std::size_t i = 0; i < zoneBehind; ++i) {
        if (behind[i] != pattern()[i]) {
            text += "byte " + std::to_string(i) + " behind the array was overwritten; ";
            break;
        }
    }
    return text + "the array " + toString(where) + " and has " + std::to_string(size) + " bytes";
}

void GuardedBytes::checkRedZones()
{
    if (reported)
        return;
    const std::string damage = redZoneDamage();
    if (damage.empty())
        return;
    reported = true;
    ADD_FAILURE() << damage;
}

void GuardedBytes::fillPattern()
{
    for (std::size_t done = 0; done < size; done += patternBytes)
        std::memcpy(start + done, pattern().data(), std::min(patternBytes, size - done));
}

void* unreadableBytes()
{
    static unsigned char* const page = [] {
        void* mapped = mmap(nullptr, pageBytes(), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (mapped == MAP_FAILED)
            throw std::bad_alloc();
        return static_cast<unsigned char*>(mapped);
    }();
    return page;
}

} // namespace tarn::test
