// Filters that learn, and filter banks.
#include "fuzz/states/stream.h"
#include "fuzz/states/targets.h"
#include "support/lms_tails.h"

#include <tarns.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace tarn::test::fuzz {
namespace {

using digest::Real;

template <class T>
std::vector<T> filled(digest::Element element, int count, Random& random, Values kind)
{
    std::vector<T> values(static_cast<std::size_t>(std::max(count, 0)) + 1);
    digest::fill(reinterpret_cast<std::byte*>(values.data()), element, values.size(), random, kind);
    return values;
}

// -- Least mean squares -----------------------------------------------------------------------------------------------

struct LmsParameters {
    int tapsLen;
    float mu;
};

/// Units are a sample and its reference. F has a family's functions by their names in support/.
template <class F>
class Learning : public Machine {
public:
    using Sample = typename F::F::S;

    Learning(LmsParameters parameters, const Tarn32f* taps, const Sample* line) : p(parameters)
    {
        const TarnStatus status = F::f.initAlloc(&state, taps, p.tapsLen, line, 0);
        require((status < 0) == (p.tapsLen < 1), "a number of taps makes a state or is refused");
    }
    ~Learning() override { require(F::f.free(state) == tarnStsNoErr, "a state is not freed"); }
    bool made() const { return state != nullptr; }

    void block(const void* source, void* destination, int units) override
    {
        const auto len = static_cast<std::size_t>(units);
        GuardedArray<Sample> samples(len, Placement::atEnd());
        GuardedArray<Sample> references(len, Placement::atStart());
        split(source, samples, references);
        require(F::f.filter(samples.data(), references.data(), static_cast<Sample*>(destination), units, p.mu, state) ==
                    tarnStsNoErr,
                "a block is refused");
    }
    bool handOver(Machine& to) override
    {
        std::vector<Tarn32f> taps(static_cast<std::size_t>(p.tapsLen));
        std::vector<Sample> line(static_cast<std::size_t>(p.tapsLen));
        int index = -1;
        require(F::f.getTaps(state, taps.data()) == tarnStsNoErr, "taps are not given");
        require(F::f.getDlyLine(state, line.data(), &index) == tarnStsNoErr, "a delay line is not given");
        require(index >= 0 && index < p.tapsLen, "a delay line has an index beyond it");
        auto& next = static_cast<Learning&>(to);
        require(F::f.free(next.state) == tarnStsNoErr, "a state is not freed");
        next.state = nullptr;
        require(F::f.initAlloc(&next.state, taps.data(), p.tapsLen, line.data(), index) == tarnStsNoErr, "refused");
        return true;
    }
    void look(Bytes&) override
    {
        std::vector<Sample> line(static_cast<std::size_t>(p.tapsLen));
        int index = -1;
        require(F::f.getDlyLine(state, line.data(), &index) == tarnStsNoErr, "a delay line is not given");
        require(F::f.setDlyLine(state, line.data(), index) == tarnStsNoErr, "a delay line is refused");
    }

private:
    static void split(const void* source, GuardedArray<Sample>& samples, GuardedArray<Sample>& references)
    {
        const auto* pairs = static_cast<const unsigned char*>(source);
        for (std::size_t i = 0; i < samples.size(); ++i) {
            std::memcpy(samples.bytes() + i * sizeof(Sample), pairs + 2 * i * sizeof(Sample), sizeof(Sample));
            std::memcpy(references.bytes() + i * sizeof(Sample), pairs + (2 * i + 1) * sizeof(Sample), sizeof(Sample));
        }
    }

    const LmsParameters p;
    typename F::F::State* state = nullptr;
};

template <class F>
class LearningFilters : public Family {
public:
    using Sample = typename F::F::S;

    LearningFilters(Bytes& bytes, digest::Element element)
        : p{bytes.byte() % 16 == 0 ? bytes.between(-1, 0) : bytes.between(1, bytes.byte() % 4 == 0 ? 200 : 40),
            static_cast<float>(bytes.between(0, 100)) * 1e-5f},
          withTaps(bytes.flag()), withLine(bytes.flag())
    {
        source = result = element;
        sourcesAUnit = 2;
        tame = bytes.byte() % 4 != 0;
        cutsAnywhere = tame;
        Random random = bytes.random();
        taps = filled<Tarn32f>({Real::f32, 1}, p.tapsLen, random, tame ? Values::unit : Values::mixed);
        line = filled<Sample>(element, p.tapsLen, random, tame ? Values::unit : Values::mixed);
    }
    std::unique_ptr<Machine> make() override
    {
        auto filter =
            std::make_unique<Learning<F>>(p, withTaps ? taps.data() : nullptr, withLine ? line.data() : nullptr);
        return filter->made() ? std::move(filter) : nullptr;
    }

private:
    const LmsParameters p;
    const bool withTaps, withLine;
    std::vector<Tarn32f> taps;
    std::vector<Sample> line;
};

/// The filter whose steps are calls of their own. Units are a sample and an error.
class Steps : public Machine {
public:
    Steps(int taps, int step, int delay, int mu) : tapsLen(taps), ring(delay + taps * step)
    {
        const TarnStatus status = tarnsFIRLMSMRInitAlloc32s_16s(&state, nullptr, taps, nullptr, 0, step, delay, mu);
        require((status < 0) == (taps < 1 || step < 1 || delay < 0), "parameters make a state or are refused");
    }
    ~Steps() override { require(tarnsFIRLMSMRFree32s_16s(state) == tarnStsNoErr, "a state is not freed"); }
    bool made() const { return state != nullptr; }

