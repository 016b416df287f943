// Transforms of any length beside FFTW, which plans by measurement and picks the widest vectors it can get.
#include "support/transforms.h"

namespace tarn::bench {
namespace {

int lengthOf(int n) { return n; }

#define TARN_OWN_TRANSFORM(KIND) TARN_TRANSFORM_CALLS(DFT, KIND, lengthOf)

// Creation and release beside so many transforms, whose time it is to stay below.
template <class Transform>
void compareCreation(int length, Transform transform, int count)
{
    comparePrepared(
        sizes(length), "dftInit_32fc",
        [](int n) {
            return [n] {
                TarnsDFTSpec_C_32fc* spec = nullptr;
                tarnsDFTInitAlloc_C_32fc(&spec, n, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone);
                tarnsDFTFree_C_32fc(spec);
            };
        },
        peer(std::to_string(count) + "-transforms", [=](int n) {
            return [call = transform(n), count] {
                for (int i = 0; i < count; ++i)
                    call();
            };
        }));
}

const Sizes smooth = {60, 360, 480, 960, 1000, 2187, 44100, 48000};
const Sizes primes = {7, 13, 31, 101, 149, 1009, 10007};
const Sizes evenLengths = {60, 360, 480, 960, 1000, 44100, 48000};
const Sizes oddLengths = {45, 101, 315, 1009, 2187, 10007};

const Comparison cases = [] {
    const auto pairs32 = ours(TARN_OWN_TRANSFORM(C_32fc), tarnsDFTFwd_CToC_32fc);
    const auto pairs64 = ours(TARN_OWN_TRANSFORM(C_64fc), tarnsDFTFwd_CToC_64fc);
    const auto real32 = ours(TARN_OWN_TRANSFORM(R_32f), tarnsDFTFwd_RToPerm_32f);
    const auto real64 = ours(TARN_OWN_TRANSFORM(R_64f), tarnsDFTFwd_RToPerm_64f);
    comparePrepared(evenLengths, "dftEven_32f", real32, peer("complex", pairs32));
    comparePrepared(oddLengths, "dftOdd_32f", real32, peer("complex", pairs32));
    comparePrepared(evenLengths, "dftEven_64f", real64, peer("complex", pairs64));
    comparePrepared(smooth, "dftParts_32f", ours(TARN_OWN_TRANSFORM(C_32f), tarnsDFTFwd_CToC_32f),
                    peer("pairs", pairs32));
    compareCreation(1000, pairs32, 40);
    compareCreation(10007, pairs32, 20);
#ifdef TARNS_HAVE_FFTW
    comparePrepared(smooth, "dft_32fc", pairs32, fftw<Tarn32f, false>());
    comparePrepared(primes, "dftPrime_32fc", pairs32, fftw<Tarn32f, false>());
    comparePrepared(smooth, "dft_64fc", pairs64, fftw<Tarn64f, false>());
    comparePrepared(primes, "dftPrime_64fc", pairs64, fftw<Tarn64f, false>());
    comparePrepared(smooth, "dftReal_32f", real32, fftw<Tarn32f, true>());
#endif
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
