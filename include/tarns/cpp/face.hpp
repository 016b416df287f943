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

/// The type in which the C interface has an element: std::complex is laid out like its pairs, and std::int64_t like its
/// 64-bit integers.
template <class T>
struct InC {
    using Type = T;
};
template <>
struct InC<std::int64_t> {
    using Type = Tarn64s;
};
template <>
struct InC<std::complex<float>> {
    using Type = Tarn32fc;
};
template <>
struct InC<std::complex<double>> {
    using Type = Tarn64fc;
};
template <class T>
using CType = typename InC<T>::Type;

template <class T, std::size_t extent>
auto elements(std::span<T, extent> span) noexcept
{
    using C = CType<std::remove_const_t<T>>;
    static_assert(sizeof(C) == sizeof(T));
    return reinterpret_cast<std::conditional_t<std::is_const_v<T>, const C*, C*>>(span.data());
}

template <class Span>
constexpr int count(const Span& span) noexcept
{
    return static_cast<int>(span.size());
}

template <class T>
T fromC(T x) noexcept
{
    return x;
}
inline std::int64_t fromC(Tarn64s x) noexcept { return x; }
inline std::complex<float> fromC(Tarn32fc x) noexcept { return {x.re, x.im}; }
inline std::complex<double> fromC(Tarn64fc x) noexcept { return {x.re, x.im}; }

/// Stand in a call for the number of elements, and for the address of a result.
struct Length {};
inline constexpr Length length{};
template <int place>
struct ResultAt {
};
template <int place = 0>
inline constexpr ResultAt<place> result{};

template <class T>
inline constexpr bool isSpan = false;
template <class T, std::size_t extent>
inline constexpr bool isSpan<std::span<T, extent>> = true;

/// Only where there are as many elements on all sides, and an int can count them, is there anything to call: then their
/// number, and -1 otherwise.
template <class... Arguments>
constexpr int commonSize(const Arguments&... arguments) noexcept
{
    constexpr auto most = static_cast<std::size_t>(std::numeric_limits<int>::max());
    std::size_t size = most + 1;
    bool fits = true;
    const auto meet = [&](const auto& argument) {
        if constexpr (isSpan<std::remove_cvref_t<decltype(argument)>>) {
            fits = fits && (size == most + 1 || argument.size() == size) && argument.size() <= most;
            size = argument.size();
        }
    };
    (meet(arguments), ...);
    return fits ? static_cast<int>(size) : -1;
}

template <class T, class Results>
auto argument(const T& value, int, Results&) noexcept
{
    return value;
}
template <class T, std::size_t extent, class Results>
auto argument(std::span<T, extent> span, int, Results&) noexcept
{
    return elements(span);
}
template <class T, class Results>
CType<std::complex<T>> argument(std::complex<T> x, int, Results&) noexcept
{
    return {x.real(), x.imag()};
}
template <class Results>
int argument(Length, int size, Results&) noexcept
{
    return size;
}
template <int place, class Results>
auto argument(ResultAt<place>, int, Results& results) noexcept
{
    return &std::get<place>(results);
}

template <class Function, class Results, class... Arguments>
TarnStatus run(Function function, Results& results, const Arguments&... arguments)
{
    const int size = commonSize(arguments...);
    return size < 0 ? tarnStsSizeErr : function(argument(arguments, size, results)...);
}

/// Calls a function of the C interface whose results all go into arrays.
template <class Function, class... Arguments>
Warning call(Function function, const Arguments&... arguments)
{
    std::tuple<> none;
    return warning(run(function, none, arguments...));
}

/// Calls one that answers numbers, of types C.
template <class... C, class Function, class... Arguments>
auto answer(Function function, const Arguments&... arguments)
{
    std::tuple<C...> results{};
    const TarnStatus status = run(function, results, arguments...);
    if constexpr (sizeof...(C) == 1)
        return outcome(status, fromC(std::get<0>(results)));
    else
        return outcome(status, std::apply([](auto... parts) { return std::tuple(fromC(parts)...); }, results));
}

} // namespace detail
} // namespace tarns
