// A decoder of trellis codes put together of the library's primitives, which finds its way back from the end of a
// frame.
#pragma once

#include "tarns/viterbi.h"

#include "tests/model/trellis.h"

#include <array>
#include <vector>

namespace tarn::test {

class TrellisDecoder {
public:
    explicit TrellisDecoder(const model::TrellisCode& code) : code(code) {}

    /// The bits of a frame that the encoder began in state 0: an even number of received points.
    model::Bits decode(const std::vector<Tarn16sc>& received)
    {
        const std::size_t symbols = received.size() / 2;
        const auto states = static_cast<std::size_t>(code.states);
        newMetrics.assign(states, 65535);
        metrics.assign(states, unlikely);
        metrics[0] = 0;
        bases.resize(received.size());
        survivors.assign(symbols * states, 0);
        for (std::size_t n = 0; n < symbols; ++n)
            step(&received[2 * n], n);
        return wayBack(symbols);
    }

    /// The worst status of all calls so far.
    TarnStatus status() const { return worst; }

private:
    static constexpr Tarn16u unlikely = 30000;

    void step(const Tarn16sc* points, std::size_t n)
    {
        std::array<Tarn32u, 16> errors{};
        std::array<Tarn32u, 32> table{};
        for (std::size_t k = 0; k < 2; ++k)
            note(tarnsGetVarPointDV_16sc(&points[k], &bases[2 * n + k], &errors[8 * k], code.map.data(), code.states));
        note(tarnsBuildSymblTableDV4D_16sc(errors.data(), table.data(), code.states, 0));
        note(tarnsCalcStatesDV_16sc(metrics.data(), code.next.data(), newMetrics.data(), table.data(), survivors.data(),
                                    code.states, static_cast<int>(n) * code.states));
        note(tarnsUpdatePathMetricsDV_16u(newMetrics.data(), &smallest, &best, metrics.data(), code.states));
    }

    model::Bits wayBack(std::size_t symbols) const
    {
        const auto states = static_cast<std::size_t>(code.states);
        std::vector<Tarn32u> way(symbols);
        std::size_t state = best;
        for (std::size_t n = symbols; n-- > 0;) {
            way[n] = survivors[n * states + state];
            state = way[n] >> 16;
        }
        model::Bits bits;
        for (std::size_t n = 0; n < symbols; ++n) {
            const auto decided = [&](std::size_t k, Tarn32u number) {
                return model::TrellisCode::decided(bases[2 * n + k], static_cast<int>(number));
            };
            code.decode(static_cast<int>(way[n] >> 16), decided(0, way[n] & 0xFF), decided(1, way[n] >> 8 & 0xFF),
                        bits);
        }
        return bits;
    }

    void note(TarnStatus status) { worst = std::min(worst, status); }

    const model::TrellisCode& code;
    std::vector<Tarn16u> metrics;
    std::vector<Tarn16u> newMetrics;
    std::vector<Tarn16sc> bases;
    std::vector<Tarn32u> survivors;
    Tarn16u smallest = 0;
    Tarn8u best = 0;
    TarnStatus worst = tarnStsNoErr;
};

} // namespace tarn::test
