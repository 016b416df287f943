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

// Completes the records that testDftPrimeFact has begun.
template <typename T>
inline TarnStatus initPrimeFact(Spec<T>& spec, int N, const PairOf<T>* base, int baseLen)
{
    const long long stride = baseLen / N;
    setGroups(spec);
    for (int i = 0; i <= spec.lastFactor; ++i) {
        Factor& level = spec.factors[i];
        if (!setDirectTable(spec, i, level.factor, base, baseLen) || !setTwiddles<T>(level, base, stride)) {
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
    if (!setPermutation(spec)) {
        return tarnStsNoMemErr;
    }
    if (const int columns = columnsOf<T>(N, false)) {
        spec.laneTab = createGrid<T>(N, columns, false, base, baseLen);
        return spec.laneTab != nullptr ? tarnStsNoErr : tarnStsNoMemErr;
    }
    return tarnStsNoErr;
}

} // namespace tarn::dft
