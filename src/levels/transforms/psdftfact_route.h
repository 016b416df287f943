// The way through the levels of a mixed-radix transform: in sweeps over everything, or depth first.
#pragma once

#include "levels/transforms/psdftfact_real.h"
#include "levels/transforms/psdftfact_tables.h"

#include <cstdint>

namespace tarn::dft {

template <typename T>
inline T* onBoundary(T* p)
{
    return p + (0 - reinterpret_cast<std::uintptr_t>(p)) % fft::blockBytes / sizeof(T);
}

inline constexpr int oneBlock[] = {0};

// What the ways through the levels have in common.
template <typename T>
struct LevelsOf {
    const Spec<T>& spec;

    const Factor& level(int i) const { return spec.factors[i]; }
    static const PairOf<T>* roots(const Factor& level) { return static_cast<const PairOf<T>*>(level.dirTab); }
    static const PairOf<T>* twiddles(const Factor& level) { return static_cast<const PairOf<T>*>(level.twdTab); }
    const PairOf<T>* leafRoots() const { return roots(level(spec.lastFactor + 1)); }
    bool isLast(int i) const { return i == spec.lastFactor; }
    // Whether this level and those below it are swept.
    bool isSwept(int i) const { return !isLast(i) && sizeOf(level(i)) < depthFirstFrom<T>; }
};

// -- Complex data ----------------------------------------------------------------------------------------------------

template <typename T, typename In, typename Out>
class ComplexLevels : LevelsOf<T> {
public:
    ComplexLevels(const Spec<T>& spec, T* scratch) : LevelsOf<T>{spec}, scratch(scratch) {}

    // `area` holds N elements, and none of them is in the input.
    void run(In src, Out area, Out dst) const
    {
        if (this->isSwept(0)) {
            sweep(src, area, dst, 0);
            return;
        }
        if (this->isLast(0)) {
            leaves(src, area, this->level(0), 1, static_cast<const int*>(oneBlock));
        } else {
            branches(src, area, 0);
        }
        merge(area, dst, this->level(0), 1);
    }

private:
    // The levels from the last one up to `top`, in `area` but for the results.
    void sweep(In src, Out area, Out dst, int top) const
    {
        const int last = this->spec.lastFactor;
        leaves(src, area, this->level(last), this->level(last).groupCount, this->spec.factPerm);
        for (int i = last; i > top; --i) {
            merge(area, area, this->level(i), this->level(i).groupCount);
        }
        merge(area, dst, this->level(top), this->level(top).groupCount);
    }

    void step(In src, Out dst, int i) const
    {
        if (this->isSwept(i)) {
            sweep(src, dst, dst, i);
            return;
        }
        if (this->isLast(i)) {
            leaves(src, dst, this->level(i), 1, static_cast<const int*>(oneBlock));
        } else {
            branches(src, dst, i);
        }
        merge(dst, dst, this->level(i), 1);
    }

    void branches(In src, Out dst, int i) const
    {
        const Factor& level = this->level(i);
        for (int j = 0; j < level.factor; ++j) {
            step(src + std::ptrdiff_t{j} * level.before, dst + std::ptrdiff_t{j} * level.remaining, i + 1);
        }
    }

    void leaves(In src, Out dst, const Factor& level, int blocks, const int* perm) const
    {
        const int q = level.remaining;
        if (q == 3) {
            leafOf<3>(src, level.before, dst, level.factor, blocks, perm);
        } else if (q == 5) {
            leafOf<5>(src, level.before, dst, level.factor, blocks, perm);
        } else {
            leafAny(src, level.before, dst, q, level.factor, blocks, perm, this->leafRoots(), scratch);
        }
    }

