// States of IIR filters: sizes, memory of the caller, taps and delay lines, checks, lack of memory.
#include "levels/recursive/psiir_state.h"
#include "support/iir_stream.h"
#include "support/memory_watch.h"

#include <climits>

namespace tarn::test {
namespace {

template <class F>
class IirStateTest : public ::testing::Test {
protected:
    using Given = typename F::Given;
    using E = typename F::Element;
    using S = typename F::Sample;
    static constexpr bool isConverting = !std::is_same_v<E, S>;
    static constexpr bool isInteger = std::is_integral_v<IirPart<Given>>;

    static std::vector<Given> taps(IirForm form, int n, std::uint64_t seed = 1)
    {
        return asTaps<Given>(randomIirTaps(form == IirForm::order, n, ComplexElement<S>, seed));
    }
    static std::vector<E> line(int len, std::uint64_t seed = 3)
    {
        return randomValues<E>(static_cast<std::size_t>(len), seed, Values::unit);
    }
};

using AllTails =
    ::testing::Types<IirTail32f, IirTail32fc, IirTail32f_16s, IirTail32fc_16sc, IirTail32s_16s, IirTail32sc_16sc,
                     IirTail32s_16s32f, IirTail32sc_16sc32fc, IirTail64f, IirTail64fc, IirTail64f_32f, IirTail64fc_32fc,
                     IirTail64f_32s, IirTail64fc_32sc, IirTail64f_16s, IirTail64fc_16sc>;
TYPED_TEST_SUITE(IirStateTest, AllTails);

constexpr IirForm forms[] = {IirForm::order, IirForm::biquads};

int delayOf(IirForm form, int n) { return form == IirForm::order ? n : 2 * n; }

// The formulas of the 32-bit library; n is the order or the number of sections.
template <class F>
long long documentedSize(IirForm form, long long n)
{
    using E = typename F::Element;
    const bool converts = !std::is_same_v<E, typename F::Sample>;
    const long long scratch = 1024 * static_cast<long long>(sizeof(E)) * (converts ? 2 : 1);
    const auto round16 = [](long long bytes) { return bytes / 16 * 16; };
    if (form == IirForm::order) {
        if constexpr (std::is_same_v<E, Tarn32f>)
            return scratch + (4 * n + 12 + 4 * n + 4) * 4 + 88 + round16(8 * n + 19) + round16(4 * n + 19) + 16;
        else if constexpr (std::is_same_v<E, Tarn32fc>)
            return scratch + (8 * n + 24 + 4 * n + 4 + 4 * n + 8) * 8 + 128 + round16(16 * n + 23) +
                   round16(8 * n + 23) + 16;
        else if constexpr (std::is_same_v<E, Tarn64f>)
            return scratch + (4 * n + 12 + 2 * n + 2) * 8 + 48 + round16(16 * n + 23) + round16(8 * n + 23) + 16;
        else
            return scratch + (10 * n + 2 + 4 * n + 8) * 16 + 16 * n * (converts ? 2 : 1) + 48 + 32 * n + 16 + 16 * n +
                   32;
    }
    if constexpr (std::is_same_v<E, Tarn32f>)
        return scratch + 160 * n + 88 + round16(20 * n + 15) + round16(8 * n + 15) + 16;
    else if constexpr (std::is_same_v<E, Tarn32fc>)
        return scratch + 736 * n + 48 + round16(40 * n + 15) + 16 * n + 16;
    else if constexpr (std::is_same_v<E, Tarn64f>)
        return scratch + 256 * n + 48 + round16(40 * n + 15) + 16 * n;
    else
        return scratch + 1024 * n + 48 + 80 * n + 32 * n + 16;
}

TYPED_TEST(IirStateTest, ReportsTheSizeToTheByte)
{
    for (IirForm form : forms) {
        for (int n = form == IirForm::order ? 0 : 1; n < 70; ++n) {
            int size = -1;
            ASSERT_EQ(tarnStsNoErr, TypeParam::getStateSize(form, n, &size));
            if (sizeof(void*) == 4)
                ASSERT_EQ(documentedSize<TypeParam>(form, n), size) << n;
            else
                ASSERT_LE(documentedSize<TypeParam>(form, n), size) << n;
        }
    }
}

// Sizes beyond 32 bits are errors, not small blocks.
TYPED_TEST(IirStateTest, RefusesWhatDoesNotFitIntoMemory)
{
    using F = TypeParam;
    typename F::State* state = nullptr;
    const auto taps = this->taps(IirForm::order, 2);
    Tarn8u buffer[64] = {};
    for (IirForm form : forms) {
        for (int n : {INT_MAX, INT_MAX / 2, 1 << 28, 97612895, 67108864}) {
            int size = 77;
            EXPECT_EQ(tarnStsNoMemErr, F::getStateSize(form, n, &size)) << n;
            EXPECT_EQ(77, size);
            EXPECT_EQ(tarnStsNoMemErr, F::initAlloc(form, &state, taps.data(), n, nullptr)) << n;
            EXPECT_EQ(tarnStsNoMemErr, F::init(form, &state, taps.data(), n, nullptr, buffer)) << n;
            EXPECT_EQ(nullptr, state);
        }
    }
}

TYPED_TEST(IirStateTest, KeepsTheDelayLine)
{
    using F = TypeParam;
    using E = typename F::Element;
    for (IirForm form : forms) {
        for (int n : {1, 2, 3, 4, 5, 8, 13}) {
            const int len = delayOf(form, n);
            const auto count = static_cast<std::size_t>(len);
            const auto first = this->line(len);
            const IirOwner<F> state(form, this->taps(form, n), first.data());
            EXPECT_EQ(len, state->dlyLen);
            EXPECT_EQ(form == IirForm::order ? 0 : n, state->numBq);
            EXPECT_EQ(form == IirForm::order ? F::State::orderId : F::State::biquadId, state->idCtx);
            EXPECT_EQ(1, state->isAllocated);
            EXPECT_EQ(!this->isConverting, state->pTmp2 == nullptr);
            GuardedArray<E> back(count, Placement::atEnd());
            ASSERT_EQ(tarnStsNoErr, F::getDlyLine(state.get(), back.data()));
            EXPECT_TRUE(arraysMatch(first, back));
            if constexpr (!TestFixture::isInteger) {
                ASSERT_EQ(tarnStsNoErr, F::setTaps(this->taps(form, n, 9).data(), state.get()));
                F::getDlyLine(state.get(), back.data());
                EXPECT_TRUE(arraysMatch(first, back)) << "taps leave the delay line alone";
            }
            const auto next = this->line(len, 4);
            ASSERT_EQ(tarnStsNoErr, F::setDlyLine(state.get(), next.data()));
            F::getDlyLine(state.get(), back.data());
            EXPECT_TRUE(arraysMatch(next, back));
            ASSERT_EQ(tarnStsNoErr, F::setDlyLine(state.get(), nullptr));
            F::getDlyLine(state.get(), back.data());
            EXPECT_TRUE(arraysMatch(std::vector<E>(count, E{}), back));
        }
    }
}

TYPED_TEST(IirStateTest, HasNoDelayAtOrderZero)
{
    using F = TypeParam;
    using S = typename F::Sample;
    const auto taps = asTaps<typename F::Given>({6, 2}, 1);
    const IirOwner<F> state(IirForm::order, taps, unreadable<typename F::Element>());
    EXPECT_EQ(0, state->dlyLen);
    typename F::Element untouched{};
    std::memset(&untouched, 0x55, sizeof untouched);
    const auto before = untouched;
    EXPECT_EQ(tarnStsNoErr, F::getDlyLine(state.get(), &untouched));
    EXPECT_EQ(0, std::memcmp(&before, &untouched, sizeof before));
    EXPECT_EQ(tarnStsNoErr, F::setDlyLine(state.get(), nullptr));
    const auto signal = randomValues<S>(50, 1, Values::unit);
    auto gained = signal;
    EXPECT_EQ(tarnStsNoErr, F::inPlace(gained.data(), 50, state.get(), 0));
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const auto expected = toNumber(signal[i]) * iir::Wide{3};
        ASSERT_NEAR(static_cast<double>(expected.real()), static_cast<double>(toNumber(gained[i]).real()), 1e-6);
        S single{};
        F::one(signal[i], &single, state.get(), 0);
        ASSERT_EQ(0, std::memcmp(&single, &gained[i], sizeof single));
    }
}

// Memory of exactly the reported size at every alignment, an unmapped page behind it, a red zone in front.
TYPED_TEST(IirStateTest, StaysWithinTheCallersMemory)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (IirForm form : forms) {
        for (int n : {0, 1, 2, 3, 5, 8}) {
            int size = 0;
            if (F::getStateSize(form, n, &size) != tarnStsNoErr)
                continue;
            const auto taps = this->taps(form, n);
            const auto line = this->line(delayOf(form, n));
            const IirOwner<F> own(form, taps, line.data());
            const auto signal = randomValues<S>(1300, 5, Values::unit);
            const auto expected = filterIirInCalls<F>(own.get(), signal, {1200, 0, 0, 9, 50}, 1);
            for (unsigned gap = 0; gap < 16; gap += n < 3 ? 1 : 5) {
                GuardedBytes memory(static_cast<std::size_t>(size), Placement::atEnd(gap));
                memory.fillPattern();
                typename F::State* state = nullptr;
                ASSERT_EQ(tarnStsNoErr, F::init(form, &state, taps.data(), n, line.data(), memory.bytes()));
                auto* const address = reinterpret_cast<unsigned char*>(state);
                EXPECT_TRUE(address >= memory.bytes() && address < memory.bytes() + 16);
                EXPECT_EQ(0, state->isAllocated);
                const auto out = filterIirInCalls<F>(state, signal, {1200, 0, 0, 9, 50}, 1);
                EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size())) << n << ", gap " << gap;
                F::setTaps(taps.data(), state);
                EXPECT_EQ(tarnStsNoErr, F::setDlyLine(state, line.data()));
                EXPECT_EQ(tarnStsNoErr, F::free(state));
                EXPECT_EQ(state->idCtx, form == IirForm::order ? F::State::orderId : F::State::biquadId);
                EXPECT_EQ("", memory.redZoneDamage()) << n << ", gap " << gap;
            }
        }
    }
}

