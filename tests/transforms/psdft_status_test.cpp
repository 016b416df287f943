// Objects of the transforms of any length: statuses and their order, sizes of work buffers, life and death, and what
// happens when memory is refused.
#include "support/compare.h"
#include "support/guarded.h"
#include "support/memory_watch.h"
#include "support/transform_runs.h"
#include "tarns/dft.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

namespace tarn::test {
namespace {

template <class T>
class DftStatus : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(DftStatus, Precisions);

template <class T>
std::vector<TransformKind> kinds()
{
    const auto& cases = anyTransformCases<T>();
    return {cases[0].kind, cases[2].kind, cases[4].kind};
}

std::vector<TransformKind> kindsOfBothPrecisions()
{
    auto all = kinds<Tarn32f>();
    for (const TransformKind& kind : kinds<Tarn64f>())
        all.push_back(kind);
    return all;
}

void* const untouched = reinterpret_cast<void*>(std::uintptr_t{0x1234});

/// One of each method, and of each of its tables: written out, power of two, direct, factors, halves of them,
/// convolution, half of one.
constexpr int lengths[] = {1, 4, 5, 6, 8, 12, 49, 64, 98, 101, 151, 181, 202, 302, 471, 1000, 2187};

TYPED_TEST(DftStatus, CreationChecksPointerThenLengthThenFlag)
{
    for (const TransformKind& kind : kinds<TypeParam>()) {
        EXPECT_EQ(tarnStsNullPtrErr, kind.create(nullptr, 0, 3, 0)) << kind.name;
        for (int length : {0, -1, INT_MIN}) {
            void* spec = untouched;
            EXPECT_EQ(tarnStsSizeErr, kind.create(&spec, length, 3, 0)) << kind.name << " length " << length;
            EXPECT_EQ(untouched, spec);
        }
        for (int length : lengths)
            for (int flag : {0, 3, 5, 6, 7, 9, 16, -1, INT_MIN}) {
                void* spec = untouched;
                EXPECT_EQ(tarnStsFftFlagErr, kind.create(&spec, length, flag, 0)) << kind.name << " flag " << flag;
                EXPECT_EQ(untouched, spec);
            }
        for (int hint : {0, 1, 2, 77, -5}) {
            void* spec = nullptr;
            ASSERT_EQ(tarnStsNoErr, kind.create(&spec, 60, TARN_FFT_NODIV_BY_ANY, hint)) << kind.name;
            EXPECT_EQ(tarnStsNoErr, kind.free(spec));
        }
    }
}

/// Tables of that size cannot be had, whatever memory there is.
TYPED_TEST(DftStatus, TheLongestOnesCannotBeHad)
{
    for (const TransformKind& kind : kinds<TypeParam>())
        for (int length : {INT_MAX, INT_MAX - 1, 1 << 30, 3 << 28}) {
            void* spec = untouched;
            EXPECT_EQ(tarnStsNoMemErr, kind.create(&spec, length, TARN_FFT_NODIV_BY_ANY, 0)) << kind.name << length;
            EXPECT_EQ(untouched, spec);
        }
}

TYPED_TEST(DftStatus, WorkBufferSizesAreExact)
{
    constexpr int pairBytes = 2 * sizeof(TypeParam);
    const auto fftBytes = [](int order) { return order < 4 ? 0 : (pairBytes << order) + 16; };
    struct {
        int length;
        int pairs; // of interleaved or split complex data
        int reals;
    } const expected[] = {
        {1, 0, 0},
        {4, 0, 0},
        // Direct sums.
        {5, 5 * pairBytes + 16, 5 * pairBytes / 2 + 16},
        {149, 149 * pairBytes + 16, 149 * pairBytes / 2 + 16},
        // Half of it is three or five points by direct sums, a complex one has factors: as many points again as the
        // largest of factors and what is left.
        {6, (6 + 3) * pairBytes + 16, 3 * pairBytes + 16},
        {10, (10 + 5) * pairBytes + 16, 5 * pairBytes + 16},
        {9, (9 + 3) * pairBytes + 16, (9 + 3) * pairBytes + 16},
        {1000, (1000 + 500) * pairBytes + 16, (500 + 125) * pairBytes + 16},
        // Powers of two.
        {8, 0, 0},
        {64, fftBytes(6), fftBytes(5)},
        // Convolution: 512 points from 151 on, 1024 from 257 on. Real ones begin later, but for halves.
        {151, 512 * pairBytes + fftBytes(9) + 16, 151 * pairBytes / 2 + 16},
        {179, 512 * pairBytes + fftBytes(9) + 16, 179 * pairBytes / 2 + 16},
        {181, 512 * pairBytes + fftBytes(9) + 16, 512 * pairBytes + fftBytes(9) + 16},
        {257, 1024 * pairBytes + fftBytes(10) + 16, 1024 * pairBytes + fftBytes(10) + 16},
        {302, 1024 * pairBytes + fftBytes(10) + 16, 512 * pairBytes + fftBytes(9) + 16},
        {471, 1024 * pairBytes + fftBytes(10) + 16, 1024 * pairBytes + fftBytes(10) + 16},
    };
    for (const TransformKind& kind : kinds<TypeParam>())
        for (const auto& [length, pairs, reals] : expected) {
            const TransformSpec spec(kind, length, TARN_FFT_DIV_BY_SQRTN);
            EXPECT_EQ(static_cast<std::size_t>(kind.name[0] == 'R' ? reals : pairs), spec.bufSize())
                << kind.name << " length " << length;
        }
}

TYPED_TEST(DftStatus, SizeAndReleaseCheckTheObject)
{
    for (const TransformKind& kind : kinds<TypeParam>()) {
        const TransformSpec spec(kind, 15, TARN_FFT_NODIV_BY_ANY);
        int size = 4711;
        EXPECT_EQ(tarnStsNullPtrErr, kind.getBufSize(nullptr, &size));
        EXPECT_EQ(tarnStsNullPtrErr, kind.getBufSize(spec.get(), nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, kind.free(nullptr));
        for (const TransformKind& other : kindsOfBothPrecisions())
            if (other.identifier != kind.identifier) {
                EXPECT_EQ(tarnStsContextMatchErr, other.getBufSize(spec.get(), &size));
                EXPECT_EQ(tarnStsNullPtrErr, other.getBufSize(spec.get(), nullptr)) << "pointers come first";
                EXPECT_EQ(tarnStsContextMatchErr, other.free(spec.get()));
            }
        EXPECT_EQ(4711, size);
    }
}

/// An object of the other family of transforms is as foreign as one of another kind.
TEST(DftIdentifiers, AreTheFirstWordsAndDifferFromAllOthers)
{
    for (const TransformKind& kind : kindsOfBothPrecisions())
        for (int length : {2, 64, 30}) {
            const TransformSpec spec(kind, length, TARN_FFT_NODIV_BY_ANY);
            std::int32_t words[2];
            std::memcpy(words, spec.get(), sizeof words);
            EXPECT_EQ(kind.identifier, words[0]) << kind.name;
            EXPECT_EQ(length, words[1]) << kind.name;
            int size = 0;
            for (const TransformKind& other : transformKinds<Tarn32f>()) {
                EXPECT_EQ(tarnStsContextMatchErr, other.getBufSize(spec.get(), &size));
                const TransformSpec foreign(other, 4, TARN_FFT_NODIV_BY_ANY);
                EXPECT_EQ(tarnStsContextMatchErr, kind.getBufSize(foreign.get(), &size));
            }
        }
}

TYPED_TEST(DftStatus, TransformsCheckTheObjectThenTheArrays)
{
    using T = TypeParam;
    alignas(16) const Tarn32s freed[64] = {};
    for (const TransformCase<T>& transform : anyTransformCases<T>())
        for (int length : {3, 8, 15, 29, 151}) {
            const TransformSpec spec(transform.kind, length, TARN_FFT_NODIV_BY_ANY);
            std::vector<T> data(1024, T{3});
            const std::vector<T> before = data;
            const int count = 2 * transform.arrays;
            // Every set of arrays that are missing, with the right object, a wrong one, a freed one and none.
            for (int missing = 0; missing < 1 << count; ++missing) {
                const T* src[2];
                T* dst[2];
                for (int i = 0; i < transform.arrays; ++i) {
                    src[i] = (missing >> i & 1) != 0 ? nullptr : data.data();
                    dst[i] = (missing >> (transform.arrays + i) & 1) != 0 ? nullptr : data.data() + 320 * (i + 1);
                }
                EXPECT_EQ(tarnStsNullPtrErr, transform.run(src, dst, nullptr, nullptr)) << transform.name;
                EXPECT_EQ(tarnStsContextMatchErr, transform.run(src, dst, freed, nullptr)) << transform.name;
                for (const TransformKind& other : kindsOfBothPrecisions()) {
                    if (other.identifier == transform.kind.identifier || missing > 1)
                        continue;
                    const TransformSpec foreign(other, length, TARN_FFT_NODIV_BY_ANY);
                    EXPECT_EQ(tarnStsContextMatchErr, transform.run(src, dst, foreign.get(), nullptr))
                        << transform.name << " with " << other.name;
                }
                if (missing != 0) {
                    EXPECT_EQ(tarnStsNullPtrErr, transform.run(src, dst, spec.get(), nullptr))
                        << transform.name << " missing " << missing;
                }
                EXPECT_EQ(before, data) << transform.name;
            }
        }
}

TYPED_TEST(DftStatus, SmallLengthsDoNotTouchTheBuffer)
{
    using T = TypeParam;
    for (const TransformCase<T>& transform : anyTransformCases<T>())
        for (int length : {1, 2, 3, 4, 8}) {
            const TransformSpec spec(transform.kind, length, TARN_FFT_DIV_BY_SQRTN);
            EXPECT_EQ(0U, spec.bufSize());
            std::vector<T> data(64, T{1});
            const T* src[] = {data.data(), data.data() + 16};
            T* dst[] = {data.data() + 32, data.data() + 48};
            EXPECT_EQ(tarnStsNoErr, transform.run(src, dst, spec.get(), unreadable<Tarn8u>())) << transform.name;
        }
}

TYPED_TEST(DftStatus, CreationGivesBackAllItGotWhenMemoryRunsOut)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const TransformKind& kind : kinds<TypeParam>())
        for (int length : lengths)
            for (int allowed = 0;; ++allowed) {
                ASSERT_LT(allowed, 64);
                void* spec = untouched;
                int status = 0;
                int held = 0;
                {
                    const MemoryWatch watch(allowed);
                    status = kind.create(&spec, length, TARN_FFT_DIV_BY_SQRTN, 0);
                    held = watch.outstanding();
                }
                if (status == tarnStsNoErr) {
                    EXPECT_GE(held, length <= 4 ? 1 : 2);
                    const MemoryWatch watch;
                    EXPECT_EQ(tarnStsNoErr, kind.free(spec));
                    EXPECT_EQ(-held, watch.outstanding()) << kind.name << " length " << length;
                    break;
                }
                ASSERT_EQ(tarnStsNoMemErr, status) << kind.name << " length " << length << " allowed " << allowed;
                ASSERT_EQ(0, held) << kind.name << " length " << length << " allowed " << allowed;
                ASSERT_EQ(untouched, spec);
            }
}

TYPED_TEST(DftStatus, ABadFlagLeavesNothingBehind)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const TransformKind& kind : kinds<TypeParam>())
        for (int length : lengths) {
            void* spec = nullptr;
            {
                const MemoryWatch watch;
                EXPECT_EQ(tarnStsFftFlagErr, kind.create(&spec, length, 3, 0));
                EXPECT_EQ(0, watch.outstanding());
            }
            const MemoryWatch watch(0);
            EXPECT_EQ(tarnStsNoMemErr, kind.create(&spec, length, 3, 0)) << "memory comes first";
        }
}

