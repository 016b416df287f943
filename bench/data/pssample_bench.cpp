// Normalization, joining and sampling beside plain loops.
#include "tarns/sampling.h"

#include "pssample_peer.h"
#include "support/compare.h"

#include <array>

namespace tarn::bench {
namespace {

const Sizes inCache = sizes(64, 1024, 16384);

template <class T>
using SampleFunction = TarnStatus (*)(const T*, int, T*, int*, int, int*);
template <class T>
using SampleLoop = void (*)(const T*, int, T*, int, int);

// `room` elements of the destination for each one of the source.
template <class T>
void compareSampling(const std::string& name, SampleFunction<T> ours, SampleLoop<T> loop, int factor, int room)
{
    const auto buffers = [=](int n) {
        return std::pair<T*, const T*>(filledBuffer<T>(0, room * n, Fill::signal), filledBuffer<T>(1, n, Fill::signal));
    };
    comparePrepared(
        inCache, name + "_" + std::to_string(factor),
        [=](int n) {
            return [=, arrays = buffers(n)] {
                int count;
                int phase = 1;
                return ours(arrays.second, n, arrays.first, &count, factor, &phase);
            };
        },
        peer("loop",
             [=](int n) { return [=, arrays = buffers(n)] { loop(arrays.second, n, arrays.first, factor, 1); }; }));
}

void compareJoin(int nChannels)
{
    using Channels = std::array<const Tarn32f*, 16>;
    const auto channels = [=](int n) {
        Channels pointers{};
        const Tarn32f* samples = filledBuffer<Tarn32f>(1, nChannels * n, Fill::signal);
        for (int c = 0; c < nChannels; ++c)
            pointers[static_cast<std::size_t>(c)] = samples + c * n;
        return pointers;
    };
    const auto destination = [=](int n) { return filledBuffer<Tarn16s>(0, nChannels * n, Fill::signal); };
    comparePrepared(
        sizes(64, 1024), "join_32f16s_C" + std::to_string(nChannels),
        [=](int n) {
            return [=, pointers = channels(n), dst = destination(n)]() mutable {
                return tarnsJoin_32f16s_D2L(pointers.data(), nChannels, n, dst);
            };
        },
        peer("loop", [=](int n) {
            return [=, pointers = channels(n), dst = destination(n)] { joinLoop(pointers.data(), nChannels, n, dst); };
        }));
}

const Comparison cases = [] {
    for (const int factor : {2, 3, 8}) {
        compareSampling<Tarn16s>("sampleDown_16s", tarnsSampleDown_16s, sampleDownLoop, factor, 1);
        compareSampling<Tarn32f>("sampleDown_32f", tarnsSampleDown_32f, sampleDownLoop, factor, 1);
        compareSampling<Tarn16s>("sampleUp_16s", tarnsSampleUp_16s, sampleUpLoop, factor, factor);
        compareSampling<Tarn32f>("sampleUp_32f", tarnsSampleUp_32f, sampleUpLoop, factor, factor);
    }
    for (const int nChannels : {1, 2, 3, 4, 6, 7, 11})
        compareJoin(nChannels);
    compare<Tarn32f, Tarn32f>(
        inCache, "normalize_32f",
        [](const Tarn32f* src, Tarn32f* dst, int n) { return tarnsNormalize_32f(src, dst, n, 0.5F, 3.0F); },
        peer("loop", [](const Tarn32f* src, Tarn32f* dst, int n) { normalizeLoop(src, dst, n, 0.5F, 3.0F); }));
    return compare<Tarn16s, Tarn16s>(
        inCache, "normalize_16s_Sfs",
        [](const Tarn16s* src, Tarn16s* dst, int n) { return tarnsNormalize_16s_Sfs(src, dst, n, 5, 3, 1); },
        peer("loop", [](const Tarn16s* src, Tarn16s* dst, int n) { normalizeLoop(src, dst, n, 5, 3, 1); }));
}();

} // namespace
} // namespace tarn::bench
