// FIR filters beside plain loops, and beside another library's filter by transforms. The number of taps stands in the
// case's name.
#include "tarns.h"

#include "psfir_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_LIQUID
#include <complex>
#include <liquid/liquid.h>
#endif

#include <dlfcn.h>

#include <memory>
#include <vector>

namespace tarn::bench {
namespace {

constexpr int samples = 16384;

void setThreads(int threads)
{
    using SetThreads = void (*)(int);
    if (auto* const set = reinterpret_cast<SetThreads>(dlsym(RTLD_DEFAULT, "omp_set_num_threads")))
        set(threads);
}

// A filter of our own on shared buffers; `make` builds its state, `filter` runs it.
template <class T, class S, class State, class Make, class Free, class Filter>
auto ours(int taps, Make make, Free free, Filter filter, int threads = 1)
{
    return [=](int n) {
        setThreads(threads);
        State* state = nullptr;
        make(&state, filledBuffer<T>(2, taps, Fill::signal), taps);
        std::shared_ptr<State> owner(state, free);
        const S* src = filledBuffer<S>(1, n, Fill::signal);
        S* dst = filledBuffer<S>(0, n, Fill::signal);
        return [=] { return filter(src, dst, n, owner.get()); };
    };
}

template <class T, class S>
auto loop(int taps)
{
    return [=](int n) {
        const T* h = filledBuffer<T>(2, taps, Fill::signal);
        const S* x = filledBuffer<S>(1, n + taps, Fill::signal);
        S* y = filledBuffer<S>(0, n, Fill::signal);
        return [=] { firLoop(h, taps, x, y, n); };
    };
}

auto ours32f(int taps, int threads = 1)
{
    return ours<Tarn32f, Tarn32f, TarnsFIRState_32f>(
        taps, [](auto** state, const Tarn32f* h, int n) { tarnsFIRInitAlloc_32f(state, h, n, nullptr); },
        tarnsFIRFree_32f, tarnsFIR_32f, threads);
}

// In place, where taps that add up to little keep what is filtered again and again from growing.
auto inPlace32fc(int taps, int threads)
{
    return [=](int n) {
        setThreads(threads);
        const std::vector<Tarn32fc> h(static_cast<std::size_t>(taps), Tarn32fc{0.5F / static_cast<float>(taps), 0});
        TarnsFIRState_32fc* state = nullptr;
        tarnsFIRInitAlloc_32fc(&state, h.data(), taps, nullptr);
        std::shared_ptr<TarnsFIRState_32fc> owner(state, tarnsFIRFree_32fc);
        Tarn32fc* data = filledBuffer<Tarn32fc>(0, n, Fill::signal);
        return [=] { return tarnsFIR_32fc_I(data, n, owner.get()); };
    };
}

#ifdef TARNS_HAVE_LIQUID
// Its filter by transforms, in blocks of the size that suits the number of taps.
auto liquid32f(int taps, int block)
{
    return [=](int n) {
        float* h = filledBuffer<float>(2, taps, Fill::signal);
        std::shared_ptr<fftfilt_rrrf_s> filter(
            fftfilt_rrrf_create(h, static_cast<unsigned>(taps), static_cast<unsigned>(block)), fftfilt_rrrf_destroy);
        float* src = filledBuffer<float>(1, n + block, Fill::signal);
        float* dst = filledBuffer<float>(0, n + block, Fill::signal);
        return [=] {
            for (int i = 0; i < n; i += block)
                fftfilt_rrrf_execute(filter.get(), src + i, dst + i);
        };
    };
}
#endif

const Comparison cases = [] {
    for (int taps : {1, 8, 32})
        comparePrepared(sizes(samples), "fir_32f_" + std::to_string(taps), ours32f(taps),
                        peer("loop", loop<Tarn32f, Tarn32f>(taps)));
    for (int taps : {128, 1024}) {
        const std::string name = "fir_32f_" + std::to_string(taps);
        comparePrepared(sizes(samples), name, ours32f(taps), peer("loop", loop<Tarn32f, Tarn32f>(taps)));
#ifdef TARNS_HAVE_LIQUID
        comparePrepared(sizes(samples), name + "_transforms", ours32f(taps),
                        peer("liquid", liquid32f(taps, taps == 128 ? 512 : 2048)));
#endif
    }
    for (int taps : {32, 128})
        comparePrepared(
            sizes(samples), "fir_32f_16s_" + std::to_string(taps),
            ours<Tarn32f, Tarn16s, TarnsFIRState32f_16s>(
                taps, [](auto** state, const Tarn32f* h, int n) { tarnsFIRInitAlloc32f_16s(state, h, n, nullptr); },
                tarnsFIRFree32f_16s,
                [](const Tarn16s* src, Tarn16s* dst, int n, TarnsFIRState32f_16s* state) {
                    return tarnsFIR32f_16s_Sfs(src, dst, n, state, 5);
                }),
            peer("32f", ours32f(taps)));
    comparePrepared(
        sizes(samples), "fir_32s_16s_32",
        ours<Tarn32s, Tarn16s, TarnsFIRState32s_16s>(
            32, [](auto** state, const Tarn32s* h, int n) { tarnsFIRInitAlloc32s_16s(state, h, n, -15, nullptr); },
            tarnsFIRFree32s_16s,
            [](const Tarn16s* src, Tarn16s* dst, int n, TarnsFIRState32s_16s* state) {
                return tarnsFIR32s_16s_Sfs(src, dst, n, state, 0);
            }),
        peer("loop", loop<Tarn32s, Tarn16s>(32)));
    comparePrepared(sizes(samples), "fir_64f_31",
                    ours<Tarn64f, Tarn64f, TarnsFIRState_64f>(
                        31, // the most that are never filtered by transforms
                        [](auto** state, const Tarn64f* h, int n) { tarnsFIRInitAlloc_64f(state, h, n, nullptr); },
                        tarnsFIRFree_64f, tarnsFIR_64f),
                    peer("loop", loop<Tarn64f, Tarn64f>(31)));
    comparePrepared(sizes(samples), "fir_32fc_15",
                    ours<Tarn32fc, Tarn32fc, TarnsFIRState_32fc>(
                        15,
                        [](auto** state, const Tarn32fc* h, int n) { tarnsFIRInitAlloc_32fc(state, h, n, nullptr); },
                        tarnsFIRFree_32fc, tarnsFIR_32fc),
                    peer("loop", loop<Tarn32fc, Tarn32fc>(15)));
    // The default of two threads from the shortest call that may be shared out to the longest.
    for (int taps : {32, 128, 1024})
        compareThreads(sizes(1601, 4096, 16384, 65536, 262144, 1 << 20),
                       "fir_32f_" + std::to_string(taps) + "_2threads", ours32f(taps, 2),
                       peer("1thread", ours32f(taps, 1)));
    // In place a call is one of 4096 samples after the other.
    compareThreads(sizes(1 << 20), "fir_32fc_I_15_2threads", inPlace32fc(15, 2), peer("1thread", inPlace32fc(15, 1)));
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
