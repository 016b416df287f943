// Decision trees over integers: results that change at a few thresholds.
#pragma once

#include "frame/simd_int.h"

#include <array>
#include <bit>
#include <initializer_list>

namespace tarn {

// A result and the lowest argument that has it.
struct Bracket {
    Tarn32s lowest;
    int result;
};

constexpr int bitsOfArgument(Tarn32s x) { return static_cast<int>(std::bit_width(static_cast<Tarn32u>(x))); }

// A tree whose root is the argument's highest bit: it leaves few thresholds to compare with.
template <std::size_t thresholds>
class DecisionTree {
public:
    // In ascending order, at most so many of them from a power of two to the next; arguments below all of them give 0.
    constexpr DecisionTree(std::initializer_list<Bracket> brackets)
    {
        int result = 0;
        const Bracket* next = brackets.begin();
        for (std::size_t bits = 0; bits < branches.size(); ++bits) {
            Branch& branch = branches[bits];
            branch.result = result;
            for (auto& [lowest, gain] : branch.steps) {
                if (next != brackets.end() && bitsOfArgument(next->lowest) <= static_cast<int>(bits)) {
                    lowest = next->lowest;
                    gain = next->result - result;
                    result = next->result;
                    ++next;
                }
            }
        }
    }

    // Of an argument of at least 0.
    constexpr int operator()(Tarn32s x) const
    {
        const Branch& branch = branches[static_cast<std::size_t>(bitsOfArgument(x))];
        int result = branch.result;
        for (const auto& [lowest, gain] : branch.steps) {
            result += gain & -static_cast<int>(x >= lowest); // no branch: nobody could foretell it
        }
        return result;
    }

private:
    struct Step {
        Tarn32s lowest = highest<Tarn32s>;
        int gain = 0;
    };
    struct Branch {
        int result = 0;
        std::array<Step, thresholds> steps;
    };
    std::array<Branch, 32> branches;
};

// Where ln x, rounded to nearest, goes up by 1: above e^(k - 1/2).
inline constexpr DecisionTree<1> roundedLogarithm = {
    {2, 1},        {5, 2},        {13, 3},        {34, 4},        {91, 5},         {245, 6},        {666, 7},
    {1809, 8},     {4915, 9},     {13360, 10},    {36316, 11},    {98716, 12},     {268338, 13},    {729417, 14},
    {1982760, 15}, {5389699, 16}, {14650720, 17}, {39824785, 18}, {108254988, 19}, {294267567, 20}, {799902178, 21}};

// The same of ln x / 2, ln x / 4, ln x / 8, ln x / 16, for 16-bit arguments.
inline constexpr DecisionTree<1> dividedLogarithms[] = {
    {{3, 1}, {21, 2}, {149, 3}, {1097, 4}, {8104, 5}}, {{8, 1}, {404, 2}, {22027, 3}}, {{55, 1}}, {{2981, 1}}};

// 10 log10 x from 15 on, in brackets of 2 decibels.
inline constexpr DecisionTree<2> decibelsFrom15 = {
    {15, 12},        {23, 14},        {36, 16},        {57, 18},        {90, 20},         {142, 22},
    {224, 24},       {355, 26},       {563, 28},       {892, 30},       {1413, 32},       {2239, 34},
    {3549, 36},      {5624, 38},      {8913, 40},      {14126, 42},     {22388, 44},      {35482, 46},
    {56235, 48},     {89126, 50},     {141254, 52},    {223873, 54},    {354814, 56},     {562342, 58},
    {891251, 60},    {1412538, 62},   {2238722, 64},   {3548134, 66},   {5623414, 68},    {8912510, 70},
    {14125376, 72},  {22387212, 74},  {35481339, 76},  {56234133, 78},  {89125094, 80},   {141253755, 82},
    {223872114, 84}, {354813390, 86}, {562341326, 88}, {891250939, 90}, {1412537545, 92}, {1778279411, 93}};

} // namespace tarn
