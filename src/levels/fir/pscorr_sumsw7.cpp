// Sums of products at many distances: blocks of neighbouring outputs side by side in registers.
#include "levels/fir/pscorr_sums.h"

#include "frame/walk.h"
#include "levels/data/psconvert.h"

#include <algorithm>

namespace tarn {
namespace {

// Terms of a sum, by their place in x. Places are compared with sums of lengths, which 32 bits need not hold.
struct Terms {
    long long first;
    long long end;

    bool empty() const { return first >= end; }
};
Terms commonOf(Terms a, Terms b) { return {std::max(a.first, b.first), std::min(a.end, b.end)}; }
Terms spanOf(Terms a, Terms b) { return {std::min(a.first, b.first), std::max(a.end, b.end)}; }

// Registers of outputs side by side. A complex output has two sums, and eight registers are all that 32-bit code has
// for sums, factors and products.
template <typename T>
inline constexpr int registersAtOnce = isComplex<T> ? 2 : 4;

// The sums of one block of outputs; n names one of them, and its term i is the product of x[i] and s[n + direction i].
template <typename T, int direction>
class Block {
    using P = Part<T>;
    using V = Vector<P>;
    static constexpr int parts = isComplex<T> ? 2 : 1;

public:
    static constexpr int perRegister = V::size / parts;
    static constexpr int size = registersAtOnce<T> * perRegister;

    Block(const T* factors, int factorsLen, const T* samples, int samplesLen)
        : x(factors), xLen(factorsLen), s(samples), sLen(samplesLen)
    {
    }

    // The terms that outputs from n to `last` have.
    Terms termsOf(long long n, long long last) const { return spanOf(termsOf(n), termsOf(last)); }

    // Sums such terms of the outputs from n on.
    void sum(long long n, Terms terms)
    {
        begin = n;
        for (auto& plane : sums) {
            std::fill(std::begin(plane), std::end(plane), P{0});
        }
        take<registersAtOnce<T>>(0, terms);
    }

    // The results, as many as X has.
    template <typename X>
    TARN_INLINE X result(int lane) const
    {
        if constexpr (isComplex<T>) {
            // Products with real parts are (xr sr, xr si), those with imaginary ones (xi sr, xi si).
            return add(load<X>(sums[0], lane), conjugate(swapParts(load<X>(sums[1], lane))));
        } else {
            return load<X>(sums[0], lane);
        }
    }

private:
    Terms termsOf(long long n) const
    {
        if constexpr (direction > 0) {
            return {std::max(0LL, -n), std::min<long long>(xLen, sLen - n)};
        } else {
            return {std::max(0LL, n - sLen + 1), std::min<long long>(xLen, n + 1)};
        }
    }

    // The outputs in so many registers. The terms that all of them have are taken together; those before and behind
    // belong to fewer of them.
    template <int registers>
    void take(int lane, Terms terms)
    {
        const Terms ofFirst = termsOf(begin + lane);
        const Terms ofLast = termsOf(begin + lane + registers * perRegister - 1);
        terms = commonOf(terms, spanOf(ofFirst, ofLast));
        const Terms common = commonOf(terms, commonOf(ofFirst, ofLast));
        if (common.empty()) {
            takeApart<registers>(lane, terms);
            return;
        }
        takeApart<registers>(lane, {terms.first, common.first});
        takeTogether<registers>(lane, static_cast<Index>(common.first), static_cast<Index>(common.end));
        takeApart<registers>(lane, {common.end, terms.end});
    }

    template <int registers>
    void takeApart(int lane, Terms terms)
    {
        if (terms.empty()) {
            return;
        }
        if constexpr (registers > 1) {
            for (int r = 0; r < registers; ++r) {
                take<1>(lane + r * perRegister, terms);
            }
        } else {
            for (int k = lane; k < lane + perRegister; ++k) {
                takeOne(k, commonOf(terms, termsOf(begin + k)));
            }
        }
    }

    // What stands against x[i] in the sum of an output, and in those behind it.
    const P* partner(int lane, Index i) const
    {
        return reinterpret_cast<const P*>(s + (static_cast<Index>(begin) + lane + direction * i));
    }

    template <int registers>
    TARN_INLINE void takeTogether(int lane, Index first, Index end)
    {
        V held[parts][registers];
        repeat<parts>([&](auto plane) {
            repeat<registers>(
                [&](auto r) { held[plane][r] = loadPack<V::size>(&sums[plane][lane * parts + r * V::size]); });
        });
        const P* factor = reinterpret_cast<const P*>(x + first);
        const P* against = partner(lane, first);
        for (Index i = first; i < end; ++i) {
            V factors[parts];
            repeat<parts>([&](auto plane) { factors[plane] = splat<V>(loadElement(factor + plane)); });
            repeat<registers>([&](auto r) {
                const V samples = loadPack<V::size>(against + r * V::size);
                repeat<parts>([&](auto plane) { held[plane][r] = add(held[plane][r], mul(samples, factors[plane])); });
            });
            factor += parts;
            against += direction * parts;
        }
        repeat<parts>([&](auto plane) {
            repeat<registers>([&](auto r) { store(&sums[plane][lane * parts + r * V::size], held[plane][r]); });
        });
    }

    void takeOne(int lane, Terms terms)
    {
        for (auto i = static_cast<Index>(terms.first); i < terms.end; ++i) {
            const P* const factor = reinterpret_cast<const P*>(x + i);
            const P* const sample = partner(lane, i);
            repeat<parts>([&](auto plane) {
                repeat<parts>([&](auto part) {
                    P& total = sums[plane][lane * parts + part];
                    total = add(total, mul(loadElement(sample + part), loadElement(factor + plane)));
                });
            });
        }
    }

