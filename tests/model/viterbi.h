// The steps of a Viterbi decoder, each word and each branch on its own.
#pragma once

#include "tarncore.h"

#include <array>
#include <utility>
#include <vector>

namespace tarn::test::model {

inline int squaredDistance(int a) { return a * a / 16; }

struct VarPoint {
    Tarn16sc base{};
    std::array<bool, 8> isSet{};
    std::array<Tarn32u, 8> words{};
};

inline VarPoint varPoint(Tarn16sc point, const std::array<Tarn8u, 16>& map, int numStates)
{
    const auto residue = [](int x) { return (x + 65536) % 256; };
    const auto offset = [&](int x) { return residue(x) >= 128 ? residue(x) - 128 : residue(x) + 128; };
    const int dx = offset(point.re);
    const int dy = offset(point.im);
    VarPoint result;
    result.base = {static_cast<Tarn16s>(point.re - dx), static_cast<Tarn16s>(point.im - dy)};

    // Whole steps of the grid; exact, since the base point lies on it.
    const int col = (point.re - dx - 128) / 256 + 258;
    const int row = (point.im - dy - 128) / 256 + 258;
    const auto put = [&](int column, int line, int number, int error) {
        const std::size_t place = static_cast<std::size_t>(column % 4 + 4 * (line % 4));
        const std::size_t subset = map[place] % (numStates == 16 ? 4U : 8U);
        result.isSet[subset] = true;
        result.words[subset] = static_cast<Tarn32u>(error + 65536 * number);
    };
    const auto putBetter = [&](int column, int line, int number, int error, int secondNumber, int secondError) {
        if (error < secondError)
            put(column, line, number, error);
        else
            put(column, line, secondNumber, secondError);
    };
    const auto d = squaredDistance;
    put(col, row, 0, d(dx) + d(dy));
    put(col + 1, row, 1, d(256 - dx) + d(dy));
    put(col + 1, row + 1, 2, d(256 - dx) + d(256 - dy));
    put(col, row + 1, 3, d(dx) + d(256 - dy));
    if (numStates == 16)
        return result;
    putBetter(col, row + 2, 4, d(dx) + d(512 - dy), 8, d(dy) + d(512 - dx));
    putBetter(col + 1, row + 2, 5, d(256 - dx) + d(512 - dy), 9, d(dy) + d(dx + 256));
    putBetter(col + 1, row + 3, 6, d(512 - dx) + d(256 - dy), 10, d(dx) + d(dy + 256));
    putBetter(col, row + 3, 7, d(256 - dx) + d(dy + 256), 11, d(256 - dy) + d(dx + 256));
    return result;
}

/// The pairs of 2-D subsets that an entry of the branch table joins, in the order in which they are tried.
inline std::vector<std::pair<int, int>> pairsOf(int i, int numStates, int inversion)
{
    std::vector<std::pair<int, int>> pairs;
    const auto add = [&](int k, bool ofFour) {
        const int a = k / 4;
        const int b = (k + a) % 4;
        pairs.emplace_back(a, b);
        pairs.emplace_back(ofFour ? (a + 2) % 4 : (a + 4) % 8, ofFour ? (b + 2) % 4 : b + 4);
    };
    int k = i ^ inversion;
    if (numStates == 16) {
        add(k, true);
    } else if (numStates == 32) {
        k += 2 * (i & 8);
        add(k ^ 8, false);
        add(k, false);
    } else {
        add(k, false);
    }
    return pairs;
}

inline int entriesOf(int numStates) { return numStates == 16 ? 8 : numStates == 32 ? 16 : 32; }

inline std::vector<Tarn32u> symbolTable(const std::array<Tarn32u, 16>& subsetErrors, int numStates, int inversion)
{
    std::vector<Tarn32u> table;
    for (int i = 0; i < entriesOf(numStates); ++i) {
        int smallest = 0x10000;
        Tarn32u entry = 0;
        for (const auto& [a, b] : pairsOf(i, numStates, inversion)) {
            const Tarn32u first = subsetErrors[static_cast<std::size_t>(a)];
            const Tarn32u second = subsetErrors[static_cast<std::size_t>(8 + b)];
            const Tarn32u sum = (first % 65536 + second % 65536) % 65536;
            const int error = sum < 32768 ? static_cast<int>(sum) : static_cast<int>(sum) - 65536;
            if (error < smallest) {
                smallest = error;
                entry = sum * 65536 + second / 65536 * 256 + first / 65536;
            }
        }
        table.push_back(entry);
    }
    return table;
}

inline int branchesOf(int numStates) { return numStates == 16 ? 4 : numStates == 32 ? 8 : 16; }

/// One step; new metrics and survivors are changed.
inline void calcStates(const std::vector<Tarn16u>& metrics, const std::vector<Tarn8u>& next,
                       std::vector<Tarn16u>& newMetrics, const std::vector<Tarn32u>& table,
                       std::vector<Tarn32u>& survivors, int numStates, int offset)
{
    const int branches = branchesOf(numStates);
    for (int s = 0; s < numStates; ++s) {
        for (int j = 0; j < branches; ++j) {
            const Tarn32u entry = table[static_cast<std::size_t>(s % 2 + 2 * j)];
            const int error = static_cast<int>(entry / 65536) - (entry >= 0x80000000U ? 65536 : 0);
            const std::size_t t = next[static_cast<std::size_t>(s * branches + j)];
            const int candidate = metrics[static_cast<std::size_t>(s)] + error;
            if (candidate < newMetrics[t]) {
                newMetrics[t] = static_cast<Tarn16u>(candidate);
                survivors[static_cast<std::size_t>(offset) + t] = static_cast<Tarn32u>(s) * 65536 + entry % 65536;
            }
        }
    }
}

} // namespace tarn::test::model
