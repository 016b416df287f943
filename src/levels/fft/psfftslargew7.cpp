// The large orders of the power-of-two transforms in single precision.
#include "frame/frontend.h"
#include "levels/fft/psfft_blocks.h"

using namespace tarn;
using namespace tarn::fft;

TarnStatus tarns_createTabTwd_Large_32f(Spec<Tarn32f>* pSpec, int order, const Tarn32f* base, int baseOrder)
{
    return createLargeTables(*pSpec, order, base, baseOrder);
}

void tarns_cFftBlkMergeMpy_32fc(const Tarn32fc* pCols, Tarn32fc* work, const Tarn32f* grid, int forward, int C, int R)
{
    const RowsOfPairs<const Tarn32f, false> rows{asParts(pCols), C};
    if (forward != 0) {
        mergeLongColumns<true>(rows, asParts(work), grid, R);
    } else {
        mergeLongColumns<false>(rows, asParts(work), grid, R);
    }
}

void tarns_cFftBlkSplit_32fc(Tarn32fc* pCols, const Tarn32fc* work, int C, int R, int interleave)
{
    if (interleave == 1) {
        splitLongColumns(RowsOfPairs<Tarn32f, true>{asParts(pCols), C}, asParts(work), R);
    } else {
        splitLongColumns(RowsOfPairs<Tarn32f, false>{asParts(pCols), C}, asParts(work), R);
    }
}

void tarns_crFftBlkMergeMpy_32f(const Tarn32f* pRe, const Tarn32f* pIm, Tarn32fc* work, const Tarn32f* grid,
                                int forward, int C, int R)
{
    const RowsOfParts<const Tarn32f> rows{pRe, pIm, C};
    if (forward != 0) {
        mergeLongColumns<true>(rows, asParts(work), grid, R);
    } else {
        mergeLongColumns<false>(rows, asParts(work), grid, R);
    }
}

void tarns_crFftBlkSplit_32f(Tarn32f* pRe, Tarn32f* pIm, const Tarn32fc* work, int C, int R)
{
    splitLongColumns(RowsOfParts<Tarn32f>{pRe, pIm, C}, asParts(work), R);
}

#define TARN_FFT_DEFINE_LARGE(DIRECTION, FORWARD)                                                                      \
    void tarns_cFft##DIRECTION##_Large_32fc(const Spec<Tarn32f>* pSpec, Tarn32fc* pData, int order, Tarn32f* work)     \
    {                                                                                                                  \
        blockStep<FORWARD>(*pSpec, PairsData<Tarn32f>{asParts(pData)}, order, 0, work);                                \
    }                                                                                                                  \
    void tarns_crFft##DIRECTION##_Large_32f(const Spec<Tarn32f>* pSpec, Tarn32f* pDataRe, Tarn32f* pDataIm, int order, \
                                            Tarn32f* work)                                                             \
    {                                                                                                                  \
        blockStep<FORWARD>(*pSpec, PartsData<Tarn32f>{pDataRe, pDataIm}, order, 0, work);                              \
    }

TARN_FFT_DEFINE_LARGE(Fwd, true)
TARN_FFT_DEFINE_LARGE(Inv, false)
