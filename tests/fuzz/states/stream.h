// States that a signal goes through, and the program over them: two states that are made alike get the same blocks, one
// of them in place, handed over to a new state or looked at in between; and a third one the whole signal at once.
#pragma once

#include "fuzz/states/bytes.h"

#include <memory>

namespace tarn::test::fuzz {

/// One state.
class Machine {
public:
    virtual ~Machine() = default;
    virtual void block(const void* source, void* destination, int units) = 0;
    /// False if the family has no such call.
    virtual bool inPlace(void* /*sourceDestination*/, int /*units*/) { return false; }
    virtual bool single(const void* /*source*/, void* /*destination*/) { return false; }
    /// Gives its delay line to another one.
    virtual bool handOver(Machine& /*to*/) { return false; }
    /// Calls that change nothing.
    virtual void look(Bytes& /*bytes*/) {}
};

class Family {
public:
    virtual ~Family() = default;
    /// In the same way each time; null if the parameters are refused.
    virtual std::unique_ptr<Machine> make() = 0;

    digest::Element source{digest::Real::f32, 1};
    digest::Element result{digest::Real::f32, 1};
    std::size_t sourcesAUnit = 1; ///< elements
    std::size_t resultsAUnit = 1;
    bool cutsAnywhere = false; ///< blocks of any lengths give the bits of one
    bool singlesToo = false;   ///< and so do single samples
    bool tame = true;          ///< no NaN and no infinities: those may show up where blocks differ
};

void driveStream(Family& family, Bytes& bytes);

} // namespace tarn::test::fuzz
