// The transforms by direct sums: what goes into the sums, and what becomes of them.
#pragma once

#include "levels/transforms/psdft_direct.h"

namespace tarn::dft {

// -- Where points come from and results go to: arrays of pairs, or of parts -------------------------------------------

template <typename T>
struct PairsIn {
    const T* pairs;

    TARN_INLINE Complex<T> operator[](int j) const
    {
        return {loadElement(pairs + 2 * j), loadElement(pairs + 2 * j + 1)};
    }
};
template <typename T>
struct PairsOut {
    T* pairs;

    TARN_INLINE void put(int k, Complex<T> x) const
    {
        store(pairs + 2 * k, x.re);
        store(pairs + 2 * k + 1, x.im);
    }
};
template <typename T>
struct PartsIn {
    const T* re;
    const T* im;

    TARN_INLINE Complex<T> operator[](int j) const { return {loadElement(re + j), loadElement(im + j)}; }
};
template <typename T>
struct PartsOut {
    T* re;
    T* im;

    TARN_INLINE void put(int k, Complex<T> x) const
    {
        store(re + k, x.re);
        store(im + k, x.im);
    }
};

// -- Complex data -----------------------------------------------------------------------------------------------------

// Results k and N - k of sums (a.re, b.re, a.im, b.im).
template <bool forward, typename T, typename Out>
TARN_INLINE void putPair(Out y, int N, int k, const T* sums)
{
    const Complex<T> a = {sums[0], sums[2]};
    const Complex<T> b = {sums[1], sums[3]};
    y.put(k, forward ? plusTurned(a, b) : minusTurned(a, b));
    y.put(N - k, forward ? minusTurned(a, b) : plusTurned(a, b));
}

// N points. All of them are read before a result is written.
template <bool forward, typename T, typename In, typename Out>
TARN_INLINE void directSums(In x, Out y, int N, Roots<T> roots, T* work)
{
    const int h = (N - 1) / 2;
    const bool even = N % 2 == 0;
    const Complex<T> first = x[0];
    const Complex<T> middle = even ? x[N / 2] : Complex<T>{};
    // What the sums of even and of odd results begin with.
    const auto startOf = [](Complex<T> a) {
        alignas(vectorBytes) const T start[] = {a.re, 0, a.im, 0};
        return loadAligned<4>(static_cast<const T*>(start));
    };
    const Pack<T, 4> starts[] = {startOf(even ? first + middle : first), startOf(even ? first - middle : first)};
    Complex<T> total = first;
    Complex<T> alternating = first;
    for (int j = 1; j <= h; ++j) {
        const Complex<T> low = x[j];
        const Complex<T> high = x[N - j];
        const Complex<T> s = low + high;
        const Complex<T> d = low - high;
        T* const term = work + ComplexTerms::reals * (j - 1);
        term[0] = s.re;
        term[1] = d.re;
        term[2] = s.im;
        term[3] = d.im;
        total = total + s;
        alternating = j % 2 == 0 ? alternating + s : alternating - s;
    }
    forAllResults<ComplexTerms>(
        static_cast<const T*>(work), h, roots, [&](int k) { return starts[k % 2]; },
        [&](int k, const T* sums, int results) {
            for (int i = 0; i < results; ++i) {
                putPair<forward>(y, N, k + i, sums + 4 * i);
            }
        });
    if (even) {
        y.put(0, total + middle);
        if (N > 1) {
            y.put(N / 2, N / 2 % 2 == 0 ? alternating + middle : alternating - middle);
        }
    } else {
        y.put(0, total);
    }
}

// `direction` is 1 forward and -1 inverse.
template <typename T, typename In, typename Out>
inline void directTransform(In x, Out y, int N, int direction, Roots<T> roots, T* work)
{
    if (direction > 0) {
        directSums<true>(x, y, N, roots, work);
    } else {
        directSums<false>(x, y, N, roots, work);
    }
}

// -- Real data and the spectrum in Perm order, odd N ------------------------------------------------------------------

template <typename T>
inline void directToPerm(const T* x, T* y, int N, Roots<T> roots, T* work)
{
    const int h = (N - 1) / 2;
    const T first = loadElement(x);
    T total = first;
    for (int j = 1; j <= h; ++j) {
        const T low = loadElement(x + j);
        const T high = loadElement(x + N - j);
        work[2 * (j - 1)] = low + high;
        work[2 * (j - 1) + 1] = low - high;
        total += low + high;
    }
    alignas(vectorBytes) const T starts[] = {first, 0, first, 0};
    const auto start = loadAligned<4>(static_cast<const T*>(starts));
    forAllResults<RealTerms>(
        static_cast<const T*>(work), h, roots, [&](int /*k*/) { return start; },
        [&](int k, const T* sums, int results) {
            for (int i = 0; i < 2 * results; ++i) {
                store(y + 2 * k - 1 + i, sums[i]);
            }
        });
    store(y, total);
}

// The terms are (2 R[k], 2 I[k]), and a + b and a - b are points n and N - n.
template <typename T>
inline void directFromPerm(const T* y, T* x, int N, Roots<T> roots, T* work)
{
    const int h = (N - 1) / 2;
    const T first = loadElement(y);
    T total = first;
    for (int k = 1; k <= h; ++k) {
        const T re = 2 * loadElement(y + 2 * k - 1);
        work[2 * (k - 1)] = re;
        work[2 * (k - 1) + 1] = 2 * loadElement(y + 2 * k);
        total += re;
    }
    alignas(vectorBytes) const T starts[] = {first, 0, first, 0};
    const auto start = loadAligned<4>(static_cast<const T*>(starts));
    forAllResults<RealTerms>(
        static_cast<const T*>(work), h, roots, [&](int /*n*/) { return start; },
        [&](int n, const T* sums, int results) {
            for (int i = 0; i < results; ++i) {
                store(x + n + i, sums[2 * i] + sums[2 * i + 1]);
                store(x + N - n - i, sums[2 * i] - sums[2 * i + 1]);
            }
        });
    store(x, total);
}

} // namespace tarn::dft
