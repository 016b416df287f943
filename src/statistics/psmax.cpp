// Front ends of the maximum of a vector, with and without its place, and of the maximum of two vectors by elements.
#include "tarns/statistics.h"

#include "frame/frontend.h"
#include "levels/statistics/psminmax.h"
#include "statistics/psextreme.h"

using namespace tarn;

TarnStatus tarnsMax_16s(const Tarn16s* pSrc, int len, Tarn16s* pMax)
{
    return extreme(owntarnsMax_16s, pSrc, len, pMax);
}

TarnStatus tarnsMax_32f(const Tarn32f* pSrc, int len, Tarn32f* pMax)
{
    return extreme(owntarnsMax_32f, pSrc, len, pMax);
}

TarnStatus tarnsMax_64f(const Tarn64f* pSrc, int len, Tarn64f* pMax)
{
    return extreme(owntarnsMax_64f, pSrc, len, pMax);
}

TarnStatus tarnsMaxIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMax, int* pIndx)
{
    const auto kernel = len >= blocks_16s ? ownsMaxIndx_16s : ownsMaxIndx_16s_M6;
    return extremeAndIndex(tarnsMax_16s, kernel, pSrc, len, pMax, pIndx);
}

TarnStatus tarnsMaxIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMax, int* pIndx)
{
    const bool blocks = len >= blocks_32f && addressOf(pSrc) % sizeof(Tarn32f) == 0;
    return extremeAndIndex(tarnsMax_32f, blocks ? ownsMaxIndx_32f : ownsMaxIndx_32f_M6, pSrc, len, pMax, pIndx);
}

TarnStatus tarnsMaxIndx_64f(const Tarn64f* pSrc, int len, Tarn64f* pMax, int* pIndx)
{
    return extremeAndIndex(tarnsMax_64f, ownsMaxIndx_64f_M6, pSrc, len, pMax, pIndx);
}

TarnStatus tarnsMaxEvery_16s_I(const Tarn16s* pSrc, Tarn16s* pSrcDst, int len)
{
    return runKernel(ownsMaxEvery_16s_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMaxEvery_32s_I(const Tarn32s* pSrc, Tarn32s* pSrcDst, int len)
{
    return runKernel(ownsMaxEvery_32s_I, pSrc, pSrcDst, len);
}

TarnStatus tarnsMaxEvery_32f_I(const Tarn32f* pSrc, Tarn32f* pSrcDst, int len)
{
    return runKernel(ownsMaxEvery_32f_I, pSrc, pSrcDst, len);
}
