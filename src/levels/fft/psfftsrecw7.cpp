// Recombination of real spectra in single precision.
#include "levels/fft/psfft.h"
#include "levels/fft/psfft_recombine.h"

using namespace tarn;

Tarn32f* tarns_createTabTwdRealRec_32f(int order, const Tarn32f* base)
{
    return fft::realRecombinationTable(order, base).release();
}

Tarn32f* tarns_createTabTwdCcsRec_32f(int order, const Tarn32f* base)
{
    return fft::ccsRecombinationTable(order, base).release();
}

void tarns_cRealRecombine_32f(Tarn32f* pData, int M, int /*direction*/, const Tarn32f* table)
{
    fft::recombine<fft::ToSpectrum>(pData, pData, M, table);
}

void tarns_cCcsRecombine_32f(const Tarn32f* pSrc, Tarn32f* pDst, int M, int /*direction*/, const Tarn32f* table)
{
    fft::recombine<fft::FromSpectrum>(pSrc, pDst, M, table);
}
