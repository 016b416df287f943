// Filters that live across calls, as objects that free themselves: FIR, change of rate, IIR, biquads.
#pragma once

#include <tarns/cpp/object.hpp>

#include <vector>

namespace tarns {
namespace detail {

/// The type of the taps, where nothing else is said: that of the samples, or single precision for integers.
template <class T>
struct TapOf {
    using Type = T;
};
template <>
struct TapOf<std::int16_t> {
    using Type = float;
};
template <>
struct TapOf<Tarn16sc> {
    using Type = std::complex<float>;
};
template <>
struct TapOf<std::int32_t> {
    using Type = double;
};
template <>
struct TapOf<Tarn32sc> {
    using Type = std::complex<double>;
};

/// The calls of the filters of one type of samples and one of taps; integer samples have a scale factor.
template <class T, class TapType>
struct FilterCalls;

#define TARNS_FILTERS(T, TapType, isScaled, tail, joined, scale, inPlace) \
    template <>                                                           \
    struct FilterCalls<T, TapType> {                                      \
        using Fir = TarnsFIRState##tail;                                  \
        using Iir = TarnsIIRState##tail;                                  \
        static constexpr bool scaled = isScaled;                          \
        static constexpr auto createFir = &tarnsFIRInitAlloc##tail;       \
        static constexpr auto createRate = &tarnsFIRMRInitAlloc##tail;    \
        static constexpr auto createIir = &tarnsIIRInitAlloc##tail;       \
        static constexpr auto createBiquads = &tarnsIIRInitAlloc##joined; \
        static constexpr auto releaseFir = &tarnsFIRFree##tail;           \
        static constexpr auto releaseIir = &tarnsIIRFree##tail;           \
        static constexpr auto fir = &tarnsFIR##tail##scale;               \
        static constexpr auto firInPlace = &tarnsFIR##tail##inPlace;      \
        static constexpr auto iir = &tarnsIIR##tail##scale;               \
        static constexpr auto iirInPlace = &tarnsIIR##tail##inPlace;      \
        static constexpr auto setFirTaps = &tarnsFIRSetTaps##tail;        \
        static constexpr auto getFirDelay = &tarnsFIRGetDlyLine##tail;    \
        static constexpr auto setFirDelay = &tarnsFIRSetDlyLine##tail;    \
        static constexpr auto setIirTaps = &tarnsIIRSetTaps##tail;        \
        static constexpr auto getIirDelay = &tarnsIIRGetDlyLine##tail;    \
        static constexpr auto setIirDelay = &tarnsIIRSetDlyLine##tail;    \
    };
TARNS_FILTERS(float, float, false, _32f, _BiQuad_32f, , _I)
TARNS_FILTERS(double, double, false, _64f, _BiQuad_64f, , _I)
TARNS_FILTERS(std::complex<float>, std::complex<float>, false, _32fc, _BiQuad_32fc, , _I)
TARNS_FILTERS(std::complex<double>, std::complex<double>, false, _64fc, _BiQuad_64fc, , _I)
TARNS_FILTERS(float, double, false, 64f_32f, 64f_BiQuad_32f, , _I)
TARNS_FILTERS(std::complex<float>, std::complex<double>, false, 64fc_32fc, 64fc_BiQuad_32fc, , _I)
TARNS_FILTERS(std::int16_t, float, true, 32f_16s, 32f_BiQuad_16s, _Sfs, _ISfs)
TARNS_FILTERS(std::int16_t, double, true, 64f_16s, 64f_BiQuad_16s, _Sfs, _ISfs)
TARNS_FILTERS(Tarn16sc, std::complex<float>, true, 32fc_16sc, 32fc_BiQuad_16sc, _Sfs, _ISfs)
TARNS_FILTERS(Tarn16sc, std::complex<double>, true, 64fc_16sc, 64fc_BiQuad_16sc, _Sfs, _ISfs)
TARNS_FILTERS(std::int32_t, double, true, 64f_32s, 64f_BiQuad_32s, _Sfs, _ISfs)
TARNS_FILTERS(Tarn32sc, std::complex<double>, true, 64fc_32sc, 64fc_BiQuad_32sc, _Sfs, _ISfs)
#undef TARNS_FILTERS

/// With the scale factor where the samples have one.
template <class Calls, class Call>
Warning withScale(int scaleFactor, Call call)
{
    if constexpr (Calls::scaled)
        return call(scaleFactor);
    else
        return call();
}

/// One array is filtered in place: out of place the source must not be overwritten.
template <class Calls, class T, class Function, class InPlace, class State>
Warning filterBlock(Function function, InPlace inPlace, std::span<const T> samples, std::span<T> filtered, State* state,
                    int scaleFactor)
{
    return withScale<Calls>(scaleFactor, [&](auto... scale) {
        if (samples.data() == filtered.data() && samples.size() == filtered.size())
            return call(inPlace, filtered, length, state, scale...);
        return call(function, samples, filtered, length, state, scale...);
    });
}

} // namespace detail

/// y[n] = sum of taps[k] x[n - k], over a stream that comes in blocks of any length. Taps may have another type than
/// samples: Fir<float, double> computes in double precision.
template <class T, class TapType = typename detail::TapOf<T>::Type>
class Fir {
    using Calls = detail::FilterCalls<T, TapType>;

public:
    using Tap = TapType;

