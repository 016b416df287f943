// Kernels of the arctangent.
#include "levels/arithmetic/psarctan.h"

#include "frame/rounding.h"
#include "frame/simd_angle.h"

using namespace tarn;

void Atan_A6(const Tarn32f* pSrc, Tarn32f* pDst, int len)
{
    const StandardArithmetic guard;
    walk(pDst, len, arctangent, pSrc);
}

void Atan_W7(const Tarn64f* pSrc, Tarn64f* pDst, int len)
{
    const StandardArithmetic guard;
    walk(pDst, len, arctangent, pSrc);
}
