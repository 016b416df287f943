// Multi-rate filters: what follows from the number of taps and the factors, and taps compiled per phase.
//
// Input n stands at time U n + upPhase of the fast clock, output m at time R m + downPhase. Outputs come in cycles of
// 4 U, for which 4 R inputs are consumed: then the pattern of positions begins again.
#pragma once

#include "frame/walk.h"
#include "levels/fir/psfir_state.h"

#include <algorithm>
#include <cstddef>

namespace tarn {

enum class FirForm : int {
    direct = 1,     // four outputs from one window, with zeros where it is none of theirs
    decimating = 2, // four windows, one list of taps
    indexed = 3     // a window and a list for each output
};

// Outputs that are computed at a time.
inline constexpr int outputsOfGroup = 4;

struct FirRates {
    long long taps, up, upPhase, down, downPhase;

    // Input samples of history.
    constexpr long long history() const { return (taps + up - 1) / up; }
    // The taps as four consecutive outputs see them, in the domain of the fast clock.
    constexpr long long padded() const { return (taps + 3 * down + up - 1) / up * up; }

    // Filters whose taps outweigh the zeros that the direct form multiplies by. The quotient is of single precision.
    FirForm form() const
    {
        const auto ratio = static_cast<Tarn32f>(taps) / static_cast<Tarn32f>(taps + 3 * down);
        if (static_cast<Tarn64f>(ratio) > (up == 1 ? 0.5 : 0.3)) {
            return FirForm::direct;
        }
        return up == 1 ? FirForm::decimating : FirForm::indexed;
    }
};

// How many inputs may pass through the delay buffer in one call, and how many outputs of a longer call come from there.
struct FirHead {
    long long in, out;

    static constexpr FirHead of(const FirRates& rates, long long window)
    {
        const long long cycle = 4 * rates.down;
        FirHead head{(window / cycle + 1) * cycle + 1, (rates.history() + rates.down - 1) / rates.down * rates.up};
        while (head.out % (outputsOfGroup * rates.up) != 0) {
            head.in += rates.down;
            head.out += rates.up;
        }
        return head;
    }
    // Integer sums may stop within a cycle.
    static constexpr FirHead ofIntegers(const FirRates& rates)
    {
        const long long cycle = 4 * rates.down;
        const long long out = (rates.history() + rates.down - 1) / rates.down * rates.up;
        return {(rates.history() / cycle + 1) * cycle + 1,
                (out + outputsOfGroup - 1) / outputsOfGroup * outputsOfGroup};
    }
};

// Where the window of a group begins: the sample, and how far behind the group's time it stands.
struct FirPlace {
    long long sample, behind;
};

class FirWalk {
public:
    explicit FirWalk(const FirRates& r) : up(r.up), position((r.taps - 1) % r.up + r.upPhase), sample(1)
    {
        if (position >= up) {
            position -= up;
            sample = 0;
        }
    }
    FirPlace at(long long time) const
    {
        const long long steps = time > position ? (time - position + up - 1) / up : 0;
        return {sample + steps, position + up * steps - time};
    }

private:
    long long up, position, sample;
};

// Writes the table of a group of four outputs as vectors of one tap each, `len` of them, and their offsets.
//
// The direct form: one window for the group; in place of what is none of an output's taps it has zeros.
template <typename T>
void writeDirectPhases(const FirRates& r, const T* reversedTaps, Tarn32s* offsets, T* table)
{
    const FirWalk walk(r);
    const long long window = r.padded() / r.up;
    long long before = 0;
    for (long long g = 0; g < r.up; ++g) {
        const FirPlace place = walk.at(r.downPhase + outputsOfGroup * r.down * g);
        offsets[g] = static_cast<Tarn32s>(place.sample - before);
        before = place.sample;
        for (long long i = 0; i < window; ++i) {
            for (int row = 0; row < outputsOfGroup; ++row) {
                const long long tap = place.behind + i * r.up - row * r.down;
                *table++ = tap >= 0 && tap < r.taps ? reversedTaps[tap] : T{};
            }
        }
    }
    const long long first = walk.at(r.downPhase).sample;
    const long long end = walk.at(r.downPhase + outputsOfGroup * r.down * r.up).sample;
    offsets[r.up] = static_cast<Tarn32s>(end - first - before);
}

// The window and the taps of single outputs, for the forms that have no zeros but at a list's end. Calls
// put(output, i, tap) for the taps of each output of a cycle, i from 0 to history - 1; null stands for a zero. Entry
// 4 U of the offsets is the step from cycle to cycle.
template <typename T, typename Put>
void listPhases(const FirRates& r, const T* reversedTaps, Tarn32s* offsets, Put put)
{
    const FirWalk walk(r);
    for (long long g = 0; g < r.up; ++g) {
        const FirPlace place = walk.at(r.downPhase + outputsOfGroup * r.down * g);
        for (int row = 0; row < outputsOfGroup; ++row) {
            const long long output = outputsOfGroup * g + row;
            // The first sample that an output has a tap for, and that tap.
            const long long beyond = row * r.down - place.behind;
            const long long skipped = beyond > 0 ? (beyond + r.up - 1) / r.up : 0;
            const long long first = skipped * r.up - beyond;
            const bool hasTaps = first < r.taps;
            const long long before = output > 0 ? offsets[output - 1] : place.sample;
            offsets[output] = static_cast<Tarn32s>(hasTaps ? place.sample + skipped : before);
            for (long long i = 0; i < r.history(); ++i) {
                const long long tap = first + i * r.up;
                put(output, i, hasTaps && tap < r.taps ? reversedTaps + tap : nullptr);
            }
        }
    }
    const long long end = walk.at(r.downPhase + outputsOfGroup * r.down * r.up).sample;
    offsets[outputsOfGroup * r.up] = static_cast<Tarn32s>(end - walk.at(r.downPhase).sample);
}

// Lists side by side, four at a time.
template <typename T>
void writeListedPhases(const FirRates& r, const T* reversedTaps, Tarn32s* offsets, T* table)
{
    const long long window = r.history();
    listPhases(r, reversedTaps, offsets, [=](long long output, long long i, const T* tap) {
        const long long group = output / outputsOfGroup;
        table[(group * window + i) * outputsOfGroup + output % outputsOfGroup] = tap == nullptr ? T{} : *tap;
    });
}

} // namespace tarn
