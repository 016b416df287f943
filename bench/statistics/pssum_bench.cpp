// Reductions beside plain loops, beside each other over the same bytes, and beside VOLK and OpenBLAS where they are.
#include "tarns.h"

#include "pssum_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_VOLK
#include <volk/volk.h>
#endif
#ifdef TARNS_HAVE_OPENBLAS
#include <cblas.h>
#endif

#include <array>

namespace tarn::bench {
namespace {

// The fast sum over the bytes of n elements of T: what reading them takes.
template <class T>
auto sumOfTheSameBytes()
{
    return peer("sum_32f", [](int n) {
        const int floats = n * static_cast<int>(sizeof(T)) / static_cast<int>(sizeof(Tarn32f));
        const auto* x = filledBuffer<Tarn32f>(5, floats, Fill::signal);
        return [=] {
            Tarn32f sum = 0;
            tarnsSum_32f(x, floats, &sum, tarnAlgHintFast);
            return sum;
        };
    });
}

template <class T, class R, class Call>
auto prepared(Call call)
{
    return [call](int n) {
        const auto* x = filledBuffer<T>(1, n, Fill::signal);
        return [=] {
            std::array<R, 2> result{};
            call(x, n, result.data());
            return result[0];
        };
    };
}

template <class T>
void compareExtremes(const std::string& name, TarnStatus (*minMax)(const T*, int, T*, T*))
{
    comparePrepared(defaultSizes, name, prepared<T, T>([=](const T* x, int n, T* r) { return minMax(x, n, r, r + 1); }),
                    peer("loop", prepared<T, T>([](const T* x, int n, T* r) { extremesLoop(x, n, r); })),
                    sumOfTheSameBytes<T>());
}

const Comparison sums = [] {
    const auto fast = [](const Tarn32f* x, int n, Tarn32f* r) { return tarnsSum_32f(x, n, r, tarnAlgHintFast); };
    compareReduction<Tarn32f, Tarn32f>("sum_32f_Fast", fast,
                                       peer("loop", [](const Tarn32f* x, int n, Tarn32f* r) { sumLoop(x, n, r); }));
    compareReduction<Tarn32f, Tarn32f>(
        "sum_32f_Accur", [](const Tarn32f* x, int n, Tarn32f* r) { return tarnsSum_32f(x, n, r, tarnAlgHintAccurate); },
        peer("loop", sumExtendedLoop));
    compareReduction<Tarn32s, Tarn16s>(
        "sum_16s32s_Sfs", [](const Tarn16s* x, int n, Tarn32s* r) { return tarnsSum_16s32s_Sfs(x, n, r, 0); },
        peer("loop", [](const Tarn16s* x, int n, Tarn32s* r) { sumLoop(x, n, r); }));
    compareReduction<Tarn32s, Tarn32s>(
        "sum_32s_Sfs", [](const Tarn32s* x, int n, Tarn32s* r) { return tarnsSum_32s_Sfs(x, n, r, 0); },
        peer("loop", [](const Tarn32s* x, int n, Tarn32s* r) { sumLoop(x, n, r); }));
    compareReduction<Tarn32f, Tarn32f>(
        "stdDev_32f_Fast",
        [](const Tarn32f* x, int n, Tarn32f* r) { return tarnsStdDev_32f(x, n, r, tarnAlgHintFast); },
        peer("loop", deviationLoop), peer("sum_32f", fast));
    const auto positive = [](int n) {
        auto* x = filledBuffer<Tarn32f>(1, n, Fill::signal);
        for (int i = 0; i < n; ++i)
            x[i] = x[i] < 0 ? -x[i] : x[i];
        return x;
    };
    comparePrepared(
        defaultSizes, "sumLn_32f",
        [=](int n) {
            return [x = positive(n), n] {
                Tarn32f sum = 0;
                tarnsSumLn_32f(x, n, &sum);
                return sum;
            };
        },
        peer("logf", [=](int n) {
            return [x = positive(n), n] {
                Tarn32f sum = 0;
                logLoop(x, n, &sum);
                return sum;
            };
        }));
    return Comparison{};
}();

const Comparison extremes = [] {
    compareExtremes<Tarn8u>("minMax_8u", tarnsMinMax_8u);
    compareExtremes<Tarn16u>("minMax_16u", tarnsMinMax_16u);
    compareExtremes<Tarn16s>("minMax_16s", tarnsMinMax_16s);
    compareExtremes<Tarn32u>("minMax_32u", tarnsMinMax_32u);
    compareExtremes<Tarn32s>("minMax_32s", tarnsMinMax_32s);
    compareExtremes<Tarn32f>("minMax_32f", tarnsMinMax_32f);
    compareExtremes<Tarn64f>("minMax_64f", tarnsMinMax_64f);
    return Comparison{};
}();

#ifdef TARNS_HAVE_VOLK
// The kernel of our width, whatever the processor could do beyond it.
auto volkIndex()
{
    return peer("volk", prepared<Tarn32f, uint32_t>([](const Tarn32f* x, int n, uint32_t* r) {
                    volk_32f_index_max_32u_manual(r, const_cast<float*>(x), static_cast<uint32_t>(n), "a_sse");
                }));
}
#else
auto volkIndex() { return sumOfTheSameBytes<Tarn32f>(); }
#endif

const Comparison indices = [] {
    comparePrepared(defaultSizes, "maxIndx_32f", prepared<Tarn32f, Tarn32f>([](const Tarn32f* x, int n, Tarn32f* r) {
                        int index = 0;
                        tarnsMaxIndx_32f(x, n, r, &index);
                        benchmark::DoNotOptimize(index);
                    }),
                    volkIndex());
    comparePrepared(defaultSizes, "minIndx_16s", prepared<Tarn16s, Tarn16s>([](const Tarn16s* x, int n, Tarn16s* r) {
                        int index = 0;
                        tarnsMinIndx_16s(x, n, r, &index);
                        benchmark::DoNotOptimize(index);
                    }),
                    peer("loop", prepared<Tarn16s, int>(smallestIndexLoop)), volkIndex());
    return Comparison{};
}();

const Comparison products = [] {
    const auto dot = peer("loop", [](const auto* x, const auto* y, int n, auto* r) { dotLoop(x, y, n, r); });
    compareReduction<Tarn32f, Tarn32f, Tarn32f>("dotProd_32f", tarnsDotProd_32f, dot
#ifdef TARNS_HAVE_OPENBLAS
                                                ,
                                                peer("cblas_sdot", [](const Tarn32f* x, const Tarn32f* y, int n,
                                                                      Tarn32f* r) { *r = cblas_sdot(n, x, 1, y, 1); })
#endif
    );
    compareReduction<Tarn64f, Tarn64f, Tarn64f>("dotProd_64f", tarnsDotProd_64f, dot);
    compareReduction<Tarn64s, Tarn16s, Tarn16s>("dotProd_16s64s", tarnsDotProd_16s64s, dot);
    compareReduction<Tarn16s, Tarn16s, Tarn16s>(
        "dotProd_16s_Sfs",
        [](const Tarn16s* x, const Tarn16s* y, int n, Tarn16s* r) { return tarnsDotProd_16s_Sfs(x, y, n, r, 4); },
        peer("loop", dotScaledLoop));
    // Norms beside a dot product of as many elements.
    const auto dotOf = peer("dotProd_32f", [](const Tarn32f* x, int n, Tarn32f* r) {
        static const Tarn32f* const other = filledBuffer<Tarn32f>(6, 4 << 20, Fill::signal);
        return tarnsDotProd_32f(x, other, n, r);
    });
    compareReduction<Tarn32f, Tarn32f>(
        "norm_L2_32f", tarnsNorm_L2_32f, peer("loop", normLoop), dotOf
#ifdef TARNS_HAVE_OPENBLAS
        ,
        peer("cblas_snrm2", [](const Tarn32f* x, int n, Tarn32f* r) { *r = cblas_snrm2(n, x, 1); })
#endif
    );
    compareReduction<Tarn32f, Tarn32f>("norm_Inf_32f", tarnsNorm_Inf_32f, peer("loop", largestLoop), dotOf);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
