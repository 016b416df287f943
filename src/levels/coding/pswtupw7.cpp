// The inverse filters of wavelet banks: a convolution of a signal that has zeros between its samples.
#include "levels/coding/pswt_heads.h"
#include "levels/coding/pswt_taps.h"

#include "frame/walk.h"

#include <algorithm>

using namespace tarn;
using namespace tarn::wavelet;

namespace {

// Even outputs are sums with the even taps, odd ones with the odd taps, over the same samples, the oldest first. A
// filter of an odd length has one even tap more, on the oldest sample.

template <int vectors>
struct TapSums {
    const Tarn32f* samples;
    const Tarn32f* table;
    V even[vectors];
    V odd[vectors];

    // The very first products are the sums' beginning: of both, of the odd one where a lone product is there, of none.
    template <int pairs, bool firstEven, bool firstOdd>
    TARN_INLINE void pass()
    {
        repeat<pairs>([&](auto pair) {
            const Tarn32f* const taps = table + 2 * width * pair;
            repeat<vectors>([&](auto v) {
                constexpr int at = decltype(pair)::value;
                V x = loadPack<width>(samples + at + width * v);
                settle(x); // or it would be loaded twice
                const V forEven = mul(x, loadAligned<width>(taps));
                const V forOdd = mul(x, loadAligned<width>(taps + width));
                even[v] = firstEven && at == 0 ? forEven : add(even[v], forEven);
                odd[v] = firstOdd && at == 0 ? forOdd : add(odd[v], forOdd);
            });
        });
        samples += pairs;
        table += 2 * width * pairs;
    }

    template <bool firstEven>
    TARN_INLINE void passes(int pairs)
    {
        const auto one = [&](auto count, auto isFirst) __attribute__((always_inline))
        {
            pass<count, firstEven && isFirst, isFirst>();
        };
        inPasses(pairs, one);
    }
};

// A filter of so many pairs, or of more than have a loop of their own if that is -1.
template <bool adds, int known, bool isOdd>
class UpTaps {
public:
    explicit UpTaps(const WaveletKernel& kernel)
        : pairs(known >= 0 ? known : kernel.len / 2), lone(kernel.pTaps[kernel.len - 1]), table(kernel.pTable)
    {
    }

    // Two outputs for each sample of `vectors` vectors.
    template <int vectors>
    TARN_INLINE void vectorOutputs(const Tarn32f* src, Tarn32f* dst) const
    {
        TapSums<vectors> sums{src + (isOdd ? 1 : 0), table, {}, {}};
        for (int v = 0; isOdd && v < vectors; ++v) {
            sums.even[v] = mul(loadPack<width>(src + width * v), splat<V>(lone));
            sums.odd[v] = splat<V>(0); // stays if this is the only tap
        }
        if constexpr (known >= 0) {
            sums.template pass<known, !isOdd, true>();
        } else {
            sums.template passes<!isOdd>(pairs);
        }
        for (int v = 0; v < vectors; ++v) {
            putSums(dst + 2 * width * v, zip(sums.even[v], sums.odd[v]));
        }
    }

    TARN_INLINE void output(const Tarn32f* src, Tarn32f* dst, bool isPair) const
    {
        Tarn32f even = isOdd ? mul(loadElement(src), lone) : 0;
        Tarn32f odd = 0;
        src += isOdd ? 1 : 0;
        for (int i = 0; i < pairs; ++i) {
            const Tarn32f* const taps = table + std::ptrdiff_t{2 * width} * i;
            const Tarn32f forEven = mul(loadElement(src + i), taps[0]);
            const Tarn32f forOdd = mul(loadElement(src + i), taps[width]);
            even = isOdd || i > 0 ? add(even, forEven) : forEven;
            odd = i > 0 ? add(odd, forOdd) : forOdd;
        }
        putSum(dst, even);
        if (isPair) {
            putSum(dst + 1, odd);
        }
    }

private:
    static TARN_INLINE void putSum(Tarn32f* dst, Tarn32f y) { store(dst, adds ? add(loadElement(dst), y) : y); }
    static TARN_INLINE void putSums(Tarn32f* dst, Pack<Tarn32f, 2 * width> y)
    {
        if constexpr (adds) {
            y = add(loadPack<2 * width>(dst), y);
        }
        store(dst, y);
    }

