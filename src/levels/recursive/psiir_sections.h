// Chunks through a cascade of sections of order two.
#pragma once

#include "levels/recursive/psiir_blocks.h"

namespace tarn {

// -- One section after the other --------------------------------------------------------------------------------------

// The first two outputs of a section, by its accumulators.
template <typename T>
struct FirstTwo {
    T y0, y1;

    FirstTwo(Section<T> s, const T* d, T s0, T s1)
        : y0(add(product(s.b0, s0), d[0])),
          y1(add(add(add(product(s.b1, s0), product(s.b0, s1)), d[1]), product(s.c1, y0)))
    {
    }
};

template <typename T, typename S, typename Out>
void filterTwo(const S* src, Out out, const IirFields<T>& state, int section)
{
    const T* const d = state.pDlyLine + std::ptrdiff_t{sectionOrder} * section;
    const FirstTwo<T> two(sectionOf(state, section), d, sampleAs<T>(src), sampleAs<T>(src + 1));
    out.put(0, two.y0);
    out.put(1, two.y1);
}

// The accumulators that a section leaves behind after its last two inputs and outputs.
template <typename T>
TARN_INLINE void enterLastTwo(Section<T> s, T* d, T x1, T x0, T y1, T y0)
{
    d[0] = add(add(add(product(s.b2, x1), product(s.b1, x0)), product(s.c2, y1)), product(s.c1, y0));
    d[1] = add(product(s.b2, x0), product(s.c2, y0));
}

template <typename T, typename S, typename Out>
void filterSection(const S* src, Out out, int len, const IirFields<T>& state, int section)
{
    const int rest = len - sectionOrder;
    weighAllSamples<sectionOrder>(src, state.pTmp, rest, state.pTapsX + std::ptrdiff_t{sectionTapsX<T>} * section,
                                  sectionOrder);
    const T x1 = sampleAs<T>(src + len - 2);
    const T x0 = sampleAs<T>(src + len - 1);
    filterTwo(src, out, state, section);
    recur<sectionOrder>(state.pTmp, out + sectionOrder, rest, state.pTapsY + std::ptrdiff_t{sectionTapsY} * section,
                        sectionOrder);
    enterLastTwo(sectionOf(state, section), state.pDlyLine + std::ptrdiff_t{sectionOrder} * section, x1, x0,
                 loadElement(out.values + len - 2), loadElement(out.values + len - 1));
}

// -- Sections side by side --------------------------------------------------------------------------------------------

// A group of a section's outputs waits for the group before it; a group of another section meanwhile does not. So up to
// four sections go through a chunk at once, each a group behind the one in front of it, whose outputs it takes out of
// registers. The sums are those of one section after the other.
inline constexpr int sectionsAtOnce = 4;

template <Float T>
struct SideBySide {
    using G = Group<T>;

    // Of the inputs of section k, which are the outputs of section k - 1, the last group and the one before it.
    G last[sectionsAtOnce + 1];
    G before[sectionsAtOnce];

