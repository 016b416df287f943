// What the states of FIR filters allocate, and what is left of it when there is not enough memory.
#include "levels/fir/psfir_state.h"
#include "support/fir_tails.h"
#include "support/memory_watch.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace tarn::test {
namespace {

template <class F>
class FirMemoryTest : public ::testing::Test {
protected:
    static TarnStatus initAlloc(typename F::State** state, const typename F::Tap* taps, int len)
    {
        if constexpr (std::is_invocable_v<decltype(F::initAlloc), typename F::State**, const typename F::Tap*, int, int,
                                          const typename F::Sample*>)
            return F::initAlloc(state, taps, len, 0, nullptr);
        else
            return F::initAlloc(state, taps, len, nullptr);
    }
};
using AllTails =
    ::testing::Types<FirTail32f, FirTail32fc, FirTail32f_16s, FirTail32fc_16sc, FirTail64f, FirTail64fc, FirTail64f_32f,
                     FirTail64fc_32fc, FirTail64f_32s, FirTail64fc_32sc, FirTail64f_16s, FirTail64fc_16sc,
                     FirTail32s_16s, FirTail32sc_16sc, FirTail32s_16s32f, FirTail32sc_16sc32fc>;
TYPED_TEST_SUITE(FirMemoryTest, AllTails);

TYPED_TEST(FirMemoryTest, KeepsNothingWhenMemoryIsRefused)
{
    using F = TypeParam;
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    for (const int len : {3, 200}) {
        const std::vector<typename F::Tap> taps(static_cast<std::size_t>(len));
        int needed = 0;
        for (int allowed = 0; allowed <= needed; ++allowed) {
            auto* const unset = reinterpret_cast<typename F::State*>(&needed);
            typename F::State* state = unset;
            TarnStatus status = tarnStsNoErr;
            int outstanding = 0;
            {
                const MemoryWatch watch(allowed == 0 ? 1000 : allowed - 1);
                status = this->initAlloc(&state, taps.data(), len);
                outstanding = watch.outstanding();
                if (status == tarnStsNoErr)
                    F::free(state);
                if (allowed == 0)
                    needed = watch.allocated();
                EXPECT_EQ(0, watch.outstanding()) << len << " taps, " << allowed;
            }
            if (allowed == 0) {
                ASSERT_EQ(tarnStsNoErr, status);
                ASSERT_LT(0, needed);
            } else {
                EXPECT_EQ(tarnStsNoMemErr, status) << len << " taps, " << allowed - 1 << " of " << needed;
                EXPECT_EQ(0, outstanding);
                EXPECT_EQ(unset, state);
            }
        }
    }
}

// The bytes of a block are fixed where pointers have 32 bits: what programs allocate beside it is theirs to plan.
long long rounded(long long bytes) { return (bytes + 15) / 16 * 16; }

template <class T>
struct Group;
template <>
struct Group<Tarn32f> {
    static long long line(long long n) { return (12 * n + 31) / 16 * 16; }
    static long long table(long long n) { return 4 * rounded(4 * n); }
    static constexpr long long constant = 16480;
};
template <>
struct Group<Tarn32fc> {
    static long long line(long long n) { return (24 * n + 47) / 16 * 16; }
    static long long table(long long n) { return 12 * rounded(8 * n) + 96; }
    static constexpr long long constant = 32864;
};
template <>
struct Group<Tarn64f> {
    static long long line(long long n) { return (24 * n + 47) / 16 * 16; }
    static long long table(long long n) { return 2 * rounded(8 * n); }
    static constexpr long long constant = 32864;
};
template <>
struct Group<Tarn64fc> {
    static long long line(long long n) { return (48 * n + 79) / 16 * 16; }
    static long long table(long long n) { return 32 * n; }
    static constexpr long long constant = 65648;
};

TYPED_TEST(FirMemoryTest, AllocatesOneBlockOfTheStatedSize)
{
    using F = TypeParam;
    using T = typename F::Tap;
    if constexpr (requires(typename F::State * state) { state->pFFTSpec; }) {
        if (!canRefuseMemory || sizeof(void*) != 4)
            GTEST_SKIP() << "fixed for the 32-bit library, and only seen where nothing else owns malloc()";
        for (const int threads : {1, 2, 4}) {
            const ThreadsScope scope(threads);
            for (const int n : {1, 2, 15, 16, 63, 64, 128, 1000}) {
                const std::vector<T> taps(static_cast<std::size_t>(n));
                typename F::State* state = nullptr;
                std::size_t largest = 0;
                {
                    const MemoryWatch watch;
                    ASSERT_EQ(tarnStsNoErr, this->initAlloc(&state, taps.data(), n));
                    largest = watch.largest();
                }
                const bool transforms = state->fftLen > 0;
                const long long spectrum = transforms ? rounded(static_cast<long long>(sizeof(T)) * state->fftLen) : 0;
                const long long work = transforms ? state->fftWorkSize : 0;
                const long long size = rounded(static_cast<long long>(sizeof(T)) * n) + Group<T>::line(n) +
                                       Group<T>::table(n) + threads * (work + 16) + rounded(4LL * threads) + spectrum +
                                       threads * spectrum + Group<T>::constant;
                F::free(state);
                // The allocator's own room is 36 bytes.
                EXPECT_EQ(size + 36, static_cast<long long>(largest)) << n << " taps, " << threads << " threads";
            }
        }
    } else {
        GTEST_SKIP() << "no transform";
    }
}

} // namespace
} // namespace tarn::test
