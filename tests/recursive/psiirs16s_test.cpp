// IIR calls on 16-bit data without a state: single samples to the bit, blocks within the precision they are computed
// in.
#include "model/iir.h"
#include "support/checks.h"
#include "support/compare.h"
#include "support/hard_values.h"
#include "support/memory_watch.h"
#include "support/ordered_checks.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace tarn::test {
namespace {

using Words = std::vector<Tarn16s>;
using Line = std::vector<Tarn32s>;

// -- Single samples, in integers that wrap ----------------------------------------------------------------------------

Tarn32s wrap(long long x) { return static_cast<Tarn32s>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(x))); }

// x 2^-s to the nearest, ties to even or upward: what is added for it wraps, too, and the sum is rounded down.
Tarn32s roundedShift(Tarn32s x, int s, bool isEven)
{
    const long long unit = 1LL << s;
    const auto down = [=](long long v) { return v >= 0 ? v / unit : -((unit - 1 - v) / unit); };
    const bool isOdd = down(x) % 2 != 0;
    return s == 0 ? x : wrap(down(wrap(x + unit / 2 - (isEven && !isOdd ? 1 : 0))));
}

Tarn16s clamped(Tarn32s y) { return static_cast<Tarn16s>(std::clamp(y, -32768, 32767)); }

Tarn16s modelOne(Tarn16s x, const Words& taps, int order, Line& d)
{
    const auto n = static_cast<std::size_t>(order);
    const int s = taps[n + 1];
    if (order == 0)
        return clamped(roundedShift(taps[0] * x, s, false));
    const Tarn32s y = roundedShift(wrap(static_cast<long long>(taps[0]) * x + d[0]), s, true);
    for (std::size_t j = 0; j < n; ++j)
        d[j] = wrap(static_cast<long long>(taps[j + 1]) * x - static_cast<long long>(taps[n + 2 + j]) * y +
                    (j + 1 < n ? d[j + 1] : 0));
    return clamped(y);
}

Tarn16s modelOneCascade(Tarn16s x, const Words& taps, int numBq, Line& d)
{
    Tarn32s w = x;
    for (std::size_t i = 0; i < static_cast<std::size_t>(numBq); ++i) {
        const auto tap = [&](std::size_t k) { return static_cast<long long>(taps[6 * i + k]); };
        const Tarn32s y = roundedShift(wrap(tap(0) * w + d[2 * i]), taps[6 * i + 3], true);
        d[2 * i] = wrap(tap(1) * w + d[2 * i + 1] - tap(4) * y);
        d[2 * i + 1] = wrap(tap(2) * w - tap(5) * y);
        w = y;
    }
    return clamped(w);
}

Words randomWords(std::size_t n, std::uint64_t seed, int most)
{
    Random random(seed);
    Words words(n);
    for (Tarn16s& word : words)
        word = static_cast<Tarn16s>(static_cast<int>(random.below(2 * static_cast<unsigned>(most) + 1)) - most);
    return words;
}

Line randomLine(std::size_t n, std::uint64_t seed, int most)
{
    Line line;
    for (Tarn16s word : randomWords(n, seed, most))
        line.push_back(word * 3);
    return line;
}

TEST(IirDirectTest, FiltersSamplesInIntegers)
{
    for (int order : {0, 1, 2, 3, 5, 9}) {
        const auto n = static_cast<std::size_t>(order);
        for (int s : {0, 1, 2, 5, 14, 15, 30}) {
            for (int most : {3, 32767}) { // ties are frequent, and sums wrap
                auto taps = randomWords(2 * n + 2, 7 + n, most);
                taps[n + 1] = static_cast<Tarn16s>(s);
                Line expected = randomLine(n + 1, 9, most);
                Line line = expected;
                Line inPlaceLine = expected;
                for (Tarn16s x : randomWords(60, 3, most)) {
                    const Tarn16s y = modelOne(x, taps, order, expected);
                    Tarn16s out = 99;
                    ASSERT_EQ(tarnStsNoErr, tarnsIIROne_Direct_16s(x, &out, taps.data(), order, line.data()));
                    ASSERT_EQ(y, out) << order << ", 2^-" << s;
                    ASSERT_EQ(expected, line) << order << ", 2^-" << s;
                    Tarn16s both = x;
                    ASSERT_EQ(tarnStsNoErr, tarnsIIROne_Direct_16s_I(&both, taps.data(), order, inPlaceLine.data()));
                    ASSERT_EQ(y, both);
                    ASSERT_EQ(expected, inPlaceLine);
                }
            }
        }
    }
}

