// Chunks through one section of any order: what it starts with by single samples, the rest by the tables.
#pragma once

#include "levels/recursive/psiir_blocks.h"

namespace tarn {

// The accumulators that a block leaves behind, first what its last inputs have in them, then its last outputs. Both
// begin with the oldest.
template <typename T, typename S>
void enterInputs(const IirFields<T>& state, const S* end)
{
    const T* const b = state.pTaps + 1;
    for (int j = 0; j < state.dlyLen; ++j) {
        T sum = product(b[state.dlyLen - 1], sampleAs<T>(end - (state.dlyLen - j)));
        for (int m = state.dlyLen - j - 2; m >= 0; --m) {
            sum = add(sum, product(b[j + m], sampleAs<T>(end - 1 - m)));
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

template <typename T, typename S, typename Out>
void filterSingly(const S* src, Out out, int len, const IirFields<T>& state)
{
    for (int i = 0; i < len; ++i) {
        out.put(i, filterOne(state.pTaps, state.pDlyLine, state.dlyLen, sampleAs<T>(src + i)));
    }
}

template <typename T, typename S, typename Out>
void filterOrder(const S* src, Out out, int len, IirFields<T>* state)
{
    const int order = state->dlyLen;
    if (len <= tablesPayFrom * order || state->isSingly != 0) {
        filterSingly(src, out, len, *state);
        return;
    }
    weighAllSamples<0>(src, state->pTmp, len - order, state->pTapsX, order);
    filterSingly(src, out, order, *state);
    enterInputs(*state, src + len);
    recurAny(state->pTmp, out + order, len - order, state->pTapsY, order);
    enterOutputs(*state, out.values + len);
}

// -- Order 0 ----------------------------------------------------------------------------------------------------------

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
void gain(const T* src, Results<T> out, int len, const IirFields<T>& state)
{
    walk(out.values, len, Gain<T>{state.pTaps[0]}, src);
}
template <typename T, typename S>
void gain(const S* src, ConvertedResults<T, S> out, int len, const IirFields<T>& state)
{
    samplesToTaps(src, out.values, len);
    walk(out.values, len, Gain<T>{state.pTaps[0]}, out.values);
    out.convertAll(len);
}

} // namespace tarn
