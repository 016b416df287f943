// The random generators: every number to the bit, streams cut anywhere, and their distribution.
#include "tarns.h"

#include "model/random.h"
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/memory_watch.h"
#include "support/sweep.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace tarn::test {
namespace {

constexpr Tarn32u seeds[] = {0, 1, 12345, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 3123456789U};

template <class T>
T clampedTo(double x)
{
    return static_cast<T>(
        std::clamp<double>(std::trunc(x), std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()));
}

// -- Uniform numbers --------------------------------------------------------------------------------------------------

enum class Integers { rounded, truncated };

template <Integers integers, class T>
T uniformAs(double v)
{
    if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(v);
    else
        return static_cast<T>(integers == Integers::rounded ? std::nearbyint(v) : std::trunc(v));
}

template <class T>
struct Bounds {
    T low, high;
};

template <class T>
std::vector<Bounds<T>> bounds()
{
    if constexpr (std::is_same_v<T, Tarn8u>)
        return {{0, 255}, {0, 1}, {100, 103}, {7, 7}, {200, 10}};
    else if constexpr (std::is_same_v<T, Tarn16s>)
        return {{-32768, 32767}, {0, 1}, {-3, 4}, {5, 5}, {1000, -1000}, {32767, -32768}};
    else
        return {{0, 1}, {-1, 1}, {static_cast<T>(0.1), static_cast<T>(0.3)},
                {2, 2}, {5, -5}, {static_cast<T>(1e30), static_cast<T>(-1e-30)}};
}

template <class T>
using DirectCall = TarnStatus (*)(T*, int, T, T, unsigned int*);

template <class T>
void sweepUniformDirect(DirectCall<T> call)
{
    for (const Tarn32u seed : seeds)
        for (const auto& [low, high] : bounds<T>()) {
            SCOPED_TRACE(seed);
            sweepElementwise<T>(
                [&, low = low, high = high](T* dst, int len) {
                    unsigned int carried = seed;
                    const TarnStatus status = call(dst, len, low, high, &carried);
                    model::Random random(seed);
                    for (int i = 0; i < len; ++i)
                        random.draw();
                    EXPECT_EQ(random.seed(), carried) << len;
                    return status;
                },
                [&, low = low, high = high](int len) {
                    model::Uniform model(low, high, seed);
                    std::vector<T> numbers;
                    for (int i = 0; i < len; ++i)
                        numbers.push_back(uniformAs<Integers::rounded, T>(model.next()));
                    return numbers;
                },
                {.thresholds = {384, 768}, .depth = Depth::quick});
        }
}

TEST(RandUniform, Direct)
{
    sweepUniformDirect<Tarn16s>(tarnsRandUniform_Direct_16s);
    sweepUniformDirect<Tarn32f>(tarnsRandUniform_Direct_32f);
    sweepUniformDirect<Tarn64f>(tarnsRandUniform_Direct_64f);
}

// The first draw by hand.
TEST(RandUniform, FirstDrawOfSeedZero)
{
    const std::uint32_t s1 = 1013904243;
    const std::uint32_t s2 = s1 * 69069U + 1013904243U;
    std::uint32_t t = s1 - s2 - 1;
    t -= t >= 0x80000000U ? 18 : 0;
    const auto r = static_cast<std::int32_t>(t + 2061989128U);
    unsigned int seed = 0;
    Tarn64f x = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsRandUniform_Direct_64f(&x, 1, -2147483648.0, 2147483648.0, &seed));
    EXPECT_EQ(r, x);
    EXPECT_EQ(t, seed);
    Tarn16s word = 0;
    seed = 0;
    ASSERT_EQ(tarnStsNoErr, tarnsRandUniform_Direct_16s(&word, 1, -100, 100, &seed));
    EXPECT_EQ(std::nearbyint(r * (200 / 4294967296.0)), word);
}

template <class T>
struct UniformObject;
template <class T>
struct NormalObject;
#define TARN_RANDOM_OBJECT(KIND, STEM, TAG)                              \
    template <>                                                          \
    struct KIND##Object<Tarn##TAG> {                                     \
        using Sample = Tarn##TAG;                                        \
        using State = TarnsRand##STEM##State_##TAG;                      \
        static constexpr auto create = tarnsRand##STEM##InitAlloc_##TAG; \
        static constexpr auto next = tarnsRand##STEM##_##TAG;            \
        static constexpr auto release = tarnsRand##STEM##Free_##TAG;     \
    };
