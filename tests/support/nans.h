// Columns of NaNs, each with a payload that tells where it comes from, and sweeps that expect one and the same
// operand's at every place of an array.
#pragma once

#include "support/sweep.h"

#include <bit>

namespace tarn::test {

template <class T>
T quietNan(unsigned operand, unsigned part, std::size_t i)
{
    const unsigned payload = operand << 14 | part << 13 | static_cast<unsigned>(i % 0x2000);
    if constexpr (sizeof(T) == 4)
        return std::bit_cast<T>(0x7FC00000U | payload);
    else
        return std::bit_cast<T>(0x7FF8000000000000ULL | payload);
}

template <class T>
void fillWithNans(std::vector<T>& column, unsigned operand)
{
    for (std::size_t i = 0; i < column.size(); ++i) {
        if constexpr (requires { column[i].re; }) {
            using P = decltype(column[i].re);
            column[i] = {quietNan<P>(operand, 0, i), quietNan<P>(operand, 1, i)};
        } else {
            column[i] = quietNan<T>(operand, 0, i);
        }
    }
}

/// Columns that hold nothing but NaNs.
template <class... Src>
Columns<Src...> nanColumns()
{
    auto columns = makeColumns<Src...>(Values::random);
    std::apply([operand = 0U](auto&... column) mutable { (fillWithNans(column, ++operand), ...); }, columns);
    return columns;
}

/// `survivor(a, b)` is what is to come out, by its bits, of two operands that are NaNs; lengths at which a kernel takes
/// another road are swept too.
template <class T, class Call, class CallInPlace, class Survivor>
void sweepNans(Call call, CallInPlace callInPlace, Survivor survivor)
{
    const SweepOptions options{.thresholds = {32 * 16 / static_cast<int>(sizeof(T))},
                               .match = {.nan = NanRule::sameBits}};
    sweepElementwise<T, T, T>(call, survivor, options, nanColumns<T, T>());
    sweepInPlace<T, T>(callInPlace, survivor, options, nanColumns<T, T>());
}

/// The same of elements and a constant, `call(src, constant, dst, len)`.
template <class T, class Call, class Survivor>
void sweepNansWithConstant(Call call, Survivor survivor)
{
    std::vector<T> values(1);
    fillWithNans(values, 3);
    const T constant = values[0];
    sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return call(src, constant, dst, len); },
                           [&](T a) { return survivor(a, constant); }, {.match = {.nan = NanRule::sameBits}},
                           nanColumns<T>());
}

} // namespace tarn::test
