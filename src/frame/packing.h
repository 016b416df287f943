// Spectra of real signals as arrays of reals. A spectrum of size values R[k] + i I[k] is told by half of them:
//
//     Perm   R[0] R[size/2] pairs...     of an odd size   R[0] pairs...
//     Pack   R[0] pairs... R[size/2]                      R[0] pairs...
//     CCS    R[0] 0 pairs... R[size/2] 0                  R[0] 0 pairs...
//
// with pairs R[k] I[k] from k = 1. Transforms compute in Perm order; a packing tells how to get there and back.
#pragma once

#include "frame/simd_pack.h"

#include <cstring>

namespace tarn {

// The ends of the array may overlap.
template <typename T>
inline void moveReals(const T* from, T* to, int count)
{
    std::memmove(static_cast<void*>(to), static_cast<const void*>(from), static_cast<std::size_t>(count) * sizeof(T));
}

// finish() brings Perm order in place to the packing. toPerm() gives the address at which pairs stand in Perm order:
// where they are or, if they are elsewhere, the destination's; of an odd size R[0] stands there too. In place or not.
// positionOfLast() is that of R[size/2], of an even size above 1.

struct PermPacking {
    static constexpr int firstPair(int size) { return size % 2 == 0 ? 2 : 1; }
    static constexpr int positionOfLast(int /*size*/) { return 1; }

    template <typename T>
    static void finish(T* /*dst*/, int /*size*/)
    {
    }
    template <typename T>
    static const T* toPerm(const T* src, T* /*dst*/, int /*size*/)
    {
        return src;
    }
};

struct PackPacking {
    static constexpr int firstPair(int /*size*/) { return 1; }
    static constexpr int positionOfLast(int size) { return size - 1; }

    template <typename T>
    static void finish(T* dst, int size)
    {
        if (size > 2 && size % 2 == 0) {
            const T last = loadElement(dst + 1);
            moveReals(dst + 2, dst + 1, size - 2);
            store(dst + size - 1, last);
        }
    }
    template <typename T>
    static const T* toPerm(const T* src, T* dst, int size)
    {
        if (size % 2 != 0) {
            return src;
        }
        moveReals(src + 1, dst + 2, size - 2);
        return dst;
    }
};

struct CcsPacking {
    static constexpr int firstPair(int /*size*/) { return 2; }
    static constexpr int positionOfLast(int size) { return size; }

    // One value is followed by one zero: it is its own last one.
    template <typename T>
    static void finish(T* dst, int size)
    {
        if (size % 2 == 0) {
            store(dst + size, loadElement(dst + 1));
            store(dst + size + 1, T{0});
        } else {
            moveReals(dst + 1, dst + 2, size - 1);
        }
        store(dst + 1, T{0});
    }
    template <typename T>
    static const T* toPerm(const T* src, T* dst, int size)
    {
        if (size % 2 == 0) {
            return src;
        }
        store(dst, loadElement(src));
        moveReals(src + 2, dst + 1, size - 1);
        return dst;
    }
};

// A whole spectrum in Perm order, elsewhere.
template <typename Packing, typename T>
inline void copyToPerm(const T* src, T* perm, int size)
{
    store(perm, loadElement(src));
    if (size % 2 == 0) {
        store(perm + 1, loadElement(src + Packing::positionOfLast(size)));
    }
    const int begin = PermPacking::firstPair(size);
    moveReals(src + Packing::firstPair(size), perm + begin, size - begin);
}

} // namespace tarn
