// Fourier transforms of any length, cosine transforms and analytic signals as objects that free themselves.
#pragma once

#include <tarns/cpp/object.hpp>

namespace tarns {

/// Where the factor 1 / N of a pair of transforms goes.
enum class Scale {
    forward = TARN_FFT_DIV_FWD_BY_N,
    inverse = TARN_FFT_DIV_INV_BY_N, ///< as NumPy has it
    both = TARN_FFT_DIV_BY_SQRTN,    ///< 1 / sqrt(N) in both directions
    none = TARN_FFT_NODIV_BY_ANY
};

namespace detail {

/// The calls of the transforms of one element; its bins are complex.
template <class T>
struct FourierCalls;

#define TARNS_FOURIER(T, Element, kind, Forward, Inverse)              \
    template <>                                                        \
    struct FourierCalls<T> {                                           \
        using Spec = TarnsDFTSpec_##kind;                              \
        using Bin = std::complex<Element>;                             \
        static constexpr auto create = &tarnsDFTInitAlloc_##kind;      \
        static constexpr auto release = &tarnsDFTFree_##kind;          \
        static constexpr auto bufferSize = &tarnsDFTGetBufSize_##kind; \
        static constexpr auto forward = &Forward;                      \
        static constexpr auto inverse = &Inverse;                      \
    };
TARNS_FOURIER(float, float, R_32f, tarnsDFTFwd_RToCCS_32f, tarnsDFTInv_CCSToR_32f)
TARNS_FOURIER(double, double, R_64f, tarnsDFTFwd_RToCCS_64f, tarnsDFTInv_CCSToR_64f)
TARNS_FOURIER(std::complex<float>, float, C_32fc, tarnsDFTFwd_CToC_32fc, tarnsDFTInv_CToC_32fc)
TARNS_FOURIER(std::complex<double>, double, C_64fc, tarnsDFTFwd_CToC_64fc, tarnsDFTInv_CToC_64fc)
#undef TARNS_FOURIER

/// Bins of real signals are pairs of reals in one array.
template <class Bin, class T>
auto binData(std::span<Bin> bins) noexcept
{
    if constexpr (std::is_floating_point_v<T>)
        return reinterpret_cast<std::conditional_t<std::is_const_v<Bin>, const T*, T*>>(bins.data());
    else
        return elements(bins);
}

} // namespace detail

/// The Fourier transform of `size` elements, any number of them. Real signals have bins 0 to size / 2.
template <class T>
class Fft {
    using Calls = detail::FourierCalls<T>;

public:
    using Bin = typename Calls::Bin;

    Fft() = default;

#ifndef TARNS_NO_EXCEPTIONS
    explicit Fft(int size, Scale scale = Scale::inverse) : Fft(make(size, scale)) {}
#endif

    static Outcome<Fft> make(int size, Scale scale = Scale::inverse)
    {
        Fft made;
        typename Calls::Spec* spec = nullptr;
        int bytes = 0;
        TarnStatus status = Calls::create(&spec, size, static_cast<int>(scale), tarnAlgHintNone);
        made.spec_.reset(spec);
        if (status >= tarnStsNoErr)
            status = Calls::bufferSize(spec, &bytes);
        if (status >= tarnStsNoErr)
            status = detail::allocate(bytes, made.buffer_);
        made.size_ = static_cast<std::size_t>(status >= tarnStsNoErr ? size : 0);
        return detail::outcome<Fft>(status, std::move(made));
    }

    std::size_t size() const noexcept { return size_; }
    std::size_t bins() const noexcept { return std::is_floating_point_v<T> ? size_ / 2 + 1 : size_; }

    Warning forward(std::span<const T> samples, std::span<Bin> spectrum)
    {
        return detail::warning(fits(samples, spectrum)
                                   ? Calls::forward(detail::elements(samples), detail::binData<Bin, T>(spectrum),
                                                    spec_.get(), buffer_.get())
                                   : tarnStsSizeErr);
    }

    Warning inverse(std::span<const Bin> spectrum, std::span<T> samples)
    {
        return detail::warning(fits(samples, spectrum)
                                   ? Calls::inverse(detail::binData<const Bin, T>(spectrum), detail::elements(samples),
                                                    spec_.get(), buffer_.get())
                                   : tarnStsSizeErr);
    }

private:
    template <class Samples, class Spectrum>
    bool fits(const Samples& samples, const Spectrum& spectrum) const noexcept
    {
        return samples.size() == size_ && spectrum.size() == bins();
    }

