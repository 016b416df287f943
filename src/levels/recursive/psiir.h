// Kernels of IIR filters. None of them checks an argument.
#pragma once

#include "frame/kernels.h"
#include "levels/recursive/psiir_state.h"

// -- Tails ------------------------------------------------------------------------------------------------------------

// Those that compute in the type of their samples, and those that convert: samples of floats, and integers, whose calls
// have a scale factor.
#define TARN_IIR_PLAIN_TAILS(X) X(_32f, Tarn32f) X(_32fc, Tarn32fc) X(_64f, Tarn64f) X(_64fc, Tarn64fc)
#define TARN_IIR_FLOAT_TAILS(X) X(64f_32f, Tarn64f, Tarn32f) X(64fc_32fc, Tarn64fc, Tarn32fc)
#define TARN_IIR_INTEGER_TAILS(X)    \
    X(32f_16s, Tarn32f, Tarn16s)     \
    X(32fc_16sc, Tarn32fc, Tarn16sc) \
    X(64f_32s, Tarn64f, Tarn32s)     \
    X(64fc_32sc, Tarn64fc, Tarn32sc) \
    X(64f_16s, Tarn64f, Tarn16s)     \
    X(64fc_16sc, Tarn64fc, Tarn16sc)

// Sections of real taps have passes of their own; one of their names has an underscore more.
#define TARN_IIR_PLAIN_SECTIONS(X) X(_32f, Tarn32f) X(_64f, Tarn64f)
#define TARN_IIR_CONVERTING_SECTIONS(X) \
    X(_32f_16s, Tarn32f, Tarn16s)       \
    X(64f_32f, Tarn64f, Tarn32f)        \
    X(64f_32s, Tarn64f, Tarn32s)        \
    X(64f_16s, Tarn64f, Tarn16s)

// -- Passes over a block ----------------------------------------------------------------------------------------------

// The non-recursive values of count samples from count + order inputs; and the outputs of a recursion over values,
// whose history are the elements in front of pDst.
#define TARN_IIR_PASSES(TAIL, T)                                                                         \
    TARN_KERNEL void ownsIIRxAR##TAIL(const T* pSrc, T* pDst, int count, const T* pTapsX, int order);    \
    TARN_KERNEL void ownsIIRyAR##TAIL(const T* pValues, T* pDst, int count, const T* pTapsY, int order); \
    TARN_KERNEL void ownsIIRBQTwo##TAIL(const T* pSrc, T* pDst, tarn::IirFields<T>* pState, int section);
#define TARN_IIR_SECTION_PASSES(TAIL, T)                                                   \
    TARN_KERNEL void ownsIIRxBQ##TAIL(const T* pSrc, T* pDst, int count, const T* pTapsX); \
    TARN_KERNEL void ownsIIRyBQ##TAIL(const T* pValues, T* pDst, int count, const T* pTapsY);

// Passes of samples of another type. Results stand as they are in pKept, where the recursion has its history, and as
// samples in pDst. The orders are those of blocks, whose lengths are more than four times as large and at most
// chunkSamples. Scale factors of float samples are 0.
#define TARN_IIR_CONVERTING_PASSES(TAIL, T, S)                                                                     \
    TARN_KERNEL void ownsIIRxAR##TAIL(const S* pSrc, T* pDst, int count, const T* pTapsX, int order);              \
    TARN_KERNEL void ownsIIRyAR##TAIL(const T* pValues, T* pKept, S* pDst, int count, const T* pTapsY, int order,  \
                                      int scaleFactor);                                                            \
    TARN_KERNEL void ownsIIRBQTwo##TAIL(const S* pSrc, T* pKept, S* pDst, tarn::IirFields<T>* pState, int section, \
                                        int scaleFactor);
#define TARN_IIR_CONVERTING_SECTION_PASSES(TAIL, T, S)                                     \
    TARN_KERNEL void ownsIIRxBQ##TAIL(const S* pSrc, T* pDst, int count, const T* pTapsX); \
    TARN_KERNEL void ownsIIRyBQ##TAIL(const T* pValues, T* pKept, S* pDst, int count, const T* pTapsY, int scaleFactor);

