// The tables of the transforms of any length and how lengths come apart, and the kernels that the transforms reach with
// some lengths only.
#include "levels/transforms/psdft.h"
#include "levels/transforms/psdft_tables.h"
#include "model/chirp.h"
#include "support/guarded.h"
#include "support/transform_runs.h"
#include "tarns/dft.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn::test {
namespace {

// The kernels of a precision by one name each.
inline auto base(Tarn32f, int n) { return Owned<Tarn32fc[]>(tarns_createTabDftBase_32f(n)); }
inline auto base(Tarn64f, int n) { return Owned<Tarn64fc[]>(tarns_createTabDftBase_64f(n)); }
inline auto direct(int n, const Tarn32fc* w, int len)
{
    return Owned<Tarn32fc[]>(tarns_createTabDftDir_32f(n, w, len));
}
inline auto direct(int n, const Tarn64fc* w, int len)
{
    return Owned<Tarn64fc[]>(tarns_createTabDftDir_64f(n, w, len));
}

template <class T>
class DftTables : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(DftTables, Precisions);

TYPED_TEST(DftTables, RootsAreRoundedOnceAndMirrorEachOtherToTheBit)
{
    using T = TypeParam;
    for (int n :
         {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 15, 16, 18, 20, 30, 36, 49, 100, 101, 302, 360, 1000, 1009, 2018}) {
        const auto w = base(T{}, n);
        const auto bits = [](T x) { return x == 0 ? T{0} : x; };
        for (int j = 0; j < n; ++j) {
            const auto expected =
                model::rootOf<long double>(-1, static_cast<std::size_t>(j), static_cast<std::size_t>(n));
            const T unit = std::numeric_limits<T>::epsilon();
            // Half a unit, and what the doubles that are rounded have as error.
            const auto bound = static_cast<double>(unit) / 4 * 1.02 + 1.2e-16;
            EXPECT_NEAR(static_cast<double>(expected.real()), static_cast<double>(w[j].re), bound) << j << " of " << n;
            EXPECT_NEAR(static_cast<double>(expected.imag()), static_cast<double>(w[j].im), bound) << j << " of " << n;
            EXPECT_EQ(bits(w[j].re), bits(w[(n - j) % n].re)) << j << " of " << n;
            EXPECT_EQ(bits(w[j].im), bits(-w[(n - j) % n].im)) << j << " of " << n;
            if (n % 2 == 0 && 2 * j <= n) {
                EXPECT_EQ(bits(w[j].re), bits(-w[n / 2 - j].re)) << j << " of " << n;
                EXPECT_EQ(bits(w[j].im), bits(w[n / 2 - j].im)) << j << " of " << n;
            }
            // An eighth of a turn is its own mirror image, and its sine and cosine are rounded apart.
            if (n % 4 == 0 && 4 * j <= n && 8 * j != n) {
                EXPECT_EQ(bits(w[j].re), bits(-w[n / 4 - j].im)) << j << " of " << n;
            }
        }
    }
}

TYPED_TEST(DftTables, DirectTablesHoldRootsThenWordsTwice)
{
    using T = TypeParam;
    for (int n : {2, 5, 7, 10, 149})
        for (int times : {1, 2, 6}) {
            const auto w = base(T{}, n * times);
            const auto table = direct(n, w.get(), n * times);
            const auto* words = reinterpret_cast<const Tarn32s*>(table.get() + n);
            for (int j = 0; j < n; ++j) {
                EXPECT_EQ(w[j * times].re, table[j].re);
                EXPECT_EQ(w[j * times].im, table[j].im);
                EXPECT_EQ(2 * j, words[j]);
                EXPECT_EQ(2 * j, words[n + j]);
            }
        }
}

template <class T>
void expectPairs(int n, const Owned<T[]>& forward, const Owned<T[]>& inverse)
{
    const auto w = base(T{}, n);
    for (int k = 0; k < (n + 3) / 4; ++k) {
        EXPECT_EQ(w[k].re / 2, forward[2 * k]) << k << " of " << n;
        EXPECT_EQ(w[k].im / 2 + T{1} / 2, forward[2 * k + 1]) << k << " of " << n;
        EXPECT_EQ(w[k].re, inverse[2 * k]) << k << " of " << n;
        EXPECT_EQ(w[k].im, inverse[2 * k + 1]) << k << " of " << n;
    }
}

TEST(DftRecombination, TablesArePlainPairs)
{
    for (int n : {6, 10, 12, 302}) {
        const auto single = base(Tarn32f{}, n);
        expectPairs<Tarn32f>(n, Owned<Tarn32f[]>(tarns_createTabDftFwdRec_32f(n, single.get())),
                             Owned<Tarn32f[]>(tarns_createTabDftInvRec_32f(n, single.get())));
        const auto twice = base(Tarn64f{}, n);
        expectPairs<Tarn64f>(n, Owned<Tarn64f[]>(tarns_createTabDftFwdRec_64f(n, twice.get())),
                             Owned<Tarn64f[]>(tarns_createTabDftInvRec_64f(n, twice.get())));
    }
}

// -- How lengths come apart -------------------------------------------------------------------------------------------

/// Factors in order, then what is left; nothing if the length is refused.
std::vector<int> factorsOf(int n)
{
    dft::Spec<Tarn32f> spec = {};
    if (!dft::testDftPrimeFact(spec, n))
        return {};
    std::vector<int> all;
    int before = 1;
    for (int i = 0; i <= spec.lastFactor; ++i) {
        const dft::Factor& record = spec.factors[i];
        EXPECT_EQ(before, record.before) << n;
        before *= record.factor;
        EXPECT_EQ(n / before, record.remaining) << n;
        all.push_back(record.factor);
    }
    all.push_back(spec.factors[spec.lastFactor].remaining);
    return all;
}

TEST(DftFactors, AreFoursBehindATwoThenOddOnes)
{
    using Factors = std::vector<int>;
    EXPECT_EQ((Factors{2, 3}), factorsOf(6));
    EXPECT_EQ((Factors{3, 3}), factorsOf(9));
    EXPECT_EQ((Factors{4, 3}), factorsOf(12));
    EXPECT_EQ((Factors{2, 4, 3}), factorsOf(24));
    EXPECT_EQ((Factors{2, 4, 4, 3}), factorsOf(96));
    EXPECT_EQ((Factors{2, 4, 5, 5, 5}), factorsOf(1000));
    EXPECT_EQ((Factors{3, 3, 3, 3, 3, 3, 3}), factorsOf(2187));
    EXPECT_EQ((Factors{7, 7}), factorsOf(49));
    EXPECT_EQ((Factors{3, 149}), factorsOf(447));
    EXPECT_EQ((Factors{149, 149}), factorsOf(149 * 149));
    EXPECT_EQ((Factors{2, 149}), factorsOf(298));
}

TEST(DftFactors, AreRefusedWhereThereIsNoneOrALargeOne)
{
    for (int n : {1, 3, 5, 7, 101, 149, 151, 302, 471, 4 * 151, 151 * 151, 25591, 65537, 10007})
        EXPECT_TRUE(factorsOf(n).empty()) << n;
}

// -- Direct sums ------------------------------------------------------------------------------------------------------

/// Even lengths have factors, so that no transform comes here with one.
TYPED_TEST(DftTables, DirectSumsOfAnyLengthBothWays)
{
    using T = TypeParam;
    using C = std::conditional_t<std::is_same_v<T, Tarn32f>, Tarn32fc, Tarn64fc>;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 16, 17, 18, 22, 150, 179}) {
        const auto size = static_cast<std::size_t>(n);
        const auto w = base(T{}, n);
        const auto table = direct(n, w.get(), n);
        const auto reals = signal<T>(2 * size, 11);
        std::vector<std::complex<long double>> x(size);
        for (std::size_t i = 0; i < size; ++i)
            x[i] = {reals[2 * i], reals[2 * i + 1]};
        for (int direction : {1, -1}) {
            const auto values = model::anyTransform(x, -direction);
            Arrays<long double> expected(1);
            for (auto value : values) {
                expected[0].push_back(value.real());
                expected[0].push_back(value.imag());
            }
            GuardedArray<T> dst(2 * size, Placement::atEnd());
            GuardedArray<T> work(2 * size, Placement::offset(0));
            const auto* src = reinterpret_cast<const C*>(reals.data());
            auto* to = reinterpret_cast<C*>(dst.data());
            if constexpr (std::is_same_v<T, Tarn32f>)
                tarns_cDft_Dir_32fc(src, to, n, direction, table.get(), work.data());
            else
                tarns_cDft_Dir_64fc(src, to, n, direction, table.get(), work.data());
            EXPECT_LE(relativeError(expected, Arrays<T>{dst.copy()}, 1), 4 * std::numeric_limits<T>::epsilon())
                << n << " direction " << direction;
        }
    }
}

