// Front ends of both extremes in one pass, with and without their places.
#include "tarns/statistics.h"

#include "frame/checks.h"
#include "frame/simd.h"
#include "levels/statistics/psminmax.h"

using namespace tarn;

namespace {

template <typename T>
using Kernel = void (*)(const T*, int, T*, T*);

template <typename T>
TarnStatus extremes(Kernel<T> kernel, const T* pSrc, int len, T* pMin, T* pMax)
{
    if (const TarnStatus status = check(len, pSrc, pMin, pMax)) {
        return status;
    }
    kernel(pSrc, len, pMin, pMax);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus extremesAndIndices(Kernel<T> kernel, const T* pSrc, int len, T* pMin, int* pMinIndx, T* pMax, int* pMaxIndx)
{
    if (const TarnStatus status = check(len, pSrc, pMin, pMinIndx, pMax, pMaxIndx)) {
        return status;
    }
    kernel(pSrc, len, pMin, pMax);
    store(pMinIndx, firstMatch(pSrc, len, loadElement(pMin)));
    store(pMaxIndx, firstMatch(pSrc, len, loadElement(pMax)));
    return tarnStsNoErr;
}

} // namespace

TarnStatus tarnsMinMax_8u(const Tarn8u* pSrc, int len, Tarn8u* pMin, Tarn8u* pMax)
{
    return extremes(MiniMax_8u_T7, pSrc, len, pMin, pMax);
}

TarnStatus tarnsMinMax_16u(const Tarn16u* pSrc, int len, Tarn16u* pMin, Tarn16u* pMax)
{
    return extremes(MiniMax_16u_W7, pSrc, len, pMin, pMax);
}

TarnStatus tarnsMinMax_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin, Tarn16s* pMax)
{
    return extremes(MiniMax_16s_T7, pSrc, len, pMin, pMax);
}

TarnStatus tarnsMinMax_32u(const Tarn32u* pSrc, int len, Tarn32u* pMin, Tarn32u* pMax)
{
    return extremes(minMax_32u, pSrc, len, pMin, pMax);
}

TarnStatus tarnsMinMax_32s(const Tarn32s* pSrc, int len, Tarn32s* pMin, Tarn32s* pMax)
{
    return extremes(MiniMax_32s_T7, pSrc, len, pMin, pMax);
}

TarnStatus tarnsMinMax_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin, Tarn32f* pMax)
{
    return extremes(MiniMax_32f_W7, pSrc, len, pMin, pMax);
}

TarnStatus tarnsMinMax_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin, Tarn64f* pMax)
{
    return extremes(MiniMax_64f_T7, pSrc, len, pMin, pMax);
}

TarnStatus tarnsMinMaxIndx_8u(const Tarn8u* pSrc, int len, Tarn8u* pMin, int* pMinIndx, Tarn8u* pMax, int* pMaxIndx)
{
    return extremesAndIndices(MiniMax_8u_T7, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}

TarnStatus tarnsMinMaxIndx_16u(const Tarn16u* pSrc, int len, Tarn16u* pMin, int* pMinIndx, Tarn16u* pMax, int* pMaxIndx)
{
    return extremesAndIndices(MiniMax_16u_W7, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}

TarnStatus tarnsMinMaxIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin, int* pMinIndx, Tarn16s* pMax, int* pMaxIndx)
{
    return extremesAndIndices(MiniMax_16s_T7, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}

TarnStatus tarnsMinMaxIndx_32u(const Tarn32u* pSrc, int len, Tarn32u* pMin, int* pMinIndx, Tarn32u* pMax, int* pMaxIndx)
{
    return extremesAndIndices(minMax_32u, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}

TarnStatus tarnsMinMaxIndx_32s(const Tarn32s* pSrc, int len, Tarn32s* pMin, int* pMinIndx, Tarn32s* pMax, int* pMaxIndx)
{
    return extremesAndIndices(MiniMax_32s_T7, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}

TarnStatus tarnsMinMaxIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin, int* pMinIndx, Tarn32f* pMax, int* pMaxIndx)
{
    return extremesAndIndices(MiniMax_32f_W7, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}

TarnStatus tarnsMinMaxIndx_64f(const Tarn64f* pSrc, int len, Tarn64f* pMin, int* pMinIndx, Tarn64f* pMax, int* pMaxIndx)
{
    return extremesAndIndices(MiniMax_64f_T7, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}
