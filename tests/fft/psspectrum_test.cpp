// Products and expansions of packed spectra against plain models: every layout, length, address and scale factor.
#include "tarns.h"

#include "model/spectrum.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <climits>

namespace tarn::test {
namespace {

using model::Layout;

// Movements keep every bit, the sign of a NaN included.
constexpr Match sameBits{.nan = NanRule::sameBits};

// Lengths around the one from which a product's destination is brought to a vector boundary.
const std::vector<int> longer = {128, 260, 514};

template <class T, class Call, class Model>
void sweepProduct(Call call, Model model, Depth depth = Depth::full)
{
    SweepOptions options{.thresholds = longer, .depth = depth};
    sweepElementwise<T, T, T>(call, model, options);
    // The destination may be either source, or both.
    options.depth = Depth::quick;
    sweepInPlace<T, T>([&](const T* a, T* b, int len) { return call(a, b, b, len); }, model, options);
    sweepInPlace<T, T>([&](const T* a, T* b, int len) { return call(b, a, b, len); },
                       [&](std::span<const T> a, std::span<const T> b) { return model(b, a); }, options);
    sweepInPlace<T>([&](T* x, int len) { return call(x, x, x, len); },
                    [&](std::span<const T> x) { return model(x, x); }, options);
}

template <class T>
using Multiply = TarnStatus (*)(const T*, const T*, T*, int);
template <class T>
using MultiplyInPlace = TarnStatus (*)(const T*, T*, int);

template <class T>
void sweepProducts(Layout layout, Multiply<T> multiply, MultiplyInPlace<T> inPlace)
{
    const auto model = [=](std::span<const T> a, std::span<const T> b) { return model::product(a, b, layout); };
    sweepProduct<T>(multiply, model);
    sweepInPlace<T, T>(inPlace, model, {.thresholds = longer});
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const SweepOptions options{.depth = Depth::quick, .values = Values::random};
        sweepElementwise<T, T, T>(multiply, model, options);
        sweepInPlace<T, T>(inPlace, model, options);
    }
    expectChecks(multiply);
    expectChecks(inPlace);
}

TEST(SpectrumProducts, OfFloats)
{
    sweepProducts<Tarn32f>(Layout::perm, tarnsMulPerm_32f, tarnsMulPerm_32f_I);
    sweepProducts<Tarn64f>(Layout::perm, tarnsMulPerm_64f, tarnsMulPerm_64f_I);
    sweepProducts<Tarn32f>(Layout::pack, tarnsMulPack_32f, tarnsMulPack_32f_I);
    sweepProducts<Tarn64f>(Layout::pack, tarnsMulPack_64f, tarnsMulPack_64f_I);
}

template <class T>
void sweepConjugateProducts(MultiplyInPlace<T> multiply)
{
    const auto model = [](std::span<const T> s, std::span<const T> d) {
        return model::productByConjugate(s, d, Layout::pack);
    };
    sweepInPlace<T, T>(multiply, model, {.thresholds = longer});
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        sweepInPlace<T, T>(multiply, model, {.depth = Depth::quick, .values = Values::random});
    }
    sweepInPlace<T>([&](T* x, int len) { return multiply(x, x, len); },
                    [&](std::span<const T> x) { return model(x, x); }, {.thresholds = longer});
    expectChecks(multiply);
}

TEST(SpectrumProducts, ByConjugates)
{
    sweepConjugateProducts(tarnsMulPackConj_32f_I);
    sweepConjugateProducts(tarnsMulPackConj_64f_I);
}

// With itself: squared magnitudes, and imaginary parts of exactly 0.
TEST(SpectrumProducts, BySelfConjugateArePowers)
{
    const std::vector<Tarn32f> spectrum = randomValues<Tarn32f>(38, 5, Values::unit);
    for (const std::size_t n : {std::size_t{37}, std::size_t{38}}) {
        std::vector<Tarn32f> power = spectrum;
        EXPECT_EQ(tarnStsNoErr, tarnsMulPackConj_32f_I(power.data(), power.data(), static_cast<int>(n)));
        for (std::size_t k = 1; 2 * k < n; ++k) {
            const Tarn32f re = spectrum[2 * k - 1];
            const Tarn32f im = spectrum[2 * k];
            const Tarn32f squared = re * re;
            EXPECT_EQ(squared + im * im, power[2 * k - 1]);
            EXPECT_EQ(0, power[2 * k]);
        }
    }
}

