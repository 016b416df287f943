// Direct FIR calls: single samples, blocks and changes of rate, by the caller's delay line.
#include "model/fir_rates.h"
#include "support/guarded.h"
#include "support/hard_values.h"
#include "support/memory_watch.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <functional>
#include <limits>

namespace tarn::test {
namespace {

// -- All families under one set of names ------------------------------------------------------------------------------

enum class Kind { unscaled, scaled, integer, q15 };

// The arguments that calls share.
struct Given {
    const void* taps;
    int len;
    int factor;
    void* line;
    int* index;
    int scale;
};

struct DirectFir {
    std::string name;
    ElementType tap, sample;
    Kind kind;
    TarnStatus (*one)(const void* src, void* dst, const Given& g);
    TarnStatus (*oneInPlace)(void* srcDst, const Given& g);
    TarnStatus (*block)(const void* src, void* dst, int n, const Given& g);
    TarnStatus (*blockInPlace)(void* srcDst, int n, const Given& g);
    TarnStatus (*rates)(const void* src, void* dst, int n, const Rates& r, const Given& g);
    TarnStatus (*ratesInPlace)(void* srcDst, int n, const Rates& r, const Given& g);

    bool hasFloatTaps() const { return kind == Kind::unscaled || kind == Kind::scaled; }
};

#define SAMPLES(S, P) static_cast<S*>(P)
#define CONST_SAMPLES(S, P) static_cast<const S*>(P)
#define TAPS_UNSCALED(T) static_cast<const T*>(g.taps), g.len
#define TAPS_SCALED(T) TAPS_UNSCALED(T)
#define TAPS_Q15(T) TAPS_UNSCALED(T)
#define TAPS_INTEGER(T) TAPS_UNSCALED(T), g.factor
#define SCALE_UNSCALED
#define SCALE_SCALED , g.scale
#define SCALE_INTEGER , g.scale
#define SCALE_Q15 , g.scale
#define RATES r.up, r.upPhase, r.down, r.downPhase
#define LINE(S) SAMPLES(S, g.line)

#define DIRECT(NAME, TAPS, WORD, SFS, ISFS, T, S, KIND, KEY)                                                           \
    DirectFir                                                                                                          \
    {                                                                                                                  \
        NAME, elementTypeOf<T>(), elementTypeOf<S>(), Kind::KIND,                                                      \
            [](const void* src, void* dst, const Given& g) {                                                           \
                return tarnsFIROne##TAPS##_Direct_##WORD##SFS(*CONST_SAMPLES(S, src), SAMPLES(S, dst), TAPS_##KEY(T),  \
                                                              LINE(S), g.index SCALE_##KEY);                           \
            },                                                                                                         \
            [](void* data, const Given& g) {                                                                           \
                return tarnsFIROne##TAPS##_Direct_##WORD##ISFS(SAMPLES(S, data), TAPS_##KEY(T), LINE(S),               \
                                                               g.index SCALE_##KEY);                                   \
            },                                                                                                         \
            [](const void* src, void* dst, int n, const Given& g) {                                                    \
                return tarnsFIR##TAPS##_Direct_##WORD##SFS(CONST_SAMPLES(S, src), SAMPLES(S, dst), n, TAPS_##KEY(T),   \
                                                           LINE(S), g.index SCALE_##KEY);                              \
            },                                                                                                         \
            [](void* data, int n, const Given& g) {                                                                    \
                return tarnsFIR##TAPS##_Direct_##WORD##ISFS(SAMPLES(S, data), n, TAPS_##KEY(T), LINE(S),               \
                                                            g.index SCALE_##KEY);                                      \
            },                                                                                                         \
            [](const void* src, void* dst, int n, const Rates& r, const Given& g) {                                    \
                return tarnsFIRMR##TAPS##_Direct_##WORD##SFS(CONST_SAMPLES(S, src), SAMPLES(S, dst), n, TAPS_##KEY(T), \
                                                             RATES, LINE(S) SCALE_##KEY);                              \
            },                                                                                                         \
            [](void* data, int n, const Rates& r, const Given& g) {                                                    \
                return tarnsFIRMR##TAPS##_Direct_##WORD##ISFS(SAMPLES(S, data), n, TAPS_##KEY(T), RATES,               \
                                                              LINE(S) SCALE_##KEY);                                    \
            }                                                                                                          \
    }

const std::vector<DirectFir>& directFirs()
{
    static const std::vector<DirectFir> all = {
        DIRECT("_32f", , 32f, , _I, Tarn32f, Tarn32f, unscaled, UNSCALED),
        DIRECT("_32fc", , 32fc, , _I, Tarn32fc, Tarn32fc, unscaled, UNSCALED),
        DIRECT("_64f", , 64f, , _I, Tarn64f, Tarn64f, unscaled, UNSCALED),
        DIRECT("_64fc", , 64fc, , _I, Tarn64fc, Tarn64fc, unscaled, UNSCALED),
        DIRECT("64f_32f", 64f, 32f, , _I, Tarn64f, Tarn32f, unscaled, UNSCALED),
        DIRECT("64fc_32fc", 64fc, 32fc, , _I, Tarn64fc, Tarn32fc, unscaled, UNSCALED),
        DIRECT("32f_16s", 32f, 16s, _Sfs, _ISfs, Tarn32f, Tarn16s, scaled, SCALED),
        DIRECT("32fc_16sc", 32fc, 16sc, _Sfs, _ISfs, Tarn32fc, Tarn16sc, scaled, SCALED),
        DIRECT("64f_32s", 64f, 32s, _Sfs, _ISfs, Tarn64f, Tarn32s, scaled, SCALED),
        DIRECT("64fc_32sc", 64fc, 32sc, _Sfs, _ISfs, Tarn64fc, Tarn32sc, scaled, SCALED),
        DIRECT("64f_16s", 64f, 16s, _Sfs, _ISfs, Tarn64f, Tarn16s, scaled, SCALED),
        DIRECT("64fc_16sc", 64fc, 16sc, _Sfs, _ISfs, Tarn64fc, Tarn16sc, scaled, SCALED),
        DIRECT("32s_16s", 32s, 16s, _Sfs, _ISfs, Tarn32s, Tarn16s, integer, INTEGER),
        DIRECT("32sc_16sc", 32sc, 16sc, _Sfs, _ISfs, Tarn32sc, Tarn16sc, integer, INTEGER),
        DIRECT("_16s", , 16s, _Sfs, _ISfs, Tarn16s, Tarn16s, q15, Q15),
    };
    return all;
}

// -- The model --------------------------------------------------------------------------------------------------------

Numbers wholeNumbers(Random& random, int len, int magnitude, bool isComplex)
{
    Numbers values;
    const auto number = [&] {
        return static_cast<double>(random.below(static_cast<std::size_t>(2 * magnitude + 1))) - magnitude;
    };
    for (int i = 0; i < len; ++i)
        values.push_back({number(), isComplex ? number() : 0});
    return values;
}

// What sums become. Those of integer taps go by 2^(factor - scale), ties to even.
Numbers finished(const DirectFir& fir, Numbers sums, int factor, int scale)
{
    for (Number& y : sums) {
        if (fir.kind == Kind::scaled)
            y = fir::asInteger(y, fir.sample.integerBits, scale, true);
        else if (!fir.hasFloatTaps())
            y = fir::asInteger(y, 16, scale - (fir.kind == Kind::q15 ? -15 : factor), false);
    }
    return sums;
}

// A filter with memory that ends at pages without access.
struct Setting {
    const DirectFir& fir;
    Numbers taps;
    GuardedArray<unsigned char> tapBytes, line;
    GuardedArray<int> index;
    int factor, scale;

