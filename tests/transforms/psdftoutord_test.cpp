// The transforms out of order: which lengths are, the order, the way back, products between the two, and the statuses.
#include "model/dft.h"
#include "support/compare.h"
#include "support/guarded.h"
#include "support/memory_watch.h"
#include "tarns/dft.h"
#include "tarns/dftoutord.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <random>

namespace tarn::test {
namespace {

template <class C>
struct Calls;
#define TARN_TEST_CALLS(T)                                                 \
    template <>                                                            \
    struct Calls<Tarn##T> {                                                \
        using Spec = TarnsDFTOutOrdSpec_C_##T;                             \
        using Ordered = TarnsDFTSpec_C_##T;                                \
        static constexpr auto create = tarnsDFTOutOrdInitAlloc_C_##T;      \
        static constexpr auto free = tarnsDFTOutOrdFree_C_##T;             \
        static constexpr auto getBufSize = tarnsDFTOutOrdGetBufSize_C_##T; \
        static constexpr auto forward = tarnsDFTOutOrdFwd_CToC_##T;        \
        static constexpr auto inverse = tarnsDFTOutOrdInv_CToC_##T;        \
        static constexpr auto createOrdered = tarnsDFTInitAlloc_C_##T;     \
        static constexpr auto freeOrdered = tarnsDFTFree_C_##T;            \
        static constexpr auto forwardOrdered = tarnsDFTFwd_CToC_##T;       \
        static constexpr auto inverseOrdered = tarnsDFTInv_CToC_##T;       \
        static constexpr auto bufSizeOrdered = tarnsDFTGetBufSize_C_##T;   \
    };
TARN_TEST_CALLS(32fc)
TARN_TEST_CALLS(64fc)

template <class C>
using Real = decltype(C::re);
template <class C>
constexpr int firstOutOfOrder = sizeof(C) == 8 ? 2001 : 501;

// The object of a length with a buffer that ends where it says.
template <class C>
class Transform {
public:
    explicit Transform(int length, int flag = TARN_FFT_NODIV_BY_ANY)
    {
        EXPECT_EQ(Calls<C>::create(&spec, length, flag, tarnAlgHintNone), tarnStsNoErr);
        int bytes = 0;
        EXPECT_EQ(Calls<C>::getBufSize(spec, &bytes), tarnStsNoErr);
        buffer.emplace(static_cast<std::size_t>(bytes), Placement::atEnd(1));
    }
    ~Transform() { EXPECT_EQ(Calls<C>::free(spec), tarnStsNoErr); }
    Transform(const Transform&) = delete;
    Transform& operator=(const Transform&) = delete;

    std::vector<C> run(bool forward, const std::vector<C>& x, Placement placement = Placement::atEnd())
    {
        const GuardedArray<C> src(x, placement);
        const GuardedArray<C> dst(x.size(), placement);
        const auto call = forward ? Calls<C>::forward : Calls<C>::inverse;
        EXPECT_EQ(call(src.data(), dst.data(), spec, buffer->data()), tarnStsNoErr);
        EXPECT_TRUE(arraysMatch(x, src));
        const std::vector<C> result = dst.copy();
        EXPECT_EQ(call(src.data(), src.data(), spec, nullptr), tarnStsNoErr);
        EXPECT_TRUE(arraysMatch(result, src)) << "in place";
        return result;
    }

    typename Calls<C>::Spec* spec = nullptr;

private:
    std::optional<GuardedArray<Tarn8u>> buffer;
};

template <class C>
std::vector<C> noise(int length, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> uniform(-1, 1);
    std::vector<C> x(static_cast<std::size_t>(length));
    for (C& value : x)
        value = {static_cast<Real<C>>(uniform(random)), static_cast<Real<C>>(uniform(random))};
    return x;
}

template <class C>
std::vector<model::Bin> bins(const std::vector<C>& x)
{
    std::vector<model::Bin> result;
    for (const C& value : x)
        result.push_back({value.re, value.im});
    return result;
}

// The largest distance, in units of the precision and of the RMS of what is expected.
template <class C>
double distance(const std::vector<model::Bin>& expected, const std::vector<C>& actual, double scale = 1)
{
    long double largest = 0;
    long double power = 0;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        largest =
            std::max(largest, std::hypot(expected[i].re - actual[i].re * scale, expected[i].im - actual[i].im * scale));
        power += expected[i].re * expected[i].re + expected[i].im * expected[i].im;
    }
    const auto rms = std::sqrt(power / static_cast<long double>(expected.size()));
    return static_cast<double>(largest / rms) / static_cast<double>(std::numeric_limits<Real<C>>::epsilon());
}
// Ten times the RMS error of some levels.
constexpr double allowed = 60;

