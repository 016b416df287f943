// All of the vocabulary, and all that is built on it in the frame, in one unit: no word has two meanings.
#include "frame/backwards.h"
#include "frame/constants.h"
#include "frame/counting.h"
#include "frame/factor.h"
#include "frame/flags.h"
#include "frame/kernels.h"
#include "frame/mirror.h"
#include "frame/phase.h"
#include "frame/recurrence.h"
#include "frame/reduce.h"
#include "frame/report.h"
#include "frame/rounding.h"
#include "frame/scale.h"
#include "frame/scale_exact.h"
#include "frame/scale_total.h"
#include "frame/simd.h"
#include "frame/simd_24.h"
#include "frame/simd_angle.h"
#include "frame/simd_apart.h"
#include "frame/simd_approx.h"
#include "frame/simd_cbrt.h"
#include "frame/simd_complex.h"
#include "frame/simd_control.h"
#include "frame/simd_convert.h"
#include "frame/simd_exp.h"
#include "frame/simd_extended.h"
#include "frame/simd_extended_root.h"
#include "frame/simd_float.h"
#include "frame/simd_int.h"
#include "frame/simd_interleave.h"
#include "frame/simd_lanes.h"
#include "frame/simd_memory.h"
#include "frame/simd_move.h"
#include "frame/simd_mul.h"
#include "frame/simd_native.h"
#include "frame/simd_native_moves.h"
#include "frame/simd_neighbours.h"
#include "frame/simd_ordered.h"
#include "frame/simd_pack.h"
#include "frame/simd_parts.h"
#include "frame/simd_permute.h"
#include "frame/simd_round.h"
#include "frame/simd_saturated.h"
#include "frame/simd_shuffle.h"
#include "frame/simd_sign.h"
#include "frame/simd_transpose.h"
#include "frame/two_arrays.h"
#include "frame/walk.h"
#include "frame/walk_groups.h"
#include "frame/walk_singly.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tarn::test {
namespace {

// The list above is whole.
TEST(Vocabulary, StandsInThisUnit)
{
    const std::filesystem::path root = TARNS_SOURCE_DIR;
    std::ifstream file(root / "tests/frame/simd_all_test.cpp");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    int headers = 0;
    for (const auto& entry : std::filesystem::directory_iterator(root / "src/frame")) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with("simd") && name.ends_with(".h")) {
            ++headers;
            EXPECT_NE(std::string::npos, text.find("\"frame/" + name + '"')) << name;
        }
    }
    EXPECT_LT(10, headers);
}

template <typename T, int N>
constexpr int registersOf()
{
    return static_cast<int>(sizeof(Pack<T, N>)) / registerBytes;
}

// A pack has as many elements as it says, in as many registers as they fill, whatever the widest vector is.
TEST(Vocabulary, PacksFillRegisters)
{
    EXPECT_EQ(1, (registersOf<Tarn32f, registerLanes<Tarn32f>>()));
    EXPECT_EQ(2, (registersOf<Tarn32f, 2 * registerLanes<Tarn32f>>()));
    EXPECT_EQ(8, (registersOf<Tarn64fc, 8 * registerLanes<Tarn64fc>>()));
    // A level's registers may be wider than the smallest.
    EXPECT_EQ(0, (registersOf<Tarn16s, lanes<Tarn16s>>()) % TARNS_VECTOR_REGISTERS);
    EXPECT_EQ(vectorBytes, static_cast<int>(sizeof(Vector<Tarn16s>)));
    EXPECT_EQ(vectorBytes, static_cast<int>(sizeof(Vector<Tarn8u>)));
    EXPECT_EQ(3 * vectorBytes, static_cast<int>(sizeof(Pack<Stored24, lanes<Stored24>>)));
}

} // namespace
} // namespace tarn::test
