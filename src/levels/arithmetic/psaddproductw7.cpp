// Kernels that add a product of two vectors to a third one.
#include "levels/arithmetic/psaddproduct.h"

#include "frame/simd_ordered.h"
#include "levels/arithmetic/psproducts.h"

namespace {

using namespace tarn;

struct SumOfWords {
    template <typename X>
    TARN_INLINE auto operator()(X a, X b, X sum) const
    {
        return InLanes{mulAddWidenedInLanes(a, b, sum)};
    }
};

// 33 bits.
struct SumOf32s {
    template <typename X, typename Y>
    TARN_INLINE auto operator()(X a, X b, Y sum) const
    {
        return exactSum(mulWidened(a, b), sum);
    }
};

// The factor is applied to the sum.
struct SumByDoubles {
    template <typename X>
    static TARN_INLINE X plain(X a, X b, X sum)
    {
        return add(mul(a, b), sum);
    }
    template <typename X>
    static TARN_INLINE X scaled(Tarn64f factor, X a, X b, X sum)
    {
        return mul(plain(a, b, sum), splat<X>(factor));
    }
};

struct FloatSum {
    template <typename X>
    TARN_INLINE X operator()(X a, X b, X sum) const
    {
        return addInOrder(mulInOrder(a, b), sum);
    }
};

struct ComplexSum {
    template <typename X>
    TARN_INLINE X operator()(X a, X b, X sum) const
    {
        return addPartsInOrder(mulComplexInOrder(a, b), sum);
    }
};

using Words = ExactCases<Tarn16s, SumOfWords>;
using WordsTo32s = ExactCases<Tarn32s, SumOf32s>;

} // namespace

TARN_DEFINE_SCALED_KERNELS(ownsAddProduct_16s, ACCUMULATE, Tarn16s, Words)
TARN_DEFINE_SCALED_KERNELS(ownsAddProduct_16s32s, ACCUMULATE_32S, Tarn16s, WordsTo32s)
TARN_DEFINE_SCALED_KERNELS_BY_DOUBLES(ownsAddProduct_32s, ACCUMULATE, SumByDoubles)
TARN_DEFINE_KERNEL(ownsAddProduct_16s_Bound, ACCUMULATE, Tarn16s, Words::Sign{})
TARN_DEFINE_KERNEL(tarn::addProductBound_16s32s, ACCUMULATE_32S, Tarn16s, WordsTo32s::Sign{})
TARN_DEFINE_KERNEL(tarn::addProductBound_32s, ACCUMULATE, Tarn32s, SignOfWhole<SumByDoubles>{})

TARN_DEFINE_KERNEL(tarn::addProduct_32f, ACCUMULATE, Tarn32f, FloatSum{})
TARN_DEFINE_KERNEL(tarn::addProduct_64f, ACCUMULATE, Tarn64f, FloatSum{})
TARN_DEFINE_KERNEL(ownsAddProduct_32fc, ACCUMULATE, Tarn32fc, ComplexSum{})
TARN_DEFINE_KERNEL(ownsAddProduct_64fc, ACCUMULATE, Tarn64fc, ComplexSum{})
