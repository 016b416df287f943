// Plain model of multi-rate FIR filters: zeros inserted, filtered, every R-th result kept. Numbers are doubles: of
// whole taps and samples all sums are exact, in whatever type they are computed and in whatever order.
#pragma once

#include "support/fir_erased.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tarn::test::fir {

/// How real filters are compiled, and what follows: as counts, since halves are rounded in two ways.
struct RatesForm {
    bool direct, decimating;
    long long in, out; ///< head lengths
};

inline RatesForm formOf(const Rates& r, bool alwaysIndexed = false)
{
    const float ratio = static_cast<float>(r.taps) / (static_cast<float>(r.taps) + 3.0F * static_cast<float>(r.down));
    RatesForm form{};
    form.direct = !alwaysIndexed && static_cast<double>(ratio) > (r.up == 1 ? 0.5 : 0.3);
    form.decimating = !alwaysIndexed && !form.direct && r.up == 1;
    const long long q = (r.taps + 3LL * r.down + r.up - 1) / r.up;
    const long long longest = form.direct ? q : r.history();
    long long i = 0;
    while (i <= longest)
        i += 4LL * r.down;
    form.in = i + 1;
    form.out = (r.history() + r.down - 1LL) / r.down * r.up;
    while (form.out % (4LL * r.up) != 0) {
        form.in += r.down;
        form.out += r.up;
    }
    return form;
}

/// The first output of a call that is rounded with halves away from zero. `fork` is the number of iterations above
/// which a call is meant for so many threads.
inline long long firstOfTail(const Rates& r, RatesForm form, int n, int fork, int threads)
{
    const long long inputs = 1LL * r.down * n;
    const long long outputs = 1LL * r.up * n;
    const long long cycle = 4LL * r.up;
    if (form.decimating ? inputs < form.in : inputs <= form.in)
        return outputs - outputs % cycle;
    long long main = (outputs - form.out) / cycle * cycle;
    if (main > 0)
        main -= cycle;
    if (n > fork)
        main -= main % (threads * cycle);
    return form.out + main;
}

inline Number product(Number a, Number b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }

/// The outputs of samples that follow a delay line (newest first).
inline Numbers exactRates(const Numbers& taps, const Numbers& line, const Numbers& samples, const Rates& r, int n)
{
    const auto sampleAt = [&](long long i) {
        return i >= 0 ? samples[static_cast<std::size_t>(i)] : line[static_cast<std::size_t>(-1 - i)];
    };
    Numbers outputs;
    for (long long m = 0; m < 1LL * r.up * n; ++m) {
        const long long time = m * r.down + r.downPhase - r.upPhase;
        Number sum;
        for (long long k = (time % r.up + r.up) % r.up; k < r.taps; k += r.up) {
            const Number p = product(taps[static_cast<std::size_t>(k)], sampleAt((time - k) / r.up));
            sum = {sum.re + p.re, sum.im + p.im};
        }
        outputs.push_back(sum);
    }
    return outputs;
}

/// As a sample of so many bits: scaled, rounded and saturated.
inline double asInteger(double x, int bits, int scaleFactor, bool halvesAway)
{
    const double scaled = std::ldexp(x, -scaleFactor);
    const double limit = std::ldexp(1.0, bits - 1);
    if (std::isnan(scaled))
        return -limit;
    return std::clamp(halvesAway ? std::round(scaled) : std::nearbyint(scaled), -limit, limit - 1);
}
inline Number asInteger(Number x, int bits, int scaleFactor, bool halvesAway)
{
    return {asInteger(x.re, bits, scaleFactor, halvesAway), asInteger(x.im, bits, scaleFactor, halvesAway)};
}

} // namespace tarn::test::fir
