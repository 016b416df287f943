// Kernels of an extreme and its first place. Finding a value and finding where it is are kept apart: a pass over a
// block holds nothing but values in its lanes, and only a block that improves on the record is searched.
#include "levels/statistics/psminmax.h"

#include "frame/reduce.h"
#include "frame/report.h"

using namespace tarn;

namespace {

// Blocks of so many bytes stay in the first-level cache between the pass and the search.
constexpr int blockBytes = 8192;

// Distance at which a block's lines are asked for: what is scanned once should not push out what is in use.
constexpr int prefetchBytes = 64;

// Whether an element takes the place of the record. A NaN counts as a new minimum, and never as a new maximum; a record
// that is a NaN gives way to anything as a minimum, and to nothing as a maximum.
struct ForMinimum {
    static constexpr auto selection = min;
    template <typename T>
    static TARN_INLINE bool improves(T x, T record)
    {
        return !(x >= record);
    }
    // Element by element a NaN gives way to whatever follows, and so does what has taken its place: the last element it
    // is in the end.
    template <typename T>
    static TARN_INLINE bool yieldsToLast(T record)
    {
        return record != record;
    }
};
struct ForMaximum {
    static constexpr auto selection = max;
    template <typename T>
    static TARN_INLINE bool improves(T x, T record)
    {
        return x > record;
    }
    template <typename T>
    static TARN_INLINE bool yieldsToLast(T /*record*/)
    {
        return false;
    }
};

template <typename T>
struct Record {
    T value;
    int index;
};

// The elements from i up to `end`, one by one.
template <typename Extreme, typename T>
TARN_INLINE void scan(Record<T>& record, const T* p, int i, int end)
{
    for (; i < end; ++i) {
        const T x = loadElement(p + i);
        if (Extreme::improves(x, record.value)) {
            record = {x, i};
        }
    }
}

template <typename T>
TARN_INLINE void storeRecord(Record<T> record, T* value, int* index)
{
    store(value, record.value);
    store(index, record.index);
}

template <typename Extreme, typename T>
TARN_INLINE void byElement(const T* p, int len, T* value, int* index)
{
    Record<T> record{loadElement(p), 0};
    for (int i = 1; i < len && !Extreme::yieldsToLast(record.value); ++i) {
        const T x = loadElement(p + i);
        if (Extreme::improves(x, record.value)) {
            record = {x, i};
        }
    }
    if (Extreme::yieldsToLast(record.value)) {
        record = {loadElement(p + len - 1), len - 1};
    }
    storeRecord(record, value, index);
}

// The extreme in the widest registers, where none of the values is a NaN and it is not zero: then lanes and order show
// in nothing. The last registers overlap those before them.
template <typename Extreme>
TARN_INLINE bool ofOrderedBlock(const Tarn32f* p, int len, Tarn32f* value)
{
    constexpr int step = 4 * lanes<Tarn32f>;
    if (len < step) {
        return false;
    }
    auto extremes = loadPack<step>(p);
    Met nan;
    nan.note(unordered(lowHalf(extremes), highHalf(extremes)));
    for (Index i = step; i < len; i += step) {
        const auto x = loadPack<step>(p + std::min<Index>(i, len - step));
        nan.note(unordered(lowHalf(x), highHalf(x)));
        extremes = Extreme::selection(extremes, x);
    }
    const auto halves = Extreme::selection(lowHalf(extremes), highHalf(extremes));
    const Tarn32f extreme = foldLanes(Extreme::selection(lowHalf(halves), highHalf(halves)), Extreme::selection);
    if (nan.any() || extreme == 0) {
        return false;
    }
    store(value, extreme);
    return true;
}

// The extreme of whole steps of two vectors.
template <typename Extreme, typename T>
TARN_INLINE void ofBlock(const T* p, int len, T* value)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        if (ofOrderedBlock<Extreme>(p, len, value)) {
            return;
        }
    }
    constexpr int step = reducedLanes<T>;
    auto extremes = loadPack<2 * step>(p);
    for (Index i = 2 * step; i < len; i += 2 * step) {
        prefetchOnce(p + i + prefetchBytes / static_cast<int>(sizeof(T)));
        extremes = Extreme::selection(extremes, loadPack<2 * step>(p + i));
    }
    const auto both = Extreme::selection(lowHalf(extremes), highHalf(extremes));
    store(value, foldLanes(both, Extreme::selection));
}

// The bits decide, so that the search finds what the pass has found, zeros and NaNs included. No more than `len`
// elements are read, `step` at once.
template <int step, typename T>
TARN_INLINE int indexOfBits(const T* p, int len, const T* value)
{
    using Bits = std::conditional_t<sizeof(T) == 2, Tarn16s, Tarn32s>;
    Bits wanted;
    std::memcpy(&wanted, static_cast<const void*>(value), sizeof wanted);
    return indexOfFirst<step>(reinterpret_cast<const Bits*>(p), len, wanted, equal);
}

