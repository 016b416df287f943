// The tables of the power-of-two transforms in double precision.
#include "levels/fft/psfft.h"
#include "levels/fft/psfft_tables.h"

using namespace tarn;

Tarn64f* tarns_createTabTwdBase_64f(int order) { return fft::baseTable<Tarn64f>(order).release(); }

Tarn64f* tarns_createTabTwd_L1_64f(int order, const Tarn64f* base, int baseOrder)
{
    return fft::stageTable(order, base, baseOrder).release();
}
