// The levels side by side in one program, with FFTW and VOLK beside them at their own widest:
//     TARNS_LEVEL_LIBRARIES=DIR/libtarnst7.so:DIR/libtarnsy8.so:DIR/libtarnsz9.so levels_bench
// scripts/bench-levels builds the levels and runs it.
#include "tarns.h"

#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#ifdef TARNS_HAVE_VOLK
#include <volk/volk.h>
#endif
#ifdef TARNS_HAVE_FFTW
#include <fftw3.h>
#endif

namespace {

struct Level {
    std::string name;
    void* library;

    template <typename Function>
    Function* function(const char* symbol) const
    {
        void* const address = dlsym(library, symbol);
        if (address == nullptr) {
            std::fprintf(stderr, "%s\n", dlerror());
            std::exit(1);
        }
        Function* f;
        static_assert(sizeof f == sizeof address);
        std::memcpy(&f, &address, sizeof f);
        return f;
    }
};
#define TARN_OF(LEVEL, NAME) (LEVEL).function<decltype(NAME)>(#NAME)

constexpr std::size_t line = 64;
constexpr int longest = 1 << 16;

// An array on a boundary of cache lines, with values from 1 to 2, which may have signs.
template <typename T>
T* array(bool isSigned = true, int length = longest)
{
    T* const p = static_cast<T*>(std::aligned_alloc(line, sizeof(T) * static_cast<std::size_t>(length)));
    for (int i = 0; i < length; ++i) {
        const double value = (1 + i % 997 / 997.0) * (isSigned && i % 3 == 0 ? -1 : 1);
        p[i] = static_cast<T>(std::is_integral_v<T> ? 1000 * value : value);
    }
    return p;
}

// A case that is prepared when it is run, which the filter of the command line may not ask for.
void addLate(const std::string& name, int n, const std::string& who,
             const std::function<std::function<void()>()>& prepare)
{
    benchmark::RegisterBenchmark((name + "/" + std::to_string(n) + "/" + who).c_str(),
                                 [prepare](benchmark::State& state) {
                                     const std::function<void()> call = prepare();
                                     for (auto _ : state) {
                                         call();
                                         benchmark::ClobberMemory();
                                     }
                                 });
}

void add(const std::string& name, int n, const std::string& who, const std::function<void()>& call)
{
    addLate(name, n, who, [=] { return call; });
}

// Every case of one array or two has them to itself, and keeps them.
template <typename S, typename D, typename Function>
void addUnary(const std::vector<Level>& levels, const char* name, const char* symbol, Function* /*shape*/, int n)
{
    const S* const a = array<S>(false);
    D* const d = array<D>();
    for (const Level& level : levels) {
        auto* const f = level.function<Function>(symbol);
        add(name, n, level.name, [=] { f(a, d, n); });
    }
}

template <typename T, typename Function>
void addBinary(const std::vector<Level>& levels, const char* name, const char* symbol, Function* /*shape*/, int n)
{
    const T* const a = array<T>();
    const T* const b = array<T>();
    T* const d = array<T>();
    for (const Level& level : levels) {
        auto* const f = level.function<Function>(symbol);
        add(name, n, level.name, [=] { f(a, b, d, n); });
    }
}
#define TARN_UNARY(NAME, SYMBOL, S, D) addUnary<S, D>(levels, NAME, #SYMBOL, SYMBOL, n)
#define TARN_BINARY(NAME, SYMBOL, T) addBinary<T>(levels, NAME, #SYMBOL, SYMBOL, n)

void addElementwise(const std::vector<Level>& levels, int n)
{
    TARN_BINARY("add_32f", tarnsAdd_32f, Tarn32f);
    TARN_BINARY("mul_32f", tarnsMul_32f, Tarn32f);
    TARN_BINARY("div_32f", tarnsDiv_32f, Tarn32f);
    TARN_UNARY("sqrt_32f", tarnsSqrt_32f, Tarn32f, Tarn32f);
    TARN_UNARY("exp_32f", tarnsExp_32f, Tarn32f, Tarn32f);
    TARN_UNARY("ln_32f", tarnsLn_32f, Tarn32f, Tarn32f);
    TARN_UNARY("arctan_32f", tarnsArctan_32f, Tarn32f, Tarn32f);
    TARN_UNARY("convert_16s32f", tarnsConvert_16s32f, Tarn16s, Tarn32f);
    auto* const parts = array<Tarn32f>();
    auto* const others = array<Tarn32f>();
    auto* const result = array<Tarn32f>();
    auto* const words = array<Tarn16s>();
    auto* const moreWords = array<Tarn16s>();
    auto* const wordsOut = array<Tarn16s>();
    const auto* const z = reinterpret_cast<Tarn32fc*>(parts);
    const auto* const w = reinterpret_cast<Tarn32fc*>(others);
    auto* const zOut = reinterpret_cast<Tarn32fc*>(result);
    for (const Level& level : levels) {
        auto* const multiply = TARN_OF(level, tarnsMul_32fc);
        auto* const magnitude = TARN_OF(level, tarnsMagnitude_32fc);
        auto* const convert = TARN_OF(level, tarnsConvert_32f16s_Sfs);
        auto* const sum = TARN_OF(level, tarnsAdd_16s_Sfs);
        auto* const product = TARN_OF(level, tarnsMul_16s_Sfs);
        add("mul_32fc", n, level.name, [=] { multiply(z, w, zOut, n); });
        add("magnitude_32fc", n, level.name, [=] { magnitude(z, result, n); });
        add("convert_32f16s", n, level.name, [=] { convert(parts, wordsOut, n, tarnRndNear, 0); });
        add("add_16s_Sfs1", n, level.name, [=] { sum(words, moreWords, wordsOut, n, 1); });
        add("mul_16s_Sfs8", n, level.name, [=] { product(words, moreWords, wordsOut, n, 8); });
    }
    for (const Level& level : levels) {
        auto* const sum = TARN_OF(level, tarnsSum_32f);
        auto* const dot = TARN_OF(level, tarnsDotProd_32f);
        auto* const index = TARN_OF(level, tarnsMaxIndx_32f);
        add("sum_32f", n, level.name, [=] { sum(parts, n, result, tarnAlgHintFast); });
        add("dotProd_32f", n, level.name, [=] { dot(parts, others, n, result); });
        add("maxIndx_32f", n, level.name, [=] {
            int at;
            index(parts, n, result, &at);
            benchmark::DoNotOptimize(at);
        });
    }
#ifdef TARNS_HAVE_VOLK
    auto* const positive = array<Tarn32f>(false);
    const auto un = static_cast<unsigned>(n);
    const auto* const zv = reinterpret_cast<const lv_32fc_t*>(parts);
    const auto* const wv = reinterpret_cast<const lv_32fc_t*>(others);
    add("add_32f", n, "VOLK", [=] { volk_32f_x2_add_32f(result, parts, others, un); });
    add("mul_32f", n, "VOLK", [=] { volk_32f_x2_multiply_32f(result, parts, others, un); });
    add("div_32f", n, "VOLK", [=] { volk_32f_x2_divide_32f(result, parts, others, un); });
    add("sqrt_32f", n, "VOLK", [=] { volk_32f_sqrt_32f(result, positive, un); });
    add("exp_32f", n, "VOLK", [=] { volk_32f_exp_32f(result, positive, un); });
    add("ln_32f", n, "VOLK", [=] { volk_32f_log2_32f(result, positive, un); });
    add("arctan_32f", n, "VOLK", [=] { volk_32f_atan_32f(result, positive, un); });
    add("convert_16s32f", n, "VOLK", [=] { volk_16i_s32f_convert_32f(result, words, 1, un); });
    add("convert_32f16s", n, "VOLK", [=] { volk_32f_s32f_convert_16i(wordsOut, parts, 1, un); });
    add("mul_32fc", n, "VOLK", [=] { volk_32fc_x2_multiply_32fc(reinterpret_cast<lv_32fc_t*>(result), zv, wv, un); });
    add("magnitude_32fc", n, "VOLK", [=] { volk_32fc_magnitude_32f(result, zv, un); });
    add("sum_32f", n, "VOLK", [=] { volk_32f_accumulator_s32f(result, parts, un); });
    add("dotProd_32f", n, "VOLK", [=] { volk_32f_x2_dot_prod_32f(result, parts, others, un); });
    add("maxIndx_32f", n, "VOLK", [=] { volk_32f_index_max_32u(reinterpret_cast<uint32_t*>(result), parts, un); });
#endif
}

template <typename T, typename State, typename Init, typename Run>
void addFilter(const char* name, const Level& level, Init init, Run run, int n)
{
    State* state = nullptr;
    init(&state);
    const T* const src = array<T>();
    T* const dst = array<T>();
    add(name, n, level.name, [=] { run(src, dst, n, state); });
}

void addFilters(const std::vector<Level>& levels, int n)
{
    static Tarn32f taps[32];
    for (int i = 0; i < 32; ++i) {
        taps[i] = static_cast<Tarn32f>(1.0 / (i + 1));
    }
    static const Tarn32f sections[12] = {1, 0.5F, 0.25F, 1, -0.5F, 0.25F, 1, 0.5F, 0.25F, 1, -0.25F, 0.125F};
    for (const Level& level : levels) {
        auto* const initFir = TARN_OF(level, tarnsFIRInitAlloc_32f);
        addFilter<Tarn32f, TarnsFIRState_32f>(
            "fir_32f_32taps", level, [=](TarnsFIRState_32f** state) { initFir(state, taps, 32, nullptr); },
            TARN_OF(level, tarnsFIR_32f), n);
        auto* const initIir = TARN_OF(level, tarnsIIRInitAlloc_BiQuad_32f);
        addFilter<Tarn32f, TarnsIIRState_32f>(
            "biquad2_32f", level, [=](TarnsIIRState_32f** state) { initIir(state, sections, 2, nullptr); },
            TARN_OF(level, tarnsIIR_32f), n);
    }
}

// The arrays of transforms of a length, out of place. All share them, and they wait for the first case that runs.
struct TransformArrays {
    explicit TransformArrays(int n) : length(2 * n + longest) {}