    // The next group of section k.
    TARN_INLINE G next(int k, G inputs, const T* tapsX, const T* tapsY)
    {
        const G earlier = before[k];
        const auto sum = (Numerators<T>::times(tapsX, inputs) +
                          Numerators<T>::times(tapsX + Numerators<T>::elements, slide<ahead - 1>(earlier, inputs))) +
                         Numerators<T>::times(tapsX + 2 * Numerators<T>::elements, slide<ahead - 2>(earlier, inputs));
        before[k] = inputs;
        return withRecent<sectionOrder>(withInputs<T>(sum.total(), tapsY + ahead * sectionOrder), last[k + 1], tapsY)
            .total();
    }
};

template <int count, Float T>
TARN_INLINE void stepAll(SideBySide<T>& sections, const T* src, T* dst, const T* tapsX, const T* tapsY)
{
    repeat<count>([&](auto i) __attribute__((always_inline)) {
        constexpr int k = count - 1 - i;
        const auto inputs = k == 0 ? loadGroup(src) : sections.last[k];
        sections.last[k + 1] = sections.next(k, inputs, tapsX + sectionTapsX<T> * k, tapsY + sectionTapsY * k);
    });
    storeGroup(dst, sections.last[count]);
}

// A step of the sections from `first` up to `end`, when some have not begun, or have come to the end.
template <Float T>
void stepSome(SideBySide<T>& sections, int first, int end, const T* src, const T* tapsX, const T* tapsY)
{
    for (int k = end - 1; k >= first; --k) {
        const auto inputs = k == 0 ? loadGroup(src) : sections.last[k];
        sections.last[k + 1] = sections.next(k, inputs, tapsX + sectionTapsX<T> * k, tapsY + sectionTapsY * k);
    }
}

template <int count, Float T>
void filterSideBySide(const T* src, T* dst, int len, const IirFields<T>& state, int section)
{
    const T* const tapsX = state.pTapsX + std::ptrdiff_t{sectionTapsX<T>} * section;
    const T* const tapsY = state.pTapsY + std::ptrdiff_t{sectionTapsY} * section;
    T* const lines = state.pDlyLine + std::ptrdiff_t{sectionOrder} * section;
    SideBySide<T> sections;
    alignas(registerBytes) T edge[ahead] = {T{}, T{}, loadElement(src), loadElement(src + 1)};
    sections.before[0] = loadAlignedGroup(edge);
    for (int k = 0; k < count; ++k) {
        const FirstTwo<T> two(sectionOf(state, section + k), lines + sectionOrder * k, edge[2], edge[3]);
        edge[2] = two.y0;
        edge[3] = two.y1;
        sections.last[k + 1] = loadAlignedGroup(edge);
        if (k + 1 < count) {
            sections.before[k + 1] = sections.last[k + 1];
        }
    }

    const int groups = (len - sectionOrder) / ahead;
    const T* in = src + sectionOrder;
    T* out = dst + sectionOrder;
    int t = 0;
    for (; t < count - 1; ++t, in += ahead) {
        stepSome(sections, 0, t + 1, in, tapsX, tapsY);
    }
    SideBySide<T> steady = sections;
    TARN_ROLLED
    for (; t < groups; ++t, in += ahead, out += ahead) {
        stepAll<count>(steady, in, out, tapsX, tapsY);
    }
    sections = steady;
    for (int first = 1; first < count; ++first, out += ahead) {
        stepSome(sections, first, count, in, tapsX, tapsY);
        storeGroup(out, sections.last[count]);
    }
    store(dst, edge[2]);
    store(dst + 1, edge[3]);

    // What is left over goes singly.
    const int rest = (len - sectionOrder) % ahead;
    T tail[ahead];
    for (int i = 0; i < rest; ++i) {
        tail[i] = loadElement(in + i);
    }
    for (int k = 0; k < count; ++k) {
        const Section<T> s = sectionOf(state, section + k);
        T x[ahead], y[ahead];
        storeGroup(x, sections.before[k]);
        storeGroup(y, sections.last[k + 1]);
        T x1 = x[2], x0 = x[3], y1 = y[2], y0 = y[3];
        for (int i = 0; i < rest; ++i) {
            const T w = tail[i];
            const T q = add(add(product(s.b0, w), product(s.b1, x0)), product(s.b2, x1));
            tail[i] = add(add(q, product(s.c1, y0)), product(s.c2, y1));
            x1 = x0;
            x0 = w;
            y1 = y0;
            y0 = tail[i];
        }
        enterLastTwo(s, lines + sectionOrder * k, x1, x0, y1, y0);
    }
    for (int i = 0; i < rest; ++i) {
        store(out + i, tail[i]);
    }
}

// -- Cascades ---------------------------------------------------------------------------------------------------------

template <typename T>
void filterCascade(const T* src, T* dst, int len, const IirFields<T>& state)
{
    if constexpr (isComplex<T>) {
        // Sections of complex taps have enough to do between two groups.
        for (int section = 0; section < state.numBq; ++section) {
            filterSection(section == 0 ? src : dst, Results<T>{dst}, len, state, section);
        }
    } else {
        const int batches = (state.numBq + sectionsAtOnce - 1) / sectionsAtOnce;
        int section = 0;
        for (int batch = 0; batch < batches; ++batch) {
            const int left = state.numBq - section;
            const int count = (left + batches - batch - 1) / (batches - batch);
            switch (count) {
            case 1:
                filterSection(src, Results<T>{dst}, len, state, section);
                break;
            case 2:
                filterSideBySide<2>(src, dst, len, state, section);
                break;
            case 3:
                filterSideBySide<3>(src, dst, len, state, section);
                break;
            default:
                filterSideBySide<4>(src, dst, len, state, section);
                break;
            }
            section += count;
            src = dst;
        }
    }
}

} // namespace tarn
