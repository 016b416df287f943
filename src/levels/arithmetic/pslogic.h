// Kernels of bitwise logic and of shifts by a constant.
#pragma once

#include "frame/kernels.h"

// Each with a vector and with a constant, out of place and in place: the operation, the tag, the word of the
// vocabulary.
#define TARN_LOGIC(X)   \
    X(And, 8u, bitAnd)  \
    X(And, 16u, bitAnd) \
    X(And, 32u, bitAnd) \
    X(Or, 8u, bitOr)    \
    X(Or, 16u, bitOr)   \
    X(Or, 32u, bitOr)   \
    X(Xor, 8u, bitXor)  \
    X(Xor, 16u, bitXor) \
    X(Xor, 32u, bitXor)

// The same for shifts, and what a front end does where the count is the width or more.
#define TARN_SHIFTS(X)                      \
    X(LShift, 8u, shiftLeft, shiftOut)      \
    X(LShift, 16u, shiftLeft, shiftOut)     \
    X(LShift, 32s, shiftLeft, shiftOut)     \
    X(RShift, 8u, shiftRight, shiftOut)     \
    X(RShift, 16u, shiftRight, shiftOut)    \
    X(RShift, 16s, shiftRight, shiftToSign) \
    X(RShift, 32s, shiftRight, shiftToSign)

#define TARN_DECLARE_LOGIC(OP, TAG, WORD)                              \
    TARN_DECLARE_KERNEL(ownps_##OP##_##TAG, VECTORS, Tarn##TAG);       \
    TARN_DECLARE_KERNEL(ownps_##OP##_##TAG##_I, VECTORS_I, Tarn##TAG); \
    TARN_DECLARE_KERNEL(ownps_##OP##C_##TAG, CONSTANT, Tarn##TAG);     \
    TARN_DECLARE_KERNEL(ownps_##OP##C_##TAG##_I, CONSTANT_I, Tarn##TAG);
TARN_LOGIC(TARN_DECLARE_LOGIC)

// Shifts by counts below the width.
#define TARN_DECLARE_SHIFT(OP, TAG, WORD, BEYOND)                                                  \
    TARN_KERNEL void ownps_##OP##_##TAG(const Tarn##TAG* pSrc, int val, Tarn##TAG* pDst, int len); \
    TARN_KERNEL void ownps_##OP##_##TAG##_I(int val, Tarn##TAG* pSrcDst, int len);
TARN_SHIFTS(TARN_DECLARE_SHIFT)
