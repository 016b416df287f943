// Sums of multi-rate filters: groups of four outputs, each the sum of its products in order, oldest sample first.
#pragma once

#include "frame/delay_line.h"
#include "frame/simd.h"
#include "frame/walk.h"
#include "levels/fir/psfir_rounding.h"
#include "levels/fir/psfirmr_rates.h"

namespace tarn {

template <typename T>
using GroupOf = Pack<T, outputsOfGroup>;

// -- Taps and samples ------------------------------------------------------------------------------------------------

// The taps of a group's outputs for one sample.
template <typename T>
TARN_INLINE GroupOf<T> loadTaps(const T* taps)
{
    if constexpr (std::min<int>(registerBytes, sizeof(T) * outputsOfGroup) <= regionAlignment) {
        return loadAligned<outputsOfGroup>(taps);
    } else {
        return loadPack<outputsOfGroup>(taps);
    }
}

// Real samples side by side as elements of the taps' type.
template <Float T, typename S>
TARN_INLINE GroupOf<T> loadWindow(const S* p)
{
    if constexpr (std::is_same_v<S, Tarn32s>) {
        return convert<T>(loadPack<outputsOfGroup>(p));
    } else if constexpr (std::is_same_v<T, S> || std::is_same_v<T, Tarn32f>) {
        return loadSamples<outputsOfGroup>(p);
    } else {
        return widen(loadSamples<outputsOfGroup>(p));
    }
}

// Complex parts, likewise.
template <Float T, typename S, int N>
TARN_INLINE Pack<T, N> partsAsTaps(Pack<S, N> x)
{
    if constexpr (std::is_same_v<T, S>) {
        return x;
    } else if constexpr (std::is_same_v<S, Tarn16s>) {
        return partsAsTaps<T>(convert<Tarn32f>(widen(x)));
    } else if constexpr (std::is_same_v<S, Tarn32s>) {
        return convert<T>(x);
    } else {
        return widen(x);
    }
}

// One sample for each output of a group.
template <typename T, typename S>
TARN_INLINE GroupOf<T> gatherSamples(const S* a, const S* b, const S* c, const S* d)
{
    if constexpr (!isComplex<T>) {
        const auto sample = [](const S* p) { return convertedTo<T>(loadElement(p)); };
        if constexpr (std::is_same_v<T, Tarn32f>) {
            return lanesOf(sample(a), sample(b), sample(c), sample(d));
        } else {
            return join(lanesOf(sample(a), sample(b)), lanesOf(sample(c), sample(d)));
        }
    } else {
        const auto asTaps = [](auto x) {
            return reinterpretPack<T>(partsAsTaps<Part<T>>(reinterpretPack<Part<S>>(x)));
        };
        if constexpr (sizeof(S) == sizeof(Tarn32s)) {
            const auto bits = [](const S* p) { return std::bit_cast<Tarn32s>(loadElement(p)); };
            return asTaps(lanesOf(bits(a), bits(b), bits(c), bits(d)));
        } else if constexpr (sizeof(S) == sizeof(Tarn32fc)) {
            return asTaps(join(loadHalves(a, b), loadHalves(c, d)));
        } else {
            return join(join(loadPack<1>(a), loadPack<1>(b)), join(loadPack<1>(c), loadPack<1>(d)));
        }
    }
}

template <typename T, int N>
TARN_INLINE Pack<T, N> tapProducts(Pack<T, N> x, Pack<T, N> taps)
{
    if constexpr (isComplex<T>) {
        return mulComplex(x, taps);
    } else {
        return mul(x, taps);
    }
}
template <typename T>
TARN_INLINE T tapProductOf(T x, T tap)
{
    if constexpr (isComplex<T>) {
        return MulComplex::of(x, tap);
    } else {
        return mul(x, tap);
    }
}

// -- Groups: where the samples of four outputs begin, and their taps --------------------------------------------------

// One window for all: whatever is none of an output's taps is zero.
template <typename T, typename S>
struct SharedWindow {
    const S* window;
    const T* taps;

    static constexpr int atOnce = isDouble<T> ? 2 : 4;

    TARN_INLINE const S* windowOf(int /*output*/) const { return window; }

