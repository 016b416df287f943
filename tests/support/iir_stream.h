// Signals through IIR filters: states with an owner, taps and signals of every family, comparison with the model.
#pragma once

#include "model/iir.h"
#include "support/compare.h"
#include "support/hard_values.h"
#include "support/iir_tails.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace tarn::test {

/// What complex elements are made of; real ones are their own part.
template <class T>
struct IirPartOf {
    using type = T;
};
template <ComplexElement T>
struct IirPartOf<T> {
    using type = decltype(T{}.re);
};
template <class T>
using IirPart = typename IirPartOf<T>::type;

template <class T>
iir::Number toNumber(T x)
{
    if constexpr (ComplexElement<T>)
        return {static_cast<iir::Wide>(x.re), static_cast<iir::Wide>(x.im)};
    else
        return {static_cast<iir::Wide>(x), 0};
}
template <class T>
iir::Numbers toNumbers(const std::vector<T>& values)
{
    iir::Numbers numbers;
    for (const T& value : values)
        numbers.push_back(toNumber(value));
    return numbers;
}

/// What integer taps stand for is so many times smaller, a0 included.
inline constexpr iir::Wide integerTapUnit = 16384;

template <class T>
std::vector<T> asTaps(const iir::Numbers& numbers, iir::Wide unit = integerTapUnit)
{
    using P = IirPart<T>;
    const auto part = [=](iir::Wide x) {
        if constexpr (std::is_integral_v<P>)
            return static_cast<P>(std::nearbyint(x * unit));
        else
            return static_cast<P>(x);
    };
    std::vector<T> taps;
    for (iir::Number number : numbers) {
        if constexpr (ComplexElement<T>)
            taps.push_back({part(number.real()), part(number.imag())});
        else
            taps.push_back(part(number.real()));
    }
    return taps;
}

/// The polynomial in z^-1 with the given roots; real if they come in conjugate pairs.
inline iir::Numbers polynomialOf(const iir::Numbers& roots)
{
    iir::Numbers c = {1};
    for (iir::Number root : roots) {
        c.push_back(0);
        for (std::size_t i = c.size() - 1; i > 0; --i)
            c[i] -= iir::product(root, c[i - 1]);
    }
    return c;
}

/// Taps, as given to a state, of a random filter with poles and zeros up to `radius` from the origin: of some order, or
/// of so many sections. Complex ones for the families that have them. a0 is not 1.
inline iir::Numbers randomIirTaps(bool isOrder, int n, bool isComplexFilter, std::uint64_t seed,
                                  iir::Wide radius = 0.7L)
{
    Random random(seed);
    const auto unit = [&] { return static_cast<iir::Wide>(random.below(20001)) / 10000 - 1; };
    const auto roots = [&](int count) {
        iir::Numbers r;
        while (static_cast<int>(r.size()) < count) {
            const iir::Number root = std::polar(radius * std::fabs(unit()), 3 * unit());
            if (isComplexFilter) {
                r.push_back(root);
            } else if (static_cast<int>(r.size()) + 1 == count) {
                r.push_back(root.real());
            } else {
                r.push_back(root);
                r.push_back(std::conj(root));
            }
        }
        return r;
    };
    iir::Numbers taps;
    for (int section = 0; section < (isOrder ? 1 : n); ++section) {
        const iir::Number gain = isComplexFilter ? iir::Number(0.5L, 0.25L) : iir::Number(0.75L);
        const iir::Number a0 = isComplexFilter ? iir::Number(1, 0.5L) : iir::Number(1.25L);
        for (iir::Number b : polynomialOf(roots(isOrder ? n : 2)))
            taps.push_back(iir::product(gain, b));
        for (iir::Number a : polynomialOf(roots(isOrder ? n : 2)))
            taps.push_back(iir::product(a0, a));
    }
    return taps;
}

/// A state that is freed at the end of its scope.
template <class F>
class IirOwner {
public:
    using Given = typename F::Given;
    IirOwner(IirForm form, const std::vector<Given>& taps, const typename F::Element* line = nullptr)
    {
        const auto count = static_cast<int>(taps.size());
        const int n = form == IirForm::order ? count / 2 - 1 : count / 6;
        EXPECT_EQ(tarnStsNoErr, F::initAlloc(form, &state, taps.data(), n, line));
    }
    ~IirOwner() { F::free(state); }
    IirOwner(const IirOwner&) = delete;
    IirOwner& operator=(const IirOwner&) = delete;
    typename F::State* get() const { return state; }
    typename F::State* operator->() const { return state; }

private:
    typename F::State* state = nullptr;
};

/// The outputs of a signal that is cut into calls of the given lengths, again and again; 0 stands for a single sample
/// by its own call.
template <class F>
std::vector<typename F::Sample> filterIirInCalls(typename F::State* state,
                                                 const std::vector<typename F::Sample>& signal,
                                                 const std::vector<int>& cuts, int scaleFactor = 0)
{
    std::vector<typename F::Sample> out(signal.size());
    std::size_t begin = 0;
    for (std::size_t i = 0; begin < signal.size(); ++i) {
        const auto cut = static_cast<std::size_t>(cuts[i % cuts.size()]);
        const std::size_t n = std::min(std::max<std::size_t>(cut, 1), signal.size() - begin);
        EXPECT_EQ(tarnStsNoErr, cut == 0
                                    ? F::one(signal[begin], &out[begin], state, scaleFactor)
                                    : F::filter(&signal[begin], &out[begin], static_cast<int>(n), state, scaleFactor));
        begin += n;
    }
    return out;
}

