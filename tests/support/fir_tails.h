// The FIR families under one set of names, so that a test can be written once for all of them.
//
//     using Types = ::testing::Types<FirTail32f, FirTail32f_16s, ...>;
//     typename F::State* state;  F::initAlloc(&state, taps, len, nullptr);  F::filter(src, dst, n, state, scaleFactor);
#pragma once

#include "tarns.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace tarn::test {

#define TARN_FIR_TAIL_STATE(TAIL, T, S)                              \
    using Tap = T;                                                   \
    using Sample = S;                                                \
    using State = TarnsFIRState##TAIL;                               \
    static constexpr auto initAlloc = tarnsFIRInitAlloc##TAIL;       \
    static constexpr auto init = tarnsFIRInit##TAIL;                 \
    static constexpr auto getStateSize = tarnsFIRGetStateSize##TAIL; \
    static constexpr auto setTaps = tarnsFIRSetTaps##TAIL;           \
    static constexpr auto getTaps = tarnsFIRGetTaps##TAIL;           \
    static constexpr auto getDlyLine = tarnsFIRGetDlyLine##TAIL;     \
    static constexpr auto setDlyLine = tarnsFIRSetDlyLine##TAIL;     \
    static constexpr auto free = tarnsFIRFree##TAIL

#define TARN_FIR_TAIL(NAME, TAIL, T, S)                                                              \
    struct NAME {                                                                                    \
        TARN_FIR_TAIL_STATE(TAIL, T, S);                                                             \
        static constexpr bool scaled = false;                                                        \
        static TarnStatus filter(const S* src, S* dst, int n, State* state, int /*scaleFactor*/ = 0) \
        {                                                                                            \
            return tarnsFIR##TAIL(src, dst, n, state);                                               \
        }                                                                                            \
        static TarnStatus inPlace(S* srcDst, int n, State* state, int /*scaleFactor*/ = 0)           \
        {                                                                                            \
            return tarnsFIR##TAIL##_I(srcDst, n, state);                                             \
        }                                                                                            \
        static TarnStatus one(S src, S* dst, State* state, int /*scaleFactor*/ = 0)                  \
        {                                                                                            \
            return tarnsFIROne##TAIL(src, dst, state);                                               \
        }                                                                                            \
    }
#define TARN_FIR_TAIL_SFS(NAME, TAIL, T, S)                                                      \
    struct NAME {                                                                                \
        TARN_FIR_TAIL_STATE(TAIL, T, S);                                                         \
        static constexpr bool scaled = true;                                                     \
        static TarnStatus filter(const S* src, S* dst, int n, State* state, int scaleFactor = 0) \
        {                                                                                        \
            return tarnsFIR##TAIL##_Sfs(src, dst, n, state, scaleFactor);                        \
        }                                                                                        \
        static TarnStatus inPlace(S* srcDst, int n, State* state, int scaleFactor = 0)           \
        {                                                                                        \
            return tarnsFIR##TAIL##_ISfs(srcDst, n, state, scaleFactor);                         \
        }                                                                                        \
        static TarnStatus one(S src, S* dst, State* state, int scaleFactor = 0)                  \
        {                                                                                        \
            return tarnsFIROne##TAIL##_Sfs(src, dst, state, scaleFactor);                        \
        }                                                                                        \
    }

TARN_FIR_TAIL(FirTail32f, _32f, Tarn32f, Tarn32f);
TARN_FIR_TAIL(FirTail32fc, _32fc, Tarn32fc, Tarn32fc);
TARN_FIR_TAIL_SFS(FirTail32f_16s, 32f_16s, Tarn32f, Tarn16s);
TARN_FIR_TAIL_SFS(FirTail32fc_16sc, 32fc_16sc, Tarn32fc, Tarn16sc);
TARN_FIR_TAIL(FirTail64f, _64f, Tarn64f, Tarn64f);
TARN_FIR_TAIL(FirTail64fc, _64fc, Tarn64fc, Tarn64fc);
TARN_FIR_TAIL(FirTail64f_32f, 64f_32f, Tarn64f, Tarn32f);
TARN_FIR_TAIL(FirTail64fc_32fc, 64fc_32fc, Tarn64fc, Tarn32fc);
TARN_FIR_TAIL_SFS(FirTail64f_32s, 64f_32s, Tarn64f, Tarn32s);
TARN_FIR_TAIL_SFS(FirTail64fc_32sc, 64fc_32sc, Tarn64fc, Tarn32sc);
TARN_FIR_TAIL_SFS(FirTail64f_16s, 64f_16s, Tarn64f, Tarn16s);
TARN_FIR_TAIL_SFS(FirTail64fc_16sc, 64fc_16sc, Tarn64fc, Tarn16sc);
TARN_FIR_TAIL_SFS(FirTail32s_16s, 32s_16s, Tarn32s, Tarn16s);
TARN_FIR_TAIL_SFS(FirTail32sc_16sc, 32sc_16sc, Tarn32sc, Tarn16sc);
TARN_FIR_TAIL_SFS(FirTail32s_16s32f, 32s_16s32f, Tarn32f, Tarn16s);
TARN_FIR_TAIL_SFS(FirTail32sc_16sc32fc, 32sc_16sc32fc, Tarn32fc, Tarn16sc);

/// The OpenMP runtime that the library brought, which a test is not linked with.
template <class Function>
Function* openMp(const char* name)
{
    void* const symbol = dlsym(RTLD_DEFAULT, name);
    if (symbol == nullptr) {
        std::fprintf(stderr, "no %s\n", name);
        std::abort();
    }
    return reinterpret_cast<Function*>(symbol);
}
inline int maxThreads() { return openMp<int()>("omp_get_max_threads")(); }

/// Sets the number of threads while it lives.
class ThreadsScope {
public:
    explicit ThreadsScope(int threads) : saved(maxThreads()) { set(threads); }
    ~ThreadsScope() { set(saved); }
    ThreadsScope(const ThreadsScope&) = delete;
    ThreadsScope& operator=(const ThreadsScope&) = delete;

private:
    static void set(int threads) { openMp<void(int)>("omp_set_num_threads")(threads); }
    int saved;
};

} // namespace tarn::test