// The conjugate falls on the operand in place.
TEST(SpectrumProducts, ByConjugateTakeTheirOperandsInOrder)
{
    const Tarn32f src[] = {2, 1, 2, 3};
    Tarn32f srcDst[] = {5, 3, 4, 7};
    EXPECT_EQ(tarnStsNoErr, tarnsMulPackConj_32f_I(src, srcDst, 4));
    EXPECT_EQ((std::vector<Tarn32f>{10, 11, 2, 21}), std::vector<Tarn32f>(srcDst, srcDst + 4));
}

TEST(SpectrumProducts, OfOneAndTwoSamples)
{
    const Tarn32f a[] = {3, 5, 99};
    const Tarn32f b[] = {7, 11, 99};
    Tarn32f dst[] = {1, 1, 1};
    EXPECT_EQ(tarnStsNoErr, tarnsMulPerm_32f(a, b, dst, 1));
    EXPECT_EQ((std::vector<Tarn32f>{21, 1, 1}), std::vector<Tarn32f>(dst, dst + 3));
    EXPECT_EQ(tarnStsNoErr, tarnsMulPerm_32f(a, b, dst, 2));
    EXPECT_EQ((std::vector<Tarn32f>{21, 55, 1}), std::vector<Tarn32f>(dst, dst + 3));
    EXPECT_EQ(tarnStsNoErr, tarnsMulPack_32f(a, b, dst, 2));
    EXPECT_EQ((std::vector<Tarn32f>{21, 55, 1}), std::vector<Tarn32f>(dst, dst + 3));
}

using ScaledMultiply = TarnStatus (*)(const Tarn16s*, const Tarn16s*, Tarn16s*, int, int);
using ScaledMultiplyInPlace = TarnStatus (*)(const Tarn16s*, Tarn16s*, int, int);

void sweepScaledProducts(Layout layout, ScaledMultiply multiply, ScaledMultiplyInPlace inPlace)
{
    const auto at = [&](int s, Depth depth) {
        SCOPED_TRACE(s);
        const auto model = [=](std::span<const Tarn16s> a, std::span<const Tarn16s> b) {
            return model::scaledProduct(a, b, layout, s);
        };
        const auto call = [=](const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len) {
            return multiply(a, b, dst, len, s);
        };
        const auto callInPlace = [=](const Tarn16s* src, Tarn16s* srcDst, int len) {
            return inPlace(src, srcDst, len, s);
        };
        sweepElementwise<Tarn16s, Tarn16s, Tarn16s>(call, model, {.thresholds = longer, .depth = depth});
        sweepInPlace<Tarn16s, Tarn16s>(callInPlace, model, {.thresholds = longer, .depth = depth});
        if (depth == Depth::full)
            sweepProduct<Tarn16s>(call, model, Depth::quick);
    };
    for (const int s : scaleFactors(-32, 32))
        at(s, Depth::quick);
    at(3, Depth::full);
    at(-2, Depth::full);
    expectChecks(multiply, {}, array, array, array, length, 0);
    expectChecks(inPlace, {}, array, array, length, 0);
}

TEST(SpectrumProducts, OfWordsInPermOrder)
{
    sweepScaledProducts(Layout::perm, tarnsMulPerm_16s_Sfs, tarnsMulPerm_16s_ISfs);
}

TEST(SpectrumProducts, OfWordsInPackOrder)
{
    sweepScaledProducts(Layout::pack, tarnsMulPack_16s_Sfs, tarnsMulPack_16s_ISfs);
}

std::vector<Tarn16s> wordProduct(std::vector<Tarn16s> a, const std::vector<Tarn16s>& b, int scaleFactor)
{
    const int len = static_cast<int>(a.size());
    EXPECT_EQ(tarnStsNoErr, tarnsMulPerm_16s_ISfs(b.data(), a.data(), len, scaleFactor));
    return a;
}

// Every shift to the right rounds down: -3 / 2 is -2, not the even neighbour's -1 or 0.
TEST(SpectrumProducts, OfWordsAreShiftedWithoutRounding)
{
    EXPECT_EQ((std::vector<Tarn16s>{-2, 1, -1, -1}), wordProduct({-3, 3, 1, 0}, {1, 1, -1, -2}, 1));
    EXPECT_EQ((std::vector<Tarn16s>{-1, 0, -1, -1}), wordProduct({-3, 3, 1, 0}, {1, 1, -1, -2}, INT_MAX));
}

