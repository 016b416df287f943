// Written by scripts/cpp-face.
#pragma once

#include <tarns/cpp/vectors/arithmetic.hpp>
#include <tarns/cpp/vectors/companding.hpp>
#include <tarns/cpp/vectors/convert.hpp>
#include <tarns/cpp/vectors/cplx.hpp>
#include <tarns/cpp/vectors/data.hpp>
#include <tarns/cpp/vectors/divide.hpp>
#include <tarns/cpp/vectors/exponential.hpp>
#include <tarns/cpp/vectors/generators.hpp>
#include <tarns/cpp/vectors/goertzel.hpp>
#include <tarns/cpp/vectors/logic.hpp>
#include <tarns/cpp/vectors/magnitude.hpp>
#include <tarns/cpp/vectors/median.hpp>
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
#include <tarns/cpp/vectors/update.hpp>
#include <tarns/cpp/vectors/windows.hpp>
