// Roots, magnitudes, phases, and complex vectors taken apart, beside plain loops and VOLK's kernels of the same width.
#include "tarns.h"

#include "psmagn_peer.h"
#include "support/compare.h"

#include <cstring>

#ifdef TARNS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace tarn::bench {
namespace {

const Sizes inCache = {64, 1024, 16384};

// What holds no negative numbers: the powers of the sources' elements.
template <class T, class Call>
auto ofSquares(Call call)
{
    return [call](const T* src, T* dst, int n) {
        static T squares[16384];
        static const T* of = nullptr;
        if (of != src) {
            for (int i = 0; i < 16384 && i < n; ++i)
                squares[i] = src[i] * src[i];
            of = src;
        }
        return call(squares, dst, n);
    };
}

// Taken apart, both parts into one array.
template <class R, class C>
auto apart(TarnStatus (*split)(const C*, R*, R*, int))
{
    return [=](const C* src, C* dst, int n) {
        return split(src, reinterpret_cast<R*>(dst), reinterpret_cast<R*>(dst) + n, n);
    };
}
template <class C>
constexpr auto copyBytes =
    [](const C* src, C* dst, int n) { std::memcpy(dst, src, static_cast<std::size_t>(n) * sizeof(C)); };

void compareParts()
{
    compare<Tarn32fc, Tarn32fc>(inCache, "cplxToReal_32fc", apart(tarnsCplxToReal_32fc),
                                peer("memcpy", copyBytes<Tarn32fc>));
    compare<Tarn64fc, Tarn64fc>(inCache, "cplxToReal_64fc", apart(tarnsCplxToReal_64fc),
                                peer("memcpy", copyBytes<Tarn64fc>));
    compare<Tarn16sc, Tarn16sc>(inCache, "cplxToReal_16sc", apart(tarnsCplxToReal_16sc),
                                peer("memcpy", copyBytes<Tarn16sc>));
    const auto together = [](const Tarn32fc* src, Tarn32fc* dst, int n) {
        const auto* parts = reinterpret_cast<const Tarn32f*>(src);
        return tarnsRealToCplx_32f(parts, parts + n, dst, n);
    };
    compare<Tarn32fc, Tarn32fc>(inCache, "realToCplx_32f", together, peer("memcpy", copyBytes<Tarn32fc>));
}

const Comparison cases = [] {
    compareParts();
    compare<Tarn32f, Tarn32f>(inCache, "sqrt_32f", ofSquares<Tarn32f>(tarnsSqrt_32f),
                              peer("sqrtps", ofSquares<Tarn32f>([](auto... args) { return sqrtLoop(args...), 0; })));
    compare<Tarn64f, Tarn64f>(inCache, "sqrt_64f", ofSquares<Tarn64f>(tarnsSqrt_64f),
                              peer("loop", ofSquares<Tarn64f>([](auto... args) { return sqrtLoop(args...), 0; })));
    compare<Tarn32f, Tarn32f>(inCache, "cubrt_32f", tarnsCubrt_32f,
                              peer("libm", [](auto... args) { cbrtLoop(args...); }));
#ifdef TARNS_HAVE_VOLK
    const auto volkMagnitude = peer("volk", [](const Tarn32fc* src, Tarn32f* dst, int n) {
        volk_32fc_magnitude_32f_manual(dst, reinterpret_cast<const lv_32fc_t*>(src), static_cast<unsigned>(n),
                                       "a_sse3");
    });
    const auto volkPower = peer("volk", [](const Tarn32fc* src, Tarn32f* dst, int n) {
        volk_32fc_magnitude_squared_32f_manual(dst, reinterpret_cast<const lv_32fc_t*>(src), static_cast<unsigned>(n),
                                               "a_sse3");
    });
#define TARNS_AND_VOLK(PEER) , PEER
#else
#define TARNS_AND_VOLK(PEER)
#endif
    compare<Tarn32f, Tarn32fc>(inCache, "magnitude_32fc", tarnsMagnitude_32fc, peer("loop", [](auto... args) {
                                   magnitudeLoop(args...);
                               }) TARNS_AND_VOLK(volkMagnitude));
    compare<Tarn32f, Tarn32fc>(inCache, "powerSpectr_32fc", tarnsPowerSpectr_32fc,
                               peer("loop", [](auto... args) { powerLoop(args...); }) TARNS_AND_VOLK(volkPower));
#undef TARNS_AND_VOLK
    compare<Tarn64f, Tarn64fc>(inCache, "magnitude_64fc", tarnsMagnitude_64fc,
                               peer("loop", [](auto... args) { magnitudeLoop(args...); }));
    compare<Tarn32f, Tarn32fc>(inCache, "phase_32fc", tarnsPhase_32fc,
                               peer("libm", [](auto... args) { phaseLoop(args...); }));
    compare<Tarn64f, Tarn64fc>(inCache, "phase_64fc", tarnsPhase_64fc,
                               peer("libm", [](auto... args) { phaseLoop(args...); }));
    compare<Tarn32fc, Tarn32f, Tarn32f>(inCache, "polarToCart_32fc", tarnsPolarToCart_32fc,
                                        peer("libm", [](auto... args) { fromPolarLoop(args...); }));
    compare<Tarn64fc, Tarn64f, Tarn64f>(inCache, "polarToCart_64fc", tarnsPolarToCart_64fc,
                                        peer("libm", [](auto... args) { fromPolarLoop(args...); }));
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
