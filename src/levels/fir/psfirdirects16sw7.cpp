// Direct FIR calls with integer taps: sums modulo 2^32, shifted and saturated.
//
// Taps of 32 bits are an upper and a lower half, both signed: the sum of the products with the upper ones counts 2^16
// times. Of taps that fit 16 bits the upper half is zero, and left out.
#include "levels/fir/psfir_shift.h"
#include "levels/fir/psfirdirect_line.h"

using namespace tarn;

namespace {

constexpr int samplesAtOnce = 8;
constexpr int sumsAtOnce = 4;
using Sums = Pack<Tarn32s, sumsAtOnce>;

constexpr Tarn16s lowerHalf(Tarn32s tap) { return static_cast<Tarn16s>(tap); }
constexpr Tarn16s upperHalf(Tarn32s tap)
{
    return static_cast<Tarn16s>((static_cast<Tarn32u>(tap) - static_cast<Tarn32u>(Tarn32s{lowerHalf(tap)})) >> 16);
}

// -- Stretches of taps, in reversed order -----------------------------------------------------------------------------

// Real taps, zeros behind the last one.
struct RealStretch {
    alignas(regionAlignment) Tarn16s lower[directTaps];
    alignas(regionAlignment) Tarn16s upper[directTaps];
    int len = 0; // whole steps
    bool isWide = false;

    template <typename T>
    RealStretch(const T* taps, int count) : len((count + samplesAtOnce - 1) & -samplesAtOnce)
    {
        for (int k = 0; k < len; ++k) {
            const Tarn32s tap = k < count ? Tarn32s{loadElement(taps + count - 1 - k)} : 0;
            lower[k] = lowerHalf(tap);
            upper[k] = upperHalf(tap);
            isWide |= upper[k] != 0;
        }
    }
};

TARN_INLINE Sums sumFour(const Tarn16s* x, const Tarn16s* taps, int len)
{
    Sums sums[sumsAtOnce];
    for (Sums& sum : sums) {
        sum = splat<Sums>(0);
    }
    for (int i = 0; i < len; i += samplesAtOnce) {
        const auto w = loadPack<samplesAtOnce>(taps + i);
        for (int k = 0; k < sumsAtOnce; ++k) {
            sums[k] = add(sums[k], mulAddPairs(loadPack<samplesAtOnce>(x + i + k), w));
        }
    }
    return sumsOfLanes(sums[0], sums[1], sums[2], sums[3]);
}

// Adds to the sums of outputs, a multiple of four of them.
void addStretch(const RealStretch& stretch, const Tarn16s* x, Tarn32s* sums, int outputs)
{
    for (int i = 0; i < outputs; i += sumsAtOnce) {
        auto sum = add(loadPack<sumsAtOnce>(sums + i), sumFour(x + i, stretch.lower, stretch.len));
        if (stretch.isWide) {
            sum = add(sum, shiftLeft(sumFour(x + i, stretch.upper, stretch.len), 16));
        }
        store(sums + i, sum);
    }
}

// Complex taps: the pairs (re, -im), whose products with a sample are its real part, and (im, re).
struct ComplexStretch {
    static constexpr int lists = 2;
    Tarn16sc lower[lists][directTaps];
    Tarn16sc upper[lists][directTaps];
    int len = 0;

