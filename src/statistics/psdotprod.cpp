// Front ends of dot products.
#include "tarns/norms.h"

#include "frame/checks.h"
#include "frame/scale_total.h"
#include "levels/statistics/psdotprod.h"

using namespace tarn;

namespace {

// Between these bounds a factor counts as it is.
template <typename D>
constexpr FactorBounds bounds{sizeof(D) == sizeof(Tarn16s) ? 15 : 31, 31};

template <typename D>
struct Scaled {
    int scaleFactor;
    D operator()(Tarn64s sum) const { return scaleTotal<D>(sum, scaleFactor, bounds<D>); }
};

// As a float, rounded once.
struct AsFloat {
    Tarn32f operator()(Tarn64s sum) const { return static_cast<Tarn32f>(static_cast<long double>(sum)); }
};

// A kernel that writes the result itself.
template <typename A, typename B, typename D, typename... Scale>
TarnStatus dot(void (*kernel)(const A*, const B*, int, D*, Scale...), const A* pSrc1, const B* pSrc2, int len, D* pDp,
               Scale... scaleFactor)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pDp)) {
        return status;
    }
    kernel(pSrc1, pSrc2, len, pDp, scaleFactor...);
    return tarnStsNoErr;
}

// A kernel of exact sums, each part of which `finish` makes a result of.
template <typename A, typename B, typename S, typename D, typename Finish>
TarnStatus dotExact(void (*kernel)(const A*, const B*, int, S*), const A* pSrc1, const B* pSrc2, int len, D* pDp,
                    Finish finish)
{
    if (const TarnStatus status = check(len, pSrc1, pSrc2, pDp)) {
        return status;
    }
    S sum;
    kernel(pSrc1, pSrc2, len, &sum);
    if constexpr (isComplex<D>) {
        store(pDp, {finish(sum.re), finish(sum.im)});
    } else {
        store(pDp, finish(sum));
    }
    return tarnStsNoErr;
}

} // namespace

TarnStatus tarnsDotProd_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn32f* pDp)
{
    return dot(ownsDotProd_32f, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_32fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn32fc* pDp)
{
    return dot(ownsDotProd_32fc, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_32f32fc(const Tarn32f* pSrc1, const Tarn32fc* pSrc2, int len, Tarn32fc* pDp)
{
    return dot(ownsDotProd_32f32fc, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_64f(const Tarn64f* pSrc1, const Tarn64f* pSrc2, int len, Tarn64f* pDp)
{
    return dot(ownsDotProd_64f, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_64fc(const Tarn64fc* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64fc* pDp)
{
    return dot(ownsDotProd_64fc, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_64f64fc(const Tarn64f* pSrc1, const Tarn64fc* pSrc2, int len, Tarn64fc* pDp)
{
    return dot(ownsDotProd_64f64fc, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_32f64f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, int len, Tarn64f* pDp)
{
    return dot(ownsDotProd_32f64f, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_32fc64fc(const Tarn32fc* pSrc1, const Tarn32fc* pSrc2, int len, Tarn64fc* pDp)
{
    return dot(ownsDotProd_32fc64fc, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_32f32fc64fc(const Tarn32f* pSrc1, const Tarn32fc* pSrc2, int len, Tarn64fc* pDp)
{
    return dot(ownsDotProd_32f32fc64fc, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_16s64s(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn64s* pDp)
{
    return dot(DotProd_16s64s, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_16s32f(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32f* pDp)
{
    return dotExact(DotProd_16s64s, pSrc1, pSrc2, len, pDp, AsFloat{});
}

TarnStatus tarnsDotProd_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn16s* pDp, int scaleFactor)
{
    return dotExact(DotProd_16s64s, pSrc1, pSrc2, len, pDp, Scaled<Tarn16s>{scaleFactor});
}

TarnStatus tarnsDotProd_16s32s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, int len, Tarn32s* pDp, int scaleFactor)
{
    return dotExact(DotProd_16s64s, pSrc1, pSrc2, len, pDp, Scaled<Tarn32s>{scaleFactor});
}

TarnStatus tarnsDotProd_16sc64sc(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn64sc* pDp)
{
    return dot(DotProd_16sc64sc, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_16sc32fc(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn32fc* pDp)
{
    return dotExact(DotProd_16sc64sc, pSrc1, pSrc2, len, pDp, AsFloat{});
}

TarnStatus tarnsDotProd_16sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn16sc* pDp, int scaleFactor)
{
    return dotExact(DotProd_16sc64sc, pSrc1, pSrc2, len, pDp, Scaled<Tarn16s>{scaleFactor});
}

TarnStatus tarnsDotProd_16sc32sc_Sfs(const Tarn16sc* pSrc1, const Tarn16sc* pSrc2, int len, Tarn32sc* pDp,
                                     int scaleFactor)
{
    return dotExact(DotProd_16sc64sc, pSrc1, pSrc2, len, pDp, Scaled<Tarn32s>{scaleFactor});
}

TarnStatus tarnsDotProd_16s16sc64sc(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn64sc* pDp)
{
    return dot(DotProd_16s16sc64sc, pSrc1, pSrc2, len, pDp);
}

TarnStatus tarnsDotProd_16s16sc32fc(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn32fc* pDp)
{
    return dotExact(DotProd_16s16sc64sc, pSrc1, pSrc2, len, pDp, AsFloat{});
}

TarnStatus tarnsDotProd_16s16sc_Sfs(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn16sc* pDp,
                                    int scaleFactor)
{
    return dotExact(DotProd_16s16sc64sc, pSrc1, pSrc2, len, pDp, Scaled<Tarn16s>{scaleFactor});
}

TarnStatus tarnsDotProd_16s16sc32sc_Sfs(const Tarn16s* pSrc1, const Tarn16sc* pSrc2, int len, Tarn32sc* pDp,
                                        int scaleFactor)
{
    return dotExact(DotProd_16s16sc64sc, pSrc1, pSrc2, len, pDp, Scaled<Tarn32s>{scaleFactor});
}

TarnStatus tarnsDotProd_32s_Sfs(const Tarn32s* pSrc1, const Tarn32s* pSrc2, int len, Tarn32s* pDp, int scaleFactor)
{
    return dot(ownsDotProd_32s_Sfs, pSrc1, pSrc2, len, pDp, scaleFactor);
}

TarnStatus tarnsDotProd_32sc_Sfs(const Tarn32sc* pSrc1, const Tarn32sc* pSrc2, int len, Tarn32sc* pDp, int scaleFactor)
{
    return dot(ownsDotProd_32sc_Sfs, pSrc1, pSrc2, len, pDp, scaleFactor);
}

TarnStatus tarnsDotProd_32s32sc_Sfs(const Tarn32s* pSrc1, const Tarn32sc* pSrc2, int len, Tarn32sc* pDp,
                                    int scaleFactor)
{
    return dot(ownsDotProd_32s32sc_Sfs, pSrc1, pSrc2, len, pDp, scaleFactor);
}

TarnStatus tarnsDotProd_16s32s32s_Sfs(const Tarn16s* pSrc1, const Tarn32s* pSrc2, int len, Tarn32s* pDp,
                                      int scaleFactor)
{
    return dot(ownsDotProd_16s32s32s_Sfs, pSrc1, pSrc2, len, pDp, scaleFactor);
}
