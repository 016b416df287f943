// Front ends of convolution: directly, by one transform of the whole, or by transforms of blocks.
#include "tarns/convolution.h"

#include "fir/psconv_transforms.h"
#include "frame/checks.h"
#include "levels/fir/psconv.h"

#include <climits>

using namespace tarn;

namespace {

// The vectors in the order in which they are convolved: the longer one first.
template <typename S>
struct Operands {
    const S* a;
    int aLen;
    const S* b;
    int bLen;

    int resultLen() const { return aLen - 1 + bLen; }
};

// -- Directly ---------------------------------------------------------------------------------------------------------

// The shortest result and the shortest vector that are worth a transform.
constexpr int shortestTransformed = 512;
constexpr int shortestFilter = 64;

// Elements of the longer vector that are convolved at once: they and their outputs stay in the first-level cache.
constexpr int longestChunk = 4096;

void directKernel(const Tarn32f* a, int aLen, const Tarn32f* b, int bLen, Tarn32f* dst)
{
    ownConv_32f(a, aLen, b, bLen, dst);
}
void directKernel(const Tarn64f* a, int aLen, const Tarn64f* b, int bLen, Tarn64f* dst)
{
    ownConv_64f(a, aLen, b, bLen, dst);
}

// Convolves chunk after chunk. Each adds to the outputs that the one before left unfinished; `load` makes a chunk of
// elements, and `finish` is told which outputs no later chunk adds to.
template <typename T, typename Load, typename Finish>
void convolveChunks(int aLen, const T* b, int bLen, T* dst, Load load, Finish finish)
{
    if (aLen < longestChunk) {
        zeroFill(dst, aLen - 1 + bLen);
        directKernel(load(0, aLen), aLen, b, bLen, dst);
        finish(0, aLen - 1 + bLen);
        return;
    }
    zeroFill(dst, bLen - 1);
    int count = 0;
    for (int i = 0; i < aLen; i += count) {
        count = std::min(longestChunk, aLen - i);
        zeroFill(dst + i + bLen - 1, count);
        directKernel(load(i, count), count, b, bLen, dst + i);
        finish(i, count);
    }
    finish(aLen, bLen - 1);
}

template <typename T>
TarnStatus convolveDirectly(const Operands<T>& operands, T* pDst, int /*scaleFactor*/)
{
    convolveChunks(
        operands.aLen, operands.b, operands.bLen, pDst, [&](int i, int) { return operands.a + i; }, [](int, int) {});
    return tarnStsNoErr;
}

constexpr long long inFours(int len) { return (len + 3LL) & ~3LL; }

TarnStatus convolveDirectly(const Operands<Tarn16s>& operands, Tarn16s* pDst, int scaleFactor)
{
    const auto [a, aLen, b, bLen] = operands;
    const long long sumsRoom = inFours(operands.resultLen());
    const long long chunkRoom = inFours(std::min(aLen, longestChunk));
    const auto memory = allocate<Tarn32f>(sumsRoom + chunkRoom + inFours(bLen));
    if (!memory) {
        return tarnStsNoMemErr;
    }
    Tarn32f* const sums = memory.get();
    Tarn32f* const chunk = sums + sumsRoom;
    Tarn32f* const filter = chunk + chunkRoom;
    toComputed(b, filter, bLen);
    convolveChunks(
        aLen, filter, bLen, sums,
        [=, src = a](int i, int count) {
            toComputed(src + i, chunk, count);
            return chunk;
        },
        [=](int i, int count) {
            if (count > 0) {
                toResults(sums + i, pDst + i, count, scaleFactor);
            }
        });
    return tarnStsNoErr;
}

// -- By one transform -------------------------------------------------------------------------------------------------

constexpr int smallestOrder = 2;

template <typename S>
TarnStatus convolveByTransform(const Operands<S>& operands, S* pDst, int scaleFactor)
{
    using T = ComputedIn<S>;
    OneCall<T> call;
    if (const TarnStatus status = call.prepare(orderOfSize(operands.resultLen(), smallestOrder), 2)) {
        return status;
    }
    T* const a = call.block(0);
    T* const b = call.block(1);
    extendByZeros(operands.a, operands.aLen, a, call.size());
    extendByZeros(operands.b, operands.bLen, b, call.size());
    for (T* const data : {a, b}) {
        if (const TarnStatus status = call.forward(data)) {
            return status;
        }
    }
    TransformCalls<T>::multiply(a, b, call.size());
    const TarnStatus status = call.inverse(b);
    toResults(b, pDst, operands.resultLen(), scaleFactor);
    return status;
}

// -- By transforms of blocks ------------------------------------------------------------------------------------------

// How many times as long as the other the longer vector is at least.
constexpr int leastRatio = 3;

// From more elements on blocks may be shared out to threads.
constexpr int longestOnOneThread = 4096;

// 16-bit results are taken from the first data block, whichever thread made them: there is to be no other thread.
template <typename S>
constexpr bool takesThreads = std::is_same_v<S, ComputedIn<S>>;

template <typename S>
class BlockConvolution {
    using T = ComputedIn<S>;
    using Calls = TransformCalls<T>;

public:
    BlockConvolution(const Operands<S>& vectors, S* pDst, int factor)
        : operands(vectors), dst(pDst), scaleFactor(factor), history(vectors.bLen - 1)
    {
    }

