// Wavelet filter banks on streams, as objects that free themselves.
#pragma once

#include <tarns/cpp/object.hpp>

#include <algorithm>

namespace tarns {

/// The filter of a channel: taps, and by how many samples of the full rate it delays; -1 takes one that comes after.
struct Channel {
    std::span<const float> taps;
    int offset = 0;
};

namespace detail {

template <class T>
struct BankCalls;

#define TARNS_BANKS(T, split, join)                                         \
    template <>                                                             \
    struct BankCalls<T> {                                                   \
        static constexpr auto createSplit = &tarnsWTFwdInitAlloc##split;    \
        static constexpr auto releaseSplit = &tarnsWTFwdFree##split;        \
        static constexpr auto runSplit = &tarnsWTFwd##split;                \
        static constexpr auto getSplitDelay = &tarnsWTFwdGetDlyLine##split; \
        static constexpr auto setSplitDelay = &tarnsWTFwdSetDlyLine##split; \
        static constexpr auto createJoin = &tarnsWTInvInitAlloc##join;      \
        static constexpr auto releaseJoin = &tarnsWTInvFree##join;          \
        static constexpr auto runJoin = &tarnsWTInv##join;                  \
        static constexpr auto getJoinDelay = &tarnsWTInvGetDlyLine##join;   \
        static constexpr auto setJoinDelay = &tarnsWTInvSetDlyLine##join;   \
    };
TARNS_BANKS(float, _32f, _32f)
TARNS_BANKS(std::uint8_t, _8u32f, _32f8u)
TARNS_BANKS(std::int8_t, _8s32f, _32f8s)
TARNS_BANKS(std::uint16_t, _16u32f, _32f16u)
TARNS_BANKS(std::int16_t, _16s32f, _32f16s)
#undef TARNS_BANKS

/// What both directions share: a state, and two delay lines. The C interface wants addresses even of empty lines.
template <class State, auto create, auto release, auto getDelay, auto setDelay>
class Bank {
public:
    std::size_t lowDelaySize() const noexcept { return lowDelay_; }
    std::size_t highDelaySize() const noexcept { return highDelay_; }

    /// What outputs to come depend on, the oldest first: samples of a splitting bank, of each channel of a joining one.
    Warning delayLines(std::span<float> low, std::span<float> high) const
    {
        float none = 0;
        return warning(fits(low, high) ? getDelay(state_.get(), low.empty() ? &none : low.data(),
                                                  high.empty() ? &none : high.data())
                                       : tarnStsSizeErr);
    }

    /// What delayLines() gave.
    Warning setDelayLines(std::span<const float> low, std::span<const float> high)
    {
        const float none = 0;
        return warning(fits(low, high) ? setDelay(state_.get(), low.empty() ? &none : low.data(),
                                                  high.empty() ? &none : high.data())
                                       : tarnStsSizeErr);
    }

protected:
    TarnStatus build(Channel low, Channel high, std::size_t (*delayOf)(Channel))
    {
        State* state = nullptr;
        const TarnStatus status = create(&state, low.taps.data(), lengthOf(low.taps.size()), low.offset,
                                         high.taps.data(), lengthOf(high.taps.size()), high.offset);
        state_.reset(state);
        lowDelay_ = status >= tarnStsNoErr ? delayOf(low) : 0;
        highDelay_ = status >= tarnStsNoErr ? delayOf(high) : 0;
        return status;
    }

    State* state() const noexcept { return state_.get(); }

private:
    template <class Low, class High>
    bool fits(const Low& low, const High& high) const noexcept
    {
        return low.size() == lowDelay_ && high.size() == highDelay_;
    }

    Handle<State, release> state_;
    std::size_t lowDelay_ = 0;
    std::size_t highDelay_ = 0;
};

template <class T>
using SplitBank = Bank<TarnsWTFwdState, BankCalls<T>::createSplit, BankCalls<T>::releaseSplit,
                       BankCalls<T>::getSplitDelay, BankCalls<T>::setSplitDelay>;
template <class T>
using JoinBank = Bank<TarnsWTInvState, BankCalls<T>::createJoin, BankCalls<T>::releaseJoin, BankCalls<T>::getJoinDelay,
                      BankCalls<T>::setJoinDelay>;

} // namespace detail

/// Splits a stream into a low and a high channel of half the rate. Samples are float, or integers of 8 and 16 bits.
template <class T>
class WaveletSplit : public detail::SplitBank<T> {
    using Calls = detail::BankCalls<T>;

public:
    WaveletSplit() = default;

#ifndef TARNS_NO_EXCEPTIONS
    WaveletSplit(Channel low, Channel high) : WaveletSplit(make(low, high)) {}
#endif

    static Outcome<WaveletSplit> make(Channel low, Channel high)
    {
        WaveletSplit made;
        const TarnStatus status = made.build(low, high, [](Channel channel) {
            return static_cast<std::size_t>(std::max(static_cast<int>(channel.taps.size()) + channel.offset - 1, 0));
        });
        return detail::outcome<WaveletSplit>(status, std::move(made));
    }

    /// Twice as many samples as each channel has.
    Warning operator()(std::span<const T> samples, std::span<float> low, std::span<float> high)
    {
        const bool fits = low.size() == high.size() && samples.size() == 2 * low.size();
        return detail::warning(fits ? Calls::runSplit(detail::elements(samples), low.data(), high.data(),
                                                      detail::lengthOf(low.size()), this->state())
                                    : tarnStsSizeErr);
    }
};

/// Joins two channels into one stream of twice their rate.
template <class T>
class WaveletJoin : public detail::JoinBank<T> {
    using Calls = detail::BankCalls<T>;

public:
    WaveletJoin() = default;

#ifndef TARNS_NO_EXCEPTIONS
    WaveletJoin(Channel low, Channel high) : WaveletJoin(make(low, high)) {}
#endif

    static Outcome<WaveletJoin> make(Channel low, Channel high)
    {
        WaveletJoin made;
        const TarnStatus status = made.build(low, high, [](Channel channel) {
            const std::size_t size = channel.taps.size();
            return channel.offset < 0 ? size / 2 : (size - 1 + static_cast<std::size_t>(channel.offset)) / 2;
        });
        return detail::outcome<WaveletJoin>(status, std::move(made));
    }

    /// Twice as many samples as each channel has.
    Warning operator()(std::span<const float> low, std::span<const float> high, std::span<T> samples)
    {
        const bool fits = low.size() == high.size() && samples.size() == 2 * low.size();
        return detail::warning(fits ? Calls::runJoin(low.data(), high.data(), detail::lengthOf(low.size()),
                                                     detail::elements(samples), this->state())
                                    : tarnStsSizeErr);
    }
};

} // namespace tarns
