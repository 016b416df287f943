// Analytic signals beside one complex transform of the length: they take two, one of them of real samples.
#include "tarns/dft.h"
#include "tarns/hilbert.h"

#include "support/compare.h"

#include <memory>

namespace tarn::bench {
namespace {

template <class T, class Spec>
auto analytic(TarnStatus (*create)(Spec**, int, TarnHintAlgorithm), TarnStatus (*release)(Spec*),
              TarnStatus (*run)(const T*, Tarn32fc*, const Spec*))
{
    return [=](int n) {
        Spec* made = nullptr;
        create(&made, n, tarnAlgHintNone);
        return [run, spec = std::shared_ptr<Spec>(made, release), src = filledBuffer<T>(1, n, Fill::signal),
                dst = filledBuffer<Tarn32fc>(0, n, Fill::signal)] { return run(src, dst, spec.get()); };
    };
}

auto transform()
{
    return peer("dft", [](int n) {
        TarnsDFTSpec_C_32fc* made = nullptr;
        int bytes = 0;
        tarnsDFTInitAlloc_C_32fc(&made, n, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone);
        tarnsDFTGetBufSize_C_32fc(made, &bytes);
        return [spec = std::shared_ptr<TarnsDFTSpec_C_32fc>(made, tarnsDFTFree_C_32fc),
                src = filledBuffer<Tarn32fc>(1, n, Fill::signal), dst = filledBuffer<Tarn32fc>(0, n, Fill::signal),
                work = filledBuffer<Tarn8u>(2, bytes + 1, Fill::ones)] {
            return tarnsDFTFwd_CToC_32fc(src, dst, spec.get(), work);
        };
    });
}

const Comparison cases = [] {
    const Sizes lengths = sizes(100, 1000, 1024);
    comparePrepared(lengths, "hilbert_32f32fc",
                    analytic(tarnsHilbertInitAlloc_32f32fc, tarnsHilbertFree_32f32fc, tarnsHilbert_32f32fc),
                    transform());
    comparePrepared(lengths, "hilbert_16s32fc",
                    analytic(tarnsHilbertInitAlloc_16s32fc, tarnsHilbertFree_16s32fc, tarnsHilbert_16s32fc),
                    transform());
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
