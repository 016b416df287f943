// Kernels of the tone generators.
#include "levels/generators/pstone.h"

#include "frame/phase.h"
#include "frame/precise.h"
#include "frame/recurrence.h"

namespace tarn {

namespace {

// Where `count` of a group's samples go: all of them at once, or, at the end, by way of a copy.
template <typename T, typename P>
TARN_INLINE void storeGroup(T* dst, int count, P samples, auto put)
{
    constexpr int group = laneCount<P> / static_cast<int>(sizeof(T) / sizeof(Part<T>));
    if (count >= group) {
        put(reinterpret_cast<Part<T>*>(dst), samples);
    } else {
        T copy[group];
        put(reinterpret_cast<Part<T>*>(copy), samples);
        std::memcpy(static_cast<void*>(dst), copy, static_cast<std::size_t>(count) * sizeof(T));
    }
}

// Doubles become samples: 16-bit ones are truncated.
struct PutDoubles {
    template <int N>
    TARN_INLINE void operator()(Tarn16s* dst, Pack<Tarn64f, N> x) const
    {
        storeNarrowed(dst, truncateToInteger(x));
    }
    template <int N>
    TARN_INLINE void operator()(Tarn32f* dst, Pack<Tarn64f, N> x) const
    {
        store(dst, narrowFloat(x));
    }
    template <int N>
    TARN_INLINE void operator()(Tarn64f* dst, Pack<Tarn64f, N> x) const
    {
        store(dst, x);
    }
};

// Lanes become samples: 16-bit ones are rounded to nearest.
struct PutLanes {
    template <typename S, typename P>
    TARN_INLINE void operator()(S* dst, P x) const
    {
        storeSamples(dst, x);
    }
};

template <typename T>
constexpr int parts = isComplex<T> ? 2 : 1;

// The first `count` samples from index `first` on as doubles, parts side by side: two true ones, and the rest by the
// one-step recurrence.
template <typename T, int count>
std::array<Tarn64f, count * parts<T>> firstSamples(const Tone& tone, double first, double factor)
{
    std::array<Tarn64f, count * parts<T>> y;
    const double angle = twoPi * tone.freq;
    for (std::size_t n = 0; n < 2; ++n) {
        const double argument = angle * (first + static_cast<double>(n)) + tone.phase;
        y[n * parts<T>] = tone.magn * preciseCosine(argument);
        if constexpr (isComplex<T>) {
            y[n * 2 + 1] = tone.magn * preciseSine(argument);
        }
    }
    for (std::size_t i = 2 * parts<T>; i < y.size(); ++i) {
        y[i] = factor * y[i - parts<T>] - y[i - 2 * parts<T>];
    }
    return y;
}

// How the fast road cuts an array, and how it steps within a block.
template <typename T>
struct FastRoad {
    using Lane = LaneOf<T>;
    static constexpr int block = isDouble<T> ? 2048 : 1024;
    static constexpr int stride = isDouble<T> ? 4 : 8;
    static constexpr int head = 2 * stride;
    using Lanes = Pack<Lane, stride * parts<T>>;

    // 2 cos(stride w) of 2 cos(w).
    static Lane factor(double c)
    {
        const double square = c * c;
        const double fourSteps = square * (square - 4) + 2;
        return static_cast<Lane>(isDouble<T> ? fourSteps : fourSteps * fourSteps - 2);
    }
};

} // namespace

template <typename T>
void toneAccurate(T* dst, int len, Tone tone)
{
    constexpr int group = 4;
    using Pair = Pack<Tarn64f, 2 * parts<T>>;
    const double c = 2 * preciseCosine(twoPi * tone.freq);
    const auto start = firstSamples<T, group>(tone, 0, c);
    auto y = recurrenceFrom<Pair>(start.data(), c * c - 2);
    for (std::ptrdiff_t n = 0; n < len; n += group) {
        const auto lo = y.advance();
        storeGroup(dst + n, static_cast<int>(len - n), join(lo, y.advance()), PutDoubles{});
    }
}

template <typename T>
void toneFast(T* dst, int len, Tone tone)
{
    using Road = FastRoad<T>;
    constexpr int group = Road::stride;
    const double c = 2 * preciseCosine(twoPi * tone.freq);
    const auto factor = Road::factor(c);
    for (int first = 0; first < len; first += std::min(Road::block, len - first)) {
        T* const block = dst + first;
        const int count = std::min(Road::block, len - first);
        const auto head = firstSamples<T, Road::head>(tone, first, c);
        for (int n = 0; n < std::min(count, Road::head); n += group) {
            storeGroup(block + n, count - n, loadPack<group * parts<T>>(head.data() + n * parts<T>), PutDoubles{});
        }
        std::array<typename Road::Lane, head.size()> lanesOfHead;
        std::transform(head.begin(), head.end(), lanesOfHead.begin(),
                       [](double x) { return static_cast<typename Road::Lane>(x); });
        auto y = recurrenceFrom<typename Road::Lanes>(lanesOfHead.data(), factor);
        y.advance();
        y.advance();
        int n = Road::head;
        // Two steps a turn: the two generations of values change places without moving.
#pragma GCC unroll 2
        for (; n <= count - group; n += group) {
            storeSamples(reinterpret_cast<Part<T>*>(block + n), y.advance());
        }
        if (n < count) {
            storeGroup(block + n, count - n, y.advance(), PutLanes{});
        }
    }
}

void toneQ15(Tarn16s* dst, int len, Tone tone, int firstIndex)
{
    const double angle = twoPi * tone.freq;
    for (int i = 0; i < len; ++i) {
        const double index = AddInteger::of(firstIndex, i);
        store(dst + i, roundedHalfAway(tone.magn * preciseCosine(angle * index + tone.phase)));
    }
}

#define TARN_INSTANTIATE_TONES(T)                 \
    template void toneAccurate<T>(T*, int, Tone); \
    template void toneFast<T>(T*, int, Tone);

TARN_INSTANTIATE_TONES(Tarn16s)
TARN_INSTANTIATE_TONES(Tarn16sc)
TARN_INSTANTIATE_TONES(Tarn32f)
TARN_INSTANTIATE_TONES(Tarn32fc)
TARN_INSTANTIATE_TONES(Tarn64f)
TARN_INSTANTIATE_TONES(Tarn64fc)

} // namespace tarn
