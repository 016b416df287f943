/* Filters a recording to the band of the telephone: raw 16-bit PCM from standard input to standard output, in blocks,
   so that a stream of any length needs no more memory than a short one. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tarns.h>

enum { blockLen = 8192 };

typedef struct {
    double rate;
    double low;
    double high;
    int taps;
    int window;
} Options;

static const char usage[] = "usage: telephone [OPTION]... <IN >OUT\n"
                            "\n"
                            "Passes what lies between two frequencies. IN and OUT are headerless signed 16-bit PCM of\n"
                            "one channel in the machine's byte order.\n"
                            "\n"
                            "  --rate HZ      samples per second (48000)\n"
                            "  --low HZ       lower edge of the band, above 0 (300)\n"
                            "  --high HZ      upper edge, at most half the rate (3400)\n"
                            "  --taps N       length of the filter, 5 to 65536 (128)\n"
                            "  --window NAME  bartlett, blackman, hamming, hann or none (hamming)\n"
                            "  --help         shows this text\n";

static const char* const windows[] = {"bartlett", "blackman", "hamming", "hann", "none"};

static int fail(const char* what, const char* reason)
{
    fprintf(stderr, "telephone: %s: %s\n", what, reason);
    return 0;
}

static int parseNumber(const char* option, const char* text, double* value)
{
    char* end;

    errno = 0;
    *value = strtod(text, &end);
    if (end == text || *end != '\0' || errno != 0 || !(*value > 0 && *value <= 1e9))
        return fail(option, "a number above 0 is wanted");
    return 1;
}

static int parseWindow(const char* text, int* window)
{
    int i;

    for (i = 0; i < (int)(sizeof windows / sizeof windows[0]); ++i) {
        if (strcmp(text, windows[i]) == 0) {
            *window = i;
            return 1;
        }
    }
    return fail(text, "no such window");
}

static int parseOption(const char* option, const char* text, Options* options)
{
    double number;

    if (strcmp(option, "--window") == 0)
        return parseWindow(text, &options->window);
    if (strcmp(option, "--rate") == 0)
        return parseNumber(option, text, &options->rate);
    if (strcmp(option, "--low") == 0)
        return parseNumber(option, text, &options->low);
    if (strcmp(option, "--high") == 0)
        return parseNumber(option, text, &options->high);
    if (strcmp(option, "--taps") != 0)
        return fail(option, "no such option");
    if (!parseNumber(option, text, &number))
        return 0;
    options->taps = number <= 65536 ? (int)number : 0;
    if (number != options->taps || options->taps < 5)
        return fail(option, "a whole number from 5 to 65536 is wanted");
    return 1;
}

static int parseOptions(int argc, char** argv, Options* options)
{
    int i;

    for (i = 1; i < argc; i += 2) {
        if (i + 1 == argc)
            return fail(argv[i], "a value is missing, or this is no option");
        if (!parseOption(argv[i], argv[i + 1], options))
            return 0;
    }
    if (options->low >= options->high)
        return fail("--low", "not below the upper edge");
    if (options->high > options->rate / 2)
        return fail("--high", "above half the rate");
    return 1;
}

/* The taps of the band-pass, and the state that filters with them. */
static int makeFilter(const Options* options, TarnsFIRState64f_16s** filter)
{
    Tarn64f* taps = tarnsMalloc_64f(options->taps);
    TarnStatus status = tarnStsNoMemErr;

    if (taps != NULL) {
        status = tarnsFIRGenBandpass_64f(options->low / options->rate, options->high / options->rate, taps,
                                         options->taps, options->window, 1);
        if (status == tarnStsNoErr)
            status = tarnsFIRInitAlloc64f_16s(filter, taps, options->taps, NULL);
        tarnsFree(taps);
    }
    return status == tarnStsNoErr ? 1 : fail("the filter", tarnGetStatusString(status));
}

/* Filters what is left of standard input. fread ends within a sample only at the end of the input. */
static int filterStream(TarnsFIRState64f_16s* filter)
{
    static Tarn16s block[blockLen];
    size_t bytes;

    while ((bytes = fread(block, 1, sizeof block, stdin)) > 0) {
        const size_t samples = bytes / sizeof block[0];
        TarnStatus status = tarnStsNoErr;

        if (samples > 0)
            status = tarnsFIR64f_16s_ISfs(block, (int)samples, filter, 0);
        if (status != tarnStsNoErr)
            return fail("filtering", tarnGetStatusString(status));
        if (fwrite(block, sizeof block[0], samples, stdout) != samples)
            return fail("output", strerror(errno));
        if (bytes % sizeof block[0] != 0)
            return fail("input", "not 16-bit PCM: its last sample is cut in two");
    }
    if (ferror(stdin))
        return fail("input", strerror(errno));
    if (fflush(stdout) != 0)
        return fail("output", strerror(errno));
    return 1;
}

int main(int argc, char** argv)
{
    Options options = {48000, 300, 3400, 128, 2};
    TarnsFIRState64f_16s* filter = NULL;
    int ok;

    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    if (!parseOptions(argc, argv, &options) || !makeFilter(&options, &filter))
        return EXIT_FAILURE;
    ok = filterStream(filter);
    tarnsFIRFree64f_16s(filter);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
