// The checks of multi-rate FIR filters: pointers, taps, factors, phases.
#pragma once

#include "fir/psfir_common.h"
#include "levels/fir/psfirmr_rates.h"

namespace tarn {

// The checks of a call that makes something of taps and factors, behind those of pointers.
template <typename... P>
inline TarnStatus checkFactors(int tapsLen, int upFactor, int downFactor, const P*... pointers)
{
    if (const TarnStatus status = checkTaps(tapsLen, pointers...)) {
        return status;
    }
    return upFactor < 1 || downFactor < 1 ? tarnStsFIRMRFactorErr : tarnStsNoErr;
}
template <typename... P>
inline TarnStatus checkRates(const FirRates& r, const P*... pointers)
{
    if (const TarnStatus status =
            checkFactors(static_cast<int>(r.taps), static_cast<int>(r.up), static_cast<int>(r.down), pointers...)) {
        return status;
    }
    const bool good = 0 <= r.upPhase && r.upPhase < r.up && 0 <= r.downPhase && r.downPhase < r.down;
    return good ? tarnStsNoErr : tarnStsFIRMRPhaseErr;
}

} // namespace tarn
