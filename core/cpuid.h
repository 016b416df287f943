// What the words of CPUID mean, apart from the processor that gives them, so that every answer can be tested on any
// one.
#ifndef TARNS_CORE_CPUID_H
#define TARNS_CORE_CPUID_H

#include "tarncore.h"

namespace tarn {

// The four registers that one leaf fills.
struct CpuidWords {
    unsigned int eax, ebx, ecx, edx;
};

constexpr int bit(unsigned int word, int index) { return static_cast<int>(word >> index & 1u); }

// Four characters of the vendor string as they stand in a register, the first one in the low byte.
constexpr unsigned int vendorWord(const char (&text)[5])
{
    unsigned int word = 0;
    for (int i = 3; i >= 0; --i)
        word = word << 8 | static_cast<unsigned char>(text[i]);
    return word;
}

constexpr bool isAuthentic(const CpuidWords& leaf0)
{
    return leaf0.ebx == vendorWord("Auth") && leaf0.edx == vendorWord("enti") && leaf0.ecx == vendorWord("cCPU");
}

// The flag alone says that the package could have several logical processors; the count says how many it has.
constexpr int hasHtt(const CpuidWords& leaf1)
{
    const unsigned int logicalProcessors = leaf1.ebx >> 16 & 0xFFu;
    return bit(leaf1.edx, 28) != 0 && logicalProcessors > 1;
}

constexpr void fillIdent(TarnCpuIdent& ident, const CpuidWords& leaf1, const CpuidWords& leaf2)
{
    const unsigned int signature = leaf1.eax;
    ident.family = static_cast<int>(signature >> 8 & 0xFu);
    ident.stepping = static_cast<int>(signature & 0xFu);
    ident.model = static_cast<int>(signature >> 4 & 0xFu);
    ident.type = ident.family >> 11 & 3; // of the masked family, so 0: the type field of the signature is not reported
    ident.featureBits = static_cast<int>(leaf1.edx);
    ident.cacheDescA = static_cast<int>(leaf2.eax);
    ident.cacheDescD = static_cast<int>(leaf2.edx);
    ident.hasMmx = bit(leaf1.edx, 23);
    ident.hasSsx = bit(leaf1.edx, 25);
    ident.hasSse2 = bit(leaf1.edx, 26);
    ident.hasHtt = hasHtt(leaf1);
    ident.hasSse3 = bit(leaf1.ecx, 0);
}

// The type of a processor of the vendor that the families are numbered by.
constexpr int cpuType(const TarnCpuIdent& ident)
{
    switch (ident.family) {
    case 7:
        return tarnCpuF7;
    case 31: // out of reach of the 4-bit field; stands here for records with the extended family added
        return tarnCpuOther;
    case 15:
        if (!ident.hasSse2)
            return tarnCpuOther;
        if (ident.hasSse3)
            return tarnCpuF15Sse3;
        return ident.hasHtt ? tarnCpuF15Sse2Htt : tarnCpuF15Sse2;
    case 5:
        return ident.hasMmx ? tarnCpuF5Mmx : tarnCpuF5;
    case 6:
        if (ident.hasSse2)
            return tarnCpuF6Sse2;
        if (ident.hasSsx)
            return tarnCpuF6Ssx;
        return ident.hasMmx ? tarnCpuF6Mmx : tarnCpuF6;
    default:
        return tarnCpuUnknown;
    }
}

} // namespace tarn

#endif
