// Transforms of 16-bit samples beside those of floats of the same order and layout.
#include "support/transforms.h"

#include <bit>

namespace tarn::bench {
namespace {

Sizes orders(int first, int last)
{
    Sizes lengths;
    for (int order = first; order <= last; ++order)
        lengths.push_back(1 << order);
    return lengths;
}

int orderOf(int n) { return std::countr_zero(static_cast<unsigned>(n)); }

#define TARN_OWN_TRANSFORM(KIND) TARN_TRANSFORM_CALLS(FFT, KIND, orderOf)

const Comparison cases = [] {
    const Sizes through = orders(4, 18);
    const auto pairs = ours(TARN_OWN_TRANSFORM(C_32fc), tarnsFFTFwd_CToC_32fc);
    const auto parts = ours(TARN_OWN_TRANSFORM(C_32f), tarnsFFTFwd_CToC_32f);
    const auto perm = ours(TARN_OWN_TRANSFORM(R_32f), tarnsFFTFwd_RToPerm_32f);
    const auto fromPerm = ours(TARN_OWN_TRANSFORM(R_32f), tarnsFFTInv_PermToR_32f);
    comparePrepared(through, "fft_16sc", ours(TARN_OWN_TRANSFORM(C_16sc), tarnsFFTFwd_CToC_16sc_Sfs),
                    peer("floats", pairs));
    comparePrepared(through, "fftParts_16s", ours(TARN_OWN_TRANSFORM(C_16s), tarnsFFTFwd_CToC_16s_Sfs),
                    peer("floats", parts));
    comparePrepared(through, "fftReal_16s", ours(TARN_OWN_TRANSFORM(R_16s), tarnsFFTFwd_RToPerm_16s_Sfs),
                    peer("floats", perm));
    comparePrepared(through, "fftRealInv_16s", ours(TARN_OWN_TRANSFORM(R_16s), tarnsFFTInv_PermToR_16s_Sfs),
                    peer("floats", fromPerm));
    // In fixed point the peer has no table, and ours no conversion.
    comparePrepared(orders(1, 3), "fftFixed_16sc", ours(TARN_OWN_TRANSFORM(C_16sc), tarnsFFTFwd_CToC_16sc_Sfs),
                    peer("floats", pairs));
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
