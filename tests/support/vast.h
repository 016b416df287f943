// Arrays that take gigabytes of addresses and hardly any memory.
//
//     VastArray dst(std::size_t{5} << 30);
//     if (!dst.mapped()) ...                           // not enough addresses
//     Tarn64f* p = dst.endingWith<Tarn64f>(len);       // p[len] is a fault
//
// The first and the last `edgeBytes` of what is mapped have memory of their own; everything between them shows the same
// few pages over and over. So a test can tell what was written at the ends, and that every element between them got the
// same value.
#pragma once

#include <cstddef>

namespace tarn::test {

class VastArray {
public:
    /// What is different at either end.
    static constexpr std::size_t edgeBytes = std::size_t{64} << 10;

    /// After so many bytes the pages between the edges come again: the second-level cache holds them, and the kernel's
    /// limit of 65,530 mappings is far.
    static constexpr std::size_t repeatedBytes = std::size_t{512} << 10;

    explicit VastArray(std::size_t bytes);
    ~VastArray();
    VastArray(const VastArray&) = delete;
    VastArray& operator=(const VastArray&) = delete;

    /// False if there are not so many addresses in one piece.
    bool mapped() const { return start != nullptr; }
    std::size_t byteSize() const { return size; }

    /// An array of so many elements that ends where an unmapped page begins.
    template <class T>
    T* endingWith(std::size_t len) const
    {
        return static_cast<T*>(static_cast<void*>(start + (size - len * sizeof(T))));
    }

private:
    unsigned char* start = nullptr;
    std::size_t size = 0;
    unsigned char* reserved = nullptr;
    std::size_t reservedBytes = 0;
};

} // namespace tarn::test
