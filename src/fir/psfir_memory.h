// The block of memory of a FIR state: which regions it has, how large they are and where they lie.
#pragma once

#include "levels/fir/psfir_state.h"
#include "levels/fir/psfir_taps.h"

namespace tarn {

// Samples of one in-place part; a state has room for that many elements of the taps' type.
inline constexpr int scratchElements = 4096;

// What is fixed about the states with taps of type T. Sizes of the 32-bit library are part of its interface: where they
// are generous, the slack is room for a caller's memory that begins off a boundary; the surplus is that of a block
// which the library allocates.
template <typename T>
struct FirSizes;
template <>
struct FirSizes<Tarn32f> {
    static constexpr int transformFrom = 64; // taps
    static constexpr long long slack(long long threads) { return 16 * threads; }
    static constexpr long long surplus(long long threads) { return 16 * (threads - 1); }
    static constexpr long long table(long long n) { return 4 * roundedUp(4 * n); }
};
template <>
struct FirSizes<Tarn32fc> {
    static constexpr int transformFrom = 16;
    static constexpr long long slack(long long threads) { return 16 * threads; }
    static constexpr long long surplus(long long threads) { return 16 * (threads - 1); }
    static constexpr long long table(long long n) { return 12 * roundedUp(8 * n) + 96; }
};
template <>
struct FirSizes<Tarn64f> {
    static constexpr int transformFrom = 32;
    static constexpr long long slack(long long threads) { return 16 * threads - 1; }
    static constexpr long long surplus(long long threads) { return 16 * (threads - 1); }
    static constexpr long long table(long long n) { return 2 * roundedUp(8 * n); }
};
template <>
struct FirSizes<Tarn64fc> {
    static constexpr int transformFrom = 16;
    static constexpr long long slack(long long) { return 16; }
    static constexpr long long surplus(long long threads) { return 16 * (threads + 1); }
    static constexpr long long table(long long n) { return 32 * n; }
};

// What a thread needs on the road of transforms: a transform's work buffer and behind it a block. Those of one thread
// lie side by side, since a prefetch past their end takes cache lines from whoever is there.
template <typename T>
constexpr std::ptrdiff_t threadBytes(int workSize, int fftLen)
{
    return workSize + std::ptrdiff_t{fftLen} * static_cast<std::ptrdiff_t>(sizeof(T));
}

// Bytes of the regions, each a multiple of the alignment.
template <typename T>
struct FirRegions {
    long long taps, delay, status, offsets, table, spectrum, buffers, scratch;

    // 32-bit fields: 112 bytes. Pointers of twice the width need more.
    static constexpr long long fields() { return std::max(112LL, roundedUp(sizeof(FirFields<T>))); }
    // A doubled line, and the head of a block behind a window that may begin anywhere in it.
    static constexpr long long delayBytes(long long n)
    {
        const long long room = std::is_same_v<T, Tarn64fc> ? 3 : 4;
        return roundedUp((3 * n + room) * static_cast<long long>(sizeof(T)));
    }
    static constexpr long long scratchBytes() { return scratchElements * static_cast<long long>(sizeof(T)); }

    // A state without road for transforms and its statuses.
    static constexpr FirRegions direct(long long n)
    {
        const long long taps = roundedUp(n * static_cast<long long>(sizeof(T)));
        return {taps, delayBytes(n), 0, 0, FirSizes<T>::table(n), 0, 0, scratchBytes()};
    }

    constexpr long long total() const
    {
        return fields() + taps + delay + status + offsets + table + spectrum + buffers + scratch;
    }

    // Tells a state where its regions are; those without bytes are null.
    void place(FirFields<T>* state) const
    {
        RegionPlacer placer(state, fields());
        placer.take(state->pTaps, taps);
        placer.take(state->pDlyLine, delay);
        placer.take(state->pThreadStatus, status);
        placer.take(state->pPhaseOffsets, offsets);
        placer.take(state->pTapsX4, table);
        placer.take(state->pFFTTaps, spectrum);
        placer.take(state->pFFTWork, buffers);
        placer.take(state->pTmp, scratch);
    }
};

// The same of the states with integer taps.
template <typename S>
struct FirIntegerRegions {
    static constexpr long long scratchBytes = 16384;
    static constexpr long long slack = regionAlignment;
    static constexpr int stride(int n) { return (n + 11) & ~7; } // words from copy to copy

    long long taps, delay, offsets, table, scratch;

    template <typename State>
    static constexpr long long fields()
    {
        return std::max(80LL, roundedUp(sizeof(State)));
    }
    static constexpr FirIntegerRegions of(long long n)
    {
        if constexpr (std::is_same_v<S, Tarn16s>) {
            const long long words = (n + 11) & ~7LL;
            return {roundedUp(4 * n), roundedUp(2 * (words + 2 * n + 4)), 0, 8 * words, scratchBytes};
        } else {
            return {roundedUp(8 * n), roundedUp(4 * (3 * n + 4)), 0, 16 * n, scratchBytes};
        }
    }
    template <typename State>
    constexpr long long total() const
    {
        return fields<State>() + taps + delay + offsets + table + scratch;
    }
    template <typename State>
    void place(State* state) const
    {
        RegionPlacer placer(state, fields<State>());
        placer.take(state->pTaps, taps);
        placer.take(state->pDlyLine, delay);
        placer.take(state->pPhaseOffsets, offsets);
        placer.take(state->pTapsTable, table);
        placer.take(state->pTmp, scratch);
    }
};

} // namespace tarn
