// Ramps, chirps, random numbers and the Kaiser window beside plain loops.
#include "tarns.h"

#include "psgenerators_peer.h"
#include "support/compare.h"

#include <cstring>

namespace tarn::bench {
namespace {

const Sizes lengths = {64, 1024, 16384};

template <class T>
void compareKaiser(const std::string& name, TarnStatus (*kaiser)(const T*, T*, int, Tarn32f), double beta)
{
    compare<T, T>(
        lengths, name,
        [=](const T* src, T* dst, int n) { return kaiser(src, dst, n, static_cast<Tarn32f>(2 * beta / (n - 1))); },
        peer("loop", [=](const T* src, T* dst, int n) { kaiserLoop(src, dst, n, 2 * beta / (n - 1)); }));
}

template <class T>
void compareRamp(const std::string& name, TarnStatus (*ramp)(T*, int, Tarn32f, Tarn32f))
{
    compare<T>(
        lengths, name, [=](T* dst, int n) { return ramp(dst, n, 1, 0.01F); },
        peer("memset", [](T* dst, int n) { std::memset(dst, 1, static_cast<std::size_t>(n) * sizeof(T)); }));
}

template <class T, class Real>
void compareJaehne(const std::string& name, TarnStatus (*jaehne)(T*, int, T), Real magn)
{
    compare<T>(
        lengths, name, [=](T* dst, int n) { return jaehne(dst, n, static_cast<T>(magn)); },
        peer("loop", [=](T* dst, int n) { chirpLoop(reinterpret_cast<Real*>(dst), n, magn); }));
}

// The state is made outside of the timed loop.
template <class T, class State>
void compareStream(const std::string& name, State* state, TarnStatus (*next)(T*, int, State*),
                   void (*loop)(Tarn32f*, int))
{
    compare<T>(
        lengths, name, [=](T* dst, int n) { return next(dst, n, state); },
        peer("mt19937", [=](T* dst, int n) { loop(reinterpret_cast<Tarn32f*>(dst), n); }));
}

const Comparison cases = [] {
    compareRamp("ramp_32f", tarnsVectorRamp_32f);
    compareRamp("ramp_64f", tarnsVectorRamp_64f);
    compareRamp("ramp_16s", tarnsVectorRamp_16s);
    compareRamp("ramp_8u", tarnsVectorRamp_8u);
    compare<Tarn32f>(
        lengths, "rampLoop_32f", [](Tarn32f* dst, int n) { return tarnsVectorRamp_32f(dst, n, 1, 0.01F); },
        peer("loop", [](Tarn32f* dst, int n) { rampLoop(dst, n, 1, 0.01F); }));

    compareJaehne("jaehne_32f", tarnsVectorJaehne_32f, 1000.0F);
    compareJaehne("jaehne_64f", tarnsVectorJaehne_64f, 1000.0);
    compareJaehne("jaehne_32s", tarnsVectorJaehne_32s, 1000.0F);
    compareJaehne("jaehne_32u", tarnsVectorJaehne_32u, 1000.0F);

    TarnsRandUniformState_32f* uniform = nullptr;
    tarnsRandUniformInitAlloc_32f(&uniform, 0, 1, 1);
    compareStream<Tarn32f>("uniform_32f", uniform, tarnsRandUniform_32f, uniformLoop);
    TarnsRandGaussState_32f* normal = nullptr;
    tarnsRandGaussInitAlloc_32f(&normal, 0, 1, 1);
    compareStream<Tarn32f>("normal_32f", normal, tarnsRandGauss_32f, normalLoop);
    static unsigned int seed = 1;
    compare<Tarn64f>(
        lengths, "uniformDirect_64f",
        [](Tarn64f* dst, int n) { return tarnsRandUniform_Direct_64f(dst, n, 0, 1, &seed); },
        peer("mt19937", [](Tarn64f* dst, int n) { uniformLoop(dst, n); }));
    compare<Tarn64f>(
        lengths, "normalDirect_64f", [](Tarn64f* dst, int n) { return tarnsRandGauss_Direct_64f(dst, n, 0, 1, &seed); },
        peer("mt19937", [](Tarn64f* dst, int n) { normalLoop(dst, n); }));

    compareKaiser("winKaiser_32f", tarnsWinKaiser_32f, 8.6);
    compareKaiser("winKaiser_64f", tarnsWinKaiser_64f, 8.6);
    compareKaiser("winKaiser_16s", tarnsWinKaiser_16s, 8.6);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
