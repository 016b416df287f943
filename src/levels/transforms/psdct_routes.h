// What cosine transforms by Fourier transforms do to their data on the way in and out, and their tables.
#pragma once

#include "levels/fft/psfft_recombine.h"
#include "levels/transforms/psdct.h"
#include "levels/transforms/psdft_tables.h"

namespace tarn::dct {

template <typename T>
inline constexpr int group = fft::blockLanes<T>;

template <typename T>
TARN_INLINE Complex<T> pairAt(const T* pairs, int k)
{
    return {loadElement(pairs + 2 * k), loadElement(pairs + 2 * k + 1)};
}
template <typename T>
TARN_INLINE void putPair(T* pairs, int k, Complex<T> x)
{
    store(pairs + 2 * k, x.re);
    store(pairs + 2 * k + 1, x.im);
}

template <typename X>
TARN_INLINE X sumOfProducts(Complex<X> x, Complex<X> w)
{
    return add(mul(x.re, w.re), mul(x.im, w.im));
}
template <typename X>
TARN_INLINE Complex<X> spread(X x, Complex<X> w)
{
    return {mul(x, w.re), mul(x, w.im)};
}

// -- By a real transform of twice the length -------------------------------------------------------------------------

template <typename T>
void Kernels<T>::leaveSpectrum(const T* perm, const PairOf<T>* out, T* dst, int N)
{
    const T* const w = asParts(out);
    int k = 0;
    for (; k <= N - group<T>; k += group<T>) {
        store(dst + k, sumOfProducts(loadPairs<group<T>>(perm + 2 * k), loadPairs<group<T>>(w + 2 * k)));
    }
    for (; k < N; ++k) {
        store(dst + k, sumOfProducts(pairAt(perm, k), pairAt(w, k)));
    }
}

template <typename T>
void Kernels<T>::enterSpectrum(const T* src, const PairOf<T>* out, T* perm, int N)
{
    const T* const w = asParts(out);
    int k = 0;
    for (; k <= N - group<T>; k += group<T>) {
        storePairs(perm + 2 * k, spread(loadPack<group<T>>(src + k), loadPairs<group<T>>(w + 2 * k)));
    }
    for (; k < N; ++k) {
        putPair(perm, k, spread(loadElement(src + k), pairAt(w, k)));
    }
}

// -- By a real transform of the length itself ------------------------------------------------------------------------

template <typename T>
void Kernels<T>::splitHalves(const T* src, T* dst, int N)
{
    constexpr int step = group<T>;
    int j = 0;
    for (; j <= N / 2 - step; j += step) {
        const auto x = loadPack<2 * step>(src + 2 * j);
        store(dst + j, evenElements(x));
        store(dst + N - step - j, reverse(oddElements(x)));
    }
    for (; j < N / 2; ++j) {
        store(dst + j, loadElement(src + 2 * j));
        store(dst + N - 1 - j, loadElement(src + 2 * j + 1));
    }
    if (N % 2 != 0) {
        store(dst + j, loadElement(src + N - 1));
    }
}

template <typename T>
void Kernels<T>::joinHalves(const T* src, T* dst, int N)
{
    constexpr int step = group<T>;
    int j = 0;
    for (; j <= N / 2 - step; j += step) {
        store(dst + 2 * j, zip(loadPack<step>(src + j), reverse(loadPack<step>(src + N - step - j))));
    }
    for (; j < N / 2; ++j) {
        store(dst + 2 * j, loadElement(src + j));
        store(dst + 2 * j + 1, loadElement(src + N - 1 - j));
    }
    if (N % 2 != 0) {
        store(dst + N - 1, loadElement(src + j));
    }
}

// Value k of the spectrum, turned back by pi k / (2 N), is coefficient k less i times coefficient N - k.
template <typename T>
void Kernels<T>::leaveHalves(const T* perm, const PairOf<T>* out, T* dst, int N)
{
    constexpr int step = group<T>;
    const T* const w = asParts(out);
    const T* const pairs = perm - N % 2;
    const auto opposite = [](auto x, auto turn) { return sub(mul(x.re, turn.im), mul(x.im, turn.re)); };
    store(dst, loadElement(perm) * w[0]);
    int k = 1;
    for (; 2 * (k + step - 1) < N; k += step) {
        const auto x = loadPairs<step>(pairs + 2 * k);
        const auto turn = loadPairs<step>(w + 2 * k);
        store(dst + k, sumOfProducts(x, turn));
        store(dst + N - k - step + 1, reverse(opposite(x, turn)));
    }
    for (; 2 * k < N; ++k) {
        const auto x = pairAt(pairs, k);
        store(dst + k, sumOfProducts(x, pairAt(w, k)));
        store(dst + N - k, opposite(x, pairAt(w, k)));
    }
    if (N % 2 == 0) {
        store(dst + N / 2, loadElement(perm + 1) * w[N]);
    }
}

template <typename T>
void Kernels<T>::enterHalves(const T* src, const PairOf<T>* out, T* perm, int N)
{
    constexpr int step = group<T>;
    const T* const w = asParts(out);
    T* const pairs = perm - N % 2;
    const auto value = [](auto y, auto facing, auto turn) {
        return Complex<decltype(y)>{add(mul(y, turn.re), mul(facing, turn.im)),
                                    sub(mul(y, turn.im), mul(facing, turn.re))};
    };
    store(perm, loadElement(src) * w[0]);
    int k = 1;
    for (; 2 * (k + step - 1) < N; k += step) {
        const auto facing = reverse(loadPack<step>(src + N - k - step + 1));
        storePairs(pairs + 2 * k, value(loadPack<step>(src + k), facing, loadPairs<step>(w + 2 * k)));
    }
    for (; 2 * k < N; ++k) {
        putPair(pairs, k, value(loadElement(src + k), loadElement(src + N - k), pairAt(w, k)));
    }
    if (N % 2 == 0) {
        store(perm + 1, 2 * (loadElement(src + N / 2) * w[N]));
    }
}

// -- By convolution with a chirp --------------------------------------------------------------------------------------

// Calls vector(k, mirrored) for whole registers of slots, those from k up and those from `mirrored` up to N - k, and
// then single(k) for what is left, k below N - k.
template <typename T, typename Vector, typename Single>
TARN_INLINE void facing(int N, Vector vector, Single single)
{
    constexpr int step = group<T>;
    int k = 1;
    for (; 2 * k + 2 * step - 1 <= N; k += step) {
        vector(k, N - k - step + 1);
    }
    for (; 2 * k < N; ++k) {
        single(k);
    }
}

template <typename T>
void Kernels<T>::enterSignal(const Spec<T>& spec, const T* src, PairOf<T>* y)
{
    const int N = spec.length;
    const T* const chirp = asParts(spec.convChirp);
    T* const dst = asParts(y);
    int j = 0;
    for (; j <= N / 2 - group<T>; j += group<T>) {
        storePairs(dst + 2 * j, times(loadPairs<group<T>>(src + 2 * j), loadPairs<group<T>>(chirp + 2 * j)));
    }
    for (; j < N / 2; ++j) {
        putPair(dst, j, times(pairAt(src, j), pairAt(chirp, j)));
    }
    if (N % 2 != 0) {
        putPair(dst, j, spread(loadElement(src + N - 1), pairAt(chirp, j)));
        ++j;
    }
    std::fill(y + j, y + spec.convLen, PairOf<T>{});
}

// Out of the convolution and into a real spectrum, of which only the coefficients are kept.
template <typename T>
void Kernels<T>::leaveSlots(const Spec<T>& spec, const PairOf<T>* y, T* dst)
{
    const int N = spec.length;
    const T* const from = asParts(y);
    const T* const chirp = asParts(spec.convChirp);
    const T* const out = asParts(spec.outTab);
    const auto slot = [=](int k) { return times(pairAt(from, k), pairAt(chirp, k)); };
    constexpr int step = group<T>;
    const auto upFrom = [](const T* pairs, int k) { return loadPairs<step>(pairs + 2 * k); };
    const auto downTo = [](const T* pairs, int k) { return loadPairsReversed<step>(pairs + 2 * k); };

    const Complex<T> first = slot(0);
    store(dst, (first.re + first.im) * out[0]);
    facing<T>(
        N,
        [&](int k, int mirrored) __attribute__((always_inline)) {
            const auto low = times(upFrom(from, k), upFrom(chirp, k));
            const auto high = times(downTo(from, mirrored), downTo(chirp, mirrored));
            const auto x = fft::ToSpectrum::join(low, high, upFrom(spec.recTab, k));
            store(dst + k, sumOfProducts(x.low, upFrom(out, k)));
            store(dst + mirrored, reverse(sumOfProducts(x.high, downTo(out, mirrored))));
        },
        [&](int k) {
            const auto x = fft::ToSpectrum::join(slot(k), slot(N - k), pairAt<T>(spec.recTab, k));
            store(dst + k, sumOfProducts(x.low, pairAt(out, k)));
            store(dst + N - k, sumOfProducts(x.high, pairAt(out, N - k)));
        });
    if (N % 2 == 0) {
        store(dst + N / 2, sumOfProducts(fft::ToSpectrum::middle(slot(N / 2)), pairAt(out, N / 2)));
    }
}

// The slots of the half-length transform change places, so that a forward chirp makes an inverse transform.
template <typename T>
void Kernels<T>::enterSlots(const Spec<T>& spec, const T* src, PairOf<T>* y)
{
    const int N = spec.length;
    T* const to = asParts(y);
    const T* const chirp = asParts(spec.convChirp);
    const T* const out = asParts(spec.outTab);
    const auto slot = [=](int k) { return spread(loadElement(src + k), pairAt(out, k)); };
    constexpr int step = group<T>;
    const auto upFrom = [](const T* pairs, int k) { return loadPairs<step>(pairs + 2 * k); };
    const auto downTo = [](const T* pairs, int k) { return loadPairsReversed<step>(pairs + 2 * k); };

    const T first = loadElement(src) * out[0];
    putPair(to, 0, times(Complex<T>{first, first}, pairAt(chirp, 0)));
    facing<T>(
        N,
        [&](int k, int mirrored) __attribute__((always_inline)) {
            const auto low = spread(loadPack<step>(src + k), upFrom(out, k));
            const auto high = spread(reverse(loadPack<step>(src + mirrored)), downTo(out, mirrored));
            const auto x = fft::FromSpectrum::join(low, high, upFrom(spec.recTab, k));
            storePairs(to + 2 * k, times(x.high, upFrom(chirp, k)));
            storePairsReversed(to + 2 * mirrored, times(x.low, downTo(chirp, mirrored)));
        },
        [&](int k) {
            const auto x = fft::FromSpectrum::join(slot(k), slot(N - k), pairAt<T>(spec.recTab, k));
            putPair(to, k, times(x.high, pairAt(chirp, k)));
            putPair(to, N - k, times(x.low, pairAt(chirp, N - k)));
        });
    if (N % 2 == 0) {
        putPair(to, N / 2, times(fft::FromSpectrum::middle(slot(N / 2)), pairAt(chirp, N / 2)));
    }
    std::fill(y + N, y + spec.convLen, PairOf<T>{});
}

template <typename T>
void Kernels<T>::leaveSignal(const Spec<T>& spec, const PairOf<T>* y, T* dst)
{
    const int N = spec.length;
    const T* const from = asParts(y);
    const T* const chirp = asParts(spec.convChirp);
    int j = 0;
    for (; j <= N / 2 - group<T>; j += group<T>) {
        storePairs(dst + 2 * j, times(loadPairs<group<T>>(from + 2 * j), loadPairs<group<T>>(chirp + 2 * j)));
    }
    for (; j < N / 2; ++j) {
        putPair(dst, j, times(pairAt(from, j), pairAt(chirp, j)));
    }
    if (N % 2 != 0) {
        store(dst + N - 1, times(pairAt(from, j), pairAt(chirp, j)).re);
    }
}

// -- Tables ----------------------------------------------------------------------------------------------------------

template <typename T>
inline Owned<T[]> pow2Table(int N)
{
    constexpr int lastLevel = 16;
    Owned<T[]> table = allocate<T>(std::max(N, 1));
    if (!table) {
        return table;
    }
    T* level = table.get();
    for (int M = N; M >= lastLevel; level += M / 2, M /= 2) {
        for (int i = 0; i < M / 2; ++i) {
            level[i] = static_cast<T>(0.5 / dft::root<Tarn64f>(2 * i + 1, 4 * M).re);
        }
    }
    return table;
}

template <typename T>
void Kernels<T>::fillTurns(PairOf<T>* out, int N, double first, double others)
{
    out[0] = {static_cast<T>(first), T{0}};
    for (int k = 1; k < N; ++k) {
        const Tarn64fc turn = dft::root<Tarn64f>(k, 4 * N);
        out[k] = {static_cast<T>(others * turn.re), static_cast<T>(others * -turn.im)};
    }
}

template <typename T>
void Kernels<T>::fillKernel(PairOf<T>* kernel, const PairOf<T>* chirp, int N, int L)
{
    std::fill(kernel, kernel + L, PairOf<T>{});
    for (int j = 0; j < N; ++j) {
        kernel[j] = conjugate(chirp[j]);
        kernel[(L - j) % L] = kernel[j];
    }
}

template <typename T>
void Kernels<T>::scale(const T* src, T* dst, int N, T first, T others)
{
    const T scaled = loadElement(src) * first;
    walk(dst + 1, N - 1, WithConstant<Word<Mul>, T>{mul, others}, src + 1);
    store(dst, scaled);
}

} // namespace tarn::dct

