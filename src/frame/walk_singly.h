// A walk of one element at a time, for what is defined in precisions that no vector has and for loops that stand beside
// the vector ones.
#pragma once

#include "frame/reduce.h"

namespace tarn {

template <typename D, typename Operation, typename... S>
TARN_INLINE void walkSingly(D* dst, Index len, Operation operation, S... src)
{
    for (Index i = 0; i < len; ++i) {
        store(dst + i, operation(loadElement(src + i)...));
    }
}

} // namespace tarn
