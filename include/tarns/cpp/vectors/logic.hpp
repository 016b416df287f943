// Written by scripts/cpp-face from <tarns/logic.h>; changes go there. Every function calls one of the C interface,
// whose documentation tells the rest.
#pragma once

#include <tarns/cpp/face.hpp>

namespace tarns {

// Keeps the bits that both operands have, of two vectors.
inline Warning bitAnd(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2,
                      std::span<std::uint8_t> dst)
{
    return detail::call(tarnsAnd_8u, src1, src2, dst, detail::length);
}
inline Warning bitAnd(std::span<const std::uint16_t> src1, std::span<const std::uint16_t> src2,
                      std::span<std::uint16_t> dst)
{
    return detail::call(tarnsAnd_16u, src1, src2, dst, detail::length);
}
inline Warning bitAnd(std::span<const std::uint32_t> src1, std::span<const std::uint32_t> src2,
                      std::span<std::uint32_t> dst)
{
    return detail::call(tarnsAnd_32u, src1, src2, dst, detail::length);
}

// Keeps the bits that both operands have, of two vectors in place.
inline Warning bitAnd(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsAnd_8u_I, src, srcDst, detail::length);
}
inline Warning bitAnd(std::span<const std::uint16_t> src, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsAnd_16u_I, src, srcDst, detail::length);
}
inline Warning bitAnd(std::span<const std::uint32_t> src, std::span<std::uint32_t> srcDst)
{
    return detail::call(tarnsAnd_32u_I, src, srcDst, detail::length);
}

// Keeps the bits that both operands have, of a vector and a constant.
inline Warning bitAnd(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsAndC_8u, src, val, dst, detail::length);
}
inline Warning bitAnd(std::span<const std::uint16_t> src, std::uint16_t val, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsAndC_16u, src, val, dst, detail::length);
}
inline Warning bitAnd(std::span<const std::uint32_t> src, std::uint32_t val, std::span<std::uint32_t> dst)
{
    return detail::call(tarnsAndC_32u, src, val, dst, detail::length);
}

// Keeps the bits that both operands have, of a vector and a constant in place.
inline Warning bitAnd(std::uint8_t val, std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsAndC_8u_I, val, srcDst, detail::length);
}
inline Warning bitAnd(std::uint16_t val, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsAndC_16u_I, val, srcDst, detail::length);
}
inline Warning bitAnd(std::uint32_t val, std::span<std::uint32_t> srcDst)
{
    return detail::call(tarnsAndC_32u_I, val, srcDst, detail::length);
}

// Joins the bits that either operand has, of two vectors.
inline Warning bitOr(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2,
                     std::span<std::uint8_t> dst)
{
    return detail::call(tarnsOr_8u, src1, src2, dst, detail::length);
}
inline Warning bitOr(std::span<const std::uint16_t> src1, std::span<const std::uint16_t> src2,
                     std::span<std::uint16_t> dst)
{
    return detail::call(tarnsOr_16u, src1, src2, dst, detail::length);
}
inline Warning bitOr(std::span<const std::uint32_t> src1, std::span<const std::uint32_t> src2,
                     std::span<std::uint32_t> dst)
{
    return detail::call(tarnsOr_32u, src1, src2, dst, detail::length);
}

// Joins the bits that either operand has, of two vectors in place.
inline Warning bitOr(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsOr_8u_I, src, srcDst, detail::length);
}
inline Warning bitOr(std::span<const std::uint16_t> src, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsOr_16u_I, src, srcDst, detail::length);
}
inline Warning bitOr(std::span<const std::uint32_t> src, std::span<std::uint32_t> srcDst)
{
    return detail::call(tarnsOr_32u_I, src, srcDst, detail::length);
}

// Joins the bits that either operand has, of a vector and a constant.
inline Warning bitOr(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsOrC_8u, src, val, dst, detail::length);
}
inline Warning bitOr(std::span<const std::uint16_t> src, std::uint16_t val, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsOrC_16u, src, val, dst, detail::length);
}
inline Warning bitOr(std::span<const std::uint32_t> src, std::uint32_t val, std::span<std::uint32_t> dst)
{
    return detail::call(tarnsOrC_32u, src, val, dst, detail::length);
}

// Joins the bits that either operand has, of a vector and a constant in place.
inline Warning bitOr(std::uint8_t val, std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsOrC_8u_I, val, srcDst, detail::length);
}
inline Warning bitOr(std::uint16_t val, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsOrC_16u_I, val, srcDst, detail::length);
}
inline Warning bitOr(std::uint32_t val, std::span<std::uint32_t> srcDst)
{
    return detail::call(tarnsOrC_32u_I, val, srcDst, detail::length);
}

// Finds the bits in which the operands differ, of two vectors.
inline Warning bitXor(std::span<const std::uint8_t> src1, std::span<const std::uint8_t> src2,
                      std::span<std::uint8_t> dst)
{
    return detail::call(tarnsXor_8u, src1, src2, dst, detail::length);
}
inline Warning bitXor(std::span<const std::uint16_t> src1, std::span<const std::uint16_t> src2,
                      std::span<std::uint16_t> dst)
{
    return detail::call(tarnsXor_16u, src1, src2, dst, detail::length);
}
inline Warning bitXor(std::span<const std::uint32_t> src1, std::span<const std::uint32_t> src2,
                      std::span<std::uint32_t> dst)
{
    return detail::call(tarnsXor_32u, src1, src2, dst, detail::length);
}

