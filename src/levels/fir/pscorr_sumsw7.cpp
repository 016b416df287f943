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

// A result of its sums: complex ones are those with real parts, (xr sr, xr si), and with imaginary ones, (xi sr, xi
// si).
template <typename T, typename P>
TARN_INLINE auto resultOf(const P (&sums)[isComplex<T> ? 2 : 1])
{
    const auto asResult = [](const P& sum) __attribute__((always_inline))
    {
        if constexpr (isPack<P>) {
            return reinterpretPack<T>(sum);
        } else {
            return sum;
        }
    };
    if constexpr (isComplex<T>) {
        return add(asResult(sums[0]), conjugate(swapParts(asResult(sums[1]))));
    } else {
        return asResult(sums[0]);
    }
}

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

// The destination of a run of outputs, which has `len` elements and is filled from its beginning or from its end.
template <Results results, typename T>
struct Destination {
    T* dst;
    int len;

    TARN_INLINE void add(int n, T result) const
    {
        T* const p = at(n, 1);
        store(p, tarn::add(loadElement(p), turned<results>(result)));
    }
    template <int N>
    TARN_INLINE void add(int n, Pack<T, N> result) const
    {
        T* const p = at(n, N);
        store(p, tarn::add(loadPack<N>(p), turned<results>(result)));
    }

private:
    T* at(int n, int count) const { return dst + (results == Results::forward ? n : len - n - count); }
};

// Sums of neighbouring outputs; n names one of them, and its term i is the product of x[i] and s[n + direction i].
template <typename T, int direction>
class Sums {
    using P = Part<T>;
    using V = Vector<P>;
    static constexpr int parts = isComplex<T> ? 2 : 1;
    static constexpr int perRegister = V::size / parts;

public:
    static constexpr int perBlock = registersAtOnce<T> * perRegister;

    Sums(const T* factors, int factorsLen, const T* samples, int samplesLen)
        : x(factors), xLen(factorsLen), s(samples), sLen(samplesLen)
    {
    }

    // The terms that outputs from n to `last` have.
    Terms termsOf(long long n, long long last) const { return spanOf(termsOf(n), termsOf(last)); }

    // The outputs that have all of these terms, the last one and those behind it excepted.
    Terms outputsOf(Terms terms) const
    {
        return direction > 0 ? Terms{-terms.first, sLen - terms.end + 1} : Terms{terms.end - 1, sLen + terms.first};
    }

    // Adds the sums of these terms of a block that has them all to its place in the destination.
    template <Results results>
    TARN_INLINE void addWhole(Terms terms, long long n, const Destination<results, T>& dst, int place) const
    {
        V held[registersAtOnce<T>][parts];
        repeat<registersAtOnce<T>>(
            [&](auto r) { repeat<parts>([&](auto plane) { held[r][plane] = splat<V>(P{0}); }); });
        accumulate<registersAtOnce<T>>(held, n, terms);
        repeat<registersAtOnce<T>>([&](auto r) { dst.add(place + r * perRegister, resultOf<T>(held[r])); });
    }

