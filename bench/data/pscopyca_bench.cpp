// Data movement beside memcpy and memset.
#include "tarns.h"

#include "support/compare.h"

#include <cstring>

namespace tarn::bench {
namespace {

template <class T>
auto memcpyPeer()
{
    return peer("memcpy", [](const T* src, T* dst, int n) {
        std::memcpy(dst, src, static_cast<std::size_t>(n) * sizeof(T));
        benchmark::DoNotOptimize(dst);
    });
}

template <class T>
Comparison compareWithMemcpy(const std::string& name, TarnStatus (*function)(const T*, T*, int))
{
    return compare<T, T>(name, function, memcpyPeer<T>());
}

template <class T>
Comparison compareInPlaceWithMemcpy(const std::string& name, TarnStatus (*function)(T*, int))
{
    return compare<T, T>(
        sizes(64, 1024, 16384), name, [=](const T*, T* dst, int n) { return function(dst, n); }, memcpyPeer<T>());
}

const Comparison cases = [] {
    compareWithMemcpy<Tarn8u>("copy_8u", tarnsCopy_8u);
    compareWithMemcpy<Tarn32f>("copy_32f", tarnsCopy_32f);
    compareWithMemcpy<Tarn64fc>("copy_64fc", tarnsCopy_64fc);
    compareWithMemcpy<Tarn8u>("move_8u", tarnsMove_8u);
    compareWithMemcpy<Tarn8u>("flip_8u", tarnsFlip_8u);
    compareWithMemcpy<Tarn16u>("flip_16u", tarnsFlip_16u);
    compareWithMemcpy<Tarn32f>("flip_32f", tarnsFlip_32f);
    compareWithMemcpy<Tarn64f>("flip_64f", tarnsFlip_64f);
    compareInPlaceWithMemcpy<Tarn8u>("flip_8u_I", tarnsFlip_8u_I);
    compareInPlaceWithMemcpy<Tarn32f>("flip_32f_I", tarnsFlip_32f_I);
    compareWithMemcpy<Tarn16u>("swapBytes_16u", tarnsSwapBytes_16u);
    compareWithMemcpy<Tarn32u>("swapBytes_32u", tarnsSwapBytes_32u);
    compareInPlaceWithMemcpy<Tarn32u>("swapBytes_32u_I", tarnsSwapBytes_32u_I);
    compare<Tarn8u, Tarn8u>(
        sizes(64, 1024, 16384), "swapBytes_24u",
        [](const Tarn8u* src, Tarn8u* dst, int n) { return tarnsSwapBytes_24u(src, dst, n / 3); },
        memcpyPeer<Tarn8u>());
    compare<Tarn32f>("zero_32f", tarnsZero_32f, peer("memset", [](Tarn32f* dst, int n) {
                         std::memset(dst, 0, static_cast<std::size_t>(n) * sizeof *dst);
                     }));
    return compare<Tarn8u>(
        "set_8u", [](Tarn8u* dst, int n) { return tarnsSet_8u(77, dst, n); },
        peer("memset", [](Tarn8u* dst, int n) { std::memset(dst, 77, static_cast<std::size_t>(n)); }));
}();

} // namespace
} // namespace tarn::bench
