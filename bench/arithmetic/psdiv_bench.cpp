// Quotients beside plain loops and VOLK's kernel of the same width.
#include "tarns.h"

#include "psdiv_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace tarn::bench {
namespace {

const Sizes inCache = {64, 1024, 16384};

template <class T>
constexpr auto loop = [](const T* a, const T* b, T* dst, int n) { divLoop(a, b, dst, n); };

template <class T>
void compareScaled(const std::string& name, TarnStatus (*div)(const T*, const T*, T*, int, int))
{
    compare<T, T, T>(
        inCache, name, [=](auto... args) { return div(args..., 0); }, peer("loop", loop<T>));
}

const Comparison cases = [] {
#ifdef TARNS_HAVE_VOLK
    const auto volk = peer("volk", [](const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int n) {
        volk_32f_x2_divide_32f_manual(dst, b, a, static_cast<unsigned>(n), "a_sse");
    });
    compare<Tarn32f, Tarn32f, Tarn32f>("div_32f", tarnsDiv_32f, peer("loop", loop<Tarn32f>), volk);
#else
    compare<Tarn32f, Tarn32f, Tarn32f>("div_32f", tarnsDiv_32f, peer("loop", loop<Tarn32f>));
#endif
    compare<Tarn64f, Tarn64f, Tarn64f>(inCache, "div_64f", tarnsDiv_64f, peer("loop", loop<Tarn64f>));
    compare<Tarn32fc, Tarn32fc, Tarn32fc>(inCache, "div_32fc", tarnsDiv_32fc, peer("loop", loop<Tarn32fc>));
    compareScaled<Tarn16s>("div_16s_Sfs", tarnsDiv_16s_Sfs);
    compareScaled<Tarn32s>("div_32s_Sfs", tarnsDiv_32s_Sfs);
    compareScaled<Tarn8u>("div_8u_Sfs", tarnsDiv_8u_Sfs);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
