// Quotients of two vectors, with the steps of long arrays and what zero divisors give.
#include "tarns/divide.h"

#include "model/quotient.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/scaled.h"

#include <set>

namespace tarn::test {
namespace {

constexpr std::size_t shortest = 32;

int statusOf(bool zero) { return zero ? tarnStsDivByZero : tarnStsNoErr; }

/// Elements with their statuses as a whole array with one.
template <class T>
Outcome<std::vector<T>> combined(const std::vector<model::Quotient<T>>& quotients)
{
    Outcome<std::vector<T>> all;
    for (const auto& [value, zero] : quotients) {
        all.value.push_back(value);
        if (zero)
            all.status = tarnStsDivByZero;
    }
    return all;
}

/// Hard values, and more of them that are not zero, so that groups come through both ways.
template <class T>
Columns<T, T> floatColumns()
{
    auto columns = makeColumns<T, T>();
    auto& divisors = std::get<0>(columns);
    for (std::size_t i = 0; i < divisors.size(); ++i)
        if (divisors[i] == 0 && i % 5 != 0)
            divisors[i] = static_cast<T>(1 + static_cast<int>(i % 7));
    return columns;
}

template <class T, class Steps>
void sweepFloats(TarnStatus (*divide)(const T*, const T*, T*, int), TarnStatus (*inPlace)(const T*, T*, int),
                 Steps steps)
{
    const auto model = [=](std::span<const T> d, std::span<const T> n) {
        return combined(model::quotientsInGroups(d, n, shortest, steps));
    };
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        const Depth depth = mode == RoundingMode::nearest ? Depth::full : Depth::quick;
        sweepElementwise<T, T, T>(divide, model, {.thresholds = {32, 40}, .depth = depth}, floatColumns<T>());
        sweepInPlace<T, T>(inPlace, model, {.thresholds = {32, 40}, .depth = Depth::quick}, floatColumns<T>());
    }
}

TEST(Division, SinglePrecisionBySteps) { sweepFloats(tarnsDiv_32f, tarnsDiv_32f_I, model::refinedQuotient); }

TEST(Division, DoublePrecision)
{
    sweepFloats(tarnsDiv_64f, tarnsDiv_64f_I, [](double d, double n) {
        volatile double quotient = n / d;
        return quotient;
    });
}

TEST(Division, LongArraysDifferInTheLastBits)
{
    const std::vector<Tarn32f> threes(64, 3);
    const std::vector<Tarn32f> ones(64, 1);
    std::vector<Tarn32f> quotients(64);
    EXPECT_EQ(tarnStsNoErr, tarnsDiv_32f(threes.data(), ones.data(), quotients.data(), 3));
    EXPECT_EQ(1.0F / 3, quotients[0]);
    EXPECT_EQ(tarnStsNoErr, tarnsDiv_32f(threes.data(), ones.data(), quotients.data(), 64));
    EXPECT_EQ(model::refinedQuotient(3, 1), quotients[0]);
    EXPECT_NEAR(1.0F / 3, quotients[0], 1e-7);
}

TEST(Division, ZeroDivisorsOfFloats)
{
    for (const Tarn32f zero : {0.0F, -0.0F}) {
        const Tarn32f divisors[] = {zero, zero, zero, 2};
        const Tarn32f dividends[] = {1, -1, 0, 3};
        Tarn32f quotients[4];
        EXPECT_EQ(tarnStsDivByZero, tarnsDiv_32f(divisors, dividends, quotients, 4));
        EXPECT_TRUE(valuesMatch<Tarn32f>(tarnConstantOfINF_32f, quotients[0]));
        EXPECT_TRUE(valuesMatch<Tarn32f>(tarnConstantOfINF_NEG_32f, quotients[1]));
        EXPECT_EQ(0xFFC00000U, std::bit_cast<std::uint32_t>(quotients[2]));
        EXPECT_EQ(1.5F, quotients[3]);
    }
}

// A NaN counts as zero where elements are divided by themselves, and only there.
TEST(Division, NanDivisors)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    std::vector<Tarn32f> divisors(64, 2);
    const std::vector<Tarn32f> dividends(64, -1);
    std::vector<Tarn32f> quotients(64);
    divisors[5] = nan;
    EXPECT_EQ(tarnStsNoErr, tarnsDiv_32f(divisors.data(), dividends.data(), quotients.data(), 64));
    EXPECT_TRUE(std::isnan(quotients[5]));
    EXPECT_EQ(tarnStsDivByZero, tarnsDiv_32f(divisors.data(), dividends.data(), quotients.data(), 31));
    EXPECT_EQ(-std::numeric_limits<float>::infinity(), quotients[5]);
    divisors[6] = 0;
    EXPECT_EQ(tarnStsDivByZero, tarnsDiv_32f(divisors.data(), dividends.data(), quotients.data(), 64));
    EXPECT_EQ(-std::numeric_limits<float>::infinity(), quotients[5]);
}

