// Kernels of Viterbi decoding around the step of the trellis: nearest points, errors of the symbols, metrics kept
// small.
#include "levels/coding/psviterbi.h"

#include "frame/simd_permute.h"

#include <array>

using namespace tarn;

namespace {

using Words = Pack<Tarn32s, 4>;

// -- The nearest points of the subsets --------------------------------------------------------------------------------

// Squared distances along one axis from points of the grid: those below and above, the second one above, the second
// one below.
TARN_INLINE Words squaredDistances(int offset)
{
    // c - x is the complement of x plus c + 1.
    const Words complemented = bitXor(splat<Words>(offset), lanesOf(0, -1, -1, 0));
    const Words distances = add(complemented, lanesOf(0, 257, 513, 256));
    const auto parts = reinterpretPack<Tarn16s>(distances);
    return shiftRight(mulAddPairs(parts, parts), 4);
}

TARN_INLINE Words withNumbers(Words error, int first)
{
    constexpr int place = 1 << 16;
    return bitOr(error, add(splat<Words>(first * place), lanesOf(0, place, 2 * place, 3 * place)));
}

// Four words to the subsets of a 2 x 2 part of the lattice, around from its lower left corner.
TARN_INLINE void storeAround(Words words, Tarn32u* pSubsetError, const Tarn8u* pSubsetMap, Tarn8u mask,
                             std::array<int, 2> columns, std::array<int, 4> rows)
{
    constexpr std::array<int, 4> right = {0, 1, 1, 0};
    std::array<Tarn32u, 4> values;
    store(values.data(), reinterpretPack<Tarn32u>(words));
    repeat<4>([&](auto k) __attribute__((always_inline)) {
        const int subset = pSubsetMap[columns[right[k]] + rows[k]] & mask;
        store(pSubsetError + subset, values[k]);
    });
}

template <int subsets>
TARN_INLINE void getVarPoint(const Tarn16sc* pSrc, Tarn16sc* pBasePoint, Tarn32u* pSubsetError,
                             const Tarn8u* pSubsetMap)
{
    const Tarn16sc point = loadElement(pSrc);
    const int dx = (point.re & 255) ^ 128;
    const int dy = (point.im & 255) ^ 128;
    const int baseRe = point.re - dx;
    const int baseIm = point.im - dy;
    store(pBasePoint, Tarn16sc{static_cast<Tarn16s>(baseRe), static_cast<Tarn16s>(baseIm)});

    const auto place = [](int base, int steps) { return (((base - 128) >> 8) + 258 + steps) & 3; };
    const std::array<int, 2> columns = {place(baseRe, 0), place(baseRe, 1)};
    const auto row = [&](int steps) { return 4 * place(baseIm, steps); };
    constexpr Tarn8u mask = subsets - 1;

    const Words x = squaredDistances(dx);
    const Words y = squaredDistances(dy);
    const Words corners = add(fourLanes<0, 1, 1, 0>(x), fourLanes<0, 0, 1, 1>(y));
    storeAround(withNumbers(corners, 0), pSubsetError, pSubsetMap, mask, columns, {row(0), row(0), row(1), row(1)});
    if constexpr (subsets == 8) {
        const Words first = add(fourLanes<0, 1, 2, 1>(x), fourLanes<2, 2, 1, 3>(y));
        const Words second = add(fourLanes<2, 3, 0, 3>(x), fourLanes<0, 0, 3, 1>(y));
        const Words nearest = tarn::select(less(first, second), withNumbers(first, 4), withNumbers(second, 8));
        storeAround(nearest, pSubsetError, pSubsetMap, mask, columns, {row(2), row(2), row(3), row(3)});
    }
}

// -- The errors of the symbols ----------------------------------------------------------------------------------------

// Entries of a branch table, the error above the code, and the subset errors turned round to the same order: sums of
// the halves are entries then. Of a point number the lower byte counts.
constexpr int halfWord = 16;

TARN_INLINE Words asSecond(Words subsetError)
{
    return bitOr(shiftLeft(subsetError, halfWord), shiftLeft(shiftRightLogical(subsetError, halfWord), 8));
}
TARN_INLINE Words asFirst(Tarn32u subsetError)
{
    return splat<Words>(static_cast<Tarn32s>(std::rotl(subsetError, halfWord)));
}

TARN_INLINE Words joined(Words first, Words second)
{
    return reinterpretPack<Tarn32s>(add(reinterpretPack<Tarn16s>(first), reinterpretPack<Tarn16s>(second)));
}

// The entries with the smaller errors; the earlier ones where they are equal.
TARN_INLINE Words better(Words earlier, Words later)
{
    const auto improves = greater(reinterpretPack<Tarn16s>(earlier), reinterpretPack<Tarn16s>(later));
    return tarn::select(shiftRight(reinterpretPack<Tarn32s>(improves), halfWord), later, earlier);
}

// The words from lane n on, and around.
template <int n>
TARN_INLINE Words turned(Words x)
{
    return fourLanes<n & 3, (n + 1) & 3, (n + 2) & 3, (n + 3) & 3>(x);
}

// Subsets of the first point, and four at a time of the second.
struct Pairs {
    const Tarn32u* first;
    std::array<Words, 2> second;

