// What the test support has to know of an element type: its parts, its bits, its text.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <type_traits>

namespace tarn::test {

/// A record of two equal reals, `re` then `im`.
template <class T>
concept ComplexElement = requires(T value)
{
    value.re;
    value.im;
    requires std::is_arithmetic_v<decltype(value.re)>;
    requires sizeof(T) == 2 * sizeof(value.re);
};

template <ComplexElement T>
using RealOf = decltype(T::re);

/// Three consecutive bytes, low byte first: the storage form `24u` and `24s`, for sweeps of functions that take them as
/// `Tarn8u*`. Cast the pointers in the call: `reinterpret_cast<const Tarn8u*>(src)`.
struct Bytes24 {
    unsigned char bytes[3];

    friend bool operator==(const Bytes24&, const Bytes24&) = default;
};
static_assert(sizeof(Bytes24) == 3);

/// The unsigned type of the same size as a real element.
template <class T>
using BitsOf = std::conditional_t<sizeof(T) == 1, std::uint8_t,
                                  std::conditional_t<sizeof(T) == 2, std::uint16_t,
                                                     std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>>>;

/// The element as text for a failure message: the value, and for floats the bits.
template <class T>
std::string toText(const T& value)
{
    if constexpr (ComplexElement<T>) {
        return "(" + toText(value.re) + ", " + toText(value.im) + ")";
    } else if constexpr (std::is_floating_point_v<T>) {
        BitsOf<T> bits;
        std::memcpy(&bits, &value, sizeof bits);
        char text[80];
        std::snprintf(text, sizeof text, "%.*g [0x%0*llx]", sizeof(T) == 4 ? 9 : 17, static_cast<double>(value),
                      static_cast<int>(2 * sizeof(T)), static_cast<unsigned long long>(bits));
        return text;
    } else if constexpr (std::is_integral_v<T>) {
        return std::to_string(value);
    } else {
        std::string text = "bytes";
        unsigned char bytes[sizeof(T)];
        std::memcpy(bytes, &value, sizeof bytes);
        for (unsigned char byte : bytes) {
            char hex[8];
            std::snprintf(hex, sizeof hex, " %02x", byte);
            text += hex;
        }
        return text;
    }
}

} // namespace tarn::test
