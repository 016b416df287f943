// IIR filters where they are hard pressed: poles beside the unit circle, high orders, decay into denormals, infinite
// samples, foreign rounding modes, and states in the hands of several threads.
#include "levels/recursive/psiir_state.h"
#include "support/fpstate.h"
#include "support/iir_stream.h"

#include <thread>

namespace tarn::test {
namespace {

// -- Poles beside the unit circle, and high orders --------------------------------------------------------------------

// Blocks and single samples are within the bound; and if they have to be, blocks are as good as single samples.
template <class F>
void expectWithinBound(IirForm form, const iir::Numbers& taps, int len, const char* what, bool alike = true)
{
    using S = typename F::Sample;
    const auto given = asTaps<typename F::Given>(taps);
    const auto filter = iir::filterOf(toNumbers(given), form == IirForm::order);
    const auto signal = randomValues<S>(static_cast<std::size_t>(len), 21, Values::unit);
    iir::Numbers line(iir::delayOf(filter));
    const auto exact = iir::run(filter, toNumbers(signal), line);
    constexpr iir::Wide epsilon = std::numeric_limits<IirPart<typename F::Element>>::epsilon();
    iir::Wide errors[2] = {};
    for (int cut : {1024, 0}) {
        const IirOwner<F> state(form, given);
        const bool looksAhead = cut > 0 && state->isSingly == 0;
        const auto out = filterIirInCalls<F>(state.get(), signal, {cut});
        EXPECT_TRUE(matchesIir(exact, out, iirBound(filter, toNumbers(signal), epsilon, looksAhead)))
            << what << ", cut to " << cut;
        for (std::size_t i = 0; i < out.size(); ++i)
            errors[cut > 0 ? 0 : 1] += std::norm(toNumber(out[i]) - exact[i]);
    }
    EXPECT_TRUE(!alike || errors[0] <= 100 * errors[1] + epsilon * epsilon) << what; // squares of the errors
}

// Beside the circle the rounding of the tables' weights moves the poles, which single samples know nothing of.
constexpr iir::Wide alikeUpTo = 0.99L;

template <class F>
void expectSoundAtTheCircle(const std::vector<iir::Wide>& radii)
{
    for (iir::Wide angle : {0.01L, 0.3L, 1.57L, 3.0L}) {
        for (iir::Wide r : radii) {
            const bool alike = r <= alikeUpTo;
            const iir::Numbers resonator = {1, -0.3L, 0.2L, 1, -2 * r * std::cos(angle), r * r};
            expectWithinBound<F>(IirForm::biquads, resonator, 1500, "resonator", alike);
            expectWithinBound<F>(IirForm::order, resonator, 1500, "resonator by order", alike);
            iir::Numbers two = resonator;
            for (iir::Number tap : {0.5L, 0.0L, -0.5L, 1.0L, -2 * r * std::cos(angle / 2), r * r})
                two.push_back(tap);
            expectWithinBound<F>(IirForm::biquads, two, 1100, "two resonators", alike);
        }
    }
}

TEST(IirHardTest, PolesMayLieBesideTheCircle)
{
    expectSoundAtTheCircle<IirTail32f>({0.9L, 0.99L, 0.999L});
    expectSoundAtTheCircle<IirTail64f>({0.99L, 0.9999L, 0.999999L});
    expectSoundAtTheCircle<IirTail64f_32f>({0.99L, 0.9999L});
}

TEST(IirHardTest, OrdersMayBeHigh)
{
    for (int order : {11, 16, 40}) {
        for (iir::Wide radius : {0.3L, 0.9L}) {
            expectWithinBound<IirTail32f>(IirForm::order, randomIirTaps(true, order, false, 5, radius), 600, "real");
            expectWithinBound<IirTail64f>(IirForm::order, randomIirTaps(true, order, false, 6, radius), 600, "real");
            expectWithinBound<IirTail64fc>(IirForm::order, randomIirTaps(true, order, true, 7, radius), 500, "complex");
        }
    }
    // A comb: the longest order whose blocks still go by the tables, and the shortest of which none does.
    for (int order : {255, 256}) {
        iir::Numbers comb(2 * static_cast<std::size_t>(order) + 2);
        comb[0] = comb[static_cast<std::size_t>(order) + 1] = 1;
        comb.back() = -0.5L;
        expectWithinBound<IirTail32f>(IirForm::order, comb, 1100, "comb");
    }
    iir::Numbers cascade;
    for (int s = 0; s < 40; ++s)
        for (iir::Number tap : randomIirTaps(false, 1, false, static_cast<std::uint64_t>(s) + 1, 0.5L))
            cascade.push_back(tap);
    expectWithinBound<IirTail64f>(IirForm::biquads, cascade, 700, "cascade");
}

// -- Denormals --------------------------------------------------------------------------------------------------------

enum class Decay { intoDenormals, toZero };

// A pulse, then silence, through the same filter, until its outputs are below the smallest normal number.
template <class F>
void expectDecay(IirForm form, const std::vector<typename F::Element>& taps, int cut, Decay expected)
{
    using T = typename F::Element;
    constexpr T smallest = std::numeric_limits<T>::min();
    std::vector<T> signal(std::is_same_v<T, Tarn32f> ? 1000 : 8000);
    signal[0] = 1;
    const IirOwner<F> state(form, taps);
    const FpState before = FpState::current();
    const auto out = filterIirInCalls<F>(state.get(), signal, {cut});
    EXPECT_EQ("", before.changesSince());
    std::vector<T> line(9);
    F::getDlyLine(state.get(), line.data());
    std::vector<T> all = out;
    all.insert(all.end(), line.begin(), line.end());
    const auto bits = [](T x) { // comparisons would take denormals for zeros, too
        std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t> word;
        std::memcpy(&word, &x, sizeof word);
        return word & ~(decltype(word){1} << (8 * sizeof word - 1));
    };
    const auto isDenormal = [&](T x) { return bits(x) != 0 && bits(x) < bits(smallest); };
    EXPECT_EQ(expected == Decay::intoDenormals, std::any_of(all.begin(), all.end(), isDenormal))
        << cut << ", " << taps.size() << " taps of " << sizeof(T);
    EXPECT_TRUE(std::any_of(out.begin(), out.end(), [&](T x) { return bits(x) >= bits(smallest); }));
    EXPECT_TRUE(bits(out.back()) < bits(smallest)) << cut << ", " << taps.size() << " taps of " << sizeof(T);
}

constexpr unsigned flushToZero = 0x8000;
constexpr unsigned denormalsAreZero = 0x40;

// The caller's MXCSR decides: by itself nothing is flushed, and with both bits set no road leaves a denormal.
TEST(IirHardTest, DecayGoesWhereMxcsrSays)
{
    const auto expectAll = [](Decay decay) {
        // Poles at 0.9 and less: sections, an order by its tables, and one that goes singly.
        for (int cut : {1024, 0, 7}) {
            expectDecay<IirTail32f>(IirForm::biquads, {1, 0.5F, 0.25F, 1, -0.6F, 0.81F}, cut, decay);
            expectDecay<IirTail32f>(IirForm::biquads, {1, 0.5F, 0.25F, 1, -0.6F, 0.81F, 1, 0.5F, 0.25F, 1, 0.3F, 0.64F},
                                    cut, decay);
            expectDecay<IirTail32f>(IirForm::order, {1, 0.5F, 0.25F, 1, -1.7F, 0.73F}, cut, decay);
            expectDecay<IirTail64f>(IirForm::biquads, {1, 0.5, 0.25, 1, -0.6, 0.81}, cut, decay);
            expectDecay<IirTail64f>(IirForm::order, {1, 0.5, 0.25, 0, 1, -0.5, 0.6, 0.1}, cut, decay);
        }
    };
    expectAll(Decay::intoDenormals);
    const MxcsrScope scope(readMxcsr() | flushToZero | denormalsAreZero);
    expectAll(Decay::toZero);
}

// -- Infinite samples -------------------------------------------------------------------------------------------------

// What comes out before the step of four that has the infinite sample in it is not touched; from that sample on nothing
// is finite, and other states are none the wiser.
TEST(IirHardTest, InfiniteSamplesStay)
{
    const std::vector<Tarn32f> taps = {1, 0.5F, 0.25F, 1, -0.5F, 0.25F};
    for (IirForm form : {IirForm::order, IirForm::biquads}) {
        for (std::size_t at : {40, 41, 42, 43}) {
            const IirOwner<IirTail32f> state(form, taps);
            const IirOwner<IirTail32f> finite(form, taps);
            std::vector<Tarn32f> data(100, 1);
            auto expected = data;
            data[at] = std::numeric_limits<Tarn32f>::infinity();
            IirTail32f::inPlace(data.data(), 100, state.get());
            IirTail32f::inPlace(expected.data(), 100, finite.get());
            EXPECT_TRUE(arraysMatch<Tarn32f>(expected.data(), data.data(), at - 3));
            EXPECT_FALSE(std::any_of(data.begin() + static_cast<std::ptrdiff_t>(at), data.end(),
                                     [](Tarn32f y) { return std::isfinite(y); }));
            for (int cut : {0}) {
                IirTail32f::setDlyLine(state.get(), nullptr);
                std::vector<Tarn32f> signal(100, 1);
                signal[at] = std::numeric_limits<Tarn32f>::infinity();
                const auto singly = filterIirInCalls<IirTail32f>(state.get(), signal, {cut});
                EXPECT_TRUE(std::isfinite(singly[at - 1]) && std::isinf(singly[at]));
            }
        }
    }
}

// -- Rounding modes ---------------------------------------------------------------------------------------------------

template <class F>
void expectNearestAlways()
{
    using S = typename F::Sample;
    const auto signal = randomValues<S>(1100, 12, Values::unit);
    for (IirForm form : {IirForm::order, IirForm::biquads}) {
        for (int n : {1, 3}) {
            const auto taps = asTaps<typename F::Given>(randomIirTaps(form == IirForm::order, n, ComplexElement<S>, 4));
            std::vector<S> expected;
            for (RoundingMode mode : allRoundingModes) {
                const IirOwner<F> state(form, taps);
                const RoundingModeScope scope(mode);
                const FpState before = FpState::current();
                const auto out = filterIirInCalls<F>(state.get(), signal, {1030, 0, 9, 0, 40}, 2);
                EXPECT_EQ("", before.changesSince());
                if (mode == RoundingMode::nearest)
                    expected = out;
                EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size())) << n;
            }
        }
    }
}

