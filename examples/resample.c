/* Changes the sampling rate of a recording, from standard input to standard output, in blocks, so that a
   stream of any length needs no more memory than a short one. The output begins when the input does. */
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

/* Taps that an output at the lower rate, or a sample there, takes part in; and the window that holds what the filter
   lets through of other bands 100 dB down. Its transition is a twentieth of the lower rate wide and ends at half of it,
   so that everything up to 0.45 of the lower rate passes. */
enum { tapsPerSample = 128, blockSamples = 8192, noWindow = 4 };
static const double windowShape = 10.06;
static const double transition = 0.05;

typedef struct {
    double from;
    int to;
} Options;

/* A filter between the two rates, and where its output stands. */
typedef struct {
    TarnsFIRState32f_16s* state;
    int up;         /* outputs of an iteration */
    int down;       /* samples that it consumes */
    int iterations; /* at a time */
    long long late; /* outputs that the filter's delay puts in front of the first one */
    Tarn16s* in;
    Tarn16s* out;
} Resampler;

static void parseOptions(int argc, char** argv, Options* o)
{
    const Option options[] = {
        {numberOption, "--from", "HZ", SOUND_RATE_HELP ", 1 to 1000000", &o->from, 1, 1e6, NULL},
        {wholeOption, "--to", "HZ", "samples per second of the output, 1 to 1000000", &o->to, 1, 1e6, NULL},
    };
    const Program program = {
        "resample", "--from HZ --to HZ <RECORDING >RESAMPLED", "Changes the sampling rate.\n" SOUND_HELP,
        options,    sizeof options / sizeof options[0],        0,
        0};

    parseArguments(&program, argc, argv, NULL);
}

static int checkRates(const Options* options)
{
    if (options->from == 0 || options->to == 0)
        return fail("the rates", "both are wanted");
    return options->from == (int)options->from || fail("the rates", "whole numbers are wanted");
}

static int commonDivisor(int a, int b)
{
    while (b != 0) {
        const int rest = a % b;

        a = b;
        b = rest;
    }
    return a;
}

/* Taps of a low-pass at the fast clock, which has `clock` ticks in a sample at the lower rate. */
static TarnStatus designTaps(Tarn64f* taps, Tarn32f* rounded, int len, int clock, int up)
{
    const double edge = 0.5 * (1 - transition) / clock;
    TarnStatus status = tarnsFIRGenLowpass_64f(edge, taps, len, noWindow, 1);

    if (status == tarnStsNoErr)
        status = tarnsWinKaiser_64f_I(taps, len, (Tarn32f)(2 * windowShape / (len - 1)));
    /* Only every up-th sample of the fast clock is one of the input's. */
    if (status == tarnStsNoErr) {
        double sum;

        status = tarnsSum_64f(taps, len, &sum);
        if (status == tarnStsNoErr)
            status = tarnsMulC_64f_I(up / sum, taps, len);
    }
    if (status == tarnStsNoErr)
        status = tarnsConvert_64f32f(taps, rounded, len);
    return status;
}

/* The filter, and the room for a block before and behind it. */
static int makeResampler(const Options* options, Resampler* r)
{
    const int from = (int)options->from;
    const int divisor = commonDivisor(from, options->to);
    const int up = options->to / divisor;
    const int down = from / divisor;
    const int clock = up > down ? up : down;
    const int len = clock <= 1000000 / 8 ? tapsPerSample * clock + 1 : 0;
    Tarn64f* taps;
    Tarn32f* rounded;
    TarnStatus status = tarnStsNoMemErr;

    if (len == 0)
        return fail("the rates", "their ratio is not a usual one");
    r->up = up;
    r->down = down;
    r->iterations = blockSamples / clock + 1;
    /* The middle of the taps is the delay: whole outputs are left out, the rest is a phase. */
    r->late = (len - 1) / 2 / down;
    taps = tarnsMalloc_64f(len);
    rounded = tarnsMalloc_32f(len);
    r->in = tarnsMalloc_16s(r->iterations * down);
    r->out = tarnsMalloc_16s(r->iterations * up);
    if (taps != NULL && rounded != NULL && r->in != NULL && r->out != NULL) {
        status = designTaps(taps, rounded, len, clock, up);
        if (status == tarnStsNoErr)
            status = tarnsFIRMRInitAlloc32f_16s(&r->state, rounded, len, up, 0, down, (len - 1) / 2 % down, NULL);
    }
    tarnsFree(taps);
    tarnsFree(rounded);
    return succeeded("the filter", status);
}

static void freeResampler(Resampler* r)
{
    if (r->state != NULL)
        tarnsFIRFree32f_16s(r->state);
    tarnsFree(r->in);
    tarnsFree(r->out);
}

/* Filters a block, and writes what is neither in front of the output nor behind its end. */
static int filterBlock(Resampler* r, Sound* out, long long end, long long* position)
{
    const int made = r->iterations * r->up;
    const TarnStatus status = tarnsFIR32f_16s_Sfs(r->in, r->out, r->iterations, r->state, 0);
    const long long first = *position < 0 ? (-*position < made ? -*position : made) : 0;
    const long long last = end - *position < made ? end - *position : made;

    *position += made;
    if (!succeeded("filtering", status))
        return 0;
    return last <= first || writeSound(out, r->out + first, (int)(last - first));
}

/* Filters all of a sound, and then as much silence as the filter is late. */
static int resampleSound(Resampler* r, Sound* in, Sound* out)
{
    const int wanted = r->iterations * r->down;
    long long samples = 0;
    long long position = -r->late;
    int got;

    while ((got = readSound(in, r->in, wanted)) == wanted) {
        samples += got;
        if (!filterBlock(r, out, samples * r->up, &position))
            return 0;
    }
    if (got < 0)
        return 0;
    samples += got;
    memset(r->in + got, 0, (size_t)(wanted - got) * sizeof *r->in);
    /* As many outputs as fit the time of the input. */
    while (position < (samples * r->up + r->down - 1) / r->down) {
        if (!filterBlock(r, out, (samples * r->up + r->down - 1) / r->down, &position))
            return 0;
        memset(r->in, 0, (size_t)wanted * sizeof *r->in);
    }
    return 1;
}

int main(int argc, char** argv)
{
    Options options = {0, 0};
    Resampler resampler = {NULL, 1, 1, 1, 0, NULL, NULL};
    Sound* in;
    Sound* out = NULL;
    int ok;

    parseOptions(argc, argv, &options);
    in = openSound(NULL, &options.from);
    ok = in != NULL && checkRates(&options) && makeResampler(&options, &resampler) &&
         (out = makeSound(NULL, in, options.to)) != NULL && resampleSound(&resampler, in, out);
    ok = closeSound(out) && ok;
    closeSound(in);
    freeResampler(&resampler);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
