// Transforms of power-of-two lengths beside FFTW, which plans by measurement and picks the widest vectors it can get.
#include "tarns.h"

#include "support/compare.h"

#include <bit>
#include <map>
#include <memory>

#ifdef TARNS_HAVE_FFTW
#include <fftw3.h>
#endif

namespace tarn::bench {
namespace {

// The lengths of the orders from `first` to `last`, and of those behind.
template <class... Order>
Sizes orders(int first, int last, Order... further)
{
    Sizes lengths;
    for (int order = first; order <= last; ++order)
        lengths.push_back(1 << order);
    (lengths.push_back(1 << further), ...);
    return lengths;
}

int orderOf(int n) { return std::countr_zero(static_cast<unsigned>(n)); }

// -- Ours
// --------------------------------------------------------------------------------------------------------------

template <class Spec>
struct OwnTransform {
    TarnStatus (*create)(Spec**, int, int, TarnHintAlgorithm);
    TarnStatus (*getBufSize)(const Spec*, int*);
    TarnStatus (*free)(Spec*);

    // The object for a length and a buffer of the size it asks for, kept for all the repetitions.
    std::pair<const Spec*, Tarn8u*> prepare(int n, unsigned bufferSlot) const
    {
        static std::map<int, std::shared_ptr<Spec>> specs;
        auto& spec = specs[n];
        if (!spec) {
            Spec* made = nullptr;
            create(&made, orderOf(n), TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone);
            spec = {made, free};
        }
        int bytes = 0;
        getBufSize(spec.get(), &bytes);
        return {spec.get(), filledBuffer<Tarn8u>(bufferSlot, bytes + 1, Fill::ones)};
    }
};

#define TARN_OWN_TRANSFORM(KIND) \
    OwnTransform<TarnsFFTSpec_##KIND> { tarnsFFTInitAlloc_##KIND, tarnsFFTGetBufSize_##KIND, tarnsFFTFree_##KIND }

template <class Src, class Dst, class Spec>
auto ours(OwnTransform<Spec> transform, TarnStatus (*call)(const Src*, Dst*, const Spec*, Tarn8u*))
{
    return [=](int n) {
        const auto [spec, work] = transform.prepare(n, 2);
        return [=, spec = spec, work = work, src = filledBuffer<Src>(1, n, Fill::signal),
                dst = filledBuffer<Dst>(0, n + 2, Fill::signal)] { return call(src, dst, spec, work); };
    };
}

template <class T, class Spec>
auto ours(OwnTransform<Spec> transform, TarnStatus (*call)(const T*, const T*, T*, T*, const Spec*, Tarn8u*))
{
    return [=](int n) {
        const auto [spec, work] = transform.prepare(n, 4);
        return [=, spec = spec, work = work, re = filledBuffer<T>(1, n, Fill::signal),
                im = filledBuffer<T>(2, n, Fill::signal), dstRe = filledBuffer<T>(0, n, Fill::signal),
                dstIm = filledBuffer<T>(3, n, Fill::signal)] { return call(re, im, dstRe, dstIm, spec, work); };
    };
}

// -- FFTW
// --------------------------------------------------------------------------------------------------------------

#ifdef TARNS_HAVE_FFTW
template <class T>
struct Fftw;

#define TARN_FFTW(T, PREFIX)                                                                                           \
    template <>                                                                                                        \
    struct Fftw<T> {                                                                                                   \
        using Plan = PREFIX##_plan;                                                                                    \
        using Pair = PREFIX##_complex;                                                                                 \
        static Plan planComplex(int n, Pair* src, Pair* dst)                                                           \
        {                                                                                                              \
            return PREFIX##_plan_dft_1d(n, src, dst, FFTW_FORWARD, FFTW_MEASURE);                                      \
        }                                                                                                              \
        static Plan planReal(int n, T* src, Pair* dst) { return PREFIX##_plan_dft_r2c_1d(n, src, dst, FFTW_MEASURE); } \
        static void execute(Plan plan, Pair* src, Pair* dst) { PREFIX##_execute_dft(plan, src, dst); }                 \
        static void execute(Plan plan, T* src, Pair* dst) { PREFIX##_execute_dft_r2c(plan, src, dst); }                \
    };
TARN_FFTW(Tarn32f, fftwf)
TARN_FFTW(Tarn64f, fftw)

// Plans outlive the benchmark, since making one takes far longer than all its repetitions, but the buffers do not.
template <class T, bool real>
auto fftw()
{
    return peer("fftw", [](int n) {
        using F = Fftw<T>;
        using Src = std::conditional_t<real, T, typename F::Pair>;
        const auto source = [n] { return reinterpret_cast<Src*>(filledBuffer<T>(1, 2 * n, Fill::signal)); };
        auto* dst = reinterpret_cast<typename F::Pair*>(filledBuffer<T>(0, 2 * n + 2, Fill::signal));
        static std::map<int, typename F::Plan> plans;
        auto& plan = plans[n];
        if (!plan) {
            if constexpr (real)
                plan = F::planReal(n, source(), dst);
            else
                plan = F::planComplex(n, source(), dst);
        }
        return [plan = plan, src = source(), dst] { F::execute(plan, src, dst); };
    });
}
#endif

const Comparison cases = [] {
    const auto pairs32 = ours(TARN_OWN_TRANSFORM(C_32fc), tarnsFFTFwd_CToC_32fc);
    const auto parts32 = ours(TARN_OWN_TRANSFORM(C_32f), tarnsFFTFwd_CToC_32f);
    const auto pairs64 = ours(TARN_OWN_TRANSFORM(C_64fc), tarnsFFTFwd_CToC_64fc);
    const auto parts64 = ours(TARN_OWN_TRANSFORM(C_64f), tarnsFFTFwd_CToC_64f);
    comparePrepared(orders(4, 16, 17, 18), "fftParts_32f", parts32, peer("pairs", pairs32));
    comparePrepared(orders(4, 15, 18), "fftParts_64f", parts64, peer("pairs", pairs64));
    comparePrepared(
        sizes(1 << 20), "fftInit_32fc",
        [](int n) {
            return [n] {
                TarnsFFTSpec_C_32fc* spec = nullptr;
                tarnsFFTInitAlloc_C_32fc(&spec, orderOf(n), TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone);
                tarnsFFTFree_C_32fc(spec);
            };
        },
        peer("20-transforms", [=](int n) {
            return [call = pairs32(n)] {
                for (int i = 0; i < 20; ++i)
                    call();
            };
        }));
#ifdef TARNS_HAVE_FFTW
    comparePrepared(orders(4, 16, 18, 20), "fft_32fc", pairs32, fftw<Tarn32f, false>());
    comparePrepared(orders(6, 18), "fftReal_32f", ours(TARN_OWN_TRANSFORM(R_32f), tarnsFFTFwd_RToCCS_32f),
                    fftw<Tarn32f, true>());
    comparePrepared(orders(4, 14, 16, 18), "fft_64fc", pairs64, fftw<Tarn64f, false>());
    comparePrepared(orders(6, 14, 16, 18), "fftReal_64f", ours(TARN_OWN_TRANSFORM(R_64f), tarnsFFTFwd_RToCCS_64f),
                    fftw<Tarn64f, true>());
#endif
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
