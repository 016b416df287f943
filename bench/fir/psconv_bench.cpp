// Convolutions beside plain loops and beside overlap-save on FFTW. The shorter length stands in the case's name.
#include "tarns.h"

#include "psconv_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_FFTW
#include <fftw3.h>
#endif

#include <dlfcn.h>

#include <algorithm>
#include <map>
#include <vector>

namespace tarn::bench {
namespace {

constexpr int longer = 16384;

void setThreads(int threads)
{
    using SetThreads = void (*)(int);
    if (auto* const set = reinterpret_cast<SetThreads>(dlsym(RTLD_DEFAULT, "omp_set_num_threads")))
        set(threads);
}

// `call(x, xLen, y, yLen, dst)` with a first vector of the case's length.
template <class T, class Call>
auto convolution(int yLen, Call call, int threads = 1)
{
    return [=](int n) {
        setThreads(threads);
        const T* x = filledBuffer<T>(1, n, Fill::signal);
        const T* y = filledBuffer<T>(2, yLen, Fill::signal);
        T* dst = filledBuffer<T>(0, n + yLen - 1, Fill::signal);
        return [=] { return call(x, n, y, yLen, dst); };
    };
}

template <class T>
auto loop(int yLen)
{
    return convolution<T>(yLen, [](auto... arguments) { convolutionLoop(arguments...); });
}

// Without arguments but vectors of as many elements as there are points.
template <class T, class S, class Call>
auto cyclic(Call call)
{
    return [=](int n) {
        const T* x = filledBuffer<T>(1, n, Fill::signal);
        const S* y = filledBuffer<S>(2, n, Fill::signal);
        S* dst = filledBuffer<S>(0, n, Fill::signal);
        return [=] { return call(x, y, dst); };
    };
}
constexpr auto loopCyclic = [](auto... vectors) { cyclicLoop(vectors...); };

#ifdef TARNS_HAVE_FFTW
// Overlap-save as the library has it, block lengths included, with plans that are there already. FFTW takes the widest
// vectors of the processor.
auto fftw(int yLen, int points)
{
    return convolution<float>(yLen, [=](const float* x, int xLen, const float* y, int, float* dst) {
        struct Plans {
            fftwf_plan forward, inverse;
            float* block;
            fftwf_complex *spectrum, *product;
        };
        static std::map<int, Plans> all;
        Plans& plans = all[points];
        const auto bins = static_cast<std::size_t>(points) / 2 + 1;
        if (plans.block == nullptr) {
            plans.block = fftwf_alloc_real(static_cast<std::size_t>(points));
            plans.spectrum = fftwf_alloc_complex(bins);
            plans.product = fftwf_alloc_complex(bins);
            plans.forward = fftwf_plan_dft_r2c_1d(points, plans.block, plans.product, FFTW_MEASURE);
            plans.inverse = fftwf_plan_dft_c2r_1d(points, plans.product, plans.block, FFTW_MEASURE);
        }
        float* const block = plans.block;
        const float scale = 1.0F / static_cast<float>(points);
        const int useful = points + 1 - yLen;
        const int len = xLen + yLen - 1;
        std::copy_n(y, yLen, block);
        std::fill(block + yLen, block + points, 0.0F);
        fftwf_execute_dft_r2c(plans.forward, block, plans.spectrum);
        for (int i = 0; i < len; i += useful) {
            const int before = i == 0 ? 0 : yLen - 1;
            const int filled = std::min(xLen - i + before, useful + before);
            std::copy_n(x + i - before, filled, block);
            std::fill(block + filled, block + points, 0.0F);
            fftwf_execute_dft_r2c(plans.forward, block, plans.product);
            for (std::size_t k = 0; k < bins; ++k) {
                const float re =
                    plans.product[k][0] * plans.spectrum[k][0] - plans.product[k][1] * plans.spectrum[k][1];
                const float im =
                    plans.product[k][0] * plans.spectrum[k][1] + plans.product[k][1] * plans.spectrum[k][0];
                plans.product[k][0] = scale * re;
                plans.product[k][1] = scale * im;
            }
            fftwf_execute_dft_c2r(plans.inverse, plans.product, block);
            std::copy_n(block + before, std::min(useful, len - i), dst + i);
        }
    });
}
#endif

const Comparison cases = [] {
    const auto conv16s = [](auto... arguments) { return tarnsConv_16s_Sfs(arguments..., 14); };
    for (int yLen : {8, 32, 1024})
        comparePrepared(sizes(longer), "conv_32f_" + std::to_string(yLen), convolution<Tarn32f>(yLen, tarnsConv_32f),
                        peer("loop", loop<Tarn32f>(yLen)));
    for (int yLen : {32, 1024}) {
        comparePrepared(sizes(longer), "conv_64f_" + std::to_string(yLen), convolution<Tarn64f>(yLen, tarnsConv_64f),
                        peer("loop", loop<Tarn64f>(yLen)));
        comparePrepared(sizes(longer), "conv_16s_" + std::to_string(yLen), convolution<Tarn16s>(yLen, conv16s),
                        peer("loop", loop<Tarn16s>(yLen)));
    }
    comparePrepared(sizes(longer), "convRows_32f_32", convolution<Tarn32f>(32, tarnsConv_32f),
                    peer("rows", convolution<Tarn32f>(32, convolutionRows)));
#ifdef TARNS_HAVE_FFTW
    for (const auto& [yLen, points] : {std::pair{128, 512}, {1024, 4096}})
        comparePrepared(sizes(longer), "convTransforms_32f_" + std::to_string(yLen),
                        convolution<Tarn32f>(yLen, tarnsConv_32f), peer("fftw", fftw(yLen, points)));
#endif
    comparePrepared(sizes(8), "convCyclic8x8_32f", cyclic<Tarn32f, Tarn32f>(tarnsConvCyclic8x8_32f),
                    peer("loop", cyclic<Tarn32f, Tarn32f>(loopCyclic)));
    comparePrepared(sizes(4), "convCyclic4x4_32f32fc", cyclic<Tarn32f, Tarn32fc>(tarnsConvCyclic4x4_32f32fc),
                    peer("loop", cyclic<Tarn32f, Tarn32fc>(loopCyclic)));
    comparePrepared(sizes(8), "convCyclic8x8_16s", cyclic<Tarn16s, Tarn16s>([](auto... vectors) {
                        return tarnsConvCyclic8x8_16s_Sfs(vectors..., 14);
                    }),
                    peer("loop", cyclic<Tarn16s, Tarn16s>(loopCyclic)));
    for (int yLen : {128, 1024})
        compareThreads(sizes(4097, 16384, 65536, 262144, 1 << 20), "conv_32f_" + std::to_string(yLen) + "_2threads",
                       convolution<Tarn32f>(yLen, tarnsConv_32f, 2),
                       peer("1thread", convolution<Tarn32f>(yLen, tarnsConv_32f, 1)));
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
