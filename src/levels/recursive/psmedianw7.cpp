// Kernels of the running median: networks of minima and maxima for masks up to 9, a sorted window for larger ones.
#include "levels/recursive/psmedian.h"

#include "frame/object.h"
#include "frame/sort.h"
#include "levels/data/psconvert.h"
#include "levels/recursive/psmedian_networks.h"
#include "levels/recursive/psmedian_window.h"

using namespace tarn;

namespace {

// Windows up to this size are rewritten as a whole, larger ones where they change. On noise the latter, which searches
// and branches, pays from some 100 doubles, 200 integers or 400 singles on; on smooth data from a third of that.
template <typename V>
inline constexpr int columnsUpTo = std::is_same_v<V, Tarn64f>   ? 64
                                   : std::is_same_v<V, Tarn32f> ? 192
                                                                : 96;

// Up to so many 32s elements are filtered as doubles on the stack.
constexpr int doublesOnStack = 512;

template <typename V>
void sortAscending(V* values, int len)
{
    sortHybrid(values, len, Order<false>{});
}

// The mask that is used: an even one loses an element.
constexpr int oddMask(int maskSize) { return maskSize - (maskSize % 2 == 0); }
constexpr TarnStatus statusOf(int maskSize) { return maskSize % 2 == 0 ? tarnStsEvenMedianMaskSize : tarnStsNoErr; }

// The window of the first element: half of it, or more, is the first element again and again, and where the data ends
// before the window does the rest is the last one.
template <typename T>
void slideSorted(const T* src, T* dst, int len, int size, Sorted<T>* work)
{
    using V = Sorted<T>;
    V* const arrivals = work;
    V* const sorted = work + windowRoom(size);
    const int half = size / 2;
    for (int k = 0; k < size; ++k) {
        arrivals[k] = admitted(src + std::clamp(k - half, 0, len - 1));
    }
    const int taken = std::min(size - half, len);
    const auto sortArrivals = [&](V* to) {
        tarn::copy(arrivals, to, size);
        sortAscending(to, size);
    };
    if (size <= columnsUpTo<V>) {
        V run[columnsUpTo<V>];
        sortArrivals(run);
        slideWindow(src, dst, len, size, taken, Arrivals<V>(arrivals, size), ColumnWindow<V>(sorted, run, size));
    } else {
        sortArrivals(sorted);
        slideWindow(src, dst, len, size, taken, Arrivals<V>(arrivals, size), RunWindow<V>(sorted, size));
    }
}

// A copy, unless the destination is the source.
template <typename T>
void copyApart(const T* src, T* dst, int len)
{
    if (src != dst) {
        tarn::copy(src, dst, len);
    }
}

// The ends, which no filter writes.
template <typename T>
void copyEnds(const T* src, T* dst, int len)
{
    moveElement(dst, src);
    moveElement(dst + len - 1, src + len - 1);
}

// Where there is no memory the destination is a copy.
template <typename T>
TarnStatus filterLarge(const T* src, T* dst, int len, int size)
{
    const auto work = allocate<Sorted<T>>(2 * windowRoom(size));
    if (!work) {
        copyApart(src, dst, len);
        return tarnStsNoMemErr;
    }
    slideSorted(src, dst, len, size, work.get());
    copyEnds(src, dst, len);
    return tarnStsNoErr;
}

template <typename T>
void filterSmall(const T* src, T* dst, int len, int size)
{
    if (size == 3 || len < 4) {
        slideNetwork<3>(src, dst, len);
    } else if (size == 5) {
        slideNetwork<5>(src, dst, len);
    } else if (size == 7) {
        slideNetwork<7>(src, dst, len);
    } else {
        slideNetwork<9>(src, dst, len);
    }
}

TarnStatus filterAsDoubles(const Tarn32s* src, Tarn32s* dst, int len, int maskSize)
{
    Tarn64f few[doublesOnStack];
    Owned<Tarn64f[]> many;
    Tarn64f* values = few;
    if (len > doublesOnStack) {
        many = allocate<Tarn64f>(len);
        if (!many) {
            return tarnStsNoMemErr;
        }
        values = many.get();
    }
    owntarnsCnvrt_32s64f(src, values, len);
    const TarnStatus status = owntarnsFilterMedian_64f_I(values, len, maskSize);
    owntarnsCnvrt_64f32s_Sfs(values, dst, len, 1, 0);
    return status;
}

} // namespace

