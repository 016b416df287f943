// Plain models of packed spectra: the layouts written out as lists of what stands at each position, and everything else
// done on the list of bins.
#pragma once

#include "support/element.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tarn::test::model {

enum class Layout { perm, pack, ccs };

/// What stands at a position: a part of bin k, or the zero that stands in for an imaginary part.
struct Slot {
    enum class Part { real, imaginary, zero } part;
    std::size_t k;
};

/// The positions in order, for a signal of n samples.
inline std::vector<Slot> slots(Layout layout, std::size_t n)
{
    using enum Slot::Part;
    std::vector<Slot> order;
    order.push_back({real, 0});
    if (layout == Layout::ccs)
        order.push_back({zero, 0});
    if (layout == Layout::perm && n % 2 == 0)
        order.push_back({real, n / 2});
    for (std::size_t k = 1; 2 * k < n; ++k) {
        order.push_back({real, k});
        order.push_back({imaginary, k});
    }
    if (layout != Layout::perm && n % 2 == 0)
        order.push_back({real, n / 2});
    if (layout == Layout::ccs && n % 2 == 0)
        order.push_back({zero, n / 2});
    return order;
}

/// Bins 0 to n / 2 of a packed spectrum.
template <class T>
struct Bins {
    std::vector<T> re, im;
    std::vector<bool> isReal;
};

/// Takes a packed spectrum apart. The slots of zeros give what they hold.
template <class T>
Bins<T> unpacked(std::span<const T> packed, Layout layout, std::size_t n)
{
    const std::size_t count = n / 2 + 1;
    Bins<T> bins{std::vector<T>(count), std::vector<T>(count), std::vector<bool>(count, true)};
    const std::vector<Slot> order = slots(layout, n);
    for (std::size_t i = 0; i < order.size(); ++i) {
        const auto [part, k] = order[i];
        (part == Slot::Part::real ? bins.re : bins.im)[k] = packed[i];
        if (part == Slot::Part::imaginary)
            bins.isReal[k] = false;
    }
    return bins;
}

template <class T>
std::vector<T> packed(const Bins<T>& bins, Layout layout, std::size_t n)
{
    std::vector<T> values;
    for (const auto& [part, k] : slots(layout, n))
        values.push_back(part == Slot::Part::real ? bins.re[k] : bins.im[k]);
    return values;
}

/// Bin by bin: `real(a, b)` for real bins, `pair(ar, ai, br, bi, re, im)` for the others.
template <class T, class Real, class Pair>
std::vector<T> multiplied(std::span<const T> a, std::span<const T> b, Layout layout, Real real, Pair pair)
{
    const std::size_t n = a.size();
    const Bins<T> x = unpacked(a, layout, n);
    const Bins<T> y = unpacked(b, layout, n);
    Bins<T> z = x;
    for (std::size_t k = 0; k < x.re.size(); ++k) {
        if (x.isReal[k])
            z.re[k] = real(x.re[k], y.re[k]);
        else
            pair(x.re[k], x.im[k], y.re[k], y.im[k], z.re[k], z.im[k]);
    }
    return packed(z, layout, n);
}

template <class T>
std::vector<T> product(std::span<const T> a, std::span<const T> b, Layout layout)
{
    return multiplied(
        a, b, layout, [](T x, T y) { return x * y; },
        [](T ar, T ai, T br, T bi, T& re, T& im) {
            const T rr = ar * br;
            const T ii = ai * bi;
            const T ri = ar * bi;
            const T ir = ai * br;
            re = rr - ii;
            im = ri + ir;
        });
}

/// s times the conjugate of d.
template <class T>
std::vector<T> productByConjugate(std::span<const T> s, std::span<const T> d, Layout layout)
{
    return multiplied(
        s, d, layout, [](T x, T y) { return x * y; },
        [](T sr, T si, T dr, T di, T& re, T& im) {
            const T rr = sr * dr;
            const T ii = si * di;
            const T ri = sr * di;
            const T ir = si * dr;
            re = rr + ii;
            im = ir - ri;
        });
}

inline std::int16_t limited16(std::int64_t x)
{
    return static_cast<std::int16_t>(x < -32768 ? -32768 : x > 32767 ? 32767 : x);
}

/// The value that 32 bits hold of x.
inline std::int64_t in32Bits(std::int64_t x)
{
    const std::int64_t low = x & 0xFFFFFFFF;
    return low >= 0x80000000 ? low - 0x100000000 : low;
}

/// x shifted in 32 bits: right without rounding, left without regard to what is lost.
inline std::int64_t shifted32(std::int64_t x, std::int64_t scaleFactor)
{
    if (scaleFactor >= 0)
        return x >> (scaleFactor < 32 ? scaleFactor : 32);
    return scaleFactor > -32 ? in32Bits(x * (std::int64_t{1} << -scaleFactor)) : 0;
}

inline std::vector<std::int16_t> scaledProduct(std::span<const std::int16_t> a, std::span<const std::int16_t> b,
                                               Layout layout, std::int64_t scaleFactor)
{
    return multiplied(
        a, b, layout,
        [=](std::int64_t x, std::int64_t y) {
            return limited16(shifted32(scaleFactor < 0 ? limited16(x * y) : x * y, scaleFactor));
        },
        [=](std::int64_t ar, std::int64_t ai, std::int64_t br, std::int64_t bi, std::int16_t& re, std::int16_t& im) {
            re = limited16(shifted32(in32Bits(ar * br - ai * bi), scaleFactor));
            im = limited16(shifted32(in32Bits(ar * bi + ai * br), scaleFactor));
        });
}

/// The opposite of x: of a float the sign bit alone changes, of a word the lowest gives the highest.
template <class T>
T negated(T x)
{
    if constexpr (std::is_floating_point_v<T>)
        return -x;
    else
        return limited16(-std::int64_t{x});
}

/// All n bins.
template <class C>
std::vector<C> expanded(std::span<const RealOf<C>> source, Layout layout, std::size_t n)
{
    const Bins<RealOf<C>> bins = unpacked(source, layout, n);
    std::vector<C> all(n);
    for (std::size_t k = 0; k < bins.re.size() && k < n; ++k) {
        all[k] = {bins.re[k], bins.im[k]};
        if (!bins.isReal[k])
            all[n - k] = {bins.re[k], negated(bins.im[k])};
    }
    return all;
}

} // namespace tarn::test::model
