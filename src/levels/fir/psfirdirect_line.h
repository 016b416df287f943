// The delay lines of direct FIR calls, and the walk from output to output where the rate changes.
#pragma once

#include "frame/bytes.h"
#include "frame/delay_line.h"
#include "frame/state.h"
#include "levels/fir/psfirdirect.h"

namespace tarn {

// What is computed at once: outputs, and taps in whole passes of the block kernel. Both lie in the first-level cache.
inline constexpr int directOutputs = 512;
inline constexpr int directTaps = 256;
inline constexpr int directSamples = directOutputs + directTaps - 1;

// Samples that enter a doubled line; only the last ones stay.
template <typename S>
inline void enterSamples(const S* src, int count, S* line, Tarn32s* pIndex, int tapsLen)
{
    int begin = loadElement(pIndex);
    const int passing = count > tapsLen ? count - tapsLen : 0;
    begin = static_cast<int>((static_cast<long long>(begin) + passing) % tapsLen);
    for (int i = passing; i < count; ++i) {
        const S sample = loadElement(src + i);
        store(line + begin, sample);
        store(line + begin + tapsLen, sample);
        begin = begin + 1 == tapsLen ? 0 : begin + 1;
    }
    store(pIndex, begin);
}

// The samples of a window's stretch: from `from` on in what a line's newest tapsLen - 1 and then the source have.
template <typename S, typename Put>
inline void takeSamples(const S* line, int begin, int tapsLen, const S* src, int from, int count, Put put)
{
    const int history = tapsLen - 1;
    const int old = std::clamp(history - from, 0, count);
    if (old > 0) {
        put(line + begin + 1 + from, 0, old);
    }
    if (count > old) {
        put(src + (from + old - history), old, count - old);
    }
}

// Calls stretch(outputs, i, tapsDone, taps) for parts of at most so many outputs and taps, the taps in reversed order,
// then finish(outputs, i).
template <typename S, typename Stretch, typename Finish>
inline void filterInParts(const S* src, int count, S* line, Tarn32s* pIndex, int tapsLen, Stretch stretch,
                          Finish finish)
{
    for (int i = 0; i < count;) {
        const int outputs = std::min(directOutputs, count - i);
        const int begin = loadElement(pIndex);
        for (int j = 0; j < tapsLen;) {
            const int taps = std::min(directTaps, tapsLen - j);
            stretch(begin, outputs, i, j, taps);
            j = tapsLen - j > directTaps ? j + directTaps : tapsLen;
        }
        // The outputs may take the samples' place.
        enterSamples(src + i, outputs, line, pIndex, tapsLen);
        finish(outputs, i);
        i = count - i > directOutputs ? i + directOutputs : count;
    }
}

// Calls output(m, newest, phase) for every output: the number of the newest input, -1 for the line's, and the first tap
// that meets an input and not an inserted zero. Then takes the inputs into the plain line, newest first.
template <typename S, typename Output>
inline void walkRates(const DirectRates& r, const S* src, int numIters, S* line, int lineLen, Output output)
{
    const Index inputs = static_cast<Index>(r.down) * numIters;
    const Index outputs = static_cast<Index>(r.up) * numIters;
    Index newest = r.downPhase >= r.upPhase ? (r.downPhase - r.upPhase) / r.up : -1;
    long long phase = r.downPhase >= r.upPhase ? (r.downPhase - r.upPhase) % r.up : r.up - (r.upPhase - r.downPhase);
    for (Index m = 0; m < outputs; ++m) {
        output(m, newest, static_cast<int>(phase));
        phase += r.down % r.up;
        newest += r.down / r.up + (phase >= r.up ? 1 : 0);
        phase -= phase >= r.up ? r.up : 0;
    }
    const auto entered = static_cast<int>(std::min<Index>(inputs, lineLen));
    move(line, line + entered, lineLen - entered);
    reverseConverted(src + (inputs - entered), line, entered);
}

} // namespace tarn
