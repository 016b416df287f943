/* Finds the echo in a recording, the delay of one recording after another, or the pitch of a voice, and draws the
   correlation in which it shows. */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>

#include "program.h"
#include "sound.h"

enum { columns = 72, rows = 12 };

typedef struct {
    double rate;
    double from; /* milliseconds; below 0 if not given */
    double to;
    int voice;
    int table;
    const char* reference;
} Options;

typedef struct {
    Tarn32f* samples;
    int len;
} Recording;

/* The correlation at the lags from `first` on, as a fraction of what it is of the sound with itself. */
typedef struct {
    Tarn32f* values;
    int first;
    int count;
} Lags;

/* -- Options ------------------------------------------------------------------------------------------------------- */

static void parseOptions(int argc, char** argv, Options* o)
{
    const Option options[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, &o->rate, 1, 1e6, NULL},
        {numberOption, "--from", "MS", "shortest delay in milliseconds, 50 when not given", &o->from, 0, 1e6, NULL},
        {numberOption, "--to", "MS", "longest delay, 1000 when not given", &o->to, 0, 1e6, NULL},
        {textOption, "--reference", "FILE", "finds the delay of the recording after this one instead", &o->reference, 0,
         0, NULL},
        {flagOption, "--voice", NULL, "finds the pitch of a voice instead; delays are 2 to 16 ms then", &o->voice, 0, 0,
         NULL},
        {flagOption, "--table", NULL, "prints delays in milliseconds and the correlation, no drawing", &o->table, 0, 0,
         NULL},
    };
    const Program program = {"echo",  "[OPTION]... <RECORDING",           "Finds the echo in a recording.\n" SOUND_HELP,
                             options, sizeof options / sizeof options[0], 0,
                             0};

    parseArguments(&program, argc, argv, NULL);
}

static int checkOptions(Options* options)
{
    if (options->voice && options->reference != NULL)
        return fail("--voice", "not together with --reference");
    if (options->from < 0)
        options->from = options->voice ? 2 : options->reference != NULL ? 0 : 50;
    if (options->to < 0)
        options->to = options->voice ? 16 : 1000;
    return options->from < options->to || fail("--from", "not below the longest delay");
}

/* -- Input --------------------------------------------------------------------------------------------------------- */

/* All of a sound, its mean taken away: a constant is alike at all delays. */
static int readRecording(const char* path, double* rate, Recording* recording)
{
    Sound* const sound = openSound(path, rate);
    Tarn16s* const integers = sound != NULL ? readWholeSound(sound, &recording->len) : NULL;
    Tarn32f mean;
    int ok = 0;

    closeSound(sound);
    if (integers == NULL)
        return 0;
    if ((recording->samples = tarnsMalloc_32f(recording->len)) == NULL)
        fail("input", "too long");
    else
        ok = succeeded("conversion", tarnsConvert_16s32f(integers, recording->samples, recording->len)) &&
             succeeded("the mean", tarnsMean_32f(recording->samples, recording->len, &mean, tarnAlgHintNone)) &&
             succeeded("the mean", tarnsSubC_32f_I(mean, recording->samples, recording->len));
    tarnsFree(integers);
    return ok;
}

/* -- Correlation --------------------------------------------------------------------------------------------------- */

static double energy(const Recording* sound)
{
    Tarn32f norm = 0;

    tarnsNorm_L2_32f(sound->samples, sound->len, &norm);
    return (double)norm * norm;
}

/* One lag more on either side, for the neighbours of a peak. */
static int chooseLags(const Options* options, int longest, Lags* lags)
{
    const double last = floor(options->to * options->rate / 1000) + 1;

    lags->first = (int)(options->from * options->rate / 1000) - 1;
    if (lags->first < 0 && options->reference == NULL)
        lags->first = 0;
    lags->count = (last < longest ? (int)last : longest) - lags->first + 1;
    if (lags->count < 3)
        return fail("input", "shorter than the delays");
    lags->values = tarnsMalloc_32f(lags->first + lags->count + 1);
    return lags->values != NULL || fail("memory", tarnGetStatusString(tarnStsNoMemErr));
}

/* Of a sound with itself, from lag 0 on. A recording holds an echo as a whole, so that its lag has as many products as
   lag 0: all are divided by the same number. Of a voice that goes on before and after the recording later periods have
   fewer, and each lag is divided by the number of its own. */
static int correlateWithItself(const Recording* sound, int voice, Lags* lags)
{
    const int all = lags->first + lags->count;
    TarnStatus status = voice ? tarnsAutoCorr_NormB_32f(sound->samples, sound->len, lags->values, all)
                              : tarnsAutoCorr_NormA_32f(sound->samples, sound->len, lags->values, all);
    const Tarn32f power = lags->values[0];

    if (status == tarnStsNoErr && !(power > 0))
        return fail("input", "silence");
    if (status == tarnStsNoErr)
        status = tarnsMove_32f(lags->values + lags->first, lags->values, lags->count);
    if (status == tarnStsNoErr)
        status = tarnsDivC_32f_I(power, lags->values, lags->count);
    return succeeded("correlation", status);
}