    TARN_INLINE Pairs(const Tarn32u* pSubsetError, int groups)
        : first(pSubsetError), second{group(pSubsetError + 8), group(pSubsetError + (groups == 2 ? 12 : 8))}
    {
    }
    static TARN_INLINE Words group(const Tarn32u* words)
    {
        return asSecond(reinterpretPack<Tarn32s>(loadPack<4>(words)));
    }

    // Subset a with each of a group: for entries k = 4 a and on, subset (k + a) & 3 of the group.
    template <int a, int groupOfSecond>
    TARN_INLINE Words with() const
    {
        return joined(asFirst(loadElement(first + a)), turned<a>(second[groupOfSecond]));
    }
    // Entries that differ by half the subsets in both points.
    template <int a>
    TARN_INLINE Words ofEight() const
    {
        return better(with<a, 0>(), with<(a + 4) & 7, 1>());
    }
};

TARN_INLINE void storeEntries(Tarn32u* p, Words entries) { store(p, reinterpretPack<Tarn32u>(entries)); }

// The general form, one entry at a time. What an inversion beyond the table's entries makes of a subset stays within
// the words that there are.
class Symbols {
public:
    explicit Symbols(const Tarn32u* words) : subsetErrors(words) {}

    void consider(int a, int b)
    {
        const Tarn32u first = word(a);
        const Tarn32u second = word(8 + b);
        const auto error = static_cast<Tarn16s>(static_cast<Tarn16u>(first) + static_cast<Tarn16u>(second));
        if (error < smallest) {
            smallest = error;
            code = static_cast<Tarn16u>((first >> halfWord) | (second >> halfWord << 8));
        }
    }
    Tarn32u entry() const { return static_cast<Tarn32u>(static_cast<Tarn16u>(smallest)) << halfWord | code; }

private:
    Tarn32u word(int i) const { return loadElement(subsetErrors + (i & 15)); }

    const Tarn32u* subsetErrors;
    int smallest = highest<Tarn16s> + 1; // of none yet
    Tarn16u code = 0;
};

// -- Metrics ----------------------------------------------------------------------------------------------------------

constexpr int mostStates = 64;
constexpr auto statesFromTheEnd = [] {
    std::array<Tarn16s, mostStates> numbers{};
    for (int i = 0; i < mostStates; ++i) {
        numbers[static_cast<std::size_t>(i)] = static_cast<Tarn16s>(mostStates - i);
    }
    return numbers;
}();

template <int states>
TARN_INLINE void updatePathMetrics(Tarn16u* pNewMetric, Tarn16u* pMinMetric, Tarn8u* pMinState, Tarn16u* pPathMetric)
{
    using Metrics = Pack<Tarn16u, states>;
    const Metrics metrics = loadPack<states>(pNewMetric);
    const auto ordered = moveOrder(metrics);
    const Tarn16s smallest = foldLanes(ordered, min);
    const auto isSmallest = equal(ordered, splat<Pack<Tarn16s, states>>(smallest));
    const Tarn16s fromTheEnd = foldLanes(bitAnd(isSmallest, loadPack<states>(statesFromTheEnd.data())), max);

    const Tarn16u smallestMetric = moveOrder(smallest);
    store(pPathMetric, sub(metrics, splat<Metrics>(smallestMetric)));
    store(pNewMetric, splat<Metrics>(highest<Tarn16u>));
    store(pMinMetric, smallestMetric);
    *pMinState = static_cast<Tarn8u>(mostStates - fromTheEnd);
}

} // namespace

