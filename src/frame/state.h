// The states of filters that live across calls: one block of memory, the caller's or the library's, with the state's
// fields in front and its regions behind them.
#pragma once

#include "frame/object.h"
#include "frame/simd_pack.h"

#include <climits>
#include <cstdint>

namespace tarn {

// -- Memory ----------------------------------------------------------------------------------------------------------

// Where regions begin, so that kernels may load from them as from vectors of 16 bytes.
inline constexpr int regionAlignment = 16;

constexpr long long roundedUp(long long bytes)
{
    return (bytes + regionAlignment - 1) & ~static_cast<long long>(regionAlignment - 1);
}

// The state's address in a caller's memory, which may begin anywhere.
template <typename State>
inline State* placeInBuffer(Tarn8u* pBuffer)
{
    const auto gap = (0 - reinterpret_cast<std::uintptr_t>(pBuffer)) % regionAlignment;
    return reinterpret_cast<State*>(pBuffer + gap);
}

// The status of a state of so many bytes: lengths of memory are 32-bit in the interface, for a caller who asks for a
// size as for an allocation.
constexpr TarnStatus checkBytes(long long bytes) { return bytes > INT_MAX ? tarnStsNoMemErr : tarnStsNoErr; }

inline TarnStatus storeBytes(long long bytes, int* pSize)
{
    if (const TarnStatus status = checkBytes(bytes)) {
        return status;
    }
    store(pSize, static_cast<int>(bytes));
    return tarnStsNoErr;
}

// Gives regions their places, one behind the other.
class RegionPlacer {
public:
    RegionPlacer(void* state, long long fieldBytes) : next(static_cast<Tarn8u*>(state) + fieldBytes) {}

    // A region without bytes is null.
    template <typename E>
    void take(E*& region, long long bytes)
    {
        region = bytes != 0 ? reinterpret_cast<E*>(next) : nullptr;
        next += bytes;
    }

private:
    Tarn8u* next;
};

// -- Identity --------------------------------------------------------------------------------------------------------

// The identifier of a state as the four characters that it spells.
constexpr Tarn32u spelled(const char (&text)[5])
{
    Tarn32u id = 0;
    for (int i = 0; i < 4; ++i) {
        id = id << 8 | static_cast<unsigned char>(text[i]);
    }
    return id;
}

// A family has states of two forms, each with an identifier of its own: `formIds`.
template <typename State>
inline bool isOfFamily(const State* state)
{
    return state->idCtx == State::formIds[0] || state->idCtx == State::formIds[1];
}

// The checks of a state and arrays, in the library's order: those that either form is good for.
template <typename State, typename... P>
inline TarnStatus checkState(const State* state, const P*... pointers)
{
    if (state == nullptr || ((pointers == nullptr) || ...)) {
        return tarnStsNullPtrErr;
    }
    return isOfFamily(state) ? tarnStsNoErr : tarnStsContextMatchErr;
}

// -- The end ---------------------------------------------------------------------------------------------------------

// Frees a state's block if it is the library's, after what else the state owns. The caller's is left as it is.
template <typename State, typename ReleaseRest>
inline TarnStatus freeState(State* state, ReleaseRest releaseRest)
{
    if (const TarnStatus status = checkState(state)) {
        return status;
    }
    if (state->isAllocated == 1) {
        releaseRest(*state);
        tarnsFree(state);
    }
    return tarnStsNoErr;
}
template <typename State>
inline TarnStatus freeState(State* state)
{
    return freeState(state, [](State&) {});
}

} // namespace tarn
