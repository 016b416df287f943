// Objects of the cosine transforms: statuses and their order, sizes of work buffers, and what happens when memory is
// refused.
#include "support/guarded.h"
#include "support/memory_watch.h"
#include "transforms/dct_kinds.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstring>

namespace tarn::test {
namespace {

void* const untouched = reinterpret_cast<void*>(std::uintptr_t{0x1234});

TEST(DctStatus, CreationChecksPointerThenLength)
{
    for (const DctKind& kind : dctKinds()) {
        EXPECT_EQ(tarnStsNullPtrErr, kind.create(nullptr, 0, 0)) << kind.name;
        EXPECT_EQ(tarnStsNullPtrErr, kind.create(nullptr, 8, 0)) << kind.name;
        for (int length : {0, -1, INT_MIN}) {
            void* spec = untouched;
            EXPECT_EQ(tarnStsSizeErr, kind.create(&spec, length, 0)) << kind.name << " length " << length;
            EXPECT_EQ(untouched, spec);
        }
    }
}

TEST(DctStatus, AnyHintWill)
{
    for (const DctKind& kind : dctKinds())
        for (int hint : {0, 1, 2, 77, -5})
            for (int length : {1, 6, 16, 101, 1024}) {
                const DctSpec spec(kind, length, hint);
                // Both words in front: the identifier, the length.
                std::int32_t words[2];
                std::memcpy(words, spec.get(), sizeof words);
                EXPECT_EQ(kind.identifier, words[0]) << kind.name;
                EXPECT_EQ(length, words[1]) << kind.name;
            }
}

// Tables of 2^31 bytes and more cannot be had.
TEST(DctStatus, TheLargestLengthsFail)
{
    for (const DctKind& kind : dctKinds())
        for (int length : {INT_MAX, INT_MAX - 1, 1 << 30, (1 << 30) - 1, (1 << 29) + 1, 1 << 29})
            for (int hint : {0, 2}) {
                void* spec = untouched;
                EXPECT_EQ(tarnStsNoMemErr, kind.create(&spec, length, hint)) << kind.name << " length " << length;
                EXPECT_EQ(untouched, spec);
            }
}

int complexFftSize(int order, std::size_t bytes)
{
    if (order < 4)
        return 0;
    return (static_cast<int>(bytes == 8 ? 16 : 8) << order) + 16;
}

/// Bytes of work memory by the method of a length.
int expectedSize(const DctKind& kind, int N, int hint)
{
    if (kind.bytes == 2) {
        static const DctKind single{"", true, 0, 4, nullptr, nullptr, nullptr, nullptr};
        return N == 1 ? 0 : 4 * N + 16 + expectedSize(single, N, tarnAlgHintFast);
    }
    const int element = static_cast<int>(kind.bytes);
    const bool power = (N & (N - 1)) == 0;
    if (power && N <= 8)
        return 0;
    int order = 0;
    if (power && hint == tarnAlgHintAccurate && N > 512) {
        while (1 << order < N)
            ++order;
        // A real transform of 2 N points has a complex one of N at its core.
        return 2 * element * N + 16 + complexFftSize(order, kind.bytes);
    }
    if (power || N <= 100)
        return element * N + 16;
    while (1 << order < 2 * N - 1)
        ++order;
    return (2 * element << order) + 16 + complexFftSize(order, kind.bytes);
}

TEST(DctStatus, WorkBufferSizesAreExact)
{
    for (const DctKind& kind : dctKinds())
        for (int N : {1,  2,   3,   4,   5,   6,   7,   8,   9,   10,  15,  16,  17,   31,   32,   33,   64,
                      99, 100, 101, 102, 127, 128, 129, 256, 257, 500, 512, 513, 1000, 1024, 1025, 2048, 4096})
            for (int hint : {0, 1, 2, 3}) {
                const DctSpec spec(kind, N, hint);
                EXPECT_EQ(expectedSize(kind, N, hint), spec.bufSize()) << kind.name << " " << N << " hint " << hint;
            }
}

TEST(DctStatus, SizeAndReleaseCheckTheObject)
{
    for (const DctKind& kind : dctKinds()) {
        const DctSpec spec(kind, 24);
        int size = 4711;
        EXPECT_EQ(tarnStsNullPtrErr, kind.getBufSize(nullptr, &size));
        EXPECT_EQ(tarnStsNullPtrErr, kind.getBufSize(spec.get(), nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, kind.free(nullptr));
        for (const DctKind& other : dctKinds())
            if (other.identifier != kind.identifier) {
                EXPECT_EQ(tarnStsContextMatchErr, other.getBufSize(spec.get(), &size)) << kind.name << other.name;
                EXPECT_EQ(tarnStsNullPtrErr, other.getBufSize(spec.get(), nullptr)) << "pointers come first";
                EXPECT_EQ(tarnStsContextMatchErr, other.free(const_cast<void*>(spec.get()))) << kind.name;
            }
        EXPECT_EQ(4711, size);
    }
}

TEST(DctStatus, TransformsCheckTheObjectThenTheArrays)
{
    alignas(16) const Tarn32s freed[64] = {};
    for (const DctKind& kind : dctKinds())
        for (int N : {2, 6, 16, 101}) {
            const DctSpec spec(kind, N);
            std::vector<double> data(256, 3.0);
            const std::vector<double> before = data;
            for (int missing = 0; missing < 4; ++missing) {
                const void* src = (missing & 1) != 0 ? nullptr : data.data();
                void* dst = (missing & 2) != 0 ? nullptr : data.data() + 128;
                EXPECT_EQ(tarnStsNullPtrErr, kind.run(src, dst, nullptr, 0, nullptr));
                EXPECT_EQ(tarnStsContextMatchErr, kind.run(src, dst, freed, 0, nullptr));
                for (const DctKind& other : dctKinds())
                    if (other.identifier != kind.identifier) {
                        EXPECT_EQ(tarnStsContextMatchErr, other.run(src, dst, spec.get(), 0, nullptr))
                            << other.name << " with " << kind.name;
                    }
                if (missing != 0) {
                    EXPECT_EQ(tarnStsNullPtrErr, kind.run(src, dst, spec.get(), 0, nullptr));
                }
            }
            EXPECT_EQ(before, data);
        }
}

TEST(DctStatus, SmallLengthsDoNotTouchTheBuffer)
{
    for (const DctKind& kind : dctKinds())
        for (int N : {1, 2, 4, 8}) {
            if (kind.bytes == 2 && N > 1)
                continue;
            const DctSpec spec(kind, N);
            std::vector<double> data(8, 1.0);
            EXPECT_EQ(tarnStsNoErr, kind.run(data.data(), data.data(), spec.get(), 0, unreadable<Tarn8u>()));
        }
}

// -- Memory that is refused -------------------------------------------------------------------------------------------

TEST(DctMemory, CreationGivesBackAllItGotWhenOneAllocationFails)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const DctKind& kind : dctKinds())
        for (int N : {1, 4, 6, 64, 101, 120, 1024})
            for (int hint : {0, 2}) {
                int refused = 0;
                for (int status = tarnStsNoMemErr; status != tarnStsNoErr; ++refused) {
                    ASSERT_LT(refused, 64);
                    void* spec = untouched;
                    int held = 0;
                    {
                        const MemoryWatch watch(refused);
                        status = kind.create(&spec, N, hint);
                        held = watch.outstanding();
                    }
                    if (status == tarnStsNoErr) {
                        const MemoryWatch watch;
                        const TarnStatus freed = kind.free(spec);
                        EXPECT_EQ(-held, watch.outstanding()) << kind.name << " " << N;
                        EXPECT_EQ(tarnStsNoErr, freed);
                        continue;
                    }
                    EXPECT_EQ(tarnStsNoMemErr, status) << kind.name << " " << N << " allocation " << refused;
                    EXPECT_EQ(0, held) << kind.name << " " << N << " allocation " << refused;
                    EXPECT_EQ(untouched, spec);
                }
                EXPECT_GE(refused, N == 101 || (N == 1024 && hint == 2 && kind.bytes != 2) ? 6 : 2);
            }
}

TEST(DctMemory, TransformsAllocateOnlyTheBufferThatIsMissing)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const DctKind& kind : dctKinds())
        for (int N : {1, 4, 6, 64, 101, 120, 1024})
            for (int hint : {0, 2}) {
                const DctSpec spec(kind, N, hint);
                const int size = spec.bufSize();
                std::vector<Tarn8u> buffer(static_cast<std::size_t>(size) + 1);
                std::vector<double> from(static_cast<std::size_t>(N), 1.0);
                std::vector<double> to(static_cast<std::size_t>(N), 7.0);
                const auto before = to;
                const auto allocations = [&](Tarn8u* work, int allowed, TarnStatus expected) {
                    TarnStatus status = tarnStsNoErr;
                    int allocated = 0;
                    int held = 0;
                    {
                        const MemoryWatch watch(allowed);
                        status = kind.run(from.data(), to.data(), spec.get(), 0, work);
                        allocated = watch.allocated();
                        held = watch.outstanding();
                    }
                    EXPECT_EQ(expected, status) << kind.name << " " << N;
                    EXPECT_EQ(0, held) << kind.name << " " << N;
                    return allocated;
                };
                EXPECT_EQ(0, allocations(nullptr, 0, size > 0 ? tarnStsNoMemErr : tarnStsNoErr));
                if (size > 0) {
                    EXPECT_EQ(before, to) << kind.name << " " << N;
                }
                EXPECT_EQ(size > 0 ? 1 : 0, allocations(nullptr, 9, tarnStsNoErr));
                EXPECT_EQ(0, allocations(buffer.data(), 0, tarnStsNoErr));
            }
}

} // namespace
} // namespace tarn::test
