// Random generators, tones and triangle waves that go on from call to call.
#include "fuzz/states/stream.h"
#include "fuzz/states/targets.h"

#include <tarns.h>

#include <cmath>
#include <cstring>

namespace tarn::test::fuzz {
namespace {

using digest::Real;

/// Parameters as their type has them.
template <class T>
T parameter(Bytes& bytes)
{
    Random random = bytes.random();
    return randomValue<T>(random, bytes.byte() % 4 == 0 ? Values::mixed : Values::unit);
}

/// What the functions of a generator are, by type.
template <class T, class State_>
struct Functions {
    using Element = T;
    using State = State_;
    TarnStatus (*make)(State**, T, T, unsigned);
    TarnStatus (*makeAt)(State*, T, T, unsigned); ///< null if there is none
    TarnStatus (*size)(int*);
    TarnStatus (*run)(T*, int, State*);
    TarnStatus (*free)(State*);
};

template <class F>
class Generator : public Machine {
public:
    using T = typename F::Element;

    Generator(const F& calls, T first, T second, unsigned seed, bool ours) : functions(calls)
    {
        if (ours && functions.makeAt != nullptr) {
            int bytes = 0;
            require(functions.size(&bytes) == tarnStsNoErr, "a size is not told");
            memory = std::make_unique<GuardedBytes>(static_cast<std::size_t>(bytes), Placement::atEnd());
            state = static_cast<typename F::State*>(static_cast<void*>(memory->bytes()));
            require(functions.makeAt(state, first, second, seed) == tarnStsNoErr, "a generator is refused");
        } else {
            require(functions.make(&state, first, second, seed) == tarnStsNoErr, "a generator is refused");
        }
    }
    ~Generator() override
    {
        if (!memory) // generators do not know whose memory they lie in
            require(functions.free(state) == tarnStsNoErr, "a generator is not freed");
        else
            requireWhole(*memory);
    }
    void block(const void*, void* destination, int units) override
    {
        require(functions.run(static_cast<T*>(destination), units, state) == tarnStsNoErr, "a block is refused");
    }

private:
    const F& functions;
    std::unique_ptr<GuardedBytes> memory;
    typename F::State* state = nullptr;
};

template <class F>
class Generators : public Family {
public:
    using T = typename F::Element;

    Generators(Bytes& bytes, const F& calls, digest::Element element)
        : functions(calls), first(parameter<T>(bytes)), second(parameter<T>(bytes)),
          seed(static_cast<unsigned>(bytes.byte() << 24 | bytes.byte())), ours(bytes.flag())
    {
        result = element;
        cutsAnywhere = true;
    }
    std::unique_ptr<Machine> make() override
    {
        return std::make_unique<Generator<F>>(functions, first, second, seed, ours);
    }

private:
    const F& functions;
    const T first, second;
    const unsigned seed;
    const bool ours;
};

template <class F>
void drive(Bytes& bytes, const F& functions, digest::Element element)
{
    Generators<F> generators(bytes, functions, element);
    driveStream(generators, bytes);
}

#define RANDOM(KIND, TAG, AT, SIZE)                                                                      \
    Functions<Tarn##TAG, TarnsRand##KIND##State_##TAG>                                                   \
    {                                                                                                    \
        tarnsRand##KIND##InitAlloc_##TAG, AT, SIZE, tarnsRand##KIND##_##TAG, tarnsRand##KIND##Free_##TAG \
    }

// -- Tones and triangle waves -----------------------------------------------------------------------------------------

struct Wave {
    Tarn16s magn;
    Tarn16s rFreqQ15;
    Tarn32s phaseQ15;
    Tarn32s asymQ15;
    bool isTriangle;
    bool ours;

    bool isValid() const
    {
        return magn >= 1 && rFreqQ15 >= 0 && rFreqQ15 <= 16383 && phaseQ15 >= 0 && phaseQ15 <= 205886 &&
               (!isTriangle || (asymQ15 >= -102943 && asymQ15 <= 102943));
    }
};

class Oscillator : public Machine {
public:
    explicit Oscillator(const Wave& parameters) : wave(parameters)
    {
        void* address = nullptr;
        if (wave.ours) {
            int bytes = 0;
            require((wave.isTriangle ? tarnsTriangleGetStateSizeQ15_16s(&bytes)
                                     : tarnsToneGetStateSizeQ15_16s(&bytes)) == tarnStsNoErr,
                    "a size is not told");
            memory = std::make_unique<GuardedBytes>(static_cast<std::size_t>(bytes), Placement::atEnd());
            address = memory->bytes();
        }
        tone = static_cast<TarnsToneState_16s*>(address);
        triangle = static_cast<TarnsTriangleState_16s*>(address);
        status = build();
        require((status == tarnStsNoErr) == wave.isValid(), "parameters make a wave or are refused");
    }
    ~Oscillator() override
    {
        if (status == tarnStsNoErr)
            require((wave.isTriangle ? tarnsTriangleFree(triangle) : tarnsToneFree(tone)) == tarnStsNoErr,
                    "a wave is not freed");
        if (memory)
            requireWhole(*memory);
    }
    bool made() const { return status == tarnStsNoErr; }
    void block(const void*, void* destination, int units) override
    {
        auto* const samples = static_cast<Tarn16s*>(destination);
        require((wave.isTriangle ? tarnsTriangleQ15_16s(samples, units, triangle)
                                 : tarnsToneQ15_16s(samples, units, tone)) == tarnStsNoErr,
                "a block is refused");
    }

private:
    TarnStatus build()
    {
        if (!wave.isTriangle)
            return wave.ours ? tarnsToneInitQ15_16s(tone, wave.magn, wave.rFreqQ15, wave.phaseQ15)
                             : tarnsToneInitAllocQ15_16s(&tone, wave.magn, wave.rFreqQ15, wave.phaseQ15);
        return wave.ours
                   ? tarnsTriangleInitQ15_16s(triangle, wave.magn, wave.rFreqQ15, wave.phaseQ15, wave.asymQ15)
                   : tarnsTriangleInitAllocQ15_16s(&triangle, wave.magn, wave.rFreqQ15, wave.phaseQ15, wave.asymQ15);
    }

