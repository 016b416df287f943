// What the front ends of element-wise families share: each is checks, shortcuts, kernel, status.
#pragma once

#include "frame/bytes.h"
#include "frame/checks.h"
#include "frame/pairs.h"
#include "frame/scale.h"

namespace tarn {

// An ordered test: a NaN counts as equal to the value.
template <typename T>
constexpr bool equalOrUnordered(T x, std::type_identity_t<T> value)
{
    return !(x < value || x > value);
}

// Hands a complex call on to the real function at twice the length, which makes the checks of the pointers: here, and
// only here, a bad length is found before a null pointer.
template <typename T, typename... Scale>
inline TarnStatus forwardParts(TarnStatus (*real)(const Part<T>*, const Part<T>*, Part<T>*, int, Scale...),
                               const T* pSrc1, const T* pSrc2, T* pDst, int len, Scale... scaleFactor)
{
    if (len < 1) {
        return tarnStsSizeErr;
    }
    return real(asParts(pSrc1), asParts(pSrc2), asParts(pDst), wrappedProduct(len, 2), scaleFactor...);
}
template <typename T, typename... Scale>
inline TarnStatus forwardParts(TarnStatus (*real)(const Part<T>*, Part<T>*, int, Scale...), const T* pSrc, T* pSrcDst,
                               int len, Scale... scaleFactor)
{
    if (len < 1) {
        return tarnStsSizeErr;
    }
    return real(asParts(pSrc), asParts(pSrcDst), wrappedProduct(len, 2), scaleFactor...);
}

// Checks, then a kernel that takes the call's own arguments.
template <typename A, typename B, typename D>
inline TarnStatus runKernel(void (*kernel)(const A*, const B*, D*, int), const A* pSrc1, const B* pSrc2, D* pDst,
                            int len)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pDst)) {
        return status;
    }
    kernel(pSrc1, pSrc2, pDst, len);
    return tarnStsNoErr;
}
template <typename A, typename D>
inline TarnStatus runKernel(void (*kernel)(const A*, D*, int), const A* pSrc, D* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    kernel(pSrc, pDst, len);
    return tarnStsNoErr;
}
template <typename T>
inline TarnStatus runKernel(void (*kernel)(const T*, T, T*, int), const T* pSrc, T val, T* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    kernel(pSrc, val, pDst, len);
    return tarnStsNoErr;
}
template <typename T>
inline TarnStatus runKernel(void (*kernel)(T, T*, int), T val, T* pSrcDst, int len)
{
    if (const TarnStatus status = check(len, pSrcDst)) {
        return status;
    }
    kernel(val, pSrcDst, len);
    return tarnStsNoErr;
}

// Runs the kernel of a scaled operation that the scale factor asks for; the arguments have been checked.
template <typename D, typename... Args>
inline TarnStatus scaleTo(D* pDst, int len, const ScaledKernels<Args...>& kernels, int scaleFactor,
                          std::type_identity_t<Args>... args)
{
    if (scaleFactor > kernels.limits.down) {
        zeroFill(pDst, len);
    } else {
        kernels.run(scaleFactor, args...);
    }
    return tarnStsNoErr;
}

// The front end of a scaled operation on two vectors, out of place and in place.
template <typename A, typename B, typename D>
inline TarnStatus runScaled(const ScaledKernels<const A*, const B*, D*, int>& kernels, const A* pSrc1, const B* pSrc2,
                            D* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pDst)) {
        return status;
    }
    return scaleTo(pDst, len, kernels, scaleFactor, pSrc1, pSrc2, pDst, len);
}
template <typename A, typename D>
inline TarnStatus runScaled(const ScaledKernels<const A*, D*, int>& kernels, const A* pSrc, D* pSrcDst, int len,
                            int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pSrcDst)) {
        return status;
    }
    return scaleTo(pSrcDst, len, kernels, scaleFactor, pSrc, pSrcDst, len);
}

// The same on a vector and a constant.
template <typename T>
inline TarnStatus runScaled(const ScaledKernels<const T*, T, T*, int>& kernels, const T* pSrc, T val, T* pDst, int len,
                            int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    return scaleTo(pDst, len, kernels, scaleFactor, pSrc, val, pDst, len);
}
template <typename T>
inline TarnStatus runScaled(const ScaledKernels<T, T*, int>& kernels, T val, T* pSrcDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrcDst)) {
        return status;
    }
    return scaleTo(pSrcDst, len, kernels, scaleFactor, val, pSrcDst, len);
}

// A constant that leaves the data as it is, such as 0 in a sum: out of place the data is copied, in place there is
// nothing to do.
template <typename T>
inline TarnStatus passUnchanged(const T* pSrc, T* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (pSrc != pDst) {
        copy(pSrc, pDst, len);
    }
    return tarnStsNoErr;
}

// The front end of an integer operation with a constant, of which one value is neutral while nothing is scaled.
template <typename T>
inline TarnStatus runScaledUnlessNeutral(std::type_identity_t<T> neutral, const ConstantKernels<T>& kernels,
                                         const T* pSrc, T val, T* pDst, int len, int scaleFactor)
{
    if (scaleFactor == 0 && val == neutral) {
        return passUnchanged(pSrc, pDst, len);
    }
    return runScaled(kernels, pSrc, val, pDst, len, scaleFactor);
}
template <typename T>
inline TarnStatus runScaledUnlessNeutral(std::type_identity_t<T> neutral, const ConstantKernels_I<T>& kernels, T val,
                                         T* pSrcDst, int len, int scaleFactor)
{
    if (scaleFactor == 0 && val == neutral) {
        return check(len, pSrcDst);
    }
    return runScaled(kernels, val, pSrcDst, len, scaleFactor);
}

// The same in floating point, where a NaN constant counts as neutral: it does not spread.
template <typename T>
inline TarnStatus runUnlessNeutral(std::type_identity_t<T> neutral, void (*kernel)(const T*, T, T*, int), const T* pSrc,
                                   T val, T* pDst, int len)
{
    return equalOrUnordered(val, neutral) ? passUnchanged(pSrc, pDst, len) : runKernel(kernel, pSrc, val, pDst, len);
}
template <typename T>
inline TarnStatus runUnlessNeutral(std::type_identity_t<T> neutral, void (*kernel)(T, T*, int), T val, T* pSrcDst,
                                   int len)
{
    return equalOrUnordered(val, neutral) ? check(len, pSrcDst) : runKernel(kernel, val, pSrcDst, len);
}

} // namespace tarn

// The table of a scaled function whose kernels all carry its kernel's name.
#define TARN_SCALED_TABLE(NAME, LIMITS)                                       \
    {                                                                         \
        LIMITS, NAME, NAME##_1Sfs, NAME##_PosSfs, NAME##_NegSfs, NAME##_Bound \
    }
