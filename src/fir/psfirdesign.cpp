// Front ends of FIR design: windowed ideal responses of four shapes.
#include "tarns/firdesign.h"
#include "tarns/windows.h"

#include "frame/object.h"
#include "frame/phase.h"
#include "levels/fir/psfirdesign.h"
#include "levels/generators/pstone.h"

using namespace tarn;

namespace {

constexpr int fewestTaps = 5;

constexpr bool isCutOff(double freq) { return freq > 0 && freq <= 0.5; }

TarnStatus checkDesign(const Tarn64f* pTaps, int tapsLen, bool frequenciesFit)
{
    if (pTaps == nullptr) {
        return tarnStsNullPtrErr;
    }
    return tapsLen < fewestTaps || !frequenciesFit ? tarnStsSizeErr : tarnStsNoErr;
}

// The taps of one side, centre first, but for their divisors: a tone whose phase makes it a sine, its negative, or a
// cosine, at the distance of the tap beside the centre.
enum class Side { sine, negativeSine, cosine };

double startPhase(Side side, double freq, bool odd)
{
    if (side == Side::cosine) {
        return pi * freq;
    }
    const bool negative = side == Side::negativeSine;
    if (odd) {
        const double lead = negative ? 0.25 : freq >= 0.25 ? -0.25 : 0.75;
        return (lead + freq) * twoPi;
    }
    return (negative ? 0.5 + freq : 1.5 + freq) * pi;
}

// The tone is made by the kernel: half a cycle per sample, and the phase of a whole turn that goes with it, are beyond
// what the generator's front end takes.
Owned<Tarn64f[]> makeTone(Side side, double freq, int tapsLen)
{
    const int len = tapsLen / 2 + 1;
    auto tone = allocate<Tarn64f>(len);
    if (tone) {
        toneAccurate(tone.get(), len, {1.0, freq, startPhase(side, freq, tapsLen % 2 != 0)});
    }
    return tone;
}

void applyWindow(int winType, Tarn64f* pTaps, int tapsLen)
{
    switch (winType) {
    case tarnWinBartlett:
        tarnsWinBartlett_64f_I(pTaps, tapsLen);
        break;
    case tarnWinBlackman:
        tarnsWinBlackmanOpt_64f_I(pTaps, tapsLen);
        break;
    case tarnWinHamming:
        tarnsWinHamming_64f_I(pTaps, tapsLen);
        break;
    case tarnWinHann:
        tarnsWinHann_64f_I(pTaps, tapsLen);
        break;
    default:
        break;
    }
}

// What makes one of the four shapes.
struct Design {
    double centre;   // the centre tap, for odd lengths
    double mirrored; // sign of the right half
    auto(*gain)(const Tarn64f* taps, int tapsLen, double centre, double freq) -> double;
    double gainFreq;
};

TarnStatus design(const Tarn64f* tone, Tarn64f* pTaps, int tapsLen, int winType, int doNormal, const Design& shape)
{
    const int half = tapsLen / 2;
    const bool odd = tapsLen % 2 != 0;
    divideTone(tone, pTaps, tapsLen);
    if (odd) {
        store(pTaps + half, shape.centre);
    }
    applyWindow(winType, pTaps, tapsLen);
    if (doNormal != 0) {
        const double gain = shape.gain(pTaps, tapsLen, odd ? loadElement(pTaps + half) : 0, shape.gainFreq);
        scaleTaps(pTaps, odd ? half + 1 : half, 1 / std::fabs(gain));
    }
    mirrorTaps(pTaps, tapsLen, shape.mirrored);
    return tarnStsNoErr;
}

TarnStatus designFromOne(Side side, double rFreq, Tarn64f* pTaps, int tapsLen, int winType, int doNormal,
                         const Design& shape)
{
    const auto tone = makeTone(side, rFreq, tapsLen);
    if (!tone) {
        return tarnStsNullPtrErr;
    }
    return design(tone.get(), pTaps, tapsLen, winType, doNormal, shape);
}

TarnStatus designFromTwo(double plusFreq, double minusFreq, Tarn64f* pTaps, int tapsLen, int winType, int doNormal,
                         const Design& shape)
{
    const auto plus = makeTone(Side::sine, plusFreq, tapsLen);
    if (!plus) {
        return tarnStsNullPtrErr;
    }
    const auto minus = makeTone(Side::negativeSine, minusFreq, tapsLen);
    if (!minus) {
        return tarnStsNullPtrErr;
    }
    addTone(minus.get(), plus.get(), tapsLen / 2 + 1);
    return design(plus.get(), pTaps, tapsLen, winType, doNormal, shape);
}

double zeroGain(const Tarn64f* taps, int tapsLen, double centre, double /*freq*/)
{
    return gainAtZero(taps, tapsLen / 2, centre);
}

double nyquistGain(const Tarn64f* taps, int tapsLen, double centre, double /*freq*/)
{
    return gainAtNyquist(taps, tapsLen / 2, centre);
}

double bandGain(const Tarn64f* taps, int tapsLen, double centre, double freq)
{
    return gainAt(freq, taps, tapsLen / 2, centre, tapsLen % 2 != 0 ? 1 : 0.5);
}

bool isBand(double low, double high) { return isCutOff(low) && isCutOff(high) && low < high; }

} // namespace

TarnStatus tarnsFIRGenLowpass_64f(Tarn64f rFreq, Tarn64f* pTaps, int tapsLen, int winType, int doNormal)
{
    if (const TarnStatus status = checkDesign(pTaps, tapsLen, isCutOff(rFreq))) {
        return status;
    }
    return designFromOne(Side::sine, rFreq, pTaps, tapsLen, winType, doNormal, {2 * rFreq, 1, zeroGain, 0});
}

TarnStatus tarnsFIRGenHighpass_64f(Tarn64f rFreq, Tarn64f* pTaps, int tapsLen, int winType, int doNormal)
{
    if (const TarnStatus status = checkDesign(pTaps, tapsLen, isCutOff(rFreq))) {
        return status;
    }
    const bool odd = tapsLen % 2 != 0;
    return designFromOne(odd ? Side::negativeSine : Side::cosine, rFreq, pTaps, tapsLen, winType, doNormal,
                         {1 - 2 * rFreq, odd ? 1.0 : -1.0, nyquistGain, 0});
}

TarnStatus tarnsFIRGenBandpass_64f(Tarn64f rLowFreq, Tarn64f rHighFreq, Tarn64f* pTaps, int tapsLen, int winType,
                                   int doNormal)
{
    if (const TarnStatus status = checkDesign(pTaps, tapsLen, isBand(rLowFreq, rHighFreq))) {
        return status;
    }
    return designFromTwo(rHighFreq, rLowFreq, pTaps, tapsLen, winType, doNormal,
                         {(rHighFreq - rLowFreq) * 2, 1, bandGain, (rLowFreq + rHighFreq) / 2});
}

TarnStatus tarnsFIRGenBandstop_64f(Tarn64f rLowFreq, Tarn64f rHighFreq, Tarn64f* pTaps, int tapsLen, int winType,
                                   int doNormal)
{
    if (const TarnStatus status = checkDesign(pTaps, tapsLen, isBand(rLowFreq, rHighFreq))) {
        return status;
    }
    return designFromTwo(rLowFreq, rHighFreq, pTaps, tapsLen, winType, doNormal,
                         {(rHighFreq - rLowFreq) * -2 + 1, 1, zeroGain, 0});
}