    void block(const void* source, void* destination, int units) override
    {
        for (int i = 0; i < units; ++i) {
            Tarn16s pair[2];
            std::memcpy(pair, static_cast<const Tarn16s*>(source) + 2 * i, sizeof pair);
            require(tarnsFIRLMSMRPutVal32s_16s(pair[0], state) == tarnStsNoErr, "a sample is refused");
            require(tarnsFIRLMSMROne32s_16s(static_cast<Tarn32s*>(destination) + i, state) == tarnStsNoErr, "refused");
            require(tarnsFIRLMSMRUpdateTaps32s_16s(pair[1], state) == tarnStsNoErr, "an error is refused");
        }
    }
    bool single(const void* source, void* destination) override
    {
        Tarn16s pair[2];
        std::memcpy(pair, source, sizeof pair);
        require(tarnsFIRLMSMROneVal32s_16s(pair[0], static_cast<Tarn32s*>(destination), state) == tarnStsNoErr,
                "refused");
        require(tarnsFIRLMSMRUpdateTaps32s_16s(pair[1], state) == tarnStsNoErr, "an error is refused");
        return true;
    }
    bool handOver(Machine& to) override
    {
        auto& next = static_cast<Steps&>(to);
        std::vector<Tarn32s> taps(static_cast<std::size_t>(tapsLen));
        std::vector<Tarn16s> line(static_cast<std::size_t>(ring));
        int index = -1;
        require(tarnsFIRLMSMRGetTaps32s_16s(state, taps.data()) == tarnStsNoErr, "taps are not given");
        require(tarnsFIRLMSMRSetTaps32s_16s(next.state, taps.data()) == tarnStsNoErr, "taps are refused");
        require(tarnsFIRLMSMRGetDlyLine32s_16s(state, line.data(), &index) == tarnStsNoErr, "a line is not given");
        require(tarnsFIRLMSMRSetDlyLine32s_16s(next.state, line.data(), index) == tarnStsNoErr, "a line is refused");
        return true;
    }
    void look(Bytes& bytes) override
    {
        Tarn16s value = 0;
        const int index = bytes.hostile(-2, ring + 2);
        const bool within = index >= 0 && index <= ring;
        require((tarnsFIRLMSMRGetDlyVal32s_16s(state, &value, index) == tarnStsNoErr) == within,
                "an index is taken or not");
    }

private:
    TarnsFIRLMSMRState32s_16s* state = nullptr;
    const int tapsLen;
    const int ring;
};

class StepFilters : public Family {
public:
    explicit StepFilters(Bytes& bytes)
        : taps(bytes.between(bytes.byte() % 16 == 0 ? 0 : 1, 40)),
          step(bytes.between(bytes.byte() % 16 == 0 ? 0 : 1, 4)),
          delay(bytes.between(bytes.byte() % 16 == 0 ? -1 : 0, 20)), mu(bytes.hostile(-3000, 3000))
    {
        source = {Real::s16, 1};
        result = {Real::s32, 1};
        sourcesAUnit = 2;
        cutsAnywhere = singlesToo = true;
        tame = bytes.flag();
    }
    std::unique_ptr<Machine> make() override
    {
        auto filter = std::make_unique<Steps>(taps, step, delay, mu);
        return filter->made() ? std::move(filter) : nullptr;
    }

private:
    const int taps, step, delay, mu;
};

// -- Wavelets ---------------------------------------------------------------------------------------------------------

struct Bank {
    int lenLow, offsLow, lenHigh, offsHigh;
    bool forward;