    Setting(const DirectFir& family, int len, std::size_t lineLen, std::uint64_t seed)
        : fir(family), taps([&] {
              Random random(seed);
              return wholeNumbers(random, len, 8, family.tap.isComplex);
          }()),
          tapBytes(packed(family.tap, taps), Placement::atEnd()),
          line(std::vector<unsigned char>(lineLen * family.sample.size), Placement::atEnd()),
          index(std::vector<int>(1, 0), Placement::atEnd()), factor(family.kind == Kind::integer ? -1 : 0),
          scale(family.kind == Kind::q15 ? -13 : 1)
    {
    }
    Given given() { return {tapBytes.data(), static_cast<int>(taps.size()), factor, line.data(), index.data(), scale}; }
    Numbers lineNow() const { return unpacked(fir.sample, line.data(), line.size() / fir.sample.size); }
};

// -- One rate ---------------------------------------------------------------------------------------------------------

enum class How { singly, singlyInPlace, block, blockInPlace };

// Filters samples and answers with the outputs.
Numbers filtered(Setting& setting, const Numbers& samples, How how)
{
    const DirectFir& fir = setting.fir;
    const int n = static_cast<int>(samples.size());
    GuardedArray<unsigned char> src(packed(fir.sample, samples), Placement::atEnd());
    GuardedArray<unsigned char> dst(src.size(), Placement::atEnd());
    const auto before = src.copy();
    const Given g = setting.given();
    const bool inPlace = how == How::singlyInPlace || how == How::blockInPlace;
    if (how == How::block) {
        EXPECT_EQ(tarnStsNoErr, fir.block(src.data(), dst.data(), n, g)) << fir.name;
    } else if (how == How::blockInPlace) {
        EXPECT_EQ(tarnStsNoErr, fir.blockInPlace(src.data(), n, g)) << fir.name;
    } else {
        for (std::size_t at = 0; at < src.size(); at += fir.sample.size)
            EXPECT_EQ(tarnStsNoErr,
                      inPlace ? fir.oneInPlace(src.data() + at, g) : fir.one(src.data() + at, dst.data() + at, g))
                << fir.name;
    }
    EXPECT_TRUE(inPlace || before == src.copy()) << fir.name;
    return unpacked(fir.sample, inPlace ? src.data() : dst.data(), samples.size());
}

const std::vector<int> lengths = {1, 2, 3, 4, 5, 7, 8, 9, 16, 31, 64, 255, 256, 257, 259, 300, 600};

TEST(FirDirectTest, FiltersWhereverTheSignalIsCut)
{
    for (const DirectFir& fir : directFirs()) {
        for (const int len : lengths) {
            if (len > 100 && (&fir - directFirs().data()) % 3 != len % 3)
                continue; // the families take turns
            Setting setting(fir, len, 2 * static_cast<std::size_t>(len), 1);
            Random random(3);
            Numbers history(static_cast<std::size_t>(len)); // newest first
            const bool blocksOnly = fir.kind == Kind::q15;
            int turn = 0;
            for (const int n : {1, 3, 511, 1, 512, 8, 513, 2, 5, 1025, 1}) {
                const auto samples = wholeNumbers(random, n, 100, fir.sample.isComplex);
                const auto expected =
                    finished(fir, fir::exactRates(setting.taps, history, samples, {len, 1, 0, 1, 0}, n), setting.factor,
                             setting.scale);
                const How how = n < 9 && !blocksOnly ? (turn % 2 == 0 ? How::singly : How::singlyInPlace)
                                                     : (turn % 3 == 0 ? How::block : How::blockInPlace);
                ++turn;
                ASSERT_TRUE(expected == filtered(setting, samples, how))
                    << fir.name << ", " << len << " taps, " << n << " samples";
                history.insert(history.begin(), samples.rbegin(), samples.rend());
                history.resize(static_cast<std::size_t>(len));
                // Twice, oldest first from the index on; blocks of Q15 leave it newest first.
                const auto line = setting.lineNow();
                const auto index = static_cast<std::size_t>(setting.index.get(0));
                for (std::size_t i = 0; i < history.size(); ++i) {
                    if (blocksOnly) {
                        ASSERT_EQ(history[i], line[i]) << len << " taps, " << n << " samples";
                    } else {
                        ASSERT_EQ(history[history.size() - 1 - i], line[index + i]) << fir.name << " " << len;
                    }
                }
                if (blocksOnly)
                    ASSERT_EQ(0U, index);
                else
                    ASSERT_EQ(line, [&] { // both copies
                        auto twice = line;
                        for (std::size_t i = 0; i < history.size(); ++i)
                            twice[i + history.size()] = line[i];
                        return twice;
                    }());
            }
        }
    }
}

TEST(FirDirectTest, TakesSingleSamplesOfQ15ByADoubledLine)
{
    const DirectFir& fir = directFirs().back();
    for (const int len : {1, 2, 5, 40, 300}) {
        Setting setting(fir, len, 2 * static_cast<std::size_t>(len), 2);
        Random random(5);
        const auto samples = wholeNumbers(random, 3 * len + 2, 100, false);
        const auto sums = fir::exactRates(setting.taps, Numbers(static_cast<std::size_t>(len)), samples,
                                          {len, 1, 0, 1, 0}, static_cast<int>(samples.size()));
        EXPECT_TRUE(finished(fir, sums, 0, setting.scale) == filtered(setting, samples, How::singly)) << len;
        EXPECT_EQ((3 * len + 2) % len, setting.index.get(0));
    }
    // From an index within the line: newest first from there on.
    const Tarn16s taps[3] = {16384, 8192, 4096};
    Tarn16s line[6] = {0, 0, 1000, 500, 200, 0};
    int index = 2;
    const Tarn16s src[2] = {8, 16};
    Tarn16s dst[2] = {};
    ASSERT_EQ(tarnStsNoErr, tarnsFIR_Direct_16s_Sfs(src, dst, 2, taps, 3, line, &index, 0));
    EXPECT_EQ(4 + 250 + 62, dst[0]); // 316.5 to even
    EXPECT_EQ(8 + 2 + 125, dst[1]);
    EXPECT_EQ(0, index);
    EXPECT_EQ(16, line[0]);
    EXPECT_EQ(8, line[1]);
    EXPECT_EQ(1000, line[2]);
}

// Blocks and single samples add in one order; that of singles in double precision.
TEST(FirDirectTest, AddsFourProductsAtATime)
{
    for (const DirectFir& fir : directFirs()) {
        if (fir.kind != Kind::unscaled || fir.tap.isComplex)
            continue;
        for (const int len : {1, 2, 3, 4, 5, 6, 7, 30, 261}) {
            Random random(7);
            Setting setting(fir, len, 2 * static_cast<std::size_t>(len), 1);
            for (Number& tap : setting.taps)
                tap.re = static_cast<float>(random.unit() - 0.5);
            setting.tapBytes.assign(packed(fir.tap, setting.taps));
            Numbers samples(600);
            for (Number& x : samples)
                x.re = static_cast<float>(random.unit() - 0.5);
            Numbers expected;
            for (int n = 0; n < 600; ++n) {
                double total = 0;
                for (int j = 0; j < len; j += 4) { // from the oldest on
                    const auto p = [&](int i) {
                        const int k = len - 1 - j - i;
                        return k >= 0 && n >= k ? setting.taps[static_cast<std::size_t>(k)].re *
                                                      samples[static_cast<std::size_t>(n - k)].re
                                                : 0.0;
                    };
                    total += (p(0) + p(1)) + (p(2) + p(3));
                }
                expected.push_back({fir.sample.size == 4 ? static_cast<float>(total) : total, 0});
            }
            EXPECT_TRUE(expected == filtered(setting, samples, How::block)) << fir.name << ", " << len << " taps";
            Setting again(fir, len, 2 * static_cast<std::size_t>(len), 1);
            again.tapBytes.assign(packed(fir.tap, setting.taps));
            EXPECT_TRUE(expected == filtered(again, samples, How::singly)) << fir.name << ", " << len << " taps";
        }
    }
    const Tarn32f taps[3] = {1e20F, 1, -1e20F};
    Tarn32f line[6] = {1, 1, 1, 1, 1, 1};
    int index = 0;
    Tarn32f y = 0;
    tarnsFIROne_Direct_32f(1, &y, taps, 3, line, &index);
    EXPECT_EQ(0, y); // in double precision, too
    const Tarn32f fine[3] = {1e8F, 1, -1e8F};
    tarnsFIROne_Direct_32f(1, &y, fine, 3, line, &index);
    EXPECT_EQ(1, y);
}

TEST(FirDirectTest, RoundsHalvesAwayAndSaturates)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const DirectFir& fir : directFirs()) {
        if (fir.kind != Kind::scaled)
            continue;
        for (const double gain : {0.5, -0.5, 0.49, 1e3, 4e9, 1e20, infinity, -infinity, std::nan("")}) {
            for (const int scale : {-200, -3, 0, 1, 3, 200}) {
                Setting setting(fir, 1, 2, 1);
                setting.taps[0] = {gain, 0};
                setting.tapBytes.assign(packed(fir.tap, setting.taps));
                setting.scale = scale;
                const Numbers samples = {{1, 0}, {-3, 0}, {5, 0}, {100, 0}, {-100, 0}, {7, 0}};
                for (const How how : {How::block, How::singly}) {
                    const auto outputs = filtered(setting, samples, how);
                    for (std::size_t i = 0; i < samples.size(); ++i) {
                        const double exact = fir.tap.size <= 8 && !(fir.tap.isComplex && fir.tap.size == 16) &&
                                                     fir.name.substr(0, 3) == "32f"
                                                 ? static_cast<float>(gain) * samples[i].re
                                                 : gain * samples[i].re;
                        ASSERT_EQ(fir::asInteger(exact, fir.sample.integerBits, scale, true), outputs[i].re)
                            << fir.name << ", gain " << gain << ", scale " << scale << ", output " << i;
                    }
                }
            }
        }
    }
}

