// Exponential, logarithms and arctangent beside loops over the C library's.
#include "tarns.h"

#include "psexp_peer.h"
#include "support/compare.h"

#include <memory>
#include <random>
#include <vector>

namespace tarn::bench {
namespace {

/// Arguments from `low` to `high`, which no fill of the shared buffers has.
template <class D, class S, class Call>
auto prepare(double low, double high, Call call)
{
    return [=](int n) {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> values(low, high);
        auto src = std::make_shared<std::vector<S>>();
        for (int i = 0; i < n; ++i)
            src->push_back(static_cast<S>(values(random)));
        auto dst = std::make_shared<std::vector<D>>(src->size());
        return [=] { return call(src->data(), dst->data(), n); };
    };
}

template <class D, class S, class Ours, class Loop>
void compareFrom(const std::string& name, double low, double high, Ours ours, Loop loop)
{
    comparePrepared(sizes(64, 1024, 16384), name, prepare<D, S>(low, high, ours),
                    peer("libm", prepare<D, S>(low, high, loop)));
}

template <class D, class S>
void compareFloats(const std::string& name, double low, double high, TarnStatus (*ours)(const S*, D*, int),
                   void (*loop)(const S*, D*, int))
{
    compareFrom<D, S>(name, low, high, ours, loop);
}

template <class D, class S>
void compareIntegers(const std::string& name, double low, double high, int scaleFactor,
                     TarnStatus (*ours)(const S*, D*, int, int), void (*loop)(const S*, D*, int, int))
{
    compareFrom<D, S>(
        name, low, high, [=](const S* src, D* dst, int n) { return ours(src, dst, n, scaleFactor); },
        [=](const S* src, D* dst, int n) { loop(src, dst, n, scaleFactor); });
}

const Comparison cases = [] {
    compareFloats<Tarn32f, Tarn32f>("exp_32f", -80, 80, tarnsExp_32f, expLoop);
    compareFloats<Tarn64f, Tarn64f>("exp_64f", -700, 700, tarnsExp_64f, expLoop);
    compareFloats<Tarn64f, Tarn32f>("exp_32f64f", -80, 80, tarnsExp_32f64f, expLoop);
    compareFloats<Tarn32f, Tarn32f>("ln_32f", 0.001, 1000, tarnsLn_32f, lnLoop);
    compareFloats<Tarn64f, Tarn64f>("ln_64f", 0.001, 1000, tarnsLn_64f, lnLoop);
    compareFloats<Tarn32f, Tarn64f>("ln_64f32f", 0.001, 1000, tarnsLn_64f32f, lnLoop);
    compareFloats<Tarn32f, Tarn32f>("arctan_32f", -10, 10, tarnsArctan_32f, atanLoop);
    compareFloats<Tarn64f, Tarn64f>("arctan_64f", -10, 10, tarnsArctan_64f, atanLoop);
    compareIntegers<Tarn16s, Tarn16s>("exp_16s_Sfs", 0, 20, 3, tarnsExp_16s_Sfs, expLoop);
    compareIntegers<Tarn16s, Tarn16s>("exp_16s_Sfs_20", 0, 30, 20, tarnsExp_16s_Sfs, expLoop);
    compareIntegers<Tarn32s, Tarn32s>("exp_32s_Sfs", 0, 40, 3, tarnsExp_32s_Sfs, expLoop);
    compareIntegers<Tarn64s, Tarn64s>("exp_64s_Sfs", 0, 44, 0, tarnsExp_64s_Sfs, expLoop);
    compareIntegers<Tarn64s, Tarn64s>("exp_64s_Sfs_1", 0, 44, 1, tarnsExp_64s_Sfs, expLoop);
    compareIntegers<Tarn16s, Tarn16s>("ln_16s_Sfs", 1, 32767, 0, tarnsLn_16s_Sfs, lnLoop);
    compareIntegers<Tarn16s, Tarn16s>("ln_16s_Sfs_2", 1, 32767, 2, tarnsLn_16s_Sfs, lnLoop);
    compareIntegers<Tarn16s, Tarn16s>("ln_16s_Sfs_-1", 1, 32767, -1, tarnsLn_16s_Sfs, lnLoop);
    compareIntegers<Tarn16s, Tarn16s>("ln_16s_Sfs_-10", 1, 32767, -10, tarnsLn_16s_Sfs, lnLoop);
    compareIntegers<Tarn32s, Tarn32s>("ln_32s_Sfs", 1, 2e9, 0, tarnsLn_32s_Sfs, lnLoop);
    compareIntegers<Tarn32s, Tarn32s>("ln_32s_Sfs_-8", 1, 2e9, -8, tarnsLn_32s_Sfs, lnLoop);
    compareIntegers<Tarn16s, Tarn32s>("ln_32s16s_Sfs", 1, 2e9, 0, tarnsLn_32s16s_Sfs, lnLoop);
    compareIntegers<Tarn32s, Tarn32s>("10log10_32s_Sfs", 1, 2e9, 0, tarns10Log10_32s_Sfs, decibelLoop);
    compareIntegers<Tarn32s, Tarn32s>("10log10_32s_Sfs_-8", 1, 2e9, -8, tarns10Log10_32s_Sfs, decibelLoop);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
