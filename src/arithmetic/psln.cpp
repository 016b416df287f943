// Front ends of the logarithms.
#include "tarns/exponential.h"

#include "frame/factor.h"
#include "frame/frontend.h"
#include "levels/arithmetic/psln.h"

using namespace tarn;

namespace {

TarnStatus statusOf(int met)
{
    return met == 0 ? tarnStsNoErr : met == logarithmsMetZero ? tarnStsLnZeroArg : tarnStsLnNegArg;
}

// Checks, then a kernel that answers what it met.
template <typename S, typename D>
TarnStatus runNoting(int (*kernel)(const S*, D*, int), const S* pSrc, D* pDst, int len)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    return statusOf(kernel(pSrc, pDst, len));
}

// The factor of a negative scale factor. A hundred places are far beyond what any logarithm but 0 can grow by, and
// leave 0 what it is.
Tarn32f factorOf(int scaleFactor) { return twoToMinus<Tarn32f>(std::max(scaleFactor, -100)); }

template <typename S, typename D>
TarnStatus scaledLogarithm(int (*byFactor)(const S*, D*, int, Tarn32f), int (*byTree)(const S*, D*, int, int),
                           const S* pSrc, D* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    return statusOf(scaleFactor < 0 ? byFactor(pSrc, pDst, len, factorOf(scaleFactor))
                                    : byTree(pSrc, pDst, len, scaleFactor));
}

TarnStatus logarithm16s(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    return statusOf(logarithms(pSrc, pDst, len, scaleFactor));
}

} // namespace

TarnStatus tarnsLn_16s_Sfs(const Tarn16s* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    return logarithm16s(pSrc, pDst, len, scaleFactor);
}

TarnStatus tarnsLn_16s_ISfs(Tarn16s* pSrcDst, int len, int scaleFactor)
{
    return logarithm16s(pSrcDst, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsLn_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int len, int scaleFactor)
{
    return scaledLogarithm<Tarn32s, Tarn32s>(Ln32s_W7, logarithms, pSrc, pDst, len, scaleFactor);
}

TarnStatus tarnsLn_32s_ISfs(Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return tarnsLn_32s_Sfs(pSrcDst, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsLn_32s16s_Sfs(const Tarn32s* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    return scaledLogarithm<Tarn32s, Tarn16s>(logarithmsByFactor, logarithms, pSrc, pDst, len, scaleFactor);
}

TarnStatus tarns10Log10_32s_Sfs(const Tarn32s* pSrc, Tarn32s* pDst, int len, int scaleFactor)
{
    return scaledLogarithm<Tarn32s, Tarn32s>(Ten_Lg32s_W7, decibels, pSrc, pDst, len, scaleFactor);
}

TarnStatus tarns10Log10_32s_ISfs(Tarn32s* pSrcDst, int len, int scaleFactor)
{
    return tarns10Log10_32s_Sfs(pSrcDst, pSrcDst, len, scaleFactor);
}

TarnStatus tarnsLn_32f(const Tarn32f* pSrc, Tarn32f* pDst, int len) { return runNoting(Ln32f_W7, pSrc, pDst, len); }

TarnStatus tarnsLn_32f_I(Tarn32f* pSrcDst, int len) { return runNoting<Tarn32f>(Ln32f_W7, pSrcDst, pSrcDst, len); }

TarnStatus tarnsLn_64f(const Tarn64f* pSrc, Tarn64f* pDst, int len)
{
    return runNoting(tarnsLn64f_P6, pSrc, pDst, len);
}

TarnStatus tarnsLn_64f_I(Tarn64f* pSrcDst, int len) { return runNoting<Tarn64f>(tarnsLn64f_P6, pSrcDst, pSrcDst, len); }

TarnStatus tarnsLn_64f32f(const Tarn64f* pSrc, Tarn32f* pDst, int len)
{
    return runNoting(tarnsLn64f32f_P6, pSrc, pDst, len);
}
