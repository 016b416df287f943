// Prints, for lengths up to 2048, the nanoseconds a point that a complex transform takes and its error, ours and
// FFTW's: what docs/dft.md shows. All lengths up to 64, then every so many of them.
#include "tests/model/chirp.h"

#include <tarns.h>

#include <fftw3.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

// The shortest of some runs, each of which takes long enough to be measured.
template <class Call>
double nanoseconds(Call call)
{
    using Clock = std::chrono::steady_clock;
    constexpr double longEnough = 50000;
    double best = 1e30;
    for (int run = 0, count = 1; run < 7;) {
        const auto start = Clock::now();
        for (int i = 0; i < count; ++i)
            call();
        const double took = std::chrono::duration<double, std::nano>(Clock::now() - start).count();
        if (took < longEnough) {
            count *= 2;
            continue;
        }
        best = std::min(best, took / count);
        ++run;
    }
    return best;
}

using Values = std::vector<std::complex<double>>;

// Root mean square of the difference, relative to that of what is expected.
double errorOf(const Values& expected, const std::complex<float>* actual)
{
    double difference = 0;
    double all = 0;
    for (std::size_t k = 0; k < expected.size(); ++k) {
        difference += std::norm(std::complex<double>(actual[k]) - expected[k]);
        all += std::norm(expected[k]);
    }
    return std::sqrt(difference / all);
}

} // namespace

int main(int argc, char** argv)
{
    const int step = argc > 1 ? std::max(1, std::atoi(argv[1])) : 1;
    constexpr int longest = 2048;
    constexpr int allBelow = 64;
    std::mt19937 random(1);
    std::uniform_real_distribution<float> uniform(-1, 1);
    for (int n = 1; n <= longest; n += n < allBelow ? 1 : step) {
        auto* x = reinterpret_cast<std::complex<float>*>(fftwf_alloc_complex(static_cast<std::size_t>(n)));
        auto* y = reinterpret_cast<std::complex<float>*>(fftwf_alloc_complex(static_cast<std::size_t>(n)));
        auto* xf = reinterpret_cast<fftwf_complex*>(x);
        auto* yf = reinterpret_cast<fftwf_complex*>(y);
        fftwf_set_timelimit(0.1);
        const fftwf_plan plan = fftwf_plan_dft_1d(n, xf, yf, FFTW_FORWARD, FFTW_MEASURE);
        Values points;
        for (int i = 0; i < n; ++i) {
            x[i] = {uniform(random), uniform(random)};
            points.emplace_back(x[i]);
        }
        const Values expected = tarn::test::model::anyTransform(points, -1);

        TarnsDFTSpec_C_32fc* spec = nullptr;
        int bytes = 0;
        if (tarnsDFTInitAlloc_C_32fc(&spec, n, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone) != tarnStsNoErr)
            return 1;
        tarnsDFTGetBufSize_C_32fc(spec, &bytes);
        Tarn8u* const work = tarnsMalloc_8u(bytes + 1);
        const auto* src = reinterpret_cast<const Tarn32fc*>(x);
        auto* dst = reinterpret_cast<Tarn32fc*>(y);
        const double theirs = nanoseconds([&] { fftwf_execute(plan); });
        const double theirError = errorOf(expected, y);
        const double ours = nanoseconds([&] { tarnsDFTFwd_CToC_32fc(src, dst, spec, work); });
        const double ourError = errorOf(expected, y);
        std::printf("%d %.4f %.4f %.3g %.3g\n", n, ours / n, theirs / n, ourError, theirError);
        std::fflush(stdout);
        tarnsFree(work);
        tarnsDFTFree_C_32fc(spec);
        fftwf_destroy_plan(plan);
        fftwf_free(x);
        fftwf_free(y);
    }
    return 0;
}
