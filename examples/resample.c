/* Changes the sampling rate of a recording: raw 16-bit PCM from standard input to standard output, in blocks, so that a
   stream of any length needs no more memory than a short one. The output begins when the input does. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tarns.h>

/* Taps that an output at the lower rate, or a sample there, takes part in; and the window that holds what the filter
   lets through of other bands 100 dB down. Its transition is a twentieth of the lower rate wide and ends at half of it,
   so that everything up to 0.45 of the lower rate passes. */
enum { tapsPerSample = 128, blockSamples = 8192, noWindow = 4 };
static const double windowShape = 10.06;
static const double transition = 0.05;

typedef struct {
    int from;
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

static const char usage[] = "usage: resample --from HZ --to HZ <IN >OUT\n"
                            "\n"
                            "Changes the sampling rate. IN and OUT are headerless signed 16-bit PCM of one channel in\n"
                            "the machine's byte order.\n"
                            "\n"
                            "  --from HZ      samples per second of IN, 1 to 1000000\n"
                            "  --to HZ        samples per second of OUT, 1 to 1000000\n"
                            "  --help         shows this text\n";

static int fail(const char* what, const char* reason)
{
    fprintf(stderr, "resample: %s: %s\n", what, reason);
    return 0;
}

static int parseRate(const char* option, const char* text, int* rate)
{
    char* end;
    long value;

    errno = 0;
    value = strtol(text, &end, 10);
    if (end == text || *end != '\0' || errno != 0 || value < 1 || value > 1000000)
        return fail(option, "a whole number from 1 to 1000000 is wanted");
    *rate = (int)value;
    return 1;
}

static int parseOptions(int argc, char** argv, Options* options)
{
    int i;

    for (i = 1; i < argc; i += 2) {
        int* rate = strcmp(argv[i], "--from") == 0 ? &options->from
                    : strcmp(argv[i], "--to") == 0 ? &options->to
                                                   : NULL;

        if (rate == NULL)
            return fail(argv[i], "no such option");
        if (i + 1 == argc)
            return fail(argv[i], "a value is missing");
        if (!parseRate(argv[i], argv[i + 1], rate))
            return 0;
    }
    if (options->from == 0 || options->to == 0)
        return fail("the rates", "both are wanted");
    return 1;
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
    const int divisor = commonDivisor(options->from, options->to);
    const int up = options->to / divisor;
    const int down = options->from / divisor;
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
    return status == tarnStsNoErr ? 1 : fail("the filter", tarnGetStatusString(status));
}

static void freeResampler(Resampler* r)
{
    if (r->state != NULL)
        tarnsFIRFree32f_16s(r->state);
    tarnsFree(r->in);
    tarnsFree(r->out);
}

/* Filters a block, and writes what is neither in front of the output nor behind its end. */
static int filterBlock(Resampler* r, long long end, long long* position)
{
    const int made = r->iterations * r->up;
    const TarnStatus status = tarnsFIR32f_16s_Sfs(r->in, r->out, r->iterations, r->state, 0);
    const long long first = *position < 0 ? (-*position < made ? -*position : made) : 0;
    const long long last = end - *position < made ? end - *position : made;

    *position += made;
    if (status != tarnStsNoErr)
        return fail("filtering", tarnGetStatusString(status));
    if (last > first &&
        fwrite(r->out + first, sizeof *r->out, (size_t)(last - first), stdout) != (size_t)(last - first))
        return fail("output", strerror(errno));
    return 1;
}

/* Filters what is left of standard input, and then as much silence as the filter is late. fread ends within a sample
   only at the end of the input. */
static int resampleStream(Resampler* r)
{
    const size_t wanted = (size_t)r->iterations * (size_t)r->down * sizeof *r->in;
    long long samples = 0;
    long long position = -r->late;
    size_t bytes;

    while ((bytes = fread(r->in, 1, wanted, stdin)) == wanted) {
        samples += (long long)(bytes / sizeof *r->in);
        if (!filterBlock(r, samples * r->up, &position))
            return 0;
    }
    if (ferror(stdin))
        return fail("input", strerror(errno));
    if (bytes % sizeof *r->in != 0)
        return fail("input", "not 16-bit PCM: its last sample is cut in two");
    samples += (long long)(bytes / sizeof *r->in);
    memset((char*)r->in + bytes, 0, wanted - bytes);
    /* As many outputs as fit the time of the input. */
    while (position < (samples * r->up + r->down - 1) / r->down) {
        if (!filterBlock(r, (samples * r->up + r->down - 1) / r->down, &position))
            return 0;
        memset(r->in, 0, wanted);
    }
    if (fflush(stdout) != 0)
        return fail("output", strerror(errno));
    return 1;
}

int main(int argc, char** argv)
{
    Options options = {0, 0};
    Resampler resampler = {NULL, 1, 1, 1, 0, NULL, NULL};
    int ok;

    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    if (!parseOptions(argc, argv, &options))
        return EXIT_FAILURE;
    ok = makeResampler(&options, &resampler) && resampleStream(&resampler);
    freeResampler(&resampler);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
