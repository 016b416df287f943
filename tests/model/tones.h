// Tones and triangle waves as their definitions, one sample after the other.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <type_traits>
#include <vector>

namespace tarn::model {

/// The parts of an element, and the precision that its generators run in.
template <class T>
struct PartsOf {
    using Real = T;
    static constexpr int count = 1;
};
template <class T>
    requires requires(T x) { x.re; }
struct PartsOf<T> {
    using Real = decltype(T::re);
    static constexpr int count = 2;
};
template <class T>
using Real = typename PartsOf<T>::Real;
template <class T>
using Lane = std::conditional_t<std::is_same_v<Real<T>, double>, double, float>;

/// In extended precision and rounded once, so that no library's last bits show.
inline double cosine(double x) { return static_cast<double>(std::cos(static_cast<long double>(x))); }
inline double sine(double x) { return static_cast<double>(std::sin(static_cast<long double>(x))); }

inline constexpr double halfTurn = 3.14159265358979323846;

/// What a call leaves in the phase, before it is rounded to the element's type.
inline double phaseAfter(double phase, double freq, int len)
{
    double p = 2 * halfTurn * freq * len + phase;
    const double turns = std::floor(p * 0.15915494309189535);
    p = p + turns * -6.283185307179586;
    return p < 0 || p >= 6.283185307179586 ? 0 : p;
}

/// To 16 bits: towards zero, or to nearest with ties to even; saturated.
inline Tarn16s truncated16(double x) { return static_cast<Tarn16s>(std::trunc(std::clamp(x, -32768.0, 32767.0))); }
inline Tarn16s nearest16(double x) { return static_cast<Tarn16s>(std::nearbyint(std::clamp(x, -32768.0, 32767.0))); }
inline Tarn16s halfAway16(double x)
{
    return static_cast<Tarn16s>(std::trunc(std::clamp(x > 0 ? x + 0.5 : x - 0.5, -32768.0, 32767.0)));
}

/// One part of a tone: `first` and `second` are its first two samples.
inline std::vector<double> accurateChain(double first, double second, double freq, int len)
{
    const double c = 2 * cosine(2 * halfTurn * freq);
    const double d = c * c - 2;
    std::vector<double> y = {first, second};
    for (int n = 2; n < len; ++n) {
        const auto i = static_cast<std::size_t>(n);
        y.push_back(n < 4 ? c * y[i - 1] - y[i - 2] : d * y[i - 2] - y[i - 4]);
    }
    y.resize(static_cast<std::size_t>(len));
    return y;
}

/// One part of a block of the fast road: the first samples in double, then steps of `stride` in the precision Lane.
template <class Lane>
std::vector<double> fastChain(double first, double second, double freq, int len, int stride)
{
    const double c = 2 * cosine(2 * halfTurn * freq);
    const double square = c * c;
    const double four = square * (square - 4) + 2;
    const Lane e = static_cast<Lane>(stride == 4 ? four : four * four - 2);
    const int head = 2 * stride;
    std::vector<double> y = {first, second};
    for (std::size_t n = 2; n < static_cast<std::size_t>(head); ++n)
        y.push_back(c * y[n - 1] - y[n - 2]);
    std::vector<Lane> lanes;
    for (const double x : y)
        lanes.push_back(static_cast<Lane>(x));
    for (int n = head; n < len; ++n) {
        const auto i = static_cast<std::size_t>(n);
        const auto s = static_cast<std::size_t>(stride);
        const Lane product = e * lanes[i - s];
        lanes.push_back(product - lanes[i - 2 * s]);
        y.push_back(lanes.back());
    }
    y.resize(static_cast<std::size_t>(len));
    return y;
}

/// The samples of one part, 0 for the cosine and 1 for the sine, not yet converted.
template <class Lane>
std::vector<double> toneSamples(int part, int len, double magn, double freq, double phase, bool fast)
{
    const auto at = [&](double n) {
        const double argument = 2 * halfTurn * freq * n + phase;
        return magn * (part == 0 ? cosine(argument) : sine(argument));
    };
    if (!fast)
        return accurateChain(at(0), at(1), freq, len);
    const int stride = sizeof(Lane) == 8 ? 4 : 8;
    const int block = sizeof(Lane) == 8 ? 2048 : 1024;
    std::vector<double> y;
    for (int o = 0; o < len; o += block) {
        const auto samples = fastChain<Lane>(at(o), at(o + 1.0), freq, std::min(block, len - o), stride);
        y.insert(y.end(), samples.begin(), samples.end());
    }
    return y;
}

/// The exact triangle at a phase, wrapped.
inline double triangleAt(double phase, double magn, double asym)
{
    const double p = phase - 2 * halfTurn * std::floor(phase / (2 * halfTurn));
    const double a = halfTurn + asym;
    const double b = halfTurn - asym;
    return p <= a ? magn - 2 * magn * p / a : 2 * magn / b * p - magn * (3 * halfTurn + asym) / b;
}

/// The samples of one part in lanes that each keep a phase of their own.
template <class Lane>
std::vector<Lane> triangleSamples(int part, int parts, int len, double magn, double freq, double asym, double phase)
{
    const auto wrapped = [](double p) { return p > 2 * halfTurn ? p - 2 * halfTurn : p; };
    const double a = halfTurn + asym;
    const double b = halfTurn - asym;
    const double w = 2 * halfTurn * freq;
    const double start = part == 0 ? phase : wrapped(phase + (3 * halfTurn + asym) / 2);
    const int group = 4 / parts;
    const Lane step = static_cast<Lane>(wrapped(group * w));
    const Lane turn = static_cast<Lane>(2 * halfTurn);
    std::vector<Lane> lanes;
    for (int i = 0; i < group; ++i)
        lanes.push_back(static_cast<Lane>(wrapped(start + i * w)));
    std::vector<Lane> y;
    for (int n = 0; n < len; ++n) {
        Lane& p = lanes[static_cast<std::size_t>(n % group)];
        if (p > turn)
            p -= turn;
        const bool rises = p > static_cast<Lane>(a);
        const Lane slope = static_cast<Lane>(rises ? 2 * magn / b : -2 * magn / a);
        const Lane intercept = static_cast<Lane>(rises ? -magn * (3 * halfTurn + asym) / b : magn);
        const Lane product = slope * p;
        y.push_back(product + intercept);
        p += step;
    }
    return y;
}

} // namespace tarn::model
