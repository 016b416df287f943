// Front ends of FIR filters with taps of double precision.
#include "tarns/fir.h"

#include "fir/psfir_build.h"
#include "fir/psfir_filter.h"
#include "fir/psfir_names.h"

using namespace tarn;

TARN_DEFINE_FIR_BUILDER(64f)
TARN_DEFINE_FIR_BUILDER(64fc)

TARN_DEFINE_FIR_STATE(_64f, Tarn64f, Tarn64f)
TARN_DEFINE_FIR_STATE(_64fc, Tarn64fc, Tarn64fc)
TARN_DEFINE_FIR_STATE(64f_32f, Tarn64f, Tarn32f)
TARN_DEFINE_FIR_STATE(64fc_32fc, Tarn64fc, Tarn32fc)
TARN_DEFINE_FIR_STATE(64f_32s, Tarn64f, Tarn32s)
TARN_DEFINE_FIR_STATE(64fc_32sc, Tarn64fc, Tarn32sc)
TARN_DEFINE_FIR_STATE(64f_16s, Tarn64f, Tarn16s)
TARN_DEFINE_FIR_STATE(64fc_16sc, Tarn64fc, Tarn16sc)

TARN_DEFINE_FIR_FILTER(_64f, Tarn64f)
TARN_DEFINE_FIR_FILTER(_64fc, Tarn64fc)
TARN_DEFINE_FIR_FILTER(64f_32f, Tarn32f)
TARN_DEFINE_FIR_FILTER(64fc_32fc, Tarn32fc)
TARN_DEFINE_FIR_FILTER_SFS(64f_32s, Tarn32s)
TARN_DEFINE_FIR_FILTER_SFS(64fc_32sc, Tarn32sc)
TARN_DEFINE_FIR_FILTER_SFS(64f_16s, Tarn16s)
TARN_DEFINE_FIR_FILTER_SFS(64fc_16sc, Tarn16sc)

TarnStatus ownsFIRSR64f_32f(const Tarn32f* pSrc, Tarn32f* pDst, int numIters, TarnsFIRState64f_32f* pState)
{
    return runDirect(pSrc, pDst, numIters, pState);
}

TarnStatus ownsFIRSR64fc_32fc(const Tarn32fc* pSrc, Tarn32fc* pDst, int numIters, TarnsFIRState64fc_32fc* pState)
{
    return runDirect(pSrc, pDst, numIters, pState);
}
