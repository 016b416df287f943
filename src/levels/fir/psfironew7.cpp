// Single-sample kernels of FIR filters with floating taps, and the conversion of their results.
#include "frame/delay_line.h"
#include "levels/data/psconvert_scale.h"
#include "levels/fir/psfir.h"
#include "levels/fir/psfir_taps.h"

using namespace tarn;

namespace {

// -- Dot products -----------------------------------------------------------------------------------------------------

// Below this many taps the products are added in their order; above it two registers of sums are worth their joining.
constexpr int tapsInOrder = 12;

// Sums of x[i] w[i]; len is a multiple of the part count of x for complex data. The taps lie on a boundary of 16 bytes,
// which is what a step takes: the partial sums are part of the result.
template <Float T>
TARN_INLINE T dotProduct(const T* x, const T* w, int len)
{
    constexpr int step = 16 / static_cast<int>(sizeof(T));
    auto first = splat<Pack<T, step>>(0);
    auto second = first;
    int i = 0;
    for (; i <= len - 2 * step; i += 2 * step) {
        first = add(first, mul(loadPack<step>(x + i), loadAligned<step>(w + i)));
        second = add(second, mul(loadPack<step>(x + i + step), loadAligned<step>(w + i + step)));
    }
    if (i <= len - step) {
        first = add(first, mul(loadPack<step>(x + i), loadAligned<step>(w + i)));
        i += step;
    }
    if (i <= len - step / 2) {
        second = add(second, mul(loadHalf<step>(x + i), loadHalf<step>(w + i)));
        i += step / 2;
    }
    T sum = foldLanes(add(first, second), add);
    for (; i < len; ++i) {
        sum = add(sum, mul(loadElement(x + i), w[i]));
    }
    return sum;
}

template <Float T>
T filterWindow(const T* window, const T* taps, const T* /*table*/, int tapsLen)
{
    if (tapsLen >= tapsInOrder) {
        return dotProduct(window, taps, tapsLen);
    }
    T sum = 0;
    for (int i = 0; i < tapsLen; ++i) {
        sum = add(sum, mul(window[i], taps[i]));
    }
    return sum;
}

// The lists of pairs behind the table make each part of the result a dot product of reals.
Tarn32fc filterWindow(const Tarn32fc* window, const Tarn32fc* /*taps*/, const Tarn32f* table, int tapsLen)
{
    const auto* const parts = reinterpret_cast<const Tarn32f*>(window);
    const Tarn32f* const pairs = table + TapLayout<Tarn32fc>::width * tapsLen;
    return {dotProduct(parts, pairs, 2 * tapsLen),
            dotProduct(parts, pairs + TapLayout<Tarn32fc>::listLen(tapsLen), 2 * tapsLen)};
}

// Two sums, since each waits for the one before.
Tarn64fc filterWindow(const Tarn64fc* window, const Tarn64fc* taps, const Tarn64f* /*table*/, int tapsLen)
{
    using X = Pack<Tarn64fc, 1>;
    const auto product = [=](int i) { return mulComplex(loadPack<1>(taps + i), loadPack<1>(window + i)); };
    X even = splat<X>({0, 0});
    X odd = even;
    int i = 0;
    for (; i <= tapsLen - 2; i += 2) {
        even = add(even, product(i));
        odd = add(odd, product(i + 1));
    }
    if (i < tapsLen) {
        even = add(even, product(i));
    }
    Tarn64fc sum;
    store(&sum, add(even, odd));
    return sum;
}

// -- Conversion of one sample -----------------------------------------------------------------------------------------

// 2^-scaleFactor from its exponent field alone, whatever becomes of it outside its range.
template <Float T>
T powerOfScale(int scaleFactor)
{
    if constexpr (std::is_same_v<T, Tarn32f>) {
        return std::bit_cast<Tarn32f>(0x3F800000U - (static_cast<std::uint32_t>(scaleFactor) << 23));
    } else {
        return std::bit_cast<Tarn64f>((std::uint64_t{1023} << 52) -
                                      (static_cast<std::uint64_t>(static_cast<std::int64_t>(scaleFactor)) << 52));
    }
}

// By way of a conversion to 32 bits, which makes the lowest integer of all that does not fit.
template <typename S, Float T>
S resultToSample(T y, int scaleFactor)
{
    if constexpr (std::is_floating_point_v<S>) {
        return static_cast<S>(y);
    } else {
        const T scaled = y * powerOfScale<T>(scaleFactor);
        Tarn32s integer = 0;
        if constexpr (std::is_same_v<T, Tarn32f>) {
            integer = roundToInteger(scaled);
        } else {
            integer = roundToInteger(min(2147483648.0, scaled));
        }
        return narrowSaturated<S>(integer);
    }
}
template <typename S, typename T>
    requires isComplex<S> S resultToSample(T y, int scaleFactor)
    {
        return {resultToSample<Part<S>>(y.re, scaleFactor), resultToSample<Part<S>>(y.im, scaleFactor)};
    }

// -- The kernel -------------------------------------------------------------------------------------------------------

template <typename State, typename S>
TARN_INLINE void filterOne(State* state, S src, S* dst, int scaleFactor)
{
    using T = typename State::Tap;
    const T* const window = enterSample(state->pDlyLine, state->dlyLineIdx, state->tapsLen, convertedTo<T>(src));
    store(dst, resultToSample<S>(filterWindow(window, state->pTaps, state->pTapsX4, state->tapsLen), scaleFactor));
}

template <typename Scale>
struct RoundTo16s {
    Scale scale;
    template <typename X>
    TARN_INLINE auto operator()(X x) const
    {
        // The order of the operands lets a NaN pass, of which the conversion makes the lowest integer.
        return narrowSaturated<Tarn16s>(roundToInteger(min(splat<X>(highest<Tarn16s>), scale(x))));
    }
};

} // namespace

