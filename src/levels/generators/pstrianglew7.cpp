// Kernels of the triangle generators.
#include "levels/generators/pstriangle.h"

#include "frame/phase.h"
#include "frame/simd.h"

namespace tarn {

namespace {

double wrappedOnce(double phase) { return phase > twoPi ? phase - twoPi : phase; }

} // namespace

template <typename T>
void triangleDirect(T* dst, int len, Triangle triangle)
{
    using Lane = LaneOf<T>;
    constexpr int laneCount = 4;
    constexpr int parts = isComplex<T> ? 2 : 1;
    constexpr int group = laneCount / parts;
    using P = Pack<Lane, laneCount>;

    const double falling = pi + triangle.asym;
    const double rising = pi - triangle.asym;
    const double w = twoPi * triangle.freq;
    const double quadrature = wrappedOnce(triangle.phase + (3 * pi + triangle.asym) / 2);
    std::array<Lane, laneCount> start;
    for (int i = 0; i < laneCount; ++i) {
        const double phase = i % parts == 0 ? triangle.phase : quadrature;
        const int sample = i / parts;
        start[static_cast<std::size_t>(i)] = static_cast<Lane>(wrappedOnce(phase + sample * w));
    }

    const auto all = [](double x) { return splat<P>(static_cast<Lane>(x)); };
    const P turn = all(twoPi);
    const P trough = all(falling);
    const P slopeDown = all(-2 * triangle.magn / falling);
    const P slopeUp = all(2 * triangle.magn / rising);
    const P interceptDown = all(triangle.magn);
    const P interceptUp = all(-triangle.magn * (3 * pi + triangle.asym) / rising);
    const P step = all(wrappedOnce(group * w));
    P phases = loadPack<laneCount>(start.data());
    const auto next = [&] {
        phases = select(greater(phases, turn), sub(phases, turn), phases);
        const auto rises = greater(phases, trough);
        const P y = add(mul(select(rises, slopeUp, slopeDown), phases), select(rises, interceptUp, interceptDown));
        phases = add(phases, step);
        return y;
    };

    int n = 0;
    for (; n <= len - group; n += group) {
        storeSamples(reinterpret_cast<Part<T>*>(dst + n), next());
    }
    if (n < len) {
        T rest[group];
        storeSamples(reinterpret_cast<Part<T>*>(rest), next());
        std::memcpy(static_cast<void*>(dst + n), rest, static_cast<std::size_t>(len - n) * sizeof(T));
    }
}

WalkingTriangle startTriangle(Triangle triangle)
{
    const double m = triangle.magn;
    const double falling = pi + triangle.asym;
    const double rising = pi - triangle.asym;
    WalkingTriangle start{};
    TriangleWalker& walker = start.walker;
    walker.down = -4 * pi * triangle.freq * m / falling;
    walker.up = 4 * pi * triangle.freq * m / rising;
    walker.factorBelow = -(falling / rising);
    walker.offsetBelow = -(falling / rising) * m - m;
    walker.factorAbove = -(rising / falling);
    walker.offsetAbove = rising / falling * m + m;
    walker.periodFalling = 4 * pi * m / falling;
    walker.periodRising = -4 * pi * m / rising;
    start.rising = triangle.phase >= falling;
    walker.step = start.rising ? walker.up : walker.down;
    walker.value =
        start.rising ? (2 * (triangle.phase - falling) / rising - 1) * m : (1 - 2 * triangle.phase / falling) * m;
    return start;
}

WalkingTriangle triangleQ15(Tarn16s* dst, int len, double magn, WalkingTriangle state)
{
    TriangleWalker& walker = state.walker;
    for (int i = 0; i < len; ++i) {
        store(dst + i, roundedHalfAway(walker.value));
        walker.value += walker.step;
        // A mirrored value beyond the other peak has crossed both: the walk goes on in its direction, a period back.
        if (state.rising == 0 && walker.value < -magn) {
            const double mirrored = walker.factorBelow * walker.value + walker.offsetBelow;
            const bool crossedBoth = mirrored > magn;
            walker.value = crossedBoth ? walker.value + walker.periodFalling : mirrored;
            state.rising = !crossedBoth;
        } else if (state.rising != 0 && walker.value > magn) {
            const double mirrored = walker.factorAbove * walker.value + walker.offsetAbove;
            const bool crossedBoth = mirrored < -magn;
            walker.value = crossedBoth ? walker.value + walker.periodRising : mirrored;
            state.rising = crossedBoth;
        }
        walker.step = state.rising != 0 ? walker.up : walker.down;
    }
    return state;
}

#define TARN_INSTANTIATE_TRIANGLE(T) template void triangleDirect<T>(T*, int, Triangle);

TARN_INSTANTIATE_TRIANGLE(Tarn16s)
TARN_INSTANTIATE_TRIANGLE(Tarn16sc)
TARN_INSTANTIATE_TRIANGLE(Tarn32f)
TARN_INSTANTIATE_TRIANGLE(Tarn32fc)
TARN_INSTANTIATE_TRIANGLE(Tarn64f)
TARN_INSTANTIATE_TRIANGLE(Tarn64fc)

} // namespace tarn