namespace tarn {

template <typename T>
TarnStatus filterMedian(const T* pSrc, T* pDst, int len, int maskSize)
{
    const int size = oddMask(maskSize);
    if (size == 1 || len < 3) {
        copyApart(pSrc, pDst, len);
    } else if (size <= 9) {
        filterSmall(pSrc, pDst, len, size);
        copyEnds(pSrc, pDst, len);
    } else if (const TarnStatus status = filterLarge(pSrc, pDst, len, size)) {
        return status;
    }
    return statusOf(maskSize);
}

template TarnStatus filterMedian(const Tarn8u* pSrc, Tarn8u* pDst, int len, int maskSize);
template TarnStatus filterMedian(const Tarn16s* pSrc, Tarn16s* pDst, int len, int maskSize);
template TarnStatus filterMedian(const Tarn32f* pSrc, Tarn32f* pDst, int len, int maskSize);
template TarnStatus filterMedian(const Tarn64f* pSrc, Tarn64f* pDst, int len, int maskSize);

} // namespace tarn

// Masks from 11 on keep an even size here, and the upper one of the two elements in the middle comes out. Smaller ones
// are medians of doubles, which compare in one instruction.
TarnStatus owntarnsFilterMedian_32s(const Tarn32s* pSrc, Tarn32s* pDst, int len, int maskSize)
{
    const bool keepsEven = maskSize >= 11;
    if (maskSize <= 2 || len < 3) {
        copyApart(pSrc, pDst, len);
        return keepsEven ? tarnStsNoErr : statusOf(maskSize);
    }
    return keepsEven ? filterLarge(pSrc, pDst, len, maskSize) : filterAsDoubles(pSrc, pDst, len, maskSize);
}

TarnStatus owntarnsFilterMedian_32s_I(Tarn32s* pSrcDst, int len, int maskSize)
{
    return owntarnsFilterMedian_32s(pSrcDst, pSrcDst, len, maskSize);
}

void owntarnsFilterMedianX_32f_I(Tarn32f* pSrcDst, int len, int maskSize, Tarn32f* pWork)
{
    slideSorted(pSrcDst, pSrcDst, len, maskSize, pWork);
}

void owntarnsFilterMedianX_64f_I(Tarn64f* pSrcDst, int len, int maskSize, Tarn64f* pWork)
{
    slideSorted(pSrcDst, pSrcDst, len, maskSize, pWork);
}

void owntarnsTarn32sSort(Tarn32s* pSrcDst, int len) { sortAscending(pSrcDst, len); }
void owntarnsTarn32fSort(Tarn32f* pSrcDst, int len) { sortAscending(pSrcDst, len); }
void owntarnsTarn64fSort(Tarn64f* pSrcDst, int len) { sortAscending(pSrcDst, len); }

#define TARN_MEDIAN_KERNELS(TAG)                                                                                 \
    TarnStatus owntarnsFilterMedian_##TAG##_I(Tarn##TAG* pSrcDst, int len, int maskSize)                         \
    {                                                                                                            \
        return filterMedian(pSrcDst, pSrcDst, len, maskSize);                                                    \
    }                                                                                                            \
    void owntarnsFilterMedian3_##TAG##_I(Tarn##TAG* pSrcDst, int len) { filterSmall(pSrcDst, pSrcDst, len, 3); } \
    void owntarnsFilterMedian5_##TAG##_I(Tarn##TAG* pSrcDst, int len) { filterSmall(pSrcDst, pSrcDst, len, 5); } \
    void owntarnsFilterMedian7_##TAG##_I(Tarn##TAG* pSrcDst, int len) { filterSmall(pSrcDst, pSrcDst, len, 7); } \
    void owntarnsFilterMedian9_##TAG##_I(Tarn##TAG* pSrcDst, int len) { filterSmall(pSrcDst, pSrcDst, len, 9); }

TARN_MEDIAN_KERNELS(8u)
TARN_MEDIAN_KERNELS(16s)
TARN_MEDIAN_KERNELS(32f)
TARN_MEDIAN_KERNELS(64f)
