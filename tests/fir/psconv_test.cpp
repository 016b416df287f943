// Convolution by its three methods, and the cyclic ones.
#include "tarns/convolution.h"

#include "model/fir.h"
#include "support/checks.h"
#include "support/compare.h"
#include "support/fir_tails.h"
#include "support/memory_watch.h"
#include "support/processes.h"
#include "support/sliding_calls.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <limits>

namespace tarn::test {
namespace {

std::vector<SlidingCall> convolutions()
{
    return {slidingCall<Tarn32f>("32f", [](const auto* x, int xLen, const auto* y, int yLen, auto* dst, int,
                                           auto) { return tarnsConv_32f(x, xLen, y, yLen, dst); }),
            slidingCall<Tarn64f>("64f", [](const auto* x, int xLen, const auto* y, int yLen, auto* dst, int,
                                           auto) { return tarnsConv_64f(x, xLen, y, yLen, dst); }),
            slidingCall<Tarn16s>(
                "16s", [](const auto* x, int xLen, const auto* y, int yLen, auto* dst, int, SlidingOptions options) {
                    return tarnsConv_16s_Sfs(x, xLen, y, yLen, dst, options.scaleFactor);
                })};
}

// 16-bit results of the vectors below are within the range then.
constexpr int scale = 14;

Sequence convolve(const SlidingCall& call, const Sequence& x, const Sequence& y, unsigned gap = 0)
{
    Sequence results(x.size() + y.size() - 1, 77);
    EXPECT_EQ(tarnStsNoErr, call.run(x, y, results, {.scaleFactor = scale, .gap = gap}));
    return results;
}

Sequence scaledTo16Bits(Sequence sums, int scaleFactor)
{
    for (auto& sum : sums)
        sum = fir::rounded<Tarn16s>(static_cast<long double>(sum.real()), scaleFactor);
    return sums;
}

// As the direct method gives it.
Sequence direct(const SlidingCall& call, const Sequence& x, const Sequence& y)
{
    const Sequence results = x.size() >= y.size() ? model::convolveInOrder(x, y, call.precision)
                                                  : model::convolveInOrder(y, x, call.precision);
    return call.isInteger ? scaledTo16Bits(results, scale) : results;
}

// Whether the results are exact up to what transforms of so many points do.
::testing::AssertionResult agreeByTransforms(const SlidingCall& call, const Sequence& x, const Sequence& y,
                                             const Sequence& results, double points)
{
    const double bound = model::transformBound(x, y, points, call.precision);
    const Sequence exact = model::exactConvolution(x, y);
    if (!call.isInteger)
        return agree(exact, results, bound);
    return agree(scaledTo16Bits(exact, scale), results, std::ldexp(bound, -scale) < 0.5 ? 1 : 2);
}

// -- Methods ----------------------------------------------------------------------------------------------------------

TEST(ConvTest, SumsInTheStatedOrder)
{
    for (const SlidingCall& call : convolutions()) {
        std::uint64_t seed = 1;
        for (const auto& [a, b] :
             {std::pair{1, 1}, {2, 1},     {3, 3},     {7, 5},     {8, 8},     {9, 4},     {16, 15},   {31, 17},
              {33, 32},        {40, 1},    {64, 63},   {100, 7},   {200, 64},  {255, 256}, {256, 256}, {300, 211},
              {511, 1},        {1000, 63}, {4095, 63}, {4096, 63}, {4097, 63}, {4158, 33}, {8192, 3},  {9000, 62}}) {
            const Sequence x = noise(call, static_cast<std::size_t>(a), ++seed);
            const Sequence y = noise(call, static_cast<std::size_t>(b), ++seed);
            ASSERT_TRUE(agree(direct(call, x, y), convolve(call, x, y, a % 16U))) << call.name << " " << a << ", " << b;
            ASSERT_TRUE(agree(direct(call, y, x), convolve(call, y, x, b % 16U))) << call.name << " " << b << ", " << a;
        }
    }
}

TEST(ConvTest, HasEveryLengthUpToSomeVectors)
{
    for (const SlidingCall& call : convolutions())
        for (std::size_t a = 1; a <= 36; ++a)
            for (std::size_t b = 1; b <= a; ++b) {
                const Sequence x = noise(call, a, a);
                const Sequence y = noise(call, b, 100 + b);
                ASSERT_TRUE(agree(direct(call, x, y), convolve(call, x, y))) << call.name << " " << a << ", " << b;
            }
}

struct Lengths {
    int a;
    int b;
    double points; ///< of the transforms, 0 for the direct method
};

// The methods are told apart by their bits, and by what an infinity reaches below.
TEST(ConvTest, ChoosesTheMethodByTheLengths)
{
    const Lengths cases[] = {{448, 64, 0},       {449, 64, 256},    {447, 65, 0},      {448, 65, 512},
                             {256, 256, 0},      {256, 257, 1024},  {300, 213, 1024},  {5000, 63, 0},
                             {5000, 64, 256},    {50000, 63, 0},    {767, 256, 1024},  {768, 256, 1024},
                             {2000, 667, 4096},  {2001, 667, 4096}, {4096, 200, 1024}, {4097, 200, 1024},
                             {9000, 1025, 8192}, {3072, 1024, 4096}};
    for (const SlidingCall& call : convolutions())
        for (const auto& [a, b, points] : cases) {
            const Sequence x = noise(call, static_cast<std::size_t>(a), 3);
            const Sequence y = noise(call, static_cast<std::size_t>(b), 4);
            const Sequence results = convolve(call, x, y, a % 16U);
            const bool sameBits = static_cast<bool>(agree(direct(call, x, y), results));
            if (points == 0) {
                ASSERT_TRUE(sameBits) << call.name << " " << a << ", " << b;
            } else {
                EXPECT_TRUE(call.isInteger || !sameBits) << call.name << " " << a << ", " << b;
                ASSERT_TRUE(agreeByTransforms(call, x, y, results, points)) << call.name << " " << a << ", " << b;
            }
            if (a != b || points != 0) {
                ASSERT_TRUE(agree(results, convolve(call, y, x))) << call.name << " swapped " << a << ", " << b;
            }
        }
}

// The outputs that a NaN in the longer vector reaches: first and last.
std::pair<int, int> reach(int aLen, int bLen, int place)
{
    std::vector<Tarn32f> a(static_cast<std::size_t>(aLen), 1.0F);
    const std::vector<Tarn32f> b(static_cast<std::size_t>(bLen), 1.0F);
    std::vector<Tarn32f> dst(a.size() + b.size() - 1);
    a[static_cast<std::size_t>(place)] = std::numeric_limits<Tarn32f>::quiet_NaN();
    EXPECT_EQ(tarnStsNoErr, tarnsConv_32f(a.data(), aLen, b.data(), bLen, dst.data()));
    int first = -1;
    int last = -1;
    for (std::size_t k = 0; k < dst.size(); ++k)
        if (std::isnan(dst[k])) {
            first = first < 0 ? static_cast<int>(k) : first;
            last = static_cast<int>(k);
        }
    return {first, last};
}

TEST(ConvTest, SpreadsNaNsOverWhatIsComputedTogether)
{
    using Pair = std::pair<int, int>;
    EXPECT_EQ(Pair(100, 162), reach(6000, 63, 100));    // direct: what it is part of
    EXPECT_EQ(Pair(4090, 4152), reach(6000, 63, 4090)); // across a chunk's end
    EXPECT_EQ(Pair(0, 1021), reach(767, 256, 700));     // one transform: everything
    // Overlap-save: blocks of 1024 with 769 outputs, the first of them with no history.
    EXPECT_EQ(Pair(0, 768), reach(768, 256, 100));
    EXPECT_EQ(Pair(0, 1022), reach(768, 256, 600));
    // Blocks of 256 with 193 outputs. Sample 192 is the last new one of block 0 and history of block 1.
    EXPECT_EQ(Pair(0, 192), reach(5000, 64, 129));
    EXPECT_EQ(Pair(0, 385), reach(5000, 64, 192));
    EXPECT_EQ(Pair(193, 385), reach(5000, 64, 193));
    EXPECT_EQ(Pair(193 * 25, 5062), reach(5000, 64, 4999));
    EXPECT_EQ(Pair(0, 385), reach(1000, 64, 192));
}

// -- Threads ----------------------------------------------------------------------------------------------------------

TEST(ConvTest, GivesTheSameBitsOnAnyNumberOfThreads)
{
    for (const SlidingCall& call : convolutions())
        for (const auto& [a, b] : {std::pair{4097, 64}, {20000, 150}, {90000, 700}}) {
            const Sequence x = noise(call, static_cast<std::size_t>(a), 5);
            const Sequence y = noise(call, static_cast<std::size_t>(b), 6);
            const RoundingModeScope rounding(a == 20000 ? RoundingMode::up : RoundingMode::nearest);
            Sequence expected;
            for (int threads : {1, 2, 4}) {
                const ThreadsScope scope(threads);
                const Sequence results = convolve(call, x, y);
                if (threads == 1)
                    expected = results;
                ASSERT_TRUE(agree(expected, results)) << call.name << " " << a << ", " << threads << " threads";
            }
        }
}

// How many threads a new process has more after a call.
template <class T, class Call>
void expectThreads(int more, int a, int b, Call call)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            const ThreadsScope scope(2);
            const std::vector<T> x(static_cast<std::size_t>(a));
            const std::vector<T> y(static_cast<std::size_t>(b));
            std::vector<T> dst(x.size() + y.size());
            const int before = threadsOfProcess();
            call(x.data(), a, y.data(), b, dst.data());
            std::_Exit(threadsOfProcess() - before);
        },
        ::testing::ExitedWithCode(more), "");
}

