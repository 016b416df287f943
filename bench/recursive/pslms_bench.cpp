// Adaptive filters beside plain loops. The number of taps stands in the case's name, and of fixed-point filters the
// distance of the samples that they meet.
#include "tarns.h"

#include "pslms_peer.h"
#include "support/compare.h"

#include <memory>
#include <string>
#include <vector>

namespace tarn::bench {
namespace {

constexpr int samples = 4096;

Tarn32f stepFor(int tapsLen) { return 0.02F / static_cast<Tarn32f>(tapsLen); }

template <class S, class State>
auto block(int tapsLen, TarnStatus (*make)(State**, const Tarn32f*, int, const S*, int), TarnStatus (*free)(State*),
           TarnStatus (*filter)(const S*, const S*, S*, int, Tarn32f, State*), Tarn32f mu)
{
    return [=](int n) {
        State* state = nullptr;
        make(&state, nullptr, tapsLen, nullptr, 0);
        const std::shared_ptr<State> owner(state, free);
        const S* src = filledBuffer<S>(1, n, Fill::signal);
        const S* ref = filledBuffer<S>(2, n, Fill::signal);
        S* dst = filledBuffer<S>(0, n, Fill::signal);
        return [=] { return filter(src, ref, dst, n, mu, owner.get()); };
    };
}
auto ours32f(int tapsLen)
{
    return block<Tarn32f, TarnsFIRLMSState_32f>(tapsLen, tarnsFIRLMSInitAlloc_32f, tarnsFIRLMSFree_32f, tarnsFIRLMS_32f,
                                                stepFor(tapsLen));
}
auto ours32f16s(int tapsLen)
{
    // Samples are 2^15 times those of floats, and taps 2^16.
    return block<Tarn16s, TarnsFIRLMSState32f_16s>(tapsLen, tarnsFIRLMSInitAlloc32f_16s, tarnsFIRLMSFree32f_16s,
                                                   tarnsFIRLMS32f_16s, 4 * stepFor(tapsLen));
}

auto loop32f(int tapsLen)
{
    return [=](int n) {
        const auto taps = std::make_shared<std::vector<Tarn32f>>(tapsLen);
        const Tarn32f* x = filledBuffer<Tarn32f>(1, n + tapsLen, Fill::signal);
        const Tarn32f* ref = filledBuffer<Tarn32f>(2, n, Fill::signal);
        Tarn32f* y = filledBuffer<Tarn32f>(0, n, Fill::signal);
        return [=] { lmsLoop(x, ref, y, n, stepFor(tapsLen), taps->data(), tapsLen); };
    };
}

// Filters of the caller's, a sample a call.
template <class T, class S, class M, class One>
auto single(int tapsLen, M mu, One one)
{
    return [=](int n) {
        const auto taps = std::make_shared<std::vector<T>>(tapsLen);
        const auto line = std::make_shared<std::vector<S>>(2 * tapsLen);
        const auto index = std::make_shared<int>(0);
        const S* x = filledBuffer<S>(1, n, Fill::signal);
        const S* ref = filledBuffer<S>(2, n, Fill::signal);
        S* y = filledBuffer<S>(0, n, Fill::signal);
        return [=] {
            for (int i = 0; i < n; ++i)
                one(x[i], ref[i], y + i, taps->data(), tapsLen, mu, line->data(), index.get());
        };
    };
}

auto ratesOurs(int tapsLen, int step)
{
    return [=](int n) {
        TarnsFIRLMSMRState32s_16s* state = nullptr;
        tarnsFIRLMSMRInitAlloc32s_16s(&state, nullptr, tapsLen, nullptr, 0, step, 0, 64);
        const std::shared_ptr<TarnsFIRLMSMRState32s_16s> owner(state, tarnsFIRLMSMRFree32s_16s);
        const Tarn16s* x = filledBuffer<Tarn16s>(1, n, Fill::signal);
        const Tarn16s* ref = filledBuffer<Tarn16s>(2, n, Fill::signal);
        return [=] {
            for (int i = 0; i < n; ++i) {
                Tarn32s y = 0;
                tarnsFIRLMSMROneVal32s_16s(x[i], &y, owner.get());
                tarnsFIRLMSMRUpdateTaps32s_16s(ref[i] - (y >> 15), owner.get());
            }
        };
    };
}
auto ratesLoop(int tapsLen, int step)
{
    return [=](int n) {
        const auto taps = std::make_shared<std::vector<Tarn32s>>(tapsLen);
        const Tarn16s* x = filledBuffer<Tarn16s>(1, n + tapsLen * step, Fill::signal);
        const Tarn16s* ref = filledBuffer<Tarn16s>(2, n, Fill::signal);
        return [=] {
            for (int i = 0; i < n; ++i) {
                const Tarn32s y = lmsLoopOutput(taps->data(), x + i, tapsLen, step);
                lmsLoopUpdate(taps->data(), x + i, tapsLen, step, ((ref[i] - (y >> 15)) * 64 + 16384) >> 15);
            }
        };
    };
}

const Comparison cases = [] {
    for (int tapsLen : {8, 32, 79, 80, 128, 512}) {
        const std::string count = std::to_string(tapsLen);
        comparePrepared(sizes(samples), "lms_32f_" + count, ours32f(tapsLen), peer("loop", loop32f(tapsLen)));
    }
    for (int tapsLen : {32, 128}) {
        const std::string count = std::to_string(tapsLen);
        comparePrepared(sizes(samples), "lms_32f_16s_" + count, ours32f16s(tapsLen), peer("32f", ours32f(tapsLen)));
        comparePrepared(sizes(samples), "lms_one_32f_" + count,
                        single<Tarn32f, Tarn32f>(tapsLen, stepFor(tapsLen), tarnsFIRLMSOne_Direct_32f),
                        peer("loop", loop32f(tapsLen)));
        comparePrepared(sizes(samples), "lms_one_Q15_" + count,
                        single<Tarn32s, Tarn16s>(tapsLen, 1000, tarnsFIRLMSOne_DirectQ15_16s),
                        peer("loop", single<Tarn32s, Tarn16s>(tapsLen, 1000, lmsLoopQ15)));
    }
    for (int step : {1, 2, 3}) {
        const std::string name = "lms_rates_32_step_" + std::to_string(step);
        comparePrepared(sizes(samples), name, ratesOurs(32, step), peer("loop", ratesLoop(32, step)));
    }
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
