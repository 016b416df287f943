// Front ends of the power-of-two transforms in double precision.
#include "psfft.h"

TARN_FFT_FRONT_ENDS(64f)
