// Classic low-pass designs of any order, in long double: Butterworth, Chebyshev with 1 dB of ripple, elliptic with 1 dB
// and 50 dB, by the bilinear transform. The elliptic functions go by Landen's transformation.
#pragma once

#include "model/iir.h"

namespace tarn::test::iir {

enum class Design { butterworth, chebyshev, elliptic };

inline const char* nameOf(Design design)
{
    return design == Design::butterworth ? "Butterworth" : design == Design::chebyshev ? "Chebyshev" : "elliptic";
}

inline constexpr Wide piWide = 3.14159265358979323846264338327950288L;

// The descending moduli of a modulus.
inline std::vector<Wide> landenModuli(Wide k)
{
    std::vector<Wide> moduli;
    while (k > 1e-19L && moduli.size() < 12) {
        const Wide root = k / (1 + std::sqrt(1 - k * k));
        k = root * root;
        moduli.push_back(k);
    }
    return moduli;
}

// cd and sn of u quarter periods, and the inverse of sn.
inline Number ascended(Number w, Wide k)
{
    const auto moduli = landenModuli(k);
    for (std::size_t i = moduli.size(); i-- > 0;)
        w = (1 + moduli[i]) * w / (Wide{1} + moduli[i] * w * w);
    return w;
}
inline Number ellipticCd(Number u, Wide k) { return ascended(std::cos(u * (piWide / 2)), k); }
inline Number ellipticSn(Number u, Wide k) { return ascended(std::sin(u * (piWide / 2)), k); }
inline Number inverseSn(Number w, Wide k)
{
    for (Wide next : landenModuli(k)) {
        w = w / (Wide{1} + std::sqrt(Wide{1} - w * w * (k * k))) * (2 / (1 + next));
        k = next;
    }
    return std::asin(w) * (2 / piWide);
}

struct Prototype {
    Numbers zeros, poles;
};

// The analog filter whose pass band ends at 1.
inline Prototype prototypeOf(Design design, int order)
{
    const Number i(0, 1);
    const Wide n = order;
    const Wide ripple = std::sqrt(std::pow(10.0L, 0.1L) - 1); // 1 dB
    Prototype filter;
    if (design == Design::butterworth) {
        for (int k = 0; k < order; ++k)
            filter.poles.push_back(std::polar(1.0L, piWide * (2 * k + n + 1) / (2 * n)));
    } else if (design == Design::chebyshev || order == 1) {
        const Wide a = std::asinh(1 / ripple) / n;
        for (int k = 0; k < order; ++k) {
            const Wide angle = piWide * (2 * k + 1) / (2 * n);
            filter.poles.emplace_back(-std::sinh(a) * std::sin(angle), std::cosh(a) * std::cos(angle));
        }
    } else {
        const Wide k1 = ripple / std::sqrt(std::pow(10.0L, 5.0L) - 1); // 50 dB
        const Wide k1c = std::sqrt(1 - k1 * k1);
        Wide kc = std::pow(k1c, n);
        for (int m = 1; m <= order / 2; ++m)
            kc *= std::pow(ellipticSn((2 * m - 1) / n, k1c).real(), 4);
        const Wide k = std::sqrt(1 - kc * kc);
        const Number v = -i * inverseSn(i / ripple, k1) / n;
        for (int m = 1; m <= order / 2; ++m) {
            const Number u = (2 * m - 1) / n;
            const Number zero = i / (k * ellipticCd(u, k));
            const Number pole = i * ellipticCd(u - i * v, k);
            for (Number z : {zero, std::conj(zero)})
                filter.zeros.push_back(z);
            for (Number p : {pole, std::conj(pole)})
                filter.poles.push_back(p);
        }
        if (order % 2 != 0)
            filter.poles.push_back(i * ellipticSn(i * v, k));
    }
    return filter;
}

/// Taps of a low-pass with the end of its pass band at `edge`, 1 being half the rate of the samples: b0..bN, a0..aN,
/// with a gain of 1 at 0.
inline Numbers lowpass(Design design, int order, Wide edge)
{
    const Wide w = std::tan(piWide * edge / 2);
    const auto digital = [w](Numbers roots) {
        for (Number& root : roots)
            root = (Wide{1} + root * w) / (Wide{1} - root * w);
        return roots;
    };
    const auto polynomial = [](const Numbers& roots) {
        Numbers c = {1};
        for (Number root : roots) {
            c.push_back(0);
            for (std::size_t k = c.size() - 1; k > 0; --k)
                c[k] -= root * c[k - 1];
        }
        return c;
    };
    const Prototype analog = prototypeOf(design, order);
    Numbers zeros = digital(analog.zeros);
    zeros.resize(static_cast<std::size_t>(order), -1); // those at infinity
    Numbers taps = polynomial(zeros);
    const Numbers a = polynomial(digital(analog.poles));
    Wide above = 0;
    Wide below = 0;
    for (std::size_t k = 0; k < a.size(); ++k) {
        above += taps[k].real();
        below += a[k].real();
    }
    for (Number& b : taps)
        b = b.real() * below / above;
    for (Number c : a)
        taps.push_back(c.real());
    return taps;
}

} // namespace tarn::test::iir
