// Processor identification: CPUID, the flags register and the time-stamp counter. Nothing is cached.
#include <cpuid.h>
#include <x86intrin.h>

#include "core/cpuid.h"
#include "tarncore.h"

namespace {

tarn::CpuidWords cpuid(unsigned int leaf)
{
    tarn::CpuidWords words;
    __cpuid_count(leaf, 0, words.eax, words.ebx, words.ecx, words.edx);
    return words;
}

} // namespace

int tarn_has_cpuid(void)
{
    constexpr decltype(__readeflags()) idFlag = 1u << 21;
    const auto before = __readeflags();
    __writeeflags(before ^ idFlag);
    const auto after = __readeflags();
    __writeeflags(before);
    return ((before ^ after) & idFlag) != 0;
}

unsigned int tarn_max_cpuid_input(void) { return cpuid(0).eax; }

int tarn_is_AuthenticCPU(void) { return tarn::isAuthentic(cpuid(0)); }

int tarn_has_rdtsc(void) { return tarn::bit(cpuid(1).edx, 4); }

int tarn_is_mmx_extension(void) { return tarn::bit(cpuid(1).edx, 23); }

int tarn_is_ssx_extension(void) { return tarn::bit(cpuid(1).edx, 25); }

int tarn_is_sse2_extension(void) { return tarn::bit(cpuid(1).edx, 26); }

int tarn_is_htt_extension(void) { return tarn::hasHtt(cpuid(1)); }

int tarn_is_sse3_extension(void) { return tarn::bit(cpuid(1).ecx, 0); }

void tarn_get_cpu_ident(TarnCpuIdent* pIdent) { tarn::fillIdent(*pIdent, cpuid(1), cpuid(2)); }

int tarnCoreGetCpuType(void)
{
    if (!tarn_has_cpuid() || !tarn_is_AuthenticCPU())
        return tarnCpuUnknown;
    TarnCpuIdent ident;
    tarn_get_cpu_ident(&ident);
    return tarn::cpuType(ident);
}

int tarnGetCpuType(void) { return tarnCoreGetCpuType(); }

unsigned long long tarn_get_cpu_counter(void) { return __rdtsc(); }

unsigned long long tarnCoreGetCpuClocks(void) { return tarn_get_cpu_counter(); }

unsigned long long tarnGetCpuClocks(void) { return tarnCoreGetCpuClocks(); }
