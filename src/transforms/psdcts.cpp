// Front ends of the cosine transforms in single precision.
#include "transforms/psdct.h"

TARN_DCT_FRONT_ENDS(32f)
