// The conversions beside plain loops and, where it has them, VOLK held to our width.
#include "tarns.h"

#include "psconvert_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace tarn::bench {
namespace {

// A function and the plain loop with the same further arguments.
template <class D, class S, class... Further>
Comparison compareLoop(const std::string& name, TarnStatus (*convert)(const S*, D*, int, Further...),
                       void (*loop)(const S*, D*, int, Further...), std::type_identity_t<Further>... further)
{
    return compare<D, S>(
        name, [=](const S* src, D* dst, int n) { return convert(src, dst, n, further...); },
        peer("loop", [=](const S* src, D* dst, int n) { loop(src, dst, n, further...); }));
}

// The same where a sample of one side is three bytes.
template <class D, class S, class... Further>
Comparison comparePacked(const std::string& name, TarnStatus (*convert)(const S*, D*, int, Further...),
                         void (*loop)(const S*, D*, int, Further...), std::type_identity_t<Further>... further)
{
    const auto onBuffers = [=](auto function) {
        return [=](int n) {
            const S* src = filledBuffer<S>(1, sizeof(S) == 1 ? 3 * n : n, Fill::signal);
            D* dst = filledBuffer<D>(0, sizeof(D) == 1 ? 3 * n : n, Fill::signal);
            return [=] { return function(src, dst, n, further...); };
        };
    };
    return comparePrepared(defaultSizes, name, onBuffers(convert), peer("loop", onBuffers(loop)));
}

template <class D, class S>
Comparison compareNearest(const std::string& name, TarnStatus (*convert)(const S*, D*, int, int, int),
                          void (*loop)(const S*, D*, int, int), int s)
{
    return compare<D, S>(
        name, [=](const S* src, D* dst, int n) { return convert(src, dst, n, tarnRndNear, s); },
        peer("loop", [=](const S* src, D* dst, int n) { loop(src, dst, n, s); }));
}

const Comparison simple = [] {
    compareLoop<Tarn32f, Tarn16s>("convert_16s32f", tarnsConvert_16s32f, convertLoop);
    compareLoop<Tarn32f, Tarn8u>("convert_8u32f", tarnsConvert_8u32f, convertLoop);
    compareLoop<Tarn32f, Tarn32s>("convert_32s32f", tarnsConvert_32s32f, convertLoop);
    compareLoop<Tarn32s, Tarn16s>("convert_16s32s", tarnsConvert_16s32s, convertLoop);
    compareLoop<Tarn32f, Tarn64f>("convert_64f32f", tarnsConvert_64f32f, convertLoop);
    compareLoop<Tarn16s, Tarn32s>("convert_32s16s_Sfs0", tarnsConvert_32s16s_Sfs, narrowLoop, 0);
    return compareLoop<Tarn16s, Tarn32s>("convert_32s16s_Sfs3", tarnsConvert_32s16s_Sfs, narrowLoop, 3);
}();

const Comparison rounding = [] {
    compareNearest<Tarn16s, Tarn32f>("convert_32f16s_Sfs0", tarnsConvert_32f16s_Sfs, roundLoop, 0);
    compareNearest<Tarn16s, Tarn32f>("convert_32f16s_Sfs-9", tarnsConvert_32f16s_Sfs, roundLoop, -9);
    compareNearest<Tarn8u, Tarn32f>("convert_32f8u_Sfs0", tarnsConvert_32f8u_Sfs, roundLoop, 0);
    compareNearest<Tarn32s, Tarn32f>("convert_32f32s_Sfs-9", tarnsConvert_32f32s_Sfs, roundLoop, -9);
    return compareNearest<Tarn32s, Tarn64f>("convert_64f32s_Sfs-9", tarnsConvert_64f32s_Sfs, roundLoop, -9);
}();

const Comparison bytes = [] {
    comparePacked<Tarn32s, Tarn8u>("convert_24s32s", tarnsConvert_24s32s, from24Loop);
    comparePacked<Tarn32f, Tarn8u>("convert_24s32f", tarnsConvert_24s32f, from24Loop);
    comparePacked<Tarn8u, Tarn32s>("convert_32s24s_Sfs0", tarnsConvert_32s24s_Sfs, to24Loop, 0);
    comparePacked<Tarn8u, Tarn32s>("convert_32s24s_Sfs8", tarnsConvert_32s24s_Sfs, to24Loop, 8);
    comparePacked<Tarn8u, Tarn32s>("convert_32s24s_Sfs-3", tarnsConvert_32s24s_Sfs, to24Loop, -3);
    comparePacked<Tarn8u, Tarn32f>("convert_32f24s_Sfs0", tarnsConvert_32f24s_Sfs, to24Loop, 0);
    return comparePacked<Tarn8u, Tarn32f>("convert_32f24s_Sfs-9", tarnsConvert_32f24s_Sfs, to24Loop, -9);
}();

const Comparison halves = [] {
    compareLoop<Tarn32f, Tarn16s>("convert_16f32f", tarnsConvert_16f32f, fromHalfLoop);
    compare<Tarn16s, Tarn32f>(
        "convert_32f16f",
        [](const Tarn32f* src, Tarn16s* dst, int n) { return tarnsConvert_32f16f(src, dst, n, tarnRndNear); },
        peer("loop", [](const Tarn32f* src, Tarn16s* dst, int n) { toHalfLoop(src, dst, n); }));
    compare<Tarn16s, Tarn16s>(
        "convert_16s16f",
        [](const Tarn16s* src, Tarn16s* dst, int n) { return tarnsConvert_16s16f(src, dst, n, tarnRndNear); },
        peer("loop", [](const Tarn16s* src, Tarn16s* dst, int n) { toHalfLoop(src, dst, n); }));
    return compareNearest<Tarn16s, Tarn16s>("convert_16f16s_Sfs-3", tarnsConvert_16f16s_Sfs, halfToIntegerLoop, -3);
}();

#ifdef TARNS_HAVE_VOLK
// Its kernels multiply by a factor of their own, or divide by it; 1 and our factors leave no other difference.
const Comparison volk = [] {
    compare<Tarn32f, Tarn16s>("convert_16s32f_volk", tarnsConvert_16s32f,
                              peer("VOLK", [](const Tarn16s* src, Tarn32f* dst, int n) {
                                  volk_16i_s32f_convert_32f_manual(dst, src, 1, static_cast<unsigned>(n), "a_sse");
                              }));
    compare<Tarn16s, Tarn32f>(
        "convert_32f16s_Sfs0_volk",
        [](const Tarn32f* src, Tarn16s* dst, int n) { return tarnsConvert_32f16s_Sfs(src, dst, n, tarnRndNear, 0); },
        peer("VOLK", [](const Tarn32f* src, Tarn16s* dst, int n) {
            volk_32f_s32f_convert_16i_manual(dst, src, 1, static_cast<unsigned>(n), "a_sse2");
        }));
    return compare<Tarn16s, Tarn32f>(
        "convert_32f16s_Sfs-9_volk",
        [](const Tarn32f* src, Tarn16s* dst, int n) { return tarnsConvert_32f16s_Sfs(src, dst, n, tarnRndNear, -9); },
        peer("VOLK", [](const Tarn32f* src, Tarn16s* dst, int n) {
            volk_32f_s32f_convert_16i_manual(dst, src, 512, static_cast<unsigned>(n), "a_sse2");
        }));
}();
#endif

} // namespace
} // namespace tarn::bench
