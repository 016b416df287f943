// The calls of one front end, chosen by a generator that its name starts, so that a new function changes no other's.
#pragma once

#include "interface/digest/front_end.h"

#include <cstdint>
#include <string>

namespace tarn::test::digest {

struct Summary {
    std::uint64_t hash = 0;
    std::string fault; ///< why the calls say nothing about the function; empty if they do
};

Summary callOften(const FrontEnd& function);

} // namespace tarn::test::digest
