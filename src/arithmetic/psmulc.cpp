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
constexpr ConstantKernels_I<Tarn8u> mulC_8u_I TARN_SCALED_TABLE(ownsMulC_8u_I, productLimits_8u);
constexpr ConstantKernels<Tarn16s> mulC_16s{
    productLimits_16s,
    ownsMulC_16s,
    [](const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len) { ownsMulC_16s_PosSfs(pSrc, val, pDst, len, 1); },
    ownsMulC_16s_PosSfs,
    ownsMulC_16s_NegSfs,
    ownsMulC_16s_Bound};
constexpr ConstantKernels_I<Tarn16s> mulC_16s_I TARN_SCALED_TABLE(ownsMulC_16s_I, productLimits_16s);
constexpr ConstantKernels<Tarn16sc> mulC_16sc TARN_SCALED_TABLE(ownsMulC_16sc, productLimits_16sc);
constexpr ConstantKernels_I<Tarn16sc> mulC_16sc_I TARN_SCALED_TABLE(ownsMulC_16sc_I, productLimits_16sc);
constexpr ConstantKernels<Tarn16sc> mulC_16sc_Ovf{productLimits_16sc,      ownsMulC_16sc_Ovf,
                                                  ownsMulC_16sc_1OvfSfs,   ownsMulC_16sc_PosOvfSfs,
                                                  ownsMulC_16sc_NegOvfSfs, ownsMulC_16sc_BoundOvf};
constexpr ConstantKernels_I<Tarn16sc> mulC_16sc_I_Ovf{productLimits_16sc,        ownsMulC_16sc_I_Ovf,
                                                      ownsMulC_16sc_I_1OvfSfs,   ownsMulC_16sc_I_PosOvfSfs,
                                                      ownsMulC_16sc_I_NegOvfSfs, ownsMulC_16sc_I_BoundOvf};

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
template <typename T>
TarnStatus runProduct(const ConstantKernels_I<T>& kernels, T val, T* pSrcDst, int len, int scaleFactor)
{
    return val == 0 ? zeroFillChecked(pSrcDst, pSrcDst, len)
                    : runScaledUnlessNeutral(1, kernels, val, pSrcDst, len, scaleFactor);
}

// In floating point a NaN counts as 1, and 0 makes 0 of infinities and NaN too.
template <typename T>
TarnStatus runProduct(void (*kernel)(const T*, T, T*, int), const T* pSrc, T val, T* pDst, int len)
{
    return val == 0 ? zeroFillChecked(pSrc, pDst, len) : runUnlessNeutral(1, kernel, pSrc, val, pDst, len);
}
template <typename T>
TarnStatus runProduct(void (*kernel)(T, T*, int), T val, T* pSrcDst, int len)
{
    return val == 0 ? zeroFillChecked(pSrcDst, pSrcDst, len) : runUnlessNeutral(1, kernel, val, pSrcDst, len);
}

// Scale factors whose power of two is a normal single-precision number.
constexpr int lowestFactor_32f = -127;
constexpr int highestFactor_32f = 126;

} // namespace

TarnStatus tarnsMulC_8u_Sfs(const Tarn8u* pSrc, Tarn8u val, Tarn8u* pDst, int len, int scaleFactor)
{
    return runProduct(mulC_8u, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsMulC_8u_ISfs(Tarn8u val, Tarn8u* pSrcDst, int len, int scaleFactor)
{
    return runProduct(mulC_8u_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMulC_16s_I(Tarn16s val, Tarn16s* pSrcDst, int len)
{
    return runProduct(mulC_16s_I, val, pSrcDst, len, 0);
}

TarnStatus tarnsMulC_16s_Sfs(const Tarn16s* pSrc, Tarn16s val, Tarn16s* pDst, int len, int scaleFactor)
{
    return runProduct(mulC_16s, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsMulC_16s_ISfs(Tarn16s val, Tarn16s* pSrcDst, int len, int scaleFactor)
{
    return runProduct(mulC_16s_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMulC_16sc_Sfs(const Tarn16sc* pSrc, Tarn16sc val, Tarn16sc* pDst, int len, int scaleFactor)
{
    return runScaled(lacksNegative(val) ? mulC_16sc_Ovf : mulC_16sc, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsMulC_16sc_ISfs(Tarn16sc val, Tarn16sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(lacksNegative(val) ? mulC_16sc_I_Ovf : mulC_16sc_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMulC_32s_Sfs(const Tarn32s* pSrc, Tarn32s val, Tarn32s* pDst, int len, int scaleFactor)
{
    return runProduct(mulC_32s, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsMulC_32s_ISfs(Tarn32s val, Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return runProduct(mulC_32s_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMulC_32sc_Sfs(const Tarn32sc* pSrc, Tarn32sc val, Tarn32sc* pDst, int len, int scaleFactor)
{
    return runScaled(mulC_32sc, pSrc, val, pDst, len, scaleFactor);
}

TarnStatus tarnsMulC_32sc_ISfs(Tarn32sc val, Tarn32sc* pSrcDst, int len, int scaleFactor)
{
    return runScaled(mulC_32sc_I, val, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsMulC_32f(const Tarn32f* pSrc, Tarn32f val, Tarn32f* pDst, int len)
{
    return runProduct(ownsMulC_32f, pSrc, val, pDst, len);
}

TarnStatus tarnsMulC_32f_I(Tarn32f val, Tarn32f* pSrcDst, int len)
{
    return runProduct(ownsMulC_32f_I, val, pSrcDst, len);
}

TarnStatus tarnsMulC_64f(const Tarn64f* pSrc, Tarn64f val, Tarn64f* pDst, int len)
{
    return runProduct(ownsMulC_64f, pSrc, val, pDst, len);
}

TarnStatus tarnsMulC_64f_I(Tarn64f val, Tarn64f* pSrcDst, int len)
{
    return runProduct(ownsMulC_64f_I, val, pSrcDst, len);
}

TarnStatus tarnsMulC_32fc(const Tarn32fc* pSrc, Tarn32fc val, Tarn32fc* pDst, int len)
{
    return runKernel(ownsMulC_32fc, pSrc, val, pDst, len);
}

TarnStatus tarnsMulC_32fc_I(Tarn32fc val, Tarn32fc* pSrcDst, int len)
{
    return runKernel(ownsMulC_32fc_I, val, pSrcDst, len);
}

TarnStatus tarnsMulC_64fc(const Tarn64fc* pSrc, Tarn64fc val, Tarn64fc* pDst, int len)
{
    return runKernel(ownsMulC_64fc, pSrc, val, pDst, len);
}

TarnStatus tarnsMulC_64fc_I(Tarn64fc val, Tarn64fc* pSrcDst, int len)
{
    return runKernel(ownsMulC_64fc_I, val, pSrcDst, len);
}

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