    int pairs;
    Tarn32f lone;
    const Tarn32f* table;
};

template <bool adds, int known, bool isOdd>
void filterAll(const Tarn32f* src, Tarn32f* dst, std::ptrdiff_t count, const WaveletKernel& kernel)
{
    constexpr int atOnce = 2;
    const UpTaps<adds, known, isOdd> taps(kernel);
    for (; count >= 2 * atOnce * width; count -= 2 * atOnce * width) {
        taps.template vectorOutputs<atOnce>(src, dst);
        src += atOnce * width;
        dst += 2 * atOnce * width;
    }
    for (; count >= 2 * width; count -= 2 * width) {
        taps.template vectorOutputs<1>(src, dst);
        src += width;
        dst += 2 * width;
    }
    for (; count > 0; count -= 2) {
        taps.output(src++, dst, count > 1);
        dst += 2;
    }
}

template <bool adds, int... known>
constexpr auto upLoops(std::integer_sequence<int, known...> /*pairs*/)
{
    return std::array<std::array<BlockLoop, 2>, sizeof...(known)>{
        {{filterAll<adds, known, false>, filterAll<adds, known, true>}...}};
}

template <bool adds>
void filterUp(const Tarn32f* src, Tarn32f* dst, std::ptrdiff_t count, const WaveletKernel& kernel)
{
    constexpr auto loops = upLoops<adds>(std::make_integer_sequence<int, mostPairs + 1>{});
    const int pairs = kernel.len / 2;
    const bool isOdd = kernel.len % 2 != 0;
    const BlockLoop any = isOdd ? filterAll<adds, -1, true> : filterAll<adds, -1, false>;
    const BlockLoop loop = pairs <= mostPairs ? loops[static_cast<unsigned>(pairs)][isOdd ? 1 : 0] : any;
    loop(src, dst, count, kernel);
}

} // namespace

long long tarn::upTableLen(long long len) { return len / 2 * 2 * width; }

void tarn::writeUpTable(const Tarn32f* pTaps, int len, Tarn32f* pTable)
{
    const Tarn32f* pair = pTaps + len - len % 2;
    for (; pair != pTaps; pTable += 2 * width) {
        pair -= 2;
        for (int i = 0; i < width; ++i) {
            pTable[i] = loadElement(pair);
            pTable[width + i] = loadElement(pair + 1);
        }
    }
}

void ownsUp2Conv_32f(const Tarn32f* pSrc, Tarn32f* pDst, std::ptrdiff_t count, const WaveletKernel* pKernel)
{
    filterUp<false>(pSrc, pDst, count, *pKernel);
}
void ownsUp2ConvAdd_32f(const Tarn32f* pSrc, Tarn32f* pDst, std::ptrdiff_t count, const WaveletKernel* pKernel)
{
    filterUp<true>(pSrc, pDst, count, *pKernel);
}

// -- Streams ----------------------------------------------------------------------------------------------------------