    template <typename T>
    T* of(T*& p) const
    {
        p = p != nullptr ? p : array<T>(true, length);
        return p;
    }
    Tarn32f* in(Tarn32f /*type*/) { return of(singles); }
    Tarn32f* out(Tarn32f /*type*/) { return of(singlesOut); }
    Tarn64f* in(Tarn64f /*type*/) { return of(doubles); }
    Tarn64f* out(Tarn64f /*type*/) { return of(doublesOut); }
    Tarn8u* buffer()
    {
        work = work != nullptr ? work : array<Tarn64f>(true, 4 * length);
        return reinterpret_cast<Tarn8u*>(work);
    }

private:
    int length;
    Tarn32f *singles = nullptr, *singlesOut = nullptr;
    Tarn64f *doubles = nullptr, *doublesOut = nullptr, *work = nullptr;
};
using SharedArrays = std::shared_ptr<TransformArrays>;

// `size` is what a specification is made for, the order or the length. T is the type of the parts.
template <typename T, typename Spec, typename Init, typename Element>
void addTransform(const std::string& name, const std::string& who, int n, int size, Init* init,
                  TarnStatus (*run)(const Element*, Element*, const Spec*, Tarn8u*), const SharedArrays& arrays)
{
    addLate(name, n, who, [=, spec = std::make_shared<Spec*>(nullptr)]() -> std::function<void()> {
        if (*spec == nullptr) {
            init(spec.get(), size, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone);
        }
        return [=, in = reinterpret_cast<const Element*>(arrays->in(T{})),
                out = reinterpret_cast<Element*>(arrays->out(T{})), made = *spec,
                buffer = arrays->buffer()] { run(in, out, made, buffer); };
    });
}
#define TARN_ADD_TRANSFORM(NAME, FAMILY, SIZE, T, KIND, CALL, TAG)                                               \
    addTransform<T>(NAME "_" #TAG, level.name, n, SIZE, TARN_OF(level, tarns##FAMILY##InitAlloc_##KIND##_##TAG), \
                    TARN_OF(level, tarns##FAMILY##Fwd_##CALL##_##TAG), arrays)
#define TARN_ADD_TRANSFORMS(NAME, FAMILY, SIZE)                       \
    TARN_ADD_TRANSFORM(NAME, FAMILY, SIZE, Tarn32f, C, CToC, 32fc);   \
    TARN_ADD_TRANSFORM(NAME, FAMILY, SIZE, Tarn64f, C, CToC, 64fc);   \
    TARN_ADD_TRANSFORM(NAME, FAMILY, SIZE, Tarn32f, R, RToPerm, 32f); \
    TARN_ADD_TRANSFORM(NAME, FAMILY, SIZE, Tarn64f, R, RToPerm, 64f)

#ifdef TARNS_HAVE_FFTW
// A plan is made once, and found again by what FFTW has learnt.
template <typename T, typename Execute, typename Make>
void addPlan(const std::string& name, int n, const SharedArrays& arrays, Execute* execute, Make make)
{
    addLate(name, n, "FFTW", [=]() -> std::function<void()> {
        return [=, plan = make(arrays->in(T{}), arrays->out(T{}))] { execute(plan); };
    });
}
#endif

void addFftw([[maybe_unused]] const std::string& name, [[maybe_unused]] int n,
             [[maybe_unused]] const SharedArrays& arrays)
{
#ifdef TARNS_HAVE_FFTW
    addPlan<Tarn32f>(name + "_32fc", n, arrays, fftwf_execute, [=](Tarn32f* in, Tarn32f* out) {
        return fftwf_plan_dft_1d(n, reinterpret_cast<fftwf_complex*>(in), reinterpret_cast<fftwf_complex*>(out),
                                 FFTW_FORWARD, FFTW_MEASURE);
    });
    addPlan<Tarn64f>(name + "_64fc", n, arrays, fftw_execute, [=](Tarn64f* in, Tarn64f* out) {
        return fftw_plan_dft_1d(n, reinterpret_cast<fftw_complex*>(in), reinterpret_cast<fftw_complex*>(out),
                                FFTW_FORWARD, FFTW_MEASURE);
    });
    addPlan<Tarn32f>(name + "_32f", n, arrays, fftwf_execute, [=](Tarn32f* in, Tarn32f* out) {
        return fftwf_plan_dft_r2c_1d(n, in, reinterpret_cast<fftwf_complex*>(out), FFTW_MEASURE);
    });
    addPlan<Tarn64f>(name + "_64f", n, arrays, fftw_execute, [=](Tarn64f* in, Tarn64f* out) {
        return fftw_plan_dft_r2c_1d(n, in, reinterpret_cast<fftw_complex*>(out), FFTW_MEASURE);
    });
#endif
}

void addTransforms(const std::vector<Level>& levels, int order)
{
    const int n = 1 << order;
    const auto arrays = std::make_shared<TransformArrays>(n);
    for (const Level& level : levels) {
        TARN_ADD_TRANSFORMS("fft", FFT, order);
    }
    addFftw("fft", n, arrays);
}

void addMixedTransforms(const std::vector<Level>& levels, int n)
{
    const auto arrays = std::make_shared<TransformArrays>(n);
    for (const Level& level : levels) {
        TARN_ADD_TRANSFORMS("dft", DFT, n);
    }
    addFftw("dft", n, arrays);
}

// What a caller's own code of 128 bits takes after a call: the upper halves of registers that a call leaves set would
// make every instruction wait.
void addTransitions(const std::vector<Level>& levels)
{
    auto* const a = array<Tarn32f>();
    auto* const d = array<Tarn32f>();
    for (const Level& level : levels) {
        auto* const sum = TARN_OF(level, tarnsAdd_32f);
        add("caller_code_after_a_call", 1024, level.name, [=] {
            sum(a, a, d, 64);
            for (int i = 0; i < 1024; ++i) {
                Tarn32f x = a[i] * 0.5F;
                asm volatile("addss %1, %0" : "+x"(x) : "x"(x));
                d[i] = x;
            }
        });
    }
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    std::vector<Level> levels;
    const char* const list = std::getenv("TARNS_LEVEL_LIBRARIES");
    std::istringstream paths(list != nullptr ? list : "");
    for (std::string path; std::getline(paths, path, ':');) {
        void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) {
            std::fprintf(stderr, "%s\n", dlerror());
            return 1;
        }
        levels.push_back({"", library});
        levels.back().name = TARN_OF(levels.back(), tarnsGetLibVersion)()->targetCpu;
    }
    for (const int n : {64, 1024, 16384}) {
        addElementwise(levels, n);
        addFilters(levels, n);
    }
    for (int order = 4; order <= 20; ++order) {
        addTransforms(levels, order);
    }
    for (const int n : {30, 60, 100, 120, 360, 480, 1000, 1440, 3600, 10000, 44100}) {
        addMixedTransforms(levels, n);
    }
    addTransitions(levels);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
