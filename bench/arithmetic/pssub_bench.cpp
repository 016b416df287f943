// The Sub family beside plain loops.
#include "tarns.h"

#include "pssub_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace tarn::bench {
namespace {

const Sizes inCache = {64, 1024, 16384};

template <class T>
void compareScaled(const std::string& name, TarnStatus (*sub)(const T*, const T*, T*, int, int), int s)
{
    compare<T, T, T>(
        inCache, name, [=](auto... args) { return sub(args..., s); },
        peer("loop", [=](const T* a, const T* b, T* dst, int n) { subLoop(a, b, dst, n, s); }));
}

template <class T>
void compareCases(const std::string& name, TarnStatus (*sub)(const T*, const T*, T*, int, int), int up)
{
    compareScaled(name + "_Sfs", sub, 0);
    compareScaled(name + "_1Sfs", sub, 1);
    compareScaled(name + "_PosSfs", sub, 3);
    compareScaled(name + "_NegSfs", sub, -2);
    compareScaled(name + "_Bound", sub, -up - 1);
}

const Comparison cases = [] {
    compare<Tarn32f, Tarn32f, Tarn32f>(
        "sub_32f", tarnsSub_32f,
        peer("loop", [](const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int n) { subLoop(a, b, dst, n); })
#ifdef TARNS_HAVE_VOLK
            ,
        peer("volk", [](const Tarn32f* a, const Tarn32f* b, Tarn32f* dst,
                        int n) { volk_32f_x2_subtract_32f_manual(dst, b, a, static_cast<unsigned>(n), "a_sse"); })
#endif
    );
    compareCases<Tarn8u>("sub_8u", tarnsSub_8u_Sfs, 7);
    compareCases<Tarn16s>("sub_16s", tarnsSub_16s_Sfs, 15);
    compareCases<Tarn32s>("sub_32s", tarnsSub_32s_Sfs, 30);
    compare<Tarn32f, Tarn32f>(
        "subC_32f", [](const Tarn32f* src, Tarn32f* dst, int n) { return tarnsSubC_32f(src, 1.5F, dst, n); },
        peer("loop", [](const Tarn32f* src, Tarn32f* dst, int n) { subConstantLoop(src, 1.5F, dst, n); }));
    compare<Tarn32f, Tarn32f>(
        "subCRev_32f", [](const Tarn32f* src, Tarn32f* dst, int n) { return tarnsSubCRev_32f(src, 1.5F, dst, n); },
        peer("loop", [](const Tarn32f* src, Tarn32f* dst, int n) { subFromConstantLoop(src, 1.5F, dst, n); }));
    return compare<Tarn16s, Tarn16s>(
        inCache, "subCRev_16s_1Sfs",
        [](const Tarn16s* src, Tarn16s* dst, int n) { return tarnsSubCRev_16s_Sfs(src, 99, dst, n, 1); },
        peer("loop", [](const Tarn16s* src, Tarn16s* dst, int n) { subFromConstantLoop(src, 99, dst, n, 1); }));
}();

} // namespace
} // namespace tarn::bench
