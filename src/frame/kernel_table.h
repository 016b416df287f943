// Tables of scaled kernels that need no names of their own.
#pragma once

#include "frame/kernels.h"

namespace tarn {

// How a kernel's operation is carried through a shape: in vectors, or, for what a vector cannot hold, 64-bit products
// for instance, one element at a time.
struct InVectors {
    template <typename Operation, typename... Args>
    static TARN_INLINE void run(Operation operation, Args... args)
    {
        apply(operation, args...);
    }
};

struct OneByOne {
    template <typename Operation, typename A, typename B, typename D>
    static TARN_INLINE void run(Operation operation, const A* pSrc1, const B* pSrc2, D* pDst, int len)
    {
        for (int i = 0; i < len; ++i) {
            store(pDst + i, operation(loadElement(pSrc1 + i), loadElement(pSrc2 + i)));
        }
    }
    template <typename Operation, typename A, typename D>
    static TARN_INLINE void run(Operation operation, const A* pSrc, D* pSrcDst, int len)
    {
        run(operation, pSrc, pSrcDst, pSrcDst, len);
    }
    template <typename Operation, typename T, typename D>
    static TARN_INLINE void run(Operation operation, const T* pSrc, T val, D* pDst, int len)
    {
        for (int i = 0; i < len; ++i) {
            store(pDst + i, operation(loadElement(pSrc + i), val));
        }
    }
    template <typename Operation, typename T>
    static TARN_INLINE void run(Operation operation, T val, T* pSrcDst, int len)
    {
        run(operation, pSrcDst, val, pSrcDst, len);
    }
};

// The table with the five kernels of Cases, in the shape that its type stands for.
template <typename Cases, typename Road, typename... Args>
constexpr ScaledKernels<Args...> tabulate(const ScaledKernels<Args...>&, ScaleLimits limits)
{
    return {limits,
            [](Args... args) { Road::run(typename Cases::Plain{}, args...); },
            [](Args... args) { Road::run(typename Cases::One{}, args...); },
            [](Args... args, int scaleFactor) { Road::run(typename Cases::Pos{scaleFactor}, args...); },
            [](Args... args, int shift) { Road::run(typename Cases::Neg{shift}, args...); },
            [](Args... args) { Road::run(typename Cases::Sign{}, args...); }};
}

template <typename Table, typename Cases, typename Road = InVectors>
constexpr Table tableOf(ScaleLimits limits)
{
    return tabulate<Cases, Road>(Table{}, limits);
}

} // namespace tarn