TEST(ConvTest, TakesThreadsForMuchWorkButNeverIn16Bits)
{
    const auto conv16s = [](auto... arguments) { tarnsConv_16s_Sfs(arguments..., 0); };
    expectThreads<Tarn32f>(1, 300000, 500, tarnsConv_32f);
    expectThreads<Tarn64f>(1, 300000, 500, tarnsConv_64f);
    expectThreads<Tarn16s>(0, 300000, 500, conv16s);
    expectThreads<Tarn32f>(0, 4096, 1300, tarnsConv_32f);
    expectThreads<Tarn32f>(0, 1000000, 20, tarnsConv_32f);
}

// -- 16 bits ----------------------------------------------------------------------------------------------------------

TEST(ConvTest, RoundsAndSaturates16BitResults)
{
    const auto run = [](std::vector<Tarn16s> x, std::vector<Tarn16s> y, int scaleFactor) {
        std::vector<Tarn16s> dst(x.size() + y.size() - 1);
        EXPECT_EQ(tarnStsNoErr, tarnsConv_16s_Sfs(x.data(), static_cast<int>(x.size()), y.data(),
                                                  static_cast<int>(y.size()), dst.data(), scaleFactor));
        return dst;
    };
    using V = std::vector<Tarn16s>;
    EXPECT_EQ(V({6}), run({2}, {3}, 0));
    EXPECT_EQ(V({32767, 30000, -32768}), run({300, -300}, {200, 300}, 0));
    EXPECT_EQ(V({0, 2, 2, 4, -2}), run({1, 3, 5, 7, -3}, {1}, 1)); // ties to even
    EXPECT_EQ(V({32767, -32768, 0}), run({1, -1, 0}, {1}, -15));
    EXPECT_EQ(V({0, 0}), run({32767, -32768}, {1}, 100));
    EXPECT_EQ(V({32767, -32768, 0}), run({1, -1, 0}, {1}, -100));
    // 32767^2 + 1 is no single-precision number: 2^24 and less are exact, and sums are rounded before they are scaled.
    EXPECT_EQ(V({16383}), run({32767}, {32767}, 16));
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        EXPECT_EQ(V({0, 2, 2, 4, -2}), run({1, 3, 5, 7, -3}, {1}, 1));
        // On the other two methods as well, whose sums are exact up to rounding.
        for (std::size_t len : {300U, 700U, 5000U}) {
            V x(len);
            V unit(230);
            x[7] = 5;
            unit[3] = 1;
            const V results = run(x, unit, 2);
            EXPECT_EQ(1, results[10]);
            EXPECT_EQ(0, results[11]);
        }
    }
}

