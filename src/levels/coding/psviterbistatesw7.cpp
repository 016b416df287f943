// Kernels of the trellis' step: add, compare, select.
//
// Which states follow is up to the caller's table, so that the branches cannot be put into lanes; what can be avoided
// is a jump for each, which would often be guessed wrong. A candidate and the place of its branch make one key, the
// candidate above: of the keys that come to a state the smallest is its survivor, of equal candidates the first. Keys
// have the bits of normal floats, which compare as their bits do, and whose smaller one a single instruction finds.
#include "levels/coding/psviterbi.h"

using namespace tarn;

namespace {

// One branch after the other, as the step is defined. Branches to states from the limit on are passed over.
void calcStatesPlainly(TARN_CALC_STATES_PARAMETERS, int numStates, int branches, int limit)
{
    for (int s = 0; s < numStates; ++s) {
        const int metric = loadElement(pPathMetric + s);
        for (int j = 0; j < branches; ++j) {
            const Tarn32u entry = loadElement(pBranchTable + (s & 1) + 2 * j);
            const int candidate = metric + static_cast<Tarn16s>(entry >> 16);
            const int next = pNextState[static_cast<Index>(s) * branches + j];
            if (next < limit && candidate < loadElement(pNewMetric + next)) {
                store(pNewMetric + next, static_cast<Tarn16u>(candidate));
                store(pSurvivor + next, static_cast<Tarn32u>(s) << 16 | (entry & 0xFFFF));
            }
        }
    }
}

template <int states>
class Step {
public:
    static TARN_INLINE void run(TARN_CALC_STATES_PARAMETERS)
    {
        Step step;
        if (!step.setErrors(pBranchTable)) {
            // A candidate below 0 is stored as a large metric, which the next one may go below again.
            calcStatesPlainly(pPathMetric, pNextState, pNewMetric, pBranchTable, pSurvivor, states, branches, states);
            return;
        }
        step.setMetrics(pPathMetric, pNewMetric);
        for (int s = 0; s < states; s += 2) {
            step.compareBranches(s, pNextState + s * branches);
        }
        step.storeSurvivors(pNewMetric, pBranchTable, pSurvivor);
    }

private:
    using Keys = Pack<Tarn32s, 4>;
    static constexpr int branches = states / 4;
    static constexpr int entries = 2 * branches;
    static constexpr int branchBits = std::countr_zero(static_cast<unsigned>(branches));
    static constexpr int placeBits = std::countr_zero(static_cast<unsigned>(states * branches));
    static constexpr Tarn32s normal = 1 << 23; // the exponent of the smallest normal float
    static constexpr int allBytes = 256;

    // The error of each entry above the number of its branch; false if there is one below 0.
    TARN_INLINE bool setErrors(const Tarn32u* pBranchTable)
    {
        Keys all = splat<Keys>(0);
        repeat<entries / 4>([&](auto k) __attribute__((always_inline)) {
            const auto entry = loadPack<4>(pBranchTable + 4 * k);
            const auto error = shiftLeft(shiftRight(entry, 16), placeBits);
            all = bitOr(all, reinterpretPack<Tarn32s>(entry));
            store(errors + 4 * k, bitOr(reinterpretPack<Tarn32s>(error), lanesOf(2 * k, 2 * k, 2 * k + 1, 2 * k + 1)));
        });
        return !anyOf(less(all, splat<Keys>(0)));
    }

    // The metric of each state above the place of its first branch; and the limit that candidates have to go below.
    TARN_INLINE void setMetrics(const Tarn16u* pPathMetric, const Tarn16u* pNewMetric)
    {
        constexpr int atOnce = registerLanes<Tarn16u>;
        using Group = Pack<Tarn32s, atOnce>;
        const auto above = [](const Tarn16u* metrics) __attribute__((always_inline))
        {
            return add(shiftLeft(widen(loadPack<atOnce>(metrics)), placeBits), splat<Group>(normal));
        };
        for (int s = 0; s < states; s += atOnce) {
            const auto place = [&](int i) { return (s + i) << branchBits; };
            const Group places =
                join(lanesOf(place(0), place(1), place(2), place(3)), lanesOf(place(4), place(5), place(6), place(7)));
            store(metrics + s, add(above(pPathMetric + s), places));
            store(best + s, floatOfBits(above(pNewMetric + s)));
        }
    }

    // All branches of an even state and of the odd one behind it, whose entries alternate.
    TARN_INLINE void compareBranches(int s, const Tarn8u* next)
    {
        Tarn32f keys[entries];
        const Keys pair = bitsOf(loadPairTwice(reinterpret_cast<const Tarn32f*>(metrics + s)));
        repeat<entries / 4>([&](auto k) __attribute__((always_inline)) {
            store(keys + 4 * k, floatOfBits(add(pair, loadPack<4>(errors + 4 * k))));
        });
        repeat<branches>([&](auto j) __attribute__((always_inline)) {
            Tarn32f& even = best[next[j]];
            even = min(keys[2 * j], even);
        });
        repeat<branches>([&](auto j) __attribute__((always_inline)) {
            Tarn32f& odd = best[next[branches + j]];
            odd = min(keys[2 * j + 1], odd);
        });
    }

    TARN_INLINE void storeSurvivors(Tarn16u* pNewMetric, const Tarn32u* pBranchTable, Tarn32u* pSurvivor) const
    {
        TARN_ROLLED
        for (int t = 0; t < states; ++t) {
            const Tarn32s key = bitsOf(best[t]) - normal;
            const int candidate = key >> placeBits;
            if (candidate < loadElement(pNewMetric + t)) {
                const int s = (key >> branchBits) & (states - 1);
                const int j = key & (branches - 1);
                const Tarn32u entry = loadElement(pBranchTable + (s & 1) + 2 * j);
                store(pNewMetric + t, static_cast<Tarn16u>(candidate));
                store(pSurvivor + t, static_cast<Tarn32u>(s) << 16 | (entry & 0xFFFF));
            }
        }
    }

    Tarn32s errors[entries];
    Tarn32s metrics[states];
    Tarn32f best[allBytes]; // more than there are states: what a table names beyond them stays in here
};

} // namespace

#define TARN_CALC_STATES_ARGUMENTS pPathMetric, pNextState, pNewMetric, pBranchTable, pSurvivor

void ownsCalcStates16_16sc(TARN_CALC_STATES_PARAMETERS) { Step<16>::run(TARN_CALC_STATES_ARGUMENTS); }
void ownsCalcStates32_16sc(TARN_CALC_STATES_PARAMETERS) { Step<32>::run(TARN_CALC_STATES_ARGUMENTS); }
void ownsCalcStates64_16sc(TARN_CALC_STATES_PARAMETERS) { Step<64>::run(TARN_CALC_STATES_ARGUMENTS); }
void ownsCalcStates_16sc(TARN_CALC_STATES_PARAMETERS, int numStates)
{
    constexpr int anyByte = 256;
    calcStatesPlainly(TARN_CALC_STATES_ARGUMENTS, numStates, 16, anyByte);
}