TEST(IirDirectTest, RoundsGainsUpwardAndFiltersToEven)
{
    Line line = {0};
    Tarn16s out = 0;
    const Words gain = {1, 1};
    const Words filter = {1, 0, 1, 0};
    for (const auto& [x, up, even] : std::vector<std::array<Tarn16s, 3>>{
             {1, 1, 0}, {3, 2, 2}, {5, 3, 2}, {-1, 0, 0}, {-3, -1, -2}, {-5, -2, -2}, {4, 2, 2}}) {
        tarnsIIROne_Direct_16s(x, &out, gain.data(), 0, line.data());
        EXPECT_EQ(up, out) << x;
        tarnsIIROne_Direct_16s(x, &out, filter.data(), 1, line.data());
        EXPECT_EQ(even, out) << x;
    }
}

TEST(IirDirectTest, FiltersSamplesByCascades)
{
    for (int numBq : {1, 2, 3, 4}) {
        const auto n = static_cast<std::size_t>(numBq);
        for (int s : {0, 1, 3, 15, 30}) {
            for (int most : {3, 32767}) {
                auto taps = randomWords(6 * n, 5 + n, most);
                for (std::size_t i = 0; i < n; ++i)
                    taps[6 * i + 3] = static_cast<Tarn16s>(i % 2 == 0 ? s : 2);
                Line expected = randomLine(2 * n, 9, most);
                Line line = expected;
                Line inPlaceLine = expected;
                for (Tarn16s x : randomWords(40, 3, most)) {
                    const Tarn16s y = modelOneCascade(x, taps, numBq, expected);
                    Tarn16s out = 99;
                    ASSERT_EQ(tarnStsNoErr, tarnsIIROne_BiQuadDirect_16s(x, &out, taps.data(), numBq, line.data()));
                    ASSERT_EQ(y, out) << numBq << ", 2^-" << s;
                    ASSERT_EQ(expected, line);
                    Tarn16s both = x;
                    ASSERT_EQ(tarnStsNoErr,
                              tarnsIIROne_BiQuadDirect_16s_I(&both, taps.data(), numBq, inPlaceLine.data()));
                    ASSERT_EQ(y, both);
                    ASSERT_EQ(expected, inPlaceLine);
                }
            }
        }
    }
}

// -- Blocks -----------------------------------------------------------------------------------------------------------

// Decaying filters: the numerators are small, the denominators halve what they keep.
Words decayingTaps(int order, int s, std::uint64_t seed)
{
    const auto n = static_cast<std::size_t>(order);
    const int unit = 1 << s;
    Words taps = randomWords(2 * n + 2, seed, std::max(unit / 2, 1));
    taps[n + 1] = static_cast<Tarn16s>(s);
    for (std::size_t k = 1; k <= n; ++k)
        taps[n + 1 + k] = static_cast<Tarn16s>(k % 2 == 1 ? unit / (2 * order) : -unit / (3 * order));
    return taps;
}

iir::Number value(Tarn16s x, int s) { return std::ldexp(static_cast<iir::Wide>(x), -s); }

