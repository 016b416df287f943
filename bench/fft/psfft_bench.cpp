// Transforms of power-of-two lengths beside FFTW, which plans by measurement and picks the widest vectors it can get.
#include "tarns.h"

#include "support/compare.h"
#include "support/transforms.h"

#include <bit>

namespace tarn::bench {
namespace {

// The lengths of the orders from `first` to `last`, and of those behind.
template <class... Order>
Sizes orders(int first, int last, Order... further)
{
    Sizes lengths;
    for (int order = first; order <= last; ++order)
        lengths.push_back(1 << order);
    (lengths.push_back(1 << further), ...);
    return lengths;
}

int orderOf(int n) { return std::countr_zero(static_cast<unsigned>(n)); }

#define TARN_OWN_TRANSFORM(KIND) TARN_TRANSFORM_CALLS(FFT, KIND, orderOf)

const Comparison cases = [] {
    const auto pairs32 = ours(TARN_OWN_TRANSFORM(C_32fc), tarnsFFTFwd_CToC_32fc);
    const auto parts32 = ours(TARN_OWN_TRANSFORM(C_32f), tarnsFFTFwd_CToC_32f);
    const auto pairs64 = ours(TARN_OWN_TRANSFORM(C_64fc), tarnsFFTFwd_CToC_64fc);
    const auto parts64 = ours(TARN_OWN_TRANSFORM(C_64f), tarnsFFTFwd_CToC_64f);
    comparePrepared(orders(4, 16, 17, 18), "fftParts_32f", parts32, peer("pairs", pairs32));
    comparePrepared(orders(4, 15, 18), "fftParts_64f", parts64, peer("pairs", pairs64));
    comparePrepared(
        sizes(1 << 20), "fftInit_32fc",
        [](int n) {
            return [n] {
                TarnsFFTSpec_C_32fc* spec = nullptr;
                tarnsFFTInitAlloc_C_32fc(&spec, orderOf(n), TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone);
                tarnsFFTFree_C_32fc(spec);
            };
        },
        peer("20-transforms", [=](int n) {
            return [call = pairs32(n)] {
                for (int i = 0; i < 20; ++i)
                    call();
            };
        }));
#ifdef TARNS_HAVE_FFTW
    comparePrepared(orders(4, 16, 18, 20), "fft_32fc", pairs32, fftw<Tarn32f, false>());
    comparePrepared(orders(6, 18), "fftReal_32f", ours(TARN_OWN_TRANSFORM(R_32f), tarnsFFTFwd_RToCCS_32f),
                    fftw<Tarn32f, true>());
    comparePrepared(orders(4, 14, 16, 18), "fft_64fc", pairs64, fftw<Tarn64f, false>());
    comparePrepared(orders(6, 14, 16, 18), "fftReal_64f", ours(TARN_OWN_TRANSFORM(R_64f), tarnsFFTFwd_RToCCS_64f),
                    fftw<Tarn64f, true>());
#endif
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