static int correlateWithReference(const Recording* sound, const Recording* reference, Lags* lags)
{
    const double power = energy(reference);
    TarnStatus status;

    if (!(power > 0))
        return fail("the reference", "silence");
    status = tarnsCrossCorr_32f(reference->samples, reference->len, sound->samples, sound->len, lags->values,
                                lags->count, lags->first);
    if (status == tarnStsNoErr)
        status = tarnsDivC_32f_I((Tarn32f)power, lags->values, lags->count);
    return succeeded("correlation", status);
}

/* -- The peak ------------------------------------------------------------------------------------------------------ */

typedef struct {
    double lag; /* between samples */
    double height;
} Peak;

/* The vertex of the parabola through a lag and its neighbours. */
static Peak refine(const Lags* lags, int n)
{
    const double before = lags->values[n - 1];
    const double here = lags->values[n];
    const double behind = lags->values[n + 1];
    const double curvature = before - 2 * here + behind;
    const double shift = curvature < 0 ? 0.5 * (before - behind) / curvature : 0;
    const Peak peak = {lags->first + n + shift, here - 0.25 * (before - behind) * shift};

    return peak;
}

/* The highest peak; of a voice the first that is nearly as high, since multiples of its period are as good. */
static Peak findPeak(const Lags* lags, int voice)
{
    Tarn32f highest;
    int best;
    int n;

    tarnsMaxIndx_32f(lags->values + 1, lags->count - 2, &highest, &best);
    ++best;
    for (n = 1; voice && n < best; ++n) {
        if (lags->values[n] > 0.85F * highest && lags->values[n] >= lags->values[n - 1] &&
            lags->values[n] >= lags->values[n + 1]) {
            best = n;
        }
    }
    return refine(lags, best);
}

/* -- Output -------------------------------------------------------------------------------------------------------- */

static void tell(const Options* options, const Lags* lags)
{
    const Peak peak = findPeak(lags, options->voice);
    const double delay = 1000 * peak.lag / options->rate;
    const double half = peak.height < 0.5 ? peak.height : 0.5;

    if (options->voice)
        printf("# pitch %.2f Hz, correlation %.3f\n", options->rate / peak.lag, peak.height);
    else if (options->reference != NULL)
        printf("# delayed by %.3f ms, at %.3f of the reference\n", delay, peak.height);
    else if (!(peak.height > 0.15))
        printf("# no echo\n");
    else /* a sound with an echo of the fraction g correlates with itself by g / (1 + g^2) */
        printf("# echo after %.3f ms, at %.3f of the sound\n", delay, (1 - sqrt(1 - 4 * half * half)) / (2 * half));
}

static void printTable(const Options* options, const Lags* lags)
{
    int n;

    for (n = 0; n < lags->count; ++n)
        printf("%.5f %.6f\n", 1000 * (lags->first + n) / options->rate, lags->values[n]);
}

/* Every column shows the highest of its lags. */
static void draw(const Options* options, const Lags* lags)
{
    const int width = lags->count < columns ? lags->count : columns;
    Tarn32f heights[columns];
    Tarn32f top = 0;
    int c;
    int row;

    for (c = 0; c < width; ++c) {
        const int begin = (int)((double)lags->count * c / width);
        const int end = (int)((double)lags->count * (c + 1) / width);

        tarnsMax_32f(lags->values + begin, end - begin, &heights[c]);
        top = heights[c] > top ? heights[c] : top;
    }
    for (row = rows; row > 0; --row) {
        printf("%6.3f |", top * row / rows);
        for (c = 0; c < width; ++c)
            putchar(heights[c] > top * ((Tarn32f)row - 0.5F) / rows ? '#' : ' ');
        putchar('\n');
    }
    printf("%-8.6g%*.6g ms\n", 1000 * lags->first / options->rate, width,
           1000 * (lags->first + lags->count - 1) / options->rate);
}

static int run(Options* options, Recording* sound, Recording* reference, Lags* lags)
{
    double referenceRate = options->rate;

    if (!checkOptions(options) || !readRecording(NULL, &options->rate, sound) ||
        (options->reference != NULL && !readRecording(options->reference, &referenceRate, reference)))
        return 0;
    if (options->reference != NULL && referenceRate != options->rate)
        return fail(options->reference, "at another rate");
    if (!chooseLags(options, sound->len - 1, lags))
        return 0;
    if (options->reference != NULL ? !correlateWithReference(sound, reference, lags)
                                   : !correlateWithItself(sound, options->voice, lags))
        return 0;
    tell(options, lags);
    if (options->table)
        printTable(options, lags);
    else
        draw(options, lags);
    return outputArrived();
}

int main(int argc, char** argv)
{
    Options options = {48000, -1, -1, 0, 0, NULL};
    Recording sound = {NULL, 0};
    Recording reference = {NULL, 0};
    Lags lags = {NULL, 0, 0};
    int ok;

    parseOptions(argc, argv, &options);
    ok = run(&options, &sound, &reference, &lags);
    tarnsFree(sound.samples);
    tarnsFree(reference.samples);
    tarnsFree(lags.values);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
