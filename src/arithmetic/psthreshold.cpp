// Front ends of the thresholds. One front end a type does the work; the others name their comparison.
#include "tarns/threshold.h"

#include "frame/frontend.h"
#include "levels/arithmetic/psthreshold.h"

using namespace tarn;

namespace {

template <typename T>
using LimitKernel = void (*)(const T*, T*, int, Part<T>, int);
template <typename T>
using ReplaceKernel = void (*)(const T*, T*, int, Part<T>, T);
template <typename T>
using BandKernel = void (*)(const T*, T*, int, T, T, T, T);
template <typename T>
using InverseKernel = int (*)(const T*, T*, int, Part<T>);

// Magnitudes have no negative bounds. A NaN is not below 0.
template <typename T>
TarnStatus checkLevel(const T* pSrc, const T* pDst, int len, Part<T> level)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    return isComplex<T> && level < 0 ? tarnStsThreshNegLevelErr : tarnStsNoErr;
}

// No magnitude is below 0, and one element only is not above it.
template <typename T>
void limitToZero(const T* pSrc, T* pDst, int len, int relOp)
{
    if (relOp == tarnCmpGreater) {
        zeroFill(pDst, len);
    } else if (pSrc != pDst) {
        copy(pSrc, pDst, len);
    }
}

template <typename T>
TarnStatus limit(LimitKernel<T> kernel, const T* pSrc, T* pDst, int len, Part<T> level, int relOp)
{
    if (const TarnStatus status = checkLevel(pSrc, pDst, len, level)) {
        return status;
    }
    if (isComplex<T> && level == 0) {
        limitToZero(pSrc, pDst, len, relOp);
    } else {
        kernel(pSrc, pDst, len, level, relOp);
    }
    return tarnStsNoErr;
}

template <typename T>
TarnStatus replace(ReplaceKernel<T> kernel, const T* pSrc, T* pDst, int len, Part<T> level, T value)
{
    if (const TarnStatus status = checkLevel(pSrc, pDst, len, level)) {
        return status;
    }
    kernel(pSrc, pDst, len, level, value);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus band(BandKernel<T> kernel, const T* pSrc, T* pDst, int len, T levelLT, T valueLT, T levelGT, T valueGT)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (levelLT > levelGT) {
        return tarnStsThresholdErr;
    }
    kernel(pSrc, pDst, len, levelLT, valueLT, levelGT, valueGT);
    return tarnStsNoErr;
}

// Only a level of at least 0 gets through, which a NaN is not.
template <typename T>
TarnStatus invert(InverseKernel<T> kernel, const T* pSrc, T* pDst, int len, Part<T> level)
{
    if (const TarnStatus status = check(len, pSrc, pDst)) {
        return status;
    }
    if (!(level >= 0)) {
        return tarnStsThreshNegLevelErr;
    }
    return kernel(pSrc, pDst, len, level) ? tarnStsInvZero : tarnStsNoErr;
}

} // namespace

#define TARN_LIMIT_FRONT_ENDS(FORM, TAG, LEVEL, RELOP)                                                     \
    TarnStatus tarnsThreshold_##FORM##_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level) \
    {                                                                                                      \
        return limit(owntarnsThresh_##TAG, pSrc, pDst, len, level, RELOP);                                 \
    }                                                                                                      \
    TarnStatus tarnsThreshold_##FORM##_##TAG##_I(Tarn##TAG* pSrcDst, int len, LEVEL level)                 \
    {                                                                                                      \
        return tarnsThreshold_##FORM##_##TAG(pSrcDst, pSrcDst, len, level);                                \
    }

#define TARN_REPLACE_FRONT_ENDS(SIDE, TAG, LEVEL)                                                              \
    TarnStatus tarnsThreshold_##SIDE##Val_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level,  \
                                                Tarn##TAG value)                                               \
    {                                                                                                          \
        return replace(owntarnsThresh##SIDE##Value_##TAG, pSrc, pDst, len, level, value);                      \
    }                                                                                                          \
    TarnStatus tarnsThreshold_##SIDE##Val_##TAG##_I(Tarn##TAG* pSrcDst, int len, LEVEL level, Tarn##TAG value) \
    {                                                                                                          \
        return replace<Tarn##TAG>(owntarnsThresh##SIDE##Value_##TAG, pSrcDst, pSrcDst, len, level, value);     \
    }

#define TARN_THRESHOLD_FRONT_ENDS(TAG, LEVEL)                                                                \
    TarnStatus tarnsThreshold_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level, int relOp) \
    {                                                                                                        \
        return limit(owntarnsThresh_##TAG, pSrc, pDst, len, level, relOp);                                   \
    }                                                                                                        \
    TarnStatus tarnsThreshold_##TAG##_I(Tarn##TAG* pSrcDst, int len, LEVEL level, int relOp)                 \
    {                                                                                                        \
        return tarnsThreshold_##TAG(pSrcDst, pSrcDst, len, level, relOp);                                    \
    }                                                                                                        \
    TARN_LIMIT_FRONT_ENDS(LT, TAG, LEVEL, tarnCmpLess)                                                       \
    TARN_LIMIT_FRONT_ENDS(GT, TAG, LEVEL, tarnCmpGreater)                                                    \
    TARN_REPLACE_FRONT_ENDS(LT, TAG, LEVEL)                                                                  \
    TARN_REPLACE_FRONT_ENDS(GT, TAG, LEVEL)

TARN_THRESHOLDS(TARN_THRESHOLD_FRONT_ENDS)
TARN_LIMIT_FRONT_ENDS(LT, 32s, Tarn32s, tarnCmpLess)

#define TARN_BAND_FRONT_ENDS(TAG)                                                                                     \
    TarnStatus tarnsThreshold_LTValGTVal_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, Tarn##TAG levelLT,    \
                                               Tarn##TAG valueLT, Tarn##TAG levelGT, Tarn##TAG valueGT)               \
    {                                                                                                                 \
        return band(owntarnsThreshLTValueGTValue_##TAG, pSrc, pDst, len, levelLT, valueLT, levelGT, valueGT);         \
    }                                                                                                                 \
    TarnStatus tarnsThreshold_LTValGTVal_##TAG##_I(Tarn##TAG* pSrcDst, int len, Tarn##TAG levelLT, Tarn##TAG valueLT, \
                                                   Tarn##TAG levelGT, Tarn##TAG valueGT)                              \
    {                                                                                                                 \
        return tarnsThreshold_LTValGTVal_##TAG(pSrcDst, pSrcDst, len, levelLT, valueLT, levelGT, valueGT);            \
    }

TARN_BAND_THRESHOLDS(TARN_BAND_FRONT_ENDS)

#define TARN_INVERSE_FRONT_ENDS(TAG, LEVEL)                                                             \
    TarnStatus tarnsThreshold_LTInv_##TAG(const Tarn##TAG* pSrc, Tarn##TAG* pDst, int len, LEVEL level) \
    {                                                                                                   \
        return invert(owntarnsInvThresh_##TAG, pSrc, pDst, len, level);                                 \
    }                                                                                                   \
    TarnStatus tarnsThreshold_LTInv_##TAG##_I(Tarn##TAG* pSrcDst, int len, LEVEL level)                 \
    {                                                                                                   \
        return tarnsThreshold_LTInv_##TAG(pSrcDst, pSrcDst, len, level);                                \
    }

TARN_INVERSE_THRESHOLDS(TARN_INVERSE_FRONT_ENDS)
