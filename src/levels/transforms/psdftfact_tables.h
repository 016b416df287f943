// The tables of mixed-radix transforms.
#pragma once

#include "levels/transforms/psdftfact_gridtables.h"

#include <algorithm>

namespace tarn::dft {

// Levels of at least so many points are taken one transform after the other, so that each finds its data in the cache;
// shorter ones in sweeps over all that lie side by side.
template <typename T>
inline constexpr int depthFirstFrom = 0;
template <>
inline constexpr int depthFirstFrom<Tarn32f> = 2001;
template <>
inline constexpr int depthFirstFrom<Tarn64f> = 501;

inline int sizeOf(const Factor& level) { return level.factor * level.remaining; }

// Up to this length transforms have butterflies of their own.
inline constexpr int longestUnrolled = 5;

template <typename T>
inline void setGroups(Spec<T>& spec)
{
    int group = 1;
    for (int i = 0; i <= spec.lastFactor; ++i) {
        Factor& level = spec.factors[i];
        level.groupCount = group;
        group = sizeOf(level) >= depthFirstFrom<T> ? 1 : group * level.factor;
    }
}

// Where there is a record of that length already, its table is shared; else the table is made.
template <typename T>
inline bool setDirectTable(Spec<T>& spec, int record, int length, const PairOf<T>* base, int baseLen)
{
    if (length <= longestUnrolled) {
        return true;
    }
    Factor* const levels = spec.factors;
    for (int i = 0; i < record; ++i) {
        if (levels[i].factor == length) {
            levels[record].dirTab = levels[i].dirTab;
            return true;
        }
    }
    levels[record].dirTab = directTable(length, base, baseLen).release();
    return levels[record].dirTab != nullptr;
}

// Rows of twiddle factors W[j k st], one for each of the `remaining` points k: j from 1 to p - 1, or from 0 for p above
// 5.
template <typename T>
inline bool setTwiddles(Factor& level, const PairOf<T>* base, long long stride)
{
    const int p = level.factor;
    auto table = allocate<PairOf<T>>(static_cast<long long>(p) * level.remaining);
    if (!table) {
        return false;
    }
    PairOf<T>* to = table.get();
    for (int k = 0; k < level.remaining; ++k) {
        for (int j = p > longestUnrolled ? 0 : 1; j < p; ++j) {
            *to++ = base[j * k * stride * level.before];
        }
    }
    level.twdTab = table.release();
    return true;
}

// Where the blocks of the innermost level begin in the input: a reversal of digits in a mixed radix.
template <typename T>
inline bool setPermutation(Spec<T>& spec)
{
    const int count = spec.factors[spec.lastFactor].groupCount;
    auto table = allocate<int>(count);
    if (!table) {
        return false;
    }
    int* const perm = table.get();
    perm[0] = 0;
    int filled = 1;
    for (int i = spec.lastFactor - 1; i >= 0; --i) {
        const int factor = spec.factors[i].factor;
        const bool grows = filled < count;
        for (int j = grows ? factor - 1 : 0; j >= 0; --j) {
            for (int t = 0; t < filled; ++t) {
                perm[j * filled + t] = factor * perm[t] + j;
            }
        }
        filled *= grows ? factor : 1;
    }
    spec.factPerm = table.release();
    return true;
}

// Bytes of work memory, those for its alignment included; 0 if there are more than an int counts.
template <typename T>
inline int workBytes(const Spec<T>& spec, int N)
{
    int longest = 0;
    for (int i = 0; i <= spec.lastFactor; ++i) {
        longest = std::max({longest, spec.factors[i].factor, spec.factors[i].remaining});
    }
    const long long bytes = 2LL * static_cast<int>(sizeof(T)) * (static_cast<long long>(longest) + N) + 16;
    return bytes > 0x7FFFFFFF ? 0 : static_cast<int>(bytes);
}

// -- Out of order ----------------------------------------------------------------------------------------------------

// Rows of factors by block: block b holds results r[b] + n q for all n, in which numbers its row is. Its p parts become
// blocks b p + j, of the results r[b] + j q.
template <typename T>
inline bool setTwiddlesByBlock(Factor& level, const PairOf<T>* base, long long stride, const int* result,
                               int* resultsOfParts)
{
    const int p = level.factor;
    auto table = allocate<PairOf<T>>(static_cast<long long>(p) * level.remaining);
    if (!table) {
        return false;
    }
    PairOf<T>* to = table.get();
    for (int b = 0; b < level.remaining; ++b) {
        for (int j = p > longestUnrolled ? 0 : 1; j < p; ++j) {
            *to++ = base[j * static_cast<long long>(result[b]) * level.before * stride];
        }
        for (int j = 0; j < p; ++j) {
            resultsOfParts[b * p + j] = result[b] + j * level.remaining;
        }
    }
    level.twdTab = table.release();
    return true;
}

// Blocks of a level that are transformed together: those into which a short block comes apart, and those of the last
// two levels.
template <typename T>
inline void setGroupsOutOfOrder(Spec<T>& spec, int N)
{
    int group = 1;
    int length = N / spec.factors[spec.lastFactor].remaining;
    for (int i = spec.lastFactor; i >= 0; --i) {
        Factor& level = spec.factors[i];
        level.groupCount = group;
        if (length < depthFirstFrom<T> || i == 1) {
            group *= level.factor;
        }
        length /= level.factor;
    }
}

template <typename T>
inline TarnStatus initOutOfOrder(Spec<T>& spec, int N, const PairOf<T>* base, long long stride)
{
    auto results = allocate<int>(N);
    auto next = allocate<int>(N);
    if (!results || !next) {
        return tarnStsNoMemErr;
    }
    for (int b = 0; b < spec.factors[spec.lastFactor].remaining; ++b) {
        results[b] = b;
    }
    for (int i = spec.lastFactor; i >= 0; --i) {
        if (!setTwiddlesByBlock<T>(spec.factors[i], base, stride, results.get(), next.get())) {
            return tarnStsNoMemErr;
        }
        std::swap(results, next);
    }
    setGroupsOutOfOrder(spec, N);
    return tarnStsNoErr;
}

// -- The whole object ------------------------------------------------------------------------------------------------

template <typename T>
inline TarnStatus initInOrder(Spec<T>& spec, int N, const PairOf<T>* base, int baseLen)
{
    setGroups(spec);
    for (int i = 0; i <= spec.lastFactor; ++i) {
        if (!setTwiddles<T>(spec.factors[i], base, baseLen / N)) {
            return tarnStsNoMemErr;
        }
    }
    if (!setPermutation(spec)) {
        return tarnStsNoMemErr;
    }
    if (const int columns = columnsOf<T>(N)) {
        spec.laneTab = createGrid<T>(N, columns, base, baseLen);
        return spec.laneTab != nullptr ? tarnStsNoErr : tarnStsNoMemErr;
    }
    return tarnStsNoErr;
}

// Completes the records that testDftPrimeFact has begun. Short transforms are never out of order.
template <typename T>
inline TarnStatus initPrimeFact(Spec<T>& spec, int N, const PairOf<T>* base, int baseLen)
{
    for (int i = 0; i <= spec.lastFactor; ++i) {
        if (!setDirectTable(spec, i, spec.factors[i].factor, base, baseLen)) {
            return tarnStsNoMemErr;
        }
    }
    if (!setDirectTable(spec, spec.lastFactor + 1, spec.factors[spec.lastFactor].remaining, base, baseLen)) {
        return tarnStsNoMemErr;
    }
    spec.bufSize = workBytes(spec, N);
    if (spec.bufSize == 0) {
        return tarnStsNoMemErr;
    }
    if (N < depthFirstFrom<T>) {
        spec.outOrdered = 0;
    }
    return spec.outOrdered != 0 ? initOutOfOrder(spec, N, base, baseLen / N) : initInOrder(spec, N, base, baseLen);
}

} // namespace tarn::dft
