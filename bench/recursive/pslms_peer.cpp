#include "pslms_peer.h"

#include <cmath>
#include <cstddef>

namespace tarn::bench {

void lmsLoop(const Tarn32f* x, const Tarn32f* ref, Tarn32f* y, int len, Tarn32f mu, Tarn32f* taps, int tapsLen)
{
    for (int n = 0; n < len; ++n) {
        Tarn32f sum = 0;
        for (int j = 0; j < tapsLen; ++j)
            sum += taps[j] * x[n + j];
        y[n] = sum;
        const Tarn32f e = (ref[n] - sum) * (2 * mu);
        for (int j = 0; j < tapsLen; ++j)
            taps[j] += e * x[n + j];
    }
}

void lmsLoopQ15(Tarn16s x, Tarn16s ref, Tarn16s* y, Tarn32s* taps, int tapsLen, int mu, Tarn16s* line, int* index)
{
    line[*index] = line[*index + tapsLen] = x;
    *index = *index + 1 == tapsLen ? 0 : *index + 1;
    const Tarn16s* const window = line + *index;
    double sum = 0, energy = 0;
    for (int j = 0; j < tapsLen; ++j) {
        sum += static_cast<double>(taps[j]) * window[j];
        energy += static_cast<double>(window[j]) * window[j];
    }
    if (energy == 0)
        return;
    sum *= 0x1p-15;
    *y = static_cast<Tarn16s>(std::lrint(std::fmin(std::fmax(sum, -32768), 32767)));
    const double g = mu * (ref - sum) / energy;
    for (int j = 0; j < tapsLen; ++j)
        taps[j] = static_cast<Tarn32s>(std::lrint(std::fmin(taps[j] + g * window[j], 2147483647)));
}

Tarn32s lmsLoopOutput(const Tarn32s* taps, const Tarn16s* window, int tapsLen, int step)
{
    Tarn32u sum = 0;
    for (int j = 0; j < tapsLen; ++j)
        sum += static_cast<Tarn32u>((taps[j] >> 16) * window[static_cast<std::ptrdiff_t>(j) * step]);
    return static_cast<Tarn32s>(sum);
}

void lmsLoopUpdate(Tarn32s* taps, const Tarn16s* window, int tapsLen, int step, int g)
{
    for (int j = 0; j < tapsLen; ++j)
        taps[j] = static_cast<Tarn32s>(static_cast<Tarn32u>(taps[j]) +
                                       static_cast<Tarn32u>(window[static_cast<std::ptrdiff_t>(j) * step] * g));
}

} // namespace tarn::bench