TYPED_TEST(IirStateTest, ChecksPointersThenOrders)
{
    using F = TypeParam;
    using State = typename F::State;
    State* state = nullptr;
    State* const untouched = reinterpret_cast<State*>(&state);
    State* result = untouched;
    GuardedBytes memory(100000, Placement::offset(0));
    for (IirForm form : forms) {
        const auto taps = this->taps(form, 3);
        for (int n : {-1, form == IirForm::order ? -2 : 0, INT_MIN}) {
            int size = 77;
            EXPECT_EQ(tarnStsIIROrderErr, F::getStateSize(form, n, &size));
            EXPECT_EQ(77, size);
            EXPECT_EQ(tarnStsNullPtrErr, F::getStateSize(form, n, nullptr));
            EXPECT_EQ(tarnStsIIROrderErr, F::initAlloc(form, &result, taps.data(), n, nullptr));
            EXPECT_EQ(tarnStsIIROrderErr, F::init(form, &result, taps.data(), n, nullptr, memory.bytes()));
            EXPECT_EQ(tarnStsNullPtrErr, F::initAlloc(form, &result, nullptr, n, nullptr));
            EXPECT_EQ(tarnStsNullPtrErr, F::initAlloc(form, nullptr, taps.data(), n, nullptr));
            EXPECT_EQ(tarnStsNullPtrErr, F::init(form, &result, taps.data(), n, nullptr, nullptr));
            EXPECT_EQ(tarnStsNullPtrErr, F::init(form, &result, nullptr, n, nullptr, memory.bytes()));
            EXPECT_EQ(tarnStsNullPtrErr, F::init(form, nullptr, taps.data(), n, nullptr, memory.bytes()));
        }
        EXPECT_EQ(untouched, result);
        const IirOwner<F> own(form, taps);
        auto line = this->line(6);
        EXPECT_EQ(tarnStsNullPtrErr, F::setTaps(nullptr, own.get()));
        EXPECT_EQ(tarnStsNullPtrErr, F::setTaps(taps.data(), nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, F::getDlyLine(nullptr, line.data()));
        EXPECT_EQ(tarnStsNullPtrErr, F::getDlyLine(own.get(), nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, F::setDlyLine(nullptr, line.data()));
        EXPECT_EQ(tarnStsNullPtrErr, F::free(nullptr));
        const Tarn32u id = own->idCtx;
        for (Tarn32u other = 0x49493030; other <= 0x49493239; ++other) {
            if (other == F::State::orderId || other == F::State::biquadId)
                continue;
            own->idCtx = other;
            ASSERT_EQ(tarnStsContextMatchErr, F::setTaps(taps.data(), own.get()));
            ASSERT_EQ(tarnStsContextMatchErr, F::getDlyLine(own.get(), line.data()));
            ASSERT_EQ(tarnStsNullPtrErr, F::getDlyLine(own.get(), nullptr));
            ASSERT_EQ(tarnStsContextMatchErr, F::setDlyLine(own.get(), nullptr));
            ASSERT_EQ(tarnStsContextMatchErr, F::free(own.get()));
        }
        own->idCtx = id;
    }
}

// A leading denominator tap of zero, or none at all, and a leading numerator tap of a section.
TYPED_TEST(IirStateTest, RefusesToDivideByZero)
{
    using F = TypeParam;
    using G = typename F::Given;
    const auto expectRefusal = [&](IirForm form, const std::vector<G>& taps, int n) {
        typename F::State* state = nullptr;
        EXPECT_EQ(tarnStsDivByZeroErr, F::initAlloc(form, &state, taps.data(), n, nullptr));
        ASSERT_NE(nullptr, state);
        EXPECT_EQ(delayOf(form, n), state->dlyLen);
        EXPECT_EQ(tarnStsNoErr, F::free(state));
    };
    for (int n : {0, 1, 4}) {
        auto taps = this->taps(IirForm::order, n);
        const auto good = taps;
        taps[static_cast<std::size_t>(n) + 1] = G{};
        expectRefusal(IirForm::order, taps, n);
        if constexpr (!TestFixture::isInteger) {
            const IirOwner<F> state(IirForm::order, good);
            std::vector<typename F::Element> before(state->pTaps, state->pTaps + 2 * n + 1);
            EXPECT_EQ(tarnStsDivByZeroErr, F::setTaps(taps.data(), state.get()));
            EXPECT_TRUE(arraysMatch<typename F::Element>(before.data(), state->pTaps, before.size()));
            using P = IirPart<G>;
            const P noNumber = std::numeric_limits<P>::quiet_NaN();
            if constexpr (ComplexElement<G>)
                taps[static_cast<std::size_t>(n) + 1] = {noNumber, noNumber};
            else
                taps[static_cast<std::size_t>(n) + 1] = noNumber;
            expectRefusal(IirForm::order, taps, n);
        }
        taps = good;
        taps[0] = G{};
        const IirOwner<F> legal(IirForm::order, taps);
    }
    for (std::size_t section : {0, 1, 2}) {
        for (std::size_t tap : {0, 3}) {
            auto taps = this->taps(IirForm::biquads, 3);
            taps[6 * section + tap] = G{};
            expectRefusal(IirForm::biquads, taps, 3);
        }
    }
}

// Taps that are set later filter as those that a state was made with.
TYPED_TEST(IirStateTest, ReplacesTaps)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (IirForm form : forms) {
        const auto taps = this->taps(form, 3, 1);
        const auto others = this->taps(form, 3, 2);
        const IirOwner<F> state(form, taps);
        const IirOwner<F> fresh(form, others);
        const auto signal = randomValues<S>(200, 5, Values::unit);
        const TarnStatus status = F::setTaps(others.data(), state.get());
        if constexpr (TestFixture::isInteger) {
            EXPECT_EQ(tarnStsContextMatchErr, status);
            // The complex ones know the states of another family.
            if (ComplexElement<S>) {
                const Tarn32u own = state->idCtx;
                state->idCtx = form == IirForm::order ? 0x49493033 : 0x49493034;
                EXPECT_EQ(tarnStsContextMatchErr, F::setTaps(others.data(), state.get()));
                state->idCtx = own;
            }
        } else {
            EXPECT_EQ(tarnStsNoErr, status);
        }
        const auto expected = filterIirInCalls<F>(fresh.get(), signal, {70, 0});
        const auto out = filterIirInCalls<F>(state.get(), signal, {70, 0});
        EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size()));
    }
}

