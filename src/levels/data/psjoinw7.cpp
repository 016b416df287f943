// Kernels that join channels of floats into frames of words.
#include "levels/data/psjoin.h"

#include "frame/simd_interleave.h"
#include "frame/simd_round.h"

namespace {

using namespace tarn;

// Limited as floats, so that nothing leaves 32 bits in the conversion. The words' NaN rule makes a NaN the lowest word.
struct ToWord {
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        return roundLimited<Tarn16s>(x);
    }
};

// Samples of a channel that one step takes.
constexpr int step = 8;

using Channels = const Tarn32f* const*;

void joinSamples(Channels pSrc, int nChannels, Tarn16s* pDst, int first, int chanLen)
{
    Tarn16s* frame = pDst + std::ptrdiff_t{first} * nChannels;
    for (int i = first; i < chanLen; ++i, frame += nChannels) {
        for (int c = 0; c < nChannels; ++c) {
            store(frame + c, ToWord{}(loadElement(pSrc[c] + i)));
        }
    }
}

// `count` channels from the given one on, the last of them taken again for the rest.
template <std::size_t N>
TARN_INLINE std::array<Pack<Tarn16s, step>, N> loadWords(Channels pSrc, int count, int i)
{
    std::array<Pack<Tarn16s, step>, N> words;
    for (int c = 0; c < static_cast<int>(N); ++c) {
        words[static_cast<std::size_t>(c)] = ToWord{}(loadPack<step>(pSrc[std::min(c, count - 1)] + i));
    }
    return words;
}

// Frames of N words are woven as frames of the next power of two, and laid down one by one at their true distance: what
// a frame has too much is overwritten by the next one. So a frame has to follow, and the last ones are left to the
// elements.
template <int N>
int joinFrames(Channels pSrc, Tarn16s* pDst, int chanLen)
{
    constexpr int woven = std::bit_ceil(static_cast<unsigned>(N));
    if (chanLen <= step) {
        return 0;
    }
    int i = 0;
    for (; i < chanLen - step; i += step, pDst += N * step) {
        const auto words = weave(loadWords<woven>(pSrc, N, i));
        for (int k = 0; k < woven; ++k) {
            const auto row = words[static_cast<std::size_t>(k)];
            if constexpr (N == woven) {
                store(pDst + k * step, row);
            } else if constexpr (woven == step) {
                store(pDst + k * N, row);
            } else {
                static_assert(2 * woven == step);
                storeHalves(pDst + 2 * k * N, pDst + (2 * k + 1) * N, row);
            }
        }
    }
    joinSamples(pSrc, N, pDst - std::ptrdiff_t{i} * N, i, chanLen);
    return 1;
}

// One vector of words of each frame, from a channel on.
void joinGroup(Channels pSrc, int nChannels, Tarn16s* pDst, int i)
{
    const auto words = weave(loadWords<step>(pSrc, step, i));
    for (int k = 0; k < step; ++k) {
        store(pDst + (std::ptrdiff_t{i} + k) * nChannels, words[static_cast<std::size_t>(k)]);
    }
}

} // namespace

#define TARN_JOIN_KERNEL(N) \
    void ownsJoin_32f16s_C##N(Channels pSrc, Tarn16s* pDst, int chanLen) { joinSamples(pSrc, N, pDst, 0, chanLen); }
#define TARN_JOIN_TWIN(N)                                                    \
    int ownsJoin_32f16s_C##N##_W7(Channels pSrc, Tarn16s* pDst, int chanLen) \
    {                                                                        \
        return joinFrames<N>(pSrc, pDst, chanLen);                           \
    }

void ownsJoin_32f16s_C1(Channels pSrc, Tarn16s* pDst, int chanLen) { walk(pDst, chanLen, ToWord{}, pSrc[0]); }

TARN_JOIN_KERNEL(2)
TARN_JOIN_KERNEL(3)
TARN_JOIN_KERNEL(4)
TARN_JOIN_KERNEL(5)
TARN_JOIN_KERNEL(6)
TARN_JOIN_KERNEL(7)
TARN_JOIN_TWIN(2)
TARN_JOIN_TWIN(3)
TARN_JOIN_TWIN(4)
TARN_JOIN_TWIN(5)
TARN_JOIN_TWIN(6)
TARN_JOIN_TWIN(7)

void ownsJoin_32f16s(Channels pSrc, int nChannels, Tarn16s* pDst, int chanLen)
{
    joinSamples(pSrc, nChannels, pDst, 0, chanLen);
}

// Groups of as many channels as fill a vector; the last group overlaps its neighbour.
int ownsJoin_32f16s_MoreC7_W7(Channels pSrc, int nChannels, Tarn16s* pDst, int chanLen)
{
    if (chanLen < step) {
        return 0;
    }
    int i = 0;
    for (; i <= chanLen - step; i += step) {
        for (std::ptrdiff_t c = 0; c < nChannels; c += step) {
            const auto group = std::min<std::ptrdiff_t>(c, nChannels - step);
            joinGroup(pSrc + group, nChannels, pDst + group, i);
        }
    }
    joinSamples(pSrc, nChannels, pDst, i, chanLen);
    return 1;
}
