// Front ends of the cosine transforms in double precision.
#include "transforms/psdct.h"

TARN_DCT_FRONT_ENDS(64f)
