// Functions whose state is the caller's: medians of a window, single bins, the steps of a decoder.
#include "fuzz/states/targets.h"

#include <tarns.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <numbers>
#include <vector>

namespace tarn::test::fuzz {
namespace {

using digest::Real;

template <class T>
std::vector<T> copyOf(const Elements& elements)
{
    std::vector<T> values(elements.byteSize() / sizeof(T));
    if (!values.empty())
        std::memcpy(values.data(), elements.bytes(), elements.byteSize());
    return values;
}

template <class T>
void medians(Bytes& bytes, digest::Element element, TarnStatus (*filter)(const T*, T*, int, int),
             TarnStatus (*filterInPlace)(T*, int, int))
{
    const int len = bytes.hostile(0, bytes.byte() % 4 == 0 ? 700 : 40) % 1000;
    const int mask = bytes.byte() % 4 == 0 ? bytes.hostile(0, 100) % 3000 : bytes.between(1, 12);
    Random random = bytes.random();
    Elements source(element, static_cast<std::size_t>(std::max(len, 0)), bytes);
    source.fill(random, bytes.flag() ? Values::unit : Values::random); // no NaN: a window with one has no median
    Elements result(element, source.size(), bytes);
    Elements inPlace(element, source.size(), bytes);
    if (source.size() > 0)
        std::memcpy(inPlace.bytes(), source.bytes(), source.byteSize());
    const TarnStatus status = filter(source.as<T>(), result.as<T>(), len, mask);
    require(filterInPlace(inPlace.as<T>(), len, mask) == status, "two forms answer otherwise");
    require((status < 0) == (len < 1 || mask < 1), "a length or a mask is taken or refused");
    if (status >= 0) {
        require(inPlace.hash() == result.hash(), "in place the result is another");
        const std::vector<T> x = copyOf<T>(source);
        const std::vector<T> y = copyOf<T>(result);
        const bool even = mask % 2 == 0 && status == tarnStsNoErr; // elements of 32 bits have even windows
        const int before = even ? mask / 2 : (mask - 1) / 2;
        const int width = even ? mask : 2 * before + 1;
        for (int check = 0; check < 5 && len > 2 && width > 1; ++check) {
            const int n = bytes.between(1, len - 2);
            std::vector<T> window;
            for (int i = n - before; i < n - before + width; ++i)
                window.push_back(x[static_cast<std::size_t>(std::clamp(i, 0, len - 1))]);
            std::sort(window.begin(), window.end());
            require(window[static_cast<std::size_t>(width / 2)] == y[static_cast<std::size_t>(n)], "no median");
        }
    }
    for (const Elements* array : {&source, &result, &inPlace})
        requireWhole(*array);
}

// -- Viterbi ----------------------------------------------------------------------------------------------------------

/// Tables between guards.
struct Trellis {
    int states;
    GuardedArray<Tarn32u> errors{16, Placement::atEnd()};
    GuardedArray<Tarn32u> branches;
    GuardedArray<Tarn16u> metrics, newMetrics;
    GuardedArray<Tarn8u> next;
    GuardedArray<Tarn32u> survivors;

