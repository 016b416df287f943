// Adaptive filters in floating point, by their samples: functions under one set of names, signals and steps that keep
// them stable, and what their outputs may be.
#pragma once

#include "levels/recursive/pslms_state.h"
#include "model/lms.h"
#include "support/compare.h"
#include "support/fpstate.h"
#include "support/hard_values.h"
#include "tarns/lms.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace tarn::test {

using Wide = long double;

template <class StateType, class SampleType>
struct LmsFunctions {
    using State = StateType;
    using S = SampleType;
    TarnStatus (*initAlloc)(State**, const Tarn32f*, int, const S*, int);
    TarnStatus (*free)(State*);
    TarnStatus (*getTaps)(const State*, Tarn32f*);
    TarnStatus (*setDlyLine)(State*, const S*, int);
    TarnStatus (*getDlyLine)(const State*, S*, int*);
    TarnStatus (*filter)(const S*, const S*, S*, int, Tarn32f, State*);
    TarnStatus (*one)(S, S, S*, Tarn32f*, int, Tarn32f, S*, int*);
    Tarn32u id;
    Wide scale;     // of sums
    Wide amplitude; // of signals
};

#define TARN_LMS_FAMILY(NAME, TAIL, S, ID, SCALE, AMPLITUDE) \
    struct NAME {                                            \
        using F = LmsFunctions<TarnsFIRLMSState##TAIL, S>;   \
        static constexpr F f = {tarnsFIRLMSInitAlloc##TAIL,  \
                                tarnsFIRLMSFree##TAIL,       \
                                tarnsFIRLMSGetTaps##TAIL,    \
                                tarnsFIRLMSSetDlyLine##TAIL, \
                                tarnsFIRLMSGetDlyLine##TAIL, \
                                tarnsFIRLMS##TAIL,           \
                                tarnsFIRLMSOne_Direct##TAIL, \
                                ID,                          \
                                SCALE,                       \
                                AMPLITUDE};                  \
    }
TARN_LMS_FAMILY(LmsOf32f, _32f, Tarn32f, 0x4C4D5331, 1, 1);
TARN_LMS_FAMILY(LmsOf16s, 32f_16s, Tarn16s, 0x004C4D53, 0x1p-16L, 2048);

template <class Family>
class LmsTest : public ::testing::Test {
protected:
    using State = typename Family::F::State;
    using S = typename Family::F::S;
    static constexpr auto& f = Family::f;

    struct Freeing {
        void operator()(State* state) const { f.free(state); }
    };
    using Owner = std::unique_ptr<State, Freeing>;

    static Owner make(const std::vector<Tarn32f>& taps, const std::vector<S>& line = {}, int index = 0)
    {
        State* state = nullptr;
        EXPECT_EQ(tarnStsNoErr, f.initAlloc(&state, taps.data(), static_cast<int>(taps.size()),
                                            line.empty() ? nullptr : line.data(), index));
        return Owner(state);
    }
    static std::vector<S> signal(std::size_t len, std::uint64_t seed)
    {
        return randomValues<S>(len, seed, Values::unit);
    }
    /// Of gains that leave the output in range.
    static std::vector<Tarn32f> taps(std::size_t n, std::uint64_t seed)
    {
        auto values = randomValues<Tarn32f>(n, seed, Values::unit);
        for (Tarn32f& tap : values)
            tap *= static_cast<Tarn32f>(1 / f.scale) / std::sqrt(static_cast<Tarn32f>(n));
        return values;
    }
    /// A quarter of the step from which on a window of full amplitude would make the taps jump to and fro.
    static Tarn32f stepFor(std::size_t n)
    {
        const Wide power = f.amplitude * f.amplitude * f.scale * f.scale;
        return static_cast<Tarn32f>(0.25L / (static_cast<Wide>(n) * power));
    }
    static model::LmsFilter modelOf(const std::vector<Tarn32f>& naturalTaps, const std::vector<S>& line, int index,
                                    Wide scale, Wide gain)
    {
        return {{naturalTaps.rbegin(), naturalTaps.rend()},
                {{line.begin(), line.end()}, static_cast<std::size_t>(index)},
                scale,
                gain};
    }
    static void expectOutput(model::LmsFilter::Output expected, S actual, const std::string& where)
    {
        Wide value = expected.value, off = expected.error;
        if constexpr (std::is_integral_v<S>) {
            value = std::clamp(value, Wide{-32768}, Wide{32767});
            off += 0.5L;
        }
        ASSERT_NEAR(static_cast<double>(value), static_cast<double>(actual), static_cast<double>(off)) << where;
    }
};
using LmsFamilies = ::testing::Types<LmsOf32f, LmsOf16s>;

inline constexpr int lmsTapLens[] = {1,  2,  3,  4,  5,  7,  8,  9,  12, 15, 16,  31, 32,
                                     33, 64, 77, 78, 79, 80, 81, 82, 83, 96, 127, 200};

/// What becomes of sums in 16-bit outputs, which are rounded in the caller's mode and limited. `outputOf` runs a filter
/// of one sample whose sum is as given.
template <class OutputOf>
void expectLimitedOutputs(OutputOf outputOf)
{
    constexpr Tarn32f limitless = std::numeric_limits<Tarn32f>::infinity();
    constexpr Tarn32f noNumber = std::numeric_limits<Tarn32f>::quiet_NaN();
    const Tarn32f sums[] = {0.5F, 1.5F,  2.5F,      -0.5F, -1.5F, 0.25F,     -0.75F,     32767.5F,
                            4e4F, -4e4F, -32768.5F, 4e9F,  -4e9F, limitless, -limitless, noNumber};
    for (RoundingMode mode : allRoundingModes) {
        for (const Tarn32f sum : sums) {
            const RoundingModeScope scope(mode);
            Tarn16s expected = -32768;
            if (sum == sum)
                expected =
                    static_cast<Tarn16s>(std::clamp<Wide>(std::nearbyint(static_cast<Wide>(sum)), -32768, 32767));
            EXPECT_EQ(expected, outputOf(sum)) << sum << ", mode " << static_cast<int>(mode);
        }
    }
}

} // namespace tarn::test
