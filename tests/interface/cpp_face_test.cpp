// The C++ face answers what the C interface answers, frees what it makes, and throws what goes wrong.
#include "tarns.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numeric>
#include <vector>

namespace {

using Complex = std::complex<float>;

std::vector<float> ramp(std::size_t size)
{
    std::vector<float> values(size);
    std::iota(values.begin(), values.end(), 1.0F);
    return values;
}

TarnStatus statusOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const tarns::Error& error) {
        EXPECT_STREQ(error.what(), tarnGetStatusString(error.status()));
        return error.status();
    }
    return tarnStsNoErr;
}

TEST(CppFaceTest, ChoosesByTheTypesOfItsArguments)
{
    const std::array<std::int16_t, 4> a{30000, 1, -7, 5};
    const std::array<std::int16_t, 4> b{30000, 2, 4, -2};
    std::array<std::int16_t, 4> sum{};
    EXPECT_EQ(tarns::add(a, b, sum, 1), tarnStsNoErr);
    EXPECT_EQ(sum, (std::array<std::int16_t, 4>{30000, 2, -2, 2}));
    tarns::add(a, 1, sum, 0);
    EXPECT_EQ(sum, (std::array<std::int16_t, 4>{30001, 2, -6, 6}));
    tarns::sub(b, sum, 0); // in place, from the other
    EXPECT_EQ(sum, (std::array<std::int16_t, 4>{1, 0, -10, 8}));
    std::vector<float> converted(4);
    tarns::convert(sum, converted);
    EXPECT_EQ(converted, (std::vector<float>{1, 0, -10, 8}));
    std::vector<std::uint8_t> bytes{1};
    tarns::bitNot(bytes);
    EXPECT_EQ(bytes[0], 254);
}

TEST(CppFaceTest, TakesComplexNumbersOfTheStandard)
{
    std::vector<Complex> values{{1, 2}, {3, -4}};
    std::vector<float> magnitudes(2);
    tarns::mul(values, Complex(0, 1), values);
    EXPECT_EQ(values, (std::vector<Complex>{{-2, 1}, {4, 3}}));
    tarns::magnitude(values, magnitudes);
    EXPECT_FLOAT_EQ(magnitudes[1], 5);
    EXPECT_EQ(tarns::dotProd(values, values), Complex(3, -4) + Complex(7, 24));
}

TEST(CppFaceTest, AnswersResultsByValue)
{
    const std::vector<float> values{3, -1, 4, -1, 5};
    EXPECT_EQ(tarns::sum(values), 10.0F);
    EXPECT_EQ(tarns::mean(values, tarnAlgHintAccurate), 2.0F);
    const auto [highest, place] = tarns::maxIndx(values);
    EXPECT_EQ(highest, 5.0F);
    EXPECT_EQ(place, 4);
    const auto [low, high] = tarns::minMax(values);
    EXPECT_EQ(low, -1.0F);
    EXPECT_EQ(high, 5.0F);
}

TEST(CppFaceTest, RefusesSizesThatDifferAndWarnsByItsValue)
{
    const std::vector<float> values{1, 0};
    std::vector<float> quotients{7, 7};
    std::vector<float> longer(3);
    EXPECT_EQ(statusOf([&] { tarns::add(values, values, longer); }), tarnStsSizeErr);
    EXPECT_EQ(statusOf([&] { tarns::add(values, longer, quotients); }), tarnStsSizeErr);
    EXPECT_EQ(quotients, (std::vector<float>{7, 7}));
    EXPECT_EQ(tarns::div(values, values, quotients), tarnStsDivByZero);
    const std::vector<float> none;
    EXPECT_LT(statusOf([&] { tarns::sum(none); }), tarnStsNoErr);
}

template <class T>
void expectRoundTrip(int size, tarns::Scale scale)
{
    tarns::Fft<T> transform(size, scale);
    std::vector<T> samples(transform.size());
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<float>((i * 7 + 3) % 11);
    std::vector<typename tarns::Fft<T>::Bin> bins(transform.bins());
    std::vector<T> back(samples.size());
    transform.forward(samples, bins);
    transform.inverse(bins, back);
    for (std::size_t i = 0; i < samples.size(); ++i)
        ASSERT_LT(std::abs(back[i] - samples[i]), 1e-4F) << "of " << size << " at " << i;
    bins.push_back({});
    EXPECT_EQ(statusOf([&] { transform.forward(samples, bins); }), tarnStsSizeErr);
}

