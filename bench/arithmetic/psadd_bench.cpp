// The Add family beside plain loops.
#include "tarns.h"

#include "psadd_peer.h"
#include "support/compare.h"

namespace tarn::bench {
namespace {

template <class T>
void compareScaled(const std::string& name, TarnStatus (*add)(const T*, const T*, T*, int, int), int s)
{
    compare<T, T, T>(
        sizes(64, 1024, 16384), name, [=](auto... args) { return add(args..., s); },
        peer("loop", [=](const T* a, const T* b, T* dst, int n) { addLoop(a, b, dst, n, s); }));
}

template <class T>
void compareCases(const std::string& name, TarnStatus (*add)(const T*, const T*, T*, int, int), int up)
{
    compareScaled(name + "_Sfs", add, 0);
    compareScaled(name + "_1Sfs", add, 1);
    compareScaled(name + "_PosSfs", add, 3);
    compareScaled(name + "_NegSfs", add, -2);
    compareScaled(name + "_Bound", add, -up - 1);
}

const Comparison cases = [] {
    compare<Tarn32f, Tarn32f, Tarn32f>(
        "add_32f", tarnsAdd_32f,
        peer("loop", [](const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int n) { addLoop(a, b, dst, n); }));
    compare<Tarn64f, Tarn64f, Tarn64f>(
        "add_64f", tarnsAdd_64f,
        peer("loop", [](const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int n) { addLoop(a, b, dst, n); }));
    compare<Tarn16s, Tarn16s, Tarn16s>("add_16s", tarnsAdd_16s, peer("loop", addSaturatedLoop));
    compareCases<Tarn8u>("add_8u", tarnsAdd_8u_Sfs, 7);
    compareCases<Tarn16s>("add_16s", tarnsAdd_16s_Sfs, 15);
    compareCases<Tarn32s>("add_32s", tarnsAdd_32s_Sfs, 30);
    compare<Tarn32f, Tarn32f>(
        "addC_32f", [](const Tarn32f* src, Tarn32f* dst, int n) { return tarnsAddC_32f(src, 1.5F, dst, n); },
        peer("loop", [](const Tarn32f* src, Tarn32f* dst, int n) { addConstantLoop(src, 1.5F, dst, n); }));
    return compare<Tarn16s, Tarn16s>(
        sizes(64, 1024, 16384), "addC_16s_1Sfs",
        [](const Tarn16s* src, Tarn16s* dst, int n) { return tarnsAddC_16s_Sfs(src, 99, dst, n, 1); },
        peer("loop", [](const Tarn16s* src, Tarn16s* dst, int n) { addConstantLoop(src, 99, dst, n, 1); }));
}();

} // namespace
} // namespace tarn::bench
