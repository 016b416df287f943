// The forward filters of wavelet banks: every second output of a convolution.
#include "levels/coding/pswt_heads.h"
#include "levels/coding/pswt_taps.h"

#include "frame/walk.h"

#include <algorithm>

using namespace tarn;
using namespace tarn::wavelet;

namespace {

// Pairs of neighbouring samples are multiplied by pairs of taps, in the order of the window, so that no vector needs a
// shuffle in front of its product; a filter of an odd length has its last tap alone before the pairs. An output is
// (p0 + p2 + ..) + (p1 + p3 + ..), p being the products of the pairs, + the lone product.

template <int pairs>
using TapVectors = std::array<V, static_cast<unsigned>(pairs)>;
template <int pairs>
TARN_INLINE TapVectors<pairs> tapVectors(const Tarn32f* table)
{
    TapVectors<pairs> taps;
    repeat<pairs>([&](auto i) { taps[i] = loadAligned<width>(table + width * i); });
    return taps;
}

// The sums of `vectors` vectors of products.
template <int vectors>
struct PairSums {
    const Tarn32f* samples;
    V sums[vectors];

    // By samples rather than by sums: those that two vectors share are loaded once, and a sum is done before the next
    // but one begins.
    template <int pairs, bool first>
    TARN_INLINE void pass(const TapVectors<pairs>& taps)
    {
        constexpr int apart = width / 2; // pairs from one vector to the next
        repeat<pairs + apart*(vectors - 1)>([&](auto at) {
            V x = loadPack<width>(samples + 2 * at);
            settle(x); // or it would be loaded once for each sum
            repeat<vectors>([&](auto v) {
                constexpr int pair = decltype(at)::value - apart * decltype(v)::value;
                if constexpr (pair >= 0 && pair < pairs) {
                    const V p = mul(x, taps[pair]);
                    sums[v] = first && pair == 0 ? p : add(sums[v], p);
                }
            });
        });
        samples += 2 * pairs;
    }

    TARN_INLINE void passes(const Tarn32f* table, int pairs)
    {
        const auto one = [&](auto count, auto isFirst) __attribute__((always_inline))
        {
            pass<count, isFirst>(tapVectors<count>(table));
            table += count * width;
        };
        inPasses(pairs, one);
    }
};

// A filter of so many pairs, or of more than have a loop of their own if that is 0.
template <int known, bool isOdd>
class DownTaps {
public:
    explicit DownTaps(const WaveletKernel& kernel)
        : pairs(known != 0 ? known : kernel.len / 2), lone(kernel.pTaps[kernel.len - 1]), table(kernel.pTable),
          held(tapVectors<known>(kernel.pTable))
    {
    }

    // Outputs of `vectors` vectors from the samples in front of them.
    template <int vectors>
    TARN_INLINE void vectorOutputs(const Tarn32f* src, Tarn32f* dst) const
    {
        PairSums<2 * vectors> products{src + (isOdd ? 1 : 0), {}};
        if constexpr (known != 0) {
            products.template pass<known, true>(held);
        } else {
            products.passes(table, pairs);
        }
        for (int v = 0; v < vectors; ++v) {
            const auto both = join(products.sums[2 * v], products.sums[2 * v + 1]);
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
    Tarn32f lone;
    const Tarn32f* table;
    TapVectors<known> held; // in registers, which the compiler does not dare while outputs are stored
};

template <int known, bool isOdd>
void filterDown(const Tarn32f* src, Tarn32f* dst, std::ptrdiff_t count, const WaveletKernel& kernel)
{
    constexpr int atOnce = 2;
    const DownTaps<known, isOdd> taps(kernel);
    for (; count >= atOnce * width; count -= atOnce * width) {
        taps.template vectorOutputs<atOnce>(src, dst);
        src += 2 * atOnce * width;
        dst += atOnce * width;
    }
    for (; count >= width; count -= width) {
        taps.template vectorOutputs<1>(src, dst);
        src += 2 * width;
        dst += width;
    }
    for (; count > 0; --count) {
        store(dst++, taps.output(src));
        src += 2;
    }
}

template <int... known>
constexpr auto downLoops(std::integer_sequence<int, known...> /*pairs*/)
{
    return std::array<std::array<BlockLoop, 2>, sizeof...(known)>{
        {{filterDown<known, false>, filterDown<known, true>}...}};
}

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
    constexpr auto loops = downLoops(std::make_integer_sequence<int, mostPairs + 1>{});
    const int pairs = pKernel->len / 2;
    loops[static_cast<unsigned>(pairs <= mostPairs ? pairs : 0)][pKernel->len % 2 != 0 ? 1 : 0](pSrc, pDst, count,
                                                                                                *pKernel);
}

// -- Streams ----------------------------------------------------------------------------------------------------------

namespace {

// A filter's first outputs, sample by sample.
Tarn32f* appendDown(ConvDown2& conv, const Tarn32f* src, std::ptrdiff_t len, Tarn32f* dst)
{
    for (std::ptrdiff_t i = 0; i < len; ++i) {
        const Tarn32f* const window = enterSample(*conv.pLine, loadElement(src + i));
        if (conv.phase == 0) {
            store(dst++, wideDotProduct(window, conv.pReversed, conv.len));
        }
        conv.phase ^= 1;
    }
    return dst;
}

// The same where the whole head is there, and the line is filled anew behind it.
Tarn32f* beginDown(ConvDown2& conv, const Tarn32f* src, int head, Tarn32f* dst)
{
    if (conv.len > mostHeadTaps) {
        return appendDown(conv, src, head, dst);
    }
    const HeadSamples samples(*conv.pLine, src, head);
    const int outputs = head / 2;
    Tarn32f sums[HeadSamples::mostSums];
    samples.sum<2>(1 + conv.phase, conv.pReversed, conv.len, outputs, sums);
    for (int k = 0; k < outputs; ++k) {
        store(dst + k, sums[k]);
    }
    conv.phase = 0;
    return dst + outputs;
}

// The first samples of a block meet those of the line; all others have their past in the block itself.
Tarn32f* feed(ConvDown2& conv, const Tarn32f* src, std::ptrdiff_t len, Tarn32f* dst)
{
    const int head = conv.len - ((conv.len & 1) ^ conv.phase);
    if (len <= head) {
        return appendDown(conv, src, len, dst);
    }
    dst = beginDown(conv, src, head, dst);
    const std::ptrdiff_t rest = len - head;
    const std::ptrdiff_t outputs = (rest + 1) / 2;
    ownsConvDown2_32f(src + (head + 1 - conv.len), dst, outputs, conv.pKernel);
    enterSamples(*conv.pLine, src, len);
    conv.phase = static_cast<int>(rest & 1);
    return dst + outputs;
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