// Transforms of large 16-bit values: of one sample alone, at the limits, the error is far below a unit.
TEST(ConvTest, Saturates16BitResultsOfTransforms)
{
    for (std::size_t len : {300U, 2000U, 10000U}) {
        std::vector<Tarn16s> x(len);
        std::vector<Tarn16s> y(250);
        x[10] = 32767;
        x[len - 1] = -32768;
        y[0] = 2;
        y[249] = 1;
        std::vector<Tarn16s> dst(len + 249);
        ASSERT_EQ(tarnStsNoErr, tarnsConv_16s_Sfs(x.data(), static_cast<int>(len), y.data(), 250, dst.data(), 0));
        EXPECT_EQ(32767, dst[10]);
        EXPECT_EQ(32767, dst[259]);
        EXPECT_EQ(-32768, dst[len - 1]);
        EXPECT_EQ(-32768, dst[len + 248]);
        EXPECT_EQ(0, dst[100]);
    }
}

// -- Checks and memory ------------------------------------------------------------------------------------------------

TEST(ConvTest, ChecksItsArguments)
{
    expectChecks(tarnsConv_32f, {}, array, length, array, length, array);
    expectChecks(tarnsConv_64f, {}, array, length, array, length, array);
    expectChecks(tarnsConv_16s_Sfs, {}, array, length, array, length, array, 0);
    constexpr int largest = std::numeric_limits<int>::max();
    auto* const none = unreadable<Tarn32f>();
    EXPECT_EQ(tarnStsSizeErr, tarnsConv_32f(none, largest, none, 2, none));
    EXPECT_EQ(tarnStsSizeErr, tarnsConv_32f(none, 2, none, largest, none));
    EXPECT_EQ(tarnStsFftOrderErr, tarnsConv_32f(none, largest / 2 + 1, none, largest / 2 + 1, none));
    EXPECT_EQ(tarnStsFftOrderErr, tarnsConv_32f(none, largest - 500000000, none, 500000000, none));
}