// A real bin is limited before the shift, so that its sign survives; the sums of a pair are not.
TEST(SpectrumProducts, OfWordsShiftedLeft)
{
    const std::vector<Tarn16s> ones = {1, 1, 1, 0};
    EXPECT_EQ((std::vector<Tarn16s>{4, -8, 12, -16}), wordProduct({1, -2, 3, -4}, ones, -2));
    EXPECT_EQ((std::vector<Tarn16s>{32767, -32768, 32767, -32768}),
              wordProduct({32767, -32768, 32767, -32768}, ones, -16));
    const std::vector<Tarn16s> big = {16384, 16384, 16384, 0};
    EXPECT_EQ((std::vector<Tarn16s>{32767, -32768, 0, 0}), wordProduct({16384, -16384, 16384, -16384}, big, -4));
    EXPECT_EQ((std::vector<Tarn16s>{0, 0, 0, 0}), wordProduct({1, -2, 3, -4}, ones, INT_MIN));
}

// The one sum of products that does not fit 32 bits.
TEST(SpectrumProducts, OfWordsWrapIn32Bits)
{
    const std::vector<Tarn16s> lowest(22, -32768);
    const std::vector<Tarn16s> product = wordProduct(lowest, lowest, 20);
    EXPECT_EQ(1024, product[0]);
    for (std::size_t i = 2; i < product.size(); i += 2) {
        EXPECT_EQ(0, product[i]);
        EXPECT_EQ(-2048, product[i + 1]);
    }
}

// -- Expansion -------------------------------------------------------------------------------------------------------

template <class C>
using Expand = TarnStatus (*)(const RealOf<C>*, C*, int);
template <class C>
using ExpandInPlace = TarnStatus (*)(C*, int);

template <class C>
struct Expansion {
    Layout layout;
    Expand<C> apart;
    ExpandInPlace<C> inPlace;

    // Source and destination of one call lie at these places.
    void expectAt(std::size_t n, Placement from, Placement to) const
    {
        using T = RealOf<C>;
        const std::size_t used = model::slots(layout, n).size();
        const std::vector<T> packed = randomValues<T>(used, n);
        const std::vector<C> expected = model::expanded<C>(std::span<const T>(packed), layout, n);
        const std::string context = "n " + std::to_string(n) + ", " + toString(from) + " to " + toString(to);
        const int len = static_cast<int>(n);

        const GuardedArray<T> source(packed, from);
        GuardedArray<C> bins(n, to);
        const FpState before = FpState::current();
        ASSERT_EQ(tarnStsNoErr, apart(source.data(), bins.data(), len));
        ASSERT_TRUE(arraysMatch<C>(expected, bins, sameBits, context));
        ASSERT_TRUE(arraysMatch<T>(packed, source, sameBits, context + ", the source"));

        // In place through either function.
        for (const bool byName : {true, false}) {
            GuardedArray<C> both(n, to);
            std::memcpy(both.bytes(), packed.data(), used * sizeof(T));
            auto* reals = static_cast<T*>(static_cast<void*>(both.bytes()));
            ASSERT_EQ(tarnStsNoErr, byName ? inPlace(both.data(), len) : apart(reals, both.data(), len));
            ASSERT_TRUE(arraysMatch<C>(expected, both, sameBits, context + ", in place"));
        }
        ASSERT_EQ("", before.changesSince());
    }

    void sweep() const
    {
        for (const int len : lengths({128, 1024})) {
            const auto n = static_cast<std::size_t>(len);
            expectAt(n, Placement::atEnd(), Placement::atEnd());
            expectAt(n, Placement::atStart(), Placement::atStart());
            expectAt(n, Placement::offset(0), Placement::offset(0));
            for (unsigned byte = 0; byte < 16; ++byte) {
                expectAt(n, Placement::offset(byte), Placement::offset(n * 7 % 16));
                expectAt(n, Placement::offset(n * 5 % 16), Placement::offset(byte));
            }
            if (::testing::Test::HasFatalFailure())
                return;
        }
        expectChecks(apart);
        expectChecks(inPlace);
    }
};

TEST(SpectrumExpansion, FromPerm)
{
    Expansion<Tarn16sc>{Layout::perm, tarnsConjPerm_16sc, tarnsConjPerm_16sc_I}.sweep();
    Expansion<Tarn32fc>{Layout::perm, tarnsConjPerm_32fc, tarnsConjPerm_32fc_I}.sweep();
    Expansion<Tarn64fc>{Layout::perm, tarnsConjPerm_64fc, tarnsConjPerm_64fc_I}.sweep();
}

