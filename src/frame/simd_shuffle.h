// Shuffles of registers wider than the narrowest, in the compiler's own notation: where each element of the result
// comes from, counted through both operands. The narrowest register's shuffles stand with their words, by the
// instructions that they are.
#pragma once

#include "frame/simd_native.h"

#include <cstdint>
#include <type_traits>
#include <utility>

namespace tarn::native {

template <int bytes>
using IntegerOf = std::conditional_t<
    bytes == 8, std::int64_t,
    std::conditional_t<bytes == 4, std::int32_t, std::conditional_t<bytes == 2, std::int16_t, std::int8_t>>>;

// The elements, of so many bytes each, in an order: Order::at(i, n) tells for place i of n.
template <int bytes, typename Order, typename V>
    requires(bytes <= 8)
TARN_INLINE V shuffle(V a, V b)
{
    using Integer = IntegerOf<bytes>;
    typedef Integer Lanes __attribute__((vector_size(sizeof(V))));
    constexpr int n = static_cast<int>(sizeof(V)) / bytes;
    return [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline))
    {
        return reinterpret_cast<V>(__builtin_shufflevector(reinterpret_cast<Lanes>(a), reinterpret_cast<Lanes>(b),
                                                           std::integral_constant<int, Order::at(i, n)>::value...));
    }
    (std::make_integer_sequence<int, n>{});
}
// An order of elements of 16 bytes, by their halves.
template <typename Order>
struct InHalves {
    static constexpr int at(int i, int n) { return 2 * Order::at(i / 2, n / 2) + i % 2; }
};
template <int bytes, typename Order, typename V>
    requires(bytes == 16)
TARN_INLINE V shuffle(V a, V b) { return shuffle<8, InHalves<Order>>(a, b); }
template <int bytes, typename Order, typename V>
TARN_INLINE V shuffle(V x)
{
    return shuffle<bytes, Order>(x, x);
}

// a0 b0 a1 b1 ... of the lower halves, and of the upper halves.
struct ZipLow {
    static constexpr int at(int i, int n) { return i / 2 + i % 2 * n; }
};
struct ZipHigh {
    static constexpr int at(int i, int n) { return ZipLow::at(i, n) + n / 2; }
};
// The elements at even places of two, and those at odd ones.
struct Even {
    static constexpr int at(int i, int /*n*/) { return 2 * i; }
};
struct Odd {
    static constexpr int at(int i, int /*n*/) { return 2 * i + 1; }
};
// The lower halves of two, and the upper halves.
struct LowHalves {
    static constexpr int at(int i, int n) { return i < n / 2 ? i : i + n / 2; }
};
struct HighHalves {
    static constexpr int at(int i, int n) { return LowHalves::at(i, n) + n / 2; }
};
struct Backward {
    static constexpr int at(int i, int n) { return n - 1 - i; }
};
// Neighbours exchanged; the even one in both places; the odd one there.
struct Exchanged {
    static constexpr int at(int i, int /*n*/) { return i ^ 1; }
};
struct EvenTwice {
    static constexpr int at(int i, int /*n*/) { return i & ~1; }
};
struct OddTwice {
    static constexpr int at(int i, int /*n*/) { return i | 1; }
};
// The bytes of each element.
template <int bytes>
struct BytesBackward {
    static constexpr int at(int i, int /*n*/) { return i / bytes * bytes + bytes - 1 - i % bytes; }
};
// What lies in groups of 16 bytes of two operands, group by group in turn, brought into order: the results of
// instructions that work within each 16 bytes and join two operands, which are units of 8 bytes from either.
struct InLanesToOrder {
    static constexpr int at(int i, int n) { return i < n / 2 ? 2 * i : 2 * i + 1 - n; }
};

} // namespace tarn::native
