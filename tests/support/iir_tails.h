// The IIR families under one set of names, so that a test can be written once for all of them.
//
//     using F = IirTail32f_16s;
//     F::State* state;  F::initAlloc(F::order, &state, taps, n, nullptr);  F::filter(src, dst, len, state,
//     scaleFactor);
#pragma once

#include "tarns.h"

namespace tarn::test {

// Calls with a factor and without one, behind the number that a factor follows.
template <class State, class G, class E>
TarnStatus makeIir(TarnStatus (*make)(State**, const G*, int, const E*), State** state, const G* taps, int n,
                   const E* line, int /*factor*/)
{
    return make(state, taps, n, line);
}
template <class State, class G, class E>
TarnStatus makeIir(TarnStatus (*make)(State**, const G*, int, int, const E*), State** state, const G* taps, int n,
                   const E* line, int factor)
{
    return make(state, taps, n, factor, line);
}
template <class State, class G, class E>
TarnStatus placeIir(TarnStatus (*make)(State**, const G*, int, const E*, Tarn8u*), State** state, const G* taps, int n,
                    const E* line, Tarn8u* buffer)
{
    return make(state, taps, n, line, buffer);
}
template <class State, class G, class E>
TarnStatus placeIir(TarnStatus (*make)(State**, const G*, int, int, const E*, Tarn8u*), State** state, const G* taps,
                    int n, const E* line, Tarn8u* buffer)
{
    return make(state, taps, n, 0, line, buffer);
}
template <class State, class G>
TarnStatus setIir(TarnStatus (*set)(const G*, State*), const G* taps, State* state)
{
    return set(taps, state);
}
template <class State, class G>
TarnStatus setIir(TarnStatus (*set)(const G*, State*, int), const G* taps, State* state)
{
    return set(taps, state, 0);
}

/// The two forms of a state: one section of some order, or sections of order two.
enum class IirForm { order, biquads };

#define TARN_IIR_TAIL_STATE(HEAD, REST, G, E, S)                                                                  \
    using Given = G;   /* taps as the caller has them */                                                          \
    using Element = E; /* what is computed in */                                                                  \
    using Sample = S;                                                                                             \
    using State = TarnsIIRState##HEAD##_##REST;                                                                   \
    static TarnStatus initAlloc(IirForm form, State** state, const G* taps, int n, const E* line, int factor = 0) \
    {                                                                                                             \
        return form == IirForm::order                                                                             \
                   ? makeIir<State, G, E>(tarnsIIRInitAlloc##HEAD##_##REST, state, taps, n, line, factor)         \
                   : makeIir<State, G, E>(tarnsIIRInitAlloc##HEAD##_BiQuad_##REST, state, taps, n, line, factor); \
    }                                                                                                             \
    static TarnStatus init(IirForm form, State** state, const G* taps, int n, const E* line, Tarn8u* buffer)      \
    {                                                                                                             \
        return form == IirForm::order                                                                             \
                   ? placeIir<State, G, E>(tarnsIIRInit##HEAD##_##REST, state, taps, n, line, buffer)             \
                   : placeIir<State, G, E>(tarnsIIRInit##HEAD##_BiQuad_##REST, state, taps, n, line, buffer);     \
    }                                                                                                             \
    static TarnStatus getStateSize(IirForm form, int n, int* size)                                                \
    {                                                                                                             \
        return form == IirForm::order ? tarnsIIRGetStateSize##HEAD##_##REST(n, size)                              \
                                      : tarnsIIRGetStateSize##HEAD##_BiQuad_##REST(n, size);                      \
    }                                                                                                             \
    static TarnStatus setTaps(const G* taps, State* state)                                                        \
    {                                                                                                             \
        return setIir<State, G>(tarnsIIRSetTaps##HEAD##_##REST, taps, state);                                     \
    }                                                                                                             \
    static constexpr auto getDlyLine = tarnsIIRGetDlyLine##HEAD##_##REST;                                         \
    static constexpr auto setDlyLine = tarnsIIRSetDlyLine##HEAD##_##REST;                                         \
    static constexpr auto free = tarnsIIRFree##HEAD##_##REST

#define TARN_IIR_TAIL(NAME, HEAD, REST, G, E, S)                                                       \
    struct NAME {                                                                                      \
        TARN_IIR_TAIL_STATE(HEAD, REST, G, E, S);                                                      \
        static constexpr bool scaled = false;                                                          \
        static TarnStatus filter(const S* src, S* dst, int len, State* state, int /*scaleFactor*/ = 0) \
        {                                                                                              \
            return tarnsIIR##HEAD##_##REST(src, dst, len, state);                                      \
        }                                                                                              \
        static TarnStatus inPlace(S* srcDst, int len, State* state, int /*scaleFactor*/ = 0)           \
        {                                                                                              \
            return tarnsIIR##HEAD##_##REST##_I(srcDst, len, state);                                    \
        }                                                                                              \
        static TarnStatus one(S src, S* dst, State* state, int /*scaleFactor*/ = 0)                    \
        {                                                                                              \
            return tarnsIIROne##HEAD##_##REST(src, dst, state);                                        \
        }                                                                                              \
    }
#define TARN_IIR_TAIL_SFS(NAME, HEAD, REST, G, E, S)                                               \
    struct NAME {                                                                                  \
        TARN_IIR_TAIL_STATE(HEAD, REST, G, E, S);                                                  \
        static constexpr bool scaled = true;                                                       \
        static TarnStatus filter(const S* src, S* dst, int len, State* state, int scaleFactor = 0) \
        {                                                                                          \
            return tarnsIIR##HEAD##_##REST##_Sfs(src, dst, len, state, scaleFactor);               \
        }                                                                                          \
        static TarnStatus inPlace(S* srcDst, int len, State* state, int scaleFactor = 0)           \
        {                                                                                          \
            return tarnsIIR##HEAD##_##REST##_ISfs(srcDst, len, state, scaleFactor);                \
        }                                                                                          \
        static TarnStatus one(S src, S* dst, State* state, int scaleFactor = 0)                    \
        {                                                                                          \
            return tarnsIIROne##HEAD##_##REST##_Sfs(src, dst, state, scaleFactor);                 \
        }                                                                                          \
    }

TARN_IIR_TAIL(IirTail32f, , 32f, Tarn32f, Tarn32f, Tarn32f);
TARN_IIR_TAIL(IirTail32fc, , 32fc, Tarn32fc, Tarn32fc, Tarn32fc);
TARN_IIR_TAIL_SFS(IirTail32f_16s, 32f, 16s, Tarn32f, Tarn32f, Tarn16s);
TARN_IIR_TAIL_SFS(IirTail32fc_16sc, 32fc, 16sc, Tarn32fc, Tarn32fc, Tarn16sc);
TARN_IIR_TAIL_SFS(IirTail32s_16s, 32s, 16s, Tarn32s, Tarn32f, Tarn16s);
TARN_IIR_TAIL_SFS(IirTail32sc_16sc, 32sc, 16sc, Tarn32sc, Tarn32fc, Tarn16sc);
TARN_IIR_TAIL_SFS(IirTail32s_16s32f, 32s, 16s32f, Tarn32f, Tarn32f, Tarn16s);
TARN_IIR_TAIL_SFS(IirTail32sc_16sc32fc, 32sc, 16sc32fc, Tarn32fc, Tarn32fc, Tarn16sc);
TARN_IIR_TAIL(IirTail64f, , 64f, Tarn64f, Tarn64f, Tarn64f);
TARN_IIR_TAIL(IirTail64fc, , 64fc, Tarn64fc, Tarn64fc, Tarn64fc);
TARN_IIR_TAIL(IirTail64f_32f, 64f, 32f, Tarn64f, Tarn64f, Tarn32f);
TARN_IIR_TAIL(IirTail64fc_32fc, 64fc, 32fc, Tarn64fc, Tarn64fc, Tarn32fc);
TARN_IIR_TAIL_SFS(IirTail64f_32s, 64f, 32s, Tarn64f, Tarn64f, Tarn32s);
TARN_IIR_TAIL_SFS(IirTail64fc_32sc, 64fc, 32sc, Tarn64fc, Tarn64fc, Tarn32sc);
TARN_IIR_TAIL_SFS(IirTail64f_16s, 64f, 16s, Tarn64f, Tarn64f, Tarn16s);
TARN_IIR_TAIL_SFS(IirTail64fc_16sc, 64fc, 16sc, Tarn64fc, Tarn64fc, Tarn16sc);

} // namespace tarn::test
