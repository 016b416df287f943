/* Takes noise out of a recording by its wavelet bands: splits it over several levels, takes from every value of a band
   what noise is likely to have given it, and joins the bands again. Speech gathers in few large values, noise is spread
   over all of them. */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

enum { taps = 8, bankDelay = taps - 1, mostLevels = 10 };

/* Daubechies' low-pass filter of eight taps; the other three filters of a bank follow from it. */
static const Tarn32f lowTaps[taps] = {0.23037781F,  0.71484657F, 0.63088077F, -0.02798377F,
                                      -0.18703481F, 0.03084138F, 0.03288301F, -0.01059740F};

typedef struct {
    int levels;
    double strength;
    double rate;
    const char* clean;
    const char* table;
} Settings;

/* A level's bands are as long as a whole number of the coarsest level's values asks for. */
typedef struct {
    int levels;
    int len;             /* of the padded recording */
    int delay;           /* by which it comes back late */
    Tarn32f* samples;    /* len values, in and out */
    Tarn32f* low;        /* len / 2 */
    Tarn32f* next;       /* len / 2 */
    Tarn32f* magnitudes; /* len / 2 */
    Tarn32f* high[mostLevels];
} Bands;

static void parseOptions(int argc, char** argv, Settings* settings)
{
    const Option options[] = {
        {wholeOption, "--levels", "N", "halvings of the rate, 1 to 10", &settings->levels, 1, mostLevels, NULL},
        {numberOption, "--strength", "X", "what is taken from a value, in deviations of the noise", &settings->strength,
         0, 1000, NULL},
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, &settings->rate, 1, 1e9, NULL},
        {textOption, "--clean", "FILE", "the recording without noise: tells how far noise is below it",
         &settings->clean, 0, 0, NULL},
        {textOption, "--table", "FILE", "writes a line for a sample: seconds, before, after", &settings->table, 0, 0,
         NULL},
    };
    const Program program = {"denoise",
                             "[OPTION VALUE]... <RECORDING >RECORDING",
                             "Takes noise out of a recording by thresholds in its wavelet bands.\n" SOUND_HELP,
                             options,
                             sizeof options / sizeof options[0],
                             0,
                             0};

    parseArguments(&program, argc, argv, NULL);
}

/* Reversed in time, and with alternating signs: what splits orthogonally, and what joins again. */
static void makeTaps(Tarn32f* highTaps, Tarn32f* joinLow, Tarn32f* joinHigh)
{
    int j;

    for (j = 0; j < taps; ++j) {
        joinLow[j] = lowTaps[taps - 1 - j];
        highTaps[j] = j % 2 == 0 ? joinLow[j] : -joinLow[j];
        joinHigh[j] = j % 2 == 0 ? -lowTaps[j] : lowTaps[j];
    }
}

static int makeBands(Bands* bands, int levels, int len)
{
    const int unit = 1 << levels;
    int ok;
    int level;

    memset(bands, 0, sizeof *bands);
    bands->levels = levels;
    bands->delay = (unit - 1) * bankDelay;
    if (len > 0x7FFFFFFF - bands->delay - unit)
        return fail("recording", "too long");
    bands->len = (len + bands->delay + unit - 1) / unit * unit;
    bands->samples = tarnsMalloc_32f(bands->len);
    bands->low = tarnsMalloc_32f(bands->len / 2);
    bands->next = tarnsMalloc_32f(bands->len / 2);
    bands->magnitudes = tarnsMalloc_32f(bands->len / 2);
    ok = bands->samples != NULL && bands->low != NULL && bands->next != NULL && bands->magnitudes != NULL;
    for (level = 0; level < levels; ++level) {
        bands->high[level] = tarnsMalloc_32f(bands->len >> (level + 1));
        ok = ok && bands->high[level] != NULL;
    }
    return ok || fail("bands", "no memory");
}

static void freeBands(Bands* bands)
{
    int level;

    tarnsFree(bands->samples);
    tarnsFree(bands->low);
    tarnsFree(bands->next);
    tarnsFree(bands->magnitudes);
    for (level = 0; level < bands->levels; ++level)
        tarnsFree(bands->high[level]);
}

static int split(Bands* bands, const Tarn32f* highTaps)
{
    const Tarn32f* from = bands->samples;
    int level;

    for (level = 0; level < bands->levels; ++level) {
        TarnsWTFwdState_32f* state;
        Tarn32f* const to = level % 2 == 0 ? bands->low : bands->next;
        TarnStatus status = tarnsWTFwdInitAlloc_32f(&state, lowTaps, taps, 0, highTaps, taps, 0);

        if (status == tarnStsNoErr) {
            status = tarnsWTFwd_32f(from, to, bands->high[level], bands->len >> (level + 1), state);
            tarnsWTFwdFree_32f(state);
        }
        if (!succeeded("splitting", status))
            return 0;
        from = to;
    }
    return 1;
}

/* Every level joins its high band with what comes back from the coarser ones, which is late: the high band waits for it
   in the offset line of its filter. */
static int join(Bands* bands, const Tarn32f* joinLow, const Tarn32f* joinHigh)
{
    int level;

    for (level = bands->levels - 1; level >= 0; --level) {
        TarnsWTInvState_32f* state;
        const int late = ((1 << (bands->levels - 1 - level)) - 1) * bankDelay;
        const Tarn32f* const from = level % 2 == 0 ? bands->low : bands->next;
        Tarn32f* const to = level == 0 ? bands->samples : level % 2 == 0 ? bands->next : bands->low;
        TarnStatus status = tarnsWTInvInitAlloc_32f(&state, joinLow, taps, 0, joinHigh, taps, 2 * late);

        if (status == tarnStsNoErr) {
            status = tarnsWTInv_32f(from, bands->high[level], bands->len >> (level + 1), to, state);
            tarnsWTInvFree_32f(state);
        }
        if (!succeeded("joining", status))
            return 0;
    }
    return 1;
}

