// Kernels that reverse the bytes within each element.
#include "levels/data/pscopyca.h"

using namespace tarn;

namespace {

// Three-byte elements: the outer bytes of each change places, so every byte comes from two places ahead, from its own
// place or from two places behind, in a pattern that returns after three blocks, which hold whole elements.
constexpr int blockBytes = 16;
using Block = Pack<Tarn8u, blockBytes>;
constexpr int elementsPerTurn = blockBytes;
constexpr int bytesPerElement = 3;
constexpr int elementsWorthAligning = 4 * elementsPerTurn;

// All ones at the bytes of a block whose index leaves `remainder` modulo 3.
alignas(blockBytes) constexpr auto everyThird = [] {
    struct {
        Tarn8u byte[3][blockBytes];
    } masks{};
    for (int remainder = 0; remainder < 3; ++remainder) {
        for (int i = remainder; i < blockBytes; i += 3) {
            masks.byte[remainder][i] = 0xFF;
        }
    }
    return masks;
}();

// A block of a turn from what lies two bytes ahead, at its place and two bytes behind. Its first byte is byte
// `phase` of an element.
template <int phase>
TARN_INLINE Block mergeRegister24(Block ahead, Block here, Block behind)
{
    const auto takenAt = [](Block x, int byte) {
        return bitAnd(x, loadPack<blockBytes>(everyThird.byte[(byte - phase + 3) % 3]));
    };
    return bitOr(bitOr(takenAt(ahead, 0), takenAt(here, 1)), takenAt(behind, 2));
}

TARN_INLINE void swapElements24(const Tarn8u* src, Tarn8u* dst, int elements)
{
    for (int i = 0; i < bytesPerElement * elements; i += bytesPerElement) {
        const Tarn8u low = src[i];
        dst[i + 1] = src[i + 1];
        dst[i] = src[i + 2];
        dst[i + 2] = low;
    }
}

void swap24(const Tarn8u* src, Tarn8u* dst, int len)
{
    constexpr int turnBytes = bytesPerElement * elementsPerTurn;
    if (len >= elementsWorthAligning) {
        // 3 * 5 is -1 modulo 16.
        const int head = static_cast<int>(addressOf(dst) * 5 % blockBytes);
        swapElements24(src, dst, head);
        src += bytesPerElement * head;
        dst += bytesPerElement * head;
        len -= head;
    }
    for (; len >= elementsPerTurn; len -= elementsPerTurn, src += turnBytes, dst += turnBytes) {
        const auto at = [src](int byte) { return loadPack<blockBytes>(src + byte); };
        const auto start = at(0);
        const auto end = at(2 * blockBytes);
        const auto first = mergeRegister24<0>(at(2), start, shiftBytesUp<2>(start));
        const auto second = mergeRegister24<1>(at(blockBytes + 2), at(blockBytes), at(blockBytes - 2));
        const auto third = mergeRegister24<2>(shiftBytesDown<2>(end), end, at(2 * blockBytes - 2));
        store(dst, first);
        store(dst + blockBytes, second);
        store(dst + 2 * blockBytes, third);
    }
    swapElements24(src, dst, len);
}

} // namespace

void ownsSwapBytes_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len) { walk(pDst, len, swapBytes, pSrc); }

void ownsSwapBytes_16u_I(Tarn16u* pSrcDst, int len) { walk(pSrcDst, len, swapBytes, pSrcDst); }

void ownsSwapBytes_24u(const Tarn8u* pSrc, Tarn8u* pDst, int len) { swap24(pSrc, pDst, len); }

void ownsSwapBytes_24u_I(Tarn8u* pSrcDst, int len) { swap24(pSrcDst, pSrcDst, len); }

void ownsSwapBytes_32u(const Tarn32u* pSrc, Tarn32u* pDst, int len) { walk(pDst, len, swapBytes, pSrc); }

void ownsSwapBytes_32u_I(Tarn32u* pSrcDst, int len) { walk(pSrcDst, len, swapBytes, pSrcDst); }
