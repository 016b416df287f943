// The levels of mixed-radix transforms of real data of odd length. A spectrum of L points is L reals in Perm order,
// R[0], R[1], I[1], ..., in which the pair of slot k begins at 2 k - 1.
#pragma once

#include "levels/transforms/psdftfact_levels.h"

namespace tarn::dft {

template <typename X, int count>
using Reals = std::array<X, static_cast<std::size_t>(count)>;

// Real points to Perm order, and back to so many times the points.
template <typename X>
TARN_INLINE Reals<X, 3> toPerm(const Reals<X, 3>& x)
{
    using T = Element<X>;
    const X sum = add(x[1], x[2]);
    return {add(x[0], sum), add(x[0], mul(sum, splat<X>(C_1_3<T>))), mul(sub(x[1], x[2]), splat<X>(S_1_3<T>))};
}
template <typename X>
TARN_INLINE Reals<X, 3> fromPerm(const Reals<X, 3>& y)
{
    using T = Element<X>;
    const X re = add(y[1], y[1]);
    const X im = mul(add(y[2], y[2]), splat<X>(S_1_3<T>));
    const X middle = add(y[0], mul(re, splat<X>(C_1_3<T>)));
    return {add(y[0], re), add(middle, im), sub(middle, im)};
}

template <typename X>
TARN_INLINE X twoTerms(X a, Element<X> factorOfA, X b, Element<X> factorOfB)
{
    return add(mul(a, splat<X>(factorOfA)), mul(b, splat<X>(factorOfB)));
}
template <typename X>
TARN_INLINE Reals<X, 5> toPerm(const Reals<X, 5>& x)
{
    using T = Element<X>;
    const X s1 = add(x[1], x[4]);
    const X d1 = sub(x[1], x[4]);
    const X s2 = add(x[2], x[3]);
    const X d2 = sub(x[2], x[3]);
    return {add(x[0], add(s1, s2)), add(x[0], twoTerms(s1, C_1_5<T>, s2, C_2_5<T>)),
            twoTerms(d1, S_1_5<T>, d2, S_2_5<T>), add(x[0], twoTerms(s1, C_2_5<T>, s2, C_1_5<T>)),
            twoTerms(d1, S_2_5<T>, d2, -S_1_5<T>)};
}
template <typename X>
TARN_INLINE Reals<X, 5> fromPerm(const Reals<X, 5>& y)
{
    using T = Element<X>;
    const X r1 = add(y[1], y[1]);
    const X i1 = add(y[2], y[2]);
    const X r2 = add(y[3], y[3]);
    const X i2 = add(y[4], y[4]);
    const X a1 = add(y[0], twoTerms(r1, C_1_5<T>, r2, C_2_5<T>));
    const X b1 = twoTerms(i1, S_1_5<T>, i2, S_2_5<T>);
    const X a2 = add(y[0], twoTerms(r1, C_2_5<T>, r2, C_1_5<T>));
    const X b2 = twoTerms(i1, S_2_5<T>, i2, -S_1_5<T>);
    return {add(y[0], add(r1, r2)), add(a1, b1), add(a2, b2), sub(a2, b2), sub(a1, b1)};
}

// -- Innermost transforms --------------------------------------------------------------------------------------------

template <int q, typename T>
inline void leafToPerm(const T* src, std::ptrdiff_t stride, T* dst, int count, int blocks, const int* perm)
{
    const std::ptrdiff_t distance = stride * count;
    StridedPlaces<T> places{stride, count, perm};
    const auto spectra = spaced<T>(q);
    const int all = count * blocks;
    int u = 0;
    for (; u + blockLanes<T> <= all; u += blockLanes<T>, dst += blockLanes<T> * q) {
        const auto at = places.nextLanes();
        Reals<BlockPart<T>, q> x;
        repeat<q>([&](auto j) { x[j] = PartArrays<const T>::gatheredOf(src + j * distance, at); });
        const auto y = toPerm(x);
        repeat<q>([&](auto k) { PartArrays<T>::scatterOf(dst + k, spectra, y[k]); });
    }
    for (; u < all; ++u, dst += q) {
        const T* const p = src + places.next();
        Reals<T, q> x;
        repeat<q>([&](auto j) { x[j] = loadElement(p + j * distance); });
        const auto y = toPerm(x);
        repeat<q>([&](auto k) { store(dst + k, y[k]); });
    }
}
template <int q, typename T>
inline void leafFromPerm(const T* src, std::ptrdiff_t stride, T* dst, int count, int blocks, const int* perm)
{
    const std::ptrdiff_t distance = stride * count;
    StridedPlaces<T> places{stride, count, perm};
    const int all = count * blocks;
    const auto spectra = spaced<T>(q);
    int u = 0;
    for (; u + blockLanes<T> <= all; u += blockLanes<T>, src += blockLanes<T> * q) {
        Reals<BlockPart<T>, q> y;
        repeat<q>([&](auto k) { y[k] = PartArrays<const T>::gatheredOf(src + k, spectra); });
        const auto x = fromPerm(y);
        const auto at = places.nextLanes();
        repeat<q>([&](auto j) { PartArrays<T>::scatterOf(dst + j * distance, at, x[j]); });
    }
    for (; u < all; ++u, src += q) {
        Reals<T, q> y;
        repeat<q>([&](auto k) { y[k] = loadElement(src + k); });
        const auto x = fromPerm(y);
        T* const p = dst + places.next();
        repeat<q>([&](auto j) { store(p + j * distance, x[j]); });
    }
}

// Any odd q, as many transforms side by side as a vector has lanes. The terms are those of directToPerm() and
// directFromPerm(): of each pair one for the real part of the root and one for the imaginary part. emit(k, a, b) takes
// the sums of the one kind, which begin with `first`, and of the other.
template <typename X, typename Emit>
TARN_INLINE void sumTerms(int q, const Element<X>* roots, X first, const X* terms, Emit emit)
{
    for (int k = 1; k < q - k; ++k) {
        X a = first;
        X b = splat<X>(0);
        int e = 0;
        for (int j = 0; j < q - 1; j += 2) {
            e += k;
            e -= e >= q ? q : 0;
            a = add(a, mul(terms[j], splat<X>(roots[2 * e])));
            b = add(b, mul(terms[j + 1], splat<X>(roots[2 * e + 1])));
        }
        emit(k, a, b);
    }
}

// scratch holds 2 q - 2 reals on a boundary.
template <typename T>
inline void leafAnyToPerm(const T* src, std::ptrdiff_t stride, T* dst, int q, int count, int blocks, const int* perm,
                          const PairOf<T>* dirTab, T* scratch)
{
    const std::ptrdiff_t distance = stride * count;
    forAllLeaves(
        StridedPlaces<T>{stride, count, perm}, blocks,
        [&](std::ptrdiff_t at, std::ptrdiff_t u) {
            T x[largestDirect];
            for (int j = 0; j < q; ++j) {
                x[j] = loadElement(src + at + j * distance);
            }
            directToPerm(static_cast<const T*>(x), dst + u * q, q, Roots<T>(dirTab, q), scratch);
        },
        [&](const Places<T>& at, std::ptrdiff_t u) {
            BlockPart<T> terms[largestDirect];
            const auto point = [&](int j) { return PartArrays<const T>::gatheredOf(src + j * distance, at); };
            const auto put = [&](int k, BlockPart<T> y) { PartArrays<T>::scatterOf(dst + u * q + k, spaced<T>(q), y); };
            const auto first = point(0);
            auto total = first;
            for (int j = 1; j < q - j; ++j) {
                const auto low = point(j);
                const auto high = point(q - j);
                terms[2 * j - 2] = add(low, high);
                terms[2 * j - 1] = sub(low, high);
                total = add(total, terms[2 * j - 2]);
            }
            put(0, total);
            sumTerms(q, asParts(dirTab), first, static_cast<const BlockPart<T>*>(terms),
                     [&](int k, BlockPart<T> a, BlockPart<T> b) {
                         put(2 * k - 1, a);
                         put(2 * k, b);
                     });
        });
}
template <typename T>
inline void leafAnyFromPerm(const T* src, std::ptrdiff_t stride, T* dst, int q, int count, int blocks, const int* perm,
                            const PairOf<T>* dirTab, T* scratch)
{
    const std::ptrdiff_t distance = stride * count;
    forAllLeaves(
        StridedPlaces<T>{stride, count, perm}, blocks,
        [&](std::ptrdiff_t at, std::ptrdiff_t u) {
            T x[largestDirect];
            directFromPerm(src + u * q, static_cast<T*>(x), q, Roots<T>(dirTab, q), scratch);
            for (int j = 0; j < q; ++j) {
                store(dst + at + j * distance, x[j]);
            }
        },
        [&](const Places<T>& at, std::ptrdiff_t u) {
            BlockPart<T> terms[largestDirect];
            const auto value = [&](int k) { return PartArrays<const T>::gatheredOf(src + u * q + k, spaced<T>(q)); };
            const auto put = [&](int j, BlockPart<T> x) { PartArrays<T>::scatterOf(dst + j * distance, at, x); };
            const auto first = value(0);
            auto total = first;
            for (int k = 0; k < q - 1; ++k) {
                const auto y = value(k + 1);
                terms[k] = add(y, y);
                total = k % 2 == 0 ? add(total, terms[k]) : total;
            }
            put(0, total);
            sumTerms(q, asParts(dirTab), first, static_cast<const BlockPart<T>*>(terms),
                     [&](int j, BlockPart<T> a, BlockPart<T> b) {
                         put(j, add(a, b));
                         put(q - j, sub(a, b));
                     });
        });
}

// -- Merges and splits -----------------------------------------------------------------------------------------------

// Column k of a spectrum of p q points: its points k + j q for j below p, of which the upper half are conjugates of
// points that are there. As single elements or neighbouring columns.
template <typename T>
struct PermColumn {
    using Real = std::remove_const_t<T>;
    T* spectrum;
    int p, q;