    int delay(int len, int offs) const
    {
        if (forward)
            return std::max(len + offs - 1, 0);
        return offs < 0 ? len / 2 : (offs + len - 1) / 2;
    }
};

#define WAVELET_FUNCTIONS(Name, DIRECTION, TAIL, Sample_)                      \
    struct Name {                                                              \
        using Sample = Sample_;                                                \
        using State = TarnsWT##DIRECTION##State_##TAIL;                        \
        static constexpr auto make = tarnsWT##DIRECTION##InitAlloc_##TAIL;     \
        static constexpr auto run = tarnsWT##DIRECTION##_##TAIL;               \
        static constexpr auto getLine = tarnsWT##DIRECTION##GetDlyLine_##TAIL; \
        static constexpr auto setLine = tarnsWT##DIRECTION##SetDlyLine_##TAIL; \
        static constexpr auto free = tarnsWT##DIRECTION##Free_##TAIL;          \
    }
WAVELET_FUNCTIONS(Fwd_32f, Fwd, 32f, Tarn32f);
WAVELET_FUNCTIONS(Fwd_8u32f, Fwd, 8u32f, Tarn8u);
WAVELET_FUNCTIONS(Inv_32f, Inv, 32f, Tarn32f);
WAVELET_FUNCTIONS(Inv_32f16s, Inv, 32f16s, Tarn16s);

/// Units are two samples, or one of each channel; the channels of a block stand one behind the other.
template <class F>
class Wavelet : public Machine {
public:
    Wavelet(const Bank& parameters, const std::vector<Tarn32f>& low, const std::vector<Tarn32f>& high)
        : bank(parameters)
    {
        const TarnStatus status =
            F::make(&state, low.data(), bank.lenLow, bank.offsLow, high.data(), bank.lenHigh, bank.offsHigh);
        require((status < 0) == (bank.lenLow < 1 || bank.lenHigh < 1 || bank.offsLow < -1 || bank.offsHigh < -1),
                "parameters make a state or are refused");
    }
    ~Wavelet() override
    {
        if (state != nullptr)
            require(F::free(state) == tarnStsNoErr, "a state is not freed");
    }
    bool made() const { return state != nullptr; }

    void block(const void* source, void* destination, int units) override
    {
        using Sample = typename F::Sample;
        TarnStatus status;
        if constexpr (std::is_same_v<typename F::State, TarnsWTFwdState>) {
            auto* const channels = static_cast<Tarn32f*>(destination);
            status = F::run(static_cast<const Sample*>(source), channels, channels + units, units, state);
        } else {
            const auto* const channels = static_cast<const Tarn32f*>(source);
            status = F::run(channels, channels + units, units, static_cast<Sample*>(destination), state);
        }
        require(status == tarnStsNoErr, "a block is refused");
    }
    bool handOver(Machine& to) override
    {
        GuardedArray<Tarn32f> low(static_cast<std::size_t>(bank.delay(bank.lenLow, bank.offsLow)), Placement::atEnd());
        GuardedArray<Tarn32f> high(static_cast<std::size_t>(bank.delay(bank.lenHigh, bank.offsHigh)),
                                   Placement::atEnd());
        require(F::getLine(state, low.data(), high.data()) == tarnStsNoErr, "delay lines are not given");
        require(F::setLine(static_cast<Wavelet&>(to).state, low.data(), high.data()) == tarnStsNoErr,
                "delay lines are refused");
        return true;
    }

private:
    const Bank& bank;
    typename F::State* state = nullptr;
};

template <class F>
class Wavelets : public Family {
public:
    Wavelets(Bytes& bytes, bool forward, digest::Element sample)
    {
        const auto length = [&] { return bytes.byte() % 16 == 0 ? bytes.between(-1, 0) : bytes.between(1, 30); };
        const auto offset = [&] {
            return bytes.byte() % 16 == 0 ? bytes.pick({-2, -2147483647 - 1}) : bytes.between(-1, 12);
        };
        bank.forward = forward;
        bank.lenLow = length();
        bank.offsLow = offset();
        bank.lenHigh = length();
        bank.offsHigh = offset();
        source = forward ? sample : digest::Element{Real::f32, 1};
        result = forward ? digest::Element{Real::f32, 1} : sample;
        sourcesAUnit = resultsAUnit = 2;
        tame = bytes.byte() % 4 != 0;
        Random random = bytes.random();
        low = filled<Tarn32f>({Real::f32, 1}, bank.lenLow, random, Values::unit);
        high = filled<Tarn32f>({Real::f32, 1}, bank.lenHigh, random, Values::unit);
    }
    std::unique_ptr<Machine> make() override
    {
        auto wavelet = std::make_unique<Wavelet<F>>(bank, low, high);
        return wavelet->made() ? std::move(wavelet) : nullptr;
    }

private:
    Bank bank{};
    std::vector<Tarn32f> low, high;
};

template <class Filters, class... Arguments>
void drive(Bytes& bytes, Arguments... arguments)
{
    Filters filters(bytes, arguments...);
    driveStream(filters, bytes);
}

} // namespace

void driveLms(Bytes& bytes)
{
    switch (bytes.byte() % 3) {
    case 0:
        return drive<LearningFilters<LmsOf32f>>(bytes, digest::Element{Real::f32, 1});
    case 1:
        return drive<LearningFilters<LmsOf16s>>(bytes, digest::Element{Real::s16, 1});
    default:
        return drive<StepFilters>(bytes);
    }
}

void driveWavelets(Bytes& bytes)
{
    switch (bytes.byte() % 4) {
    case 0:
        return drive<Wavelets<Fwd_32f>>(bytes, true, digest::Element{Real::f32, 1});
    case 1:
        return drive<Wavelets<Fwd_8u32f>>(bytes, true, digest::Element{Real::u8, 1});
    case 2:
        return drive<Wavelets<Inv_32f>>(bytes, false, digest::Element{Real::f32, 1});
    default:
        return drive<Wavelets<Inv_32f16s>>(bytes, false, digest::Element{Real::s16, 1});
    }
}

} // namespace tarn::test::fuzz
