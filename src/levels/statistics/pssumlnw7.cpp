// Kernels of sums of logarithms. An element is 2^e m with m in [1, 2): exponents are added and mantissas multiplied, so
// that one logarithm serves a block,
//     sum ln x = ln 2 sum e + ln product m.
#include "levels/statistics/pssum.h"

#include "frame/reduce.h"
#include "frame/simd_extended.h"
#include "frame/simd_mul.h"

#include <cmath>

using namespace tarn;

namespace {

// No product takes more than half a block, which 2^512 bounds: the product of both halves is no double any more, and is
// formed in the extended format.
constexpr int block = 1024;

// Elements of 16 bytes are taken together, and found to be special together.
template <typename T>
constexpr int groupOf = 16 / static_cast<int>(sizeof(T));

// What a block's elements add up to, and a mask of the lanes in which one was not a positive finite number.
struct Logs {
    Pack<Tarn32s, 4> exponents;
    Pack<Tarn64f, 2> mantissas;
    Pack<Tarn32s, 4> bad;
};

// Four floats: the first and third mantissa go to one product, the second and fourth to the other. A product of two is
// exact, and keeps one of the two multiplications out of the chain.
TARN_INLINE Logs takeGroup(Logs logs, Pack<Tarn32f, 4> x)
{
    constexpr int mantissaBits = 23;
    const auto bits = reinterpretPack<Tarn32s>(x);
    const auto one = splat<Pack<Tarn32s, 4>>(std::bit_cast<Tarn32s>(1.0F));
    const auto largest = splat<Pack<Tarn32s, 4>>(std::bit_cast<Tarn32s>(highest<Tarn32f>));
    const auto exponents = shiftRight(sub(bits, one), mantissaBits);
    const auto mantissas = widen(reinterpretPack<Tarn32f>(sub(bits, shiftLeft(exponents, mantissaBits))));
    const auto notPositive = less(bits, splat<Pack<Tarn32s, 4>>(1));
    return {add(logs.exponents, exponents), mul(logs.mantissas, mul(lowHalf(mantissas), highHalf(mantissas))),
            bitOr(logs.bad, bitOr(notPositive, greater(bits, largest)))};
}

// Two doubles, one mantissa to each product. The fields are those of the upper halves.
TARN_INLINE Logs takeGroup(Logs logs, Pack<Tarn64f, 2> x)
{
    constexpr int mantissaBitsAbove = 20;
    const auto bits = reinterpretPack<Tarn64s>(x);
    const auto one = splat<Pack<Tarn64s, 2>>(std::bit_cast<Tarn64s>(1.0));
    const auto upperHalves = reinterpretPack<Tarn32s>(splat<Pack<Tarn64s, 2>>(Tarn64s{-1} << 32));
    const auto exponents = bitAnd(shiftRight(reinterpretPack<Tarn32s>(sub(bits, one)), mantissaBitsAbove), upperHalves);
    const auto moved = reinterpretPack<Tarn64s>(shiftLeft(exponents, mantissaBitsAbove));
    const auto mantissas = reinterpretPack<Tarn64f>(sub(bits, moved));
    const auto positive = greater(x, splat<Pack<Tarn64f, 2>>(0));
    const auto finite = less(x, splat<Pack<Tarn64f, 2>>(std::numeric_limits<Tarn64f>::infinity()));
    const auto good = bitAnd(reinterpretPack<Tarn32s>(positive), reinterpretPack<Tarn32s>(finite));
    return {add(logs.exponents, exponents), mul(logs.mantissas, mantissas),
            bitOr(logs.bad, bitXor(good, splat<Pack<Tarn32s, 4>>(-1)))};
}

// Eight integers as two times four floats.
TARN_INLINE Logs takeGroup(Logs logs, Pack<Tarn16s, 8> x)
{
    const auto floats = convert<Tarn32f>(widen(x));
    return takeGroup(takeGroup(logs, lowHalf(floats)), highHalf(floats));
}

// The floating-point value that an element is taken for.
template <typename T>
using Value = std::conditional_t<isDouble<T>, Tarn64f, Tarn32f>;

template <typename F>
bool isPositiveZero(F x)
{
    return x == 0 && !std::signbit(x);
}

// The block at p, of whole groups, has a group that cannot be summed: its status, and the sum that goes with it. Values
// decide here, so that a NaN of either sign is no negative number.
template <typename T>
TarnStatus stopWithin(const T* p, Extended before, Extended* sum)
{
    for (;; p += groupOf<T>) {
        bool special = false;
        for (int k = 0; k < groupOf<T>; ++k) {
            const auto x = static_cast<Value<T>>(loadElement(p + k));
            if (x < 0 || x == 0) {
                store(sum, before);
                return isPositiveZero(x) ? tarnStsLnZeroArg : tarnStsLnNegArg;
            }
            special = special || !std::isfinite(x);
        }
        if (special) {
            store(sum, Extended{0});
            return tarnStsNoErr;
        }
    }
}

template <typename T>
int sumLn(const T* p, int len, Extended* sum)
{
    constexpr int group = groupOf<T>;
    const int whole = len - len % group;
    Tarn64f blocks = 0;
    int i = 0;
    for (int taken = 0; i < whole; i += taken) {
        taken = std::min(whole - i, block);
        const auto none = splat<Pack<Tarn32s, 4>>(0);
        Logs logs{none, splat<Pack<Tarn64f, 2>>(1), none};
        takePacks<group>(
            logs, i, i + taken, [](Logs sums, Pack<T, groupOf<T>> x) { return takeGroup(sums, x); }, p);
        if (anyOf(logs.bad)) {
            return stopWithin(p + i, blocks, sum);
        }
        const Extended exponents = foldLanes(logs.exponents, add);
        const Extended mantissas = Extended{firstLane(logs.mantissas)} * firstLane(lanesDown<1>(logs.mantissas));
        blocks = static_cast<Tarn64f>(blocks + (naturalLogOfTwo() * exponents + naturalLog(mantissas)));
    }
    // The last elements one by one, where the sign bit decides: the logarithm of a positive NaN is one.
    Extended total = blocks;
    for (; i < len; ++i) {
        const auto x = static_cast<Value<T>>(loadElement(p + i));
        if (isPositiveZero(x) || std::signbit(x)) {
            store(sum, total);
            return std::signbit(x) ? tarnStsLnNegArg : tarnStsLnZeroArg;
        }
        total += naturalLog(x);
    }
    store(sum, total);
    return tarnStsNoErr;
}

} // namespace

int Sum_Ln32f_W7(const Tarn32f* pSrc, int len, long double* pSum) { return sumLn(pSrc, len, pSum); }

int Sum_Ln64f_W7(const Tarn64f* pSrc, int len, long double* pSum) { return sumLn(pSrc, len, pSum); }

int Sum_Ln16s_W7(const Tarn16s* pSrc, int len, long double* pSum) { return sumLn(pSrc, len, pSum); }
