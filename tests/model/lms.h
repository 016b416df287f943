// Adaptive filters by their definition: one sample after the other, windows looked up one element at a time.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarn::model {

/// A ring of samples that shows its newest ones, the newest last.
template <class T>
class Ring {
public:
    Ring(std::vector<T> ring, std::size_t oldest) : samples(std::move(ring)), begin(oldest) {}

    void enter(T x)
    {
        samples[begin] = x;
        begin = (begin + 1) % samples.size();
    }
    /// The i-th sample, counted from the oldest.
    T at(std::size_t i) const { return samples[(begin + i) % samples.size()]; }
    const std::vector<T>& places() const { return samples; }
    std::size_t oldest() const { return begin; }

private:
    std::vector<T> samples;
    std::size_t begin;
};

/// y = scale sum of taps window, taps += gain (ref - y) window, wide, with a bound on what single precision makes of
/// it.
class LmsFilter {
public:
    using Wide = long double;

    /// Taps for the oldest sample first.
    LmsFilter(std::vector<Wide> inverseTaps, Ring<Wide> line, Wide outputScale, Wide errorGain)
        : taps(std::move(inverseTaps)), ring(std::move(line)), scale(outputScale), gain(errorGain)
    {
    }

    struct Output {
        Wide value;
        Wide error; ///< of a filter in single precision
    };

    /// A sum of n products is off by at most (n + 2) units of their magnitudes; so is the output, and by what the taps
    /// are off. A tap gets the rounding of its product and of its sum, and the error of the output; as long as the
    /// filter is stable, none of that grows.
    Output next(Wide x, Wide ref)
    {
        ring.enter(x);
        const std::size_t n = taps.size();
        Wide sum = 0, magnitude = 0, energy = 0, largest = 0;
        for (std::size_t j = 0; j < n; ++j) {
            const Wide w = ring.at(j);
            sum += taps[j] * w;
            magnitude += std::fabs(taps[j] * w);
            energy += w * w;
            largest = std::max(largest, std::fabs(taps[j]));
        }
        const Wide length = std::sqrt(energy);
        const Wide y = scale * sum;
        const Wide off = scale * (unit * static_cast<Wide>(n + 3) * magnitude + tapsOff * length);
        const Wide e = (ref - y) * gain;
        for (std::size_t j = 0; j < n; ++j)
            taps[j] += e * ring.at(j);
        const Wide root = std::sqrt(static_cast<Wide>(n));
        tapsOff += unit * (2 * root * largest + 6 * std::fabs(e) * length) +
                   std::fabs(gain) * unit * static_cast<Wide>(n + 3) * scale * magnitude * length;
        return {y, off};
    }

    std::vector<Wide> taps;
    Ring<Wide> ring;
    Wide tapsOff = 0;

private:
    static constexpr Wide unit = 0x1p-23L;
    Wide scale, gain;
};

/// The fixed-point filter, all parts modulo 2^32.
struct LmsNumber {
    std::uint32_t re, im;
};

class LmsRates {
public:
    LmsRates(std::vector<LmsNumber> naturalTaps, Ring<LmsNumber> line, int tapStep, int updateDly)
        : taps(std::move(naturalTaps)), ring(std::move(line)), step(static_cast<std::size_t>(tapStep)),
          lag(static_cast<std::size_t>(updateDly))
    {
    }

    void put(LmsNumber x) { ring.enter(x); }

    LmsNumber output() const
    {
        LmsNumber sum{0, 0};
        for (std::size_t k = 0; k < taps.size(); ++k) {
            const LmsNumber h{half(taps[k].re), half(taps[k].im)};
            const LmsNumber x = past(k * step);
            sum.re += h.re * x.re - h.im * x.im;
            sum.im += h.re * x.im + h.im * x.re;
        }
        return sum;
    }

    /// (err mu + 2^14) >> 15 in both parts, times the conjugates of the samples `updateDly` back.
    void update(LmsNumber err, int mu) { change({rounded(err.re, mu), rounded(err.im, mu)}, 0); }

    /// By steps that are scaled to fit about 2^muShift. The imaginary part counts if there is one.
    void updateScaled(LmsNumber err, int mu, int muShift)
    {
        const std::int32_t v[] = {times(err.re, mu), times(err.im, mu)};
        int t = 0;
        const auto fits = [&](std::int32_t part) {
            const std::int64_t size = part == INT32_MIN ? INT32_MAX : std::abs(part);
            return (size / 2) >> t <= std::int64_t{1} << muShift;
        };
        while (t < 15 && !(fits(v[0]) && fits(v[1])))
            ++t;
        change({static_cast<std::uint32_t>(v[0] >> t), static_cast<std::uint32_t>(v[1] >> t)}, 15 - t);
    }

    std::vector<LmsNumber> taps; ///< for the newest sample first
    Ring<LmsNumber> ring;

private:
    /// The sample that came in k samples before the newest one.
    LmsNumber past(std::size_t k) const { return ring.at(ring.places().size() - 1 - k); }

    static std::int32_t asSigned(std::uint32_t x) { return static_cast<std::int32_t>(x); }
    static std::uint32_t half(std::uint32_t tap) { return static_cast<std::uint32_t>(asSigned(tap) >> 16); }
    static std::int32_t times(std::uint32_t err, int mu) { return asSigned(err * static_cast<std::uint32_t>(mu)); }
    static std::uint32_t rounded(std::uint32_t err, int mu)
    {
        return static_cast<std::uint32_t>(asSigned(static_cast<std::uint32_t>(times(err, mu)) + 16384) >> 15);
    }
    static std::uint32_t shifted(std::uint32_t x, int s) { return static_cast<std::uint32_t>(asSigned(x) >> s); }

    void change(LmsNumber g, int s)
    {
        for (std::size_t k = 0; k < taps.size(); ++k) {
            const LmsNumber x = past(lag + k * step);
            taps[k].re += shifted(x.re * g.re + x.im * g.im, s);
            taps[k].im += shifted(x.re * g.im - x.im * g.re, s);
        }
    }

    std::size_t step, lag;
};

} // namespace tarn::model
