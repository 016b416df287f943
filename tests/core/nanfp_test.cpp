// Element types, the shared special values, and the classification of doubles.
#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>

#include "tarns.h"

namespace {

static_assert(sizeof(Tarn8u) == 1 && Tarn8u(-1) > 0);
static_assert(sizeof(Tarn8s) == 1 && Tarn8s(-1) < 0);
static_assert(sizeof(Tarn16u) == 2 && Tarn16u(-1) > 0);
static_assert(sizeof(Tarn16s) == 2 && Tarn16s(-1) < 0);
static_assert(sizeof(Tarn32u) == 4 && Tarn32u(-1) > 0);
static_assert(sizeof(Tarn32s) == 4 && Tarn32s(-1) < 0);
static_assert(sizeof(Tarn64s) == 8 && Tarn64s(-1) < 0);
static_assert(sizeof(Tarn32f) == 4 && sizeof(Tarn64f) == 8);
static_assert(sizeof(TarnStatus) == 4 && TarnStatus(-1) < 0);
static_assert(sizeof(TarnHintAlgorithm) == 4);
static_assert(tarnAlgHintNone == 0 && tarnAlgHintFast == 1 && tarnAlgHintAccurate == 2);

template <typename Complex, typename Real>
constexpr bool isPairOf()
{
    return sizeof(Complex) == 2 * sizeof(Real) && offsetof(Complex, re) == 0 && offsetof(Complex, im) == sizeof(Real);
}
static_assert(isPairOf<Tarn8sc, Tarn8s>());
static_assert(isPairOf<Tarn16sc, Tarn16s>());
static_assert(isPairOf<Tarn32sc, Tarn32s>());
static_assert(isPairOf<Tarn64sc, Tarn64s>());
static_assert(isPairOf<Tarn32fc, Tarn32f>());
static_assert(isPairOf<Tarn64fc, Tarn64f>());

template <typename Bits, typename T>
Bits bitsOf(const T& object)
{
    static_assert(sizeof(Bits) == sizeof(T));
    Bits bits;
    std::memcpy(&bits, &object, sizeof bits);
    return bits;
}

TEST(Constants, Bits)
{
    EXPECT_EQ(bitsOf<std::uint32_t>(tarnConstantOfNAN_32f), 0xFFC00000u);
    EXPECT_EQ(bitsOf<std::uint32_t>(tarnConstantOfINF_32f), 0x7F800000u);
    EXPECT_EQ(bitsOf<std::uint32_t>(tarnConstantOfINF_NEG_32f), 0xFF800000u);
    EXPECT_EQ(bitsOf<std::uint64_t>(tarnConstantOfNAN_64f), 0xFFF8000000000000u);
    EXPECT_EQ(bitsOf<std::uint64_t>(tarnConstantOfINF_64f), 0x7FF0000000000000u);
    EXPECT_EQ(bitsOf<std::uint64_t>(tarnConstantOfINF_NEG_64f), 0xFFF0000000000000u);
}

unsigned int readMxcsr()
{
    unsigned int word;
    __asm__ __volatile__("stmxcsr %0" : "=m"(word));
    return word;
}

unsigned int readX87Status()
{
    unsigned short word;
    __asm__ __volatile__("fnstsw %0" : "=a"(word));
    return word;
}

struct Classified {
    std::uint64_t magnitude;
    int isNan;
    int isFinite;
};

constexpr Classified classes[] = {
    {0x0000000000000000, 0, 1}, // zero
    {0x0000000000000001, 0, 1}, // smallest denormal
    {0x000FFFFFFFFFFFFF, 0, 1}, // largest denormal
    {0x0010000000000000, 0, 1}, // smallest normal
    {0x3FF0000000000000, 0, 1}, // 1
    {0x3FF8000000000001, 0, 1}, // mantissa of a NaN, another exponent
    {0x7FE8000000000000, 0, 1}, // exponent one short of all ones
    {0x7FEFFFFFFFFFFFFF, 0, 1}, // largest finite
    {0x7FF0000000000000, 0, 0}, // infinity
    {0x7FF0000000000001, 1, 0}, // signalling, payload in the lowest bit of the low word
    {0x7FF0000080000000, 1, 0}, // signalling, payload in the highest bit of the low word
    {0x7FF0000100000000, 1, 0}, // signalling, payload in the lowest bit of the high word
    {0x7FF4000000000000, 1, 0}, // signalling, highest payload bit
    {0x7FF7FFFFFFFFFFFF, 1, 0}, // signalling, all payload bits
    {0x7FF8000000000000, 1, 0}, // quiet
    {0x7FF8000000000001, 1, 0}, // quiet with payload
    {0x7FFFFFFFFFFFFFFF, 1, 0}, // quiet, all payload bits
};

TEST(Classification, EveryClassOfEitherSign)
{
    for (const Classified& entry : classes)
        for (std::uint64_t sign : {std::uint64_t{0}, std::uint64_t{1} << 63}) {
            const std::uint64_t bits = entry.magnitude | sign;
            EXPECT_EQ(tarn_isnan(std::bit_cast<double>(bits)), entry.isNan) << std::hex << bits;
            EXPECT_EQ(tarn_finite(std::bit_cast<double>(bits)), entry.isFinite) << std::hex << bits;
        }
}

TEST(Classification, EverySingleMantissaBitMakesANan)
{
    for (int bit = 0; bit < 52; ++bit) {
        const double x = std::bit_cast<double>(0xFFF0000000000000u | std::uint64_t{1} << bit);
        EXPECT_EQ(tarn_isnan(x), 1) << bit;
        EXPECT_EQ(tarn_finite(x), 0) << bit;
    }
}

TEST(Classification, RaisesNoFlag)
{
    __asm__ __volatile__("fnclex");
    const unsigned int mxcsr = readMxcsr() & ~0x3Fu;
    __asm__ __volatile__("ldmxcsr %0" : : "m"(mxcsr));
    for (const Classified& entry : classes) {
        tarn_isnan(std::bit_cast<double>(entry.magnitude));
        tarn_finite(std::bit_cast<double>(entry.magnitude));
    }
    EXPECT_EQ(readMxcsr() & 0x3Fu, 0u);
    EXPECT_EQ(readX87Status() & 0x3Fu, 0u);
}

} // namespace
