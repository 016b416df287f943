// Front ends of the Jaehne signal.
#include "levels/generators/psjaehne.h"

#include "frame/checks.h"
#include "frame/object.h"
#include "tarns/generators.h"

using namespace tarn;

namespace {

// A NaN counts as negative.
template <typename T>
TarnStatus makeJaehne(T* pDst, int len, T magn)
{
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    if (!(magn >= 0)) {
        return tarnStsMagnitudeErr;
    }
    jaehne(pDst, len, static_cast<double>(magn));
    return tarnStsNoErr;
}

template <typename T>
TarnStatus makeUnsignedJaehne(T* pDst, int len, T magn)
{
    if (const TarnStatus status = check(len, pDst)) {
        return status;
    }
    const Owned<Tarn64f[]> work = allocate<Tarn64f>(len);
    if (!work) {
        return tarnStsNoMemErr;
    }
    jaehneUnsigned(pDst, len, static_cast<double>(magn), work.get());
    return tarnStsNoErr;
}

} // namespace

#define TARN_JAEHNE(TAG, MAKE) \
    TarnStatus tarnsVectorJaehne_##TAG(Tarn##TAG* pDst, int len, Tarn##TAG magn) { return MAKE(pDst, len, magn); }

TARN_JAEHNE(8u, makeUnsignedJaehne)
TARN_JAEHNE(8s, makeJaehne)
TARN_JAEHNE(16u, makeUnsignedJaehne)
TARN_JAEHNE(16s, makeJaehne)
TARN_JAEHNE(32u, makeUnsignedJaehne)
TARN_JAEHNE(32s, makeJaehne)
TARN_JAEHNE(32f, makeJaehne)
TARN_JAEHNE(64f, makeJaehne)
