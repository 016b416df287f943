// Kernels of the windows: the weights come from recurrences, whose precision and stride belong to the element type.
#include "levels/generators/pswin.h"

#include "frame/mirror.h"
#include "frame/recurrence.h"

namespace tarn {

namespace {

// The lanes of runs are part of their results: so many of single precision, and half as many of double.
constexpr int singles = 4;

// -- Weights of the sequence y[n] = y[0] cos(n t), on lanes of any type ----------------------------------------------

struct RaisedCosine {
    double pedestal;

    template <typename X>
    TARN_INLINE X operator()(X y) const
    {
        return sub(splat<X>(static_cast<Element<X>>(pedestal)), y);
    }
};

// With y = cos(n t) / 2 and the double-angle rule the weight is (alpha + 1/2) - y - 4 alpha y^2. The sum is formed in
// double: its rounding is what the ends of the double-precision window carry.
struct Blackman {
    double sum;
    double factor;

    explicit Blackman(double alpha) : sum(alpha + 0.5), factor(-4 * alpha) {}

    template <typename X>
    TARN_INLINE X operator()(X y) const
    {
        using E = Element<X>;
        return add(sub(splat<X>(static_cast<E>(sum)), y), mul(splat<X>(static_cast<E>(factor)), mul(y, y)));
    }
};

struct ScaledBlackman {
    Blackman weight;
    Tarn32f scale;

    template <typename X>
    TARN_INLINE X operator()(X y) const
    {
        return mul(weight(y), splat<X>(scale));
    }
};

// -- Runs of the recurrence ------------------------------------------------------------------------------------------

// Starts a run whose lanes repeat each value for the parts of an element: the first two steps come from the one-step
// recurrence in extended precision, which begins with the symmetry y[-1] = y[1].
template <typename P, int parts>
Recurrence<P> startRun(double first, WindowCosines cosines)
{
    constexpr std::size_t count = 2 * laneCount<P>;
    std::array<Element<P>, count> values;
    const long double factor = 2 * static_cast<long double>(cosines.one);
    Recurrence<long double> y{first, factor * first - first * static_cast<long double>(cosines.one), factor};
    for (std::size_t i = 0; i < count; i += parts) {
        const auto value = static_cast<Element<P>>(y.advance());
        for (std::size_t part = 0; part < parts; ++part) {
            values[i + part] = value;
        }
    }
    return recurrenceFrom<P>(values.data(), static_cast<Element<P>>(2 * cosines.stride));
}

// The run's lanes are the lanes that the signal meets.
template <typename P, int parts, typename Weight, typename Rest = long double>
struct LaneRun {
    static constexpr int group = laneCount<P> / parts;
    Recurrence<P> y;
    Weight weight;

    TARN_INLINE P next() { return weight(y.advance()); }

    // In extended precision, from the lanes' values.
    std::array<Rest, group> rest() const
    {
        const auto values = lanesAsArray(y.current);
        std::array<Rest, group> weights;
        for (std::size_t i = 0; i < group; ++i) {
            weights[i] = weight(static_cast<Rest>(values[i * parts]));
        }
        return weights;
    }
};

// Weights formed in double and rounded to single precision, real elements: two steps of two lanes.
template <typename Weight>
struct NarrowedPairRun {
    static constexpr int group = singles;
    Recurrence<Pack<Tarn64f, singles / 2>> y;
    Weight weight;

    TARN_INLINE Pack<Tarn32f, singles> next()
    {
        const auto lo = weight(y.advance());
        return narrowFloat(join(lo, weight(y.advance())));
    }

    std::array<long double, group> rest() const
    {
        const auto values = lanesAsArray(join(y.current, y.following));
        std::array<long double, group> weights;
        for (std::size_t i = 0; i < group; ++i) {
            weights[i] = static_cast<Tarn32f>(weight(static_cast<long double>(values[i])));
        }
        return weights;
    }
};

// The same for complex elements, of which a register holds two.
template <typename Weight>
struct NarrowedSingleRun {
    static constexpr int group = singles / 2;
    Recurrence<Tarn64f> y;
    Weight weight;

    TARN_INLINE Pack<Tarn32f, singles> next()
    {
        const Tarn64f y0 = y.advance();
        const Tarn64f y1 = y.advance();
        const auto w = weight(lanesOf(y0, y1));
        return narrowFloat(twice(w));
    }

    std::array<long double, group> rest() const
    {
        const auto w = static_cast<Tarn32f>(weight(static_cast<long double>(y.current)));
        return {w, w};
    }
};

// A run in extended precision, each value of which is rounded to feed single-precision lanes.
template <int parts, typename Weight>
struct RoundedRun {
    static constexpr int group = singles / parts;
    Recurrence<long double> y;
    Weight weight;

    TARN_INLINE Pack<Tarn32f, singles> next()
    {
        const Tarn32f y0 = static_cast<Tarn32f>(y.advance());
        const Tarn32f y1 = static_cast<Tarn32f>(y.advance());
        if constexpr (parts == 2) {
            return weight(lanesOf(y0, y0, y1, y1));
        } else {
            const Tarn32f y2 = static_cast<Tarn32f>(y.advance());
            return weight(lanesOf(y0, y1, y2, static_cast<Tarn32f>(y.advance())));
        }
    }

    std::array<long double, group> rest() const
    {
        auto run = y;
        std::array<long double, group> weights;
        for (auto& w : weights) {
            w = weight(static_cast<long double>(static_cast<Tarn32f>(run.advance())));
        }
        return weights;
    }
};

// The weights of the triangle, group by group in the precision of the lanes.
template <typename P, int parts>
struct Ramp {
    static constexpr int group = laneCount<P>;
    P current;
    P step;

