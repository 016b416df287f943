// Single bins by the plain recurrence, part by part and in double precision, and by the sum that they stand for.
#pragma once

#include "tarncore.h"

#include <cmath>
#include <span>

namespace tarn::test::model {

struct GoertzelStates {
    double u = 0;
    double v = 0;
};

/// cos(w) and sin(w), w being 2 pi times a frequency, formed in double precision.
struct GoertzelTurn {
    double cosine;
    double sine;
    explicit GoertzelTurn(double frequency)
    {
        const double w = 6.283185307179586 * frequency;
        cosine = static_cast<double>(std::cos(static_cast<long double>(w)));
        sine = static_cast<double>(std::sin(static_cast<long double>(w)));
    }
};

/// t = k u - v + x: a product, a difference, a sum.
inline void step(GoertzelStates& s, double k, double x)
{
    const double product = k * s.u;
    const double difference = product - s.v;
    s.v = s.u;
    s.u = difference + x;
}

struct GoertzelBin {
    double re;
    double im;
};

/// u exp(i w) - v.
inline GoertzelBin binOf(GoertzelStates re, GoertzelStates im, GoertzelTurn turn)
{
    const double a = -im.u * turn.sine;
    const double b = re.u * turn.sine;
    return {(a - re.v) + re.u * turn.cosine, (b - im.v) + im.u * turn.cosine};
}

/// The bin of complex samples; `rounded` is what is done to the last states.
template <class T, class Round>
GoertzelBin goertzel(std::span<const T> x, double frequency, Round rounded)
{
    const GoertzelTurn turn(frequency);
    GoertzelStates re;
    GoertzelStates im;
    for (const T& sample : x) {
        step(re, 2 * turn.cosine, sample.re);
        step(im, 2 * turn.cosine, sample.im);
    }
    return binOf({rounded(re.u), rounded(re.v)}, {rounded(im.u), rounded(im.v)}, turn);
}

/// Of real samples.
template <class T>
GoertzelBin goertzelReal(std::span<const T> x, double frequency)
{
    const GoertzelTurn turn(frequency);
    GoertzelStates s;
    for (const T sample : x)
        step(s, 2 * turn.cosine, sample);
    return {s.u * turn.cosine - s.v, s.u * turn.sine};
}

} // namespace tarn::test::model
