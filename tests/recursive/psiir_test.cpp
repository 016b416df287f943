// IIR filters against their definition: blocks and single samples, all tails, both forms.
#include "levels/recursive/psiir_state.h"
#include "support/iir_stream.h"

#include <climits>

namespace tarn::test {
namespace {

template <class F>
class IirTest : public ::testing::Test {
protected:
    using Given = typename F::Given;
    using E = typename F::Element;
    using S = typename F::Sample;
    static constexpr bool isComplexFilter = ComplexElement<S>;
    static constexpr iir::Wide epsilon = std::numeric_limits<IirPart<E>>::epsilon();
    static constexpr int scale = F::scaled ? 1 : 0;

    static std::vector<Given> taps(IirForm form, int n, std::uint64_t seed = 1)
    {
        return asTaps<Given>(randomIirTaps(form == IirForm::order, n, isComplexFilter, seed));
    }
    static std::vector<S> signal(int len, std::uint64_t seed = 2)
    {
        return randomValues<S>(static_cast<std::size_t>(len), seed, Values::unit);
    }
};

using AllTails =
    ::testing::Types<IirTail32f, IirTail32fc, IirTail32f_16s, IirTail32fc_16sc, IirTail32s_16s, IirTail32sc_16sc,
                     IirTail32s_16s32f, IirTail32sc_16sc32fc, IirTail64f, IirTail64fc, IirTail64f_32f, IirTail64fc_32fc,
                     IirTail64f_32s, IirTail64fc_32sc, IirTail64f_16s, IirTail64fc_16sc>;
TYPED_TEST_SUITE(IirTest, AllTails);

struct Case {
    IirForm form;
    int n;
};
const std::vector<Case> cases = {{IirForm::order, 0},   {IirForm::order, 1},   {IirForm::order, 2},
                                 {IirForm::order, 3},   {IirForm::order, 4},   {IirForm::order, 5},
                                 {IirForm::order, 9},   {IirForm::biquads, 1}, {IirForm::biquads, 2},
                                 {IirForm::biquads, 4}, {IirForm::biquads, 5}};

// However a signal is cut, outputs and the delay line are those of the definition.
TYPED_TEST(IirTest, FiltersBlocksAndSamples)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (const Case& c : cases) {
        const auto given = this->taps(c.form, c.n, static_cast<std::uint64_t>(c.n) + 5);
        const auto filter = iir::filterOf(toNumbers(given), c.form == IirForm::order);
        const auto signal = this->signal(420);
        const auto line =
            asTaps<typename F::Element>(toNumbers(this->signal(static_cast<int>(iir::delayOf(filter)), 3)), 1);
        iir::Numbers lines = toNumbers(line);
        const auto exact = iir::run(filter, toNumbers(signal), lines);
        const iir::Wide bound = iirBound(filter, toNumbers(signal), this->epsilon) + this->epsilon;
        const int few = 4 * std::max(c.n, 1);
        const std::vector<std::vector<int>> cuts = {
            {420}, {0}, {few, few + 1, few + 2, few + 3, few + 4}, {1, 2, 3, 0, 50}, {few + 5, 7, few + 7}};
        for (const auto& cut : cuts) {
            const IirOwner<F> state(c.form, given, line.data());
            EXPECT_TRUE(c.n > 4 || state->isSingly == 0) << c.n;
            const auto out = filterIirInCalls<F>(state.get(), signal, cut, this->scale);
            EXPECT_TRUE(matchesIir(exact, out, bound, this->scale))
                << c.n << (c.form == IirForm::order ? " order" : " sections") << ", cut to " << cut[0];
            std::vector<typename F::Element> left(lines.size() + 1);
            EXPECT_EQ(tarnStsNoErr, F::getDlyLine(state.get(), left.data()));
            left.pop_back();
            EXPECT_TRUE(matchesIir(lines, left, 8 * bound)) << c.n << ", cut to " << cut[0];

            if (cut.size() == 1 && cut[0] > 0) {
                F::setDlyLine(state.get(), line.data());
                auto inPlace = signal;
                EXPECT_EQ(tarnStsNoErr, F::inPlace(inPlace.data(), 420, state.get(), this->scale));
                EXPECT_TRUE(arraysMatch<S>(out.data(), inPlace.data(), out.size())) << c.n << ", in place";
            }
        }
    }
}

// Whole numbers that no road rounds: bits are compared, ties and bounds included. The poles lie on the unit circle.
/// Results times 2^-scale, to the nearest even integer and limited.
template <class S>
std::vector<S> scaledSamples(const iir::Numbers& results, int scale)
{
    using P = IirPart<S>;
    const auto part = [=](iir::Wide v) {
        const iir::Wide scaled = std::nearbyint(std::ldexp(v, -scale));
        return static_cast<P>(
            std::clamp<iir::Wide>(scaled, std::numeric_limits<P>::lowest(), std::numeric_limits<P>::max()));
    };
    std::vector<S> samples;
    for (iir::Number y : results) {
        if constexpr (ComplexElement<S>)
            samples.push_back({part(y.real()), part(y.imag())});
        else
            samples.push_back(part(y.real()));
    }
    return samples;
}

TYPED_TEST(IirTest, RoundsToEvenAndSaturates)
{
    using F = TypeParam;
    using S = typename F::Sample;
    using P = IirPart<S>;
    if constexpr (F::scaled) {
        const std::vector<iir::Numbers> designs = {{3},
                                                   {1, 2, 1, -1},                          // a sum
                                                   {1, -2, 1, 1, 0, 1},                    // rings at a quarter
                                                   {2, 0, 1, 1, 1, 1, 1, 1},               // all three of a fourth
                                                   {1, 0, 0, 0, 2, 1, 1, 0, 0, 0, 0, -1}}; // a comb
        for (iir::Numbers design : designs) {
            if (design.size() == 1)
                design = {3, 1};
            const auto filter = iir::filterOf(design, true);
            const auto given = asTaps<typename F::Given>(design, 1);
            Random random(7);
            std::vector<S> signal(300);
            for (S& x : signal) {
                const auto number = [&] { return static_cast<P>(static_cast<int>(random.below(401)) - 200); };
                if constexpr (ComplexElement<S>)
                    x = {number(), number()};
                else
                    x = number();
            }
            iir::Numbers lines(iir::delayOf(filter));
            const auto exact = iir::run(filter, toNumbers(signal), lines);
            for (int scale : {0, 1, 3, -1, -5, -9, -22, 20, 40}) {
                const std::vector<S> expected = scaledSamples<S>(exact, scale);
                for (const auto& cut : std::vector<std::vector<int>>{{300}, {0}, {21, 5, 0}}) {
                    const IirOwner<F> state(IirForm::order, given);
                    const auto out = filterIirInCalls<F>(state.get(), signal, cut, scale);
                    EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size()))
                        << design.size() << " taps, scale " << scale << ", cut to " << cut[0];
                }
            }
        }
    }
}

