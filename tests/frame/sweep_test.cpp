// The sweeps and check drivers: they accept a right function and notice each kind of wrong one.
#include "support/checks.h"
#include "support/fpstate.h"
#include "support/sweep.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <numeric>
#include <set>
#include <utility>

namespace tarn::test {
namespace {

/// Everything that gtest reports while `body` runs.
template <class Body>
std::string failuresOf(Body&& body)
{
    ::testing::TestPartResultArray results;
    {
        ::testing::ScopedFakeTestPartResultReporter reporter(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        body();
    }
    std::string text;
    for (int i = 0; i < results.size(); ++i)
        text += std::string(results.GetTestPartResult(i).message()) + "\n";
    return text;
}

/// `body` has to report a failure whose text contains `part`.
template <class Body>
void expectNoticed(const std::string& part, Body&& body)
{
    const std::string failures = failuresOf(body);
    EXPECT_NE(std::string::npos, failures.find(part)) << "looking for '" << part << "' in:\n" << failures;
}

template <class T>
T load(const T* at, int i)
{
    T value;
    std::memcpy(&value, reinterpret_cast<const unsigned char*>(at) + static_cast<std::size_t>(i) * sizeof(T),
                sizeof(T));
    return value;
}

template <class T>
void store(T* at, int i, T value)
{
    std::memcpy(reinterpret_cast<unsigned char*>(at) + static_cast<std::size_t>(i) * sizeof(T), &value, sizeof(T));
}

struct Faults {
    int wrongLength = -1; // gives a wrong element at this length
    int readPast = -1;    // reads one element too many at this length
    int writePast = -1;   // writes one byte too many at this length
    int wrongOffset = -1; // wrong last element if the destination has this offset
    bool writeSource = false;
    bool leaveMmx = false;
    int status = tarnStsNoErr;
};

TarnStatus addBytes(const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len, const Faults& faults = {})
{
    for (int i = 0; i < len; ++i)
        dst[i] = static_cast<Tarn8u>(a[i] + b[i]);
    if (len == faults.wrongLength)
        dst[len / 2] ^= 1;
    if (static_cast<int>(reinterpret_cast<std::uintptr_t>(dst) % 16) == faults.wrongOffset)
        dst[len - 1] ^= 1;
    if (len == faults.readPast) [[maybe_unused]]
        const Tarn8u past = *const_cast<const volatile Tarn8u*>(b + len);
    // Where the next byte is mapped at all; elsewhere it would be a fault.
    if (len == faults.writePast && reinterpret_cast<std::uintptr_t>(dst + len) % 4096 != 0)
        dst[len] ^= 1;
    if (faults.writeSource)
        const_cast<Tarn8u*>(a)[0] ^= 1;
    if (faults.leaveMmx)
        asm volatile("movd %%eax, %%mm0" : : : "memory");
    return faults.status;
}

void sweepBytes(const Faults& faults, const SweepOptions& options = {})
{
    sweepElementwise<Tarn8u, Tarn8u, Tarn8u>(
        [&](const Tarn8u* a, const Tarn8u* b, Tarn8u* dst, int len) { return addBytes(a, b, dst, len, faults); },
        [](Tarn8u a, Tarn8u b) { return static_cast<Tarn8u>(a + b); }, options);
}

TEST(Sweep, AcceptsARightFunctionInTime)
{
    const auto start = std::chrono::steady_clock::now();
    sweepBytes({});
    const std::chrono::duration<double, std::milli> full = std::chrono::steady_clock::now() - start;
    RecordProperty("milliseconds", static_cast<int>(full.count()));
}

TEST(Sweep, NoticesEachFault)
{
    for (int len : {1, 2, 15, 31, 64, 70}) {
        expectNoticed("1 of ", [&] { sweepBytes({.wrongLength = len}, {.depth = Depth::quick}); });
        if (len < 70) {
            expectNoticed("behind the array", [&] { sweepBytes({.writePast = len}, {.aliased = false}); });
        }
    }
    for (int offset = 0; offset < 16; ++offset)
        expectNoticed("1 of ", [&] { sweepBytes({.wrongOffset = offset}, {.depth = Depth::quick, .aliased = false}); });
    expectNoticed("1 of 1000", [&] { sweepBytes({.wrongLength = 1000}, {.thresholds = {999}}); });
    expectNoticed("source 0 was changed", [&] { sweepBytes({.writeSource = true}, {.aliased = false}); });
    expectNoticed("got -6", [&] { sweepBytes({.status = tarnStsSizeErr}); });
    expectNoticed("x87 tags", [&] {
        sweepBytes({.leaveMmx = true});
        asm volatile("emms");
    });
}

TEST(Sweep, QuickOnesTakeEveryPairOfOffsetsInTurn)
{
    std::set<std::pair<std::uintptr_t, std::uintptr_t>> seen;
    const auto copy = [&](const Tarn16s* src, Tarn16s* dst, int len) {
        seen.emplace(reinterpret_cast<std::uintptr_t>(dst) % 16, reinterpret_cast<std::uintptr_t>(src) % 16);
        std::memmove(dst, src, static_cast<std::size_t>(len) * sizeof *dst);
        return tarnStsNoErr;
    };
    const auto same = [](Tarn16s x) { return x; };
    for (int i = 0; i < 16; ++i) {
        sweepElementwise<Tarn16s, Tarn16s>(copy, same, {.depth = Depth::quick, .aliased = false});
        sweepInPlace<Tarn16s>([](Tarn16s*, int) { return tarnStsNoErr; }, same, {.depth = Depth::quick});
    }
    for (std::uintptr_t destination = 0; destination < 16; destination += sizeof(Tarn16s))
        for (std::uintptr_t source = 0; source < 16; ++source)
            EXPECT_EQ(1U, seen.count({destination, source})) << destination << " " << source;
}

TEST(Sweep, EveryDepthNoticesOneWrongValue)
{
    if (sweepsAreQuick())
        GTEST_SKIP() << "takes a part of the values";
    const auto wrong = [](const Tarn16s* src, Tarn16s* dst, int len) {
        for (int i = 0; i < len; ++i) {
            const auto x = load(src, i);
            store(dst, i, static_cast<Tarn16s>(x == 12345 ? 54 : -x));
        }
        return tarnStsNoErr;
    };
    for (const Depth depth : {Depth::full, Depth::quick, Depth::values})
        expectNoticed("expected -12345, got 54", [&] {
            sweepElementwise<Tarn16s, Tarn16s>(wrong, [](Tarn16s x) { return static_cast<Tarn16s>(-x); },
                                               {.depth = depth, .aliased = false});
        });
}

TEST(SweepDeathTest, TellsTheRunThatReadsPast)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(sweepBytes({.readPast = 21}), "len 21(.|\n)*byte 0 past the end of an array of 21 bytes");
}

TEST(Sweep, TriesTheDestinationAsEachSource)
{
    // Right out of place; wrong if the destination is the second source, which is cleared before it is read.
    auto wrong = [](const Tarn16s* a, const Tarn16s* b, Tarn16s* dst, int len) {
        for (int i = 0; i < len; ++i) {
            const auto first = load(a, i);
            store(dst, i, Tarn16s{0});
            store(dst, i, static_cast<Tarn16s>(first - load(b, i)));
        }
        return tarnStsNoErr;
    };
    auto model = [](Tarn16s a, Tarn16s b) { return static_cast<Tarn16s>(a - b); };
    expectNoticed("source 1 is the destination", [&] { sweepElementwise<Tarn16s, Tarn16s, Tarn16s>(wrong, model); });
    EXPECT_EQ("", failuresOf([&] { sweepElementwise<Tarn16s, Tarn16s, Tarn16s>(wrong, model, {.aliased = false}); }));
}

TEST(Sweep, InPlace)
{
    auto call = [](const Tarn32f* src, Tarn32f* srcDst, int len) {
        for (int i = 0; i < len; ++i)
            store(srcDst, i, load(srcDst, i) - load(src, i));
        return tarnStsNoErr;
    };
    sweepInPlace<Tarn32f, Tarn32f>(call, [](Tarn32f src, Tarn32f dst) { return dst - src; });
    expectNoticed("expected",
                  [&] { sweepInPlace<Tarn32f, Tarn32f>(call, [](Tarn32f src, Tarn32f dst) { return src - dst; }); });
}

TEST(Sweep, WholeArraysAndOtherLengths)
{
    auto everyOther = [](const Tarn16sc* src, Tarn16sc* dst, int len) {
        for (int i = 0; i < len; i += 2)
            store(dst, i / 2, load(src, i));
        return tarnStsNoErr;
    };
    sweepElementwise<Tarn16sc, Tarn16sc>(everyOther, [](std::span<const Tarn16sc> src) {
        std::vector<Tarn16sc> result;
        for (std::size_t i = 0; i < src.size(); i += 2)
            result.push_back(src[i]);
        return result;
    });
    auto flip = [](const Bytes24* src, Bytes24* dst, int len) {
        for (int i = 0; i < len; ++i)
            store(dst, i, load(src, len - 1 - i));
        return tarnStsNoErr;
    };
    auto model = [](std::span<const Bytes24> src) { return std::vector<Bytes24>(src.rbegin(), src.rend()); };
    sweepElementwise<Bytes24, Bytes24>(flip, model);
    expectNoticed("expected bytes", [&] { sweepAliased<Bytes24>(flip, model); });
}

TEST(Sweep, WithoutSources)
{
    auto fill = [](Tarn64f* dst, int len) {
        for (int i = 0; i < len; ++i)
            store(dst, i, 2.5);
        return tarnStsNoErr;
    };
    sweepElementwise<Tarn64f>(fill, [] { return 2.5; }, {.thresholds = {1000}});
    expectNoticed("expected 2.25", [&] { sweepElementwise<Tarn64f>(fill, [] { return 2.25; }); });
    auto ramp = [](Tarn32s* dst, int len) {
        for (int i = 0; i < len; ++i)
            store(dst, i, i);
        return tarnStsNoErr;
    };
    sweepElementwise<Tarn32s>(ramp, [](int len) {
        std::vector<Tarn32s> values(static_cast<std::size_t>(len));
        std::iota(values.begin(), values.end(), 0);
        return values;
    });
}

TEST(Sweep, StatusesThatDependOnTheData)
{
    auto reciprocal = [](const Tarn32f* src, Tarn32f* dst, int len) {
        TarnStatus status = tarnStsNoErr;
        for (int i = 0; i < len; ++i) {
            if (load(src, i) == 0)
                status = tarnStsDivByZero;
            store(dst, i, 1 / load(src, i));
        }
        return status;
    };
    auto model = [](Tarn32f x) { return Outcome<Tarn32f>{1 / x, x == 0 ? tarnStsDivByZero : tarnStsNoErr}; };
    sweepElementwise<Tarn32f, Tarn32f>(reciprocal, model);
    auto silent = [&](const Tarn32f* src, Tarn32f* dst, int len) {
        reciprocal(src, dst, len);
        return tarnStsNoErr;
    };
    expectNoticed("expected status 6", [&] { sweepElementwise<Tarn32f, Tarn32f>(silent, model); });
}

TEST(Sweep, Reductions)
{
    auto sum = [](const Tarn16s* a, const Tarn16s* b, int len, Tarn64s* result) {
        Tarn64s total = 0;
        for (int i = 0; i < len; ++i)
            total += load(a, i) * load(b, i);
        store(result, 0, total);
        return tarnStsNoErr;
    };
    sweepReduction<Tarn64s, Tarn16s, Tarn16s>(sum, [](std::span<const Tarn16s> a, std::span<const Tarn16s> b) {
        return std::inner_product(a.begin(), a.end(), b.begin(), Tarn64s{0});
    });
    expectNoticed("expected", [&] {
        sweepReduction<Tarn64s, Tarn16s, Tarn16s>(
            sum, [](std::span<const Tarn16s> a, std::span<const Tarn16s>) { return Tarn64s{a[0]}; });
    });
}

// ---- Checks

TarnStatus goodOrder(const Tarn16s* src, const Tarn16s* src2, Tarn16s* dst, int len, int step)
{
    if (src == nullptr || src2 == nullptr || dst == nullptr)
        return tarnStsNullPtrErr;
    if (len < 1)
        return tarnStsSizeErr;
    if (step < 1)
        return tarnStsSampleFactorErr;
    return tarnStsNoErr;
}

TarnStatus lengthFirst(const Tarn16s* src, Tarn16s* dst, int len)
{
    if (len < 1)
        return tarnStsSizeErr;
    if (src == nullptr || dst == nullptr)
        return tarnStsNullPtrErr;
    return static_cast<int>(static_cast<unsigned>(len) * 2) < 1 ? tarnStsSizeErr : tarnStsNoErr;
}

TarnStatus forgetsAPointer(const Tarn16s* src, Tarn16s* dst, int len)
{
    return src == nullptr ? tarnStsNullPtrErr : len < 1 ? tarnStsSizeErr : (static_cast<void>(dst), tarnStsNoErr);
}

TarnStatus zeroIsFine(const Tarn16s* src, int len, Tarn16s* result)
{
    return src == nullptr || result == nullptr ? tarnStsNullPtrErr : len < 0 ? tarnStsSizeErr : tarnStsNoErr;
}

TarnStatus writesOnError(Tarn16s* dst, int len)
{
    if (dst == nullptr)
        return tarnStsNullPtrErr;
    store(dst, 3, static_cast<Tarn16s>(load(dst, 3) + 1));
    return len < 1 ? tarnStsSizeErr : tarnStsNoErr;
}

TarnStatus constantInPlace(int, Tarn32s* srcDst, int len)
{
    return srcDst == nullptr ? tarnStsNullPtrErr : len < 1 ? tarnStsSizeErr : tarnStsNoErr;
}

const auto stepParameter = param(2, {0, -1}, tarnStsSampleFactorErr);

TEST(Checks, AcceptTheStatedOrder)
{
    expectChecks(goodOrder, {}, array, array, array, length, stepParameter);
    expectChecks(lengthFirst, {.order = {Check::length, Check::pointer}, .wrappedLengths = doublingWraps});
    expectChecks(constantInPlace);
    Tarn16s element = 0;
    expectChecks(forgetsAPointer, {}, object(&element), &element, length(3));
}

TEST(Checks, NoticeWrongOnes)
{
    expectNoticed("argument 0 null and argument 2 = 0", [&] { expectChecks(lengthFirst); });
    expectNoticed("a bad parameter and argument 0 null", [&] {
        expectChecks(goodOrder, {.order = {Check::parameter, Check::pointer, Check::length}}, array, array, array,
                     length, stepParameter);
    });
    expectNoticed("argument 1 null", [&] { expectChecks(forgetsAPointer); });
    expectNoticed("argument 1 = 0", [&] { expectChecks(zeroIsFine); });
    expectNoticed("array 0 was changed", [&] { expectChecks(writesOnError); });
    expectNoticed("without a fault", [&] { expectChecks(goodOrder); });
    expectNoticed("= 1073741824", [&] { expectChecks(constantInPlace, {.wrappedLengths = doublingWraps}); });
}

} // namespace
} // namespace tarn::test
