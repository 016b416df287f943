/* Core of the library: element types, special values, status texts, version record, processor identification and
   floating-point control. Valid C99 and C++. */
#ifndef TARNCORE_H
#define TARNCORE_H

#include "tarns/status.h"

/** Marks what the shared object exports. */
#define TARN_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup types Element types
    What the arrays of the library hold: integers of 8 to 64 bits, IEEE floats, and pairs of either as complex numbers.

    @code{.c}
    Tarn16sc z[2] = {{3, -4}, {5, 12}};
    const Tarn16s* parts = (const Tarn16s*)z; // the same four numbers in a row
    printf("%d %d %d\n", (int)sizeof z, parts[1], parts[2]); // 8 -4 5
    @endcode

    __Accuracy:__ integers saturate and round as each function tells; floats are IEEE 754 singles and doubles.

    __Cost:__ a vector holds 16 elements of 8 bits where it holds two of 64: the shortest type that does is the fastest.

    __Guide:__ [How names are formed](docs/naming.md).

    The tag in a function's name tells the element type of its arrays: tarnsAdd_16s works on Tarn16s. Arrays need be
    aligned to nothing.
    @{ */
typedef unsigned char Tarn8u;     /**< unsigned 8-bit integer */
typedef signed char Tarn8s;       /**< signed 8-bit integer */
typedef unsigned short Tarn16u;   /**< unsigned 16-bit integer */
typedef signed short Tarn16s;     /**< signed 16-bit integer */
typedef unsigned int Tarn32u;     /**< unsigned 32-bit integer */
typedef signed int Tarn32s;       /**< signed 32-bit integer */
typedef signed long long Tarn64s; /**< signed 64-bit integer */
typedef float Tarn32f;            /**< IEEE 754 single precision */
typedef double Tarn64f;           /**< IEEE 754 double precision */

/** Complex pair of Tarn8s. An array of n complex elements of any type is bit for bit an array of 2n real ones, the
    real parts at even indices. */
typedef struct {
    Tarn8s re; /**< real part */
    Tarn8s im; /**< imaginary part */
} Tarn8sc;

/** Complex pair of Tarn16s. */
typedef struct {
    Tarn16s re; /**< real part */
    Tarn16s im; /**< imaginary part */
} Tarn16sc;

/** Complex pair of Tarn32s. */
typedef struct {
    Tarn32s re; /**< real part */
    Tarn32s im; /**< imaginary part */
} Tarn32sc;

/** Complex pair of Tarn64s. */
typedef struct {
    Tarn64s re; /**< real part */
    Tarn64s im; /**< imaginary part */
} Tarn64sc;

/** Complex pair of Tarn32f. */
typedef struct {
    Tarn32f re; /**< real part */
    Tarn32f im; /**< imaginary part */
} Tarn32fc;

/** Complex pair of Tarn64f. */
typedef struct {
    Tarn64f re; /**< real part */
    Tarn64f im; /**< imaginary part */
} Tarn64fc;
/** @} */

/** @defgroup core Status texts, version and special values
    What every caller may want, whatever it computes: the text of a status, the build that runs, the patterns of NaN and
    the infinities, and the hint between speed and accuracy.

    @code{.c}
    const Tarn32f x[4] = {0};
    Tarn32f total;
    const TarnStatus status = tarnsSum_32f(x, 0, &total, tarnAlgHintNone);
    printf("%d %s\n", status, tarnGetStatusString(status)); // -6 Wrong value of data size
    @endcode

    __Accuracy:__ nothing is computed here.

    __Cost:__ a text is found in a table; the version is the address of a constant.

    __Guide:__ [The order of checks](docs/checks.md), which tells what a status promises.
    @{ */

/** Choice between a fast and an accurate algorithm, where a function offers one. An integer, since every value is
    accepted: those without a name below mean the function's default. */
typedef int TarnHintAlgorithm;

/** Values of TarnHintAlgorithm. */
enum {
    tarnAlgHintNone = 0,    /**< no preference */
    tarnAlgHintFast = 1,    /**< speed before accuracy */
    tarnAlgHintAccurate = 2 /**< accuracy before speed */
};

/** Special floating-point values, one bit pattern for the library and its callers. The NaN has its sign bit set: it is
    the pattern that the processor produces for an invalid operation, so that a NaN written by the library's own code
    cannot be told from one that an instruction produced. */
///@{
TARN_API extern const Tarn32f tarnConstantOfNAN_32f;     /* 0xFFC00000 */
TARN_API extern const Tarn32f tarnConstantOfINF_32f;     /* 0x7F800000 */
TARN_API extern const Tarn32f tarnConstantOfINF_NEG_32f; /* 0xFF800000 */
TARN_API extern const Tarn64f tarnConstantOfNAN_64f;     /* 0xFFF8000000000000 */
TARN_API extern const Tarn64f tarnConstantOfINF_64f;     /* 0x7FF0000000000000 */
TARN_API extern const Tarn64f tarnConstantOfINF_NEG_64f; /* 0xFFF0000000000000 */
///@}

/** Gives the text of a status code.

    @param status any integer
    @return constant text that lives as long as the library, never to be freed or changed; "Unknown Status Code" for a
            value that is no code. Cannot fail. */
///@{
TARN_API const char* tarnGetStatusString(TarnStatus status);
TARN_API const char* tarnCoreGetStatusString(TarnStatus status);
///@}

/** Tells which build of the library runs. */
typedef struct {
    int major;             /**< major version */
    int minor;             /**< minor version */
    int majorBuild;        /**< build number within the major version */
    int build;             /**< build number */
    char targetCpu[4];     /**< vector level of the build: "t7" SSE3, "y8" AVX2, "z9" AVX-512; padded with zero bytes */
    const char* name;      /**< name of the library's file */
    const char* version;   /**< version as text */
    const char* buildDate; /**< date of the build as text */
} TarnLibraryVersion;

/** Gives the version record.

    @return address of a constant record, the same on every call. Cannot fail. */
TARN_API const TarnLibraryVersion* tarnsGetLibVersion(void);
/** @} */

/** @defgroup cpu Processor identification
    Tells what the processor can do, and reads its clock: a service for callers who choose among builds of their own.
    The library's kernels are settled when it is built, and no result depends on what these functions answer. Nothing is
    cached, each call executes the instruction afresh.

    @code{.c}
    const unsigned long long before = tarnGetCpuClocks();
    TarnCpuIdent ident = {0};
    tarn_get_cpu_ident(&ident);
    printf("%d %d\n", ident.hasSse2, tarnGetCpuClocks() > before); // 1 1
    @endcode

    __Accuracy:__ clocks are those of the time-stamp counter, which runs at a rate of its own and is not serialised.

    __Cost:__ some hundred cycles for each CPUID, and a microsecond under a hypervisor, which has to be asked; some tens
    of cycles for the clocks.

    __Guide:__ [The same bits everywhere](docs/reproducibility.md) tells which level of the library a program gets.
    @{ */

/** Processor types, the results of tarnGetCpuType(). */
enum {
    tarnCpuUnknown = 0,    /**< no CPUID instruction, another vendor, or a family without a name here */
    tarnCpuF5 = 1,         /**< family 5 without MMX */
    tarnCpuF5Mmx = 2,      /**< family 5 with MMX */
    tarnCpuF6 = 3,         /**< family 6 without MMX, SSE, SSE2 */
    tarnCpuF6Mmx = 4,      /**< family 6 with MMX, without SSE and SSE2 */
    tarnCpuF6Ssx = 5,      /**< family 6 with SSE, without SSE2 */
    tarnCpuF15Sse2 = 6,    /**< family 15 with SSE2, without SSE3 and hyper-threading */
    tarnCpuF15Sse2Htt = 7, /**< family 15 with SSE2 and hyper-threading, without SSE3 */
    tarnCpuF15Sse3 = 8,    /**< family 15 with SSE2 and SSE3 */
    tarnCpuF6Sse2 = 9,     /**< family 6 with SSE2 */
    tarnCpuF7 = 16,        /**< family 7 */
    tarnCpuOther = 17      /**< family 15 without SSE2 */
};

/** What CPUID leaves 1 and 2 tell about the processor. */
typedef struct {
    int family;      /**< bits 8 to 11 of the signature (EAX of leaf 1); the extended family is not added */
    int stepping;    /**< bits 0 to 3 of the signature */
    int model;       /**< bits 4 to 7 of the signature */
    int type;        /**< always 0 */
    int featureBits; /**< EDX of leaf 1 */
    int cacheDescA;  /**< EAX of leaf 2 */
    int cacheDescD;  /**< EDX of leaf 2 */
    int hasMmx;      /**< 1 if the processor has MMX, else 0 */
    int reserved;    /**< never written */
    int hasSsx;      /**< 1 if the processor has SSE, else 0 */
    int hasSse2;     /**< 1 if the processor has SSE2, else 0 */
    int hasHtt;      /**< 1 if the hyper-threading flag is set and there is more than one logical processor, else 0 */
    int hasSse3;     /**< 1 if the processor has SSE3, else 0 */
} TarnCpuIdent;

/** Classifies the processor by vendor, family and instruction sets.

    @return one of the tarnCpu... values; tarnCpuUnknown for a processor of another vendor than "AuthenticCPU",
            whatever it can do */
///@{
TARN_API int tarnGetCpuType(void);
TARN_API int tarnCoreGetCpuType(void);
///@}

/** Reads the time-stamp counter.

    @return 64-bit count of cycles since the processor was reset (RDTSC, not serialised) */
///@{
TARN_API unsigned long long tarnGetCpuClocks(void);
TARN_API unsigned long long tarnCoreGetCpuClocks(void);
TARN_API unsigned long long tarn_get_cpu_counter(void);
///@}

/** Tests whether the processor has the CPUID instruction, by toggling bit 21 of the flags register.

    @return 1 if the bit moved, else 0 */
TARN_API int tarn_has_cpuid(void);

/** Gives the highest basic CPUID leaf.

    @return EAX of leaf 0 */
TARN_API unsigned int tarn_max_cpuid_input(void);

/** Tests the vendor string of CPUID leaf 0.

    @return 1 if it is "AuthenticCPU", else 0 */
TARN_API int tarn_is_AuthenticCPU(void);

/** Tests one feature of CPUID leaf 1: the time-stamp counter, MMX, SSE, SSE2, hyper-threading (the flag and more than
    one logical processor), SSE3.

    @return 1 if the processor has it, else 0 */
///@{
TARN_API int tarn_has_rdtsc(void);
TARN_API int tarn_is_mmx_extension(void);
TARN_API int tarn_is_ssx_extension(void);
TARN_API int tarn_is_sse2_extension(void);
TARN_API int tarn_is_htt_extension(void);
TARN_API int tarn_is_sse3_extension(void);
///@}

/** Fills an identification record.

    @param pIdent record to fill, not null; its field `reserved` keeps its value */
TARN_API void tarn_get_cpu_ident(TarnCpuIdent* pIdent);
/** @} */

/** @defgroup fpcontrol Floating-point control
    Reads and sets the x87 control and status words and MXCSR of the calling thread: rounding, precision, and which
    exceptions are masked. Filters that decay into denormal numbers, say, run much faster with these flushed to zero.

    @code{.c}
    const unsigned int before = ps_set_ssx(0x8040, 0x8040); // flush to zero, denormals are zeros
    Tarn32f tiny[1] = {1e-30F};
    tarnsMulC_32f_I(1e-10F, tiny, 1);
    tarn_set_cw_ssx(before);
    printf("%g\n", tiny[0]); // 0
    @endcode

    __Accuracy:__ functions of vectors obey the caller's rounding mode where they say so, and give it back unchanged.

    __Cost:__ some nanoseconds a call; a write of a control word also waits for the arithmetic before it, which the
    functions that look first save where it would change nothing.

    __Guide:__ [Recursive filters](docs/iir.md), section Silence, and [conversions](docs/conversions.md) for rounding.
    @{ */

/** Refuses flush-to-zero, a setting that this library does not offer: results would depend on it. Nothing is changed.

    @param value  any value, not looked at
    @param pUMask any value, not looked at
    @return always tarnStsCpuNotSupportedErr */
///@{
TARN_API TarnStatus tarnSetFlushToZero(int value, void* pUMask);
TARN_API TarnStatus tarnCoreSetFlushToZero(int value, void* pUMask);
///@}

/** Refuses denormals-are-zero, a setting that this library does not offer: results would depend on it. Nothing is
    changed.

    @param value any value, not looked at
    @return always tarnStsCpuNotSupportedErr */
///@{
TARN_API TarnStatus tarnSetDenormAreZeros(int value);
TARN_API TarnStatus tarnCoreSetDenormAreZeros(int value);
///@}

/** Bits of the symbolic floating-point word, which does not depend on where a processor keeps them. In the status word
    the mask bits stand for the exception flags. Rounding is to nearest if neither rounding bit is set, precision is the
    64-bit one of the extended format if neither precision bit is. */
enum {
    TARN_FP_MASK_INEXACT = 0x1,        /**< inexact result */
    TARN_FP_MASK_UNDERFLOW = 0x2,      /**< underflow */
    TARN_FP_MASK_OVERFLOW = 0x4,       /**< overflow */
    TARN_FP_MASK_ZERODIV = 0x8,        /**< division by zero */
    TARN_FP_MASK_INVALID = 0x10,       /**< invalid operation */
    TARN_FP_ROUND_DOWN = 0x100,        /**< round to minus infinity */
    TARN_FP_ROUND_UP = 0x200,          /**< round to plus infinity */
    TARN_FP_ROUND_CHOP = 0x300,        /**< round to zero */
    TARN_FP_PREC_53 = 0x10000,         /**< 53-bit precision; without effect beside TARN_FP_PREC_24 */
    TARN_FP_PREC_24 = 0x20000,         /**< 24-bit precision */
    TARN_FP_INFINITY_AFFINE = 0x40000, /**< infinity control bit, kept but without effect on present processors */
    TARN_FP_MASK_DENORMAL = 0x80000    /**< denormal operand */
};

/** Maps between words of the x87 unit and the symbolic word. The reserved precision field 1 and the 64-bit one, 3, both
    give neither precision bit; the opposite direction makes 3 of that. Bits without a counterpart are dropped.

    @param word x87 control word for bit2symbol(), symbolic word for symbol2bit(), x87 status word for sw_bit2symbol()
    @return its image: bit2symbol() and sw_bit2symbol() give a symbolic word, symbol2bit() a control word */
///@{
TARN_API unsigned int bit2symbol(unsigned int word);
TARN_API unsigned int symbol2bit(unsigned int word);
TARN_API unsigned int sw_bit2symbol(unsigned int word);
///@}

/** Sets bits of the x87 control word, in symbolic form: the word becomes (old and not mask) or (value and mask). A mask
    of 0 changes nothing.

    @param value symbolic word with the new bits
    @param mask  symbolic word with the bits to replace
    @return the symbolic word after the change */
TARN_API unsigned int tarn_control87(unsigned int value, unsigned int mask);

/** Gives the x87 status word in symbolic form. tarn_clear87() clears the exception flags afterwards.

    @return symbolic word of the state before clearing */
///@{
TARN_API unsigned int tarn_status87(void);
TARN_API unsigned int tarn_clear87(void);
///@}

/** Sets bits of the x87 control word (ps_set_cw_fpu) or of MXCSR (ps_set_ssx): the register becomes (old and not mask)
    or (value and mask). A set bit that MXCSR does not have is a fault of the processor.

    @param value new bits, in the register's own layout
    @param mask  bits to replace, in the same layout
    @return the register before the change */
///@{
TARN_API unsigned int ps_set_cw_fpu(unsigned int value, unsigned int mask);
TARN_API unsigned int ps_set_ssx(unsigned int value, unsigned int mask);
///@}

/** Reads the x87 control word, the x87 status word (without waiting for pending exceptions) and MXCSR.

    @return the register */
///@{
TARN_API unsigned int ps_get_cw_fpu(void);
TARN_API unsigned int ps_get_sw_fpu(void);
TARN_API unsigned int ps_get_ssx(void);
///@}

/** Clears the exception flags of the x87 unit.

    @return the status word before that */
TARN_API unsigned int ps_clear_fpu(void);

/** Sets MXCSR to 0x1F80: all exceptions masked, round to nearest, flags clear.

    @return MXCSR before that */
TARN_API unsigned int tarn_clear_ssx(void);

/** Sets rounding and precision of the x87 unit, without the cost of a write when they are in place: if (control word
    and mask) differs from value, the word becomes (old and not mask) or (value and mask).

    @param value bits in the control word's layout
    @param mask  which bits, 0xF00 for both fields
    @return the control word before the change, in the low 16 bits */
TARN_API unsigned int tarn_set_rcpc_fpu(unsigned int value, unsigned int mask);

/** Sets the rounding field of MXCSR, without the cost of a write when it is in place.

    @param value 0 (nearest), 0x2000 (down), 0x4000 (up) or 0x6000 (to zero); other bits are not looked at
    @return MXCSR before the change */
TARN_API unsigned int tarn_set_rc_ssx(unsigned int value);

/** Loads the x87 control word or MXCSR as given.

    @param value the register's new contents; a set bit that MXCSR does not have is a fault of the processor */
///@{
TARN_API void tarn_set_cw_fpu(unsigned int value);
TARN_API void tarn_set_cw_ssx(unsigned int value);
///@}

/** Tests whether the processor has the denormals-are-zero mode, by the MXCSR mask in the image that FXSAVE stores.

    @return 1 if it has, else 0 */
TARN_API int tarn_tst_daz_ssx(void);

/** Tests for a NaN, quiet or signalling, of either sign.

    @param x any value
    @return 1 for a NaN, else 0 */
TARN_API int tarn_isnan(Tarn64f x);

/** Tests for a finite value.

    @param x any value
    @return 0 for an infinity and for a NaN, else 1 */
TARN_API int tarn_finite(Tarn64f x);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