// -- Convolution ------------------------------------------------------------------------------------------------------

TEST(DftConvolution, TablesAreAChirpAndItsSpectrum)
{
    for (auto [n, len] : {std::pair{1, 1}, {2, 4}, {151, 512}, {256, 512}, {257, 1024}, {181, 512}}) {
        dft::Spec<Tarn64f> spec = {};
        const auto w = base(Tarn64f{}, n);
        ASSERT_EQ(tarnStsNoErr, tarns_initDftConv_64f(&spec, n, w.get(), n));
        EXPECT_EQ(len, spec.convLen) << n;
        const auto size = static_cast<std::size_t>(n);
        std::vector<std::complex<double>> kernel(static_cast<std::size_t>(len));
        for (std::size_t k = 0; k < size; ++k) {
            const auto chirp = model::rootOf<long double>(-1, k * k, 2 * size);
            EXPECT_NEAR(static_cast<double>(chirp.real()), spec.convChirp[k].re, 1e-15) << k << " of " << n;
            EXPECT_NEAR(static_cast<double>(chirp.imag()), spec.convChirp[k].im, 1e-15) << k << " of " << n;
            kernel[k] = std::conj(std::complex<double>(chirp)) / static_cast<double>(len);
            if (k > 0)
                kernel[kernel.size() - k] = kernel[k];
        }
        kernel = model::anyTransform(kernel, -1);
        for (std::size_t k = 0; k < kernel.size(); ++k) {
            EXPECT_NEAR(kernel[k].real(), spec.convKernel[k].re, 1e-14) << k << " of " << n;
            EXPECT_NEAR(kernel[k].imag(), spec.convKernel[k].im, 1e-14) << k << " of " << n;
        }
        tarnsFree(spec.convChirp);
        tarnsFree(spec.convKernel);
        EXPECT_EQ(tarnStsNoErr, tarnsFFTFree_C_64fc(static_cast<TarnsFFTSpec_C_64fc*>(spec.convFftSpec)));
    }
}

