// The creation of objects of power-of-two transforms, of floats and of integers.
#pragma once

#include "frame/spec.h"

namespace tarn::fft {

// Makes an object of a length of 2^order that build(object) completes, order and hint being there.
template <typename Object, typename Build>
inline TarnStatus createForOrder(Object** ppSpec, int order, TarnHintAlgorithm hint, Build build)
{
    constexpr int largestOrder = 30;
    if (ppSpec == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (order < 0 || order > largestOrder) {
        return tarnStsFftOrderErr;
    }
    return createSpec(ppSpec, [=](Object& object) {
        object.order = order;
        object.hint = hint;
        return build(object);
    });
}

} // namespace tarn::fft