/* The median magnitude of noise is 0.6745 deviations. More than half of the values of a fine band are noise alone;
   where speech fills a band, the finer ones in front of it tell more. What is within the threshold becomes zero, the
   rest comes nearer to it by as much. */
static int threshold(Tarn32f* band, Tarn32f* scratch, int len, double strength, double* deviation)
{
    const double medianOfNoise = 0.6745;
    Tarn32f limit;

    if (!succeeded("noise", tarnsAbs_32f(band, scratch, len)) ||
        !succeeded("noise", tarnsSortAscend_32f_I(scratch, len)))
        return 0;
    *deviation = fmin(*deviation, scratch[len / 2] / medianOfNoise);
    limit = (Tarn32f)(strength * *deviation);
    return succeeded("threshold", tarnsThreshold_LTValGTVal_32f(band, scratch, len, -limit, -limit, limit, limit)) &&
           succeeded("threshold", tarnsSub_32f_I(scratch, band, len));
}

static int clean(Bands* bands, double strength)
{
    Tarn32f highTaps[taps], joinLow[taps], joinHigh[taps];
    double deviation = HUGE_VAL;
    int level;
    int ok;

    makeTaps(highTaps, joinLow, joinHigh);
    ok = split(bands, highTaps);
    for (level = 0; ok && level < bands->levels; ++level)
        ok = threshold(bands->high[level], bands->magnitudes, bands->len >> (level + 1), strength, &deviation);
    return ok && join(bands, joinLow, joinHigh);
}

/* Samples of 16 bits have no noise of a norm between 0 and 1. */
static double decibels(Tarn32f signal, Tarn32f noise)
{
    return 20 * log10((signal > 1 ? signal : 1) / (noise > 1 ? noise : 1));
}

/* Says how far the difference from the recording without noise is below it. */
static int tellNoise(const char* path, double rate, const Tarn16s* before, const Tarn16s* after, int len)
{
    Sound* const sound = openSound(path, &rate);
    Tarn16s* words = NULL;
    Tarn32f* samples[3] = {NULL, NULL, NULL};
    Tarn32f signal = 0, noise[2] = {0, 0};
    int count = 0;
    int ok = sound != NULL && (words = readWholeSound(sound, &count)) != NULL;
    int i;

    if (ok && count != len)
        ok = fail(path, "not as long as the input");
    for (i = 0; ok && i < 3; ++i) {
        samples[i] = tarnsMalloc_32f(len);
        ok = samples[i] != NULL || fail("noise", "no memory");
        ok = ok && succeeded("noise", tarnsConvert_16s32f(i == 0 ? words : i == 1 ? before : after, samples[i], len));
    }
    ok = ok && succeeded("noise", tarnsNorm_L2_32f(samples[0], len, &signal)) &&
         succeeded("noise", tarnsNormDiff_L2_32f(samples[0], samples[1], len, &noise[0])) &&
         succeeded("noise", tarnsNormDiff_L2_32f(samples[0], samples[2], len, &noise[1]));
    if (ok)
        fprintf(stderr, "signal to noise: %.1f dB before, %.1f dB after\n", decibels(signal, noise[0]),
                decibels(signal, noise[1]));
    for (i = 0; i < 3; ++i)
        tarnsFree(samples[i]);
    tarnsFree(words);
    closeSound(sound);
    return ok;
}

static int writeTable(const char* path, double rate, const Tarn16s* before, const Tarn16s* after, int len)
{
    FILE* const file = fopen(path, "w");
    int i;
    int ok;

    if (file == NULL)
        return fail(path, "cannot be written");
    for (i = 0; i < len; ++i)
        fprintf(file, "%.6f %.5f %.5f\n", i / rate, before[i] / 32768.0, after[i] / 32768.0);
    ok = !ferror(file);
    return (fclose(file) == 0 && ok) || fail(path, "not all of it could be written");
}

int main(int argc, char** argv)
{
    const int toNearest = 1;
    Settings settings = {5, 1.5, 16000, NULL, NULL};
    Bands bands;
    Sound* in;
    Sound* out = NULL;
    Tarn16s* before = NULL;
    Tarn16s* after = NULL;
    int len = 0;
    int ok;

    memset(&bands, 0, sizeof bands);
    parseOptions(argc, argv, &settings);
    in = openSound(NULL, &settings.rate);
    ok = in != NULL && (before = readWholeSound(in, &len)) != NULL;
    ok = ok && ((after = tarnsMalloc_16s(len)) != NULL || fail("recording", "no memory"));
    ok = ok && makeBands(&bands, settings.levels, len) &&
         succeeded("recording", tarnsZero_32f(bands.samples, bands.len)) &&
         succeeded("recording", tarnsConvert_16s32f(before, bands.samples, len)) && clean(&bands, settings.strength) &&
         succeeded("recording", tarnsConvert_32f16s_Sfs(bands.samples + bands.delay, after, len, toNearest, 0));
    ok = ok && (out = makeSound(NULL, in, settings.rate)) != NULL && writeSound(out, after, len);
    ok = ok && (settings.clean == NULL || tellNoise(settings.clean, settings.rate, before, after, len));
    ok = ok && (settings.table == NULL || writeTable(settings.table, settings.rate, before, after, len));
    freeBands(&bands);
    tarnsFree(before);
    tarnsFree(after);
    ok = closeSound(out) && ok;
    closeSound(in);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
