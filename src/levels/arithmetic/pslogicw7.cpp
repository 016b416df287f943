// Kernels of bitwise logic.
#include "levels/arithmetic/pslogic.h"

using namespace tarn;

#define TARN_LOGIC_KERNELS(OP, TAG, OPERATION)                                  \
    TARN_DEFINE_KERNEL(ownps_##OP##_##TAG, VECTORS, Tarn##TAG, OPERATION)       \
    TARN_DEFINE_KERNEL(ownps_##OP##_##TAG##_I, VECTORS_I, Tarn##TAG, OPERATION) \
    TARN_DEFINE_KERNEL(ownps_##OP##C_##TAG, CONSTANT, Tarn##TAG, OPERATION)     \
    TARN_DEFINE_KERNEL(ownps_##OP##C_##TAG##_I, CONSTANT_I, Tarn##TAG, OPERATION)

TARN_LOGIC_KERNELS(And, 8u, bitAnd)
TARN_LOGIC_KERNELS(And, 16u, bitAnd)
TARN_LOGIC_KERNELS(And, 32u, bitAnd)
TARN_LOGIC_KERNELS(Or, 8u, bitOr)
TARN_LOGIC_KERNELS(Or, 16u, bitOr)
TARN_LOGIC_KERNELS(Or, 32u, bitOr)
TARN_LOGIC_KERNELS(Xor, 8u, bitXor)
TARN_LOGIC_KERNELS(Xor, 16u, bitXor)
TARN_LOGIC_KERNELS(Xor, 32u, bitXor)
