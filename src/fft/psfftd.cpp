// Front ends of the power-of-two transforms in double precision.
#include "fft/psfft.h"

TARN_FFT_FRONT_ENDS(64f)
