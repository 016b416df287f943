// The tables of the transforms of any length, and how a length comes apart into factors.
#pragma once

#include "frame/constants.h"
#include "frame/precise.h"
#include "frame/simd_pack.h"
#include "levels/transforms/psdft_spec.h"

namespace tarn::dft {

// (cos, -sin) of 2 pi j / N for j up to N / 2, rounded once. Whole eighths of the circle are taken off in integers, so
// that no argument is above pi / 4, and the error of its rounding never shows.
template <typename T>
inline PairOf<T> root(int j, int N)
{
    const long long eighths = 8LL * j;
    const auto turned = static_cast<int>(eighths / N);
    const auto angleOf = [N](long long part) { return static_cast<double>(part) * (twoPi / 8) / N; };
    // What is left of the angle, from the nearer one of the two eighths that are multiples of a right angle.
    const long long beside = turned % 2 == 0 ? eighths - static_cast<long long>(turned) * N
                                             : static_cast<long long>(turned + 1) * N - eighths;
    const auto near = static_cast<T>(preciseCosine(angleOf(beside)));
    const auto far = static_cast<T>(preciseSine(angleOf(beside)));
    switch (turned) {
    case 0:
        return {near, -far};
    case 1:
        return {far, -near};
    case 2:
        return {-far, -near};
    default:
        return {-near, -far};
    }
}

// Roots that mirror each other are equal to the bit: an eighth, a quarter or half of them is computed, as N has it.
template <typename T>
inline Owned<PairOf<T>[]> baseTable(int N) {
    Owned<PairOf<T>[]> table = allocate<PairOf<T>>(N);
    if (!table) {
        return table;
    }
    PairOf<T>* const w = table.get();
    const int half = N / 2;
    const int quarter = N / 4;
    const int computed = N % 4 == 0 ? N / 8 : N % 2 == 0 ? quarter : half;
    for (int j = 0; j <= computed; ++j) {
        w[j] = root<T>(j, N);
    }
    if (N % 4 == 0) {
        for (int j = computed + 1; j <= quarter; ++j) {
            w[j] = {-w[quarter - j].im, -w[quarter - j].re};
        }
    }
    if (N % 2 == 0) {
        for (int j = quarter + 1; j <= half; ++j) {
            w[j] = {-w[half - j].re, w[half - j].im};
        }
    }
    for (int j = half + 1; j < N; ++j) {
        w[j] = {w[N - j].re, -w[N - j].im};
    }
    return table;
}

// The index words behind the roots of a direct table.
template <typename C>
inline auto indexWords(C* directTable, int N)
{
    using Index = std::conditional_t<std::is_const_v<C>, const Tarn32s, Tarn32s>;
    return reinterpret_cast<Index*>(directTable + N);
}

template <typename C>
inline Owned<C[]> directTable(int N, const C* base, int baseLen)
{
    // The words take the place of one root a point, or of half a root.
    constexpr int wordsOfRoot = sizeof(C) / sizeof(Tarn32s);
    Owned<C[]> table = allocate<C>(N + (2LL * N + wordsOfRoot - 1) / wordsOfRoot);
    if (table) {
        const long long stride = baseLen / N;
        Tarn32s* const words = indexWords(table.get(), N);
        for (int j = 0; j < N; ++j) {
            table[j] = base[stride * j];
            words[j] = 2 * j;
            words[N + j] = 2 * j;
        }
    }
    return table;
}

// Pairs (A, B) for a real transform of N points, from its roots.
template <typename C, typename Pair>
inline Owned<Part<C>[]> recombinationTable(int N, const C* base, Pair pair) {
    const int pairs = (N + 3) / 4;
    Owned<Part<C>[]> table = allocate<Part<C>>(2LL * pairs);
    if (table) {
        for (int k = 0; k < pairs; ++k) {
            const C ab = pair(base[k]);
            table[2 * k] = ab.re;
            table[2 * k + 1] = ab.im;
        }
    }
    return table;
}

template <typename C>
inline auto forwardRecombinationTable(int N, const C* base)
{
    constexpr auto half = Part<C>{1} / 2;
    return recombinationTable(N, base, [](C w) { return C{half * w.re, half * w.im + half}; });
}

template <typename C>
inline auto inverseRecombinationTable(int N, const C* base)
{
    return recombinationTable(N, base, [](C w) { return w; });
}

// -- Factors ---------------------------------------------------------------------------------------------------------

// Factors and innermost transforms up to this length are direct sums.
inline constexpr int largestDirect = 150;

// Takes n apart into factors and fills their records: fours, with one two in front if there is one, then odd factors as
// they grow. What is left is the length of the innermost transforms. False if there is no factor, or a large one.
template <typename T>
inline bool testDftPrimeFact(Spec<T>& spec, int n)
{
    Factor* const factors = spec.factors;
    int count = 0;
    int r = n;
    for (; r % 4 == 0; r /= 4) {
        factors[count++].factor = 4;
    }
    if (r % 2 == 0) {
        r /= 2;
        factors[count++].factor = 4;
        factors[0].factor = 2;
    }
    for (int d = 3; r >= d * d;) {
        if (r % d == 0) {
            factors[count++].factor = d;
            r /= d;
        } else {
            d += 2;
            if (d > largestDirect) {
                return false;
            }
        }
    }
    if (count == 0 || r > largestDirect) {
        return false;
    }
    spec.lastFactor = count - 1;
    int before = 1;
    for (int i = 0; i < count; ++i) {
        factors[i].before = before;
        before *= factors[i].factor;
        factors[i].remaining = n / before;
    }
    return true;
}

} // namespace tarn::dft
