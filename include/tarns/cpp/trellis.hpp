// A Viterbi decoder for trellis codes, put together of its steps.
#pragma once

#include <tarns/cpp/object.hpp>

#include <array>
#include <vector>

namespace tarns {

/// Decodes codes of 16, 32 or 64 states whose symbols are two points of a square constellation, with points at odd
/// multiples of 128. Symbols go in one by one; points() goes back along the survivors and tells the sent points.
class TrellisDecoder {
public:
    TrellisDecoder() = default;

#ifndef TARNS_NO_EXCEPTIONS
    TrellisDecoder(int states, std::span<const std::uint8_t> subsets, std::span<const std::uint8_t> next)
        : TrellisDecoder(make(states, subsets, next))
    {
    }
#endif

    /// `subsets` has the 2-D subset of each place of 4 x 4, `next` for each state a row of the states that its branches
    /// lead to: 4, 8 or 16.
    static Outcome<TrellisDecoder> make(int states, std::span<const std::uint8_t> subsets,
                                        std::span<const std::uint8_t> next)
    {
        TrellisDecoder made;
        const bool fits = (states == 16 || states == 32 || states == 64) && subsets.size() == made.subsets_.size() &&
                          next.size() == static_cast<std::size_t>(states) * static_cast<std::size_t>(states) / 4;
        if (fits) {
            made.states_ = states;
            for (std::size_t i = 0; i < subsets.size(); ++i)
                made.subsets_[i] = subsets[i];
            made.next_.assign(next.begin(), next.end());
            made.restart();
        }
        return detail::outcome<TrellisDecoder>(fits ? tarnStsNoErr : tarnStsSizeErr, std::move(made));
    }

    /// Forgets all symbols; the encoder is in `state`, or in any if that is below 0.
    void restart(int state = 0)
    {
        metrics_.assign(static_cast<std::size_t>(states_), static_cast<Tarn16u>(state < 0 ? 0 : 30000));
        if (state >= 0 && state < states_)
            metrics_[static_cast<std::size_t>(state)] = 0;
        newMetrics_.assign(static_cast<std::size_t>(states_), 65535);
        bases_.clear();
        survivors_.clear();
        best_ = 0;
    }

    /// The next symbol: two received points.
    Warning operator()(Tarn16sc first, Tarn16sc second)
    {
        std::array<Tarn32u, 16> errors{};
        std::array<Tarn32u, 32> branches{};
        std::array<Tarn16sc, 2> bases{};
        const auto row = survivors_.size();
        survivors_.resize(row + static_cast<std::size_t>(states_));
        Tarn16u smallest = 0;
        TarnStatus status = states_ > 0 ? tarnStsNoErr : tarnStsNullPtrErr;
        const auto then = [&status](TarnStatus next) { status = status < tarnStsNoErr ? status : next; };
        if (status >= tarnStsNoErr) {
            then(tarnsGetVarPointDV_16sc(&first, &bases[0], errors.data(), subsets_.data(), states_));
            then(tarnsGetVarPointDV_16sc(&second, &bases[1], errors.data() + 8, subsets_.data(), states_));
            then(tarnsBuildSymblTableDV4D_16sc(errors.data(), branches.data(), states_, 0));
            then(tarnsCalcStatesDV_16sc(metrics_.data(), next_.data(), newMetrics_.data(), branches.data(),
                                        survivors_.data() + row, states_, 0));
            then(tarnsUpdatePathMetricsDV_16u(newMetrics_.data(), &smallest, &best_, metrics_.data(), states_));
            bases_.insert(bases_.end(), bases.begin(), bases.end());
        }
        return detail::warning(status);
    }

    /// Number of symbols so far.
    std::size_t size() const noexcept { return bases_.size() / 2; }

    /// The state that the encoder is most probably in by now.
    int best() const noexcept { return best_; }

    /// The sent points, two for each symbol, and the encoder's state before each symbol if that is asked for. Symbols
    /// of the last thirty or so may still change with those to come.
    std::vector<Tarn16sc> points(std::vector<int>* states = nullptr) const
    {
        std::vector<Tarn16sc> sent(bases_.size());
        if (states != nullptr)
            states->resize(size());
        std::size_t state = best_;
        for (std::size_t n = size(); n-- > 0;) {
            const Tarn32u survivor = survivors_[n * static_cast<std::size_t>(states_) + state];
            sent[2 * n] = pointOf(bases_[2 * n], survivor & 0xFF);
            sent[2 * n + 1] = pointOf(bases_[2 * n + 1], survivor >> 8 & 0xFF);
            state = survivor >> 16;
            if (states != nullptr)
                (*states)[n] = static_cast<int>(state);
        }
        return sent;
    }

private:
    /// The points around a base point by their numbers, in steps of the grid.
    static Tarn16sc pointOf(Tarn16sc base, Tarn32u number)
    {
        constexpr std::array<int, 12> right{0, 1, 1, 0, 0, 1, 2, 1, 2, -1, 0, -1};
        constexpr std::array<int, 12> up{0, 0, 1, 1, 2, 2, 1, -1, 0, 0, -1, 1};
        return {static_cast<Tarn16s>(base.re + 256 * right[number % 12]),
                static_cast<Tarn16s>(base.im + 256 * up[number % 12])};
    }

    int states_ = 0;
    std::array<Tarn8u, 16> subsets_{};
    std::vector<Tarn8u> next_;
    std::vector<Tarn16u> metrics_;
    std::vector<Tarn16u> newMetrics_;
    std::vector<Tarn16sc> bases_;
    std::vector<Tarn32u> survivors_;
    Tarn8u best_ = 0;
};

} // namespace tarns
