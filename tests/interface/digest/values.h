// Arrays and numbers by the name of their type, and the hash that sums up what functions made of them.
#pragma once

#include "support/hard_values.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarn::test::digest {

/// A real type of the library, told at run time.
enum class Real { u8, s8, u16, s16, u32, s32, s64, f32, f64 };

/// An element: one real or, if complex, two.
struct Element {
    Real real;
    int parts;

    std::size_t size() const;
};

/// Nothing for a type that is no element.
std::optional<Element> elementOf(const std::string& type);

void fill(std::byte* memory, Element element, std::size_t count, Random& random, Values kind);
void sortAscending(std::byte* memory, Element element, std::size_t count);
/// A number between the two, the upper one excluded; integers are cut off.
void putBetween(std::byte* memory, Element element, double low, double high, Random& random);

/// 64 bits over everything that was added.
class Hash {
public:
    void add(std::uint64_t word)
    {
        value = (value ^ word) * 0x9E3779B97F4A7C15u;
        value ^= value >> 32;
    }
    void add(std::string_view text);
    /// All NaN count as one: which of two NaN survives an operation, and with which sign, is left to processor and
    /// compiler.
    void add(const std::byte* memory, Element element, std::size_t count);

    std::uint64_t get() const { return value; }

private:
    std::uint64_t value = 0xCBF29CE484222325u;
};

} // namespace tarn::test::digest