TARN_IIR_PLAIN_TAILS(TARN_IIR_PASSES)
TARN_IIR_PLAIN_SECTIONS(TARN_IIR_SECTION_PASSES)
TARN_IIR_FLOAT_TAILS(TARN_IIR_CONVERTING_PASSES)
TARN_IIR_INTEGER_TAILS(TARN_IIR_CONVERTING_PASSES)
TARN_IIR_CONVERTING_SECTIONS(TARN_IIR_CONVERTING_SECTION_PASSES)

// -- Chunks of at most chunkSamples, and single samples ---------------------------------------------------------------

// Each is also known to the templates by its types: chunkOfOrder, chunkOfSections, oneOfOrder, oneOfSections. Samples
// of the type that is computed in have no scale.
#define TARN_IIR_KNOWN_AS(KNOWN, NAME, T, S, ...)                                             \
    namespace tarn {                                                                          \
    inline void KNOWN(const S* pSrc, S* pDst, int len, IirFields<T>* pState, int scaleFactor) \
    {                                                                                         \
        NAME(__VA_ARGS__);                                                                    \
        static_cast<void>(len);                                                               \
        static_cast<void>(scaleFactor);                                                       \
    }                                                                                         \
    }
#define TARN_IIR_KERNELS(TAIL, T, S)                                                               \
    TARN_KERNEL void ownsIIRAR##TAIL(const S* pSrc, S* pDst, int len, tarn::IirFields<T>* pState); \
    TARN_KERNEL void ownsIIRBQ##TAIL(const S* pSrc, S* pDst, int len, tarn::IirFields<T>* pState); \
    TARN_KERNEL void ownsIIRAROne##TAIL(const S* pSrc, S* pDstVal, tarn::IirFields<T>* pState);    \
    TARN_KERNEL void ownsIIRBQOne##TAIL(const S* pSrc, S* pDstVal, tarn::IirFields<T>* pState);    \
    TARN_IIR_KNOWN_AS(chunkOfOrder, ownsIIRAR##TAIL, T, S, pSrc, pDst, len, pState)                \
    TARN_IIR_KNOWN_AS(chunkOfSections, ownsIIRBQ##TAIL, T, S, pSrc, pDst, len, pState)             \
    TARN_IIR_KNOWN_AS(oneOfOrder, ownsIIRAROne##TAIL, T, S, pSrc, pDst, pState)                    \
    TARN_IIR_KNOWN_AS(oneOfSections, ownsIIRBQOne##TAIL, T, S, pSrc, pDst, pState)
#define TARN_IIR_KERNELS_SFS(TAIL, T, S)                                                                            \
    TARN_KERNEL void ownsIIRAR##TAIL(const S* pSrc, S* pDst, int len, tarn::IirFields<T>* pState, int scaleFactor); \
    TARN_KERNEL void ownsIIRBQ##TAIL(const S* pSrc, S* pDst, int len, tarn::IirFields<T>* pState, int scaleFactor); \
    TARN_KERNEL void ownsIIRAROne##TAIL(const S* pSrc, S* pDstVal, tarn::IirFields<T>* pState, int scaleFactor);    \
    TARN_KERNEL void ownsIIRBQOne##TAIL(const S* pSrc, S* pDstVal, tarn::IirFields<T>* pState, int scaleFactor);    \
    TARN_IIR_KNOWN_AS(chunkOfOrder, ownsIIRAR##TAIL, T, S, pSrc, pDst, len, pState, scaleFactor)                    \
    TARN_IIR_KNOWN_AS(chunkOfSections, ownsIIRBQ##TAIL, T, S, pSrc, pDst, len, pState, scaleFactor)                 \
    TARN_IIR_KNOWN_AS(oneOfOrder, ownsIIRAROne##TAIL, T, S, pSrc, pDst, pState, scaleFactor)                        \
    TARN_IIR_KNOWN_AS(oneOfSections, ownsIIRBQOne##TAIL, T, S, pSrc, pDst, pState, scaleFactor)

#define TARN_IIR_PLAIN_KERNELS(TAIL, T) TARN_IIR_KERNELS(TAIL, T, T)

TARN_IIR_PLAIN_TAILS(TARN_IIR_PLAIN_KERNELS)
TARN_IIR_FLOAT_TAILS(TARN_IIR_KERNELS)
TARN_IIR_INTEGER_TAILS(TARN_IIR_KERNELS_SFS)

// -- Inner calls ------------------------------------------------------------------------------------------------------

// Builders, each for all states that compute in its type; and calls of one form, which cut a block into chunks.
#define TARN_IIR_BUILDERS(T)                                                                                           \
    TARN_KERNEL TarnStatus ownsIIRInitAlloc_##T(tarn::IirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int order,   \
                                                const Tarn##T* pDlyLine, int isConverting, Tarn32u id);                \
    TARN_KERNEL TarnStatus ownsIIRInitAlloc_BiQuad_##T(tarn::IirFields<Tarn##T>** ppState, const Tarn##T* pTaps,       \
                                                       int numBq, const Tarn##T* pDlyLine, int isConverting,           \
                                                       Tarn32u id);                                                    \
    TARN_KERNEL TarnStatus ownsIIRInit_##T(tarn::IirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int order,        \
                                           const Tarn##T* pDlyLine, Tarn8u* pBuffer, int isConverting, Tarn32u id);    \
    TARN_KERNEL TarnStatus ownsIIRInit_BiQuad_##T(tarn::IirFields<Tarn##T>** ppState, const Tarn##T* pTaps, int numBq, \
                                                  const Tarn##T* pDlyLine, Tarn8u* pBuffer, int isConverting,          \
                                                  Tarn32u id);                                                         \
    TARN_KERNEL TarnStatus ownsIIRSetTaps_##T(const Tarn##T* pTaps, tarn::IirFields<Tarn##T>* pState);                 \
    TARN_KERNEL TarnStatus ownsIIRSetTaps_BiQuad_##T(const Tarn##T* pTaps, tarn::IirFields<Tarn##T>* pState)

TARN_IIR_BUILDERS(32f);
TARN_IIR_BUILDERS(32fc);
TARN_IIR_BUILDERS(64f);
TARN_IIR_BUILDERS(64fc);

#define TARN_IIR_INNER(TAIL, S)                                                                            \
    TARN_KERNEL TarnStatus tarnsIIRAR##TAIL(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState); \
    TARN_KERNEL TarnStatus tarnsIIRBQ##TAIL(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState)
#define TARN_IIR_INNER_SFS(TAIL, S)                                                                             \
    TARN_KERNEL TarnStatus tarnsIIRAR##TAIL##_Sfs(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState, \
                                                  int scaleFactor);                                             \
    TARN_KERNEL TarnStatus tarnsIIRBQ##TAIL##_Sfs(const S* pSrc, S* pDst, int len, TarnsIIRState##TAIL* pState, \
                                                  int scaleFactor)

TARN_IIR_INNER(_32f, Tarn32f);
TARN_IIR_INNER(_32fc, Tarn32fc);
TARN_IIR_INNER(_64f, Tarn64f);
TARN_IIR_INNER(_64fc, Tarn64fc);
TARN_IIR_INNER(64f_32f, Tarn32f);
TARN_IIR_INNER(64fc_32fc, Tarn32fc);
TARN_IIR_INNER_SFS(32f_16s, Tarn16s);
TARN_IIR_INNER_SFS(32fc_16sc, Tarn16sc);
TARN_IIR_INNER_SFS(32s_16s, Tarn16s);
TARN_IIR_INNER_SFS(32sc_16sc, Tarn16sc);
TARN_IIR_INNER_SFS(32s_16s32f, Tarn16s);
TARN_IIR_INNER_SFS(32sc_16sc32fc, Tarn16sc);
TARN_IIR_INNER_SFS(64f_32s, Tarn32s);
TARN_IIR_INNER_SFS(64fc_32sc, Tarn32sc);
TARN_IIR_INNER_SFS(64f_16s, Tarn16s);
TARN_IIR_INNER_SFS(64fc_16sc, Tarn16sc);

// States of the calls without one: float taps and a float delay line of integers with an exponent.
TARN_KERNEL TarnStatus ownsIIRInitAlloc_16s(tarn::IirFields<Tarn32f>** ppState, const Tarn16s* pTaps, int order,
                                            const Tarn32s* pDlyLine);
TARN_KERNEL TarnStatus ownsIIRInitAlloc_BiQuad_16s(tarn::IirFields<Tarn32f>** ppState, const Tarn16s* pTaps, int numBq,
                                                   const Tarn32s* pDlyLine);
