// Creation and transforms of the power-of-two transforms when memory is refused: nothing leaks and nothing is touched.
#include "support/transforms.h"

#include <gtest/gtest.h>

#include <cstdlib>

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer owns malloc(); it looks for leaks itself.
TEST(FftMemory, IsTestedWithoutTheAddressSanitizer) { GTEST_SKIP(); }
#else

namespace {

// Allocations of the calls under test. Armed only around a call of the library.
struct Observed {
    bool armed = false;
    int refuseAt = -1; // which allocation fails, counted from 0
    int allocations = 0;
    int live = 0;
};
Observed observed;

} // namespace

// Definitions in the executable come before the C library's, for the shared object too.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void __libc_free(void* block);

extern "C" void* malloc(std::size_t size) noexcept
{
    if (!observed.armed)
        return __libc_malloc(size);
    if (observed.allocations++ == observed.refuseAt)
        return nullptr;
    ++observed.live;
    return __libc_malloc(size);
}

extern "C" void free(void* block) noexcept
{
    if (observed.armed && block != nullptr)
        --observed.live;
    __libc_free(block);
}

namespace tarn::test {
namespace {

template <class Call>
int watched(int refuseAt, Call call)
{
    observed = {true, refuseAt, 0, 0};
    const int status = call();
    observed.armed = false;
    return status;
}

template <class T>
class FftMemory : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(FftMemory, Precisions);

TYPED_TEST(FftMemory, CreationGivesBackAllItGotWhenOneAllocationFails)
{
    for (const TransformKind& kind : transformKinds<TypeParam>())
        for (int order : {0, 3, 4, 5, 9, 14, 15, 16, 17, 18}) {
            for (int refused = 0;; ++refused) {
                ASSERT_LT(refused, 64);
                void* const unset = &observed;
                void* spec = unset;
                const int status =
                    watched(refused, [&] { return kind.create(&spec, order, TARN_FFT_DIV_BY_SQRTN, 0); });
                if (observed.allocations <= refused) {
                    // The object is whole, and its release gives everything back.
                    EXPECT_EQ(tarnStsNoErr, status);
                    EXPECT_GE(refused, 1);
                    const int held = observed.live;
                    EXPECT_GE(held, order < 4 ? 1 : 3);
                    EXPECT_EQ(tarnStsNoErr, watched(-1, [&] { return kind.free(spec); }));
                    EXPECT_EQ(-held, observed.live) << kind.name << " order " << order;
                    break;
                }
                EXPECT_EQ(tarnStsNoMemErr, status) << kind.name << " order " << order << " allocation " << refused;
                EXPECT_EQ(0, observed.live) << kind.name << " order " << order << " allocation " << refused;
                EXPECT_EQ(unset, spec);
            }
        }
}

TYPED_TEST(FftMemory, ABadFlagOrOrderLeavesNothingBehind)
{
    for (const TransformKind& kind : transformKinds<TypeParam>()) {
        void* spec = nullptr;
        EXPECT_EQ(tarnStsFftFlagErr, watched(-1, [&] { return kind.create(&spec, 10, 3, 0); }));
        EXPECT_EQ(0, observed.live);
        EXPECT_EQ(tarnStsNoMemErr, watched(0, [&] { return kind.create(&spec, 10, 3, 0); })) << "memory comes first";
        EXPECT_EQ(tarnStsFftOrderErr, watched(-1, [&] { return kind.create(&spec, 31, 3, 0); }));
        EXPECT_EQ(0, observed.allocations);
        EXPECT_EQ(tarnStsNoMemErr, watched(-1, [&] { return kind.create(&spec, 30, TARN_FFT_NODIV_BY_ANY, 0); }));
        EXPECT_EQ(0, observed.live);
    }
}

TYPED_TEST(FftMemory, TransformsAllocateOnlyTheBufferThatIsMissing)
{
    using T = TypeParam;
    for (const TransformCase<T>& transform : transformCases<T>())
        for (int order : {3, 4, 9, 17}) {
            const TransformSpec spec(transform.kind, order, TARN_FFT_DIV_BY_SQRTN);
            Arrays<T> from(2, std::vector<T>(transform.srcReals(order), T{1}));
            Arrays<T> to(2, std::vector<T>(transform.dstReals(order), T{7}));
            const Arrays<T> before = to;
            const T* src[] = {from[0].data(), from[1].data()};
            T* dst[] = {to[0].data(), to[1].data()};
            std::vector<Tarn8u> buffer(spec.bufSize() + 1);
            EXPECT_EQ(tarnStsNoErr, watched(-1, [&] { return transform.run(src, dst, spec.get(), buffer.data()); }));
            EXPECT_EQ(0, observed.allocations) << transform.name;
            EXPECT_EQ(tarnStsNoErr, watched(-1, [&] { return transform.run(src, dst, spec.get(), nullptr); }));
            EXPECT_EQ(order < 4 ? 0 : 1, observed.allocations) << transform.name;
            EXPECT_EQ(0, observed.live);
            to = before;
            dst[0] = to[0].data();
            dst[1] = to[1].data();
            EXPECT_EQ(order < 4 ? tarnStsNoErr : tarnStsNoMemErr,
                      watched(0, [&] { return transform.run(src, dst, spec.get(), nullptr); }));
            EXPECT_EQ(0, observed.live);
            if (order >= 4) {
                EXPECT_EQ(before, to) << transform.name;
            }
        }
}

} // namespace
} // namespace tarn::test

#endif