void expectBlock(const iir::Filter& filter, const std::vector<int>& exponents, const Words& in, const Words& out,
                 const Line& before, const Line& after)
{
    iir::Numbers signal;
    for (Tarn16s x : in)
        signal.push_back(x);
    iir::Numbers lines;
    for (std::size_t j = 0; j < before.size(); ++j)
        lines.push_back(std::ldexp(static_cast<iir::Wide>(before[j]), -exponents[j]));
    const auto exact = iir::run(filter, signal, lines);
    for (std::size_t i = 0; i < out.size(); ++i) {
        const auto y = std::clamp<iir::Wide>(exact[i].real(), -32768, 32767);
        ASSERT_NEAR(static_cast<double>(y), out[i], 0.6) << i;
    }
    for (std::size_t j = 0; j < after.size(); ++j) {
        const auto d = static_cast<double>(std::ldexp(lines[j].real(), exponents[j]));
        ASSERT_NEAR(d, after[j], 0.6 + std::fabs(d) * 1e-4 + std::ldexp(0.05, exponents[j])) << j;
    }
}

TEST(IirDirectTest, FiltersBlocks)
{
    for (int order : {0, 1, 2, 3, 4, 6}) {
        const auto n = static_cast<std::size_t>(order);
        for (int s : {0, 4, 14}) {
            const auto taps = s == 0 && order > 0 ? Words(2 * n + 2, 0) : decayingTaps(order, s, 3 + n);
            iir::Section section;
            for (std::size_t k = 0; k <= n; ++k)
                section.b.push_back(value(taps[k], s));
            for (std::size_t k = 1; k <= n; ++k)
                section.a.push_back(value(taps[n + 1 + k], s));
            for (int len : {1, 4 * order + 1, 300, 2500}) {
                const auto in = randomWords(static_cast<std::size_t>(len), 1, 20000);
                const Line before = randomLine(n + 1, 9, 5000);
                Line line = before;
                GuardedArray<Tarn16s> out(in.size(), Placement::atEnd());
                ASSERT_EQ(tarnStsNoErr,
                          tarnsIIR_Direct_16s(in.data(), out.data(), len, taps.data(), order, line.data()));
                EXPECT_EQ(before[n], line[n]) << "beyond the delay line";
                expectBlock({section}, std::vector<int>(n, s), in, out.copy(), Line(before.begin(), before.end() - 1),
                            Line(line.begin(), line.end() - 1));
                Line again = before;
                auto inPlace = in;
                ASSERT_EQ(tarnStsNoErr, tarnsIIR_Direct_16s_I(inPlace.data(), len, taps.data(), order, again.data()));
                EXPECT_TRUE(arraysMatch(inPlace, out));
                EXPECT_EQ(line, again);
            }
        }
    }
}

TEST(IirDirectTest, FiltersBlocksByCascades)
{
    for (int numBq : {1, 2, 3}) {
        const auto n = static_cast<std::size_t>(numBq);
        Words taps;
        iir::Filter filter;
        std::vector<int> exponents;
        for (std::size_t i = 0; i < n; ++i) {
            const int s = i == 1 ? 6 : 13; // each section has its own
            const auto one = decayingTaps(2, s, 3 + i);
            taps.insert(taps.end(), one.begin(), one.end());
            filter.push_back(
                {{value(one[0], s), value(one[1], s), value(one[2], s)}, {value(one[4], s), value(one[5], s)}});
            exponents.insert(exponents.end(), 2, s);
        }
        for (int len : {1, 4 * numBq, 4 * numBq + 1, 300, 2500}) {
            const auto in = randomWords(static_cast<std::size_t>(len), 1, 20000);
            const Line before = randomLine(2 * n, 9, 500);
            Line line = before;
            GuardedArray<Tarn16s> out(in.size(), Placement::atEnd());
            ASSERT_EQ(tarnStsNoErr,
                      tarnsIIR_BiQuadDirect_16s(in.data(), out.data(), len, taps.data(), numBq, line.data()));
            expectBlock(filter, exponents, in, out.copy(), before, line);
            Line again = before;
            auto inPlace = in;
            ASSERT_EQ(tarnStsNoErr, tarnsIIR_BiQuadDirect_16s_I(inPlace.data(), len, taps.data(), numBq, again.data()));
            EXPECT_TRUE(arraysMatch(inPlace, out));
            EXPECT_EQ(line, again);
        }
    }
}

