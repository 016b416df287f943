// Kernels of the transforms of any length in double precision.
#include "levels/transforms/psdft_kernels.h"

using namespace tarn;

TARN_DFT_DEFINE_KERNELS(64f)
