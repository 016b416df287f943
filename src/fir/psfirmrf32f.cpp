// Front ends of multi-rate FIR filters with taps of single precision.
#include "tarns/fir.h"
#include "tarns/firmr.h"

#include "fir/psfirmr_build.h"
#include "fir/psfirmr_filter.h"
#include "fir/psfirmr_names.h"

using namespace tarn;

TARN_DEFINE_FIRMR_REAL_BUILDERS(32f)
TARN_DEFINE_FIRMR_COMPLEX_BUILDERS(32fc)

TARN_DEFINE_FIRMR_STATE(_32f, Tarn32f, Tarn32f)
TARN_DEFINE_FIRMR_STATE(_32fc, Tarn32fc, Tarn32fc)
TARN_DEFINE_FIRMR_STATE(32f_16s, Tarn32f, Tarn16s)
TARN_DEFINE_FIRMR_STATE(32fc_16sc, Tarn32fc, Tarn16sc)

TARN_DEFINE_FIRMR_DRIVERS(, _32f, Tarn32f)
TARN_DEFINE_FIRMR_DRIVERS(_SFS, 32f_16s, Tarn16s)

TARN_DEFINE_FIRMR_FILTER(_32f, Tarn32f)
TARN_DEFINE_FIRMR_FILTER(_32fc, Tarn32fc)
TARN_DEFINE_FIRMR_FILTER_SFS(32f_16s, Tarn16s)
TARN_DEFINE_FIRMR_FILTER_SFS(32fc_16sc, Tarn16sc)