void tarn::convertRounded_64f16s(const Tarn64f* pSrc, Tarn16s* pDst, int len, int scaleFactor)
{
    const ToNearest::Control control;
    withPower<Tarn64f>(scaleFactor, [&](auto scale) { walk(pDst, len, RoundTo16s<decltype(scale)>{scale}, pSrc); });
}

#define TARN_DEFINE_FIR_ONE(NAME, TAIL, S) \
    void NAME(TarnsFIRState##TAIL* pState, S src, S* pDstVal) { filterOne(pState, src, pDstVal, 0); }
#define TARN_DEFINE_FIR_ONE_SFS(NAME, TAIL, S)                                 \
    void NAME(TarnsFIRState##TAIL* pState, S src, S* pDstVal, int scaleFactor) \
    {                                                                          \
        filterOne(pState, src, pDstVal, scaleFactor);                          \
    }

TARN_DEFINE_FIR_ONE(ownFIRSROne_32f, _32f, Tarn32f)
TARN_DEFINE_FIR_ONE(ownFIRSROne_32fc, _32fc, Tarn32fc)
TARN_DEFINE_FIR_ONE_SFS(ownsFIRSROne32f_16s_Sfs, 32f_16s, Tarn16s)
TARN_DEFINE_FIR_ONE_SFS(ownsFIRSROne32fc_16sc_Sfs, 32fc_16sc, Tarn16sc)
TARN_DEFINE_FIR_ONE(ownFIRSROne_64f, _64f, Tarn64f)
TARN_DEFINE_FIR_ONE(ownFIRSROne_64fc, _64fc, Tarn64fc)
TARN_DEFINE_FIR_ONE(ownsFIRSROne64f_32f, 64f_32f, Tarn32f)
TARN_DEFINE_FIR_ONE(ownsFIRSROne64fc_32fc, 64fc_32fc, Tarn32fc)
TARN_DEFINE_FIR_ONE_SFS(ownsFIRSROne64f_32s_Sfs, 64f_32s, Tarn32s)
TARN_DEFINE_FIR_ONE_SFS(ownsFIRSROne64fc_32sc_Sfs, 64fc_32sc, Tarn32sc)
TARN_DEFINE_FIR_ONE_SFS(ownsFIRSROne64f_16s_Sfs, 64f_16s, Tarn16s)
TARN_DEFINE_FIR_ONE_SFS(ownsFIRSROne64fc_16sc_Sfs, 64fc_16sc, Tarn16sc)
