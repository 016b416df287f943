// Front end of joining channels.
#include "tarns/sampling.h"

#include "frame/frontend.h"
#include "levels/data/psjoin.h"

using namespace tarn;

namespace {

struct JoinKernels {
    int (*vector)(const Tarn32f* const*, Tarn16s*, int);
    void (*plain)(const Tarn32f* const*, Tarn16s*, int);
};

// By the number of channels less two.
constexpr JoinKernels joinKernels[] = {
    {ownsJoin_32f16s_C2_W7, ownsJoin_32f16s_C2}, {ownsJoin_32f16s_C3_W7, ownsJoin_32f16s_C3},
    {ownsJoin_32f16s_C4_W7, ownsJoin_32f16s_C4}, {ownsJoin_32f16s_C5_W7, ownsJoin_32f16s_C5},
    {ownsJoin_32f16s_C6_W7, ownsJoin_32f16s_C6}, {ownsJoin_32f16s_C7_W7, ownsJoin_32f16s_C7}};

TarnStatus checkJoin(const Tarn32f* const* pSrc, int nChannels, int chanLen, const Tarn16s* pDst)
{
    if (pDst == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (nChannels < 1 || chanLen < 1) {
        return tarnStsSizeErr;
    }
    if (pSrc == nullptr) {
        return tarnStsNullPtrErr;
    }
    for (int c = 0; c < nChannels; ++c) {
        if (pSrc[c] == nullptr) {
            return tarnStsNullPtrErr;
        }
    }
    return tarnStsNoErr;
}

} // namespace

TarnStatus tarnsJoin_32f16s_D2L(const Tarn32f** pSrc, int nChannels, int chanLen, Tarn16s* pDst)
{
    if (const TarnStatus status = checkJoin(pSrc, nChannels, chanLen, pDst)) {
        return status;
    }
    if (nChannels == 1) {
        ownsJoin_32f16s_C1(pSrc, pDst, chanLen);
    } else if (nChannels <= 7) {
        const JoinKernels& kernels = joinKernels[nChannels - 2];
        if (!kernels.vector(pSrc, pDst, chanLen)) {
            kernels.plain(pSrc, pDst, chanLen);
        }
    } else if (!ownsJoin_32f16s_MoreC7_W7(pSrc, nChannels, pDst, chanLen)) {
        ownsJoin_32f16s(pSrc, nChannels, pDst, chanLen);
    }
    return tarnStsNoErr;
}
