// The block of memory of an IIR state: which regions it has, how large they are and where they lie.
#pragma once

#include "levels/recursive/psiir_blocks.h"

#include <algorithm>

namespace tarn {

// What a state is made for: one section of an order, or sections of order two; and whether its samples have another
// type than its table.
struct IirForm {
    int order;
    int sections;
    bool isConverting;

    constexpr int delay() const { return sections == 0 ? order : sectionOrder * sections; }
};

// Sizes that the 32-bit library reports are part of its interface, without the scratch areas: n is the order, s the
// number of sections. Most are generous.
template <typename T>
struct IirSizes;
template <>
struct IirSizes<Tarn32f> {
    static constexpr long long order(long long n, bool)
    {
        return 4 * (8 * n + 16) + 88 + roundedUp(8 * n + 4) + roundedUp(4 * n + 4) + 16;
    }
    static constexpr long long sections(long long s)
    {
        return 160 * s + 88 + roundedUp(20 * s) + roundedUp(8 * s) + 16;
    }
};
template <>
struct IirSizes<Tarn32fc> {
    static constexpr long long order(long long n, bool)
    {
        return 8 * (16 * n + 36) + 128 + roundedUp(16 * n + 8) + roundedUp(8 * n + 8) + 16;
    }
    static constexpr long long sections(long long s) { return 736 * s + 48 + roundedUp(40 * s) + 16 * s + 16; }
};
template <>
struct IirSizes<Tarn64f> {
    static constexpr long long order(long long n, bool)
    {
        return 8 * (6 * n + 14) + 48 + roundedUp(16 * n + 8) + roundedUp(8 * n + 8) + 16;
    }
    static constexpr long long sections(long long s) { return 256 * s + 48 + roundedUp(40 * s) + 16 * s; }
};
template <>
struct IirSizes<Tarn64fc> {
    static constexpr long long order(long long n, bool isConverting)
    {
        return 16 * (14 * n + 10) + 16 * n * (isConverting ? 2 : 1) + 48 + 48 * n + 48;
    }
    static constexpr long long sections(long long s) { return 1024 * s + 48 + 80 * s + 32 * s + 16; }
};

// Bytes of the regions, each a multiple of the alignment.
template <typename T>
struct IirRegions {
    static constexpr long long size = sizeof(T);
    static constexpr long long documentedFields = 48;
    static constexpr long long fields = std::max<long long>(documentedFields, roundedUp(sizeof(IirFields<T>)));
    static constexpr long long scratch = chunkSamples * size;

    long long taps, delay, tapsX, tapsY, tapsOne, scratches;

    // A list of the taps of sections as the single-sample kernel could want it; the other types have no room for it.
    static constexpr bool hasTapsOne = std::is_same_v<T, Tarn32f>;

    static constexpr IirRegions of(const IirForm& form)
    {
        const long long scratches = form.isConverting ? 2 : 1;
        if (form.sections == 0) {
            const long long n = form.order;
            return {roundedUp(size * (2 * n + 1)),
                    roundedUp(size * (n + 1)),
                    roundedUp(size * Numerators<T>::elements * (n + 1)),
                    n > 0 ? roundedUp(size * ahead * (n + ahead - 1)) : 0,
                    0,
                    scratches};
        }
        const long long s = form.sections;
        return {roundedUp(size * sectionTaps * s),          roundedUp(size * sectionOrder * s),
                roundedUp(size * sectionTapsX<T> * s),      roundedUp(size * sectionTapsY * s),
                hasTapsOne ? size * sectionTapsOne * s : 0, scratches};
    }

    // What a caller is told, which is enough at any address.
    static constexpr long long reported(const IirForm& form)
    {
        const long long regions = form.sections == 0 ? IirSizes<T>::order(form.order, form.isConverting)
                                                     : IirSizes<T>::sections(form.sections);
        return regions + (form.isConverting ? 2 : 1) * scratch + fields - documentedFields;
    }
    constexpr long long total() const { return fields + taps + delay + tapsX + tapsY + tapsOne + scratches * scratch; }

    void place(IirFields<T>* state) const
    {
        RegionPlacer placer(state, fields);
        placer.take(state->pTaps, taps);
        placer.take(state->pDlyLine, delay);
        placer.take(state->pTapsX, tapsX);
        placer.take(state->pTapsY, tapsY);
        placer.take(state->pTapsOne, tapsOne);
        placer.take(state->pTmp, scratch);
        placer.take(state->pTmp2, (scratches - 1) * scratch);
    }
};

// The slack for a caller's memory that begins off a boundary is where the sizes leave least of it.
constexpr bool hasSlack(const IirForm& form)
{
    const auto enough = [](long long reported, long long total) { return reported - total >= regionAlignment - 1; };
    return enough(IirRegions<Tarn32f>::reported(form), IirRegions<Tarn32f>::of(form).total()) &&
           enough(IirRegions<Tarn32fc>::reported(form), IirRegions<Tarn32fc>::of(form).total()) &&
           enough(IirRegions<Tarn64f>::reported(form), IirRegions<Tarn64f>::of(form).total()) &&
           enough(IirRegions<Tarn64fc>::reported(form), IirRegions<Tarn64fc>::of(form).total());
}
static_assert(hasSlack({0, 0, true}) && hasSlack({1, 0, true}) && hasSlack({2, 0, false}) && hasSlack({3, 0, true}));
static_assert(hasSlack({0, 1, true}) && hasSlack({0, 2, false}) && hasSlack({0, 3, true}));

} // namespace tarn
