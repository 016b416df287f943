// FIR filters, at one rate and at two: states of the library's and in our memory.
#include "fuzz/states/filter.h"
#include "fuzz/states/targets.h"
#include "support/fir_tails.h"

#include <type_traits>

namespace tarn::test::fuzz {
namespace {

struct Parameters {
    int tapsLen = 1;
    int tapsFactor = 0;
    int scaleFactor = 0;
    int up = 1, upPhase = 0, down = 1, downPhase = 0;
    bool rates = false;
    bool ours = false; ///< in memory of ours, where there are no transforms
    bool withLine = false;

    int delay() const { return up < 1 ? 0 : (tapsLen + up - 1) / up; }
};

// The calls of a tail at two rates, beside those at one.
#define FIR_RATES(Name, Tail, TAIL)                                     \
    struct Name : Tail {                                                \
        static constexpr auto makeRates = tarnsFIRMRInitAlloc##TAIL;    \
        static constexpr auto placeRates = tarnsFIRMRInit##TAIL;        \
        static constexpr auto ratesSize = tarnsFIRMRGetStateSize##TAIL; \
    }
FIR_RATES(Fir_32f, FirTail32f, _32f);
FIR_RATES(Fir_32fc, FirTail32fc, _32fc);
FIR_RATES(Fir_64f, FirTail64f, _64f);
FIR_RATES(Fir64fc_32fc, FirTail64fc_32fc, 64fc_32fc);
FIR_RATES(Fir32f_16s, FirTail32f_16s, 32f_16s);
FIR_RATES(Fir32s_16s, FirTail32s_16s, 32s_16s);

// Integer taps have a factor behind their number.
template <class Make, class State, class Tap, class... Behind>
TarnStatus makeWith(Make make, State** state, const std::vector<Tap>& taps, const Parameters& p, Behind... behind)
{
    if constexpr (std::is_invocable_v<Make, State**, const Tap*, int, Behind...>)
        return make(state, taps.data(), p.tapsLen, behind...);
    else
        return make(state, taps.data(), p.tapsLen, p.tapsFactor, behind...);
}

template <class F>
class Filter : public FilterMachine<F, typename F::Sample> {
public:
    using Sample = typename F::Sample;
    using Tap = typename F::Tap;

    Filter(const std::vector<Tap>& taps, const std::vector<Sample>& line, const Parameters& parameters)
        : FilterMachine<F, Sample>(parameters.scaleFactor, parameters.delay()), p(parameters)
    {
        const Sample* const given = p.withLine ? line.data() : nullptr;
        const auto size = [&](int* bytes) {
            return p.rates ? F::ratesSize(p.tapsLen, p.up, p.down, bytes) : F::getStateSize(p.tapsLen, bytes);
        };
        const auto place = [&](Tarn8u* memory) {
            return p.rates
                       ? makeWith(F::placeRates, &state, taps, p, p.up, p.upPhase, p.down, p.downPhase, given, memory)
                       : makeWith(F::init, &state, taps, p, given, memory);
        };
        TarnStatus status = tarnStsNoErr;
        if (p.ours)
            status = this->makeInOurs(size, place);
        else if (p.rates)
            status = makeWith(F::makeRates, &state, taps, p, p.up, p.upPhase, p.down, p.downPhase, given);
        else
            status = makeWith(F::initAlloc, &state, taps, p, given);
        require((status < 0) == (state == nullptr), "a status does not tell whether there is a state");
    }

    bool made() const { return state != nullptr; }
    bool inPlace(void* sourceDestination, int units) override
    {
        // Parts of a block in place begin behind the outputs of the part before.
        return !(p.rates && p.down > 1 && units > 4096) && FilterMachine<F, Sample>::inPlace(sourceDestination, units);
    }
    bool single(const void* source, void* destination) override
    {
        return !p.rates && FilterMachine<F, Sample>::single(source, destination);
    }
    void look(Bytes&) override
    {
        std::vector<Tap> taps(static_cast<std::size_t>(p.tapsLen));
        if constexpr (std::is_same_v<Tap, Tarn32s>) {
            int factor = 0;
            require(F::getTaps(state, taps.data(), &factor) == tarnStsNoErr, "taps are not given");
            // The largest integer is shifted once more when it is set again.
            if (std::any_of(taps.begin(), taps.end(), [](Tarn32s tap) { return tap > 32766 || tap < -32766; }))
                return;
            require(F::setTaps(taps.data(), state, factor) == tarnStsNoErr, "taps are refused");
        } else {
            require(F::getTaps(state, taps.data()) == tarnStsNoErr, "taps are not given");
            require(F::setTaps(taps.data(), state) == tarnStsNoErr, "taps are refused");
        }
    }

private:
    using FilterMachine<F, Sample>::state;

