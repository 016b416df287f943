/* Finds the echo in a recording, the delay of one recording after another, or the pitch of a voice, and draws the
   correlation in which it shows. A recording is raw 16-bit PCM. */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tarns.h>

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

static const char usage[] = "usage: echo [OPTION]... <RECORDING\n"
                            "\n"
                            "Finds the echo in a recording: headerless signed 16-bit PCM of one channel in the\n"
                            "machine's byte order.\n"
                            "\n"
                            "  --rate HZ         samples per second (48000)\n"
                            "  --from MS         shortest delay in milliseconds (50)\n"
                            "  --to MS           longest delay (1000)\n"
                            "  --reference FILE  finds the delay of the recording after this one instead\n"
                            "  --voice           finds the pitch of a voice instead; delays are 2 to 16 ms then\n"
                            "  --table           prints delays in milliseconds and the correlation, no drawing\n"
                            "  --help            shows this text\n";

static int fail(const char* what, const char* reason)
{
    fprintf(stderr, "echo: %s: %s\n", what, reason);
    return 0;
}

static int succeeded(const char* what, TarnStatus status)
{
    return status == tarnStsNoErr || fail(what, tarnGetStatusString(status));
}

/* -- Options ------------------------------------------------------------------------------------------------------- */

static int parseNumber(const char* option, const char* text, double least, double* value)
{
    char* end;

    errno = 0;
    *value = strtod(text, &end);
    if (end == text || *end != '\0' || errno != 0 || !(*value >= least && *value <= 1e6))
        return fail(option, least > 0 ? "a number from 1 on is wanted" : "a number from 0 on is wanted");
    return 1;
}

static int parseOptions(int argc, char** argv, Options* options)
{
    int i;

    for (i = 1; i < argc; ++i) {
        const char* const option = argv[i];

        if (strcmp(option, "--voice") == 0) {
            options->voice = 1;
        } else if (strcmp(option, "--table") == 0) {
            options->table = 1;
        } else if (i + 1 == argc) {
            return fail(option, "a value is missing, or this is no option");
        } else if (strcmp(option, "--reference") == 0) {
            options->reference = argv[++i];
        } else if (strcmp(option, "--rate") == 0) {
            if (!parseNumber(option, argv[++i], 1, &options->rate))
                return 0;
        } else if (strcmp(option, "--from") == 0) {
            if (!parseNumber(option, argv[++i], 0, &options->from))
                return 0;
        } else if (strcmp(option, "--to") == 0) {
            if (!parseNumber(option, argv[++i], 0, &options->to))
                return 0;
        } else {
            return fail(option, "no such option");
        }
    }
    if (options->voice && options->reference != NULL)
        return fail("--voice", "not together with --reference");
    if (options->from < 0)
        options->from = options->voice ? 2 : options->reference != NULL ? 0 : 50;
    if (options->to < 0)
        options->to = options->voice ? 16 : 1000;
    return options->from < options->to || fail("--from", "not below the longest delay");
}

/* -- Input --------------------------------------------------------------------------------------------------------- */

/* All of a file, its mean taken away: a constant is alike at all delays. */
static int readRecording(FILE* file, const char* name, Recording* recording)
{
    Tarn16s* integers = NULL;
    size_t bytes = 0;
    size_t room = 0;
    Tarn32f mean;
    int ok = 0;

    for (;;) {
        size_t got;

        if (bytes == room) {
            Tarn16s* const more = room < 0x40000000 ? realloc(integers, room = 2 * room + 65536) : NULL;
            if (more == NULL) {
                free(integers);
                return fail(name, "too long");
            }
            integers = more;
        }
        got = fread((char*)integers + bytes, 1, room - bytes, file);
        if (got == 0)
            break;
        bytes += got;
    }
    recording->len = (int)(bytes / sizeof *integers);
    if (ferror(file))
        fail(name, strerror(errno));
    else if (bytes % sizeof *integers != 0)
        fail(name, "not 16-bit PCM: its last sample is cut in two");
    else if (recording->len == 0)
        fail(name, "nothing to hear");
    else if ((recording->samples = tarnsMalloc_32f(recording->len)) == NULL)
        fail(name, "too long");
    else
        ok = succeeded("conversion", tarnsConvert_16s32f(integers, recording->samples, recording->len)) &&
             succeeded("the mean", tarnsMean_32f(recording->samples, recording->len, &mean, tarnAlgHintNone)) &&
             succeeded("the mean", tarnsSubC_32f_I(mean, recording->samples, recording->len));
    free(integers);
    return ok;
}

static int readFile(const char* name, Recording* recording)
{
    FILE* const file = fopen(name, "rb");
    int ok;

    if (file == NULL)
        return fail(name, strerror(errno));
    ok = readRecording(file, name, recording);
    fclose(file);
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

static int run(const Options* options, Recording* sound, Recording* reference, Lags* lags)
{
    if (!readRecording(stdin, "input", sound) ||
        (options->reference != NULL && !readFile(options->reference, reference)))
        return 0;
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
    return fflush(stdout) == 0 || fail("output", strerror(errno));
}

int main(int argc, char** argv)
{
    Options options = {48000, -1, -1, 0, 0, NULL};
    Recording sound = {NULL, 0};
    Recording reference = {NULL, 0};
    Lags lags = {NULL, 0, 0};
    int ok;

    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    if (!parseOptions(argc, argv, &options))
        return EXIT_FAILURE;
    ok = run(&options, &sound, &reference, &lags);
    tarnsFree(sound.samples);
    tarnsFree(reference.samples);
    tarnsFree(lags.values);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