TEST(IirIntegerTapsTest, HaveAFactor)
{
    const std::vector<Tarn32s> integers = {24, -8, 16, 4};
    const std::vector<Tarn32f> floats = {6, -2, 4, 1};
    TarnsIIRState32s_16s* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsIIRInitAlloc32s_16s(&state, integers.data(), 1, 2, nullptr));
    EXPECT_EQ(1.5F, state->pTaps[0]);
    EXPECT_EQ(-0.5F, state->pTaps[1]);
    EXPECT_EQ(0.25F, state->pTaps[2]);
    // Only complex states of another kind would be left as they are.
    const std::vector<Tarn32s> others = {8, 8, 16, 16};
    EXPECT_EQ(tarnStsContextMatchErr, tarnsIIRSetTaps32s_16s(others.data(), state, 3));
    EXPECT_EQ(0.5F, state->pTaps[0]);
    EXPECT_EQ(tarnStsNoErr, tarnsIIRSetTaps32s_16s32f(floats.data(), state));
    EXPECT_EQ(1.5F, state->pTaps[0]);
    state->idCtx = TarnsIIRState32f_16s::orderId;
    EXPECT_EQ(tarnStsContextMatchErr, tarnsIIRSetTaps32s_16s(others.data(), state, 3));
    EXPECT_EQ(1.5F, state->pTaps[0]);
    state->idCtx = TarnsIIRState32s_16s::orderId;
    tarnsIIRFree32s_16s(state);

    TarnsIIRState32sc_16sc* own = nullptr;
    const std::vector<Tarn32sc> complexOnes = {{8, 8}, {8, 0}};
    const std::vector<Tarn32sc> complexOthers = {{16, 8}, {8, 0}};
    ASSERT_EQ(tarnStsNoErr, tarnsIIRInitAlloc32sc_16sc(&own, complexOnes.data(), 0, 0, nullptr));
    EXPECT_EQ(tarnStsContextMatchErr, tarnsIIRSetTaps32sc_16sc(complexOthers.data(), own, 0));
    EXPECT_EQ(1.0F, own->pTaps[0].re);
    tarnsIIRFree32sc_16sc(own);
}

