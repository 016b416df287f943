// The aligned allocator, with malloc() and free() observed from below.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "tarns.h"

namespace {

// What the system allocator was asked for. Armed only around a call of the library.
struct Observed {
    bool armed = false;
    bool refuse = false;
    void* handOut = nullptr; // given instead of a block of the system's, if not null
    int mallocs = 0;
    std::size_t size = 0;
    void* block = nullptr;
    int frees = 0;
    void* freed = nullptr;
};
Observed observed;

} // namespace

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer owns malloc(): it reports to hooks, and what it returns cannot be replaced.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));

namespace {

constexpr bool canReplace = false;

void onMalloc(const volatile void* block, std::size_t size)
{
    if (!observed.armed)
        return;
    ++observed.mallocs;
    observed.size = size;
    observed.block = const_cast<void*>(block);
}

void onFree(const volatile void* block)
{
    if (!observed.armed)
        return;
    ++observed.frees;
    observed.freed = const_cast<void*>(block);
}

const int hooks = __sanitizer_install_malloc_and_free_hooks(onMalloc, onFree);

} // namespace
#else
// Definitions in the executable come before the C library's, for the shared object too.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void __libc_free(void* block);

namespace {
constexpr bool canReplace = true;
}

extern "C" void* malloc(std::size_t size) noexcept
{
    if (!observed.armed)
        return __libc_malloc(size);
    void* block = observed.handOut;
    if (!block && !observed.refuse)
        block = __libc_malloc(size);
    ++observed.mallocs;
    observed.size = size;
    observed.block = block;
    return block;
}

extern "C" void free(void* block) noexcept
{
    if (observed.armed) {
        ++observed.frees;
        observed.freed = block;
    }
    if (block != observed.handOut)
        __libc_free(block);
}
#endif

