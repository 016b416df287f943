// Sweeps of scaled functions over all scale factors that matter, in the four forms of the element-wise families.
//
//     sweepScaled<Tarn16s>(tarnsMul_16s_Sfs, tarnsMul_16s_ISfs, {.down = 30, .up = 15},
//                          [](Tarn16s a, Tarn16s b, int s) { ... });
//     sweepScaledConstant<Tarn16s>(tarnsMulC_16s_Sfs, tarnsMulC_16s_ISfs, {.down = 30, .up = 15}, {1, 0, 32767},
//                                  [](Tarn16s a, Tarn16s val, int s) { ... });
#pragma once

#include "support/sweep.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn::test {

/// The last factors on either side that leave a choice: above `down` all is 0, below -`up` the sign decides.
struct ScaleRange {
    int down;
    int up;

    std::vector<int> factors() const { return scaleFactors(-up, down); }
    /// Every kernel at every length and address once, its further factors at some.
    Depth depth(int s) const
    {
        return s == 0 || s == 1 || s == 2 || s == -1 || s == -up - 1 || s == down + 1 ? Depth::full : Depth::quick;
    }
};

/// `model(T a, T b, int s) -> T`; `a` is of the first source, or of `pSrc` in place.
template <class T, class OutOfPlace, class InPlace, class Model>
void sweepScaled(OutOfPlace outOfPlace, InPlace inPlace, ScaleRange range, Model model)
{
    for (const int s : range.factors()) {
        SCOPED_TRACE(s);
        const auto atScale = [&](T a, T b) { return model(a, b, s); };
        sweepElementwise<T, T, T>(
            [&](const T* a, const T* b, T* dst, int len) { return outOfPlace(a, b, dst, len, s); }, atScale,
            {.depth = range.depth(s)});
        sweepInPlace<T, T>([&](const T* a, T* srcDst, int len) { return inPlace(a, srcDst, len, s); }, atScale,
                           {.depth = range.depth(s)});
    }
}

/// The first constant at every factor, the others at those of full depth, and at each further one another of them.
template <class T>
std::vector<T> constantsAt(const std::vector<T>& constants, std::size_t turn, Depth depth)
{
    if (depth == Depth::full || constants.size() < 3)
        return constants;
    return {constants[0], constants[1 + turn % (constants.size() - 1)]};
}

/// `model(T element, T val, int s) -> T`.
template <class T, class OutOfPlace, class InPlace, class Model>
void sweepScaledConstant(OutOfPlace outOfPlace, InPlace inPlace, ScaleRange range, const std::vector<T>& constants,
                         Model model)
{
    std::size_t turn = 0;
    for (const int s : range.factors()) {
        SCOPED_TRACE(s);
        const std::vector<T> chosen = constantsAt(constants, turn++, range.depth(s));
        for (const T& val : chosen) {
            const Depth depth = &val == chosen.data() ? range.depth(s) : Depth::quick;
            const auto atScale = [&](T a) { return model(a, val, s); };
            sweepElementwise<T, T>([&](const T* a, T* dst, int len) { return outOfPlace(a, val, dst, len, s); },
                                   atScale, {.name = toText(val), .depth = depth});
            sweepInPlace<T>([&](T* srcDst, int len) { return inPlace(val, srcDst, len, s); }, atScale,
                            {.name = toText(val), .depth = depth});
        }
    }
}

/// Functions without a scale. `model(T a, T b) -> T`.
template <class T, class OutOfPlace, class InPlace, class Model>
void sweepBoth(OutOfPlace outOfPlace, InPlace inPlace, Model model, const SweepOptions& options = {})
{
    sweepElementwise<T, T, T>(outOfPlace, model, options);
    sweepInPlace<T, T>(inPlace, model, options);
}

/// `model(T element, T val) -> T`.
template <class T, class OutOfPlace, class InPlace, class Model>
void sweepBothConstant(OutOfPlace outOfPlace, InPlace inPlace, const std::vector<T>& constants, Model model)
{
    for (const T& val : constants) {
        const SweepOptions options{.name = toText(val), .depth = Depth::quick};
        const auto withConstant = [&](T a) { return model(a, val); };
        sweepElementwise<T, T>([&](const T* a, T* dst, int len) { return outOfPlace(a, val, dst, len); }, withConstant,
                               options);
        sweepInPlace<T>([&](T* srcDst, int len) { return inPlace(val, srcDst, len); }, withConstant, options);
    }
}

} // namespace tarn::test
