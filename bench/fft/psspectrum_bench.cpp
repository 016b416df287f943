// Products and expansions of packed spectra beside plain loops.
#include "tarns.h"

#include "psspectrum_peer.h"
#include "support/compare.h"

namespace tarn::bench {
namespace {

template <class T>
using Multiply = void (*)(const T*, const T*, T*, int);
template <class D, class S>
using Expand = void (*)(const S*, D*, int);

// The lengths that block filters use, and one beyond the caches.
const Sizes transformSizes = {64, 1024, 16384, 1 << 20};

const Comparison cases = [] {
    compare<Tarn32f, Tarn32f, Tarn32f>(transformSizes, "mulPerm_32f", tarnsMulPerm_32f,
                                       peer("loop", Multiply<Tarn32f>(mulPermLoop)));
    compare<Tarn64f, Tarn64f, Tarn64f>(transformSizes, "mulPerm_64f", tarnsMulPerm_64f,
                                       peer("loop", Multiply<Tarn64f>(mulPermLoop)));
    compare<Tarn16s, Tarn16s, Tarn16s>(
        transformSizes, "mulPerm_16s_Sfs", [](auto... args) { return tarnsMulPerm_16s_Sfs(args..., 13); },
        peer("loop", [](const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int n) { mulPermLoop(a, b, dst, n, 13); }));
    compare<Tarn32f, Tarn32f, Tarn32f>(transformSizes, "mulPack_32f", tarnsMulPack_32f, peer("loop", mulPackLoop));
    compareInPlace<Tarn32f, Tarn32f>(transformSizes, "mulPackConj_32f_I", tarnsMulPackConj_32f_I,
                                     peer("loop", mulPackConjLoop));
    compare<Tarn32fc, Tarn32f>(transformSizes, "conjPerm_32fc", tarnsConjPerm_32fc,
                               peer("loop", Expand<Tarn32fc, Tarn32f>(conjPermLoop)));
    compare<Tarn64fc, Tarn64f>(transformSizes, "conjPerm_64fc", tarnsConjPerm_64fc,
                               peer("loop", Expand<Tarn64fc, Tarn64f>(conjPermLoop)));
    compare<Tarn16sc, Tarn16s>(transformSizes, "conjPerm_16sc", tarnsConjPerm_16sc,
                               peer("loop", Expand<Tarn16sc, Tarn16s>(conjPermLoop)));
    compare<Tarn32fc, Tarn32f>(transformSizes, "conjPack_32fc", tarnsConjPack_32fc, peer("loop", conjPackLoop));
    compare<Tarn32fc, Tarn32fc>(transformSizes, "conjFlip_32fc", tarnsConjFlip_32fc,
                                peer("loop", Expand<Tarn32fc, Tarn32fc>(conjFlipLoop)));
    return compare<Tarn16sc, Tarn16sc>(transformSizes, "conjFlip_16sc", tarnsConjFlip_16sc,
                                       peer("loop", Expand<Tarn16sc, Tarn16sc>(conjFlipLoop)));
}();

} // namespace
} // namespace tarn::bench
