// Tables of scaled kernels that need no names of their own.
#pragma once

#include "frame/kernels.h"

namespace tarn {

// The table with the five kernels of Cases, in the shape that its type stands for.
template <typename Cases, typename... Args>
constexpr ScaledKernels<Args...> tabulate(const ScaledKernels<Args...>&, ScaleLimits limits)
{
    return {limits,
            [](Args... args) { apply(typename Cases::Plain{}, args...); },
            [](Args... args) { apply(typename Cases::One{}, args...); },
            [](Args... args, int scaleFactor) { apply(typename Cases::Pos{scaleFactor}, args...); },
            [](Args... args, int shift) { apply(typename Cases::Neg{shift}, args...); },
            [](Args... args) { apply(typename Cases::Sign{}, args...); }};
}

template <typename Table, typename Cases>
constexpr Table tableOf(ScaleLimits limits)
{
    return tabulate<Cases>(Table{}, limits);
}

} // namespace tarn
