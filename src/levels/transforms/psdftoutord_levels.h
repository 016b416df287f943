// The levels of transforms out of order. Each joins p parts of every block by a butterfly, element by element, with one
// row of factors for the whole block; the inverse, of exchanged parts, multiplies behind the butterflies.
#pragma once

#include "levels/transforms/psdftfact_arrays.h"
#include "levels/transforms/psdftfact_tables.h"

namespace tarn::dft {

// -- Innermost transforms --------------------------------------------------------------------------------------------

template <int q, typename In, typename Out>
inline void columnsOfPoints(In src, Out dst, int columns)
{
    using T = typename Out::Real;
    const auto column = [&]<typename X>(int j, auto load) __attribute__((always_inline))
    {
        Points<X, q> x;
        repeat<q>([&](auto i) { x[i] = load(std::ptrdiff_t{i} * columns + j); });
        x = transformPoints(x);
        repeat<q>([&](auto k) { dst.put(std::ptrdiff_t{k} * columns + j, x[k]); });
    };
    int j = 0;
    for (; j + blockLanes<T> <= columns; j += blockLanes<T>) {
        column.template operator()<BlockPart<T>>(j, [&](std::ptrdiff_t at) { return src.neighbours(at); });
    }
    for (; j < columns; ++j) {
        column.template operator()<T>(j, [&](std::ptrdiff_t at) { return src.element(at); });
    }
}

// Any odd q; scratch holds 2 q - 2 reals.
template <typename In, typename Out, typename T>
inline void columnsOfAny(In src, Out dst, int q, int columns, const PairOf<T>* dirTab, T* scratch)
{
    const auto column = [&](int j, auto* pairs, auto load) __attribute__((always_inline))
    {
        using X = std::remove_cvref_t<decltype(pairs[0].re)>;
        transformOdd<X>(
            q, asParts(dirTab), pairs, [&](int i) { return load(std::ptrdiff_t{i} * columns + j); },
            [&](int k, auto y) { dst.put(std::ptrdiff_t{k} * columns + j, y); });
    };
    Lanes<T> pairs[largestDirect];
    int j = 0;
    for (; j + blockLanes<T> <= columns; j += blockLanes<T>) {
        column(j, static_cast<Lanes<T>*>(pairs), [&](std::ptrdiff_t at) { return src.neighbours(at); });
    }
    for (; j < columns; ++j) {
        column(j, reinterpret_cast<Complex<T>*>(scratch), [&](std::ptrdiff_t at) { return src.element(at); });
    }
}

// -- Blocks ----------------------------------------------------------------------------------------------------------

// The points of a butterfly, multiplied before or behind it.
template <int p, bool forward, typename X>
TARN_INLINE Points<X, p> joined(Points<X, p> x, const Points<X, p - 1>& factors)
{
    const auto multiply = [&] { repeat<p - 1>([&](auto j) { x[j + 1] = times(x[j + 1], factors[j]); }); };
    if constexpr (forward) {
        multiply();
    }
    x = transformPoints(x);
    if constexpr (!forward) {
        multiply();
    }
    return x;
}

// Parts that are shorter than a vector: so many neighbouring blocks in the lanes.
template <int p, bool forward, typename In, typename Out, typename T>
inline void shortBlocks(In src, Out dst, int len, int first, int count, const T* twd)
{
    constexpr int width = blockLanes<T>;
    const std::ptrdiff_t size = std::ptrdiff_t{p} * len;
    const auto places = spaced<T>(size);
    const int end = first + count;
    int b = first;
    for (; b + width <= end; b += width) {
        const auto factors = twiddleColumns<p - 1>(twd + std::ptrdiff_t{2} * (p - 1) * b);
        for (std::ptrdiff_t at = b * size; at < b * size + len; ++at) {
            Points<BlockPart<T>, p> x;
            repeat<p>([&](auto j) { x[j] = (src + (at + j * len)).gathered(places); });
            x = joined<p, forward>(x, factors);
            repeat<p>([&](auto j) { dst.scatter(at + j * len, size, x[j]); });
        }
    }
    for (; b < end; ++b) {
        const auto factors = twiddlesOf<p - 1>(twd + std::ptrdiff_t{2} * (p - 1) * b);
        for (std::ptrdiff_t at = b * size; at < b * size + len; ++at) {
            Points<T, p> x;
            repeat<p>([&](auto j) { x[j] = src.element(at + j * len); });
            x = joined<p, forward>(x, factors);
            repeat<p>([&](auto j) { dst.put(at + j * len, x[j]); });
        }
    }
}

template <int p, bool forward, typename In, typename Out, typename T>
inline void blocksOf(In src, Out dst, int len, int first, int count, const T* twd)
{
    constexpr int width = blockLanes<T>;
    if (len < width) {
        shortBlocks<p, forward>(src, dst, len, first, count, twd);
        return;
    }
    const std::ptrdiff_t size = std::ptrdiff_t{p} * len;
    for (int b = first; b < first + count; ++b) {
        const auto single = twiddlesOf<p - 1>(twd + std::ptrdiff_t{2} * (p - 1) * b);
        Points<BlockPart<T>, p - 1> factors;
        repeat<p - 1>([&](auto j) {
            factors[j] = {splat<BlockPart<T>>(single[j].re), splat<BlockPart<T>>(single[j].im)};
        });
        std::ptrdiff_t at = b * size;
        const std::ptrdiff_t end = at + len;
        for (; at + width <= end; at += width) {
            Points<BlockPart<T>, p> x;
            repeat<p>([&](auto j) { x[j] = src.neighbours(at + j * len); });
            x = joined<p, forward>(x, factors);
            repeat<p>([&](auto j) { dst.put(at + j * len, x[j]); });
        }
        for (; at < end; ++at) {
            Points<T, p> x;
            repeat<p>([&](auto j) { x[j] = src.element(at + j * len); });
            x = joined<p, forward>(x, single);
            repeat<p>([&](auto j) { dst.put(at + j * len, x[j]); });
        }
    }
}

// Any odd p; scratch holds 2 p - 2 reals.
template <bool forward, typename In, typename Out, typename T>
inline void blocksOfAny(In src, Out dst, int p, int len, int first, int count, const PairOf<T>* dirTab,
                        const PairOf<T>* twdTab, T* scratch)
{
    constexpr int width = blockLanes<T>;
    Lanes<T> pairs[largestDirect];
    for (int b = first; b < first + count; ++b) {
        const PairArray<const T, false> row{asParts(twdTab + std::ptrdiff_t{b} * p)};
        const auto butterfly = [&](std::ptrdiff_t at, auto* sums, auto load) __attribute__((always_inline))
        {
            using X = std::remove_cvref_t<decltype(sums[0].re)>;
            const auto rotated = [&](bool here, int j, Complex<X> x) {
                if (!here || j == 0) {
                    return x;
                }
                const Complex<T> w = row.element(j);
                return times(x, Complex<X>{splat<X>(w.re), splat<X>(w.im)});
            };
            transformOdd<X>(
                p, asParts(dirTab), sums,
                [&](int j) { return rotated(forward, j, load(at + std::ptrdiff_t{j} * len)); },
                [&](int j, Complex<X> y) { dst.put(at + std::ptrdiff_t{j} * len, rotated(!forward, j, y)); });
        };
        std::ptrdiff_t at = std::ptrdiff_t{b} * p * len;
        const std::ptrdiff_t end = at + len;
        for (; at + width <= end; at += width) {
            butterfly(at, static_cast<Lanes<T>*>(pairs), [&](std::ptrdiff_t i) { return src.neighbours(i); });
        }
        for (; at < end; ++at) {
            butterfly(at, reinterpret_cast<Complex<T>*>(scratch), [&](std::ptrdiff_t i) { return src.element(i); });
        }
    }
}

// -- The way through the levels --------------------------------------------------------------------------------------

// Forward from the innermost level out, in `dst` after the first; the inverse back. Long blocks are finished one after
// the other.
template <bool forward, typename T>
class OutOfOrder {
public:
    using In = PairArray<const T, !forward>;
    using Out = PairArray<T, !forward>;

