// The errors of the vector approximations, in units of the last place of the exact result.
//
//     approximation_errors single FUNCTION            all 2^32 arguments of single precision
//     approximation_errors double FUNCTION SAMPLES    so many arguments of each range of double precision
//     approximation_errors plot FUNCTION              error against argument, for a picture: argument, single, double
//
// Each line tells the worst error and where. The references are the C library's functions of the next precision, whose
// own errors do not show at the places told.
#include "frame/simd_angle.h"
#include "frame/simd_exp.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace tarn {
namespace {

struct Range {
    double low, high;
};

struct Function {
    std::string name;
    void (*single)(const Tarn32f*, Tarn32f*);
    void (*twice)(const Tarn64f*, Tarn64f*);
    double (*reference)(double);
    long double (*extended)(long double);
    std::vector<Range> ranges; // of double precision
    Range shown;               // of the picture
};

constexpr int block = 16;

template <class T, class Word>
void apply(const T* x, T* y)
{
    store(y, Word{}(loadPack<block>(x)));
}

struct Exponential {
    auto operator()(auto x) const { return exponential(x); }
};
struct Logarithm {
    auto operator()(auto x) const { return logarithm(x); }
};
struct Arctan {
    auto operator()(auto x) const { return arctangent(x); }
};
struct Sine {
    auto operator()(auto x) const { return sineAndCosine(x).sine; }
};
struct Cosine {
    auto operator()(auto x) const { return sineAndCosine(x).cosine; }
};

const Function functions[] = {
    {"exponential",
     apply<Tarn32f, Exponential>,
     apply<Tarn64f, Exponential>,
     [](double x) { return std::exp(x); },
     [](long double x) { return std::exp(x); },
     {{-1e-3, 1e-3}, {-0.4, 0.4}, {-20, 20}, {-746, 710}},
     {-2, 2}},
    {"logarithm",
     apply<Tarn32f, Logarithm>,
     apply<Tarn64f, Logarithm>,
     [](double x) { return std::log(x); },
     [](long double x) { return std::log(x); },
     {{0.999, 1.001}, {0.5, 2}, {0, 1e-300}, {0, 1000}},
     {0.1, 4}},
    {"arctangent",
     apply<Tarn32f, Arctan>,
     apply<Tarn64f, Arctan>,
     [](double x) { return std::atan(x); },
     [](long double x) { return std::atan(x); },
     {{-0.1, 0.1}, {-0.7, 0.7}, {-2, 2}, {-50, 50}},
     {-4, 4}},
    {"sine",
     apply<Tarn32f, Sine>,
     apply<Tarn64f, Sine>,
     [](double x) { return std::sin(x); },
     [](long double x) { return std::sin(x); },
     {{-0.1, 0.1}, {-0.8, 0.8}, {-10, 10}, {-1e6, 1e6}},
     {-6.4, 6.4}},
    {"cosine",
     apply<Tarn32f, Cosine>,
     apply<Tarn64f, Cosine>,
     [](double x) { return std::cos(x); },
     [](long double x) { return std::cos(x); },
     {{-0.1, 0.1}, {-0.8, 0.8}, {-10, 10}, {-1e6, 1e6}},
     {-6.4, 6.4}},
};

// 0 where both are infinite or neither is a number; infinite where they disagree in that.
template <class T, class Reference>
double errorOf(T y, Reference exact)
{
    using Limits = std::numeric_limits<T>;
    const T rounded = static_cast<T>(exact);
    if (!std::isfinite(rounded) || !std::isfinite(y)) {
        return (std::isnan(rounded) && std::isnan(y)) || rounded == y ? 0 : HUGE_VAL;
    }
    int exponent;
    static_cast<void>(std::frexp(exact, &exponent));
    exponent = std::max(exponent, Limits::min_exponent) - Limits::digits;
    return static_cast<double>(std::ldexp(std::fabs(static_cast<Reference>(y) - exact), -exponent));
}

struct Worst {
    double error = 0;
    double where = 0;

