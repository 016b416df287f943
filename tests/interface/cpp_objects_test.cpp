// Objects of the C++ face that learn, split bands and decode: what they answer, free and refuse.
#include "tarns.hpp"

#include <gtest/gtest.h>

#include "tests/model/trellis.h"

#include <cmath>
#include <cstring>
#include <functional>
#include <numeric>
#include <vector>

namespace {

TarnStatus statusOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const tarns::Error& error) {
        return error.status();
    }
    return tarnStsNoErr;
}

std::vector<float> noise(std::size_t size)
{
    std::vector<float> values(size);
    unsigned state = 1;
    for (float& value : values) {
        state = state * 1664525U + 1013904223U;
        value = static_cast<float>(static_cast<int>(state >> 8) - (1 << 23)) / static_cast<float>(1 << 23);
    }
    return values;
}

TEST(CppObjectsTest, LearnsTapsByBlocks)
{
    const auto samples = noise(4000);
    std::vector<float> reference(4000);
    std::vector<float> output(4000);
    tarns::Fir<float>(std::vector<float>{0.5F, 0, -0.25F})(samples, reference);
    tarns::Lms<float> filter(3);
    tarns::Lms<float> other(std::vector<float>{0, 0, 0});
    filter(samples, reference, output, 0.05F);
    std::vector<float> taps(filter.size());
    filter.taps(taps);
    EXPECT_NEAR(taps[0], 0.5, 1e-5);
    EXPECT_NEAR(taps[1], 0, 1e-5);
    EXPECT_NEAR(taps[2], -0.25, 1e-5);
    // Taps and delay line handed on: the other filter answers the same from there.
    other(samples, reference, output, 0.05F);
    std::vector<float> line(3);
    const int oldest = filter.delayLine(line);
    other.setDelayLine(line, oldest);
    std::vector<float> again(4000);
    filter(samples, reference, output, 0.05F);
    other(samples, reference, again, 0.05F);
    EXPECT_EQ(output, again);
    EXPECT_EQ(statusOf([&] { filter(samples, taps, output, 0.05F); }), tarnStsSizeErr);
    EXPECT_EQ(statusOf([&] { filter.taps(output); }), tarnStsSizeErr);
    EXPECT_EQ(statusOf([&] { filter.setDelayLine(output, 0); }), tarnStsSizeErr);
    EXPECT_EQ(statusOf([] { tarns::Lms<float> none(0); }), tarnStsSizeErr);
    auto moved = std::move(filter);
    EXPECT_EQ(statusOf([&] { filter(samples, reference, output, 0.05F); }), tarnStsNullPtrErr);
    moved(samples, reference, output, 0.05F);

    tarns::Lms<std::int16_t> words(std::vector<float>{65536.0F});
    std::vector<std::int16_t> in{100, -200, 300};
    std::vector<std::int16_t> out(3);
    words(in, in, out, 0);
    EXPECT_EQ(out, in);
}

TEST(CppObjectsTest, LearnsInFixedPointByCallsOfItsOwn)
{
    tarns::FixedLms<std::int16_t> filter(std::vector<std::int32_t>{0}, 200000);
    int output = 0;
    for (int n = 0; n < 100; ++n) {
        output = filter(10000) >> 15;
        filter.update(5000 - output);
    }
    EXPECT_EQ(output, 5000);
    std::vector<std::int32_t> taps(1);
    filter.taps(taps);
    EXPECT_NEAR(taps[0] / 65536, 16384, 4);
    filter.setMu(0);
    filter.update(1000);
    filter.put(20000);
    EXPECT_EQ(filter.output() >> 15, 10000);
    filter.setTaps(std::vector<std::int32_t>{1 << 30});
    EXPECT_EQ(filter.output(), 20000 << 14);
    EXPECT_EQ(statusOf([&] { filter.setTaps(std::vector<std::int32_t>(2)); }), tarnStsSizeErr);

    tarns::FixedLms<Tarn16sc> complex(std::vector<Tarn32sc>{{0, 1 << 16}, {0, 0}}, 0, 3, 2);
    EXPECT_EQ(complex.delaySize(), 2U + 2 * 3);
    EXPECT_EQ(complex({5, 7}).re, -7);
    std::vector<Tarn16sc> line(complex.delaySize());
    const int oldest = complex.delayLine(line);
    complex.put({1, 1});
    complex.setDelayLine(line, oldest);
    EXPECT_EQ(complex.output().im, 5);
    EXPECT_EQ(statusOf([] { tarns::FixedLms<Tarn16sc> wrong(std::vector<Tarn32sc>(1), 0, 0); }), tarnStsSizeErr);
}