TEST(ConvTest, KeepsNothingWhenMemoryIsRefused)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    const ThreadsScope scope(1);
    const auto expectRefusals = [](auto call, int a, int b, bool allocates) {
        using T = std::remove_const_t<std::remove_pointer_t<decltype(call(nullptr, 0, nullptr, 0, nullptr).second)>>;
        const std::vector<T> x(static_cast<std::size_t>(a), T{1});
        const std::vector<T> y(static_cast<std::size_t>(b), T{1});
        std::vector<T> dst(x.size() + y.size() - 1);
        int needed = 0;
        for (int allowed = -1; allowed < needed; ++allowed) {
            std::fill(dst.begin(), dst.end(), T{-77});
            int status = 0;
            int outstanding = 0;
            {
                const MemoryWatch watch(allowed < 0 ? 1000 : allowed);
                status = call(x.data(), a, y.data(), b, dst.data()).first;
                outstanding = watch.outstanding();
                if (allowed < 0)
                    needed = watch.allocated();
            }
            EXPECT_EQ(allowed < 0 ? tarnStsNoErr : tarnStsNoMemErr, status) << a << ", " << b << ": " << allowed;
            EXPECT_EQ(0, outstanding) << a << ", " << b << ": " << allowed;
            EXPECT_EQ(allowed < 0 ? 0 : static_cast<std::ptrdiff_t>(dst.size()),
                      std::count(dst.begin(), dst.end(), T{-77}));
        }
        EXPECT_EQ(allocates, needed > 0);
    };
    const auto conv32f = [](const Tarn32f* x, int xLen, const Tarn32f* y, int yLen, Tarn32f* dst) {
        return std::pair(tarnsConv_32f(x, xLen, y, yLen, dst), dst);
    };
    const auto conv64f = [](const Tarn64f* x, int xLen, const Tarn64f* y, int yLen, Tarn64f* dst) {
        return std::pair(tarnsConv_64f(x, xLen, y, yLen, dst), dst);
    };
    const auto conv16s = [](const Tarn16s* x, int xLen, const Tarn16s* y, int yLen, Tarn16s* dst) {
        return std::pair(tarnsConv_16s_Sfs(x, xLen, y, yLen, dst, 0), dst);
    };
    for (const auto& [a, b] : {std::pair{500, 300}, {1000, 100}, {5000, 100}, {100, 10}}) {
        expectRefusals(conv32f, a, b, b > 10);
        expectRefusals(conv64f, a, b, b > 10);
        expectRefusals(conv16s, a, b, true);
    }
}

// -- Cyclic convolutions ----------------------------------------------------------------------------------------------

// The sum of pSrc1[i] pSrc2[(k - i) mod N] in the order of i.
template <class T, class S, std::size_t N>
std::array<S, N> cyclic(const std::array<T, N>& x, const std::array<S, N>& y)
{
    std::array<S, N> results;
    for (std::size_t k = 0; k < N; ++k) {
        S sum{};
        for (std::size_t i = 0; i < N; ++i) {
            const S s = y[(k + N - i) % N];
            if constexpr (ComplexElement<S>) {
                const volatile T re = x[i] * s.re;
                const volatile T im = x[i] * s.im;
                sum = i == 0 ? S{re, im} : S{sum.re + re, sum.im + im};
            } else {
                const volatile T product = x[i] * s;
                sum = i == 0 ? S{product} : sum + product;
            }
        }
        results[k] = sum;
    }
    return results;
}

