// Recursive filters: one section of any order, or biquads; states of the library's and in our memory.
#include "fuzz/states/filter.h"
#include "fuzz/states/targets.h"
#include "support/iir_tails.h"

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

template <class F>
class Filter : public FilterMachine<F, typename F::Element> {
public:
    using Taps = typename F::Given;

    Filter(const std::vector<Taps>& tapsGiven, const std::vector<Taps>& line, const Parameters& p)
        : FilterMachine<F, typename F::Element>(p.scaleFactor, p.delay()), taps(tapsGiven)
    {
        const IirForm form = p.biquads ? IirForm::biquads : IirForm::order;
        const Taps* const given = p.withLine ? line.data() : nullptr;
        status = p.ours ? this->makeInOurs([&](int* bytes) { return F::getStateSize(form, p.number, bytes); },
                                           [&](Tarn8u* memory) {
                                               return F::init(form, &state, taps.data(), p.number, given, memory);
                                           })
                        : F::initAlloc(form, &state, taps.data(), p.number, given);
        // Taps that cannot be divided leave a state that waits for others.
        require((status < 0 && status != tarnStsDivByZeroErr) == (state == nullptr),
                "a status does not tell whether there is a state");
    }

    bool works() const { return state != nullptr && status == tarnStsNoErr; }
    void look(Bytes&) override { require(F::setTaps(taps.data(), state) == tarnStsNoErr, "the same taps are refused"); }

private:
    using FilterMachine<F, typename F::Element>::state;

    const std::vector<Taps>& taps;
    TarnStatus status = tarnStsNoErr;
};

template <class F>
class Filters : public Family {
public:
    using Taps = typename F::Given;

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
        return drive<IirTail32f>(bytes, p, {Real::f32, 1}, {Real::f32, 1});
    case 1:
        return drive<IirTail64fc>(bytes, p, {Real::f64, 2}, {Real::f64, 2});
    case 2:
        return drive<IirTail64f_32f>(bytes, p, {Real::f64, 1}, {Real::f32, 1});
    case 3:
        return drive<IirTail32f_16s>(bytes, p, {Real::f32, 1}, {Real::s16, 1});
    default:
        return drive<IirTail32s_16s32f>(bytes, p, {Real::f32, 1}, {Real::s16, 1});
    }
}

} // namespace tarn::test::fuzz
