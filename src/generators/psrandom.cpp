// Front ends of the random generators, and their objects.
#include "tarns/random.h"

#include "frame/checks.h"
#include "frame/object.h"
#include "frame/simd_pack.h"
#include "levels/generators/psrandom.h"

using namespace tarn;

namespace {

// Packed, so that one layout serves both ABIs and any address that a caller builds an object at.
template <typename T, Tarn32u id>
struct [[gnu::packed]] UniformState {
    using Sample = T;
    static constexpr Tarn32u identifier = id;
    Tarn32u idCtx;
    Tarn32u seed;
    T low;
    T high;
    UniformRange range;
    RandomSequence sequence;
};

template <typename T, Tarn32u id>
struct [[gnu::packed]] NormalState {
    using Sample = T;
    static constexpr Tarn32u identifier = id;
    Tarn32u idCtx;
    Tarn32u seed;
    T mean;
    T stdDev;
    RandomSequence sequence;
    WaitingNormal waiting;
};

} // namespace

struct [[gnu::packed]] TarnsRandUniformState_8u : UniformState<Tarn8u, 35> {};
struct [[gnu::packed]] TarnsRandUniformState_16s : UniformState<Tarn16s, 36> {};
struct [[gnu::packed]] TarnsRandUniformState_32f : UniformState<Tarn32f, 37> {};
struct [[gnu::packed]] TarnsRandGaussState_8u : NormalState<Tarn8u, 38> {};
struct [[gnu::packed]] TarnsRandGaussState_16s : NormalState<Tarn16s, 39> {};
struct [[gnu::packed]] TarnsRandGaussState_32f : NormalState<Tarn32f, 40> {};

namespace {

constexpr WaitingNormal noneWaiting{1, 0, 0};

// -- The whole generator from a seed, on every call -------------------------------------------------------------------

template <typename T>
TarnStatus uniformDirect(T* pDst, int len, T low, T high, unsigned int* pSeed)
{
    if (const TarnStatus status = check(len, pDst, pSeed)) {
        return status;
    }
    RandomSequence sequence = randomFrom(loadElement(pSeed));
    uniform<ToInteger::rounded>(pDst, len, uniformBetween(low, high), sequence);
    store(pSeed, sequence.s0);
    return tarnStsNoErr;
}

template <typename T>
TarnStatus normalDirect(T* pDst, int len, T mean, T stdDev, unsigned int* pSeed)
{
    if (const TarnStatus status = check(len, pDst, pSeed)) {
        return status;
    }
    RandomSequence sequence = randomFrom(loadElement(pSeed));
    WaitingNormal waiting = noneWaiting;
    normal(pDst, len, mean, stdDev, sequence, waiting);
    store(pSeed, sequence.s0);
    return tarnStsNoErr;
}

// -- Objects ----------------------------------------------------------------------------------------------------------

template <typename T, Tarn32u id>
void start(UniformState<T, id>& state, T low, T high, Tarn32u seed)
{
    state = {id, seed, low, high, uniformBetween(low, high), randomFrom(seed)};
}
template <typename T, Tarn32u id>
void start(NormalState<T, id>& state, T mean, T stdDev, Tarn32u seed)
{
    state = {id, seed, mean, stdDev, randomFrom(seed), noneWaiting};
}

template <typename T, Tarn32u id>
void run(UniformState<T, id>& state, T* pDst, int len)
{
    constexpr auto mode = std::is_integral_v<T> ? ToInteger::truncated : ToInteger::rounded;
    RandomSequence sequence = state.sequence;
    uniform<mode>(pDst, len, state.range, sequence);
    state.sequence = sequence;
}
template <typename T, Tarn32u id>
void run(NormalState<T, id>& state, T* pDst, int len)
{
    RandomSequence sequence = state.sequence;
    WaitingNormal waiting = state.waiting;
    normal(pDst, len, T{state.mean}, T{state.stdDev}, sequence, waiting);
    state.sequence = sequence;
    state.waiting = waiting;
}

template <typename State>
TarnStatus create(State** ppState, typename State::Sample first, typename State::Sample second, unsigned int seed)
{
    if (ppState == nullptr) {
        return tarnStsNullPtrErr;
    }
    State* const state = createObject<State>();
    if (state == nullptr) {
        return tarnStsNoMemErr;
    }
    start(*state, first, second, seed);
    store(ppState, state);
    return tarnStsNoErr;
}

template <typename State>
TarnStatus build(State* pState, typename State::Sample first, typename State::Sample second, unsigned int seed)
{
    if (pState == nullptr) {
        return tarnStsNullPtrErr;
    }
    start(*pState, first, second, seed);
    return tarnStsNoErr;
}

template <typename State>
TarnStatus next(typename State::Sample* pDst, int len, State* pState)
{
    if (const TarnStatus status = check(len, pDst, pState)) {
        return status;
    }
    if (const TarnStatus status = checkObject(pState)) {
        return status;
    }
    run(*pState, pDst, len);
    return tarnStsNoErr;
}

template <typename State>
TarnStatus release(State* pState)
{
    if (const TarnStatus status = checkObject(pState)) {
        return status;
    }
    releaseObject(pState);
    return tarnStsNoErr;
}

template <typename State>
TarnStatus tellSize(int* pSize)
{
    if (pSize == nullptr) {
        return tarnStsNullPtrErr;
    }
    store(pSize, static_cast<int>(sizeof(State)));
    return tarnStsNoErr;
}

} // namespace

