// Running medians against a window that is sorted anew for every result; masks that are even, or longer than the data;
// ends, memory, NaNs.
#include "tarns/median.h"

#include "levels/recursive/psmedian.h"
#include "support/checks.h"
#include "support/guarded.h"
#include "support/hard_values.h"
#include "support/memory_watch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

namespace tarn::test {
namespace {

// Every element type fits into a double, so that one driver serves all.
using Values = std::vector<double>;

struct Kind {
    const char* name;
    std::size_t bytes;
    bool isFloat;
    double lowest, highest;
    TarnStatus (*filter)(const void* src, void* dst, int len, int maskSize);
    TarnStatus (*filterInPlace)(void* srcDst, int len, int maskSize);
    double (*get)(const void* element);
    void (*set)(void* element, double value);
};

template <class T, TarnStatus (*filter)(const T*, T*, int, int), TarnStatus (*inPlace)(T*, int, int)>
constexpr Kind kindOf(const char* name)
{
    using Limits = std::numeric_limits<T>;
    return {name,
            sizeof(T),
            !Limits::is_integer,
            static_cast<double>(Limits::lowest()),
            static_cast<double>(Limits::max()),
            [](const void* src, void* dst, int len, int maskSize) {
                return filter(static_cast<const T*>(src), static_cast<T*>(dst), len, maskSize);
            },
            [](void* srcDst, int len, int maskSize) { return inPlace(static_cast<T*>(srcDst), len, maskSize); },
            [](const void* element) {
                T value;
                std::memcpy(&value, element, sizeof value);
                return static_cast<double>(value);
            },
            [](void* element, double value) {
                const T x = static_cast<T>(value);
                std::memcpy(element, &x, sizeof x);
            }};
}

constexpr Kind kinds[] = {
    kindOf<Tarn8u, tarnsFilterMedian_8u, tarnsFilterMedian_8u_I>("8u"),
    kindOf<Tarn16s, tarnsFilterMedian_16s, tarnsFilterMedian_16s_I>("16s"),
    kindOf<Tarn32s, tarnsFilterMedian_32s, tarnsFilterMedian_32s_I>("32s"),
    kindOf<Tarn32f, tarnsFilterMedian_32f, tarnsFilterMedian_32f_I>("32f"),
    kindOf<Tarn64f, tarnsFilterMedian_64f, tarnsFilterMedian_64f_I>("64f"),
};
constexpr const Kind& kind8u = kinds[0];
constexpr const Kind& kind16s = kinds[1];
constexpr const Kind& kind32s = kinds[2];
constexpr const Kind& kind32f = kinds[3];
constexpr const Kind& kind64f = kinds[4];

/// An array of a kind's elements between guards.
class Data : public GuardedBytes {
public:
    Data(const Kind& kind, const Values& values, Placement placement)
        : GuardedBytes(values.size() * kind.bytes, placement), kind(kind)
    {
        for (std::size_t i = 0; i < values.size(); ++i)
            kind.set(bytes() + i * kind.bytes, values[i]);
    }
    /// Elements that no filter wrote.
    Data(const Kind& kind, std::size_t len, Placement placement) : GuardedBytes(len * kind.bytes, placement), kind(kind)
    {
        fillPattern();
    }

