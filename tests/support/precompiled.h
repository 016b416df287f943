// What nearly every test includes, compiled once for all of them. Tests name what they use all the same.
#pragma once

#include "support/checks.h"
#include "support/compare.h"
#include "support/fpstate.h"
#include "support/guarded.h"
#include "support/hard_values.h"
#include "support/sweep.h"
#include "tarns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <tuple>
#include <vector>
