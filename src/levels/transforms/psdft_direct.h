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
// neighbouring results, and for a last one. Three results side by side hide the time that a step of their indices
// takes, and leave each index a register of a 32-bit program.
inline constexpr int resultsAtOnce = 3;

template <int count, typename T>
using Sums = std::array<Pack<T, 4>, static_cast<std::size_t>(count)>;

struct ComplexTerms {
    static constexpr int reals = 4;
    static constexpr int sumsOf(int results) { return results; }
    static constexpr int resultsInSum(int /*sum*/, int /*results*/) { return 1; }

    template <typename T>
    static TARN_INLINE Pack<T, 4> term(const T* p)
    {
        return loadAligned<4>(p);
    }
};

struct RealTerms {
    static constexpr int reals = 2;
    static constexpr int sumsOf(int results) { return (results + 1) / 2; }
    static constexpr int resultsInSum(int sum, int results) { return 2 * sum + 1 < results ? 2 : 1; }

    template <typename T>
    static TARN_INLINE Pack<T, 4> term(const T* p)
    {
        return loadPairTwice(p);
    }
};

// Adds every other one of the terms from `p` on, times the roots of results k, k + 1, ...; `first` is 1 or 2, the place
// of the first of these terms.
template <typename Terms, int results, typename T>
TARN_INLINE void addEveryOther(Sums<Terms::sumsOf(results), T>& sums, int first, const T* p, const T* end,
                               const Roots<T>& roots, int k)
{
    std::array<int, results> at;
    repeat<results>([&](auto i) { at[i] = 2 * first * (k + i); });
    const Tarn32s* const steps = roots.words + 2 * k;
    TARN_ROLLED
    for (; p < end; p += 2 * Terms::reals) {
        const Pack<T, 4> term = Terms::term(p);
        repeat<Terms::sumsOf(results)>([&](auto i) {
            constexpr int perSum = Terms::resultsInSum(0, 2);
            constexpr int result = i * perSum;
            if constexpr (Terms::resultsInSum(i, results) == 2) {
                const auto pairs = loadTwoPairs(roots.parts + at[result], roots.parts + at[result + 1]);
                sums[i] = add(sums[i], mul(pairs, term));
                at[result + 1] = Roots<T>::next(steps + 2 * (result + 1), at[result + 1]);
            } else {
                sums[i] = add(sums[i], mul(loadPairTwice(roots.parts + at[result]), term));
            }
            at[result] = Roots<T>::next(steps + 2 * result, at[result]);
        });
    }
}

// The sums of results k, k + 1, ...: those of the odd terms, which begin with what stands in `sums`, plus
// those of the even ones. A function of its own that keeps the first half in memory: a 32-bit program has just enough
// registers for the rest, and an index that was not in one would take twice as long from step to step.
template <typename Terms, int results, typename T>
__attribute__((noinline)) void sumBlock(const T* terms, const T* end, const Roots<T>& roots, int k, T* sums)
{
    constexpr int count = Terms::sumsOf(results);
    const auto at = [&](int i) { return sums + 4 * i; };
    Sums<count, T> part;
    repeat<count>([&](auto i) { part[i] = loadAligned<4>(static_cast<const T*>(at(i))); });
    addEveryOther<Terms, results, T>(part, 1, terms, end, roots, k);
    repeat<count>([&](auto i) { storeAligned(at(i), part[i]); });
    part.fill(splat<Pack<T, 4>>(T{0}));
    addEveryOther<Terms, results, T>(part, 2, terms + Terms::reals, end, roots, k);
    repeat<count>([&](auto i) { storeAligned(at(i), add(loadAligned<4>(static_cast<const T*>(at(i))), part[i])); });
}

// Calls emit(k, sums, results) until all `h` results have been told, the sums four reals each; the last ones maybe
// twice. start(k) is what a result begins with.
template <typename Terms, typename T, typename Start, typename Emit>
TARN_INLINE void forAllResults(const T* terms, int h, const Roots<T>& roots, Start start, Emit emit)
{
    alignas(vectorBytes) T sums[4 * Terms::sumsOf(resultsAtOnce)];
    const T* const end = terms + Terms::reals * h;
    const auto block = [&](auto results, int k) __attribute__((always_inline))
    {
        constexpr int perSum = Terms::resultsInSum(0, 2);
        repeat<Terms::sumsOf(results)>([&](auto i) { storeAligned(sums + 4 * i, start(k + i * perSum)); });
        sumBlock<Terms, results>(terms, end, roots, k, static_cast<T*>(sums));
        emit(k, static_cast<const T*>(sums), static_cast<int>(results));
    };
    if (h < resultsAtOnce) {
        for (int k = 1; k <= h; ++k) {
            block(std::integral_constant<int, 1>{}, k);
        }
        return;
    }
    int k = 1;
    TARN_ROLLED
    for (; k + resultsAtOnce <= h; k += resultsAtOnce) {
        block(std::integral_constant<int, resultsAtOnce>{}, k);
    }
    block(std::integral_constant<int, resultsAtOnce>{}, h - resultsAtOnce + 1);
}

} // namespace tarn::dft