// Without a recursion, or without rounding, blocks give what single samples give, ties included.
TEST(IirDirectTest, AgreesWithSamplesWhereNothingIsLost)
{
    for (const Words& taps : {Words{1, 3, -1, 1, 0, 0}, Words{1, 1, 2, 0, 1, 1}}) {
        const auto in = randomWords(40, 4, 50);
        Line line = {3, -2};
        Line singly = line;
        Words out(in.size());
        tarnsIIR_Direct_16s(in.data(), out.data(), 40, taps.data(), 2, line.data());
        for (std::size_t i = 0; i < in.size(); ++i) {
            Tarn16s y = 0;
            tarnsIIROne_Direct_16s(in[i], &y, taps.data(), 2, singly.data());
            ASSERT_EQ(y, out[i]) << i;
        }
        EXPECT_EQ(singly, line);
    }
}

// -- Checks -----------------------------------------------------------------------------------------------------------

struct DirectCall {
    Words data = Words(20, 100);
    Words taps = {1, 2, 3, 1, 1, 1, 1, 2, 3, 1, 1, 1};
    Line line = Line(4, 5);
    const Tarn16s* src = data.data();
    Tarn16s* dst = data.data();
    int len = 20;
    const Tarn16s* pTaps = taps.data();
    int n = 2;
    Tarn32s* pLine = line.data();

    DirectCall() = default;
    DirectCall(const DirectCall&) = delete;
    DirectCall& operator=(const DirectCall&) = delete;
    void unchanged(TarnStatus status) const
    {
        if (status != tarnStsNoErr) {
            EXPECT_EQ(Words(20, 100), data);
            EXPECT_EQ(Line(4, 5), line);
        }
    }
};

struct Block : DirectCall {
    TarnStatus operator()() const
    {
        const TarnStatus status = tarnsIIR_Direct_16s(src, dst, len, pTaps, n, pLine);
        unchanged(status);
        return status;
    }
};
struct BlockInPlace : DirectCall {
    TarnStatus operator()() const { return tarnsIIR_Direct_16s_I(dst, len, pTaps, n, pLine); }
};
struct One : DirectCall {
    TarnStatus operator()() const { return tarnsIIROne_Direct_16s(5, dst, pTaps, n, pLine); }
};
struct OneInPlace : DirectCall {
    TarnStatus operator()() const { return tarnsIIROne_Direct_16s_I(dst, pTaps, n, pLine); }
};
struct Cascade : DirectCall {
    TarnStatus operator()() const
    {
        const TarnStatus status = tarnsIIR_BiQuadDirect_16s(src, dst, len, pTaps, n, pLine);
        unchanged(status);
        return status;
    }
};
struct CascadeInPlace : DirectCall {
    TarnStatus operator()() const { return tarnsIIR_BiQuadDirect_16s_I(dst, len, pTaps, n, pLine); }
};
struct OneCascade : DirectCall {
    TarnStatus operator()() const { return tarnsIIROne_BiQuadDirect_16s(5, dst, pTaps, n, pLine); }
};
struct OneCascadeInPlace : DirectCall {
    TarnStatus operator()() const { return tarnsIIROne_BiQuadDirect_16s_I(dst, pTaps, n, pLine); }
};