/// Haar's filters: what is split comes back a sample late.
template <class T>
void expectBank(const std::vector<T>& samples)
{
    const std::vector<float> h0{0.5F, 0.5F}, h1{0.5F, -0.5F}, g0{1, 1}, g1{-1, 1};
    tarns::WaveletSplit<T> split({h0}, {h1});
    tarns::WaveletJoin<T> join({g0}, {g1});
    std::vector<float> low(samples.size() / 2), high(low.size());
    std::vector<T> back(samples.size());
    for (std::size_t begin = 0; begin < samples.size(); begin += 4) {
        const auto lows = std::span(low).subspan(begin / 2, 2), highs = std::span(high).subspan(begin / 2, 2);
        split(std::span(samples).subspan(begin, 4), lows, highs);
        join(lows, highs, std::span(back).subspan(begin, 4));
    }
    EXPECT_EQ(std::vector<T>(back.begin() + 1, back.end()), std::vector<T>(samples.begin(), samples.end() - 1));
    EXPECT_EQ(split.lowDelaySize(), 1U);
    EXPECT_EQ(join.highDelaySize(), 0U);
    std::vector<float> line(1), other(1), none;
    split.delayLines(line, other);
    EXPECT_EQ(line[0], static_cast<float>(samples.back()));
    split.setDelayLines(std::vector<float>{2}, std::vector<float>{2});
    join.delayLines(none, none);
    split(std::span(samples).first(4), std::span(low).first(2), std::span(high).first(2));
    EXPECT_EQ(low[0], (2 + static_cast<float>(samples[0])) / 2);
    EXPECT_EQ(statusOf([&] { split.delayLines(none, line); }), tarnStsSizeErr);
    EXPECT_EQ(statusOf([&] { split(samples, low, line); }), tarnStsSizeErr);
    EXPECT_EQ(statusOf([&] { join(low, high, std::span(back).first(4)); }), tarnStsSizeErr);
}

TEST(CppObjectsTest, SplitsAndJoinsBands)
{
    expectBank<float>({8, 16, 24, 8, 0, -8, 40, 8});
    expectBank<std::int16_t>({8, 16, 24, 8, 0, -8, 40, 8});
    expectBank<std::int8_t>({8, 16, 24, 8, 0, -8, 40, 8});
    expectBank<std::uint8_t>({8, 16, 24, 8, 0, 8, 40, 8});
    expectBank<std::uint16_t>({8, 16, 24, 8, 0, 8, 40, 8});
    EXPECT_EQ(statusOf([] {
                  tarns::WaveletSplit<float> wrong({std::vector<float>(2, 1.0F), -2}, {std::vector<float>(2, 1.0F)});
              }),
              tarnStsWtOffsetErr);
}

