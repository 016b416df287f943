// What looking ahead does to rounding: classic designs of orders 1 to 16, by blocks and by single samples.
#include "levels/recursive/psiir_state.h"
#include "model/iir_designs.h"
#include "support/iir_stream.h"

namespace tarn::test {
namespace {

constexpr int samples = 1200;

struct Errors {
    iir::Wide blocks, singly;
    bool isSingly;
};

template <class F>
Errors errorsOf(const iir::Numbers& taps)
{
    using S = typename F::Sample;
    const auto given = asTaps<typename F::Given>(taps);
    const auto filter = iir::filterOf(toNumbers(given), true);
    const auto signal = randomValues<S>(samples, 11, Values::unit);
    iir::Numbers line(iir::delayOf(filter));
    const auto exact = iir::run(filter, toNumbers(signal), line);
    const auto error = [&](const std::vector<S>& out) {
        iir::Wide sum = 0;
        for (std::size_t i = 0; i < out.size(); ++i)
            sum += std::norm(toNumber(out[i]) - exact[i]);
        return std::sqrt(sum / samples);
    };
    const IirOwner<F> state(IirForm::order, given);
    const auto blocks = filterIirInCalls<F>(state.get(), signal, {1024});
    F::setDlyLine(state.get(), nullptr);
    const auto singly = filterIirInCalls<F>(state.get(), signal, {0});
    EXPECT_TRUE(state->isSingly == 0 || arraysMatch<S>(singly.data(), blocks.data(), blocks.size()));
    return {error(blocks), error(singly), state->isSingly != 0};
}

template <class F>
void expectSoundBlocks()
{
    using P = IirPart<typename F::Element>;
    constexpr auto epsilon = static_cast<iir::Wide>(std::numeric_limits<P>::epsilon());
    int byTables = 0;
    int singly = 0;
    for (iir::Design design : {iir::Design::butterworth, iir::Design::chebyshev, iir::Design::elliptic}) {
        for (int order = 1; order <= 16; ++order) {
            for (iir::Wide edge : {0.1L, 0.2L, 0.35L, 0.5L}) {
                const Errors e = errorsOf<F>(iir::lowpass(design, order, edge));
                // Designs that are lost even to single samples, their coefficients being rounded, prove nothing.
                if (!(e.singly < 1))
                    continue;
                EXPECT_LE(e.blocks, 10 * std::max(e.singly, epsilon / 16))
                    << iir::nameOf(design) << " of order " << order << ", edge " << static_cast<double>(edge);
                (e.isSingly ? singly : byTables) += 1;
            }
        }
    }
    // Both roads are taken, each by many designs.
    EXPECT_LT(40, byTables);
    EXPECT_LT(40, singly);
}

TEST(IirDesignsTest, BlocksAreAsGoodAsSamplesInSinglePrecision) { expectSoundBlocks<IirTail32f>(); }
TEST(IirDesignsTest, BlocksAreAsGoodAsSamplesInDoublePrecision) { expectSoundBlocks<IirTail64f>(); }

// A low order goes by the tables, a high one with its edge low does not; sections of any design do.
TEST(IirDesignsTest, KnowsFromTheTapsWhichRoadIsSound)
{
    const auto road = [](iir::Design design, int order, iir::Wide edge) {
        const auto taps = asTaps<Tarn32f>(iir::lowpass(design, order, edge));
        const IirOwner<IirTail32f> state(IirForm::order, taps);
        return state->isSingly;
    };
    EXPECT_EQ(0, road(iir::Design::butterworth, 4, 0.2L));
    EXPECT_EQ(0, road(iir::Design::butterworth, 8, 0.5L));
    EXPECT_EQ(1, road(iir::Design::butterworth, 12, 0.2L));
    EXPECT_EQ(1, road(iir::Design::elliptic, 9, 0.2L));
    EXPECT_EQ(1, road(iir::Design::chebyshev, 12, 0.5L));

    // Set anew, the taps decide anew.
    const auto low = asTaps<Tarn32f>(iir::lowpass(iir::Design::butterworth, 8, 0.5L));
    const auto high = asTaps<Tarn32f>(iir::lowpass(iir::Design::elliptic, 8, 0.1L));
    const IirOwner<IirTail32f> state(IirForm::order, low);
    IirTail32f::setTaps(high.data(), state.get());
    EXPECT_EQ(1, state->isSingly);
    IirTail32f::setTaps(low.data(), state.get());
    EXPECT_EQ(0, state->isSingly);
}

} // namespace
} // namespace tarn::test
