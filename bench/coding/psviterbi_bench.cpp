// Viterbi decoding of a trellis code in noise beside plain loops: all of a trellis step, and each part of it. The
// numbers are those of the steps.
#include "tarns/viterbi.h"

#include "coding/psviterbi_peer.h"
#include "support/compare.h"
#include "tests/model/trellis.h"

#include <array>
#include <memory>
#include <random>
#include <vector>

namespace tarn::bench {
namespace {

using test::model::Bits;
using test::model::TrellisCode;

// What a decoder has received and makes of it.
struct Decoder {
    TrellisCode code;
    std::vector<Tarn16sc> points;
    std::vector<Tarn16sc> bases;
    std::vector<std::array<Tarn32u, 16>> errors;
    std::vector<std::array<Tarn32u, 32>> tables;
    std::vector<Tarn32u> survivors;
    std::vector<std::array<Tarn16u, 64>> metrics; // of each step
    std::array<Tarn16u, 64> newMetrics{};
    Tarn16u minimum = 0;
    Tarn8u best = 0;

    Decoder(int states, int steps)
        : code(states), bases(2 * static_cast<std::size_t>(steps)), errors(static_cast<std::size_t>(steps)),
          tables(static_cast<std::size_t>(steps)), survivors(static_cast<std::size_t>(steps * states)),
          metrics(static_cast<std::size_t>(steps + 1))
    {
        std::mt19937 random(1);
        Bits bits(static_cast<std::size_t>(steps) * TrellisCode::bitsOfSymbol);
        for (Tarn8u& bit : bits)
            bit = random() & 1;
        points = code.encode(bits);
        std::normal_distribution<double> noise(0, 60);
        for (Tarn16sc& point : points)
            point = {static_cast<Tarn16s>(point.re + noise(random)), static_cast<Tarn16s>(point.im + noise(random))};
        newMetrics.fill(65535);
        for (int n = 0; n < steps; ++n) {
            findPoints(n);
            buildTable(n);
            calcStates(n);
            update(n);
        }
    }

    void findPoints(int n)
    {
        for (std::size_t k = 0; k < 2; ++k)
            tarnsGetVarPointDV_16sc(&points[at(2 * n) + k], &bases[at(2 * n) + k], &errors[at(n)][8 * k],
                                    code.map.data(), code.states);
    }
    void buildTable(int n)
    {
        tarnsBuildSymblTableDV4D_16sc(errors[at(n)].data(), tables[at(n)].data(), code.states, 0);
    }
    void calcStates(int n)
    {
        tarnsCalcStatesDV_16sc(metrics[at(n)].data(), code.next.data(), newMetrics.data(), tables[at(n)].data(),
                               survivors.data(), code.states, n * code.states);
    }
    void update(int n)
    {
        tarnsUpdatePathMetricsDV_16u(newMetrics.data(), &minimum, &best, metrics[at(n + 1)].data(), code.states);
    }

    void findPointsPlainly(int n)
    {
        for (std::size_t k = 0; k < 2; ++k)
            varPointLoop(&points[at(2 * n) + k], &bases[at(2 * n) + k], &errors[at(n)][8 * k], code.map.data(),
                         code.states);
    }
    void buildTablePlainly(int n) { symbolTableLoop(errors[at(n)].data(), tables[at(n)].data(), code.states); }
    void calcStatesPlainly(int n)
    {
        calcStatesLoop(metrics[at(n)].data(), code.next.data(), newMetrics.data(), tables[at(n)].data(),
                       survivors.data() + n * code.states, code.states);
    }
    void updatePlainly(int n)
    {
        updateMetricsLoop(newMetrics.data(), &minimum, &best, metrics[at(n + 1)].data(), code.states);
    }
    void reset() { newMetrics.fill(65535); }

    static std::size_t at(int n) { return static_cast<std::size_t>(n); }
};

/// Runs a step of the decoder for each number below n.
template <class Step>
auto steps(int states, Step step)
{
    return [=](int n) {
        const auto decoder = std::make_shared<Decoder>(states, n);
        return [=] {
            for (int i = 0; i < n; ++i)
                step(*decoder, i);
            benchmark::DoNotOptimize(decoder->best);
        };
    };
}

template <class Ours, class Plain>
void compareSteps(const std::string& name, int states, Ours ours, Plain plain)
{
    comparePrepared(sizes(50), name + "_" + std::to_string(states), steps(states, ours),
                    peer("loop", steps(states, plain)));
}

const Comparison cases = [] {
    for (const int states : {16, 32, 64}) {
        compareSteps(
            "viterbiStep", states,
            [](Decoder& d, int n) {
                d.findPoints(n);
                d.buildTable(n);
                d.calcStates(n);
                d.update(n);
            },
            [](Decoder& d, int n) {
                d.findPointsPlainly(n);
                d.buildTablePlainly(n);
                d.calcStatesPlainly(n);
                d.updatePlainly(n);
            });
        compareSteps(
            "getVarPointDV", states, [](Decoder& d, int n) { d.findPoints(n); },
            [](Decoder& d, int n) { d.findPointsPlainly(n); });
        compareSteps(
            "buildSymblTableDV4D", states, [](Decoder& d, int n) { d.buildTable(n); },
            [](Decoder& d, int n) { d.buildTablePlainly(n); });
        compareSteps(
            "calcStatesDV", states,
            [](Decoder& d, int n) {
                d.reset();
                d.calcStates(n);
            },
            [](Decoder& d, int n) {
                d.reset();
                d.calcStatesPlainly(n);
            });
        compareSteps(
            "updatePathMetricsDV", states, [](Decoder& d, int n) { d.update(n); },
            [](Decoder& d, int n) { d.updatePlainly(n); });
    }
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
