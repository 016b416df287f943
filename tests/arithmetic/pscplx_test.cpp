// Conjugates, and complex vectors taken apart and put together.
#include "tarns/cplx.h"

#include "model/scale.h"
#include "support/checks.h"
#include "support/sweep.h"

#include <cmath>

namespace tarn::test {
namespace {

const auto negated = []<class R>(R x) -> R {
    if constexpr (std::is_floating_point_v<R>)
        return std::copysign(x, std::signbit(x) ? R(1) : R(-1));
    else
        return model::saturated<R>(-static_cast<int>(x));
};

template <class C>
void sweepConjugates(TarnStatus (*outOfPlace)(const C*, C*, int), TarnStatus (*inPlace)(C*, int))
{
    const auto model = [](C z) { return C{z.re, negated(z.im)}; };
    sweepElementwise<C, C>(outOfPlace, model);
    sweepInPlace<C>(inPlace, model);
}

TEST(Conjugate, NegatesTheImaginaryPart)
{
    sweepConjugates(tarnsConj_16sc, tarnsConj_16sc_I);
    sweepConjugates(tarnsConj_32fc, tarnsConj_32fc_I);
    sweepConjugates(tarnsConj_64fc, tarnsConj_64fc_I);
}

TEST(Conjugate, TheLowestWordSaturates)
{
    Tarn16sc z{1, -32768};
    EXPECT_EQ(tarnStsNoErr, tarnsConj_16sc_I(&z, 1));
    EXPECT_EQ(1, z.re);
    EXPECT_EQ(32767, z.im);
}

template <class C>
struct PartsOf {
    using R = RealOf<C>;
    TarnStatus (*real)(const C*, R*, int);
    TarnStatus (*imaginary)(const C*, R*, int);
    TarnStatus (*split)(const C*, R*, R*, int);
    TarnStatus (*join)(const R*, const R*, C*, int);
};

#define TARN_PARTS(C, T) \
    PartsOf<Tarn##C> { tarnsReal_##C, tarnsImag_##C, tarnsCplxToReal_##C, tarnsRealToCplx_##T }

template <class Body>
void forEachType(Body body)
{
    body(TARN_PARTS(16sc, 16s));
    body(TARN_PARTS(32fc, 32f));
    body(TARN_PARTS(64fc, 64f));
}

// The other destination of a split, as long as the longest run.
template <class R>
std::vector<R>& other()
{
    static std::vector<R> values(1 << 17);
    return values;
}

TEST(Parts, AreTakenApart)
{
    forEachType([]<class C>(PartsOf<C> f) {
        using R = RealOf<C>;
        const auto re = [](C z) { return z.re; };
        const auto im = [](C z) { return z.im; };
        sweepElementwise<R, C>(f.real, re);
        sweepElementwise<R, C>(f.imaginary, im);
        sweepElementwise<R, C>([=](const C* src, R* dst, int len) { return f.split(src, dst, other<R>().data(), len); },
                               re, {.depth = Depth::quick});
        sweepElementwise<R, C>([=](const C* src, R* dst, int len) { return f.split(src, other<R>().data(), dst, len); },
                               im, {.depth = Depth::quick});
    });
}

TEST(Parts, ArePutTogether)
{
    forEachType([]<class C>(PartsOf<C> f) {
        using R = RealOf<C>;
        sweepElementwise<C, R, R>(f.join, [](R re, R im) { return C{re, im}; });
        sweepElementwise<C, R>([=](const R* re, C* dst, int len) { return f.join(re, nullptr, dst, len); },
                               [](R re) {
                                   return C{re, 0};
                               });
        sweepElementwise<C, R>([=](const R* im, C* dst, int len) { return f.join(nullptr, im, dst, len); },
                               [](R im) {
                                   return C{0, im};
                               });
    });
}

TEST(Parts, MissingSourcesAreFoundAfterTheLength)
{
    forEachType([]<class C>(PartsOf<C> f) {
        using R = RealOf<C>;
        const R part[2] = {};
        C z[2] = {};
        EXPECT_EQ(tarnStsNullPtrErr, f.join(nullptr, nullptr, z, 2));
        EXPECT_EQ(tarnStsSizeErr, f.join(nullptr, nullptr, z, 0));
        EXPECT_EQ(tarnStsSizeErr, f.join(part, part, z, -1));
        EXPECT_EQ(tarnStsSizeErr, f.join(part, nullptr, z, 0));
        EXPECT_EQ(tarnStsNullPtrErr, f.join(part, part, nullptr, 0));
        EXPECT_EQ(tarnStsNullPtrErr, f.join(part, part, nullptr, 2));
        EXPECT_EQ(tarnStsNoErr, f.join(nullptr, part, z, 2));
    });
}

TEST(Parts, ChecksInOrder)
{
    expectChecks(tarnsConj_16sc);
    expectChecks(tarnsConj_32fc);
    expectChecks(tarnsConj_64fc);
    expectChecks(tarnsConj_16sc_I);
    expectChecks(tarnsConj_32fc_I);
    expectChecks(tarnsConj_64fc_I);
    forEachType([]<class C>(PartsOf<C> f) {
        expectChecks(f.real);
        expectChecks(f.imaginary);
        expectChecks(f.split);
    });
}

} // namespace
} // namespace tarn::test
