// The large orders of the power-of-two transforms in double precision.
#include "frame/frontend.h"
#include "levels/fft/psfft_blocks.h"

using namespace tarn;
using namespace tarn::fft;

TarnStatus tarns_createTabTwd_Large_64f(Spec<Tarn64f>* pSpec, int order, const Tarn64f* base, int baseOrder)
{
    return createLargeTables(*pSpec, order, base, baseOrder);
}

void tarns_cFftBlkMergeMpy_64fc(const Tarn64fc* pCols, Tarn64fc* work, const Tarn64f* grid, int forward, int C, int R)
{
    const RowsOfPairs<const Tarn64f, false> rows{asParts(pCols), C};
    if (forward != 0) {
        mergeLongColumns<true>(rows, asParts(work), grid, R);
    } else {
        mergeLongColumns<false>(rows, asParts(work), grid, R);
    }
}

void tarns_cFftBlkSplit_64fc(Tarn64fc* pCols, const Tarn64fc* work, int C, int R, int interleave)
{
    if (interleave == 1) {
        splitLongColumns(RowsOfPairs<Tarn64f, true>{asParts(pCols), C}, asParts(work), R);
    } else {
        splitLongColumns(RowsOfPairs<Tarn64f, false>{asParts(pCols), C}, asParts(work), R);
    }
}

void tarns_crFftBlkMergeMpy_64f(const Tarn64f* pRe, const Tarn64f* pIm, Tarn64fc* work, const Tarn64f* grid,
                                int forward, int C, int R)
{
    const RowsOfParts<const Tarn64f> rows{pRe, pIm, C};
    if (forward != 0) {
        mergeLongColumns<true>(rows, asParts(work), grid, R);
    } else {
        mergeLongColumns<false>(rows, asParts(work), grid, R);
    }
}

void tarns_crFftBlkSplit_64f(Tarn64f* pRe, Tarn64f* pIm, const Tarn64fc* work, int C, int R)
{
    splitLongColumns(RowsOfParts<Tarn64f>{pRe, pIm, C}, asParts(work), R);
}

#define TARN_FFT_DEFINE_LARGE(DIRECTION, FORWARD)                                                                      \
    void tarns_cFft##DIRECTION##_Large_64fc(const Spec<Tarn64f>* pSpec, Tarn64fc* pData, int order, Tarn64f* work)     \
    {                                                                                                                  \
        blockStep<FORWARD>(*pSpec, PairsData<Tarn64f>{asParts(pData)}, order, 0, work);                                \
    }                                                                                                                  \
    void tarns_crFft##DIRECTION##_Large_64f(const Spec<Tarn64f>* pSpec, Tarn64f* pDataRe, Tarn64f* pDataIm, int order, \
                                            Tarn64f* work)                                                             \
    {                                                                                                                  \
        blockStep<FORWARD>(*pSpec, PartsData<Tarn64f>{pDataRe, pDataIm}, order, 0, work);                              \
    }

TARN_FFT_DEFINE_LARGE(Fwd, true)
TARN_FFT_DEFINE_LARGE(Inv, false)