    // Adds the products of a few samples, the taps of which are known to the compiler.
    TARN_INLINE void addFour(GroupOf<T>& sums, int i) const
    {
        const auto x = loadWindow<T>(window + i);
        const T* const w = taps + outputsOfGroup * i;
        repeat<outputsOfGroup>([&](auto k) __attribute__((always_inline)) {
            sums = add(sums, mul(spreadLane<k>(x), loadTaps(w + outputsOfGroup * k)));
        });
    }
    TARN_INLINE void addOne(GroupOf<T>& sums, int i) const
    {
        const auto x = splat<GroupOf<T>>(convertedTo<T>(loadElement(window + i)));
        sums = add(sums, mul(x, loadTaps(taps + outputsOfGroup * i)));
    }
};

// A window for each output.
template <typename T, typename S>
struct OwnWindows {
    const S* windows[outputsOfGroup];
    const T* taps;

    static constexpr int atOnce = isComplex<T> ? 1 : 2;

    TARN_INLINE const S* windowOf(int output) const { return windows[output]; }

    TARN_INLINE void addFour(GroupOf<T>& sums, int i) const
    {
        const T* const w = taps + outputsOfGroup * i;
        if constexpr (isComplex<T>) {
            for (int k = 0; k < outputsOfGroup; ++k) {
                addOne(sums, i + k);
            }
        } else {
            const auto columns = weave(std::array{loadWindow<T>(windows[0] + i), loadWindow<T>(windows[1] + i),
                                                  loadWindow<T>(windows[2] + i), loadWindow<T>(windows[3] + i)});
            repeat<outputsOfGroup>([&](auto k) __attribute__((always_inline)) {
                sums = add(sums, mul(columns[k], loadTaps(w + outputsOfGroup * k)));
            });
        }
    }
    TARN_INLINE void addOne(GroupOf<T>& sums, int i) const
    {
        const auto x = gatherSamples<T>(windows[0] + i, windows[1] + i, windows[2] + i, windows[3] + i);
        sums = add(sums, tapProducts(x, loadTaps(taps + outputsOfGroup * i)));
    }
};

// Sums of `count` groups of `len` taps. Each waits for its own additions, and several keep the adder busy.
template <int count, typename Group, typename T>
TARN_INLINE void sumGroups(const Group (&groups)[count], int len, GroupOf<T> (&sums)[count])
{
    for (int g = 0; g < count; ++g) {
        sums[g] = splat<GroupOf<T>>(T{});
    }
    int i = 0;
    for (; i <= len - outputsOfGroup; i += outputsOfGroup) {
        repeat<count>([&](auto g) __attribute__((always_inline)) { groups[g].addFour(sums[g], i); });
    }
    for (; i < len; ++i) {
        repeat<count>([&](auto g) __attribute__((always_inline)) { groups[g].addOne(sums[g], i); });
    }
}

// -- The three ways from group to group -------------------------------------------------------------------------------

// Each step of the table is added to the position, the last entry after a cycle.
template <typename T, typename S>
class DirectPhases {
public:
    using Group = SharedWindow<T, S>;

    DirectPhases(const T* tables, const S* samples, const Tarn32s* begin, const Tarn32s* last, Index from, int window)
        : data(samples), table(tables), taps(tables), offsets(begin), offset(begin), end(last), at(from), len(window)
    {
    }
    TARN_INLINE Group next()
    {
        at += *offset++;
        const Group group{data + at, taps};
        taps += outputsOfGroup * len;
        if (offset == end) {
            at += *end;
            offset = offsets;
            taps = table;
        }
        return group;
    }
    Index position() const { return at; }
    int window() const { return len; }

private:
    const S* data;
    const T *table, *taps;
    const Tarn32s *offsets, *offset, *end;
    Index at;
    int len;
};

// Steps count from the cycle's beginning.
template <typename T, typename S>
class IndexedPhases {
public:
    using Group = OwnWindows<T, S>;

