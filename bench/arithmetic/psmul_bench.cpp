// Products and their accumulation beside plain loops and VOLK's kernels of the same width.
#include "tarns.h"

#include "psmul_peer.h"
#include "support/compare.h"

#ifdef TARNS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace tarn::bench {
namespace {

const Sizes inCache = {64, 1024, 16384};

template <class D, class A, class B>
void compareScaled(const std::string& name, TarnStatus (*mul)(const A*, const B*, D*, int, int), int s)
{
    compare<D, A, B>(
        inCache, name, [=](auto... args) { return mul(args..., s); },
        peer("loop", [=](const A* a, const B* b, D* dst, int n) { mulLoop(a, b, dst, n, s); }));
}

template <class D, class A, class B>
void compareCases(const std::string& name, TarnStatus (*mul)(const A*, const B*, D*, int, int), int pos, int up)
{
    compareScaled(name + "_Sfs", mul, 0);
    compareScaled(name + "_1Sfs", mul, 1);
    compareScaled(name + "_PosSfs", mul, pos);
    compareScaled(name + "_NegSfs", mul, -2);
    compareScaled(name + "_Bound", mul, -up - 1);
}

template <class T>
void compareConstant(const std::string& name, TarnStatus (*mul)(const T*, T, T*, int, int), T val, int s)
{
    compare<T, T>(
        inCache, name, [=](const T* src, T* dst, int n) { return mul(src, val, dst, n, s); },
        peer("loop", [=](const T* src, T* dst, int n) { mulConstantLoop(src, val, dst, n, s); }));
}

template <class D, class S>
void compareSums(const std::string& name, TarnStatus (*addProduct)(const S*, const S*, D*, int, int), int s)
{
    compareInPlace<D, S, S>(
        inCache, name, [=](auto... args) { return addProduct(args..., s); },
        peer("loop", [=](const S* a, const S* b, D* sum, int n) { addProductLoop(a, b, sum, n, s); }));
}

template <class T>
constexpr auto floatLoop = [](const T* a, const T* b, T* dst, int n) { mulLoop(a, b, dst, n); };

void compareFloats()
{
#ifdef TARNS_HAVE_VOLK
    const auto volkReal = peer("volk", [](const Tarn32f* a, const Tarn32f* b, Tarn32f* dst, int n) {
        volk_32f_x2_multiply_32f_manual(dst, a, b, static_cast<unsigned>(n), "a_sse");
    });
    const auto volkComplex = peer("volk", [](const Tarn32fc* a, const Tarn32fc* b, Tarn32fc* dst, int n) {
        volk_32fc_x2_multiply_32fc_manual(reinterpret_cast<lv_32fc_t*>(dst), reinterpret_cast<const lv_32fc_t*>(a),
                                          reinterpret_cast<const lv_32fc_t*>(b), static_cast<unsigned>(n), "a_sse3");
    });
    const auto volkConstant = peer("volk", [](const Tarn32f* src, Tarn32f* dst, int n) {
        volk_32f_s32f_multiply_32f_manual(dst, src, 1.5F, static_cast<unsigned>(n), "a_sse");
    });
    const auto volkComplexConstant = peer("volk", [](const Tarn32fc* src, Tarn32fc* dst, int n) {
        volk_32fc_s32fc_multiply_32fc_manual(reinterpret_cast<lv_32fc_t*>(dst), reinterpret_cast<const lv_32fc_t*>(src),
                                             lv_cmake(1.5F, -0.5F), static_cast<unsigned>(n), "a_sse3");
    });
    const auto volkDouble = peer("volk", [](const Tarn64f* a, const Tarn64f* b, Tarn64f* dst, int n) {
        volk_64f_x2_multiply_64f_manual(dst, a, b, static_cast<unsigned>(n), "a_sse2");
    });
#define TARNS_AND_VOLK(PEER) , PEER
#else
#define TARNS_AND_VOLK(PEER)
#endif
    compare<Tarn32f, Tarn32f, Tarn32f>("mul_32f", tarnsMul_32f,
                                       peer("loop", floatLoop<Tarn32f>) TARNS_AND_VOLK(volkReal));
    compare<Tarn64f, Tarn64f, Tarn64f>("mul_64f", tarnsMul_64f,
                                       peer("loop", floatLoop<Tarn64f>) TARNS_AND_VOLK(volkDouble));
    compare<Tarn32fc, Tarn32fc, Tarn32fc>("mul_32fc", tarnsMul_32fc,
                                          peer("loop", floatLoop<Tarn32fc>) TARNS_AND_VOLK(volkComplex));
    compare<Tarn64fc, Tarn64fc, Tarn64fc>("mul_64fc", tarnsMul_64fc, peer("loop", floatLoop<Tarn64fc>));
    compare<Tarn32f, Tarn32f>(
        "mulC_32f", [](const Tarn32f* src, Tarn32f* dst, int n) { return tarnsMulC_32f(src, 1.5F, dst, n); },
        peer("loop", [](const Tarn32f* src, Tarn32f* dst, int n) { mulConstantLoop(src, 1.5F, dst, n); })
            TARNS_AND_VOLK(volkConstant));
    constexpr Tarn32fc complexConstant{1.5F, -0.5F};
    compare<Tarn32fc, Tarn32fc>(
        "mulC_32fc",
        [=](const Tarn32fc* src, Tarn32fc* dst, int n) { return tarnsMulC_32fc(src, complexConstant, dst, n); },
        peer("loop", [=](const Tarn32fc* src, Tarn32fc* dst, int n) { mulConstantLoop(src, complexConstant, dst, n); })
            TARNS_AND_VOLK(volkComplexConstant));
#undef TARNS_AND_VOLK
    compare<Tarn16s, Tarn32f>(
        inCache, "mulC_32f16s_Sfs",
        [](const Tarn32f* src, Tarn16s* dst, int n) { return tarnsMulC_32f16s_Sfs(src, 1000.0F, dst, n, 1); },
        peer("loop", [](const Tarn32f* src, Tarn16s* dst, int n) { mulConstantLoop(src, 1000.0F, dst, n, 1); }));
    compareInPlace<Tarn32f, Tarn32f, Tarn32f>(
        inCache, "addProduct_32f", tarnsAddProduct_32f,
        peer("loop", [](const Tarn32f* a, const Tarn32f* b, Tarn32f* sum, int n) { addProductLoop(a, b, sum, n); }));
    compareInPlace<Tarn32fc, Tarn32fc, Tarn32fc>(
        inCache, "addProduct_32fc", tarnsAddProduct_32fc,
        peer("loop", [](const Tarn32fc* a, const Tarn32fc* b, Tarn32fc* sum, int n) { addProductLoop(a, b, sum, n); }));
}

const Comparison cases = [] {
    compareFloats();
    compareCases<Tarn8u>("mul_8u", tarnsMul_8u_Sfs, 8, 7);
    compareCases<Tarn16s>("mul_16s", tarnsMul_16s_Sfs, 15, 15);
    compareCases<Tarn16sc>("mul_16sc", tarnsMul_16sc_Sfs, 15, 15);
    compareCases<Tarn32s>("mul_32s", tarnsMul_32s_Sfs, 31, 31);
    compareScaled("mul_32sc_PosSfs", tarnsMul_32sc_Sfs, 31);
    compareScaled("mul_32s32sc_PosSfs", tarnsMul_32s32sc_Sfs, 31);
    compareScaled("mul_16s32s_PosSfs", tarnsMul_16s32s_Sfs, 3);
    compareScaled("mul_16u16s_PosSfs", tarnsMul_16u16s_Sfs, 16);
    for (const int s : {0, 8})
        compareConstant<Tarn8u>(s == 0 ? "mulC_8u_Sfs" : "mulC_8u_PosSfs", tarnsMulC_8u_Sfs, 77, s);
    for (const int s : {0, 15}) {
        const std::string suffix = s == 0 ? "_Sfs" : "_PosSfs";
        compareConstant<Tarn16s>("mulC_16s" + suffix, tarnsMulC_16s_Sfs, 12345, s);
        compareConstant<Tarn16sc>("mulC_16sc" + suffix, tarnsMulC_16sc_Sfs, {12345, -6789}, s);
        compareConstant<Tarn16sc>("mulC_16sc_Ovf" + suffix, tarnsMulC_16sc_Sfs, {12345, -32768}, s);
    }
    compareConstant<Tarn32s>("mulC_32s_Sfs", tarnsMulC_32s_Sfs, 1234567890, 0);
    compareConstant<Tarn32s>("mulC_32s_PosSfs", tarnsMulC_32s_Sfs, 1234567890, 31);
    compareSums("addProduct_16s_Sfs", tarnsAddProduct_16s_Sfs, 0);
    compareSums("addProduct_16s_PosSfs", tarnsAddProduct_16s_Sfs, 15);
    compareSums("addProduct_16s32s_Sfs", tarnsAddProduct_16s32s_Sfs, 0);
    compareSums("addProduct_16s32s_PosSfs", tarnsAddProduct_16s32s_Sfs, 15);
    compareSums("addProduct_32s_Sfs", tarnsAddProduct_32s_Sfs, 0);
    compareSums("addProduct_32s_PosSfs", tarnsAddProduct_32s_Sfs, 31);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