// The kernels of one precision.
#define TARN_DCT_DEFINE_KERNELS(T)                                                                              \
    Tarn##T* tarns_createTabDct_Dir_##T(int N) { return dct::directTable<Tarn##T>(N).release(); }               \
    Tarn##T* tarns_createTabDct_Pow2_##T(int N) { return dct::pow2Table<Tarn##T>(N).release(); }                \
    void tarns_sDctFwd_Dir_##T(const Tarn##T* pSrc, Tarn##T* pDst, int N, const Tarn##T* dirTab, Tarn##T* work) \
    {                                                                                                           \
        dct::forwardDirect(pSrc, pDst, N, dirTab, work);                                                        \
    }                                                                                                           \
    void tarns_sDctInv_Dir_##T(const Tarn##T* pSrc, Tarn##T* pDst, int N, const Tarn##T* dirTab)                \
    {                                                                                                           \
        dct::inverseDirect(pSrc, pDst, N, dirTab);                                                              \
    }                                                                                                           \
    void tarns_sDctFwd_Pow2_##T(const Tarn##T* pSrc, Tarn##T* pDst, int M, const Tarn##T* table, Tarn##T* work) \
    {                                                                                                           \
        dct::forwardPow2(pSrc, pDst, M, table, work);                                                           \
    }                                                                                                           \
    void tarns_sDctInv_Pow2_##T(const Tarn##T* pSrc, Tarn##T* pDst, int M, const Tarn##T* table, Tarn##T* work) \
    {                                                                                                           \
        dct::inversePow2(pSrc, pDst, M, table, work);                                                           \
    }
