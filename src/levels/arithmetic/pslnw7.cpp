// Kernels of the logarithms.
#include "levels/arithmetic/psln.h"

#include "frame/rounding.h"
#include "frame/simd_exp.h"
#include "levels/arithmetic/psln_tree.h"

using namespace tarn;

namespace {

// -- Floats ----------------------------------------------------------------------------------------------------------

// Notes what the rare arguments were.
struct NotingLogarithm : LogarithmMethod {
    int* met;

    explicit NotingLogarithm(int* met) : met(met) {}

    template <Float T>
    T rare(T x) const
    {
        *met |= x == 0 ? logarithmsMetZero : x < 0 ? logarithmsMetNegative : 0;
        return LogarithmMethod::rare(x);
    }
};

struct NarrowedLogarithm {
    Approximation<NotingLogarithm> logarithm;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return narrowFloat(logarithm(x));
    }
};

// -- Integers --------------------------------------------------------------------------------------------------------

template <typename T>
int warningOf(const T* src, int len)
{
    for (int i = 0; i < len; ++i) {
        const T x = loadElement(src + i);
        if (x < 1) {
            return x == 0 ? logarithmsMetZero : logarithmsMetNegative;
        }
    }
    return 0;
}

// Through the whole array, one element after the other: what is done for each depends on it.
template <typename D, typename S, typename Operation>
void walkTree(const S* src, D* dst, int len, Operation operation)
{
    walkElements(
        dst, 0, len, [operation](S x) { return static_cast<D>(operation(std::max<Tarn32s>(x, 0))); }, src);
}

// 2 ln x, as the rounded logarithm of the square. Larger arguments are halved until their squares are small, which
// takes the logarithm of the power of two from the whole; that is added in the same way.
constexpr int largestSquared = 181;
constexpr int doubledLogarithm(int x)
{
    if (x <= largestSquared) {
        return x < 2 ? 0 : roundedLogarithm(x * x);
    }
    int halvings = 0;
    while (x >> halvings > largestSquared) {
        ++halvings;
    }
    return roundedLogarithm((x >> halvings) * (x >> halvings)) + doubledLogarithm(1 << halvings);
}

// The halvings that an argument of so many bits needs at least, and what any number of them adds.
constexpr int bitsOfSquared = 8;
constexpr auto halvingsResult = [] {
    std::array<int, 9> results{};
    for (std::size_t i = 1; i < results.size(); ++i) {
        results[i] = doubledLogarithm(1 << i);
    }
    return results;
}();
constexpr auto squaredResult = [] {
    std::array<Tarn8s, largestSquared + 1> results{};
    for (int x = 2; x <= largestSquared; ++x) {
        results[static_cast<std::size_t>(x)] = static_cast<Tarn8s>(doubledLogarithm(x));
    }
    return results;
}();

struct DoubledLogarithm {
    TARN_INLINE int operator()(Tarn32s x) const
    {
        int halvings = std::max(0, bitsOfArgument(x) - bitsOfSquared);
        halvings += x >> halvings > largestSquared ? 1 : 0;
        return squaredResult[static_cast<std::size_t>(x >> halvings)] +
               halvingsResult[static_cast<std::size_t>(halvings)];
    }
};

// ln x times a factor, one half added and the fraction cut off. No product lies near an integer and a half, so that the
// vector word's logarithm gives the same integers as a correctly rounded one.
struct MultipliedLogarithm {
    Tarn64f factor;

    TARN_INLINE int operator()(Tarn32s x) const
    {
        return x < 2 ? 0 : static_cast<int>(std::min(logarithm(static_cast<Tarn64f>(x)) * factor + 0.5, 32767.0));
    }
};

// ln x times 2^14, which leaves 16 bits at 8.
constexpr Tarn16s logarithmsTimes2To14[] = {0, 0, 11357, 18000, 22713, 26369, 29356, 31882, 32767};
struct LogarithmTimes2To14 {
    TARN_INLINE int operator()(Tarn32s x) const { return logarithmsTimes2To14[std::min(x, 8)]; }
};

// ln x times 2^15.
struct LogarithmTimes2To15 {
    TARN_INLINE int operator()(Tarn32s x) const { return x < 2 ? 0 : x == 2 ? 22713 : 32767; }
};

template <typename D>
void shiftedLogarithms(const Tarn32s* src, D* dst, int len, int scaleFactor)
{
    walkTree(src, dst, len, [scaleFactor](Tarn32s x) { return ShiftRight::of(roundedLogarithm(x), scaleFactor); });
}

