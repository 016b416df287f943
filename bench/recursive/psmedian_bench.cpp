// Running medians beside a search for the middle of every window, and the smallest mask beside a mere copy.
#include "tarns/median.h"

#include "recursive/psmedian_peer.h"
#include "support/compare.h"

#include <cstring>

namespace tarn::bench {
namespace {

template <class T>
void compareMedian(const std::string& type, TarnStatus (*filter)(const T*, T*, int, int), int maskSize,
                   const Sizes& lengths = sizes(4096))
{
    compare<T, T>(
        lengths, "filterMedian" + std::to_string(maskSize) + "_" + type,
        [=](const T* src, T* dst, int n) { return filter(src, dst, n, maskSize); },
        peer("nth_element", [=](const T* src, T* dst, int n) { nthElementLoop(src, dst, n, maskSize); }));
}

// In place after some runs nothing is left to do, and the work is the same: no network looks at the data.
template <class T>
void compareWithCopy(const std::string& type, TarnStatus (*filter)(const T*, T*, int, int),
                     TarnStatus (*inPlace)(T*, int, int))
{
    const auto copy = peer(
        "memcpy", [](const T* src, T* dst, int n) { std::memcpy(dst, src, static_cast<std::size_t>(n) * sizeof(T)); });
    compare<T, T>(
        sizes(4096, 65536), "filterMedian3Copy_" + type,
        [=](const T* src, T* dst, int n) { return filter(src, dst, n, 3); }, copy);
    compare<T, T>(
        sizes(4096, 65536), "filterMedian3Copy_" + type + "_I",
        [=](const T*, T* dst, int n) { return inPlace(dst, n, 3); }, copy);
}

const Comparison cases = [] {
    for (const int maskSize : {3, 5, 7, 9, 11, 31, 101, 301, 1001})
        compareMedian("32f", tarnsFilterMedian_32f, maskSize);
    for (const int maskSize : {3, 5, 9, 31, 101}) {
        compareMedian("64f", tarnsFilterMedian_64f, maskSize);
        compareMedian("32s", tarnsFilterMedian_32s, maskSize);
        compareMedian("16s", tarnsFilterMedian_16s, maskSize);
        compareMedian("8u", tarnsFilterMedian_8u, maskSize);
    }
    compareWithCopy("8u", tarnsFilterMedian_8u, tarnsFilterMedian_8u_I);
    compareWithCopy("16s", tarnsFilterMedian_16s, tarnsFilterMedian_16s_I);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