    // Those of a block whose outputs have different terms of these, or of which `count` are wanted.
    template <Results results>
    void addApart(Terms terms, long long n, const Destination<results, T>& dst, int place, int count)
    {
        begin = n;
        for (auto& register_ : partial) {
            for (auto& plane : register_) {
                plane = splat<V>(P{0});
            }
        }
        if (count <= perRegister) {
            take<1>(0, terms);
        } else {
            take<registersAtOnce<T>>(0, terms);
        }
        for (int k = 0; k < count; ++k) {
            T ofOne[parts];
            repeat<parts>([&](auto plane) { ofOne[plane] = loadElement(lane<T>(k, plane)); });
            dst.add(place + k, resultOf<T>(ofOne));
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

    // The outputs in so many registers, from one of the first on. The terms that all of them have are taken together;
    // those before and behind belong to fewer of them.
    template <int registers>
    void take(int first, Terms terms)
    {
        const long long n = begin + first * perRegister;
        const Terms ofFirst = termsOf(n);
        const Terms ofLast = termsOf(n + registers * perRegister - 1);
        terms = commonOf(terms, spanOf(ofFirst, ofLast));
        const Terms common = commonOf(terms, commonOf(ofFirst, ofLast));
        if (common.empty()) {
            takeApart<registers>(first, terms);
            return;
        }
        takeApart<registers>(first, {terms.first, common.first});
        takeTogether<registers>(first, common);
        takeApart<registers>(first, {common.end, terms.end});
    }

    template <int registers>
    void takeApart(int first, Terms terms)
    {
        if (terms.empty()) {
            return;
        }
        if constexpr (registers > 1) {
            for (int r = 0; r < registers; ++r) {
                take<1>(first + r, terms);
            }
        } else {
            for (int k = first * perRegister; k < (first + 1) * perRegister; ++k) {
                takeOne(k, commonOf(terms, termsOf(begin + k)));
            }
        }
    }

    template <int registers>
    void takeTogether(int first, Terms terms)
    {
        V held[registers][parts];
        repeat<registers>(
            [&](auto r) { repeat<parts>([&](auto plane) { held[r][plane] = partial[first + r][plane]; }); });
        accumulate<registers>(held, begin + first * perRegister, terms);
        repeat<registers>(
            [&](auto r) { repeat<parts>([&](auto plane) { partial[first + r][plane] = held[r][plane]; }); });
    }

    void takeOne(int k, Terms terms)
    {
        for (auto i = static_cast<Index>(terms.first); i < terms.end; ++i) {
            repeat<parts>([&](auto plane) {
                const P factor = loadElement(factors(i) + plane);
                repeat<parts>([&](auto part) {
                    P* const total = lane<P>(k, plane) + part;
                    store(total, add(loadElement(total), mul(loadElement(partners(begin + k, i) + part), factor)));
                });
            });
        }
    }

    const P* factors(Index i) const { return reinterpret_cast<const P*>(x + i); }

    // What stands against x[i] in the sum of output n, and in those behind it.
    const P* partners(long long n, Index i) const
    {
        return reinterpret_cast<const P*>(s + (static_cast<Index>(n) + direction * i));
    }

    // The loop of all of it: so many registers of outputs from n on, each of which has these terms.
    template <int registers>
    TARN_INLINE void accumulate(V (&held)[registers][parts], long long n, Terms terms) const
    {
        const auto first = static_cast<Index>(terms.first);
        const P* factor = factors(first);
        const P* partner = partners(n, first);
        for (auto left = static_cast<Index>(terms.end) - first; left > 0; --left) {
            V both[parts];
            repeat<parts>([&](auto plane) { both[plane] = splat<V>(loadElement(factor + plane)); });
            repeat<registers>([&](auto r) {
                const V samples = loadPack<V::size>(partner + r * V::size);
                repeat<parts>([&](auto plane) { held[r][plane] = add(held[r][plane], mul(samples, both[plane])); });
            });
            factor += parts;
            partner += direction * parts;
        }
    }

    // One output's place among the partial sums, in parts or as an element.
    template <typename E>
    E* lane(int k, int plane)
    {
        return reinterpret_cast<E*>(reinterpret_cast<P*>(&partial[k / perRegister][plane]) + k % perRegister * parts);
    }

    const T* x;
    int xLen;
    const T* s;
    int sLen;
    long long begin = 0;
    V partial[registersAtOnce<T>][parts];
};

// Outputs beyond the last one are summed with the others of their block, as far as they have terms.
template <int direction, Results results, typename T>
void addSums(const T* x, int xLen, const T* s, int sLen, T* dst, int len, long long lag)
{
    using Block = Sums<T, direction>;
    Block sums(x, xLen, s, sLen);
    const Destination<results, T> destination{dst, len};
    const Terms all = sums.termsOf(lag, lag + len - 1);
    for (long long run = all.first & -termsOfRun; run < all.end; run += termsOfRun) {
        const Terms terms = {run, std::min<long long>(run + termsOfRun, xLen)};
        const Terms whole = sums.outputsOf(terms);
        for (int n = 0; n < len; n += std::min(Block::perBlock, len - n)) {
            const int count = std::min(Block::perBlock, len - n);
            const long long output = lag + n;
            if (count == Block::perBlock && output >= whole.first && output + count <= whole.end) {
                sums.addWhole(terms, output, destination, n);
            } else {
                sums.addApart(terms, output, destination, n, count);
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
