// Walks that report: what an operation met on its way, for the warnings that depend on the data.
//
//     bool sawZero = false;
//     walk(pDst, len, reportingTo(sawZero, Quotient{}), pSrc1, pSrc2);
//     return sawZero;
//
// The operation is called with the report in front of its operands, and may change it. A report is any type: a bool, or
// Met, which needs no branch. The walker visits the ends of an array first, and elements near them twice, so that there
// a report says "ever"; walkGroups goes in order, and there it may say "first".
#pragma once

#include "frame/walk.h"

namespace tarn {

template <typename Report, typename Operation>
struct Reporting {
    Report* report;
    Operation operation;

    template <typename... X>
    TARN_INLINE auto operator()(X... x) const
    {
        return operation(*report, x...);
    }
};

template <typename Report, typename Operation>
inline constexpr int stepsAtOnce<Reporting<Report, Operation>> = stepsAtOnce<Operation>;

template <typename Report, typename Operation>
TARN_INLINE Reporting<Report, Operation> reportingTo(Report& report, Operation operation)
{
    return {&report, operation};
}

// Whether any mask was ever set. Masks of packs are gathered in a register, at the price of one instruction each, and
// looked at once.
class Met {
public:
    TARN_INLINE void note(bool mask) { inElements |= mask; }

    template <typename T, int N>
    TARN_INLINE void note(Pack<T, N> mask)
    {
        gather(reinterpretPack<Tarn8u>(mask));
    }

    TARN_INLINE bool any() const { return inElements || anyOf(inPacks); }

private:
    template <int N>
    TARN_INLINE void gather(Pack<Tarn8u, N> mask)
    {
        if constexpr (N > vectorBytes) {
            gather(lowHalf(mask));
            gather(highHalf(mask));
        } else if constexpr (N == vectorBytes) {
            inPacks = bitOr(inPacks, mask);
        } else {
            inElements |= anyOf(mask);
        }
    }

    Vector<Tarn8u> inPacks = splat<Vector<Tarn8u>>(0);
    bool inElements = false;
};

} // namespace tarn
