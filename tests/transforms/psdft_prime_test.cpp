// The mixed-radix transforms as kernels: every kind, direction and precision against a plain transform.
#include "levels/transforms/psdft.h"
#include "levels/transforms/psdft_tables.h"
#include "levels/transforms/psdftfact.h"
#include "model/dft.h"
#include "support/compare.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>

namespace tarn::test {
namespace {

template <class T>
struct Kernel;
#define TARN_TEST_KERNELS(T)                                                                                          \
    template <>                                                                                                       \
    struct Kernel<Tarn##T> {                                                                                          \
        static constexpr auto base = tarns_createTabDftBase_##T;                                                      \
        static constexpr auto init = tarns_initDftPrimeFact_##T;                                                      \
        static auto pairs(bool fwd) { return fwd ? tarns_cDftFwd_PrimeFact_##T##c : tarns_cDftInv_PrimeFact_##T##c; } \
        static auto parts(bool fwd) { return fwd ? tarns_crDftFwd_PrimeFact_##T : tarns_crDftInv_PrimeFact_##T; }     \
        static auto reals(bool fwd) { return fwd ? tarns_rDftFwd_PrimeFact_##T : tarns_rDftInv_PrimeFact_##T; }       \
    };
TARN_TEST_KERNELS(32f)
TARN_TEST_KERNELS(64f)

// An object as far as the mixed-radix transforms look at it; `doubled` as the even real kinds make it.
template <class T>
class Object {
public:
    explicit Object(int N, bool doubled = false)
    {
        EXPECT_TRUE(dft::testDftPrimeFact(spec, N));
        const int baseLen = doubled ? 2 * N : N;
        const Owned<PairOf<T>[]> base(Kernel<T>::base(baseLen));
        EXPECT_EQ(Kernel<T>::init(&spec, N, base.get(), baseLen), tarnStsNoErr);
    }
    ~Object()
    {
        std::set<void*> owned = {spec.factPerm, spec.laneTab};
        for (const dft::Factor& level : spec.factors)
            owned.insert({level.dirTab, level.twdTab});
        for (void* block : owned)
            tarnsFree(block);
    }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    dft::Spec<T> spec{};
};

template <class T>
std::vector<model::Bin> noise(std::size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> uniform(-1, 1);
    std::vector<model::Bin> values(count);
    for (auto& value : values)
        value = {static_cast<T>(uniform(random)), static_cast<T>(uniform(random))};
    return values;
}

// The RMS error relative to the RMS of the spectrum, in units of the precision: rounding errors of log2(N) levels add
// up like the steps of a random walk, and those of a direct sum over p points like p of them.
template <class T, class Result>
double errorOf(const std::vector<model::Bin>& expected, Result result)
{
    long double error = 0;
    long double power = 0;
    for (std::size_t k = 0; k < expected.size(); ++k) {
        const model::Bin actual = result(k);
        const auto square = [](long double x) { return x * x; };
        error += square(actual.re - expected[k].re) + square(actual.im - expected[k].im);
        power += square(expected[k].re) + square(expected[k].im);
    }
    return static_cast<double>(std::sqrt(error / power)) / static_cast<double>(std::numeric_limits<T>::epsilon());
}
double allowedFor(int N) { return 0.3 * std::log2(N) + (N > 149 ? 1 : 0.5); }

const int lengths[] = {6,    9,    10,   12,      15,   18,   20,   21,    24,    25,    27,    28,   30,   33,   35,
                       36,   45,   48,   49,      50,   60,   63,   72,    75,    77,    80,    81,   90,   96,   98,
                       100,  105,  120,  121,     125,  126,  135,  143,   144,   147,   150,   160,  169,  175,  180,
                       192,  210,  225,  240,     243,  245,  289,  298,   300,   308,   343,   360,  375,  447,  480,
                       495,  500,  504,  512 * 3, 525,  539,  600,  625,   640,   735,   845,   882,  960,  1000, 1001,
                       1029, 1155, 1183, 1210,    1500, 2000, 2001, 2002,  2016,  2025,  2187,  2205, 2401, 2560, 2640,
                       3000, 3025, 3125, 4410,    4500, 6125, 6561, 10125, 11025, 22201, 44100, 48000};

template <class T>
class DftPrimeFact : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(DftPrimeFact, Precisions);

TYPED_TEST(DftPrimeFact, AgreesWithTheTransform)
{
    using T = TypeParam;
    using K = Kernel<T>;
    for (const int N : lengths) {
        const Object<T> object(N, N % 3 == 0);
        const auto size = static_cast<std::size_t>(N);
        const auto x = noise<T>(size, static_cast<unsigned>(N));
        std::vector<T> pairs(2 * size), re(size), im(size);
        for (std::size_t i = 0; i < size; ++i) {
            pairs[2 * i] = re[i] = static_cast<T>(x[i].re);
            pairs[2 * i + 1] = im[i] = static_cast<T>(x[i].im);
        }
        const GuardedArray<T> work(static_cast<std::size_t>(object.spec.bufSize - 16) / sizeof(T));
        auto expected = model::transformOfAnyLength(x, -1);
        for (const bool forward : {true, false}) {
            SCOPED_TRACE(::testing::Message() << "length " << N << (forward ? " forward" : " inverse"));
            if (!forward) // the sum with conjugate roots: every result but the first changes its place
                std::reverse(expected.begin() + 1, expected.end());

            // Pairs, at an odd address, and in place.
            const GuardedArray<T> src(pairs, Placement::atEnd(1));
            const GuardedArray<T> dst(2 * size, Placement::atEnd());
            K::pairs(forward)(&object.spec, asPairs(src.data()), asPairs(dst.data()), work.data());
            EXPECT_LE(errorOf<T>(expected,
                                 [&](std::size_t k) {
                                     return model::Bin{dst.get(2 * k), dst.get(2 * k + 1)};
                                 }),
                      allowedFor(N));
            EXPECT_EQ(pairs, src.copy());
            const GuardedArray<T> both(pairs, Placement::offset(4));
            K::pairs(forward)(&object.spec, asPairs(both.data()), asPairs(both.data()), work.data());
            EXPECT_EQ(dst.copy(), both.copy());

            // Parts, at odd addresses, in place, and crosswise in place.
            const GuardedArray<T> dstRe(size, Placement::atEnd());
            const GuardedArray<T> dstIm(size, Placement::offset(3));
            K::parts(forward)(&object.spec, re.data(), im.data(), dstRe.data(), dstIm.data(), work.data());
            EXPECT_LE(errorOf<T>(expected,
                                 [&](std::size_t k) {
                                     return model::Bin{dstRe.get(k), dstIm.get(k)};
                                 }),
                      allowedFor(N));
            const GuardedArray<T> ownRe(re, Placement::offset(1));
            const GuardedArray<T> ownIm(im, Placement::atEnd());
            K::parts(forward)(&object.spec, ownRe.data(), ownIm.data(), ownRe.data(), ownIm.data(), work.data());
            EXPECT_EQ(dstRe.copy(), ownRe.copy());
            EXPECT_EQ(dstIm.copy(), ownIm.copy());
            const GuardedArray<T> crossRe(re, Placement::offset(8));
            const GuardedArray<T> crossIm(im, Placement::offset(8));
            K::parts(forward)(&object.spec, crossRe.data(), crossIm.data(), crossIm.data(), crossRe.data(),
                              work.data());
            EXPECT_EQ(dstRe.copy(), crossIm.copy());
            EXPECT_EQ(dstIm.copy(), crossRe.copy());
        }
    }
}

TYPED_TEST(DftPrimeFact, TransformsRealDataOfOddLength)
{
    using T = TypeParam;
    using K = Kernel<T>;
    for (const int N : lengths) {
        if (N % 2 == 0)
            continue;
        SCOPED_TRACE(::testing::Message() << "length " << N);
        const Object<T> object(N);
        const auto size = static_cast<std::size_t>(N);
        auto x = noise<T>(size, static_cast<unsigned>(N));
        std::vector<T> samples;
        for (auto& sample : x) {
            sample.im = 0;
            samples.push_back(static_cast<T>(sample.re));
        }
        const GuardedArray<T> work(static_cast<std::size_t>(object.spec.bufSize - 16) / sizeof(T));
        auto spectrum = model::transformOfAnyLength(x, -1);
        const GuardedArray<T> src(samples, Placement::atEnd());
        const GuardedArray<T> dst(size, Placement::atEnd(1));
        K::reals(true)(&object.spec, src.data(), dst.data(), work.data());
        spectrum.resize(size / 2 + 1);
        EXPECT_LE(
            errorOf<T>(spectrum,
                       [&](std::size_t k) {
                           return k == 0 ? model::Bin{dst.get(0), 0} : model::Bin{dst.get(2 * k - 1), dst.get(2 * k)};
                       }),
            allowedFor(N));
        const GuardedArray<T> both(samples, Placement::offset(2));
        K::reals(true)(&object.spec, both.data(), both.data(), work.data());
        EXPECT_EQ(dst.copy(), both.copy());

        const std::vector<T> packed = dst.copy();
        const GuardedArray<T> back(size, Placement::atEnd());
        K::reals(false)(&object.spec, dst.data(), back.data(), work.data());
        EXPECT_EQ(packed, dst.copy());
        EXPECT_LE(errorOf<T>(x,
                             [&](std::size_t n) {
                                 return model::Bin{back.get(n) / static_cast<T>(N), 0};
                             }),
                  2 * allowedFor(N));
        K::reals(false)(&object.spec, both.data(), both.data(), work.data());
        EXPECT_EQ(back.copy(), both.copy());
    }
}

} // namespace
} // namespace tarn::test
