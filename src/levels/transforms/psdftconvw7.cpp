// Products with a chirp, and blocks of complex elements.
#include "levels/transforms/psdft_convolve.h"

#include "frame/backwards.h"
#include "frame/simd.h"
#include "frame/two_arrays.h"
#include "levels/fft/psfft_recombine.h"
#include "levels/transforms/psdft.h"

#include <cstring>

namespace tarn::dft {
namespace {

// The operand from the array, then the chirp.

struct PartsProduct {
    template <typename C>
    TARN_INLINE C operator()(auto re, auto im, C chirp) const
    {
        return mulComplex(complexFrom<Element<C>>(re, im), chirp);
    }
};

struct RealProduct {
    template <typename T, typename C>
    TARN_INLINE C operator()(T x, C chirp) const
    {
        if constexpr (isPack<T>) {
            return reinterpretPack<Element<C>>(mul(twice(x), reinterpretPack<Element<T>>(chirp)));
        } else {
            return {x * chirp.re, x * chirp.im};
        }
    }
};

struct PartsOfProduct {
    TARN_INLINE auto operator()(auto y, auto chirp) const
    {
        const auto product = mulComplex(y, chirp);
        return Both{reOf(product), imOf(product)};
    }
};

struct ReOfProduct {
    TARN_INLINE auto operator()(auto y, auto chirp) const { return reOf(mulComplex(y, chirp)); }
};

// The results of an inverse transform are those of a forward one, all but the first from the last one back.
template <typename C, typename Destination, typename Operation>
TARN_INLINE void leaveBy(Operation operation, const C* y, const C* chirp, Destination dst, int N, bool forward)
{
    if (forward) {
        walk(dst, N, operation, y, chirp);
    } else {
        walk(dst, 1, operation, y, chirp);
        walk(dst + 1, N - 1, operation, Backwards<C>{y + N - 1}, Backwards<C>{chirp + N - 1});
    }
}

} // namespace

template <typename T>
void Chirp<T>::enter(const C* x, C* y) const
{
    walk(y, N, mulComplex, x, factors);
}

template <typename T>
void Chirp<T>::enterParts(const T* re, const T* im, C* y) const
{
    walk(y, N, PartsProduct{}, re, im, factors);
}

template <typename T>
void Chirp<T>::enterReal(const T* x, C* y) const
{
    walk(y, N, RealProduct{}, x, factors);
}

// Of an odd N the chirp at N - k is the negative of that at k.
template <typename T>
void Chirp<T>::enterPerm(const T* perm, C* y) const
{
    constexpr int width = fft::blockLanes<T>;
    const int pairs = (N - 1) / 2;
    T* const to = asParts(y);
    const T* const chirp = asParts(factors);
    walk(y, 1, RealProduct{}, perm, factors);
    const T* const x = perm - 1; // pair k is at 2 k
    int k = 1;
    for (; k + width - 1 <= pairs; k += width) {
        const auto value = loadPairs<width>(x + 2 * k);
        const auto factor = loadPairs<width>(chirp + 2 * k);
        storePairs(to + 2 * k, timesConjugate(factor, value));
        const auto mirrored = times(factor, value);
        storePairsReversed(to + 2 * (N - k - width + 1),
                           Complex<Pack<T, width>>{invertSigns(mirrored.re), invertSigns(mirrored.im)});
    }
    for (; k <= pairs; ++k) {
        const Complex<T> value = {loadElement(x + 2 * k), loadElement(x + 2 * k + 1)};
        const Complex<T> factor = {chirp[2 * k], chirp[2 * k + 1]};
        const Complex<T> low = timesConjugate(factor, value);
        const Complex<T> high = times(factor, value);
        y[k] = {low.re, low.im};
        y[N - k] = {-high.re, -high.im};
    }
}

template <typename T>
void Chirp<T>::leave(const C* y, C* x, bool forward) const
{
    leaveBy(mulComplex, y, factors, x, N, forward);
}

template <typename T>
void Chirp<T>::leaveParts(const C* y, T* re, T* im, bool forward) const
{
    leaveBy(PartsOfProduct{}, y, factors, twoArrays(re, im), N, forward);
}

template <typename T>
void Chirp<T>::leaveReal(const C* y, T* x) const
{
    walk(x, N, ReOfProduct{}, y, factors);
}

template <typename T>
void Chirp<T>::leavePerm(const C* y, T* perm) const
{
    walk(perm, 1, ReOfProduct{}, y, factors);
    walk(asPairs(perm + 1), (N - 1) / 2, mulComplex, y + 1, factors + 1);
}

// The square of k modulo 2 N, by the odd numbers between the squares.
template <typename T>
void fillChirp(PairOf<T>* chirp, int N, const PairOf<T>* roots)
{
    const long long turn = 2LL * N;
    long long square = 0;
    for (int k = 0; k < N; ++k) {
        chirp[k] = roots[square];
        square += 2LL * k + 1;
        if (square >= turn) {
            square -= turn;
        }
    }
}

template struct Chirp<Tarn32f>;
template struct Chirp<Tarn64f>;
template void fillChirp<Tarn32f>(Tarn32fc*, int, const Tarn32fc*);
template void fillChirp<Tarn64f>(Tarn64fc*, int, const Tarn64fc*);

} // namespace tarn::dft

using namespace tarn;

#define TARN_DFT_BLOCK_KERNELS(C)                                                                  \
    void tarns_cbMpy3_##C(const Tarn##C* pSrc1, const Tarn##C* pSrc2, Tarn##C* pDst, int len)      \
    {                                                                                              \
        walk(pDst, len, mulComplex, pSrc1, pSrc2);                                                 \
    }                                                                                              \
    void tarns_cbZero_##C(Tarn##C* pDst, int len)                                                  \
    {                                                                                              \
        std::memset(static_cast<void*>(pDst), 0, sizeof(Tarn##C) * static_cast<std::size_t>(len)); \
    }                                                                                              \
    void tarns_cbConj2_##C(const Tarn##C* pSrc, Tarn##C* pDst, int len) { walk(pDst, len, conjugate, pSrc); }

TARN_DFT_BLOCK_KERNELS(32fc)
TARN_DFT_BLOCK_KERNELS(64fc)
