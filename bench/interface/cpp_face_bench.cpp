// Calls through the C++ face beside those of the C interface, at lengths where a call's overhead would show.
#include "tarns.hpp"

#include "support/compare.h"

namespace tarn::bench {
namespace {

template <class T>
std::span<T> of(T* p, int n)
{
    return {p, static_cast<std::size_t>(n)};
}

const Comparison cases = [] {
    compare<Tarn32f, Tarn32f, Tarn32f>(
        sizes(4, 16, 1024), "face_add_32f",
        [](const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int n) {
            return tarns::add(of(a, n), of(b, n), of(dst, n));
        },
        peer("C", [](const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int n) { tarnsAdd_32f(a, b, dst, n); }));
    return compare<Tarn16s, Tarn32f>(
        sizes(4, 16, 1024), "face_convert_16s32f",
        [](const Tarn16s* src, Tarn32f* dst, int n) { return tarns::convert(of(src, n), of(dst, n)); },
        peer("C", [](const Tarn16s* src, Tarn32f* dst, int n) { tarnsConvert_16s32f(src, dst, n); }));
}();

} // namespace
} // namespace tarn::bench
