// The operand values of a sweep: one vector for each operand, all of one length, so that hard values meet hard values.
//
//     auto columns = makeColumns<Tarn16s, Tarn16s>();
//     for (Tarn16s& divisor : std::get<1>(columns))
//         if (divisor == 0)
//             divisor = 1;
//     sweepElementwise<Tarn16s, Tarn16s, Tarn16s>(call, model, {}, columns);
#pragma once

#include "support/hard_values.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarn::test {

template <class... Src>
using Columns = std::tuple<std::vector<Src>...>;

namespace detail {

/// Two operands of 8 bits, or one of 16, have so many values; more than any list of hard ones.
constexpr std::size_t everyValue = 65536;
constexpr std::size_t mostHardPairs = 4096;
constexpr std::size_t randomValuesBehind = 2048;

/// Pairs of hard values, evenly thinned out where there are too many.
template <class First, class Second>
void makeHardPairs(std::vector<First>& first, std::vector<Second>& second)
{
    const std::vector<First>& a = hardValues<First>();
    const std::vector<Second>& b = hardValues<Second>();
    const std::size_t pairs = a.size() * b.size();
    const std::size_t count = std::min(pairs, mostHardPairs);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t pair = i * pairs / count;
        first.push_back(a[pair / b.size()]);
        // Turned by one for each row, so that thinning out does not keep to a few columns.
        second.push_back(b[(pair + pair / b.size()) % b.size()]);
    }
}

/// Two operands: every pair of bytes, else hard ones.
template <class First, class Second>
void makePairs(std::vector<First>& first, std::vector<Second>& second)
{
    if constexpr (sizeof(First) == 1 && sizeof(Second) == 1) {
        for (std::size_t bits = 0; bits < everyValue; ++bits) {
            first.push_back(static_cast<First>(bits / 256));
            second.push_back(static_cast<Second>(bits % 256));
        }
    } else {
        makeHardPairs(first, second);
    }
}

template <class T>
void makeSingles(std::vector<T>& values)
{
    if constexpr (std::is_integral_v<T> && sizeof(T) <= 2) {
        for (unsigned bits = 0; bits < (1U << (8 * sizeof(T))); ++bits)
            values.push_back(static_cast<T>(bits));
    } else {
        values = hardValues<T>();
    }
}

} // namespace detail

/// Columns for operands of the given types. One integer operand of up to 16 bits, and two of 8 bits, take every value
/// there is; else hard values meet each other and random ones follow. Values::unit and Values::random leave out the
/// hard ones. At least `atLeast` values long.
template <class... Src>
Columns<Src...> makeColumns(Values kind = Values::mixed, std::size_t atLeast = 0, std::uint64_t seed = 1)
{
    Columns<Src...> columns;
    if (kind == Values::mixed || kind == Values::hard) {
        if constexpr (sizeof...(Src) == 1)
            detail::makeSingles(std::get<0>(columns));
        else if constexpr (sizeof...(Src) == 2)
            detail::makePairs(std::get<0>(columns), std::get<1>(columns));
    }
    auto extend = [&](auto& values, std::uint64_t column) {
        using T = typename std::remove_cvref_t<decltype(values)>::value_type;
        constexpr bool oneByte = sizeof...(Src) == 1 && std::is_integral_v<T> && sizeof(T) == 1;
        const bool complete = values.size() == detail::everyValue || (oneByte && !values.empty());
        Random random(seed * 16 + column);
        std::size_t len = values.size() + (complete ? 0 : detail::randomValuesBehind);
        if (sizeof...(Src) > 2)
            len += detail::mostHardPairs;
        len = std::max(len, atLeast);
        values.reserve(len);
        while (values.size() < len)
            values.push_back(randomValue<T>(random, kind));
    };
    [&]<std::size_t... K>(std::index_sequence<K...>) { (extend(std::get<K>(columns), K), ...); }
    (std::index_sequence_for<Src...>{});
    return columns;
}

/// One part in `parts` of columns that hold every value there is, from `turn` on, behind the hard values: what a sweep
/// takes that is one of many. As many turns see every value; 17 parts cross the rows of pairs.
template <class... Src>
Columns<Src...> thinnedColumns(const Columns<Src...>& all, std::size_t turn)
{
    constexpr std::size_t parts = 17;
    Columns<Src...> columns;
    if constexpr (sizeof...(Src) == 1)
        std::get<0>(columns) = hardValues<Src...>();
    else if constexpr (sizeof...(Src) == 2)
        detail::makeHardPairs(std::get<0>(columns), std::get<1>(columns));
    const auto thin = [turn](const auto& values, auto& part) {
        for (std::size_t i = turn % parts; i < values.size(); i += parts)
            part.push_back(values[i]);
    };
    [&]<std::size_t... K>(std::index_sequence<K...>) { (thin(std::get<K>(all), std::get<K>(columns)), ...); }
    (std::index_sequence_for<Src...>{});
    return columns;
}

} // namespace tarn::test
