// The core: texts, memory, words of the floating-point units; and the steps of a decoder. What the processor tells of
// itself is asked for and not digested.
#include "interface/digest/special_calls.h"

#include "support/fpstate.h"

#include <tarns.h>

#include <array>
#include <cfenv>
#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <string_view>

namespace tarn::test::digest {
namespace {

using Calls = std::function<void(Hash&)>;

Calls statusTexts(const char* (*function)(TarnStatus))
{
    return [=](Hash& hash) {
        for (TarnStatus status = -300; status <= 100; ++status)
            hash.add(function(status));
    };
}

Calls ofNumbers(int (*function)(Tarn64f))
{
    return [=](Hash& hash) {
        for (const double x : hardValues<double>())
            hash.add(static_cast<std::uint64_t>(function(x)));
    };
}

Calls ofWords(unsigned (*function)(unsigned))
{
    return [=](Hash& hash) {
        Random random(1);
        for (int i = 0; i < 1000; ++i)
            hash.add(function(static_cast<unsigned>(random.next())));
    };
}

Calls refusals(TarnStatus (*function)(int))
{
    return [=](Hash& hash) { hash.add(static_cast<std::uint64_t>(function(1))); };
}

Calls refusals(TarnStatus (*function)(int, void*))
{
    return [=](Hash& hash) { hash.add(static_cast<std::uint64_t>(function(1, nullptr))); };
}

/// The environment that programs start with, before and after.
template <class F>
void inDefaultEnvironment(Hash& hash, F f)
{
    std::fenv_t outside;
    std::fegetenv(&outside);
    std::fesetenv(FE_DFL_ENV);
    const std::uint64_t result = f();
    const std::array<std::uint64_t, 3> words = {result, readX87Control(), readMxcsr()};
    std::fesetenv(&outside);
    for (const std::uint64_t word : words)
        hash.add(word);
}

Calls wordRead(unsigned (*function)())
{
    return [=](Hash& hash) { inDefaultEnvironment(hash, function); };
}

// -- Viterbi decoding, whose tables have the sizes of the trellis -----------------------------------------------------

template <class T, std::size_t count>
std::array<T, count> anyWords(Random& random, unsigned mask)
{
    std::array<T, count> words{};
    for (T& word : words)
        word = static_cast<T>(random.next() & mask);
    return words;
}

template <class Words>
void addWords(Hash& hash, const Words& words)
{
    for (const auto word : words)
        hash.add(static_cast<std::uint64_t>(word));
}

constexpr int trellises[] = {16, 32, 64};

void nearestPoints(Hash& hash)
{
    Random random(1);
    for (int i = 0; i < 300; ++i) {
        const Tarn16sc point = {static_cast<Tarn16s>(random.next()), static_cast<Tarn16s>(random.next())};
        const auto map = anyWords<Tarn8u, 16>(random, 0xFF);
        Tarn16sc base{};
        std::array<Tarn32u, 8> errors{};
        hash.add(static_cast<std::uint64_t>(
            tarnsGetVarPointDV_16sc(&point, &base, errors.data(), map.data(), trellises[i % 3])));
        addWords(hash, std::array<Tarn16s, 2>{base.re, base.im});
        addWords(hash, errors);
    }
}

void symbolTables(Hash& hash)
{
    Random random(1);
    for (int i = 0; i < 300; ++i) {
        const auto errors = anyWords<Tarn32u, 16>(random, 0xBFFFF);
        std::array<Tarn32u, 32> table{};
        hash.add(static_cast<std::uint64_t>(
            tarnsBuildSymblTableDV4D_16sc(errors.data(), table.data(), trellises[i % 3], i / 3 % 16)));
        addWords(hash, table);
    }
}

void trellisSteps(Hash& hash)
{
    Random random(1);
    for (int i = 0; i < 300; ++i) {
        const int states = trellises[i % 3];
        const auto metrics = anyWords<Tarn16u, 64>(random, i % 2 == 0 ? 0xFFFF : 0x3FFF);
        const auto next = anyWords<Tarn8u, 64 * 16>(random, static_cast<unsigned>(states - 1));
        const auto table = anyWords<Tarn32u, 32>(random, i % 4 == 0 ? 0xFFFF0B0B : 0x3FFF0B0B);
        std::array<Tarn16u, 64> newMetrics;
        newMetrics.fill(65535);
        std::array<Tarn32u, 80> survivors{};
        hash.add(static_cast<std::uint64_t>(tarnsCalcStatesDV_16sc(metrics.data(), next.data(), newMetrics.data(),
                                                                   table.data(), survivors.data(), states, i % 16)));
        addWords(hash, newMetrics);
        addWords(hash, survivors);
    }
}

void metricUpdates(Hash& hash)
{
    Random random(1);
    for (int i = 0; i < 300; ++i) {
        auto newMetrics = anyWords<Tarn16u, 64>(random, i % 2 == 0 ? 0xFFFF : 0x000F);
        std::array<Tarn16u, 64> metrics{};
        Tarn16u smallest = 0;
        Tarn8u state = 0;
        hash.add(static_cast<std::uint64_t>(
            tarnsUpdatePathMetricsDV_16u(newMetrics.data(), &smallest, &state, metrics.data(), trellises[i % 3])));
        addWords(hash, newMetrics);
        addWords(hash, metrics);
        addWords(hash, std::array<int, 2>{smallest, state});
    }
}

/// Any rounding and precision; exceptions stay masked.
struct Fields {
    unsigned always;
    unsigned sometimes;
};
constexpr Fields x87 = {0x7F, 0xF00};
constexpr Fields symbolic = {0x8001F, 0x70300};
constexpr Fields mxcsr = {0x1F80, 0xE03F};

Calls wordSet(unsigned (*function)(unsigned, unsigned), Fields fields)
{
    return [=](Hash& hash) {
        Random random(2);
        for (int i = 0; i < 200; ++i) {
            const unsigned value = fields.always | (static_cast<unsigned>(random.next()) & fields.sometimes);
            const unsigned mask = static_cast<unsigned>(random.next()) & (fields.always | fields.sometimes);
            inDefaultEnvironment(hash, [&] { return function(value, mask); });
        }
    };
}

template <class R>
Calls wordLoaded(R (*function)(unsigned), Fields fields)
{
    return [=](Hash& hash) {
        Random random(3);
        for (int i = 0; i < 50; ++i) {
            const unsigned value = fields.always | (static_cast<unsigned>(random.next()) & fields.sometimes);
            inDefaultEnvironment(hash, [&]() -> std::uint64_t {
                if constexpr (std::is_void_v<R>) {
                    function(value);
                    return 0;
                } else {
                    return function(value);
                }
            });
        }
    };
}

template <class R, class... A>
Calls machineDependent(R (*function)(A...))
{
    return [=](Hash&) { function(A{}...); };
}

template <class T>
Calls memory(T* (*function)(int))
{
    return [=](Hash& hash) {
        for (const int len : {1, 2, 3, 100, 5000}) {
            T* block = function(len);
            hash.add(reinterpret_cast<std::uintptr_t>(block) % 32);
            hash.add(block != nullptr);
            std::fill_n(block, len, T{});
            tarnsFree(block);
        }
        hash.add(function(0) == nullptr);
        hash.add(function(-1) == nullptr);
    };
}

/// The taps themselves, which lie in the state in opposite order.
template <class State, class T, class S>
Calls tapsShown(TarnStatus (*make)(State**, const T*, int, const S*, int, int, int, int), TarnStatus (*free)(State*),
                TarnStatus (*show)(State*, T**))
{
    return [=](Hash& hash) {
        Random random(4);
        std::array<T, 20> taps;
        for (T& tap : taps) {
            const std::uint64_t bits = random.next();
            std::memcpy(&tap, &bits, sizeof tap);
        }
        State* state = nullptr;
        make(&state, taps.data(), static_cast<int>(taps.size()), nullptr, 0, 2, 1, 100);
        T* shown = nullptr;
        hash.add(static_cast<std::uint64_t>(show(state, &shown)));
        hash.add(std::string_view(reinterpret_cast<const char*>(shown), sizeof taps));
        free(state);
    };
}

const std::map<std::string, Calls>& specialCalls()
{
    static const std::map<std::string, Calls> calls = {
        {"tarnGetStatusString", statusTexts(tarnGetStatusString)},
        {"tarnCoreGetStatusString", statusTexts(tarnCoreGetStatusString)},
        {"tarnsGetLibVersion", [](Hash& hash) { hash.add(tarnsGetLibVersion()->version); }},
        {"tarnGetCpuType", machineDependent(tarnGetCpuType)},
        {"tarnCoreGetCpuType", machineDependent(tarnCoreGetCpuType)},
        {"tarnGetCpuClocks", machineDependent(tarnGetCpuClocks)},
        {"tarnCoreGetCpuClocks", machineDependent(tarnCoreGetCpuClocks)},
        {"tarn_get_cpu_counter", machineDependent(tarn_get_cpu_counter)},
        {"tarn_has_cpuid", machineDependent(tarn_has_cpuid)},
        {"tarn_max_cpuid_input", machineDependent(tarn_max_cpuid_input)},
        {"tarn_is_AuthenticCPU", machineDependent(tarn_is_AuthenticCPU)},
        {"tarn_has_rdtsc", machineDependent(tarn_has_rdtsc)},
        {"tarn_is_mmx_extension", machineDependent(tarn_is_mmx_extension)},
        {"tarn_is_ssx_extension", machineDependent(tarn_is_ssx_extension)},
        {"tarn_is_sse2_extension", machineDependent(tarn_is_sse2_extension)},
        {"tarn_is_htt_extension", machineDependent(tarn_is_htt_extension)},
        {"tarn_is_sse3_extension", machineDependent(tarn_is_sse3_extension)},
        {"tarn_tst_daz_ssx", machineDependent(tarn_tst_daz_ssx)},
        {"tarn_get_cpu_ident",
         [](Hash&) {
             TarnCpuIdent ident;
             tarn_get_cpu_ident(&ident);
         }},
        {"tarnSetFlushToZero", refusals(tarnSetFlushToZero)},
        {"tarnCoreSetFlushToZero", refusals(tarnCoreSetFlushToZero)},
        {"tarnSetDenormAreZeros", refusals(tarnSetDenormAreZeros)},
        {"tarnCoreSetDenormAreZeros", refusals(tarnCoreSetDenormAreZeros)},
        {"bit2symbol", ofWords(bit2symbol)},
        {"symbol2bit", ofWords(symbol2bit)},
        {"sw_bit2symbol", ofWords(sw_bit2symbol)},
        {"tarn_control87", wordSet(tarn_control87, symbolic)},
        {"tarn_status87", wordRead(tarn_status87)},
        {"tarn_clear87", wordRead(tarn_clear87)},
        {"ps_set_cw_fpu", wordSet(ps_set_cw_fpu, x87)},
        {"ps_set_ssx", wordSet(ps_set_ssx, mxcsr)},
        {"ps_get_cw_fpu", wordRead(ps_get_cw_fpu)},
        {"ps_get_sw_fpu", wordRead(ps_get_sw_fpu)},
        {"ps_get_ssx", wordRead(ps_get_ssx)},
        {"ps_clear_fpu", wordRead(ps_clear_fpu)},
        {"tarn_clear_ssx", wordRead(tarn_clear_ssx)},
        {"tarn_set_rcpc_fpu", wordSet(tarn_set_rcpc_fpu, x87)},
        {"tarn_set_rc_ssx", wordLoaded(tarn_set_rc_ssx, mxcsr)},
        {"tarn_set_cw_fpu", wordLoaded(tarn_set_cw_fpu, x87)},
        {"tarn_set_cw_ssx", wordLoaded(tarn_set_cw_ssx, mxcsr)},
        {"tarn_isnan", ofNumbers(tarn_isnan)},
        {"tarn_finite", ofNumbers(tarn_finite)},
        {"tarnsMalloc_8u", memory(tarnsMalloc_8u)},
        {"tarnsMalloc_8s", memory(tarnsMalloc_8s)},
        {"tarnsMalloc_16u", memory(tarnsMalloc_16u)},
        {"tarnsMalloc_16s", memory(tarnsMalloc_16s)},
        {"tarnsMalloc_32u", memory(tarnsMalloc_32u)},
        {"tarnsMalloc_32s", memory(tarnsMalloc_32s)},
        {"tarnsMalloc_64s", memory(tarnsMalloc_64s)},
        {"tarnsMalloc_32f", memory(tarnsMalloc_32f)},
        {"tarnsMalloc_64f", memory(tarnsMalloc_64f)},
        {"tarnsMalloc_8sc", memory(tarnsMalloc_8sc)},
        {"tarnsMalloc_16sc", memory(tarnsMalloc_16sc)},
        {"tarnsMalloc_32sc", memory(tarnsMalloc_32sc)},
        {"tarnsMalloc_64sc", memory(tarnsMalloc_64sc)},
        {"tarnsMalloc_32fc", memory(tarnsMalloc_32fc)},
        {"tarnsMalloc_64fc", memory(tarnsMalloc_64fc)},
        {"tarnsFIRLMSMRGetTapsPointer32s_16s",
         tapsShown(tarnsFIRLMSMRInitAlloc32s_16s, tarnsFIRLMSMRFree32s_16s, tarnsFIRLMSMRGetTapsPointer32s_16s)},
        {"tarnsFIRLMSMRGetTapsPointer32sc_16sc",
         tapsShown(tarnsFIRLMSMRInitAlloc32sc_16sc, tarnsFIRLMSMRFree32sc_16sc, tarnsFIRLMSMRGetTapsPointer32sc_16sc)},
        {"tarnsFree", [](Hash&) { tarnsFree(tarnsMalloc_8u(100)); }},
        {"tarnsGetVarPointDV_16sc", nearestPoints},
        {"tarnsBuildSymblTableDV4D_16sc", symbolTables},
        {"tarnsCalcStatesDV_16sc", trellisSteps},
        {"tarnsUpdatePathMetricsDV_16u", metricUpdates},
    };
    return calls;
}

} // namespace

bool callSpecially(const std::string& name, Hash& hash)
{
    const auto found = specialCalls().find(name);
    if (found == specialCalls().end())
        return false;
    found->second(hash);
    return true;
}

} // namespace tarn::test::digest
