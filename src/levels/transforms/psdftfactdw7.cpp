// The mixed-radix transforms in double precision.
#include "frame/frontend.h"
#include "levels/transforms/psdftfact_calls.h"

using tarn::asParts;

TARN_DFT_DEFINE_PRIME_FACT(64f)
