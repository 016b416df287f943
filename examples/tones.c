/* Lists the strongest tones of a recording: sound in, frequencies and levels out. The recording is cut into blocks
   that overlap by half; each is weighted by a Hann window and transformed, and the powers of all blocks are averaged.
 */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

enum { minOrder = 4, maxOrder = 20, maxTones = 100 };

typedef struct {
    double rate;
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

static void parseOptions(int argc, char** argv, Options* o)
{
    const Option options[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, &o->rate, 1, 1e9, NULL},
        {wholeOption, "--order", "K", "blocks of 2^K samples, K from 4 to 20: longer blocks tell\ncloser tones apart",
         &o->order, minOrder, maxOrder, NULL},
        {wholeOption, "--count", "N", "how many tones, 1 to 100", &o->count, 1, maxTones, NULL},
        {textOption, "--spectrum", "FILE",
         "writes the averaged spectrum to FILE too, a line for each bin:\nfrequency in Hz, level in dB",
         &o->spectrumFile, 0, 0, NULL},
    };
    const Program program = {
        "tones",
        "[OPTION VALUE]... <RECORDING",
        "Lists the strongest tones of a recording. Levels are in dB below a tone of full scale.\n" SOUND_HELP,
        options,
        sizeof options / sizeof options[0],
        0,
        0};

    parseArguments(&program, argc, argv, NULL);
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

static int analyze(Analyzer* analyzer, Sound* sound)
{
    const int half = analyzer->len / 2;
    int got = readSound(sound, analyzer->samples, analyzer->len);
    char reason[80];

    if (got >= 0 && got < analyzer->len) {
        snprintf(reason, sizeof reason, "too short: a block has %d samples, see --order", analyzer->len);
        return fail("input", reason);
    }
    while (got == analyzer->len || got == half) {
        if (!addBlock(analyzer) ||
            !succeeded("block", tarnsCopy_16s(analyzer->samples + half, analyzer->samples, half)))
            return 0;
        got = readSound(sound, analyzer->samples + half, half);
    }
    return got >= 0;
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
static Tone toneAt(const Analyzer* analyzer, int bin, double rate)
{
    const double pi = 3.14159265358979323846;
    const int side = power(analyzer, bin + 1) > power(analyzer, bin - 1) ? 1 : -1;
    const double ratio = sqrt(power(analyzer, bin + side) / power(analyzer, bin));
    const double offset = (2 * ratio - 1) / (1 + ratio);
    Tone tone = {bin * rate / analyzer->len, level(analyzer, bin)};

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
        fprintf(file, "%.3f %.2f\n", bin * options->rate / analyzer->len, level(analyzer, bin));
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
    Sound* sound;
    int ok;

    parseOptions(argc, argv, &options);
    sound = openSound(NULL, &options.rate);
    ok = sound != NULL && createAnalyzer(&analyzer, options.order) && analyze(&analyzer, sound) &&
         (options.spectrumFile == NULL || writeSpectrum(&analyzer, &options));
    if (ok) {
        const int found = findTones(&analyzer, &options, tones);
        int i;

        for (i = 0; i < found; i++)
            printf("%10.2f Hz %8.2f dB\n", tones[i].frequency, tones[i].level);
        ok = (found > 0 || fail("input", "silence")) && outputArrived();
    }
    freeAnalyzer(&analyzer);
    closeSound(sound);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
