// The radix-4 core of the power-of-two transforms in double precision.
#include "levels/fft/psfft.h"
#include "levels/fft/psfft_core.h"

using tarn::asParts;

TARN_FFT_DEFINE_CORES(64f, Fwd, true)
TARN_FFT_DEFINE_CORES(64f, Inv, false)

void tarns_rbMpy1_64f(Tarn64f factor, Tarn64f* pData, int len) { tarn::fft::scaleInPlace(factor, pData, len); }