// In blocks of an order, of a section and of two, and by single samples, all of which change nothing but the scale.
// Single precision takes the low seven bits of a factor's magnitude.
TYPED_TEST(IirTest, TakesAnyScaleFactor)
{
    using F = TypeParam;
    using S = typename F::Sample;
    if constexpr (F::scaled) {
        const auto signal = randomValues<S>(43, 3, Values::mixed);
        for (int factor : {31,      32,  62,  63,  64,   65,   100,  126,  127,  128,  129,   255,         300,    1100,
                           INT_MAX, -31, -63, -64, -100, -126, -127, -128, -129, -258, -1100, INT_MIN + 1, INT_MIN}) {
            long long size = std::abs(static_cast<long long>(factor));
            size = std::is_same_v<IirPart<typename F::Element>, Tarn32f> ? size & 127 : std::min(size, 5000LL);
            const auto expected = scaledSamples<S>(toNumbers(signal), static_cast<int>(factor < 0 ? -size : size));
            for (int sections : {0, 1, 2}) {
                const iir::Numbers design = sections == 0   ? iir::Numbers{1, 0, 1, 0}
                                            : sections == 1 ? iir::Numbers{1, 0, 0, 1, 0, 0}
                                                            : iir::Numbers{1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0};
                for (int cut : {43, 0}) {
                    const IirOwner<F> state(sections == 0 ? IirForm::order : IirForm::biquads,
                                            asTaps<typename F::Given>(design, 1));
                    const auto out = filterIirInCalls<F>(state.get(), signal, {cut}, factor);
                    EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), out.size()))
                        << sections << " sections, factor " << factor << ", cut to " << cut;
                }
            }
        }
    }
}

