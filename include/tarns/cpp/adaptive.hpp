// Filters that learn their taps, as objects that free themselves: by blocks, and in fixed point by single steps.
#pragma once

#include <tarns/cpp/object.hpp>

namespace tarns {
namespace detail {

template <class T>
struct AdaptiveCalls;

#define TARNS_ADAPTIVE(T, tail)                                        \
    template <>                                                        \
    struct AdaptiveCalls<T> {                                          \
        using State = TarnsFIRLMSState##tail;                          \
        static constexpr auto create = &tarnsFIRLMSInitAlloc##tail;    \
        static constexpr auto release = &tarnsFIRLMSFree##tail;        \
        static constexpr auto run = &tarnsFIRLMS##tail;                \
        static constexpr auto getTaps = &tarnsFIRLMSGetTaps##tail;     \
        static constexpr auto getDelay = &tarnsFIRLMSGetDlyLine##tail; \
        static constexpr auto setDelay = &tarnsFIRLMSSetDlyLine##tail; \
    };
TARNS_ADAPTIVE(float, _32f)
TARNS_ADAPTIVE(std::int16_t, 32f_16s)
#undef TARNS_ADAPTIVE

} // namespace detail

/// A filter whose taps follow a reference by least mean squares, sample by sample: y[n] = sum of h[k] x[n - k], and
/// then h[k] += 2 mu (reference[n] - y[n]) x[n - k]. Of 16-bit samples taps count 2^-16, see the C functions.
template <class T>
class Lms {
    using Calls = detail::AdaptiveCalls<T>;

public:
    Lms() = default;

#ifndef TARNS_NO_EXCEPTIONS
    explicit Lms(std::size_t size) : Lms(make(size)) {}
    explicit Lms(std::span<const float> taps) : Lms(make(taps)) {}
#endif

    /// So many taps, all of them 0.
    static Outcome<Lms> make(std::size_t size) { return create(nullptr, size); }
    /// Taps to begin with.
    static Outcome<Lms> make(std::span<const float> taps) { return create(taps.data(), taps.size()); }

    /// Number of taps.
    std::size_t size() const noexcept { return size_; }

    /// Filters a block, and learns from it.
    Warning operator()(std::span<const T> samples, std::span<const T> reference, std::span<T> filtered, float mu)
    {
        return detail::call(Calls::run, samples, reference, filtered, detail::length, mu, state_.get());
    }

    /// The taps as they are now, that of the newest sample first.
    Warning taps(std::span<float> values) const
    {
        return detail::warning(values.size() == size_ ? Calls::getTaps(state_.get(), values.data()) : tarnStsSizeErr);
    }

    /// The samples before the next one as a ring; answers where the oldest one is.
    Outcome<int> delayLine(std::span<T> samples) const
    {
        int index = 0;
        const TarnStatus status =
            samples.size() == size_ ? Calls::getDelay(state_.get(), detail::elements(samples), &index) : tarnStsSizeErr;
        return detail::outcome(status, index);
    }

    /// What delayLine() gave.
    Warning setDelayLine(std::span<const T> samples, int index)
    {
        return detail::warning(samples.size() == size_ ? Calls::setDelay(state_.get(), detail::elements(samples), index)
                                                       : tarnStsSizeErr);
    }

private:
    static Outcome<Lms> create(const float* taps, std::size_t size)
    {
        Lms made;
        typename Calls::State* state = nullptr;
        const TarnStatus status = Calls::create(&state, taps, detail::lengthOf(size), nullptr, 0);
        made.state_.reset(state);
        made.size_ = status >= tarnStsNoErr ? size : 0;
        return detail::outcome<Lms>(status, std::move(made));
    }