template <class T>
Outcome<T> complexModel(T divisor, T dividend)
{
    using R = RealOf<T>;
    const auto q = model::complexQuotient(divisor.re, divisor.im, dividend.re, dividend.im);
    volatile R re = static_cast<R>(q.re);
    volatile R im = static_cast<R>(q.im);
    return {T{re, im}, statusOf(q.zero)};
}

TEST(Division, ComplexFloats)
{
    const auto sweep = []<class T>(TarnStatus (*divide)(const T*, const T*, T*, int),
                                   TarnStatus (*inPlace)(const T*, T*, int)) {
        sweepElementwise<T, T, T>(divide, complexModel<T>, {.thresholds = {32, 40}});
        sweepInPlace<T, T>(inPlace, complexModel<T>, {.thresholds = {32, 40}, .depth = Depth::quick});
    };
    sweep(tarnsDiv_32fc, tarnsDiv_32fc_I);
    sweep(tarnsDiv_64fc, tarnsDiv_64fc_I);
    const RoundingModeScope scope(RoundingMode::up);
    sweep(tarnsDiv_32fc, tarnsDiv_32fc_I);
    sweep(tarnsDiv_64fc, tarnsDiv_64fc_I);
}

TEST(Division, ComplexWords)
{
    for (const int s : scaleFactors(-16, 16)) {
        SCOPED_TRACE(s);
        const auto model = [s](Tarn16sc divisor, Tarn16sc dividend) {
            const auto q = model::complexQuotient(divisor.re, divisor.im, dividend.re, dividend.im);
            if (q.zero)
                return Outcome<Tarn16sc>{
                    {model::boundOverZero<Tarn16s>(dividend.re), model::boundOverZero<Tarn16s>(dividend.im)},
                    tarnStsDivByZero};
            const double factor = model::factorOf(s);
            return Outcome<Tarn16sc>{{model::nearest<Tarn16s>(q.re * factor), model::nearest<Tarn16s>(q.im * factor)}};
        };
        const Depth depth = s == 0 ? Depth::full : Depth::quick;
        sweepElementwise<Tarn16sc, Tarn16sc, Tarn16sc>(
            [s](auto... arguments) { return tarnsDiv_16sc_Sfs(arguments..., s); }, model, {.depth = depth});
        sweepInPlace<Tarn16sc, Tarn16sc>([s](auto... arguments) { return tarnsDiv_16sc_ISfs(arguments..., s); }, model,
                                         {.depth = Depth::quick});
    }
}

TEST(Division, Of32Bits)
{
    for (const int s : scaleFactors(-32, 33)) {
        SCOPED_TRACE(s);
        const auto model = [s](Tarn32s divisor, Tarn32s dividend) {
            const auto [value, zero] = model::quotientOf32s(divisor, dividend, s);
            return Outcome<Tarn32s>{value, statusOf(zero)};
        };
        const Depth depth = s == 0 ? Depth::full : Depth::quick;
        sweepElementwise<Tarn32s, Tarn32s, Tarn32s>(
            [s](auto... arguments) { return tarnsDiv_32s_Sfs(arguments..., s); }, model,
            {.thresholds = {12}, .depth = depth});
        sweepInPlace<Tarn32s, Tarn32s>([s](auto... arguments) { return tarnsDiv_32s_ISfs(arguments..., s); }, model,
                                       {.depth = Depth::quick});
    }
}

// Every pair of bytes, in every rounding mode.
TEST(Division, OfBytes)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const int s : mode == RoundingMode::nearest ? scaleFactors(-8, 9) : std::vector<int>{0, 2, -3}) {
            SCOPED_TRACE(s);
            const auto model = [s](Tarn8u divisor, Tarn8u dividend) {
                const auto [value, zero] = model::byteQuotient(divisor, dividend, s);
                return Outcome<Tarn8u>{value, statusOf(zero)};
            };
            sweepElementwise<Tarn8u, Tarn8u, Tarn8u>(
                [s](auto... arguments) { return tarnsDiv_8u_Sfs(arguments..., s); }, model, {.depth = Depth::quick});
            sweepInPlace<Tarn8u, Tarn8u>([s](auto... arguments) { return tarnsDiv_8u_ISfs(arguments..., s); }, model,
                                         {.depth = Depth::quick});
        }
    }
}

