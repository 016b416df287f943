// Walks by position, for results that depend on where an element lies: whole groups by one formula, what is in front of
// them and what is left over by another.
#pragma once

#include "frame/walk.h"

namespace tarn {

// The boundary from which such groups are counted where they do not start with the array. It is part of the results,
// whatever the registers' width.
inline constexpr int groupBoundary = 16;

// dst[i] = grouped(src[i]...) for the whole groups of so many elements from `head` on, dst[i] = single(src[i]...) for
// the elements before and behind them. `grouped` is called with packs of exactly one group, so that it may decide by
// all elements of it; `single` with elements. A source may be the destination itself; elements are visited in order.
//
//     walkGroups<8>(pDst, len, 0, Quotients{}, Quotient{}, pSrc1, pSrc2);
//     walkGroups<4>(pDst, len, headOfGroups(pDst, len), ...);         // groups from a boundary on
//     walkGroups<8>(pDst, len, len < 32 ? len : 0, ...);              // short arrays have no groups
template <int group, typename Destination, typename Grouped, typename Single, typename... S>
TARN_INLINE void walkGroups(Destination dst, Index len, Index head, Grouped grouped, Single single, S... src)
{
    Index i = 0;
    Index elements = head;
    for (;;) {
        for (; i < elements; ++i) {
            store(dst + i, single(loadElement(src + i)...));
        }
        if (i >= len) {
            return;
        }
        for (; i <= len - group; i += group) {
            store(dst + i, grouped(loadPack<group>(src + i)...));
        }
        elements = len;
    }
}

// The elements before the first group where groups start on a boundary of the destination; none if no element does.
template <int boundary = groupBoundary, typename T>
TARN_INLINE Index headOfGroups(const T* dst, Index len)
{
    return std::min<Index>(len, elementsToBoundary<boundary>(dst));
}

} // namespace tarn
