// FIR design: taps against windowed ideal responses, gains at the reference frequencies, responses in both bands.
#include "tarns.h"

#include "model/windows.h"
#include "support/compare.h"
#include "support/memory_watch.h"
#include "support/ordered_checks.h"

#include <cmath>
#include <complex>
#include <limits>
#include <vector>

namespace tarn::test {
namespace {

enum class Shape { lowpass, highpass, bandpass, bandstop };
constexpr Shape allShapes[] = {Shape::lowpass, Shape::highpass, Shape::bandpass, Shape::bandstop};
constexpr int allWindows[] = {0, 1, 2, 3, 4, -1};

TarnStatus designed(Shape shape, double low, double high, Tarn64f* taps, int len, int window, int normal)
{
    switch (shape) {
    case Shape::lowpass:
        return tarnsFIRGenLowpass_64f(low, taps, len, window, normal);
    case Shape::highpass:
        return tarnsFIRGenHighpass_64f(low, taps, len, window, normal);
    case Shape::bandpass:
        return tarnsFIRGenBandpass_64f(low, high, taps, len, window, normal);
    default:
        return tarnsFIRGenBandstop_64f(low, high, taps, len, window, normal);
    }
}

constexpr long double truePi = 3.141592653589793238462643383279502884L;

long double sinc(long double f, long double m) { return std::sin(2 * truePi * f * m) / (truePi * m); }

/// The ideal response at a distance left of the centre.
long double idealTap(Shape shape, long double low, long double high, long double m, bool odd)
{
    if (m == 0) {
        switch (shape) {
        case Shape::lowpass:
            return 2 * low;
        case Shape::highpass:
            return 1 - 2 * low;
        case Shape::bandpass:
            return 2 * (high - low);
        default:
            return 1 - 2 * (high - low);
        }
    }
    switch (shape) {
    case Shape::lowpass:
        return sinc(low, m);
    case Shape::highpass:
        return odd ? -sinc(low, m) : std::cos(2 * truePi * low * m) / (truePi * m);
    case Shape::bandpass:
        return sinc(high, m) - sinc(low, m);
    default:
        return sinc(low, m) - sinc(high, m);
    }
}

long double windowWeight(int window, int n, int len)
{
    switch (window) {
    case 0:
        return model::trueWeight(model::Window::bartlett, n, len, 0);
    case 1: {
        const long double root = 0.5L / std::cos(truePi / (len - 1));
        return model::trueWeight(model::Window::blackman, n, len, -root * root);
    }
    case 2:
        return model::trueWeight(model::Window::hamming, n, len, 0);
    case 3:
        return model::trueWeight(model::Window::hann, n, len, 0);
    default:
        return 1;
    }
}

std::vector<long double> idealTaps(Shape shape, double low, double high, int len, int window, bool normal)
{
    const bool odd = len % 2 != 0;
    std::vector<long double> taps(static_cast<std::size_t>(len));
    for (int i = 0; i <= (len - 1) / 2; ++i) {
        const long double m = (len - 1) / 2.0L - i;
        const long double weight = odd && m == 0 ? 1 : windowWeight(window, i, len);
        const long double tap = weight * idealTap(shape, low, high, m, odd);
        taps[static_cast<std::size_t>(len - 1 - i)] = shape == Shape::highpass && !odd ? -tap : tap;
        taps[static_cast<std::size_t>(i)] = tap;
    }
    if (!normal)
        return taps;
    const long double freq = shape == Shape::highpass   ? 0.5L
                             : shape == Shape::bandpass ? (static_cast<long double>(low) + high) / 2
                                                        : 0;
    // The amplitude, phase taken out: a cosine sum, or a sine sum for taps of opposite signs.
    long double gain = 0;
    for (int i = 0; i < len; ++i) {
        const long double m = (len - 1) / 2.0L - i;
        const long double angle = 2 * truePi * freq * m;
        gain +=
            taps[static_cast<std::size_t>(i)] * (shape == Shape::highpass && !odd ? std::sin(angle) : std::cos(angle));
    }
    for (auto& tap : taps)
        tap /= std::fabs(gain);
    return taps;
}

// Every tap. The tone of h + 1 samples drifts by at most 2 h units of the last place over the sine of its angle of two
// steps (see there), the window by h^2 of them; a tap is 2 f or less, so that this is an absolute bound. Normalisation
// divides by a gain which is not small in these designs.
void expectTaps(Shape shape, double low, double high, int len, int window, int normal)
{
    std::vector<Tarn64f> taps(static_cast<std::size_t>(len));
    ASSERT_EQ(tarnStsNoErr, designed(shape, low, high, taps.data(), len, window, normal));
    const auto ideal = idealTaps(shape, low, high, len, window, normal != 0);
    const double epsilon = std::numeric_limits<double>::epsilon();
    const double h = len / 2.0 + 2;
    const bool single = shape == Shape::lowpass || shape == Shape::highpass;
    const double sine =
        std::min(std::fabs(std::sin(4 * model::pi * low)), single ? 1.0 : std::fabs(std::sin(4 * model::pi * high)));
    const double bound = 16 * epsilon * (h / std::max(sine, 1 / h) + h * h) * (normal != 0 ? 4 : 1);
    for (std::size_t i = 0; i < taps.size(); ++i)
        ASSERT_NEAR(static_cast<double>(ideal[i]), taps[i], bound)
            << "shape " << static_cast<int>(shape) << ", " << len << " taps from " << low << " to " << high
            << ", window " << window << ", normalised " << normal << ": tap " << i;
}

// A band-stop of an even number has hardly any gain at 0, and all the less the longer it is: no tap passes what lies
// outside the band.
bool hasGain(Shape shape, int len) { return shape != Shape::bandstop || len % 2 != 0; }

TEST(FirDesign, TapsAreWindowedIdealResponses)
{
    for (const Shape shape : allShapes)
        for (const int window : allWindows)
            for (int len = 5; len <= 70; ++len)
                for (const double low : {0.05, 0.1, 0.2499, 0.25, 0.3, 0.4}) {
                    expectTaps(shape, low, low + 0.09, len, window, 0);
                    if (hasGain(shape, len) && len > 40)
                        expectTaps(shape, low, low + 0.09, len, window, 1);
                }
}

TEST(FirDesign, LongFilters)
{
    for (const Shape shape : allShapes)
        for (const int len : {128, 129, 1024, 1025, 3001})
            for (const int window : allWindows) {
                expectTaps(shape, 300.0 / 8000, 3400.0 / 8000, len, window, 0);
                if (hasGain(shape, len))
                    expectTaps(shape, 300.0 / 8000, 3400.0 / 8000, len, window, 1);
            }
}

// Half the rate is a valid edge: a low-pass that passes all of an odd number, the band up to it.
TEST(FirDesign, HalfTheRate)
{
    std::vector<Tarn64f> taps(21);
    ASSERT_EQ(tarnStsNoErr, tarnsFIRGenLowpass_64f(0.5, taps.data(), 21, tarnWinHamming, 0));
    for (std::size_t i = 0; i < 21; ++i)
        EXPECT_NEAR(i == 10 ? 1 : 0, taps[i], 1e-14);
    for (int len = 5; len < 40; ++len) {
        for (const Shape shape : allShapes) {
            if (shape == Shape::lowpass || shape == Shape::highpass)
                expectTaps(shape, 0.5, 0, len, tarnWinHamming, 0);
            else
                expectTaps(shape, 0.2, 0.5, len, tarnWinHamming, 0);
        }
    }
}

std::complex<double> response(const std::vector<Tarn64f>& taps, double freq)
{
    std::complex<double> sum;
    for (std::size_t n = 0; n < taps.size(); ++n)
        sum += taps[n] * std::polar(1.0, -2 * model::pi * freq * static_cast<double>(n));
    return sum;
}

TEST(FirDesign, UnitGainAtTheReferenceFrequency)
{
    for (const Shape shape : allShapes)
        for (const int window : allWindows)
            for (const int len : {5, 6, 7, 8, 41, 42, 128, 129}) {
                if (!hasGain(shape, len) && len > 8)
                    continue;
                std::vector<Tarn64f> taps(static_cast<std::size_t>(len));
                ASSERT_EQ(tarnStsNoErr, designed(shape, 0.15, 0.3, taps.data(), len, window, 5));
                const double freq = shape == Shape::highpass ? 0.5 : shape == Shape::bandpass ? 0.225 : 0;
                EXPECT_NEAR(1, std::abs(response(taps, freq)), 1e-12)
                    << static_cast<int>(shape) << " " << len << " " << window;
            }
    std::vector<Tarn64f> taps(33);
    ASSERT_EQ(tarnStsNoErr, tarnsFIRGenLowpass_64f(0.2, taps.data(), 33, tarnWinHann, 1));
    double sum = 0;
    for (const double tap : taps)
        sum += tap;
    EXPECT_NEAR(1, sum, 1e-14);
}

// Opposite taps are equal to the bit, or of opposite sign in a high-pass of an even number.
TEST(FirDesign, SymmetricToTheBit)
{
    for (const Shape shape : allShapes)
        for (const int window : allWindows)
            for (int len = 5; len < 50; ++len)
                for (const int normal : {0, 1}) {
                    std::vector<Tarn64f> taps(static_cast<std::size_t>(len));
                    ASSERT_EQ(tarnStsNoErr, designed(shape, 0.11, 0.37, taps.data(), len, window, normal));
                    const double sign = shape == Shape::highpass && len % 2 == 0 ? -1 : 1;
                    for (int i = 0; i < len / 2; ++i)
                        ASSERT_TRUE(valuesMatch<Tarn64f>(sign * taps[static_cast<std::size_t>(i)],
                                                         taps[static_cast<std::size_t>(len - 1 - i)]));
                }
}

// What a user designs filters for: 127 taps with a Hamming window pass within 0.3 percent and stop by 50 dB, but for
// transitions of 3.3 / 127 on either side.
TEST(FirDesign, PassesAndStops)
{
    const double transition = 0.027;
    for (const Shape shape : allShapes) {
        std::vector<Tarn64f> taps(127);
        ASSERT_EQ(tarnStsNoErr, designed(shape, 0.12, 0.33, taps.data(), 127, tarnWinHamming, 1));
        for (double freq = 0; freq <= 0.5; freq += 0.001) {
            const bool single = shape == Shape::lowpass || shape == Shape::highpass;
            if (std::fabs(freq - 0.12) < transition || (!single && std::fabs(freq - 0.33) < transition))
                continue;
            const bool inside = single ? freq < 0.12 : freq > 0.12 && freq < 0.33;
            const bool passes = inside == (shape == Shape::lowpass || shape == Shape::bandpass);
            EXPECT_NEAR(passes ? 1 : 0, std::abs(response(taps, freq)), 0.0035)
                << static_cast<int>(shape) << " at " << freq;
        }
    }
}

TEST(FirDesign, EveryAddressAndNothingBeside)
{
    for (const int len : {5, 6, 33, 64}) {
        std::vector<Tarn64f> expected(static_cast<std::size_t>(len));
        ASSERT_EQ(tarnStsNoErr, tarnsFIRGenBandpass_64f(0.1, 0.2, expected.data(), len, 1, 1));
        for (unsigned offset = 0; offset < 18; ++offset) {
            const Placement place = offset == 16   ? Placement::atEnd()
                                    : offset == 17 ? Placement::atStart()
                                                   : Placement::offset(offset);
            GuardedArray<Tarn64f> taps(static_cast<std::size_t>(len), place);
            ASSERT_EQ(tarnStsNoErr, tarnsFIRGenBandpass_64f(0.1, 0.2, taps.data(), len, 1, 1));
            EXPECT_TRUE(arraysMatch(expected, taps));
        }
    }
}

template <Shape shape>
struct DesignCall {
    std::vector<Tarn64f> taps = std::vector<Tarn64f>(64, 7);
    Tarn64f* pTaps = taps.data();
    int len = 64;
    double low = 0.1;
    double high = 0.2;

