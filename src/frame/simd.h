// The vocabulary: what a vector register of this level can do, each word for one element and for one vector under one
// name and with the same bits.
#pragma once

#include "frame/simd_convert.h"
#include "frame/simd_float.h"
#include "frame/simd_int.h"
#include "frame/simd_move.h"
#include "frame/simd_pack.h"
