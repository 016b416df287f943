// What an argument of a front end may be, by its name: the names are the same throughout the headers.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tarn::test::digest {

/// Integers to choose from, as often as they stand there; null if the name has no such list.
const std::vector<int>* integersFor(const std::string& name);

/// The interval of a number that is no data: a frequency, a phase, a shape. Null if there is none of the name.
const std::pair<double, double>* intervalFor(const std::string& name);

bool isLength(const std::string& name);      ///< elements of an array
bool isDataNumber(const std::string& name);  ///< an element passed by value
bool isDataArray(const std::string& name);   ///< elements, read, written or both
bool isSizeInBytes(const std::string& name); ///< an answer that depends on the ABI
bool isWorkMemory(const std::string& name);  ///< whose contents are nobody's business

} // namespace tarn::test::digest
