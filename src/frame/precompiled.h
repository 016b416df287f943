// What nearly every source includes, compiled once for all of them. Sources name what they use all the same.
#pragma once

#include "frame/kernels.h"

#include <algorithm>
#include <array>
#include <bit>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>
