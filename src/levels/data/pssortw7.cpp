// Kernels of sorting.
#include "levels/data/pssort.h"

#include "frame/sort.h"

namespace {

using namespace tarn;

// From here on the counters of bytes cost less than comparisons.
constexpr int countedFrom = 128;

// Four histograms, so that equal neighbours do not wait for each other's count.
class ByteCounts {
public:
    explicit ByteCounts(const Tarn8u* p, int len)
    {
        int i = 0;
        for (; i <= len - histograms; i += histograms) {
            for (int k = 0; k < histograms; ++k) {
                ++counts[k][loadElement(p + i + k)];
            }
        }
        for (; i < len; ++i) {
            ++counts[0][loadElement(p + i)];
        }
    }
    unsigned of(int value) const { return counts[0][value] + counts[1][value] + counts[2][value] + counts[3][value]; }

private:
    static constexpr int histograms = 4;
    unsigned counts[histograms][256] = {};
};

template <bool descend>
void sortCounted(Tarn8u* p, int len)
{
    const ByteCounts counts(p, len);
    for (int k = 0; k < 256; ++k) {
        const int value = descend ? 255 - k : k;
        const unsigned run = counts.of(value);
        std::memset(p, value, run);
        p += run;
    }
}

template <bool descend, typename T>
void sort(T* pSrcDst, int len)
{
    if (sizeof(T) == 1 && len >= countedFrom) {
        sortCounted<descend>(reinterpret_cast<Tarn8u*>(pSrcDst), len);
    } else {
        sortHybrid(pSrcDst, len, Order<descend>{});
    }
}

} // namespace

#define TARN_SORT_KERNELS(TAG)                                                                \
    void ownsSortAscend_##TAG##_I(Tarn##TAG* pSrcDst, int len) { sort<false>(pSrcDst, len); } \
    void ownsSortDescend_##TAG##_I(Tarn##TAG* pSrcDst, int len) { sort<true>(pSrcDst, len); }

TARN_SORT_KERNELS(8u)
TARN_SORT_KERNELS(16s)
TARN_SORT_KERNELS(32s)
TARN_SORT_KERNELS(32f)
TARN_SORT_KERNELS(64f)
