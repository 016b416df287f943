#include "pswt_peer.h"

namespace tarn::bench {

namespace {

inline __attribute__((always_inline)) void split(const Tarn32f* __restrict tapsLow, const Tarn32f* __restrict tapsHigh,
                                                 int taps, const Tarn32f* __restrict x, Tarn32f* __restrict low,
                                                 Tarn32f* __restrict high, int n)
{
    for (int k = 0; k < n; ++k) {
        Tarn32f l = 0;
        Tarn32f h = 0;
        for (int j = 0; j < taps; ++j) {
            l += tapsLow[j] * x[2 * k - j];
            h += tapsHigh[j] * x[2 * k - j];
        }
        low[k] = l;
        high[k] = h;
    }
}

inline __attribute__((always_inline)) void join(const Tarn32f* __restrict tapsLow, const Tarn32f* __restrict tapsHigh,
                                                int taps, const Tarn32f* __restrict low, const Tarn32f* __restrict high,
                                                Tarn32f* __restrict y, int n)
{
    for (int k = 0; k < n; ++k) {
        Tarn32f even = 0;
        Tarn32f odd = 0;
        for (int i = 0; i < taps / 2; ++i) {
            even += tapsLow[2 * i] * low[k - i] + tapsHigh[2 * i] * high[k - i];
            odd += tapsLow[2 * i + 1] * low[k - i] + tapsHigh[2 * i + 1] * high[k - i];
        }
        y[2 * k] = even;
        y[2 * k + 1] = odd;
    }
}

} // namespace

void splitLoop(const Tarn32f* tapsLow, const Tarn32f* tapsHigh, int taps, const Tarn32f* x, Tarn32f* low, Tarn32f* high,
               int n)
{
    split(tapsLow, tapsHigh, taps, x, low, high, n);
}
void splitLoopOf8(const Tarn32f* tapsLow, const Tarn32f* tapsHigh, const Tarn32f* x, Tarn32f* low, Tarn32f* high, int n)
{
    split(tapsLow, tapsHigh, 8, x, low, high, n);
}

void joinLoop(const Tarn32f* tapsLow, const Tarn32f* tapsHigh, int taps, const Tarn32f* low, const Tarn32f* high,
              Tarn32f* y, int n)
{
    join(tapsLow, tapsHigh, taps, low, high, y, n);
}
void joinLoopOf8(const Tarn32f* tapsLow, const Tarn32f* tapsHigh, const Tarn32f* low, const Tarn32f* high, Tarn32f* y,
                 int n)
{
    join(tapsLow, tapsHigh, 8, low, high, y, n);
}

} // namespace tarn::bench
