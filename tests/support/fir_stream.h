// Signals through FIR filters: states with an owner, streams cut into calls, comparison with the models.
#pragma once

#include "model/fir.h"
#include "support/compare.h"
#include "support/fir_tails.h"
#include "support/hard_values.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tarn::test {

template <class F>
using FirSignal = std::vector<typename F::Sample>;
template <class F>
using FirTaps = std::vector<typename F::Tap>;

/// A state that is freed at the end of its scope: allocated, or in memory of its own (then it never transforms).
template <class F>
class FirOwner {
public:
    explicit FirOwner(const FirTaps<F>& taps, const typename F::Sample* line = nullptr)
    {
        EXPECT_EQ(tarnStsNoErr, F::initAlloc(&state, taps.data(), static_cast<int>(taps.size()), line));
    }
    static FirOwner inMemory(const FirTaps<F>& taps, const typename F::Sample* line = nullptr)
    {
        FirOwner owner;
        int size = 0;
        F::getStateSize(static_cast<int>(taps.size()), &size);
        owner.memory.resize(static_cast<std::size_t>(size));
        EXPECT_EQ(tarnStsNoErr,
                  F::init(&owner.state, taps.data(), static_cast<int>(taps.size()), line, owner.memory.data()));
        return owner;
    }
    ~FirOwner()
    {
        if (state != nullptr && memory.empty())
            F::free(state);
    }
    FirOwner(FirOwner&& other) noexcept : state(other.state), memory(std::move(other.memory)) { other.state = nullptr; }
    FirOwner(const FirOwner&) = delete;
    FirOwner& operator=(const FirOwner&) = delete;

    typename F::State* get() const { return state; }
    typename F::State* operator->() const { return state; }

private:
    FirOwner() = default;
    typename F::State* state = nullptr;
    std::vector<Tarn8u> memory;
};

/// Taps and samples of magnitude up to 1, integers up to a sixteenth of their range.
template <class F>
FirTaps<F> firTaps(int len, std::uint64_t seed = 1)
{
    return randomValues<typename F::Tap>(static_cast<std::size_t>(len), seed, Values::unit);
}
template <class F>
FirSignal<F> firSignal(int len, std::uint64_t seed = 2)
{
    return randomValues<typename F::Sample>(static_cast<std::size_t>(len), seed, Values::unit);
}

/// The samples behind as many zeros as there are taps, in the type of the taps.
template <class F>
std::vector<typename F::Tap> firLine(const FirTaps<F>& taps, const FirSignal<F>& signal)
{
    return fir::withHistory<typename F::Tap>(FirSignal<F>(taps.size(), typename F::Sample{}), signal);
}

/// What the direct road makes of a signal that follows silence, whatever its cuts.
template <class F>
FirSignal<F> directModel(const FirTaps<F>& taps, const FirSignal<F>& signal, int scaleFactor = 0)
{
    return fir::asSamples<typename F::Sample>(fir::blockOutputs(taps, firLine<F>(taps, signal)), scaleFactor);
}

/// The outputs of a signal that is cut into calls of the given lengths, again and again.
template <class F>
FirSignal<F> filterInCalls(typename F::State* state, const FirSignal<F>& signal, const std::vector<int>& cuts,
                           int scaleFactor = 0)
{
    FirSignal<F> out(signal.size());
    std::size_t begin = 0;
    for (std::size_t i = 0; begin < signal.size(); ++i) {
        const auto n = std::min<std::size_t>(static_cast<std::size_t>(cuts[i % cuts.size()]), signal.size() - begin);
        EXPECT_EQ(tarnStsNoErr, F::filter(&signal[begin], &out[begin], static_cast<int>(n), state, scaleFactor));
        begin += n;
    }
    return out;
}

/// The delay line that a signal leaves behind.
template <class F>
void expectDelayLine(typename F::State* state, const FirSignal<F>& signal, std::size_t taps)
{
    FirSignal<F> expected(taps, typename F::Sample{});
    for (std::size_t i = 0; i < taps && i < signal.size(); ++i)
        expected[i] = signal[signal.size() - 1 - i];
    FirSignal<F> line(taps);
    EXPECT_EQ(tarnStsNoErr, F::getDlyLine(state, line.data()));
    EXPECT_TRUE(arraysMatch<typename F::Sample>(expected.data(), line.data(), taps)) << "delay line";
}

/// Whether outputs agree with the exact ones up to `bound`, integers up to rounding as well.
template <class F>
::testing::AssertionResult withinBound(const FirTaps<F>& taps, const FirSignal<F>& signal, const FirSignal<F>& out,
                                       long double bound, int scaleFactor = 0)
{
    using S = typename F::Sample;
    const auto exact = fir::exactOutputs(taps, firLine<F>(taps, signal));
    const auto part = [&](long double expected, auto actual) {
        using Real = decltype(actual);
        long double allowed = bound;
        if constexpr (std::is_integral_v<Real>) {
            expected = std::clamp(std::ldexp(expected, -scaleFactor),
                                  static_cast<long double>(std::numeric_limits<Real>::lowest()),
                                  static_cast<long double>(std::numeric_limits<Real>::max()));
            allowed = std::ldexp(bound, -scaleFactor) + 0.5L;
        } else {
            allowed += std::fabs(expected) * static_cast<long double>(std::numeric_limits<Real>::epsilon());
        }
        return std::fabs(expected - static_cast<long double>(actual)) <= allowed;
    };
    for (std::size_t i = 0; i < out.size(); ++i) {
        bool good = false;
        if constexpr (ComplexElement<S>)
            good = part(exact[i].re, out[i].re) && part(exact[i].im, out[i].im);
        else
            good = part(exact[i].re, out[i]);
        if (!good)
            return ::testing::AssertionFailure()
                   << "output " << i << " is " << toText(out[i]) << ", not " << static_cast<double>(exact[i].re) << ", "
                   << static_cast<double>(exact[i].im);
    }
    return ::testing::AssertionSuccess();
}

/// The largest magnitude of the samples of firSignal.
template <class F>
long double largestSample()
{
    using Real = fir::Component<typename F::Sample>;
    const long double part =
        std::is_integral_v<Real> ? static_cast<long double>(std::numeric_limits<Real>::max()) / 16 + 1 : 1;
    return ComplexElement<typename F::Sample> ? part * std::sqrt(2.0L) : part;
}

} // namespace tarn::test