    void note(double e, double x)
    {
        if (e > error) {
            error = e;
            where = x;
        }
    }
};

void exhaustSingle(const Function& f)
{
    Worst normal;
    Worst denormal; // results
    for (std::uint64_t first = 0; first < std::uint64_t{1} << 32; first += block) {
        Tarn32f x[block];
        Tarn32f y[block];
        for (unsigned i = 0; i < block; ++i) {
            x[i] = std::bit_cast<Tarn32f>(static_cast<std::uint32_t>(first + i));
        }
        f.single(x, y);
        for (int i = 0; i < block; ++i) {
            const double exact = f.reference(x[i]);
            Worst& worst = std::fabs(exact) < std::numeric_limits<Tarn32f>::min() ? denormal : normal;
            // A unit of the last place is at least 2^-24 of the value: most errors need no closer look.
            if (std::fabs(y[i] - exact) * 0x1p24 <= worst.error * std::fabs(exact)) {
                continue;
            }
            const double error = errorOf(y[i], exact);
            worst.note(error, x[i]);
        }
    }
    std::printf("%s in single precision, all arguments: %.4f at %a (%g); denormal results: %.4f at %a\n",
                f.name.c_str(), normal.error, normal.where, normal.where, denormal.error, denormal.where);
}

void sampleDouble(const Function& f, int samples)
{
    std::mt19937_64 random(1);
    for (const auto& [low, high] : f.ranges) {
        Worst worst;
        for (int n = 0; n < samples; n += block) {
            Tarn64f x[block];
            Tarn64f y[block];
            for (Tarn64f& value : x) {
                const double part = static_cast<double>(random() >> 11) * 0x1p-53;
                value = low * (1 - part) + high * part;
            }
            f.twice(x, y);
            for (int i = 0; i < block; ++i) {
                worst.note(errorOf(y[i], f.extended(x[i])), x[i]);
            }
        }
        std::printf("%s in double precision, %d arguments from %g to %g: %.4f at %a (%g)\n", f.name.c_str(), samples,
                    low, high, worst.error, worst.where, worst.where);
    }
}

// The largest error within each of so many parts of the range shown.
void plot(const Function& f)
{
    constexpr int parts = 400;
    constexpr int samples = 4096;
    std::mt19937_64 random(1);
    const auto [low, high] = f.shown;
    for (int part = 0; part < parts; ++part) {
        Worst single;
        Worst twice;
        for (int n = 0; n < samples; n += block) {
            Tarn32f x[block];
            Tarn32f y[block];
            Tarn64f u[block];
            Tarn64f v[block];
            for (int i = 0; i < block; ++i) {
                u[i] = low + (high - low) * (part + static_cast<double>(random() >> 11) * 0x1p-53) / parts;
                x[i] = static_cast<Tarn32f>(u[i]);
            }
            f.single(x, y);
            f.twice(u, v);
            for (int i = 0; i < block; ++i) {
                single.note(errorOf(y[i], f.reference(x[i])), x[i]);
                twice.note(errorOf(v[i], f.extended(u[i])), u[i]);
            }
        }
        std::printf("%.6g %.4f %.4f\n", low + (high - low) * (part + 0.5) / parts, single.error, twice.error);
    }
}

} // namespace
} // namespace tarn

int main(int argc, char** argv)
{
    const std::string what = argc > 2 ? argv[1] : "";
    for (const tarn::Function& f : tarn::functions) {
        if (argc > 2 && f.name == argv[2]) {
            if (what == "single") {
                tarn::exhaustSingle(f);
                return 0;
            }
            if (what == "double" && argc > 3) {
                tarn::sampleDouble(f, std::atoi(argv[3]));
                return 0;
            }
            if (what == "plot") {
                tarn::plot(f);
                return 0;
            }
        }
    }
    std::fprintf(stderr, "approximation_errors single|double|plot FUNCTION [SAMPLES]\n");
    return 1;
}
