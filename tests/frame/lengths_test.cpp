// Arrays of more than 2^31 bytes: every function that hands a length on reaches the last element and stops there.
//
// The arrays are addresses more than memory: between the edges the same pages come again and again (support/vast.h). So
// the elements there are all equal, before and after a call, and the edges tell how far it went.
#include "tarns.h"

#include "support/element.h"
#include "support/vast.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace tarn::test {
namespace {

using std::size_t;

// Negative as a 32-bit integer.
constexpr size_t bytesBeyondInt = (size_t{1} << 31) + VastArray::edgeBytes;

// What is different at either end. An array of wider elements has as many, and all of them lie on the edge.
constexpr size_t edgeElements = 1000;
static_assert(3 * edgeElements * sizeof(Tarn64fc) < VastArray::edgeBytes);

template <class T>
T nthValue(size_t n)
{
    T value;
    unsigned char bytes[sizeof(T)];
    for (size_t i = 0; i < sizeof(T); ++i)
        bytes[i] = static_cast<unsigned char>(1 + (n * 7 + i * 3) % 60); // an ordinary number in every type
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

// `len` elements at the end of a vast array.
template <class T>
struct Span {
    T* p;
    size_t len;
    bool hasFirstEdge;

    Span(const VastArray& array, size_t length)
        : p(array.endingWith<T>(length)), len(length), hasFirstEdge(length * sizeof(T) == array.byteSize())
    {
    }
    int length() const { return static_cast<int>(len); }

    // Calls `body` with every index that is worth a look: the edges, and once what comes again between them.
    template <class Body>
    void forEach(Body body) const
    {
        const size_t between = VastArray::edgeBytes / sizeof(T) + 1;
        for (size_t i = 0; hasFirstEdge && i < edgeElements; ++i)
            body(i);
        for (size_t i = between; i < between + VastArray::repeatedBytes / sizeof(T); ++i)
            body(i);
        for (size_t i = len - edgeElements; i < len; ++i)
            body(i);
    }
    bool isOnEdge(size_t i) const { return i >= len - edgeElements || (hasFirstEdge && i < edgeElements); }

    void fill(size_t seed) const
    {
        // The rest of the edges is like what lies between them.
        const size_t edge = std::min(len, VastArray::edgeBytes / sizeof(T));
        std::fill_n(p, hasFirstEdge ? edge : 0, nthValue<T>(seed));
        std::fill_n(p + len - edge, edge, nthValue<T>(seed));
        forEach([&](size_t i) { p[i] = nthValue<T>(isOnEdge(i) ? seed + 1 + i % 997 : seed); });
    }
};

template <class T>
bool sameBytes(const T& a, const T& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// dst[i] = expected(i)
template <class T, class Expected>
void expectElements(const Span<T>& dst, const char* what, Expected expected)
{
    size_t wrong = 0;
    size_t first = 0;
    dst.forEach([&](size_t i) {
        const T wanted = expected(i);
        if (!sameBytes(wanted, dst.p[i]) && wrong++ == 0)
            first = i;
    });
    EXPECT_EQ(0U, wrong) << what << " of " << dst.len << " elements, the first of them at " << first;
}

class Lengths : public ::testing::Test {
protected:
    // Made once: most of the time goes into the first look at each page. The destination is what a 32-bit process has
    // addresses for, the source what is left.
    static void SetUpTestSuite()
    {
        destination = std::make_unique<VastArray>(bytesBeyondInt);
        size_t bytes = bytesBeyondInt;
        source = std::make_unique<VastArray>(bytes);
        while (!source->mapped() && bytes > (size_t{1} << 29)) {
            bytes = bytes / 8 * 7;
            source = std::make_unique<VastArray>(bytes);
        }
    }
    static void TearDownTestSuite()
    {
        destination.reset();
        source.reset();
    }
    void SetUp() override
    {
        if (!destination->mapped() || !source->mapped())
            GTEST_SKIP() << "there are not enough addresses for an array of " << bytesBeyondInt << " bytes";
    }

    template <class T>
    static Span<T> wholeDestination()
    {
        const size_t len = bytesBeyondInt / sizeof(T);
        return {*destination, std::min<size_t>(len, INT_MAX)};
    }
    // As long as another array, or as there are addresses for.
    template <class T>
    static bool sourceHolds(size_t len)
    {
        return len * sizeof(T) <= source->byteSize();
    }
    template <class T>
    static Span<T> sourceOf(size_t len)
    {
        return {*source, len};
    }

    // dst[i] = f(src[i]) of as many elements as fit both.
    template <class S, class D, class Call, class Model>
    static void expectElementwise(const char* what, Call call, Model model)
    {
        const size_t len =
            std::min({bytesBeyondInt / sizeof(D), source->byteSize() / sizeof(S), static_cast<size_t>(INT_MAX)});
        const Span<S> src = sourceOf<S>(len);
        const Span<D> dst(*destination, len);
        src.fill(3);
        dst.fill(30);
        EXPECT_EQ(tarnStsNoErr, call(src.p, dst.p, dst.length()));
        expectElements(dst, what, [&](size_t i) { return model(src.p[i]); });
    }

    // The array becomes zeros.
    template <class T, class Call>
    static void expectZeros(const char* what, Call call)
    {
        const Span<T> dst = wholeDestination<T>();
        dst.fill(5);
        EXPECT_EQ(tarnStsNoErr, call(dst.p, dst.length()));
        expectElements(dst, what, [](size_t) { return T{}; });
    }

    static std::unique_ptr<VastArray> source;
    static std::unique_ptr<VastArray> destination;
};

std::unique_ptr<VastArray> Lengths::source;
std::unique_ptr<VastArray> Lengths::destination;

constexpr auto same = [](auto x) { return x; };

// -- Movement ---------------------------------------------------------------------------------------------------------

TEST_F(Lengths, Zero)
{
    expectZeros<Tarn8u>("zeros", tarnsZero_8u);
    expectZeros<Tarn16s>("zeros", tarnsZero_16s);
    expectZeros<Tarn32f>("zeros", tarnsZero_32f);
    expectZeros<Tarn64f>("zeros", tarnsZero_64f);
    expectZeros<Tarn64fc>("zeros", tarnsZero_64fc);
}

template <class T>
void expectSet(const Span<T>& dst, TarnStatus (*set)(T, T*, int))
{
    const T value = nthValue<T>(11);
    dst.fill(5);
    EXPECT_EQ(tarnStsNoErr, set(value, dst.p, dst.length()));
    expectElements(dst, "set", [=](size_t) { return value; });
}

TEST_F(Lengths, Set)
{
    expectSet(wholeDestination<Tarn16s>(), tarnsSet_16s);
    expectSet(wholeDestination<Tarn64fc>(), tarnsSet_64fc);
}

TEST_F(Lengths, Copy)
{
    expectElementwise<Tarn8u, Tarn8u>("copy", tarnsCopy_8u, same);
    expectElementwise<Tarn16s, Tarn16s>("copy", tarnsCopy_16s, same);
    expectElementwise<Tarn32f, Tarn32f>("copy", tarnsCopy_32f, same);
    expectElementwise<Tarn64f, Tarn64f>("copy", tarnsCopy_64f, same);
    expectElementwise<Tarn64fc, Tarn64fc>("copy", tarnsCopy_64fc, same);
}

// By one element within one array, so that there are addresses for it everywhere.
template <class T>
void expectMoved(const Span<T>& array, TarnStatus (*move)(const T*, T*, int))
{
    array.fill(8);
    std::vector<T> edge(array.p + array.len - edgeElements, array.p + array.len);
    EXPECT_EQ(tarnStsNoErr, move(array.p, array.p + 1, array.length() - 1));
    size_t wrong = 0;
    for (size_t i = 1; i < edgeElements; ++i)
        wrong += !sameBytes(edge[i - 1], array.p[array.len - edgeElements + i]);
    EXPECT_EQ(0U, wrong) << "moved by an element of " << sizeof(T) << " bytes";
}

TEST_F(Lengths, Move)
{
    expectMoved(wholeDestination<Tarn16s>(), tarnsMove_16s);
    expectMoved(wholeDestination<Tarn64fc>(), tarnsMove_64fc);
}

TEST_F(Lengths, Flip)
{
    const Span<Tarn64f> array = wholeDestination<Tarn64f>();
    array.fill(9);
    std::vector<Tarn64f> first(array.p, array.p + edgeElements);
    std::vector<Tarn64f> last(array.p + array.len - edgeElements, array.p + array.len);
    std::reverse(first.begin(), first.end());
    std::reverse(last.begin(), last.end());
    EXPECT_EQ(tarnStsNoErr, tarnsFlip_64f_I(array.p, array.length()));
    EXPECT_TRUE(std::equal(last.begin(), last.end(), array.p));
    EXPECT_TRUE(std::equal(first.begin(), first.end(), array.p + array.len - edgeElements));
}

// Three bytes an element: a third of the length that a byte count would have.
TEST_F(Lengths, SwapBytes)
{
    const size_t len = bytesBeyondInt / 3;
    const Span<Tarn8u> array(*destination, 3 * len);
    array.fill(4);
    std::vector<Tarn8u> edge(array.p + array.len - edgeElements, array.p + array.len);
    EXPECT_EQ(tarnStsNoErr, tarnsSwapBytes_24u_I(array.p, static_cast<int>(len)));
    size_t wrong = 0;
    for (size_t i = edgeElements % 3; i < edgeElements; i += 3)
        for (size_t k = 0; k < 3; ++k)
            wrong += edge[i + k] != array.p[array.len - edgeElements + i + 2 - k];
    EXPECT_EQ(0U, wrong);
}

// On a machine with room for it a count that wraps to a small positive one.
TEST_F(Lengths, BeyondAnUnsignedCount)
{
    if (sizeof(void*) < 8)
        GTEST_SKIP() << "there are no 2^32 bytes beside the program";
    constexpr auto bytes = static_cast<size_t>((std::uint64_t{1} << 32) + 2 * VastArray::edgeBytes);
    const VastArray large(bytes);
    ASSERT_TRUE(large.mapped());
    const Span<Tarn32f> floats(large, bytes / sizeof(Tarn32f));
    floats.fill(2);
    EXPECT_EQ(tarnStsNoErr, tarnsZero_32f(floats.p, floats.length()));
    expectElements(floats, "zeros", [](size_t) { return 0.0F; });
    const Span<Tarn64fc> pairs(large, bytes / sizeof(Tarn64fc));
    expectSet(pairs, tarnsSet_64fc);
    expectMoved(Span<Tarn64f>(large, bytes / sizeof(Tarn64f)), tarnsMove_64f);
}

// -- Shortcuts of arithmetic: scale factors and constants that leave zeros or a copy ----------------------------------

TEST_F(Lengths, ShortcutsToZeros)
{
    expectZeros<Tarn16s>("a sum scaled to nothing",
                         [](Tarn16s* p, int len) { return tarnsAdd_16s_ISfs(p, p, len, 40); });
    expectZeros<Tarn32sc>("a constant added and scaled to nothing", [](Tarn32sc* p, int len) {
        return tarnsAddC_32sc_ISfs({1, 1}, p, len, 40);
    });
    expectZeros<Tarn16sc>("a product scaled to nothing",
                          [](Tarn16sc* p, int len) { return tarnsMul_16sc_ISfs(p, p, len, 70); });
    expectZeros<Tarn64f>("a product with 0", [](Tarn64f* p, int len) { return tarnsMulC_64f_I(0, p, len); });
    expectZeros<Tarn16u>("a shift of all bits", [](Tarn16u* p, int len) { return tarnsRShiftC_16u_I(20, p, len); });
    expectZeros<Tarn32s>("a shift of all bits", [](Tarn32s* p, int len) { return tarnsLShiftC_32s_I(40, p, len); });
}

TEST_F(Lengths, ShortcutsToCopies)
{
    expectElementwise<Tarn64f, Tarn64f>(
        "0 added", [](const Tarn64f* a, Tarn64f* d, int len) { return tarnsAddC_64f(a, 0, d, len); }, same);
    expectElementwise<Tarn64fc, Tarn64fc>(
        "1 as a factor",
        [](const Tarn64fc* a, Tarn64fc* d, int len) {
            return tarnsMulC_64fc(a, {1, 0}, d, len);
        },
        same);
    expectElementwise<Tarn32s, Tarn32s>(
        "shift by 0", [](const Tarn32s* a, Tarn32s* d, int len) { return tarnsRShiftC_32s(a, 0, d, len); }, same);
    expectElementwise<Tarn64f, Tarn64f>(
        "sampling by 1",
        [](const Tarn64f* a, Tarn64f* d, int len) {
            int count = 0;
            int phase = 0;
            const TarnStatus status = tarnsSampleDown_64f(a, len, d, &count, 1, &phase);
            EXPECT_EQ(len, count);
            return status;
        },
        same);
}

// -- Walks ------------------------------------------------------------------------------------------------------------

TEST_F(Lengths, Elementwise)
{
    expectElementwise<Tarn64f, Tarn64f>(
        "sums", [](const Tarn64f* a, Tarn64f* d, int len) { return tarnsAdd_64f(a, a, d, len); },
        [](Tarn64f x) { return x + x; });
    expectElementwise<Tarn16s, Tarn16s>(
        "complements",
        [](const Tarn16s* a, Tarn16s* d, int len) {
            return tarnsNot_16u(reinterpret_cast<const Tarn16u*>(a), reinterpret_cast<Tarn16u*>(d), len);
        },
        [](Tarn16s x) { return static_cast<Tarn16s>(~x); });
}

TEST_F(Lengths, Conversions)
{
    expectElementwise<Tarn8s, Tarn32f>("floats", tarnsConvert_8s32f, [](Tarn8s x) { return static_cast<Tarn32f>(x); });
    expectElementwise<Tarn32s, Tarn16s>("words", tarnsConvert_32s16s,
                                        [](Tarn32s x) { return static_cast<Tarn16s>(std::min(x, 32767)); });

    const size_t len = std::min(bytesBeyondInt / 4, source->byteSize() / 3);
    const Span<Tarn8u> src = sourceOf<Tarn8u>(3 * len);
    const Span<Tarn32u> dst(*destination, len);
    src.fill(6);
    dst.fill(30);
    EXPECT_EQ(tarnStsNoErr, tarnsConvert_24u32u(src.p, dst.p, dst.length()));
    for (size_t i = len - edgeElements / 3; i < len; ++i) {
        const Tarn8u* const x = src.p + 3 * i;
        ASSERT_EQ(x[0] + 256U * x[1] + 65536U * x[2], dst.p[i]) << i;
    }
}

TEST_F(Lengths, ConversionTo24Bits)
{
    const size_t len = std::min(bytesBeyondInt / 3, source->byteSize() / 4);
    const Span<Tarn32s> src = sourceOf<Tarn32s>(len);
    const Span<Tarn8u> dst(*destination, 3 * len);
    src.fill(6);
    dst.fill(30);
    EXPECT_EQ(tarnStsNoErr, tarnsConvert_32s24s_Sfs(src.p, dst.p, src.length(), 8));
    for (size_t i = len - edgeElements / 3; i < len; ++i) {
        const Tarn8u* const x = dst.p + 3 * i;
        const auto scaled = static_cast<Tarn32s>(src.p[i] / 256.0 + 0.5);
        ASSERT_EQ(scaled, x[0] + 256 * x[1] + 65536 * x[2]) << i;
    }
}

// -- Sampling ---------------------------------------------------------------------------------------------------------

TEST_F(Lengths, SampleUp)
{
    for (const int factor : {2, 3}) {
        const auto step = static_cast<size_t>(factor);
        const size_t len = bytesBeyondInt / sizeof(Tarn64fc) / step;
        const Span<Tarn64fc> src = sourceOf<Tarn64fc>(len);
        const Span<Tarn64fc> dst(*destination, len * step);
        src.fill(6);
        dst.fill(30);
        int count = 0;
        int phase = 1;
        EXPECT_EQ(tarnStsNoErr, tarnsSampleUp_64fc(src.p, src.length(), dst.p, &count, factor, &phase));
        EXPECT_EQ(dst.length(), count);
        for (size_t i = dst.len - edgeElements; i < dst.len; ++i)
            ASSERT_TRUE(sameBytes(i % step == 1 ? src.p[i / step] : Tarn64fc{}, dst.p[i])) << i << " by " << factor;
    }
}

TEST_F(Lengths, SampleDown)
{
    for (const int factor : {2, 3}) {
        const auto step = static_cast<size_t>(factor);
        const Span<Tarn64f> src = wholeDestination<Tarn64f>();
        const size_t taken = (src.len - 1) / step + 1;
        const Span<Tarn64f> dst = sourceOf<Tarn64f>(taken);
        src.fill(6);
        dst.fill(30);
        int count = 0;
        int phase = 0;
        EXPECT_EQ(tarnStsNoErr, tarnsSampleDown_64f(src.p, src.length(), dst.p, &count, factor, &phase));
        EXPECT_EQ(dst.length(), count);
        for (size_t i = taken - edgeElements / step; i < taken; ++i)
            ASSERT_EQ(src.p[i * step], dst.p[i]) << i << " by " << factor;
    }
}

TEST_F(Lengths, Join)
{
    constexpr int channels = 9;
    const size_t len = bytesBeyondInt / sizeof(Tarn16s) / channels;
    const Span<Tarn32f> src = sourceOf<Tarn32f>(len);
    const Span<Tarn16s> dst(*destination, len * channels);
    src.fill(6);
    for (size_t i = 0; i < edgeElements; ++i)
        src.p[len - 1 - i] = static_cast<Tarn32f>(i);
    const std::vector<const Tarn32f*> pointers(channels, src.p);
    std::vector<const Tarn32f*> given = pointers;
    EXPECT_EQ(tarnStsNoErr, tarnsJoin_32f16s_D2L(given.data(), channels, src.length(), dst.p));
    for (size_t i = 0; i < edgeElements; ++i)
        ASSERT_EQ(static_cast<Tarn16s>(i / channels), dst.p[dst.len - 1 - i]) << i;
}

// A table of as many entries as an int counts: only a few of them are looked at.
TEST_F(Lengths, FindNearest)
{
    if (sizeof(void*) < 8)
        GTEST_SKIP() << "there are no 2^32 bytes beside the program";
    const auto entries = static_cast<size_t>(INT_MAX);
    const VastArray large(entries * sizeof(Tarn16u));
    ASSERT_TRUE(large.mapped());
    const Span<Tarn16u> table(large, entries);
    table.fill(0);
    const Tarn16u most = nthValue<Tarn16u>(0);
    for (size_t i = 0; i < edgeElements; ++i)
        table.p[entries - 1 - i] = static_cast<Tarn16u>(most + edgeElements - i);
    std::vector<Tarn16u> values(32);
    for (size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<Tarn16u>(most + 20 * i + 1);
    std::vector<Tarn16u> found(values.size());
    std::vector<Tarn32s> places(values.size());
    EXPECT_EQ(tarnStsNoErr, tarnsFindNearest_16u(values.data(), found.data(), places.data(),
                                                 static_cast<int>(values.size()), table.p, table.length()));
    EXPECT_EQ(values, found);
    for (size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(static_cast<Tarn32s>(entries - edgeElements + 20 * i), places[i]);
}

// -- Reductions -------------------------------------------------------------------------------------------------------

TEST_F(Lengths, Reductions)
{
    const Span<Tarn32f> floats = wholeDestination<Tarn32f>();
    EXPECT_EQ(tarnStsNoErr, tarnsZero_32f(floats.p, floats.length()));
    floats.p[floats.len - 2] = 4;
    floats.p[floats.len - 1] = -3;
    Tarn32f largest = 0;
    int place = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsMaxIndx_32f(floats.p, floats.length(), &largest, &place));
    EXPECT_EQ(4, largest);
    EXPECT_EQ(floats.length() - 2, place);
    Tarn64f norm = 0;
    const auto* const pairs = reinterpret_cast<const Tarn32fc*>(floats.p);
    EXPECT_EQ(tarnStsNoErr, tarnsNorm_L2_32fc64f(pairs, floats.length() / 2, &norm));
    EXPECT_EQ(5, norm);
    Tarn64f product = 0;
    EXPECT_EQ(tarnStsNoErr, tarnsDotProd_32f64f(floats.p, floats.p, floats.length(), &product));
    EXPECT_EQ(25, product);
}

// -- Filters and generators -------------------------------------------------------------------------------------------

// The output of two taps at the far end.
TEST_F(Lengths, Filter)
{
    const Tarn64f taps[] = {1, 2};
    TarnsFIRState64f_32f* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRInitAlloc64f_32f(&state, taps, 2, nullptr));
    const size_t len = source->byteSize() / sizeof(Tarn32f);
    const Span<Tarn32f> src = sourceOf<Tarn32f>(len);
    const Span<Tarn32f> dst(*destination, len);
    src.fill(1);
    dst.fill(30);
    EXPECT_EQ(tarnStsNoErr, tarnsFIR64f_32f(src.p, dst.p, src.length(), state));
    for (size_t i = len - edgeElements + 1; i < len; ++i)
        ASSERT_EQ(static_cast<Tarn32f>(Tarn64f{src.p[i]} + 2 * Tarn64f{src.p[i - 1]}), dst.p[i]) << i;
    tarnsFIRFree64f_32f(state);
}

TEST_F(Lengths, Window)
{
    const Span<Tarn64f> array = wholeDestination<Tarn64f>();
    array.fill(9);
    std::fill_n(array.p, edgeElements, 1.0);
    std::fill_n(array.p + array.len - edgeElements, edgeElements, 1.0);
    EXPECT_EQ(tarnStsNoErr, tarnsWinBartlett_64f_I(array.p, array.length()));
    for (size_t i = 0; i < edgeElements; ++i) {
        const Tarn64f weight = 2.0 * static_cast<Tarn64f>(i) / static_cast<Tarn64f>(array.len - 1);
        ASSERT_NEAR(weight, array.p[i], 1e-15) << i;
        ASSERT_NEAR(weight, array.p[array.len - 1 - i], 1e-15) << i;
    }
}

} // namespace
} // namespace tarn::test