TEST(DftBlocks, ProductsZerosAndConjugates)
{
    for (int len : {1, 2, 3, 5, 8, 17}) {
        const auto size = static_cast<std::size_t>(len);
        const auto a = signal<Tarn32f>(2 * size, 1);
        const auto b = signal<Tarn32f>(2 * size, 2);
        GuardedArray<Tarn32f> dst(2 * size, Placement::atEnd());
        auto* to = reinterpret_cast<Tarn32fc*>(dst.data());
        const auto pairs = [](const std::vector<Tarn32f>& x) { return reinterpret_cast<const Tarn32fc*>(x.data()); };
        tarns_cbMpy3_32fc(pairs(a), pairs(b), to, len);
        for (std::size_t i = 0; i < 2 * size; i += 2) {
            EXPECT_NEAR(a[i] * b[i] - a[i + 1] * b[i + 1], dst.data()[i], 2e-7);
            EXPECT_NEAR(a[i] * b[i + 1] + a[i + 1] * b[i], dst.data()[i + 1], 2e-7);
        }
        tarns_cbConj2_32fc(pairs(a), to, len);
        for (std::size_t i = 0; i < 2 * size; ++i)
            EXPECT_EQ(i % 2 == 0 ? a[i] : -a[i], dst.data()[i]);
        tarns_cbZero_32fc(to, len);
        EXPECT_EQ(std::vector<Tarn32f>(2 * size), dst.copy());
    }
}

} // namespace
} // namespace tarn::test
