// Proof that a word of the vocabulary gives an element and a vector the same bits.
//
//     expectAgreement<Tarn16s, Tarn16s>(addSaturated);                               // over pairs of hard values
//     expectAgreement<Tarn32s>([](auto x) { return shiftLeft(x, 5); });
//     expectAgreement<Tarn32f, Tarn32f>(greater);                                    // bool against mask
//
// The word is called with elements, with packs of as many elements as one register, the widest vector and two of them
// hold of the narrowest operand. NaNs count as equal whatever their payload: which of two operands hands its payload on
// is up to the order in which the compiler names them.
#pragma once

#include "frame/simd.h"
#include "support/columns.h"
#include "support/compare.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>
#include <vector>

namespace tarn::test {

namespace detail {

/// The element that a vector's lane should hold where the element word gave `x`: a mask has all its bits set or none.
template <class Lane, class Result>
Lane laneOf(Result x)
{
    if constexpr (std::is_same_v<Result, bool>) {
        Lane lane;
        std::memset(&lane, x ? 0xFF : 0, sizeof lane);
        return lane;
    } else {
        static_assert(std::is_same_v<Lane, Result>, "a word gives elements and packs the same type");
        return x;
    }
}

template <int N, class... T, class WordType, std::size_t... K>
void expectAgreementAt(const WordType& word, const Columns<T...>& columns, std::size_t first, std::index_sequence<K...>)
{
    const auto pack = word(loadPack<N>(std::get<K>(columns).data() + first)...);
    using Lane = Element<std::remove_const_t<decltype(pack)>>;
    static_assert(std::remove_const_t<decltype(pack)>::size == N);
    Lane actual[N];
    store(actual, pack);
    Lane expected[N];
    for (std::size_t i = 0; i < N; ++i)
        expected[i] = laneOf<Lane>(word(std::get<K>(columns)[first + i]...));
    if (std::memcmp(expected, actual, sizeof actual) == 0)
        return;
    constexpr bool isMask = std::is_same_v<decltype(word(std::declval<T>()...)), bool>;
    EXPECT_TRUE(arraysMatch<Lane>(expected, actual, N, {.nan = isMask ? NanRule::sameBits : NanRule::anyNan}))
        << "operands from " << first;
}

} // namespace detail

template <class... T, class WordType>
void expectAgreement(const WordType& word)
{
    constexpr int step = std::max({lanes<T>...});
    static const auto columns = makeColumns<T...>(Values::mixed, 2 * step);
    const std::size_t count = std::get<0>(columns).size();
    for (std::size_t first = 0; first + 2 * step <= count; first += step) {
        detail::expectAgreementAt<std::max({registerLanes<T>...}), T...>(word, columns, first,
                                                                         std::index_sequence_for<T...>{});
        detail::expectAgreementAt<step, T...>(word, columns, first, std::index_sequence_for<T...>{});
        detail::expectAgreementAt<2 * step, T...>(word, columns, first, std::index_sequence_for<T...>{});
        if (::testing::Test::HasFailure())
            return;
    }
}

} // namespace tarn::test