    const Parameters p;
};

template <class F>
class Filters : public Family {
public:
    using Sample = typename F::Sample;

    Filters(Bytes& bytes, Parameters parameters, digest::Element tapElement, digest::Element sampleElement)
        : p(parameters)
    {
        source = result = sampleElement;
        sourcesAUnit = static_cast<std::size_t>(std::max(p.down, 1));
        resultsAUnit = static_cast<std::size_t>(std::max(p.up, 1));
        tame = bytes.byte() % 4 != 0;
        const bool integer = sampleElement.real == digest::Real::s16;
        const bool integerTaps = tapElement.real == digest::Real::s32;
        // The direct road adds in one order wherever a signal is cut, single samples in another; and the last outputs
        // of a multi-rate call are rounded in another way.
        cutsAnywhere = tame && (p.ours || integerTaps || p.tapsLen < 16) && !(p.rates && integer);
        singlesToo = false;
        Random random = bytes.random();
        taps.resize(static_cast<std::size_t>(std::max(p.tapsLen, 0)));
        line.resize(static_cast<std::size_t>(std::max(p.tapsLen, 0)));
        const Values kind = tame ? Values::unit : Values::mixed;
        digest::fill(reinterpret_cast<std::byte*>(taps.data()), tapElement, taps.size(), random, kind);
        digest::fill(reinterpret_cast<std::byte*>(line.data()), sampleElement, line.size(), random, kind);
    }
    std::unique_ptr<Machine> make() override
    {
        auto filter = std::make_unique<Filter<F>>(taps, line, p);
        return filter->made() ? std::move(filter) : nullptr;
    }

private:
    const Parameters p;
    std::vector<typename F::Tap> taps;
    std::vector<Sample> line;
};

template <class F>
void drive(Bytes& bytes, const Parameters& p, digest::Element taps, digest::Element samples)
{
    Filters<F> filters(bytes, p, taps, samples);
    driveStream(filters, bytes);
}

void driveType(Bytes& bytes, const Parameters& p)
{
    using digest::Real;
    switch (bytes.byte() % 6) {
    case 0:
        return drive<Fir_32f>(bytes, p, {Real::f32, 1}, {Real::f32, 1});
    case 1:
        return drive<Fir_32fc>(bytes, p, {Real::f32, 2}, {Real::f32, 2});
    case 2:
        return drive<Fir_64f>(bytes, p, {Real::f64, 1}, {Real::f64, 1});
    case 3:
        return drive<Fir64fc_32fc>(bytes, p, {Real::f64, 2}, {Real::f32, 2});
    case 4:
        return drive<Fir32f_16s>(bytes, p, {Real::f32, 1}, {Real::s16, 1});
    default:
        return drive<Fir32s_16s>(bytes, p, {Real::s32, 1}, {Real::s16, 1});
    }
}

Parameters parameters(Bytes& bytes)
{
    Parameters p;
    p.tapsLen = bytes.byte() % 16 == 0 ? bytes.between(-1, 0) : bytes.between(1, bytes.byte() % 4 == 0 ? 300 : 24);
    p.tapsFactor = bytes.between(-20, 4);
    p.scaleFactor = bytes.between(-6, 20);
    p.ours = bytes.flag();
    p.withLine = bytes.flag();
    return p;
}

} // namespace

void driveFir(Bytes& bytes)
{
    const Parameters p = parameters(bytes);
    driveType(bytes, p);
}

void driveFirRates(Bytes& bytes)
{
    Parameters p = parameters(bytes);
    p.rates = true;
    p.up = bytes.between(0, 7);
    p.down = bytes.between(0, 7);
    p.upPhase = bytes.byte() % 16 == 0 ? -1 : bytes.between(0, std::max(p.up - 1, 0));
    p.downPhase = bytes.byte() % 16 == 0 ? p.down : bytes.between(0, std::max(p.down - 1, 0));
    if (p.up < 1 || p.down < 1) // refused before a line is looked at
        p.withLine = false;
    driveType(bytes, p);
}

} // namespace tarn::test::fuzz
