/* Lists the strongest tones of a recording: raw PCM in, frequencies and levels out. The recording is cut into blocks
   that overlap by half; each is weighted by a Hann window and transformed, and the powers of all blocks are averaged.
 */
#include <errno.h>
#include <limits.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tarns.h>

enum { minOrder = 4, maxOrder = 20, maxTones = 100 };

typedef struct {
    int rate;
    int order;
    int count;
    const char* spectrumFile;
} Options;

typedef struct {
    int len; /* samples of a block */
    int blocks;
    double gain; /* sum of the window: what a constant of 1 becomes in bin 0 */
    TarnsFFTSpec_R_32f* spec;
    Tarn8u* buffer;
    Tarn16s* samples;
    Tarn32f* block; /* len samples, then the bins 0 to len / 2 as pairs */
    Tarn32f* power; /* squares of the parts of the bins, summed over the blocks */
} Analyzer;

typedef struct {
    double frequency;
    double level;
} Tone;

static const char usage[] = "usage: tones [OPTION VALUE]... <RECORDING\n"
                            "\n"
                            "Lists the strongest tones of a recording: headerless signed 16-bit PCM in the\n"
                            "machine's byte order, one channel, on the standard input. Levels are in dB below\n"
                            "a tone of full scale.\n"
                            "\n"
                            "  --rate HZ        samples per second, 48000 when not given\n"
                            "  --order K        blocks of 2^K samples, K from 4 to 20, 14 when not given: longer\n"
                            "                   blocks tell closer tones apart\n"
                            "  --count N        how many tones, 1 to 100, 5 when not given\n"
                            "  --spectrum FILE  writes the averaged spectrum to FILE too, a line for each bin:\n"
                            "                   frequency in Hz, level in dB\n"
                            "  --help           prints this text\n";

static int fail(const char* what, const char* reason)
{
    fprintf(stderr, "tones: %s: %s\n", what, reason);
    return 0;
}

static int succeeded(const char* what, TarnStatus status)
{
    return status == tarnStsNoErr || fail(what, tarnGetStatusString(status));
}

static int parseInteger(const char* option, const char* text, int min, int max, int* value)
{
    char* end;
    char reason[80];
    long number;

    errno = 0;
    number = strtol(text, &end, 10);
    if (end == text || *end != '\0' || errno != 0 || number < min || number > max) {
        snprintf(reason, sizeof reason, "must be an integer from %d to %d", min, max);
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
            ok = parseInteger(name, value, 1, INT_MAX, &options->rate);
        else if (strcmp(name, "--order") == 0)
            ok = parseInteger(name, value, minOrder, maxOrder, &options->order);
        else if (strcmp(name, "--count") == 0)
            ok = parseInteger(name, value, 1, maxTones, &options->count);
        else if (strcmp(name, "--spectrum") == 0)
            options->spectrumFile = value;
        else
            ok = fail(name, "no such option; try --help");
        if (!ok)
            return 0;
    }
    return 1;
}

/* Weights the block and leaves its bins in its place. */
static int transformBlock(Analyzer* analyzer)
{
    return succeeded("block", tarnsWinHann_32f_I(analyzer->block, analyzer->len)) &&
           succeeded("block",
                     tarnsFFTFwd_RToCCS_32f(analyzer->block, analyzer->block, analyzer->spec, analyzer->buffer));
}

static int findGain(Analyzer* analyzer)
{
    if (!succeeded("window", tarnsSet_32f(1, analyzer->block, analyzer->len)) || !transformBlock(analyzer))
        return 0;
    analyzer->gain = analyzer->block[0];
    return 1;
}

static int createAnalyzer(Analyzer* analyzer, int order)
{
    int bytes = 0;

    analyzer->len = 1 << order;
    if (!succeeded("transform",
                   tarnsFFTInitAlloc_R_32f(&analyzer->spec, order, TARN_FFT_NODIV_BY_ANY, tarnAlgHintNone)) ||
        !succeeded("transform", tarnsFFTGetBufSize_R_32f(analyzer->spec, &bytes)))
        return 0;
    analyzer->buffer = tarnsMalloc_8u(bytes > 0 ? bytes : 1);
    analyzer->samples = tarnsMalloc_16s(analyzer->len);
    analyzer->block = tarnsMalloc_32f(analyzer->len + 2);
    analyzer->power = tarnsMalloc_32f(analyzer->len + 2);
    if (analyzer->buffer == NULL || analyzer->samples == NULL || analyzer->block == NULL || analyzer->power == NULL)
        return fail("block", "no memory");
    return succeeded("spectrum", tarnsZero_32f(analyzer->power, analyzer->len + 2)) && findGain(analyzer);
}

static void freeAnalyzer(Analyzer* analyzer)
{
    if (analyzer->spec != NULL)
        tarnsFFTFree_R_32f(analyzer->spec);
    tarnsFree(analyzer->buffer);
    tarnsFree(analyzer->samples);
    tarnsFree(analyzer->block);
    tarnsFree(analyzer->power);
}