    Fir() = default;

#ifndef TARNS_NO_EXCEPTIONS
    explicit Fir(std::span<const Tap> taps) : Fir(make(taps)) {}
#endif

    static Outcome<Fir> make(std::span<const Tap> taps)
    {
        Fir made;
        typename Calls::Fir* state = nullptr;
        const TarnStatus status =
            Calls::createFir(&state, detail::elements(taps), detail::lengthOf(taps.size()), nullptr);
        made.state_.reset(state);
        made.size_ = status >= tarnStsNoErr ? taps.size() : 0;
        return detail::outcome<Fir>(status, std::move(made));
    }

    /// Number of taps.
    std::size_t size() const noexcept { return size_; }

    /// Filters a block; `samples` and `filtered` may be one array. Integer results are scaled by 2^-scaleFactor.
    Warning operator()(std::span<const T> samples, std::span<T> filtered, int scaleFactor = 0)
    {
        return detail::filterBlock<Calls, T>(Calls::fir, Calls::firInPlace, samples, filtered, state_.get(),
                                             scaleFactor);
    }

    /// As many taps as before.
    Warning setTaps(std::span<const Tap> taps)
    {
        return detail::warning(taps.size() == size_ ? Calls::setFirTaps(detail::elements(taps), state_.get())
                                                    : tarnStsSizeErr);
    }

    /// The samples before the next one, newest first, as many as there are taps.
    Warning delayLine(std::span<T> samples) const
    {
        return detail::warning(samples.size() == size_ ? Calls::getFirDelay(state_.get(), detail::elements(samples))
                                                       : tarnStsSizeErr);
    }

    Warning setDelayLine(std::span<const T> samples)
    {
        return detail::warning(samples.size() == size_ ? Calls::setFirDelay(state_.get(), detail::elements(samples))
                                                       : tarnStsSizeErr);
    }

private:
    detail::Handle<typename Calls::Fir, Calls::releaseFir> state_;
    std::size_t size_ = 0;
};

/// Changes the rate by up / down through taps at up times the rate of the input.
template <class T, class TapType = typename detail::TapOf<T>::Type>
class Resampler {
    using Calls = detail::FilterCalls<T, TapType>;

public:
    using Tap = TapType;

    Resampler() = default;

#ifndef TARNS_NO_EXCEPTIONS
    Resampler(std::span<const Tap> taps, int up, int down) : Resampler(make(taps, up, down)) {}
#endif

    static Outcome<Resampler> make(std::span<const Tap> taps, int up, int down)
    {
        Resampler made;
        typename Calls::Fir* state = nullptr;
        const TarnStatus status =
            Calls::createRate(&state, detail::elements(taps), detail::lengthOf(taps.size()), up, 0, down, 0, nullptr);
        made.state_.reset(state);
        made.up_ = static_cast<std::size_t>(status >= tarnStsNoErr ? up : 0);
        made.down_ = static_cast<std::size_t>(status >= tarnStsNoErr ? down : 0);
        return detail::outcome<Resampler>(status, std::move(made));
    }

