// The walker reaches every element once, whatever the addresses, and writes past the caches only where it should.
#include "frame/walk.h"
#include "support/sweep.h"

namespace tarn::test {
namespace {

struct Twice {
    auto operator()(auto x) const { return add(x, x); }
};

TEST(Walk, EveryElementAtEveryAddress)
{
    const auto call = [](const auto* src, auto* dst, int len) {
        walk(dst, len, Twice{}, src);
        return tarnStsNoErr;
    };
    sweepElementwise<Tarn8u, Tarn8u>(call, [](Tarn8u x) { return static_cast<Tarn8u>(x + x); });
    sweepElementwise<Tarn16u, Tarn16u>(call, [](Tarn16u x) { return static_cast<Tarn16u>(x + x); });
    sweepElementwise<Tarn32u, Tarn32u>(call, [](Tarn32u x) { return x + x; });
    sweepElementwise<Tarn64f, Tarn64f>(call, [](Tarn64f x) { return x + x; });
}

// An operation that asks for one step at a time.
struct OneByOne : Twice {
    static constexpr int stepsAtOnce = 1;
};

TEST(Walk, OneStepBetweenTwoTests)
{
    static_assert(stepsAtOnce<OneByOne> == 1 && stepsAtOnce<Twice> == unrolledSteps);
    static_assert(stepsAtOnce<WithConstant<OneByOne, Tarn16u>> == 1);
    sweepElementwise<Tarn16u, Tarn16u>(
        [](const Tarn16u* src, Tarn16u* dst, int len) {
            walk(dst, len, OneByOne{}, src);
            return tarnStsNoErr;
        },
        [](Tarn16u x) { return static_cast<Tarn16u>(x + x); });
}

TEST(Walk, InPlace)
{
    sweepInPlace<Tarn16u>(
        [](Tarn16u* srcDst, int len) {
            walk(srcDst, len, Twice{}, static_cast<const Tarn16u*>(srcDst));
            return tarnStsNoErr;
        },
        [](Tarn16u x) { return static_cast<Tarn16u>(x + x); });
}

TEST(Walk, MixedWidths)
{
    sweepElementwise<Tarn32s, Tarn8u>(
        [](const Tarn8u* src, Tarn32s* dst, int len) {
            walk(
                dst, len, [](auto x) { return widen(widen(x)); }, src);
            return tarnStsNoErr;
        },
        [](Tarn8u x) { return Tarn32s{x}; });
    sweepElementwise<Tarn8u, Tarn16s>(
        [](const Tarn16s* src, Tarn8u* dst, int len) {
            walk(
                dst, len, [](auto x) { return narrowSaturated<Tarn8u>(x); }, src);
            return tarnStsNoErr;
        },
        [](Tarn16s x) {
            return static_cast<Tarn8u>(x < 0 ? 0 : x > 255 ? 255 : x);
        });
}

TEST(Walk, AConstantOperand)
{
    sweepElementwise<Tarn16s, Tarn16s>(
        [](const Tarn16s* src, Tarn16s* dst, int len) {
            walk(dst, len, WithConstant<Word<SubSaturated>, Tarn16s>{subSaturated, 300}, src);
            return tarnStsNoErr;
        },
        [](Tarn16s x) { return std::max(x - 300, -32768); });
}

TEST(Walk, ASourceThatIsTheSameEverywhere)
{
    sweepElementwise<Tarn32sc>(
        [](Tarn32sc* dst, int len) {
            walk(dst, len, Identity{}, Everywhere<Tarn32sc>{{7, -8}});
            return tarnStsNoErr;
        },
        [] {
            return Tarn32sc{7, -8};
        });
}

TEST(Walk, BoundaryOfAnArray)
{
    alignas(vectorBytes) Tarn8u bytes[2 * vectorBytes] = {};
    for (int offset = 0; offset < 2 * vectorBytes; ++offset) {
        const auto* words = reinterpret_cast<const Tarn16s*>(bytes + offset);
        const int toNext = (2 * vectorBytes - offset) % vectorBytes;
        EXPECT_EQ(toNext % 2 == 0 ? toNext / 2 : 0, elementsToBoundary(words)) << offset;
        EXPECT_EQ(toNext == 0, isOnBoundary(words)) << offset;
    }
}

// Just below, at and above the length from which stores bypass the caches, aligned, unaligned and at an odd address.
TEST(Walk, LongArrays)
{
    constexpr int threshold = static_cast<int>(streamBytes / sizeof(Tarn32u));
    EXPECT_FALSE(streams<Tarn32u>(threshold - 1));
    EXPECT_TRUE(streams<Tarn32u>(threshold));
    std::vector<Tarn8u> source(4 * threshold + 256);
    std::vector<Tarn8u> destination(source.size());
    for (std::size_t i = 0; i < source.size(); ++i)
        source[i] = static_cast<Tarn8u>(i * i >> 3);
    for (const int len : {threshold - 1, threshold, threshold + 7}) {
        for (const int offset : {0, 4, 5}) {
            const auto* src = reinterpret_cast<const Tarn32u*>(source.data() + 1);
            auto* dst = reinterpret_cast<Tarn32u*>(destination.data() + offset);
            std::fill(destination.begin(), destination.end(), Tarn8u{0x5A});
            walk(dst, len, swapBytes, src);
            int wrong = 0;
            for (int i = 0; i < len; ++i)
                wrong += loadElement(dst + i) != swapBytes(loadElement(src + i));
            EXPECT_EQ(0, wrong) << "len " << len << " offset " << offset;
            EXPECT_EQ(0x5A5A5A5AU, loadElement(dst + len)) << "len " << len << " offset " << offset;
            walk(dst, len, swapBytes, static_cast<const Tarn32u*>(dst));
            wrong = 0;
            for (int i = 0; i < len; ++i)
                wrong += loadElement(dst + i) != loadElement(src + i);
            EXPECT_EQ(0, wrong) << "in place, len " << len << " offset " << offset;
            EXPECT_EQ(0x5A5A5A5AU, loadElement(dst + len)) << "in place, len " << len << " offset " << offset;
        }
    }
}

} // namespace
} // namespace tarn::test