// 10 log10 x below 15. The lowest integer marks arguments that no bracket has: their elements stay as they are.
constexpr Tarn32s noBracket = lowest<Tarn32s>;
constexpr Tarn32s decibelsBelow15[] = {0,         0,  3,         5,         6,         7,         8,        noBracket,
                                       noBracket, 10, noBracket, noBracket, noBracket, noBracket, noBracket};

// The logarithm in single precision, times a factor, as integers.
template <typename D>
struct ByFactor {
    Tarn32f factor;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        auto y = logarithm(convert<Tarn32f>(x));
        return narrowSaturated<D>(roundSaturated(mul(y, splat<decltype(y)>(factor))));
    }
};
template <>
struct ByFactor<Tarn32s> {
    Tarn32f factor;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        auto y = logarithm(convert<Tarn32f>(x));
        return roundSaturated(mul(y, splat<decltype(y)>(factor)));
    }
};

} // namespace

int Ln32f_W7(const Tarn32f* pSrc, Tarn32f* pDst, int len)
{
    const StandardArithmetic guard;
    int met = 0;
    walk(pDst, len, Approximation<NotingLogarithm>{NotingLogarithm(&met)}, pSrc);
    return met;
}

int tarnsLn64f_P6(const Tarn64f* pSrc, Tarn64f* pDst, int len)
{
    const StandardArithmetic guard;
    int met = 0;
    walk(pDst, len, Approximation<NotingLogarithm>{NotingLogarithm(&met)}, pSrc);
    return met;
}

int tarnsLn64f32f_P6(const Tarn64f* pSrc, Tarn32f* pDst, int len)
{
    const StandardArithmetic guard;
    int met = 0;
    walk(pDst, len, NarrowedLogarithm{{NotingLogarithm(&met)}}, pSrc);
    return met;
}

void Ln32s_W7(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32f factor)
{
    const StandardArithmetic guard;
    walk(pDst, len, ByFactor<Tarn32s>{factor}, pSrc);
}

void Ten_Lg32s_W7(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32f factor)
{
    const StandardArithmetic guard;
    constexpr Tarn32f decibelsPerNeper = 0x1.15f2dp+2F; // 10 / ln 10
    walk(pDst, len, ByFactor<Tarn32s>{factor * decibelsPerNeper}, pSrc);
}

void tarn::logarithmsByFactor(const Tarn32s* src, Tarn16s* dst, int len, Tarn32f factor)
{
    const StandardArithmetic guard;
    walk(dst, len, ByFactor<Tarn16s>{factor}, src);
}

int tarn::firstWarning(const Tarn16s* src, int len) { return warningOf(src, len); }
int tarn::firstWarning(const Tarn32s* src, int len) { return warningOf(src, len); }

void tarn::logarithms(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor)
{
    shiftedLogarithms(src, dst, len, scaleFactor);
}
void tarn::logarithms(const Tarn32s* src, Tarn16s* dst, int len, int scaleFactor)
{
    shiftedLogarithms(src, dst, len, scaleFactor);
}

void tarn::logarithms(const Tarn16s* src, Tarn16s* dst, int len, int scaleFactor)
{
    constexpr int lastDivided = 4;
    constexpr int firstMultiplied = -13;
    if (scaleFactor == 0) {
        walkTree(src, dst, len, [](Tarn32s x) { return roundedLogarithm(x); });
    } else if (scaleFactor > lastDivided) {
        walkTree(src, dst, len, [](Tarn32s) { return 0; });
    } else if (scaleFactor > 0) {
        const DecisionTree& tree = dividedLogarithms[scaleFactor - 1];
        walkTree(src, dst, len, [&tree](Tarn32s x) { return tree(x); });
    } else if (scaleFactor == -1) {
        walkTree(src, dst, len, DoubledLogarithm{});
    } else if (scaleFactor >= firstMultiplied) {
        const StandardArithmetic guard;
        walkTree(src, dst, len, MultipliedLogarithm{twoToMinus<Tarn64f>(scaleFactor)});
    } else if (scaleFactor == firstMultiplied - 1) {
        walkTree(src, dst, len, LogarithmTimes2To14{});
    } else if (scaleFactor == firstMultiplied - 2) {
        walkTree(src, dst, len, LogarithmTimes2To15{});
    } else {
        walkTree(src, dst, len, [](Tarn32s x) { return x < 2 ? 0 : 32767; });
    }
}

void tarn::decibels(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor)
{
    walkElements(
        dst, 0, len,
        [scaleFactor](Tarn32s x, Tarn32s old) {
            const Tarn32s result =
                x >= std::ssize(decibelsBelow15) ? decibelsFrom15(x) : decibelsBelow15[std::max(x, 0)];
            return result == noBracket ? old : ShiftRight::of(result, scaleFactor);
        },
        src, static_cast<const Tarn32s*>(dst));
}
