// Front ends of the products of a vector and a constant.
#include "tarns/multiply.h"

#include "frame/factor.h"
#include "frame/frontend.h"
#include "levels/arithmetic/psadd.h"
#include "levels/arithmetic/psmulc.h"

#include <algorithm>

using namespace tarn;

namespace {

// Where the sign decides, a factor above 0 leaves to it what adding nothing would.
constexpr ConstantKernels<Tarn8u> mulC_8u{
    productLimits_8u,
    ownsMulC_8u,
    ownsMulC_8u_1Sfs,
    ownsMulC_8u_PosSfs,
    ownsMulC_8u_NegSfs,
    [](const Tarn8u* pSrc, Tarn8u /*val*/, Tarn8u* pDst, int len) { ownsAddC_8u_Bound(pSrc, 0, pDst, len); }};
constexpr ConstantKernels<Tarn16s> mulC_16s{
    productLimits_16s,
    ownsMulC_16s,
    [](const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len) { ownsMulC_16s_PosSfs(pSrc, val, pDst, len, 1); },
    ownsMulC_16s_PosSfs,
    ownsMulC_16s_NegSfs,
    ownsMulC_16s_Bound};
TARN_MULC_SCALED(TARN_TABULATE_SCALED_MEMBER)
constexpr ConstantKernels<Tarn16sc> mulC_16sc_Ovf{productLimits_16sc,      ownsMulC_16sc_Ovf,
                                                  ownsMulC_16sc_1OvfSfs,   ownsMulC_16sc_PosOvfSfs,
                                                  ownsMulC_16sc_NegOvfSfs, ownsMulC_16sc_BoundOvf};

// An imaginary part that has no negative in its own width.
bool lacksNegative(Tarn16sc val) { return val.im == lowest<Tarn16s>; }

template <typename T>
TarnStatus zeroFillChecked(const T* pSrc, T* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    zeroFill(pDst, len);
    return tarnStsNoErr;
}

// A factor of 0 needs no data, and one of 1 changes none while nothing is scaled.
template <typename T>
TarnStatus runProduct(const ConstantKernels<T>& kernels, const T* pSrc, T val, T* pDst, int len, int scaleFactor)
{
    return val == 0 ? zeroFillChecked(pSrc, pDst, len)
                    : runScaledUnlessNeutral(1, kernels, pSrc, val, pDst, len, scaleFactor);
}

// A constant without a negative has kernels of its own.
TarnStatus runComplexProduct(const ConstantKernels<Tarn16sc>& kernels, const Tarn16sc* pSrc, Tarn16sc val,
                             Tarn16sc* pDst, int len, int scaleFactor)
{
    return runScaled(lacksNegative(val) ? mulC_16sc_Ovf : kernels, pSrc, val, pDst, len, scaleFactor);
}

// In floating point a NaN counts as 1, and 0 makes 0 of infinities and NaN too.
template <typename T>
TarnStatus runProduct(void (*kernel)(const T*, T, T*, int), const T* pSrc, T val, T* pDst, int len)
{
    return val == 0 ? zeroFillChecked(pSrc, pDst, len) : runUnlessNeutral(1, kernel, pSrc, val, pDst, len);
}

// Scale factors whose power of two is a normal single-precision number.
constexpr int lowestFactor_32f = -127;
constexpr int highestFactor_32f = 126;

} // namespace

TARN_SCALED_CONSTANT(MulC, 8u, runProduct, mulC_8u)
TARN_SCALED_CONSTANT(MulC, 16s, runProduct, mulC_16s)
TARN_SCALED_CONSTANT(MulC, 16sc, runComplexProduct, kernels_MulC_16sc)
TARN_SCALED_CONSTANT(MulC, 32s, runProduct, mulC_32s)
TARN_SCALED_CONSTANT(MulC, 32sc, runScaled, mulC_32sc)
TARN_PLAIN_CONSTANT(MulC, 32f, runProduct, ownsMulC_32f)
TARN_PLAIN_CONSTANT(MulC, 64f, runProduct, ownsMulC_64f)
TARN_PLAIN_CONSTANT(MulC, 32fc, runKernel, ownsMulC_32fc)
TARN_PLAIN_CONSTANT(MulC, 64fc, runKernel, ownsMulC_64fc)

TarnStatus tarnsMulC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len) { return tarnsMulC_16s_ISfs(val, pSrcDst, len, 0); }

TarnStatus tarnsMulC_32f16s_Sfs(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (scaleFactor != 0) {
        val *= twoToMinus<Tarn32f>(std::clamp(scaleFactor, lowestFactor_32f, highestFactor_32f));
    }
    ownsMulC_32f16s(pSrc, val, pDst, len);
    return tarnStsNoErr;
}

TarnStatus tarnsMulC_Low_32f16s(const Tarn32f* pSrc, Tarn32f val, Tarn16s* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    ownsMulC_Low_32f16s(pSrc, val, pDst, len);
    return tarnStsNoErr;
}
