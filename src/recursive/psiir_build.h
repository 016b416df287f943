// Building IIR states: their memory, their taps, and the tables made of these.
#pragma once

#include "frame/bytes.h"
#include "levels/recursive/psiir_blocks.h"
#include "recursive/psiir_memory.h"
#include "recursive/psiir_rounding.h"

namespace tarn {

// -- Tables -----------------------------------------------------------------------------------------------------------

// In the precision that the tables are computed in.
template <typename T>
using Exact = std::conditional_t<isComplex<T>, Tarn64fc, Tarn64f>;

template <typename D, typename S>
inline D rounded(S x)
{
    if constexpr (isComplex<S>) {
        return {static_cast<Part<D>>(x.re), static_cast<Part<D>>(x.im)};
    } else {
        return static_cast<D>(x);
    }
}

// What the table of a section is computed in. Beside the unit circle a section's poles are sensitive to each of its
// weights, so these are rounded once.
template <typename T>
using Exacter = std::conditional_t<std::is_same_v<T, Tarn64f>, long double, Exact<T>>;

// Rows of the weights of past outputs, then of the inputs, on four outputs. Each column follows from the one in front:
// its first weight times the filter's own, and the weight of the output before.
template <typename T>
inline void writeLookAhead(const T* a, int order, T* table)
{
    using W = Exact<T>;
    for (int k = 0; k < order; ++k) {
        table[std::ptrdiff_t{ahead} * k] = negated(a[k]);
    }
    W first[ahead]; // h1, h2, h3: the weights of an input on the outputs behind it
    first[0] = rounded<W>(table[0]);
    for (int column = 1; column < ahead; ++column) {
        T* const to = table + column;
        const T* const from = to - 1;
        const W h = first[column - 1];
        for (int k = 0; k < order; ++k) {
            const W shifted = k + 1 < order ? rounded<W>(from[std::ptrdiff_t{ahead} * (k + 1)]) : W{};
            const W weight = add(product(h, rounded<W>(table[std::ptrdiff_t{ahead} * k])), shifted);
            to[std::ptrdiff_t{ahead} * k] = rounded<T>(weight);
        }
        first[column] = rounded<W>(to[0]);
    }
    T* row = table + std::ptrdiff_t{ahead} * order;
    for (int input = 0; input < ahead - 1; ++input, row += ahead) {
        for (int output = 0; output < ahead; ++output) {
            row[output] = output < input ? T{} : output == input ? one<T>() : rounded<T>(first[output - input - 1]);
        }
    }
}

template <typename T>
inline void writeOrderTables(IirFields<T>* state)
{
    const int order = state->dlyLen;
    Numerators<T>::write(state->pTaps, order + 1, state->pTapsX);
    state->isSingly = 0;
    if (order > 0) {
        const T* const a = state->pTaps + order + 1;
        writeLookAhead(a, order, state->pTapsY);
        state->isSingly = amplifiesRounding(state->pTapsY, order) ? 1 : 0;
    }
}

template <typename T>
inline void writeSectionTables(IirFields<T>* state)
{
    using W = Exacter<T>;
    const auto sumOf = [](W a, W b, W c, W d) { // a b + c d
        if constexpr (isComplex<T>) {
            return add(product(a, b), product(c, d));
        } else {
            return a * b + c * d;
        }
    };
    state->isSingly = 0;
    for (int section = 0; section < state->numBq; ++section) {
        const T* const taps = state->pTaps + std::ptrdiff_t{sectionTaps} * section;
        const T c1 = negated(taps[3]);
        const T c2 = negated(taps[4]);
        Numerators<T>::write(taps, sectionOrder + 1, state->pTapsX + std::ptrdiff_t{sectionTapsX<T>} * section);
        const W k1 = rounded<W>(c1);
        const W k2 = rounded<W>(c2);
        const W p = sumOf(k1, k1, k2, one<W>());
        const W q = sumOf(k2, k1, p, k1);
        const W r = sumOf(p, k2, q, k1);
        const W u = sumOf(k1, k2, W{}, W{});
        const W v = sumOf(k2, k2, k1, u);
        const W w = sumOf(k2, u, v, k1);
        const T h2 = rounded<T>(p);
        const T h3 = rounded<T>(q);
        const T zero{};
        const T rows[][ahead] = {{c1, h2, h3, rounded<T>(r)},
                                 {c2, rounded<T>(u), rounded<T>(v), rounded<T>(w)},
                                 {one<T>(), c1, h2, h3},
                                 {zero, one<T>(), c1, h2},
                                 {zero, zero, one<T>(), c1}};
        static_assert(sizeof rows == sizeof(T[sectionTapsY]));
        copy(&rows[0][0], state->pTapsY + std::ptrdiff_t{sectionTapsY} * section, sectionTapsY);
        if (state->pTapsOne != nullptr) {
            const T single[sectionTapsOne] = {taps[0], taps[1], taps[2], zero, c1, c2, zero, zero};
            copy(single, state->pTapsOne + std::ptrdiff_t{sectionTapsOne} * section, sectionTapsOne);
        }
    }
}

// -- Taps -------------------------------------------------------------------------------------------------------------

// Zero, or no number: neither above nor below 0. Of complex taps in both parts.
template <typename T>
inline bool isNothing(T x)
{
    if constexpr (isComplex<T>) {
        return isNothing(x.re) && isNothing(x.im);
    } else {
        return !(x < 0 || x > 0);
    }
}

template <typename T>
inline T reciprocal(T x)
{
    if constexpr (isComplex<T>) {
        // Of wider numbers, so that squares of single precision do not leave their range.
        const Tarn64f re = x.re;
        const Tarn64f im = x.im;
        const Tarn64f square = re * re + im * im;
        return {static_cast<Part<T>>(re / square), static_cast<Part<T>>(-im / square)};
    } else {
        return 1 / x;
    }
}

template <typename T>
inline TarnStatus storeOrderTaps(const T* pTaps, IirFields<T>* state)
{
    const std::ptrdiff_t order = state->dlyLen;
    const T a0 = loadElement(pTaps + order + 1);
    if (isNothing(a0)) {
        return tarnStsDivByZeroErr;
    }
    const T g = reciprocal(a0);
    for (std::ptrdiff_t i = 0; i <= order; ++i) {
        state->pTaps[i] = product(loadElement(pTaps + i), g);
    }
    for (std::ptrdiff_t i = 1; i <= order; ++i) {
        state->pTaps[order + i] = product(loadElement(pTaps + order + 1 + i), g);
    }
    writeOrderTables(state);
    return tarnStsNoErr;
}

// Taps of a section as a caller gives them, a0 included.
inline constexpr int givenSectionTaps = 6;

template <typename T>
inline TarnStatus storeSectionTaps(const T* pTaps, IirFields<T>* state)
{
    for (int section = 0; section < state->numBq; ++section) {
        const T* const given = pTaps + std::ptrdiff_t{givenSectionTaps} * section;
        const T a0 = loadElement(given + 3);
        if (isNothing(a0) || isNothing(loadElement(given))) {
            return tarnStsDivByZeroErr;
        }
        const T g = reciprocal(a0);
        T* const taps = state->pTaps + std::ptrdiff_t{sectionTaps} * section;
        for (int i = 0; i < 3; ++i) {
            taps[i] = product(loadElement(given + i), g);
        }
        taps[3] = product(loadElement(given + 4), g);
        taps[4] = product(loadElement(given + 5), g);
    }
    writeSectionTables(state);
    return tarnStsNoErr;
}

// -- States -----------------------------------------------------------------------------------------------------------

template <typename T>
inline void setDelayElements(const T* pDlyLine, IirFields<T>* state)
{
    if (pDlyLine == nullptr) {
        zeroFill(state->pDlyLine, state->dlyLen);
    } else {
        copy(pDlyLine, state->pDlyLine, state->dlyLen);
    }
}

// All of a state but its taps.
template <typename T>
inline void layOut(IirFields<T>* state, const IirForm& form, const T* pDlyLine, Tarn32u id)
{
    IirRegions<T>::of(form).place(state);
    state->idCtx = id;
    state->dlyLen = form.delay();
    state->numBq = form.sections;
    state->isAllocated = 0;
    state->isSingly = 0;
    if (state->dlyLen > 0) {
        setDelayElements(pDlyLine, state);
        if (form.sections == 0) {
            state->pDlyLine[state->dlyLen] = T{};
        }
    }
}

template <typename T>
inline TarnStatus storeTaps(const T* pTaps, IirFields<T>* state)
{
    return state->numBq == 0 ? storeOrderTaps(pTaps, state) : storeSectionTaps(pTaps, state);
}

// A state without taps; null if there is no memory.
template <typename T>
inline IirFields<T>* allocateFields(const IirForm& form, const T* pDlyLine, Tarn32u id)
{
    Owned<Tarn8u[]> block = allocate<Tarn8u>(IirRegions<T>::reported(form));
    if (!block) {
        return nullptr;
    }
    auto* const state = reinterpret_cast<IirFields<T>*>(block.release());
    layOut(state, form, pDlyLine, id);
    state->isAllocated = 1;
    return state;
}

// The builders of all states that compute in elements of type T. A state whose taps are refused is there all the same.
template <typename T>
inline TarnStatus buildAllocated(IirFields<T>** ppState, const T* pTaps, const IirForm& form, const T* pDlyLine,
                                 Tarn32u id)
{
    *ppState = allocateFields(form, pDlyLine, id);
    return *ppState == nullptr ? tarnStsNoMemErr : storeTaps(pTaps, *ppState);
}
template <typename T>
inline TarnStatus buildInBuffer(IirFields<T>** ppState, const T* pTaps, const IirForm& form, const T* pDlyLine,
                                Tarn8u* pBuffer, Tarn32u id)
{
    if (const TarnStatus status = checkBytes(IirRegions<T>::reported(form))) {
        return status;
    }
    *ppState = placeInBuffer<IirFields<T>>(pBuffer);
    layOut(*ppState, form, pDlyLine, id);
    return storeTaps(pTaps, *ppState);
}

} // namespace tarn
