/* Measures the hum of the mains in a recording: sound in, the levels of the harmonics out. All whole periods of the
   mains are added up, so that what does not repeat with them fades, and one transform of exactly that length, 882
   samples at 44100 Hz, puts each harmonic into a bin of its own. */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

enum { maxHarmonics = 100 };

typedef struct {
    double rate;
    int mains;
    int count;
    const char* spectrumFile;
} Options;

static void parseOptions(int argc, char** argv, Options* o)
{
    const Option options[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, &o->rate, 1, 1e6, NULL},
        {wholeOption, "--mains", "HZ", "frequency of the mains, of which the rate is a multiple", &o->mains, 1, 1000,
         NULL},
        {wholeOption, "--count", "N", "how many harmonics, 1 to 100", &o->count, 1, maxHarmonics, NULL},
        {textOption, "--spectrum", "FILE",
         "writes two spectra to FILE, a line for each bin: frequency in Hz,\n"
         "level in dB. First that of one period; then, behind two empty\n"
         "lines, that of as many periods as reach the next power of two",
         &o->spectrumFile, 0, 0, NULL},
    };
    const Program program = {"hum",
                             "[OPTION VALUE]... <RECORDING",
                             "Lists the harmonics of mains hum in a recording. Levels are in dB below a tone of full\n"
                             "scale.\n" SOUND_HELP,
                             options,
                             sizeof options / sizeof options[0],
                             0,
                             0};

    parseArguments(&program, argc, argv, NULL);
}

/* Samples of a period. */
static int periodOf(const Options* options)
{
    const double len = options->rate / options->mains;

    return len == (int)len ? (int)len : fail("--rate", "must be a multiple of the frequency of the mains");
}

/* Adds up the periods of the recording and leaves their mean. */
static int readMeanPeriod(Sound* sound, Tarn32f* period, int len)
{
    Tarn32f* added = tarnsMalloc_32f(len);
    int periods = 0;
    int got = 0;
    int ok = added != NULL ? 1 : fail("period", "no memory");

    ok = ok && succeeded("period", tarnsZero_32f(period, len));
    while (ok && (got = readFloats(sound, added, len)) == len) {
        ok = succeeded("period", tarnsAdd_32f_I(added, period, len));
        periods++;
    }
    ok = ok && got >= 0;
    if (ok && periods == 0)
        ok = fail("input", "too short: there is not one period of the mains");
    ok = ok && succeeded("period", tarnsMulC_32f_I(1.0f / (float)periods, period, len));
    tarnsFree(added);
    return ok;
}

/* The bins 0 to len / 2 of `len` samples, whatever length that is, as pairs. */
static int transform(const Tarn32f* samples, Tarn32f* bins, int len)
{
    TarnsDFTSpec_R_32f* spec = NULL;
    int ok = succeeded("transform", tarnsDFTInitAlloc_R_32f(&spec, len, TARN_FFT_DIV_FWD_BY_N, tarnAlgHintNone)) &&
             succeeded("transform", tarnsDFTFwd_RToCCS_32f(samples, bins, spec, NULL));

    if (spec != NULL)
        tarnsDFTFree_R_32f(spec);
    return ok;
}

/* A tone of amplitude a has two bins, a / 2 in each. */
static double level(const Tarn32f* bins, int bin)
{
    const double silence = 1e-15;
    const double amplitude = 2 * hypot(bins[2 * bin], bins[2 * bin + 1]);

    return 20 * log10(amplitude > silence ? amplitude : silence);
}

static int writeSpectra(const char* path, const Tarn32f* period, const Tarn32f* bins, int len, double rate)
{
    FILE* file;
    Tarn32f* repeated;
    int longer = 1;
    int failed;
    int i;

    while (longer < len)
        longer *= 2;
    repeated = tarnsMalloc_32f(longer + 2);
    if (repeated == NULL)
        return fail("spectrum", "no memory");
    for (i = 0; i < longer; i++)
        repeated[i] = period[i % len];
    if (!transform(repeated, repeated, longer)) {
        tarnsFree(repeated);
        return 0;
    }
    file = fopen(path, "w");
    if (file == NULL) {
        tarnsFree(repeated);
        return fail(path, strerror(errno));
    }
    for (i = 0; i <= len / 2; i++)
        fprintf(file, "%.3f %.2f\n", i * rate / len, level(bins, i));
    fputs("\n\n", file);
    for (i = 0; i <= longer / 2; i++)
        fprintf(file, "%.3f %.2f\n", i * rate / longer, level(repeated, i));
    tarnsFree(repeated);
    failed = ferror(file);
    if (fclose(file) != 0 || failed)
        return fail(path, strerror(errno));
    return 1;
}

static int isSilent(const Tarn32f* period, int len)
{
    Tarn32f loudest = 0;

    tarnsNorm_Inf_32f(period, len, &loudest);
    return !(loudest > 0);
}

int main(int argc, char** argv)
{
    Options options = {44100, 50, 10, NULL};
    Tarn32f* period = NULL;
    Tarn32f* bins = NULL;
    Sound* sound;
    int len = 0;
    int ok;

    parseOptions(argc, argv, &options);
    sound = openSound(NULL, &options.rate);
    ok = sound != NULL && (len = periodOf(&options)) > 0;
    if (ok) {
        period = tarnsMalloc_32f(len);
        bins = tarnsMalloc_32f(len + 2);
        ok = period != NULL && bins != NULL ? 1 : fail("period", "no memory");
    }
    ok = ok && readMeanPeriod(sound, period, len) && transform(period, bins, len) &&
         (options.spectrumFile == NULL || writeSpectra(options.spectrumFile, period, bins, len, options.rate)) &&
         (!isSilent(period, len) || fail("input", "silence"));
    if (ok) {
        int m;

        for (m = 1; m <= options.count && 2 * m < len; m++)
            printf("%6d Hz %8.2f dB\n", m * options.mains, level(bins, m));
        ok = outputArrived();
    }
    tarnsFree(period);
    tarnsFree(bins);
    closeSound(sound);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
