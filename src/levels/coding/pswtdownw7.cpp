// The forward filters of wavelet banks: every second output of a convolution.
#include "frame/simd.h"
#include "levels/coding/pswt.h"
#include "levels/coding/pswt_lines.h"

#include <algorithm>

using namespace tarn;

namespace {

using V = Vector<Tarn32f>;
constexpr int width = V::size;

// Neighbouring samples with their taps, in the order of the window: a filter of an odd length has its last tap alone in
// front. An output is (p0 + p2 + ..) + (p1 + p3 + ..), p being the products of the pairs, + the lone product. So a
// vector of samples needs no shuffle before it is multiplied.
class DownTaps {
public:
    explicit DownTaps(const WaveletKernel& kernel)
        : pairs(kernel.len / 2), isOdd(kernel.len % 2 != 0), lone(kernel.pTaps[kernel.len - 1]), table(kernel.pTable)
    {
    }

    // Outputs of `vectors` vectors from the samples in front of them.
    template <int vectors>
    TARN_INLINE void vectorOutputs(const Tarn32f* src, Tarn32f* dst) const
    {
        const Tarn32f* const first = src + (isOdd ? 1 : 0);
        V sums[2 * vectors];
        V tap = loadAligned<width>(table);
        for (int v = 0; v < 2 * vectors; ++v) {
            sums[v] = mul(loadPack<width>(first + width * v), tap);
        }
        for (int i = 1; i < pairs; ++i) {
            tap = loadAligned<width>(table + std::ptrdiff_t{width} * i);
            for (int v = 0; v < 2 * vectors; ++v) {
                sums[v] = add(sums[v], mul(loadPack<width>(first + 2 * i + width * v), tap));
            }
        }
        for (int v = 0; v < vectors; ++v) {
            const auto both = join(sums[2 * v], sums[2 * v + 1]);
            V y = add(evenElements(both), oddElements(both));
            if (isOdd) {
                y = add(y, mul(evenElements(loadPack<2 * width>(src + 2 * width * v)), splat<V>(lone)));
            }
            store(dst + width * v, y);
        }
    }

    TARN_INLINE Tarn32f output(const Tarn32f* src) const
    {
        const Tarn32f* const first = src + (isOdd ? 1 : 0);
        Tarn32f even = mul(loadElement(first), table[0]);
        Tarn32f odd = mul(loadElement(first + 1), table[1]);
        for (int i = 1; i < pairs; ++i) {
            const Tarn32f* const taps = table + std::ptrdiff_t{width} * i;
            even = add(even, mul(loadElement(first + 2 * i), taps[0]));
            odd = add(odd, mul(loadElement(first + 2 * i + 1), taps[1]));
        }
        const Tarn32f y = add(even, odd);
        return isOdd ? add(y, mul(loadElement(src), lone)) : y;
    }

private:
    int pairs;
    bool isOdd;
    Tarn32f lone;
    const Tarn32f* table;
};

// Every second sample times a factor.
void scaleDown(const Tarn32f* src, Tarn32f* dst, std::ptrdiff_t count, Tarn32f factor)
{
    std::ptrdiff_t k = 0;
    for (; k < count - width; k += width) { // the last sample of a vector is behind its last output
        store(dst + k, mul(evenElements(loadPack<2 * width>(src + 2 * k)), splat<V>(factor)));
    }
    for (; k < count; ++k) {
        store(dst + k, mul(loadElement(src + 2 * k), factor));
    }
}

} // namespace

long long tarn::downTableLen(long long len) { return len / 2 * width; }

void tarn::writeDownTable(const Tarn32f* pTaps, int len, Tarn32f* pTable)
{
    const Tarn32f* pair = pTaps + len - len % 2;
    for (; pair != pTaps; pTable += width) {
        pair -= 2;
        for (int i = 0; i < width; i += 2) {
            pTable[i] = loadElement(pair + 1);
            pTable[i + 1] = loadElement(pair);
        }
    }
}

void ownsConvDown2_32f(const Tarn32f* pSrc, Tarn32f* pDst, std::ptrdiff_t count, const WaveletKernel* pKernel)
{
    if (pKernel->len == 1) {
        scaleDown(pSrc, pDst, count, pKernel->pTaps[0]);
        return;
    }
    constexpr int atOnce = 2;
    const DownTaps taps(*pKernel);
    std::ptrdiff_t k = 0;
    for (; k <= count - atOnce * width; k += atOnce * width) {
        taps.vectorOutputs<atOnce>(pSrc + 2 * k, pDst + k);
    }
    for (; k <= count - width; k += width) {
        taps.vectorOutputs<1>(pSrc + 2 * k, pDst + k);
    }
    for (; k < count; ++k) {
        store(pDst + k, taps.output(pSrc + 2 * k));
    }
}

// -- Streams ----------------------------------------------------------------------------------------------------------

namespace {

// The first samples of a block meet those of the line; all others have their past in the block itself.
Tarn32f* feed(ConvDown2& conv, const Tarn32f* src, std::ptrdiff_t len, Tarn32f* dst)
{
    const auto enter = [&](std::ptrdiff_t i) { return enterSample(*conv.pLine, loadElement(src + i)); };
    const auto put = [&](const Tarn32f* window) { store(dst++, wideDotProduct(window, conv.pReversed, conv.len)); };
    const auto head = std::min<std::ptrdiff_t>(conv.len - ((conv.len & 1) ^ conv.phase), len);
    for (std::ptrdiff_t i = 0; i < head; ++i) {
        const Tarn32f* const window = enter(i);
        if (conv.phase == 0) {
            put(window);
        }
        conv.phase ^= 1;
    }
    if (const std::ptrdiff_t rest = len - head; rest > 0) {
        const std::ptrdiff_t outputs = (rest + 1) / 2;
        ownsConvDown2_32f(src + (head + 1 - conv.len), dst, outputs, conv.pKernel);
        dst += outputs;
        enterSamples(*conv.pLine, src, len);
        conv.phase ^= static_cast<int>(rest & 1);
    }
    return dst;
}

} // namespace

void convDown2OffsetBlock_32f(ConvDown2Offset* pConv, const Tarn32f* pSrc, std::ptrdiff_t len, Tarn32f* pDst)
{
    CircularLine* const line = pConv->pOffsetLine;
    if (line == nullptr) {
        feed(*pConv->pConv, pSrc, len, pDst);
        return;
    }
    const auto delayed = std::min<std::ptrdiff_t>(line->len, len);
    pDst = feed(*pConv->pConv, line->pBuffer + line->pos, delayed, pDst);
    feed(*pConv->pConv, pSrc, len - delayed, pDst);
    enterSamples(*line, pSrc, len);
}