TEST(Division, BytesByReciprocalsOfSixDecimals)
{
    std::vector<Tarn8u> divisors, dividends, expected;
    for (int d = 1; d < 256; ++d)
        for (int n = 0; n < 256; ++n) {
            divisors.push_back(static_cast<Tarn8u>(d));
            dividends.push_back(static_cast<Tarn8u>(n));
            expected.push_back(model::byteQuotient(static_cast<Tarn8u>(d), static_cast<Tarn8u>(n), -7).value);
        }
    std::vector<Tarn8u> actual(expected.size());
    EXPECT_EQ(tarnStsNoErr,
              tarnsDiv_8u_Sfs(divisors.data(), dividends.data(), actual.data(), static_cast<int>(actual.size()), -7));
    EXPECT_EQ(expected, actual);
    EXPECT_EQ(0.333333F, model::decimalReciprocal(3));
    EXPECT_EQ(0.007813F, model::decimalReciprocal(128));
    EXPECT_EQ(0.003922F, model::decimalReciprocal(255));
}

TEST(Division, OfBytesByZero)
{
    const Tarn8u divisors[] = {0, 0, 255};
    const Tarn8u dividends[] = {100, 0, 255};
    Tarn8u quotients[3];
    for (const int s : {0, 3, 30, -3}) {
        EXPECT_EQ(tarnStsDivByZero, tarnsDiv_8u_Sfs(divisors, dividends, quotients, 2, s));
        EXPECT_EQ(255, quotients[0]);
        EXPECT_EQ(0, quotients[1]);
    }
    EXPECT_EQ(tarnStsDivByZero, tarnsDiv_8u_Sfs(divisors, dividends, quotients, 3, 0));
    EXPECT_EQ(1, quotients[2]);
}

// -- Words, whose steps go by where the arrays lie --------------------------------------------------------------------

struct Words {
    std::vector<Tarn16s> divisors, dividends;
};

Words words(std::size_t len, unsigned seed)
{
    Random random(seed);
    Words x;
    for (std::size_t i = 0; i < len; ++i) {
        const bool zero = random.below(23) == 0;
        x.divisors.push_back(zero ? Tarn16s{0} : randomValue<Tarn16s>(random));
        x.dividends.push_back(randomValue<Tarn16s>(random));
    }
    return x;
}

/// Which elements the steps take, if the arrays lie at these offsets from a boundary of 64 bytes.
std::vector<bool> bySteps(const Words& x, unsigned offset, bool alike, int s)
{
    const std::size_t len = x.divisors.size();
    std::vector<bool> steps(len, false);
    if (len < shortest || !alike || offset % 2 != 0 || s <= -17)
        return steps;
    const std::size_t head = (32 - offset % 32) % 32 / 2;
    const std::size_t whole = (len - head) / 16 * 16;
    for (std::size_t i = head; i < head + whole; i += 4) {
        const auto four = x.divisors.begin() + static_cast<std::ptrdiff_t>(i);
        const bool zero = std::count(four, four + 4, 0) != 0;
        for (std::size_t k = i; k < i + 4; ++k)
            steps[k] = !zero;
    }
    return steps;
}

void expectWords(std::size_t len, std::array<unsigned, 3> offsets, int s, bool inPlace)
{
    const Words x = words(len, static_cast<unsigned>(len) + 100 * offsets[0] + static_cast<unsigned>(s));
    const bool alike = offsets[0] % 32 == offsets[1] % 32 && offsets[0] % 32 == offsets[2] % 32;
    const std::vector<bool> steps = bySteps(x, offsets[2], alike, s);
    std::vector<Tarn16s> expected;
    bool zeros = false;
    for (std::size_t i = 0; i < len; ++i) {
        const auto [value, zero] = model::wordQuotient(x.divisors[i], x.dividends[i], s);
        expected.push_back(steps[i] ? model::wordBySteps(x.divisors[i], x.dividends[i], s) : value);
        zeros = zeros || zero;
    }
    const GuardedArray<Tarn16s> divisors(x.divisors, Placement::offset(offsets[0]));
    const GuardedArray<Tarn16s> dividends(x.dividends, Placement::offset(offsets[1]));
    GuardedArray<Tarn16s> quotients(inPlace ? x.dividends : std::vector<Tarn16s>(len, 77),
                                    Placement::offset(offsets[2]));
    const int n = static_cast<int>(len);
    const TarnStatus status = inPlace ? tarnsDiv_16s_ISfs(divisors.data(), quotients.data(), n, s)
                                      : tarnsDiv_16s_Sfs(divisors.data(), dividends.data(), quotients.data(), n, s);
    EXPECT_EQ(statusOf(zeros), status);
    EXPECT_TRUE(arraysMatch(expected, quotients));
}