TEST(SpectrumExpansion, FromPack)
{
    Expansion<Tarn16sc>{Layout::pack, tarnsConjPack_16sc, tarnsConjPack_16sc_I}.sweep();
    Expansion<Tarn32fc>{Layout::pack, tarnsConjPack_32fc, tarnsConjPack_32fc_I}.sweep();
    Expansion<Tarn64fc>{Layout::pack, tarnsConjPack_64fc, tarnsConjPack_64fc_I}.sweep();
}

TEST(SpectrumExpansion, FromCcs)
{
    Expansion<Tarn16sc>{Layout::ccs, tarnsConjCcs_16sc, tarnsConjCcs_16sc_I}.sweep();
    Expansion<Tarn32fc>{Layout::ccs, tarnsConjCcs_32fc, tarnsConjCcs_32fc_I}.sweep();
    Expansion<Tarn64fc>{Layout::ccs, tarnsConjCcs_64fc, tarnsConjCcs_64fc_I}.sweep();
}

TEST(SpectrumExpansion, OfOneAndTwoBins)
{
    const Tarn32f perm[] = {3, 5};
    Tarn32fc bins[2] = {{9, 9}, {9, 9}};
    EXPECT_EQ(tarnStsNoErr, tarnsConjPerm_32fc(perm, bins, 1));
    EXPECT_TRUE(valuesMatch<Tarn32fc>({3, 0}, bins[0]));
    EXPECT_TRUE(valuesMatch<Tarn32fc>({9, 9}, bins[1]));
    EXPECT_EQ(tarnStsNoErr, tarnsConjPerm_32fc(perm, bins, 2));
    EXPECT_TRUE(valuesMatch<Tarn32fc>({3, 0}, bins[0]));
    EXPECT_TRUE(valuesMatch<Tarn32fc>({5, 0}, bins[1]));
}

TEST(SpectrumExpansion, OfCcsKeepsWhatStandsForImaginaryParts)
{
    const Tarn32f ccs[] = {1, -0.5F, 2, 3, 4, 0.25F};
    Tarn32fc bins[4];
    EXPECT_EQ(tarnStsNoErr, tarnsConjCcs_32fc(ccs, bins, 4));
    const std::vector<Tarn32fc> expected = {{1, -0.5F}, {2, 3}, {4, 0.25F}, {2, -3}};
    EXPECT_TRUE(arraysMatch<Tarn32fc>(expected.data(), bins, 4));
}

TEST(SpectrumExpansion, OfWordsSaturatesTheConjugates)
{
    const Tarn16s perm[] = {-32768, -32768, 7, -32768};
    Tarn16sc bins[4];
    EXPECT_EQ(tarnStsNoErr, tarnsConjPerm_16sc(perm, bins, 4));
    const std::vector<Tarn16sc> expected = {{-32768, 0}, {7, -32768}, {-32768, 0}, {7, 32767}};
    EXPECT_TRUE(arraysMatch<Tarn16sc>(expected.data(), bins, 4));
}

// -- Conjugates turned round -----------------------------------------------------------------------------------------

template <class C>
void sweepConjFlip(TarnStatus (*flip)(const C*, C*, int))
{
    const auto model = [](std::span<const C> src) {
        std::vector<C> dst(src.size());
        for (std::size_t i = 0; i < src.size(); ++i)
            dst[src.size() - 1 - i] = {src[i].re, model::negated(src[i].im)};
        return dst;
    };
    sweepElementwise<C, C>(flip, model, {.thresholds = longer, .match = sameBits});
    expectChecks(flip);
}

TEST(SpectrumConjFlip, TurnsRoundAndConjugates)
{
    sweepConjFlip<Tarn16sc>(tarnsConjFlip_16sc);
    sweepConjFlip<Tarn32fc>(tarnsConjFlip_32fc);
    sweepConjFlip<Tarn64fc>(tarnsConjFlip_64fc);
}

TEST(SpectrumConjFlip, OfOneElementIsTheConjugate)
{
    const Tarn32fc src{2, 3};
    Tarn32fc dst;
    EXPECT_EQ(tarnStsNoErr, tarnsConjFlip_32fc(&src, &dst, 1));
    EXPECT_TRUE(valuesMatch<Tarn32fc>({2, -3}, dst));
}

} // namespace
} // namespace tarn::test