TARN_RANDOM_OBJECT(Uniform, Uniform, 8u)
TARN_RANDOM_OBJECT(Uniform, Uniform, 16s)
TARN_RANDOM_OBJECT(Uniform, Uniform, 32f)
TARN_RANDOM_OBJECT(Normal, Gauss, 8u)
TARN_RANDOM_OBJECT(Normal, Gauss, 16s)
TARN_RANDOM_OBJECT(Normal, Gauss, 32f)

template <class Object>
struct Release {
    void operator()(typename Object::State* state) const { EXPECT_EQ(tarnStsNoErr, Object::release(state)); }
};
template <class Object>
auto newGenerator(typename Object::Sample first, typename Object::Sample second, Tarn32u seed)
{
    typename Object::State* state = nullptr;
    EXPECT_EQ(tarnStsNoErr, Object::create(&state, first, second, seed));
    return std::unique_ptr<typename Object::State, Release<Object>>(state);
}

template <class T>
void sweepUniformObject()
{
    using Object = UniformObject<T>;
    for (const Tarn32u seed : seeds)
        for (const auto& [low, high] : bounds<T>()) {
            SCOPED_TRACE(seed);
            sweepElementwise<T>(
                [&, low = low, high = high](T* dst, int len) {
                    const auto state = newGenerator<Object>(low, high, seed);
                    return Object::next(dst, len, state.get());
                },
                [&, low = low, high = high](int len) {
                    model::Uniform model(low, high, seed);
                    std::vector<T> numbers;
                    for (int i = 0; i < len; ++i)
                        numbers.push_back(uniformAs<Integers::truncated, T>(model.next()));
                    return numbers;
                },
                {.thresholds = {384}, .depth = Depth::quick});
        }
}
TEST(RandUniform, Objects)
{
    sweepUniformObject<Tarn8u>();
    sweepUniformObject<Tarn16s>();
    sweepUniformObject<Tarn32f>();
}

// Any cut of a stream is the same stream.
template <class Object, class T>
void expectOneStream(T first, T second)
{
    constexpr int len = 2000;
    std::vector<T> whole(len);
    const auto state = newGenerator<Object>(first, second, 99U);
    ASSERT_EQ(tarnStsNoErr, Object::next(whole.data(), len, state.get()));
    for (const int part : {1, 2, 3, 5, 6, 7, 64, 385, 999}) {
        std::vector<T> parts(len);
        const auto again = newGenerator<Object>(first, second, 99U);
        for (int i = 0; i < len; i += part)
            ASSERT_EQ(tarnStsNoErr, Object::next(parts.data() + i, std::min(part, len - i), again.get()));
        EXPECT_EQ(whole, parts) << part;
    }
}
TEST(RandUniform, OneStream)
{
    expectOneStream<UniformObject<Tarn8u>>(Tarn8u{3}, Tarn8u{200});
    expectOneStream<UniformObject<Tarn16s>>(Tarn16s{-3000}, Tarn16s{200});
    expectOneStream<UniformObject<Tarn32f>>(-3.0F, 1.5F);
}

// -- Normal numbers ---------------------------------------------------------------------------------------------------

template <class T>
T normalAs(double deviation, T mean)
{
    if constexpr (std::is_same_v<T, Tarn32f>)
        return static_cast<Tarn32f>(deviation) + mean;
    else if constexpr (std::is_same_v<T, Tarn64f>)
        return model::rounded(deviation + mean);
    else
        return clampedTo<T>(model::rounded(deviation + mean));
}

template <class T>
struct Moments {
    T mean, stdDev;
};

template <class T>
std::vector<Moments<T>> moments()
{
    if constexpr (std::is_same_v<T, Tarn8u>)
        return {{128, 20}, {0, 255}, {9, 0}, {250, 200}};
    else if constexpr (std::is_same_v<T, Tarn16s>)
        return {{0, 1000}, {-5, 3}, {7, 0}, {20000, 32767}, {100, -50}};
    else
        return {{0, 1}, {static_cast<T>(0.1), static_cast<T>(0.3)}, {2, 0}, {-5, -5}, {static_cast<T>(1e6), 1}};
}

template <class T>
std::vector<T> normalModel(Moments<T> moments, Tarn32u seed, int len)
{
    model::Normal model(moments.stdDev, seed);
    std::vector<T> numbers;
    for (int i = 0; i < len; ++i)
        numbers.push_back(normalAs<T>(model.next(), moments.mean));
    return numbers;
}