void ownsGetVarPoint4_16sc(TARN_VAR_POINT_PARAMETERS) { getVarPoint<4>(pSrc, pBasePoint, pSubsetError, pSubsetMap); }
void ownsGetVarPoint8_16sc(TARN_VAR_POINT_PARAMETERS) { getVarPoint<8>(pSrc, pBasePoint, pSubsetError, pSubsetMap); }

void owntarnsBuild4DSymblTable16_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable)
{
    const Pairs pairs(pSubsetError, 1);
    storeEntries(pBranchTable, better(pairs.with<0, 0>(), pairs.with<2, 0>()));
    storeEntries(pBranchTable + 4, better(pairs.with<1, 0>(), pairs.with<3, 0>()));
}

void owntarnsBuild4DSymblTable32_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable)
{
    const Pairs pairs(pSubsetError, 2);
    storeEntries(pBranchTable, better(pairs.ofEight<2>(), pairs.ofEight<0>()));
    storeEntries(pBranchTable + 4, better(pairs.ofEight<3>(), pairs.ofEight<1>()));
    storeEntries(pBranchTable + 8, better(pairs.ofEight<4>(), pairs.ofEight<6>()));
    storeEntries(pBranchTable + 12, better(pairs.ofEight<5>(), pairs.ofEight<7>()));
}

void owntarnsBuild4DSymblTable64_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable)
{
    const Pairs pairs(pSubsetError, 2);
    repeat<8>([&](auto a) __attribute__((always_inline)) { storeEntries(pBranchTable + 4 * a, pairs.ofEight<a>()); });
}

void owntarnsBuild4DSymblTable_16sc(const Tarn32u* pSubsetError, Tarn32u* pBranchTable, int numStates, int bitInversion)
{
    const int entries = numStates == 16 ? 8 : numStates == 32 ? 16 : 32;
    for (int i = 0; i < entries; ++i) {
        Symbols symbols(pSubsetError);
        // Any inversion is taken as it is, so that sums of its bits may leave the range.
        const auto joined = [](int k, int a) {
            return static_cast<int>((static_cast<unsigned>(k) + static_cast<unsigned>(a)) & 3U);
        };
        const auto considerEight = [&](int k) {
            const int a = k >> 2;
            const int b = joined(k, a);
            symbols.consider(a, b);
            symbols.consider((a + 4) & 7, b + 4);
        };
        const int k = i ^ bitInversion;
        if (numStates == 16) {
            const int a = k >> 2;
            const int b = joined(k, a);
            symbols.consider(a, b);
            symbols.consider((a + 2) & 3, (b + 2) & 3);
        } else if (numStates == 32) {
            const int moved = static_cast<int>(static_cast<unsigned>(k) + 2U * static_cast<unsigned>(i & 8));
            considerEight(moved ^ 8);
            considerEight(moved);
        } else {
            considerEight(k);
        }
        store(pBranchTable + i, symbols.entry());
    }
}

void ownsUpdatePathMetrics16_16u(TARN_UPDATE_METRICS_PARAMETERS)
{
    updatePathMetrics<16>(pNewMetric, pMinMetric, pMinState, pPathMetric);
}
void ownsUpdatePathMetrics32_16u(TARN_UPDATE_METRICS_PARAMETERS)
{
    updatePathMetrics<32>(pNewMetric, pMinMetric, pMinState, pPathMetric);
}
void ownsUpdatePathMetrics64_16u(TARN_UPDATE_METRICS_PARAMETERS)
{
    updatePathMetrics<64>(pNewMetric, pMinMetric, pMinState, pPathMetric);
}