    TarnStatus operator()()
    {
        const TarnStatus status = designed(shape, low, high, pTaps, len, tarnWinHann, 1);
        if (status != tarnStsNoErr) {
            EXPECT_EQ(std::vector<Tarn64f>(64, 7), taps);
        }
        return status;
    }
};

template <Shape shape>
void expectDesignChecks()
{
    using Call = DesignCall<shape>;
    std::vector<OrderedFault<Call>> faults = {
        {[](Call& c) { c.pTaps = nullptr; }, tarnStsNullPtrErr},
        {[](Call& c) { c.len = 4; }, tarnStsSizeErr},
        {[](Call& c) { c.len = 0; }, tarnStsSizeErr},
        {[](Call& c) { c.len = -64; }, tarnStsSizeErr},
        {[](Call& c) { c.low = 0; }, tarnStsSizeErr},
        {[](Call& c) { c.low = -0.1; }, tarnStsSizeErr},
        {[](Call& c) { c.low = std::nextafter(0.5, 1); }, tarnStsSizeErr},
        {[](Call& c) { c.low = std::nan(""); }, tarnStsSizeErr},
    };
    if (shape == Shape::bandpass || shape == Shape::bandstop) {
        faults.push_back({[](Call& c) { c.high = c.low; }, tarnStsSizeErr});
        faults.push_back({[](Call& c) { c.high = 0; }, tarnStsSizeErr});
        faults.push_back({[](Call& c) { c.high = 0.51; }, tarnStsSizeErr});
        faults.push_back({[](Call& c) { c.high = std::nan(""); }, tarnStsSizeErr});
    }
    expectOrder(faults);
    Call shortest;
    shortest.len = 5;
    EXPECT_EQ(tarnStsNoErr, shortest());
}
TEST(FirDesign, Checks)
{
    expectDesignChecks<Shape::lowpass>();
    expectDesignChecks<Shape::highpass>();
    expectDesignChecks<Shape::bandpass>();
    expectDesignChecks<Shape::bandstop>();
}

// One tone each, or two: whichever cannot be allocated, the status is that of a null pointer, and nothing is kept.
TEST(FirDesign, Memory)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    for (const Shape shape : allShapes) {
        const int tones = shape == Shape::lowpass || shape == Shape::highpass ? 1 : 2;
        for (int allowed = 0; allowed <= tones; ++allowed) {
            std::vector<Tarn64f> taps(40, 7);
            TarnStatus status;
            int outstanding;
            {
                const MemoryWatch watch(allowed);
                status = designed(shape, 0.1, 0.2, taps.data(), 40, 1, 1);
                outstanding = watch.outstanding();
            }
            EXPECT_EQ(allowed < tones ? tarnStsNullPtrErr : tarnStsNoErr, status);
            EXPECT_EQ(0, outstanding);
            EXPECT_EQ(allowed < tones, taps == std::vector<Tarn64f>(40, 7));
        }
    }
}

} // namespace
} // namespace tarn::test
