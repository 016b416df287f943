// Written by scripts/cpp-face from <tarns/logic.h>; changes go there. Every function calls the one of the C interface
// that its comment names, whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Bits that both operands have, of two vectors:

/// tarnsAnd_8u
inline Warning bitAnd(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2,
                      std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAnd_8u(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                             detail::data<Tarn8u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAnd_16u
inline Warning bitAnd(std::span<const std::uint16_t> src1, std::span<const std::uint16_t> src2,
                      std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAnd_16u(detail::data<Tarn16u>(src1), detail::data<Tarn16u>(src2),
                                              detail::data<Tarn16u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsAnd_32u
inline Warning bitAnd(std::span<const std::uint32_t> src1, std::span<const std::uint32_t> src2,
                      std::span<std::uint32_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsAnd_32u(detail::data<Tarn32u>(src1), detail::data<Tarn32u>(src2),
                                              detail::data<Tarn32u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

// Bits that both operands have, of two vectors in place:

/// tarnsAnd_8u_I
inline Warning bitAnd(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAnd_8u_I(detail::data<Tarn8u>(src), detail::data<Tarn8u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsAnd_16u_I
inline Warning bitAnd(std::span<const std::uint16_t> src, std::span<std::uint16_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAnd_16u_I(detail::data<Tarn16u>(src), detail::data<Tarn16u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsAnd_32u_I
inline Warning bitAnd(std::span<const std::uint32_t> src, std::span<std::uint32_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsAnd_32u_I(detail::data<Tarn32u>(src), detail::data<Tarn32u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Bits that both operands have, of a vector and a constant:

/// tarnsAndC_8u
inline Warning bitAnd(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAndC_8u(detail::data<Tarn8u>(src), val,
                                                                     detail::data<Tarn8u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsAndC_16u
inline Warning bitAnd(std::span<const std::uint16_t> src, std::uint16_t val, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAndC_16u(detail::data<Tarn16u>(src), val,
                                                                      detail::data<Tarn16u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsAndC_32u
inline Warning bitAnd(std::span<const std::uint32_t> src, std::uint32_t val, std::span<std::uint32_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsAndC_32u(detail::data<Tarn32u>(src), val,
                                                                      detail::data<Tarn32u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// Bits that both operands have, of a vector and a constant in place:

/// tarnsAndC_8u_I
inline Warning bitAnd(std::uint8_t val, std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAndC_8u_I(val, detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsAndC_16u_I
inline Warning bitAnd(std::uint16_t val, std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAndC_16u_I(val, detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsAndC_32u_I
inline Warning bitAnd(std::uint32_t val, std::span<std::uint32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsAndC_32u_I(val, detail::data<Tarn32u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Bits that either operand has, of two vectors:

/// tarnsOr_8u
inline Warning bitOr(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2,
                     std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsOr_8u(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                            detail::data<Tarn8u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsOr_16u
inline Warning bitOr(std::span<const std::uint16_t> src1, std::span<const std::uint16_t> src2,
                     std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsOr_16u(detail::data<Tarn16u>(src1), detail::data<Tarn16u>(src2),
                                             detail::data<Tarn16u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsOr_32u
inline Warning bitOr(std::span<const std::uint32_t> src1, std::span<const std::uint32_t> src2,
                     std::span<std::uint32_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsOr_32u(detail::data<Tarn32u>(src1), detail::data<Tarn32u>(src2),
                                             detail::data<Tarn32u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

// Bits that either operand has, of two vectors in place:

/// tarnsOr_8u_I
inline Warning bitOr(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsOr_8u_I(detail::data<Tarn8u>(src), detail::data<Tarn8u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsOr_16u_I
inline Warning bitOr(std::span<const std::uint16_t> src, std::span<std::uint16_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsOr_16u_I(detail::data<Tarn16u>(src), detail::data<Tarn16u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsOr_32u_I
inline Warning bitOr(std::span<const std::uint32_t> src, std::span<std::uint32_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsOr_32u_I(detail::data<Tarn32u>(src), detail::data<Tarn32u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Bits that either operand has, of a vector and a constant:

/// tarnsOrC_8u
inline Warning bitOr(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsOrC_8u(detail::data<Tarn8u>(src), val,
                                                                    detail::data<Tarn8u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsOrC_16u
inline Warning bitOr(std::span<const std::uint16_t> src, std::uint16_t val, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsOrC_16u(detail::data<Tarn16u>(src), val,
                                                                     detail::data<Tarn16u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsOrC_32u
inline Warning bitOr(std::span<const std::uint32_t> src, std::uint32_t val, std::span<std::uint32_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsOrC_32u(detail::data<Tarn32u>(src), val,
                                                                     detail::data<Tarn32u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// Bits that either operand has, of a vector and a constant in place:

/// tarnsOrC_8u_I
inline Warning bitOr(std::uint8_t val, std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsOrC_8u_I(val, detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsOrC_16u_I
inline Warning bitOr(std::uint16_t val, std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsOrC_16u_I(val, detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsOrC_32u_I
inline Warning bitOr(std::uint32_t val, std::span<std::uint32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsOrC_32u_I(val, detail::data<Tarn32u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Bits in which the operands differ, of two vectors:

/// tarnsXor_8u
inline Warning bitXor(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2,
                      std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsXor_8u(detail::data<Tarn8u>(src1), detail::data<Tarn8u>(src2),
                                             detail::data<Tarn8u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsXor_16u
inline Warning bitXor(std::span<const std::uint16_t> src1, std::span<const std::uint16_t> src2,
                      std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsXor_16u(detail::data<Tarn16u>(src1), detail::data<Tarn16u>(src2),
                                              detail::data<Tarn16u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

/// tarnsXor_32u
inline Warning bitXor(std::span<const std::uint32_t> src1, std::span<const std::uint32_t> src2,
                      std::span<std::uint32_t> dst)
{
    return detail::warning(detail::sameSize(src1, src2, dst)
                               ? tarnsXor_32u(detail::data<Tarn32u>(src1), detail::data<Tarn32u>(src2),
                                              detail::data<Tarn32u>(dst), detail::count(src1))
                               : tarnStsSizeErr);
}

// Bits in which the operands differ, of two vectors in place:

/// tarnsXor_8u_I
inline Warning bitXor(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsXor_8u_I(detail::data<Tarn8u>(src), detail::data<Tarn8u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsXor_16u_I
inline Warning bitXor(std::span<const std::uint16_t> src, std::span<std::uint16_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsXor_16u_I(detail::data<Tarn16u>(src), detail::data<Tarn16u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

/// tarnsXor_32u_I
inline Warning bitXor(std::span<const std::uint32_t> src, std::span<std::uint32_t> srcDst)
{
    return detail::warning(
        detail::sameSize(src, srcDst)
            ? tarnsXor_32u_I(detail::data<Tarn32u>(src), detail::data<Tarn32u>(srcDst), detail::count(src))
            : tarnStsSizeErr);
}

// Bits in which the operands differ, of a vector and a constant:

/// tarnsXorC_8u
inline Warning bitXor(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsXorC_8u(detail::data<Tarn8u>(src), val,
                                                                     detail::data<Tarn8u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsXorC_16u
inline Warning bitXor(std::span<const std::uint16_t> src, std::uint16_t val, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsXorC_16u(detail::data<Tarn16u>(src), val,
                                                                      detail::data<Tarn16u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsXorC_32u
inline Warning bitXor(std::span<const std::uint32_t> src, std::uint32_t val, std::span<std::uint32_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsXorC_32u(detail::data<Tarn32u>(src), val,
                                                                      detail::data<Tarn32u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// Bits in which the operands differ, of a vector and a constant in place:

/// tarnsXorC_8u_I
inline Warning bitXor(std::uint8_t val, std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsXorC_8u_I(val, detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsXorC_16u_I
inline Warning bitXor(std::uint16_t val, std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsXorC_16u_I(val, detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsXorC_32u_I
inline Warning bitXor(std::uint32_t val, std::span<std::uint32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsXorC_32u_I(val, detail::data<Tarn32u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Every bit the other way:

/// tarnsNot_8u
inline Warning bitNot(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst)
                               ? tarnsNot_8u(detail::data<Tarn8u>(src), detail::data<Tarn8u>(dst), detail::count(src))
                               : tarnStsSizeErr);
}

/// tarnsNot_16u
inline Warning bitNot(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsNot_16u(detail::data<Tarn16u>(src),
                                                                     detail::data<Tarn16u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsNot_32u
inline Warning bitNot(std::span<const std::uint32_t> src, std::span<std::uint32_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsNot_32u(detail::data<Tarn32u>(src),
                                                                     detail::data<Tarn32u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// Every bit the other way in place:

/// tarnsNot_8u_I
inline Warning bitNot(std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst) ? tarnsNot_8u_I(detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                                                    : tarnStsSizeErr);
}

/// tarnsNot_16u_I
inline Warning bitNot(std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsNot_16u_I(detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsNot_32u_I
inline Warning bitNot(std::span<std::uint32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsNot_32u_I(detail::data<Tarn32u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Shifts to the left:

/// tarnsLShiftC_8u
inline Warning lShift(std::span<const std::uint8_t> src, int val, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsLShiftC_8u(detail::data<Tarn8u>(src), val,
                                                                        detail::data<Tarn8u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsLShiftC_16u
inline Warning lShift(std::span<const std::uint16_t> src, int val, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsLShiftC_16u(detail::data<Tarn16u>(src), val,
                                                                         detail::data<Tarn16u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsLShiftC_16s
inline Warning lShift(std::span<const std::int16_t> src, int val, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsLShiftC_16s(detail::data<Tarn16s>(src), val,
                                                                         detail::data<Tarn16s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsLShiftC_32s
inline Warning lShift(std::span<const std::int32_t> src, int val, std::span<std::int32_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsLShiftC_32s(detail::data<Tarn32s>(src), val,
                                                                         detail::data<Tarn32s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// The same in place.

/// tarnsLShiftC_8u_I
inline Warning lShift(int val, std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsLShiftC_8u_I(val, detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsLShiftC_16u_I
inline Warning lShift(int val, std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsLShiftC_16u_I(val, detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsLShiftC_16s_I
inline Warning lShift(int val, std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsLShiftC_16s_I(val, detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsLShiftC_32s_I
inline Warning lShift(int val, std::span<std::int32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsLShiftC_32s_I(val, detail::data<Tarn32s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

// Shifts to the right:

/// tarnsRShiftC_8u
inline Warning rShift(std::span<const std::uint8_t> src, int val, std::span<std::uint8_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsRShiftC_8u(detail::data<Tarn8u>(src), val,
                                                                        detail::data<Tarn8u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsRShiftC_16u
inline Warning rShift(std::span<const std::uint16_t> src, int val, std::span<std::uint16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsRShiftC_16u(detail::data<Tarn16u>(src), val,
                                                                         detail::data<Tarn16u>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsRShiftC_16s
inline Warning rShift(std::span<const std::int16_t> src, int val, std::span<std::int16_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsRShiftC_16s(detail::data<Tarn16s>(src), val,
                                                                         detail::data<Tarn16s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

/// tarnsRShiftC_32s
inline Warning rShift(std::span<const std::int32_t> src, int val, std::span<std::int32_t> dst)
{
    return detail::warning(detail::sameSize(src, dst) ? tarnsRShiftC_32s(detail::data<Tarn32s>(src), val,
                                                                         detail::data<Tarn32s>(dst), detail::count(src))
                                                      : tarnStsSizeErr);
}

// The same in place.

/// tarnsRShiftC_8u_I
inline Warning rShift(int val, std::span<std::uint8_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsRShiftC_8u_I(val, detail::data<Tarn8u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsRShiftC_16u_I
inline Warning rShift(int val, std::span<std::uint16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsRShiftC_16u_I(val, detail::data<Tarn16u>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsRShiftC_16s_I
inline Warning rShift(int val, std::span<std::int16_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsRShiftC_16s_I(val, detail::data<Tarn16s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

/// tarnsRShiftC_32s_I
inline Warning rShift(int val, std::span<std::int32_t> srcDst)
{
    return detail::warning(detail::sameSize(srcDst)
                               ? tarnsRShiftC_32s_I(val, detail::data<Tarn32s>(srcDst), detail::count(srcDst))
                               : tarnStsSizeErr);
}

} // namespace tarns
