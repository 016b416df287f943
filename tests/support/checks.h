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

#include "support/guarded.h"
#include "tarncore.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <tuple>
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

/// One way to spoil one argument.
struct Fault {
    std::string text;
    int status;
    Check check;
    bool last = false; ///< comes behind all the other checks
    std::size_t argument;
    std::function<void()> apply;
    std::function<void()> undo;
};

struct ChecksRun {
    const ChecksOptions& options;
    std::vector<Fault> faults;
    std::vector<std::unique_ptr<GuardedBytes>> buffers;
    std::function<int()> call;

    void* newBuffer();
    void run();
    void expectStatus(int status, const std::string& faultsText);
};

/// What a placeholder is when the function is called.
template <class Parameter, class Argument>
void prepare(ChecksRun& run, std::size_t index, Parameter& value, const Argument& argument)
{
    const std::string where = "argument " + std::to_string(index);
    auto addFault = [&](const std::string& text, int status, Check check, Parameter bad, bool last = false) {
        run.faults.push_back({where + text, status, check, last, index, [&value, bad] { value = bad; },
                              [&value, good = value] { value = good; }});
    };
    if constexpr (std::is_same_v<Argument, ArrayArgument>) {
        value = static_cast<Parameter>(run.newBuffer());
        addFault(" null", run.options.pointerStatus, Check::pointer, nullptr);
    } else if constexpr (std::is_same_v<Argument, LengthArgument>) {
        value = static_cast<Parameter>(argument.good);
        const int status = argument.status != 0 ? argument.status : run.options.lengthStatus;
        for (int bad : {0, -1, INT_MIN})
            addFault(" = " + std::to_string(bad), status, Check::length, static_cast<Parameter>(bad));
        for (int bad : run.options.wrappedLengths)
            addFault(" = " + std::to_string(bad), status, Check::length, static_cast<Parameter>(bad), true);
    } else if constexpr (requires { argument.pointer; }) {
        value = argument.pointer;
        addFault(" null", run.options.pointerStatus, Check::pointer, nullptr);
    } else if constexpr (requires { argument.bad; }) {
        value = static_cast<Parameter>(argument.good);
        for (const auto& bad : argument.bad)
            addFault(" a bad parameter", argument.status, Check::parameter, static_cast<Parameter>(bad));
    } else {
        value = static_cast<Parameter>(argument);
    }
}

/// Where the length stands in a signature: the first int behind the last pointer, or between pointers if none is
/// behind. None (the number of parameters) if there are both, since one of them may be a constant or a further
/// parameter.
template <class... Parameters>
constexpr std::size_t lengthIndex()
{
    constexpr std::size_t count = sizeof...(Parameters);
    constexpr bool isPointer[] = {std::is_pointer_v<Parameters>...};
    constexpr bool isInt[] = {std::is_same_v<Parameters, int>...};
    std::size_t between = count;
    std::size_t behind = count;
    bool pointerSeen = false;
    for (std::size_t i = 0; i < count; ++i) {
        if (isPointer[i]) {
            pointerSeen = true;
            if (behind < between)
                between = behind;
            behind = count;
        } else if (isInt[i] && pointerSeen && behind == count) {
            behind = i;
        }
    }
    return between == count ? behind : (behind == count ? between : count);
}

/// The placeholders that a signature suggests: pointers are arrays, one int is the length, the rest is zero.
template <class... Parameters>
void prepareFromSignature(ChecksRun& run, std::tuple<Parameters...>& values)
{
    static_assert(lengthIndex<Parameters...>() < sizeof...(Parameters),
                  "the signature does not tell which int is the length: name the arguments");
    std::size_t index = 0;
    auto one = [&]<class Parameter>(Parameter& value) {
        if constexpr (std::is_pointer_v<Parameter>)
            prepare(run, index, value, array);
        else if constexpr (std::is_same_v<Parameter, int>)
            if (index == lengthIndex<Parameters...>())
                prepare(run, index, value, length);
        ++index;
    };
    std::apply([&](auto&... value) { (one(value), ...); }, values);
}

} // namespace detail

template <class Result, class... Parameters, class... Arguments>
void expectChecks(Result (*function)(Parameters...), const ChecksOptions& options = {}, const Arguments&... arguments)
{
    static_assert(sizeof...(Arguments) == 0 || sizeof...(Arguments) == sizeof...(Parameters),
                  "one placeholder or value for each parameter, or none at all");
    detail::ChecksRun run{options, {}, {}, {}};
    std::tuple<Parameters...> values{};
    if constexpr (sizeof...(Arguments) == 0) {
        detail::prepareFromSignature(run, values);
    } else {
        [&]<std::size_t... K>(std::index_sequence<K...>)
        {
            (detail::prepare(run, K, std::get<K>(values), arguments), ...);
        }
        (std::index_sequence_for<Arguments...>{});
    }
    run.call = [&] { return static_cast<int>(std::apply(function, values)); };
    run.run();
}

} // namespace tarn::test