    explicit Trellis(int numStates)
        : states(numStates), branches(count() / 2, Placement::atEnd()), metrics(count(), Placement::atEnd()),
          newMetrics(count(), Placement::atStart()), next(count() * count() / 4, Placement::atEnd()),
          survivors(count(), Placement::atEnd())
    {
        for (std::size_t i = 0; i < count(); ++i) {
            metrics.set(i, 0);
            newMetrics.set(i, 65535);
        }
    }
    std::size_t count() const { return static_cast<std::size_t>(states); }
};

void decodeStep(Trellis& trellis, Bytes& bytes, const std::array<Tarn8u, 16>& map)
{
    for (int point = 0; point < 2; ++point) {
        const Tarn16sc received = {static_cast<Tarn16s>(bytes.between(-32768, 32767)),
                                   static_cast<Tarn16s>(bytes.between(-32768, 32767))};
        Tarn16sc base{};
        require(tarnsGetVarPointDV_16sc(&received, &base, trellis.errors.data() + 8 * point, map.data(),
                                        trellis.states) == tarnStsNoErr,
                "a point is refused");
    }
    for (std::size_t i = 0; i < 16; ++i) // a map that leaves subsets out leaves their errors as they were
        trellis.errors.set(i, trellis.errors.get(i) & 0xFFFFFFu);
    require(tarnsBuildSymblTableDV4D_16sc(trellis.errors.data(), trellis.branches.data(), trellis.states,
                                          bytes.hostile(0, 3)) == tarnStsNoErr,
            "errors are refused");
    require(tarnsCalcStatesDV_16sc(trellis.metrics.data(), trellis.next.data(), trellis.newMetrics.data(),
                                   trellis.branches.data(), trellis.survivors.data(), trellis.states,
                                   0) == tarnStsNoErr,
            "a step is refused");
    const std::vector<Tarn16u> reached = trellis.newMetrics.copy();
    Tarn16u smallest = 0;
    Tarn8u state = 0;
    require(tarnsUpdatePathMetricsDV_16u(trellis.newMetrics.data(), &smallest, &state, trellis.metrics.data(),
                                         trellis.states) == tarnStsNoErr,
            "metrics are refused");
    const auto best = std::min_element(reached.begin(), reached.end());
    require(*best == smallest && best - reached.begin() == state, "another state is the best one");
    for (std::size_t i = 0; i < trellis.count(); ++i)
        require(trellis.metrics.get(i) == reached[i] - smallest && trellis.newMetrics.get(i) == 65535,
                "metrics are not what they were less the smallest");
}

} // namespace

void driveMedian(Bytes& bytes)
{
    switch (bytes.byte() % 5) {
    case 0:
        return medians<Tarn8u>(bytes, {Real::u8, 1}, tarnsFilterMedian_8u, tarnsFilterMedian_8u_I);
    case 1:
        return medians<Tarn16s>(bytes, {Real::s16, 1}, tarnsFilterMedian_16s, tarnsFilterMedian_16s_I);
    case 2:
        return medians<Tarn32s>(bytes, {Real::s32, 1}, tarnsFilterMedian_32s, tarnsFilterMedian_32s_I);
    case 3:
        return medians<Tarn32f>(bytes, {Real::f32, 1}, tarnsFilterMedian_32f, tarnsFilterMedian_32f_I);
    default:
        return medians<Tarn64f>(bytes, {Real::f64, 1}, tarnsFilterMedian_64f, tarnsFilterMedian_64f_I);
    }
}

void driveGoertzel(Bytes& bytes)
{
    const int len = bytes.hostile(0, 400) % 1000;
    const bool tame = bytes.byte() % 4 != 0;
    Random random = bytes.random();
    const Tarn64f rFreq = bytes.byte() % 8 == 0 ? randomValue<Tarn64f>(random) : bytes.between(0, 999) * 0.001;
    Elements source({Real::f64, 2}, static_cast<std::size_t>(std::max(len, 0)), bytes);
    source.fill(random, tame ? Values::unit : Values::mixed);
    Tarn64fc bin{7, 7};
    const TarnStatus status = tarnsGoertz_64fc(source.as<Tarn64fc>(), len, &bin, rFreq);
    const bool within = rFreq >= 0 && rFreq < 1;
    require((status == tarnStsNoErr) == (len >= 1 && within), "a length or a frequency is taken or refused");
    requireWhole(source);
    if (status != tarnStsNoErr)
        return require(bin.re == 7 && bin.im == 7, "a call that failed gave a bin");
    if (!tame)
        return;
    const std::vector<Tarn64fc> x = copyOf<Tarn64fc>(source);
    double re = 0;
    double im = 0;
    for (std::size_t n = 0; n < x.size(); ++n) { // turned by the phase behind the last sample
        const double turns = rFreq * static_cast<double>(x.size() - n);
        const double angle = 2 * std::numbers::pi * (turns - std::floor(turns));
        re += x[n].re * std::cos(angle) - x[n].im * std::sin(angle);
        im += x[n].re * std::sin(angle) + x[n].im * std::cos(angle);
    }
    const double bound = 1e-15 * len * len + 1e-13 * len;
    require(std::abs(bin.re - re) < 4 * bound && std::abs(bin.im - im) < 4 * bound, "another bin");
}

void driveViterbi(Bytes& bytes)
{
    Trellis trellis(bytes.pick({16, 32, 64}));
    Random random = bytes.random();
    for (std::size_t i = 0; i < trellis.next.size(); ++i) // some branches lead to no state, and are passed over
        trellis.next.set(i, static_cast<Tarn8u>(random.below(trellis.count() + 1)));
    std::array<Tarn8u, 16> map;
    for (Tarn8u& subset : map)
        subset = static_cast<Tarn8u>(bytes.byte());
    for (int step = 0; step < 50 && !bytes.empty(); ++step)
        decodeStep(trellis, bytes, map);
    for (const GuardedBytes* table :
         {static_cast<const GuardedBytes*>(&trellis.errors), static_cast<const GuardedBytes*>(&trellis.branches),
          static_cast<const GuardedBytes*>(&trellis.metrics), static_cast<const GuardedBytes*>(&trellis.newMetrics),
          static_cast<const GuardedBytes*>(&trellis.survivors)})
        requireWhole(*table);
}

} // namespace tarn::test::fuzz
