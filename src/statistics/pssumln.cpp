// Front ends of sums of logarithms.
#include "tarns/statistics.h"

#include "frame/checks.h"
#include "frame/simd.h"
#include "levels/statistics/pssum.h"

using namespace tarn;

namespace {

template <typename T, typename D>
TarnStatus sumLn(int (*kernel)(const T*, int, long double*), const T* pSrc, int len, D* pSum)
{
    if (const TarnStatus status = check(len, pSrc, pSum)) {
        return status;
    }
    long double sum;
    const TarnStatus status = kernel(pSrc, len, &sum);
    store(pSum, static_cast<D>(sum));
    return status;
}

} // namespace

TarnStatus tarnsSumLn_32f(const Tarn32f* pSrc, int len, Tarn32f* pSum) { return sumLn(Sum_Ln32f_W7, pSrc, len, pSum); }

TarnStatus tarnsSumLn_64f(const Tarn64f* pSrc, int len, Tarn64f* pSum) { return sumLn(Sum_Ln64f_W7, pSrc, len, pSum); }

TarnStatus tarnsSumLn_32f64f(const Tarn32f* pSrc, int len, Tarn64f* pSum)
{
    return sumLn(Sum_Ln32f_W7, pSrc, len, pSum);
}

TarnStatus tarnsSumLn_16s32f(const Tarn16s* pSrc, int len, Tarn32f* pSum)
{
    return sumLn(Sum_Ln16s_W7, pSrc, len, pSum);
}