TEST(CppFaceTest, TransformsAnyLength)
{
    for (const int size : {1, 2, 12, 16, 45, 101, 1024}) {
        for (const auto scale : {tarns::Scale::forward, tarns::Scale::inverse, tarns::Scale::both}) {
            expectRoundTrip<float>(size, scale);
            expectRoundTrip<double>(size, scale);
            expectRoundTrip<Complex>(size, scale);
            expectRoundTrip<std::complex<double>>(size, scale);
        }
    }
    tarns::Fft<float> transform(12);
    std::vector<Complex> bins(transform.bins());
    transform.forward(std::vector<float>(12, 1.0F), bins);
    EXPECT_EQ(bins.front(), Complex(12));
    EXPECT_EQ(statusOf([] { tarns::Fft<float> impossible(-1); }), tarnStsSizeErr);

    tarns::Dct<double> cosine(9);
    std::vector<double> samples(9, 1.0);
    std::vector<double> coefficients(9);
    cosine.forward(samples, coefficients);
    EXPECT_NEAR(coefficients[0], 3, 1e-12);
    cosine.inverse(coefficients, coefficients);
    EXPECT_NEAR(coefficients[5], 1, 1e-12);

    const tarns::Hilbert analytic(64);
    std::vector<float> wave(64);
    std::vector<Complex> signal(64);
    for (std::size_t i = 0; i < wave.size(); ++i)
        wave[i] = std::cos(static_cast<float>(i) * 0.78539816F);
    analytic(wave, signal);
    EXPECT_NEAR(std::abs(signal[33]), 1, 1e-5);
}

TEST(CppFaceTest, FiltersStreamsInBlocks)
{
    const auto samples = ramp(40);
    const std::vector<float> taps{1, 2, 3};
    tarns::Fir<float> whole(taps);
    tarns::Fir<float> parts(taps);
    std::vector<float> expected(40);
    std::vector<float> filtered = samples;
    whole(samples, expected);
    EXPECT_EQ(expected[39], 40.0F + 2 * 39 + 3 * 38);
    for (std::size_t begin = 0; begin < 40; begin += 8) {
        const auto block = std::span(filtered).subspan(begin, 8);
        parts(block, block);
    }
    EXPECT_EQ(filtered, expected);

    std::vector<float> history(3);
    parts.delayLine(history);
    EXPECT_EQ(history, (std::vector<float>{40, 39, 38}));
    auto moved = std::move(parts);
    EXPECT_EQ(statusOf([&] { parts(samples, filtered); }), tarnStsNullPtrErr);
    moved.setDelayLine(std::vector<float>(3));
    moved.setTaps(std::vector<float>{0, 1, 0});
    moved(samples, filtered);
    EXPECT_EQ(filtered[0], 0.0F);
    EXPECT_EQ(filtered[39], 39.0F);
    EXPECT_EQ(statusOf([&] { moved.setTaps(std::vector<float>(2)); }), tarnStsSizeErr);

    tarns::Fir<std::int16_t> integer(taps);
    const std::vector<std::int16_t> words{1, 2, 3};
    std::vector<std::int16_t> answers(3);
    integer(words, answers, 1);
    EXPECT_EQ(answers, (std::vector<std::int16_t>{0, 2, 5})); // halves of 1, 4, 10, to even
}

TEST(CppFaceTest, FiltersRecursively)
{
    std::vector<double> response(6);
    response[0] = 1;
    tarns::Iir<double> decay(std::vector<double>{1}, std::vector<double>{1, -0.5});
    decay(response, response);
    EXPECT_EQ(response, (std::vector<double>{1, 0.5, 0.25, 0.125, 0.0625, 0.03125}));
    std::vector<double> delay(decay.delaySize());
    decay.delayLine(delay);
    EXPECT_EQ(delay, (std::vector<double>{0.015625}));

    tarns::Biquads<float> cascade(std::vector<float>{1, 0, 0, 1, -0.5F, 0, 2, 0, 0, 1, 0, 0});
    std::vector<float> pulse{1, 0, 0};
    cascade(pulse, pulse);
    EXPECT_EQ(pulse, (std::vector<float>{2, 1, 0.5F}));
    EXPECT_EQ(cascade.delaySize(), 4U);
    EXPECT_EQ(statusOf([] { tarns::Biquads<float> cut(std::vector<float>(7, 1.0F)); }), tarnStsSizeErr);
    EXPECT_EQ(statusOf([] {
                  tarns::Iir<float> zero(std::vector<float>{1, 1}, std::vector<float>{0, 1});
              }),
              tarnStsDivByZeroErr);
}

TEST(CppFaceTest, ChangesRates)
{
    tarns::Resampler<float> twice(std::vector<float>{1, 1}, 2, 1);
    std::vector<float> out(6);
    twice(std::vector<float>{1, 2, 3}, out);
    EXPECT_EQ(out, (std::vector<float>{1, 1, 2, 2, 3, 3}));
    EXPECT_EQ(statusOf([&] { twice(std::vector<float>{1, 2}, out); }), tarnStsSizeErr);
}

TEST(CppFaceTest, ConvolvesCorrelatesAndDesigns)
{
    const std::vector<float> a{1, 2, 3};
    const std::vector<float> b{1, -1};
    std::vector<float> product(4);
    tarns::convolve(a, b, product);
    EXPECT_EQ(product, (std::vector<float>{1, 1, 1, -3}));
    std::vector<float> lags(3);
    tarns::crossCorrelate(b, a, lags, -1);
    EXPECT_EQ(lags, (std::vector<float>{-1, -1, -1}));
    tarns::autoCorrelate(a, lags);
    EXPECT_EQ(lags, (std::vector<float>{14, 8, 3}));
    EXPECT_EQ(statusOf([&] { tarns::convolve(a, b, lags); }), tarnStsSizeErr);
    std::vector<double> taps(31);
    tarns::designLowpass(0.2, taps);
    EXPECT_NEAR(tarns::sum(taps), 1, 1e-12);
}

} // namespace
