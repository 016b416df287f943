#include "fuzz/states/stream.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace tarn::test::fuzz {
namespace {

constexpr int longestSignal = 1500; // units

class Program {
public:
    Program(Family& states, Bytes& decisions)
        : family(states), bytes(decisions), signal(family.source, longestSignal * family.sourcesAUnit, bytes),
          outputs(family.result, longestSignal * family.resultsAUnit, bytes)
    {
        Random random = bytes.random();
        signal.fill(random, family.tame ? Values::unit : Values::mixed);
    }

    void run()
    {
        first = family.make();
        second = family.make();
        require((first == nullptr) == (second == nullptr), "a state was made once and refused once");
        if (!first)
            return;
        for (int step = 0; step < 60 && !bytes.empty() && done < longestSignal; ++step)
            decide();
        if (family.cutsAnywhere && done > 0)
            compareWithOneCall();
    }

private:
    const unsigned char* source() const
    {
        return signal.bytes() + static_cast<std::size_t>(done) * family.sourcesAUnit * family.source.size();
    }
    std::size_t resultsOf(int units) const { return static_cast<std::size_t>(units) * family.resultsAUnit; }

    void decide()
    {
        switch (bytes.byte() % 8) {
        case 5:
            first->look(bytes);
            break;
        case 6:
            if (std::unique_ptr<Machine> next = family.make(); next && first->handOver(*next))
                first = std::move(next);
            break;
        case 7:
            oneSample();
            break;
        default:
            block(std::min(bytes.between(1, bytes.byte() % 8 == 0 ? 700 : 40), longestSignal - done));
        }
    }

    void block(int units)
    {
        const std::size_t sources = static_cast<std::size_t>(units) * family.sourcesAUnit;
        Elements input(family.source, sources, bytes);
        std::memcpy(input.bytes(), source(), input.byteSize());
        Elements one(family.result, resultsOf(units), bytes);
        Elements other(family.result, resultsOf(units), bytes);
        second->block(input.bytes(), other.bytes(), units);
        require(std::memcmp(input.bytes(), source(), input.byteSize()) == 0, "the source of a block was changed");
        if (!bytes.flag() || !inPlace(one, units))
            first->block(input.bytes(), one.bytes(), units);
        accept(one, other, units);
        requireWhole(input);
    }

    bool inPlace(Elements& result, int units)
    {
        if (family.source.size() != family.result.size())
            return false;
        const std::size_t elements =
            static_cast<std::size_t>(units) * std::max(family.sourcesAUnit, family.resultsAUnit);
        Elements both(family.source, elements, bytes);
        std::memcpy(both.bytes(), source(),
                    static_cast<std::size_t>(units) * family.sourcesAUnit * family.source.size());
        if (!first->inPlace(both.bytes(), units))
            return false;
        std::memcpy(result.bytes(), both.bytes(), result.byteSize());
        requireWhole(both);
        return true;
    }

    void oneSample()
    {
        Elements one(family.result, family.resultsAUnit, bytes);
        Elements other(family.result, family.resultsAUnit, bytes);
        if (!first->single(source(), one.bytes()))
            return;
        second->single(source(), other.bytes());
        family.cutsAnywhere = family.cutsAnywhere && family.singlesToo;
        accept(one, other, 1);
    }

    void accept(const Elements& one, const Elements& other, int units)
    {
        require(one.hash() == other.hash(), "two states that were made alike and got the same signal differ");
        requireWhole(one);
        requireWhole(other);
        std::memcpy(outputs.bytes() + resultsOf(done) * family.result.size(), one.bytes(), one.byteSize());
        done += units;
    }

    void compareWithOneCall()
    {
        const std::unique_ptr<Machine> whole = family.make();
        Elements all(family.result, resultsOf(done), bytes);
        whole->block(signal.bytes(), all.bytes(), done);
        require(all.hash() == outputs.hash(resultsOf(done)), "blocks differ from one call over the whole signal");
        requireWhole(all);
    }

    Family& family;
    Bytes& bytes;
    Elements signal;
    Elements outputs;
    std::unique_ptr<Machine> first, second;
    int done = 0;
};

} // namespace

void driveStream(Family& family, Bytes& bytes) { Program(family, bytes).run(); }

} // namespace tarn::test::fuzz
