// Front ends of FIR filters with taps of single precision.
#include "tarns/fir.h"

#include "fir/psfir_build.h"
#include "fir/psfir_filter.h"
#include "fir/psfir_names.h"

using namespace tarn;

TARN_DEFINE_FIR_BUILDER(32f)
TARN_DEFINE_FIR_BUILDER(32fc)

TARN_DEFINE_FIR_STATE(_32f, Tarn32f, Tarn32f)
TARN_DEFINE_FIR_STATE(_32fc, Tarn32fc, Tarn32fc)
TARN_DEFINE_FIR_STATE(32f_16s, Tarn32f, Tarn16s)
TARN_DEFINE_FIR_STATE(32fc_16sc, Tarn32fc, Tarn16sc)

TARN_DEFINE_FIR_FILTER(_32f, Tarn32f)
TARN_DEFINE_FIR_FILTER(_32fc, Tarn32fc)
TARN_DEFINE_FIR_FILTER_SFS(32f_16s, Tarn16s)
TARN_DEFINE_FIR_FILTER_SFS(32fc_16sc, Tarn16sc)
