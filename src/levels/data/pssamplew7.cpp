// Kernels of sampling down and up.
#include "levels/data/pssample.h"

#include "frame/simd.h"

namespace {

using namespace tarn;

// Vectors and single elements alike are read before anything that lies at or behind them is written: the destination
// may be the source.

template <typename T>
void takeEveryFrom(int first, const T* pSrc, T* pDst, int count, int factor)
{
    const std::ptrdiff_t stride = factor;
    const T* next = pSrc + first * stride;
    const auto take = [&](int i) {
        moveElement(pDst + i, next);
        next += stride;
    };
    int i = first;
    for (; i <= count - unrolledSteps; i += unrolledSteps) {
        take(i);
        take(i + 1);
        take(i + 2);
        take(i + 3);
    }
    for (; i < count; ++i) {
        take(i);
    }
}

// The last vector of a source need not be whole where its odd element is not taken.
template <typename T>
void takeEverySecond(const T* pSrc, int srcLen, T* pDst, int count)
{
    int i = 0;
    if constexpr (lanes < T >> 1) {
        constexpr int step = lanes<T>;
        for (; i <= srcLen / 2 - step; i += step) {
            store(pDst + i, evenElements(loadPack<2 * step>(pSrc + std::ptrdiff_t{2} * i)));
        }
    }
    takeEveryFrom(i, pSrc, pDst, count, 2);
}

// The destination of all of them has no more elements than an int counts.
template <typename T>
void spreadElements(const T* pSrc, int count, T* pDst, int factor, int phase)
{
    const std::ptrdiff_t stride = factor;
    walk(pDst, count * factor, Identity{}, Everywhere<T>{});
    T* next = pDst + phase;
    int i = 0;
    for (; i <= count - unrolledSteps; i += unrolledSteps, next += unrolledSteps * stride) {
        moveElement(next, pSrc + i);
        moveElement(next + stride, pSrc + i + 1);
        moveElement(next + 2 * stride, pSrc + i + 2);
        moveElement(next + 3 * stride, pSrc + i + 3);
    }
    for (; i < count; ++i, next += stride) {
        moveElement(next, pSrc + i);
    }
}

// Zeros first, the elements over them, a block at a time: one that the first cache holds from the one to the other.
template <typename T>
void spread(const T* pSrc, int srcLen, T* pDst, int factor, int phase)
{
    constexpr int blockBytes = 16384;
    const int block = std::max(1, blockBytes / static_cast<int>(sizeof(T)) / factor);
    for (int i = 0; i < srcLen; i += block) {
        spreadElements(pSrc + i, std::min(block, srcLen - i), pDst + std::ptrdiff_t{factor} * i, factor, phase);
    }
}

template <typename T>
void spreadByTwo(const T* pSrc, int srcLen, T* pDst, int phase)
{
    int i = 0;
    if constexpr (lanes < T >> 1) {
        constexpr int step = lanes<T>;
        const auto spreadAll = [&](auto spreadVector) {
            for (; i <= srcLen - step; i += step) {
                store(pDst + std::ptrdiff_t{2} * i, spreadVector(loadPack<step>(pSrc + i)));
            }
        };
        if (phase == 0) {
            spreadAll([](auto x) { return spreadEven(x); });
        } else {
            spreadAll([](auto x) { return spreadOdd(x); });
        }
    }
    spread(pSrc + i, srcLen - i, pDst + std::ptrdiff_t{2} * i, 2, phase);
}

} // namespace

#define TARN_SAMPLE_KERNELS(TAG)                                                                           \
    void ownsSampleDown##TAG##_2_W7(const Tarn##TAG* pSrc, int srcLen, Tarn##TAG* pDst, int count)         \
    {                                                                                                      \
        takeEverySecond(pSrc, srcLen, pDst, count);                                                        \
    }                                                                                                      \
    void ownsSampleDown##TAG##_W7(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int count, int factor)           \
    {                                                                                                      \
        takeEveryFrom(0, pSrc, pDst, count, factor);                                                       \
    }                                                                                                      \
    void ownsSampleUp##TAG##_2_W7(const Tarn##TAG* pSrc, int srcLen, Tarn##TAG* pDst, int phase)           \
    {                                                                                                      \
        spreadByTwo(pSrc, srcLen, pDst, phase);                                                            \
    }                                                                                                      \
    void ownsSampleUp##TAG##_W7(const Tarn##TAG* pSrc, int srcLen, Tarn##TAG* pDst, int factor, int phase) \
    {                                                                                                      \
        spread(pSrc, srcLen, pDst, factor, phase);                                                         \
    }

TARN_SAMPLE_KERNELS(16s)
TARN_SAMPLE_KERNELS(32f)
TARN_SAMPLE_KERNELS(64f)
TARN_SAMPLE_KERNELS(64fc)
