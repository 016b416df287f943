// Logic and shifts beside plain loops and, where it has them, VOLK's kernels of the same width.
#include "tarns/logic.h"

#include "pslogic_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace tarn::bench {
namespace {

template <class T>
void compareVectors(const std::string& name, TarnStatus (*ours)(const T*, const T*, T*, int),
                    void (*loop)(const T*, const T*, T*, int))
{
    compare<T, T, T>(name, ours, peer("loop", loop));
}

template <class T>
void compareConstant(const std::string& name, TarnStatus (*ours)(const T*, T, T*, int),
                     void (*loop)(const T*, T, T*, int))
{
    constexpr T val = 0x5A;
    compare<T, T>(
        name, [=](const T* src, T* dst, int n) { return ours(src, val, dst, n); },
        peer("loop", [=](const T* src, T* dst, int n) { loop(src, val, dst, n); }));
}

template <class T>
void compareShift(const std::string& name, TarnStatus (*ours)(const T*, int, T*, int),
                  void (*loop)(const T*, int, T*, int))
{
    compare<T, T>(
        name, [=](const T* src, T* dst, int n) { return ours(src, 3, dst, n); },
        peer("loop", [=](const T* src, T* dst, int n) { loop(src, 3, dst, n); }));
}

const Comparison cases = [] {
    compareVectors<Tarn8u>("and_8u", tarnsAnd_8u, andLoop);
    compareVectors<Tarn32u>("and_32u", tarnsAnd_32u, andLoop);
    compareVectors<Tarn32u>("or_32u", tarnsOr_32u, orLoop);
    compareConstant<Tarn16u>("xorC_16u", tarnsXorC_16u, xorConstantLoop);
    compareConstant<Tarn32u>("xorC_32u", tarnsXorC_32u, xorConstantLoop);
    compare<Tarn8u, Tarn8u>("not_8u", tarnsNot_8u, peer("loop", notLoop));
    compareShift<Tarn8u>("lshiftC_8u", tarnsLShiftC_8u, shiftLeftLoop);
    compareShift<Tarn16u>("lshiftC_16u", tarnsLShiftC_16u, shiftLeftLoop);
    compareShift<Tarn32s>("lshiftC_32s", tarnsLShiftC_32s, shiftLeftLoop);
    compareShift<Tarn8u>("rshiftC_8u", tarnsRShiftC_8u, shiftRightLoop);
    compareShift<Tarn16s>("rshiftC_16s", tarnsRShiftC_16s, shiftRightLoop);
    compareShift<Tarn32s>("rshiftC_32s", tarnsRShiftC_32s, shiftRightLoop);
#ifdef TARNS_HAVE_VOLK
    compare<Tarn32s, Tarn32s, Tarn32s>(
        "and_32u_volk",
        [](const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int n) {
            return tarnsAnd_32u(reinterpret_cast<const Tarn32u*>(a), reinterpret_cast<const Tarn32u*>(b),
                                reinterpret_cast<Tarn32u*>(dst), n);
        },
        peer("volk", [](const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int n) {
            volk_32i_x2_and_32i_manual(dst, a, b, static_cast<unsigned>(n), "a_sse");
        }));
#endif
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
