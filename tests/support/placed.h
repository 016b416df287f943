// Runs a reduction at every alignment that it can tell apart: results that depend on the address are compared with a
// model that is told the address.
//
//     atOffsets<Tarn32f>(values, lengths({16, 32768}), [](const Tarn32f* p, std::span<const Tarn32f> x, unsigned
//     offset) { ... });
#pragma once

#include "support/guarded.h"

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <vector>

namespace tarn::test {

/// `body(p, x, offset)` with an array at p, `offset` bytes past a 64-byte boundary, that holds x: a window of `values`
/// that differs from length to length. Offsets are 0 to 31 for short arrays, every fifth for longer ones.
template <class T, class Body>
void atOffsets(const std::vector<T>& values, const std::vector<int>& lengthsToTry, Body&& body)
{
    constexpr int longest = 80;
    unsigned turn = 0;
    for (int len : lengthsToTry) {
        const auto count = static_cast<std::size_t>(len);
        if (count > values.size())
            continue;
        for (unsigned offset = 0; offset<32; offset += len> longest ? 5 : 1) {
            const std::size_t first = (turn++ * 7) % (values.size() - count + 1);
            const std::span<const T> x(values.data() + first, count);
            // Aligned places take their turn among the longer ones as well.
            const unsigned place = len > longest && turn % 3 == 0 ? 16 * (turn % 2) : offset;
            const GuardedArray<T> array(x, Placement::offset(place));
            SCOPED_TRACE("len " + std::to_string(len) + " at offset " + std::to_string(place));
            body(array.data(), x, place);
            if (::testing::Test::HasFailure())
                return;
        }
    }
}

} // namespace tarn::test
