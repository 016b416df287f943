// FIR filters, at one rate and at two: states of the library's and in our memory.
#include "fuzz/states/stream.h"
#include "fuzz/states/targets.h"

#include <tarns.h>

#include <algorithm>
#include <vector>

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

    int delay() const { return (tapsLen + up - 1) / up; }
};

// The functions of one type under one name each; what their arguments differ in stands in the macros' own arguments.
#define FIR_FUNCTIONS(Name, TAIL, Taps_, Sample_, SCALED, IN_PLACE, FACTOR, SCALE)                                     \
    struct Name {                                                                                                      \
        using Taps = Taps_;                                                                                            \
        using Sample = Sample_;                                                                                        \
        using State = TarnsFIRState##TAIL;                                                                             \
        static TarnStatus make(State** state, const Taps* taps, const Sample* line, [[maybe_unused]] Parameters p)     \
        {                                                                                                              \
            return p.rates ? tarnsFIRMRInitAlloc##TAIL(state, taps, p.tapsLen FACTOR, p.up, p.upPhase, p.down,         \
                                                       p.downPhase, line)                                              \
                           : tarnsFIRInitAlloc##TAIL(state, taps, p.tapsLen FACTOR, line);                             \
        }                                                                                                              \
        static TarnStatus makeAt(State** state, const Taps* taps, const Sample* line, [[maybe_unused]] Parameters p,   \
                                 Tarn8u* memory)                                                                       \
        {                                                                                                              \
            return p.rates ? tarnsFIRMRInit##TAIL(state, taps, p.tapsLen FACTOR, p.up, p.upPhase, p.down, p.downPhase, \
                                                  line, memory)                                                        \
                           : tarnsFIRInit##TAIL(state, taps, p.tapsLen FACTOR, line, memory);                          \
        }                                                                                                              \
        static TarnStatus size(Parameters p, int* bytes)                                                               \
        {                                                                                                              \
            return p.rates ? tarnsFIRMRGetStateSize##TAIL(p.tapsLen, p.up, p.down, bytes)                              \
                           : tarnsFIRGetStateSize##TAIL(p.tapsLen, bytes);                                             \
        }                                                                                                              \
        static TarnStatus block(const Sample* x, Sample* y, int n, State* state, [[maybe_unused]] int scale)           \
        {                                                                                                              \
            return tarnsFIR##TAIL##SCALED(x, y, n, state SCALE);                                                       \
        }                                                                                                              \
        static TarnStatus inPlace(Sample* x, int n, State* state, [[maybe_unused]] int scale)                          \
        {                                                                                                              \
            return tarnsFIR##TAIL##IN_PLACE(x, n, state SCALE);                                                        \
        }                                                                                                              \
        static TarnStatus single(Sample x, Sample* y, State* state, [[maybe_unused]] int scale)                        \
        {                                                                                                              \
            return tarnsFIROne##TAIL##SCALED(x, y, state SCALE);                                                       \
        }                                                                                                              \
        static TarnStatus getLine(State* state, Sample* line) { return tarnsFIRGetDlyLine##TAIL(state, line); }        \
        static TarnStatus setLine(State* state, const Sample* line) { return tarnsFIRSetDlyLine##TAIL(state, line); }  \
        static TarnStatus free(State* state) { return tarnsFIRFree##TAIL(state); }

#define FIR_FLOAT_TAPS(TAIL)                                                                                      \
    static TarnStatus getTaps(State* state, Taps* taps, int*) { return tarnsFIRGetTaps##TAIL(state, taps); }      \
    static TarnStatus setTaps(const Taps* taps, State* state, int) { return tarnsFIRSetTaps##TAIL(taps, state); } \
    }
#define FIR_INTEGER_TAPS(TAIL)                                            \
    static TarnStatus getTaps(State* state, Taps* taps, int* factor)      \
    {                                                                     \
        return tarnsFIRGetTaps##TAIL(state, taps, factor);                \
    }                                                                     \
    static TarnStatus setTaps(const Taps* taps, State* state, int factor) \
    {                                                                     \
        return tarnsFIRSetTaps##TAIL(taps, state, factor);                \
    }                                                                     \
    }

#define NOTHING
#define FACTOR_ARGUMENT , p.tapsFactor
#define SCALE_ARGUMENT , scale
FIR_FUNCTIONS(Fir_32f, _32f, Tarn32f, Tarn32f, , _I, NOTHING, NOTHING)
FIR_FLOAT_TAPS(_32f);
FIR_FUNCTIONS(Fir_32fc, _32fc, Tarn32fc, Tarn32fc, , _I, NOTHING, NOTHING)
FIR_FLOAT_TAPS(_32fc);
FIR_FUNCTIONS(Fir_64f, _64f, Tarn64f, Tarn64f, , _I, NOTHING, NOTHING)
FIR_FLOAT_TAPS(_64f);
FIR_FUNCTIONS(Fir64fc_32fc, 64fc_32fc, Tarn64fc, Tarn32fc, , _I, NOTHING, NOTHING)
FIR_FLOAT_TAPS(64fc_32fc);
FIR_FUNCTIONS(Fir32f_16s, 32f_16s, Tarn32f, Tarn16s, _Sfs, _ISfs, NOTHING, SCALE_ARGUMENT)
FIR_FLOAT_TAPS(32f_16s);
FIR_FUNCTIONS(Fir32s_16s, 32s_16s, Tarn32s, Tarn16s, _Sfs, _ISfs, FACTOR_ARGUMENT, SCALE_ARGUMENT)
FIR_INTEGER_TAPS(32s_16s);

template <class F>
class Filter : public Machine {
public:
    using Sample = typename F::Sample;

    Filter(const std::vector<typename F::Taps>& taps, const std::vector<Sample>& line, Parameters parameters)
        : p(parameters)
    {
        const Sample* const given = p.withLine ? line.data() : nullptr;
        TarnStatus status = tarnStsNoErr;
        if (p.ours) {
            int bytes = 0;
            status = F::size(p, &bytes);
            if (status != tarnStsNoErr)
                return;
            memory = std::make_unique<GuardedBytes>(static_cast<std::size_t>(bytes), Placement::atEnd());
            status = F::makeAt(&state, taps.data(), given, p, memory->bytes());
        } else {
            status = F::make(&state, taps.data(), given, p);
        }
        require((status < 0) == (state == nullptr), "a status does not tell whether there is a state");
    }
    ~Filter() override
    {
        if (state != nullptr)
            require(F::free(state) == tarnStsNoErr, "a state is not freed");
        if (memory)
            requireWhole(*memory);
    }

    bool made() const { return state != nullptr; }
    void block(const void* source, void* destination, int units) override
    {
        require(F::block(static_cast<const Sample*>(source), static_cast<Sample*>(destination), units, state,
                         p.scaleFactor) == tarnStsNoErr,
                "a block is refused");
    }
    bool inPlace(void* sourceDestination, int units) override
    {
        // Parts of a block in place begin behind the outputs of the part before.
        if (p.rates && p.down > 1 && units > 4096)
            return false;
        require(F::inPlace(static_cast<Sample*>(sourceDestination), units, state, p.scaleFactor) == tarnStsNoErr,
                "a block in place is refused");
        return true;
    }
    bool single(const void* source, void* destination) override
    {
        if (p.rates)
            return false;
        Sample sample;
        std::copy_n(static_cast<const unsigned char*>(source), sizeof sample,
                    static_cast<unsigned char*>(static_cast<void*>(&sample)));
        require(F::single(sample, static_cast<Sample*>(destination), state, p.scaleFactor) == tarnStsNoErr,
                "a sample is refused");
        return true;
    }
    bool handOver(Machine& to) override
    {
        std::vector<Sample> line(static_cast<std::size_t>(p.delay()));
        require(F::getLine(state, line.data()) == tarnStsNoErr, "a delay line is not given");
        require(F::setLine(static_cast<Filter&>(to).state, line.data()) == tarnStsNoErr, "a delay line is refused");
        return true;
    }
    void look(Bytes&) override
    {
        std::vector<typename F::Taps> taps(static_cast<std::size_t>(p.tapsLen));
        int factor = 0;
        require(F::getTaps(state, taps.data(), &factor) == tarnStsNoErr, "taps are not given");
        // The largest integer is shifted once more when it is set again.
        if constexpr (std::is_same_v<typename F::Taps, Tarn32s>)
            if (std::any_of(taps.begin(), taps.end(), [](Tarn32s tap) { return tap > 32766 || tap < -32766; }))
                return;
        require(F::setTaps(taps.data(), state, factor) == tarnStsNoErr, "taps are refused");
    }

private:
    const Parameters p;
    std::unique_ptr<GuardedBytes> memory;
    typename F::State* state = nullptr;
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
    std::vector<typename F::Taps> taps;
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