#define TARN_RANDOM_DIRECT(TAG)                                                                        \
    TarnStatus tarnsRandUniform_Direct_##TAG(Tarn##TAG* pDst, int len, Tarn##TAG low, Tarn##TAG high,  \
                                             unsigned int* pSeed)                                      \
    {                                                                                                  \
        return uniformDirect(pDst, len, low, high, pSeed);                                             \
    }                                                                                                  \
    TarnStatus tarnsRandGauss_Direct_##TAG(Tarn##TAG* pDst, int len, Tarn##TAG mean, Tarn##TAG stdDev, \
                                           unsigned int* pSeed)                                        \
    {                                                                                                  \
        return normalDirect(pDst, len, mean, stdDev, pSeed);                                           \
    }

#define TARN_RANDOM_OBJECT(STEM, TAG, FIRST, SECOND)                                                     \
    TarnStatus tarnsRand##STEM##InitAlloc_##TAG(TarnsRand##STEM##State_##TAG** ppState, Tarn##TAG FIRST, \
                                                Tarn##TAG SECOND, unsigned int seed)                     \
    {                                                                                                    \
        return create(ppState, FIRST, SECOND, seed);                                                     \
    }                                                                                                    \
    TarnStatus tarnsRand##STEM##_##TAG(Tarn##TAG* pDst, int len, TarnsRand##STEM##State_##TAG* pState)   \
    {                                                                                                    \
        return next(pDst, len, pState);                                                                  \
    }                                                                                                    \
    TarnStatus tarnsRand##STEM##Free_##TAG(TarnsRand##STEM##State_##TAG* pState) { return release(pState); }

#define TARN_RANDOM_IN_PLACE(STEM, TAG, FIRST, SECOND)                                                              \
    TarnStatus tarnsRand##STEM##Init_##TAG(TarnsRand##STEM##State_##TAG* pState, Tarn##TAG FIRST, Tarn##TAG SECOND, \
                                           unsigned int seed)                                                       \
    {                                                                                                               \
        return build(pState, FIRST, SECOND, seed);                                                                  \
    }                                                                                                               \
    TarnStatus tarnsRand##STEM##GetSize_##TAG(int* pSize) { return tellSize<TarnsRand##STEM##State_##TAG>(pSize); }

TARN_RANDOM_DIRECT(16s)
TARN_RANDOM_DIRECT(32f)
TARN_RANDOM_DIRECT(64f)
TARN_RANDOM_OBJECT(Uniform, 8u, low, high)
TARN_RANDOM_OBJECT(Uniform, 16s, low, high)
TARN_RANDOM_OBJECT(Uniform, 32f, low, high)
TARN_RANDOM_OBJECT(Gauss, 8u, mean, stdDev)
TARN_RANDOM_OBJECT(Gauss, 16s, mean, stdDev)
TARN_RANDOM_OBJECT(Gauss, 32f, mean, stdDev)
TARN_RANDOM_IN_PLACE(Uniform, 16s, low, high)
TARN_RANDOM_IN_PLACE(Gauss, 16s, mean, stdDev)
