// Finds the functions and data objects of C linkage that a preprocessed C++ source declares.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tarn::test {

enum class Declared { function, data };

/// Names declared (not defined, and neither static nor inline) with C linkage in files whose path begins with
/// `directory`. `preprocessed` is the output of the compiler's preprocessor, line markers included.
std::map<std::string, Declared> cLinkageDeclarations(std::string_view preprocessed, std::string_view directory);

} // namespace tarn::test
