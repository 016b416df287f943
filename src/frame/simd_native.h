// The registers of this level, and what a compiler can do with them only by a name for each width: one name for all
// widths here. Everything wider than 16 bytes is the same operation on more elements, with the same bits; where an
// instruction works within each 16 bytes of a wider register, its name here says so (inLanes).
#pragma once

#include "tarncore.h"

// The bytes of the widest register, from the build's level. The only place that knows.
#ifndef TARNS_REGISTER_BYTES
#define TARNS_REGISTER_BYTES 16
#endif

#if TARNS_REGISTER_BYTES > 16
#include <immintrin.h>
#else
#include <pmmintrin.h>
#endif

#define TARN_INLINE __attribute__((always_inline)) inline

namespace tarn {

inline constexpr int widestRegister = TARNS_REGISTER_BYTES;

namespace native {

template <bool single, bool twice, int bytes>
struct RegisterType;
#define TARN_REGISTER_TYPES(BYTES, I, F, D)    \
    template <>                                \
    struct RegisterType<false, false, BYTES> { \
        using type = I;                        \
    };                                         \
    template <>                                \
    struct RegisterType<true, false, BYTES> {  \
        using type = F;                        \
    };                                         \
    template <>                                \
    struct RegisterType<false, true, BYTES> {  \
        using type = D;                        \
    }
TARN_REGISTER_TYPES(16, __m128i, __m128, __m128d);
#if TARNS_REGISTER_BYTES >= 32
TARN_REGISTER_TYPES(32, __m256i, __m256, __m256d);
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_REGISTER_TYPES(64, __m512i, __m512, __m512d);
#endif
#undef TARN_REGISTER_TYPES

// -- Memory, at any address; stores past the caches lie on a boundary of the register's bytes -------------------------

#define TARN_MEMORY(V, E, PREFIX, SUFFIX)                                                                 \
    TARN_INLINE void load(V& x, const void* p) { x = PREFIX##_loadu_##SUFFIX(static_cast<const E*>(p)); } \
    TARN_INLINE void store(void* p, V x) { PREFIX##_storeu_##SUFFIX(static_cast<E*>(p), x); }             \
    TARN_INLINE void stream(void* p, V x) { PREFIX##_stream_##SUFFIX(static_cast<E*>(p), x); }
TARN_MEMORY(__m128i, __m128i, _mm, si128)
TARN_MEMORY(__m128, float, _mm, ps)
TARN_MEMORY(__m128d, double, _mm, pd)
#if TARNS_REGISTER_BYTES >= 32
TARN_MEMORY(__m256i, __m256i, _mm256, si256)
TARN_MEMORY(__m256, float, _mm256, ps)
TARN_MEMORY(__m256d, double, _mm256, pd)
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_MEMORY(__m512i, __m512i, _mm512, si512)
TARN_MEMORY(__m512, float, _mm512, ps)
TARN_MEMORY(__m512d, double, _mm512, pd)
#endif
#undef TARN_MEMORY

// -- Halves -----------------------------------------------------------------------------------------------------------

// Declared for levels whose only register has none.
void join();
void low();
void high();
void signs64();

#define TARN_HALVES(V, H, JOIN, LOW, HIGH)             \
    TARN_INLINE V join(H low, H high) { return JOIN; } \
    TARN_INLINE H low(V x) { return LOW(x); }          \
    TARN_INLINE H high(V x) { return HIGH(x, 1); }
#if TARNS_REGISTER_BYTES >= 32
TARN_HALVES(__m256i, __m128i, _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1), _mm256_castsi256_si128,
            _mm256_extracti128_si256)
TARN_HALVES(__m256, __m128, _mm256_insertf128_ps(_mm256_castps128_ps256(low), high, 1), _mm256_castps256_ps128,
            _mm256_extractf128_ps)
TARN_HALVES(__m256d, __m128d, _mm256_insertf128_pd(_mm256_castpd128_pd256(low), high, 1), _mm256_castpd256_pd128,
            _mm256_extractf128_pd)
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_HALVES(__m512i, __m256i, _mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1), _mm512_castsi512_si256,
            _mm512_extracti64x4_epi64)
TARN_HALVES(__m512, __m256, _mm512_insertf32x8(_mm512_castps256_ps512(low), high, 1), _mm512_castps512_ps256,
            _mm512_extractf32x8_ps)
TARN_HALVES(__m512d, __m256d, _mm512_insertf64x4(_mm512_castpd256_pd512(low), high, 1), _mm512_castpd512_pd256,
            _mm512_extractf64x4_pd)
#endif
#undef TARN_HALVES

// -- One value in every place -----------------------------------------------------------------------------------------

#define TARN_SPLATS(I, F, D, PREFIX, SPREAD)                                \
    TARN_INLINE void splat(F& x, Tarn32f e) { x = PREFIX##_set1_ps(e); }    \
    TARN_INLINE void splat(D& x, Tarn64f e) { x = PREFIX##_set1_pd(e); }    \
    TARN_INLINE void splat(I& x, Tarn32s e) { x = PREFIX##_set1_epi32(e); } \
    TARN_INLINE void splat(I& x, Tarn16s e) { x = PREFIX##_set1_epi16(e); } \
    TARN_INLINE void splat(I& x, Tarn8s e) { x = PREFIX##_set1_epi8(e); }   \
    TARN_INLINE void splat(I& x, __m128i e) { x = SPREAD(e); }
TARN_SPLATS(__m128i, __m128, __m128d, _mm, )
#if TARNS_REGISTER_BYTES >= 32
TARN_SPLATS(__m256i, __m256, __m256d, _mm256, _mm256_broadcastsi128_si256)
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_SPLATS(__m512i, __m512, __m512d, _mm512, _mm512_broadcast_i32x4)
#endif
#undef TARN_SPLATS

// -- Two operands, one result, all of one register type ---------------------------------------------------------------

#define TARN_128(NAME, V, CALL) \
    TARN_INLINE V NAME(V a, V b) { return CALL(a, b); }
#if TARNS_REGISTER_BYTES >= 32
#define TARN_256(NAME, V, CALL) TARN_128(NAME, V, CALL)
#else
#define TARN_256(NAME, V, CALL)
#endif
#if TARNS_REGISTER_BYTES >= 64
#define TARN_512(NAME, V, CALL) TARN_128(NAME, V, CALL)
#else
#define TARN_512(NAME, V, CALL)
#endif

#define TARN_INTEGERS(NAME, STEM)          \
    TARN_128(NAME, __m128i, _mm_##STEM)    \
    TARN_256(NAME, __m256i, _mm256_##STEM) \
    TARN_512(NAME, __m512i, _mm512_##STEM)
// What came with the wider registers.
#define TARN_WIDE_INTEGERS(NAME, STEM)     \
    void NAME();                           \
    TARN_256(NAME, __m256i, _mm256_##STEM) \
    TARN_512(NAME, __m512i, _mm512_##STEM)
#define TARN_FLOATS(NAME, STEM)                 \
    TARN_128(NAME, __m128, _mm_##STEM##_ps)     \
    TARN_256(NAME, __m256, _mm256_##STEM##_ps)  \
    TARN_512(NAME, __m512, _mm512_##STEM##_ps)  \
    TARN_128(NAME, __m128d, _mm_##STEM##_pd)    \
    TARN_256(NAME, __m256d, _mm256_##STEM##_pd) \
    TARN_512(NAME, __m512d, _mm512_##STEM##_pd)
#define TARN_BITS(NAME, STEM)                      \
    TARN_128(NAME, __m128i, _mm_##STEM##_si128)    \
    TARN_256(NAME, __m256i, _mm256_##STEM##_si256) \
    TARN_512(NAME, __m512i, _mm512_##STEM##_si512) \
    TARN_FLOATS(NAME, STEM)

TARN_BITS(bitAnd, and)
TARN_BITS(bitOr, or)
TARN_BITS(bitXor, xor)
TARN_BITS(bitAndNot, andnot)
TARN_FLOATS(add, add)
TARN_FLOATS(sub, sub)
TARN_FLOATS(mul, mul)
TARN_FLOATS(div, div)
TARN_FLOATS(min, min)
TARN_FLOATS(max, max)
TARN_INTEGERS(add8, add_epi8)
TARN_INTEGERS(add16, add_epi16)
TARN_INTEGERS(add32, add_epi32)
TARN_INTEGERS(add64, add_epi64)
TARN_INTEGERS(sub8, sub_epi8)
TARN_INTEGERS(sub16, sub_epi16)
TARN_INTEGERS(sub32, sub_epi32)
TARN_INTEGERS(sub64, sub_epi64)
TARN_INTEGERS(add8s, adds_epi8)
TARN_INTEGERS(add8u, adds_epu8)
TARN_INTEGERS(add16u, adds_epu16)
TARN_INTEGERS(add16s, adds_epi16)
TARN_INTEGERS(sub8s, subs_epi8)
TARN_INTEGERS(sub8u, subs_epu8)
TARN_INTEGERS(sub16u, subs_epu16)
TARN_INTEGERS(sub16s, subs_epi16)
TARN_INTEGERS(min8u, min_epu8)
TARN_INTEGERS(max8u, max_epu8)
TARN_INTEGERS(min16s, min_epi16)
TARN_INTEGERS(max16s, max_epi16)
TARN_WIDE_INTEGERS(min8s, min_epi8)
TARN_WIDE_INTEGERS(max8s, max_epi8)
TARN_WIDE_INTEGERS(min16u, min_epu16)
TARN_WIDE_INTEGERS(max16u, max_epu16)
TARN_WIDE_INTEGERS(min32s, min_epi32)
TARN_WIDE_INTEGERS(max32s, max_epi32)
TARN_WIDE_INTEGERS(min32u, min_epu32)
TARN_WIDE_INTEGERS(max32u, max_epu32)
TARN_WIDE_INTEGERS(mulEven32s, mul_epi32)
TARN_INTEGERS(mulLow16, mullo_epi16)
TARN_INTEGERS(mulHigh16s, mulhi_epi16)
TARN_INTEGERS(mulHigh16u, mulhi_epu16)
TARN_INTEGERS(mulEven32u, mul_epu32)
TARN_INTEGERS(mulAddPairs, madd_epi16)
TARN_INTEGERS(zipLow8InLanes, unpacklo_epi8)
TARN_INTEGERS(zipHigh8InLanes, unpackhi_epi8)
TARN_INTEGERS(zipLow16InLanes, unpacklo_epi16)
TARN_INTEGERS(zipHigh16InLanes, unpackhi_epi16)
TARN_INTEGERS(zipLow32InLanes, unpacklo_epi32)
TARN_INTEGERS(zipHigh32InLanes, unpackhi_epi32)
TARN_INTEGERS(zipLow64InLanes, unpacklo_epi64)
TARN_INTEGERS(zipHigh64InLanes, unpackhi_epi64)
TARN_INTEGERS(narrow32To16sInLanes, packs_epi32)
TARN_FLOATS(zipLowInLanes, unpacklo)
TARN_FLOATS(zipHighInLanes, unpackhi)

#undef TARN_BITS
#undef TARN_FLOATS
#undef TARN_INTEGERS
#undef TARN_WIDE_INTEGERS

// Comparisons give masks of whole lanes. The widest registers compare into registers of bits, which are spread.
#define TARN_COMPARE_INTEGERS(NAME, STEM, SUFFIX)  \
    TARN_128(NAME, __m128i, _mm_##STEM##_##SUFFIX) \
    TARN_256(NAME, __m256i, _mm256_##STEM##_##SUFFIX)
TARN_COMPARE_INTEGERS(greater8s, cmpgt, epi8)
TARN_COMPARE_INTEGERS(greater16s, cmpgt, epi16)
TARN_COMPARE_INTEGERS(greater32s, cmpgt, epi32)
TARN_COMPARE_INTEGERS(equal8, cmpeq, epi8)
TARN_COMPARE_INTEGERS(equal16, cmpeq, epi16)
TARN_COMPARE_INTEGERS(equal32, cmpeq, epi32)
#undef TARN_COMPARE_INTEGERS

#if TARNS_REGISTER_BYTES >= 32
#define TARN_COMPARE_256(NAME, PREDICATE)                                                  \
    TARN_INLINE __m256 NAME(__m256 a, __m256 b) { return _mm256_cmp_ps(a, b, PREDICATE); } \
    TARN_INLINE __m256d NAME(__m256d a, __m256d b) { return _mm256_cmp_pd(a, b, PREDICATE); }
#else
#define TARN_COMPARE_256(NAME, PREDICATE)
#endif
#if TARNS_REGISTER_BYTES >= 64
#define TARN_COMPARE_512(NAME, PREDICATE)                                                         \
    TARN_INLINE __m512 NAME(__m512 a, __m512 b)                                                   \
    {                                                                                             \
        return reinterpret_cast<__m512>(_mm512_movm_epi32(_mm512_cmp_ps_mask(a, b, PREDICATE)));  \
    }                                                                                             \
    TARN_INLINE __m512d NAME(__m512d a, __m512d b)                                                \
    {                                                                                             \
        return reinterpret_cast<__m512d>(_mm512_movm_epi64(_mm512_cmp_pd_mask(a, b, PREDICATE))); \
    }
#define TARN_COMPARE_INTEGERS_512(NAME, STEM, SUFFIX)                       \
    TARN_INLINE __m512i NAME(__m512i a, __m512i b)                          \
    {                                                                       \
        return _mm512_movm_##SUFFIX(_mm512_##STEM##_##SUFFIX##_mask(a, b)); \
    }
TARN_COMPARE_INTEGERS_512(greater8s, cmpgt, epi8)
TARN_COMPARE_INTEGERS_512(greater16s, cmpgt, epi16)
TARN_COMPARE_INTEGERS_512(greater32s, cmpgt, epi32)
TARN_COMPARE_INTEGERS_512(equal8, cmpeq, epi8)
TARN_COMPARE_INTEGERS_512(equal16, cmpeq, epi16)
TARN_COMPARE_INTEGERS_512(equal32, cmpeq, epi32)
#undef TARN_COMPARE_INTEGERS_512
#else
#define TARN_COMPARE_512(NAME, PREDICATE)
#endif
#define TARN_COMPARE(NAME, STEM, PREDICATE)     \
    TARN_128(NAME, __m128, _mm_cmp##STEM##_ps)  \
    TARN_128(NAME, __m128d, _mm_cmp##STEM##_pd) \
    TARN_COMPARE_256(NAME, PREDICATE)           \
    TARN_COMPARE_512(NAME, PREDICATE)
TARN_COMPARE(greater, gt, _CMP_GT_OS)
TARN_COMPARE(less, lt, _CMP_LT_OS)
TARN_COMPARE(notLess, nlt, _CMP_NLT_US)
TARN_COMPARE(notBelow, ge, _CMP_GE_OS)
TARN_COMPARE(notAbove, le, _CMP_LE_OS)
TARN_COMPARE(equal, eq, _CMP_EQ_OQ)
TARN_COMPARE(unordered, unord, _CMP_UNORD_Q)
#undef TARN_COMPARE
#undef TARN_COMPARE_256
#undef TARN_COMPARE_512

#undef TARN_128
#undef TARN_256
#undef TARN_512

// `yes` where the mask is set, `no` elsewhere, from masks of whole lanes.
#define TARN_SELECT(V) \
    TARN_INLINE V select(V mask, V yes, V no) { return bitOr(bitAnd(mask, yes), bitAndNot(mask, no)); }
TARN_SELECT(__m128i)
TARN_SELECT(__m128)
TARN_SELECT(__m128d)
#undef TARN_SELECT
#if TARNS_REGISTER_BYTES >= 32
TARN_INLINE __m256i select(__m256i mask, __m256i yes, __m256i no) { return _mm256_blendv_epi8(no, yes, mask); }
TARN_INLINE __m256 select(__m256 mask, __m256 yes, __m256 no) { return _mm256_blendv_ps(no, yes, mask); }
TARN_INLINE __m256d select(__m256d mask, __m256d yes, __m256d no) { return _mm256_blendv_pd(no, yes, mask); }
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_INLINE __m512i select(__m512i mask, __m512i yes, __m512i no)
{
    return _mm512_ternarylogic_epi32(mask, yes, no, 0xCA);
}
TARN_INLINE __m512 select(__m512 mask, __m512 yes, __m512 no)
{
    return _mm512_castsi512_ps(select(_mm512_castps_si512(mask), _mm512_castps_si512(yes), _mm512_castps_si512(no)));
}
TARN_INLINE __m512d select(__m512d mask, __m512d yes, __m512d no)
{
    return _mm512_castsi512_pd(select(_mm512_castpd_si512(mask), _mm512_castpd_si512(yes), _mm512_castpd_si512(no)));
}
#endif

// A bit for the top of each byte; whether any byte of a mask is set, and whether all are.
TARN_INLINE unsigned bytesSet(__m128i mask) { return static_cast<unsigned>(_mm_movemask_epi8(mask)); }
TARN_INLINE bool anySet(__m128i mask) { return _mm_movemask_epi8(mask) != 0; }
TARN_INLINE bool allSet(__m128i mask) { return _mm_movemask_epi8(mask) == 0xFFFF; }
#if TARNS_REGISTER_BYTES >= 32
TARN_INLINE unsigned bytesSet(__m256i mask) { return static_cast<unsigned>(_mm256_movemask_epi8(mask)); }
TARN_INLINE bool anySet(__m256i mask) { return _mm256_movemask_epi8(mask) != 0; }
TARN_INLINE bool allSet(__m256i mask) { return _mm256_movemask_epi8(mask) == -1; }
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_INLINE unsigned long long bytesSet(__m512i mask) { return _mm512_movepi8_mask(mask); }
TARN_INLINE bool anySet(__m512i mask) { return _mm512_test_epi32_mask(mask, mask) != 0; }
TARN_INLINE bool allSet(__m512i mask) { return _mm512_cmpneq_epi32_mask(mask, _mm512_set1_epi32(-1)) == 0; }
#endif

TARN_INLINE bool anySign(__m128 x) { return _mm_movemask_ps(x) != 0; }
TARN_INLINE bool anySign(__m128d x) { return _mm_movemask_pd(x) != 0; }
#if TARNS_REGISTER_BYTES >= 32
TARN_INLINE bool anySign(__m256 x) { return _mm256_movemask_ps(x) != 0; }
TARN_INLINE bool anySign(__m256d x) { return _mm256_movemask_pd(x) != 0; }
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_INLINE bool anySign(__m512 x) { return _mm512_movepi32_mask(_mm512_castps_si512(x)) != 0; }
TARN_INLINE bool anySign(__m512d x) { return _mm512_movepi64_mask(_mm512_castpd_si512(x)) != 0; }
#endif

// All ones where an element of 64 bits is negative.
#if TARNS_REGISTER_BYTES >= 32
TARN_INLINE __m256i signs64(__m256i x) { return _mm256_cmpgt_epi64(_mm256_setzero_si256(), x); }
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_INLINE __m512i signs64(__m512i x) { return _mm512_srai_epi64(x, 63); }
#endif

// -- Shifts by a common count -----------------------------------------------------------------------------------------

// A count that is no constant makes two operations of a shift of wider registers, and one where every lane has its own.
#define TARN_SHIFT_BY_ONE(NAME, V, PREFIX, STEM, SUFFIX, SPREAD, COUNT) \
    TARN_INLINE V NAME(V x, int n) { return PREFIX##_##STEM##_##SUFFIX(x, _mm_cvtsi32_si128(n)); }
#define TARN_SHIFT_BY_LANES(NAME, V, PREFIX, STEM, SUFFIX, SPREAD, COUNT)                           \
    TARN_INLINE V NAME(V x, int n)                                                                  \
    {                                                                                               \
        return __builtin_constant_p(n)                                                              \
                   ? PREFIX##_##STEM##_##SUFFIX(x, _mm_cvtsi32_si128(n))                            \
                   : PREFIX##_##STEM##v_##SUFFIX(x, PREFIX##_set1_##SPREAD(static_cast<COUNT>(n))); \
    }
#define TARN_SHIFTS(OF_WORDS, OTHERS, V, PREFIX, SPREAD64)         \
    OF_WORDS(shiftLeft16, V, PREFIX, sll, epi16, epi16, Tarn16s)   \
    OF_WORDS(shiftRight16u, V, PREFIX, srl, epi16, epi16, Tarn16s) \
    OF_WORDS(shiftRight16s, V, PREFIX, sra, epi16, epi16, Tarn16s) \
    OTHERS(shiftLeft32, V, PREFIX, sll, epi32, epi32, Tarn32s)     \
    OTHERS(shiftRight32u, V, PREFIX, srl, epi32, epi32, Tarn32s)   \
    OTHERS(shiftRight32s, V, PREFIX, sra, epi32, epi32, Tarn32s)   \
    OTHERS(shiftLeft64, V, PREFIX, sll, epi64, SPREAD64, Tarn64s)  \
    OTHERS(shiftRight64u, V, PREFIX, srl, epi64, SPREAD64, Tarn64s)
TARN_SHIFTS(TARN_SHIFT_BY_ONE, TARN_SHIFT_BY_ONE, __m128i, _mm, epi64x)
#if TARNS_REGISTER_BYTES >= 32
TARN_SHIFTS(TARN_SHIFT_BY_ONE, TARN_SHIFT_BY_LANES, __m256i, _mm256, epi64x)
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_SHIFTS(TARN_SHIFT_BY_LANES, TARN_SHIFT_BY_LANES, __m512i, _mm512, epi64)
#endif
#undef TARN_SHIFTS
#undef TARN_SHIFT_BY_ONE
#undef TARN_SHIFT_BY_LANES

// -- One operand ------------------------------------------------------------------------------------------------------

// The approximations of the widest registers have other bits, so that theirs are made in two halves.
#define TARN_ONE_OPERAND(NAME, V, EXPRESSION) \
    TARN_INLINE V NAME(V x) { return EXPRESSION; }
#define TARN_ROOTS_AND_ESTIMATES(F, D, PREFIX)                \
    TARN_ONE_OPERAND(squareRoot, F, PREFIX##_sqrt_ps(x))      \
    TARN_ONE_OPERAND(squareRoot, D, PREFIX##_sqrt_pd(x))      \
    TARN_ONE_OPERAND(approxReciprocal, F, PREFIX##_rcp_ps(x)) \
    TARN_ONE_OPERAND(approxReciprocalRoot, F, PREFIX##_rsqrt_ps(x))
TARN_ROOTS_AND_ESTIMATES(__m128, __m128d, _mm)
#if TARNS_REGISTER_BYTES >= 32
TARN_ROOTS_AND_ESTIMATES(__m256, __m256d, _mm256)
#endif
#if TARNS_REGISTER_BYTES >= 64
TARN_ONE_OPERAND(squareRoot, __m512, _mm512_sqrt_ps(x))
TARN_ONE_OPERAND(squareRoot, __m512d, _mm512_sqrt_pd(x))
TARN_ONE_OPERAND(approxReciprocal, __m512, join(_mm256_rcp_ps(low(x)), _mm256_rcp_ps(high(x))))
TARN_ONE_OPERAND(approxReciprocalRoot, __m512, join(_mm256_rsqrt_ps(low(x)), _mm256_rsqrt_ps(high(x))))
#endif
#undef TARN_ROOTS_AND_ESTIMATES
#undef TARN_ONE_OPERAND

} // namespace native
} // namespace tarn