    void merge(Out src, Out dst, const Factor& level, int blocks) const
    {
        const int q = level.remaining;
        const PairOf<T>* const twd = this->twiddles(level);
        switch (level.factor) {
        case 2:
            return mergeOf<2>(src, dst, q, blocks, asParts(twd));
        case 3:
            return mergeOf<3>(src, dst, q, blocks, asParts(twd));
        case 4:
            return mergeOf<4>(src, dst, q, blocks, asParts(twd));
        case 5:
            return mergeOf<5>(src, dst, q, blocks, asParts(twd));
        default:
            for (int block = 0; block < blocks; ++block) {
                const std::ptrdiff_t at = std::ptrdiff_t{block} * sizeOf(level);
                mergeAny(src + at, dst + at, level.factor, q, this->roots(level), twd, scratch);
            }
        }
    }

    T* scratch;
};

template <bool forward, typename T>
inline void transformPairs(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    using In = PairArray<const T, !forward>;
    using Out = PairArray<T, !forward>;
    if (spec.laneTab != nullptr) {
        transformGrid(*static_cast<const Grid<T>*>(spec.laneTab), In{src}, Out{dst}, work);
        return;
    }
    const std::ptrdiff_t reals = 2 * std::ptrdiff_t{sizeOf(spec.factors[0])};
    const bool inPlace = src == dst;
    const ComplexLevels<T, In, Out> levels(spec, inPlace ? onBoundary(work + reals) : work);
    levels.run(In{src}, Out{inPlace ? work : dst}, Out{dst});
}

template <typename T>
inline void transformParts(const Spec<T>& spec, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, T* work)
{
    using In = PartArrays<const T>;
    using Out = PartArrays<T>;
    if (spec.laneTab != nullptr) {
        transformGrid(*static_cast<const Grid<T>*>(spec.laneTab), In{srcRe, srcIm}, Out{dstRe, dstIm}, work);
        return;
    }
    const std::ptrdiff_t N = sizeOf(spec.factors[0]);
    const bool inPlace = dstRe == srcRe || dstRe == srcIm || dstIm == srcRe || dstIm == srcIm;
    const ComplexLevels<T, In, Out> levels(spec, inPlace ? onBoundary(work + 2 * N) : work);
    levels.run(In{srcRe, srcIm}, inPlace ? Out{work, work + N} : Out{dstRe, dstIm}, Out{dstRe, dstIm});
}

// -- Real data of odd length -----------------------------------------------------------------------------------------
//
// Merges of spectra in Perm order are not in place: each level goes from one of two areas to the other. The inverse
// takes the levels in opposite order.

template <typename T>
class RealLevels : LevelsOf<T> {
public:
    RealLevels(const Spec<T>& spec, T* scratch) : LevelsOf<T>{spec}, scratch(scratch) {}

    // N reals to N reals; both areas hold N reals and are neither input nor, of the first, output.
    void forward(const T* src, T* area, T* other, T* dst) const
    {
        below(src, area, other, 0);
        merge(area, dst, this->level(0), 1);
    }
    void inverse(const T* src, T* area, T* other, T* dst) const
    {
        split(src, area, this->level(0), 1);
        belowInverse(area, other, dst, 0);
    }

private:
    // The spectra that level i merges, to `to`.
    void below(const T* src, T* to, T* other, int i) const
    {
        const Factor& level = this->level(i);
        if (this->isLast(i)) {
            leaves(src, to, level, 1, static_cast<const int*>(oneBlock));
        } else if (this->isSwept(i)) {
            const int last = this->spec.lastFactor;
            T* area = (last - i) % 2 == 0 ? to : other;
            T* next = area == to ? other : to;
            leaves(src, area, this->level(last), this->level(last).groupCount, this->spec.factPerm);
            for (int k = last; k > i; --k) {
                merge(area, next, this->level(k), this->level(k).groupCount);
                std::swap(area, next);
            }
        } else {
            for (int j = 0; j < level.factor; ++j) {
                const std::ptrdiff_t at = std::ptrdiff_t{j} * level.remaining;
                const T* const from = src + std::ptrdiff_t{j} * level.before;
                below(from, other + at, to + at, i + 1);
                merge(other + at, to + at, this->level(i + 1), 1);
            }
        }
    }