/// The largest sum of weights, over the outputs of a step of four, that past outputs and inputs have in an output.
inline iir::Wide lookAheadWeight(const iir::Section& s)
{
    const std::size_t n = s.a.size();
    iir::Wide sums[4] = {};
    const auto addResponse = [&](iir::Numbers y,
                                 iir::Number input) { // to outputs before, the latest last, and an input
        for (iir::Wide& sum : sums) {
            iir::Number next = input;
            for (std::size_t k = 0; k < n; ++k)
                next -= iir::product(s.a[k], y[y.size() - 1 - k]);
            input = 0;
            y.push_back(next);
            sum += std::abs(next);
        }
    };
    for (std::size_t k = 0; k < n; ++k) {
        iir::Numbers history(n);
        history[n - 1 - k] = 1;
        addResponse(history, 0);
    }
    addResponse(iir::Numbers(n), 1);
    return *std::max_element(std::begin(sums), std::end(sums));
}

/// How far results may be from exact ones. An output of a section has at most 2 n + 6 roundings, by whichever road, of
/// sums whose terms are at most those of the numerators, and those of the outputs times the weights of looking ahead.
/// For the recursion an error is one of its input, and the errors of the outputs beside it are missing there: it is
/// that error times 1 + sum of |a| at most. So it goes through the recursion, and all sections behind it. Single
/// samples do not look ahead.
inline iir::Wide iirBound(const iir::Filter& filter, const iir::Numbers& signal, iir::Wide epsilon,
                          bool looksAhead = true)
{
    iir::Wide bound = 0;
    iir::Numbers x = signal;
    const auto peak = [](const iir::Numbers& values) {
        iir::Wide most = 0;
        for (iir::Number value : values)
            most = std::max(most, std::abs(value));
        return most;
    };
    for (const iir::Section& s : filter) {
        iir::Wide sumB = 0;
        iir::Wide sumA = 1;
        for (iir::Number b : s.b)
            sumB += std::abs(b);
        for (iir::Number a : s.a)
            sumA += std::abs(a);
        iir::Numbers line(s.a.size());
        const iir::Wide in = peak(x);
        x = iir::run({s}, x, line);
        iir::Numbers pulse(signal.size());
        pulse[0] = 1;
        iir::Section recursion = s;
        std::fill(recursion.b.begin(), recursion.b.end(), iir::Number{});
        recursion.b[0] = 1;
        std::fill(line.begin(), line.end(), iir::Number{});
        iir::Wide gain = 0;
        for (iir::Number h : iir::run({recursion}, pulse, line))
            gain += std::abs(h);
        const iir::Wide weight = looksAhead ? lookAheadWeight(s) : 1;
        const iir::Wide own =
            (2 * static_cast<iir::Wide>(s.a.size()) + 6) * epsilon * (sumB * in + peak(x)) * weight * sumA;
        bound = gain * (sumB * bound + own);
    }
    return 2 * bound;
}

/// Whether samples are what the exact numbers are, up to `bound` before they were scaled and rounded.
template <class S>
::testing::AssertionResult matchesIir(const iir::Numbers& exact, const std::vector<S>& out, iir::Wide bound,
                                      int scaleFactor = 0)
{
    const auto part = [&](iir::Wide expected, auto actual) {
        using Real = decltype(actual);
        iir::Wide allowed = bound;
        if constexpr (std::is_integral_v<Real>) {
            expected = std::clamp(std::ldexp(expected, -scaleFactor),
                                  static_cast<iir::Wide>(std::numeric_limits<Real>::lowest()),
                                  static_cast<iir::Wide>(std::numeric_limits<Real>::max()));
            allowed = std::ldexp(bound, -scaleFactor) + 0.5L;
        } else {
            allowed += std::fabs(expected) * static_cast<iir::Wide>(std::numeric_limits<Real>::epsilon());
        }
        return std::fabs(expected - static_cast<iir::Wide>(actual)) <= allowed;
    };
    for (std::size_t i = 0; i < out.size(); ++i) {
        const iir::Number actual = toNumber(out[i]);
        bool good = false;
        if constexpr (ComplexElement<S>)
            good = part(exact[i].real(), out[i].re) && part(exact[i].imag(), out[i].im);
        else
            good = part(exact[i].real(), out[i]);
        if (!good)
            return ::testing::AssertionFailure()
                   << "output " << i << " is " << static_cast<double>(actual.real()) << ", "
                   << static_cast<double>(actual.imag()) << ", not " << static_cast<double>(exact[i].real()) << ", "
                   << static_cast<double>(exact[i].imag()) << " within " << static_cast<double>(bound);
    }
    return ::testing::AssertionSuccess();
}

} // namespace tarn::test
