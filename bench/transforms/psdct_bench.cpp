// Cosine transforms beside FFTW's REDFT10 and REDFT01, which are the same but for the scale.
#include "tarns/dct.h"

#include "support/compare.h"

#include <map>
#include <memory>

#ifdef TARNS_HAVE_FFTW
#include <fftw3.h>
#endif

namespace tarn::bench {
namespace {

template <class Spec, class T>
struct OwnTransform {
    TarnStatus (*create)(Spec**, int, TarnHintAlgorithm);
    TarnStatus (*getBufSize)(const Spec*, int*);
    TarnStatus (*free)(Spec*);
    TarnStatus (*run)(const T*, T*, const Spec*, Tarn8u*);
};

#define TARN_OWN_TRANSFORM(DIRECTION, T)                                                                        \
    OwnTransform<TarnsDCT##DIRECTION##Spec_##T, Tarn##T>                                                        \
    {                                                                                                           \
        tarnsDCT##DIRECTION##InitAlloc_##T, tarnsDCT##DIRECTION##GetBufSize_##T, tarnsDCT##DIRECTION##Free_##T, \
            tarnsDCT##DIRECTION##_##T                                                                           \
    }

// The object for a length and a buffer of the size it asks for are kept for all the repetitions.
template <class Spec, class T>
auto ours(OwnTransform<Spec, T> transform, TarnHintAlgorithm hint = tarnAlgHintFast)
{
    return [=](int n) {
        static std::map<std::pair<int, TarnHintAlgorithm>, std::shared_ptr<Spec>> specs;
        auto& spec = specs[{n, hint}];
        if (!spec) {
            Spec* made = nullptr;
            transform.create(&made, n, hint);
            spec = {made, transform.free};
        }
        int bytes = 0;
        transform.getBufSize(spec.get(), &bytes);
        return [run = transform.run, spec = spec.get(), src = filledBuffer<T>(1, n, Fill::signal),
                dst = filledBuffer<T>(0, n, Fill::signal),
                work = filledBuffer<Tarn8u>(2, bytes + 1, Fill::ones)] { return run(src, dst, spec, work); };
    };
}

#ifdef TARNS_HAVE_FFTW
template <class T>
struct Fftw;

#define TARN_FFTW(T, PREFIX)                                                                              \
    template <>                                                                                           \
    struct Fftw<T> {                                                                                      \
        using Plan = PREFIX##_plan;                                                                       \
        static Plan plan(int n, T* src, T* dst, fftw_r2r_kind kind)                                       \
        {                                                                                                 \
            return PREFIX##_plan_r2r_1d(n, src, dst, static_cast<PREFIX##_r2r_kind>(kind), FFTW_MEASURE); \
        }                                                                                                 \
        static void execute(Plan plan, T* src, T* dst) { PREFIX##_execute_r2r(plan, src, dst); }          \
    };
TARN_FFTW(Tarn32f, fftwf)
TARN_FFTW(Tarn64f, fftw)

// Plans outlive the benchmark, since making one takes far longer than all its repetitions, but the buffers do not.
template <class T>
auto fftw(fftw_r2r_kind kind)
{
    return peer("fftw", [kind](int n) {
        T* dst = filledBuffer<T>(0, n, Fill::signal);
        static std::map<std::pair<int, fftw_r2r_kind>, typename Fftw<T>::Plan> plans;
        auto& plan = plans[{n, kind}];
        if (!plan)
            plan = Fftw<T>::plan(n, filledBuffer<T>(1, n, Fill::signal), dst, kind);
        return [plan = plan, src = filledBuffer<T>(1, n, Fill::signal), dst] { Fftw<T>::execute(plan, src, dst); };
    });
}
#endif

const Comparison cases = [] {
    const Sizes lengths = sizes(16, 64, 100, 128, 1000, 1024, 4096);
    const auto fast = ours(TARN_OWN_TRANSFORM(Fwd, 32f));
    comparePrepared(sizes(1024, 4096, 1 << 18), "dctFwdAccurate_32f",
                    ours(TARN_OWN_TRANSFORM(Fwd, 32f), tarnAlgHintAccurate), peer("fast", fast));
#ifdef TARNS_HAVE_FFTW
    comparePrepared(lengths, "dctFwd_32f", fast, fftw<Tarn32f>(FFTW_REDFT10));
    comparePrepared(lengths, "dctInv_32f", ours(TARN_OWN_TRANSFORM(Inv, 32f)), fftw<Tarn32f>(FFTW_REDFT01));
    comparePrepared(lengths, "dctFwd_64f", ours(TARN_OWN_TRANSFORM(Fwd, 64f)), fftw<Tarn64f>(FFTW_REDFT10));
    comparePrepared(lengths, "dctInv_64f", ours(TARN_OWN_TRANSFORM(Inv, 64f)), fftw<Tarn64f>(FFTW_REDFT01));
#endif
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
