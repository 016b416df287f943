// Prints what docs/coding.md shows. `laws`: for sines of every level the ratio of signal to noise after A-law, mu-law
// and eight linear bits. `viterbi [FRAMES]`: for ratios of signal to noise the share of wrong bits of 256 points
// without a code, and of the same points with trellis codes of 16, 32 and 64 states.
#include "tests/support/trellis_decoder.h"

#include <tarns.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

namespace {

using tarn::test::TrellisDecoder;
using tarn::test::model::Bits;
using tarn::test::model::TrellisCode;

// -- Companding -------------------------------------------------------------------------------------------------------

double ratio(const std::vector<Tarn16s>& signal, const std::vector<Tarn16s>& coded)
{
    double power = 0;
    double noise = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        power += std::pow(signal[i], 2);
        noise += std::pow(signal[i] - coded[i], 2);
    }
    return 10 * std::log10(power / std::max(noise, 1e-9));
}

std::vector<Tarn16s> throughLaw(const std::vector<Tarn16s>& signal, TarnStatus (*encode)(const Tarn16s*, Tarn8u*, int),
                                TarnStatus (*decode)(const Tarn8u*, Tarn16s*, int))
{
    const int len = static_cast<int>(signal.size());
    std::vector<Tarn8u> codes(signal.size());
    std::vector<Tarn16s> decoded(signal.size());
    encode(signal.data(), codes.data(), len);
    decode(codes.data(), decoded.data(), len);
    return decoded;
}

void printLaws()
{
    constexpr std::size_t len = 16384;
    for (double level = -66; level <= 0; level += 0.25) {
        std::vector<Tarn16s> signal(len);
        std::vector<Tarn16s> linear(len);
        for (std::size_t i = 0; i < len; ++i) {
            const double x = 32124 * std::pow(10, level / 20) * std::sin(0.6180339887 * static_cast<double>(i));
            signal[i] = static_cast<Tarn16s>(std::lrint(x));
            linear[i] = static_cast<Tarn16s>(std::clamp(256 * std::lrint(x / 256), -32768L, 32512L));
        }
        std::printf(
            "%g %g %g %g\n", level, ratio(signal, throughLaw(signal, tarnsLinToALaw_16s8u, tarnsALawToLin_8u16s)),
            ratio(signal, throughLaw(signal, tarnsLinToMuLaw_16s8u, tarnsMuLawToLin_8u16s)), ratio(signal, linear));
    }
}

// -- Trellis codes ----------------------------------------------------------------------------------------------------

constexpr double step = 256;
constexpr std::size_t symbolsOfFrame = 2000;
constexpr int enoughErrors = 2000;

using Generator = std::mt19937_64;

std::vector<Tarn16sc> throughChannel(std::vector<Tarn16sc> points, double deviation, Generator& random)
{
    std::normal_distribution<double> noise(0, deviation);
    for (Tarn16sc& point : points) {
        point.re = static_cast<Tarn16s>(std::lrint(point.re + noise(random)));
        point.im = static_cast<Tarn16s>(std::lrint(point.im + noise(random)));
    }
    return points;
}

/// Points are named so that neighbours differ in one bit: a decision for a neighbour is one wrong bit.
double withoutCode(double deviation, int frames, Generator& random)
{
    const auto grayOf = [](int x) {
        const int i = std::clamp((x + 8 * 256) >> 8, 0, TrellisCode::side - 1);
        return i ^ (i >> 1);
    };
    double wrong = 0;
    double all = 0;
    for (int frame = 0; frame < frames && wrong < enoughErrors; ++frame) {
        std::vector<Tarn16sc> sent(2 * symbolsOfFrame);
        for (Tarn16sc& point : sent)
            point = TrellisCode::pointAt(static_cast<int>(random() % 16), static_cast<int>(random() % 16));
        const auto received = throughChannel(sent, deviation, random);
        for (std::size_t i = 0; i < sent.size(); ++i) {
            const int re = grayOf(sent[i].re) ^ grayOf(received[i].re);
            const int im = grayOf(sent[i].im) ^ grayOf(received[i].im);
            wrong += __builtin_popcount(static_cast<unsigned>(re)) + __builtin_popcount(static_cast<unsigned>(im));
        }
        all += 8.0 * static_cast<double>(sent.size());
    }
    return wrong / all;
}

double withCode(const TrellisCode& code, double deviation, int frames, Generator& random)
{
    TrellisDecoder decoder(code);
    double wrong = 0;
    double all = 0;
    for (int frame = 0; frame < frames && wrong < enoughErrors; ++frame) {
        Bits bits(symbolsOfFrame * TrellisCode::bitsOfSymbol);
        for (Tarn8u& bit : bits)
            bit = static_cast<Tarn8u>(random() & 1);
        const Bits decoded = decoder.decode(throughChannel(code.encode(bits), deviation, random));
        for (std::size_t i = 0; i < bits.size(); ++i)
            wrong += bits[i] != decoded[i] ? 1 : 0;
        all += static_cast<double>(bits.size());
    }
    return wrong / all;
}

void printViterbi(int frames)
{
    // The power of 256 points, and that of the noise, which is in both parts.
    const double power = 2 * (TrellisCode::side * TrellisCode::side - 1) / 12.0 * step * step;
    const TrellisCode codes[] = {TrellisCode(16), TrellisCode(32), TrellisCode(64)};
    for (double decibels = 23; decibels <= 33; decibels += 0.25) {
        const double deviation = std::sqrt(power / 2) * std::pow(10, -decibels / 20);
        Generator random(1);
        std::printf("%g %g", decibels, withoutCode(deviation, frames, random));
        for (const TrellisCode& code : codes)
            std::printf(" %g", withCode(code, deviation, frames, random));
        std::printf("\n");
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "laws") == 0) {
        printLaws();
    } else if (argc > 1 && std::strcmp(argv[1], "viterbi") == 0) {
        printViterbi(argc > 2 ? std::max(1, std::atoi(argv[2])) : 100);
    } else {
        std::fputs("usage: coding_curves laws | viterbi [FRAMES]\n", stderr);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
