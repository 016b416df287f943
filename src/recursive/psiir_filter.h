// Front ends of IIR states and filters, for all types.
#pragma once

#include "frame/checks.h"
#include "levels/recursive/psiir.h"
#include "recursive/psiir_build.h"
#include "tarns/convert.h"
#include "tarns/iir.h"

#include <algorithm>

namespace tarn {

template <typename State>
inline constexpr bool isConverting = !std::is_same_v<typename State::Tap, typename State::Sample>;

template <typename State>
constexpr IirForm ofOrder(int order)
{
    return {order, 0, isConverting<State>};
}
template <typename State>
constexpr IirForm ofSections(int numBq)
{
    return {0, numBq, isConverting<State>};
}

template <typename State>
constexpr Tarn32u idOf(const IirForm& form)
{
    return form.sections == 0 ? State::orderId : State::biquadId;
}

template <typename... P>
inline bool anyNull(const P*... pointers)
{
    return ((pointers == nullptr) || ...);
}

// The checks of a call that makes something of an order, or of a number of sections.
template <typename... P>
inline TarnStatus checkOrder(int order, const P*... pointers)
{
    if (anyNull(pointers...)) {
        return tarnStsNullPtrErr;
    }
    return order < 0 ? tarnStsIIROrderErr : tarnStsNoErr;
}
template <typename... P>
inline TarnStatus checkSections(int numBq, const P*... pointers)
{
    return checkOrder(numBq < 1 ? -1 : 0, pointers...);
}

// -- States -----------------------------------------------------------------------------------------------------------

// Integer taps as floats for the length of a call.
class FloatTaps {
public:
    // `count` real or complex taps; there is one at least.
    template <typename I>
    FloatTaps(const I* pTaps, long long count, int tapsFactor)
    {
        constexpr long long parts = sizeof(I) / sizeof(Tarn32s);
        floats = allocate<Tarn32f>(parts * count);
        if (floats) {
            tarnsConvert_32s32f_Sfs(reinterpret_cast<const Tarn32s*>(pTaps), floats.get(),
                                    static_cast<int>(parts * count), tapsFactor);
        }
    }
    bool failed() const { return floats == nullptr; }
    template <typename T>
    const T* as() const
    {
        return reinterpret_cast<const T*>(floats.get());
    }

private:
    Owned<Tarn32f[]> floats;
};

// Taps that the caller gives for a state.
constexpr long long givenTaps(const IirForm& form)
{
    return form.sections == 0 ? 2LL * form.order + 2 : static_cast<long long>(givenSectionTaps) * form.sections;
}

// Calls `build` with taps of the state's type: those given, or what their integers are converted to. A state of an
// order too large for memory is not worth a conversion.
template <typename T, typename G, typename Build>
inline TarnStatus withTaps(const G* pTaps, const IirForm& form, int tapsFactor, Build build)
{
    if constexpr (std::is_same_v<T, G>) {
        return build(pTaps);
    } else {
        if (const TarnStatus status = checkBytes(IirRegions<T>::reported(form))) {
            return status;
        }
        const FloatTaps floats(pTaps, givenTaps(form), tapsFactor);
        return floats.failed() ? tarnStsNoMemErr : build(floats.as<T>());
    }
}

template <typename State, typename G>
inline TarnStatus allocateState(State** ppState, const G* pTaps, const IirForm& form,
                                const typename State::Tap* pDlyLine, int tapsFactor = 0)
{
    using T = typename State::Tap;
    return withTaps<T>(pTaps, form, tapsFactor, [=](const T* taps) {
        IirFields<T>* fields = nullptr;
        const TarnStatus status = buildAllocated(&fields, taps, form, pDlyLine, idOf<State>(form));
        if (fields != nullptr) {
            *ppState = static_cast<State*>(fields);
        }
        return status;
    });
}

template <typename State, typename G>
inline TarnStatus placeState(State** ppState, const G* pTaps, const IirForm& form, const typename State::Tap* pDlyLine,
                             Tarn8u* pBuffer, int tapsFactor = 0)
{
    using T = typename State::Tap;
    return withTaps<T>(pTaps, form, tapsFactor, [=](const T* taps) {
        IirFields<T>* fields = nullptr;
        const TarnStatus status = buildInBuffer(&fields, taps, form, pDlyLine, pBuffer, idOf<State>(form));
        if (fields != nullptr) {
            *ppState = static_cast<State*>(fields);
        }
        return status;
    });
}

template <typename State>
inline TarnStatus setTaps(const typename State::Tap* pTaps, State* state)
{
    if (anyNull(pTaps, state)) {
        return tarnStsNullPtrErr;
    }
    return isOfFamily(state) ? storeTaps<typename State::Tap>(pTaps, state) : tarnStsContextMatchErr;
}

// Programs know these two calls so: the taps are converted before the state is looked at, the kinds that are known are
// `order` and `biquad`, and the answer is that of a wrong state unless there was an error before.
template <typename State, typename G>
inline TarnStatus setIntegerTaps(const G* pTaps, State* state, int tapsFactor, Tarn32u order, Tarn32u biquad)
{
    using T = typename State::Tap;
    if (anyNull(pTaps, state)) {
        return tarnStsNullPtrErr;
    }
    const IirForm form{state->dlyLen, state->numBq, true};
    if (form.order < 0 || form.sections < 0) {
        return tarnStsContextMatchErr; // no state at all
    }
    const FloatTaps floats(pTaps, givenTaps(form), tapsFactor);
    if (floats.failed()) {
        return tarnStsNoMemErr;
    }
    if (state->idCtx == order || state->idCtx == biquad) {
        if (const TarnStatus status = storeTaps<T>(floats.as<T>(), state)) {
            return status;
        }
    }
    return tarnStsContextMatchErr;
}

template <typename State>
inline TarnStatus getDelay(const State* state, typename State::Tap* pDlyLine)
{
    if (const TarnStatus status = checkState(state, pDlyLine)) {
        return status;
    }
    copy(state->pDlyLine, pDlyLine, state->dlyLen);
    return tarnStsNoErr;
}

template <typename State>
inline TarnStatus setDelay(State* state, const typename State::Tap* pDlyLine)
{
    if (const TarnStatus status = checkState(state)) {
        return status;
    }
    setDelayElements<typename State::Tap>(pDlyLine, state);
    return tarnStsNoErr;
}

// -- Filters ----------------------------------------------------------------------------------------------------------

template <typename State>
inline bool isOrder(const State* state)
{
    return state->idCtx == State::orderId;
}

template <typename State, typename... P>
inline TarnStatus checkFilter(int len, const State* state, const P*... pointers)
{
    if (const TarnStatus status = check(len, pointers..., state)) {
        return status;
    }
    return isOfFamily(state) ? tarnStsNoErr : tarnStsContextMatchErr;
}

// Calls `filter` for each chunk with where it begins.
template <typename Filter>
inline TarnStatus forEachChunk(int len, Filter filter)
{
    for (std::ptrdiff_t begin = 0; begin < len; begin += chunkSamples) {
        filter(begin, static_cast<int>(std::min<std::ptrdiff_t>(chunkSamples, len - begin)));
    }
    return tarnStsNoErr;
}

template <typename State, typename S>
inline TarnStatus runOrder(const S* pSrc, S* pDst, int len, State* state, int scaleFactor = 0)
{
    return forEachChunk(len, [=](std::ptrdiff_t begin, int count) {
        chunkOfOrder(pSrc + begin, pDst + begin, count, state, scaleFactor);
    });
}
template <typename State, typename S>
inline TarnStatus runSections(const S* pSrc, S* pDst, int len, State* state, int scaleFactor = 0)
{
    return forEachChunk(len, [=](std::ptrdiff_t begin, int count) {
        chunkOfSections(pSrc + begin, pDst + begin, count, state, scaleFactor);
    });
}

template <typename State, typename S>
inline TarnStatus runOne(S src, S* pDstVal, State* state, int scaleFactor = 0)
{
    if (const TarnStatus status = checkState(state, pDstVal)) {
        return status;
    }
    if (isOrder(state)) {
        oneOfOrder(&src, pDstVal, 1, state, scaleFactor);
    } else {
        oneOfSections(&src, pDstVal, 1, state, scaleFactor);
    }
    return tarnStsNoErr;
}

} // namespace tarn
