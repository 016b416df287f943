// The tables of the power-of-two transforms in single precision.
#include "levels/fft/psfft.h"
#include "levels/fft/psfft_tables.h"

using namespace tarn;

Tarn32f* tarns_createTabTwdBase_32f(int order) { return fft::baseTable<Tarn32f>(order).release(); }

Tarn32f* tarns_createTabTwd_L1_32f(int order, const Tarn32f* base, int baseOrder)
{
    return fft::stageTable(order, base, baseOrder).release();
}
