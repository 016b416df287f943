#include "psfirmr_peer.h"

namespace tarn::bench {

void rateLoop(const Tarn32f* phases, int len, int up, int down, const Tarn32f* x, Tarn32f* y, int outputs)
{
    int phase = 0;
    for (int m = 0; m < outputs; ++m) {
        const Tarn32f* h = phases + phase * len;
        Tarn32f sum = 0;
        for (int k = 0; k < len; ++k)
            sum += h[k] * x[k];
        y[m] = sum;
        phase += down;
        x += phase / up;
        phase %= up;
    }
}

void directLoop(const Tarn32f* h, int taps, const Tarn32f* x, Tarn32f* y, int len, Tarn32f* line, int* index)
{
    int i = *index;
    for (int n = 0; n < len; ++n) {
        line[i] = line[i + taps] = x[n];
        i = i + 1 == taps ? 0 : i + 1;
        double sum = 0;
        for (int k = 0; k < taps; ++k)
            sum += static_cast<double>(h[taps - 1 - k]) * static_cast<double>(line[i + k]);
        y[n] = static_cast<Tarn32f>(sum);
    }
    *index = i;
}

} // namespace tarn::bench
