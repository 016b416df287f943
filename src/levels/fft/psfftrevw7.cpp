// Bit reversal: the tables that tell what goes where, and the routines that move the elements.
#include "frame/object.h"
#include "frame/simd.h"
#include "levels/fft/psfft.h"
#include "levels/fft/psfft_tables.h"

#include <algorithm>
#include <bit>

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
    Pack<Tarn64f, 2> both;

    static TARN_INLINE Pair load(const Tarn8u* p) { return {loadPack<2>(reinterpret_cast<const Tarn64f*>(p))}; }
    TARN_INLINE void storeTo(Tarn8u* p) const { store(reinterpret_cast<Tarn64f*>(p), both); }
    static TARN_INLINE void zip(Pair& a, Pair& b)
    {
        const Complex<Pack<Tarn64f, 2>> halves = deinterleave(a.both, b.both);
        a.both = halves.re;
        b.both = halves.im;
    }
};

template <>
struct Pair<16> {
    Pack<Tarn64f, 2> first, second;

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
TARN_INLINE void reverseGroups(const Tarn8u* src, Tarn8u* dst, int size, const Tarn32s* table)
{
    using P = Pair<bytes>;
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

// Large arrays are moved in tiles of 8 rows, an eighth of the array apart, of 8 elements each: whole cache lines on
// both sides, where groups would touch every line several times, each time long after it has left the cache.
inline constexpr int tileSide = 8;
inline constexpr unsigned pageBytes = 4096;
inline constexpr int reversedOfEight[tileSide] = {0, 4, 2, 6, 1, 5, 3, 7};

// Rows of a tile, and how they are turned: as many rows as a register holds elements become as many columns.
template <int bytes>
class Tile {
public:
    using Mover = std::conditional_t<bytes == 4, Tarn32f, Tarn64f>;
    static constexpr int movers = bytes / static_cast<int>(sizeof(Mover));
    static constexpr int perVector = tarn::fft::blockBytes / bytes;
    using Row = Pack<Mover, perVector * movers>;

    // Writes the tile at `from`, reversed in both directions, to the tile at `to`; the strides are between rows.
    static TARN_INLINE void move(const Tarn8u* from, std::ptrdiff_t fromStride, Tarn8u* to, std::ptrdiff_t toStride)
    {
        for (int column = 0; column < tileSide; column += perVector) {
            for (int place = 0; place < tileSide; place += perVector) {
                std::array<Row, perVector> block;
                for (int i = 0; i < perVector; ++i) {
                    block[i] = load(from + reversedOfEight[place + i] * fromStride + column * bytes);
                }
                if constexpr (perVector > 1) {
                    block = transpose<Mover>(block);
                }
                for (int i = 0; i < perVector; ++i) {
                    put(to + reversedOfEight[column + i] * toStride + place * bytes, block[i]);
                }
            }
        }
    }

    // Rows that are in place within the tile.
    static TARN_INLINE void copy(const Tarn8u* from, Tarn8u* to, std::ptrdiff_t toStride)
    {
        for (int row = 0; row < tileSide; ++row) {
            for (int at = 0; at < tileSide * bytes; at += tarn::fft::blockBytes) {
                put(to + row * toStride + at, load(from + row * tileSide * bytes + at));
            }
        }
    }

private:
    static TARN_INLINE Row load(const Tarn8u* p)
    {
        return loadPack<perVector * movers>(reinterpret_cast<const Mover*>(p));
    }
    static TARN_INLINE void put(Tarn8u* p, Row x) { store(reinterpret_cast<Mover*>(p), x); }
};

// A tile is named by the middle bits of its elements' numbers, and its place is the reverse of its name. Tiles are
// moved in an order that goes through each page once, on both sides, while few enough are in use for the processor to
// translate their addresses from memory it has at hand: the bits that tell names or places within a page run fastest.
// Eight by eight tiles, the innermost, are eight cache lines in sequence on both sides. That order is not the table's,
// which is not needed here.
class Tiles {
public:
    struct Step {
        int name;
        int place;
    };

    // Those of an array of `size` elements, so many of which in sequence fill a page.
    Tiles(int size, unsigned tilesInPage)
        : middleBits(std::countr_zero(static_cast<unsigned>(size)) - 4 * outerBits),
          pageBits(std::min(std::countr_zero(tilesInPage) - outerBits, middleBits / 2))
    {
    }

    // fetch(step) for every tile, and move(step) some steps later, when memory has answered.
    template <typename Fetch, typename Move>
    TARN_INLINE void each(Fetch fetch, Move move) const
    {
        std::array<Step, ahead> pending{};
        unsigned count = 0;
        sequence([&](Step step) {
            fetch(step);
            Step& slot = pending[count % ahead];
            if (count++ >= ahead) {
                move(slot);
            }
            slot = step;
        });
        for (unsigned i = 0; i < ahead; ++i) {
            move(pending[(count + i) % ahead]);
        }
    }

private:
    static constexpr int outerBits = 3;
    static constexpr int outer = 1 << outerBits;
    static constexpr unsigned ahead = 8; // no more than there are tiles

    template <typename Use>
    TARN_INLINE void sequence(Use use) const
    {
        const int centreBits = middleBits - 2 * pageBits;
        ReversedCounter centreReversed(centreBits);
        for (int centre = 0; centre < 1 << centreBits; ++centre, centreReversed.advance()) {
            ReversedCounter bottomReversed(pageBits);
            for (int bottom = 0; bottom < 1 << pageBits; ++bottom, bottomReversed.advance()) {
                ReversedCounter topReversed(pageBits);
                for (int top = 0; top < 1 << pageBits; ++top, topReversed.advance()) {
                    const int name = join(top, centre, bottom);
                    const int place = join(bottomReversed.value(), centreReversed.value(), topReversed.value());
                    const int outermost = middleBits + outerBits;
                    for (int low = 0; low < outer; ++low) {
                        for (int high = 0; high < outer; ++high) {
                            use(Step{(high << outermost) | name | low,
                                     (reversedOfEight[low] << outermost) | place | reversedOfEight[high]});
                        }
                    }
                }
            }
        }
    }

    // The middle bits in their place.
    TARN_INLINE int join(int top, int centre, int bottom) const
    {
        return ((((top << (middleBits - 2 * pageBits)) | centre) << pageBits) | bottom) << outerBits;
    }

    int middleBits;
    int pageBits;
};

template <int bytes>
TARN_INLINE void reverseTiles(const Tarn8u* src, Tarn8u* dst, int size)
{
    constexpr std::ptrdiff_t tileBytes = tileSide * bytes;
    const std::ptrdiff_t stride = size / tileSide * bytes;
    const auto fetch = [stride](const Tarn8u* tile) {
        for (int row = 0; row < tileSide; ++row) {
            prefetch(tile + row * stride);
        }
    };
    const Tiles tiles(size, pageBytes / tileBytes);
    if (src != dst) {
        tiles.each([&](Tiles::Step step) { fetch(src + step.name * tileBytes); },
                   [&](Tiles::Step step) {
                       Tile<bytes>::move(src + step.name * tileBytes, stride, dst + step.place * tileBytes, stride);
                   });
        return;
    }
    alignas(64) Tarn8u held[tileSide * tileSide * bytes];
    tiles.each(
        [&](Tiles::Step step) {
            if (step.name < step.place) {
                fetch(dst + step.name * tileBytes);
            }
        },
        [&](Tiles::Step step) {
            Tarn8u* i = dst + step.name * tileBytes;
            Tarn8u* j = dst + step.place * tileBytes;
            if (step.name <= step.place) {
                Tile<bytes>::move(i, stride, held, tileBytes);
                if (step.name < step.place) {
                    Tile<bytes>::move(j, stride, i, stride);
                }
                Tile<bytes>::copy(held, j, stride);
            }
        });
}

// From here on tiles pay; it is the smallest size whose names have high and low bits.
inline constexpr int tiledSize = 4096;

template <int bytes>
TARN_INLINE void reverseBits(const void* from, void* to, int size, const Tarn32s* table)
{
    const auto* src = static_cast<const Tarn8u*>(from);
    auto* dst = static_cast<Tarn8u*>(to);
    if (size >= tiledSize) {
        reverseTiles<bytes>(src, dst, size);
    } else if (size >= 4) {
        reverseGroups<bytes>(src, dst, size, table);
    }
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