    Values values() const
    {
        Values all;
        for (std::size_t i = 0; i < byteSize() / kind.bytes; ++i)
            all.push_back(kind.get(bytes() + i * kind.bytes));
        return all;
    }
    std::vector<unsigned char> raw() const { return {bytes(), bytes() + byteSize()}; }

private:
    const Kind& kind;
};

/// The definition: `size` elements from size/2 places in front on, the ends going on for ever.
Values mediansOf(const Values& x, int size)
{
    Values y = x;
    Values window(static_cast<std::size_t>(size));
    const int len = static_cast<int>(x.size());
    for (int n = 1; n < len - 1; ++n) {
        for (int k = 0; k < size; ++k)
            window[static_cast<std::size_t>(k)] = x[static_cast<std::size_t>(std::clamp(n - size / 2 + k, 0, len - 1))];
        const auto middle = window.begin() + size / 2;
        std::nth_element(window.begin(), middle, window.end());
        y[static_cast<std::size_t>(n)] = *middle;
    }
    return y;
}

bool keepsEven(const Kind& kind, int maskSize) { return &kind == &kind32s && maskSize >= 11; }
int usedMask(const Kind& kind, int maskSize)
{
    return maskSize % 2 == 0 && !keepsEven(kind, maskSize) ? maskSize - 1 : maskSize;
}
TarnStatus expectedStatus(const Kind& kind, int maskSize)
{
    return maskSize % 2 == 0 && !keepsEven(kind, maskSize) ? tarnStsEvenMedianMaskSize : tarnStsNoErr;
}

/// Bounds and many equal elements among random ones; infinities too.
Values someValues(const Kind& kind, std::size_t len, unsigned seed)
{
    Random random(seed);
    const unsigned sort = seed % 3;
    Values values;
    for (std::size_t i = 0; i < len; ++i) {
        double x = static_cast<double>(random.below(sort == 0 ? 3 : 200));
        if (sort == 2) {
            const double share = random.unit();
            x = share * kind.highest + (1 - share) * kind.lowest;
            const unsigned special = static_cast<unsigned>(random.below(16));
            const double infinity = std::numeric_limits<double>::infinity();
            x = special == 0 ? kind.lowest : special == 1 ? kind.highest : x;
            x = kind.isFloat && special == 2 ? infinity : kind.isFloat && special == 3 ? -infinity : x;
        }
        unsigned char element[8];
        kind.set(element, x);
        values.push_back(kind.get(element));
    }
    return values;
}

Placement placementOf(unsigned turn)
{
    return turn % 3 == 0 ? Placement::atEnd() : turn % 3 == 1 ? Placement::atStart() : Placement::offset(turn % 16);
}

void expectMedians(const Kind& kind, const Values& x, int maskSize, unsigned turn)
{
    const int len = static_cast<int>(x.size());
    const Values expected = mediansOf(x, usedMask(kind, maskSize));
    const Data src(kind, x, placementOf(turn));
    const std::vector<unsigned char> before = src.raw();
    const Data dst(kind, x.size(), placementOf(turn / 3));
    const Data srcDst(kind, x, placementOf(turn / 2));
    const Data onto(kind, x, placementOf(turn / 5));
    const TarnStatus status = expectedStatus(kind, maskSize);
    ASSERT_EQ(status, kind.filter(src.bytes(), dst.bytes(), len, maskSize));
    ASSERT_EQ(status, kind.filterInPlace(srcDst.bytes(), len, maskSize));
    ASSERT_EQ(status, kind.filter(onto.bytes(), onto.bytes(), len, maskSize));
    EXPECT_EQ(expected, dst.values());
    EXPECT_EQ(dst.raw(), srcDst.raw());
    EXPECT_EQ(dst.raw(), onto.raw());
    EXPECT_EQ(before, src.raw());
}

TEST(FilterMedian, IsTheMiddleOfASortedWindow)
{
    std::vector<int> lens;
    for (int len = 1; len <= 44; ++len)
        lens.push_back(len);
    lens.insert(lens.end(), {63, 64, 67, 130, 257});
    std::vector<int> masks;
    for (int mask = 1; mask <= 17; ++mask)
        masks.push_back(mask);
    masks.insert(masks.end(), {31, 32, 33, 63, 64, 65, 95, 96, 97, 98, 191, 193, 301});
    unsigned turn = 0;
    for (const Kind& kind : kinds)
        for (const int mask : masks)
            for (const int len : lens) {
                if (len < 40 && mask > 40 && (len + mask) % 7 != 0)
                    continue;
                ++turn;
                SCOPED_TRACE(testing::Message() << kind.name << ", mask " << mask << ", length " << len);
                expectMedians(kind, someValues(kind, static_cast<std::size_t>(len), turn), mask, turn);
                if (::testing::Test::HasFailure())
                    return;
            }
}

TEST(FilterMedian, OfLongArrays)
{
    unsigned turn = 100;
    for (const Kind& kind : kinds)
        for (const int mask : {3, 5, 7, 9, 11, 500}) {
            SCOPED_TRACE(testing::Message() << kind.name << ", mask " << mask);
            ++turn;
            expectMedians(kind, someValues(kind, mask == 500 ? 1500 : 6007, turn), mask, turn);
        }
}

/// 0 and 1 tell every network from one that is wrong: it gives the median of all values if it gives that of all zeros
/// and ones. All windows of nine occur in the bits of 0 to 511.
TEST(FilterMedian, OfEveryPatternOfBits)
{
    for (const int mask : {3, 5, 7, 9}) {
        Values bits;
        for (unsigned pattern = 0; pattern < 1U << mask; ++pattern)
            for (int bit = 0; bit < mask; ++bit)
                bits.push_back(pattern >> bit & 1U);
        for (const Kind& kind : kinds)
            expectMedians(kind, bits, mask, static_cast<unsigned>(mask));
    }
}

TEST(FilterMedian, RemovesAClickAndKeepsAnEdge)
{
    const Values clicked = {1, 1, 1, 200, 1, 1, 7, 7, 7, 0, 7};
    const Values repaired = {1, 1, 1, 1, 1, 1, 7, 7, 7, 7, 7};
    for (const Kind& kind : kinds) {
        const Data data(kind, clicked, Placement::atEnd());
        EXPECT_EQ(tarnStsNoErr, kind.filterInPlace(data.bytes(), 11, 3));
        EXPECT_EQ(repaired, data.values());
    }
}

// -- Masks and lengths ------------------------------------------------------------------------------------------------

TEST(FilterMedian, OneAndTwoElementsStay)
{
    for (const Kind& kind : kinds)
        for (const int mask : {1, 2, 3, 4, 9, 10, 11, 12, 31, 1000})
            for (const Values& x : {Values{5}, Values{9, 3}}) {
                const Data data(kind, x, Placement::atEnd());
                EXPECT_EQ(expectedStatus(kind, mask),
                          kind.filterInPlace(data.bytes(), static_cast<int>(x.size()), mask));
                EXPECT_EQ(x, data.values());
            }
}

TEST(FilterMedian, AnEvenMaskIsTheOddOneBelowIt)
{
    for (const Kind& kind : kinds)
        for (const int mask : {2, 4, 6, 8, 10, 12, 40}) {
            const Values x = someValues(kind, 50, static_cast<unsigned>(mask));
            const Data even(kind, x, Placement::atEnd());
            const Data odd(kind, x, Placement::atEnd());
            const bool kept = &kind == &kind32s && mask > 10;
            EXPECT_EQ(kept ? tarnStsNoErr : tarnStsEvenMedianMaskSize, kind.filterInPlace(even.bytes(), 50, mask));
            EXPECT_EQ(tarnStsNoErr, kind.filterInPlace(odd.bytes(), 50, mask - 1));
            EXPECT_EQ(!kept, odd.raw() == even.raw());
        }
}

TEST(FilterMedian, TheUpperMiddleOfAnEvenWindowOf32s)
{
    // Around the step are six of each: x[n - 6], ..., x[n + 5].
    Values step(40, 3.0);
    std::fill(step.begin() + 20, step.end(), 8.0);
    Values expected(40, 3.0);
    std::fill(expected.begin() + 20, expected.end(), 8.0);
    expected[20] = 8; // elements 14 to 25: six below, six above
    const Data data(kind32s, step, Placement::atEnd());
    const Data dst(kind32s, step.size(), Placement::atEnd());
    EXPECT_EQ(tarnStsNoErr, kind32s.filter(data.bytes(), dst.bytes(), 40, 12));
    EXPECT_EQ(expected, dst.values());
}

TEST(FilterMedian, MasksLongerThanTheData)
{
    for (const Kind& kind : kinds)
        for (const int mask : {5, 7, 9, 11, 12, 99, 1001, 1002})
            for (const std::size_t len : {3U, 4U, 5U, 6U})
                expectMedians(kind, someValues(kind, len, static_cast<unsigned>(mask)), mask, 1);
}

TEST(FilterMedian, Checks)
{
    const auto mask = param(3, {0, -1, INT_MIN}, tarnStsSizeErr);
    expectChecks(tarnsFilterMedian_8u, {}, array, array, length, mask);
    expectChecks(tarnsFilterMedian_16s, {}, array, array, length, mask);
    expectChecks(tarnsFilterMedian_32s, {}, array, array, length, mask);
    expectChecks(tarnsFilterMedian_32f, {}, array, array, length, mask);
    expectChecks(tarnsFilterMedian_64f, {}, array, array, length, mask);
    expectChecks(tarnsFilterMedian_8u_I, {}, array, length, mask);
    expectChecks(tarnsFilterMedian_16s_I, {}, array, length, mask);
    expectChecks(tarnsFilterMedian_32s_I, {}, array, length, mask);
    expectChecks(tarnsFilterMedian_32f_I, {}, array, length, mask);
    expectChecks(tarnsFilterMedian_64f_I, {}, array, length, mask);
}

// -- Memory -----------------------------------------------------------------------------------------------------------

/// How many blocks a call allocates; all of them are freed again.
int blocksOf(const Kind& kind, int len, int mask)
{
    const Data data(kind, someValues(kind, static_cast<std::size_t>(len), 2), Placement::atEnd());
    TarnStatus status;
    int blocks;
    int outstanding;
    {
        const MemoryWatch watch;
        status = kind.filterInPlace(data.bytes(), len, mask);
        blocks = watch.allocated();
        outstanding = watch.outstanding();
    }
    EXPECT_EQ(0, outstanding);
    EXPECT_LE(0, status);
    return blocks;
}

TEST(FilterMedian, AllocatesForWindowsAndManyDoubles)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    for (const Kind& kind : kinds) {
        EXPECT_EQ(1, blocksOf(kind, 600, 11));
        EXPECT_EQ(&kind == &kind32s ? 1 : 0, blocksOf(kind, 513, 9));
        EXPECT_EQ(0, blocksOf(kind, 512, 9));
    }
}

TEST(FilterMedian, WithoutMemoryTheDestinationIsACopy)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    for (const Kind& kind : kinds)
        for (const int mask : {11, 12, 31, 500}) {
            const Data src(kind, someValues(kind, 60, 5), Placement::atEnd());
            const Data dst(kind, 60, Placement::atEnd());
            const std::vector<unsigned char> before = src.raw();
            TarnStatus apart;
            TarnStatus inPlace;
            {
                const MemoryWatch watch(0);
                apart = kind.filter(src.bytes(), dst.bytes(), 60, mask);
                inPlace = kind.filterInPlace(src.bytes(), 60, mask);
            }
            EXPECT_EQ(tarnStsNoMemErr, apart);
            EXPECT_EQ(tarnStsNoMemErr, inPlace);
            EXPECT_EQ(before, src.raw());
            EXPECT_EQ(before, dst.raw());
        }
}

