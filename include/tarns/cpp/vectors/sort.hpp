// Written by scripts/cpp-face from <tarns/sort.h>; changes go there. Every function calls one of the C interface, whose
// documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Sorts an array in place, from the smallest to the largest.
inline Warning sortAscend(std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsSortAscend_8u_I, srcDst, detail::length);
}
inline Warning sortAscend(std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsSortAscend_16s_I, srcDst, detail::length);
}
inline Warning sortAscend(std::span<std::int32_t> srcDst)
{
    return detail::call(tarnsSortAscend_32s_I, srcDst, detail::length);
}
inline Warning sortAscend(std::span<float> srcDst)
{
    return detail::call(tarnsSortAscend_32f_I, srcDst, detail::length);
}
inline Warning sortAscend(std::span<double> srcDst)
{
    return detail::call(tarnsSortAscend_64f_I, srcDst, detail::length);
}

// Sorts an array in place, from the largest to the smallest.
inline Warning sortDescend(std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsSortDescend_8u_I, srcDst, detail::length);
}
inline Warning sortDescend(std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsSortDescend_16s_I, srcDst, detail::length);
}
inline Warning sortDescend(std::span<std::int32_t> srcDst)
{
    return detail::call(tarnsSortDescend_32s_I, srcDst, detail::length);
}
inline Warning sortDescend(std::span<float> srcDst)
{
    return detail::call(tarnsSortDescend_32f_I, srcDst, detail::length);
}
inline Warning sortDescend(std::span<double> srcDst)
{
    return detail::call(tarnsSortDescend_64f_I, srcDst, detail::length);
}

} // namespace tarns