TEST(IirHardTest, IntegersAreRoundedToTheNearestInAnyMode)
{
    expectNearestAlways<IirTail32f_16s>();
    expectNearestAlways<IirTail32fc_16sc>();
    expectNearestAlways<IirTail64f_32s>();
    expectNearestAlways<IirTail64f_16s>();
    expectNearestAlways<IirTail64fc_32sc>();
}

// -- Threads ----------------------------------------------------------------------------------------------------------

// One state a thread: each gives what it gives alone.
template <class F>
void expectIndependentStates()
{
    using S = typename F::Sample;
    constexpr std::size_t threads = 4;
    const auto run = [](std::size_t i) {
        const auto seed = static_cast<std::uint64_t>(i);
        const IirForm form = i % 2 == 0 ? IirForm::order : IirForm::biquads;
        const IirOwner<F> state(
            form, asTaps<typename F::Given>(randomIirTaps(form == IirForm::order, 3, ComplexElement<S>, seed + 1)));
        std::vector<S> all;
        for (std::uint64_t round = 0; round < 20; ++round) {
            const auto signal = randomValues<S>(900, seed + round, Values::unit);
            const auto out = filterIirInCalls<F>(state.get(), signal, {700, 0, 13});
            all.insert(all.end(), out.begin(), out.end());
        }
        return all;
    };
    std::vector<std::vector<S>> alone(threads), together(threads);
    for (std::size_t i = 0; i < threads; ++i)
        alone[i] = run(i);
    std::vector<std::thread> crew;
    for (std::size_t i = 0; i < threads; ++i)
        crew.emplace_back([&, i] { together[i] = run(i); });
    for (std::thread& member : crew)
        member.join();
    for (std::size_t i = 0; i < threads; ++i)
        EXPECT_TRUE(arraysMatch<S>(alone[i].data(), together[i].data(), alone[i].size())) << i;
}

TEST(IirHardTest, ThreadsHaveStatesOfTheirOwn)
{
    expectIndependentStates<IirTail32f>();
    expectIndependentStates<IirTail64f_16s>();
    expectIndependentStates<IirTail32sc_16sc>();
}

} // namespace
} // namespace tarn::test
