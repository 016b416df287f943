// Analytic signals against the sums they are defined by, and where their work memory comes from.
#include "support/guarded.h"
#include "support/memory_watch.h"
#include "tarns/hilbert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <complex>
#include <cstdint>
#include <string>

namespace tarn::test {
namespace {

struct HilbertKind {
    std::string name;
    int identifier;
    bool integerSamples;
    bool integerResults;
    TarnStatus (*create)(void** ppSpec, int length, TarnHintAlgorithm hint);
    TarnStatus (*free)(void* spec);
    TarnStatus (*run)(const void* src, void* dst, const void* spec, int scaleFactor);
};

#define TARN_HILBERT_KIND(KIND, ID, SRC, DST, CALL)                                                       \
    HilbertKind                                                                                           \
    {                                                                                                     \
#KIND, ID, sizeof(SRC) == 2, sizeof(DST) == 4,                                                          \
            [](void** pp, int length, TarnHintAlgorithm hint) {                                                 \
                return tarnsHilbertInitAlloc_##KIND(reinterpret_cast<TarnsHilbertSpec_##KIND**>(pp), length, hint); \
            },                                                                                                  \
            [](void* spec) { return tarnsHilbertFree_##KIND(static_cast<TarnsHilbertSpec_##KIND*>(spec)); },    \
            [](const void* src, void* dst, const void* s, [[maybe_unused]] int scaleFactor) {                   \
                const auto* pSrc = static_cast<const SRC*>(src);                                                \
                auto* pDst = static_cast<DST*>(dst);                                                            \
                const auto* spec = static_cast<const TarnsHilbertSpec_##KIND*>(s);                              \
                return CALL;                                                                                    \
            } \
    }

const std::vector<HilbertKind>& kinds()
{
    static const std::vector<HilbertKind> all = {
        TARN_HILBERT_KIND(32f32fc, 0x4C4D5357, Tarn32f, Tarn32fc, tarnsHilbert_32f32fc(pSrc, pDst, spec)),
        TARN_HILBERT_KIND(16s32fc, 0x4C4D5358, Tarn16s, Tarn32fc, tarnsHilbert_16s32fc(pSrc, pDst, spec)),
        TARN_HILBERT_KIND(16s16sc, 0x4C4D5359, Tarn16s, Tarn16sc,
                          tarnsHilbert_16s16sc_Sfs(pSrc, pDst, spec, scaleFactor)),
    };
    return all;
}

class HilbertSpec {
public:
    HilbertSpec(const HilbertKind& kindOfSpec, int length) : kind(kindOfSpec)
    {
        EXPECT_EQ(tarnStsNoErr, kind.create(&spec, length, tarnAlgHintNone)) << kind.name << " length " << length;
    }
    ~HilbertSpec() { EXPECT_EQ(tarnStsNoErr, kind.free(spec)); }
    HilbertSpec(const HilbertSpec&) = delete;
    HilbertSpec& operator=(const HilbertSpec&) = delete;
    const void* get() const { return spec; }

private:
    const HilbertKind& kind;
    void* spec = nullptr;
};

/// Integers, so that all kinds take them.
std::vector<int> signal(int N, int magnitude)
{
    std::vector<int> x(static_cast<std::size_t>(N));
    std::uint32_t state = static_cast<std::uint32_t>(N) * 2654435761U + 1;
    for (int& value : x) {
        state = state * 1664525U + 1013904223U;
        value = static_cast<int>(state >> 8) % (2 * magnitude + 1) - magnitude;
    }
    return x;
}

using Value = std::complex<double>;

/// The kernel of the cyclic Hilbert transform, by its closed form: of an even length it is 2 / N cot(pi n / N) at odd n
/// and 0 elsewhere; of an odd one (cot(pi n / N) - (-1)^n / sin(pi n / N)) / N.
std::vector<double> imaginaryPart(const std::vector<int>& x)
{
    const std::size_t N = x.size();
    std::vector<double> kernel(N);
    for (std::size_t n = 1; n < N; ++n) {
        const double angle = 3.14159265358979323846 * static_cast<double>(n) / static_cast<double>(N);
        const double cotangent = std::cos(angle) / std::sin(angle);
        const double sign = n % 2 == 0 ? 1 : -1;
        kernel[n] = (N % 2 == 0 ? (1 - sign) * cotangent : cotangent - sign / std::sin(angle)) / static_cast<double>(N);
    }
    std::vector<double> y(N);
    for (std::size_t k = 0; k < N; ++k) {
        for (std::size_t n = 0; n < N; ++n)
            y[k] += kernel[(k + N - n) % N] * x[n];
    }
    return N < 3 ? std::vector<double>(N) : y;
}

std::vector<Value> analytic(const std::vector<int>& x)
{
    const auto im = imaginaryPart(x);
    std::vector<Value> z;
    for (std::size_t i = 0; i < x.size(); ++i)
        z.emplace_back(x[i], im[i]);
    return z;
}

/// The transform of a kind between guards, at an odd address in turn.
std::vector<Value> run(const HilbertKind& kind, const std::vector<int>& x, const void* spec, int scaleFactor,
                       unsigned turn)
{
    const auto place = [turn](unsigned offset) {
        return turn % 3 == 0 ? Placement::atEnd() : Placement::offset((turn + offset) % 16);
    };
    GuardedArray<Tarn32f> source(x.size(), place(0));
    GuardedArray<Tarn16s> words(x.size(), place(2));
    for (std::size_t i = 0; i < x.size(); ++i) {
        source.set(i, static_cast<Tarn32f>(x[i]));
        words.set(i, static_cast<Tarn16s>(x[i]));
    }
    GuardedArray<Tarn32fc> dst(x.size(), place(1));
    GuardedArray<Tarn16sc> narrow(x.size(), place(3));
    const void* src = kind.integerSamples ? static_cast<const void*>(words.data()) : source.data();
    void* to = kind.integerResults ? static_cast<void*>(narrow.data()) : dst.data();
    EXPECT_EQ(tarnStsNoErr, kind.run(src, to, spec, scaleFactor));
    std::vector<Value> z;
    for (std::size_t i = 0; i < x.size(); ++i) {
        EXPECT_EQ(x[i], static_cast<int>(source.get(i)));
        EXPECT_EQ(x[i], words.get(i));
        const Tarn32fc wide = dst.get(i);
        const Tarn16sc word = narrow.get(i);
        z.push_back(kind.integerResults ? Value(word.re, word.im)
                                        : Value(static_cast<double>(wide.re), static_cast<double>(wide.im)));
    }
    return z;
}

TEST(Hilbert, IsTheAnalyticSignal)
{
    std::vector<int> lengths = {120, 127, 128, 151, 255, 256, 302, 1000, 1021, 1024, 2047};
    for (int N = 1; N <= 70; ++N)
        lengths.push_back(N);
    for (int N : lengths) {
        const auto x = signal(N, 10000);
        const auto expected = analytic(x);
        for (const HilbertKind& kind : kinds()) {
            const HilbertSpec spec(kind, N);
            const auto z = run(kind, x, spec.get(), 0, static_cast<unsigned>(N));
            for (std::size_t i = 0; i < z.size(); ++i) {
                // Some units of the rounding of transforms whose values are up to 10000 sqrt(N).
                const double bound = kind.integerResults ? 0.5 + 0.02 : 0.02;
                ASSERT_NEAR(expected[i].real(), z[i].real(), bound) << kind.name << " length " << N << " at " << i;
                ASSERT_NEAR(expected[i].imag(), z[i].imag(), bound) << kind.name << " length " << N << " at " << i;
            }
        }
    }
}

TEST(Hilbert, OneAndTwoSamplesHaveNoImaginaryPart)
{
    for (int N : {1, 2})
        for (const HilbertKind& kind : kinds()) {
            const HilbertSpec spec(kind, N);
            const auto x = signal(N, 3000);
            const auto z = run(kind, x, spec.get(), 0, 1);
            for (std::size_t i = 0; i < z.size(); ++i)
                EXPECT_EQ(Value(x[i], 0), z[i]) << kind.name;
        }
}

// What is doubled, kept and cleared shows at the edges: a constant and the highest frequency have no imaginary part.
TEST(Hilbert, ConstantAndAlternatingSignalsStay)
{
    for (int N : {3, 4, 5, 6, 7, 8, 16, 30})
        for (int alternating : {0, 1}) {
            if (alternating == 1 && N % 2 != 0)
                continue;
            std::vector<int> x(static_cast<std::size_t>(N), 1000);
            for (std::size_t i = 1; i < x.size(); i += 2)
                x[i] = alternating == 1 ? -1000 : 1000;
            const HilbertSpec spec(kinds()[0], N);
            for (const Value& z : run(kinds()[0], x, spec.get(), 0, 1))
                EXPECT_NEAR(0, z.imag(), 1e-3) << N;
        }
}

TEST(Hilbert, ACosineBecomesAPhasor)
{
    constexpr int N = 360;
    std::vector<Tarn32f> x;
    for (int n = 0; n < N; ++n)
        x.push_back(static_cast<Tarn32f>(std::cos(6.283185307179586 * 7 * n / N)));
    std::vector<Tarn32fc> z(N);
    TarnsHilbertSpec_32f32fc* spec = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsHilbertInitAlloc_32f32fc(&spec, N, tarnAlgHintNone));
    EXPECT_EQ(tarnStsNoErr, tarnsHilbert_32f32fc(x.data(), z.data(), spec));
    EXPECT_EQ(tarnStsNoErr, tarnsHilbertFree_32f32fc(spec));
    for (int n = 0; n < N; ++n)
        EXPECT_NEAR(std::sin(6.283185307179586 * 7 * n / N), static_cast<double>(z[static_cast<std::size_t>(n)].im),
                    1e-5);
}

// -- Integers ---------------------------------------------------------------------------------------------------------

TEST(Hilbert_16s16sc, IsScaledRoundedAndSaturated)
{
    const HilbertKind& kind = kinds()[2];
    for (int N : {3, 8, 50, 512})
        for (int s : {0, 1, 3, 20, -1, -4}) {
            const auto x = signal(N, 32767);
            const auto exact = analytic(x);
            const HilbertSpec spec(kind, N);
            const auto z = run(kind, x, spec.get(), s, 2);
            for (std::size_t i = 0; i < z.size(); ++i) {
                const auto limited = [s](double value) { return std::clamp(std::ldexp(value, -s), -32768.0, 32767.0); };
                const double bound = 0.5 + std::ldexp(0.06, -s);
                ASSERT_NEAR(limited(exact[i].real()), z[i].real(), bound) << N << " scaled by " << s;
                ASSERT_NEAR(limited(exact[i].imag()), z[i].imag(), bound) << N << " scaled by " << s;
            }
        }
}

TEST(Hilbert_16s16sc, FewSamplesAreTruncated)
{
    for (int N : {1, 2})
        for (const auto& [sample, s, expected] : {std::tuple{7, 1, 3},
                                                  {-7, 1, -3},
                                                  {5, 0, 5},
                                                  {20000, -1, 32767},
                                                  {-20000, -1, -32768},
                                                  {1, 31, 0},
                                                  {-32768, 15, -1},
                                                  {1, -40, 32767},
                                                  {-1, INT_MIN, -32768},
                                                  {0, INT_MIN, 0},
                                                  {32767, INT_MAX, 0}}) {
            const HilbertSpec spec(kinds()[2], N);
            const std::vector<int> x(static_cast<std::size_t>(N), sample);
            for (const Value& z : run(kinds()[2], x, spec.get(), s, 1))
                EXPECT_EQ(Value(expected, 0), z) << sample << " scaled by " << s;
        }
}

// -- Statuses and memory ----------------------------------------------------------------------------------------------

void* const untouched = reinterpret_cast<void*>(std::uintptr_t{0x1234});

TEST(HilbertStatus, CreationChecksPointerThenLength)
{
    for (const HilbertKind& kind : kinds()) {
        EXPECT_EQ(tarnStsNullPtrErr, kind.create(nullptr, 0, 0)) << kind.name;
        for (int length : {0, -1, INT_MIN}) {
            void* spec = untouched;
            EXPECT_EQ(tarnStsSizeErr, kind.create(&spec, length, 0)) << kind.name;
            EXPECT_EQ(untouched, spec);
        }
        for (int hint : {1, 2, -7}) {
            void* spec = nullptr;
            ASSERT_EQ(tarnStsNoErr, kind.create(&spec, 9, hint));
            std::int32_t words[2];
            std::memcpy(words, spec, sizeof words);
            EXPECT_EQ(kind.identifier, words[0]);
            EXPECT_EQ(9, words[1]);
            EXPECT_EQ(tarnStsNoErr, kind.free(spec));
        }
    }
}

TEST(HilbertStatus, CallsCheckThePointersThenTheObject)
{
    alignas(16) const Tarn32s freed[64] = {};
    std::vector<double> data(64, 3.0);
    const auto before = data;
    for (const HilbertKind& kind : kinds()) {
        const HilbertSpec spec(kind, 9);
        EXPECT_EQ(tarnStsNullPtrErr, kind.free(nullptr));
        for (int missing = 1; missing < 8; ++missing)
            for (const void* object : {spec.get(), static_cast<const void*>(freed)})
                EXPECT_EQ(tarnStsNullPtrErr, kind.run((missing & 1) != 0 ? nullptr : data.data(),
                                                      (missing & 2) != 0 ? nullptr : data.data() + 32,
                                                      (missing & 4) != 0 ? nullptr : object, 0))
                    << kind.name << missing;
        EXPECT_EQ(tarnStsContextMatchErr, kind.run(data.data(), data.data() + 32, freed, 0));
        for (const HilbertKind& other : kinds())
            if (other.identifier != kind.identifier) {
                EXPECT_EQ(tarnStsContextMatchErr, other.run(data.data(), data.data() + 32, spec.get(), 0));
                EXPECT_EQ(tarnStsContextMatchErr, other.free(const_cast<void*>(spec.get())));
            }
    }
    EXPECT_EQ(before, data);
}

// An object whose transforms could not be made is the caller's all the same.
TEST(HilbertMemory, WhatCreationLeavesBehindCanBeFreed)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    for (const HilbertKind& kind : kinds())
        for (int N : {1, 12, 64, 151}) {
            int refused = 0;
            for (int status = tarnStsNoMemErr; status != tarnStsNoErr; ++refused) {
                ASSERT_LT(refused, 64);
                void* spec = nullptr;
                int held = 0;
                {
                    const MemoryWatch watch(refused);
                    status = kind.create(&spec, N, 0);
                    held = watch.outstanding();
                }
                EXPECT_EQ(refused == 0, spec == nullptr);
                if (spec == nullptr)
                    continue;
                std::vector<double> data(1024, 1.0);
                if (status != tarnStsNoErr) {
                    EXPECT_EQ(tarnStsNoMemErr, status);
                    EXPECT_EQ(tarnStsNoMemErr, kind.run(data.data(), data.data() + 512, spec, 0));
                    EXPECT_EQ(std::vector<double>(1024, 1.0), data);
                }
                const MemoryWatch watch;
                const TarnStatus freed = kind.free(spec);
                EXPECT_EQ(-held, watch.outstanding()) << kind.name << " " << N << " refused " << refused;
                EXPECT_EQ(tarnStsNoErr, freed);
            }
            EXPECT_GE(refused, 3);
        }
}

TEST(HilbertMemory, OnlyLargeWorkMemoryIsAllocated)
{
    if (!canRefuseMemory)
        GTEST_SKIP();
    // Complex transforms of 1024 points take 8 bytes a point and 16 for alignment, those of 2048 too much.
    const struct {
        int N;
        bool allocates[3];
    } cases[] = {{2, {false, false, false}}, {1024, {false, false, true}}, {2048, {true, true, true}}};
    for (const auto& one : cases)
        for (std::size_t k = 0; k < kinds().size(); ++k) {
            const HilbertKind& kind = kinds()[k];
            const HilbertSpec spec(kind, one.N);
            std::vector<double> src(static_cast<std::size_t>(one.N), 1.0);
            std::vector<double> dst(static_cast<std::size_t>(one.N), 7.0);
            const auto before = dst;
            const auto allocations = [&](int allowed, TarnStatus expected) {
                TarnStatus status = tarnStsNoErr;
                int allocated = 0;
                int held = 0;
                {
                    const MemoryWatch watch(allowed);
                    status = kind.run(src.data(), dst.data(), spec.get(), 0);
                    allocated = watch.allocated();
                    held = watch.outstanding();
                }
                EXPECT_EQ(expected, status) << kind.name << " " << one.N;
                EXPECT_EQ(0, held);
                return allocated;
            };
            EXPECT_EQ(0, allocations(0, one.allocates[k] ? tarnStsNoMemErr : tarnStsNoErr));
            if (one.allocates[k]) {
                EXPECT_EQ(before, dst);
            }
            EXPECT_EQ(one.allocates[k] ? 1 : 0, allocations(9, tarnStsNoErr)) << kind.name << " " << one.N;
        }
}

} // namespace
} // namespace tarn::test
