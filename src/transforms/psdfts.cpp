// Front ends of the transforms of any length in single precision.
#include "transforms/psdft.h"

TARN_DFT_FRONT_ENDS(32f)
TARN_DFT_CONVOLUTIONS(32f)
