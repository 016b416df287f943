// Kernels of IIR filters: chunks, their passes, and single samples.
#include "levels/recursive/psiir.h"

#include "levels/recursive/psiir_blocks.h"
#include "levels/recursive/psiir_samples.h"

#include <algorithm>

using namespace tarn;

namespace {

// -- One section of any order
// ------------------------------------------------------------------------------------------

// The accumulators that a block leaves behind, first what its last inputs have in them, then its last outputs. Both
// begin with the oldest.
template <typename T>
void enterInputs(const IirFields<T>& state, const T* end)
{
    const T* const b = state.pTaps + 1;
    for (int j = 0; j < state.dlyLen; ++j) {
        T sum = product(b[state.dlyLen - 1], loadElement(end - (state.dlyLen - j)));
        for (int m = state.dlyLen - j - 2; m >= 0; --m) {
            sum = add(sum, product(b[j + m], loadElement(end - 1 - m)));
        }
        state.pDlyLine[j] = sum;
    }
}
template <typename T>
void enterOutputs(const IirFields<T>& state, const T* end)
{
    const T* const a = state.pTaps + 1 + state.dlyLen;
    for (int j = 0; j < state.dlyLen; ++j) {
        T sum = state.pDlyLine[j];
        for (int m = state.dlyLen - j - 1; m >= 0; --m) {
            sum = sub(sum, product(a[j + m], loadElement(end - 1 - m)));
        }
        state.pDlyLine[j] = sum;
    }
}

template <typename T>
struct Gain {
    T factor;
    template <typename X>
    TARN_INLINE X operator()(X x) const
    {
        return product(x, splat<X>(factor));
    }
};

template <typename T>
void filterSingly(const T* src, T* dst, int len, const IirFields<T>& state)
{
    for (int i = 0; i < len; ++i) {
        store(dst + i, filterOne(state.pTaps, state.pDlyLine, state.dlyLen, loadElement(src + i)));
    }
}

template <typename T>
void filterOrder(const T* src, T* dst, int len, IirFields<T>* state)
{
    const int order = state->dlyLen;
    if (order < 1) {
        walk(dst, len, Gain<T>{state->pTaps[0]}, src);
        return;
    }
    if (len <= tablesPayFrom * order || state->isSingly != 0) {
        filterSingly(src, dst, len, *state);
        return;
    }
    weighAllInputs<0>(src, state->pTmp, len - order, state->pTapsX, order);
    filterSingly(src, dst, order, *state);
    enterInputs(*state, src + len);
    recurAny(state->pTmp, dst + order, len - order, state->pTapsY, order);
    enterOutputs(*state, dst + len);
}

// -- Cascades of sections of order two
// ---------------------------------------------------------------------------------

// The first two outputs of a section, by its accumulators.
template <typename T>
void filterTwo(const T* src, T* dst, const IirFields<T>& state, int section)
{
    const Section<T> s = sectionOf(state, section);
    const T* const d = state.pDlyLine + std::ptrdiff_t{sectionOrder} * section;
    const T s0 = loadElement(src);
    const T s1 = loadElement(src + 1);
    const T y0 = add(product(s.b0, s0), d[0]);
    const T y1 = add(add(add(product(s.b1, s0), product(s.b0, s1)), d[1]), product(s.c1, y0));
    store(dst, y0);
    store(dst + 1, y1);
}

template <typename T>
void filterSection(const T* src, T* dst, int len, const IirFields<T>& state, int section)
{
    const Section<T> s = sectionOf(state, section);
    T* const d = state.pDlyLine + std::ptrdiff_t{sectionOrder} * section;
    const int rest = len - sectionOrder;
    weighAllInputs<sectionOrder>(src, state.pTmp, rest, state.pTapsX + std::ptrdiff_t{sectionTapsX<T>} * section,
                                 sectionOrder);
    const T last = loadElement(src + len - 1);
    const T lastButOne = loadElement(src + len - 2);
    filterTwo(src, dst, state, section);
    recur<sectionOrder>(state.pTmp, dst + sectionOrder, rest, state.pTapsY + std::ptrdiff_t{sectionTapsY} * section,
                        sectionOrder);
    const T y = loadElement(dst + len - 1);
    d[0] = add(add(add(product(s.b2, lastButOne), product(s.b1, last)), product(s.c2, loadElement(dst + len - 2))),
               product(s.c1, y));
    d[1] = add(product(s.b2, last), product(s.c2, y));
}

template <typename T>
void filterSections(const T* src, T* dst, int len, IirFields<T>* state)
{
    if (len <= tablesPayFrom * state->numBq) {
        for (int i = 0; i < len; ++i) {
            store(dst + i, filterOneCascade(*state, loadElement(src + i)));
        }
        return;
    }
    for (int section = 0; section < state->numBq; ++section) {
        filterSection(section == 0 ? src : dst, dst, len, *state, section);
    }
}

// -- Samples of another type
// -------------------------------------------------------------------------------------------

// Filters as the table's elements, in the second scratch area; only what the caller sees is rounded.
template <typename T, typename S, typename Filter>
void filterConverted(const S* src, S* dst, int len, IirFields<T>* state, int scaleFactor, Filter filter)
{
    samplesToTaps(src, state->pTmp2, len);
    filter(state->pTmp2, state->pTmp2, len, state);
    resultsToSamples(state->pTmp2, dst, len, scaleFactor);
}

template <typename T, typename S, typename Filter>
void filterOneConverted(const S* src, S* dst, int scaleFactor, Filter filter)
{
    T x;
    samplesToTaps(src, &x, 1);
    x = filter(x);
    resultsToSamples(&x, dst, 1, scaleFactor);
}

} // namespace

