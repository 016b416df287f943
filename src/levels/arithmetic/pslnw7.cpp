// Kernels of the logarithms.
#include "levels/arithmetic/psln.h"

#include "frame/factor.h"
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

int warningOf(Tarn32s x) { return x == 0 ? logarithmsMetZero : logarithmsMetNegative; }

// Through the whole array, one element after the other: what is done for each depends on it. Those below 1 give 0, and
// the first of them the answer.
template <typename D, typename S, typename Operation>
TARN_INLINE int walkTree(const S* src, D* dst, int len, Operation operation)
{
    int met = 0;
    walkElements(
        dst, 0, len,
        [operation, &met](S x) {
            if (x < 1) [[unlikely]] {
                met = met == 0 ? warningOf(x) : met;
                return D{0};
            }
            return static_cast<D>(operation(x));
        },
        src);
    return met;
}

// The same for what asks for vectors, before they overwrite their source.
template <typename T>
int firstWarning(const T* src, int len)
{
    for (int i = 0; i < len; ++i) {
        if (loadElement(src + i) < 1) {
            return warningOf(loadElement(src + i));
        }
    }
    return 0;
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

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        auto y = logarithm(widen(convert<Tarn32f>(widen(max(x, splat<X>(1))))));
        using Y = decltype(y);
        y = add(mul(y, splat<Y>(factor)), splat<Y>(0.5));
        return narrowSaturated<Tarn16s>(truncateToInteger(min(y, splat<Y>(highest<Tarn16s>))));
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
int shiftedLogarithms(const Tarn32s* src, D* dst, int len, int scaleFactor)
{
    const int shift = std::min(scaleFactor, 31);
    return walkTree(src, dst, len, [shift](Tarn32s x) { return roundedLogarithm(x) >> shift; });
}

// 10 log10 x below 15. The lowest integer marks arguments that no bracket has: their elements stay as they are.
constexpr Tarn32s noBracket = lowest<Tarn32s>;
constexpr Tarn32s decibelsBelow15[] = {0,         0,  3,         5,         6,         7,         8,        noBracket,
                                       noBracket, 10, noBracket, noBracket, noBracket, noBracket, noBracket};

// The logarithm in single precision, times a factor, as integers.
template <typename D, typename Operation>
int walkFactor(const Tarn32s* src, D* dst, int len, Operation operation)
{
    const int met = firstWarning(src, len);
    const StandardArithmetic guard;
    walk(dst, len, operation, src);
    return met;
}

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

int Ln32s_W7(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32f factor)
{
    return walkFactor(pSrc, pDst, len, ByFactor<Tarn32s>{factor});
}

int Ten_Lg32s_W7(const Tarn32s* pSrc, Tarn32s* pDst, int len, Tarn32f factor)
{
    constexpr Tarn32f decibelsPerNeper = 0x1.15f2dp+2F; // 10 / ln 10
    return walkFactor(pSrc, pDst, len, ByFactor<Tarn32s>{factor * decibelsPerNeper});
}

int tarn::logarithmsByFactor(const Tarn32s* src, Tarn16s* dst, int len, Tarn32f factor)
{
    return walkFactor(src, dst, len, ByFactor<Tarn16s>{factor});
}

int tarn::logarithms(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor)
{
    return shiftedLogarithms(src, dst, len, scaleFactor);
}
int tarn::logarithms(const Tarn32s* src, Tarn16s* dst, int len, int scaleFactor)
{
    return shiftedLogarithms(src, dst, len, scaleFactor);
}

int tarn::logarithms(const Tarn16s* src, Tarn16s* dst, int len, int scaleFactor)
{
    constexpr int lastDivided = 4;
    constexpr int firstMultiplied = -13;
    if (scaleFactor == 0) {
        return walkTree(src, dst, len, [](Tarn32s x) { return roundedLogarithm(x); });
    }
    if (scaleFactor > lastDivided) {
        return walkTree(src, dst, len, [](Tarn32s) { return 0; });
    }
    if (scaleFactor > 0) {
        const auto& tree = dividedLogarithms[scaleFactor - 1];
        return walkTree(src, dst, len, [&tree](Tarn32s x) { return tree(x); });
    }
    if (scaleFactor == -1) {
        return walkTree(src, dst, len, DoubledLogarithm{});
    }
    if (scaleFactor >= firstMultiplied) {
        const int met = firstWarning(src, len);
        const StandardArithmetic guard;
        walk(dst, len, MultipliedLogarithm{twoToMinus<Tarn64f>(scaleFactor)}, src);
        return met;
    }
    if (scaleFactor == firstMultiplied - 1) {
        return walkTree(src, dst, len, LogarithmTimes2To14{});
    }
    if (scaleFactor == firstMultiplied - 2) {
        return walkTree(src, dst, len, LogarithmTimes2To15{});
    }
    return walkTree(src, dst, len, [](Tarn32s x) { return x < 2 ? 0 : 32767; });
}

int tarn::decibels(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor)
{
    const int shift = std::min(scaleFactor, 31);
    int met = 0;
    for (int i = 0; i < len; ++i) {
        const Tarn32s x = loadElement(src + i);
        if (x >= std::ssize(decibelsBelow15)) [[likely]] {
            store(dst + i, decibelsFrom15(x) >> shift);
        } else if (x < 1) {
            met = met == 0 ? warningOf(x) : met;
            store(dst + i, 0);
        } else if (decibelsBelow15[x] != noBracket) {
            store(dst + i, decibelsBelow15[x] >> shift);
        }
    }
    return met;
}
