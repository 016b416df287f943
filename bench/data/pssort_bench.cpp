// Sorting beside std::sort, and the search in a table beside std::lower_bound.
#include "tarns/sort.h"

#include "support/compare.h"

#include <algorithm>
#include <random>

namespace tarn::bench {
namespace {

// So many arrays in turn that no branch predictor learns the order of one by heart.
constexpr int arraysInTurn = 64;

template <class T>
std::vector<T> randomElements(std::size_t count)
{
    std::mt19937 generator(1);
    std::vector<T> elements(count);
    for (T& x : elements) {
        if constexpr (std::is_floating_point_v<T>)
            x = static_cast<T>(static_cast<std::int32_t>(generator())) * T(0x1p-31);
        else
            x = static_cast<T>(generator());
    }
    return elements;
}

// Each run takes the next array and sorts a copy of it.
template <class T, class SortCall>
auto prepareSort(SortCall sort)
{
    return [sort](int n) {
        const auto len = static_cast<std::size_t>(n);
        return [=, elements = randomElements<T>(len * arraysInTurn), work = std::vector<T>(len), next = 0U]() mutable {
            const T* array = elements.data() + len * next;
            next = (next + 1) % arraysInTurn;
            std::copy(array, array + len, work.data());
            sort(work.data(), n);
        };
    };
}

template <class T>
void compareSort(const std::string& name, TarnStatus (*ours)(T*, int))
{
    comparePrepared(sizes(100, 1000, 10000), name, prepareSort<T>(ours),
                    peer("std::sort", prepareSort<T>([](T* array, int n) { std::sort(array, array + n); })));
}

struct Search {
    std::vector<Tarn16u> table, values, found;
    std::vector<Tarn32s> indexes;

    Search(int n, std::size_t tblLen)
        : table(randomElements<Tarn16u>(tblLen)), values(randomElements<Tarn16u>(static_cast<std::size_t>(n) + tblLen)),
          found(static_cast<std::size_t>(n)), indexes(static_cast<std::size_t>(n))
    {
        values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(tblLen));
        std::sort(table.begin(), table.end());
    }

    // The first entry that is not below each value: less than what we do.
    void lowerBound()
    {
        for (std::size_t i = 0; i < values.size(); ++i) {
            const auto entry = std::lower_bound(table.begin(), table.end(), values[i]);
            indexes[i] = static_cast<Tarn32s>(entry - table.begin());
        }
    }
    TarnStatus nearest()
    {
        return tarnsFindNearest_16u(values.data(), found.data(), indexes.data(), static_cast<int>(values.size()),
                                    table.data(), static_cast<int>(table.size()));
    }
};

void compareSearch(std::size_t tblLen)
{
    comparePrepared(
        sizes(64, 1024, 16384), "findNearest_16u_in_" + std::to_string(tblLen),
        [=](int n) { return [search = Search(n, tblLen)]() mutable { return search.nearest(); }; },
        peer("lower_bound", [=](int n) { return [search = Search(n, tblLen)]() mutable { search.lowerBound(); }; }));
}

const Comparison cases = [] {
    compareSort<Tarn8u>("sortAscend_8u", tarnsSortAscend_8u_I);
    compareSort<Tarn16s>("sortAscend_16s", tarnsSortAscend_16s_I);
    compareSort<Tarn32s>("sortAscend_32s", tarnsSortAscend_32s_I);
    compareSort<Tarn32f>("sortAscend_32f", tarnsSortAscend_32f_I);
    compareSort<Tarn64f>("sortAscend_64f", tarnsSortAscend_64f_I);
    for (const std::size_t tblLen : {16U, 256U, 4096U})
        compareSearch(tblLen);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
