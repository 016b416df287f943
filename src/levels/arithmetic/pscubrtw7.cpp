// Kernels of cube roots.
#include "levels/arithmetic/pscubrt.h"

#include "frame/narrow_float.h"
#include "frame/rounding.h"
#include "frame/simd_cbrt.h"
#include "frame/simd_extended_root.h"
#include "frame/walk_groups.h"

namespace tarn {
namespace {

// What is left over of the groups: the same root, and two more of Newton's steps in the extended format, after which
// rounding to single precision is the only error.
struct CubeRootByItself {
    TARN_INLINE Tarn32f operator()(Tarn32f x) const
    {
        const Tarn32f root = cubeRoot(x);
        if (root == 0 || !(std::fabs(root) <= highest<Tarn32f>)) {
            return root;
        }
        return static_cast<Tarn32f>(step(step(root, x), x));
    }

private:
    static TARN_INLINE Extended step(Extended y, Extended x) { return y - (y * y * y - x) / (3 * y * y); }
};

constexpr int rootsAtOnce = 4;

// With one more step in double precision the root is the nearest float, so that cubes have their roots and ties are
// told from what is next to them.
struct ScaledCubeRoot {
    Tarn32f factor;

    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        const auto number = convert<Tarn64f>(x);
        using P = std::remove_const_t<decltype(number)>;
        const auto estimate = widen(cubeRoot(convert<Tarn32f>(x)));
        const auto square = mul(estimate, estimate);
        const auto excess = sub(mul(square, estimate), number);
        const auto refined = sub(estimate, tarn::div(excess, mul(square, splat<P>(3))));
        const auto root = narrowFloat(tarn::select(equal(number, splat<P>(0)), number, refined));
        return roundedTo<Tarn16s>(mul(root, splat<std::remove_const_t<decltype(root)>>(factor)));
    }
};

} // namespace
} // namespace tarn

using namespace tarn;

void CubeRoot32f_W7(const Tarn32f* pSrc, Tarn32f* pDst, int len)
{
    const StandardArithmetic standard;
    const NearestExtended nearest;
    walkGroups<rootsAtOnce>(pDst, len, 0, cubeRoot, CubeRootByItself{}, pSrc);
}

void CubeRoot32s16s_W7(const Tarn32s* pSrc, Tarn16s* pDst, int len, Tarn32f factor)
{
    const StandardArithmetic standard;
    walk(pDst, len, ScaledCubeRoot{factor}, pSrc);
}
