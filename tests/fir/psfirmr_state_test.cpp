// States of multi-rate filters: sizes, memory of the caller, taps and delay lines, checks, memory that is refused.
#include "levels/fir/psfir_state.h"
#include "model/fir_rates.h"
#include "support/fir_tails.h"
#include "support/guarded.h"
#include "support/hard_values.h"
#include "support/memory_watch.h"

#include <gtest/gtest.h>

#include <climits>

namespace tarn::test {
namespace {

Numbers numbered(int len, bool isComplex, double first = 1)
{
    Numbers values;
    for (int i = 0; i < len; ++i)
        values.push_back({first + i, isComplex ? -first - 2 * i : 0});
    return values;
}

class FirRatesStateTest : public ::testing::Test {
protected:
    const std::vector<ErasedFir>& firs = erasedFirs();
};

// -- Sizes ------------------------------------------------------------------------------------------------------------

// The formulas of the 32-bit library in the taps' element width.
long long documentedSize(const ErasedFir& fir, long long t, long long u, long long r)
{
    const auto width = static_cast<long long>(fir.tap.size);
    const auto round16 = [](long long bytes) { return (bytes + 15) / 16 * 16; };
    const auto form =
        fir::formOf({static_cast<int>(t), static_cast<int>(u), 0, static_cast<int>(r), 0}, fir.tap.isComplex);
    const long long p = (t + 3 * r + u - 1) / u * u;
    const long long d = (t + u - 1) / u;
    const long long delay = round16(width * (form.in + d + 1));
    if (form.direct)
        return round16(width * t) + 4 * width * p + round16(4 * u + 4) + width * std::max(4 * p, 4096LL) + delay + 128;
    return round16(width * t) + 4 * width * p + round16(16 * u + 4) + width * std::max(8 * p, 4096LL) + delay + 112;
}

TEST_F(FirRatesStateTest, ReportsTheSizeToTheByte)
{
    for (const ErasedFir& fir : firs) {
        for (const Rates& r : {Rates{1, 1, 0, 1, 0},
                               {5, 2, 0, 3, 0},
                               {5, 1, 0, 3, 0},
                               {9, 1, 0, 3, 0},
                               {64, 1, 0, 4, 0},
                               {64, 4, 0, 1, 0},
                               {2560, 160, 0, 147, 0},
                               {3, 40, 0, 7, 0},
                               {1, 1, 0, 5000, 0},
                               {5000, 1, 0, 3, 0},
                               {7, 3, 0, 400, 0}}) {
            int size = -1;
            ASSERT_EQ(tarnStsNoErr, fir.size(r.taps, r.up, r.down, &size)) << fir.name;
            if (fir.isIntegerTap) {
                const ErasedFir& other = firs[firs.size() - (fir.tap.isComplex ? 3 : 4)];
                int own = 0;
                other.size(r.taps, r.up, r.down, &own);
                EXPECT_EQ(fir.name == other.name ? own : own + 4 * r.taps + 16, size) << fir.name;
                continue;
            }
            int single = 0;
            fir.singleSize(r.taps, &single);
            const bool isSingle = fir.isRealFloatTap() && r.up == 1 && r.down == 1;
            const long long documented = isSingle ? single : documentedSize(fir, r.taps, r.up, r.down);
            if (sizeof(void*) == 4)
                EXPECT_EQ(documented, size) << fir.name << ", " << r.taps << " " << r.up << " " << r.down;
            else
                EXPECT_LE(documented, size) << fir.name;
        }
    }
}

TEST_F(FirRatesStateTest, RefusesStatesBeyondTwoGigabytes)
{
    for (const ErasedFir& fir : firs) {
        const auto taps = packed(fir.tap, numbered(4, fir.tap.isComplex));
        for (const Rates& r : {Rates{4, INT_MAX, 0, 1, 0},
                               {4, 1, 0, INT_MAX, 0},
                               {4, INT_MAX, 0, INT_MAX, 0},
                               {4, 1 << 28, 0, 1 << 28, 0},
                               {4, 1 << 30, 0, 3, 0},
                               {4, 3, 0, 1 << 30, 0},
                               {4, 1, 0, 0x15555556, 0},
                               {4, 0x10000001, 0, 0x55555555, 0}}) {
            int size = 5;
            EXPECT_EQ(tarnStsNoMemErr, fir.size(r.taps, r.up, r.down, &size))
                << fir.name << " " << r.up << " " << r.down;
            EXPECT_EQ(5, size);
            void* state = &size;
            Tarn8u memory[64] = {};
            EXPECT_EQ(tarnStsNoMemErr, fir.init(&state, taps.data(), r, nullptr, memory)) << fir.name;
            EXPECT_EQ(&size, state);
            EXPECT_EQ(tarnStsNoMemErr, fir.initAlloc(&state, taps.data(), r, nullptr)) << fir.name;
            EXPECT_EQ(nullptr, state);
        }
        int size = 5;
        EXPECT_EQ(tarnStsNoMemErr, fir.size(INT_MAX, 2, 3, &size)) << fir.name;
    }
}

// Memory of exactly the reported size at every alignment, an unmapped page behind it and a red zone before.
TEST_F(FirRatesStateTest, StaysWithinTheCallersMemory)
{
    const ThreadsScope one(1); // leaves single-rate states the least room
    for (const ErasedFir& fir : firs) {
        for (const Rates& r : {Rates{1, 1, 0, 1, 0},
                               {5, 2, 1, 3, 2},
                               {5, 1, 0, 3, 0},
                               {1, 10, 9, 1, 0},
                               {1, 1, 0, 2, 1},
                               {64, 4, 0, 1, 0},
                               {9, 3, 2, 40, 0},
                               {700, 1, 0, 2, 0},
                               {2, 7, 0, 9, 8}}) {
            int size = 0;
            ASSERT_EQ(tarnStsNoErr, fir.size(r.taps, r.up, r.down, &size));
            const auto taps = packed(fir.tap, numbered(r.taps, fir.tap.isComplex));
            const auto line = packed(fir.sample, numbered(r.history(), fir.sample.isComplex));
            for (unsigned gap = 0; gap<16; gap += r.taps> 100 ? 5 : 1) {
                GuardedBytes memory(static_cast<std::size_t>(size), Placement::atEnd(gap));
                memory.fillPattern();
                void* state = nullptr;
                ASSERT_EQ(tarnStsNoErr, fir.init(&state, taps.data(), r, line.data(), memory.bytes()));
                auto* const address = static_cast<unsigned char*>(state);
                EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(address) % 16);
                EXPECT_TRUE(address >= memory.bytes() && address < memory.bytes() + 16);
                for (const int n : {1, 2, 3, 9, 40, 4100}) {
                    if (n > 40 && (gap != 3 || r.up != 1))
                        continue;
                    std::vector<unsigned char> data(fir.sample.size *
                                                    static_cast<std::size_t>(n * std::max(r.up, r.down)));
                    std::vector<unsigned char> out(data.size());
                    ASSERT_EQ(tarnStsNoErr, fir.filter(data.data(), out.data(), n, state, 20));
                    ASSERT_EQ(tarnStsNoErr, fir.inPlace(data.data(), n, state, 20));
                }
                ASSERT_EQ(tarnStsNoErr, fir.setTaps(taps.data(), state));
                ASSERT_EQ(tarnStsNoErr, fir.setDlyLine(state, line.data()));
                EXPECT_EQ(tarnStsNoErr, fir.free(state));
                EXPECT_EQ("", memory.redZoneDamage()) << fir.name << ", gap " << gap;
            }
        }
    }
}

// -- Taps and delay lines ---------------------------------------------------------------------------------------------

TEST_F(FirRatesStateTest, GivesBackTapsAndDelayLine)
{
    for (const ErasedFir& fir : firs) {
        for (const Rates& r : {Rates{5, 2, 1, 3, 2}, {5, 1, 0, 3, 0}, {9, 4, 0, 40, 0}, {1, 3, 0, 2, 0}}) {
            auto taps = numbered(r.taps, fir.tap.isComplex);
            taps[0].re = 20000; // of a magnitude that is kept as it is
            const auto tapBytes = packed(fir.tap, taps);
            const auto line = packed(fir.sample, numbered(r.history(), fir.sample.isComplex));
            void* state = nullptr;
            ASSERT_EQ(tarnStsNoErr, fir.initAlloc(&state, tapBytes.data(), r, line.data()));
            GuardedArray<unsigned char> tapsBack(tapBytes.size(), Placement::atEnd());
            GuardedArray<unsigned char> lineBack(line.size(), Placement::atEnd());
            EXPECT_EQ(tarnStsNoErr, fir.getTaps(state, tapsBack.data()));
            EXPECT_EQ(tapBytes, tapsBack.copy()) << fir.name;
            EXPECT_EQ(tarnStsNoErr, fir.getDlyLine(state, lineBack.data()));
            EXPECT_EQ(line, lineBack.copy()) << fir.name;

            auto others = numbered(r.taps, fir.tap.isComplex, 30);
            others[0].re = 30000;
            const auto otherBytes = packed(fir.tap, others);
            ASSERT_EQ(tarnStsNoErr, fir.setTaps(otherBytes.data(), state));
            fir.getTaps(state, tapsBack.data());
            EXPECT_EQ(otherBytes, tapsBack.copy()) << fir.name;
            fir.getDlyLine(state, lineBack.data());
            EXPECT_EQ(line, lineBack.copy()) << "taps leave the delay line alone";
            ASSERT_EQ(tarnStsNoErr, fir.setDlyLine(state, nullptr));
            fir.getDlyLine(state, lineBack.data());
            EXPECT_EQ(std::vector<unsigned char>(line.size()), lineBack.copy()) << fir.name;
            EXPECT_EQ(tarnStsNoErr, fir.free(state));
        }
    }
}

// New taps in a stream: what is filtered from then on is as if the state had always had them.
TEST_F(FirRatesStateTest, FiltersByNewTaps)
{
    for (const ErasedFir& fir : firs) {
        for (const Rates& r : {Rates{5, 2, 1, 3, 2}, {5, 1, 0, 3, 0}, {9, 4, 0, 40, 0}, {20, 1, 0, 3, 1}}) {
            const auto line = packed(fir.sample, numbered(r.history(), fir.sample.isComplex));
            const auto first = packed(fir.tap, numbered(r.taps, fir.tap.isComplex));
            const auto second = packed(fir.tap, numbered(r.taps, fir.tap.isComplex, 3));
            void* changed = nullptr;
            void* fresh = nullptr;
            ASSERT_EQ(tarnStsNoErr, fir.initAlloc(&changed, first.data(), r, line.data()));
            ASSERT_EQ(tarnStsNoErr, fir.initAlloc(&fresh, second.data(), r, line.data()));
            ASSERT_EQ(tarnStsNoErr, fir.setTaps(second.data(), changed));
            const auto src = packed(fir.sample, numbered(r.down * 30, fir.sample.isComplex));
            std::vector<unsigned char> a(fir.sample.size * static_cast<std::size_t>(30 * r.up));
            auto b = a;
            fir.filter(src.data(), a.data(), 30, changed, 5);
            fir.filter(src.data(), b.data(), 30, fresh, 5);
            EXPECT_EQ(a, b) << fir.name;
            fir.free(changed);
            fir.free(fresh);
        }
    }
}

// -- Checks -----------------------------------------------------------------------------------------------------------

TEST_F(FirRatesStateTest, ChecksInOrder)
{
    for (const ErasedFir& fir : firs) {
        const auto taps = packed(fir.tap, numbered(8, fir.tap.isComplex));
        Tarn8u memory[64] = {};
        int size = 77;
        void* const untouched = &size;
        void* state = untouched;
        const auto expectStatus = [&](TarnStatus expected, const Rates& r) {
            EXPECT_EQ(expected, fir.initAlloc(&state, taps.data(), r, nullptr)) << fir.name;
            EXPECT_EQ(expected, fir.init(&state, taps.data(), r, nullptr, memory)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.initAlloc(nullptr, taps.data(), r, nullptr));
            EXPECT_EQ(tarnStsNullPtrErr, fir.initAlloc(&state, nullptr, r, nullptr));
            EXPECT_EQ(tarnStsNullPtrErr, fir.init(nullptr, taps.data(), r, nullptr, memory));
            EXPECT_EQ(tarnStsNullPtrErr, fir.init(&state, nullptr, r, nullptr, memory));
            EXPECT_EQ(tarnStsNullPtrErr, fir.init(&state, taps.data(), r, nullptr, nullptr));
            EXPECT_EQ(tarnStsNullPtrErr, fir.size(r.taps, r.up, r.down, nullptr));
            if (expected != tarnStsFIRMRPhaseErr) {
                EXPECT_EQ(expected, fir.size(r.taps, r.up, r.down, &size)) << fir.name;
            }
        };
        for (const int bad : {0, -1, INT_MIN}) {
            expectStatus(tarnStsFIRLenErr, {bad, bad, bad, bad, bad});
            expectStatus(tarnStsFIRMRFactorErr, {1, bad, bad, 1, bad});
            expectStatus(tarnStsFIRMRFactorErr, {1, 1, bad, bad, bad});
        }
        for (const int bad : {-1, INT_MIN, INT_MAX}) {
            expectStatus(tarnStsFIRMRPhaseErr, {8, 2, bad, 3, 0});
            expectStatus(tarnStsFIRMRPhaseErr, {8, 2, 0, 3, bad});
            expectStatus(tarnStsFIRMRPhaseErr, {8, 1, bad, 1, 0});
        }
        expectStatus(tarnStsFIRMRPhaseErr, {8, 2, 2, 3, 0});
        expectStatus(tarnStsFIRMRPhaseErr, {8, 2, 0, 3, 3});
        expectStatus(tarnStsFIRMRPhaseErr, {8, 1 << 28, 1 << 28, 1 << 28, 0});
        EXPECT_EQ(77, size);
        EXPECT_EQ(untouched, state);
    }
}

TEST_F(FirRatesStateTest, HasAnIdOfItsOwn)
{
    const Tarn32u ids[] = {0x46493033, 0x46493034, 0x46493135, 0x46493136, 0x46493139, 0x46493230,
                           0x46493037, 0x46493038, 0x46493233, 0x46493234, 0x46493237, 0x46493238,
                           0x46493131, 0x46493132, 0x46493131, 0x46493132};
    for (std::size_t i = 0; i < firs.size(); ++i) {
        const ErasedFir& fir = firs[i];
        const auto taps = packed(fir.tap, numbered(8, fir.tap.isComplex));
        std::vector<unsigned char> data(fir.sample.size * 64);
        auto out = data;
        for (const Rates& r : {Rates{8, 2, 0, 3, 0}, {8, 1, 0, 1, 0}}) {
            void* state = nullptr;
            ASSERT_EQ(tarnStsNoErr, fir.initAlloc(&state, taps.data(), r, nullptr));
            Tarn32u& id = *static_cast<Tarn32u*>(state);
            const bool isSingle = fir.isRealFloatTap() && r.up == 1;
            EXPECT_EQ(isSingle ? ids[i] - 2 : ids[i], id) << fir.name;
            EXPECT_EQ(isSingle ? tarnStsNoErr : tarnStsContextMatchErr, fir.one(data.data(), state)) << fir.name;
            EXPECT_EQ(tarnStsSizeErr, fir.filter(data.data(), out.data(), 0, state, 0));
            EXPECT_EQ(tarnStsSizeErr, fir.inPlace(data.data(), -1, state, 0));
            EXPECT_EQ(tarnStsNullPtrErr, fir.filter(nullptr, out.data(), 0, state, 0));
            EXPECT_EQ(tarnStsNullPtrErr, fir.filter(data.data(), nullptr, 1, state, 0));
            EXPECT_EQ(tarnStsNullPtrErr, fir.inPlace(nullptr, 1, state, 0));
            const Tarn32u own = id;
            id = 0x46493032;
            if (fir.name != "_32fc") {
                EXPECT_EQ(tarnStsContextMatchErr, fir.setTaps(taps.data(), state)) << fir.name;
                EXPECT_EQ(tarnStsContextMatchErr, fir.filter(data.data(), out.data(), 1, state, 0));
                EXPECT_EQ(tarnStsContextMatchErr, fir.inPlace(data.data(), 1, state, 0));
                EXPECT_EQ(tarnStsContextMatchErr, fir.free(state));
            }
            id = own;
            EXPECT_EQ(tarnStsNullPtrErr, fir.setTaps(nullptr, state));
            fir.free(state);
        }
    }
}

TEST_F(FirRatesStateTest, RefusesAnUnknownForm)
{
    const Tarn32f taps[8] = {1};
    TarnsFIRState_32f* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRMRInitAlloc_32f(&state, taps, 8, 2, 0, 3, 0, nullptr));
    EXPECT_EQ(1, state->form);
    EXPECT_EQ(-1, state->fftLen);
    Tarn32f data[12] = {7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7};
    Tarn32f out[8] = {7};
    for (const int form : {0, 4, -1}) {
        state->form = form;
        EXPECT_EQ(tarnStsContextMatchErr, tarnsFIR_32f(data, out, 4, state));
        EXPECT_EQ(tarnStsContextMatchErr, tarnsFIR_32f_I(data, 4, state));
        EXPECT_EQ(7, out[0]);
        EXPECT_EQ(7, data[0]);
    }
    tarnsFIRFree_32f(state);
    // The choice, at its limits: 9 / 30 is above 0.3 in single precision.
    struct Case {
        Rates rates;
        int form;
    };
    for (const Case& c : {Case{{5, 2, 0, 3, 0}, 1},
                          {{5, 1, 0, 3, 0}, 2},
                          {{9, 1, 0, 3, 0}, 2},
                          {{10, 1, 0, 3, 0}, 1},
                          {{8, 2, 0, 7, 0}, 3},
                          {{9, 2, 0, 7, 0}, 1},
                          {{10, 2, 0, 7, 0}, 1}}) {
        const std::vector<Tarn32f> h(16);
        ASSERT_EQ(tarnStsNoErr,
                  tarnsFIRMRInitAlloc_32f(&state, h.data(), c.rates.taps, c.rates.up, 0, c.rates.down, 0, nullptr));
        EXPECT_EQ(c.form, state->form) << c.rates.taps << " " << c.rates.up << " " << c.rates.down;
        tarnsFIRFree_32f(state);
    }
}

