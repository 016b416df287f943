// How a length becomes a grid, and the grid's tables.
#pragma once

#include "levels/transforms/psdft_tables.h"
#include "levels/transforms/psdftfact_grid.h"

#include <limits>

namespace tarn::dft {

// What is cut out of one block of memory, or at first what there is to be cut.
template <typename T>
class Cutter {
public:
    explicit Cutter(Tarn8u* block) : block(block) {}

    template <typename E>
    E* cut(std::ptrdiff_t count)
    {
        E* const start = block == nullptr ? nullptr : reinterpret_cast<E*>(block + taken);
        const auto bytes = count * static_cast<std::ptrdiff_t>(sizeof(E));
        taken += (bytes + fft::blockBytes - 1) / fft::blockBytes * fft::blockBytes;
        return start;
    }
    std::ptrdiff_t size() const { return taken; }

private:
    Tarn8u* block;
    std::ptrdiff_t taken = 0;
};

// The roots of N points among those of a larger table.
template <typename T>
struct Circle {
    const PairOf<T>* base;
    std::ptrdiff_t stride;

    PairOf<T> root(long long m) const { return base[m * stride]; }
    Circle ofPart(int part) const { return {base, stride * part}; }
};

// Radices from the innermost one out, of which the first is a leaf: odd ones, the largest first; then 2 and 4, or 4 and
// 2 where there is nothing else.
inline int radicesOf(int n, int (&radices)[mostMerges + 1])
{
    int count = 0;
    int twos = 0;
    for (; n % 2 == 0; n /= 2) {
        ++twos;
    }
    for (int d = 3; n > 1; d += 2) {
        for (; n % d == 0; n /= d) {
            for (int i = count++; i >= 0; --i) {
                radices[i] = i > 0 ? radices[i - 1] : d;
            }
        }
    }
    const bool hasOdd = count > 0;
    if (twos % 2 != 0 && hasOdd) {
        radices[count++] = 2;
    }
    for (int i = 0; i < twos / 2; ++i) {
        radices[count++] = 4;
    }
    if (twos % 2 != 0 && !hasOdd) {
        radices[count++] = 2;
    }
    return count;
}

// Instructions of a transform of n points, for each point; the figures need only be right in proportion.
inline double costOf(int n)
{
    int radices[mostMerges + 1];
    const int count = radicesOf(n, radices);
    double cost = 0;
    for (int i = 0; i < count; ++i) {
        const int p = radices[i];
        cost += p == 2 ? 8 : p == 3 ? 12 : p == 4 ? 11 : p == 5 ? 17 : 2.2 * p + 10;
    }
    return cost;
}

// What a grid costs with vectors of that width. What is computed twice, where the last vector overlaps the one before
// it, is paid for; of vectors of 64 bytes a processor does two at once, and three of narrower ones.
template <typename T>
inline double costOfGrid(int rows, int columns, int width)
{
    const auto vectors = [width](int n) { return static_cast<double>((n + width - 1) / width); };
    const double instructions = costOf(rows) * rows * vectors(columns) + costOf(columns) * columns * vectors(rows);
    return width * static_cast<int>(sizeof(T)) == 64 ? 1.5 * instructions : instructions;
}

// Vectors have to fit into rows and columns, and their points into the area.
template <typename T>
inline bool fitsGrid(int rows, int columns, int width)
{
    return width <= std::min(rows, columns) && 2 * width * std::max(rows, columns) <= realsOfArea<T>;
}

// The width that costs least, of those up to `widest`.
template <typename T>
inline int widthOf(int rows, int columns, int widest)
{
    int best = blockLanes<T>;
    for (int width = 2 * best; width <= widest && fitsGrid<T>(rows, columns, width); width *= 2) {
        if (costOfGrid<T>(rows, columns, width) < costOfGrid<T>(rows, columns, best)) {
            best = width;
        }
    }
    return best;
}

// The number of columns that costs least, 0 if N does not make a grid. It decides in which order sums are formed, so
// that every level takes the same: it is best for vectors of 16, 32 and 64 bytes together.
template <typename T>
inline int columnsOf(int N)
{
    constexpr int width = blockLanes<T>;
    int best = 0;
    double least = std::numeric_limits<double>::max();
    for (int columns = std::max(width, N / longestLanes); columns <= longestLanes; ++columns) {
        const int rows = N / columns;
        if (N % columns != 0 || rows > longestLanes || rows < width) {
            continue;
        }
        double cost = 0;
        for (int widest = width; widest <= 4 * width; widest *= 2) {
            cost += costOfGrid<T>(rows, columns, widthOf<T>(rows, columns, widest)) * widest / width;
        }
        if (cost < least) {
            least = cost;
            best = columns;
        }
    }
    return best;
}

template <typename T>
inline void putInAllLanes(T* to, PairOf<T> w)
{
    for (int lane = 0; lane < blockLanes<T>; ++lane) {
        to[lane] = w.re;
        to[lane + blockLanes<T>] = w.im;
    }
}

// The tables of transforms of n points, `circle` being theirs. With nothing to cut from, only their sizes count.
template <typename T>
inline void makePlan(LanePlan<T>& plan, int n, Circle<T> circle, Cutter<T>& memory)
{
    int radices[mostMerges + 1];
    const int count = radicesOf(n, radices);
    plan.length = n;
    plan.leaf = radices[0];
    plan.merges = count - 1;
    const auto rootsOf = [&](int p) -> const T* {
        if (p <= 5) {
            return nullptr;
        }
        auto* const roots = memory.template cut<PairOf<T>>(p);
        for (int m = 0; roots != nullptr && m < p; ++m) {
            roots[m] = circle.ofPart(n / p).root(m);
        }
        return reinterpret_cast<const T*>(roots);
    };
    plan.leafRoots = rootsOf(plan.leaf);
    int q = plan.leaf;
    for (int i = 0; i < plan.merges; ++i) {
        const int p = radices[i + 1];
        plan.radix[i] = p;
        plan.roots[i] = rootsOf(p);
        T* to = memory.template cut<T>(std::ptrdiff_t{q - 1} * (p - 1) * realsOfFactor<T>);
        plan.twiddles[i] = to;
        for (int k = 1; to != nullptr && k < q; ++k) {
            for (int j = 1; j < p; ++j, to += realsOfFactor<T>) {
                putInAllLanes<T>(to, circle.root(static_cast<long long>(j) * k * (n / (p * q))));
            }
        }
        q *= p;
    }
    // Digits of the outermost radix count every element, those of the next one every p-th, and so on.
    int* const starts = memory.template cut<int>(n / plan.leaf);
    plan.starts = starts;
    if (starts != nullptr) {
        starts[0] = 0;
        int filled = 1;
        for (int i = 0; i < plan.merges; ++i) {
            const int p = plan.radix[i];
            for (int j = p - 1; j >= 0; --j) {
                for (int t = 0; t < filled; ++t) {
                    starts[j * filled + t] = p * starts[t] + j;
                }
            }
            filled *= p;
        }
    }
}

template <typename T>
inline T* makeFactors(const Grid<T>& grid, Circle<T> circle, Cutter<T>& memory)
{
    const int width = grid.width;
    const auto rounded = [width](int n) { return std::ptrdiff_t{(n + width - 1) / width * width}; };
    T* const factors = memory.template cut<T>(2 * rounded(grid.columns) * rounded(grid.rows));
    if (factors == nullptr) {
        return factors;
    }
    T* to = factors;
    forVectors(width, grid.columns, [&](int j) {
        forVectors(width, grid.rows, [&](int k) {
            for (int column = j; column < j + width; ++column, to += 2 * width) {
                for (int lane = 0; lane < width; ++lane) {
                    const PairOf<T> w = circle.root(static_cast<long long>(column) * (k + lane));
                    to[lane] = w.re;
                    to[lane + width] = w.im;
                }
            }
        });
    });
    return factors;
}

// Null if there is no memory.
template <typename T>
inline Grid<T>* createGrid(int N, int columns, const PairOf<T>* base, int baseLen)
{
    const Circle<T> circle{base, baseLen / N};
    Grid<T> grid;
    const auto build = [&](Cutter<T> memory) {
        Grid<T>* const place = memory.template cut<Grid<T>>(1);
        grid.rows = N / columns;
        grid.columns = columns;
        grid.width = widthOf<T>(grid.rows, columns, widestLanes<T>);
        makePlan(grid.down, grid.rows, circle.ofPart(columns), memory);
        makePlan(grid.across, columns, circle.ofPart(grid.rows), memory);
        grid.factors = makeFactors(grid, circle, memory);
        if (place != nullptr) {
            *place = grid;
        }
        return memory.size();
    };
    auto block = allocate<Tarn8u>(build(Cutter<T>(nullptr)));
    if (block) {
        build(Cutter<T>(block.get()));
    }
    return reinterpret_cast<Grid<T>*>(block.release());
}

} // namespace tarn::dft
