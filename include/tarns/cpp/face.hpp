// What the C++ face is made of: errors, results, and the way from spans to pointers and counts.
#pragma once

#include <tarns.h>

#include <complex>
#include <cstdint>
#include <limits>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>

#if !defined(TARNS_NO_EXCEPTIONS) && !defined(__cpp_exceptions)
#define TARNS_NO_EXCEPTIONS
#endif
#ifndef TARNS_NO_EXCEPTIONS
#include <stdexcept>
#endif

namespace tarns {

/// What a call answers that can warn: tarnStsNoErr, or a warning, which is above 0.
using Warning = TarnStatus;

#ifndef TARNS_NO_EXCEPTIONS

/// A status below 0, with its text.
class Error : public std::runtime_error {
public:
    explicit Error(TarnStatus status) : std::runtime_error(tarnGetStatusString(status)), status_(status) {}

    TarnStatus status() const noexcept { return status_; }

private:
    TarnStatus status_;
};

/// What a call answers that computes a value: the value; errors are thrown.
template <class T>
using Outcome = T;

#else

/// A value, or the status that tells why there is none: what calls answer where there are no exceptions.
template <class T>
class [[nodiscard]] Result {
public:
    Result(TarnStatus status, T value) : status_(status), value_(std::move(value)) {}

    bool has_value() const noexcept { return status_ >= tarnStsNoErr; }
    explicit operator bool() const noexcept { return has_value(); }
    TarnStatus status() const noexcept { return status_; }
    const char* message() const noexcept { return tarnGetStatusString(status_); }

    /// Only where there is one.
    T& operator*() & noexcept { return value_; }
    const T& operator*() const& noexcept { return value_; }
    T&& operator*() && noexcept { return std::move(value_); }
    T* operator->() noexcept { return &value_; }
    const T* operator->() const noexcept { return &value_; }

    T value_or(T other) const& { return has_value() ? value_ : std::move(other); }

private:
    TarnStatus status_;
    T value_;
};

template <class T>
using Outcome = Result<T>;

#endif

namespace detail {

#ifndef TARNS_NO_EXCEPTIONS
[[noreturn]] inline void raise(TarnStatus status) { throw Error(status); }

inline Warning warning(TarnStatus status)
{
    if (status < tarnStsNoErr) [[unlikely]]
        raise(status);
    return status;
}

template <class T>
T outcome(TarnStatus status, T value)
{
    warning(status);
    return value;
}
#else
inline Warning warning(TarnStatus status) noexcept { return status; }

template <class T>
Result<T> outcome(TarnStatus status, T value)
{
    return Result<T>(status, std::move(value));
}
#endif

/// Only where there are as many elements on all sides, and an int can count them, is there anything to call.
template <class First, class... Others>
constexpr bool sameSize(const First& first, const Others&... others) noexcept
{
    return first.size() <= static_cast<std::size_t>(std::numeric_limits<int>::max()) &&
           (... && (others.size() == first.size()));
}

template <class Span>
constexpr int count(const Span& span) noexcept
{
    return static_cast<int>(span.size());
}

/// std::complex is laid out like the library's pairs, and std::int64_t like its 64-bit integers.
template <class C, class T, std::size_t extent>
auto data(std::span<T, extent> span) noexcept
{
    static_assert(sizeof(C) == sizeof(T));
    return reinterpret_cast<std::conditional_t<std::is_const_v<T>, const C*, C*>>(span.data());
}

template <class C, class T>
C value(std::complex<T> x) noexcept
{
    return C{x.real(), x.imag()};
}

template <class T>
T fromC(T x) noexcept
{
    return x;
}

inline std::int64_t fromC(Tarn64s x) noexcept { return x; }
inline std::complex<float> fromC(Tarn32fc x) noexcept { return {x.re, x.im}; }
inline std::complex<double> fromC(Tarn64fc x) noexcept { return {x.re, x.im}; }

} // namespace detail
} // namespace tarns
