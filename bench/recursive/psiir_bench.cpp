// IIR filters beside plain loops, and beside another library's filter. The order or the number of sections stands in
// the case's name.
#include "tarns.h"

#include "psiir_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_LIQUID
#include <liquid/liquid.h>
#endif

#include <memory>
#include <string>
#include <vector>

namespace tarn::bench {
namespace {

constexpr int samples = 4096;

template <class T>
T one(T)
{
    return 1;
}
Tarn32fc one(Tarn32fc) { return {1, 0}; }

// A decaying filter of an order: b0..bN, then a0..aN, with every pole at 0.3 or so from the origin, and far from where
// looking ahead would amplify rounding.
template <class T>
std::vector<T> orderTaps(int order)
{
    std::vector<T> taps;
    for (int half = 0; half < 2; ++half) {
        T tap = one(T{});
        for (int k = 0; k <= order; ++k) {
            taps.push_back(tap);
            if constexpr (requires { tap.re; })
                tap = {tap.re * -0.4F, tap.re * 0.1F};
            else
                tap = tap * static_cast<T>(-0.4);
        }
    }
    return taps;
}

template <class T>
std::vector<T> sectionTaps(int sections)
{
    std::vector<T> taps;
    for (int s = 0; s < sections; ++s)
        for (double tap : {0.5, 0.4, 0.3, 1.0, -0.5 - 0.1 * s, 0.4})
            taps.push_back(static_cast<T>(tap));
    return taps;
}

// What the loops take: without a0.
template <class T>
std::vector<T> loopTaps(std::vector<T> taps, int count)
{
    for (std::size_t at = static_cast<std::size_t>(count); at < taps.size();
         at += 2 * static_cast<std::size_t>(count) - 1)
        taps.erase(taps.begin() + static_cast<std::ptrdiff_t>(at));
    return taps;
}

template <class T, class S, class State, class Free, class Filter>
auto ours(TarnStatus (*make)(State**, const T*, int, const T*), Free free, std::vector<T> taps, int size, Filter filter)
{
    return [=](int n) {
        State* state = nullptr;
        make(&state, taps.data(), size, nullptr);
        std::shared_ptr<State> owner(state, free);
        const S* src = filledBuffer<S>(1, n, Fill::signal);
        S* dst = filledBuffer<S>(0, n, Fill::signal);
        return [=] { return filter(src, dst, n, owner.get()); };
    };
}

template <class T>
auto loop(int order)
{
    return [=](int n) {
        const auto taps = std::make_shared<std::vector<T>>(loopTaps(orderTaps<T>(order), order + 1));
        const auto line = std::make_shared<std::vector<T>>(static_cast<std::size_t>(order) + 1);
        const T* x = filledBuffer<T>(1, n, Fill::signal);
        T* y = filledBuffer<T>(0, n, Fill::signal);
        return [=] { iirLoop(taps->data(), order, line->data(), x, y, n); };
    };
}

template <class T>
auto cascade(int sections)
{
    return [=](int n) {
        const auto taps = std::make_shared<std::vector<T>>(loopTaps(sectionTaps<T>(sections), 3));
        const auto line = std::make_shared<std::vector<T>>(2 * static_cast<std::size_t>(sections));
        const T* x = filledBuffer<T>(1, n, Fill::signal);
        T* y = filledBuffer<T>(0, n, Fill::signal);
        return [=] { cascadeLoop(taps->data(), sections, line->data(), x, y, n); };
    };
}

#ifdef TARNS_HAVE_LIQUID
auto liquid(int order)
{
    return [=](int n) {
        auto taps = orderTaps<float>(order);
        const auto count = static_cast<unsigned>(order) + 1;
        const std::shared_ptr<iirfilt_rrrf_s> filter(
            iirfilt_rrrf_create(taps.data(), count, taps.data() + count, count), iirfilt_rrrf_destroy);
        float* x = filledBuffer<float>(1, n, Fill::signal);
        float* y = filledBuffer<float>(0, n, Fill::signal);
        return [=] { iirfilt_rrrf_execute_block(filter.get(), x, static_cast<unsigned>(n), y); };
    };
}
#endif

auto ours32f(int order)
{
    return ours<Tarn32f, Tarn32f, TarnsIIRState_32f>(tarnsIIRInitAlloc_32f, tarnsIIRFree_32f, orderTaps<Tarn32f>(order),
                                                     order, tarnsIIR_32f);
}
auto ours32fBiquads(int sections)
{
    return ours<Tarn32f, Tarn32f, TarnsIIRState_32f>(tarnsIIRInitAlloc_BiQuad_32f, tarnsIIRFree_32f,
                                                     sectionTaps<Tarn32f>(sections), sections, tarnsIIR_32f);
}

const Comparison cases = [] {
    for (int sections : {1, 4}) {
        const std::string count = std::to_string(sections);
        comparePrepared(sizes(samples), "iir_32f_biquads_" + count, ours32fBiquads(sections),
                        peer("loop", cascade<Tarn32f>(sections)));
        comparePrepared(sizes(samples), "iir_64f_biquads_" + count,
                        ours<Tarn64f, Tarn64f, TarnsIIRState_64f>(tarnsIIRInitAlloc_BiQuad_64f, tarnsIIRFree_64f,
                                                                  sectionTaps<Tarn64f>(sections), sections,
                                                                  tarnsIIR_64f),
                        peer("loop", cascade<Tarn64f>(sections)));
        comparePrepared(sizes(samples), "iir_32f_16s_biquads_" + count,
                        ours<Tarn32f, Tarn16s, TarnsIIRState32f_16s>(
                            tarnsIIRInitAlloc32f_BiQuad_16s, tarnsIIRFree32f_16s, sectionTaps<Tarn32f>(sections),
                            sections,
                            [](const Tarn16s* src, Tarn16s* dst, int n, TarnsIIRState32f_16s* state) {
                                return tarnsIIR32f_16s_Sfs(src, dst, n, state, 2);
                            }),
                        peer("32f", ours32fBiquads(sections)));
    }
    for (int order : {2, 4, 8}) {
        const std::string count = std::to_string(order);
        comparePrepared(sizes(samples), "iir_32f_order_" + count, ours32f(order), peer("loop", loop<Tarn32f>(order)));
        comparePrepared(sizes(samples), "iir_64f_order_" + count,
                        ours<Tarn64f, Tarn64f, TarnsIIRState_64f>(tarnsIIRInitAlloc_64f, tarnsIIRFree_64f,
                                                                  orderTaps<Tarn64f>(order), order, tarnsIIR_64f),
                        peer("loop", loop<Tarn64f>(order)));
        comparePrepared(sizes(samples), "iir_32fc_order_" + count,
                        ours<Tarn32fc, Tarn32fc, TarnsIIRState_32fc>(tarnsIIRInitAlloc_32fc, tarnsIIRFree_32fc,
                                                                     orderTaps<Tarn32fc>(order), order, tarnsIIR_32fc),
                        peer("loop", loop<Tarn32fc>(order)));
#ifdef TARNS_HAVE_LIQUID
        comparePrepared(sizes(samples), "iir_32f_liquid_" + count, ours32f(order), peer("liquid", liquid(order)));
#endif
    }
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
