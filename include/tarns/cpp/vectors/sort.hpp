// Written by scripts/cpp-face from <tarns/sort.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Sorts an array in place, from the smallest to the largest.

/// tarnsSortAscend_8u_I
inline Warning sortAscend(std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortAscend_8u_I(detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSortAscend_16s_I
inline Warning sortAscend(std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortAscend_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSortAscend_32s_I
inline Warning sortAscend(std::span<std::int32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortAscend_32s_I(detail::data<Tarn32s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSortAscend_32f_I
inline Warning sortAscend(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortAscend_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSortAscend_64f_I
inline Warning sortAscend(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortAscend_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Sorts an array in place, from the largest to the smallest.

/// tarnsSortDescend_8u_I
inline Warning sortDescend(std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortDescend_8u_I(detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSortDescend_16s_I
inline Warning sortDescend(std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortDescend_16s_I(detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSortDescend_32s_I
inline Warning sortDescend(std::span<std::int32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortDescend_32s_I(detail::data<Tarn32s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSortDescend_32f_I
inline Warning sortDescend(std::span<float> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortDescend_32f_I(detail::data<Tarn32f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsSortDescend_64f_I
inline Warning sortDescend(std::span<double> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsSortDescend_64f_I(detail::data<Tarn64f>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

} // namespace tarns