// The order as it comes about: results of the innermost transforms, whose number is q; each level splits its blocks,
// part j of a block of results r + n q having the results r + j q + n p q.
std::vector<std::size_t> orderOf(std::size_t length)
{
    std::vector<std::size_t> radices;
    std::size_t rest = length;
    for (; rest % 4 == 0; rest /= 4)
        radices.push_back(4);
    if (rest % 2 == 0) {
        rest /= 2;
        radices.push_back(4);
        radices.front() = 2;
    }
    for (std::size_t d = 3; rest >= d * d;)
        if (rest % d == 0) {
            radices.push_back(d);
            rest /= d;
        } else {
            d += 2;
        }
    std::vector<std::size_t> order(rest);
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (auto p = radices.rbegin(); p != radices.rend(); ++p) {
        std::vector<std::size_t> next;
        for (const std::size_t r : order)
            for (std::size_t j = 0; j < *p; ++j)
                next.push_back(r + j * order.size());
        order = next;
    }
    return order;
}

// One level, two of them and many; levels of every radix at either end; long blocks, taken one by one.
const int lengths[] = {500,  505,  510,  525,  539,  605,  882,  960,  1000, 1183, 2000,  2001, 2010,
                       2016, 2025, 2050, 2187, 2205, 2401, 2560, 3000, 3003, 6561, 22201, 44100};

template <class C>
class DftOutOrd : public ::testing::Test {
};
using Types = ::testing::Types<Tarn32fc, Tarn64fc>;
TYPED_TEST_SUITE(DftOutOrd, Types);

TYPED_TEST(DftOutOrd, HasEveryResultOnceAndTheWayBack)
{
    using C = TypeParam;
    for (const int length : lengths) {
        SCOPED_TRACE(length);
        Transform<C> transform(length);
        const auto x = noise<C>(length, static_cast<unsigned>(length));
        const auto spectrum = transform.run(true, x);
        const auto expected = model::transformOfAnyLength(bins(x), -1);
        auto ordered = expected;
        if (length >= firstOutOfOrder<C>) {
            const auto order = orderOf(expected.size());
            for (std::size_t b = 0; b < order.size(); ++b)
                ordered[b] = expected[order[b]];
            EXPECT_GT(distance(expected, spectrum), 1e4) << "in natural order";
        }
        EXPECT_LT(distance(ordered, spectrum), allowed);
        const auto back = transform.run(false, spectrum, Placement::offset(1));
        EXPECT_LT(distance(bins(x), back, 1.0 / length), 2 * allowed);
    }
}

TYPED_TEST(DftOutOrd, IsTheOrderedTransformForAllOtherLengths)
{
    using C = TypeParam;
    using K = Calls<C>;
    for (const int length : {1, 2, 3, 4, 5, 6, 9, 60, 64, 151, 331, 495, 500, 1021, 2003, 2048, 4096, 25591}) {
        SCOPED_TRACE(length);
        Transform<C> transform(length, TARN_FFT_DIV_BY_SQRTN);
        typename K::Ordered* ordered = nullptr;
        ASSERT_EQ(K::createOrdered(&ordered, length, TARN_FFT_DIV_BY_SQRTN, tarnAlgHintNone), tarnStsNoErr);
        int bytes = -1, orderedBytes = -2;
        EXPECT_EQ(K::getBufSize(transform.spec, &bytes), tarnStsNoErr);
        EXPECT_EQ(K::bufSizeOrdered(ordered, &orderedBytes), tarnStsNoErr);
        EXPECT_EQ(orderedBytes, bytes);
        const auto x = noise<C>(length, 7);
        auto expected = x;
        EXPECT_EQ(K::forwardOrdered(x.data(), expected.data(), ordered, nullptr), tarnStsNoErr);
        EXPECT_TRUE(arraysMatch<C>(expected.data(), transform.run(true, x).data(), x.size()));
        EXPECT_EQ(K::inverseOrdered(x.data(), expected.data(), ordered, nullptr), tarnStsNoErr);
        EXPECT_TRUE(arraysMatch<C>(expected.data(), transform.run(false, x).data(), x.size()));
        EXPECT_EQ(K::freeOrdered(ordered), tarnStsNoErr);
    }
}

