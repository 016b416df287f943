// Calls of the functions that work on something else than arrays.
#pragma once

#include "interface/digest/values.h"

#include <string>

namespace tarn::test::digest {

/// False if the function is none of those.
bool callSpecially(const std::string& name, Hash& hash);

} // namespace tarn::test::digest