template <class T, class S, std::size_t N>
void expectCyclic(TarnStatus (*function)(const T*, const S*, S*))
{
    for (unsigned gap = 0; gap < 20; ++gap) {
        GuardedArray<T> x(N, Placement::atEnd(gap));
        GuardedArray<S> y(N, Placement::atStart(gap * 3 % 17));
        GuardedArray<S> dst(N, Placement::offset(gap * 7 % 32));
        randomFill(x, gap, Values::unit);
        randomFill(y, gap + 100, Values::unit);
        std::array<T, N> xs;
        std::array<S, N> ys;
        std::copy_n(x.copy().begin(), N, xs.begin());
        std::copy_n(y.copy().begin(), N, ys.begin());
        const auto expected = cyclic(xs, ys);
        ASSERT_EQ(tarnStsNoErr, function(x.data(), y.data(), dst.data()));
        ASSERT_TRUE(arraysMatch<S>(expected.data(), dst.data(), N)) << gap;
        ASSERT_EQ(tarnStsNoErr, function(x.data(), y.data(), y.data()));
        ASSERT_TRUE(arraysMatch<S>(expected.data(), y.data(), N)) << "in place, " << gap;
        if constexpr (std::is_same_v<T, S>) {
            y.assign(ys);
            ASSERT_EQ(tarnStsNoErr, function(x.data(), y.data(), x.data()));
            ASSERT_TRUE(arraysMatch<S>(expected.data(), x.data(), N)) << "in place of the first, " << gap;
        }
    }
}

TEST(ConvCyclicTest, SumsFloatsInOrder)
{
    expectCyclic<Tarn32f, Tarn32f, 8>(tarnsConvCyclic8x8_32f);
    expectCyclic<Tarn32f, Tarn32fc, 4>(tarnsConvCyclic4x4_32f32fc);
}

Tarn16s cyclic16s(const std::vector<Tarn16s>& x, const std::vector<Tarn16s>& y, std::size_t k, int scaleFactor)
{
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < 8; ++i)
        sum += static_cast<std::uint32_t>(x[i] * y[(k + 8 - i) % 8]);
    const auto wrapped = static_cast<std::int64_t>(std::bit_cast<std::int32_t>(sum));
    std::int64_t scaled = 0;
    if (scaleFactor > 0)
        scaled = wrapped >> std::min(scaleFactor, 40);
    else if (scaleFactor > -32)
        scaled = std::bit_cast<std::int32_t>(static_cast<std::uint32_t>(wrapped << -scaleFactor));
    return static_cast<Tarn16s>(std::clamp<std::int64_t>(scaled, -32768, 32767));
}

TEST(ConvCyclicTest, ShiftsAndSaturates16Bits)
{
    for (int scaleFactor : {0,     1,
                            2,     3,
                            7,     15,
                            16,    30,
                            31,    32,
                            33,    64,
                            1000,  std::numeric_limits<int>::max(),
                            -1,    -2,
                            -5,    -16,
                            -31,   -32,
                            -33,   -64,
                            -1000, std::numeric_limits<int>::min()}) {
        for (unsigned gap = 0; gap < 12; ++gap) {
            GuardedArray<Tarn16s> x(8, Placement::atEnd(gap));
            GuardedArray<Tarn16s> y(8, Placement::atStart(gap * 3 % 17));
            GuardedArray<Tarn16s> dst(8, Placement::offset(gap * 7 % 32));
            randomFill(x, gap, gap % 3 == 0 ? Values::hard : Values::unit);
            randomFill(y, gap + 50, gap % 2 == 0 ? Values::hard : Values::unit);
            if (gap == 11) // every product is 2^30, and their sum 2^33
                for (std::size_t i = 0; i < 8; ++i) {
                    x.set(i, -32768);
                    y.set(i, -32768);
                }
            const auto xs = x.copy();
            const auto ys = y.copy();
            std::vector<Tarn16s> expected;
            for (std::size_t k = 0; k < 8; ++k)
                expected.push_back(cyclic16s(xs, ys, k, scaleFactor));
            ASSERT_EQ(tarnStsNoErr, tarnsConvCyclic8x8_16s_Sfs(x.data(), y.data(), dst.data(), scaleFactor));
            ASSERT_TRUE(arraysMatch(expected, dst)) << scaleFactor;
            ASSERT_EQ(tarnStsNoErr, tarnsConvCyclic8x8_16s_Sfs(x.data(), y.data(), x.data(), scaleFactor));
            ASSERT_TRUE(arraysMatch(expected, x)) << scaleFactor;
        }
    }
}

TEST(ConvCyclicTest, ShiftsTowardsMinusInfinity)
{
    const Tarn16s x[8] = {1};
    const Tarn16s y[8] = {-1, 1, -3, 3, -32768, 32767, 0, -2};
    Tarn16s dst[8];
    ASSERT_EQ(tarnStsNoErr, tarnsConvCyclic8x8_16s_Sfs(x, y, dst, 1));
    EXPECT_EQ((std::vector<Tarn16s>{-1, 0, -2, 1, -16384, 16383, 0, -1}), std::vector<Tarn16s>(dst, dst + 8));
}

} // namespace
} // namespace tarn::test