// The logarithm and the root are within a unit of the last place of a double, which shows in doubles only; none of them
// is further from the mean than 9 deviations.
template <class T>
Match lastPlaces(T stdDev)
{
    if constexpr (std::is_same_v<T, double>)
        return {.ulps = 1, .absolute = 9 * std::fabs(stdDev) * 3 * 0x1p-53};
    return {};
}

template <class T>
void sweepNormalDirect(DirectCall<T> call)
{
    for (const Tarn32u seed : seeds)
        for (const Moments<T> given : moments<T>()) {
            SCOPED_TRACE(seed);
            sweepElementwise<T>(
                [&](T* dst, int len) {
                    unsigned int carried = seed;
                    const TarnStatus status = call(dst, len, given.mean, given.stdDev, &carried);
                    model::Normal model(1, seed);
                    for (int i = 0; i < len; ++i)
                        model.next();
                    EXPECT_EQ(model.seed(), carried) << len;
                    return status;
                },
                [&](int len) { return normalModel(given, seed, len); },
                {.depth = Depth::quick, .match = lastPlaces(given.stdDev)});
        }
}
TEST(RandGauss, Direct)
{
    sweepNormalDirect<Tarn16s>(tarnsRandGauss_Direct_16s);
    sweepNormalDirect<Tarn32f>(tarnsRandGauss_Direct_32f);
    sweepNormalDirect<Tarn64f>(tarnsRandGauss_Direct_64f);
}

template <class T>
void sweepNormalObject()
{
    using Object = NormalObject<T>;
    for (const Tarn32u seed : seeds)
        for (const Moments<T> given : moments<T>()) {
            SCOPED_TRACE(seed);
            sweepElementwise<T>(
                [&](T* dst, int len) {
                    const auto state = newGenerator<Object>(given.mean, given.stdDev, seed);
                    return Object::next(dst, len, state.get());
                },
                [&](int len) { return normalModel(given, seed, len); }, {.depth = Depth::quick});
        }
}
TEST(RandGauss, Objects)
{
    sweepNormalObject<Tarn8u>();
    sweepNormalObject<Tarn16s>();
    sweepNormalObject<Tarn32f>();
}

TEST(RandGauss, OneStream)
{
    expectOneStream<NormalObject<Tarn8u>>(Tarn8u{100}, Tarn8u{30});
    expectOneStream<NormalObject<Tarn16s>>(Tarn16s{-3000}, Tarn16s{2000});
    expectOneStream<NormalObject<Tarn32f>>(-3.0F, 1.5F);
}

TEST(RandGauss, SaturatesAtBothEnds)
{
    const auto state = newGenerator<NormalObject<Tarn16s>>(Tarn16s{0}, Tarn16s{32767}, 5U);
    std::vector<Tarn16s> x(1000);
    ASSERT_EQ(tarnStsNoErr, tarnsRandGauss_16s(x.data(), 1000, state.get()));
    EXPECT_EQ(32767, *std::max_element(x.begin(), x.end()));
    EXPECT_EQ(-32768, *std::min_element(x.begin(), x.end()));
}

// -- Distribution -----------------------------------------------------------------------------------------------------

// The largest distance of n numbers' distribution from the true one is above 2.7 / sqrt(n) with a probability of
// 2 exp(-2 2.7^2) = 1e-6 (Kolmogorov and Smirnov). The seeds are fixed: a generator that passes passes for ever.
double distance(std::vector<double> x, double (*distribution)(double))
{
    std::sort(x.begin(), x.end());
    const auto n = static_cast<double>(x.size());
    double largest = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double at = distribution(x[i]);
        largest = std::max(
            {largest, std::fabs(at - static_cast<double>(i) / n), std::fabs(static_cast<double>(i + 1) / n - at)});
    }
    return largest * std::sqrt(n);
}

// Mean and variance of n numbers have the variances v / n and (m4 - v^2) / n, m4 being the fourth moment; five
// standard deviations are exceeded once in 1.7 million times.
void expectMoments(const std::vector<double>& x, double mean, double variance, double fourth)
{
    const auto n = static_cast<double>(x.size());
    double sum = 0;
    double squares = 0;
    double products = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        sum += x[i] - mean;
        squares += (x[i] - mean) * (x[i] - mean);
        products += i == 0 ? 0 : (x[i] - mean) * (x[i - 1] - mean);
    }
    EXPECT_NEAR(0, sum / n, 5 * std::sqrt(variance / n));
    EXPECT_NEAR(variance, squares / n, 5 * std::sqrt((fourth - variance * variance) / n));
    // Neighbours have nothing to do with each other.
    EXPECT_NEAR(0, products / n, 5 * variance / std::sqrt(n));
}