    const Wave wave;
    std::unique_ptr<GuardedBytes> memory;
    TarnsToneState_16s* tone = nullptr;
    TarnsTriangleState_16s* triangle = nullptr;
    TarnStatus status = tarnStsNoErr;
};

class Oscillators : public Family {
public:
    explicit Oscillators(Bytes& bytes)
    {
        wave.magn = static_cast<Tarn16s>(bytes.between(0, 32767));
        wave.rFreqQ15 =
            static_cast<Tarn16s>(bytes.byte() % 8 == 0 ? bytes.between(-32768, 32767) : bytes.between(0, 16383));
        wave.phaseQ15 = bytes.flag() ? bytes.hostile(0, 3000) : 68 * bytes.between(0, 3030);
        wave.asymQ15 = bytes.flag() ? bytes.hostile(-1029, 1029) : 100 * bytes.between(-1030, 1030);
        wave.isTriangle = bytes.flag();
        wave.ours = bytes.flag();
        result = {Real::s16, 1};
        cutsAnywhere = true;
    }
    std::unique_ptr<Machine> make() override
    {
        auto oscillator = std::make_unique<Oscillator>(wave);
        return oscillator->made() ? std::move(oscillator) : nullptr;
    }

private:
    Wave wave{};
};

/// Tones of any frequency, which have no state but a phase.
void driveDirectTone(Bytes& bytes)
{
    Tarn64f phase = bytes.byte() % 8 == 0 ? parameter<Tarn64f>(bytes) : bytes.between(0, 6000) * 0.001;
    const Tarn64f rFreq = bytes.byte() % 8 == 0 ? parameter<Tarn64f>(bytes) : bytes.between(0, 499) * 0.001;
    const Tarn64f magn = bytes.byte() % 8 == 0 ? parameter<Tarn64f>(bytes) : bytes.between(1, 1000);
    const auto hint = static_cast<TarnHintAlgorithm>(bytes.between(0, 3));
    for (int i = 0; i < 10 && !bytes.empty(); ++i) {
        const int len = bytes.hostile(0, 3000) % 5000;
        Elements samples({Real::f64, 1}, static_cast<std::size_t>(std::max(len, 0)), bytes);
        const std::uint64_t before = samples.hash();
        const Tarn64f phaseBefore = phase;
        const TarnStatus status = tarnsTone_Direct_64f(samples.as<Tarn64f>(), len, magn, rFreq, &phase, hint);
        if (status == tarnStsNoErr)
            require((phase >= 0 && phase < 6.283185307179586) || std::isnan(rFreq), "a phase leaves its range");
        else
            require(samples.hash() == before && std::memcmp(&phase, &phaseBefore, sizeof phase) == 0,
                    "a call that failed changed something");
        requireWhole(samples);
    }
}

} // namespace

void driveRandom(Bytes& bytes)
{
    switch (bytes.byte() % 6) {
    case 0:
        return drive(bytes, RANDOM(Uniform, 8u, nullptr, nullptr), {Real::u8, 1});
    case 1:
        return drive(bytes, RANDOM(Uniform, 16s, tarnsRandUniformInit_16s, tarnsRandUniformGetSize_16s),
                     {Real::s16, 1});
    case 2:
        return drive(bytes, RANDOM(Uniform, 32f, nullptr, nullptr), {Real::f32, 1});
    case 3:
        return drive(bytes, RANDOM(Gauss, 8u, nullptr, nullptr), {Real::u8, 1});
    case 4:
        return drive(bytes, RANDOM(Gauss, 16s, tarnsRandGaussInit_16s, tarnsRandGaussGetSize_16s), {Real::s16, 1});
    default:
        return drive(bytes, RANDOM(Gauss, 32f, nullptr, nullptr), {Real::f32, 1});
    }
}

void driveTones(Bytes& bytes)
{
    if (bytes.byte() % 4 == 0)
        return driveDirectTone(bytes);
    Oscillators oscillators(bytes);
    driveStream(oscillators, bytes);
}

} // namespace tarn::test::fuzz