TYPED_TEST(IirStateTest, ReportsLackOfMemory)
{
    using F = TypeParam;
    if (!canRefuseMemory)
        return;
    for (IirForm form : forms) {
        const auto taps = this->taps(form, 3);
        int size = 0;
        F::getStateSize(form, 3, &size);
        std::vector<Tarn8u> memory(static_cast<std::size_t>(size));
        for (int allowed = 0; allowed < (TestFixture::isInteger ? 2 : 1); ++allowed) {
            typename F::State* state = nullptr;
            TarnStatus status = tarnStsNoErr;
            int outstanding = -1;
            {
                MemoryWatch watch(allowed);
                status = F::initAlloc(form, &state, taps.data(), 3, nullptr);
                outstanding = watch.outstanding();
            }
            EXPECT_EQ(tarnStsNoMemErr, status);
            EXPECT_EQ(0, outstanding);
            EXPECT_EQ(nullptr, state);
        }
        typename F::State* state = nullptr;
        TarnStatus status = tarnStsNoErr;
        TarnStatus filtered = tarnStsNoErr;
        TarnStatus setStatus = tarnStsNoErr;
        std::vector<typename F::Sample> data(3000);
        {
            MemoryWatch watch(0);
            status = F::init(form, &state, taps.data(), 3, nullptr, memory.data());
            if (state != nullptr) {
                setStatus = F::setTaps(taps.data(), state);
                filtered = F::inPlace(data.data(), 3000, state, 0);
            }
        }
        EXPECT_EQ(TestFixture::isInteger ? tarnStsNoMemErr : tarnStsNoErr, status);
        EXPECT_EQ(tarnStsNoErr, filtered);
        EXPECT_EQ(tarnStsNoErr, setStatus);
    }
}

} // namespace
} // namespace tarn::test
