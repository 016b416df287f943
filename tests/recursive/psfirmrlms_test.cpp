// Adaptive filters in fixed point: their steps against wide sums, states, checks.
#include "levels/recursive/pslms_state.h"
#include "model/lms.h"
#include "support/compare.h"
#include "support/hard_values.h"
#include "support/memory_watch.h"
#include "tarns/lms.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>

namespace tarn::test {
namespace {

using model::LmsNumber;

// -- The two families -------------------------------------------------------------------------------------------------

template <class StateType, class TapType, class SampleType>
struct Functions {
    using State = StateType;
    using T = TapType;
    using S = SampleType;
    TarnStatus (*initAlloc)(State**, const T*, int, const S*, int, int, int, int);
    TarnStatus (*free)(State*);
    TarnStatus (*setTaps)(State*, const T*);
    TarnStatus (*getTaps)(const State*, T*);
    TarnStatus (*getTapsPointer)(State*, T**);
    TarnStatus (*setDlyLine)(State*, const S*, int);
    TarnStatus (*getDlyLine)(const State*, S*, int*);
    TarnStatus (*getDlyVal)(const State*, S*, int);
    TarnStatus (*setMu)(State*, int);
    TarnStatus (*putVal)(S, State*);
    TarnStatus (*one)(T*, State*);
    TarnStatus (*oneVal)(S, T*, State*);
    TarnStatus (*updateTaps)(T, State*);
    Tarn32u id;
};

#define LMS_RATES_FAMILY(NAME, TAIL, T, S, ID)                     \
    struct NAME {                                                  \
        using F = Functions<TarnsFIRLMSMRState##TAIL, T, S>;       \
        static constexpr F f = {tarnsFIRLMSMRInitAlloc##TAIL,      \
                                tarnsFIRLMSMRFree##TAIL,           \
                                tarnsFIRLMSMRSetTaps##TAIL,        \
                                tarnsFIRLMSMRGetTaps##TAIL,        \
                                tarnsFIRLMSMRGetTapsPointer##TAIL, \
                                tarnsFIRLMSMRSetDlyLine##TAIL,     \
                                tarnsFIRLMSMRGetDlyLine##TAIL,     \
                                tarnsFIRLMSMRGetDlyVal##TAIL,      \
                                tarnsFIRLMSMRSetMu##TAIL,          \
                                tarnsFIRLMSMRPutVal##TAIL,         \
                                tarnsFIRLMSMROne##TAIL,            \
                                tarnsFIRLMSMROneVal##TAIL,         \
                                tarnsFIRLMSMRUpdateTaps##TAIL,     \
                                ID};                               \
    }
LMS_RATES_FAMILY(Reals, 32s_16s, Tarn32s, Tarn16s, 0x4C4D5352);
LMS_RATES_FAMILY(Complexes, 32sc_16sc, Tarn32sc, Tarn16sc, 0x4C4D5343);

template <class T>
LmsNumber asNumber(T x)
{
    if constexpr (ComplexElement<T>)
        return {static_cast<std::uint32_t>(Tarn32s{x.re}), static_cast<std::uint32_t>(Tarn32s{x.im})};
    else
        return {static_cast<std::uint32_t>(Tarn32s{x}), 0};
}
template <class T>
T fromNumber(LmsNumber x)
{
    if constexpr (ComplexElement<T>)
        return {static_cast<Tarn32s>(x.re), static_cast<Tarn32s>(x.im)};
    else
        return static_cast<T>(x.re);
}
template <class T>
std::vector<LmsNumber> asNumbers(const std::vector<T>& values)
{
    std::vector<LmsNumber> numbers;
    for (const T& value : values)
        numbers.push_back(asNumber(value));
    return numbers;
}
template <class T>
bool isSame(T a, T b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

struct Shape {
    int tapsLen, tapStep, updateDly, index;
    int dlyLen() const { return updateDly + tapsLen * tapStep; }
    std::string text() const
    {
        return std::to_string(tapsLen) + " taps, step " + std::to_string(tapStep) + ", lag " +
               std::to_string(updateDly);
    }
};

template <class Family>
class LmsRatesTest : public ::testing::Test {
protected:
    using State = typename Family::F::State;
    using T = typename Family::F::T;
    using S = typename Family::F::S;
    static constexpr auto& f = Family::f;
    static constexpr bool isComplex = ComplexElement<T>;

    struct Freeing {
        void operator()(State* state) const { EXPECT_EQ(tarnStsNoErr, f.free(state)); }
    };
    using Owner = std::unique_ptr<State, Freeing>;

    static Owner make(const Shape& shape, int mu, const std::vector<T>& taps = {}, const std::vector<S>& line = {})
    {
        State* state = nullptr;
        EXPECT_EQ(tarnStsNoErr,
                  f.initAlloc(&state, taps.empty() ? nullptr : taps.data(), shape.tapsLen,
                              line.empty() ? nullptr : line.data(), shape.index, shape.tapStep, shape.updateDly, mu));
        return Owner(state);
    }
    static std::vector<Shape> shapes()
    {
        std::vector<Shape> all;
        for (int tapsLen : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 40})
            for (int tapStep : {1, 2, 3, 5})
                for (int updateDly : {0, 1, 7})
                    all.push_back({tapsLen, tapStep, updateDly, (tapsLen + updateDly) / 2});
        return all;
    }
    static T randomTap(Random& random)
    {
        if constexpr (isComplex)
            return {static_cast<Tarn32s>(random.next()), static_cast<Tarn32s>(random.next())};
        else
            return static_cast<T>(random.next());
    }
    static void expectTaps(const State* state, const model::LmsRates& model, const std::string& where)
    {
        GuardedArray<T> taps(model.taps.size(), Placement::atEnd());
        ASSERT_EQ(tarnStsNoErr, f.getTaps(state, taps.data()));
        for (std::size_t k = 0; k < taps.size(); ++k)
            ASSERT_TRUE(isSame(fromNumber<T>(model.taps[k]), taps.get(k))) << where << ", tap " << k;
    }
    // A tap that stands for all steps; what runs through it is the same for any.
    static T error(Tarn32s re, Tarn32s im)
    {
        if constexpr (isComplex)
            return {re, im};
        else
            return re;
    }
};
using Families = ::testing::Types<Reals, Complexes>;
TYPED_TEST_SUITE(LmsRatesTest, Families);

// -- Steps ------------------------------------------------------------------------------------------------------------

TYPED_TEST(LmsRatesTest, FollowsTheRule)
{
    using S = typename TestFixture::S;
    using T = typename TestFixture::T;
    // Steps that fit 16 bits, that just do not, and those far beyond.
    const int steps[] = {1, 700, -32768, 32767, 32768, 65536, INT_MAX, INT_MIN, 0};
    Random random(1);
    for (const Shape& shape : TestFixture::shapes()) {
        const auto taps = randomValues<T>(static_cast<std::size_t>(shape.tapsLen), 1, Values::mixed);
        const auto line = randomValues<S>(static_cast<std::size_t>(shape.dlyLen()), 2, Values::mixed);
        const auto state = this->make(shape, 1, taps, line);
        model::LmsRates model(asNumbers(taps), {asNumbers(line), static_cast<std::size_t>(shape.index)}, shape.tapStep,
                              shape.updateDly);
        const auto src = randomValues<S>(40, 3, Values::mixed);
        for (std::size_t i = 0; i < src.size(); ++i) {
            const std::string where = shape.text() + ", sample " + std::to_string(i);
            T out{};
            if (i % 3 == 0) {
                ASSERT_EQ(tarnStsNoErr, this->f.oneVal(src[i], &out, state.get()));
                model.put(asNumber(src[i]));
            } else {
                ASSERT_EQ(tarnStsNoErr, this->f.putVal(src[i], state.get()));
                model.put(asNumber(src[i]));
                ASSERT_EQ(tarnStsNoErr, this->f.one(&out, state.get()));
            }
            ASSERT_TRUE(isSame(fromNumber<T>(model.output()), out)) << where;
            const int mu = steps[i % std::size(steps)];
            const T err = i % 2 == 0
                              ? this->error(static_cast<Tarn32s>(random.below(65536)) - 32768, 40 - static_cast<int>(i))
                              : this->randomTap(random);
            ASSERT_EQ(tarnStsNoErr, this->f.setMu(state.get(), mu));
            ASSERT_EQ(tarnStsNoErr, this->f.updateTaps(err, state.get()));
            model.update(asNumber(err), mu);
            ASSERT_NO_FATAL_FAILURE(this->expectTaps(state.get(), model, where));
            // Once more, without a sample: by the taps as they are now.
            ASSERT_EQ(tarnStsNoErr, this->f.one(&out, state.get()));
            ASSERT_TRUE(isSame(fromNumber<T>(model.output()), out)) << where;
        }
        std::vector<S> ring(line.size());
        int oldest = -1;
        ASSERT_EQ(tarnStsNoErr, this->f.getDlyLine(state.get(), ring.data(), &oldest));
        EXPECT_EQ(static_cast<int>(model.ring.oldest()), oldest);
        for (std::size_t i = 0; i < ring.size(); ++i)
            ASSERT_EQ(0, std::memcmp(&ring[i], &state->pDlyLine[i + ring.size()], sizeof(S))) << "the doubled line";
    }
}

// A window and a step of nothing but the lowest integers: the largest products there are, and the sums wrap.
TYPED_TEST(LmsRatesTest, WrapsAround)
{
    using S = typename TestFixture::S;
    using T = typename TestFixture::T;
    const T tap = this->error(INT_MIN, INT_MIN);
    S lowest{};
    std::memset(&lowest, 0, sizeof lowest);
    if constexpr (TestFixture::isComplex)
        lowest = {-32768, -32768};
    else
        lowest = -32768;
    for (int tapStep : {1, 2, 3}) {
        const Shape shape{21, tapStep, 2, 0};
        const std::vector<T> taps(21, tap);
        const std::vector<S> line(static_cast<std::size_t>(shape.dlyLen()), lowest);
        for (int size : {32767, 32768, 65536})
            for (int sign : {1, -1})
                for (int mixed : {1, -1}) {
                    const auto state = this->make(shape, 32768, taps, line);
                    model::LmsRates model(asNumbers(taps), {asNumbers(line), 0}, tapStep, 2);
                    T out{};
                    this->f.one(&out, state.get());
                    EXPECT_TRUE(isSame(fromNumber<T>(model.output()), out));
                    // 65535 32768 is the largest product that does not wrap.
                    const T err = this->error(size == 65536 ? 65535 * sign : size * sign, size / 2 * mixed);
                    this->f.updateTaps(err, state.get());
                    model.update(asNumber(err), 32768);
                    ASSERT_NO_FATAL_FAILURE(this->expectTaps(state.get(), model, std::to_string(size * sign)));
                }
    }
}

TEST(LmsRatesExampleTest, LagsBehindTheOutput)
{
    TarnsFIRLMSMRState32s_16s* state = nullptr;
    ASSERT_EQ(tarnStsNoErr, tarnsFIRLMSMRInitAlloc32s_16s(&state, nullptr, 2, nullptr, 0, 1, 3, 32768));
    for (Tarn16s x : {Tarn16s{100}, Tarn16s{20}, Tarn16s{3}, Tarn16s{4}, Tarn16s{5}})
        tarnsFIRLMSMRPutVal32s_16s(x, state);
    tarnsFIRLMSMRUpdateTaps32s_16s(7, state); // for the output when 20 was the newest sample
    Tarn32s taps[2];
    tarnsFIRLMSMRGetTaps32s_16s(state, taps);
    EXPECT_EQ(140, taps[0]);
    EXPECT_EQ(700, taps[1]);
    const Tarn32s coarse[] = {0x0002FFFF, -0x00030000 + 1}; // 2 and -3: the lower halves only gather steps
    tarnsFIRLMSMRSetTaps32s_16s(state, coarse);
    Tarn32s out = 0;
    tarnsFIRLMSMROne32s_16s(&out, state);
    EXPECT_EQ(2 * 5 - 3 * 4, out);
    tarnsFIRLMSMRFree32s_16s(state);
}

// No operation sets it; what it would do is kept.
TYPED_TEST(LmsRatesTest, ScalesStepsByTheShift)
{
    using S = typename TestFixture::S;
    using T = typename TestFixture::T;
    const Shape shape{19, 1, 1, 0};
    const auto taps = randomValues<T>(19, 1, Values::random);
    const auto line = randomValues<S>(20, 2, Values::random);
    for (int tapStep : {1, 2, 4}) {
        const Shape stepped{shape.tapsLen, tapStep, 1, 0};
        const auto longer = randomValues<S>(static_cast<std::size_t>(stepped.dlyLen()), 2, Values::random);
        for (int muShift : {1, 2, 5, 13, 14, 15, 16, 31})
            for (Tarn32s err : {0, 1, -1, 2, 3, 4, 5, 511, 512, 513, 65535, -65536, INT_MAX, INT_MIN, INT_MIN + 1})
                for (Tarn32s other : {0, -77777, INT_MIN}) {
                    const auto state = this->make(stepped, 3, taps, longer);
                    EXPECT_EQ(0, state->muShift);
                    state->muShift = muShift;
                    model::LmsRates model(asNumbers(taps), {asNumbers(longer), 0}, tapStep, 1);
                    for (int mu : {3, 1}) {
                        this->f.setMu(state.get(), mu);
                        this->f.updateTaps(this->error(err, other), state.get());
                        model.updateScaled(asNumber(this->error(err, other)), mu, muShift);
                    }
                    ASSERT_NO_FATAL_FAILURE(this->expectTaps(state.get(), model, std::to_string(muShift)))
                        << err << ", " << other;
                }
    }
}

TYPED_TEST(LmsRatesTest, Converges)
{
    using S = typename TestFixture::S;
    using T = typename TestFixture::T;
    const auto system = randomValues<T>(16, 1, Values::unit); // a sixteenth of 32 bits
    const auto src = randomValues<S>(20000, 2, Values::unit);
    const auto fixed = this->make({16, 1, 0, 0}, 0, system);
    const auto adapting = this->make({16, 1, 0, 0}, 32768);
    double late = 0, power = 0;
    for (std::size_t i = 0; i < src.size(); ++i) {
        T wanted{}, out{};
        this->f.oneVal(src[i], &wanted, fixed.get());
        this->f.oneVal(src[i], &out, adapting.get());
        LmsNumber err = asNumber(wanted);
        err.re -= asNumber(out).re;
        err.im -= asNumber(out).im;
        // So small that the product with mu fits.
        const auto re = static_cast<Tarn32s>(err.re) >> 12, im = static_cast<Tarn32s>(err.im) >> 12;
        this->f.updateTaps(this->error(re, im), adapting.get());
        if (i > 19000) {
            late += std::hypot(static_cast<Tarn32s>(err.re), static_cast<Tarn32s>(err.im));
            power += std::hypot(static_cast<Tarn32s>(asNumber(wanted).re), static_cast<Tarn32s>(asNumber(wanted).im));
        }
    }
    EXPECT_LT(late, 0.02 * power);
}

// -- States -----------------------------------------------------------------------------------------------------------

TYPED_TEST(LmsRatesTest, KeepsTapsAndLine)
{
    using S = typename TestFixture::S;
    using T = typename TestFixture::T;
    for (const Shape& shape : {Shape{1, 1, 0, 0}, Shape{5, 3, 2, 16}, Shape{8, 1, 4, 3}}) {
        const auto count = static_cast<std::size_t>(shape.tapsLen), len = static_cast<std::size_t>(shape.dlyLen());
        const auto taps = randomValues<T>(count, 1, Values::random);
        const auto line = randomValues<S>(len, 2, Values::random);
        const auto state = this->make(shape, -5, taps, line);
        EXPECT_EQ(this->f.id, state->idCtx);
        EXPECT_EQ(shape.dlyLen(), state->dlyLen);
        EXPECT_EQ(-5, state->mu);
        if (sizeof(void*) == 4) {
            EXPECT_EQ(40u, sizeof *state);
        }
        GuardedArray<T> back(count, Placement::atEnd());
        GuardedArray<S> backLine(len, Placement::atEnd());
        int index = -1;
        ASSERT_EQ(tarnStsNoErr, this->f.getTaps(state.get(), back.data()));
        EXPECT_TRUE(arraysMatch(taps, back));
        ASSERT_EQ(tarnStsNoErr, this->f.getDlyLine(state.get(), backLine.data(), &index));
        EXPECT_TRUE(arraysMatch(line, backLine));
        EXPECT_EQ(shape.index, index);
        T* own = nullptr;
        state->idCtx = 1; // not looked at
        ASSERT_EQ(tarnStsNoErr, this->f.getTapsPointer(state.get(), &own));
        state->idCtx = this->f.id;
        EXPECT_EQ(state->pTaps, own);
        for (std::size_t k = 0; k < count; ++k)
            ASSERT_TRUE(isSame(taps[count - 1 - k], own[k]));
        const auto others = randomValues<T>(count, 3, Values::random);
        const auto otherLine = randomValues<S>(len, 4, Values::random);
        ASSERT_EQ(tarnStsNoErr, this->f.setTaps(state.get(), others.data()));
        ASSERT_EQ(tarnStsNoErr, this->f.setDlyLine(state.get(), otherLine.data(), 0));
        this->f.getTaps(state.get(), back.data());
        this->f.getDlyLine(state.get(), backLine.data(), &index);
        EXPECT_TRUE(arraysMatch(others, back));
        EXPECT_TRUE(arraysMatch(otherLine, backLine));
        EXPECT_EQ(0, index);
        ASSERT_EQ(tarnStsNoErr, this->f.setTaps(state.get(), nullptr));
        ASSERT_EQ(tarnStsNoErr, this->f.setDlyLine(state.get(), nullptr, 0));
        this->f.getTaps(state.get(), back.data());
        this->f.getDlyLine(state.get(), backLine.data(), &index);
        EXPECT_TRUE(arraysMatch(std::vector<T>(count), back));
        EXPECT_TRUE(arraysMatch(std::vector<S>(len), backLine));
        const auto zeros = this->make(shape, 1);
        this->f.getTaps(zeros.get(), back.data());
        EXPECT_TRUE(arraysMatch(std::vector<T>(count), back));
    }
}

// Places behind the doubled line go on as the ring does, and no index that a caller sets leads out of it.
TYPED_TEST(LmsRatesTest, StaysInItsLine)
{
    using S = typename TestFixture::S;
    using T = typename TestFixture::T;
    const Shape shape{4, 3, 5, 0};
    const int len = shape.dlyLen();
    const auto line = randomValues<S>(static_cast<std::size_t>(len), 1, Values::random);
    const auto taps = randomValues<T>(4, 2, Values::random);
    const auto state = this->make(shape, 1, taps, line);
    for (int index : {0, 1, 7, len - 1, len, 3 * len + 2, -1, -len - 1, INT_MAX, INT_MIN}) {
        ASSERT_EQ(tarnStsNoErr, this->f.setDlyLine(state.get(), line.data(), index));
        const long long begin = ((index % len) + len) % len;
        for (int i = 0; i <= len; ++i) {
            S value{};
            ASSERT_EQ(tarnStsNoErr, this->f.getDlyVal(state.get(), &value, i));
            EXPECT_TRUE(isSame(line[static_cast<std::size_t>((begin + 5 + 3 + i - 1) % len)], value)) << i;
        }
        S untouched = line[0];
        const S before = untouched;
        for (int bad : {-1, len + 1, INT_MAX, INT_MIN})
            EXPECT_EQ(tarnStsBadArgErr, this->f.getDlyVal(state.get(), &untouched, bad));
        EXPECT_TRUE(isSame(before, untouched));
        T out{};
        model::LmsRates model(asNumbers(taps), {asNumbers(line), static_cast<std::size_t>(begin)}, 3, 5);
        ASSERT_EQ(tarnStsNoErr, this->f.one(&out, state.get()));
        EXPECT_TRUE(isSame(fromNumber<T>(model.output()), out));
        ASSERT_EQ(tarnStsNoErr, this->f.oneVal(line[3], &out, state.get()));
        model.put(asNumber(line[3]));
        EXPECT_TRUE(isSame(fromNumber<T>(model.output()), out));
    }
}

TYPED_TEST(LmsRatesTest, FreesWhatItHasMade)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns the memory";
    using State = typename TestFixture::State;
    for (int allowed = 0; allowed <= 3; ++allowed) {
        State* state = nullptr;
        TarnStatus made = tarnStsNoErr, freed = tarnStsNoErr;
        int outstanding = 0;
        {
            MemoryWatch watch(allowed);
            made = this->f.initAlloc(&state, nullptr, 100, nullptr, 0, 2, 1, 1);
            if (made == tarnStsNoErr)
                freed = this->f.free(state);
            outstanding = watch.outstanding();
        }
        EXPECT_EQ(allowed < 3 ? tarnStsNoMemErr : tarnStsNoErr, made);
        EXPECT_EQ(tarnStsNoErr, freed);
        EXPECT_EQ(0, outstanding) << allowed;
        if (made != tarnStsNoErr) {
            EXPECT_EQ(nullptr, state);
        }
    }
}

TYPED_TEST(LmsRatesTest, ChecksItsArguments)
{
    using State = typename TestFixture::State;
    using S = typename TestFixture::S;
    using T = typename TestFixture::T;
    auto& f = this->f;
    State* state = nullptr;
    for (int bad : {0, -1, INT_MIN}) {
        EXPECT_EQ(tarnStsSizeErr, f.initAlloc(&state, nullptr, bad, nullptr, 0, 1, 0, 1));
        EXPECT_EQ(tarnStsSizeErr, f.initAlloc(&state, nullptr, 1, nullptr, 0, bad, 0, 1));
        EXPECT_EQ(tarnStsSizeErr, f.initAlloc(&state, nullptr, bad, nullptr, 0, bad, 0, 1));
        EXPECT_EQ(tarnStsNullPtrErr, f.initAlloc(nullptr, nullptr, bad, nullptr, 0, 1, 0, 1));
    }
    EXPECT_EQ(tarnStsSizeErr, f.initAlloc(&state, nullptr, 3, nullptr, -1, 2, 1, 1));
    EXPECT_EQ(tarnStsSizeErr, f.initAlloc(&state, nullptr, 3, nullptr, 7, 2, 1, 1));
    EXPECT_EQ(tarnStsSizeErr, f.initAlloc(&state, nullptr, 3, nullptr, INT_MAX, 2, 1, 1));
    EXPECT_EQ(tarnStsSizeErr, f.initAlloc(&state, nullptr, 3, nullptr, 0, 2, -1, 1));
    // The length of the line beyond 32 bits.
    EXPECT_EQ(tarnStsNoMemErr, f.initAlloc(&state, nullptr, 65536, nullptr, 0, 262144, 5, 1));
    EXPECT_EQ(tarnStsNoMemErr, f.initAlloc(&state, nullptr, 65536, nullptr, 0, 65536, 5, 1));
    EXPECT_EQ(tarnStsNoMemErr, f.initAlloc(&state, nullptr, INT_MAX, nullptr, 0, INT_MAX, INT_MAX, 1));
    EXPECT_EQ(tarnStsNoMemErr, f.initAlloc(&state, nullptr, 1, nullptr, 0, 1, INT_MAX, 1));
    EXPECT_EQ(nullptr, state);
    EXPECT_EQ(tarnStsNoErr, f.free(nullptr));

    const auto owner = this->make({3, 2, 1, 6}, 1); // the last index that fits
    state = owner.get();
    T taps[3], out{};
    S line[7], value{};
    T* pointer = nullptr;
    int index = 9;
    // All calls that look at the state; nothing else is wrong but an index, which comes after it.
    const auto expectAll = [&](TarnStatus expected, State* bad) {
        EXPECT_EQ(expected, f.setTaps(bad, nullptr));
        EXPECT_EQ(expected, f.getTaps(bad, taps));
        EXPECT_EQ(expected, f.setDlyLine(bad, nullptr, 0));
        EXPECT_EQ(expected, f.getDlyLine(bad, line, &index));
        EXPECT_EQ(expected, f.getDlyVal(bad, &value, -1));
        EXPECT_EQ(expected, f.setMu(bad, 7));
        EXPECT_EQ(expected, f.putVal(value, bad));
        EXPECT_EQ(expected, f.one(&out, bad));
        EXPECT_EQ(expected, f.oneVal(value, &out, bad));
        EXPECT_EQ(expected, f.updateTaps(out, bad));
    };
    expectAll(tarnStsNullPtrErr, nullptr);
    EXPECT_EQ(tarnStsNullPtrErr, f.getTapsPointer(nullptr, &pointer));
    EXPECT_EQ(tarnStsNullPtrErr, f.getTapsPointer(state, nullptr));
    const Tarn32u others[] = {0, 0x4C4D5352, 0x4C4D5343, 0x4C4D5331, 0x004C4D53};
    for (Tarn32u id : others) {
        state->idCtx = id;
        // The other pointers come before the identifier.
        EXPECT_EQ(tarnStsNullPtrErr, f.getTaps(state, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, f.getDlyLine(state, nullptr, &index));
        EXPECT_EQ(tarnStsNullPtrErr, f.getDlyLine(state, line, nullptr));
        EXPECT_EQ(tarnStsNullPtrErr, f.getDlyVal(state, nullptr, -1));
        EXPECT_EQ(tarnStsNullPtrErr, f.one(nullptr, state));
        EXPECT_EQ(tarnStsNullPtrErr, f.oneVal(value, nullptr, state));
        if (id == f.id)
            continue;
        expectAll(tarnStsContextMatchErr, state);
        EXPECT_EQ(tarnStsContextMatchErr, f.free(state));
    }
    state->idCtx = f.id;
    EXPECT_EQ(9, index);
    EXPECT_EQ(1, state->mu);
    EXPECT_EQ(6, state->dlyLineIndex);
}

} // namespace
} // namespace tarn::test
