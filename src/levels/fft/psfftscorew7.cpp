// The radix-4 core of the power-of-two transforms in single precision.
#include "levels/fft/psfft.h"
#include "levels/fft/psfft_core.h"

using tarn::asParts;

TARN_FFT_DEFINE_CORES(32f, Fwd, true)
TARN_FFT_DEFINE_CORES(32f, Inv, false)

void tarns_rbMpy1_32f(Tarn32f factor, Tarn32f* pData, int len) { tarn::fft::scaleInPlace(factor, pData, len); }