template <class Call>
void expectDirectOrder(int badOrder, bool hasSource, bool hasLength)
{
    static int bad;
    bad = badOrder;
    std::vector<OrderedFault<Call>> faults = {{[](Call& c) { c.n = bad; }, tarnStsIIROrderErr},
                                              {[](Call& c) { c.dst = nullptr; }, tarnStsNullPtrErr},
                                              {[](Call& c) { c.pTaps = nullptr; }, tarnStsNullPtrErr},
                                              {[](Call& c) { c.pLine = nullptr; }, tarnStsNullPtrErr},
                                              {[](Call& c) { c.taps[3] = -1; }, tarnStsScaleRangeErr}};
    if (hasSource)
        faults.insert(faults.begin() + 1, {[](Call& c) { c.src = nullptr; }, tarnStsNullPtrErr});
    if (hasLength) {
        faults.push_back({[](Call& c) { c.len = 0; }, tarnStsSizeErr});
        faults.push_back({[](Call& c) { c.len = -1; }, tarnStsSizeErr});
    }
    expectOrder<Call>(faults);
}

TEST(IirDirectTest, ChecksOrdersThenPointersThenExponents)
{
    for (int bad : {-1, INT_MIN}) {
        expectDirectOrder<Block>(bad, true, true);
        expectDirectOrder<BlockInPlace>(bad, false, true);
        expectDirectOrder<One>(bad, false, false);
        expectDirectOrder<OneInPlace>(bad, false, false);
    }
    for (int bad : {0, -1, INT_MIN}) {
        expectDirectOrder<Cascade>(bad, true, true);
        expectDirectOrder<CascadeInPlace>(bad, false, true);
        expectDirectOrder<OneCascade>(bad, false, false);
        expectDirectOrder<OneCascadeInPlace>(bad, false, false);
    }
}

// A single sample has passed the sections in front of a bad exponent; a block has passed none.
TEST(IirDirectTest, FindsBadExponentsOfSectionsAsItGetsThere)
{
    const Words taps = {1, 2, 3, 0, 1, 1, 1, 2, 3, -1, 1, 1};
    Line line = {5, 6, 7, 8};
    Tarn16s out = 99;
    EXPECT_EQ(tarnStsScaleRangeErr, tarnsIIROne_BiQuadDirect_16s(10, &out, taps.data(), 2, line.data()));
    EXPECT_EQ(99, out);
    EXPECT_EQ((Line{20 + 6 - 15, 30 - 15, 7, 8}), line);
    const Line before = line;
    Words block(10, 1);
    EXPECT_EQ(tarnStsScaleRangeErr, tarnsIIR_BiQuadDirect_16s_I(block.data(), 10, taps.data(), 2, line.data()));
    EXPECT_EQ(tarnStsScaleRangeErr, tarnsIIR_BiQuadDirect_16s_I(block.data(), 0, taps.data(), 2, line.data()));
    EXPECT_EQ(before, line);
    EXPECT_EQ(Words(10, 1), block);
}

TEST(IirDirectTest, ReportsLackOfMemory)
{
    if (!canRefuseMemory)
        return;
    const Words taps = {1, 2, 3, 0, 1, 1};
    Line line = {5, 6};
    Words data(10, 1);
    TarnStatus order = tarnStsNoErr;
    TarnStatus sections = tarnStsNoErr;
    {
        MemoryWatch watch(0);
        order = tarnsIIR_Direct_16s_I(data.data(), 10, taps.data(), 2, line.data());
        sections = tarnsIIR_BiQuadDirect_16s_I(data.data(), 10, taps.data(), 1, line.data());
    }
    EXPECT_EQ(tarnStsNoMemErr, order);
    EXPECT_EQ(tarnStsNoMemErr, sections);
    EXPECT_EQ((Line{5, 6}), line);
    EXPECT_EQ(Words(10, 1), data);
    int outstanding = -1;
    {
        MemoryWatch watch;
        tarnsIIR_Direct_16s_I(data.data(), 10, taps.data(), 2, line.data());
        tarnsIIR_BiQuadDirect_16s_I(data.data(), 10, taps.data(), 1, line.data());
        outstanding = watch.outstanding();
    }
    EXPECT_EQ(0, outstanding);
}

} // namespace
} // namespace tarn::test
