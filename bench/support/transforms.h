// Transforms for comparison: ours, of any family, and FFTW, which plans by measurement and picks the widest vectors it
// can get.
#pragma once

#include "tarns.h"

#include "support/compare.h"

#include <map>
#include <memory>

#ifdef TARNS_HAVE_FFTW
#include <fftw3.h>
#endif

namespace tarn::bench {

// -- Ours -------------------------------------------------------------------------------------------------------------

template <class Spec>
struct OwnTransform {
    TarnStatus (*create)(Spec**, int, int, TarnHintAlgorithm);
    TarnStatus (*getBufSize)(const Spec*, int*);
    TarnStatus (*free)(Spec*);
    int (*argument)(int n); // what creation is told of a length

    // The object for a length and a buffer of the size it asks for, kept for all the repetitions.
    std::pair<const Spec*, Tarn8u*> prepare(int n, unsigned bufferSlot) const
    {
        static std::map<int, std::shared_ptr<Spec>> specs;
        auto& spec = specs[n];
        if (!spec) {
            Spec* made = nullptr;
            create(&made, argument(n), TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone);
            spec = {made, free};
        }
        int bytes = 0;
        getBufSize(spec.get(), &bytes);
        return {spec.get(), filledBuffer<Tarn8u>(bufferSlot, bytes + 1, Fill::ones)};
    }
};

#define TARN_TRANSFORM_CALLS(FAMILY, KIND, ARGUMENT)                                                            \
    OwnTransform<Tarns##FAMILY##Spec_##KIND>                                                                    \
    {                                                                                                           \
        tarns##FAMILY##InitAlloc_##KIND, tarns##FAMILY##GetBufSize_##KIND, tarns##FAMILY##Free_##KIND, ARGUMENT \
    }

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

// Transforms of samples, at some scale factor: all others take the same time.
inline constexpr int anyScale = 5;
template <class Src, class Dst, class Spec>
auto ours(OwnTransform<Spec> transform, TarnStatus (*call)(const Src*, Dst*, const Spec*, int, Tarn8u*))
{
    return [=](int n) {
        const auto [spec, work] = transform.prepare(n, 2);
        return [=, spec = spec, work = work, src = filledBuffer<Src>(1, n, Fill::signal),
                dst = filledBuffer<Dst>(0, n + 2, Fill::signal)] { return call(src, dst, spec, anyScale, work); };
    };
}

template <class T, class Spec>
auto ours(OwnTransform<Spec> transform, TarnStatus (*call)(const T*, const T*, T*, T*, const Spec*, int, Tarn8u*))
{
    return [=](int n) {
        const auto [spec, work] = transform.prepare(n, 4);
        return
            [=, spec = spec, work = work, re = filledBuffer<T>(1, n, Fill::signal),
             im = filledBuffer<T>(2, n, Fill::signal), dstRe = filledBuffer<T>(0, n, Fill::signal),
             dstIm = filledBuffer<T>(3, n, Fill::signal)] { return call(re, im, dstRe, dstIm, spec, anyScale, work); };
    };
}

// -- FFTW -------------------------------------------------------------------------------------------------------------

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

} // namespace tarn::bench
