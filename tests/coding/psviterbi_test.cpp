// The steps of a Viterbi decoder against plain models, with tables and metrics of all kinds.
#include "tarns/viterbi.h"

#include "model/viterbi.h"
#include "support/checks.h"
#include "support/compare.h"
#include "support/guarded.h"
#include "support/hard_values.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace tarn::test {
namespace {

using Map = std::array<Tarn8u, 16>;

// Numbers of states other than 16 and 32 stand for 64 where arrays have the sizes of the trellis.
constexpr int stateCounts[] = {16, 32, 64, 48, 0, -16, INT_MAX};

Placement placeAt(unsigned turn)
{
    return turn % 3 == 0 ? Placement::atEnd() : turn % 3 == 1 ? Placement::atStart() : Placement::offset(turn % 16);
}

// -- Nearest points ---------------------------------------------------------------------------------------------------

// Each subset around a cell once, as a lattice of eight cosets has them; for four the lower two bits are what counts.
constexpr Map lattice = {0, 1, 4, 5, 3, 2, 7, 6, 4, 5, 0, 1, 7, 6, 3, 2};

void expectVarPoint(Tarn16sc point, const Map& map, int numStates, unsigned turn = 0)
{
    const model::VarPoint expected = model::varPoint(point, map, numStates);
    const GuardedArray<Tarn16sc> src(std::span(&point, 1), placeAt(turn));
    const GuardedArray<Tarn16sc> base(1, placeAt(turn + 1));
    const GuardedArray<Tarn32u> errors(8, placeAt(turn + 2));
    const std::vector<Tarn32u> before = errors.copy();
    const GuardedArray<Tarn8u> subsets(map, placeAt(turn));
    ASSERT_EQ(tarnStsNoErr, tarnsGetVarPointDV_16sc(src.data(), base.data(), errors.data(), subsets.data(), numStates));
    EXPECT_EQ(expected.base.re, base.get(0).re) << toText(point);
    EXPECT_EQ(expected.base.im, base.get(0).im) << toText(point);
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(expected.isSet[i] ? expected.words[i] : before[i], errors.get(i))
            << "subset " << i << " of " << toText(point) << " for " << numStates << " states";
}

TEST(ViterbiPoints, EveryOffsetInACell)
{
    for (const int numStates : {16, 64}) {
        for (int re = -256; re < 256; re += 5)
            for (int im = -256; im < 256; im += 7)
                expectVarPoint({static_cast<Tarn16s>(re), static_cast<Tarn16s>(im)}, lattice, numStates);
    }
}

TEST(ViterbiPoints, AllOverTheRange)
{
    Random random(1);
    Map anyMap{};
    for (unsigned turn = 0; turn < 4000; ++turn) {
        for (Tarn8u& subset : anyMap)
            subset = static_cast<Tarn8u>(random.next());
        Tarn16sc point{static_cast<Tarn16s>(random.next()), static_cast<Tarn16s>(random.next())};
        if (turn % 16 == 0)
            point.re = turn % 32 == 0 ? -32768 : 32767;
        if (turn % 24 == 0)
            point.im = turn % 48 == 0 ? -32768 : 32767;
        // What the call does to a subset that several places name depends on their order.
        expectVarPoint(point, turn % 2 == 0 ? lattice : anyMap, stateCounts[turn % std::size(stateCounts)], turn);
    }
}

std::array<Tarn32u, 8> errorsAt(Tarn16sc point, int numStates)
{
    std::array<Tarn32u, 8> errors;
    errors.fill(0xABCDEF01);
    Tarn16sc base;
    EXPECT_EQ(tarnStsNoErr, tarnsGetVarPointDV_16sc(&point, &base, errors.data(), lattice.data(), numStates));
    return errors;
}

TEST(ViterbiPoints, OnAPointOfTheConstellation)
{
    // At 128 - 512 the column is 0 and the row is 0, so that the lower corners of the cell are subsets 0 and 1.
    const auto errors = errorsAt({128 - 512, 128 - 512}, 64);
    EXPECT_EQ(0U, errors[0]);
    EXPECT_EQ(1U << 16 | 4096U, errors[1]);
    EXPECT_EQ(2U << 16 | 8192U, errors[2]);
    EXPECT_EQ(3U << 16 | 4096U, errors[3]);
}

TEST(ViterbiPoints, InTheMiddleOfACell)
{
    const auto errors = errorsAt({256 - 512, 256 - 512}, 32);
    for (Tarn32u s = 0; s < 4; ++s)
        EXPECT_EQ(s << 16 | 2048U, errors[s]);
    // All the others are as far on the one side as on the other, and the second candidate is kept.
    for (Tarn32u s = 4; s < 8; ++s)
        EXPECT_LE(8U, errors[s] >> 16);
}

TEST(ViterbiPoints, SixteenStatesHaveFourSubsets)
{
    const auto errors = errorsAt({1000, -777}, 16);
    for (std::size_t s = 4; s < 8; ++s)
        EXPECT_EQ(0xABCDEF01, errors[s]);
}

// -- Branch tables ----------------------------------------------------------------------------------------------------

void expectTable(const std::array<Tarn32u, 16>& errors, int numStates, int inversion, unsigned turn)
{
    const auto expected = model::symbolTable(errors, numStates, inversion);
    const GuardedArray<Tarn32u> src(errors, placeAt(turn));
    const GuardedArray<Tarn32u> table(expected.size(), placeAt(turn + 1));
    ASSERT_EQ(tarnStsNoErr, tarnsBuildSymblTableDV4D_16sc(src.data(), table.data(), numStates, inversion));
    ASSERT_TRUE(arraysMatch<Tarn32u>(expected, table))
        << numStates << " states, inversion " << inversion << ", turn " << turn;
}

// Errors as they come, as large as makes sums wrap, and few different ones, so that many are equal.
std::array<Tarn32u, 16> subsetErrors(Random& random, unsigned turn)
{
    constexpr Tarn32u masks[] = {0x7FFF, 0xFFFF, 0x3, 0x8001};
    std::array<Tarn32u, 16> words{};
    for (Tarn32u& word : words) {
        const auto bits = static_cast<Tarn32u>(random.next());
        const Tarn32u number = turn % 5 == 0 ? bits >> 24 : (bits >> 16) % 12;
        word = number << 16 | (bits & masks[turn % std::size(masks)]);
    }
    return words;
}

TEST(ViterbiSymbols, TablesAgreeWithTheModel)
{
    Random random(2);
    for (unsigned turn = 0; turn < 3000; ++turn) {
        const int numStates = stateCounts[turn % std::size(stateCounts)];
        expectTable(subsetErrors(random, turn), numStates, 0, turn);
    }
}

// Every inversion that leaves the subsets of an index among those that there are.
TEST(ViterbiSymbols, BitInversion)
{
    Random random(3);
    for (unsigned turn = 0; turn < 64; ++turn) {
        for (const int numStates : {16, 32, 64, 48}) {
            const int inversions = numStates == 16 || numStates == 32 ? 16 : 32;
            for (int inversion = 0; inversion < inversions; ++inversion)
                expectTable(subsetErrors(random, turn), numStates, inversion, turn);
        }
    }
}

TEST(ViterbiSymbols, AnyOtherInversionStaysWithinTheArrays)
{
    for (const int numStates : {16, 32, 64}) {
        for (const int inversion : {64, -1, INT_MIN, INT_MAX, 0x12345678}) {
            const GuardedArray<Tarn32u> errors(16, Placement::atEnd());
            const GuardedArray<Tarn32u> table(static_cast<std::size_t>(model::entriesOf(numStates)),
                                              Placement::atEnd());
            EXPECT_EQ(tarnStsNoErr, tarnsBuildSymblTableDV4D_16sc(errors.data(), table.data(), numStates, inversion));
        }
    }
}

// -- The step of the trellis ------------------------------------------------------------------------------------------

struct Trellis {
    int numStates;
    std::vector<Tarn16u> metrics;
    std::vector<Tarn8u> next;
    std::vector<Tarn16u> newMetrics;
    std::vector<Tarn32u> table;
    int offset = 0;
};

void expectStep(const Trellis& t, unsigned turn)
{
    const auto states = static_cast<std::size_t>(std::max(t.numStates, 0));
    const GuardedArray<Tarn32u> survivors(static_cast<std::size_t>(t.offset) + states, placeAt(turn));
    std::vector<Tarn32u> expectedSurvivors = survivors.copy();
    std::vector<Tarn16u> expected = t.newMetrics;
    model::calcStates(t.metrics, t.next, expected, t.table, expectedSurvivors, t.numStates, t.offset);

    const GuardedArray<Tarn16u> metrics(t.metrics, placeAt(turn + 1));
    const GuardedArray<Tarn8u> next(t.next, placeAt(turn + 2));
    const GuardedArray<Tarn16u> newMetrics(t.newMetrics, placeAt(turn));
    const GuardedArray<Tarn32u> table(t.table, placeAt(turn + 1));
    ASSERT_EQ(tarnStsNoErr, tarnsCalcStatesDV_16sc(metrics.data(), next.data(), newMetrics.data(), table.data(),
                                                   survivors.data(), t.numStates, t.offset));
    const std::string what = std::to_string(t.numStates) + " states, turn " + std::to_string(turn);
    ASSERT_TRUE(arraysMatch<Tarn16u>(expected, newMetrics, {}, what));
    ASSERT_TRUE(arraysMatch<Tarn32u>(expectedSurvivors, survivors, {}, what));
}

/// Metrics and errors with only these bits.
struct Masks {
    unsigned metric;
    unsigned error;
};

Trellis randomTrellis(Random& random, int numStates, Masks masks)
{
    Trellis t{numStates, {}, {}, {}, {}, static_cast<int>(random.next() % 70)};
    const auto states = static_cast<std::size_t>(std::max(numStates, 0));
    const int branches = model::branchesOf(numStates);
    for (std::size_t s = 0; s < states; ++s)
        t.metrics.push_back(static_cast<Tarn16u>(random.next() & masks.metric));
    for (std::size_t k = 0; k < states * static_cast<std::size_t>(branches); ++k)
        t.next.push_back(static_cast<Tarn8u>(random.next() % states));
    t.newMetrics.assign(states, 65535);
    for (int e = 0; e < 2 * branches; ++e)
        t.table.push_back(static_cast<Tarn32u>((random.next() & masks.error) << 16 | (random.next() & 0x0B0B)));
    return t;
}

// Small errors as in use, equal ones, ones below 0, metrics at their upper bound, where no candidate wins.
constexpr Masks masks[] = {{0x3FFF, 0x3FFF}, {0x7, 0x3}, {0xFFFF, 0x7FFF}, {0x00FF, 0xFFFF}, {0xFFFF, 0xFFFF},
                           {0xFFF0, 0x0010}, {0, 0}};

TEST(ViterbiStates, StepsAgreeWithTheModel)
{
    Random random(4);
    for (unsigned turn = 0; turn < 1400; ++turn) {
        constexpr int counts[] = {16, 32, 64, 64, 48, 1, 17, 100, 0, -5};
        Trellis t = randomTrellis(random, counts[turn % std::size(counts)], masks[turn % std::size(masks)]);
        // Metrics that are there already have to be gone below.
        if (turn % 4 == 3)
            for (Tarn16u& metric : t.newMetrics)
                metric = static_cast<Tarn16u>(random.next() & masks[turn % std::size(masks)].metric);
        expectStep(t, turn);
    }
}

TEST(ViterbiStates, OneEntryBelowZero)
{
    Random random(5);
    for (const int numStates : {16, 32, 64}) {
        for (int e = 0; e < model::entriesOf(numStates); ++e) {
            Trellis t = randomTrellis(random, numStates, {0x03FF, 0x01FF});
            t.table[static_cast<std::size_t>(e)] = 0xFF000304; // -256
            expectStep(t, static_cast<unsigned>(e));
        }
    }
}

TEST(ViterbiStates, OfEqualMetricsTheFirstStays)
{
    for (const int numStates : {16, 32, 64}) {
        Trellis t{numStates, {}, {}, {}, {}, 0};
        const int branches = model::branchesOf(numStates);
        t.metrics.assign(static_cast<std::size_t>(numStates), 5);
        t.next.assign(static_cast<std::size_t>(numStates * branches), 3);
        t.newMetrics.assign(static_cast<std::size_t>(numStates), 65535);
        for (int e = 0; e < 2 * branches; ++e)
            t.table.push_back(static_cast<Tarn32u>(7 << 16 | e));
        t.metrics[0] = t.metrics[1] = 6;
        expectStep(t, 0);
        std::vector<Tarn32u> survivors(static_cast<std::size_t>(numStates), 1);
        ASSERT_EQ(tarnStsNoErr, tarnsCalcStatesDV_16sc(t.metrics.data(), t.next.data(), t.newMetrics.data(),
                                                       t.table.data(), survivors.data(), numStates, 0));
        EXPECT_EQ(12, t.newMetrics[3]);
        EXPECT_EQ(65535, t.newMetrics[2]);
        EXPECT_EQ(2U << 16 | 0U, survivors[3]); // state 2, which is even, and its first branch
        EXPECT_EQ(1U, survivors[2]);
    }
}

TEST(ViterbiStates, RowsBeforeTheFirst)
{
    Random random(6);
    const Trellis t = randomTrellis(random, 16, masks[0]);
    std::vector<Tarn32u> forwards(16, 9);
    std::vector<Tarn32u> backwards(32, 9);
    std::vector<Tarn16u> first = t.newMetrics;
    std::vector<Tarn16u> second = t.newMetrics;
    tarnsCalcStatesDV_16sc(t.metrics.data(), t.next.data(), first.data(), t.table.data(), forwards.data(), 16, 0);
    tarnsCalcStatesDV_16sc(t.metrics.data(), t.next.data(), second.data(), t.table.data(), backwards.data() + 16, 16,
                           -16);
    backwards.resize(16);
    EXPECT_EQ(forwards, backwards);
}

// -- Metrics ----------------------------------------------------------------------------------------------------------

void expectUpdate(const std::vector<Tarn16u>& values, int numStates, unsigned turn)
{
    const auto smallest = std::min_element(values.begin(), values.end());
    std::vector<Tarn16u> differences;
    for (const Tarn16u value : values)
        differences.push_back(static_cast<Tarn16u>(value - *smallest));

    const GuardedArray<Tarn16u> newMetrics(values, placeAt(turn));
    const GuardedArray<Tarn16u> minimum(1, placeAt(turn + 1));
    const GuardedArray<Tarn8u> state(1, placeAt(turn + 2));
    const GuardedArray<Tarn16u> metrics(values.size(), placeAt(turn + 1));
    ASSERT_EQ(tarnStsNoErr,
              tarnsUpdatePathMetricsDV_16u(newMetrics.data(), minimum.data(), state.data(), metrics.data(), numStates));
    EXPECT_EQ(*smallest, minimum.get(0));
    EXPECT_EQ(smallest - values.begin(), state.get(0));
    EXPECT_TRUE(arraysMatch<Tarn16u>(differences, metrics));
    EXPECT_TRUE(arraysMatch<Tarn16u>(std::vector<Tarn16u>(values.size(), 65535), newMetrics));
}

TEST(ViterbiMetrics, SmallestOfAll)
{
    Random random(7);
    for (unsigned turn = 0; turn < 3000; ++turn) {
        const int numStates = stateCounts[turn % std::size(stateCounts)];
        std::vector<Tarn16u> values(numStates == 16 || numStates == 32 ? static_cast<std::size_t>(numStates) : 64);
        const unsigned high = turn % 4 == 0 ? 0x8000U : 0;
        for (Tarn16u& value : values)
            value = static_cast<Tarn16u>((random.next() & (turn % 2 == 0 ? 0xFFFFU : 0x7U)) | high);
        expectUpdate(values, numStates, turn);
    }
}

TEST(ViterbiMetrics, OneStateIsBest)
{
    for (const int numStates : {16, 32, 64}) {
        for (std::size_t best = 0; best < static_cast<std::size_t>(numStates); ++best) {
            for (const int level : {32768, 32767, 0, 65534}) {
                std::vector<Tarn16u> values(static_cast<std::size_t>(numStates), static_cast<Tarn16u>(level + 1));
                values[best] = static_cast<Tarn16u>(level);
                expectUpdate(values, numStates, static_cast<unsigned>(best));
            }
        }
    }
}

TEST(ViterbiMetrics, AllEqual)
{
    for (const int numStates : stateCounts)
        for (const int level : {0, 1, 32768, 65535})
            expectUpdate(
                std::vector<Tarn16u>(numStates == 16 || numStates == 32 ? static_cast<std::size_t>(numStates) : 64U,
                                     static_cast<Tarn16u>(level)),
                numStates, 0);
}

TEST(Viterbi, ChecksOfPointers)
{
    for (const int numStates : {16, 32, 64, 0, -1}) {
        expectChecks(tarnsGetVarPointDV_16sc, {}, array, array, array, array, numStates);
        expectChecks(tarnsBuildSymblTableDV4D_16sc, {}, array, array, numStates, 0);
        expectChecks(tarnsBuildSymblTableDV4D_16sc, {}, array, array, numStates, 1);
        expectChecks(tarnsUpdatePathMetricsDV_16u, {}, array, array, array, array, numStates);
    }
    // The buffers are as long as the tables of 32 states.
    for (const int numStates : {16, 32, 0, -1})
        expectChecks(tarnsCalcStatesDV_16sc, {}, array, array, array, array, array, numStates, 5);
}

} // namespace
} // namespace tarn::test