TEST(FilterMedian, WithoutMemoryForDoublesNothingIsTouched)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    const Data src(kind32s, someValues(kind32s, 513, 5), Placement::atEnd());
    const Data dst(kind32s, 513, Placement::atEnd());
    const std::vector<unsigned char> before = src.raw();
    const std::vector<unsigned char> pattern = dst.raw();
    TarnStatus apart;
    TarnStatus inPlace;
    {
        const MemoryWatch watch(0);
        apart = kind32s.filter(src.bytes(), dst.bytes(), 513, 3);
        inPlace = kind32s.filterInPlace(src.bytes(), 513, 10);
    }
    EXPECT_EQ(tarnStsNoMemErr, apart);
    EXPECT_EQ(tarnStsNoMemErr, inPlace);
    EXPECT_EQ(before, src.raw());
    EXPECT_EQ(pattern, dst.raw());
}

TEST(FilterMedian, NoMemoryForTheLargestMasks)
{
    for (const Kind& kind : kinds)
        for (const int mask : {INT_MAX, INT_MAX - 1, INT_MAX / 2}) {
            const Values x = {4, 1, 3, 2};
            const Data src(kind, x, Placement::atEnd());
            const Data dst(kind, 4, Placement::atEnd());
            EXPECT_EQ(tarnStsNoMemErr, kind.filter(src.bytes(), dst.bytes(), 4, mask));
            EXPECT_EQ(x, dst.values());
            EXPECT_EQ(tarnStsNoMemErr, kind.filterInPlace(src.bytes(), 4, mask));
            EXPECT_EQ(x, src.values());
        }
}