    OutOfOrder(const Spec<T>& spec, T* scratch) : spec(spec), scratch(scratch) {}

    void run(In src, Out dst) const
    {
        const int last = spec.lastFactor;
        const int q = spec.factors[last].remaining;
        const int columns = sizeOf(spec.factors[0]) / q;
        if constexpr (forward) {
            innermost(src, dst, q, columns);
        }
        const bool isDeep = last >= 2 && sizeOf(spec.factors[0]) >= depthFirstFrom<T>;
        if (isDeep) {
            for (int j = 0; j < q; ++j) {
                step(src, dst, columns, j, last);
            }
        } else if constexpr (forward) {
            for (int i = last; i >= 0; --i) {
                level(In{dst.p}, dst, i, 0, spec.factors[i].remaining);
            }
        } else {
            for (int i = 0; i <= last; ++i) {
                level(i == 0 ? src : In{dst.p}, dst, i, 0, spec.factors[i].remaining);
            }
        }
        if constexpr (!forward) {
            innermost(In{dst.p}, dst, q, columns);
        }
    }

private:
    // A block of `length` elements, from this level on.
    void step(In src, Out dst, int length, int block, int top) const
    {
        const bool goesOn = length >= depthFirstFrom<T> && top > 1;
        const int bottom = goesOn ? top : 0;
        const auto deeper = [&] {
            const int p = spec.factors[top].factor;
            for (int j = 0; j < p && goesOn; ++j) {
                step(src, dst, length / p, block * p + j, top - 1);
            }
        };
        if constexpr (forward) {
            for (int i = top; i >= bottom; --i) {
                group(In{dst.p}, dst, i, block);
            }
            deeper();
        } else {
            deeper();
            for (int i = bottom; i <= top; ++i) {
                group(i == 0 ? src : In{dst.p}, dst, i, block);
            }
        }
    }