#define TARN_DEFINE_IIR_PASSES(TAIL, T)                                                     \
    void ownsIIRxAR##TAIL(const T* pSrc, T* pDst, int count, const T* pTapsX, int order)    \
    {                                                                                       \
        weighAllInputs<0>(pSrc, pDst, count, pTapsX, order);                                \
    }                                                                                       \
    void ownsIIRyAR##TAIL(const T* pValues, T* pDst, int count, const T* pTapsY, int order) \
    {                                                                                       \
        recurAny(pValues, pDst, count, pTapsY, order);                                      \
    }                                                                                       \
    void ownsIIRBQTwo##TAIL(const T* pSrc, T* pDst, IirFields<T>* pState, int section)      \
    {                                                                                       \
        filterTwo(pSrc, pDst, *pState, section);                                            \
    }
#define TARN_DEFINE_IIR_SECTION_PASSES(TAIL, T)                                  \
    void ownsIIRxBQ##TAIL(const T* pSrc, T* pDst, int count, const T* pTapsX)    \
    {                                                                            \
        weighAllInputs<sectionOrder>(pSrc, pDst, count, pTapsX, sectionOrder);   \
    }                                                                            \
    void ownsIIRyBQ##TAIL(const T* pValues, T* pDst, int count, const T* pTapsY) \
    {                                                                            \
        recur<sectionOrder>(pValues, pDst, count, pTapsY, sectionOrder);         \
    }

TARN_DEFINE_IIR_PASSES(_32f, Tarn32f)
TARN_DEFINE_IIR_PASSES(_32fc, Tarn32fc)
TARN_DEFINE_IIR_PASSES(_64f, Tarn64f)
TARN_DEFINE_IIR_PASSES(_64fc, Tarn64fc)
TARN_DEFINE_IIR_SECTION_PASSES(_32f, Tarn32f)
TARN_DEFINE_IIR_SECTION_PASSES(_64f, Tarn64f)