    // What the spectra at `from` were made of, those into which level i has split.
    void belowInverse(T* from, T* other, T* dst, int i) const
    {
        const Factor& level = this->level(i);
        if (this->isLast(i)) {
            leavesInverse(from, dst, level, 1, static_cast<const int*>(oneBlock));
        } else if (this->isSwept(i)) {
            const int last = this->spec.lastFactor;
            for (int k = i + 1; k <= last; ++k) {
                split(from, other, this->level(k), this->level(k).groupCount);
                std::swap(from, other);
            }
            leavesInverse(from, dst, this->level(last), this->level(last).groupCount, this->spec.factPerm);
        } else {
            for (int j = 0; j < level.factor; ++j) {
                const std::ptrdiff_t at = std::ptrdiff_t{j} * level.remaining;
                split(from + at, other + at, this->level(i + 1), 1);
                belowInverse(other + at, from + at, dst + std::ptrdiff_t{j} * level.before, i + 1);
            }
        }
    }

    void leaves(const T* src, T* dst, const Factor& level, int blocks, const int* perm) const
    {
        const int q = level.remaining;
        if (q == 3) {
            leafToPerm<3>(src, level.before, dst, level.factor, blocks, perm);
        } else if (q == 5) {
            leafToPerm<5>(src, level.before, dst, level.factor, blocks, perm);
        } else {
            leafAnyToPerm(src, level.before, dst, q, level.factor, blocks, perm, this->leafRoots(), scratch);
        }
    }
    void leavesInverse(const T* src, T* dst, const Factor& level, int blocks, const int* perm) const
    {
        const int q = level.remaining;
        if (q == 3) {
            leafFromPerm<3>(src, level.before, dst, level.factor, blocks, perm);
        } else if (q == 5) {
            leafFromPerm<5>(src, level.before, dst, level.factor, blocks, perm);
        } else {
            leafAnyFromPerm(src, level.before, dst, q, level.factor, blocks, perm, this->leafRoots(), scratch);
        }
    }

    void merge(const T* src, T* dst, const Factor& level, int blocks) const
    {
        const PairOf<T>* const twd = this->twiddles(level);
        if (level.factor == 3) {
            mergePerm<3>(src, dst, level.remaining, blocks, asParts(twd));
        } else if (level.factor == 5) {
            mergePerm<5>(src, dst, level.remaining, blocks, asParts(twd));
        } else {
            for (int block = 0; block < blocks; ++block) {
                const std::ptrdiff_t at = std::ptrdiff_t{block} * sizeOf(level);
                mergeAnyPerm(src + at, dst + at, level.factor, level.remaining, this->roots(level), twd, scratch);
            }
        }
    }
    void split(const T* src, T* dst, const Factor& level, int blocks) const
    {
        const PairOf<T>* const twd = this->twiddles(level);
        if (level.factor == 3) {
            splitPerm<3>(src, dst, level.remaining, blocks, asParts(twd));
        } else if (level.factor == 5) {
            splitPerm<5>(src, dst, level.remaining, blocks, asParts(twd));
        } else {
            for (int block = 0; block < blocks; ++block) {
                const std::ptrdiff_t at = std::ptrdiff_t{block} * sizeOf(level);
                splitAnyPerm(src + at, dst + at, level.factor, level.remaining, this->roots(level), twd, scratch);
            }
        }
    }

    T* scratch;
};

template <bool forward, typename T>
inline void transformReals(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    const std::ptrdiff_t N = sizeOf(spec.factors[0]);
    const RealLevels<T> levels(spec, onBoundary(work + 2 * N));
    if constexpr (forward) {
        levels.forward(src, work, work + N, dst);
    } else {
        levels.inverse(src, work, work + N, dst);
    }
}

} // namespace tarn::dft
