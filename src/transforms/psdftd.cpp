// Front ends of the transforms of any length in double precision.
#include "transforms/psdft.h"

TARN_DFT_FRONT_ENDS(64f)
TARN_DFT_CONVOLUTIONS(64f)
