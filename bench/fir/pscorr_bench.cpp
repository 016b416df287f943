// Correlations beside plain loops. Elements are those of each vector.
#include "tarns.h"

#include "pscorr_peer.h"
#include "support/compare.h"

namespace tarn::bench {
namespace {

// `call(x, n, y, n, dst, lags, lowLag)`.
template <class T, class Call>
auto correlation(int lags, int lowLag, int yLen, Call call)
{
    return [=](int n) {
        const T* x = filledBuffer<T>(1, n, Fill::signal);
        const T* y = filledBuffer<T>(2, yLen == 0 ? n : yLen, Fill::signal);
        T* dst = filledBuffer<T>(0, lags, Fill::signal);
        return [=] { return call(x, n, y, yLen == 0 ? n : yLen, dst, lags, lowLag); };
    };
}

template <class T, class Call>
void compareCross(int n, const std::string& name, int lags, int lowLag, int yLen, Call call)
{
    comparePrepared(sizes(n), name, correlation<T>(lags, lowLag, yLen, call),
                    peer("loop", correlation<T>(lags, lowLag, yLen, [](auto... all) { correlationLoop(all...); })));
}

template <class T, class Call>
void compareAuto(const std::string& name, int lags, Call call)
{
    comparePrepared(
        sizes(4096), name,
        correlation<T>(
            lags, 0, 0,
            [=](const T* x, int n, const T*, int, T* dst, int dstLen, int) { return call(x, n, dst, dstLen); }),
        peer("loop", correlation<T>(lags, 0, 0, [](const T* x, int n, const T*, int, T* dst, int dstLen, int) {
                 correlationLoop(x, n, x, n, dst, dstLen, 0);
             })));
}

const Comparison cases = [] {
    const auto auto16s = [](auto... arguments) { return tarnsAutoCorr_16s_Sfs(arguments..., 20); };
    const auto cross16s = [](auto... arguments) { return tarnsCrossCorr_16s_Sfs(arguments..., 20); };
    compareAuto<Tarn16s>("autoCorr_16s_800", 800, auto16s);
    compareAuto<Tarn16s>("autoCorr_16s_1000", 1000, auto16s);
    for (int lags : {1, 10, 100, 800, 4096})
        compareAuto<Tarn32f>("autoCorr_32f_" + std::to_string(lags), lags, tarnsAutoCorr_32f);
    compareAuto<Tarn32f>("autoCorr_NormB_32f_100", 100, tarnsAutoCorr_NormB_32f);
    compareAuto<Tarn64f>("autoCorr_64f_100", 100, tarnsAutoCorr_64f);
    compareAuto<Tarn32fc>("autoCorr_32fc_100", 100, tarnsAutoCorr_32fc);
    compareCross<Tarn32f>(4096, "crossCorr_32f_all", 8191, -4095, 0, tarnsCrossCorr_32f);
    compareCross<Tarn16s>(4096, "crossCorr_16s_all", 8191, -4095, 0, cross16s);
    compareCross<Tarn64f>(4096, "crossCorr_64f_all", 8191, -4095, 0, tarnsCrossCorr_64f);
    compareCross<Tarn32fc>(4096, "crossCorr_32fc_all", 8191, -4095, 0, tarnsCrossCorr_32fc);
    // Directly: triangles alone, and a short vector along a long one from either side.
    compareCross<Tarn32f>(190, "crossCorr_32f_direct", 379, -189, 0, tarnsCrossCorr_32f);
    compareCross<Tarn32f>(16384, "crossCorr_32f_back32", 16384, -16352, 32, tarnsCrossCorr_32f);
    compareCross<Tarn32f>(32, "crossCorr_32f_forw32", 16384, 0, 16384, tarnsCrossCorr_32f);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
