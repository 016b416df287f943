// Kernels of IIR filters: chunks, their passes, and single samples.
#include "levels/recursive/psiir.h"

#include "levels/recursive/psiir_orders.h"
#include "levels/recursive/psiir_sections.h"

using namespace tarn;

namespace {

// -- Samples of the type that is computed in --------------------------------------------------------------------------

template <typename T>
void filterByOrder(const T* src, T* dst, int len, IirFields<T>* state)
{
    const Results<T> out{dst};
    if (state->dlyLen < 1) {
        gain(src, out, len, *state);
    } else {
        filterOrder(src, out, len, state);
    }
}

template <typename T>
void filterBySections(const T* src, T* dst, int len, IirFields<T>* state)
{
    if (len > tablesPayFrom * state->numBq) {
        filterCascade(src, dst, len, *state);
        return;
    }
    for (int i = 0; i < len; ++i) {
        store(dst + i, filterOneCascade(*state, loadElement(src + i)));
    }
}

// -- Samples of another type ------------------------------------------------------------------------------------------

// Only what the caller sees is rounded; what the recursion goes on with is kept in the second scratch area.
template <typename T, typename S>
ConvertedResults<T, S> resultsOf(const IirFields<T>& state, S* dst, int scaleFactor)
{
    return {state.pTmp2, dst, scaleOf<Part<T>>(scaleFactor)};
}

template <typename T, typename S>
void convertByOrder(const S* src, S* dst, int len, IirFields<T>* state, int scaleFactor)
{
    const SamplesRounding<S> rounding;
    const auto out = resultsOf(*state, dst, scaleFactor);
    if (state->dlyLen < 1) {
        gain(src, out, len, *state);
    } else {
        filterOrder(src, out, len, state);
    }
}

template <typename T, typename S>
void convertBySections(const S* src, S* dst, int len, IirFields<T>* state, int scaleFactor)
{
    const SamplesRounding<S> rounding;
    const auto out = resultsOf(*state, dst, scaleFactor);
    if (len <= tablesPayFrom * state->numBq) {
        for (int i = 0; i < len; ++i) {
            out.put(i, filterOneCascade(*state, sampleAs<T>(src + i)));
        }
    } else if (state->numBq == 1) {
        filterSection(src, out, len, *state, 0);
    } else {
        samplesToTaps(src, state->pTmp2, len);
        filterCascade(state->pTmp2, state->pTmp2, len, *state);
        out.convertAll(len);
    }
}

template <typename T, typename S, typename Filter>
void convertOne(const S* src, S* dst, int scaleFactor, Filter filter)
{
    const SamplesRounding<S> rounding;
    T x = sampleAs<T>(src);
    x = filter(x);
    ConvertedResults<T, S>{&x, dst, scaleOf<Part<T>>(scaleFactor)}.put(0, x);
}

} // namespace

// -- Passes over a block ----------------------------------------------------------------------------------------------

#define TARN_DEFINE_IIR_PASSES(TAIL, T)                                                     \
    void ownsIIRxAR##TAIL(const T* pSrc, T* pDst, int count, const T* pTapsX, int order)    \
    {                                                                                       \
        weighAllInputs<0>(pSrc, pDst, count, pTapsX, order);                                \
    }                                                                                       \
    void ownsIIRyAR##TAIL(const T* pValues, T* pDst, int count, const T* pTapsY, int order) \
    {                                                                                       \
        recurAny(pValues, Results<T>{pDst}, count, pTapsY, order);                          \
    }                                                                                       \
    void ownsIIRBQTwo##TAIL(const T* pSrc, T* pDst, IirFields<T>* pState, int section)      \
    {                                                                                       \
        filterTwo(pSrc, Results<T>{pDst}, *pState, section);                                \
    }
#define TARN_DEFINE_IIR_SECTION_PASSES(TAIL, T)                                      \
    void ownsIIRxBQ##TAIL(const T* pSrc, T* pDst, int count, const T* pTapsX)        \
    {                                                                                \
        weighAllInputs<sectionOrder>(pSrc, pDst, count, pTapsX, sectionOrder);       \
    }                                                                                \
    void ownsIIRyBQ##TAIL(const T* pValues, T* pDst, int count, const T* pTapsY)     \
    {                                                                                \
        recur<sectionOrder>(pValues, Results<T>{pDst}, count, pTapsY, sectionOrder); \
    }

TARN_IIR_PLAIN_TAILS(TARN_DEFINE_IIR_PASSES)
TARN_IIR_PLAIN_SECTIONS(TARN_DEFINE_IIR_SECTION_PASSES)