// Products and sums of 32-bit taps modulo 2^32; the left shift loses bits before it saturates.
TEST(FirDirectTest, WrapsSumsOfIntegerTaps)
{
    Random random(13);
    for (const int len : {1, 3, 8, 33, 270}) {
        std::vector<Tarn32s> taps(static_cast<std::size_t>(len));
        std::vector<Tarn32sc> complexTaps(taps.size());
        for (std::size_t k = 0; k < taps.size(); ++k) {
            taps[k] = static_cast<Tarn32s>(random.next());
            complexTaps[k] = {static_cast<Tarn32s>(random.next()), static_cast<Tarn32s>(random.next())};
        }
        taps[0] = INT_MIN;
        complexTaps[0] = {INT_MIN, INT_MIN};
        std::vector<Tarn16s> src(700);
        std::vector<Tarn16sc> complexSrc(700);
        for (std::size_t i = 0; i < src.size(); ++i) {
            src[i] = static_cast<Tarn16s>(random.next());
            complexSrc[i] = {static_cast<Tarn16s>(random.next()), static_cast<Tarn16s>(random.next())};
        }
        src[5] = -32768;
        for (const int s : {-20, -16, -3, 0, 2}) {
            const auto finish = [s](Tarn32u sum) {
                if (s >= 0)
                    sum <<= s;
                const auto value = static_cast<Tarn32s>(sum);
                return static_cast<Tarn16s>(fir::asInteger(value, 16, s >= 0 ? 0 : -s, false));
            };
            std::vector<Tarn16s> dst(src.size()), line(2 * taps.size());
            std::vector<Tarn16sc> complexDst(src.size()), complexLine(2 * taps.size());
            int index = 0;
            int complexIndex = 0;
            ASSERT_EQ(tarnStsNoErr, tarnsFIR32s_Direct_16s_Sfs(src.data(), dst.data(), 700, taps.data(), len, s + 4,
                                                               line.data(), &index, 4));
            ASSERT_EQ(tarnStsNoErr,
                      tarnsFIR32sc_Direct_16sc_Sfs(complexSrc.data(), complexDst.data(), 700, complexTaps.data(), len,
                                                   s, complexLine.data(), &complexIndex, 0));
            for (std::size_t n = 0; n < src.size(); ++n) {
                Tarn32u sum = 0;
                Tarn32u re = 0;
                Tarn32u im = 0;
                const auto u = [](auto x) { return static_cast<Tarn32u>(Tarn32s{x}); };
                for (std::size_t k = 0; k < taps.size() && k <= n; ++k) {
                    const Tarn16sc x = complexSrc[n - k];
                    const Tarn32sc h = complexTaps[k];
                    sum += u(taps[k]) * u(src[n - k]);
                    re += u(h.re) * u(x.re) - u(h.im) * u(x.im);
                    im += u(h.re) * u(x.im) + u(h.im) * u(x.re);
                }
                ASSERT_EQ(finish(sum), dst[n]) << len << " taps, shift " << s << ", output " << n;
                ASSERT_EQ(finish(re), complexDst[n].re) << len << " taps, shift " << s << ", output " << n;
                ASSERT_EQ(finish(im), complexDst[n].im) << len << " taps, shift " << s << ", output " << n;
            }
        }
    }
}

