// The calls of the radix-4 core: where each finds its work area, and what becomes of the working arrangement.
#pragma once

#include "frame/frontend.h"
#include "frame/walk.h"
#include "levels/fft/psfft_passes.h"

#include <cstring>

namespace tarn::fft {

// Natural order to natural order. The destination serves as work area where it can.
template <bool forward, typename T>
inline void readingCore(const T* src, T* dst, int size, const T* twd, const Tarn32s* rev, T* work)
{
    T* const area = src != dst && isOnBoundary(dst) ? dst : work;
    Transform<forward, T, ReadPairs<T>>({{rev, size}, src}, area, size, twd).run(WritePairs<T>{dst});
}

template <bool forward, typename T>
inline void readingSplitCore(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, int size, const T* twd,
                             const Tarn32s* rev, T* work)
{
    Transform<forward, T, ReadParts<T>>({{rev, size}, srcRe, srcIm}, work, size, twd).run(WriteParts<T>{dstRe, dstIm});
}

// Bit-reversed order to natural order in place: as pairs, or left in the working arrangement.
template <bool forward, typename T>
inline void inPlaceCore(T* data, int size, const T* twd, T* work, int interleave)
{
    // Blocks wider than those of the tables would lie on data that the first pass has not yet read.
    constexpr bool worksInPlace = workLanes<T> == blockLanes<T>;
    T* const area = worksInPlace && isOnBoundary(data) ? data : work;
    const Transform<forward, T, SequentialPairs<T>> transform({{}, data}, area, size, twd);
    if (interleave == 1) {
        transform.run(WritePairs<T>{data});
        return;
    }
    transform.run(WriteBlocks<T>{area});
    if (area != data) {
        std::memcpy(static_cast<void*>(data), area, 2 * sizeof(T) * static_cast<std::size_t>(size));
    }
}

template <bool forward, typename T>
inline void inPlaceSplitCore(T* re, T* im, int size, const T* twd, T* work)
{
    Transform<forward, T, SequentialParts<T>>({{}, re, im}, work, size, twd).run(WriteParts<T>{re, im});
}

// Scales `len` reals in place.
template <typename T>
inline void scaleInPlace(T factor, T* data, int len)
{
    walk(data, len, WithConstant<Word<Mul>, T>{mul, factor}, data);
}

} // namespace tarn::fft

// The calls of one precision in one direction.
#define TARN_FFT_DEFINE_CORES(T, DIRECTION, FORWARD)                                                                \
    void tarns_cRadix4##DIRECTION##Norm_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int N, const Tarn##T* twd, \
                                               const Tarn32s* rev, Tarn##T* work)                                   \
    {                                                                                                               \
        tarn::fft::readingCore<FORWARD>(asParts(pSrc), asParts(pDst), N, twd, rev, work);                           \
    }                                                                                                               \
    void tarns_cRadix4##DIRECTION##_##T##c(Tarn##T##c* pData, int N, const Tarn##T* twd, Tarn##T* work,             \
                                           int interleave)                                                          \
    {                                                                                                               \
        tarn::fft::inPlaceCore<FORWARD>(asParts(pData), N, twd, work, interleave);                                  \
    }                                                                                                               \
    void tarns_crRadix4##DIRECTION##Norm_##T(const Tarn##T* pSrcRe, const Tarn##T* pSrcIm, Tarn##T* pDstRe,         \
                                             Tarn##T* pDstIm, int N, const Tarn##T* twd, const Tarn32s* rev,        \
                                             Tarn##T* work)                                                         \
    {                                                                                                               \
        tarn::fft::readingSplitCore<FORWARD>(pSrcRe, pSrcIm, pDstRe, pDstIm, N, twd, rev, work);                    \
    }                                                                                                               \
    void tarns_crRadix4##DIRECTION##_##T(Tarn##T* pRe, Tarn##T* pIm, int N, const Tarn##T* twd, Tarn##T* work)      \
    {                                                                                                               \
        tarn::fft::inPlaceSplitCore<FORWARD>(pRe, pIm, N, twd, work);                                               \
    }
