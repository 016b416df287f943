/* Draws the envelope and the instantaneous frequency of a recording: raw 16-bit PCM from standard input, numbers to
   standard output. The analytic signal is made in overlapping blocks, of which only the middles count: a block is taken
   for a period, so that its ends disturb each other. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tarns.h>

enum { blockLen = 4096, margin = 512, middle = blockLen - 2 * margin };

static const char usage[] = "usage: envelope [OPTION]... <IN >OUT\n"
                            "\n"
                            "IN is headerless signed 16-bit PCM of one channel in the machine's byte order. OUT has a\n"
                            "line for a sample: seconds, the sample, the envelope, both of full scale 1, and the\n"
                            "instantaneous frequency in Hz.\n"
                            "\n"
                            "  --rate HZ  samples per second (8000)\n"
                            "  --step N   writes every Nth sample only, 1 to 100000 (1)\n"
                            "  --help     shows this text\n";

static int fail(const char* what, const char* reason)
{
    fprintf(stderr, "envelope: %s: %s\n", what, reason);
    return 0;
}

static int parseNumber(const char* option, const char* text, double low, double high, double* value)
{
    char* end;

    *value = strtod(text, &end);
    if (end == text || *end != '\0' || !(*value >= low && *value <= high))
        return fail(option, "out of range, or not a number");
    return 1;
}

static int parseOptions(int argc, char** argv, double* rate, double* step)
{
    int i;

    for (i = 1; i < argc; i += 2) {
        if (i + 1 == argc)
            return fail(argv[i], "a value is missing, or this is no option");
        if (strcmp(argv[i], "--rate") == 0) {
            if (!parseNumber(argv[i], argv[i + 1], 1, 1e9, rate))
                return 0;
        } else if (strcmp(argv[i], "--step") == 0) {
            if (!parseNumber(argv[i], argv[i + 1], 1, 100000, step))
                return 0;
        } else {
            return fail(argv[i], "no such option");
        }
    }
    return 1;
}

/* Envelope and frequency, in cycles per sample, of a block: a sample's frequency is what its phase has advanced by. */
static int analyse(const TarnsHilbertSpec_32f32fc* spec, const Tarn32f* samples, Tarn32f* envelope, Tarn32f* frequency)
{
    static Tarn32fc signal[blockLen];
    static Tarn32fc turns[blockLen];
    const Tarn32f cyclesPerRadian = 0.15915494F;
    TarnStatus status = tarnsHilbert_32f32fc(samples, signal, spec);

    if (status == tarnStsNoErr)
        status = tarnsMagnitude_32fc(signal, envelope, blockLen);
    if (status == tarnStsNoErr)
        status = tarnsConj_32fc(signal, turns + 1, blockLen - 1);
    if (status == tarnStsNoErr)
        status = tarnsMul_32fc_I(signal + 1, turns + 1, blockLen - 1);
    if (status == tarnStsNoErr)
        status = tarnsPhase_32fc(turns, frequency, blockLen);
    if (status == tarnStsNoErr)
        status = tarnsMulC_32f_I(cyclesPerRadian, frequency, blockLen);
    return status == tarnStsNoErr ? 1 : fail("the analytic signal", tarnGetStatusString(status));
}

/* Fills up the samples with what is left of standard input, and zeros behind it; tells how many there were, or -1. */
static int readSamples(Tarn32f* samples, int count)
{
    static Tarn16s words[blockLen];
    const size_t bytes = fread(words, 1, (size_t)count * sizeof words[0], stdin);
    const int found = (int)(bytes / sizeof words[0]);

    if (ferror(stdin))
        return fail("input", strerror(errno)) - 1;
    if (bytes % sizeof words[0] != 0)
        return fail("input", "not 16-bit PCM: its last sample is cut in two") - 1;
    tarnsZero_32f(samples, count);
    if (found > 0) {
        tarnsConvert_16s32f(words, samples, found);
        tarnsMulC_32f_I(1.0F / 32768, samples, found);
    }
    return found;
}

static int writeStream(const TarnsHilbertSpec_32f32fc* spec, double rate, double step)
{
    static Tarn32f samples[blockLen];
    static Tarn32f envelope[blockLen];
    static Tarn32f frequency[blockLen];
    double written = 0;
    double next = 0;
    /* Silence comes before the recording; the first block ends where its middle does, and one margin more. */
    int left = readSamples(samples + margin, blockLen - margin);

    while (left > 0) {
        const int count = left < middle ? left : middle;
        int found;
        int i;

        if (!analyse(spec, samples, envelope, frequency))
            return 0;
        for (i = 0; i < count; ++i) {
            const int at = margin + i;
            if (written + i < next)
                continue;
            next += step;
            printf("%.6f %.5f %.5f %.1f\n", (written + i) / rate, (double)samples[at], (double)envelope[at],
                   (double)frequency[at] * rate);
        }
        written += count;
        tarnsMove_32f(samples + middle, samples, 2 * margin);
        found = readSamples(samples + 2 * margin, middle);
        if (found < 0)
            return 0;
        left += found - count;
    }
    if (left < 0)
        return 0;
    return fflush(stdout) == 0 && !ferror(stdout) ? 1 : fail("output", strerror(errno));
}

int main(int argc, char** argv)
{
    TarnsHilbertSpec_32f32fc* spec = NULL;
    double rate = 8000;
    double step = 1;
    TarnStatus status;
    int ok;

    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    if (!parseOptions(argc, argv, &rate, &step))
        return EXIT_FAILURE;
    status = tarnsHilbertInitAlloc_32f32fc(&spec, blockLen, tarnAlgHintNone);
    if (status != tarnStsNoErr)
        return fail("the analytic signal", tarnGetStatusString(status)) ? EXIT_SUCCESS : EXIT_FAILURE;
    ok = writeStream(spec, rate, step);
    tarnsHilbertFree_32f32fc(spec);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
