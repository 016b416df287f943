// Direct FIR calls with floating taps. Singles are computed as doubles, sums of 16-bit samples in the taps' type.
#include "levels/fir/psfir_block.h"
#include "levels/fir/psfir_rounding.h"
#include "levels/fir/psfirdirect_line.h"

using namespace tarn;

namespace {

// What sums are computed in.
template <typename T, typename S>
struct SumOf {
    using type = T;
};
template <>
struct SumOf<Tarn32f, Tarn32f> {
    using type = Tarn64f;
};
template <>
struct SumOf<Tarn32fc, Tarn32fc> {
    using type = Tarn64fc;
};

// -- Outputs ----------------------------------------------------------------------------------------------------------

constexpr int finishedAtOnce = 4;

template <typename S, Float C, typename Finish>
void finishParts(const C* sums, S* dst, int len, Finish finish)
{
    int i = 0;
    for (; i <= len - finishedAtOnce; i += finishedAtOnce) {
        finish.put(dst + i, loadPack<finishedAtOnce>(sums + i));
    }
    if (i < len) {
        C last[finishedAtOnce] = {};
        S outputs[finishedAtOnce];
        std::copy(sums + i, sums + len, last);
        finish.put(outputs, loadPack<finishedAtOnce>(last));
        std::memcpy(static_cast<void*>(dst + i), outputs, sizeof(S) * static_cast<std::size_t>(len - i));
    }
}

// Integers are rounded with halves away from zero.
template <typename C, typename S>
void finishOutputs(const C* sums, S* dst, int len, int scaleFactor)
{
    constexpr int parts = isComplex<C> ? 2 : 1;
    const auto* const from = reinterpret_cast<const Part<C>*>(sums);
    auto* const to = reinterpret_cast<Part<S>*>(dst);
    if constexpr (Float<Part<S>>) {
        finishParts(from, to, parts * len, Unscaled{});
    } else {
        finishParts(from, to, parts * len, RoundedAway<Part<C>>{TwoFactors<Part<C>>{scaleFactor}});
    }
}

// -- One rate ---------------------------------------------------------------------------------------------------------

template <typename C, typename S>
void convertSamples(const S* src, C* dst, int len)
{
    if constexpr (std::is_same_v<C, S>) {
        copy(src, dst, len);
    } else {
        samplesToTaps(src, dst, len);
    }
}

template <typename T, typename S>
void filterBlocks(const DirectTaps<T>& filter, const S* src, S* dst, int count, S* line, Tarn32s* pIndex)
{
    using C = typename SumOf<T, S>::type;
    alignas(regionAlignment) Part<C> table[TapLayout<C>::width * directTaps];
    C samples[directSamples];
    C sums[directOutputs];
    const int tapsLen = filter.tapsLen;
    filterInParts(
        src, count, line, pIndex, tapsLen,
        [&](int begin, int outputs, int i, int done, int taps) {
            const T* const first = filter.taps + (tapsLen - done - taps);
            for (int k = 0; k < taps; ++k) {
                TapLayout<C>::write(convertedTo<C>(loadElement(first + k)), table + TapLayout<C>::width * k);
            }
            takeSamples<S>(line, begin, tapsLen, src + i, done, outputs + taps - 1,
                           [&](const S* p, int at, int len) { convertSamples<C>(p, samples + at, len); });
            if (done == 0) {
                filterBlock(table, samples, sums, outputs, taps);
            } else {
                filterBlock<true>(table, samples, sums, outputs, taps);
            }
        },
        [&](int outputs, int i) { finishOutputs(sums, dst + i, outputs, filter.scaleFactor); });
}

// -- Two rates --------------------------------------------------------------------------------------------------------

template <typename C>
TARN_INLINE C productOf(C x, C tap)
{
    if constexpr (isComplex<C>) {
        return MulComplex::of(x, tap);
    } else {
        return mul(x, tap);
    }
}

// The sum over every up-th tap from `tap` on, of inputs that go back in time, four products at a time.
template <typename C, typename S, typename T>
TARN_INLINE C addBackwards(C sum, const S* x, int step, const T* tap, Index up, int len)
{
    const auto product = [=](int k) {
        return productOf(convertedTo<C>(loadElement(x + static_cast<Index>(step) * k)),
                         convertedTo<C>(loadElement(tap + up * k)));
    };
    int k = 0;
    for (; k <= len - 4; k += 4) {
        sum = add(sum, add(add(product(k), product(k + 1)), add(product(k + 2), product(k + 3))));
    }
    for (; k < len; ++k) {
        sum = add(sum, product(k));
    }
    return sum;
}

template <typename T, typename S>
void changeRates(const DirectTaps<T>& filter, const DirectRates& r, const S* src, S* dst, int numIters, S* line)
{
    using C = typename SumOf<T, S>::type;
    C sums[directOutputs];
    const int tapsLen = filter.tapsLen;
    const int whole = tapsLen / r.up;
    const int rest = tapsLen % r.up;
    const Index outputs = static_cast<Index>(r.up) * numIters;
    walkRates(r, src, numIters, line, whole + (rest > 0 ? 1 : 0), [&](Index m, Index newest, int phase) {
        const int len = whole + (phase < rest ? 1 : 0);
        const auto fresh = static_cast<int>(std::min<Index>(newest + 1, len));
        const T* const taps = filter.taps + phase;
        const C sum = addBackwards(C{}, src + newest, -1, taps, r.up, fresh);
        const auto at = static_cast<int>(m % directOutputs);
        // The line's samples that the inputs of this call have not yet replaced.
        sums[at] = addBackwards(sum, line + (fresh - newest - 1), 1, taps + static_cast<Index>(r.up) * fresh, r.up,
                                len - fresh);
        if (at + 1 == directOutputs || m + 1 == outputs) {
            finishOutputs(sums, dst + (m - at), at + 1, filter.scaleFactor);
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
TARN_FIR_DIRECT_FAMILIES(TARN_DEFINE_FIR_DIRECT, TARN_DEFINE_FIR_DIRECT, TARN_FIR_DIRECT_NOT_HERE)
