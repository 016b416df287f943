// Orders beyond what the other tests reach: columns that are long enough for arrays of their own, and rows that are cut
// once more. The signals are impulses, whose spectra are known at every bin.
#include "model/fft.h"
#include "support/compare.h"
#include "support/sweep.h"
#include "tarns/fft.h"
#include "tarns/memory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>

namespace tarn::test {
namespace {

struct FreeBlock {
    void operator()(void* block) const { tarnsFree(block); }
};

template <class Pair>
struct Calls;
template <>
struct Calls<Tarn32fc> {
    using Spec = TarnsFFTSpec_C_32fc;
    static constexpr auto create = tarnsFFTInitAlloc_C_32fc;
    static constexpr auto free = tarnsFFTFree_C_32fc;
    static constexpr auto getBufSize = tarnsFFTGetBufSize_C_32fc;
    static constexpr auto forward = tarnsFFTFwd_CToC_32fc;
    static constexpr auto inverse = tarnsFFTInv_CToC_32fc;
    static Tarn32fc* allocate(int len) { return tarnsMalloc_32fc(len); }
};
template <>
struct Calls<Tarn64fc> {
    using Spec = TarnsFFTSpec_C_64fc;
    static constexpr auto create = tarnsFFTInitAlloc_C_64fc;
    static constexpr auto free = tarnsFFTFree_C_64fc;
    static constexpr auto getBufSize = tarnsFFTGetBufSize_C_64fc;
    static constexpr auto forward = tarnsFFTFwd_CToC_64fc;
    static constexpr auto inverse = tarnsFFTInv_CToC_64fc;
    static Tarn64fc* allocate(int len) { return tarnsMalloc_64fc(len); }
};

// Transforms two impulses in place there and back. Every bin near the ends and around the borders of rows is looked at,
// and a sample of the others.
template <class Pair>
void expectSpectrumOfImpulses(int order, int bufSize)
{
    using C = Calls<Pair>;
    using Real = decltype(Pair::re);
    const std::size_t size = std::size_t{1} << order;
    typename C::Spec* spec = nullptr;
    const TarnStatus created = C::create(&spec, order, TARN_FFT_DIV_INV_BY_N, tarnAlgHintNone);
    const std::unique_ptr<Pair[], FreeBlock> data(C::allocate(static_cast<int>(size)));
    if (created == tarnStsNoMemErr || !data) {
        if (spec)
            C::free(spec);
        GTEST_SKIP() << "not enough memory for order " << order;
    }
    ASSERT_EQ(tarnStsNoErr, created);
    int bytes = 0;
    EXPECT_EQ(tarnStsNoErr, C::getBufSize(spec, &bytes));
    EXPECT_EQ(bufSize, bytes);

    const std::size_t first = size / 3;
    const std::size_t second = 5;
    std::memset(static_cast<void*>(data.get()), 0, size * sizeof(Pair));
    data[first] = {1, Real(0.5)};
    data[second] = {Real(-0.25), 2};
    EXPECT_EQ(tarnStsNoErr, C::forward(data.get(), data.get(), spec, nullptr));
    const auto turnsOf = [=](std::size_t n, std::size_t k) {
        return static_cast<std::size_t>(std::uint64_t{n} * k % size);
    };
    const double tolerance = 40 * std::numeric_limits<Real>::epsilon();
    for (std::size_t k = 0; k < size; k += (k & 0xFFF) < 8 ? 1 : 509) {
        const model::Bin a = model::product({1, 0.5L}, model::turn(-1, turnsOf(first, k), size));
        const model::Bin b = model::product({-0.25L, 2}, model::turn(-1, turnsOf(second, k), size));
        ASSERT_NEAR(static_cast<double>(a.re + b.re), static_cast<double>(data[k].re), tolerance) << "bin " << k;
        ASSERT_NEAR(static_cast<double>(a.im + b.im), static_cast<double>(data[k].im), tolerance) << "bin " << k;
    }
    EXPECT_EQ(tarnStsNoErr, C::inverse(data.get(), data.get(), spec, nullptr));
    for (std::size_t n = 0; n < size; n += (n & 0xFFF) < 8 ? 1 : 509) {
        const Pair expected = n == second ? Pair{Real(-0.25), 2} : Pair{0, 0};
        ASSERT_NEAR(static_cast<double>(expected.re), static_cast<double>(data[n].re), tolerance) << "sample " << n;
        ASSERT_NEAR(static_cast<double>(expected.im), static_cast<double>(data[n].im), tolerance) << "sample " << n;
    }
    ASSERT_NEAR(1, static_cast<double>(data[first].re), tolerance);
    ASSERT_NEAR(0.5, static_cast<double>(data[first].im), tolerance);
    EXPECT_EQ(tarnStsNoErr, C::free(spec));
}

TEST(FftLarge, ColumnsOf64Rows) { expectSpectrumOfImpulses<Tarn32fc>(22, (32 << 6) + 0x80010); }
TEST(FftLarge, ColumnsOf4096Rows) { expectSpectrumOfImpulses<Tarn32fc>(23, (32 << 12) + 0x80010); }
TEST(FftLarge, ColumnsOf1024RowsInDoublePrecision) { expectSpectrumOfImpulses<Tarn64fc>(22, (64 << 10) + 0x40010); }
TEST(FftLarge, RowsOf64ColumnsThatAreCutOnceMore) { expectSpectrumOfImpulses<Tarn64fc>(21, (64 << 6) + 0x40010); }
TEST(FftLarge, RowsThatAreCutOnceMore)
{
    if (sweepsAreQuick())
        GTEST_SKIP() << "half a gigabyte, and a shadow for each of its bytes";
    expectSpectrumOfImpulses<Tarn64fc>(25, (64 << 10) + 0x40010);
}

} // namespace
} // namespace tarn::test