    // Where the pair begins that is point k + j q, or whose conjugate that is.
    TARN_INLINE std::ptrdiff_t low(int j, int k) const { return 2 * (std::ptrdiff_t{j} * q + k) - 1; }
    TARN_INLINE std::ptrdiff_t high(int j, int k, int columns) const
    {
        return 2 * (std::ptrdiff_t{p - j} * q - k - (columns - 1)) - 1;
    }

    TARN_INLINE void put(int j, int k, Complex<Real> y) const
    {
        const bool mirrored = 2 * j > p;
        Real* const to = spectrum + (mirrored ? high(j, k, 1) : low(j, k));
        store(to, y.re);
        store(to + 1, mirrored ? -y.im : y.im);
    }
    TARN_INLINE void put(int j, int k, Lanes<Real> y) const
    {
        if (2 * j > p) {
            storePairsReversed(spectrum + high(j, k, blockLanes<Real>), Lanes<Real>{y.re, invertSigns(y.im)});
        } else {
            storePairs(spectrum + low(j, k), y);
        }
    }
    template <typename X>
    TARN_INLINE Complex<X> get(int j, int k) const
    {
        const bool mirrored = 2 * j > p;
        if constexpr (isPack<X>) {
            if (mirrored) {
                const auto x = loadPairsReversed<blockLanes<Real>>(
                    static_cast<const Real*>(spectrum + high(j, k, blockLanes<Real>)));
                return {x.re, invertSigns(x.im)};
            }
            return loadPairs<blockLanes<Real>>(static_cast<const Real*>(spectrum + low(j, k)));
        } else {
            const Real* const from = spectrum + (mirrored ? high(j, k, 1) : low(j, k));
            const Real im = loadElement(from + 1);
            return {loadElement(from), mirrored ? -im : im};
        }
    }
};

// The factors of columns, as rows of p - 1 or, for any p, of p.
template <typename X, typename T>
TARN_INLINE Complex<X> factorOf(const T* row, int rowLength)
{
    const PairArray<const T, false> factors{row};
    if constexpr (isPack<X>) {
        return factors.gathered(spaced<T>(rowLength));
    } else {
        return factors.element(0);
    }
}

template <typename X, typename T>
TARN_INLINE Complex<X> slot(const T* spectrum, int k)
{
    const T* const p = spectrum + 2 * k - 1;
    if constexpr (isPack<X>) {
        return loadPairs<blockLanes<T>>(p);
    } else {
        return {loadElement(p), loadElement(p + 1)};
    }
}
template <typename X, typename T>
TARN_INLINE void putSlot(T* spectrum, int k, Complex<X> y)
{
    T* const p = spectrum + 2 * k - 1;
    if constexpr (isPack<X>) {
        storePairs(p, y);
    } else {
        store(p, y.re);
        store(p + 1, y.im);
    }
}

// Calls column<X>(k) for the columns from 1 to (q - 1) / 2, in vectors and then one by one.
template <typename T, typename Column>
TARN_INLINE void forHalfTheColumns(int q, Column column)
{
    constexpr int width = blockLanes<T>;
    int k = 1;
    for (; k + width <= (q + 1) / 2; k += width) {
        column.template operator()<BlockPart<T>>(k);
    }
    for (; k < (q + 1) / 2; ++k) {
        column.template operator()<T>(k);
    }
}

template <typename X>
TARN_INLINE Complex<X> exchanged(Complex<X> x)
{
    return {x.im, x.re};
}

// p spectra of q reals become one of p q reals, in each of so many blocks.
template <int p, typename T>
inline void mergePerm(const T* src, T* dst, int q, int blocks, const T* twd)
{
    constexpr int row = 2 * (p - 1);
    const std::ptrdiff_t size = std::ptrdiff_t{p} * q;
    for (int block = 0; block < blocks; ++block, src += size, dst += size) {
        Reals<T, p> x;
        repeat<p>([&](auto j) { x[j] = loadElement(src + std::ptrdiff_t{j} * q); });
        const auto y = toPerm(x);
        store(dst, y[0]);
        repeat<(p - 1) / 2>([&](auto j) {
            store(dst + 2 * (std::ptrdiff_t{j} + 1) * q - 1, y[2 * j + 1]);
            store(dst + 2 * (std::ptrdiff_t{j} + 1) * q, y[2 * j + 2]);
        });
        const PermColumn<T> to{dst, p, q};
        forHalfTheColumns<T>(q, [&]<typename X>(int k) {
            Points<X, p> z;
            z[0] = slot<X>(src, k);
            const auto factors = [&] {
                if constexpr (isPack<X>) {
                    return twiddleColumns<p - 1>(twd + row * k);
                } else {
                    return twiddlesOf<p - 1>(twd + row * k);
                }
            }();
            repeat<p - 1>([&](auto j) { z[j + 1] = times(slot<X>(src + (std::ptrdiff_t{j} + 1) * q, k), factors[j]); });
            const auto spectrum = transformPoints(z);
            repeat<p>([&](auto j) { to.put(j, k, spectrum[j]); });
        });
    }
}

// One spectrum of p q reals becomes p spectra of q reals, each p times that of every p-th point.
template <int p, typename T>
inline void splitPerm(const T* src, T* dst, int q, int blocks, const T* twd)
{
    constexpr int row = 2 * (p - 1);
    const std::ptrdiff_t size = std::ptrdiff_t{p} * q;
    for (int block = 0; block < blocks; ++block, src += size, dst += size) {
        Reals<T, p> y;
        y[0] = loadElement(src);
        repeat<(p - 1) / 2>([&](auto j) {
            y[2 * j + 1] = loadElement(src + 2 * (std::ptrdiff_t{j} + 1) * q - 1);
            y[2 * j + 2] = loadElement(src + 2 * (std::ptrdiff_t{j} + 1) * q);
        });
        const auto x = fromPerm(y);
        repeat<p>([&](auto j) { store(dst + std::ptrdiff_t{j} * q, x[j]); });
        const PermColumn<const T> from{src, p, q};
        forHalfTheColumns<T>(q, [&]<typename X>(int k) {
            Points<X, p> z;
            repeat<p>([&](auto j) { z[j] = exchanged(from.template get<X>(j, k)); });
            z = transformPoints(z);
            const auto factors = [&] {
                if constexpr (isPack<X>) {
                    return twiddleColumns<p - 1>(twd + row * k);
                } else {
                    return twiddlesOf<p - 1>(twd + row * k);
                }
            }();
            putSlot(dst, k, exchanged(z[0]));
            repeat<p - 1>([&](auto j) {
                putSlot(dst + (std::ptrdiff_t{j} + 1) * q, k, timesConjugate(exchanged(z[j + 1]), factors[j]));
            });
        });
    }
}

// Any odd p, one block; scratch holds 2 p - 2 reals on a boundary.
template <typename T>
inline void mergeAnyPerm(const T* src, T* dst, int p, int q, const PairOf<T>* dirTab, const PairOf<T>* twdTab,
                         T* scratch)
{
    T x[largestDirect];
    T y[largestDirect];
    for (int j = 0; j < p; ++j) {
        x[j] = loadElement(src + std::ptrdiff_t{j} * q);
    }
    directToPerm(static_cast<const T*>(x), static_cast<T*>(y), p, Roots<T>(dirTab, p), scratch);
    store(dst, y[0]);
    for (int j = 1; 2 * j < p; ++j) {
        store(dst + 2 * std::ptrdiff_t{j} * q - 1, y[2 * j - 1]);
        store(dst + 2 * std::ptrdiff_t{j} * q, y[2 * j]);
    }
    const PermColumn<T> to{dst, p, q};
    const T* const factors = asParts(twdTab);
    forHalfTheColumns<T>(q, [&]<typename X>(int k) {
        Complex<X> pairs[largestDirect];
        transformOdd<X>(
            p, asParts(dirTab), pairs,
            [&](int j) {
                const auto z = slot<X>(src + std::ptrdiff_t{j} * q, k);
                return j == 0 ? z : times(z, factorOf<X>(factors + 2 * (std::ptrdiff_t{k} * p + j), p));
            },
            [&](int j, Complex<X> z) { to.put(j, k, z); });
    });
}
template <typename T>
inline void splitAnyPerm(const T* src, T* dst, int p, int q, const PairOf<T>* dirTab, const PairOf<T>* twdTab,
                         T* scratch)
{
    T y[largestDirect];
    T x[largestDirect];
    y[0] = loadElement(src);
    for (int j = 1; 2 * j < p; ++j) {
        y[2 * j - 1] = loadElement(src + 2 * std::ptrdiff_t{j} * q - 1);
        y[2 * j] = loadElement(src + 2 * std::ptrdiff_t{j} * q);
    }
    directFromPerm(static_cast<const T*>(y), static_cast<T*>(x), p, Roots<T>(dirTab, p), scratch);
    for (int j = 0; j < p; ++j) {
        store(dst + std::ptrdiff_t{j} * q, x[j]);
    }
    const PermColumn<const T> from{src, p, q};
    const T* const factors = asParts(twdTab);
    forHalfTheColumns<T>(q, [&]<typename X>(int k) {
        Complex<X> pairs[largestDirect];
        transformOdd<X>(
            p, asParts(dirTab), pairs, [&](int j) { return exchanged(from.template get<X>(j, k)); },
            [&](int j, Complex<X> z) {
                z = exchanged(z);
                putSlot(dst + std::ptrdiff_t{j} * q, k,
                        j == 0 ? z : timesConjugate(z, factorOf<X>(factors + 2 * (std::ptrdiff_t{k} * p + j), p)));
            });
    });
}

} // namespace tarn::dft
