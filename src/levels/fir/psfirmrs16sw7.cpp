// Kernels of multi-rate FIR filters with 16-bit taps and samples: sums modulo 2^32, shifted and saturated.
#include "levels/fir/psfir_shift.h"
#include "levels/fir/psfirmr.h"

using namespace tarn;

namespace {

constexpr int samplesAtOnce = 8;
constexpr int samplesOfHalf = samplesAtOnce / 2;
using Sums = Pack<Tarn32s, 4>;

// -- Real sums --------------------------------------------------------------------------------------------------------

// A list of taps for each output of a group, a multiple of four of them.
struct Rows {
    const Tarn16s* rows[outputsOfGroup];
    int len;
};

// Four outputs, each of its own window.
TARN_INLINE Sums sumGroup(const Tarn16s* const (&x)[outputsOfGroup], const Rows& taps)
{
    Sums sums[outputsOfGroup];
    for (Sums& sum : sums) {
        sum = splat<Sums>(0);
    }
    int i = 0;
    for (; i <= taps.len - samplesAtOnce; i += samplesAtOnce) {
        for (int k = 0; k < outputsOfGroup; ++k) {
            sums[k] =
                add(sums[k], mulAddPairs(loadPack<samplesAtOnce>(x[k] + i), loadPack<samplesAtOnce>(taps.rows[k] + i)));
        }
    }
    if (i < taps.len) {
        for (int k = 0; k < outputsOfGroup; ++k) {
            sums[k] =
                add(sums[k], mulAddPairs(loadHalf<samplesAtOnce>(x[k] + i), loadHalf<samplesAtOnce>(taps.rows[k] + i)));
        }
    }
    return sumsOfLanes(sums[0], sums[1], sums[2], sums[3]);
}

template <typename Shift>
TARN_INLINE void putGroup(const Tarn16s* const (&x)[outputsOfGroup], const Rows& taps, Tarn16s* dst, Shift shift)
{
    storeNarrowed(dst, shift(sumGroup(x, taps)));
}

template <typename Shift>
TARN_INLINE Tarn16s outputOf(const Tarn16s* x, const Rows& taps, int k, int len, Shift shift)
{
    Tarn32s sum = 0;
    for (int i = 0; i < len; ++i) {
        sum = add(sum, Tarn32s{loadElement(x + i)} * taps.rows[k][i]);
    }
    return narrowSaturated<Tarn16s>(shift(sum));
}

// -- Complex sums -----------------------------------------------------------------------------------------------------

// A row is a list of pairs for real parts and one for imaginary parts. Two outputs.
TARN_INLINE Sums sumPair(const Tarn16sc* const* x, const Tarn16s* const* rows, int len)
{
    Sums sums[4];
    for (Sums& sum : sums) {
        sum = splat<Sums>(0);
    }
    for (int i = 0; i < len; i += samplesOfHalf) {
        for (int k = 0; k < 2; ++k) {
            const auto samples = reinterpretPack<Tarn16s>(loadPack<samplesOfHalf>(x[k] + i));
            const Tarn16s* const pairs = rows[k] + 2 * i;
            sums[2 * k] = add(sums[2 * k], mulAddPairs(samples, loadPack<samplesAtOnce>(pairs)));
            sums[2 * k + 1] = add(sums[2 * k + 1], mulAddPairs(samples, loadPack<samplesAtOnce>(pairs + 2 * len)));
        }
    }
    return sumsOfLanes(sums[0], sums[1], sums[2], sums[3]);
}

template <typename Shift>
TARN_INLINE void putGroup(const Tarn16sc* const (&x)[outputsOfGroup], const Rows& taps, Tarn16sc* dst, Shift shift)
{
    auto* const parts = reinterpret_cast<Tarn16s*>(dst);
    storeNarrowed(parts, shift(sumPair(x, taps.rows, taps.len)));
    storeNarrowed(parts + 4, shift(sumPair(x + 2, taps.rows + 2, taps.len)));
}

template <typename Shift>
TARN_INLINE Tarn16sc outputOf(const Tarn16sc* x, const Rows& taps, int k, int len, Shift shift)
{
    const auto* const first = reinterpret_cast<const Tarn16sc*>(taps.rows[k]);
    Tarn32sc sum{0, 0};
    for (int i = 0; i < len; ++i) {
        const Tarn16sc sample = loadElement(x + i);
        sum.re = add(sum.re, mulAddPairs(sample, first[i]));
        sum.im = add(sum.im, mulAddPairs(sample, first[i + taps.len]));
    }
    return toSample(sum, shift);
}

// -- Groups -----------------------------------------------------------------------------------------------------------

// From the group on that begins with output `first` of a call.
template <typename State, typename S>
class Groups {
public:
    Groups(const State* owner, const S* samples, Index first)
        : state(owner), cycle(outputsOfGroup * owner->upFactor), phase(static_cast<int>(first % cycle)),
          data(samples + first / cycle * (static_cast<Index>(outputsOfGroup) * owner->downFactor)),
          stride(owner->upFactor == 1 ? 0 : owner->tapsTableStride / static_cast<int>(sizeof(Tarn16s)))
    {
        const int lists = isComplex<S> ? 2 : 1;
        taps.len = owner->tapsTableStride / static_cast<int>(lists * sizeof(S));
    }
    TARN_INLINE void next(const S* (&x)[outputsOfGroup])
    {
        for (int k = 0; k < outputsOfGroup; ++k) {
            x[k] = data + state->pPhaseOffsets[phase + k];
            taps.rows[k] = state->pTapsTable + static_cast<Index>(stride) * (phase + k);
        }
        phase += outputsOfGroup;
        if (phase == cycle) {
            phase = 0;
            data += state->pPhaseOffsets[cycle];
        }
    }
    TARN_INLINE const Rows& rows() const { return taps; }

private:
    const State* state;
    int cycle, phase;
    const S* data;
    int stride;
    Rows taps{};
};

template <typename State, typename S>
void filterGroups(const State* state, const S* data, S* dst, Index first, Index count, int scaleFactor)
{
    withShift(state->tapsFactor, scaleFactor, [=](auto shift) {
        Groups<State, S> groups(state, data, first);
        S* out = dst;
        for (Index left = count; left > 0; left -= outputsOfGroup, out += outputsOfGroup) {
            const S* x[outputsOfGroup];
            groups.next(x);
            putGroup(x, groups.rows(), out, shift);
        }
    });
}

template <typename State, typename S>
void filterTail(const State* state, const S* data, S* dst, Index first, Index count, Index limit, int scaleFactor)
{
    const S* const end = data + limit;
    withShift(state->tapsFactor, scaleFactor, [=](auto shift) {
        Groups<State, S> groups(state, data, first);
        S* out = dst;
        for (Index left = count; left > 0; left -= outputsOfGroup, out += outputsOfGroup) {
            const S* x[outputsOfGroup];
            groups.next(x);
            const Rows& rows = groups.rows();
            const int outputs = static_cast<int>(std::min<Index>(left, outputsOfGroup));
            if (outputs == outputsOfGroup && end - x[outputs - 1] >= rows.len) {
                putGroup(x, rows, out, shift);
                continue;
            }
            for (int k = 0; k < outputs; ++k) {
                const auto within = static_cast<int>(std::clamp<Index>(end - x[k], 0, rows.len));
                store(out + k, outputOf(x[k], rows, k, within, shift));
            }
        }
    });
}

} // namespace

void tarn::integerPhases(const TarnsFIRState32s_16s* state, const Tarn16s* data, Tarn16s* dst, Index first, Index count,
                         int scaleFactor)
{
    filterGroups(state, data, dst, first, count, scaleFactor);
}
void tarn::integerPhases(const TarnsFIRState32sc_16sc* state, const Tarn16sc* data, Tarn16sc* dst, Index first,
                         Index count, int scaleFactor)
{
    filterGroups(state, data, dst, first, count, scaleFactor);
}
void tarn::integerTail(const TarnsFIRState32s_16s* state, const Tarn16s* data, Tarn16s* dst, Index first, Index count,
                       Index limit, int scaleFactor)
{
    filterTail(state, data, dst, first, count, limit, scaleFactor);
}
void tarn::integerTail(const TarnsFIRState32sc_16sc* state, const Tarn16sc* data, Tarn16sc* dst, Index first,
                       Index count, Index limit, int scaleFactor)
{
    filterTail(state, data, dst, first, count, limit, scaleFactor);
}
