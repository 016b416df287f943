// Kernels of running averages and of pre-emphasis.
//
// Of n samples in closed form y becomes
//     alpha^n y + (1 - alpha) (alpha^(n-1) x[0] + ... + alpha x[n-2] + x[n-1]).
// Everything here is an integer. A result that fits 32 bits comes of a y that is not much larger than the samples,
// since any other one grows beyond 32 bits and never returns. n is chosen so that in this case every product and sum is
// exact: the order in which they are formed then shows in no result, and a block gives what single samples would.
#include "levels/coding/psupdate.h"

#include "frame/simd.h"
#include "frame/simd_ordered.h"

#include <array>

namespace {

using namespace tarn;

// Samples that are weighted at once, in closed forms of 8, 4, 2 or 1 of them.
constexpr int block = 8;

// What is exact: |alpha|^n times twice the largest sample stays below the significant bits of W.
constexpr double exactForSamples = 0x1p37;      // samples of 16 bits in doubles
constexpr double exactForSquares = 0x1p22;      // squares, of 31 bits
constexpr double exactForSamplesInSingle = 256; // samples of 16 bits in single precision; of squares 8 bits

constexpr int closedForm(Tarn16s alpha, double exact)
{
    const double size = alpha < 0 ? -1.0 * alpha : 1.0 * alpha;
    const double square = size * size;
    const double fourth = square * square;
    return fourth * fourth <= exact ? 8 : fourth <= exact ? 4 : square <= exact ? 2 : 1;
}

// The powers by which `count` terms of a block are multiplied: terms are `span` samples each, and start anew with every
// n samples.
template <typename W, int count, int n>
std::array<W, static_cast<std::size_t>(count)> weightsOf(Tarn16s alpha, W last)
{
    constexpr int span = block / count;
    std::array<W, static_cast<std::size_t>(count)> weights;
    for (int k = count - 1; k >= 0; --k) {
        const bool isLast = (k + 1) * span % n == 0;
        const auto place = static_cast<std::size_t>(k);
        weights[place] = isLast ? last : weights[place + 1] * static_cast<W>(span == 2 ? alpha * alpha : alpha);
    }
    return weights;
}

// The sum of so many terms from `first` on.
template <int count, typename W, std::size_t N>
TARN_INLINE W sumOfTerms(const std::array<W, N>& terms, std::size_t first)
{
    if constexpr (count == 1) {
        return terms[first];
    } else {
        return sumOfTerms<count / 2>(terms, first) + sumOfTerms<count / 2>(terms, first + count / 2);
    }
}

// y after the whole blocks: n samples a step. `Terms` gives what a block's samples contribute, `single` a sample.
template <typename W, int n, typename Terms>
TARN_INLINE W average(W y, const Tarn16s* src, int len, Tarn16s alpha, const Terms& terms)
{
    constexpr int count = Terms::count;
    constexpr int group = n * count / block;
    const auto weights = weightsOf<W, count, n>(alpha, terms.template last<W>());
    const auto lanesOfWeights = loadPack<count>(weights.data());
    W power = 1;
    for (int k = 0; k < n; ++k) {
        power *= static_cast<W>(alpha);
    }
    int i = 0;
    for (; i <= len - block; i += block) {
        const auto weighted = lanesAsArray(mul(convert<W>(terms.of(loadPack<block>(src + i))), lanesOfWeights));
        repeat<block / n>(
            [&](auto k) { y = power * y + sumOfTerms<group>(weighted, static_cast<std::size_t>(k * group)); });
    }
    for (; i < len; ++i) {
        y = static_cast<W>(alpha) * y + static_cast<W>(1 - alpha) * static_cast<W>(terms.single(loadElement(src + i)));
    }
    return y;
}

// Samples shifted. Two at a time come of one multiply-add by (alpha (1 - alpha), 1 - alpha), which fits 16 bits.
struct PairsOfSamples {
    static constexpr int count = block / 2;
    int shift;
    Tarn32s factors;

    PairsOfSamples(int shiftRight, Tarn16s alpha)
        : shift(shiftRight), factors(((1 - alpha) << 16) | (alpha * (1 - alpha) & 0xFFFF))
    {
    }

    template <typename W>
    W last() const
    {
        return 1;
    }
    TARN_INLINE auto of(Pack<Tarn16s, block> x) const
    {
        const auto pairs = reinterpretPack<Tarn16s>(splat<Pack<Tarn32s, count>>(factors));
        return mulAddPairs(shiftRight(x, shift), pairs);
    }
    TARN_INLINE int single(Tarn16s x) const { return x >> shift; }
};

// The same one by one, for factors of more bits.
struct Samples {
    static constexpr int count = block;
    int shift;
    Tarn16s alpha;