// -- Two rates --------------------------------------------------------------------------------------------------------

TEST(FirDirectTest, ChangesRatesLikeInsertedZeros)
{
    const auto& firs = directFirs();
    Random random(17);
    std::size_t turn = 0;
    const auto expectRates = [&](const DirectFir& fir, const Rates& r, const std::vector<int>& calls) {
        Setting setting(fir, r.taps, static_cast<std::size_t>(r.history()), turn);
        Numbers history(static_cast<std::size_t>(r.history()));
        for (const int n : calls) {
            const auto samples = wholeNumbers(random, r.down * n, 100, fir.sample.isComplex);
            const auto expected =
                finished(fir, fir::exactRates(setting.taps, history, samples, r, n), setting.factor, setting.scale);
            auto src = packed(fir.sample, samples);
            const auto outputs = static_cast<std::size_t>(r.up * n);
            Numbers actual;
            if (turn++ % 2 == 0) {
                const GuardedArray<unsigned char> given(src, Placement::atEnd());
                GuardedArray<unsigned char> dst(outputs * fir.sample.size, Placement::atEnd());
                EXPECT_EQ(tarnStsNoErr, fir.rates(given.data(), dst.data(), n, r, setting.given()));
                actual = unpacked(fir.sample, dst.data(), outputs);
            } else {
                src.resize(fir.sample.size * static_cast<std::size_t>(std::max(r.up, r.down) * n));
                GuardedArray<unsigned char> data(src, Placement::atEnd());
                EXPECT_EQ(tarnStsNoErr, fir.ratesInPlace(data.data(), n, r, setting.given()));
                actual = unpacked(fir.sample, data.data(), outputs);
            }
            history.insert(history.begin(), samples.rbegin(), samples.rend());
            history.resize(static_cast<std::size_t>(r.history()));
            EXPECT_TRUE(history == setting.lineNow()) << fir.name << " " << n;
            if (expected != actual)
                return false;
        }
        return true;
    };
    for (int up = 1; up <= 12; ++up) {
        for (int down = 1; down <= 12; ++down) {
            for (int phase = 0; phase < up + down; ++phase) {
                const Rates r{1 + static_cast<int>(random.below(40)), up,
                              phase < up ? phase : static_cast<int>(random.below(std::size_t(up))), down,
                              phase < up ? static_cast<int>(random.below(std::size_t(down))) : phase - up};
                const DirectFir& fir = firs[turn % firs.size()];
                ASSERT_TRUE(expectRates(fir, r, {1, 2, 5})) << fir.name << ", " << r.taps << " taps, " << up << " "
                                                            << r.upPhase << ", " << down << " " << r.downPhase;
            }
        }
    }
    for (const DirectFir& fir : firs)
        ASSERT_TRUE(expectRates(fir, {400, 160, 3, 147, 11}, {4, 1})) << fir.name;
}