// Products of spectra are spectra of circular convolutions, whichever object they come from.
TYPED_TEST(DftOutOrd, MultipliesSpectra)
{
    using C = TypeParam;
    constexpr int length = 2187;
    Transform<C> first(length);
    Transform<C> second(length, TARN_FFT_DIV_INV_BY_N);
    const auto x = noise<C>(length, 1);
    const auto y = noise<C>(length, 2);
    auto product = first.run(true, x);
    const auto other = second.run(true, y);
    for (std::size_t i = 0; i < product.size(); ++i) {
        const C a = product[i];
        const C b = other[i];
        product[i] = {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
    }
    std::vector<model::Bin> expected(x.size());
    for (std::size_t i = 0; i < x.size(); ++i)
        for (std::size_t j = 0; j < y.size(); ++j) {
            const model::Bin term = model::product({x[i].re, x[i].im}, {y[j].re, y[j].im});
            expected[(i + j) % x.size()].re += term.re;
            expected[(i + j) % x.size()].im += term.im;
        }
    EXPECT_LT(distance(expected, second.run(false, product)), 4 * allowed);
}

TYPED_TEST(DftOutOrd, ScalesAsTheFlagSays)
{
    using C = TypeParam;
    constexpr int length = 2025;
    const auto x = noise<C>(length, 3);
    Transform<C> plain(length);
    const std::vector<C> results[] = {plain.run(true, x), plain.run(false, x)};
    const auto root = static_cast<Real<C>>(1 / std::sqrt(2025.0));
    const auto whole = Real<C>{1} / Real<C>{2025};
    const struct {
        int flag;
        Real<C> forward, inverse;
    } cases[] = {
        {TARN_FFT_DIV_FWD_BY_N, whole, 1}, {TARN_FFT_DIV_INV_BY_N, 1, whole}, {TARN_FFT_DIV_BY_SQRTN, root, root}};
    for (const auto& [flag, forward, inverse] : cases) {
        Transform<C> transform(length, flag);
        for (const bool isForward : {true, false}) {
            auto expected = results[isForward ? 0 : 1];
            const Real<C> factor = isForward ? forward : inverse;
            for (C& value : expected)
                value = {value.re * factor, value.im * factor};
            EXPECT_TRUE(arraysMatch<C>(expected.data(), transform.run(isForward, x).data(), x.size())) << flag;
        }
    }
}

TYPED_TEST(DftOutOrd, ChecksItsArguments)
{
    using C = TypeParam;
    using K = Calls<C>;
    auto* const untouched = reinterpret_cast<typename K::Spec*>(&unreadable<int>()[1]);
    auto* spec = untouched;
    EXPECT_EQ(K::create(nullptr, 0, 3, tarnAlgHintNone), tarnStsNullPtrErr);
    EXPECT_EQ(K::create(&spec, 0, 3, tarnAlgHintNone), tarnStsSizeErr);
    EXPECT_EQ(K::create(&spec, -2187, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone), tarnStsSizeErr);
    for (const int flag : {0, 3, 5, 9, 16})
        EXPECT_EQ(K::create(&spec, 2187, flag, tarnAlgHintNone), tarnStsFftFlagErr);
    EXPECT_EQ(spec, untouched);

    Transform<C> transform(2187);
    spec = transform.spec;
    typename K::Ordered* ordered = nullptr;
    ASSERT_EQ(K::createOrdered(&ordered, 2187, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone), tarnStsNoErr);
    auto* const foreign = reinterpret_cast<typename K::Spec*>(ordered);
    int bytes = -1;
    EXPECT_EQ(K::getBufSize(nullptr, &bytes), tarnStsNullPtrErr);
    EXPECT_EQ(K::getBufSize(foreign, nullptr), tarnStsNullPtrErr);
    EXPECT_EQ(K::getBufSize(foreign, &bytes), tarnStsContextMatchErr);
    EXPECT_EQ(bytes, -1);
    const C x{1, 2};
    C y{3, 4};
    for (const auto call : {K::forward, K::inverse}) {
        EXPECT_EQ(call(nullptr, nullptr, nullptr, nullptr), tarnStsNullPtrErr);
        EXPECT_EQ(call(nullptr, nullptr, foreign, nullptr), tarnStsContextMatchErr);
        EXPECT_EQ(call(&x, &y, foreign, nullptr), tarnStsContextMatchErr);
        EXPECT_EQ(call(nullptr, &y, spec, nullptr), tarnStsNullPtrErr);
        EXPECT_EQ(call(&x, nullptr, spec, nullptr), tarnStsNullPtrErr);
    }
    auto* const itself = reinterpret_cast<typename K::Ordered*>(spec);
    EXPECT_EQ(K::forwardOrdered(&x, &y, itself, nullptr), tarnStsContextMatchErr);
    EXPECT_EQ(K::freeOrdered(itself), tarnStsContextMatchErr);
    EXPECT_EQ(K::free(foreign), tarnStsContextMatchErr);
    EXPECT_EQ(K::free(nullptr), tarnStsNullPtrErr);
    EXPECT_EQ(y.re, 3);
    EXPECT_EQ(K::freeOrdered(ordered), tarnStsNoErr);
}

TYPED_TEST(DftOutOrd, LeavesNothingBehindWithoutMemory)
{
    using C = TypeParam;
    using K = Calls<C>;
    if (!canRefuseMemory)
        GTEST_SKIP();
    const std::vector<C> x(2401);
    std::vector<C> y(2401, C{5, 6});
    TarnStatus status = tarnStsNoMemErr;
    int refused = 0;
    for (; status != tarnStsNoErr && refused < 100; ++refused) {
        typename K::Spec* spec = nullptr;
        MemoryWatch watch(refused);
        status = K::create(&spec, 2401, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone);
        if (status == tarnStsNoErr) {
            EXPECT_EQ(K::free(spec), tarnStsNoErr);
        } else {
            EXPECT_EQ(status, tarnStsNoMemErr);
            EXPECT_EQ(spec, nullptr);
        }
        EXPECT_EQ(watch.outstanding(), 0);
    }
    EXPECT_GT(refused, 6);
    Transform<C> transform(2401);
    for (const auto call : {K::forward, K::inverse}) {
        MemoryWatch watch(0);
        EXPECT_EQ(call(x.data(), y.data(), transform.spec, nullptr), tarnStsNoMemErr);
        EXPECT_EQ(y[0].re, 5);
    }
}

} // namespace
} // namespace tarn::test
