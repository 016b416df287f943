// Kernels of the exponential.
#include "levels/arithmetic/psexp.h"

#include "frame/rounding.h"
#include "frame/simd_exp.h"
#include "levels/arithmetic/psexp_tables.h"

#include <array>

using namespace tarn;

namespace {

// What a table holds: results for consecutive arguments. Below them the result is that of the first, above them that of
// the last, which are 0 and the bound.
template <typename T>
struct ByTable {
    int lowest;
    int highest;
    const T* results;

    TARN_INLINE T operator()(T x) const
    {
        if constexpr (sizeof(T) > sizeof(int)) {
            return results[std::clamp(clampTo<int>(x), lowest, highest) - lowest];
        } else {
            return results[std::clamp<int>(x, lowest, highest) - lowest];
        }
    }
};

// One half is added, and the fraction cut off.
template <typename T>
constexpr T limited(Tarn64f x)
{
    return x > highest<T> ? highest<T> : static_cast<T>(x + 0.5);
}

// The scale factors that have a constant table, from -farthest to farthest, and what the tables hold: arguments from 0
// to 2 reach for factors from 0 on, from -reach to reach below.
template <typename T>
constexpr int farthest = sizeof(T) == 2 ? 16 : 31;
template <typename T>
constexpr int reach = sizeof(T) == 2 ? 12 : 22;
template <typename T>
constexpr std::size_t tableSize = 2 * reach<T> + 3;

template <typename T>
constexpr int firstArgument(int scaleFactor)
{
    return scaleFactor >= 0 ? 0 : -reach<T>;
}

template <typename T>
constexpr auto tableFor(int scaleFactor)
{
    std::array<T, tableSize<T>> table{};
    for (std::size_t i = 1; i + 1 < table.size(); ++i) {
        const int x = firstArgument<T>(scaleFactor) + static_cast<int>(i) - 1;
        table[i] = limited<T>(powersOfE[x - lowestPower] * twoToMinus<Tarn64f>(scaleFactor));
    }
    table.back() = highest<T>;
    return table;
}

template <typename T>
constexpr auto tables = [] {
    std::array<std::array<T, tableSize<T>>, 2 * farthest<T> + 1> all{};
    for (int s = -farthest<T>; s <= farthest<T>; ++s) {
        all[static_cast<std::size_t>(s + farthest<T>)] = tableFor<T>(s);
    }
    return all;
}();

template <typename T, typename Table>
void walkTable(const T* src, T* dst, int len, Table table)
{
    walkElements(dst, 0, len, table, src);
}

// The results of a scale factor that has no constant table lie between 0 and the bound for some arguments about
// scaleFactor ln 2 only. Where the exponential leaves the range of doubles the product of 0 and infinity counts as 0.
constexpr int callTableSize = 52;
constexpr Tarn64f lowestExponent = -746;
constexpr Tarn64f highestExponent = 711;

template <typename T, typename Result>
void walkCallTable(const T* src, T* dst, int len, int scaleFactor, Result result)
{
    const Tarn64f first = std::floor((scaleFactor - 1.0) * logOfTwo<Tarn64f>[0]) - 1;
    const Tarn64f lowest = std::clamp(first, lowestExponent, highestExponent - (callTableSize - 1));
    T table[callTableSize];
    for (int i = 0; i < callTableSize; ++i) {
        table[i] = result(lowest + i);
    }
    const int from = static_cast<int>(lowest);
    walkTable(src, dst, len, ByTable<T>{from, from + callTableSize - 1, table});
}

template <typename T>
void exponentialsOf(const T* src, T* dst, int len, int scaleFactor)
{
    if (scaleFactor >= -farthest<T> && scaleFactor <= farthest<T>) {
        const int first = firstArgument<T>(scaleFactor) - 1;
        const auto& table = tables<T>[static_cast<std::size_t>(scaleFactor + farthest<T>)];
        walkTable(src, dst, len, ByTable<T>{first, first + static_cast<int>(table.size()) - 1, table.data()});
        return;
    }
    const StandardArithmetic guard;
    const Tarn64f factor = twoToMinusAny(scaleFactor);
    walkCallTable(src, dst, len, scaleFactor, [factor](Tarn64f x) {
        const Tarn64f product = preciseExponential(x) * factor;
        return std::isnan(product) ? T{0} : limited<T>(product);
    });
}

// The result as an integer of 63 bits, for which a double has too few.
Tarn64s scaledPower(Tarn64f x, int scaleFactor)
{
    constexpr int normalFactors = 1000;
    if (scaleFactor < -normalFactors || scaleFactor > normalFactors) {
        const Tarn64f product = preciseExponential(x) * twoToMinusAny(scaleFactor);
        return std::isnan(product) ? 0 : product >= 0x1p63 ? highest<Tarn64s> : static_cast<Tarn64s>(product + 0.5);
    }
    const precise::Power power = precise::powerOfE(x);
    const int exponent = power.n - scaleFactor;
    if (exponent > 63) {
        return highest<Tarn64s>;
    }
    if (exponent < -3) {
        return 0;
    }
    // Both parts are multiples of 2^-64 after the scaling, or too small to matter.
    const Tarn64f hi = power.y * twoToMinus<Tarn64f>(-exponent);
    const Tarn64f lo = power.yLo * twoToMinus<Tarn64f>(-exponent);
    if (hi >= 0x1p63) {
        return highest<Tarn64s>;
    }
    const Tarn64f whole = std::floor(hi);
    const Tarn64f rest = std::floor(hi - whole + lo + 0.5);
    return static_cast<Tarn64s>(whole) + static_cast<Tarn64s>(rest);
}

// The narrow type first, as elements of a wide destination.
struct ExponentialInDouble {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return exponential(widen(x));
    }
};

} // namespace

