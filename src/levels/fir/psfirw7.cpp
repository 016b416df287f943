// Block kernels of FIR filters with floating taps.
#include "levels/fir/psfir.h"
#include "levels/fir/psfir_block.h"

using namespace tarn;

#define TARN_DEFINE_FIR_BLOCK(NAME, T, S, FILTER)                                     \
    void NAME(const Part<T>* pTapsX4, const S* pSrc, T* pDst, int count, int tapsLen) \
    {                                                                                 \
        FILTER(pTapsX4, pSrc, pDst, count, tapsLen);                                  \
    }

TARN_DEFINE_FIR_BLOCK(ownFIRSR_32f, Tarn32f, Tarn32f, filterBlock)
TARN_DEFINE_FIR_BLOCK(ownFIRSR_32fc, Tarn32fc, Tarn32fc, filterBlock)
TARN_DEFINE_FIR_BLOCK(ownFIRSR32f_16s, Tarn32f, Tarn16s, filterConverted)
TARN_DEFINE_FIR_BLOCK(ownFIRSR32fc_16sc, Tarn32fc, Tarn16sc, filterConverted)
TARN_DEFINE_FIR_BLOCK(ownFIRSR_64f, Tarn64f, Tarn64f, filterBlock)
TARN_DEFINE_FIR_BLOCK(ownFIRSR_64fc, Tarn64fc, Tarn64fc, filterBlock)
TARN_DEFINE_FIR_BLOCK(ownFIRSR64f_32f, Tarn64f, Tarn32f, filterConverted)
TARN_DEFINE_FIR_BLOCK(ownFIRSR64fc_32fc, Tarn64fc, Tarn32fc, filterConverted)
TARN_DEFINE_FIR_BLOCK(ownFIRSR64f_32s, Tarn64f, Tarn32s, filterConverted)
TARN_DEFINE_FIR_BLOCK(ownFIRSR64fc_32sc, Tarn64fc, Tarn32sc, filterConverted)
TARN_DEFINE_FIR_BLOCK(ownFIRSR64f_16s, Tarn64f, Tarn16s, filterConverted)
TARN_DEFINE_FIR_BLOCK(ownFIRSR64fc_16sc, Tarn64fc, Tarn16sc, filterConverted)
