// Kernels of packed spectra: products, and expansion to all bins.
#include "levels/fft/psspectrum.h"

#include "frame/backwards.h"
#include "frame/simd.h"

#include <algorithm>
#include <array>

namespace tarn {
namespace {

// The bins of a packed spectrum that are pairs: all but the first one and, for an even length, the one in the middle.
constexpr int pairCount(int len) { return (len - 1) / 2; }

template <typename T>
struct ComplexOf;
template <>
struct ComplexOf<Tarn16s> {
    using type = Tarn16sc;
};
template <>
struct ComplexOf<Tarn32f> {
    using type = Tarn32fc;
};
template <>
struct ComplexOf<Tarn64f> {
    using type = Tarn64fc;
};

template <typename T>
TARN_INLINE auto asPairs(T* p)
{
    using C = typename ComplexOf<std::remove_const_t<T>>::type;
    return reinterpret_cast<std::conditional_t<std::is_const_v<T>, const C*, C*>>(p);
}

template <typename C>
TARN_INLINE auto asReals(C* p)
{
    using T = Part<std::remove_const_t<C>>;
    return reinterpret_cast<std::conditional_t<std::is_const_v<C>, const T*, T*>>(p);
}

// -- Products: what becomes of the real bins, and of the pairs -------------------------------------------------------

struct Product {
    static TARN_INLINE auto real(auto a, auto b) { return mul(a, b); }
    TARN_INLINE auto operator()(auto a, auto b) const { return mulComplex(a, b); }
};

struct ProductByConjugate {
    static TARN_INLINE auto real(auto a, auto b) { return mul(a, b); }
    TARN_INLINE auto operator()(auto a, auto b) const { return mulByConjugate(a, b); }
};

// The 16-bit products live in 32-bit registers. There they are shifted without rounding, and bits that a shift to the
// left moves out at the top are lost; a real bin is clamped first, so that it keeps its sign for 16 shifts.
template <typename Shift>
struct ProductShifted {
    int count;

    TARN_INLINE Tarn16s real(Tarn16s a, Tarn16s b) const
    {
        return narrowSaturated<Tarn16s>(Shift::word(Shift::prepared(mulWidened(a, b)), count));
    }
    TARN_INLINE auto operator()(auto a, auto b) const
    {
        const auto re = Shift::word(differenceOfParts(a, b), count);
        const auto im = Shift::word(mulAddPairs(a, swapParts(b)), count);
        return joinNarrowed(re, im);
    }
};

struct Right {
    static TARN_INLINE Tarn32s prepared(Tarn32s product) { return product; }
    static TARN_INLINE auto word(auto x, int count) { return shiftRight(x, count); }
};

struct Left {
    static TARN_INLINE Tarn32s prepared(Tarn32s product) { return narrowSaturated<Tarn16s>(product); }
    static TARN_INLINE auto word(auto x, int count) { return shiftLeft(x, count); }
};

// In Perm order of an even length every bin is a pair, were it not for the first one, which holds two real bins. The
// whole spectrum is walked as pairs, on the boundaries that the array itself lies on and without a rest if the length
// is a power of two; then the first pair is put right.
template <typename T, typename Operation>
TARN_INLINE void multiplyEvenPerm(const T* a, const T* b, T* dst, int len, Operation operation)
{
    const T first = operation.real(loadElement(a), loadElement(b));
    const T middle = operation.real(loadElement(a + 1), loadElement(b + 1));
    walk(asPairs(dst), len / 2, operation, asPairs(a), asPairs(b));
    store(dst, first);
    store(dst + 1, middle);
}

template <typename T, typename Operation>
TARN_INLINE void multiplyPack(const T* a, const T* b, T* dst, int len, Operation operation)
{
    store(dst, operation.real(loadElement(a), loadElement(b)));
    if (len % 2 == 0) {
        const int last = len - 1;
        store(dst + last, operation.real(loadElement(a + last), loadElement(b + last)));
    }
    walk(asPairs(dst + 1), pairCount(len), operation, asPairs(a + 1), asPairs(b + 1));
}

// Calls a multiplication with the shift of words that the scale factor asks for.
template <typename Multiplication>
TARN_INLINE void withShift(int scaleFactor, Multiplication multiplication)
{
    // 32 shifts leave nothing but signs or zeros; further ones would not change that.
    constexpr int all = 32;
    if (scaleFactor >= 0) {
        multiplication(ProductShifted<Right>{std::min(scaleFactor, all)});
    } else {
        multiplication(ProductShifted<Left>{-std::max(scaleFactor, -all)});
    }
}

// -- Expansion -------------------------------------------------------------------------------------------------------

// Bins from..from + N - 1 and their mirror images. `pairs` points at bin 1.
template <int N, typename C>
TARN_INLINE void expandPairs(const C* pairs, C* dst, int len, int from)
{
    const auto bins = loadPack<N>(pairs + from - 1);
    store(dst + from, bins);
    store(dst + len - (from + N - 1), reverse(conjugate(bins)));
}

// From the highest bin down: in place the pairs lie at their bins or just below them, and none is overwritten before it
// is read. The mirror images fall behind the packed spectrum. The bins without one come as what is already read of
// them, part by part: a pair of doubles on its way through a struct would be stored in halves and wait to be loaded
// whole.
template <typename C>
TARN_INLINE void expand(const C* pairs, C* dst, int len, std::array<Part<C>, 2> first, std::array<Part<C>, 2> middle)
{
    constexpr int step = lanes<C>;
    constexpr int block = 2 * step;
    int left = pairCount(len);
    for (; left >= block; left -= block) {
        expandPairs<block>(pairs, dst, len, left - block + 1);
    }
    for (; left >= step; left -= step) {
        expandPairs<step>(pairs, dst, len, left - step + 1);
    }
    for (; left > 0; --left) {
        const C bin = loadElement(pairs + left - 1);
        store(dst + left, bin);
        store(dst + len - left, conjugate(bin));
    }
    const auto storeBin = [](Part<C>* to, std::array<Part<C>, 2> bin) {
        store(to, bin[0]);
        store(to + 1, bin[1]);
    };
    storeBin(asReals(dst), first);
    if (len % 2 == 0) {
        storeBin(asReals(dst + len / 2), middle);
    }
}

// For an odd length Perm and Pack are the same order, and the kernels of Perm leave it to those of Pack.

template <typename C>
TARN_INLINE void expandEvenPerm(const Part<C>* src, C* dst, int len)
{
    expand<C>(asPairs(src) + 1, dst, len, {loadElement(src), 0}, {loadElement(src + 1), 0});
}

template <typename C>
TARN_INLINE void expandPack(const Part<C>* src, C* dst, int len)
{
    expand<C>(asPairs(src + 1), dst, len, {loadElement(src), 0}, {loadElement(src + len - 1), 0});
}

template <typename C>
TARN_INLINE void expandCcs(const Part<C>* src, C* dst, int len)
{
    // Bin 0 again where there is no bin in the middle: nothing is read behind the spectrum.
    const auto* middle = asReals(asPairs(src) + (len % 2 == 0 ? len / 2 : 0));
    expand<C>(asPairs(src) + 1, dst, len, {loadElement(src), loadElement(src + 1)},
              {loadElement(middle), loadElement(middle + 1)});
}

} // namespace
} // namespace tarn