void tarn::exponentials(const Tarn16s* src, Tarn16s* dst, int len, int scaleFactor)
{
    exponentialsOf(src, dst, len, scaleFactor);
}

void tarn::exponentials(const Tarn32s* src, Tarn32s* dst, int len, int scaleFactor)
{
    exponentialsOf(src, dst, len, scaleFactor);
}

void tarn::exponentials(const Tarn64s* src, Tarn64s* dst, int len)
{
    static constexpr auto table = [] {
        std::array<Tarn64s, std::size(integerPowersOfE) + 2> results{};
        std::copy(std::begin(integerPowersOfE), std::end(integerPowersOfE), results.begin() + 1);
        results.back() = highest<Tarn64s>;
        return results;
    }();
    walkTable(src, dst, len, ByTable<Tarn64s>{-1, static_cast<int>(std::ssize(integerPowersOfE)), table.data()});
}

void Exp_64s_P6(const Tarn64s* pSrc, Tarn64s* pDst, int len, int scaleFactor)
{
    const StandardArithmetic guard;
    walkCallTable(pSrc, pDst, len, scaleFactor, [scaleFactor](Tarn64f x) { return scaledPower(x, scaleFactor); });
}

void tarnsExp_32f_W7(const Tarn32f* pSrc, Tarn32f* pDst, int len)
{
    const StandardArithmetic guard;
    walk(pDst, len, exponential, pSrc);
}

void tarnsExp_64f_P6(const Tarn64f* pSrc, Tarn64f* pDst, int len)
{
    const StandardArithmetic guard;
    walk(pDst, len, exponential, pSrc);
}

void tarnsExp_64f_I_P6(Tarn64f* pSrcDst, int len) { tarnsExp_64f_P6(pSrcDst, pSrcDst, len); }

void tarnsExp_32f_46f_P6(const Tarn32f* pSrc, Tarn64f* pDst, int len)
{
    const StandardArithmetic guard;
    walk(pDst, len, ExponentialInDouble{}, pSrc);
}
