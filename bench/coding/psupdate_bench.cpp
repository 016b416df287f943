// Running averages and pre-emphasis beside plain loops.
#include "tarns.h"

#include "psupdate_peer.h"
#include "support/compare.h"

namespace tarn::bench {
namespace {

using Update = TarnStatus (*)(const Tarn16s*, int, Tarn32s*, int, Tarn16s, TarnHintAlgorithm);
using Loop = void (*)(const Tarn16s*, int, Tarn32s*, int, Tarn16s);

void compareUpdate(const std::string& name, Update update, Loop loop, Tarn16s alpha, TarnHintAlgorithm hint)
{
    compareReduction<Tarn32s, Tarn16s>(
        sizes(64, 1024, 16384), name,
        [=](const Tarn16s* x, int n, Tarn32s* y) { return update(x, n, y, 2, alpha, hint); },
        peer("loop", [=](const Tarn16s* x, int n, Tarn32s* y) { loop(x, n, y, 2, alpha); }));
}

const Comparison updates = [] {
    compareUpdate("updateLinear_Fast", tarnsUpdateLinear_16s32s_I, linearLoop_32f, -1, tarnAlgHintFast);
    compareUpdate("updateLinear_Fast_5", tarnsUpdateLinear_16s32s_I, linearLoop_32f, 5, tarnAlgHintFast);
    compareUpdate("updateLinear_Accur", tarnsUpdateLinear_16s32s_I, linearLoop_64f, -1, tarnAlgHintAccurate);
    compareUpdate("updateLinear_Accur_100", tarnsUpdateLinear_16s32s_I, linearLoop_64f, 100, tarnAlgHintAccurate);
    compareUpdate("updateLinear_1000", tarnsUpdateLinear_16s32s_I, linearLoop_64f, 1000, tarnAlgHintAccurate);
    compareUpdate("updatePower_Fast", tarnsUpdatePower_16s32s_I, powerLoop_32f, -1, tarnAlgHintFast);
    compareUpdate("updatePower_Accur", tarnsUpdatePower_16s32s_I, powerLoop_64f, -1, tarnAlgHintAccurate);
    compareUpdate("updatePower_Accur_20", tarnsUpdatePower_16s32s_I, powerLoop_64f, 20, tarnAlgHintAccurate);
    return Comparison{};
}();

// A coefficient of 0 keeps floats that are filtered again and again what they are.
const Comparison emphasis = [] {
    compareInPlace<Tarn32f>(
        "preemphasize_32f", [](Tarn32f* x, int n) { return tarnsPreemphasize_32f(x, n, 0.0f); },
        peer("loop", [](Tarn32f* x, int n) { emphasisLoop(x, n, 0.0f); }));
    compareInPlace<Tarn16s>(
        "preemphasize_16s", [](Tarn16s* x, int n) { return tarnsPreemphasize_16s(x, n, 0.5f); },
        peer("loop", [](Tarn16s* x, int n) { emphasisLoop(x, n, 0.5f); }));
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
