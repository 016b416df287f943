// Kernels of convolution.
#include "levels/fir/psconv.h"

#include "levels/fir/pscorr_sums.h"

using namespace tarn;

void ownConv_32f(const Tarn32f* pSrc1, int src1Len, const Tarn32f* pSrc2, int src2Len, Tarn32f* pDst)
{
    addConvolution(pSrc2, src2Len, pSrc1, src1Len, pDst, src1Len - 1 + src2Len);
}

void ownConv_64f(const Tarn64f* pSrc1, int src1Len, const Tarn64f* pSrc2, int src2Len, Tarn64f* pDst)
{
    addConvolution(pSrc2, src2Len, pSrc1, src1Len, pDst, src1Len - 1 + src2Len);
}

namespace {

// A period of a sequence, twice: the elements from any place of the second one back lie in front of it.
template <typename T, int period>
struct TwoPeriods {
    explicit TARN_INLINE TwoPeriods(Pack<T, period> x)
    {
        store(&at[0], x);
        store(&at[period], x);
    }

    T at[2 * period];
};

// The sum over i of pSrc1[i] times the period of s that begins i elements later, in this order.
template <int period, typename S>
TARN_INLINE void convolveCyclic(const Tarn32f* pSrc1, const S* pSrc2, S* pDst)
{
    constexpr int parts = static_cast<int>(sizeof(S) / sizeof(Tarn32f));
    using X = Pack<Tarn32f, period * parts>;
    const TwoPeriods<Tarn32f, period * parts> s(loadPack<X::size>(reinterpret_cast<const Tarn32f*>(pSrc2)));
    X sum = mul(splat<X>(loadElement(pSrc1)), loadPack<X::size>(&s.at[X::size]));
    repeat<period - 1>([&](auto k) {
        constexpr int i = k + 1;
        sum = add(sum, mul(splat<X>(loadElement(pSrc1 + i)), loadPack<X::size>(&s.at[X::size - i * parts])));
    });
    store(reinterpret_cast<Tarn32f*>(pDst), sum);
}

} // namespace

void ownConvCyclic8x8_32f(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst)
{
    convolveCyclic<8>(pSrc1, pSrc2, pDst);
}

void ownConvCyclic4x4_32f32fc(const Tarn32f* pSrc1, const Tarn32fc* pSrc2, Tarn32fc* pDst)
{
    convolveCyclic<4>(pSrc1, pSrc2, pDst);
}

// Every output is the dot product of pSrc1 with a period of the reversed pSrc2.
void ownConvCyclic8x8_16s_Sfs(const Tarn16s* pSrc1, const Tarn16s* pSrc2, Tarn16s* pDst, int scaleFactor)
{
    constexpr int period = 8;
    const auto x = loadPack<period>(pSrc1);
    const TwoPeriods<Tarn16s, period> s(reverse(loadPack<period>(pSrc2)));
    const auto products = [&](int n) __attribute__((always_inline))
    {
        return mulAddPairs(x, loadPack<period>(&s.at[period - 1 - n]));
    };
    auto sums = join(sumsOfLanes(products(0), products(1), products(2), products(3)),
                     sumsOfLanes(products(4), products(5), products(6), products(7)));
    constexpr int width = 32;
    if (scaleFactor > 0) {
        sums = shiftRight(sums, std::min(scaleFactor, width));
    } else {
        sums = shiftLeft(sums, scaleFactor > -width ? -scaleFactor : width);
    }
    store(pDst, narrowSaturated<Tarn16s>(sums));
}
