// What the headers' comments say of every function, as describe.py read it, beside the function itself.
#pragma once

#include "interface/digest/front_end.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tarn::test::fuzz {

/// Numbers by name: the integers of a call, and what is known of its object.
using Variables = std::map<std::string, std::int64_t>;

/// The value of a formula such as "max(N+2-N%2,2)". Throws std::runtime_error for a name that it does not know.
std::int64_t evaluate(const std::string& formula, const Variables& variables);

struct Described {
    const digest::FrontEnd* function = nullptr;
    std::vector<int> statuses;      ///< none for a function that does not answer with one
    std::vector<std::string> sizes; ///< of each argument: elements, as a formula; empty for a number
    std::vector<bool> nullable;     ///< of each argument

    const std::string& name() const { return function->name; }
    bool documents(int status) const;
};

/// All of them, in the order of the headers.
const std::vector<Described>& describedFunctions();

/// Null if there is none of that name.
const Described* findDescribed(const std::string& name);

} // namespace tarn::test::fuzz
