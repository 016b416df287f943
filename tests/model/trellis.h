// A trellis code to try a decoder with: 15 bits in two points of a square constellation of 16 x 16, and its encoder.
#pragma once

#include "tests/model/viterbi.h"

#include <algorithm>
#include <cstdlib>

namespace tarn::test::model {

using Bits = std::vector<Tarn8u>;

/// The points are coset-coded: of a symbol's bits the first few choose the branch, by which the encoder goes to its
/// next state; the next ones choose one of the pairs of 2-D subsets that the branch stands for; the others choose a
/// point within each subset.
class TrellisCode {
public:
    static constexpr int bitsOfSymbol = 15;
    static constexpr int side = 16;

    explicit TrellisCode(int numStates) : states(numStates), branches(branchesOf(numStates))
    {
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column)
                map[static_cast<std::size_t>(column + 4 * row)] = static_cast<Tarn8u>(subsetAt(column, row));
        for (int s = 0; s < states; ++s)
            for (int j = 0; j < branches; ++j)
                next.push_back(static_cast<Tarn8u>(nextOf(s, j)));
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                members[subsetOf(pointAt(x, y))].push_back(pointAt(x, y));
    }

    int states;
    int branches;
    std::array<Tarn8u, 16> map{};
    std::vector<Tarn8u> next;

    static Tarn16sc pointAt(int x, int y) { return {coordinate(x), coordinate(y)}; }

    /// Two points for each symbol.
    std::vector<Tarn16sc> encode(const Bits& bits) const
    {
        std::vector<Tarn16sc> points;
        int state = 0;
        for (std::size_t at = 0; at + bitsOfSymbol <= bits.size(); at += bitsOfSymbol) {
            auto bit = bits.begin() + static_cast<std::ptrdiff_t>(at);
            const auto number = [&bit](int below) {
                int value = 0;
                for (int place = 1; place < below; place *= 2)
                    value += place * *bit++;
                return value;
            };
            const int branch = number(branches);
            const auto pairs = pairsOf(state % 2 + 2 * branch, states, 0);
            const auto [a, b] = pairs[static_cast<std::size_t>(number(static_cast<int>(pairs.size())))];
            for (const int subset : {a, b}) {
                const auto& choice = members[static_cast<std::size_t>(subset)];
                points.push_back(choice[static_cast<std::size_t>(number(static_cast<int>(choice.size())))]);
            }
            state = next[static_cast<std::size_t>(state * branches + branch)];
        }
        return points;
    }

    /// The bits of one symbol, appended: what the encoder was in state `state` for.
    void decode(int state, Tarn16sc first, Tarn16sc second, Bits& bits) const
    {
        const auto append = [&bits](int value, int below) {
            for (int place = 1; place < below; place *= 2)
                bits.push_back(static_cast<Tarn8u>(value / place % 2));
        };
        const std::pair<int, int> sent{subsetOf(first), subsetOf(second)};
        for (int branch = 0; branch < branches; ++branch) {
            const auto pairs = pairsOf(state % 2 + 2 * branch, states, 0);
            const auto found = std::find(pairs.begin(), pairs.end(), sent);
            if (found == pairs.end())
                continue;
            append(branch, branches);
            append(static_cast<int>(found - pairs.begin()), static_cast<int>(pairs.size()));
            for (const Tarn16sc point : {first, second}) {
                const auto& choice = members[static_cast<std::size_t>(subsetOf(point))];
                append(nearestOf(point, choice), static_cast<int>(choice.size()));
            }
            return;
        }
        bits.resize(bits.size() + bitsOfSymbol); // no branch of this state
    }

    /// The point that a number of tarnsGetVarPointDV_16sc stands for, in steps of the grid from the base point.
    static Tarn16sc decided(Tarn16sc base, int number)
    {
        constexpr int right[] = {0, 1, 1, 0, 0, 1, 2, 1, 2, -1, 0, -1};
        constexpr int up[] = {0, 0, 1, 1, 2, 2, 1, -1, 0, 0, -1, 1};
        return {static_cast<Tarn16s>(base.re + 256 * right[number]), static_cast<Tarn16s>(base.im + 256 * up[number])};
    }

private:
    static Tarn16s coordinate(int i) { return static_cast<Tarn16s>(256 * (i - side / 2) + 128); }

    /// Around each cell of the grid subsets 0, 1, 2, 3; the same two steps off in both directions, and 4 more two steps
    /// off in one.
    int subsetAt(int column, int row) const
    {
        const int around = row % 2 == 0 ? column % 2 : 3 - column % 2;
        return states == 16 ? around : around + 4 * ((column / 2 + row / 2) % 2);
    }
    int subsetOf(Tarn16sc point) const
    {
        const auto place = [](int x) { return ((x - 128) / 256 + 258) % 4; };
        return map[static_cast<std::size_t>(place(point.re) + 4 * place(point.im))];
    }

    /// A systematic encoder with feedback: the subset's lowest bit is the register's, and every bit of it that is set
    /// is added to the register by a polynomial of its own as it moves on. None touches the register's last two bits
    /// alone, so that branches that part, and those that meet, differ in more than the lowest bit.
    int nextOf(int state, int branch) const
    {
        static constexpr std::array<int, 5> of16 = {13, 3, 4, 0, 0};
        static constexpr std::array<int, 5> of32 = {28, 7, 13, 12, 0};
        static constexpr std::array<int, 5> of64 = {36, 16, 15, 5, 3};
        const auto& polynomials = states == 16 ? of16 : states == 32 ? of32 : of64;
        const int subset = state % 2 + 2 * branch;
        int moved = state / 2;
        for (int bit = 0; bit < 5; ++bit)
            if (subset >> bit & 1)
                moved ^= polynomials[static_cast<std::size_t>(bit)];
        return moved;
    }

    /// The member with the least distance, which a point beyond the constellation's edge has as well.
    static int nearestOf(Tarn16sc point, const std::vector<Tarn16sc>& choice)
    {
        const auto distance = [point](Tarn16sc p) { return std::abs(p.re - point.re) + std::abs(p.im - point.im); };
        const auto nearest = std::min_element(choice.begin(), choice.end(),
                                              [&](Tarn16sc p, Tarn16sc q) { return distance(p) < distance(q); });
        return static_cast<int>(nearest - choice.begin());
    }

    std::array<std::vector<Tarn16sc>, 8> members;
};

} // namespace tarn::test::model
