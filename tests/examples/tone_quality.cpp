// How clean a tone is: reads signed 16-bit PCM of one channel from standard input, finds by least squares the sine of
// the given frequency in it, and prints its level and that of all the rest, in dB relative to a full-scale sine.
//
//     tone_quality RATE FREQUENCY SKIPPED            leaves out so many samples at either end
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

std::vector<double> readSamples()
{
    std::vector<double> samples;
    std::int16_t sample = 0;
    while (std::fread(&sample, sizeof sample, 1, stdin) == 1)
        samples.push_back(sample / 32768.0);
    return samples;
}

double decibels(double power) { return 10 * std::log10(2 * power + 1e-30); }

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
        return EXIT_FAILURE;
    const double step = 2 * 3.14159265358979323846 * std::atof(argv[2]) / std::atof(argv[1]);
    const auto skipped = static_cast<std::size_t>(std::atoi(argv[3]));
    const auto samples = readSamples();
    if (samples.size() < 2 * skipped + 100)
        return EXIT_FAILURE;
    const std::size_t end = samples.size() - skipped;
    // The normal equations of a cosine and a sine.
    double cc = 0, ss = 0, cs = 0, xc = 0, xs = 0;
    for (std::size_t i = skipped; i < end; ++i) {
        const double c = std::cos(step * static_cast<double>(i));
        const double s = std::sin(step * static_cast<double>(i));
        cc += c * c;
        ss += s * s;
        cs += c * s;
        xc += samples[i] * c;
        xs += samples[i] * s;
    }
    const double determinant = cc * ss - cs * cs;
    const double a = (xc * ss - xs * cs) / determinant;
    const double b = (xs * cc - xc * cs) / determinant;
    double rest = 0;
    for (std::size_t i = skipped; i < end; ++i) {
        const double phase = step * static_cast<double>(i);
        const double error = samples[i] - a * std::cos(phase) - b * std::sin(phase);
        rest += error * error;
    }
    const double tone = decibels((a * a + b * b) / 2);
    const double noise = decibels(rest / static_cast<double>(end - skipped));
    std::printf("tone %.4f dB rest %.2f dB ratio %d dB\n", tone, noise, static_cast<int>(std::floor(tone - noise)));
    return EXIT_SUCCESS;
}