TEST(CppObjectsTest, DecodesTrellisCodes)
{
    for (const int states : {16, 32, 64}) {
        const tarn::test::model::TrellisCode code(states);
        tarn::test::model::Bits bits(40 * code.bitsOfSymbol);
        unsigned seed = 1;
        for (auto& bit : bits) {
            seed = seed * 1664525U + 1013904223U;
            bit = static_cast<Tarn8u>(seed >> 31);
        }
        auto points = code.encode(bits);
        const auto sent = points;
        for (auto& point : points) { // noise, which alone would put every tenth point next door
            seed = seed * 1664525U + 1013904223U;
            point.re = static_cast<Tarn16s>(point.re + static_cast<int>(seed >> 24) - 128);
            seed = seed * 1664525U + 1013904223U;
            point.im = static_cast<Tarn16s>(point.im + static_cast<int>(seed >> 24) - 128);
        }
        tarns::TrellisDecoder decoder(states, code.map, code.next);
        for (std::size_t n = 0; n < points.size(); n += 2)
            decoder(points[n], points[n + 1]);
        ASSERT_EQ(decoder.size(), 40U);
        std::vector<int> path;
        const auto decoded = decoder.points(&path);
        tarn::test::model::Bits received;
        for (std::size_t n = 0; n < 40; ++n)
            code.decode(path[n], decoded[2 * n], decoded[2 * n + 1], received);
        EXPECT_EQ(received, bits) << states << " states";
        ASSERT_EQ(decoded.size(), sent.size());
        EXPECT_EQ(decoded[0].re, sent[0].re);
        decoder.restart();
        EXPECT_EQ(decoder.size(), 0U);
    }
    EXPECT_EQ(statusOf([] { tarns::TrellisDecoder wrong(8, std::vector<Tarn8u>(16), std::vector<Tarn8u>(16)); }),
              tarnStsSizeErr);
    tarns::TrellisDecoder empty;
    EXPECT_EQ(statusOf([&] { empty({}, {}); }), tarnStsNullPtrErr);
}

/// A filter of taps 1, 2, 3 for every type of samples with taps of every type that goes with it.
template <class T, class Tap>
void expectFilters(std::vector<T> samples, const std::vector<T>& filtered)
{
    tarns::Fir<T, Tap> fir(std::vector<Tap>{1, 2, 3});
    tarns::Biquads<T, Tap> sections(std::vector<Tap>{1, 2, 3, 1, 0, 0});
    tarns::Iir<T, Tap> order(std::vector<Tap>{1, 2, 3}, std::vector<Tap>{1});
    tarns::Resampler<T, Tap> same(std::vector<Tap>{1, 2, 3}, 1, 1);
    const auto run = [&](auto& filter) {
        std::vector<T> out(samples.size());
        filter(samples, out);
        for (std::size_t i = 0; i < out.size(); ++i)
            EXPECT_EQ(std::memcmp(&out[i], &filtered[i], sizeof(T)), 0) << i;
    };
    run(fir);
    run(sections);
    run(order);
    run(same);
    std::vector<T> line(3);
    fir.delayLine(line);
    EXPECT_EQ(std::memcmp(&line[0], &samples.back(), sizeof(T)), 0);
}

TEST(CppObjectsTest, FiltersAllPairsOfTypes)
{
    expectFilters<float, double>({1, 2, 3}, {1, 4, 10});
    expectFilters<std::int16_t, double>({1, 2, 3}, {1, 4, 10});
    expectFilters<std::int32_t, double>({1, 2, 3}, {1, 4, 10});
    expectFilters<std::complex<float>, std::complex<double>>({{1, 0}, {2, 1}, {3, 0}}, {{1, 0}, {4, 1}, {10, 2}});
    expectFilters<Tarn16sc, std::complex<float>>({{1, 0}, {2, 1}, {3, 0}}, {{1, 0}, {4, 1}, {10, 2}});
    expectFilters<Tarn16sc, std::complex<double>>({{1, 0}, {2, 1}, {3, 0}}, {{1, 0}, {4, 1}, {10, 2}});
    expectFilters<Tarn32sc, std::complex<double>>({{1, 0}, {2, 1}, {3, 0}}, {{1, 0}, {4, 1}, {10, 2}});
}

} // namespace
