// Multi-rate filters beside plain polyphase loops and another library's interpolators and decimators, and direct calls
// beside plain loops. The factors and the number of taps stand in the case's name.
#include "tarns.h"

#include "psfirmr_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_LIQUID
#include <complex>
#include <liquid/liquid.h>
#endif

#include <memory>
#include <string>

namespace tarn::bench {
namespace {

constexpr int outputs = 16384;

struct Factors {
    int up, down, taps;

    int iterations() const { return outputs / up; }
    std::string name() const { return std::to_string(up) + "to" + std::to_string(down) + "_" + std::to_string(taps); }
};

template <class T, class S, class State, class Make, class Free, class Filter>
auto ours(Factors f, Make make, Free free, Filter filter)
{
    return [=](int n) {
        State* state = nullptr;
        make(&state, filledBuffer<T>(2, f.taps, Fill::signal), f.taps, f.up, 0, f.down, 0, nullptr);
        std::shared_ptr<State> owner(state, free);
        const S* src = filledBuffer<S>(1, n * f.down, Fill::signal);
        S* dst = filledBuffer<S>(0, n * f.up, Fill::signal);
        return [=] { return filter(src, dst, n, owner.get()); };
    };
}

auto ours32f(Factors f)
{
    return ours<Tarn32f, Tarn32f, TarnsFIRState_32f>(f, tarnsFIRMRInitAlloc_32f, tarnsFIRFree_32f, tarnsFIR_32f);
}

auto ours32f16s(Factors f)
{
    return ours<Tarn32f, Tarn16s, TarnsFIRState32f_16s>(
        f, tarnsFIRMRInitAlloc32f_16s, tarnsFIRFree32f_16s,
        [](const Tarn16s* src, Tarn16s* dst, int n, TarnsFIRState32f_16s* state) {
            return tarnsFIR32f_16s_Sfs(src, dst, n, state, 5);
        });
}

auto loop(Factors f)
{
    return [=](int n) {
        const int len = (f.taps + f.up - 1) / f.up;
        const Tarn32f* phases = filledBuffer<Tarn32f>(2, len * f.up, Fill::signal);
        const Tarn32f* src = filledBuffer<Tarn32f>(1, n * f.down + len, Fill::signal);
        Tarn32f* dst = filledBuffer<Tarn32f>(0, n * f.up, Fill::signal);
        return [=] { rateLoop(phases, len, f.up, f.down, src, dst, n * f.up); };
    };
}

#ifdef TARNS_HAVE_LIQUID
auto liquidDown(Factors f)
{
    return [=](int n) {
        float* h = filledBuffer<float>(2, f.taps, Fill::signal);
        std::shared_ptr<firdecim_rrrf_s> filter(
            firdecim_rrrf_create(static_cast<unsigned>(f.down), h, static_cast<unsigned>(f.taps)),
            firdecim_rrrf_destroy);
        float* src = filledBuffer<float>(1, n * f.down, Fill::signal);
        float* dst = filledBuffer<float>(0, n, Fill::signal);
        return [=] { firdecim_rrrf_execute_block(filter.get(), src, static_cast<unsigned>(n), dst); };
    };
}
auto liquidUp(Factors f)
{
    return [=](int n) {
        float* h = filledBuffer<float>(2, f.taps, Fill::signal);
        std::shared_ptr<firinterp_rrrf_s> filter(
            firinterp_rrrf_create(static_cast<unsigned>(f.up), h, static_cast<unsigned>(f.taps)),
            firinterp_rrrf_destroy);
        float* src = filledBuffer<float>(1, n, Fill::signal);
        float* dst = filledBuffer<float>(0, n * f.up, Fill::signal);
        return [=] { firinterp_rrrf_execute_block(filter.get(), src, static_cast<unsigned>(n), dst); };
    };
}
#endif

// -- Direct calls -----------------------------------------------------------------------------------------------------

template <class T, class S, class Filter>
auto direct(int taps, Filter filter)
{
    return [=](int n) {
        const T* h = filledBuffer<T>(2, taps, Fill::signal);
        const S* src = filledBuffer<S>(1, n, Fill::signal);
        S* dst = filledBuffer<S>(0, n, Fill::signal);
        auto line = std::make_shared<std::vector<S>>(static_cast<std::size_t>(2 * taps));
        auto index = std::make_shared<int>(0);
        return [=] { return filter(src, dst, n, h, taps, line->data(), index.get()); };
    };
}

auto state32s16s(int taps)
{
    return [=](int n) {
        TarnsFIRState32s_16s* state = nullptr;
        tarnsFIRInitAlloc32s_16s(&state, filledBuffer<Tarn32s>(2, taps, Fill::signal), taps, -15, nullptr);
        std::shared_ptr<TarnsFIRState32s_16s> owner(state, tarnsFIRFree32s_16s);
        const Tarn16s* src = filledBuffer<Tarn16s>(1, n, Fill::signal);
        Tarn16s* dst = filledBuffer<Tarn16s>(0, n, Fill::signal);
        return [=] { return tarnsFIR32s_16s_Sfs(src, dst, n, owner.get(), 0); };
    };
}

const Comparison cases = [] {
    const Factors down4{1, 4, 64};
    const Factors up4{4, 1, 64};
    const Factors audio{160, 147, 2560};
    for (const Factors& f : {down4, up4, audio}) {
        comparePrepared(sizes(f.iterations()), "firmr_32f_" + f.name(), ours32f(f), peer("loop", loop(f)));
        comparePrepared(sizes(f.iterations()), "firmr_32f_16s_" + f.name(), ours32f16s(f), peer("32f", ours32f(f)));
    }
#ifdef TARNS_HAVE_LIQUID
    comparePrepared(sizes(down4.iterations()), "firmr_32f_" + down4.name() + "_liquid", ours32f(down4),
                    peer("liquid", liquidDown(down4)));
    comparePrepared(sizes(up4.iterations()), "firmr_32f_" + up4.name() + "_liquid", ours32f(up4),
                    peer("liquid", liquidUp(up4)));
#endif
    // The other two forms.
    for (const Factors& f : {Factors{1, 32, 64}, Factors{7, 32, 96}})
        comparePrepared(sizes(f.iterations()), "firmr_32f_" + f.name(), ours32f(f), peer("loop", loop(f)));

    comparePrepared(sizes(outputs), "firdirect_32f_32", direct<Tarn32f, Tarn32f>(32, tarnsFIR_Direct_32f),
                    peer("loop", direct<Tarn32f, Tarn32f>(32, [](const Tarn32f* x, Tarn32f* y, int n, const Tarn32f* h,
                                                                 int taps, Tarn32f* line, int* index) {
                             directLoop(h, taps, x, y, n, line, index);
                             return tarnStsNoErr;
                         })));
    comparePrepared(sizes(outputs), "firdirect_16s_32",
                    direct<Tarn16s, Tarn16s>(
                        32, [](const Tarn16s* x, Tarn16s* y, int n, const Tarn16s* h, int taps, Tarn16s* line,
                               int* index) { return tarnsFIR_Direct_16s_Sfs(x, y, n, h, taps, line, index, 0); }),
                    peer("32s_16s", state32s16s(32)));
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
