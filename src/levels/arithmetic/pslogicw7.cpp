// Kernels of bitwise logic.
#include "levels/arithmetic/pslogic.h"

using namespace tarn;

#define TARN_DEFINE_LOGIC(OP, TAG, WORD)                                \
    TARN_DEFINE_KERNEL(ownps_##OP##_##TAG, VECTORS, Tarn##TAG, WORD)    \
    TARN_DEFINE_KERNEL_IN_PLACE(ownps_##OP##_##TAG, VECTORS, Tarn##TAG) \
    TARN_DEFINE_KERNEL(ownps_##OP##C_##TAG, CONSTANT, Tarn##TAG, WORD)  \
    TARN_DEFINE_KERNEL_IN_PLACE(ownps_##OP##C_##TAG, CONSTANT, Tarn##TAG)

TARN_LOGIC(TARN_DEFINE_LOGIC)
