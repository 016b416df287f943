#include "interface/digest/values.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarn::test::digest {
namespace {

/// Calls f with a value of the type.
template <class F>
decltype(auto) withType(Real real, F f)
{
    switch (real) {
    case Real::u8:
        return f(std::uint8_t{});
    case Real::s8:
        return f(std::int8_t{});
    case Real::u16:
        return f(std::uint16_t{});
    case Real::s16:
        return f(std::int16_t{});
    case Real::u32:
        return f(std::uint32_t{});
    case Real::s32:
        return f(std::int32_t{});
    case Real::s64:
        return f(std::int64_t{});
    case Real::f32:
        return f(float{});
    default:
        return f(double{});
    }
}

} // namespace

std::size_t Element::size() const
{
    return static_cast<std::size_t>(parts) * withType(real, [](auto zero) { return sizeof zero; });
}

std::optional<Element> elementOf(const std::string& type)
{
    static const std::pair<std::string, Real> reals[] = {
        {"Tarn8u", Real::u8},   {"Tarn8s", Real::s8},   {"Tarn16u", Real::u16},      {"Tarn16s", Real::s16},
        {"Tarn32u", Real::u32}, {"Tarn32s", Real::s32}, {"Tarn64s", Real::s64},      {"Tarn32f", Real::f32},
        {"Tarn64f", Real::f64}, {"int", Real::s32},     {"unsigned int", Real::u32},
    };
    for (const auto& [name, real] : reals) {
        if (type == name)
            return Element{real, 1};
        if (type == name + "c")
            return Element{real, 2};
    }
    return std::nullopt;
}

void fill(std::byte* memory, Element element, std::size_t count, Random& random, Values kind)
{
    withType(element.real, [&](auto value) {
        for (std::size_t i = 0; i < count * static_cast<std::size_t>(element.parts); ++i) {
            value = randomValue<decltype(value)>(random, kind);
            std::memcpy(memory + i * sizeof value, &value, sizeof value);
        }
    });
}

void sortAscending(std::byte* memory, Element element, std::size_t count)
{
    withType(element.real, [&](auto zero) {
        std::vector<decltype(zero)> values(count);
        std::memcpy(values.data(), memory, count * sizeof zero);
        std::sort(values.begin(), values.end());
        std::memcpy(memory, values.data(), count * sizeof zero);
    });
}

void putBetween(std::byte* memory, Element element, double low, double high, Random& random)
{
    withType(element.real, [&](auto value) {
        for (int part = 0; part < element.parts; ++part) {
            using Limits = std::numeric_limits<decltype(value)>;
            const double number = low + (high - low) * random.unit();
            value = static_cast<decltype(value)>(
                std::clamp(number, static_cast<double>(Limits::lowest()), static_cast<double>(Limits::max())));
            std::memcpy(memory + static_cast<std::size_t>(part) * sizeof value, &value, sizeof value);
        }
    });
}

void Hash::add(std::string_view text)
{
    for (const char c : text)
        add(static_cast<std::uint64_t>(static_cast<unsigned char>(c)));
    add(text.size());
}

void Hash::add(const std::byte* memory, Element element, std::size_t count)
{
    withType(element.real, [&](auto value) {
        using T = decltype(value);
        constexpr std::uint64_t nan = 0x7FF8DEADu;
        for (std::size_t i = 0; i < count * static_cast<std::size_t>(element.parts); ++i) {
            std::memcpy(&value, memory + i * sizeof value, sizeof value);
            if constexpr (std::is_floating_point_v<T>) {
                BitsOf<T> bits;
                std::memcpy(&bits, &value, sizeof bits);
                add(value == value ? bits : nan);
            } else {
                add(static_cast<std::uint64_t>(value));
            }
        }
    });
}

} // namespace tarn::test::digest
