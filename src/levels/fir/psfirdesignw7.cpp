// Kernels of FIR design.
#include "levels/fir/psfirdesign.h"

#include "frame/phase.h"
#include "frame/precise.h"

namespace tarn {

void divideTone(const Tarn64f* tone, Tarn64f* taps, int tapsLen)
{
    const int half = tapsLen / 2;
    double divisor = tapsLen % 2 != 0 ? pi : pi / 2;
    for (int k = 1; k <= half; ++k, divisor += pi) {
        store(taps + half - k, tone[k - 1] / divisor);
    }
    std::memset(static_cast<void*>(taps + (tapsLen + 1) / 2), 0, static_cast<std::size_t>(half) * sizeof *taps);
}

void addTone(const Tarn64f* other, Tarn64f* tone, int len) { walk(tone, len, add, other, tone); }

double gainAtZero(const Tarn64f* taps, int half, double centre)
{
    double sum = 0;
    for (int i = 0; i < half; ++i) {
        sum += loadElement(taps + i);
    }
    return 2 * sum + centre;
}

double gainAtNyquist(const Tarn64f* taps, int half, double centre)
{
    double sum = 0;
    double sign = -1;
    for (int i = 0; i < half; ++i, sign = -sign) {
        sum += sign * loadElement(taps + i);
    }
    return 2 * sum + sign * centre;
}

double gainAt(double freq, const Tarn64f* taps, int half, double centre, double firstDistance)
{
    double sum = 0;
    for (int k = 0; k < half; ++k) {
        sum += loadElement(taps + half - 1 - k) * preciseCosine(twoPi * freq * (firstDistance + k));
    }
    return 2 * sum + centre;
}

void scaleTaps(Tarn64f* taps, int count, double scale)
{
    walk(taps, count, WithConstant<Word<Mul>, Tarn64f>{mul, scale}, static_cast<const Tarn64f*>(taps));
}

void mirrorTaps(Tarn64f* taps, int tapsLen, double sign)
{
    for (int i = 0; i < tapsLen / 2; ++i) {
        store(taps + tapsLen - 1 - i, sign * loadElement(taps + i));
    }
}

} // namespace tarn
