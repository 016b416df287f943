// The transforms out of order in single precision.
#include "frame/frontend.h"
#include "levels/transforms/psdftoutord.h"
#include "levels/transforms/psdftoutord_levels.h"

using tarn::asParts;

TARN_DFT_DEFINE_OUT_OF_ORDER(32f, Fwd, true)
TARN_DFT_DEFINE_OUT_OF_ORDER(32f, Inv, false)