    template <typename W>
    W last() const
    {
        return static_cast<W>(1 - alpha);
    }
    TARN_INLINE auto of(Pack<Tarn16s, block> x) const { return widen(shiftRight(x, shift)); }
    TARN_INLINE int single(Tarn16s x) const { return x >> shift; }
};

struct SquaredSamples : Samples {
    TARN_INLINE auto of(Pack<Tarn16s, block> x) const { return shiftRight(mulWidened(x, x), shift); }
    TARN_INLINE int single(Tarn16s x) const { return (x * x) >> shift; }
};

template <typename W, typename Terms>
W averageExactly(W y, const Tarn16s* src, int len, Tarn16s alpha, double exact, const Terms& terms)
{
    switch (closedForm(alpha, exact)) {
    case 8:
        return average<W, 8>(y, src, len, alpha, terms);
    case 4:
        return average<W, 4>(y, src, len, alpha, terms);
    case 2:
        return average<W, 2>(y, src, len, alpha, terms);
    default:
        if constexpr (Terms::count == block) {
            return average<W, 1>(y, src, len, alpha, terms);
        } else {
            return average<W, 2>(y, src, len, alpha, terms); // does not come: alpha is small
        }
    }
}

template <typename W, typename Terms>
void updateRounded(const Tarn16s* src, int len, Tarn32s* srcDst, Tarn16s alpha, double exact, W most,
                   const Terms& terms)
{
    const W y = averageExactly(static_cast<W>(loadElement(srcDst)), src, len, alpha, exact, terms);
    const W limited = std::min(std::max(y, W{lowest<Tarn32s>}), most);
    store(srcDst, roundToInteger(limited));
}

constexpr Tarn32f mostInSingle = 2147483520.0F; // the largest below 2^31
constexpr Tarn64f most = highest<Tarn32s>;

} // namespace

void owntarnsUpdLinFst_16s32s_I_ASM(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight, Tarn16s alpha)
{
    updateRounded(pSrc, len, pSrcDst, alpha, exactForSamplesInSingle, mostInSingle,
                  PairsOfSamples(srcShiftRight, alpha));
}

void owntarnsUpdLinAcc_16s32s_I_ASM(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight, Tarn16s alpha)
{
    updateRounded(pSrc, len, pSrcDst, alpha, exactForSamples, most, PairsOfSamples(srcShiftRight, alpha));
}

void owntarnsUpdPowFst_16s32s_I_ASM(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight, Tarn16s alpha)
{
    updateRounded(pSrc, len, pSrcDst, alpha, exactForSamplesInSingle, mostInSingle,
                  SquaredSamples{{srcShiftRight, alpha}});
}

void owntarnsUpdPowAcc_16s32s_I_ASM(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight, Tarn16s alpha)
{
    updateRounded(pSrc, len, pSrcDst, alpha, exactForSquares, most, SquaredSamples{{srcShiftRight, alpha}});
}

void owntarnsUpdLin_16s32s_I(const Tarn16s* pSrc, int len, Tarn32s* pSrcDst, int srcShiftRight, Tarn16s alpha)
{
    const Tarn64f y = averageExactly(Tarn64f{1} * loadElement(pSrcDst), pSrc, len, alpha, exactForSamples,
                                     Samples{srcShiftRight, alpha});
    store(pSrcDst, y > most                           ? highest<Tarn32s>
                   : !(y >= Tarn64f{lowest<Tarn32s>}) ? lowest<Tarn32s>
                                                      : static_cast<Tarn32s>(y));
}

// -- Pre-emphasis -----------------------------------------------------------------------------------------------------

namespace {

struct Emphasize {
    template <typename X>
    TARN_INLINE X operator()(X x, X before, X val) const
    {
        return sub(x, mulInOrder(val, before));
    }
};

// From the end to the start, so that every sample is read as it was before its own place is written.
template <typename T>
TARN_INLINE void emphasize(T* srcDst, int len, Tarn32f val)
{
    constexpr int step = 2 * lanes<Tarn32f>;
    constexpr Emphasize operation{};
    const auto factors = splat<Pack<Tarn32f, step>>(val);
    int end = len;
    for (; end > step; end -= step) {
        T* const p = srcDst + (end - step);
        const auto y = operation(loadSamples<step>(static_cast<const T*>(p)),
                                 loadSamples<step>(static_cast<const T*>(p - 1)), factors);
        if constexpr (std::is_same_v<T, Tarn16s>) {
            store(p, narrowSaturated<T>(roundToInteger(y)));
        } else {
            store(p, y);
        }
    }
    for (int i = end - 1; i >= 0; --i) {
        const auto before = i == 0 ? Tarn32f{0} : static_cast<Tarn32f>(loadElement(srcDst + i - 1));
        const auto x = static_cast<Tarn32f>(loadElement(srcDst + i));
        store(srcDst + i, toSample<T>(operation(x, before, val)));
    }
}

} // namespace

void ownsPreemphasize_32f(Tarn32f* pSrcDst, int len, Tarn32f val) { emphasize(pSrcDst, len, val); }
void ownsPreemphasize_16s(Tarn16s* pSrcDst, int len, Tarn32f val) { emphasize(pSrcDst, len, val); }
