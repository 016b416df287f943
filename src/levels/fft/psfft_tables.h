// The tables of the power-of-two transforms. Every factor is an entry of one base sine table or its negative, so that
// the symmetry of the circle holds to the bit.
#pragma once

#include "frame/constants.h"
#include "frame/object.h"
#include "frame/trigonometry.h"
#include "frame/walk.h"
#include "levels/fft/psfft_work.h"

#include <algorithm>

namespace tarn::fft {

// Counts through the numbers of some bits in bit-reversed order.
class ReversedCounter {
public:
    explicit ReversedCounter(int bits) : top(bits > 0 ? 1 << (bits - 1) : 0) {}

    int value() const { return reversed; }
    void advance()
    {
        int bit = top;
        while ((reversed & bit) != 0) {
            reversed ^= bit;
            bit >>= 1;
        }
        reversed |= bit;
    }

private:
    int top;
    int reversed = 0;
};

// One in units of the words that stand for factors of transforms in fixed point.
inline constexpr int fixedOneBits = 14;
inline constexpr Tarn16s fixedOne = 1 << fixedOneBits;

// A sine or cosine between 0 and 1 as an entry of a table: rounded to the element type, words half up.
template <typename T>
inline T tableEntry(Tarn64f value)
{
    if constexpr (std::is_same_v<T, Tarn16s>) {
        return static_cast<Tarn16s>(value * fixedOne + 0.5);
    } else {
        return static_cast<T>(value);
    }
}

// table[i] = sin(argument(i)) or cos(argument(i)) for i from `first` to `last`: the single-precision tables are made in
// double precision too, so that no rounding of an argument shows in them.
template <bool sine, typename T, typename Argument>
inline void fillRun(T* table, int first, int last, Argument argument)
{
    constexpr int most = 64;
    Tarn64f arguments[most];
    Tarn64f values[most];
    for (int i = first; i <= last; i += most) {
        const int count = std::min(most, last + 1 - i);
        for (int k = 0; k < count; ++k) {
            arguments[k] = argument(i + k);
        }
        (sine ? sinesOf : cosinesOf)(arguments, values, count);
        for (int k = 0; k < count; ++k) {
            table[i + k] = tableEntry<T>(values[k]);
        }
    }
}

// Null if there is no memory, or if the table is larger than an allocation can be.
template <typename T>
inline Owned<T[]> baseTable(int order)
{
    const int size = 1 << order;
    Owned<T[]> table = allocate<T>(size / 4 + 1);
    if (table) {
        const Tarn64f step = 2 * pi / size;
        // A sine near a right angle is the cosine of a small angle.
        const int quarter = size / 4;
        fillRun<true>(table.get(), 0, size / 8, [=](int j) { return j * step; });
        fillRun<false>(table.get(), size / 8 + 1, quarter, [=](int j) { return (quarter - j) * step; });
    }
    return table;
}

// The circle of 2^order points, as a view of a base table of that order or a higher one.
template <typename T>
struct Circle {
    const T* base;
    int quarter; // entries of the base table in a right angle
    int stride;  // entries of the base table from point to point

    Circle(const T* base, int baseOrder, int order)
        : base(base), quarter((1 << baseOrder) / 4), stride(1 << (baseOrder - order)), quarterOrder(baseOrder - 2)
    {
    }

    // (cos, -sin) of the angle of m points, m from 0 to four right angles.
    Complex<T> factor(int m) const
    {
        const int at = m * stride;
        switch (quadrant(at)) {
        case 0:
            return {base[quarter - at], minus(at)};
        case 1:
            return {minus(at - quarter), minus(2 * quarter - at)};
        case 2:
            return {minus(3 * quarter - at), base[at - 2 * quarter]};
        default:
            return {base[at - 3 * quarter], base[4 * quarter - at]};
        }
    }

    // The factors of `count` points from m on, `step` points apart: both parts are entries of the base table in a row,
    // which changes its place where a right angle ends.
    template <int count>
    void factors(int m, int step, T* re, T* im) const
    {
        const int at = m * stride;
        const int by = step * stride;
        const int where = quadrant(at);
        if (where > 2 || where != quadrant(at + (count - 1) * by)) {
            for (int i = 0; i < count; ++i) {
                const Complex<T> w = factor(m + i * step);
                re[i] = w.re;
                im[i] = w.im;
            }
        } else if (where == 0) {
            for (int i = 0; i < count; ++i) {
                re[i] = base[quarter - (at + i * by)];
                im[i] = minus(at + i * by);
            }
        } else if (where == 1) {
            for (int i = 0; i < count; ++i) {
                re[i] = minus(at + i * by - quarter);
                im[i] = minus(2 * quarter - (at + i * by));
            }
        } else {
            for (int i = 0; i < count; ++i) {
                re[i] = minus(3 * quarter - (at + i * by));
                im[i] = base[at + i * by - 2 * quarter];
            }
        }
    }

private:
    int quarterOrder;

    // A right angle belongs to the one that it ends.
    int quadrant(int at) const { return (at - (at > 0)) >> quarterOrder; }
    T minus(int entry) const { return static_cast<T>(-base[entry]); }
};

// The factors of all the stages of one length, from the shortest up. A stage of length L holds W(k), W(2k) and W(3k)
// for k below L / 4, in blocks of factorLanes<T>(L).
template <typename T>
inline Owned<T[]> stageTable(int order, const T* base, int baseOrder)
{
    const long long size = 1LL << order;
    Owned<T[]> table = allocate<T>(2 * (size < 9 ? 1 : size));
    if (!table) {
        return table;
    }
    T* to = table.get();
    for (int stage = order % 2 == 0 ? 4 : 5; stage <= order; stage += 2) {
        const Circle<T> circle(base, baseOrder, stage);
        const int group = factorLanes<T>(1 << stage);
        for (int k = 0; k < (1 << stage) / 4; k += group) {
            for (int power = 1; power <= 3; ++power, to += 2 * group) {
                for (int i = 0; i < group; i += blockLanes<T>) {
                    circle.template factors<blockLanes<T>>(power * (k + i), power, to + i, to + group + i);
                }
            }
        }
    }
    return table;
}

} // namespace tarn::fft
