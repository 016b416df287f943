// Kernels of data movement: copy, move, zero, set.
#include "levels/data/pscopyca.h"

using namespace tarn;

namespace {

// Calls a byte kernel for runs that its length holds. Whole runs keep the boundaries that the destination lies on.
template <typename Kernel>
void forEachRun(std::size_t bytes, Kernel kernel)
{
    constexpr std::size_t longest = std::size_t{1} << 30;
    std::size_t first = 0;
    for (; bytes - first > longest; first += longest) {
        kernel(first, static_cast<int>(longest));
    }
    kernel(first, static_cast<int>(bytes - first));
}

} // namespace

void tarn::copyBytes(const Tarn8u* src, Tarn8u* dst, std::size_t bytes)
{
    forEachRun(bytes, [=](std::size_t first, int len) { ownsCopy_8u(src + first, dst + first, len); });
}

// The standard function chooses the direction by the addresses, and a copy that may overlap leaves nothing to add to
// it.
void tarn::moveBytes(const Tarn8u* src, Tarn8u* dst, std::size_t bytes) { std::memmove(dst, src, bytes); }

void tarn::zeroBytes(Tarn8u* dst, std::size_t bytes)
{
    forEachRun(bytes, [=](std::size_t first, int len) { ownsZero_8u(dst + first, len); });
}

void ownsCopy_8u(const Tarn8u* pSrc, Tarn8u* pDst, int len) { walk(pDst, len, Identity{}, pSrc); }

void ownsMove_8u_W7(const Tarn8u* pSrc, Tarn8u* pDst, int len) { moveBytes(pSrc, pDst, static_cast<unsigned>(len)); }

void ownsZero_8u(Tarn8u* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn8u>{0}); }

void ownsSet_8u(Tarn8u val, Tarn8u* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn8u>{val}); }

void ownsSet_16u(Tarn16u val, Tarn16u* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn16u>{val}); }

void ownsSet_32s(Tarn32s val, Tarn32s* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn32s>{val}); }

void ownsSet_64s(Tarn64s val, Tarn64s* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn64s>{val}); }

void ownsSet_64sc(Tarn64sc val, Tarn64sc* pDst, int len) { walk(pDst, len, Identity{}, Everywhere<Tarn64sc>{val}); }
