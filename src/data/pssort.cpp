// Front ends of sorting.
#include "tarns/sort.h"

#include "frame/frontend.h"
#include "levels/data/pssort.h"

using namespace tarn;

namespace {

template <typename T>
TarnStatus sortInPlace(void (*kernel)(T*, int), T* pSrcDst, int len)
{
    if (const TarnStatus status = check(len, pSrcDst)) {
        return status;
    }
    if (len > 1) {
        kernel(pSrcDst, len);
    }
    return tarnStsNoErr;
}

} // namespace

#define TARN_SORT_FRONT_ENDS(TAG)                                      \
    TarnStatus tarnsSortAscend_##TAG##_I(Tarn##TAG* pSrcDst, int len)  \
    {                                                                  \
        return sortInPlace(ownsSortAscend_##TAG##_I, pSrcDst, len);    \
    }                                                                  \
    TarnStatus tarnsSortDescend_##TAG##_I(Tarn##TAG* pSrcDst, int len) \
    {                                                                  \
        return sortInPlace(ownsSortDescend_##TAG##_I, pSrcDst, len);   \
    }

TARN_SORT_FRONT_ENDS(8u)
TARN_SORT_FRONT_ENDS(16s)
TARN_SORT_FRONT_ENDS(32s)
TARN_SORT_FRONT_ENDS(32f)
TARN_SORT_FRONT_ENDS(64f)
