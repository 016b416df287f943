// Kernels of the random generators.
#include "levels/generators/psrandom.h"

#include "frame/rounding.h"
#include "frame/simd_exp.h"
#include "frame/walk.h"

#include <cmath>

namespace tarn {

namespace {

constexpr Tarn32u factor = 69069;
constexpr Tarn32u increment = 1013904243;
constexpr Tarn32u firstOfLcg = 1131199209;

// Two steps of the congruence at once. A draw waits for the carry of the one before, some three cycles; the products of
// the congruence would take four.
constexpr Tarn32u factorOfTwo = factor * factor;
constexpr Tarn32u incrementOfTwo = factor * increment + increment;
static_assert(factorOfTwo == 475559465 && incrementOfTwo == 924302730);

// The lags in registers. They move on by names: after three draws every name has its own lag again.
TARN_INLINE Tarn32u subtract(Tarn32u later, Tarn32u earlier, Tarn32s& carry)
{
    const Tarn32u t = later - earlier + static_cast<Tarn32u>(carry);
    carry = static_cast<Tarn32s>(t) >> 31;
    return t - (static_cast<Tarn32u>(carry) & 18U);
}

TARN_INLINE Tarn32s draw(RandomSequence& x)
{
    x.lcg = x.lcg * factor + increment;
    const Tarn32u t = subtract(x.s1, x.s2, x.carry);
    x.s2 = x.s1;
    x.s1 = x.s0;
    x.s0 = t;
    return static_cast<Tarn32s>(t + x.lcg);
}

// Many draws, six at a time without a move of the lags.
void drawMany(Tarn32s* draws, int count, RandomSequence& sequence)
{
    RandomSequence x = sequence;
    Tarn32u first = x.lcg * factor + increment;
    Tarn32u second = first * factor + increment;
    const auto put = [&](int i, Tarn32u lag) {
        Tarn32u& lcg = i % 2 == 0 ? first : second;
        draws[i] = static_cast<Tarn32s>(lag + lcg);
        lcg = lcg * factorOfTwo + incrementOfTwo;
    };
    constexpr int turn = 6;
    int left = count;
    for (; left >= turn; left -= turn, draws += turn) {
        x.s2 = subtract(x.s1, x.s2, x.carry);
        put(0, x.s2);
        x.s1 = subtract(x.s0, x.s1, x.carry);
        put(1, x.s1);
        x.s0 = subtract(x.s2, x.s0, x.carry);
        put(2, x.s0);
        x.s2 = subtract(x.s1, x.s2, x.carry);
        put(3, x.s2);
        x.s1 = subtract(x.s0, x.s1, x.carry);
        put(4, x.s1);
        x.s0 = subtract(x.s2, x.s0, x.carry);
        put(5, x.s0);
    }
    // The congruential word of the last draw: one step back from the next one.
    constexpr Tarn32u inverse = 2783094533U;
    static_assert(inverse * factor == 1);
    x.lcg = (first - increment) * inverse;
    for (; left > 0; --left, ++draws) {
        *draws = draw(x);
    }
    sequence = x;
}

// -- Uniform numbers --------------------------------------------------------------------------------------------------

template <ToInteger toInteger, typename T>
struct UniformTo {
    UniformRange range;

    template <typename X>
    TARN_INLINE auto operator()(X draws) const
    {
        return byRegister(draws, [this](auto r) { return this->one(r); });
    }

private:
    template <typename X>
    TARN_INLINE auto one(X draws) const
    {
        using D = Like<X, Tarn64f>;
        const auto v = add(mul(convert<Tarn64f>(draws), splat<D>(range.span)), splat<D>(range.mid));
        if constexpr (isDouble<T>) {
            return v;
        } else if constexpr (isSingle<T>) {
            return narrowFloat(v);
        } else if constexpr (toInteger == ToInteger::rounded) {
            return roundToInteger(v);
        } else {
            return truncateToInteger(v);
        }
    }
};

// What is left is to narrow integers.
template <ToInteger toInteger, typename T>
struct NarrowedUniformTo {
    UniformTo<toInteger, T> uniform;