constexpr int many = 200000;

TEST(RandUniform, Distribution)
{
    for (const Tarn32u start : seeds) {
        unsigned int seed = start;
        std::vector<double> x(many);
        ASSERT_EQ(tarnStsNoErr, tarnsRandUniform_Direct_64f(x.data(), many, 0, 1, &seed));
        EXPECT_LT(distance(x, [](double v) { return v; }), 2.7) << start;
        expectMoments(x, 0.5, 1.0 / 12, 1.0 / 80);
    }
}

TEST(RandGauss, Distribution)
{
    for (const Tarn32u start : seeds) {
        unsigned int seed = start;
        std::vector<double> x(many);
        ASSERT_EQ(tarnStsNoErr, tarnsRandGauss_Direct_64f(x.data(), many, 3, 2, &seed));
        EXPECT_LT(distance(x, [](double v) { return 0.5 * std::erfc((3 - v) / (2 * std::sqrt(2.0))); }), 2.7) << start;
        expectMoments(x, 3, 4, 3 * 16);
    }
}

// 256 values of the same probability: the sum of squared differences over what is expected is chi-square with 255
// degrees of freedom, of mean 255 and variance 510; 370 lies five deviations above.
TEST(RandUniform, BytesAreEquallyLikely)
{
    const auto state = newGenerator<UniformObject<Tarn16s>>(Tarn16s{0}, Tarn16s{256}, 17U);
    std::vector<Tarn16s> x(many);
    ASSERT_EQ(tarnStsNoErr, tarnsRandUniform_16s(x.data(), many, state.get()));
    std::vector<int> counts(256);
    for (const Tarn16s v : x)
        ++counts.at(static_cast<std::size_t>(v));
    double chiSquare = 0;
    for (const int count : counts)
        chiSquare += (count - many / 256.0) * (count - many / 256.0) / (many / 256.0);
    EXPECT_LT(chiSquare, 370);
    EXPECT_GT(chiSquare, 150);
}

// -- Statuses, memory, objects ----------------------------------------------------------------------------------------

TEST(Random, DirectChecks)
{
    unsigned int seed = 1;
    expectChecks(tarnsRandUniform_Direct_16s, {}, array, length, Tarn16s{1}, Tarn16s{2}, object(&seed));
    expectChecks(tarnsRandUniform_Direct_32f, {}, array, length, 1.0F, 2.0F, object(&seed));
    expectChecks(tarnsRandUniform_Direct_64f, {}, array, length, 1.0, 2.0, object(&seed));
    expectChecks(tarnsRandGauss_Direct_16s, {}, array, length, Tarn16s{1}, Tarn16s{2}, object(&seed));
    expectChecks(tarnsRandGauss_Direct_32f, {}, array, length, 1.0F, 2.0F, object(&seed));
    expectChecks(tarnsRandGauss_Direct_64f, {}, array, length, 1.0, 2.0, object(&seed));
}

template <class Object, class Other>
void expectObjectChecks()
{
    using State = typename Object::State;
    const auto state = newGenerator<Object>(1, 2, 3U);
    expectChecks(Object::next, {}, array, length, object(state.get()));
    EXPECT_EQ(tarnStsNullPtrErr, Object::create(nullptr, 1, 2, 3));
    EXPECT_EQ(tarnStsNullPtrErr, Object::release(nullptr));
    const auto foreign = newGenerator<Other>(1, 2, 3U);
    auto* const wrong = reinterpret_cast<State*>(foreign.get());
    using T = typename Object::Sample;
    T x[4] = {};
    EXPECT_EQ(tarnStsContextMatchErr, Object::next(x, 4, wrong));
    EXPECT_EQ(tarnStsSizeErr, Object::next(x, 0, wrong));
    EXPECT_EQ(tarnStsNullPtrErr, Object::next(nullptr, 0, wrong));
    EXPECT_EQ(tarnStsContextMatchErr, Object::release(wrong));
    EXPECT_EQ(T{}, x[0]);
    unsigned char freed[256] = {};
    EXPECT_EQ(tarnStsContextMatchErr, Object::release(reinterpret_cast<State*>(freed)));
}

