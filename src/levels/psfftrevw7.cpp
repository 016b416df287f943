// Bit reversal: the tables that tell what goes where, and the routines that move the elements.
#include "frame/object.h"
#include "frame/simd.h"
#include "frame/simd_complex.h"
#include "levels/psfft.h"
#include "levels/psfft_tables.h"

#include <algorithm>

using namespace tarn;
using tarn::fft::ReversedCounter;

namespace {

int quarterOf(int order) { return order < 2 ? 0 : 1 << (order - 2); }

// A pair of neighbouring elements of some size, which a reversal always moves from or to one place together. `zip`
// makes the two pairs of first and of second elements.

template <int bytes>
struct Pair;

template <>
struct Pair<4> {
    Tarn32u first, second;

    static TARN_INLINE Pair load(const Tarn8u* p) { return loadElement(reinterpret_cast<const Pair*>(p)); }
    TARN_INLINE void storeTo(Tarn8u* p) const { store(reinterpret_cast<Pair*>(p), *this); }
    static TARN_INLINE void zip(Pair& a, Pair& b) { std::swap(a.second, b.first); }
};

template <>
struct Pair<8> {
    Vector<Tarn64f> both;

    static TARN_INLINE Pair load(const Tarn8u* p) { return {loadPack<2>(reinterpret_cast<const Tarn64f*>(p))}; }
    TARN_INLINE void storeTo(Tarn8u* p) const { store(reinterpret_cast<Tarn64f*>(p), both); }
    static TARN_INLINE void zip(Pair& a, Pair& b)
    {
        const Complex<Vector<Tarn64f>> halves = deinterleave(a.both, b.both);
        a.both = halves.re;
        b.both = halves.im;
    }
};

template <>
struct Pair<16> {
    Vector<Tarn64f> first, second;

    static TARN_INLINE Pair load(const Tarn8u* p)
    {
        const auto* q = reinterpret_cast<const Tarn64f*>(p);
        return {loadPack<2>(q), loadPack<2>(q + 2)};
    }
    TARN_INLINE void storeTo(Tarn8u* p) const
    {
        auto* q = reinterpret_cast<Tarn64f*>(p);
        store(q, first);
        store(q + 2, second);
    }
    static TARN_INLINE void zip(Pair& a, Pair& b) { std::swap(a.second, b.first); }
};

// Moves elements of `bytes` bytes from `src` to `dst`, which may be the same array, as the pair table says. A word is
// four times the number i of a group, which is elements 2 i and 2 i + 1 of either half of the array: the half that an
// element lies in is the lowest bit of its place in the other order.
template <int bytes>
TARN_INLINE void reverseBits(const void* from, void* to, int size, const Tarn32s* table)
{
    using P = Pair<bytes>;
    if (size < 4) {
        return;
    }
    const auto* src = static_cast<const Tarn8u*>(from);
    auto* dst = static_cast<Tarn8u*>(to);
    const std::ptrdiff_t half = std::ptrdiff_t{size} / 2 * bytes;
    const auto offset = [](Tarn32s word) { return std::ptrdiff_t{word} / 2 * bytes; };

    for (; *table != 0; table += 2) {
        const std::ptrdiff_t i = offset(table[0]);
        const std::ptrdiff_t j = offset(table[1]);
        P iLow = P::load(src + i);
        P iHigh = P::load(src + half + i);
        P jLow = P::load(src + j);
        P jHigh = P::load(src + half + j);
        P::zip(iLow, iHigh);
        P::zip(jLow, jHigh);
        jLow.storeTo(dst + i);
        jHigh.storeTo(dst + half + i);
        iLow.storeTo(dst + j);
        iHigh.storeTo(dst + half + j);
    }
    // The zero that ends the pairs is the first fixed point.
    do {
        const std::ptrdiff_t i = offset(*table);
        P low = P::load(src + i);
        P high = P::load(src + half + i);
        P::zip(low, high);
        low.storeTo(dst + i);
        high.storeTo(dst + half + i);
    } while (*++table != 0);
}

} // namespace

Tarn32s* tarns_createTabBitRevNorm(int order)
{
    const int quarter = quarterOf(order);
    Owned<Tarn32s[]> table = allocate<Tarn32s>(quarter + 1);
    if (table) {
        ReversedCounter reversed(order - 2);
        for (int i = 0; i < quarter; ++i, reversed.advance()) {
            table[i] = 2 * reversed.value();
        }
        table[quarter] = 0;
    }
    return table.release();
}

Tarn32s* tarns_createTabBitRev(int order)
{
    const int quarter = quarterOf(order);
    Owned<Tarn32s[]> table = allocate<Tarn32s>(quarter + 1);
    if (table) {
        int pairsEnd = 0;
        int fixedBegin = quarter;
        table[quarter] = 0;
        ReversedCounter reversed(order - 2);
        for (int i = 1; i < quarter; ++i) {
            reversed.advance();
            const int j = reversed.value();
            if (i < j) {
                table[pairsEnd++] = 4 * i;
                table[pairsEnd++] = 4 * j;
            } else if (i == j) {
                table[--fixedBegin] = 4 * i;
            }
        }
        table[pairsEnd] = 0;
    }
    return table.release();
}

#define TARN_DEFINE_REVERSAL_IN_PLACE(NAME, T, BYTES) \
    void NAME(T* pSrcDst, int N, const Tarn32s* table) { reverseBits<BYTES>(pSrcDst, pSrcDst, N, table); }
#define TARN_DEFINE_REVERSAL(NAME, T, BYTES) \
    void NAME(const T* pSrc, T* pDst, int N, const Tarn32s* table) { reverseBits<BYTES>(pSrc, pDst, N, table); }

TARN_DEFINE_REVERSAL_IN_PLACE(tarns_BitRev1_C, Tarn32fc, 8)
TARN_DEFINE_REVERSAL_IN_PLACE(tarns_BitRev1_Z, Tarn64fc, 16)
TARN_DEFINE_REVERSAL_IN_PLACE(tarns_BitRev1_D, Tarn64f, 8)
TARN_DEFINE_REVERSAL_IN_PLACE(tarns_BitRev1_4, void, 4)
TARN_DEFINE_REVERSAL_IN_PLACE(tarns_BitRev1_8, void, 8)
TARN_DEFINE_REVERSAL_IN_PLACE(tarns_BitRev1_16, void, 16)
TARN_DEFINE_REVERSAL(tarns_BitRev2_C, Tarn32fc, 8)
TARN_DEFINE_REVERSAL(tarns_BitRev2_Z, Tarn64fc, 16)
TARN_DEFINE_REVERSAL(tarns_BitRev2_S, Tarn32f, 4)
TARN_DEFINE_REVERSAL(tarns_BitRev2_D, Tarn64f, 8)
TARN_DEFINE_REVERSAL(tarns_BitRev2_4, void, 4)
TARN_DEFINE_REVERSAL(tarns_BitRev2_8, void, 8)
TARN_DEFINE_REVERSAL(tarns_BitRev2_16, void, 16)
