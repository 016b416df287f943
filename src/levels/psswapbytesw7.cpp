// Kernels that reverse the bytes within each element.
#include "levels/pscopyca.h"

using namespace tarn;

namespace {

// Three-byte elements: the outer bytes of each change places, so every byte comes from two places ahead, from its own
// place or from two places behind, in a pattern that returns after three registers.
constexpr int elementsPerTurn = vectorBytes;
constexpr int bytesPerElement = 3;

// All ones at the bytes of a register whose index leaves `remainder` modulo 3.
alignas(vectorBytes) constexpr auto everyThird = [] {
    struct {
        Tarn8u byte[3][vectorBytes];
    } masks{};
    for (int remainder = 0; remainder < 3; ++remainder) {
        for (int i = remainder; i < vectorBytes; i += 3) {
            masks.byte[remainder][i] = 0xFF;
        }
    }
    return masks;
}();

TARN_INLINE void swapElement24(const Tarn8u* src, Tarn8u* dst)
{
    const Tarn8u low = src[0];
    dst[1] = src[1];
    dst[0] = src[2];
    dst[2] = low;
}

// A register whose first byte is byte `phase` of an element.
TARN_INLINE Vector<Tarn8u> swapRegister24(const Tarn8u* src, int phase)
{
    const auto at = [&](int byte) { return loadPack<vectorBytes>(everyThird.byte[(byte - phase + 3) % 3]); };
    const auto low = bitAnd(loadPack<vectorBytes>(src + 2), at(0));
    const auto middle = bitAnd(loadPack<vectorBytes>(src), at(1));
    const auto high = bitAnd(loadPack<vectorBytes>(src - 2), at(2));
    return bitOr(bitOr(low, middle), high);
}

// The registers read two bytes beyond the elements that they write, so one element is left at either end.
void swap24(const Tarn8u* src, Tarn8u* dst, int len)
{
    const auto elementsUpTo = [&](int& i, int end) {
        for (; i < end; ++i) {
            swapElement24(src + bytesPerElement * i, dst + bytesPerElement * i);
        }
    };
    int i = 0;
    elementsUpTo(i, 1);
    for (; i <= len - (elementsPerTurn + 1); i += elementsPerTurn) {
        const Tarn8u* from = src + bytesPerElement * i;
        Tarn8u* to = dst + bytesPerElement * i;
        const auto first = swapRegister24(from, 0);
        const auto second = swapRegister24(from + vectorBytes, vectorBytes % 3);
        const auto third = swapRegister24(from + 2 * vectorBytes, 2 * vectorBytes % 3);
        store(to, first);
        store(to + vectorBytes, second);
        store(to + 2 * vectorBytes, third);
    }
    elementsUpTo(i, len);
}

} // namespace

void ownsSwapBytes_16u(const Tarn16u* pSrc, Tarn16u* pDst, int len) { walk(pDst, len, swapBytes, pSrc); }

void ownsSwapBytes_16u_I(Tarn16u* pSrcDst, int len) { walk(pSrcDst, len, swapBytes, pSrcDst); }

void ownsSwapBytes_24u(const Tarn8u* pSrc, Tarn8u* pDst, int len) { swap24(pSrc, pDst, len); }

void ownsSwapBytes_24u_I(Tarn8u* pSrcDst, int len) { swap24(pSrcDst, pSrcDst, len); }

void ownsSwapBytes_32u(const Tarn32u* pSrc, Tarn32u* pDst, int len) { walk(pDst, len, swapBytes, pSrc); }

void ownsSwapBytes_32u_I(Tarn32u* pSrcDst, int len) { walk(pSrcDst, len, swapBytes, pSrcDst); }
