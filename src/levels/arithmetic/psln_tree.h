// Decision trees over integers: results that go up by 1 at a few thresholds.
#pragma once

#include "frame/simd_int.h"

#include <array>
#include <bit>
#include <initializer_list>

namespace tarn {

// The place of the highest bit of an argument of at least 1. Compilers know this form for one instruction.
constexpr int highestBit(Tarn32s x) { return std::countl_zero(static_cast<Tarn32u>(x)) ^ 31; }

constexpr int bitsOfArgument(Tarn32s x) { return x == 0 ? 0 : highestBit(x) + 1; }

// Not to be called: what should be constant has two thresholds from one power of two to the next.
int thresholdsTooClose();

// How many of some thresholds an argument has reached. Its highest bit is the branch, and leaves one threshold to
// compare with. An entry has the count of those below in its upper half, and 2^32 less the threshold in its lower one,
// so that the argument added to it carries into the count: there is no branch that nobody could foretell.
class DecisionTree {
public:
    // In ascending order, from 1 on.
    constexpr DecisionTree(std::initializer_list<Tarn32s> thresholds)
    {
        for (std::size_t bit = 0; bit < entries.size(); ++bit) {
            const Tarn32u first = 1U << bit;
            Tarn32u reached = 0;
            Tarn32u inside = 0;
            for (const Tarn32s threshold : thresholds) {
                const auto t = static_cast<Tarn32u>(threshold);
                reached += t <= first ? 1 : 0;
                if (t > first && t < 2 * first) {
                    inside = inside == 0 ? t : static_cast<Tarn32u>(thresholdsTooClose());
                }
            }
            entries[bit] = static_cast<std::uint64_t>(reached) << 32 | static_cast<Tarn32u>(0U - inside);
        }
    }

    // Of an argument of at least 1.
    constexpr int operator()(Tarn32s x) const
    {
        return static_cast<int>((entries[static_cast<std::size_t>(highestBit(x))] + static_cast<Tarn32u>(x)) >> 32);
    }

private:
    std::array<std::uint64_t, 31> entries{};
};

// Where ln x, rounded to nearest, goes up by 1: above e^(k - 1/2).
inline constexpr DecisionTree roundedLogarithm = {
    2,     5,      13,     34,      91,      245,      666,      1809,      4915,      13360,    36316,
    98716, 268338, 729417, 1982760, 5389699, 14650720, 39824785, 108254988, 294267567, 799902178};

// The same of ln x / 2, ln x / 4, ln x / 8, ln x / 16, for 16-bit arguments.
inline constexpr DecisionTree dividedLogarithms[] = {{3, 21, 149, 1097, 8104}, {8, 404, 22027}, {55}, {2981}};

// 10 log10 x from 15 on, in brackets of 2 decibels: 12 decibels are the first, and what would be 94 is 93. Every second
// threshold is in a tree of its own.
inline constexpr DecisionTree everySecondBracket[] = {
    {15,     36,     90,      224,     563,      1413,     3549,     8913,      22388,     56235,     141254,
     354814, 891251, 2238722, 5623414, 14125376, 35481339, 89125094, 223872114, 562341326, 1412537545},
    {23,     57,      142,     355,     892,      2239,     5624,      14126,     35482,     89126,     223873,
     562342, 1412538, 3548134, 8912510, 22387212, 56234133, 141253755, 354813390, 891250939, 1778279411}};
constexpr int decibelsFrom15(Tarn32s x)
{
    const int decibels = 10 + 2 * (everySecondBracket[0](x) + everySecondBracket[1](x));
    return decibels < 93 ? decibels : 93;
}

} // namespace tarn
