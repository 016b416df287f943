// The butterflies of the power-of-two transforms, for single elements and for vectors of them.
#pragma once

#include "frame/simd_apart.h"

namespace tarn::fft {

// The working arrangement and all tables are in blocks of complex elements: 16 bytes of real parts, then as many of
// imaginary parts, whatever the width of the vectors.
inline constexpr int blockBytes = 16;
template <typename T>
inline constexpr int blockLanes = blockBytes / static_cast<int>(sizeof(T));
template <typename T>
using BlockPart = Pack<T, blockLanes<T>>;
template <typename T>
using Block = Complex<BlockPart<T>>;

template <typename T>
TARN_INLINE Block<T> loadBlock(const T* p)
{
    return {loadAligned<blockLanes<T>>(p), loadAligned<blockLanes<T>>(p + blockLanes<T>)};
}
template <typename T>
TARN_INLINE void storeBlock(T* p, Block<T> x)
{
    storeAligned(p, x.re);
    storeAligned(p + blockLanes<T>, x.im);
}

template <typename X>
using Quad = std::array<Complex<X>, 4>;

// The product with a twiddle factor. The tables hold the forward factors; an inverse transform takes their conjugates.
template <bool forward, typename X>
TARN_INLINE Complex<X> rotate(Complex<X> x, Complex<X> w)
{
    if constexpr (forward) {
        return times(x, w);
    } else {
        return timesConjugate(x, w);
    }
}

// a + W b and a - W b, where W is the quarter turn of the direction, -i forward and i inverse.
template <bool forward, typename X>
TARN_INLINE Complex<X> plusQuarterTurn(Complex<X> a, Complex<X> b)
{
    if constexpr (forward) {
        return minusTurned(a, b);
    } else {
        return plusTurned(a, b);
    }
}
template <bool forward, typename X>
TARN_INLINE Complex<X> minusQuarterTurn(Complex<X> a, Complex<X> b)
{
    return plusQuarterTurn<!forward>(a, b);
}

// The transform of four elements that come in bit-reversed order.
template <bool forward, typename X>
TARN_INLINE Quad<X> fourPoint(Quad<X> x)
{
    const Complex<X> s0 = x[0] + x[1];
    const Complex<X> s1 = x[0] - x[1];
    const Complex<X> t0 = x[2] + x[3];
    const Complex<X> t1 = x[2] - x[3];
    return {s0 + t0, plusQuarterTurn<forward>(s1, t1), s0 - t0, minusQuarterTurn<forward>(s1, t1)};
}

// The same of elements that are registers of interleaved pairs.
template <bool forward, typename X>
TARN_INLINE std::array<X, 4> fourPointPairs(const std::array<X, 4>& x)
{
    const X s0 = add(x[0], x[1]);
    const X s1 = sub(x[0], x[1]);
    const X t0 = add(x[2], x[3]);
    const X t1 = swapParts(sub(x[2], x[3]));
    const X minus = subAdd(s1, invertSigns(t1));
    const X plus = subAdd(s1, t1);
    return {add(s0, t0), forward ? minus : plus, sub(s0, t0), forward ? plus : minus};
}

// A butterfly on the four packs of N elements that load(i) gives. Within a stage the quarters are in bit-reversed
// order, hence W(2k) for the second and W(k) for the third; factors(i) has W((i + 1) k). Results go to put(quarter's
// number, value).
template <bool forward, typename Load, typename Factors, typename Put>
TARN_INLINE void butterfly(Load load, Factors factors, Put put)
{
    const auto c = rotate<forward>(load(2), factors(0));
    const auto d = rotate<forward>(load(3), factors(2));
    const auto t0 = c + d;
    const auto t1 = c - d;
    const auto b = rotate<forward>(load(1), factors(1));
    const auto a = load(0);
    const auto s0 = a + b;
    const auto s1 = a - b;
    put(0, s0 + t0);
    put(2, s0 - t0);
    put(1, plusQuarterTurn<forward>(s1, t1));
    put(3, minusQuarterTurn<forward>(s1, t1));
}

// The eighth roots W8^0 to W8^3 that join two transforms of four points into one of eight: real parts, then imaginary
// parts.
template <typename T>
struct EighthRoots {
    alignas(blockBytes) T re[4];
    alignas(blockBytes) T im[4];

    TARN_INLINE Complex<BlockPart<T>> block(int first) const
    {
        return {loadAligned<blockLanes<T>>(re + first), loadAligned<blockLanes<T>>(im + first)};
    }
};

// The single-precision root is one unit above the float nearest to sqrt(1/2), bits 0x3F3504F4: the transforms' results
// have depended on that value ever since.
template <typename T>
inline constexpr T rootOfHalf = static_cast<T>(0.7071067811865475);
template <>
inline constexpr Tarn32f rootOfHalf<Tarn32f> = 0.70710683f;

template <typename T>
inline constexpr EighthRoots<T> TwdTbl_03 = {{1, rootOfHalf<T>, 0, -rootOfHalf<T>},
                                             {0, -rootOfHalf<T>, -1, -rootOfHalf<T>}};

} // namespace tarn::fft
