// The transforms out of order in double precision.
#include "frame/frontend.h"
#include "levels/transforms/psdftoutord.h"
#include "levels/transforms/psdftoutord_levels.h"

using tarn::asParts;

TARN_DFT_DEFINE_OUT_OF_ORDER(64f, Fwd, true)
TARN_DFT_DEFINE_OUT_OF_ORDER(64f, Inv, false)
