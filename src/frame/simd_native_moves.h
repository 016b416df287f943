// Moves and conversions of registers by one name for all widths: pairs of lanes, and elements that change their width.
#pragma once

#include "frame/simd_shuffle.h"

namespace tarn {
namespace native {

// -- Pairs of lanes ---------------------------------------------------------------------------------------------------

// Neighbours exchanged, the even one in both places, the odd one there.
TARN_INLINE __m128 exchanged(__m128 x) { return _mm_shuffle_ps(x, x, 0xB1); }
TARN_INLINE __m128d exchanged(__m128d x) { return _mm_shuffle_pd(x, x, 1); }
TARN_INLINE __m128 evenTwice(__m128 x) { return _mm_moveldup_ps(x); }
TARN_INLINE __m128d evenTwice(__m128d x) { return _mm_unpacklo_pd(x, x); }
TARN_INLINE __m128 oddTwice(__m128 x) { return _mm_movehdup_ps(x); }
TARN_INLINE __m128d oddTwice(__m128d x) { return _mm_unpackhi_pd(x, x); }
// a minus b at even places, a plus b at odd ones.
TARN_INLINE __m128 subAdd(__m128 a, __m128 b) { return _mm_addsub_ps(a, b); }
TARN_INLINE __m128d subAdd(__m128d a, __m128d b) { return _mm_addsub_pd(a, b); }
// The sum of each two neighbours, those of a before those of b.
TARN_INLINE __m128 pairSums(__m128 a, __m128 b) { return _mm_hadd_ps(a, b); }
TARN_INLINE __m128d pairSums(__m128d a, __m128d b) { return _mm_hadd_pd(a, b); }

// PLACES has a bit for each double of a register, all of them set.
#define TARN_WIDE_PAIRS(F, D, PREFIX, PLACES)                                     \
    TARN_INLINE F exchanged(F x) { return PREFIX##_permute_ps(x, 0xB1); }         \
    TARN_INLINE D exchanged(D x) { return PREFIX##_permute_pd(x, (PLACES) / 3); } \
    TARN_INLINE F evenTwice(F x) { return PREFIX##_moveldup_ps(x); }              \
    TARN_INLINE D evenTwice(D x) { return PREFIX##_movedup_pd(x); }               \
    TARN_INLINE F oddTwice(F x) { return PREFIX##_movehdup_ps(x); }               \
    TARN_INLINE D oddTwice(D x) { return PREFIX##_permute_pd(x, PLACES); }        \
    TARN_INLINE F pairSums(F a, F b) { return add(shuffle<4, Even>(a, b), shuffle<4, Odd>(a, b)); }
#if TARNS_REGISTER_BYTES >= 32
TARN_WIDE_PAIRS(__m256, __m256d, _mm256, 0xF)
TARN_INLINE __m256 subAdd(__m256 a, __m256 b) { return _mm256_addsub_ps(a, b); }
TARN_INLINE __m256d subAdd(__m256d a, __m256d b) { return _mm256_addsub_pd(a, b); }
TARN_INLINE __m256d pairSums(__m256d a, __m256d b) { return shuffle<8, InLanesToOrder>(_mm256_hadd_pd(a, b)); }
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_WIDE_PAIRS(__m512, __m512d, _mm512, 0xFF)
// A product by one is exact, so that the sum is all that is rounded.
TARN_INLINE __m512 subAdd(__m512 a, __m512 b) { return _mm512_fmaddsub_ps(a, _mm512_set1_ps(1), b); }
TARN_INLINE __m512d subAdd(__m512d a, __m512d b) { return _mm512_fmaddsub_pd(a, _mm512_set1_pd(1), b); }
TARN_INLINE __m512d pairSums(__m512d a, __m512d b) { return add(shuffle<8, Even>(a, b), shuffle<8, Odd>(a, b)); }
#endif
#undef TARN_WIDE_PAIRS

// -- Other widths of elements -----------------------------------------------------------------------------------------

// Two registers of elements that are twice as wide, saturated, in their order.
TARN_INLINE __m128i narrow16To8u(__m128i a, __m128i b) { return _mm_packus_epi16(a, b); }
TARN_INLINE __m128i narrow16To8s(__m128i a, __m128i b) { return _mm_packs_epi16(a, b); }
TARN_INLINE __m128i narrow32To16s(__m128i a, __m128i b) { return narrow32To16sInLanes(a, b); }
#define TARN_WIDE_NARROWING(I, PREFIX)                                                                       \
    TARN_INLINE I narrow16To8u(I a, I b) { return shuffle<8, InLanesToOrder>(PREFIX##_packus_epi16(a, b)); } \
    TARN_INLINE I narrow16To8s(I a, I b) { return shuffle<8, InLanesToOrder>(PREFIX##_packs_epi16(a, b)); }  \
    TARN_INLINE I narrow32To16s(I a, I b) { return shuffle<8, InLanesToOrder>(narrow32To16sInLanes(a, b)); }
// Declared for levels whose only register has none.
void widen8u();
void widen8s();
void widen16u();
void widen16s();
void toDoubles();
// Twice as wide, in as many registers of twice the bytes.
#define TARN_WIDENING(H, I, PREFIX)                                    \
    TARN_INLINE I widen8u(H x) { return PREFIX##_cvtepu8_epi16(x); }   \
    TARN_INLINE I widen8s(H x) { return PREFIX##_cvtepi8_epi16(x); }   \
    TARN_INLINE I widen16u(H x) { return PREFIX##_cvtepu16_epi32(x); } \
    TARN_INLINE I widen16s(H x) { return PREFIX##_cvtepi16_epi32(x); }
// Between integers and floats, in the current rounding mode; `truncate` towards zero.
#define TARN_CONVERSIONS(I, F, PREFIX)                              \
    TARN_INLINE F toFloats(I x) { return PREFIX##_cvtepi32_ps(x); } \
    TARN_INLINE I round(F x) { return PREFIX##_cvtps_epi32(x); }    \
    TARN_INLINE I truncate(F x) { return PREFIX##_cvttps_epi32(x); }
#define TARN_CONVERSIONS_OF_DOUBLES(HI, HF, D, PREFIX)                \
    TARN_INLINE D toDoubles(HI x) { return PREFIX##_cvtepi32_pd(x); } \
    TARN_INLINE D toDoubles(HF x) { return PREFIX##_cvtps_pd(x); }    \
    TARN_INLINE HF toFloats(D x) { return PREFIX##_cvtpd_ps(x); }     \
    TARN_INLINE HI round(D x) { return PREFIX##_cvtpd_epi32(x); }     \
    TARN_INLINE HI truncate(D x) { return PREFIX##_cvttpd_epi32(x); }
TARN_CONVERSIONS(__m128i, __m128, _mm)
#if TARNS_REGISTER_BYTES >= 32
TARN_WIDE_NARROWING(__m256i, _mm256)
TARN_WIDENING(__m128i, __m256i, _mm256)
TARN_CONVERSIONS(__m256i, __m256, _mm256)
TARN_CONVERSIONS_OF_DOUBLES(__m128i, __m128, __m256d, _mm256)
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_WIDE_NARROWING(__m512i, _mm512)
TARN_WIDENING(__m256i, __m512i, _mm512)
TARN_CONVERSIONS(__m512i, __m512, _mm512)
TARN_CONVERSIONS_OF_DOUBLES(__m256i, __m256, __m512d, _mm512)
#endif
#undef TARN_WIDE_NARROWING
#undef TARN_WIDENING
#undef TARN_CONVERSIONS
#undef TARN_CONVERSIONS_OF_DOUBLES

} // namespace native
} // namespace tarn
