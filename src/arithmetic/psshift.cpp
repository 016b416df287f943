// Front ends of shifts by a constant.
#include "tarns/logic.h"

#include "frame/frontend.h"
#include "levels/arithmetic/pslogic.h"

using namespace tarn;

namespace {

template <typename T>
constexpr int width = 8 * static_cast<int>(sizeof(T));

template <typename... T>
TarnStatus checkShift(int val, int len, const T*... pointers)
{
    if (const TarnStatus status = check(len, pointers...)) {
        return status;
    }
    return val < 0 ? tarnStsShiftErr : tarnStsNoErr;
}

// All bits are shifted out at once where the count is the width or more and the elements have no sign to leave behind.
template <typename T>
TarnStatus shiftOut(void (*kernel)(const T*, int, T*, int), const T* pSrc, int val, T* pDst, int len)
{
    if (const TarnStatus status = checkShift(val, len, pSrc, pDst)) {
        return status;
    }
    if (val >= width<T>) {
        zeroFill(pDst, len);
    } else {
        kernel(pSrc, val, pDst, len);
    }
    return tarnStsNoErr;
}

// Shifts that leave the sign: one place less than the width is as far as any count goes.
template <typename T>
TarnStatus shiftToSign(void (*kernel)(const T*, int, T*, int), const T* pSrc, int val, T* pDst, int len)
{
    if (const TarnStatus status = checkShift(val, len, pSrc, pDst)) {
        return status;
    }
    kernel(pSrc, std::min(val, width<T> - 1), pDst, len);
    return tarnStsNoErr;
}

} // namespace

#define TARN_SHIFT_FRONT_ENDS(OP, TAG, WORD, BEYOND)                                        \
    TarnStatus tarns##OP##C_##TAG(const Tarn##TAG* pSrc, int val, Tarn##TAG* pDst, int len) \
    {                                                                                       \
        return BEYOND(ownps_##OP##_##TAG, pSrc, val, pDst, len);                            \
    }                                                                                       \
    TarnStatus tarns##OP##C_##TAG##_I(int val, Tarn##TAG* pSrcDst, int len)                 \
    {                                                                                       \
        return tarns##OP##C_##TAG(pSrcDst, val, pSrcDst, len);                              \
    }

TARN_SHIFTS(TARN_SHIFT_FRONT_ENDS)

// A left shift does not look at the sign.
TarnStatus tarnsLShiftC_16s(const Tarn16s* pSrc, int val, Tarn16s* pDst, int len)
{
    return tarnsLShiftC_16u(reinterpret_cast<const Tarn16u*>(pSrc), val, reinterpret_cast<Tarn16u*>(pDst), len);
}

TarnStatus tarnsLShiftC_16s_I(int val, Tarn16s* pSrcDst, int len)
{
    return tarnsLShiftC_16u_I(val, reinterpret_cast<Tarn16u*>(pSrcDst), len);
}