    IndexedPhases(const T* tables, const S* samples, const Tarn32s* begin, const Tarn32s* last, Index from, int window)
        : data(samples), table(tables), taps(tables), offsets(begin), offset(begin), end(last), at(from), len(window)
    {
    }
    TARN_INLINE Group next()
    {
        const S* const from = data + at;
        const Group group{{from + offset[0], from + offset[1], from + offset[2], from + offset[3]}, taps};
        offset += outputsOfGroup;
        taps += outputsOfGroup * len;
        if (offset == end) {
            at += *end;
            offset = offsets;
            taps = table;
        }
        return group;
    }
    Index position() const { return at; }
    int window() const { return len; }

private:
    const S* data;
    const T *table, *taps;
    const Tarn32s *offsets, *offset, *end;
    Index at;
    int len;
};

// The same taps for all outputs, whose windows are `step` samples apart.
template <typename T, typename S>
class DecimatingPhases {
public:
    using Group = OwnWindows<T, S>;

    DecimatingPhases(const T* tables, const S* samples, Index from, int window, int inputs)
        : data(samples), taps(tables), at(from), step(inputs), len(window)
    {
    }
    TARN_INLINE Group next()
    {
        const S* const from = data + at;
        at += outputsOfGroup * step;
        return {{from, from + step, from + 2 * step, from + 3 * step}, taps};
    }
    Index position() const { return at; }
    int window() const { return len; }

private:
    const S* data;
    const T* taps;
    Index at, step;
    int len;
};

template <typename S, typename T, typename Finish>
TARN_INLINE void putGroup(S* dst, GroupOf<T> sums, Finish finish)
{
    if constexpr (isComplex<T>) {
        finish.put(reinterpret_cast<Part<S>*>(dst), reinterpretPack<Part<T>>(sums));
    } else {
        finish.put(dst, sums);
    }
}

// -- Kernels ----------------------------------------------------------------------------------------------------------

// A multiple of four outputs, by whole windows.
template <typename T, typename S, typename Phases, typename Finish>
TARN_INLINE Index filterGroups(Phases phases, S* dst, Index count, Finish finish)
{
    using Group = typename Phases::Group;
    constexpr int atOnce = Group::atOnce;
    const int len = phases.window();
    Index groups = count / outputsOfGroup;
    for (; groups >= atOnce; groups -= atOnce) {
        Group together[atOnce];
        for (Group& group : together) {
            group = phases.next();
        }
        GroupOf<T> sums[atOnce];
        sumGroups<atOnce, Group, T>(together, len, sums);
        for (int g = 0; g < atOnce; ++g, dst += outputsOfGroup) {
            putGroup<S, T>(dst, sums[g], finish);
        }
    }
    for (; atOnce > 1 && groups > 0; --groups, dst += outputsOfGroup) {
        const Group alone[1] = {phases.next()};
        GroupOf<T> sums[1];
        sumGroups<1, Group, T>(alone, len, sums);
        putGroup<S, T>(dst, sums[0], finish);
    }
    return phases.position();
}

// Any number of outputs, of samples in front of `end`. Sums stop there: what is missing has no part in them.
template <typename T, typename S, typename Phases, typename Finish>
TARN_INLINE void filterTail(Phases phases, S* dst, Index count, const S* end, Finish finish)
{
    using Group = typename Phases::Group;
    const int len = phases.window();
    for (; count > 0; count -= outputsOfGroup, dst += outputsOfGroup) {
        const Group group[1] = {phases.next()};
        const int outputs = static_cast<int>(std::min<Index>(count, outputsOfGroup));
        GroupOf<T> sums[1];
        if (outputs == outputsOfGroup && end - group[0].windowOf(outputs - 1) >= len) {
            sumGroups<1, Group, T>(group, len, sums);
            putGroup<S, T>(dst, sums[0], finish);
            continue;
        }
        T singly[outputsOfGroup] = {};
        for (int k = 0; k < outputs; ++k) {
            const S* const window = group[0].windowOf(k);
            const auto within = static_cast<int>(std::clamp<Index>(end - window, 0, len));
            for (int i = 0; i < within; ++i) {
                const T x = convertedTo<T>(loadElement(window + i));
                singly[k] = add(singly[k], tapProductOf(x, group[0].taps[outputsOfGroup * i + k]));
            }
        }
        S last[outputsOfGroup];
        putGroup<S, T>(last, loadPack<outputsOfGroup>(singly), finish);
        std::memcpy(static_cast<void*>(dst), last, sizeof(S) * static_cast<std::size_t>(outputs));
    }
}

} // namespace tarn
