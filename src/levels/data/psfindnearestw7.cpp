// Kernels of the search for the nearest entry of a table.
#include "levels/data/psfindnearest.h"

#include "frame/simd.h"

namespace {

using namespace tarn;

class Table {
public:
    Table(const Tarn16u* pTable, int tblLen) : p(pTable), last(tblLen - 1) {}

    TARN_INLINE int operator[](int i) const { return loadElement(p + i); }

    // The last entry not above the value of `size` entries from `first` on, which is not above it itself, or is the
    // first of all. Halved without a branch on the data; stops at a size of `enough`.
    TARN_INLINE int halve(int first, int size, int enough, int value) const
    {
        while (size > enough) {
            const int half = size / 2;
            first += (*this)[first + half] <= value ? half : 0;
            size -= half;
        }
        return first;
    }

    // Of an entry not above the value and the one behind it the nearer one, the lower one in a tie. Of several entries
    // that equal the first one a value below or at it gets the first.
    TARN_INLINE int nearest(int left, int value) const
    {
        const int right = std::min(left + 1, last);
        const int nearer = value - (*this)[left] > (*this)[right] - value ? right : left;
        return value <= (*this)[0] ? 0 : nearer;
    }

    const Tarn16u* p;
    int last;
};

void findOne(Table table, Tarn16u value, Tarn16u* pOutVal, Tarn32s* pOutIndex)
{
    const int index = table.nearest(table.halve(0, table.last + 1, 1, value), value);
    store(pOutVal, static_cast<Tarn16u>(table[index]));
    store(pOutIndex, index);
}

// A table with an index: entries at equal distances, as many as are compared at once. A second comparison like the
// first finds the place between two of them; only in large tables that gap has to be halved before.
class IndexedTable : Table {
public:
    // The comparisons look at entries behind the one that is found.
    static constexpr int leastLength = wordsSearched + 1;

    IndexedTable(const Tarn16u* pTable, int tblLen)
        : Table(pTable, tblLen), stride((tblLen - 1) / (wordsSearched + 1) + 1)
    {
        for (int k = 0; k < wordsSearched; ++k) {
            index[k] = loadElement(p + std::min((k + 1) * stride, last));
        }
    }

    TARN_INLINE void find(Tarn16u value, Tarn16u* pOutVal, Tarn32s* pOutIndex) const
    {
        int left = wordsNotAbove(index, value) * stride;
        if (stride > wordsSearched) {
            left = halve(std::min(left, last + 1 - stride), stride, wordsSearched, value);
        }
        left = std::min(left, last - wordsSearched);
        left += wordsNotAbove(p + left + 1, value);
        const int found = nearest(left, value);
        store(pOutVal, static_cast<Tarn16u>((*this)[found]));
        store(pOutIndex, found);
    }

private:
    int stride;
    Tarn16u index[wordsSearched];
};

} // namespace

void ownps_FindNearest_16u(const Tarn16u* pVals, Tarn16u* pOutVals, Tarn32s* pOutIndexes, int len,
                           const Tarn16u* pTable, int tblLen)
{
    // Values for which the index is worth making.
    constexpr int many = 16;
    if (len >= many && tblLen >= IndexedTable::leastLength) {
        const IndexedTable table(pTable, tblLen);
        for (int i = 0; i < len; ++i) {
            table.find(loadElement(pVals + i), pOutVals + i, pOutIndexes + i);
        }
    } else {
        for (int i = 0; i < len; ++i) {
            findOne({pTable, tblLen}, loadElement(pVals + i), pOutVals + i, pOutIndexes + i);
        }
    }
}

void ownps_FindNearestOne_16u(Tarn16u inpVal, Tarn16u* pOutVal, Tarn32s* pOutIndex, const Tarn16u* pTable, int tblLen)
{
    findOne({pTable, tblLen}, inpVal, pOutVal, pOutIndex);
}
