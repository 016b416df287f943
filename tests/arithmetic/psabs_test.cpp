// Absolute values: wide integers that saturate, and floats without their sign bits.
#include "tarns/roots.h"

#include "model/scale.h"
#include "support/checks.h"
#include "support/sweep.h"

#include <cstdlib>

namespace tarn::test {
namespace {

TEST(Absolute, IntegersSaturate)
{
    const auto sweep = []<class T>(TarnStatus (*outOfPlace)(const T*, T*, int), TarnStatus (*inPlace)(T*, int)) {
        const auto model = [](T x) { return model::saturated<T>(std::llabs(static_cast<long long>(x))); };
        sweepElementwise<T, T>(outOfPlace, model);
        sweepInPlace<T>(inPlace, model);
    };
    sweep(tarnsAbs_16s, tarnsAbs_16s_I);
    sweep(tarnsAbs_32s, tarnsAbs_32s_I);
}

// As words, so that no NaN loses its bits on the way.
template <class T>
void sweepFloats(TarnStatus (*outOfPlace)(const T*, T*, int), TarnStatus (*inPlace)(T*, int))
{
    using Bits = BitsOf<T>;
    const auto columns = [] {
        Columns<Bits> bits;
        const auto values = makeColumns<T>();
        for (const T x : std::get<0>(values))
            std::get<0>(bits).push_back(std::bit_cast<Bits>(x));
        // Signalling NaNs of either sign.
        constexpr Bits quiet = Bits{1} << (sizeof(T) == 4 ? 22 : 51);
        const Bits quietNan = std::bit_cast<Bits>(std::numeric_limits<T>::quiet_NaN());
        std::get<0>(bits).push_back((quietNan & ~quiet) | 1);
        std::get<0>(bits).push_back(~(quietNan & quiet));
        return bits;
    }();
    const auto model = [](Bits x) { return static_cast<Bits>(x << 1 >> 1); };
    sweepElementwise<Bits, Bits>(
        [=](const Bits* src, Bits* dst, int len) {
            return outOfPlace(reinterpret_cast<const T*>(src), reinterpret_cast<T*>(dst), len);
        },
        model, {}, columns);
    sweepInPlace<Bits>([=](Bits* x, int len) { return inPlace(reinterpret_cast<T*>(x), len); }, model, {}, columns);
}

TEST(Absolute, FloatsLoseTheirSignBitAlone)
{
    sweepFloats(tarnsAbs_32f, tarnsAbs_32f_I);
    sweepFloats(tarnsAbs_64f, tarnsAbs_64f_I);
}

TEST(Absolute, ChecksInOrder)
{
    expectChecks(tarnsAbs_16s);
    expectChecks(tarnsAbs_32s);
    expectChecks(tarnsAbs_32f);
    expectChecks(tarnsAbs_64f);
    expectChecks(tarnsAbs_16s_I);
    expectChecks(tarnsAbs_32s_I);
    expectChecks(tarnsAbs_32f_I);
    expectChecks(tarnsAbs_64f_I);
}

} // namespace
} // namespace tarn::test