TYPED_TEST(DftStatus, TransformsAllocateOnlyTheBufferThatIsMissing)
{
    using T = TypeParam;
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const TransformCase<T>& transform : anyTransformCases<T>())
        for (int length : lengths) {
            const TransformSpec spec(transform.kind, length, TARN_FFT_DIV_BY_SQRTN);
            Arrays<T> from(2, std::vector<T>(transform.srcReals(length), T{1}));
            Arrays<T> to(2, std::vector<T>(transform.dstReals(length), T{7}));
            const Arrays<T> before = to;
            const T* src[] = {from[0].data(), from[1].data()};
            T* dst[] = {to[0].data(), to[1].data()};
            std::vector<Tarn8u> buffer(spec.bufSize() + 1);
            const bool needsBuffer = spec.bufSize() > 0;
            const auto runWith = [&](int allowed, Tarn8u* work) {
                const MemoryWatch watch(allowed);
                const int status = transform.run(src, dst, spec.get(), work);
                return std::tuple{status, watch.allocated(), watch.outstanding()};
            };
            if (needsBuffer) {
                EXPECT_EQ((std::tuple{int{tarnStsNoMemErr}, 0, 0}), runWith(0, nullptr)) << transform.name << length;
            }
            EXPECT_EQ(before, to) << transform.name;
            EXPECT_EQ((std::tuple{int{tarnStsNoErr}, 0, 0}), runWith(0, buffer.data())) << transform.name << length;
            EXPECT_EQ((std::tuple{int{tarnStsNoErr}, needsBuffer ? 1 : 0, 0}), runWith(8, nullptr)) << transform.name;
        }
}

} // namespace
} // namespace tarn::test
