// Front ends of the transforms out of order.
#include "levels/transforms/psdftoutord.h"
#include "tarns/dftoutord.h"
#include "transforms/psdft.h"

namespace tarn::dft {

template <bool forward, typename T>
inline constexpr auto levelsOutOfOrder = forward ? tarns_cDftFwd_OutOrd_32fc : tarns_cDftInv_OutOrd_32fc;
template <bool forward>
inline constexpr auto levelsOutOfOrder<forward, Tarn64f> =
    forward ? tarns_cDftFwd_OutOrd_64fc : tarns_cDftInv_OutOrd_64fc;

template <bool forward, typename T>
TarnStatus transformOutOfOrder(const Spec<T>& spec, const T* src, T* dst, T* work)
{
    if (spec.outOrdered == 0) {
        return transformPairs<forward, T>(spec, spec.length, src, dst, work);
    }
    levelsOutOfOrder<forward, T>(&spec, asPairs(src), asPairs(dst), work);
    return tarnStsNoErr;
}

} // namespace tarn::dft

#define TARN_DFT_OUT_OF_ORDER_FRONT_ENDS(T)                            \
    TARN_TRANSFORM_OBJECT_FRONT_ENDS(DFTOutOrd, dft, C_##T##c, length) \
    TARN_TRANSFORM_PAIRS_FRONT_ENDS(DFTOutOrd, dft, T, Fwd, true)      \
    TARN_TRANSFORM_PAIRS_FRONT_ENDS(DFTOutOrd, dft, T, Inv, false)

TARN_DFT_OUT_OF_ORDER_FRONT_ENDS(32f)
TARN_DFT_OUT_OF_ORDER_FRONT_ENDS(64f)