using namespace tarn;

void ownsMulPerm_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len, int scaleFactor)
{
    if (len % 2 != 0) {
        ownsMulPack_16s_Sfs(pSrc1, pSrc2, pDst, len, scaleFactor);
    } else {
        withShift(scaleFactor, [=](auto product) { multiplyEvenPerm(pSrc1, pSrc2, pDst, len, product); });
    }
}

void ownsMulPack_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int len, int scaleFactor)
{
    withShift(scaleFactor, [=](auto product) { multiplyPack(pSrc1, pSrc2, pDst, len, product); });
}

#define TARN_FLOAT_PRODUCT_KERNELS(T)                                                        \
    void ownsMulPerm_##T(const Tarn##T* pSrc1, const Tarn##T* pSrc2, Tarn##T* pDst, int len) \
    {                                                                                        \
        if (len % 2 != 0) {                                                                  \
            ownsMulPack_##T(pSrc1, pSrc2, pDst, len);                                        \
        } else {                                                                             \
            multiplyEvenPerm(pSrc1, pSrc2, pDst, len, Product{});                            \
        }                                                                                    \
    }                                                                                        \
    void ownsMulPack_##T(const Tarn##T* pSrc1, const Tarn##T* pSrc2, Tarn##T* pDst, int len) \
    {                                                                                        \
        multiplyPack(pSrc1, pSrc2, pDst, len, Product{});                                    \
    }                                                                                        \
    void ownsMulPackConj_##T##_I(const Tarn##T* pSrc, Tarn##T* pSrcDst, int len)             \
    {                                                                                        \
        multiplyPack(pSrc, pSrcDst, pSrcDst, len, ProductByConjugate{});                     \
    }

TARN_FLOAT_PRODUCT_KERNELS(32f)
TARN_FLOAT_PRODUCT_KERNELS(64f)

#define TARN_EXPANSION_KERNELS(REAL, COMPLEX)                                                                          \
    void ownsConjPerm_##COMPLEX(const Tarn##REAL* pSrc, Tarn##COMPLEX* pDst, int len)                                  \
    {                                                                                                                  \
        if (len % 2 != 0) {                                                                                            \
            ownsConjPack_##COMPLEX(pSrc, pDst, len);                                                                   \
        } else {                                                                                                       \
            expandEvenPerm(pSrc, pDst, len);                                                                           \
        }                                                                                                              \
    }                                                                                                                  \
    void ownsConjPack_##COMPLEX(const Tarn##REAL* pSrc, Tarn##COMPLEX* pDst, int len) { expandPack(pSrc, pDst, len); } \
    void ownsConjCcs_##COMPLEX(const Tarn##REAL* pSrc, Tarn##COMPLEX* pDst, int len) { expandCcs(pSrc, pDst, len); }   \
    void ownsConjFlip_##COMPLEX(const Tarn##COMPLEX* pSrc, Tarn##COMPLEX* pDst, int len)                               \
    {                                                                                                                  \
        walk(pDst, len, conjugate, Backwards<Tarn##COMPLEX>{pSrc + (len - 1)});                                        \
    }

TARN_EXPANSION_KERNELS(16s, 16sc)
TARN_EXPANSION_KERNELS(32f, 32fc)
TARN_EXPANSION_KERNELS(64f, 64fc)
