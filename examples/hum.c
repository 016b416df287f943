/* Measures the hum of the mains in a recording: raw PCM in, the levels of the harmonics out. All whole periods of the
   mains are added up, so that what does not repeat with them fades, and one transform of exactly that length, 882
   samples at 44100 Hz, puts each harmonic into a bin of its own. */
#include <errno.h>
#include <limits.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tarns.h>

enum { maxHarmonics = 100 };

typedef struct {
    int rate;
    int mains;
    int count;
    const char* spectrumFile;
} Options;

static const char usage[] = "usage: hum [OPTION VALUE]... <RECORDING\n"
                            "\n"
                            "Lists the harmonics of mains hum in a recording: headerless signed 16-bit PCM in\n"
                            "the machine's byte order, one channel, on the standard input. Levels are in dB\n"
                            "below a tone of full scale.\n"
                            "\n"
                            "  --rate HZ        samples per second, 44100 when not given; a multiple of the\n"
                            "                   frequency of the mains\n"
                            "  --mains HZ       frequency of the mains, 50 when not given\n"
                            "  --count N        how many harmonics, 1 to 100, 10 when not given\n"
                            "  --spectrum FILE  writes two spectra to FILE, a line for each bin: frequency in Hz,\n"
                            "                   level in dB. First that of one period; then, behind two empty\n"
                            "                   lines, that of as many periods as reach the next power of two.\n"
                            "  --help           prints this text\n";

static int fail(const char* what, const char* reason)
{
    fprintf(stderr, "hum: %s: %s\n", what, reason);
    return 0;
}

static int succeeded(const char* what, TarnStatus status)
{
    return status == tarnStsNoErr || fail(what, tarnGetStatusString(status));
}

static int parseInteger(const char* option, const char* text, int max, int* value)
{
    char* end;
    char reason[80];
    long number;

    errno = 0;
    number = strtol(text, &end, 10);
    if (end == text || *end != '\0' || errno != 0 || number < 1 || number > max) {
        snprintf(reason, sizeof reason, "must be an integer from 1 to %d", max);
        return fail(option, reason);
    }
    *value = (int)number;
    return 1;
}

static int parseOptions(int argc, char** argv, Options* options)
{
    int i;

    for (i = 1; i < argc; i += 2) {
        const char* name = argv[i];
        const char* value = argv[i + 1];
        int ok = 1;

        if (value == NULL) {
            fputs(usage, stderr);
            return 0;
        }
        if (strcmp(name, "--rate") == 0)
            ok = parseInteger(name, value, 1000000, &options->rate);
        else if (strcmp(name, "--mains") == 0)
            ok = parseInteger(name, value, 1000, &options->mains);
        else if (strcmp(name, "--count") == 0)
            ok = parseInteger(name, value, maxHarmonics, &options->count);
        else if (strcmp(name, "--spectrum") == 0)
            options->spectrumFile = value;
        else
            ok = fail(name, "no such option; try --help");
        if (!ok)
            return 0;
    }
    if (options->rate % options->mains != 0)
        return fail("--rate", "must be a multiple of the frequency of the mains");
    return 1;
}

/* Adds up the periods of the recording and leaves their mean. */
static int readMeanPeriod(Tarn32f* period, int len)
{
    Tarn16s* samples = tarnsMalloc_16s(len);
    Tarn32f* added = tarnsMalloc_32f(len);
    int periods = 0;
    int ok = samples != NULL && added != NULL ? 1 : fail("period", "no memory");

    ok = ok && succeeded("period", tarnsZero_32f(period, len));
    while (ok && fread(samples, sizeof *samples, (size_t)len, stdin) == (size_t)len) {
        ok = succeeded("period", tarnsConvert_16s32f_Sfs(samples, added, len, 15)) &&
             succeeded("period", tarnsAdd_32f_I(added, period, len));
        periods++;
    }
    if (ok && ferror(stdin))
        ok = fail("standard input", strerror(errno));
    if (ok && periods == 0)
        ok = fail("standard input", "too short: there is not one period of the mains");
    ok = ok && succeeded("period", tarnsMulC_32f_I(1.0f / (float)periods, period, len));
    tarnsFree(samples);
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

static int writeSpectra(const char* path, const Tarn32f* period, const Tarn32f* bins, int len, int rate)
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
        fprintf(file, "%.3f %.2f\n", (double)i * rate / len, level(bins, i));
    fputs("\n\n", file);
    for (i = 0; i <= longer / 2; i++)
        fprintf(file, "%.3f %.2f\n", (double)i * rate / longer, level(repeated, i));
    tarnsFree(repeated);
    failed = ferror(file);
    if (fclose(file) != 0 || failed)
        return fail(path, strerror(errno));
    return 1;
}

int main(int argc, char** argv)
{
    Options options = {44100, 50, 10, NULL};
    Tarn32f* period = NULL;
    Tarn32f* bins = NULL;
    int len;
    int ok;

    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    if (!parseOptions(argc, argv, &options))
        return EXIT_FAILURE;
    len = options.rate / options.mains;
    period = tarnsMalloc_32f(len);
    bins = tarnsMalloc_32f(len + 2);
    ok = period != NULL && bins != NULL ? 1 : fail("period", "no memory");
    ok = ok && readMeanPeriod(period, len) && transform(period, bins, len) &&
         (options.spectrumFile == NULL || writeSpectra(options.spectrumFile, period, bins, len, options.rate));
    if (ok) {
        int m;

        for (m = 1; m <= options.count && 2 * m < len; m++)
            printf("%6d Hz %8.2f dB\n", m * options.mains, level(bins, m));
        ok = fflush(stdout) == 0 || fail("standard output", strerror(errno));
    }
    tarnsFree(period);
    tarnsFree(bins);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
