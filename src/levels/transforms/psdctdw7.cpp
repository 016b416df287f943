// Kernels of the cosine transforms in double precision.
#include "levels/transforms/psdct.h"
#include "levels/transforms/psdct_direct.h"
#include "levels/transforms/psdct_pow2.h"
#include "levels/transforms/psdct_routes.h"

using namespace tarn;

TARN_DCT_DEFINE_KERNELS(64f)

template struct tarn::dct::Kernels<Tarn64f>;
