// Plain loops beside the conversions.
#include "psconvert_peer.h"

#include "support/scale_loop.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace tarn::bench {
namespace {

template <class D, class S>
void convertAll(const S* src, D* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<D>(src[i]);
}

template <class S>
int rounded(S x, int lower, int upper)
{
    if (!(x > static_cast<S>(lower)))
        return lower;
    if (x >= static_cast<S>(upper))
        return upper;
    return static_cast<int>(std::lrint(x));
}

template <class D, class S>
void roundAll(const S* src, D* dst, int len, int s)
{
    const S factor = std::ldexp(S(1), -s);
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<D>(rounded(src[i] * factor, std::numeric_limits<D>::min(), std::numeric_limits<D>::max()));
}

int load24(const Tarn8u* p) { return p[0] | p[1] << 8 | static_cast<Tarn8s>(p[2]) * 65536; }

void store24(Tarn8u* p, int x)
{
    p[0] = static_cast<Tarn8u>(x);
    p[1] = static_cast<Tarn8u>(x >> 8);
    p[2] = static_cast<Tarn8u>(x >> 16);
}

constexpr int min24 = -8388608;
constexpr int max24 = 8388607;

Tarn32f singleOf(unsigned half)
{
    const std::uint32_t sign = (half & 0x8000) << 16;
    const std::uint32_t exponent = half >> 10 & 31;
    const std::uint32_t fraction = half & 0x3FF;
    if (exponent == 31)
        return std::bit_cast<Tarn32f>(sign | 0x7F800000 | fraction << 13);
    if (exponent != 0)
        return std::bit_cast<Tarn32f>(sign | (exponent + 112) << 23 | fraction << 13);
    const Tarn32f magnitude = static_cast<Tarn32f>(fraction) * 0x1p-24F;
    return sign != 0 ? -magnitude : magnitude;
}

unsigned halfOf(Tarn32f x)
{
    const auto bits = std::bit_cast<std::uint32_t>(x);
    const unsigned sign = bits >> 16 & 0x8000;
    const std::uint32_t magnitude = bits & 0x7FFFFFFF;
    if (magnitude > 0x7F800000)
        return sign | 0x7E00 | (magnitude >> 13 & 0x3FF);
    if (magnitude >= 0x477FF000)
        return sign | 0x7C00;
    if (magnitude < 0x38800000)
        return sign | static_cast<unsigned>(std::lrint(std::bit_cast<Tarn32f>(magnitude) * 0x1p24F));
    const std::uint32_t odd = magnitude >> 13 & 1;
    return sign | ((magnitude - 0x38000000 + 0xFFF + odd) >> 13);
}

} // namespace

void convertLoop(const Tarn16s* src, Tarn32f* dst, int len) { convertAll(src, dst, len); }
void convertLoop(const Tarn8u* src, Tarn32f* dst, int len) { convertAll(src, dst, len); }
void convertLoop(const Tarn32s* src, Tarn32f* dst, int len) { convertAll(src, dst, len); }
void convertLoop(const Tarn16s* src, Tarn32s* dst, int len) { convertAll(src, dst, len); }
void convertLoop(const Tarn64f* src, Tarn32f* dst, int len) { convertAll(src, dst, len); }

void narrowLoop(const Tarn32s* src, Tarn16s* dst, int len, int s)
{
    for (int i = 0; i < len; ++i)
        dst[i] = scaled<Tarn16s>(src[i], s);
}

void roundLoop(const Tarn32f* src, Tarn8u* dst, int len, int s) { roundAll(src, dst, len, s); }
void roundLoop(const Tarn32f* src, Tarn16s* dst, int len, int s) { roundAll(src, dst, len, s); }
void roundLoop(const Tarn32f* src, Tarn32s* dst, int len, int s) { roundAll(src, dst, len, s); }
void roundLoop(const Tarn64f* src, Tarn32s* dst, int len, int s) { roundAll(src, dst, len, s); }

void from24Loop(const Tarn8u* src, Tarn32s* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = load24(src + 3 * i);
}

void from24Loop(const Tarn8u* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<Tarn32f>(load24(src + 3 * i));
}

void to24Loop(const Tarn32s* src, Tarn8u* dst, int len, int s)
{
    for (int i = 0; i < len; ++i) {
        const int x = scaled<Tarn32s>(src[i], s);
        store24(dst + 3 * i, x < min24 ? min24 : x > max24 ? max24 : x);
    }
}

void to24Loop(const Tarn32f* src, Tarn8u* dst, int len, int s)
{
    const Tarn32f factor = std::ldexp(1.0F, -s);
    for (int i = 0; i < len; ++i)
        store24(dst + 3 * i, rounded(src[i] * factor, min24, max24));
}

void fromHalfLoop(const Tarn16s* src, Tarn32f* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = singleOf(static_cast<Tarn16u>(src[i]));
}

void toHalfLoop(const Tarn32f* src, Tarn16s* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<Tarn16s>(halfOf(src[i]));
}

void toHalfLoop(const Tarn16s* src, Tarn16s* dst, int len)
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<Tarn16s>(halfOf(src[i]));
}

void halfToIntegerLoop(const Tarn16s* src, Tarn16s* dst, int len, int s)
{
    const Tarn32f factor = std::ldexp(1.0F, -s);
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<Tarn16s>(rounded(singleOf(static_cast<Tarn16u>(src[i])) * factor, -32768, 32767));
}

} // namespace tarn::bench