// A call is cut into chunks, each of which takes the road of blocks; and nothing around the arrays is touched.
TYPED_TEST(IirTest, FiltersLongCallsInChunks)
{
    using F = TypeParam;
    using S = typename F::Sample;
    for (const Case& c : {Case{IirForm::order, 3}, Case{IirForm::biquads, 2}}) {
        const auto given = this->taps(c.form, c.n);
        const auto signal = this->signal(3000);
        const IirOwner<F> whole(c.form, given);
        GuardedArray<S> out(3000, Placement::atEnd());
        const GuardedArray<S> in(std::span<const S>(signal), Placement::atEnd());
        ASSERT_EQ(tarnStsNoErr, F::filter(in.data(), out.data(), 3000, whole.get(), 0));
        const IirOwner<F> parts(c.form, given);
        const auto expected = filterIirInCalls<F>(parts.get(), signal, {1024});
        EXPECT_TRUE(arraysMatch<S>(expected.data(), out.data(), 3000));
    }
}

TYPED_TEST(IirTest, TakesArraysAtAnyAddress)
{
    using F = TypeParam;
    using S = typename F::Sample;
    const auto given = this->taps(IirForm::order, 5);
    const auto sections = this->taps(IirForm::biquads, 1);
    const auto signal = this->signal(61);
    for (IirForm form : {IirForm::order, IirForm::biquads}) {
        std::vector<S> expected;
        for (unsigned offset = 0; offset<16; offset += alignof(S)> 1 ? static_cast<unsigned>(alignof(S)) / 2 : 1) {
            const IirOwner<F> state(form, form == IirForm::order ? given : sections);
            const GuardedArray<S> in(std::span<const S>(signal), Placement::offset(offset));
            GuardedArray<S> out(signal.size(), Placement::offset((offset * 5) % 16));
            ASSERT_EQ(tarnStsNoErr, F::filter(in.data(), out.data(), 61, state.get(), 0));
            if (offset == 0)
                expected = out.copy();
            EXPECT_TRUE(arraysMatch(expected, out)) << offset;
        }
    }
}

