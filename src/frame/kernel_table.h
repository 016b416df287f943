// Tables of scaled kernels that need no names of their own.
#pragma once

#include "frame/kernels.h"

namespace tarn {

// The five kernels of Cases, carried through the shape that the table's type stands for.
template <typename Cases, typename... Args>
constexpr void fillTable(ScaledKernels<Args...>& table)
{
    table.plain = [](Args... args) { apply(typename Cases::Plain{}, args...); };
    table.one = [](Args... args) { apply(typename Cases::One{}, args...); };
    table.pos = [](Args... args, int scaleFactor) { apply(typename Cases::Pos{scaleFactor}, args...); };
    table.neg = [](Args... args, int shift) { apply(typename Cases::Neg{shift}, args...); };
    table.bound = [](Args... args) { apply(typename Cases::Sign{}, args...); };
}

template <typename Table, typename Cases>
constexpr Table tableOf(ScaleLimits limits)
{
    Table table{limits, {}, {}, {}, {}, {}};
    fillTable<Cases>(table);
    return table;
}

} // namespace tarn
