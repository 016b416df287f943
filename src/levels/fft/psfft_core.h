// The calls of the radix-4 core: where each finds its work area, and what becomes of the working arrangement.
#pragma once

#include "frame/frontend.h"
#include "frame/walk.h"
#include "levels/fft/psfft_fours.h"
#include "levels/fft/psfft_passes.h"

namespace tarn::fft {

// The transform by the first of several sources of the same data that takes its length; the last takes all.
template <bool forward, typename T, typename Sink, typename Source, typename... Others>
inline void transform(T* area, int size, const T* twd, Sink sink, Source source, Others... others)
{
    if constexpr (sizeof...(Others) == 0) {
        Transform<forward, T, Source>(source, area, size, twd).run(sink);
    } else if constexpr (!hasWideBlocks<T>) {
        transform<forward>(area, size, twd, sink, others...);
    } else if (!Source::takes(size)) {
        transform<forward>(area, size, twd, sink, others...);
    } else if constexpr (requires { source.template run<forward>(twd, sink); }) {
        source.template run<forward>(twd, sink);
    } else {
        Transform<forward, T, Source>(source, area, size, twd).run(sink);
    }
}

// What the narrowest blocks of the working arrangement need; wider ones need no more.
template <typename T>
inline bool isOnBlockBoundary(const T* p)
{
    return addressOf(p) % blockBytes == 0;
}

// Natural order to natural order. The destination serves as work area where it can.
template <bool forward, typename T>
inline void readingCore(const T* src, T* dst, int size, const T* twd, const Tarn32s* rev, T* work)
{
    T* const area = src != dst && isOnBlockBoundary(dst) ? dst : work;
    transform<forward>(area, size, twd, WritePairs<T>{dst}, WideReadPairs<T>{{{}, rev, size}, src},
                       WideFewPairs<T>{{{}, size}, src}, FoursOfPairs<T>{size, src}, ReadPairs<T>{{rev, size}, src});
}

template <bool forward, typename T>
inline void readingSplitCore(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, int size, const T* twd,
                             const Tarn32s* rev, T* work)
{
    transform<forward>(work, size, twd, WriteParts<T>{dstRe, dstIm}, WideReadParts<T>{{{}, rev, size}, srcRe, srcIm},
                       WideFewParts<T>{{{}, size}, srcRe, srcIm}, ReadParts<T>{{rev, size}, srcRe, srcIm});
}

// Bit-reversed order to natural order in place: as pairs, or left in the working arrangement.
template <bool forward, typename T>
inline void inPlaceCore(T* data, int size, const T* twd, T* work, int interleave)
{
    T* const area = isOnBlockBoundary(data) ? data : work;
    const SequentialPairs<T> source{{}, data};
    const WideSequentialPairs<T> wide{{{}, size}, data};
    if (interleave == 1) {
        transform<forward>(area, size, twd, WritePairs<T>{data}, wide, source);
    } else {
        transform<forward>(area, size, twd, WriteBlocks<T>{data}, wide, source);
    }
}

template <bool forward, typename T>
inline void inPlaceSplitCore(T* re, T* im, int size, const T* twd, T* work)
{
    transform<forward>(work, size, twd, WriteParts<T>{re, im}, WideSequentialParts<T>{{{}, size}, re, im},
                       SequentialParts<T>{{}, re, im});
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
