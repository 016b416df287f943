// Direct sums. Points j and N - j are taken as their sum and difference, and so are the results k and N - k: each sum
// of products serves two results, and each root two points.
#pragma once

#include "frame/simd.h"
#include "frame/walk.h"
#include "levels/transforms/psdft_tables.h"

namespace tarn::dft {

// A direct table of N points, as reals and the words that count modulo N: twice an index, which is that of a root's
// real part.
template <typename T>
struct Roots {
    const T* parts;
    const Tarn32s* words;

    Roots(const PairOf<T>* table, int N) : parts(asParts(table)), words(indexWords(table, N)) {}

    // The word `steps` places behind that of a root.
    static TARN_INLINE int next(const Tarn32s* steps, int at)
    {
        constexpr int bytesOfHalf = sizeof(Tarn32s) / 2;
        return *reinterpret_cast<const Tarn32s*>(reinterpret_cast<const char*>(steps) + bytesOfHalf * at);
    }
};

// Four values at a time: (s.re, d.re, s.im, d.im) of one pair of points or, of real data, (s, d) of one pair for two
// neighbouring results. So many results lie side by side, which hides the time that a step of their indices takes.
inline constexpr int resultsAtOnce = 4;

template <int count, typename T>
using Sums = std::array<Pack<T, 4>, static_cast<std::size_t>(count)>;

struct ComplexTerms {
    static constexpr int reals = 4;
    static constexpr int resultsOfSum = 1;

    template <typename T>
    static TARN_INLINE Pack<T, 4> term(const T* p)
    {
        return loadAligned<4>(p);
    }
    template <typename T>
    static TARN_INLINE Pack<T, 4> roots(const T* parts, const int* at)
    {
        return loadPairTwice(parts + at[0]);
    }
};

struct RealTerms {
    static constexpr int reals = 2;
    static constexpr int resultsOfSum = 2;

    template <typename T>
    static TARN_INLINE Pack<T, 4> term(const T* p)
    {
        return loadPairTwice(p);
    }
    template <typename T>
    static TARN_INLINE Pack<T, 4> roots(const T* parts, const int* at)
    {
        return loadTwoPairs(parts + at[0], parts + at[1]);
    }
};

// Adds every other one of `h` terms, from the first or the second one on, times the roots of results k, k + 1, ...
template <typename Terms, int count, typename T>
TARN_INLINE void addEveryOther(Sums<count, T>& sums, int first, const T* terms, int h, const Roots<T>& roots, int k)
{
    constexpr int results = count * Terms::resultsOfSum;
    std::array<int, results> at;
    // Where there is but one result, the other lanes compute it too.
    const int last = h - k;
    const auto place = [&](int i) { return count > 1 || i <= last ? i : last; };
    repeat<results>([&](auto i) { at[i] = 2 * first * (k + place(i)); });
    const Tarn32s* const steps = roots.words + 2 * k;
    const T* const end = terms + Terms::reals * h;
    TARN_ROLLED
    for (const T* p = terms + Terms::reals * (first - 1); p < end; p += 2 * Terms::reals) {
        const Pack<T, 4> term = Terms::term(p);
        repeat<count>([&](auto i) {
            sums[i] = add(sums[i], mul(Terms::roots(roots.parts, &at[i * Terms::resultsOfSum]), term));
        });
        repeat<results>([&](auto i) { at[i] = Roots<T>::next(steps + 2 * place(i), at[i]); });
    }
}

// The sums of results k, k + 1, ..., which begin with `start`: those of the odd terms and those of the even ones.
template <typename Terms, int count, typename T>
TARN_INLINE Sums<count, T> sumsFrom(const T* terms, int h, const Roots<T>& roots, int k, Sums<count, T> start)
{
    addEveryOther<Terms, count>(start, 1, terms, h, roots, k);
    Sums<count, T> even;
    even.fill(splat<Pack<T, 4>>(T{0}));
    addEveryOther<Terms, count>(even, 2, terms, h, roots, k);
    repeat<count>([&](auto i) { start[i] = add(start[i], even[i]); });
    return start;
}

// Calls emit(k, sums, count) until all `h` results have been told; of short blocks the last ones twice. start(k) is
// what a result begins with.
template <typename Terms, typename T, typename Start, typename Emit>
TARN_INLINE void forAllResults(const T* terms, int h, const Roots<T>& roots, Start start, Emit emit)
{
    const auto block = [&](auto results, int k) __attribute__((always_inline))
    {
        constexpr int count = (results + Terms::resultsOfSum - 1) / Terms::resultsOfSum;
        Sums<count, T> sums;
        repeat<count>([&](auto i) { sums[i] = start(k + i * Terms::resultsOfSum); });
        emit(k, sumsFrom<Terms, count>(terms, h, roots, k, sums));
    };
    if (h < resultsAtOnce) {
        for (int k = 1; k <= h; ++k) {
            block(std::integral_constant<int, 1>{}, k);
        }
        return;
    }
    int k = 1;
    for (; k + resultsAtOnce <= h; k += resultsAtOnce) {
        block(std::integral_constant<int, resultsAtOnce>{}, k);
    }
    block(std::integral_constant<int, resultsAtOnce>{}, h - resultsAtOnce + 1);
}

} // namespace tarn::dft
