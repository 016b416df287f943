// Single bins beside the plain recurrence, whose time is the latency of its three operations, and two bins beside one.
#include "tarns/goertzel.h"

#include "support/compare.h"
#include "transforms/psgoertz_peer.h"

#include <cmath>

namespace tarn::bench {
namespace {

constexpr Tarn32f frequency = 0.123F;

// The plain loop with the same work around it: cosine and sine, the rounding of the result.
template <class T, class D>
auto loop()
{
    return peer("loop", [](const T* src, int n, D* val) {
        const double w = 6.283185307179586 * static_cast<double>(frequency);
        const Tarn64fc bin = goertzelLoop(src, n, {std::cos(w), std::sin(w)});
        *val = {static_cast<decltype(D::re)>(bin.re), static_cast<decltype(D::re)>(bin.im)};
    });
}

const Comparison cases = [] {
    const Sizes lengths = sizes(205, 4096);
    compareReduction<Tarn32fc, Tarn32f>(
        lengths, "goertz_32f",
        [](const Tarn32f* src, int n, Tarn32fc* val) { return tarnsGoertz_32f(src, n, val, frequency); },
        loop<Tarn32f, Tarn32fc>());
    const auto one32 = [](const Tarn32fc* src, int n, Tarn32fc* val) {
        return tarnsGoertz_32fc(src, n, val, frequency);
    };
    const auto one64 = [](const Tarn64fc* src, int n, Tarn64fc* val) {
        return tarnsGoertz_64fc(src, n, val, static_cast<Tarn64f>(frequency));
    };
    const auto one16 = [](const Tarn16sc* src, int n, Tarn16sc* val) {
        return tarnsGoertz_16sc_Sfs(src, n, val, frequency, 10);
    };
    compareReduction<Tarn32fc, Tarn32fc>(lengths, "goertz_32fc", one32, loop<Tarn32fc, Tarn32fc>());
    compareReduction<Tarn64fc, Tarn64fc>(lengths, "goertz_64fc", one64, loop<Tarn64fc, Tarn64fc>());
    compareReduction<Tarn16sc, Tarn16s>(
        lengths, "goertz_16s",
        [](const Tarn16s* src, int n, Tarn16sc* val) { return tarnsGoertz_16s_Sfs(src, n, val, frequency, 10); },
        loop<Tarn16s, Tarn16sc>());
    compareReduction<Tarn16sc, Tarn16sc>(lengths, "goertz_16sc", one16, loop<Tarn16sc, Tarn16sc>());
    compareReduction<Tarn32fc, Tarn32fc>(
        lengths, "goertzTwo_32fc",
        [](const Tarn32fc* src, int n, Tarn32fc*) {
            constexpr Tarn32f both[2] = {frequency, 0.3F};
            Tarn32fc bins[2];
            return tarnsGoertzTwo_32fc(src, n, bins, both);
        },
        peer("one", one32));
    compareReduction<Tarn64fc, Tarn64fc>(
        lengths, "goertzTwo_64fc",
        [](const Tarn64fc* src, int n, Tarn64fc*) {
            constexpr Tarn64f both[2] = {static_cast<Tarn64f>(frequency), 0.3};
            Tarn64fc bins[2];
            return tarnsGoertzTwo_64fc(src, n, bins, both);
        },
        peer("one", one64));
    compareReduction<Tarn16sc, Tarn16sc>(
        lengths, "goertzTwo_16sc",
        [](const Tarn16sc* src, int n, Tarn16sc*) {
            constexpr Tarn32f both[2] = {frequency, 0.3F};
            Tarn16sc bins[2];
            return tarnsGoertzTwo_16sc_Sfs(src, n, bins, both, 10);
        },
        peer("one", one16));
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
