// Objects of the power-of-two transforms: statuses and their order, sizes of work buffers, life and death.
#include "support/compare.h"
#include "support/guarded.h"
#include "support/transforms.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

namespace tarn::test {
namespace {

template <class T>
class FftStatus : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(FftStatus, Precisions);

void* const untouched = reinterpret_cast<void*>(std::uintptr_t{0x1234});

TYPED_TEST(FftStatus, CreationChecksPointerThenOrderThenFlag)
{
    for (const TransformKind& kind : transformKinds<TypeParam>()) {
        EXPECT_EQ(tarnStsNullPtrErr, kind.create(nullptr, 31, 3, 0)) << kind.name;
        for (int order : {-1, 31, INT_MIN, INT_MAX}) {
            void* spec = untouched;
            EXPECT_EQ(tarnStsFftOrderErr, kind.create(&spec, order, 3, 0)) << kind.name << " order " << order;
            EXPECT_EQ(untouched, spec);
        }
        for (int order : {0, 3, 4, 10, 17, 30})
            for (int flag : {0, 3, 5, 6, 7, 9, 16, -1, INT_MIN}) {
                void* spec = untouched;
                EXPECT_EQ(tarnStsFftFlagErr, kind.create(&spec, order, flag, 0)) << kind.name << " flag " << flag;
                EXPECT_EQ(untouched, spec);
            }
    }
}

TYPED_TEST(FftStatus, AnyHintWill)
{
    for (const TransformKind& kind : transformKinds<TypeParam>())
        for (int hint : {0, 1, 2, 77, -5}) {
            void* spec = nullptr;
            ASSERT_EQ(tarnStsNoErr, kind.create(&spec, 6, TARN_FFT_NODIV_BY_ANY, hint)) << kind.name;
            EXPECT_EQ(tarnStsNoErr, kind.free(spec));
        }
}

TYPED_TEST(FftStatus, TablesOfTheLargestOrdersCannotBeHad)
{
    const auto kinds = transformKinds<TypeParam>();
    const int firstFailing = std::is_same_v<TypeParam, Tarn32f> ? 28 : 27;
    for (const TransformKind& kind : kinds)
        for (int order = firstFailing + (kind.name[0] == 'R' ? 1 : 0); order <= 30; ++order) {
            void* spec = untouched;
            EXPECT_EQ(tarnStsNoMemErr, kind.create(&spec, order, TARN_FFT_NODIV_BY_ANY, 0)) << kind.name << order;
            EXPECT_EQ(untouched, spec);
        }
}

TYPED_TEST(FftStatus, WorkBufferSizesAreExact)
{
    constexpr bool single = std::is_same_v<TypeParam, Tarn32f>;
    const int lastOfCore = single ? 16 : 14;
    const int pairBytes = single ? 8 : 16;
    // Block orders from the first order of the block route.
    const std::vector<int> blocks = single ? std::vector{3, 4, 3, 4} : std::vector{3, 3, 3, 4, 4};
    for (const TransformKind& kind : transformKinds<TypeParam>()) {
        const bool real = kind.name[0] == 'R';
        for (int order = 0; order <= lastOfCore + static_cast<int>(blocks.size()) + (real ? 1 : 0); ++order) {
            const int n = order - (real ? 1 : 0);
            int expected = 0;
            if (order >= 4 && n <= lastOfCore)
                expected = (pairBytes << n) + 16;
            else if (order >= 4)
                expected = (4 * pairBytes << blocks[static_cast<std::size_t>(n - lastOfCore - 1)]) +
                           (single ? 0x80010 : 0x40010);
            for (int flag : {TARN_FFT_DIV_BY_SQRTN, TARN_FFT_NODIV_BY_ANY}) {
                const TransformSpec spec(kind, order, flag);
                int size = -1;
                EXPECT_EQ(tarnStsNoErr, kind.getBufSize(spec.get(), &size));
                EXPECT_EQ(expected, size) << kind.name << " order " << order;
            }
        }
    }
}

TYPED_TEST(FftStatus, SizeAndReleaseCheckTheObject)
{
    const auto kinds = transformKinds<TypeParam>();
    for (const TransformKind& kind : kinds) {
        const TransformSpec spec(kind, 5, TARN_FFT_NODIV_BY_ANY);
        int size = 4711;
        EXPECT_EQ(tarnStsNullPtrErr, kind.getBufSize(nullptr, &size));
        EXPECT_EQ(tarnStsNullPtrErr, kind.getBufSize(spec.get(), nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, kind.free(nullptr));
        for (const TransformKind& other : kinds)
            if (other.identifier != kind.identifier) {
                EXPECT_EQ(tarnStsContextMatchErr, other.getBufSize(spec.get(), &size));
                EXPECT_EQ(tarnStsNullPtrErr, other.getBufSize(spec.get(), nullptr)) << "pointers come first";
                EXPECT_EQ(tarnStsContextMatchErr, other.free(spec.get()));
            }
        EXPECT_EQ(4711, size);
    }
}

TYPED_TEST(FftStatus, TheFirstWordIsTheIdentifier)
{
    for (const TransformKind& kind : transformKinds<TypeParam>())
        for (int order : {2, 9}) {
            const TransformSpec spec(kind, order, TARN_FFT_NODIV_BY_ANY);
            std::int32_t words[2];
            std::memcpy(words, spec.get(), sizeof words);
            EXPECT_EQ(kind.identifier, words[0]) << kind.name;
            EXPECT_EQ(order, words[1]) << kind.name;
        }
}

TYPED_TEST(FftStatus, AWordOfZeroIsAFreedObject)
{
    using T = TypeParam;
    for (const TransformCase<T>& transform : transformCases<T>()) {
        alignas(16) const Tarn32s freed[64] = {};
        std::vector<T> data(64, T{3});
        const T* src[] = {data.data(), data.data()};
        T* dst[] = {data.data(), data.data()};
        int size = 0;
        EXPECT_EQ(tarnStsContextMatchErr, transform.run(src, dst, freed, nullptr)) << transform.name;
        EXPECT_EQ(tarnStsContextMatchErr, transform.kind.getBufSize(freed, &size));
        EXPECT_EQ(std::vector<T>(64, T{3}), data);
    }
}

TYPED_TEST(FftStatus, TransformsCheckTheObjectThenTheArrays)
{
    using T = TypeParam;
    const auto kinds = transformKinds<T>();
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order : {2, 5}) {
            const TransformSpec spec(transform.kind, order, TARN_FFT_NODIV_BY_ANY);
            std::vector<T> data(256, T{3});
            const std::vector<T> before = data;
            const int count = 2 * transform.arrays;
            // Every set of arrays that are missing, with the right object, a wrong one and none.
            for (int missing = 0; missing < 1 << count; ++missing) {
                const T* src[2];
                T* dst[2];
                for (int i = 0; i < transform.arrays; ++i) {
                    src[i] = (missing >> i & 1) != 0 ? nullptr : data.data();
                    dst[i] = (missing >> (transform.arrays + i) & 1) != 0 ? nullptr : data.data() + 64 * (i + 1);
                }
                EXPECT_EQ(tarnStsNullPtrErr, transform.run(src, dst, nullptr, nullptr)) << transform.name;
                for (const TransformKind& other : kinds) {
                    if (other.identifier == transform.kind.identifier)
                        continue;
                    const TransformSpec foreign(other, order, TARN_FFT_NODIV_BY_ANY);
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

// Objects of the other precision are foreign too: the identifiers of all kinds differ.
TEST(FftIdentifiers, AreDifferentForEveryKind)
{
    auto kinds = transformKinds<Tarn32f>();
    for (const TransformKind& kind : transformKinds<Tarn64f>())
        kinds.push_back(kind);
    for (const TransformKind& kind : kinds)
        for (const TransformKind& other : kinds) {
            const TransformSpec spec(kind, 4, TARN_FFT_NODIV_BY_ANY);
            int size = 0;
            EXPECT_EQ(kind.identifier == other.identifier ? tarnStsNoErr : tarnStsContextMatchErr,
                      other.getBufSize(spec.get(), &size))
                << kind.name << " as " << other.name;
        }
}

// Below order 4 nothing is asked of the buffer, not even that it be there.
TYPED_TEST(FftStatus, SmallOrdersDoNotTouchTheBuffer)
{
    using T = TypeParam;
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order = 0; order < 4; ++order) {
            const TransformSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN);
            std::vector<T> data(64, T{1});
            const T* src[] = {data.data(), data.data() + 16};
            T* dst[] = {data.data() + 32, data.data() + 48};
            EXPECT_EQ(tarnStsNoErr, transform.run(src, dst, spec.get(), unreadable<Tarn8u>())) << transform.name;
        }
}

} // namespace
} // namespace tarn::test