#define TARN_DEFINE_IIR_KERNELS(TAIL, T)                                                               \
    void ownsIIRAR##TAIL(const T* pSrc, T* pDst, int len, IirFields<T>* pState)                        \
    {                                                                                                  \
        filterOrder(pSrc, pDst, len, pState);                                                          \
    }                                                                                                  \
    void ownsIIRBQ##TAIL(const T* pSrc, T* pDst, int len, IirFields<T>* pState)                        \
    {                                                                                                  \
        filterSections(pSrc, pDst, len, pState);                                                       \
    }                                                                                                  \
    void ownsIIRAROne##TAIL(const T* pSrc, T* pDstVal, IirFields<T>* pState)                           \
    {                                                                                                  \
        store(pDstVal, filterOne(pState->pTaps, pState->pDlyLine, pState->dlyLen, loadElement(pSrc))); \
    }                                                                                                  \
    void ownsIIRBQOne##TAIL(const T* pSrc, T* pDstVal, IirFields<T>* pState)                           \
    {                                                                                                  \
        store(pDstVal, filterOneCascade(*pState, loadElement(pSrc)));                                  \
    }

TARN_DEFINE_IIR_KERNELS(_32f, Tarn32f)
TARN_DEFINE_IIR_KERNELS(_32fc, Tarn32fc)
TARN_DEFINE_IIR_KERNELS(_64f, Tarn64f)
TARN_DEFINE_IIR_KERNELS(_64fc, Tarn64fc)

// SCALE is the last parameter of those with a scale factor and FACTOR its value, 0 for the others.
#define TARN_DEFINE_IIR_CONVERTED(TAIL, T, S, FACTOR, ...)                                                         \
    void ownsIIRAR##TAIL(const S* pSrc, S* pDst, int len, IirFields<T>* pState __VA_ARGS__)                        \
    {                                                                                                              \
        filterConverted(pSrc, pDst, len, pState, FACTOR, filterOrder<T>);                                          \
    }                                                                                                              \
    void ownsIIRBQ##TAIL(const S* pSrc, S* pDst, int len, IirFields<T>* pState __VA_ARGS__)                        \
    {                                                                                                              \
        filterConverted(pSrc, pDst, len, pState, FACTOR, filterSections<T>);                                       \
    }                                                                                                              \
    void ownsIIRAROne##TAIL(const S* pSrc, S* pDstVal, IirFields<T>* pState __VA_ARGS__)                           \
    {                                                                                                              \
        filterOneConverted<T>(pSrc, pDstVal, FACTOR,                                                               \
                              [=](T x) { return filterOne(pState->pTaps, pState->pDlyLine, pState->dlyLen, x); }); \
    }                                                                                                              \
    void ownsIIRBQOne##TAIL(const S* pSrc, S* pDstVal, IirFields<T>* pState __VA_ARGS__)                           \
    {                                                                                                              \
        filterOneConverted<T>(pSrc, pDstVal, FACTOR, [=](T x) { return filterOneCascade(*pState, x); });           \
    }
#define TARN_WITH_FACTOR , int scaleFactor

TARN_DEFINE_IIR_CONVERTED(64f_32f, Tarn64f, Tarn32f, 0, )
TARN_DEFINE_IIR_CONVERTED(64fc_32fc, Tarn64fc, Tarn32fc, 0, )
TARN_DEFINE_IIR_CONVERTED(32f_16s, Tarn32f, Tarn16s, scaleFactor, TARN_WITH_FACTOR)
TARN_DEFINE_IIR_CONVERTED(32fc_16sc, Tarn32fc, Tarn16sc, scaleFactor, TARN_WITH_FACTOR)
TARN_DEFINE_IIR_CONVERTED(64f_32s, Tarn64f, Tarn32s, scaleFactor, TARN_WITH_FACTOR)
TARN_DEFINE_IIR_CONVERTED(64fc_32sc, Tarn64fc, Tarn32sc, scaleFactor, TARN_WITH_FACTOR)
TARN_DEFINE_IIR_CONVERTED(64f_16s, Tarn64f, Tarn16s, scaleFactor, TARN_WITH_FACTOR)
TARN_DEFINE_IIR_CONVERTED(64fc_16sc, Tarn64fc, Tarn16sc, scaleFactor, TARN_WITH_FACTOR)
