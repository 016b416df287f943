// The shapes that the kernels of element-wise operations come in, and the macros that stamp their exported names.
#pragma once

#include "frame/scale.h"
#include "frame/walk.h"

namespace tarn {

// An operation carried through each of the four shapes; the shape shows in the arguments.

template <typename Operation, typename A, typename B, typename D>
TARN_INLINE void apply(Operation operation, const A* pSrc1, const B* pSrc2, D* pDst, int len)
{
    walk(pDst, len, operation, pSrc1, pSrc2);
}

template <typename Operation, typename A, typename D>
TARN_INLINE void apply(Operation operation, const A* pSrc, D* pSrcDst, int len)
{
    walk(pSrcDst, len, operation, pSrc, pSrcDst);
}

template <typename Operation, typename T, typename D>
TARN_INLINE void apply(Operation operation, const T* pSrc, T val, D* pDst, int len)
{
    walk(pDst, len, WithConstant<Operation, T>{operation, val}, pSrc);
}

template <typename Operation, typename T>
TARN_INLINE void apply(Operation operation, T val, T* pSrcDst, int len)
{
    walk(pSrcDst, len, WithConstant<Operation, T>{operation, val}, pSrcDst);
}

} // namespace tarn

// A kernel: a global symbol of the shared object, though no part of the interface. Calls within the library are bound
// to its own kernels when it is linked (-Bsymbolic-functions); protected visibility would do so too, but then linkers
// refuse programs that are not position-independent and take a kernel's address.
#define TARN_KERNEL extern "C" __attribute__((visibility("default")))

// The shapes: two vectors, or a vector and a constant, each out of place and in place. In place the operand that is
// also the destination comes last, and it stands first in a subtraction's place: see the operations themselves.
#define TARN_VECTORS_PARAMETERS(T) const T *pSrc1, const T *pSrc2, T *pDst, int len
#define TARN_VECTORS_ARGUMENTS pSrc1, pSrc2, pDst, len
#define TARN_VECTORS_I_PARAMETERS(T) const T *pSrc, T *pSrcDst, int len
#define TARN_VECTORS_I_ARGUMENTS pSrc, pSrcDst, len
#define TARN_CONSTANT_PARAMETERS(T) const T *pSrc, T val, T *pDst, int len
#define TARN_CONSTANT_ARGUMENTS pSrc, val, pDst, len
#define TARN_CONSTANT_I_PARAMETERS(T) T val, T *pSrcDst, int len
#define TARN_CONSTANT_I_ARGUMENTS val, pSrcDst, len

// One kernel of an operation without scale.
#define TARN_DECLARE_KERNEL(NAME, SHAPE, T) TARN_KERNEL void NAME(TARN_##SHAPE##_PARAMETERS(T))
#define TARN_DEFINE_KERNEL(NAME, SHAPE, T, OPERATION) \
    void NAME(TARN_##SHAPE##_PARAMETERS(T)) { tarn::apply(OPERATION, TARN_##SHAPE##_ARGUMENTS); }

// The same in place, which is the kernel with its last operand as the destination.
#define TARN_VECTORS_IN_PLACE pSrc, pSrcDst, pSrcDst, len
#define TARN_CONSTANT_IN_PLACE pSrcDst, val, pSrcDst, len
#define TARN_DEFINE_KERNEL_IN_PLACE(NAME, SHAPE, T) \
    void NAME##_I(TARN_##SHAPE##_I_PARAMETERS(T)) { NAME(TARN_##SHAPE##_IN_PLACE); }

// The kernels of a scaled operation. The case in which the sign decides stands apart, since not every type exports it.
#define TARN_DECLARE_SCALED_KERNELS(NAME, SHAPE, T)                                \
    TARN_KERNEL void NAME(TARN_##SHAPE##_PARAMETERS(T));                           \
    TARN_KERNEL void NAME##_1Sfs(TARN_##SHAPE##_PARAMETERS(T));                    \
    TARN_KERNEL void NAME##_PosSfs(TARN_##SHAPE##_PARAMETERS(T), int scaleFactor); \
    TARN_KERNEL void NAME##_NegSfs(TARN_##SHAPE##_PARAMETERS(T), int shift)
#define TARN_DEFINE_SCALED_KERNELS(NAME, SHAPE, T, ...)                       \
    TARN_DEFINE_KERNEL(NAME, SHAPE, T, __VA_ARGS__::Plain{})                  \
    TARN_DEFINE_KERNEL(NAME##_1Sfs, SHAPE, T, __VA_ARGS__::One{})             \
    void NAME##_PosSfs(TARN_##SHAPE##_PARAMETERS(T), int scaleFactor)         \
    {                                                                         \
        tarn::apply(__VA_ARGS__::Pos{scaleFactor}, TARN_##SHAPE##_ARGUMENTS); \
    }                                                                         \
    void NAME##_NegSfs(TARN_##SHAPE##_PARAMETERS(T), int shift)               \
    {                                                                         \
        tarn::apply(__VA_ARGS__::Neg{shift}, TARN_##SHAPE##_ARGUMENTS);       \
    }
#define TARN_DEFINE_SCALED_KERNELS_IN_PLACE(NAME, SHAPE, T)                                      \
    TARN_DEFINE_KERNEL_IN_PLACE(NAME, SHAPE, T)                                                  \
    void NAME##_I_1Sfs(TARN_##SHAPE##_I_PARAMETERS(T)) { NAME##_1Sfs(TARN_##SHAPE##_IN_PLACE); } \
    void NAME##_I_PosSfs(TARN_##SHAPE##_I_PARAMETERS(T), int scaleFactor)                        \
    {                                                                                            \
        NAME##_PosSfs(TARN_##SHAPE##_IN_PLACE, scaleFactor);                                     \
    }                                                                                            \
    void NAME##_I_NegSfs(TARN_##SHAPE##_I_PARAMETERS(T), int shift) { NAME##_NegSfs(TARN_##SHAPE##_IN_PLACE, shift); }

// The same for kernels of which only those in place have exported names: the others stand in a table.
#define TARN_DEFINE_SCALED_KERNELS_IN_PLACE_OF(NAME, SHAPE, T, TABLE)                                              \
    void NAME##_I(TARN_##SHAPE##_I_PARAMETERS(T)) { TABLE.plain(TARN_##SHAPE##_IN_PLACE); }                        \
    void NAME##_I_1Sfs(TARN_##SHAPE##_I_PARAMETERS(T)) { TABLE.one(TARN_##SHAPE##_IN_PLACE); }                     \
    void NAME##_I_PosSfs(TARN_##SHAPE##_I_PARAMETERS(T), int scaleFactor)                                          \
    {                                                                                                              \
        TABLE.pos(TARN_##SHAPE##_IN_PLACE, scaleFactor);                                                           \
    }                                                                                                              \
    void NAME##_I_NegSfs(TARN_##SHAPE##_I_PARAMETERS(T), int shift) { TABLE.neg(TARN_##SHAPE##_IN_PLACE, shift); } \
    void NAME##_I_Bound(TARN_##SHAPE##_I_PARAMETERS(T)) { TABLE.bound(TARN_##SHAPE##_IN_PLACE); }