    detail::Handle<typename Calls::State, Calls::release> state_;
    std::size_t size_ = 0;
};

namespace detail {

template <class T>
struct FixedAdaptiveCalls;

#define TARNS_FIXED_ADAPTIVE(T, Wide, tail)                              \
    template <>                                                          \
    struct FixedAdaptiveCalls<T> {                                       \
        using Tap = Wide;                                                \
        using State = TarnsFIRLMSMRState##tail;                          \
        static constexpr auto create = &tarnsFIRLMSMRInitAlloc##tail;    \
        static constexpr auto release = &tarnsFIRLMSMRFree##tail;        \
        static constexpr auto put = &tarnsFIRLMSMRPutVal##tail;          \
        static constexpr auto one = &tarnsFIRLMSMROne##tail;             \
        static constexpr auto oneValue = &tarnsFIRLMSMROneVal##tail;     \
        static constexpr auto update = &tarnsFIRLMSMRUpdateTaps##tail;   \
        static constexpr auto setMu = &tarnsFIRLMSMRSetMu##tail;         \
        static constexpr auto setTaps = &tarnsFIRLMSMRSetTaps##tail;     \
        static constexpr auto getTaps = &tarnsFIRLMSMRGetTaps##tail;     \
        static constexpr auto getDelay = &tarnsFIRLMSMRGetDlyLine##tail; \
        static constexpr auto setDelay = &tarnsFIRLMSMRSetDlyLine##tail; \
    };
TARNS_FIXED_ADAPTIVE(std::int16_t, std::int32_t, 32s_16s)
TARNS_FIXED_ADAPTIVE(Tarn16sc, Tarn32sc, 32sc_16sc)
#undef TARNS_FIXED_ADAPTIVE

} // namespace detail

/// A filter of integers that learns by steps which are calls of their own: put a sample in, compute an output, tell the
/// error when it is known. Samples are std::int16_t or Tarn16sc; taps have 32 bits, of which the upper 16 filter.
template <class T>
class FixedLms {
    using Calls = detail::FixedAdaptiveCalls<T>;

public:
    using Tap = typename Calls::Tap;

    FixedLms() = default;

#ifndef TARNS_NO_EXCEPTIONS
    FixedLms(std::span<const Tap> taps, int mu, int tapStep = 1, int updateDelay = 0)
        : FixedLms(make(taps, mu, tapStep, updateDelay))
    {
    }
#endif

    /// `mu` is the step size times 2^15, `tapStep` the distance of the samples that taps apply to, and `updateDelay`
    /// how many samples after its output an error is told.
    static Outcome<FixedLms> make(std::span<const Tap> taps, int mu, int tapStep = 1, int updateDelay = 0)
    {
        FixedLms made;
        typename Calls::State* state = nullptr;
        const TarnStatus status =
            Calls::create(&state, taps.data(), detail::lengthOf(taps.size()), nullptr, 0, tapStep, updateDelay, mu);
        made.state_.reset(state);
        if (status >= tarnStsNoErr) {
            made.size_ = taps.size();
            made.delaySize_ = static_cast<std::size_t>(updateDelay) + taps.size() * static_cast<std::size_t>(tapStep);
        }
        return detail::outcome<FixedLms>(status, std::move(made));
    }

    /// Number of taps.
    std::size_t size() const noexcept { return size_; }
    /// Number of samples in the delay line.
    std::size_t delaySize() const noexcept { return delaySize_; }

    Warning put(T sample) { return detail::warning(Calls::put(sample, state_.get())); }

    /// An output of the samples that were put in.
    Outcome<Tap> output()
    {
        Tap value{};
        const TarnStatus status = Calls::one(&value, state_.get());
        return detail::outcome(status, value);
    }

    /// Puts a sample in and computes an output.
    Outcome<Tap> operator()(T sample)
    {
        Tap value{};
        const TarnStatus status = Calls::oneValue(sample, &value, state_.get());
        return detail::outcome(status, value);
    }

    /// Changes the taps by the error of the output of `updateDelay` samples ago.
    Warning update(Tap error) { return detail::warning(Calls::update(error, state_.get())); }

    Warning setMu(int mu) { return detail::warning(Calls::setMu(state_.get(), mu)); }

    /// The taps as they are now, that of the newest sample first.
    Warning taps(std::span<Tap> values) const
    {
        return detail::warning(values.size() == size_ ? Calls::getTaps(state_.get(), values.data()) : tarnStsSizeErr);
    }

    /// As many taps as before.
    Warning setTaps(std::span<const Tap> values)
    {
        return detail::warning(values.size() == size_ ? Calls::setTaps(state_.get(), values.data()) : tarnStsSizeErr);
    }

    /// The samples before the next one as a ring; answers where the oldest one is.
    Outcome<int> delayLine(std::span<T> samples) const
    {
        int index = 0;
        const TarnStatus status =
            samples.size() == delaySize_ ? Calls::getDelay(state_.get(), samples.data(), &index) : tarnStsSizeErr;
        return detail::outcome(status, index);
    }

    /// What delayLine() gave.
    Warning setDelayLine(std::span<const T> samples, int index)
    {
        return detail::warning(samples.size() == delaySize_ ? Calls::setDelay(state_.get(), samples.data(), index)
                                                            : tarnStsSizeErr);
    }

private:
    detail::Handle<typename Calls::State, Calls::release> state_;
    std::size_t size_ = 0;
    std::size_t delaySize_ = 0;
};

} // namespace tarns
