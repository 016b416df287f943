// Families by their lists. A family of element-wise operations is a list of its members in its kernel header; the
// macros here make of each line what the header, the kernel unit and the front ends need.
//
// A line of a list of scaled members:
//     X(OP, SHAPE, TAG, CASES, LIMITS, SIGN)
// names the operation and its form (Add, VECTORS; AddC, CONSTANT), the element's tag, the cases that the kernel unit
// makes of its operation, where the scale rule becomes trivial, and whether the kernel for results that the sign
// decides is EXPORTED or HIDDEN.
//
// A line of a list of plain members:
//     X(OP, SHAPE, TAG, OPERATION)
// has the operation itself. Members that are like no other are written by hand beside the list.
#pragma once

#include "frame/kernels.h"

// -- For the kernel header ------------------------------------------------------------------------------------------

#define TARN_DECLARE_SIGN_EXPORTED(NAME, SHAPE, T) \
    TARN_DECLARE_KERNEL(NAME##_Bound, SHAPE, T);   \
    TARN_DECLARE_KERNEL(NAME##_I_Bound, SHAPE##_I, T)
#define TARN_DECLARE_SIGN_HIDDEN(NAME, SHAPE, T)     \
    namespace tarn {                                 \
    void NAME##_Bound(TARN_##SHAPE##_PARAMETERS(T)); \
    }

#define TARN_DECLARE_SCALED_MEMBER(OP, SHAPE, TAG, CASES, LIMITS, SIGN)      \
    TARN_DECLARE_SCALED_KERNELS(owns##OP##_##TAG, SHAPE, Tarn##TAG);         \
    TARN_DECLARE_SCALED_KERNELS(owns##OP##_##TAG##_I, SHAPE##_I, Tarn##TAG); \
    TARN_DECLARE_SIGN_##SIGN(owns##OP##_##TAG, SHAPE, Tarn##TAG);
#define TARN_DECLARE_PLAIN_MEMBER(OP, SHAPE, TAG, OPERATION) \
    TARN_DECLARE_KERNEL(owns##OP##_##TAG, SHAPE, Tarn##TAG); \
    TARN_DECLARE_KERNEL(owns##OP##_##TAG##_I, SHAPE##_I, Tarn##TAG);

// -- For the kernel unit --------------------------------------------------------------------------------------------

#define TARN_DEFINE_SIGN_EXPORTED(NAME, SHAPE, T, CASES)      \
    TARN_DEFINE_KERNEL(NAME##_Bound, SHAPE, T, CASES::Sign{}) \
    void NAME##_I_Bound(TARN_##SHAPE##_I_PARAMETERS(T)) { NAME##_Bound(TARN_##SHAPE##_IN_PLACE); }
#define TARN_DEFINE_SIGN_HIDDEN(NAME, SHAPE, T, CASES) TARN_DEFINE_KERNEL(tarn::NAME##_Bound, SHAPE, T, CASES::Sign{})

#define TARN_DEFINE_SCALED_MEMBER(OP, SHAPE, TAG, CASES, LIMITS, SIGN)      \
    TARN_DEFINE_SCALED_KERNELS(owns##OP##_##TAG, SHAPE, Tarn##TAG, CASES)   \
    TARN_DEFINE_SCALED_KERNELS_IN_PLACE(owns##OP##_##TAG, SHAPE, Tarn##TAG) \
    TARN_DEFINE_SIGN_##SIGN(owns##OP##_##TAG, SHAPE, Tarn##TAG, CASES)
#define TARN_DEFINE_PLAIN_MEMBER(OP, SHAPE, TAG, OPERATION)           \
    TARN_DEFINE_KERNEL(owns##OP##_##TAG, SHAPE, Tarn##TAG, OPERATION) \
    TARN_DEFINE_KERNEL_IN_PLACE(owns##OP##_##TAG, SHAPE, Tarn##TAG)

// -- For the front ends ---------------------------------------------------------------------------------------------

// The table of a member's kernels, as kernels_Add_16s.
#define TARN_TABLE_VECTORS VectorKernels
#define TARN_TABLE_CONSTANT ConstantKernels
#define TARN_TABULATE_SCALED_MEMBER(OP, SHAPE, TAG, CASES, LIMITS, SIGN) \
    constexpr TARN_TABLE_##SHAPE<Tarn##TAG> kernels_##OP##_##TAG TARN_SCALED_TABLE(owns##OP##_##TAG, LIMITS);

// A front end and its twin in place, which is the same call with the last operand as the destination; the checks find
// the same faults in the same order. RUN is what serves the call: runScaled, runKernel, a shortcut of the family's.
#define TARN_SCALED_VECTORS(OP, TAG, RUN, ...)                                                 \
    TarnStatus tarns##OP##_##TAG##_Sfs(TARN_VECTORS_PARAMETERS(Tarn##TAG), int scaleFactor)    \
    {                                                                                          \
        return RUN(__VA_ARGS__, TARN_VECTORS_ARGUMENTS, scaleFactor);                          \
    }                                                                                          \
    TarnStatus tarns##OP##_##TAG##_ISfs(TARN_VECTORS_I_PARAMETERS(Tarn##TAG), int scaleFactor) \
    {                                                                                          \
        return tarns##OP##_##TAG##_Sfs(TARN_VECTORS_IN_PLACE, scaleFactor);                    \
    }
#define TARN_SCALED_CONSTANT(OP, TAG, RUN, ...)                                                 \
    TarnStatus tarns##OP##_##TAG##_Sfs(TARN_CONSTANT_PARAMETERS(Tarn##TAG), int scaleFactor)    \
    {                                                                                           \
        return RUN(__VA_ARGS__, TARN_CONSTANT_ARGUMENTS, scaleFactor);                          \
    }                                                                                           \
    TarnStatus tarns##OP##_##TAG##_ISfs(TARN_CONSTANT_I_PARAMETERS(Tarn##TAG), int scaleFactor) \
    {                                                                                           \
        return tarns##OP##_##TAG##_Sfs(TARN_CONSTANT_IN_PLACE, scaleFactor);                    \
    }
#define TARN_PLAIN_VECTORS(OP, TAG, RUN, ...)                              \
    TarnStatus tarns##OP##_##TAG(TARN_VECTORS_PARAMETERS(Tarn##TAG))       \
    {                                                                      \
        return RUN(__VA_ARGS__, TARN_VECTORS_ARGUMENTS);                   \
    }                                                                      \
    TarnStatus tarns##OP##_##TAG##_I(TARN_VECTORS_I_PARAMETERS(Tarn##TAG)) \
    {                                                                      \
        return tarns##OP##_##TAG(TARN_VECTORS_IN_PLACE);                   \
    }
#define TARN_PLAIN_CONSTANT(OP, TAG, RUN, ...)                              \
    TarnStatus tarns##OP##_##TAG(TARN_CONSTANT_PARAMETERS(Tarn##TAG))       \
    {                                                                       \
        return RUN(__VA_ARGS__, TARN_CONSTANT_ARGUMENTS);                   \
    }                                                                       \
    TarnStatus tarns##OP##_##TAG##_I(TARN_CONSTANT_I_PARAMETERS(Tarn##TAG)) \
    {                                                                       \
        return tarns##OP##_##TAG(TARN_CONSTANT_IN_PLACE);                   \
    }