// -- NaN --------------------------------------------------------------------------------------------------------------

/// Windows without a NaN have their median. The others give one of their elements; +infinity stands for the NaNs of the
/// larger masks.
TEST(FilterMedian, NansStayWithinTheirWindows)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    unsigned seed = 0;
    for (const Kind* kind : {&kind32f, &kind64f})
        for (const int mask : {3, 5, 7, 9, 11, 31, 201})
            for (const int nans : {1, 2, 10, 300}) {
                SCOPED_TRACE(testing::Message() << kind->name << ", mask " << mask << ", NaNs " << nans);
                Random random(++seed);
                Values x;
                for (int i = 0; i < 300; ++i)
                    x.push_back(static_cast<double>(random.below(1000)));
                for (int i = 0; i < nans; ++i)
                    x[nans == 300 ? static_cast<std::size_t>(i) : random.below(300)] = nan;
                Values counted = x;
                std::replace_if(
                    counted.begin(), counted.end(), [](double v) { return v != v; }, infinity);
                const Values expected = mediansOf(counted, mask);
                const Data src(*kind, x, Placement::atEnd());
                const Data dst(*kind, x.size(), Placement::atStart());
                ASSERT_EQ(tarnStsNoErr, kind->filter(src.bytes(), dst.bytes(), 300, mask));
                ASSERT_EQ(tarnStsNoErr, kind->filterInPlace(src.bytes(), 300, mask));
                const Values y = dst.values();
                EXPECT_EQ(dst.raw(), src.raw());
                for (int n = 1; n < 299; ++n) {
                    const auto first = x.begin() + std::max(0, n - mask / 2);
                    const auto last = x.begin() + std::min(300, n + mask / 2 + 1);
                    const double result = y[static_cast<std::size_t>(n)];
                    const bool clean = std::none_of(first, last, [](double v) { return v != v; });
                    if (clean || mask > 9)
                        ASSERT_EQ(expected[static_cast<std::size_t>(n)], result) << "at " << n;
                    else
                        ASSERT_TRUE(result != result || std::find(first, last, result) != last) << "at " << n;
                }
            }
}