    template <typename X>
    TARN_INLINE auto operator()(X draws) const
    {
        if constexpr (sizeof(T) == 1) {
            return narrowSaturated<T>(narrowSaturated<Tarn16s>(uniform(draws)));
        } else {
            return narrowSaturated<T>(uniform(draws));
        }
    }
};

} // namespace

RandomSequence randomFrom(Tarn32u seed)
{
    const Tarn32u s1 = seed * factor + increment;
    return {firstOfLcg, seed, s1, s1 * factor + increment, -1};
}

template <ToInteger toInteger, typename T>
void uniform(T* dst, int len, UniformRange range, RandomSequence& sequence)
{
    // The draws wait in the first-level cache for the conversion.
    constexpr int block = 384;
    Tarn32s draws[block];
    const UniformTo<toInteger, T> operation{range};
    for (int i = 0, taken = 0; i < len; i += taken) {
        taken = std::min(len - i, block);
        drawMany(draws, taken, sequence);
        const Tarn32s* const src = draws;
        if constexpr (std::is_floating_point_v<T>) {
            walk(dst + i, taken, operation, src);
        } else {
            walk(dst + i, taken, NarrowedUniformTo<toInteger, T>{operation}, src);
        }
    }
}

// -- Normal numbers, by the polar method ------------------------------------------------------------------------------

namespace {

// sqrt(-2 ln(s) / s)
struct FactorOfSquare {
    template <typename X>
    TARN_INLINE X operator()(X s) const
    {
        return squareRoot(tarn::div(mul(splat<X>(-2.0), logarithm(s)), s));
    }
};

// Points of the unit circle, and the factor that makes two normal numbers of each. They are made many at a time, so
// that neither a rejected point nor the latency of a logarithm holds up the next one.
struct NormalPairs {
    static constexpr int most = 64;

    struct Point {
        double first, second;
    };
    Point points[most];
    double factors[most];

    // Exactly as many draws as the pairs take: every round draws as many points as are still missing.
    void make(int count, RandomSequence& sequence)
    {
        double squares[most + 1];
        Tarn32s draws[2 * most];
        for (int found = 0; found < count;) {
            const int missing = count - found;
            drawMany(draws, 2 * missing, sequence);
            for (int i = 0; i < missing; ++i) {
                const double u1 = draws[2 * i] * unit;
                const double u2 = draws[2 * i + 1] * unit;
                const double s = u1 * u1 + u2 * u2;
                points[found] = {u2, u1};
                squares[found] = s;
                found += static_cast<int>(s < 1.0) & static_cast<int>(s != 0.0);
            }
        }
        const StandardArithmetic guard;
        const double* const src = squares;
        walk(factors, count, FactorOfSquare{}, src);
    }

private:
    static constexpr double unit = 0x1.ffffffffffd09p-32;
};

template <typename T>
T normalAs(double deviation, T mean)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return static_cast<Tarn32f>(deviation) + mean;
    } else if constexpr (std::is_same_v<T, Tarn64f>) {
        return deviation + mean;
    } else {
        const double x = deviation + mean;
        return static_cast<T>(truncateToInteger(std::fmin(std::fmax(x, lowest<T>), highest<T>)));
    }
}

} // namespace

template <typename T>
void normal(T* dst, int len, T mean, T stdDev, RandomSequence& sequence, WaitingNormal& waiting)
{
    const double width = stdDev;
    int i = 0;
    if (waiting.isNone == 0) {
        store(dst, normalAs<T>(width * waiting.factor * waiting.second, mean));
        waiting.isNone = 1;
        i = 1;
    }
    NormalPairs pairs;
    while (i < len) {
        const int left = len - i;
        const int count = std::min(left / 2 + left % 2, NormalPairs::most);
        pairs.make(count, sequence);
        for (int k = 0; k < count; ++k, i += 2) {
            const auto [first, second] = pairs.points[k];
            const double scale = width * pairs.factors[k];
            store(dst + i, normalAs<T>(scale * first, mean));
            if (i + 1 < len) {
                store(dst + i + 1, normalAs<T>(scale * second, mean));
            } else {
                waiting = {0, pairs.factors[k], second};
                return;
            }
        }
    }
}

#define TARN_INSTANTIATE_UNIFORM(T, MODE) \
    template void uniform<ToInteger::MODE, T>(T*, int, UniformRange, RandomSequence&);
#define TARN_INSTANTIATE_NORMAL(T) template void normal<T>(T*, int, T, T, RandomSequence&, WaitingNormal&);

TARN_INSTANTIATE_UNIFORM(Tarn8u, truncated)
TARN_INSTANTIATE_UNIFORM(Tarn16s, truncated)
TARN_INSTANTIATE_UNIFORM(Tarn16s, rounded)
TARN_INSTANTIATE_UNIFORM(Tarn32f, rounded)
TARN_INSTANTIATE_UNIFORM(Tarn64f, rounded)
TARN_INSTANTIATE_NORMAL(Tarn8u)
TARN_INSTANTIATE_NORMAL(Tarn16s)
TARN_INSTANTIATE_NORMAL(Tarn32f)
TARN_INSTANTIATE_NORMAL(Tarn64f)

} // namespace tarn
