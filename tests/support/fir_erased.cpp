#include "support/fir_erased.h"

namespace tarn::test {
namespace {

#define RATES r.up, r.upPhase, r.down, r.downPhase
#define STATE(TAIL) static_cast<TarnsFIRState##TAIL*>(s)
#define CONST_STATE(TAIL) static_cast<const TarnsFIRState##TAIL*>(s)
#define TAPS(T) static_cast<const T*>(t)

// KIND is FACTORED for taps with a factor, or PLAIN.
#define TAIL_CALLS(TAIL, T, S, KIND)                                                                                  \
    [](void** s, const void* t, const Rates& r, const void* line) {                                                   \
        return tarnsFIRMRInitAlloc##TAIL(reinterpret_cast<TarnsFIRState##TAIL**>(s), TAPS(T), r.taps GIVEN_##KIND,    \
                                         RATES, static_cast<const S*>(line));                                         \
    },                                                                                                                \
        [](void** s, const void* t, const Rates& r, const void* line, Tarn8u* buffer) {                               \
            return tarnsFIRMRInit##TAIL(reinterpret_cast<TarnsFIRState##TAIL**>(s), TAPS(T), r.taps GIVEN_##KIND,     \
                                        RATES, static_cast<const S*>(line), buffer);                                  \
        },                                                                                                            \
        tarnsFIRMRGetStateSize##TAIL, tarnsFIRGetStateSize##TAIL,                                                     \
        [](const void* t, void* s) { return tarnsFIRSetTaps##TAIL(TAPS(T), STATE(TAIL) GIVEN_##KIND); },              \
        [](const void* s, void* t) {                                                                                  \
            [[maybe_unused]] int factor = 0;                                                                          \
            return tarnsFIRGetTaps##TAIL(CONST_STATE(TAIL), static_cast<T*>(t) TAKEN_##KIND);                         \
        },                                                                                                            \
        [](void* s, const void* line) { return tarnsFIRSetDlyLine##TAIL(STATE(TAIL), static_cast<const S*>(line)); }, \
        [](const void* s, void* line) { return tarnsFIRGetDlyLine##TAIL(CONST_STATE(TAIL), static_cast<S*>(line)); }
#define GIVEN_PLAIN
#define GIVEN_FACTORED , 0
#define TAKEN_PLAIN
#define TAKEN_FACTORED , &factor

#define UNSCALED(NAME, TAIL, T, S)                                                                                     \
    ErasedFir                                                                                                          \
    {                                                                                                                  \
        NAME, elementTypeOf<T>(), elementTypeOf<S>(), false, false, TAIL_CALLS(TAIL, T, S, PLAIN),                     \
            [](const void* src, void* dst, int n, void* s, int) {                                                      \
                return tarnsFIR##TAIL(static_cast<const S*>(src), static_cast<S*>(dst), n, STATE(TAIL));               \
            },                                                                                                         \
            [](void* data, int n, void* s, int) { return tarnsFIR##TAIL##_I(static_cast<S*>(data), n, STATE(TAIL)); }, \
            [](void* dst, void* s) { return tarnsFIROne##TAIL(S{}, static_cast<S*>(dst), STATE(TAIL)); },              \
            [](void* s) { return tarnsFIRFree##TAIL(STATE(TAIL)); }                                                    \
    }
#define SCALED(NAME, TAIL, T, S, INTEGER, KIND)                                                                    \
    ErasedFir                                                                                                      \
    {                                                                                                              \
        NAME, elementTypeOf<T>(), elementTypeOf<S>(), INTEGER, true, TAIL_CALLS(TAIL, T, S, KIND),                 \
            [](const void* src, void* dst, int n, void* s, int f) {                                                \
                return tarnsFIR##TAIL##_Sfs(static_cast<const S*>(src), static_cast<S*>(dst), n, STATE(TAIL), f);  \
            },                                                                                                     \
            [](void* data, int n, void* s, int f) {                                                                \
                return tarnsFIR##TAIL##_ISfs(static_cast<S*>(data), n, STATE(TAIL), f);                            \
            },                                                                                                     \
            [](void* dst, void* s) { return tarnsFIROne##TAIL##_Sfs(S{}, static_cast<S*>(dst), STATE(TAIL), 0); }, \
            [](void* s) { return tarnsFIRFree##TAIL(STATE(TAIL)); }                                                \
    }

} // namespace

const std::vector<ErasedFir>& erasedFirs()
{
    static const std::vector<ErasedFir> all = {
        UNSCALED("_32f", _32f, Tarn32f, Tarn32f),
        UNSCALED("_32fc", _32fc, Tarn32fc, Tarn32fc),
        UNSCALED("_64f", _64f, Tarn64f, Tarn64f),
        UNSCALED("_64fc", _64fc, Tarn64fc, Tarn64fc),
        UNSCALED("64f_32f", 64f_32f, Tarn64f, Tarn32f),
        UNSCALED("64fc_32fc", 64fc_32fc, Tarn64fc, Tarn32fc),
        SCALED("32f_16s", 32f_16s, Tarn32f, Tarn16s, false, PLAIN),
        SCALED("32fc_16sc", 32fc_16sc, Tarn32fc, Tarn16sc, false, PLAIN),
        SCALED("64f_32s", 64f_32s, Tarn64f, Tarn32s, false, PLAIN),
        SCALED("64fc_32sc", 64fc_32sc, Tarn64fc, Tarn32sc, false, PLAIN),
        SCALED("64f_16s", 64f_16s, Tarn64f, Tarn16s, false, PLAIN),
        SCALED("64fc_16sc", 64fc_16sc, Tarn64fc, Tarn16sc, false, PLAIN),
        SCALED("32s_16s", 32s_16s, Tarn32s, Tarn16s, true, FACTORED),
        SCALED("32sc_16sc", 32sc_16sc, Tarn32sc, Tarn16sc, true, FACTORED),
        SCALED("32s_16s32f", 32s_16s32f, Tarn32f, Tarn16s, true, PLAIN),
        SCALED("32sc_16sc32fc", 32sc_16sc32fc, Tarn32fc, Tarn16sc, true, PLAIN),
    };
    return all;
}

std::vector<unsigned char> packed(const ElementType& type, const Numbers& values)
{
    std::vector<unsigned char> bytes(type.size * values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        type.put(&bytes[i * type.size], values[i]);
    return bytes;
}

Numbers unpacked(const ElementType& type, const unsigned char* bytes, std::size_t count)
{
    Numbers values(count);
    for (std::size_t i = 0; i < count; ++i)
        values[i] = type.get(bytes + i * type.size);
    return values;
}

} // namespace tarn::test