// -- Kernels ----------------------------------------------------------------------------------------------------------

template <class T>
void expectKernels(const Kind& kind, void (*const (&kernels)[4])(T*, int))
{
    for (int k = 0; k < 4; ++k)
        for (const std::size_t len : {1U, 2U, 3U, 4U, 8U, 40U}) {
            const Values x = someValues(kind, len, static_cast<unsigned>(len));
            const Data data(kind, x, Placement::atEnd());
            kernels[k](static_cast<T*>(static_cast<void*>(data.bytes())), static_cast<int>(len));
            EXPECT_EQ(mediansOf(x, 3 + 2 * k), data.values()) << kind.name << ", length " << len;
        }
}

#define TARN_SMALL_KERNELS(TAG)                                                                            \
    {                                                                                                      \
        owntarnsFilterMedian3_##TAG##_I, owntarnsFilterMedian5_##TAG##_I, owntarnsFilterMedian7_##TAG##_I, \
            owntarnsFilterMedian9_##TAG##_I                                                                \
    }

TEST(FilterMedianKernels, OfSmallMasks)
{
    expectKernels<Tarn8u>(kind8u, TARN_SMALL_KERNELS(8u));
    expectKernels<Tarn16s>(kind16s, TARN_SMALL_KERNELS(16s));
    expectKernels<Tarn32f>(kind32f, TARN_SMALL_KERNELS(32f));
    expectKernels<Tarn64f>(kind64f, TARN_SMALL_KERNELS(64f));
}

TEST(FilterMedianKernels, SlideInTheCallersMemory)
{
    const Values x = someValues(kind64f, 100, 4);
    std::vector<Tarn32f> singles(x.begin(), x.end());
    std::vector<Tarn64f> doubles(x.begin(), x.end());
    alignas(64) Tarn32f singleWork[64];
    alignas(64) Tarn64f doubleWork[64];
    owntarnsFilterMedianX_32f_I(singles.data(), 100, 21, singleWork);
    owntarnsFilterMedianX_64f_I(doubles.data(), 100, 21, doubleWork);
    const Values expected = mediansOf(x, 21);
    EXPECT_EQ(expected, Values(singles.begin(), singles.end()));
    EXPECT_EQ(expected, Values(doubles.begin(), doubles.end()));
}

template <class T>
void expectAscends(void (*sort)(T*, int), const Kind& kind)
{
    const Values x = someValues(kind, 300, 5);
    std::vector<T> array(x.begin(), x.end());
    std::vector<T> expected = array;
    std::sort(expected.begin(), expected.end());
    sort(array.data(), 300);
    EXPECT_EQ(expected, array);
}

TEST(FilterMedianKernels, Sort)
{
    expectAscends(owntarnsTarn32sSort, kind32s);
    expectAscends(owntarnsTarn32fSort, kind32f);
    expectAscends(owntarnsTarn64fSort, kind64f);
}

} // namespace
} // namespace tarn::test