    detail::Handle<typename Calls::Spec, Calls::release> spec_;
    detail::Buffer buffer_;
    std::size_t size_ = 0;
};

namespace detail {

template <class T>
struct CosineCalls;

#define TARNS_COSINE(T, kind)                                               \
    template <>                                                             \
    struct CosineCalls<T> {                                                 \
        using ForwardSpec = TarnsDCTFwdSpec_##kind;                         \
        using InverseSpec = TarnsDCTInvSpec_##kind;                         \
        static constexpr auto createForward = &tarnsDCTFwdInitAlloc_##kind; \
        static constexpr auto createInverse = &tarnsDCTInvInitAlloc_##kind; \
        static constexpr auto releaseForward = &tarnsDCTFwdFree_##kind;     \
        static constexpr auto releaseInverse = &tarnsDCTInvFree_##kind;     \
        static constexpr auto forwardSize = &tarnsDCTFwdGetBufSize_##kind;  \
        static constexpr auto inverseSize = &tarnsDCTInvGetBufSize_##kind;  \
        static constexpr auto forward = &tarnsDCTFwd_##kind;                \
        static constexpr auto inverse = &tarnsDCTInv_##kind;                \
    };
TARNS_COSINE(float, 32f)
TARNS_COSINE(double, 64f)
#undef TARNS_COSINE

} // namespace detail

/// The cosine transform (DCT-II and its inverse, orthonormal) of `size` elements.
template <class T>
class Dct {
    using Calls = detail::CosineCalls<T>;

public:
    Dct() = default;

#ifndef TARNS_NO_EXCEPTIONS
    explicit Dct(int size) : Dct(make(size)) {}
#endif

    static Outcome<Dct> make(int size)
    {
        Dct made;
        typename Calls::ForwardSpec* forward = nullptr;
        typename Calls::InverseSpec* inverse = nullptr;
        int forwardBytes = 0;
        int inverseBytes = 0;
        TarnStatus status = Calls::createForward(&forward, size, tarnAlgHintNone);
        made.forward_.reset(forward);
        if (status >= tarnStsNoErr) {
            status = Calls::createInverse(&inverse, size, tarnAlgHintNone);
            made.inverse_.reset(inverse);
        }
        if (status >= tarnStsNoErr)
            status = Calls::forwardSize(forward, &forwardBytes);
        if (status >= tarnStsNoErr)
            status = Calls::inverseSize(inverse, &inverseBytes);
        if (status >= tarnStsNoErr)
            status = detail::allocate(forwardBytes > inverseBytes ? forwardBytes : inverseBytes, made.buffer_);
        made.size_ = static_cast<std::size_t>(status >= tarnStsNoErr ? size : 0);
        return detail::outcome<Dct>(status, std::move(made));
    }

    std::size_t size() const noexcept { return size_; }

    Warning forward(std::span<const T> samples, std::span<T> coefficients)
    {
        return detail::callOf(size_, Calls::forward, samples, coefficients, forward_.get(), buffer_.get());
    }

    Warning inverse(std::span<const T> coefficients, std::span<T> samples)
    {
        return detail::callOf(size_, Calls::inverse, coefficients, samples, inverse_.get(), buffer_.get());
    }

private:
    detail::Handle<typename Calls::ForwardSpec, Calls::releaseForward> forward_;
    detail::Handle<typename Calls::InverseSpec, Calls::releaseInverse> inverse_;
    detail::Buffer buffer_;
    std::size_t size_ = 0;
};

/// The analytic signal of `size` samples.
class Hilbert {
public:
    Hilbert() = default;

#ifndef TARNS_NO_EXCEPTIONS
    explicit Hilbert(int size) : Hilbert(make(size)) {}
#endif

    static Outcome<Hilbert> make(int size)
    {
        Hilbert made;
        TarnsHilbertSpec_32f32fc* spec = nullptr;
        const TarnStatus status = tarnsHilbertInitAlloc_32f32fc(&spec, size, tarnAlgHintNone);
        made.spec_.reset(spec);
        made.size_ = static_cast<std::size_t>(status >= tarnStsNoErr ? size : 0);
        return detail::outcome<Hilbert>(status, std::move(made));
    }

    std::size_t size() const noexcept { return size_; }

    Warning operator()(std::span<const float> samples, std::span<std::complex<float>> signal) const
    {
        return detail::callOf(size_, tarnsHilbert_32f32fc, samples, signal, spec_.get());
    }

private:
    detail::Handle<TarnsHilbertSpec_32f32fc, &tarnsHilbertFree_32f32fc> spec_;
    std::size_t size_ = 0;
};

} // namespace tarns
