// The vocabulary: what a vector register of this level can do, each word for one element and for one vector under one
// name and with the same bits.
#pragma once

#include "frame/simd_24.h"
#include "frame/simd_complex.h"
#include "frame/simd_control.h"
#include "frame/simd_convert.h"
#include "frame/simd_extended.h"
#include "frame/simd_float.h"
#include "frame/simd_int.h"
#include "frame/simd_interleave.h"
#include "frame/simd_lanes.h"
#include "frame/simd_memory.h"
#include "frame/simd_move.h"
#include "frame/simd_mul.h"
#include "frame/simd_pack.h"
#include "frame/simd_parts.h"
#include "frame/simd_round.h"
#include "frame/simd_saturated.h"
