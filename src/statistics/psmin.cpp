// Front ends of the minimum of a vector, with and without its place, and of the minimum of two vectors by elements.
#include "tarns/statistics.h"

#include "frame/frontend.h"
#include "levels/statistics/psminmax.h"
#include "statistics/psextreme.h"

using namespace tarn;

TarnStatus tarnsMin_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin)
{
    return extreme(owntarnsMin_16s, pSrc, len, pMin);
}

TarnStatus tarnsMin_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin)
{
    return extreme(owntarnsMin_32f, pSrc, len, pMin);
}

TarnStatus tarnsMin_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin)
{
    return extreme(owntarnsMin_64f, pSrc, len, pMin);
}

TarnStatus tarnsMinIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin, int* pIndx)
{
    const auto kernel = len >= blocks_16s ? ownsMinIndx_16s : ownsMinIndx_16s_M6;
    return extremeAndIndex(tarnsMin_16s, kernel, pSrc, len, pMin, pIndx);
}

TarnStatus tarnsMinIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin, int* pIndx)
{
    const bool blocks = len >= blocks_32f && addressOf(pSrc) % sizeof(Tarn32f) == 0;
    return extremeAndIndex(tarnsMin_32f, blocks ? ownsMinIndx_32f : ownsMinIndx_32f_M6, pSrc, len, pMin, pIndx);
}

TarnStatus tarnsMinIndx_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin, int* pIndx)
{
    return extremeAndIndex(tarnsMin_64f, ownsMinIndx_64f_M6, pSrc, len, pMin, pIndx);
}

TarnStatus tarnsMinEvery_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len)
{
    return runKernel(ownsMinEvery_16s_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMinEvery_32s_I(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len)
{
    return runKernel(ownsMinEvery_32s_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMinEvery_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len)
{
    return runKernel(ownsMinEvery_32f_I, pSrc, pSrcDst, len);
}
