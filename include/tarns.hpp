// The C++ face of the library: spans and std::complex in, overloads instead of types in names, objects that free
// themselves, errors as exceptions, or as results where there are none (TARNS_NO_EXCEPTIONS, or -fno-exceptions).
#pragma once

#include <tarns/cpp/correlation.hpp>
#include <tarns/cpp/face.hpp>
#include <tarns/cpp/filters.hpp>
#include <tarns/cpp/transforms.hpp>

#include <tarns/cpp/vectors/arithmetic.hpp>
#include <tarns/cpp/vectors/convert.hpp>
#include <tarns/cpp/vectors/cplx.hpp>
#include <tarns/cpp/vectors/data.hpp>
#include <tarns/cpp/vectors/divide.hpp>
#include <tarns/cpp/vectors/exponential.hpp>
#include <tarns/cpp/vectors/generators.hpp>
#include <tarns/cpp/vectors/goertzel.hpp>
#include <tarns/cpp/vectors/logic.hpp>
#include <tarns/cpp/vectors/magnitude.hpp>
#include <tarns/cpp/vectors/multiply.hpp>
#include <tarns/cpp/vectors/norms.hpp>
#include <tarns/cpp/vectors/polar.hpp>
#include <tarns/cpp/vectors/roots.hpp>
#include <tarns/cpp/vectors/sampling.hpp>
#include <tarns/cpp/vectors/sort.hpp>
#include <tarns/cpp/vectors/spectrum.hpp>
#include <tarns/cpp/vectors/statistics.hpp>
#include <tarns/cpp/vectors/subtract.hpp>
#include <tarns/cpp/vectors/threshold.hpp>
#include <tarns/cpp/vectors/windows.hpp>