TYPED_TEST(IirTest, ChecksPointersLengthAndKind)
{
    using F = TypeParam;
    using S = typename F::Sample;
    std::vector<S> data = this->signal(20);
    const auto before = data;
    const auto given = this->taps(IirForm::order, 2);
    const IirOwner<F> state(IirForm::order, given);
    auto* const s = state.get();
    S one{};
    for (int len : {0, -1, INT_MIN}) {
        EXPECT_EQ(tarnStsSizeErr, F::filter(data.data(), data.data(), len, s));
        EXPECT_EQ(tarnStsSizeErr, F::inPlace(data.data(), len, s));
        EXPECT_EQ(tarnStsNullPtrErr, F::filter(nullptr, data.data(), len, s));
        EXPECT_EQ(tarnStsNullPtrErr, F::filter(data.data(), nullptr, len, s));
        EXPECT_EQ(tarnStsNullPtrErr, F::filter(data.data(), data.data(), len, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, F::inPlace(nullptr, len, s));
        EXPECT_EQ(tarnStsNullPtrErr, F::inPlace(data.data(), len, nullptr));
    }
    EXPECT_EQ(tarnStsNullPtrErr, F::one(one, nullptr, s));
    EXPECT_EQ(tarnStsNullPtrErr, F::one(one, &one, nullptr));
    const Tarn32u own = s->idCtx;
    for (Tarn32u id = 0x49493030; id <= 0x49493239; ++id) {
        if (id == F::State::orderId || id == F::State::biquadId)
            continue;
        s->idCtx = id;
        ASSERT_EQ(tarnStsContextMatchErr, F::filter(data.data(), data.data(), 20, s));
        ASSERT_EQ(tarnStsContextMatchErr, F::inPlace(data.data(), 20, s));
        ASSERT_EQ(tarnStsSizeErr, F::inPlace(data.data(), 0, s));
        ASSERT_EQ(tarnStsContextMatchErr, F::one(one, &one, s));
    }
    s->idCtx = own;
    EXPECT_TRUE(arraysMatch<S>(before.data(), data.data(), data.size()));
}

// What is no number stays in the recursion; integers show the lowest value for it.
TEST(IirSpecialTest, PassesOnWhatIsNoNumber)
{
    const std::vector<Tarn32f> taps = {1, 0.5F, 0.25F, 1, -0.5F, 0.25F};
    for (IirForm form : {IirForm::order, IirForm::biquads}) {
        const IirOwner<IirTail32f> state(form, taps);
        std::vector<Tarn32f> data(40, 1);
        data[20] = std::numeric_limits<Tarn32f>::quiet_NaN();
        IirTail32f::inPlace(data.data(), 40, state.get());
        EXPECT_TRUE(std::isfinite(data[15]));
        EXPECT_TRUE(std::isnan(data[20]) && std::isnan(data[39]));
        EXPECT_EQ(tarnStsNoErr, IirTail32f::setDlyLine(state.get(), nullptr));
        EXPECT_EQ(tarnStsNoErr, IirTail32f::one(1, data.data(), state.get()));
        EXPECT_EQ(1.0F, data[0]);
    }
    std::vector<Tarn32f> noNumber = taps;
    noNumber[0] = std::numeric_limits<Tarn32f>::quiet_NaN();
    const IirOwner<IirTail32f_16s> state(IirForm::order, noNumber);
    std::vector<Tarn16s> samples(30, 5);
    IirTail32f_16s::inPlace(samples.data(), 30, state.get());
    EXPECT_EQ(std::vector<Tarn16s>(30, -32768), samples);
}

// The bounds do not reach into the recursion, and sections hand on what is not rounded.
TEST(IirSpecialTest, SaturatesOnlyWhatTheCallerSees)
{
    const std::vector<Tarn32f> sum = {1, 0, 1, -1}; // y[n] = x[n] + y[n-1]
    const IirOwner<IirTail32f_16s> state(IirForm::order, sum);
    const std::vector<Tarn16s> in = {30000, 30000, -30000, -30000, 7, 0, 0, 0, 0, 0};
    std::vector<Tarn16s> out(in.size());
    IirTail32f_16s::filter(in.data(), out.data(), 10, state.get(), 0);
    EXPECT_EQ((std::vector<Tarn16s>{30000, 32767, 30000, 0, 7, 7, 7, 7, 7, 7}), out);
    const std::vector<Tarn32f> sections = {0.25F, 0, 0, 1, 0, 0, 4, 0, 0, 1, 0, 0};
    for (int len : {3, 20}) {
        const IirOwner<IirTail32f_16s> cascade(IirForm::biquads, sections);
        std::vector<Tarn16s> ones(static_cast<std::size_t>(len), 1);
        IirTail32f_16s::inPlace(ones.data(), len, cascade.get(), 0);
        EXPECT_EQ(std::vector<Tarn16s>(static_cast<std::size_t>(len), 1), ones);
    }
}

} // namespace
} // namespace tarn::test
