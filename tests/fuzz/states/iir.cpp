// Recursive filters: one section of any order, or biquads; states of the library's and in our memory.
#include "fuzz/states/stream.h"
#include "fuzz/states/targets.h"

#include <tarns.h>

#include <algorithm>
#include <vector>

namespace tarn::test::fuzz {
namespace {

struct Parameters {
    bool biquads = false;
    int number = 1; ///< order, or number of sections
    int scaleFactor = 0;
    bool ours = false;
    bool withLine = false;

    int delay() const { return std::max(biquads ? 2 * number : number, 0); }
    int taps() const { return std::max(biquads ? 6 * number : 2 * number + 2, 0); }
};

#define IIR_FUNCTIONS(Name, TAIL, BIQUAD_TAIL, Taps_, Sample_, SCALED, IN_PLACE, SCALE)                             \
    struct Name {                                                                                                   \
        using Taps = Taps_;                                                                                         \
        using Sample = Sample_;                                                                                     \
        using State = TarnsIIRState##TAIL;                                                                          \
        static TarnStatus make(State** state, const Taps* taps, const Taps* line, Parameters p)                     \
        {                                                                                                           \
            return p.biquads ? tarnsIIRInitAlloc##BIQUAD_TAIL(state, taps, p.number, line)                          \
                             : tarnsIIRInitAlloc##TAIL(state, taps, p.number, line);                                \
        }                                                                                                           \
        static TarnStatus makeAt(State** state, const Taps* taps, const Taps* line, Parameters p, Tarn8u* memory)   \
        {                                                                                                           \
            return p.biquads ? tarnsIIRInit##BIQUAD_TAIL(state, taps, p.number, line, memory)                       \
                             : tarnsIIRInit##TAIL(state, taps, p.number, line, memory);                             \
        }                                                                                                           \
        static TarnStatus size(Parameters p, int* bytes)                                                            \
        {                                                                                                           \
            return p.biquads ? tarnsIIRGetStateSize##BIQUAD_TAIL(p.number, bytes)                                   \
                             : tarnsIIRGetStateSize##TAIL(p.number, bytes);                                         \
        }                                                                                                           \
        static TarnStatus block(const Sample* x, Sample* y, int n, State* state, [[maybe_unused]] int scale)        \
        {                                                                                                           \
            return tarnsIIR##TAIL##SCALED(x, y, n, state SCALE);                                                    \
        }                                                                                                           \
        static TarnStatus inPlace(Sample* x, int n, State* state, [[maybe_unused]] int scale)                       \
        {                                                                                                           \
            return tarnsIIR##TAIL##IN_PLACE(x, n, state SCALE);                                                     \
        }                                                                                                           \
        static TarnStatus single(Sample x, Sample* y, State* state, [[maybe_unused]] int scale)                     \
        {                                                                                                           \
            return tarnsIIROne##TAIL##SCALED(x, y, state SCALE);                                                    \
        }                                                                                                           \
        static TarnStatus setTaps(const Taps* taps, State* state) { return tarnsIIRSetTaps##TAIL(taps, state); }    \
        static TarnStatus getLine(State* state, Taps* line) { return tarnsIIRGetDlyLine##TAIL(state, line); }       \
        static TarnStatus setLine(State* state, const Taps* line) { return tarnsIIRSetDlyLine##TAIL(state, line); } \
        static TarnStatus free(State* state) { return tarnsIIRFree##TAIL(state); }                                  \
    }

#define NOTHING
#define SCALE_ARGUMENT , scale
IIR_FUNCTIONS(Iir_32f, _32f, _BiQuad_32f, Tarn32f, Tarn32f, , _I, NOTHING);
IIR_FUNCTIONS(Iir_64fc, _64fc, _BiQuad_64fc, Tarn64fc, Tarn64fc, , _I, NOTHING);
IIR_FUNCTIONS(Iir64f_32f, 64f_32f, 64f_BiQuad_32f, Tarn64f, Tarn32f, , _I, NOTHING);
IIR_FUNCTIONS(Iir32f_16s, 32f_16s, 32f_BiQuad_16s, Tarn32f, Tarn16s, _Sfs, _ISfs, SCALE_ARGUMENT);
IIR_FUNCTIONS(Iir32s_16s32f, 32s_16s32f, 32s_BiQuad_16s32f, Tarn32f, Tarn16s, _Sfs, _ISfs, SCALE_ARGUMENT);

template <class F>
class Filter : public Machine {
public:
    using Taps = typename F::Taps;
    using Sample = typename F::Sample;

    Filter(const std::vector<Taps>& tapsGiven, const std::vector<Taps>& line, Parameters parameters)
        : p(parameters), taps(tapsGiven)
    {
        const Taps* const given = p.withLine ? line.data() : nullptr;
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
        // Taps that cannot be divided leave a state that waits for others.
        require((status < 0 && status != tarnStsDivByZeroErr) == (state == nullptr),
                "a status does not tell whether there is a state");
    }
    ~Filter() override
    {
        if (state != nullptr)
            require(F::free(state) == tarnStsNoErr, "a state is not freed");
        if (memory)
            requireWhole(*memory);
    }

    bool works() const { return state != nullptr && status == tarnStsNoErr; }
    void block(const void* source, void* destination, int units) override
    {
        require(F::block(static_cast<const Sample*>(source), static_cast<Sample*>(destination), units, state,
                         p.scaleFactor) == tarnStsNoErr,
                "a block is refused");
    }
    bool inPlace(void* sourceDestination, int units) override
    {
        require(F::inPlace(static_cast<Sample*>(sourceDestination), units, state, p.scaleFactor) == tarnStsNoErr,
                "a block in place is refused");
        return true;
    }
    bool single(const void* source, void* destination) override
    {
        Sample sample;
        std::copy_n(static_cast<const unsigned char*>(source), sizeof sample,
                    static_cast<unsigned char*>(static_cast<void*>(&sample)));
        require(F::single(sample, static_cast<Sample*>(destination), state, p.scaleFactor) == tarnStsNoErr,
                "a sample is refused");
        return true;
    }
    bool handOver(Machine& to) override
    {
        std::vector<Taps> line(static_cast<std::size_t>(p.delay()) + 1);
        require(F::getLine(state, line.data()) == tarnStsNoErr, "a delay line is not given");
        require(F::setLine(static_cast<Filter&>(to).state, line.data()) == tarnStsNoErr, "a delay line is refused");
        return true;
    }
    void look(Bytes&) override { require(F::setTaps(taps.data(), state) == tarnStsNoErr, "the same taps are refused"); }

private:
    const Parameters p;
    const std::vector<Taps>& taps;
    std::unique_ptr<GuardedBytes> memory;
    typename F::State* state = nullptr;
    TarnStatus status = tarnStsNoErr;
};

template <class F>
class Filters : public Family {
public:
    using Taps = typename F::Taps;

    Filters(Bytes& bytes, Parameters parameters, digest::Element tapElement, digest::Element sampleElement)
        : p(parameters), taps(static_cast<std::size_t>(p.taps()) + 1), line(static_cast<std::size_t>(p.delay()) + 1)
    {
        source = result = sampleElement;
        tame = bytes.byte() % 4 != 0;
        Random random = bytes.random();
        const Values kind = tame ? Values::unit : Values::mixed;
        digest::fill(reinterpret_cast<std::byte*>(taps.data()), tapElement, taps.size(), random, kind);
        digest::fill(reinterpret_cast<std::byte*>(line.data()), tapElement, line.size(), random, kind);
        if (bytes.byte() % 8 == 0) // a zero somewhere, which may be the one that divides
            taps[random.below(taps.size())] = {};
    }
    std::unique_ptr<Machine> make() override
    {
        auto filter = std::make_unique<Filter<F>>(taps, line, p);
        return filter->works() ? std::move(filter) : nullptr;
    }

private:
    const Parameters p;
    std::vector<Taps> taps;
    std::vector<Taps> line;
};

template <class F>
void drive(Bytes& bytes, const Parameters& p, digest::Element taps, digest::Element samples)
{
    Filters<F> filters(bytes, p, taps, samples);
    driveStream(filters, bytes);
}

} // namespace

void driveIir(Bytes& bytes)
{
    using digest::Real;
    Parameters p;
    p.biquads = bytes.flag();
    p.number = bytes.between(-1, bytes.byte() % 4 == 0 ? 20 : 6);
    p.scaleFactor = bytes.between(-6, 20);
    p.ours = bytes.flag();
    p.withLine = bytes.flag();
    switch (bytes.byte() % 5) {
    case 0:
        return drive<Iir_32f>(bytes, p, {Real::f32, 1}, {Real::f32, 1});
    case 1:
        return drive<Iir_64fc>(bytes, p, {Real::f64, 2}, {Real::f64, 2});
    case 2:
        return drive<Iir64f_32f>(bytes, p, {Real::f64, 1}, {Real::f32, 1});
    case 3:
        return drive<Iir32f_16s>(bytes, p, {Real::f32, 1}, {Real::s16, 1});
    default:
        return drive<Iir32s_16s32f>(bytes, p, {Real::f32, 1}, {Real::s16, 1});
    }
}

} // namespace tarn::test::fuzz