// -- Checks -----------------------------------------------------------------------------------------------------------

TEST(FirDirectTest, ChecksInOrder)
{
    for (const DirectFir& fir : directFirs()) {
        const bool isQ15 = fir.kind == Kind::q15;
        Setting setting(fir, 3, 6, 1);
        std::vector<unsigned char> data(fir.sample.size * 16, 7);
        const auto before = data;
        const auto lineBefore = setting.line.copy();
        const Given good = setting.given();
        auto noTaps = good, noLine = good, noIndex = good, noLength = good;
        noTaps.taps = nullptr;
        noLine.line = nullptr;
        noIndex.index = nullptr;
        noLength.len = 0;
        // Every call with the same arguments; `pointers` is what null samples, or a bad number, make of the rest.
        const auto expectAll = [&](TarnStatus expected, const Given& g) {
            EXPECT_EQ(expected, fir.one(data.data(), data.data(), g)) << fir.name;
            EXPECT_EQ(expected, fir.oneInPlace(data.data(), g)) << fir.name;
            EXPECT_EQ(expected, fir.block(data.data(), data.data() + 4 * fir.sample.size, 2, g)) << fir.name;
            EXPECT_EQ(expected, fir.blockInPlace(data.data(), 2, g)) << fir.name;
            EXPECT_EQ(tarnStsSizeErr, fir.block(data.data(), data.data(), 0, g)) << fir.name;
            EXPECT_EQ(tarnStsSizeErr, fir.blockInPlace(data.data(), -1, g)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.one(data.data(), nullptr, g)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.oneInPlace(nullptr, g)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.block(nullptr, data.data(), 0, g)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.block(data.data(), nullptr, 0, g)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.blockInPlace(nullptr, 0, g)) << fir.name;
        };
        expectAll(tarnStsNullPtrErr, noTaps);
        expectAll(tarnStsNullPtrErr, noLine);
        expectAll(tarnStsNullPtrErr, noIndex);
        for (const int len : {0, -1, INT_MIN}) {
            auto g = good;
            g.len = len;
            expectAll(tarnStsFIRLenErr, g);
            auto also = g;
            also.taps = nullptr;
            expectAll(tarnStsNullPtrErr, also);
            also = g;
            also.line = nullptr;
            expectAll(isQ15 ? tarnStsNullPtrErr : tarnStsFIRLenErr, also);
            also = g;
            also.index = nullptr;
            expectAll(isQ15 ? tarnStsNullPtrErr : tarnStsFIRLenErr, also);
        }
        if (isQ15) {
            for (const int index : {-1, 3, INT_MAX, INT_MIN}) {
                setting.index.set(0, index);
                expectAll(tarnStsDlyLineIndexErr, good);
                auto g = good;
                g.len = 0;
                expectAll(tarnStsFIRLenErr, g);
            }
        }
        const auto expectRates = [&](TarnStatus expected, const Rates& r, const Given& g) {
            EXPECT_EQ(expected, fir.rates(data.data(), data.data() + 8 * fir.sample.size, 1, r, g)) << fir.name;
            EXPECT_EQ(expected, fir.ratesInPlace(data.data(), 1, r, g)) << fir.name;
            EXPECT_EQ(tarnStsSizeErr, fir.rates(data.data(), data.data(), 0, r, g)) << fir.name;
            EXPECT_EQ(tarnStsSizeErr, fir.ratesInPlace(data.data(), -3, r, g)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.rates(nullptr, data.data(), 0, r, g)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.rates(data.data(), nullptr, 0, r, g)) << fir.name;
            EXPECT_EQ(tarnStsNullPtrErr, fir.ratesInPlace(nullptr, 0, r, g)) << fir.name;
        };
        const Rates fine{3, 2, 1, 3, 2};
        expectRates(tarnStsNullPtrErr, fine, noTaps);
        expectRates(tarnStsNullPtrErr, fine, noLine);
        expectRates(tarnStsFIRLenErr, fine, noLength);
        for (const int bad : {0, -1}) {
            expectRates(tarnStsFIRMRFactorErr, {3, bad, 7, 3, 7}, noLine);
            expectRates(tarnStsFIRMRFactorErr, {3, 2, 7, bad, 7}, noLine);
            expectRates(tarnStsFIRLenErr, {3, bad, 0, bad, 0}, noLength);
        }
        expectRates(tarnStsFIRMRPhaseErr, {3, 2, 2, 3, 0}, noLine);
        expectRates(tarnStsFIRMRPhaseErr, {3, 2, -1, 3, 0}, good);
        expectRates(tarnStsFIRMRPhaseErr, {3, 2, 0, 3, 3}, good);
        expectRates(tarnStsFIRMRPhaseErr, {3, 2, 0, 3, -1}, noLine);
        EXPECT_EQ(before, data);
        EXPECT_EQ(lineBefore, setting.line.copy());
    }
}