    /// `samples` are a multiple of `down`, and `resampled` as many times `up` / `down`.
    Warning operator()(std::span<const T> samples, std::span<T> resampled, int scaleFactor = 0)
    {
        const std::size_t times = down_ > 0 ? samples.size() / down_ : 0;
        if (samples.size() != times * down_ || resampled.size() != times * up_)
            return detail::warning(tarnStsSizeErr);
        return detail::withScale<Calls>(scaleFactor, [&](auto... scale) {
            return detail::warning(Calls::fir(detail::elements(samples), detail::elements(resampled),
                                              detail::lengthOf(times), state_.get(), scale...));
        });
    }

private:
    detail::Handle<typename Calls::Fir, Calls::releaseFir> state_;
    std::size_t up_ = 0;
    std::size_t down_ = 0;
};

namespace detail {

/// What both forms of recursive filters share.
template <class T, class TapType>
class Recursive {
    using Calls = FilterCalls<T, TapType>;

public:
    using Tap = TapType;

    /// Filters a block; `samples` and `filtered` may be one array. Integer results are scaled by 2^-scaleFactor.
    Warning operator()(std::span<const T> samples, std::span<T> filtered, int scaleFactor = 0)
    {
        return filterBlock<Calls, T>(Calls::iir, Calls::iirInPlace, samples, filtered, state_.get(), scaleFactor);
    }

    /// Elements of the delay line, which is that of the transposed direct form II.
    std::size_t delaySize() const noexcept { return delaySize_; }

    Warning delayLine(std::span<Tap> values) const
    {
        return warning(values.size() == delaySize_ ? Calls::getIirDelay(state_.get(), elements(values))
                                                   : tarnStsSizeErr);
    }

    Warning setDelayLine(std::span<const Tap> values)
    {
        return warning(values.size() == delaySize_ ? Calls::setIirDelay(state_.get(), elements(values))
                                                   : tarnStsSizeErr);
    }

protected:
    TarnStatus create(decltype(Calls::createIir) function, std::span<const Tap> taps, std::size_t number,
                      std::size_t delaySize)
    {
        typename Calls::Iir* state = nullptr;
        const TarnStatus status = function(&state, elements(taps), lengthOf(number), nullptr);
        state_.reset(state);
        delaySize_ = status >= tarnStsNoErr ? delaySize : 0;
        return status;
    }

private:
    Handle<typename Calls::Iir, Calls::releaseIir> state_;
    std::size_t delaySize_ = 0;
};

} // namespace detail

/// a[0] y[n] = sum of b[k] x[n - k] - sum of a[k] y[n - k]: one section of any order. From order 5 on take Biquads.
template <class T, class TapType = typename detail::TapOf<T>::Type>
class Iir : public detail::Recursive<T, TapType> {
    using Calls = detail::FilterCalls<T, TapType>;

public:
    using Tap = TapType;

    Iir() = default;

#ifndef TARNS_NO_EXCEPTIONS
    Iir(std::span<const Tap> b, std::span<const Tap> a) : Iir(make(b, a)) {}
#endif

    static Outcome<Iir> make(std::span<const Tap> b, std::span<const Tap> a)
    {
        Iir made;
        const std::size_t count = b.size() > a.size() ? b.size() : a.size();
        std::vector<Tap> taps(2 * count);
        for (std::size_t i = 0; i < b.size(); ++i)
            taps[i] = b[i];
        for (std::size_t i = 0; i < a.size(); ++i)
            taps[count + i] = a[i];
        const TarnStatus status =
            b.empty() || a.empty() ? tarnStsIIROrderErr : made.create(Calls::createIir, taps, count - 1, count - 1);
        return detail::outcome<Iir>(status, std::move(made));
    }
};

/// A cascade of sections of order 2, six taps each: b0 b1 b2 a0 a1 a2, as SciPy's `sos` has them.
template <class T, class TapType = typename detail::TapOf<T>::Type>
class Biquads : public detail::Recursive<T, TapType> {
    using Calls = detail::FilterCalls<T, TapType>;

public:
    using Tap = TapType;

    Biquads() = default;

#ifndef TARNS_NO_EXCEPTIONS
    explicit Biquads(std::span<const Tap> sections) : Biquads(make(sections)) {}
#endif

    static Outcome<Biquads> make(std::span<const Tap> sections)
    {
        Biquads made;
        const std::size_t count = sections.size() / 6;
        const TarnStatus status =
            sections.size() % 6 != 0 ? tarnStsSizeErr : made.create(Calls::createBiquads, sections, count, 2 * count);
        return detail::outcome<Biquads>(status, std::move(made));
    }
};

} // namespace tarns
