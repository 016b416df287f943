// Proof of the order of checks where it is not the usual one: the faults are given in that order.
//
//     struct Call { ...arguments, good by default...; TarnStatus operator()() const; };
//     expectOrder<Call>({{[](Call& c) { c.pPhase = nullptr; }, tarnStsNullPtrErr},
//                        {[](Call& c) { c.magn = 0; }, tarnStsToneMagnErr}, ...});
//
// Every fault alone and every two together are tried, and at last the good call.
#pragma once

#include "tarncore.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace tarn::test {

template <class Call>
struct OrderedFault {
    void (*spoil)(Call&);
    TarnStatus status;
};

template <class Call>
void expectOrder(const std::vector<OrderedFault<Call>>& faults)
{
    for (std::size_t i = 0; i < faults.size(); ++i) {
        Call alone;
        faults[i].spoil(alone);
        EXPECT_EQ(faults[i].status, alone()) << "fault " << i;
        for (std::size_t j = i + 1; j < faults.size(); ++j) {
            Call both;
            faults[j].spoil(both);
            faults[i].spoil(both);
            // Of two faults in one argument the first stays.
            EXPECT_EQ(faults[i].status, both()) << "faults " << i << " and " << j;
        }
    }
    Call good;
    EXPECT_EQ(tarnStsNoErr, good()) << "the call without a fault";
}

} // namespace tarn::test
