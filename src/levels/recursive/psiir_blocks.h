// Recursive filters, by samples and by blocks. A block is split into what needs no history and a recursion that makes
// four outputs at a time.
#pragma once

#include "frame/simd_neighbours.h"
#include "frame/walk.h"
#include "levels/recursive/psiir_samples.h"
#include "levels/recursive/psiir_state.h"
#include "levels/recursive/psiir_tables.h"

#include <algorithm>

namespace tarn {

// -- Single samples: the transposed direct form II --------------------------------------------------------------------

// b x - a y + d, a step of an accumulator.
template <typename T>
TARN_INLINE T accumulated(T b, T x, T a, T y, T d)
{
    return add(sub(product(b, x), product(a, y)), d);
}

// An accumulator more, which is always 0, spares the last one a step of its own.
template <typename T>
TARN_INLINE T filterOne(const T* taps, T* d, int order, T x)
{
    if (order < 1) {
        return product(x, taps[0]);
    }
    const T y = add(product(taps[0], x), d[0]);
    const T* const b = taps + 1;
    const T* const a = b + order;
    for (int j = 0; j < order; ++j) {
        d[j] = accumulated(b[j], x, a[j], y, d[j + 1]);
    }
    return y;
}

// What a section of two takes of its tables: c1 and c2 are the first weights of the past outputs.
template <typename T>
struct Section {
    T b0, b1, b2, c1, c2;
};

inline constexpr int sectionTaps = 5;
inline constexpr int sectionOrder = 2;
template <typename T>
inline constexpr int sectionTapsX = (sectionOrder + 1) * Numerators<T>::elements;
inline constexpr int sectionTapsY = ahead * (sectionOrder + ahead - 1);
inline constexpr int sectionTapsOne = 8;

template <typename T>
TARN_INLINE Section<T> sectionOf(const IirFields<T>& state, int section)
{
    const T* const taps = state.pTaps + std::ptrdiff_t{sectionTaps} * section;
    const T* const rows = state.pTapsY + std::ptrdiff_t{sectionTapsY} * section;
    return {taps[0], taps[1], taps[2], rows[0], rows[ahead]};
}

template <typename T>
TARN_INLINE T filterOneSection(Section<T> s, T* d, T w)
{
    const T y = add(product(s.b0, w), d[0]);
    d[0] = add(add(product(s.b1, w), product(s.c1, y)), d[1]);
    d[1] = add(product(s.b2, w), product(s.c2, y));
    return y;
}

template <typename T>
TARN_INLINE T filterOneCascade(const IirFields<T>& state, T x)
{
    T* d = state.pDlyLine;
    for (int i = 0; i < state.numBq; ++i, d += sectionOrder) {
        x = filterOneSection(sectionOf(state, i), d, x);
    }
    return x;
}

// -- What needs no history: x'[i] = sum of b[k] s[i + order - k] ------------------------------------------------------

// Elements whose sums are computed side by side: as many as leave a register of a 32-bit program for each of them, and
// enough for their additions not to wait for one another.
template <typename T>
inline constexpr int runRegisters = isComplex<T> ? 2 : 4;
template <typename T>
inline constexpr int runParts = runRegisters<T>* unitBytes / static_cast<int>(sizeof(Part<T>));
template <typename T>
inline constexpr int runElements = runParts<T>* static_cast<int>(sizeof(Part<T>)) / static_cast<int>(sizeof(T));

// `src` is where the first element's input of tap 0 stands. `fixed` is the order if it is known, 0 otherwise.
template <int fixed, int parts, typename T>
TARN_INLINE void weighInputs(const T* src, T* dst, const T* table, int order)
{
    constexpr int unit = Numerators<T>::elements;
    const auto load = [](const T* p) { return loadPack<parts>(reinterpret_cast<const Part<T>*>(p)); };
    auto sum = Numerators<T>::times(table, load(src));
    if constexpr (fixed > 0) {
        repeat<fixed>([&](auto k) { sum = sum + Numerators<T>::times(table + unit * (k + 1), load(src - (k + 1))); });
    } else {
        TARN_ROLLED
        for (int k = order; k > 0; --k) {
            table += unit;
            src -= 1;
            settleAddress(table);
            settleAddress(src);
            sum = sum + Numerators<T>::times(table, load(src));
        }
    }
    store(reinterpret_cast<Part<T>*>(dst), sum.total());
}

template <typename T>
TARN_INLINE T tapOf(const T* table, int k)
{
    const auto* const unit = reinterpret_cast<const Part<T>*>(table) + std::ptrdiff_t{Numerators<T>::width} * k;
    if constexpr (isComplex<T>) {
        return {unit[0], unit[Numerators<T>::copies]};
    } else {
        return unit[0];
    }
}

template <int fixed, typename T>
void weighAllInputs(const T* src, T* dst, int count, const T* table, int anyOrder)
{
    constexpr int run = runElements<T>;
    const int order = fixed > 0 ? fixed : anyOrder;
    int i = 0;
    for (; i <= count - run; i += run) {
        weighInputs<fixed, runParts<T>>(src + i + order, dst + i, table, order);
    }
    if constexpr (run > ahead) {
        for (; i <= count - ahead; i += ahead) {
            weighInputs<fixed, groupParts<T>>(src + i + order, dst + i, table, order);
        }
    }
    for (; i < count; ++i) {
        T sum = product(tapOf(table, 0), loadElement(src + i + order));
        for (int k = 1; k <= order; ++k) {
            sum = add(sum, product(tapOf(table, k), loadElement(src + i + order - k)));
        }
        store(dst + i, sum);
    }
}

// Samples of another type go through a window, where each is converted once. No block is short enough for an order of
// half the window: blocks are longer than four times their order, and not longer than a chunk.
inline constexpr int windowSamples = chunkSamples / 2;

template <int fixed, typename T, typename S>
void weighAllSamples(const S* src, T* dst, int count, const T* table, int order)
{
    if constexpr (std::is_same_v<T, S>) {
        weighAllInputs<fixed>(src, dst, count, table, order);
    } else {
        alignas(registerBytes) T window[windowSamples];
        const int step = windowSamples - order;
        for (int i = 0; i < count; i += step) {
            const int n = std::min(step, count - i);
            samplesToTaps(src + i, window, n + order);
            weighAllInputs<fixed>(window, dst + i, n, table, order);
        }
    }
}

// -- The recursion ----------------------------------------------------------------------------------------------------

// What the group before has a share in: up to four outputs, joined so that few additions wait for one another.
template <int recent, typename T>
TARN_INLINE WeightedSum<T> withRecent(WeightedSum<T> sum, Group<T> before, const T* rows)
{
    using Sum = WeightedSum<T>;
    const auto first = Sum::template weighted<ahead - 1>(loadAlignedGroup(rows), before);
    if constexpr (recent == 1) {
        return sum + first;
    } else {
        const auto newest = first + Sum::template weighted<ahead - 2>(loadAlignedGroup(rows + ahead), before);
        if constexpr (recent == 2) {
            return sum + newest;
        } else {
            const auto third = Sum::template weighted<ahead - 3>(loadAlignedGroup(rows + 2 * ahead), before);
            if constexpr (recent == 3) {
                return (sum + third) + newest;
            } else {
                return (sum + (third + Sum::template weighted<ahead - 4>(loadAlignedGroup(rows + 3 * ahead), before))) +
                       newest;
            }
        }
    }
}

// What outputs further back have a share in, a group of them at a time; `dst` is where the next output stands.
template <typename T>
TARN_INLINE WeightedSum<T> withFar(WeightedSum<T> sum, const T* dst, const T* rows, int order)
{
    using Sum = WeightedSum<T>;
    const T* row = rows + ahead * ahead;
    const T* past = dst - ahead;
    int k = order - ahead;
    TARN_ROLLED
    for (; k >= ahead; k -= ahead) {
        past -= ahead;
        settleAddress(row);
        settleAddress(past);
        const Group<T> group = loadGroup(past);
        repeat<ahead>([&](auto j) __attribute__((always_inline)) {
            sum = sum + Sum::template weighted<ahead - 1 - j>(loadAlignedGroup(row + ahead * j), group);
        });
        row += ahead * ahead;
    }
    TARN_ROLLED
    for (; k > 0; --k) {
        past -= 1;
        settleAddress(row);
        settleAddress(past);
        sum = sum + Sum::weighted(loadAlignedGroup(row), past);
        row += ahead;
    }
    return sum;
}

// The inputs' share in a group of outputs: rows of an order's table that stand behind the past outputs'.
template <typename T>
TARN_INLINE WeightedSum<T> withInputs(Group<T> q, const T* rows)
{
    using Sum = WeightedSum<T>;
    return (Sum::template weighted<0>(loadAlignedGroup(rows), q) +
            Sum::template weighted<1>(loadAlignedGroup(rows + ahead), q)) +
           (Sum::template weighted<2>(loadAlignedGroup(rows + 2 * ahead), q) + Sum::of(lastAlone<T>(q)));
}

// out.values[-order .. -1] are the outputs before. `fixed` is the order if it is up to four, 0 otherwise.
template <int fixed, typename T, typename Out>
void recur(const T* values, Out out, int count, const T* table, int anyOrder)
{
    const int order = fixed > 0 ? fixed : anyOrder;
    constexpr int recent = fixed > 0 ? fixed : ahead;
    const T* const inputRows = table + std::ptrdiff_t{ahead} * order;

    T history[ahead] = {};
    for (int k = 1; k <= recent; ++k) {
        history[ahead - k] = loadElement(out.values - k);
    }
    Group<T> before = loadGroup(history);
    int i = 0;
    for (; i <= count - ahead; i += ahead) {
        auto sum = withInputs(loadGroup(values + i), inputRows);
        if constexpr (fixed == 0) {
            sum = withFar(sum, out.values + i, table, order);
        }
        before = withRecent<recent>(sum, before, table).total();
        out.put(i, before);
    }
    for (; i < count; ++i) {
        T y = loadElement(values + i);
        for (int k = 1; k <= order; ++k) {
            y = add(y, product(table[std::ptrdiff_t{ahead} * (k - 1)], loadElement(out.values + i - k)));
        }
        out.put(i, y);
    }
}

template <typename T, typename Out>
void recurAny(const T* values, Out out, int count, const T* table, int order)
{
    switch (order) {
    case 1:
        return recur<1>(values, out, count, table, order);
    case 2:
        return recur<2>(values, out, count, table, order);
    case 3:
        return recur<3>(values, out, count, table, order);
    case 4:
        return recur<4>(values, out, count, table, order);
    default:
        return recur<0>(values, out, count, table, order);
    }
}

} // namespace tarn
