// What the states of FIR and of recursive filters share, by the names that their families have in support/.
#pragma once

#include "fuzz/states/stream.h"

#include <tarns.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace tarn::test::fuzz {

/// F has filter(), inPlace(), one(), getDlyLine(), setDlyLine() and free(); Line is what its delay lines are made of.
template <class F, class Line>
class FilterMachine : public Machine {
public:
    using Sample = typename F::Sample;

    ~FilterMachine() override
    {
        if (state != nullptr)
            require(F::free(state) == tarnStsNoErr, "a state is not freed");
        if (memory)
            requireWhole(*memory);
    }
    void block(const void* source, void* destination, int units) override
    {
        require(F::filter(static_cast<const Sample*>(source), static_cast<Sample*>(destination), units, state,
                          scaleFactor) == tarnStsNoErr,
                "a block is refused");
    }
    bool inPlace(void* sourceDestination, int units) override
    {
        require(F::inPlace(static_cast<Sample*>(sourceDestination), units, state, scaleFactor) == tarnStsNoErr,
                "a block in place is refused");
        return true;
    }
    bool single(const void* source, void* destination) override
    {
        Sample sample;
        std::memcpy(static_cast<void*>(&sample), source, sizeof sample);
        require(F::one(sample, static_cast<Sample*>(destination), state, scaleFactor) == tarnStsNoErr,
                "a sample is refused");
        return true;
    }
    bool handOver(Machine& to) override
    {
        std::vector<Line> line(static_cast<std::size_t>(std::max(delay, 1)));
        require(F::getDlyLine(state, line.data()) == tarnStsNoErr, "a delay line is not given");
        require(F::setDlyLine(static_cast<FilterMachine&>(to).state, line.data()) == tarnStsNoErr,
                "a delay line is refused");
        return true;
    }

protected:
    FilterMachine(int scaleFactorOfBlocks, int delayLen) : scaleFactor(scaleFactorOfBlocks), delay(delayLen) {}

    /// size(&bytes) and place(memory) make a state in memory of ours.
    template <class Size, class Place>
    TarnStatus makeInOurs(Size size, Place place)
    {
        int bytes = 0;
        if (const TarnStatus status = size(&bytes); status != tarnStsNoErr)
            return status;
        memory = std::make_unique<GuardedBytes>(static_cast<std::size_t>(bytes), Placement::atEnd());
        return place(memory->bytes());
    }

    typename F::State* state = nullptr;

private:
    const int scaleFactor;
    const int delay;
    std::unique_ptr<GuardedBytes> memory;
};

} // namespace tarn::test::fuzz