// Single elements to a boundary, blocks, and the rest one by one.
template <typename Extreme, typename T>
TARN_INLINE void byBlock(void (*extremeOf)(const T*, int, T*), int head, const T* p, int len, T* value, int* index)
{
    constexpr int block = blockBytes / sizeof(T);
    constexpr int step = 2 * reducedLanes<T>;
    Record<T> record{loadElement(p), 0};
    int i = std::min(head, len);
    scan<Extreme>(record, p, 1, i);
    for (int rest = (len - i) / step * step, taken = 0; rest > 0; rest -= taken, i += taken) {
        taken = std::min(rest, block);
        T best;
        extremeOf(p + i, taken, &best);
        if (Extreme::improves(best, record.value)) {
            record = {best, i + indexOfBits<lanes<T>>(p + i, taken, &best)};
        }
    }
    scan<Extreme>(record, p, i, len);
    storeRecord(record, value, index);
}

// Elements of 16 bits are walked to a boundary of this many bytes.
constexpr unsigned boundaryOf16Bits = 8;

int headOf16Bits(const Tarn16s* p)
{
    const auto gap = (0 - addressOf(p)) % boundaryOf16Bits;
    return gap % sizeof(Tarn16s) == 0 ? static_cast<int>(gap / sizeof(Tarn16s)) : 0;
}

} // namespace

void ownsMinPrefetch_16s_A6(const Tarn16s* pSrc, int len, Tarn16s* pMin) { ofBlock<ForMinimum>(pSrc, len, pMin); }

void ownsMinPrefetch_32f_A6(const Tarn32f* pSrc, int len, Tarn32f* pMin) { ofBlock<ForMinimum>(pSrc, len, pMin); }

void ownsMaxPrefetch_16s_A6(const Tarn16s* pSrc, int len, Tarn16s* pMax) { ofBlock<ForMaximum>(pSrc, len, pMax); }

void ownsMaxPrefetch_32f_A6(const Tarn32f* pSrc, int len, Tarn32f* pMax) { ofBlock<ForMaximum>(pSrc, len, pMax); }

int ownsIndx_16s_A6(const Tarn16s* pSrc, const Tarn16s* pValue)
{
    return indexOfBits<reducedLanes<Tarn16s>>(pSrc, highest<int>, pValue);
}

int ownsIndx_32f_A6(const Tarn32f* pSrc, const Tarn32f* pValue)
{
    return indexOfBits<reducedLanes<Tarn32f>>(pSrc, highest<int>, pValue);
}

void ownsMinIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMin, int* pIndx)
{
    byBlock<ForMinimum>(ownsMinPrefetch_16s_A6, headOf16Bits(pSrc), pSrc, len, pMin, pIndx);
}

void ownsMinIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMin, int* pIndx)
{
    byBlock<ForMinimum>(ownsMinPrefetch_32f_A6, elementsToBoundary<reducedBytes>(pSrc), pSrc, len, pMin, pIndx);
}

void ownsMinIndx_16s_M6(const Tarn16s* pSrc, int len, Tarn16s* pMin, int* pIndx)
{
    byElement<ForMinimum>(pSrc, len, pMin, pIndx);
}

void ownsMinIndx_32f_M6(const Tarn32f* pSrc, int len, Tarn32f* pMin, int* pIndx)
{
    byElement<ForMinimum>(pSrc, len, pMin, pIndx);
}

void ownsMinIndx_64f_M6(const Tarn64f* pSrc, int len, Tarn64f* pMin, int* pIndx)
{
    byElement<ForMinimum>(pSrc, len, pMin, pIndx);
}

void ownsMaxIndx_16s(const Tarn16s* pSrc, int len, Tarn16s* pMax, int* pIndx)
{
    byBlock<ForMaximum>(ownsMaxPrefetch_16s_A6, headOf16Bits(pSrc), pSrc, len, pMax, pIndx);
}

void ownsMaxIndx_32f(const Tarn32f* pSrc, int len, Tarn32f* pMax, int* pIndx)
{
    byBlock<ForMaximum>(ownsMaxPrefetch_32f_A6, elementsToBoundary<reducedBytes>(pSrc), pSrc, len, pMax, pIndx);
}

void ownsMaxIndx_16s_M6(const Tarn16s* pSrc, int len, Tarn16s* pMax, int* pIndx)
{
    byElement<ForMaximum>(pSrc, len, pMax, pIndx);
}

void ownsMaxIndx_32f_M6(const Tarn32f* pSrc, int len, Tarn32f* pMax, int* pIndx)
{
    byElement<ForMaximum>(pSrc, len, pMax, pIndx);
}

void ownsMaxIndx_64f_M6(const Tarn64f* pSrc, int len, Tarn64f* pMax, int* pIndx)
{
    byElement<ForMaximum>(pSrc, len, pMax, pIndx);
}
