// Proof that a front end makes its checks, in their order, and touches nothing when one fails.
//
//     expectChecks(tarnsAdd_16s_Sfs);                               // all from the signature
//     expectChecks(tarnsAdd_32fc, {.order = {Check::length, Check::pointer, Check::parameter},
//                                  .wrappedLengths = doublingWraps});
//     expectChecks(tarnsAddC_32s_Sfs, {}, array, 1, array, length, 0);   // val and len are both int
//     expectChecks(tarnsDivC_16s_Sfs, {}, array, param<Tarn16s>(3, {0}, tarnStsDivByZeroErr), array, length, 0);
//     expectChecks(tarnsSampleDown_32f, {}, array, length, array, array, param(2, {0, -1}, tarnStsSampleFactorErr),
//     array);
//
// Each argument is one of: `array` (a buffer made here; null gives the pointer status), `object(p)` (the caller's own
// pointer, likewise), `length`, `param(good, {bad...}, status)`, or a plain value that is passed as it is. Every fault
// alone and every two together are tried; the status has to be that of the fault whose check comes first, and all the
// buffers have to keep every byte. At last the call without a fault has to succeed.
#pragma once

#include "tarncore.h"

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarn::test {

enum class Check { pointer, length, parameter };

/// Lengths above 0 whose doubling in 32 bits is not.
inline const std::vector<int> doublingWraps = {0x40000000, 0x5FFFFFFF, 0x7FFFFFFF};

struct ChecksOptions {
    /// The order of the checks. Parameters are checked among themselves in argument order.
    std::vector<Check> order = {Check::pointer, Check::length, Check::parameter};
    /// Positive lengths that fail like bad ones, but behind all other checks.
    std::vector<int> wrappedLengths = {};
    int pointerStatus = tarnStsNullPtrErr;
    int lengthStatus = tarnStsSizeErr;
    /// Status of the call without a fault.
    int goodStatus = tarnStsNoErr;
    std::string name = {};
};

/// Placeholder: a buffer of 1024 bytes, enough for 64 elements of any type. Not for arrays of pointers.
struct ArrayArgument {};
inline constexpr ArrayArgument array{};

/// Placeholder: the caller's pointer, tested with null in its place.
template <class T>
struct ObjectArgument {
    T* pointer;
};
template <class T>
ObjectArgument<T> object(T* pointer)
{
    return {pointer};
}

/// Placeholder: an element count, `good` in the calls that do not test it; `status` if it has one of its own.
struct LengthArgument {
    int good = 8;
    int status = 0;
    constexpr LengthArgument operator()(int goodLength, int ownStatus = 0) const { return {goodLength, ownStatus}; }
};
inline constexpr LengthArgument length{};

/// Placeholder: a parameter with a check of its own.
template <class T>
struct ParameterArgument {
    T good;
    std::vector<T> bad;
    int status;
};
template <class T>
ParameterArgument<T> param(T good, std::initializer_list<std::type_identity_t<T>> bad, int status)
{
    return {good, bad, status};
}

namespace detail {

// Arguments are bytes, so that everything behind a signature is compiled once.

/// Room for an argument of any type.
struct Slot {
    alignas(16) unsigned char bytes[16] = {};

    template <class Parameter>
    static Slot of(Parameter value)
    {
        static_assert(sizeof value <= sizeof bytes && std::is_trivially_copyable_v<Parameter>);
        Slot slot;
        std::memcpy(slot.bytes, &value, sizeof value);
        return slot;
    }
    template <class Parameter>
    Parameter as() const
    {
        Parameter value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }
};

enum class ArgumentKind : char { value, array, object, length, parameter };

/// What a placeholder is for an argument of its type.
struct AnyArgument {
    ArgumentKind kind = ArgumentKind::value;
    Slot good;
    std::vector<Slot> bad;
    int status = 0;
};

enum class ParameterKind : char { pointer, integer, other };

template <class Parameter>
constexpr ParameterKind parameterKind = std::is_pointer_v<Parameter>     ? ParameterKind::pointer
                                        : std::is_same_v<Parameter, int> ? ParameterKind::integer
                                                                         : ParameterKind::other;

template <class Parameter, class Argument>
AnyArgument describe(const Argument& argument)
{
    if constexpr (std::is_same_v<Argument, ArrayArgument>) {
        static_assert(std::is_pointer_v<Parameter>);
        return {ArgumentKind::array, {}, {}, 0};
    } else if constexpr (std::is_same_v<Argument, LengthArgument>) {
        static_assert(std::is_same_v<Parameter, int>);
        return {ArgumentKind::length, Slot::of(argument.good), {}, argument.status};
    } else if constexpr (requires { argument.pointer; }) {
        return {ArgumentKind::object, Slot::of<Parameter>(argument.pointer), {}, 0};
    } else if constexpr (requires { argument.bad; }) {
        AnyArgument any{ArgumentKind::parameter, Slot::of(static_cast<Parameter>(argument.good)), {}, argument.status};
        for (const auto& bad : argument.bad)
            any.bad.push_back(Slot::of(static_cast<Parameter>(bad)));
        return any;
    } else {
        return {ArgumentKind::value, Slot::of(static_cast<Parameter>(argument)), {}, 0};
    }
}

/// Where the length stands in a signature: the first int behind the last pointer, or between pointers if none is
/// behind. None (the number of parameters) if there are both, since one of them may be a constant or a further
/// parameter.
constexpr std::size_t lengthIndex(std::initializer_list<ParameterKind> kinds)
{
    const std::size_t count = kinds.size();
    std::size_t between = count;
    std::size_t behind = count;
    bool pointerSeen = false;
    for (std::size_t i = 0; i < count; ++i) {
        const ParameterKind kind = kinds.begin()[i];
        if (kind == ParameterKind::pointer) {
            pointerSeen = true;
            if (behind < between)
                between = behind;
            behind = count;
        } else if (kind == ParameterKind::integer && pointerSeen && behind == count) {
            behind = i;
        }
    }
    return between == count ? behind : (behind == count ? between : count);
}

/// A function of any signature.
struct AnyFunction {
    void (*function)();
    int (*thunk)(void (*function)(), const Slot* arguments);
};

template <class Result, class... Parameters>
AnyFunction erase(Result (*function)(Parameters...))
{
    return {reinterpret_cast<void (*)()>(function), [](void (*f)(), const Slot* arguments) {
                return [&]<std::size_t... K>(std::index_sequence<K...>)
                {
                    return static_cast<int>(
                        reinterpret_cast<Result (*)(Parameters...)>(f)(arguments[K].as<Parameters>()...));
                }
                (std::index_sequence_for<Parameters...>{});
            }};
}

void runChecks(AnyFunction function, std::initializer_list<AnyArgument> arguments, const ChecksOptions& options);

/// The placeholders that a signature suggests: pointers are arrays, one int is the length, the rest is zero.
void runChecks(AnyFunction function, std::initializer_list<ParameterKind> kinds, const ChecksOptions& options);

} // namespace detail

template <class Result, class... Parameters, class... Arguments>
void expectChecks(Result (*function)(Parameters...), const ChecksOptions& options = {}, const Arguments&... arguments)
{
    static_assert(sizeof...(Arguments) == 0 || sizeof...(Arguments) == sizeof...(Parameters),
                  "one placeholder or value for each parameter, or none at all");
    if constexpr (sizeof...(Arguments) == 0) {
        static_assert(detail::lengthIndex({detail::parameterKind<Parameters>...}) < sizeof...(Parameters),
                      "the signature does not tell which int is the length: name the arguments");
        detail::runChecks(detail::erase(function), {detail::parameterKind<Parameters>...}, options);
    } else {
        detail::runChecks(detail::erase(function), {detail::describe<Parameters>(arguments)...}, options);
    }
}

} // namespace tarn::test
