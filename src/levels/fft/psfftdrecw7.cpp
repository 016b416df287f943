// Recombination of real spectra in double precision.
#include "levels/fft/psfft.h"
#include "levels/fft/psfft_recombine.h"

using namespace tarn;

Tarn64f* tarns_createTabTwdRealRec_64f(int order, const Tarn64f* base)
{
    return fft::realRecombinationTable(order, base).release();
}

Tarn64f* tarns_createTabTwdCcsRec_64f(int order, const Tarn64f* base)
{
    return fft::ccsRecombinationTable(order, base).release();
}

void tarns_cRealRecombine_64f(Tarn64f* pData, int M, int /*direction*/, const Tarn64f* table)
{
    fft::recombine<fft::ToSpectrum>(pData, pData, M, table);
}

void tarns_cCcsRecombine_64f(const Tarn64f* pSrc, Tarn64f* pDst, int M, int /*direction*/, const Tarn64f* table)
{
    fft::recombine<fft::FromSpectrum>(pSrc, pDst, M, table);
}