// -- Memory -----------------------------------------------------------------------------------------------------------

TEST_F(FirRatesStateTest, KeepsNothingWhenMemoryIsRefused)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    for (const ErasedFir& fir : firs) {
        const auto taps = packed(fir.tap, numbered(40, fir.tap.isComplex));
        for (const Rates& r : {Rates{40, 2, 0, 3, 0}, {40, 1, 0, 20, 0}, {40, 7, 0, 99, 0}, {20, 1, 0, 1, 0}}) {
            int outstanding = -1;
            void* state = &outstanding;
            TarnStatus status = tarnStsNoErr;
            {
                const MemoryWatch watch(0);
                status = fir.initAlloc(&state, taps.data(), r, nullptr);
                outstanding = watch.outstanding();
            }
            EXPECT_EQ(tarnStsNoMemErr, status) << fir.name;
            EXPECT_EQ(nullptr, state) << fir.name;
            EXPECT_EQ(0, outstanding);
        }
    }
}

TEST_F(FirRatesStateTest, LeavesAllAsItIsWithoutMemoryInPlace)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    for (const ErasedFir& fir : firs) {
        const Rates r{7, 2, 0, 3, 0};
        const auto taps = packed(fir.tap, numbered(7, fir.tap.isComplex));
        const auto line = packed(fir.sample, numbered(4, fir.sample.isComplex));
        void* state = nullptr;
        ASSERT_EQ(tarnStsNoErr, fir.initAlloc(&state, taps.data(), r, line.data()));
        auto data = packed(fir.sample, numbered(30, fir.sample.isComplex));
        const auto before = data;
        TarnStatus status = tarnStsNoErr;
        {
            const MemoryWatch watch(0);
            status = fir.inPlace(data.data(), 10, state, 0);
        }
        EXPECT_EQ(tarnStsNoMemErr, status) << fir.name;
        EXPECT_EQ(before, data);
        auto lineBack = line;
        fir.getDlyLine(state, lineBack.data());
        EXPECT_EQ(line, lineBack);
        int outstanding = -1;
        {
            const MemoryWatch watch;
            EXPECT_EQ(tarnStsNoErr, fir.inPlace(data.data(), 10, state, 0));
            EXPECT_EQ(1, watch.allocated());
            outstanding = watch.outstanding();
        }
        EXPECT_EQ(0, outstanding);
        // More than an allocation can be.
        EXPECT_EQ(tarnStsNoMemErr, fir.inPlace(data.data(), INT_MAX / 2, state, 0));
        fir.free(state);
    }
}

} // namespace
} // namespace tarn::test