TEST(Random, ObjectChecks)
{
    expectObjectChecks<UniformObject<Tarn8u>, UniformObject<Tarn16s>>();
    expectObjectChecks<UniformObject<Tarn16s>, UniformObject<Tarn8u>>();
    expectObjectChecks<UniformObject<Tarn32f>, NormalObject<Tarn32f>>();
    expectObjectChecks<NormalObject<Tarn8u>, UniformObject<Tarn8u>>();
    expectObjectChecks<NormalObject<Tarn16s>, NormalObject<Tarn32f>>();
    expectObjectChecks<NormalObject<Tarn32f>, NormalObject<Tarn16s>>();
}

TEST(Random, Memory)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    auto* const untouched = reinterpret_cast<TarnsRandGaussState_32f*>(0x10);
    TarnsRandGaussState_32f* state = untouched;
    TarnStatus status;
    {
        const MemoryWatch watch(0);
        status = tarnsRandGaussInitAlloc_32f(&state, 0, 1, 1);
    }
    EXPECT_EQ(tarnStsNoMemErr, status);
    EXPECT_EQ(untouched, state);
    int outstanding;
    {
        const MemoryWatch watch;
        status = tarnsRandGaussInitAlloc_32f(&state, 0, 1, 1);
        tarnsRandGaussFree_32f(state);
        outstanding = watch.outstanding();
    }
    EXPECT_EQ(tarnStsNoErr, status);
    EXPECT_EQ(0, outstanding);
}

// In the caller's memory, at an odd address, with nothing touched behind it.
template <class State, class GetSize, class Init, class Next, class Object>
void expectInPlace(GetSize getSize, Init init, Next next, Object)
{
    EXPECT_EQ(tarnStsNullPtrErr, getSize(nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, init(nullptr, 1, 2, 3));
    int size = 0;
    ASSERT_EQ(tarnStsNoErr, getSize(&size));
    GuardedArray<Tarn8u> memory(static_cast<std::size_t>(size), Placement::atEnd());
    GuardedArray<Tarn8u> odd(static_cast<std::size_t>(size), Placement::offset(3));
    for (Tarn8u* const place : {memory.data(), odd.data()}) {
        auto* const state = reinterpret_cast<State*>(place);
        ASSERT_EQ(tarnStsNoErr, init(state, 100, 2000, 42));
        const auto own = newGenerator<Object>(Tarn16s{100}, Tarn16s{2000}, 42U);
        std::vector<Tarn16s> x(101);
        std::vector<Tarn16s> expected(101);
        ASSERT_EQ(tarnStsNoErr, next(x.data(), 101, state));
        ASSERT_EQ(tarnStsNoErr, next(expected.data(), 101, own.get()));
        EXPECT_EQ(expected, x);
    }
}
TEST(Random, InTheCallersMemory)
{
    expectInPlace<TarnsRandUniformState_16s>(tarnsRandUniformGetSize_16s, tarnsRandUniformInit_16s,
                                             tarnsRandUniform_16s, UniformObject<Tarn16s>{});
    expectInPlace<TarnsRandGaussState_16s>(tarnsRandGaussGetSize_16s, tarnsRandGaussInit_16s, tarnsRandGauss_16s,
                                           NormalObject<Tarn16s>{});
}

// Words of the direct form follow the rounding mode, those of objects are truncated in every one.
TEST(RandUniform, RoundingModes)
{
    for (const RoundingMode mode : allRoundingModes) {
        std::vector<Tarn16s> direct(100);
        std::vector<Tarn16s> stream(100);
        const auto state = newGenerator<UniformObject<Tarn16s>>(Tarn16s{-50}, Tarn16s{50}, 8U);
        {
            const RoundingModeScope scope(mode);
            unsigned int seed = 8;
            ASSERT_EQ(tarnStsNoErr, tarnsRandUniform_Direct_16s(direct.data(), 100, -50, 50, &seed));
            ASSERT_EQ(tarnStsNoErr, tarnsRandUniform_16s(stream.data(), 100, state.get()));
        }
        model::Uniform model(Tarn16s{-50}, Tarn16s{50}, 8);
        for (std::size_t i = 0; i < direct.size(); ++i) {
            const double v = model.next();
            const double rounded = mode == RoundingMode::nearest ? std::nearbyint(v)
                                   : mode == RoundingMode::up    ? std::ceil(v)
                                   : mode == RoundingMode::down  ? std::floor(v)
                                                                 : std::trunc(v);
            EXPECT_EQ(rounded, direct[i]);
            EXPECT_EQ(std::trunc(v), stream[i]);
        }
    }
}

} // namespace
} // namespace tarn::test
