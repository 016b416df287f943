// Decisions read from a string of bytes, which a fuzzer changes or a generator makes. Behind its end all bytes are 0,
// so that every string is a program.
#pragma once

#include "interface/digest/values.h"
#include "support/guarded.h"
#include "support/hard_values.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace tarn::test::fuzz {

class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : next(data), end(data + size) {}

    bool empty() const { return next == end; }
    unsigned byte() { return empty() ? 0u : *next++; }
    bool flag() { return byte() % 2 != 0; }

    /// From `low` to `high`, both included; two bytes where one is too few.
    int between(int low, int high)
    {
        const unsigned values = static_cast<unsigned>(high - low) + 1;
        const unsigned first = byte();
        return low + static_cast<int>((values > 256 ? first << 8 | byte() : first) % values);
    }

    /// Mostly from the range, now and then any integer.
    int hostile(int low, int high)
    {
        if (byte() % 16 != 0)
            return between(low, high);
        return static_cast<int>(byte() << 24 | byte() << 16 | byte() << 8 | byte());
    }

    template <class T>
    T pick(std::initializer_list<T> list)
    {
        return list.begin()[byte() % list.size()];
    }

    /// A start for data, whose bits say nothing by themselves.
    Random random() { return Random(byte() << 8 | byte()); }

    /// The array ends at an unmapped page, or not far from it, or begins at one.
    Placement placement()
    {
        const unsigned where = byte();
        if (where % 8 < 5)
            return Placement::atEnd();
        return where % 8 == 5 ? Placement::atEnd(where / 16) : Placement::atStart(where / 8);
    }

private:
    const std::uint8_t* next;
    const std::uint8_t* end;
};

/// Elements of a type that is told at run time, between guards.
class Elements : public GuardedBytes {
public:
    Elements(digest::Element elementType, std::size_t elements, Bytes& bytes)
        : GuardedBytes(elements * elementType.size(), bytes.placement()), element(elementType), count(elements)
    {
        fillPattern();
    }

    void fill(Random& random, Values kind)
    {
        digest::fill(reinterpret_cast<std::byte*>(bytes()), element, count, random, kind);
    }
    /// Over the first so many; all NaN are one.
    std::uint64_t hash(std::size_t elements) const
    {
        digest::Hash sum;
        sum.add(reinterpret_cast<const std::byte*>(bytes()), element, elements);
        return sum.get();
    }
    std::uint64_t hash() const { return hash(count); }
    template <class T>
    T* as() const
    {
        return static_cast<T*>(static_cast<void*>(bytes()));
    }
    std::size_t size() const { return count; }

private:
    digest::Element element;
    std::size_t count;
};

/// Ends the program, as a fault of the library would, with the reason.
void require(bool condition, const char* reason);
/// Elements that were written beside an array are such a fault.
void requireWhole(const GuardedBytes& array);

} // namespace tarn::test::fuzz