// Finds the bits in which the operands differ, of two vectors in place.
inline Warning bitXor(std::span<const std::uint8_t> src, std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsXor_8u_I, src, srcDst, detail::length);
}
inline Warning bitXor(std::span<const std::uint16_t> src, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsXor_16u_I, src, srcDst, detail::length);
}
inline Warning bitXor(std::span<const std::uint32_t> src, std::span<std::uint32_t> srcDst)
{
    return detail::call(tarnsXor_32u_I, src, srcDst, detail::length);
}

// Finds the bits in which the operands differ, of a vector and a constant.
inline Warning bitXor(std::span<const std::uint8_t> src, std::uint8_t val, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsXorC_8u, src, val, dst, detail::length);
}
inline Warning bitXor(std::span<const std::uint16_t> src, std::uint16_t val, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsXorC_16u, src, val, dst, detail::length);
}
inline Warning bitXor(std::span<const std::uint32_t> src, std::uint32_t val, std::span<std::uint32_t> dst)
{
    return detail::call(tarnsXorC_32u, src, val, dst, detail::length);
}

// Finds the bits in which the operands differ, of a vector and a constant in place.
inline Warning bitXor(std::uint8_t val, std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsXorC_8u_I, val, srcDst, detail::length);
}
inline Warning bitXor(std::uint16_t val, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsXorC_16u_I, val, srcDst, detail::length);
}
inline Warning bitXor(std::uint32_t val, std::span<std::uint32_t> srcDst)
{
    return detail::call(tarnsXorC_32u_I, val, srcDst, detail::length);
}

// Turns every bit the other way.
inline Warning bitNot(std::span<const std::uint8_t> src, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsNot_8u, src, dst, detail::length);
}
inline Warning bitNot(std::span<const std::uint16_t> src, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsNot_16u, src, dst, detail::length);
}
inline Warning bitNot(std::span<const std::uint32_t> src, std::span<std::uint32_t> dst)
{
    return detail::call(tarnsNot_32u, src, dst, detail::length);
}

// Turns every bit the other way in place.
inline Warning bitNot(std::span<std::uint8_t> srcDst) { return detail::call(tarnsNot_8u_I, srcDst, detail::length); }
inline Warning bitNot(std::span<std::uint16_t> srcDst) { return detail::call(tarnsNot_16u_I, srcDst, detail::length); }
inline Warning bitNot(std::span<std::uint32_t> srcDst) { return detail::call(tarnsNot_32u_I, srcDst, detail::length); }

// Shifts to the left.
inline Warning lShift(std::span<const std::uint8_t> src, int val, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsLShiftC_8u, src, val, dst, detail::length);
}
inline Warning lShift(std::span<const std::uint16_t> src, int val, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsLShiftC_16u, src, val, dst, detail::length);
}
inline Warning lShift(std::span<const std::int16_t> src, int val, std::span<std::int16_t> dst)
{
    return detail::call(tarnsLShiftC_16s, src, val, dst, detail::length);
}
inline Warning lShift(std::span<const std::int32_t> src, int val, std::span<std::int32_t> dst)
{
    return detail::call(tarnsLShiftC_32s, src, val, dst, detail::length);
}

// Shifts to the left, in place.
inline Warning lShift(int val, std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsLShiftC_8u_I, val, srcDst, detail::length);
}
inline Warning lShift(int val, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsLShiftC_16u_I, val, srcDst, detail::length);
}
inline Warning lShift(int val, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsLShiftC_16s_I, val, srcDst, detail::length);
}
inline Warning lShift(int val, std::span<std::int32_t> srcDst)
{
    return detail::call(tarnsLShiftC_32s_I, val, srcDst, detail::length);
}

// Shifts to the right.
inline Warning rShift(std::span<const std::uint8_t> src, int val, std::span<std::uint8_t> dst)
{
    return detail::call(tarnsRShiftC_8u, src, val, dst, detail::length);
}
inline Warning rShift(std::span<const std::uint16_t> src, int val, std::span<std::uint16_t> dst)
{
    return detail::call(tarnsRShiftC_16u, src, val, dst, detail::length);
}
inline Warning rShift(std::span<const std::int16_t> src, int val, std::span<std::int16_t> dst)
{
    return detail::call(tarnsRShiftC_16s, src, val, dst, detail::length);
}
inline Warning rShift(std::span<const std::int32_t> src, int val, std::span<std::int32_t> dst)
{
    return detail::call(tarnsRShiftC_32s, src, val, dst, detail::length);
}

// Shifts to the right, in place.
inline Warning rShift(int val, std::span<std::uint8_t> srcDst)
{
    return detail::call(tarnsRShiftC_8u_I, val, srcDst, detail::length);
}
inline Warning rShift(int val, std::span<std::uint16_t> srcDst)
{
    return detail::call(tarnsRShiftC_16u_I, val, srcDst, detail::length);
}
inline Warning rShift(int val, std::span<std::int16_t> srcDst)
{
    return detail::call(tarnsRShiftC_16s_I, val, srcDst, detail::length);
}
inline Warning rShift(int val, std::span<std::int32_t> srcDst)
{
    return detail::call(tarnsRShiftC_32s_I, val, srcDst, detail::length);
}

} // namespace tarns
