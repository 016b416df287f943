// Arrays for tests whose surroundings are watched: an unmapped page, or red zones, directly beside the elements.
//
//     GuardedArray<Tarn16s> dst(len, Placement::atEnd());     // touching dst[len] is a fault
//     GuardedArray<Tarn16s> src(len, Placement::offset(3));   // 3 bytes above a 16-byte boundary: an odd address
//     src.set(0, 7);                                          // never assumes alignment
//     tarnsCopy_16s(src.data(), dst.data(), len);
//     dst.checkRedZones();                                    // also done by the destructor
#pragma once

#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <vector>

namespace tarn::test {

/// Where an array lies between the two unmapped pages around it.
struct Placement {
    enum class Kind : unsigned char { offset, atEnd, atStart };

    Kind kind = Kind::offset;
    unsigned bytes = 0;

    /// `bytes` (0 to 63) above a 64-byte boundary, red zones on both sides.
    static constexpr Placement offset(unsigned bytes) { return {Kind::offset, bytes}; }
    /// The last byte lies `gap` bytes before an unmapped page.
    static constexpr Placement atEnd(unsigned gap = 0) { return {Kind::atEnd, gap}; }
    /// The first byte lies `gap` bytes behind an unmapped page.
    static constexpr Placement atStart(unsigned gap = 0) { return {Kind::atStart, gap}; }

    friend bool operator==(const Placement&, const Placement&) = default;
};

std::string toString(Placement placement);

/// Raw bytes between guards. The mappings are pooled: making one costs about as much as painting its zones.
class GuardedBytes {
public:
    /// Watched bytes on each side, less where an unmapped page comes first.
    static constexpr std::size_t zoneBytes = 192;

    GuardedBytes(std::size_t size, Placement placement);
    ~GuardedBytes();
    GuardedBytes(const GuardedBytes&) = delete;
    GuardedBytes& operator=(const GuardedBytes&) = delete;

    unsigned char* bytes() const { return start; }
    std::size_t byteSize() const { return size; }
    Placement placement() const { return where; }

    /// Empty if both zones are whole; else which byte, counted from the array's start, was overwritten.
    std::string redZoneDamage() const;
    /// A test failure if a zone is damaged. Damage is reported once.
    void checkRedZones();
    /// Paints the zones again, after damage that a test made on purpose.
    void repairRedZones();

    /// Fills the elements with a pattern that depends on the position, so that an unwritten element is told from a
    /// written one.
    void fillPattern();

private:
    unsigned char* mapping = nullptr;
    std::size_t mappedBytes = 0;
    unsigned char* start = nullptr;
    std::size_t size = 0;
    std::size_t zoneBefore = 0;
    std::size_t zoneBehind = 0;
    Placement where;
    bool reported = false;
};

/// `len` elements of T between guards, initially the pattern of fillPattern().
template <class T>
class GuardedArray : public GuardedBytes {
public:
    explicit GuardedArray(std::size_t len, Placement placement = Placement::offset(0))
        : GuardedBytes(len * sizeof(T), placement)
    {
        fillPattern();
    }
    GuardedArray(std::span<const T> values, Placement placement) : GuardedBytes(values.size_bytes(), placement)
    {
        assign(values);
    }

    std::size_t size() const { return byteSize() / sizeof(T); }
    /// May be misaligned for T: pass it on, do not dereference it.
    T* data() const { return static_cast<T*>(static_cast<void*>(bytes())); }

    T get(std::size_t i) const
    {
        T value;
        std::memcpy(&value, bytes() + i * sizeof(T), sizeof(T));
        return value;
    }
    void set(std::size_t i, T value) { std::memcpy(bytes() + i * sizeof(T), &value, sizeof(T)); }

    void assign(std::span<const T> values)
    {
        if (!values.empty())
            std::memcpy(bytes(), values.data(), values.size_bytes());
    }
    std::vector<T> copy() const
    {
        std::vector<T> values(size());
        if (!values.empty())
            std::memcpy(values.data(), bytes(), byteSize());
        return values;
    }
};

/// An address whose page cannot be read or written, 16-byte aligned: for calls that must not look at an array.
void* unreadableBytes();
template <class T>
T* unreadable()
{
    return static_cast<T*>(unreadableBytes());
}

} // namespace tarn::test