namespace {

Tarn32f evenOutput(const Up2Conv& conv)
{
    return wideDotProduct(conv.pLine->pBuffer + conv.pLine->pos, conv.pEven, conv.evenLen);
}
Tarn32f oddOutput(const Up2Conv& conv)
{
    const Tarn32f* const window = conv.pLine->pBuffer + conv.pLine->pos + (conv.evenLen - conv.oddLen);
    return wideDotProduct(window, conv.pOdd, conv.oddLen);
}

// Outputs one by one, each sample by way of the line.
template <bool adds>
std::ptrdiff_t append(Up2Conv& conv, const Tarn32f* src, std::ptrdiff_t len, Tarn32f* dst)
{
    std::ptrdiff_t used = 0;
    for (; len > 0; --len, ++dst) {
        Tarn32f y = 0;
        if (conv.phase == 0) {
            enterSample(*conv.pLine, loadElement(src + used++));
            y = evenOutput(conv);
        } else {
            y = oddOutput(conv);
        }
        store(dst, adds ? add(loadElement(dst), y) : y);
        conv.phase ^= 1;
    }
    return used;
}

// The first outputs of a block where all of them are there, and the line is filled anew behind them.
template <bool adds>
std::ptrdiff_t begin(Up2Conv& conv, const Tarn32f* src, int head, Tarn32f* dst)
{
    if (conv.len > mostHeadTaps) {
        return append<adds>(conv, src, head, dst);
    }
    // Phase 1 has an odd output of the line alone in front.
    const int entered = head / 2;
    const HeadSamples samples(*conv.pLine, src, entered);
    Tarn32f even[HeadSamples::mostSums];
    Tarn32f odd[HeadSamples::mostSums];
    samples.sum<1>(1, conv.pEven, conv.evenLen, entered, even);
    samples.sum<1>(1 - conv.phase + conv.evenLen - conv.oddLen, conv.pOdd, conv.oddLen, entered + conv.phase, odd);
    for (int i = 0; i < head; ++i) {
        const Tarn32f y = (i & 1) == conv.phase ? even[i / 2] : odd[i / 2];
        store(dst + i, adds ? add(loadElement(dst + i), y) : y);
    }
    conv.phase = 0;
    return entered;
}

// The first outputs of a block have samples of the line in their sums; all others those of the block alone.
template <bool adds>
std::ptrdiff_t filterBlock(Up2Conv& conv, const Tarn32f* src, std::ptrdiff_t len, Tarn32f* dst)
{
    const int head = conv.len - (conv.phase ^ (conv.len & 1));
    if (len <= head) {
        return append<adds>(conv, src, len, dst);
    }
    const std::ptrdiff_t entered = begin<adds>(conv, src, head, dst);
    const std::ptrdiff_t rest = len - head;
    filterUp<adds>(src + (entered + 1 - conv.evenLen), dst + head, rest, *conv.pKernel);
    conv.phase = static_cast<int>(rest & 1);
    const std::ptrdiff_t used = entered + (rest + 1) / 2;
    enterSamples(*conv.pLine, src, used);
    return used;
}

template <bool adds>
void filterDelayed(Up2ConvOffset& conv, const Tarn32f* src, std::ptrdiff_t len, Tarn32f* dst)
{
    CircularLine* const line = conv.pOffsetLine;
    if (line == nullptr) {
        filterBlock<adds>(*conv.pConv, src, len, dst);
        return;
    }
    const auto delayed = std::min<std::ptrdiff_t>(std::ptrdiff_t{2} * line->len, len);
    const std::ptrdiff_t fromLine = filterBlock<adds>(*conv.pConv, line->pBuffer + line->pos, delayed, dst);
    const std::ptrdiff_t fromBlock = filterBlock<adds>(*conv.pConv, src, len - delayed, dst + delayed);
    enterSamples(*line, src, fromLine + fromBlock);
}

} // namespace

std::ptrdiff_t up2ConvBlockByAppend_32f(Up2Conv* pConv, const Tarn32f* pSrc, std::ptrdiff_t len, Tarn32f* pDst)
{
    return append<false>(*pConv, pSrc, len, pDst);
}

void up2ConvPair_32f(Up2Conv* pConv, Tarn32f src, Tarn32f* pPair) { append<false>(*pConv, &src, 2, pPair); }

std::ptrdiff_t up2ConvBlock_32f(Up2Conv* pConv, const Tarn32f* pSrc, std::ptrdiff_t len, Tarn32f* pDst)
{
    return filterBlock<false>(*pConv, pSrc, len, pDst);
}
std::ptrdiff_t up2ConvBlockAdd_32f(Up2Conv* pConv, const Tarn32f* pSrc, std::ptrdiff_t len, Tarn32f* pDst)
{
    return filterBlock<true>(*pConv, pSrc, len, pDst);
}

void up2ConvOffsetBlock_32f(Up2ConvOffset* pConv, const Tarn32f* pSrc, std::ptrdiff_t len, Tarn32f* pDst)
{
    filterDelayed<false>(*pConv, pSrc, len, pDst);
}
void up2ConvOffsetBlockAdd_32f(Up2ConvOffset* pConv, const Tarn32f* pSrc, std::ptrdiff_t len, Tarn32f* pDst)
{
    filterDelayed<true>(*pConv, pSrc, len, pDst);
}
