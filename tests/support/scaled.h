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

/// The depth for a constant at a factor: the first is swept as the factor is, the others where that is fully, and one
/// and another of them elsewhere; the rest with all values.
inline Depth depthOfConstant(std::size_t constant, std::size_t turn, Depth ofFactor)
{
    if (constant == 0)
        return ofFactor;
    return ofFactor == Depth::full || (constant + turn) % 4 == 0 ? Depth::quick : Depth::values;
}

/// A model of words whose results for all of them are found once, for several sweeps.
template <class T, class Model>
auto tabulated(const Model& model)
{
    if constexpr (std::is_integral_v<T> && sizeof(T) == 2) {
        std::vector<T> results(sweepsAreQuick() ? 0 : detail::everyValue);
        for (std::size_t bits = 0; bits < results.size(); ++bits)
            results[bits] = model(static_cast<T>(bits));
        return [=](T x) { return results.empty() ? model(x) : results[static_cast<std::make_unsigned_t<T>>(x)]; };
    } else {
        return model;
    }
}

/// `model(T element, T val, int s) -> T`.
template <class T, class OutOfPlace, class InPlace, class Model>
void sweepScaledConstant(OutOfPlace outOfPlace, InPlace inPlace, ScaleRange range, const std::vector<T>& constants,
                         Model model)
{
    std::size_t turn = 0;
    for (const int s : range.factors()) {
        SCOPED_TRACE(s);
        for (const T& val : constants) {
            const auto constant = static_cast<std::size_t>(&val - constants.data());
            const SweepOptions options{.name = toText(val), .depth = depthOfConstant(constant, turn, range.depth(s))};
            const auto atScale = tabulated<T>([&](T a) { return model(a, val, s); });
            sweepElementwise<T, T>([&](const T* a, T* dst, int len) { return outOfPlace(a, val, dst, len, s); },
                                   atScale, options);
            sweepInPlace<T>([&](T* srcDst, int len) { return inPlace(val, srcDst, len, s); }, atScale, options);
        }
        ++turn;
    }
}

/// Functions without a scale. `model(T a, T b) -> T`.
template <class T, class OutOfPlace, class InPlace, class Model>
void sweepBoth(OutOfPlace outOfPlace, InPlace inPlace, Model model, const SweepOptions& options = {})
{
    sweepElementwise<T, T, T>(outOfPlace, model, options);
    sweepInPlace<T, T>(inPlace, model, options);
}

/// `model(T element, T val) -> T`. The first constant has a depth of its own.
template <class T, class OutOfPlace, class InPlace, class Model>
void sweepBothConstant(OutOfPlace outOfPlace, InPlace inPlace, const std::vector<T>& constants, Model model,
                       Depth first)
{
    for (const T& val : constants) {
        const SweepOptions options{.name = toText(val), .depth = &val == constants.data() ? first : Depth::quick};
        const auto withConstant = [&](T a) { return model(a, val); };
        sweepElementwise<T, T>([&](const T* a, T* dst, int len) { return outOfPlace(a, val, dst, len); }, withConstant,
                               options);
        sweepInPlace<T>([&](T* srcDst, int len) { return inPlace(val, srcDst, len); }, withConstant, options);
    }
}

} // namespace tarn::test
