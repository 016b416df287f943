// Thresholds beside plain loops. The levels are met by about half of the elements.
#include "tarns/threshold.h"

#include "psthreshold_peer.h"
#include "support/compare.h"

namespace tarn::bench {
namespace {

template <class T, class Level>
void compareLimit(const std::string& name, TarnStatus (*ours)(const T*, T*, int, Level),
                  void (*loop)(const T*, T*, int, Level), Level level)
{
    compare<T, T>(
        name, [=](const T* src, T* dst, int n) { return ours(src, dst, n, level); },
        peer("loop", [=](const T* src, T* dst, int n) { loop(src, dst, n, level); }));
}

const Comparison cases = [] {
    compareLimit<Tarn32f, Tarn32f>("threshold_LT_32f", tarnsThreshold_LT_32f, limitLoop, 0.5F);
    compareLimit<Tarn64f, Tarn64f>("threshold_LT_64f", tarnsThreshold_LT_64f, limitLoop, 0.5);
    compareLimit<Tarn16s, Tarn16s>("threshold_LT_16s", tarnsThreshold_LT_16s, limitLoop, Tarn16s{500});
    compareLimit<Tarn32s, Tarn32s>("threshold_LT_32s", tarnsThreshold_LT_32s, limitLoop, 500);
    compareLimit<Tarn32fc, Tarn32f>("threshold_LT_32fc", tarnsThreshold_LT_32fc, limitLoop, 1.4F);
    compareLimit<Tarn16sc, Tarn16s>("threshold_LT_16sc", tarnsThreshold_LT_16sc, limitLoop, Tarn16s{4000});
    compareLimit<Tarn32f, Tarn32f>("threshold_LTInv_32f", tarnsThreshold_LTInv_32f, invertLoop, 0.75F);
    compare<Tarn32f, Tarn32f>(
        "threshold_LTVal_32f",
        [](const Tarn32f* src, Tarn32f* dst, int n) { return tarnsThreshold_LTVal_32f(src, dst, n, 0.5F, 2.0F); },
        peer("loop", [](const Tarn32f* src, Tarn32f* dst, int n) { replaceLoop(src, dst, n, 0.5F, 2.0F); }));
    return compare<Tarn16s, Tarn16s>(
        "threshold_LTVal_16s",
        [](const Tarn16s* src, Tarn16s* dst, int n) { return tarnsThreshold_LTVal_16s(src, dst, n, 500, 7); },
        peer("loop", [](const Tarn16s* src, Tarn16s* dst, int n) { replaceLoop(src, dst, n, 500, 7); }));
}();

} // namespace
} // namespace tarn::bench
