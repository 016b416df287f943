// Front ends of the power-of-two transforms in single precision.
#include "fft/psfft.h"

TARN_FFT_FRONT_ENDS(32f)
