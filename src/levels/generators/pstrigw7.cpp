// Sine and cosine of vectors, by argument reduction to an eighth of the circle and Taylor's series.
#include "frame/simd.h"
#include "frame/trigonometry.h"

#include <cmath>

using namespace tarn;

namespace {

using Doubles = Vector<Tarn64f>;

// The sum of coefficients[i] z^i.
template <std::size_t count>
TARN_INLINE Doubles polynomial(Doubles z, const Tarn64f (&coefficients)[count])
{
    Doubles sum = splat<Doubles>(coefficients[count - 1]);
    for (std::size_t i = count - 1; i-- > 0;) {
        sum = add(mul(sum, z), splat<Doubles>(coefficients[i]));
    }
    return sum;
}

// Up to an eighth of the circle the first term left out is below 2^-60 of the result.
TARN_INLINE Doubles sineOfSmall(Doubles r)
{
    static constexpr Tarn64f series[] = {
        -1.0 / 6,        1.0 / 120,        -1.0 / 5040,          1.0 / 362880,
        -1.0 / 39916800, 1.0 / 6227020800, -1.0 / 1307674368000, 1.0 / 355687428096000};
    const Doubles z = mul(r, r);
    return add(r, mul(mul(r, z), polynomial(z, series)));
}

// 1 - z / 2 is not exact: what its rounding lost goes back in with the small terms.
TARN_INLINE Doubles cosineOfSmall(Doubles r)
{
    static constexpr Tarn64f series[] = {
        1.0 / 24,        -1.0 / 720,         1.0 / 40320,          -1.0 / 3628800,
        1.0 / 479001600, -1.0 / 87178291200, 1.0 / 20922789888000, -1.0 / 6402373705728000};
    const Doubles z = mul(r, r);
    const Doubles halfSquare = mul(z, splat<Doubles>(0.5));
    const Doubles one = splat<Doubles>(1);
    const Doubles high = sub(one, halfSquare);
    const Doubles lost = sub(sub(one, high), halfSquare);
    return add(high, add(lost, mul(mul(z, z), polynomial(z, series))));
}

// Half of pi in three parts, of which the first two have few enough bits for exact products with any number of turns
// that an argument may hold.
constexpr Tarn64f turnsPerRadian = 0.63661977236758134308;
constexpr Tarn64f quarterTurn[] = {1.57079632673412561417e+00, 6.07710050630396597660e-11, 2.02226624879595063154e-21};

template <bool sine>
TARN_INLINE void twoValues(const Tarn64f* x, Tarn64f* y)
{
    int quadrant[lanes<Tarn64f>];
    Tarn64f reduced[lanes<Tarn64f>];
    for (int i = 0; i < lanes<Tarn64f>; ++i) {
        const Tarn64f turns = std::floor(x[i] * turnsPerRadian + 0.5);
        quadrant[i] = static_cast<int>(turns) + (sine ? 0 : 1);
        reduced[i] = x[i] - turns * quarterTurn[0] - turns * quarterTurn[1] - turns * quarterTurn[2];
    }
    Tarn64f sines[lanes<Tarn64f>];
    Tarn64f cosines[lanes<Tarn64f>];
    const Doubles r = loadPack<lanes<Tarn64f>>(reduced);
    store(sines, sineOfSmall(r));
    store(cosines, cosineOfSmall(r));
    for (int i = 0; i < lanes<Tarn64f>; ++i) {
        const Tarn64f magnitude = (quadrant[i] & 1) != 0 ? cosines[i] : sines[i];
        y[i] = (quadrant[i] & 2) != 0 ? -magnitude : magnitude;
    }
}

template <bool sine>
TARN_INLINE void fourValues(const Tarn32f* x, Tarn32f* y)
{
    for (int i = 0; i < 4; i += 2) {
        const Tarn64f wide[] = {x[i], x[i + 1]};
        Tarn64f values[2];
        twoValues<sine>(wide, values);
        y[i] = static_cast<Tarn32f>(values[0]);
        y[i + 1] = static_cast<Tarn32f>(values[1]);
    }
}

} // namespace

void zplsSin4(const Tarn32f* x, Tarn32f* y) { fourValues<true>(x, y); }
void zplsCos4(const Tarn32f* x, Tarn32f* y) { fourValues<false>(x, y); }
void zpldSin2(const Tarn64f* x, Tarn64f* y) { twoValues<true>(x, y); }
void zpldCos2(const Tarn64f* x, Tarn64f* y) { twoValues<false>(x, y); }