    ComplexStretch(const Tarn32sc* taps, int count) : len(count)
    {
        for (int k = 0; k < count; ++k) {
            const Tarn32sc tap = loadElement(taps + count - 1 - k);
            const Tarn32s negated = sub(0, tap.im);
            lower[0][k] = {lowerHalf(tap.re), lowerHalf(negated)};
            upper[0][k] = {upperHalf(tap.re), upperHalf(negated)};
            lower[1][k] = {lowerHalf(tap.im), lowerHalf(tap.re)};
            upper[1][k] = {upperHalf(tap.im), upperHalf(tap.re)};
        }
    }
};

TARN_INLINE Sums sumParts(const Tarn16sc* x, const Tarn16sc* lower, const Tarn16sc* upper, int len)
{
    auto low = splat<Sums>(0);
    auto high = low;
    for (int i = 0; i < len; ++i) {
        const auto samples = loadPack<sumsAtOnce>(x + i);
        low = add(low, mulAddPairs(samples, splat<Pack<Tarn16sc, sumsAtOnce>>(lower[i])));
        high = add(high, mulAddPairs(samples, splat<Pack<Tarn16sc, sumsAtOnce>>(upper[i])));
    }
    return add(low, shiftLeft(high, 16));
}

void addStretch(const ComplexStretch& stretch, const Tarn16sc* x, Tarn32sc* sums, int outputs)
{
    for (int i = 0; i < outputs; i += sumsAtOnce) {
        const Sums re = sumParts(x + i, stretch.lower[0], stretch.upper[0], stretch.len);
        const Sums im = sumParts(x + i, stretch.lower[1], stretch.upper[1], stretch.len);
        auto* const parts = reinterpret_cast<Tarn32s*>(sums + i);
        const auto products = reinterpretPack<Tarn32s>(complexFrom<Tarn32sc>(re, im));
        store(parts, add(loadPack<2 * sumsAtOnce>(parts), products));
    }
}

// -- Families ---------------------------------------------------------------------------------------------------------

template <typename S>
using SumOf = std::conditional_t<isComplex<S>, Tarn32sc, Tarn32s>;
template <typename S>
using StretchOf = std::conditional_t<isComplex<S>, ComplexStretch, RealStretch>;

template <typename S>
void finishOutputs(const SumOf<S>* sums, S* dst, int len, int tapsFactor, int scaleFactor)
{
    withShift(tapsFactor, scaleFactor, [=](auto shift) {
        for (int i = 0; i < len; ++i) {
            if constexpr (isComplex<S>) {
                store(dst + i, toSample(sums[i], shift));
            } else {
                store(dst + i, narrowSaturated<Tarn16s>(shift(sums[i])));
            }
        }
    });
}

template <typename T, typename S>
void filterBlocks(const DirectTaps<T>& filter, const S* src, S* dst, int count, S* line, Tarn32s* pIndex)
{
    // Whole groups of sums, and whole steps of the taps behind the last sample.
    S samples[directSamples + sumsAtOnce + samplesAtOnce];
    SumOf<S> sums[directOutputs + sumsAtOnce];
    const int tapsLen = filter.tapsLen;
    filterInParts(
        src, count, line, pIndex, tapsLen,
        [&](int begin, int outputs, int i, int done, int taps) {
            const StretchOf<S> stretch(filter.taps + (tapsLen - done - taps), taps);
            const int len = outputs + taps - 1;
            takeSamples<S>(line, begin, tapsLen, src + i, done, len,
                           [&](const S* p, int at, int n) { copy(p, samples + at, n); });
            std::fill_n(samples + len, sumsAtOnce + samplesAtOnce, S{});
            if (done == 0) {
                std::fill_n(sums, outputs + sumsAtOnce, SumOf<S>{});
            }
            addStretch(stretch, samples, sums, outputs);
        },
        [&](int outputs, int i) { finishOutputs(sums, dst + i, outputs, filter.tapsFactor, filter.scaleFactor); });
}

TARN_INLINE void addProduct(Tarn32s& sum, Tarn16s x, Tarn32s tap)
{
    sum = add(sum, static_cast<Tarn32s>(static_cast<Tarn32u>(Tarn32s{x}) * static_cast<Tarn32u>(tap)));
}
TARN_INLINE void addProduct(Tarn32sc& sum, Tarn16sc x, Tarn32sc tap)
{
    addProduct(sum.re, x.re, tap.re);
    addProduct(sum.re, x.im, sub(0, tap.im));
    addProduct(sum.im, x.re, tap.im);
    addProduct(sum.im, x.im, tap.re);
}

template <typename T, typename S>
void changeRates(const DirectTaps<T>& filter, const DirectRates& r, const S* src, S* dst, int numIters, S* line)
{
    SumOf<S> sums[directOutputs];
    const int tapsLen = filter.tapsLen;
    const int whole = tapsLen / r.up;
    const int rest = tapsLen % r.up;
    const Index outputs = static_cast<Index>(r.up) * numIters;
    walkRates(r, src, numIters, line, whole + (rest > 0 ? 1 : 0), [&](Index m, Index newest, int phase) {
        const int len = whole + (phase < rest ? 1 : 0);
        SumOf<S> sum{};
        for (int k = 0; k < len; ++k) {
            const S x = loadElement(k <= newest ? src + (newest - k) : line + (k - newest - 1));
            addProduct(sum, x, loadElement(filter.taps + phase + static_cast<Index>(r.up) * k));
        }
        const auto at = static_cast<int>(m % directOutputs);
        sums[at] = sum;
        if (at + 1 == directOutputs || m + 1 == outputs) {
            finishOutputs(sums, dst + (m - at), at + 1, filter.tapsFactor, filter.scaleFactor);
        }
    });
}

} // namespace

#define TARN_DEFINE_FIR_DIRECT(TAPS, SAMPLES, T, S)                                                                   \
    void tarn::filterDirectly(const DirectTaps<T>& filter, const S* src, S* dst, int count, S* line, Tarn32s* pIndex) \
    {                                                                                                                 \
        filterBlocks(filter, src, dst, count, line, pIndex);                                                          \
    }                                                                                                                 \
    void tarn::changeRate(const DirectTaps<T>& filter, const DirectRates& rates, const S* src, S* dst, int numIters,  \
                          S* line)                                                                                    \
    {                                                                                                                 \
        changeRates(filter, rates, src, dst, numIters, line);                                                         \
    }
#define TARN_FIR_DIRECT_NOT_HERE(TAPS, SAMPLES, T, S)
TARN_FIR_DIRECT_FAMILIES(TARN_FIR_DIRECT_NOT_HERE, TARN_FIR_DIRECT_NOT_HERE, TARN_DEFINE_FIR_DIRECT)
TARN_DEFINE_FIR_DIRECT(, 16s, Tarn16s, Tarn16s)
