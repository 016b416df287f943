// Kernels of packed spectra: products, and expansion to all bins.
#include "levels/psspectrum.h"

#include "frame/backwards.h"
#include "frame/simd_spectrum.h"

#include <algorithm>

namespace tarn {
namespace {

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
        const auto im = Shift::word(dotParts(a, swapParts(b)), count);
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

template <typename T, typename Operation>
TARN_INLINE void multiply(const T* a, const T* b, T* dst, int len, Packing packing, Operation operation)
{
    const auto multiplyReal = [=](int i) { store(dst + i, operation.real(loadElement(a + i), loadElement(b + i))); };
    multiplyReal(0);
    if (packing.middle > 0) {
        multiplyReal(packing.middle);
    }
    walk(asPairs(dst + packing.pairs), pairCount(len), operation, asPairs(a + packing.pairs),
         asPairs(b + packing.pairs));
}

// -- Expansion -------------------------------------------------------------------------------------------------------

// Bins from..from + N - 1 and their mirror images. `pairs` points at bin 1.
template <int N, typename C>
TARN_INLINE void expandPairs(const C* pairs, C* dst, int len, int from)
{
    const auto bins = loadPack<N>(pairs + from - 1);
    store(dst + from, bins);
    store(dst + len - (from + N - 1), turned(conjugate(bins)));
}

// From the highest bin down: in place the pairs lie at their bins or just below them, and none is overwritten before it
// is read. The mirror images fall behind the packed spectrum.
template <typename C>
TARN_INLINE void expand(const C* pairs, C* dst, int len, C first, C middle)
{
    constexpr int step = lanes<C>;
    constexpr int block = 2 * step;
    int left = pairCount(len);
    for (; left >= block; left -= block) {
        expandPairs<block>(pairs, dst, len, left - block + 1);
    }
    if constexpr (step > 1) {
        for (; left >= step; left -= step) {
            expandPairs<step>(pairs, dst, len, left - step + 1);
        }
    }
    for (; left > 0; --left) {
        const C bin = loadElement(pairs + left - 1);
        store(dst + left, bin);
        store(dst + len - left, conjugate(bin));
    }
    store(dst, first);
    if (len % 2 == 0) {
        store(dst + len / 2, middle);
    }
}

template <typename C>
TARN_INLINE void expandReals(const Part<C>* src, C* dst, int len, Packing packing)
{
    const C first{loadElement(src), 0};
    const C middle{loadElement(src + packing.middle), 0};
    expand(asPairs(src + packing.pairs), dst, len, first, middle);
}

} // namespace

void multiplySpectra(const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int len, Packing packing)
{
    multiply(a, b, dst, len, packing, Product{});
}

void multiplySpectra(const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int len, Packing packing)
{
    multiply(a, b, dst, len, packing, Product{});
}

void multiplySpectra(const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len, Packing packing, int scaleFactor)
{
    // 32 shifts leave nothing but signs or zeros; further ones would not change that.
    constexpr int all = 32;
    if (scaleFactor >= 0) {
        multiply(a, b, dst, len, packing, ProductShifted<Right>{std::min(scaleFactor, all)});
    } else {
        multiply(a, b, dst, len, packing, ProductShifted<Left>{-std::max(scaleFactor, -all)});
    }
}

void multiplyByConjugate(const Tarn32f* src, Tarn32f* srcDst, int len, Packing packing)
{
    multiply(src, srcDst, srcDst, len, packing, ProductByConjugate{});
}

void multiplyByConjugate(const Tarn64f* src, Tarn64f* srcDst, int len, Packing packing)
{
    multiply(src, srcDst, srcDst, len, packing, ProductByConjugate{});
}

template <typename C>
void expandPerm(const Part<C>* src, C* dst, int len)
{
    expandReals(src, dst, len, permPacking(len));
}

template <typename C>
void expandPack(const Part<C>* src, C* dst, int len)
{
    expandReals(src, dst, len, packPacking(len));
}

template <typename C>
void expandCcs(const Part<C>* src, C* dst, int len)
{
    const C* bins = asPairs(src);
    const C first = loadElement(bins);
    const C middle = len % 2 == 0 ? loadElement(bins + len / 2) : first;
    expand(bins + 1, dst, len, first, middle);
}

template void expandPerm(const Tarn16s*, Tarn16sc*, int);
template void expandPerm(const Tarn32f*, Tarn32fc*, int);
template void expandPerm(const Tarn64f*, Tarn64fc*, int);
template void expandPack(const Tarn16s*, Tarn16sc*, int);
template void expandPack(const Tarn32f*, Tarn32fc*, int);
template void expandPack(const Tarn64f*, Tarn64fc*, int);
template void expandCcs(const Tarn16s*, Tarn16sc*, int);
template void expandCcs(const Tarn32f*, Tarn32fc*, int);
template void expandCcs(const Tarn64f*, Tarn64fc*, int);

} // namespace tarn

using namespace tarn;

void ownsConjFlip_16sc(const Tarn16sc* pSrc, Tarn16sc* pDst, int len)
{
    walk(pDst, len, conjugate, Backwards<Tarn16sc>{pSrc + (len - 1)});
}

void ownsConjFlip_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int len)
{
    walk(pDst, len, conjugate, Backwards<Tarn32fc>{pSrc + (len - 1)});
}

void ownsConjFlip_64fc(const Tarn64fc* pSrc, Tarn64fc* pDst, int len)
{
    walk(pDst, len, conjugate, Backwards<Tarn64fc>{pSrc + (len - 1)});
}