#define TARN_DEFINE_IIR_CONVERTING_PASSES(TAIL, T, S)                                                                  \
    void ownsIIRxAR##TAIL(const S* pSrc, T* pDst, int count, const T* pTapsX, int order)                               \
    {                                                                                                                  \
        weighAllSamples<0>(pSrc, pDst, count, pTapsX, order);                                                          \
    }                                                                                                                  \
    void ownsIIRyAR##TAIL(const T* pValues, T* pKept, S* pDst, int count, const T* pTapsY, int order, int scaleFactor) \
    {                                                                                                                  \
        const ConvertedResults<T, S> out{pKept, pDst, scaleOf<Part<T>>(scaleFactor)};                                  \
        recurAny(pValues, out, count, pTapsY, order);                                                                  \
    }                                                                                                                  \
    void ownsIIRBQTwo##TAIL(const S* pSrc, T* pKept, S* pDst, IirFields<T>* pState, int section, int scaleFactor)      \
    {                                                                                                                  \
        filterTwo(pSrc, ConvertedResults<T, S>{pKept, pDst, scaleOf<Part<T>>(scaleFactor)}, *pState, section);         \
    }
#define TARN_DEFINE_IIR_CONVERTING_SECTION_PASSES(TAIL, T, S)                                               \
    void ownsIIRxBQ##TAIL(const S* pSrc, T* pDst, int count, const T* pTapsX)                               \
    {                                                                                                       \
        weighAllSamples<sectionOrder>(pSrc, pDst, count, pTapsX, sectionOrder);                             \
    }                                                                                                       \
    void ownsIIRyBQ##TAIL(const T* pValues, T* pKept, S* pDst, int count, const T* pTapsY, int scaleFactor) \
    {                                                                                                       \
        const ConvertedResults<T, S> out{pKept, pDst, scaleOf<Part<T>>(scaleFactor)};                       \
        recur<sectionOrder>(pValues, out, count, pTapsY, sectionOrder);                                     \
    }

TARN_IIR_FLOAT_TAILS(TARN_DEFINE_IIR_CONVERTING_PASSES)
TARN_IIR_INTEGER_TAILS(TARN_DEFINE_IIR_CONVERTING_PASSES)
TARN_IIR_CONVERTING_SECTIONS(TARN_DEFINE_IIR_CONVERTING_SECTION_PASSES)

// -- Chunks, and single samples ---------------------------------------------------------------------------------------

#define TARN_DEFINE_IIR_KERNELS(TAIL, T)                                                               \
    void ownsIIRAR##TAIL(const T* pSrc, T* pDst, int len, IirFields<T>* pState)                        \
    {                                                                                                  \
        filterByOrder(pSrc, pDst, len, pState);                                                        \
    }                                                                                                  \
    void ownsIIRBQ##TAIL(const T* pSrc, T* pDst, int len, IirFields<T>* pState)                        \
    {                                                                                                  \
        filterBySections(pSrc, pDst, len, pState);                                                     \
    }                                                                                                  \
    void ownsIIRAROne##TAIL(const T* pSrc, T* pDstVal, IirFields<T>* pState)                           \
    {                                                                                                  \
        store(pDstVal, filterOne(pState->pTaps, pState->pDlyLine, pState->dlyLen, loadElement(pSrc))); \
    }                                                                                                  \
    void ownsIIRBQOne##TAIL(const T* pSrc, T* pDstVal, IirFields<T>* pState)                           \
    {                                                                                                  \
        store(pDstVal, filterOneCascade(*pState, loadElement(pSrc)));                                  \
    }

TARN_IIR_PLAIN_TAILS(TARN_DEFINE_IIR_KERNELS)

// The last parameter of those with a scale factor is given at the end; FACTOR is its value, 0 for the others.
#define TARN_DEFINE_IIR_CONVERTED(TAIL, T, S, FACTOR, ...)                                                 \
    void ownsIIRAR##TAIL(const S* pSrc, S* pDst, int len, IirFields<T>* pState __VA_ARGS__)                \
    {                                                                                                      \
        convertByOrder(pSrc, pDst, len, pState, FACTOR);                                                   \
    }                                                                                                      \
    void ownsIIRBQ##TAIL(const S* pSrc, S* pDst, int len, IirFields<T>* pState __VA_ARGS__)                \
    {                                                                                                      \
        convertBySections(pSrc, pDst, len, pState, FACTOR);                                                \
    }                                                                                                      \
    void ownsIIRAROne##TAIL(const S* pSrc, S* pDstVal, IirFields<T>* pState __VA_ARGS__)                   \
    {                                                                                                      \
        convertOne<T>(pSrc, pDstVal, FACTOR,                                                               \
                      [=](T x) { return filterOne(pState->pTaps, pState->pDlyLine, pState->dlyLen, x); }); \
    }                                                                                                      \
    void ownsIIRBQOne##TAIL(const S* pSrc, S* pDstVal, IirFields<T>* pState __VA_ARGS__)                   \
    {                                                                                                      \
        convertOne<T>(pSrc, pDstVal, FACTOR, [=](T x) { return filterOneCascade(*pState, x); });           \
    }
#define TARN_DEFINE_IIR_FLOAT(TAIL, T, S) TARN_DEFINE_IIR_CONVERTED(TAIL, T, S, 0, )
#define TARN_DEFINE_IIR_INTEGER(TAIL, T, S) TARN_DEFINE_IIR_CONVERTED(TAIL, T, S, scaleFactor, , int scaleFactor)

TARN_IIR_FLOAT_TAILS(TARN_DEFINE_IIR_FLOAT)
TARN_IIR_INTEGER_TAILS(TARN_DEFINE_IIR_INTEGER)
