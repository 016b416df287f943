// Walks for what is quick as long as all operands are ordinary, and shows in its own intermediate values that one of
// them was not: no comparison is made of the operands themselves.
//
//     i = walkOrdinary<16>(pDst, 0, len, Quotients{}, pSrc1, pSrc2);      // whole blocks; the rest is the caller's
//
// The operation has two members: ordinary(doubts, x...), which notes values whose sign is set if an operand was rare,
// and rare(x...), which is taken for the whole block then. Sources are read before anything of a block is written, so
// that each may be the destination.
#pragma once

#include "frame/simd_sign.h"
#include "frame/walk.h"

namespace tarn {

// The signs of all values noted: gathered where a block has several registers, looked at at once where one is wide.
class Doubts {
public:
    template <typename X>
    TARN_INLINE void note(X x)
    {
        if constexpr (WideRegister<X>) {
            seen |= AnySign::of(x);
        } else if constexpr (X::size > registerLanes<Tarn32f>) {
            note(lowHalf(x));
            note(highHalf(x));
        } else {
            signs = FloatBits::either(signs, x);
        }
    }

    TARN_INLINE bool any() const { return seen || AnySign::of(signs); }

private:
    Register<Tarn32f> signs = splat<Register<Tarn32f>>(0);
    bool seen = false;
};

template <int block, typename Destination, typename Operation, typename... S>
[[gnu::noinline, gnu::cold]] void takeAsRare(Destination dst, const Operation& operation, S... src)
{
    store(dst, operation.rare(loadPack<block>(src)...));
}

// The blocks from i to `end`; answers where they stop.
template <int block, typename Destination, typename Operation, typename... S>
TARN_INLINE Index walkOrdinary(Destination dst, Index i, Index end, const Operation& operation, S... src)
{
    for (; i <= end - block; i += block) {
        Doubts doubts;
        const auto y = operation.ordinary(doubts, loadPack<block>(src + i)...);
        if (doubts.any()) [[unlikely]] {
            takeAsRare<block>(dst + i, operation, (src + i)...);
        } else {
            store(dst + i, y);
        }
    }
    return i;
}

} // namespace tarn
