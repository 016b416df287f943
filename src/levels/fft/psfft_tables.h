// The tables of the power-of-two transforms. Every factor is an entry of one base sine table or its negative, so that
// the symmetry of the circle holds to the bit.
#pragma once

#include "frame/constants.h"
#include "frame/object.h"
#include "frame/trigonometry.h"
#include "frame/walk.h"
#include "levels/fft/psfft_butterflies.h"

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
    for (int i = first; i <= last; i += 2) {
        const Tarn64f arguments[] = {argument(i), argument(std::min(i + 1, last))};
        Tarn64f values[2];
        (sine ? zpldSin2 : zpldCos2)(arguments, values);
        table[i] = tableEntry<T>(values[0]);
        table[std::min(i + 1, last)] = tableEntry<T>(values[i < last ? 1 : 0]);
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
        : base(base), quarter((1 << baseOrder) / 4), stride(1 << (baseOrder - order))
    {
    }

    // (cos, -sin) of the angle of m points, m from 0 to four right angles.
    Complex<T> factor(int m) const
    {
        const int at = m * stride;
        switch ((at - (at > 0)) / quarter) {
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

private:
    T minus(int entry) const { return static_cast<T>(-base[entry]); }
};

// The factors of all the stages of one length, from the shortest up. A stage of length L holds W(k), W(2k) and W(3k)
// for k below L / 4, in blocks of the working arrangement.
template <typename T>
inline Owned<T[]> stageTable(int order, const T* base, int baseOrder)
{
    constexpr int group = blockLanes<T>;
    const long long size = 1LL << order;
    Owned<T[]> table = allocate<T>(2 * (size < 9 ? 1 : size));
    if (!table) {
        return table;
    }
    T* to = table.get();
    for (int stage = order % 2 == 0 ? 4 : 5; stage <= order; stage += 2) {
        const Circle<T> circle(base, baseOrder, stage);
        for (int k = 0; k < (1 << stage) / 4; k += group) {
            for (int power = 1; power <= 3; ++power, to += 2 * group) {
                for (int lane = 0; lane < group; ++lane) {
                    const Complex<T> w = circle.factor(power * (k + lane));
                    to[lane] = w.re;
                    to[lane + group] = w.im;
                }
            }
        }
    }
    return table;
}

} // namespace tarn::fft
