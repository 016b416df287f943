// Convolutions and correlations of every type behind one interface: values in, values out.
#pragma once

#include "model/correlation.h"
#include "support/element.h"
#include "support/fpstate.h"
#include "support/guarded.h"
#include "support/hard_values.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace tarn::test {

using model::Precision;
using model::Sequence;

/// Arguments beside the vectors, and where arrays lie: their last byte is `gap` before an unmapped page.
struct SlidingOptions {
    int lowLag = 0;
    int scaleFactor = 0;
    unsigned gap = 0;
};

/// A function. `run` puts `results` into the destination before the call, and what it holds afterwards into `results`.
struct SlidingCall {
    std::string name;
    bool isComplex;
    bool isInteger;
    Precision precision;
    std::function<int(const Sequence& x, const Sequence& y, Sequence& results, SlidingOptions options)> run;
};

namespace detail {

template <class T>
std::vector<T> elementsOf(const Sequence& values)
{
    std::vector<T> elements;
    for (const auto& value : values) {
        if constexpr (ComplexElement<T>)
            elements.push_back({static_cast<RealOf<T>>(value.real()), static_cast<RealOf<T>>(value.imag())});
        else
            elements.push_back(static_cast<T>(value.real()));
    }
    return elements;
}

template <class T>
Sequence valuesOf(const std::vector<T>& elements)
{
    Sequence values;
    for (const T& element : elements) {
        if constexpr (ComplexElement<T>)
            values.emplace_back(element.re, element.im);
        else
            values.emplace_back(element, 0);
    }
    return values;
}

} // namespace detail

/// `call(x, xLen, y, yLen, dst, dstLen, options)` on guarded arrays that must not change but for the destination.
template <class T, class Call>
SlidingCall slidingCall(std::string name, Call call)
{
    const auto run = [call](const Sequence& x, const Sequence& y, Sequence& results, SlidingOptions options) {
        const auto gap = [&](unsigned turn) { return Placement::atEnd((options.gap + 5 * turn) % 16); };
        const std::vector<T> xs = detail::elementsOf<T>(x);
        const std::vector<T> ys = detail::elementsOf<T>(y);
        const GuardedArray<T> xArray(xs, gap(0));
        const GuardedArray<T> yArray(ys, gap(1));
        GuardedArray<T> dst(detail::elementsOf<T>(results), gap(2));
        const FpState before = FpState::current();
        const int status = call(xArray.data(), static_cast<int>(xs.size()), yArray.data(), static_cast<int>(ys.size()),
                                dst.data(), static_cast<int>(dst.size()), options);
        EXPECT_EQ("", before.changesSince());
        EXPECT_EQ(0, std::memcmp(xArray.bytes(), xs.data(), xArray.byteSize()));
        EXPECT_EQ(0, std::memcmp(yArray.bytes(), ys.data(), yArray.byteSize()));
        dst.checkRedZones();
        results = detail::valuesOf(dst.copy());
        return status;
    };
    using Real = decltype([] {
        if constexpr (ComplexElement<T>)
            return RealOf<T>{};
        else
            return T{};
    }());
    return {std::move(name), ComplexElement<T>, std::is_integral_v<T>,
            std::is_same_v<Real, Tarn64f> ? Precision::twice : Precision::single, run};
}

/// Noise that the type holds: integers up to 1000, or floats of 20 bits.
inline Sequence noise(const SlidingCall& call, std::size_t len, std::uint64_t seed)
{
    Random random(seed);
    const auto draw = [&] {
        const double unit = 2 * random.unit() - 1;
        return call.isInteger ? std::round(1000 * unit) : std::round(0x1p20 * unit) * 0x1p-20;
    };
    Sequence values(len);
    for (auto& value : values) {
        value = draw();
        if (call.isComplex)
            value = {value.real(), draw()};
    }
    return values;
}

/// Whether the results are the expected ones up to an absolute error.
inline ::testing::AssertionResult agree(const Sequence& expected, const Sequence& results, double bound = 0)
{
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto e = expected[i];
        const auto r = results[i];
        const bool same = e == r || (std::abs(e.real() - r.real()) <= bound && std::abs(e.imag() - r.imag()) <= bound);
        if (!same)
            return ::testing::AssertionFailure() << "[" << i << "] of " << expected.size() << ": expected " << e
                                                 << ", got " << r << ", bound " << bound;
    }
    return ::testing::AssertionSuccess();
}

} // namespace tarn::test
