// Kernels of the transforms that leave a spectrum in the order in which it comes out of their levels, and take it in
// that order: neither reads or writes out of sequence.
#pragma once

#include "frame/kernels.h"
#include "levels/transforms/psdft_spec.h"

// -- The whole transform, in place or not ----------------------------------------------------------------------------

#define TARN_DFT_DECLARE_OUT_OF_ORDER(T, DIRECTION)                                               \
    TARN_KERNEL void tarns_cDft##DIRECTION##_OutOrd_##T##c(const tarn::dft::Spec<Tarn##T>* pSpec, \
                                                           const Tarn##T##c* pSrc, Tarn##T##c* pDst, Tarn##T* work)

TARN_DFT_DECLARE_OUT_OF_ORDER(32f, Fwd);
TARN_DFT_DECLARE_OUT_OF_ORDER(32f, Inv);
TARN_DFT_DECLARE_OUT_OF_ORDER(64f, Fwd);
TARN_DFT_DECLARE_OUT_OF_ORDER(64f, Inv);

// -- Its levels, in place or not -------------------------------------------------------------------------------------
//
// Prime: transforms of q points `columns` apart, one for each column, with their results in the places of the points.
// Fact: radix p on `count` blocks from block `first` on, each of p parts of `len` elements: the parts of block b are
// multiplied by the row b of the table, before (forward) or, by the conjugates, behind the butterflies. Rows have p - 1
// factors for p up to 5, and else p. `scratch` holds 2 p - 2 reals, or 2 q - 2.
#define TARN_DFT_DECLARE_BLOCKS(T, DIRECTION, P)                                                                       \
    TARN_KERNEL void tarns_cDftOutOrd##DIRECTION##_Fact##P##_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst, int len, \
                                                                    int first, int count, const Tarn##T##c* twdTab)
#define TARN_DFT_DECLARE_OUT_OF_ORDER_LEVELS(T, DIRECTION)                                                         \
    TARN_KERNEL void tarns_cDftOutOrd##DIRECTION##_Prime3_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst,         \
                                                                 int columns);                                     \
    TARN_KERNEL void tarns_cDftOutOrd##DIRECTION##_Prime5_##T##c(const Tarn##T##c* pSrc, Tarn##T##c* pDst,         \
                                                                 int columns);                                     \
    TARN_KERNEL void tarns_cDftOutOrd##DIRECTION##_Prime_##T##c(                                                   \
        const Tarn##T##c* pSrc, Tarn##T##c* pDst, int q, int columns, const Tarn##T##c* dirTab, Tarn##T* scratch); \
    TARN_DFT_DECLARE_BLOCKS(T, DIRECTION, 2);                                                                      \
    TARN_DFT_DECLARE_BLOCKS(T, DIRECTION, 3);                                                                      \
    TARN_DFT_DECLARE_BLOCKS(T, DIRECTION, 4);                                                                      \
    TARN_DFT_DECLARE_BLOCKS(T, DIRECTION, 5);                                                                      \
    TARN_KERNEL void tarns_cDftOutOrd##DIRECTION##_Fact_##T##c(                                                    \
        const Tarn##T##c* pSrc, Tarn##T##c* pDst, int p, int len, int first, int count, const Tarn##T##c* dirTab,  \
        const Tarn##T##c* twdTab, Tarn##T* scratch)

TARN_DFT_DECLARE_OUT_OF_ORDER_LEVELS(32f, Fwd);
TARN_DFT_DECLARE_OUT_OF_ORDER_LEVELS(32f, Inv);
TARN_DFT_DECLARE_OUT_OF_ORDER_LEVELS(64f, Fwd);
TARN_DFT_DECLARE_OUT_OF_ORDER_LEVELS(64f, Inv);
