// Special floating-point values and their classification. Everything goes by bits: a signalling NaN must neither be
// quieted nor raise a flag on its way.
#include <bit>

#include "tarncore.h"

const Tarn32f tarnConstantOfNAN_32f = std::bit_cast<Tarn32f>(0xFFC00000u);
const Tarn32f tarnConstantOfINF_32f = std::bit_cast<Tarn32f>(0x7F800000u);
const Tarn32f tarnConstantOfINF_NEG_32f = std::bit_cast<Tarn32f>(0xFF800000u);
const Tarn64f tarnConstantOfNAN_64f = std::bit_cast<Tarn64f>(0xFFF8000000000000u);
const Tarn64f tarnConstantOfINF_64f = std::bit_cast<Tarn64f>(0x7FF0000000000000u);
const Tarn64f tarnConstantOfINF_NEG_64f = std::bit_cast<Tarn64f>(0xFFF0000000000000u);

namespace {

constexpr unsigned long long infinity = 0x7FF0000000000000u;

unsigned long long magnitudeBits(Tarn64f x) { return std::bit_cast<unsigned long long>(x) & ~(1ull << 63); }

} // namespace

int tarn_isnan(Tarn64f x) { return magnitudeBits(x) > infinity; }

int tarn_finite(Tarn64f x) { return magnitudeBits(x) < infinity; }
