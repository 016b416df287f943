// Kernels of the cosine transforms in single precision.
#include "levels/transforms/psdct.h"
#include "levels/transforms/psdct_direct.h"
#include "levels/transforms/psdct_pow2.h"
#include "levels/transforms/psdct_routes.h"

using namespace tarn;

TARN_DCT_DEFINE_KERNELS(32f)

template struct tarn::dct::Kernels<Tarn32f>;