    explicit Ramp(Element<P> increment) : step(splat<P>(static_cast<Element<P>>(group) * increment))
    {
        std::array<Element<P>, group> values;
        for (int i = 0; i < group; ++i) {
            values[static_cast<std::size_t>(i)] = static_cast<Element<P>>(i) * increment;
        }
        current = fromArray<P>(values.data());
    }

    TARN_INLINE auto next()
    {
        const P now = current;
        current = add(current, step);
        if constexpr (parts == 2) {
            return twice(now);
        } else {
            return now;
        }
    }

    std::array<long double, group> rest() const
    {
        std::array<long double, group> weights;
        const auto values = lanesAsArray(current);
        std::copy(values.begin(), values.end(), weights.begin());
        return weights;
    }
};

// The lanes of a run whose stride is known: a register of single or of double precision.
template <typename T, int stride>
using RunLanes = Pack<LaneOf<T>, stride * partsOf<T>>;

// The triangle's weights go up in steps of 16 bytes of lanes.
template <typename T>
constexpr int rampLanes = 16 / static_cast<int>(sizeof(LaneOf<T>));

// From this many pairs on, single-precision weights of a triangle would drift; a Blackman window runs in extended
// precision altogether.
constexpr int mostPairsOfLaneBlackman = 512;
constexpr int mostPairsOfSingleBartlett = 640;

} // namespace

template <typename T>
void windowRaisedCosine(const T* src, T* dst, int len, RaisedCosineShape shape, WindowCosines cosines)
{
    const RaisedCosine weight{shape.pedestal};
    if constexpr (std::is_same_v<T, Tarn32f>) {
        const auto y = startRun<Pack<Tarn64f, singles / 2>, 1>(shape.amplitude, cosines);
        walkMirrored(src, dst, len, NarrowedPairRun<RaisedCosine>{y, weight});
    } else if constexpr (std::is_same_v<T, Tarn32fc>) {
        walkMirrored(src, dst, len,
                     NarrowedSingleRun<RaisedCosine>{startRun<Tarn64f, 1>(shape.amplitude, cosines), weight});
    } else {
        using P = RunLanes<T, raisedCosineStride<T>>;
        const auto y = startRun<P, partsOf<T>>(shape.amplitude, cosines);
        walkMirrored(src, dst, len, LaneRun<P, partsOf<T>, RaisedCosine>{y, weight});
    }
}

template <typename T>
void windowBlackman(const T* src, T* dst, int len, double alpha, WindowCosines cosines)
{
    const Blackman weight(alpha);
    constexpr bool isFixed = std::is_integral_v<Part<T>>;
    if (!isFixed && len / 2 > mostPairsOfLaneBlackman) {
        auto y = startRun<long double, 1>(0.5, {cosines.one, cosines.one});
        walkMirroredElements(src, dst, len, [&] { return weight(y.advance()); });
    } else if constexpr (isSingle<T>) {
        const auto y = startRun<long double, 1>(0.5, cosines);
        walkMirrored(src, dst, len, RoundedRun<partsOf<T>, Blackman>{y, weight});
    } else {
        using P = RunLanes<T, blackmanStride<T>>;
        const auto y = startRun<P, partsOf<T>>(0.5, cosines);
        walkMirrored(src, dst, len, LaneRun<P, partsOf<T>, Blackman>{y, weight});
    }
    // Single-precision windows end in exact zeros, whatever stood there.
    if constexpr (isSingle<T>) {
        store(dst, T{});
        store(dst + len - 1, T{});
    }
}

template <typename T>
void windowBartlett(const T* src, T* dst, int len)
{
    const auto step = static_cast<LaneOf<T>>(2.0 / (len - 1));
    if (isSingle<T> && len / 2 > mostPairsOfSingleBartlett) {
        long double weight = -static_cast<long double>(step);
        walkMirroredElements(src, dst, len, [&] { return weight += step; });
    } else {
        walkMirrored(src, dst, len, Ramp<Pack<LaneOf<T>, rampLanes<T>>, partsOf<T>>(step));
    }
}

#define TARN_INSTANTIATE_WINDOWS(T)                                                           \
    template void windowRaisedCosine<T>(const T*, T*, int, RaisedCosineShape, WindowCosines); \
    template void windowBlackman<T>(const T*, T*, int, double, WindowCosines);                \
    template void windowBartlett<T>(const T*, T*, int);

TARN_INSTANTIATE_WINDOWS(Tarn16s)
TARN_INSTANTIATE_WINDOWS(Tarn16sc)
TARN_INSTANTIATE_WINDOWS(Tarn32f)
TARN_INSTANTIATE_WINDOWS(Tarn32fc)
TARN_INSTANTIATE_WINDOWS(Tarn64f)
TARN_INSTANTIATE_WINDOWS(Tarn64fc)

} // namespace tarn

void Blacman16s_q15sfs_W7(Tarn16s* pSrcDst, int len, Tarn32f alpha, Tarn32f factor, Tarn64f cosOne, Tarn64f cosStride)
{
    using namespace tarn;
    using P = RunLanes<Tarn16s, blackmanStride<Tarn16s>>;
    const auto y = startRun<P, 1>(0.5, {cosOne, cosStride});
    walkMirrored(pSrcDst, pSrcDst, len,
                 LaneRun<P, 1, ScaledBlackman, Tarn32f>{y, ScaledBlackman{Blackman(alpha), factor}});
    if (len % 2 != 0) {
        Tarn16s* const middle = pSrcDst + len / 2;
        const Tarn32f scaled = static_cast<Tarn32f>(loadElement(middle)) * factor;
        // Beyond 32 bits the conversion would lose the sign.
        store(middle, toSample<Tarn16s>(std::fmin(std::fmax(scaled, lowest<Tarn16s>), highest<Tarn16s>)));
    }
}