void sweepWords(const std::vector<int>& scales)
{
    for (const int s : scales)
        for (const int len : lengths({32, 48, 64}))
            for (unsigned offset = 0; offset<32; offset += len> 80 ? 7 : 1) {
                SCOPED_TRACE("s " + std::to_string(s) + ", len " + std::to_string(len) + ", offset " +
                             std::to_string(offset));
                expectWords(static_cast<std::size_t>(len), {offset, offset, offset}, s, false);
                expectWords(static_cast<std::size_t>(len), {offset, offset, offset}, s, true);
                expectWords(static_cast<std::size_t>(len), {offset + 32, offset, offset}, s, false);
                expectWords(static_cast<std::size_t>(len), {offset, offset + 2, offset}, s, false);
                expectWords(static_cast<std::size_t>(len), {offset + 16, offset, offset}, s, false);
                if (::testing::Test::HasFailure())
                    return;
            }
}

TEST(Division, OfWordsByWhereTheyLie) { sweepWords({0, 1, -1, 5, -16, -17}); }

// The steps follow the caller's rounding mode, single elements do not.
TEST(Division, OfWordsInEveryRoundingMode)
{
    for (const RoundingMode mode : allRoundingModes) {
        const RoundingModeScope scope(mode);
        for (const unsigned offset : {0U, 10U}) {
            expectWords(100, {offset, offset, offset}, 2, false);
            expectWords(100, {offset, offset, offset}, 0, false);
        }
    }
}

TEST(Division, OfWordsAtEveryScale)
{
    for (const int s : scaleFactors(-32, 32)) {
        SCOPED_TRACE(s);
        expectWords(100, {0, 0, 0}, s, false);
        expectWords(100, {6, 6, 6}, s, true);
        expectWords(100, {1, 2, 3}, s, false);
    }
}

TEST(Division, OfWordsRoundsTiesToEven)
{
    const Tarn16s divisors[] = {2, 2, -1, -2, 0, 0, 0};
    const Tarn16s dividends[] = {7, 5, -32768, 5, 1, -1, 0};
    Tarn16s quotients[7];
    EXPECT_EQ(tarnStsNoErr, tarnsDiv_16s_Sfs(divisors, dividends, quotients, 4, 0));
    EXPECT_EQ((std::vector<Tarn16s>{4, 2, 32767, -2}), std::vector<Tarn16s>(quotients, quotients + 4));
    EXPECT_EQ(tarnStsDivByZero, tarnsDiv_16s_Sfs(divisors, dividends, quotients, 7, 0));
    EXPECT_EQ((std::vector<Tarn16s>{4, 2, 32767, -2, 32767, -32768, 0}),
              std::vector<Tarn16s>(quotients, quotients + 7));
}

TEST(Division, ChecksInOrder)
{
    for (const int s : {0, 1, 100, -100}) {
        expectChecks(tarnsDiv_8u_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsDiv_16s_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsDiv_16sc_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsDiv_32s_Sfs, {}, array, array, array, length, s);
        expectChecks(tarnsDiv_8u_ISfs, {}, array, array, length, s);
        expectChecks(tarnsDiv_16s_ISfs, {}, array, array, length, s);
        expectChecks(tarnsDiv_16sc_ISfs, {}, array, array, length, s);
        expectChecks(tarnsDiv_32s_ISfs, {}, array, array, length, s);
    }
    expectChecks(tarnsDiv_32f);
    expectChecks(tarnsDiv_64f);
    expectChecks(tarnsDiv_32fc);
    expectChecks(tarnsDiv_64fc);
    expectChecks(tarnsDiv_32f_I);
    expectChecks(tarnsDiv_64f_I);
    expectChecks(tarnsDiv_32fc_I);
    expectChecks(tarnsDiv_64fc_I);
}

} // namespace
} // namespace tarn::test
