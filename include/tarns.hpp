// The C++ face of the library: spans and std::complex in, overloads instead of types in names, objects that free
// themselves, errors as exceptions, or as results where there are none (TARNS_NO_EXCEPTIONS, or -fno-exceptions).
#pragma once

#include <tarns/cpp/adaptive.hpp>
#include <tarns/cpp/banks.hpp>
#include <tarns/cpp/correlation.hpp>
#include <tarns/cpp/face.hpp>
#include <tarns/cpp/filters.hpp>
#include <tarns/cpp/transforms.hpp>
#include <tarns/cpp/trellis.hpp>
#include <tarns/cpp/vectors/all.hpp>