    template <typename X>
    static TARN_INLINE X load(const P* plane, int lane)
    {
        const T* const p = reinterpret_cast<const T*>(plane) + lane;
        if constexpr (isPack<X>) {
            return loadPack<X::size>(p);
        } else {
            return loadElement(p);
        }
    }

    const T* x;
    int xLen;
    const T* s;
    int sLen;
    long long begin = 0;
    alignas(vectorBytes) P sums[parts][size * parts];
};

// A result as it goes to the destination: conjugated and in the opposite order, or as it is.
template <Results results, typename X>
TARN_INLINE X turned(X x)
{
    if constexpr (results == Results::forward) {
        return x;
    } else if constexpr (isComplex<Element<X>>) {
        return reverse(conjugate(x));
    } else {
        return reverse(x);
    }
}

// Adds the results of outputs n to n + count - 1, of len.
template <Results results, typename X, typename T, typename Sums>
TARN_INLINE void addResults(const Sums& sums, T* dst, int len, int n, int count)
{
    constexpr int step = isPack<X> ? Sums::perRegister : 1;
    for (int lane = 0; lane < count; lane += step) {
        T* const p = dst + (results == Results::forward ? n + lane : len - n - lane - step);
        const X result = turned<results>(sums.template result<X>(lane));
        if constexpr (isPack<X>) {
            store(p, add(loadPack<step>(p), result));
        } else {
            store(p, add(loadElement(p), result));
        }
    }
}

// Outputs beyond the last one are summed with the others of their block, as far as they have terms.
template <int direction, Results results, typename T>
void addSums(const T* x, int xLen, const T* s, int sLen, T* dst, int len, long long lag)
{
    using Sums = Block<T, direction>;
    Sums sums(x, xLen, s, sLen);
    const Terms all = sums.termsOf(lag, lag + len - 1);
    for (long long run = all.first & -termsOfRun; run < all.end; run += termsOfRun) {
        for (int n = 0; n < len; n += Sums::size) {
            sums.sum(lag + n, {run, run + termsOfRun});
            if (n <= len - Sums::size) {
                addResults<results, Pack<T, Sums::perRegister>>(sums, dst, len, n, Sums::size);
            } else {
                addResults<results, T>(sums, dst, len, n, len - n);
            }
        }
    }
}

void widenSamples(const Tarn16s* src, Tarn32f* dst, int len) { ownsConvert_16s32f_W7(src, dst, len); }

// Outputs whose samples are converted at once; these and those of a run lie in the first-level cache.
constexpr int convertedOutputs = 512;

// The same of samples of another type, each converted once for that many outputs.
template <Results results, typename T, typename S>
void addSumsConverted(const S* x, int xLen, const S* s, int sLen, T* dst, int len, long long lag)
{
    T factors[termsOfRun];
    T samples[convertedOutputs + termsOfRun - 1];
    const long long end = std::min<long long>(xLen, sLen - lag);
    for (long long run = std::max(0LL, -(lag + len - 1)) & -termsOfRun; run < end; run += termsOfRun) {
        const int terms = static_cast<int>(std::min<long long>(termsOfRun, xLen - run));
        widenSamples(x + run, factors, terms);
        for (int n = 0; n < len; n += std::min(convertedOutputs, len - n)) {
            const int outputs = std::min(convertedOutputs, len - n);
            const long long first = std::max(0LL, lag + n + run);
            const long long behind = std::min<long long>(sLen, lag + n + run + outputs + terms - 1);
            if (first < behind) {
                const int count = static_cast<int>(behind - first);
                widenSamples(s + first, samples, count);
                addSums<1, results>(factors, terms, samples, count,
                                    results == Results::forward ? dst + n : dst + len - n - outputs, outputs,
                                    lag + n + run - first);
            }
        }
    }
}

} // namespace

template <typename T, typename S>
void addCorrelation(const S* x, int xLen, const S* s, int sLen, T* dst, int len, long long lag, Results results)
{
    const auto run = [=]<Results which>() {
        if constexpr (std::is_same_v<T, S>) {
            addSums<1, which>(x, xLen, s, sLen, dst, len, lag);
        } else {
            addSumsConverted<which>(x, xLen, s, sLen, dst, len, lag);
        }
    };
    if (results == Results::forward) {
        run.template operator()<Results::forward>();
    } else {
        run.template operator()<Results::backward>();
    }
}

template <typename T>
void addConvolution(const T* x, int xLen, const T* s, int sLen, T* dst, int len)
{
    addSums<-1, Results::forward>(x, xLen, s, sLen, dst, len, 0);
}

#define TARN_CORRELATION_SUMS(T, S) \
    template void addCorrelation(const S*, int, const S*, int, T*, int, long long, Results)
TARN_CORRELATION_SUMS(Tarn32f, Tarn32f);
TARN_CORRELATION_SUMS(Tarn64f, Tarn64f);
TARN_CORRELATION_SUMS(Tarn32fc, Tarn32fc);
TARN_CORRELATION_SUMS(Tarn64fc, Tarn64fc);
TARN_CORRELATION_SUMS(Tarn32f, Tarn16s);
template void addConvolution(const Tarn32f*, int, const Tarn32f*, int, Tarn32f*, int);
template void addConvolution(const Tarn64f*, int, const Tarn64f*, int, Tarn64f*, int);

} // namespace tarn
