#include "support/vast.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

namespace tarn::test {
namespace {

constexpr std::size_t guardBytes = 4096;

bool mapAt(unsigned char* p, std::size_t bytes, int flags, int file)
{
    return mmap(p, bytes, PROT_READ | PROT_WRITE, flags | MAP_FIXED | MAP_NORESERVE, file, 0) != MAP_FAILED;
}

// Fills addresses with the pages of one file in memory.
bool showOverAndOver(unsigned char* p, std::size_t bytes)
{
    const int file = memfd_create("repeated", MFD_CLOEXEC);
    bool good = file >= 0 && ftruncate(file, static_cast<off_t>(VastArray::repeatedBytes)) == 0;
    for (std::size_t done = 0; good && done < bytes; done += VastArray::repeatedBytes)
        good = mapAt(p + done, std::min(bytes - done, VastArray::repeatedBytes), MAP_SHARED, file);
    if (file >= 0)
        close(file);
    return good;
}

} // namespace

VastArray::VastArray(std::size_t bytes)
{
    const std::size_t whole = (bytes + guardBytes - 1) / guardBytes * guardBytes;
    reservedBytes = whole + 2 * guardBytes;
    void* const addresses = mmap(nullptr, reservedBytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (addresses == MAP_FAILED)
        return;
    reserved = static_cast<unsigned char*>(addresses);
    unsigned char* const first = reserved + guardBytes;
    constexpr int own = MAP_PRIVATE | MAP_ANONYMOUS;
    if (mapAt(first, edgeBytes, own, -1) && showOverAndOver(first + edgeBytes, whole - 2 * edgeBytes) &&
        mapAt(first + whole - edgeBytes, edgeBytes, own, -1)) {
        start = first;
        size = whole;
    }
}

VastArray::~VastArray()
{
    if (reserved != nullptr)
        munmap(reserved, reservedBytes);
}

} // namespace tarn::test