TEST(FirDirectTest, LeavesAllAsItIsWithoutMemory)
{
    if (!canRefuseMemory)
        GTEST_SKIP() << "the sanitizer owns malloc()";
    for (const DirectFir& fir : directFirs()) {
        Setting setting(fir, 3, 6, 1);
        setting.line.fillPattern();
        setting.index.set(0, 1);
        auto data = packed(fir.sample, Numbers(12, Number{5, 0}));
        const auto before = data;
        const auto lineBefore = setting.line.copy();
        const auto expectRefusal = [&](const std::function<TarnStatus()>& call, bool allocates) {
            if (!allocates)
                return;
            TarnStatus status = tarnStsNoErr;
            {
                const MemoryWatch watch(0);
                status = call();
            }
            EXPECT_EQ(tarnStsNoMemErr, status) << fir.name;
            EXPECT_EQ(before, data) << fir.name;
            EXPECT_EQ(lineBefore, setting.line.copy()) << fir.name;
            EXPECT_EQ(1, setting.index.get(0));
        };
        const Rates r{3, 2, 0, 3, 0};
        expectRefusal([&] { return fir.ratesInPlace(data.data(), 4, r, setting.given()); }, true);
        expectRefusal([&] { return fir.ratesInPlace(data.data(), INT_MAX, r, setting.given()); }, true);
        expectRefusal([&] { return fir.blockInPlace(data.data(), 4, setting.given()); }, fir.kind == Kind::q15);
        int outstanding = -1;
        {
            const MemoryWatch watch;
            fir.ratesInPlace(data.data(), 4, r, setting.given());
            fir.blockInPlace(data.data(), 4, setting.given());
            outstanding = watch.outstanding();
        }
        EXPECT_EQ(0, outstanding) << fir.name;
    }
}

} // namespace
} // namespace tarn::test
