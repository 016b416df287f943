// The checks of a front end, in the library's order: pointers, length, then what the family adds.
#pragma once

#include "tarncore.h"

namespace tarn {

// The status of the common checks; tarnStsNoErr if all is well. An alignment is never tested.
template <typename... T>
inline TarnStatus check(int len, const T*... pointers)
{
    if ((!pointers || ...)) {
        return tarnStsNullPtrErr;
    }
    if (len < 1) {
        return tarnStsSizeErr;
    }
    return tarnStsNoErr;
}

// A product of a length that wraps as the 32-bit registers of the interface do.
constexpr int wrappedProduct(int len, int factor)
{
    return static_cast<int>(static_cast<unsigned>(len) * static_cast<unsigned>(factor));
}

} // namespace tarn
