/* Filters a recording to the band of the telephone, from standard input to standard output, in blocks, so that a stream
   of any length needs no more memory than a short one. */
#include <stdlib.h>

#include "program.h"
#include "sound.h"

enum { blockLen = 8192 };

typedef struct {
    double rate;
    double low;
    double high;
    int taps;
    int window;
} Options;

static const char* const windows[] = {"bartlett", "blackman", "hamming", "hann", "none", NULL};

static void parseOptions(int argc, char** argv, Options* o)
{
    const Option options[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, &o->rate, aboveZero, 1e9, NULL},
        {numberOption, "--low", "HZ", "lower edge of the band, above 0", &o->low, aboveZero, 1e9, NULL},
        {numberOption, "--high", "HZ", "upper edge, at most half the rate", &o->high, aboveZero, 1e9, NULL},
        {wholeOption, "--taps", "N", "length of the filter, 5 to 65536", &o->taps, 5, 65536, NULL},
        {choiceOption, "--window", "NAME", "bartlett, blackman, hamming, hann or none", &o->window, 0, 0, windows},
    };
    const Program program = {"telephone",
                             "[OPTION VALUE]... <RECORDING >FILTERED",
                             "Passes what lies between two frequencies.\n" SOUND_HELP,
                             options,
                             sizeof options / sizeof options[0],
                             0,
                             0};

    parseArguments(&program, argc, argv, NULL);
}

static int checkBand(const Options* options)
{
    if (options->low >= options->high)
        return fail("--low", "not below the upper edge");
    return options->high <= options->rate / 2 || fail("--high", "above half the rate");
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
    return succeeded("the filter", status);
}

static int filterSound(Sound* in, Sound* out, TarnsFIRState64f_16s* filter)
{
    static Tarn16s block[blockLen];
    int samples;

    while ((samples = readSound(in, block, blockLen)) > 0) {
        if (!succeeded("filtering", tarnsFIR64f_16s_ISfs(block, samples, filter, 0)) ||
            !writeSound(out, block, samples))
            return 0;
    }
    return samples == 0;
}

int main(int argc, char** argv)
{
    Options options = {48000, 300, 3400, 128, 2};
    TarnsFIRState64f_16s* filter = NULL;
    Sound* in;
    Sound* out = NULL;
    int ok;

    parseOptions(argc, argv, &options);
    in = openSound(NULL, &options.rate);
    ok = in != NULL && checkBand(&options) && makeFilter(&options, &filter) &&
         (out = makeSound(NULL, in, options.rate)) != NULL && filterSound(in, out, filter);
    ok = closeSound(out) && ok;
    closeSound(in);
    if (filter != NULL)
        tarnsFIRFree64f_16s(filter);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