static int addBlock(Analyzer* analyzer)
{
    const int len = analyzer->len;

    analyzer->blocks++;
    return succeeded("block", tarnsConvert_16s32f_Sfs(analyzer->samples, analyzer->block, len, 15)) &&
           transformBlock(analyzer) && succeeded("block", tarnsMul_32f_I(analyzer->block, analyzer->block, len + 2)) &&
           succeeded("block", tarnsAdd_32f_I(analyzer->block, analyzer->power, len + 2));
}

/* Fills the array unless the recording ends before; then tells why there is no more. */
static int readSamples(Tarn16s* samples, int len, int* ended)
{
    const size_t wanted = (size_t)len * sizeof *samples;
    const size_t got = fread(samples, 1, wanted, stdin);

    *ended = got < wanted;
    if (ferror(stdin))
        return fail("standard input", strerror(errno));
    if (got % sizeof *samples != 0)
        return fail("standard input", "not 16-bit PCM: its size is odd");
    return 1;
}

static int analyze(Analyzer* analyzer)
{
    const int half = analyzer->len / 2;
    char reason[80];
    int ended;

    if (!readSamples(analyzer->samples, analyzer->len, &ended))
        return 0;
    if (ended) {
        snprintf(reason, sizeof reason, "too short: a block has %d samples, see --order", analyzer->len);
        return fail("standard input", reason);
    }
    while (!ended) {
        if (!addBlock(analyzer) ||
            !succeeded("block", tarnsCopy_16s(analyzer->samples + half, analyzer->samples, half)) ||
            !readSamples(analyzer->samples + half, half, &ended))
            return 0;
    }
    return 1;
}

static double power(const Analyzer* analyzer, int bin)
{
    return (double)analyzer->power[2 * bin] + analyzer->power[2 * bin + 1];
}

/* A tone of amplitude a puts a / 2 times the window's sum into its bin. */
static double level(const Analyzer* analyzer, int bin)
{
    const double silence = 1e-15;
    const double amplitude = 2 * sqrt(power(analyzer, bin) / analyzer->blocks) / analyzer->gain;

    return 20 * log10(amplitude > silence ? amplitude : silence);
}

/* The tone that a local maximum belongs to. A tone d bins beside the peak, d up to a half, has an amplitude of
   sin(pi d) / (pi d (1 - d^2)) there, and in the next bin on its side one that is (1 + d) / (2 - d) of that. */
static Tone toneAt(const Analyzer* analyzer, int bin, int rate)
{
    const double pi = 3.14159265358979323846;
    const int side = power(analyzer, bin + 1) > power(analyzer, bin - 1) ? 1 : -1;
    const double ratio = sqrt(power(analyzer, bin + side) / power(analyzer, bin));
    const double offset = (2 * ratio - 1) / (1 + ratio);
    Tone tone = {(double)bin * rate / analyzer->len, level(analyzer, bin)};

    /* Noise has peaks that are narrower than any tone's. */
    if (offset > 0) {
        tone.frequency += side * offset * rate / analyzer->len;
        tone.level -= 20 * log10(sin(pi * offset) / (pi * offset * (1 - offset * offset)));
    }
    return tone;
}

/* Keeps the `count` strongest of all tones, strongest first; returns how many there are. */
static int findTones(const Analyzer* analyzer, const Options* options, Tone* tones)
{
    int found = 0;
    int bin;

    for (bin = 1; bin < analyzer->len / 2; bin++) {
        Tone tone;
        int place;

        if (power(analyzer, bin) <= power(analyzer, bin - 1) || power(analyzer, bin) < power(analyzer, bin + 1))
            continue;
        tone = toneAt(analyzer, bin, options->rate);
        place = found < options->count ? found++ : options->count;
        while (place > 0 && tones[place - 1].level < tone.level) {
            if (place < options->count)
                tones[place] = tones[place - 1];
            place--;
        }
        if (place < options->count)
            tones[place] = tone;
    }
    return found;
}

static int writeSpectrum(const Analyzer* analyzer, const Options* options)
{
    FILE* file = fopen(options->spectrumFile, "w");
    int failed;
    int bin;

    if (file == NULL)
        return fail(options->spectrumFile, strerror(errno));
    for (bin = 0; bin <= analyzer->len / 2; bin++)
        fprintf(file, "%.3f %.2f\n", (double)bin * options->rate / analyzer->len, level(analyzer, bin));
    failed = ferror(file);
    if (fclose(file) != 0 || failed)
        return fail(options->spectrumFile, strerror(errno));
    return 1;
}

int main(int argc, char** argv)
{
    Options options = {48000, 14, 5, NULL};
    Analyzer analyzer = {0};
    Tone tones[maxTones];
    int ok;

    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    ok = parseOptions(argc, argv, &options) && createAnalyzer(&analyzer, options.order) && analyze(&analyzer) &&
         (options.spectrumFile == NULL || writeSpectrum(&analyzer, &options));
    if (ok) {
        const int found = findTones(&analyzer, &options, tones);
        int i;

        for (i = 0; i < found; i++)
            printf("%10.2f Hz %8.2f dB\n", tones[i].frequency, tones[i].level);
        ok = fflush(stdout) == 0 || fail("standard output", strerror(errno));
    }
    freeAnalyzer(&analyzer);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