    TarnStatus run()
    {
        const int order = orderOfSize(2LL * operands.bLen, smallestOrder) + 1;
        const int threads = threadsFor((1LL << order) - history);
        if (const TarnStatus status = call.prepare(order, 1 + threads, threads, threads)) {
            return status;
        }
        useful = call.size() - history;
        extendByZeros(operands.b, operands.bLen, call.block(0), call.size());
        if (const TarnStatus status = call.forward(call.block(0))) {
            return status;
        }
        if (operands.aLen <= longestOnOneThread) {
            return runBlocksInTurn(blockCount(useful), [this](int b) { return convolve<Failure::ends>(b, 0); });
        }
        return runBlocksInShares<T>(blockCount(useful), call.size(), threads, reinterpret_cast<Tarn32s*>(call.more()),
                                    [this](int b, int thread) { return convolve<Failure::isKept>(b, thread); });
    }

private:
    int blockCount(long long usefulOfBlock) const
    {
        return static_cast<int>((operands.resultLen() - 1) / usefulOfBlock + 1);
    }

    int threadsFor(long long usefulOfBlock) const
    {
        const bool shares = takesThreads<S> && operands.aLen > longestOnOneThread;
        return shares ? std::min(threadsOfCall(), blockCount(usefulOfBlock)) : 1;
    }

    BlockBuffers<T> buffersOf(int thread) const { return {call.block(1 + thread), call.work(thread)}; }

    // The block whose outputs begin at i. Before the first one lies nothing, so that its useful outputs come first; a
    // window of the vector that fills the block is transformed from where it lies if it needs no conversion.
    template <Failure failure>
    TarnStatus convolve(int index, int thread) const
    {
        const CyclicFilter<Calls, T> filter{call.spec(), call.block(0), call.size()};
        const BlockBuffers<T> own = buffersOf(thread);
        const int i = index * useful;
        const int before = index == 0 ? 0 : history;
        const S* const window = operands.a + i - before;
        const int filled = std::min({operands.aLen - i + before, operands.aLen, useful + before});
        const TarnStatus status = transform<failure>(filter, window, filled, own);
        if (failure == Failure::isKept || status == tarnStsNoErr) {
            const T* const outputs = takesThreads<S> ? own.block : buffersOf(0).block;
            toResults(outputs + before, dst + i, std::min(operands.resultLen() - i, useful), scaleFactor);
        }
        return status;
    }

    template <Failure failure>
    TarnStatus transform(const CyclicFilter<Calls, T>& filter, const S* window, int filled, BlockBuffers<T> own) const
    {
        if constexpr (std::is_same_v<S, T>) {
            if (filled == call.size()) {
                return filter.template apply<failure>(window, own);
            }
        }
        extendByZeros(window, filled, own.block, call.size());
        return filter.template apply<failure>(own.block, own);
    }

    OneCall<T> call;
    Operands<S> operands;
    S* dst;
    int scaleFactor;
    int history;    // elements of a block that belong to outputs of the one before
    int useful = 0; // outputs of a block
};

// -- Calls ------------------------------------------------------------------------------------------------------------

template <typename S>
TarnStatus convolve(const S* pSrc1, int src1Len, const S* pSrc2, int src2Len, S* pDst, int scaleFactor = 0)
{
    if (const TarnStatus status = check(std::min(src1Len, src2Len), pSrc1, pSrc2, pDst)) {
        return status;
    }
    if (static_cast<long long>(src1Len) + src2Len - 1 > INT_MAX) {
        return tarnStsSizeErr;
    }
    const bool inOrder = src1Len >= src2Len;
    const Operands<S> operands =
        inOrder ? Operands<S>{pSrc1, src1Len, pSrc2, src2Len} : Operands<S>{pSrc2, src2Len, pSrc1, src1Len};
    if (operands.resultLen() < shortestTransformed || operands.bLen < shortestFilter) {
        return convolveDirectly(operands, pDst, scaleFactor);
    }
    if (operands.aLen >= static_cast<long long>(leastRatio) * operands.bLen) {
        return BlockConvolution<S>(operands, pDst, scaleFactor).run();
    }
    return convolveByTransform(operands, pDst, scaleFactor);
}

} // namespace

TarnStatus tarnsConv_32f(const Tarn32f* pSrc1, int src1Len, const Tarn32f* pSrc2, int src2Len, Tarn32f* pDst)
{
    return convolve(pSrc1, src1Len, pSrc2, src2Len, pDst);
}

TarnStatus tarnsConv_64f(const Tarn64f* pSrc1, int src1Len, const Tarn64f* pSrc2, int src2Len, Tarn64f* pDst)
{
    return convolve(pSrc1, src1Len, pSrc2, src2Len, pDst);
}

TarnStatus tarnsConv_16s_Sfs(const Tarn16s* pSrc1, int src1Len, const Tarn16s* pSrc2, int src2Len, Tarn16s* pDst,
                             int scaleFactor)
{
    return convolve(pSrc1, src1Len, pSrc2, src2Len, pDst, scaleFactor);
}

// -- Cyclic ones, which check nothing ---------------------------------------------------------------------------------

TarnStatus tarnsConvCyclic8x8_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst)
{
    ownConvCyclic8x8_32f(pSrc1, pSrc2, pDst);
    return tarnStsNoErr;
}

TarnStatus tarnsConvCyclic4x4_32f32fc(const Tarn32f* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst)
{
    ownConvCyclic4x4_32f32fc(pSrc1, pSrc2, pDst);
    return tarnStsNoErr;
}

TarnStatus tarnsConvCyclic8x8_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int scaleFactor)
{
    ownConvCyclic8x8_16s_Sfs(pSrc1, pSrc2, pDst, scaleFactor);
    return tarnStsNoErr;
}