namespace {

template <typename Call>
auto watched(Call call, bool refuse = false)
{
    observed = {};
    observed.refuse = refuse;
    observed.armed = true;
    auto result = call();
    observed.armed = false;
    return result;
}

void watchedFree(void* area)
{
    watched([=] {
        tarnsFree(area);
        return 0;
    });
}

struct Member {
    const char* tag;
    std::uint32_t elementBytes;
    void* (*allocate)(int len);
};

template <auto function>
void* erased(int len)
{
    return function(len);
}

const Member members[] = {
    {"8u", 1, erased<tarnsMalloc_8u>},      {"8s", 1, erased<tarnsMalloc_8s>},
    {"16u", 2, erased<tarnsMalloc_16u>},    {"16s", 2, erased<tarnsMalloc_16s>},
    {"8sc", 2, erased<tarnsMalloc_8sc>},    {"32u", 4, erased<tarnsMalloc_32u>},
    {"32s", 4, erased<tarnsMalloc_32s>},    {"32f", 4, erased<tarnsMalloc_32f>},
    {"16sc", 4, erased<tarnsMalloc_16sc>},  {"64s", 8, erased<tarnsMalloc_64s>},
    {"64f", 8, erased<tarnsMalloc_64f>},    {"32sc", 8, erased<tarnsMalloc_32sc>},
    {"32fc", 8, erased<tarnsMalloc_32fc>},  {"64sc", 16, erased<tarnsMalloc_64sc>},
    {"64fc", 16, erased<tarnsMalloc_64fc>},
};

// 36 on the 32-bit ABI: 32 for the alignment and a pointer.
constexpr std::uint32_t surplus = sizeof(void*) == 4 ? 36 : 40;

std::uintptr_t address(const void* pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }

void* storedBlock(const void* area)
{
    void* block;
    std::memcpy(&block, static_cast<const char*>(area) - sizeof block, sizeof block);
    return block;
}

TEST(Malloc, BlockLayoutOfEveryMember)
{
    for (const Member& member : members)
        for (int len : {1, 2, 3, 7, 8, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100, 1000, 4099, 100003}) {
            SCOPED_TRACE(testing::Message() << member.tag << " len " << len);
            void* area = watched([&] { return member.allocate(len); });
            ASSERT_NE(area, nullptr);
            const std::uint32_t bytes = static_cast<std::uint32_t>(len) * member.elementBytes;
            EXPECT_EQ(observed.mallocs, 1);
            EXPECT_EQ(observed.size, bytes + surplus);
            EXPECT_EQ(address(area) % 32, 0u);
            EXPECT_EQ(address(area), (address(observed.block) + surplus - 1) / 32 * 32);
            EXPECT_EQ(storedBlock(area), observed.block);
            EXPECT_GE(address(area), address(observed.block) + sizeof(void*));
            EXPECT_LE(address(area) + bytes, address(observed.block) + observed.size);

            std::memset(area, 0xA5, bytes);
            void* const block = observed.block;
            watchedFree(area);
            EXPECT_EQ(observed.frees, 1);
            EXPECT_EQ(observed.freed, block);
        }
}

TEST(Malloc, NoLengthNoCall)
{
    for (const Member& member : members)
        for (int len : {0, -1, -2, -1000, INT_MIN + 1, INT_MIN}) {
            SCOPED_TRACE(testing::Message() << member.tag << " len " << len);
            EXPECT_EQ(watched([&] { return member.allocate(len); }), nullptr);
            EXPECT_EQ(observed.mallocs, 0);
        }
}

// The product is formed modulo 2^32, so a few elements too many for 32 bits get a small block.
TEST(Malloc, ImpossibleLengthsWrap)
{
    for (const Member& member : members) {
        if (member.elementBytes < 4)
            continue; // no signed length wraps
        const std::uint32_t period = static_cast<std::uint32_t>((std::uint64_t{1} << 32) / member.elementBytes);
        for (std::uint32_t extra : {0u, 1u, 5u, 100u}) {
            if (period + extra > INT_MAX)
                continue;
            SCOPED_TRACE(testing::Message() << member.tag << " len 2^32/size + " << extra);
            void* area = watched([&] { return member.allocate(static_cast<int>(period + extra)); });
            ASSERT_NE(area, nullptr);
            EXPECT_EQ(observed.size, extra * member.elementBytes + surplus);
            EXPECT_EQ(address(area) % 32, 0u);
            EXPECT_EQ(storedBlock(area), observed.block);
            std::memset(area, 0x5A, extra * member.elementBytes);
            tarnsFree(area);
        }
    }
}

// The addition wraps too. The block still holds the stored address, so that nobody else's memory is written.
TEST(Malloc, SurplusWraps)
{
    for (const Member& member : members) {
        if (member.elementBytes < 2)
            continue;
        const std::uint64_t period = (std::uint64_t{1} << 32) / member.elementBytes;
        for (std::uint64_t missing = 1; missing * member.elementBytes <= surplus; ++missing) {
            if (period - missing > INT_MAX)
                continue;
            SCOPED_TRACE(testing::Message() << member.tag << " len 2^32/size - " << missing);
            const auto wrapped = static_cast<std::uint32_t>(surplus - missing * member.elementBytes);
            void* area = watched([&] { return member.allocate(static_cast<int>(period - missing)); });
            ASSERT_NE(area, nullptr);
            EXPECT_EQ(observed.size, wrapped < 32 ? 32 : wrapped);
            EXPECT_EQ(address(area) % 32, 0u);
            EXPECT_EQ(storedBlock(area), observed.block);
            EXPECT_GE(address(area), address(observed.block) + sizeof(void*));
            EXPECT_LE(address(area), address(observed.block) + observed.size);
            tarnsFree(area);
        }
    }
}

TEST(Malloc, NullWhenTheSystemHasNoMemory)
{
    if (!canReplace)
        GTEST_SKIP() << "the sanitizer's malloc() cannot be made to refuse";
    for (const Member& member : members) {
        EXPECT_EQ(watched([&] { return member.allocate(10); }, true), nullptr) << member.tag;
        EXPECT_EQ(observed.mallocs, 1) << member.tag;
    }
}

// Whatever address the system allocator gives, not only its usual multiples of 16.
TEST(Malloc, EverySlack)
{
    if (!canReplace)
        GTEST_SKIP() << "the sanitizer's malloc() cannot be made to return a given address";
    alignas(32) static char arena[256];
    for (std::uintptr_t offset = 0; offset < 32; ++offset) {
        SCOPED_TRACE(offset);
        observed = {};
        observed.handOut = arena + offset;
        observed.armed = true;
        void* area = tarnsMalloc_8u(100);
        observed.armed = false;
        EXPECT_EQ(observed.size, 100 + surplus);
        EXPECT_EQ(address(area), (address(arena) + offset + surplus - 1) / 32 * 32);
        EXPECT_EQ(storedBlock(area), arena + offset);
        EXPECT_GE(address(area), address(arena) + offset + sizeof(void*));
        EXPECT_LE(address(area) + 100, address(arena) + offset + observed.size);
        observed.armed = true;
        tarnsFree(area);
        observed.armed = false;
        EXPECT_EQ(observed.frees, 1);
        EXPECT_EQ(observed.freed, arena + offset);
        observed = {};
    }
}

TEST(Malloc, BlocksAreDistinct)
{
    std::vector<Tarn8u*> areas;
    for (int i = 1; i <= 200; ++i) {
        areas.push_back(tarnsMalloc_8u(i));
        ASSERT_NE(areas.back(), nullptr);
        std::memset(areas.back(), i, static_cast<std::size_t>(i));
    }
    for (int i = 1; i <= 200; ++i) {
        for (int j = 0; j < i; ++j)
            ASSERT_EQ(areas[static_cast<std::size_t>(i - 1)][j], i);
        tarnsFree(areas[static_cast<std::size_t>(i - 1)]);
    }
}

TEST(Free, NullDoesNothing)
{
    watchedFree(nullptr);
    EXPECT_EQ(observed.frees, 0);
    EXPECT_EQ(observed.mallocs, 0);
}

} // namespace