    void group(In src, Out dst, int i, int block) const
    {
        const int count = spec.factors[i].groupCount;
        level(src, dst, i, block * count, count);
    }

    void level(In src, Out dst, int i, int first, int count) const
    {
        const Factor& record = spec.factors[i];
        const auto* const twd = static_cast<const PairOf<T>*>(record.twdTab);
        const int len = record.before;
        switch (record.factor) {
        case 2:
            return blocksOf<2, forward>(src, dst, len, first, count, asParts(twd));
        case 3:
            return blocksOf<3, forward>(src, dst, len, first, count, asParts(twd));
        case 4:
            return blocksOf<4, forward>(src, dst, len, first, count, asParts(twd));
        case 5:
            return blocksOf<5, forward>(src, dst, len, first, count, asParts(twd));
        default:
            return blocksOfAny<forward>(src, dst, record.factor, len, first, count,
                                        static_cast<const PairOf<T>*>(record.dirTab), twd, scratch);
        }
    }

    void innermost(In src, Out dst, int q, int columns) const
    {
        if (q == 3) {
            columnsOfPoints<3>(src, dst, columns);
        } else if (q == 5) {
            columnsOfPoints<5>(src, dst, columns);
        } else {
            columnsOfAny(src, dst, q, columns, static_cast<const PairOf<T>*>(spec.factors[spec.lastFactor + 1].dirTab),
                         scratch);
        }
    }

    const Spec<T>& spec;
    T* scratch;
};

} // namespace tarn::dft

#define TARN_DFT_DEFINE_BLOCKS(T, DIRECTION, FORWARD, P)                                                              \
    void tarns_cDftOutOrd##DIRECTION##_Fact##P##_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int len, int first, \
                                                        int count, const Tarn##T##c* twdTab)                          \
    {                                                                                                                 \
        using Levels = tarn::dft::OutOfOrder<FORWARD, Tarn##T>;                                                       \
        tarn::dft::blocksOf<P, FORWARD>(Levels::In{asParts(pSrc)}, Levels::Out{asParts(pDst)}, len, first, count,     \
                                        asParts(twdTab));                                                             \
    }
#define TARN_DFT_DEFINE_COLUMNS(T, DIRECTION, FORWARD, Q)                                                       \
    void tarns_cDftOutOrd##DIRECTION##_Prime##Q##_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int columns) \
    {                                                                                                           \
        using Levels = tarn::dft::OutOfOrder<FORWARD, Tarn##T>;                                                 \
        tarn::dft::columnsOfPoints<Q>(Levels::In{asParts(pSrc)}, Levels::Out{asParts(pDst)}, columns);          \
    }
#define TARN_DFT_DEFINE_OUT_OF_ORDER(T, DIRECTION, FORWARD)                                                          \
    void tarns_cDft##DIRECTION##_OutOrd_##T##c(const tarn::dft::Spec<Tarn##T>* pSpec, const Tarn##T##c* pSrc,        \
                                               Tarn##T##c* pDst, Tarn##T* work)                                      \
    {                                                                                                                \
        using Levels = tarn::dft::OutOfOrder<FORWARD, Tarn##T>;                                                      \
        Levels(*pSpec, work).run(Levels::In{asParts(pSrc)}, Levels::Out{asParts(pDst)});                             \
    }                                                                                                                \
    TARN_DFT_DEFINE_COLUMNS(T, DIRECTION, FORWARD, 3)                                                                \
    TARN_DFT_DEFINE_COLUMNS(T, DIRECTION, FORWARD, 5)                                                                \
    void tarns_cDftOutOrd##DIRECTION##_Prime_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int q, int columns,    \
                                                    const Tarn##T##c* dirTab, Tarn##T* scratch)                      \
    {                                                                                                                \
        using Levels = tarn::dft::OutOfOrder<FORWARD, Tarn##T>;                                                      \
        tarn::dft::columnsOfAny(Levels::In{asParts(pSrc)}, Levels::Out{asParts(pDst)}, q, columns, dirTab, scratch); \
    }                                                                                                                \
    TARN_DFT_DEFINE_BLOCKS(T, DIRECTION, FORWARD, 2)                                                                 \
    TARN_DFT_DEFINE_BLOCKS(T, DIRECTION, FORWARD, 3)                                                                 \
    TARN_DFT_DEFINE_BLOCKS(T, DIRECTION, FORWARD, 4)                                                                 \
    TARN_DFT_DEFINE_BLOCKS(T, DIRECTION, FORWARD, 5)                                                                 \
    void tarns_cDftOutOrd##DIRECTION##_Fact_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int p, int len,         \
                                                   int first, int count, const Tarn##T##c* dirTab,                   \
                                                   const Tarn##T##c* twdTab, Tarn##T* scratch)                       \
    {                                                                                                                \
        using Levels = tarn::dft::OutOfOrder<FORWARD, Tarn##T>;                                                      \
        tarn::dft::blocksOfAny<FORWARD>(Levels::In{asParts(pSrc)}, Levels::Out{asParts(pDst)}, p, len, first, count, \
                                        dirTab, twdTab, scratch);                                                    \
    }
