/* Names the keys of a dialled number: sound from standard input, a line of keys to standard output. Each key
   is a pair of tones, one of a row and one of a column; Goertzel's recurrence measures all eight in overlapping blocks.
 */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

enum { rows = 4, columns = 4, tones = rows + columns, longestBlock = 8192 };

static const double hertz[tones] = {697, 770, 852, 941, 1209, 1336, 1477, 1633};
static const char keys[rows][columns + 1] = {"123A", "456B", "789C", "*0#D"};

/* What makes a pair of tones a key. */
static const double quietest = 1e-5;       /* power of the weaker tone; a full-scale tone has 0.5 */
static const double largestTwist = 10;     /* of the powers of row and column: 10 dB either way */
static const double smallestShare = 0.6;   /* of the block's energy that the two tones have */
static const double smallestDistance = 6;  /* of a tone from the others of its group: 8 dB */
static const double blockSeconds = 0.0256; /* two of these, half overlapping, fit the shortest tones allowed */

typedef struct {
    double rate;
    int half; /* of a block */
    FILE* levels;
    Tarn32f weights[longestBlock];
    double amplitude; /* of a tone, per unit of its bin's magnitude */
    double energy;    /* of a block of power 1 */
} Decoder;

static int makeDecoder(double rate, Decoder* decoder)
{
    const int len = 2 * (int)(blockSeconds / 2 * rate + 0.5);
    Tarn32f sum = 0;
    Tarn32f root = 0;
    TarnStatus status;

    decoder->rate = rate;
    decoder->half = len / 2;
    status = tarnsSet_32f(1.0F / 32768, decoder->weights, len);
    if (status == tarnStsNoErr)
        status = tarnsWinHamming_32f_I(decoder->weights, len);
    if (status == tarnStsNoErr)
        status = tarnsSum_32f(decoder->weights, len, &sum, tarnAlgHintAccurate);
    if (status == tarnStsNoErr)
        status = tarnsNorm_L2_32f(decoder->weights, len, &root);
    decoder->amplitude = 2 / (double)sum / 32768;
    decoder->energy = (double)root * (double)root * 32768 * 32768;
    return succeeded("the window", status);
}

static int strongest(const double* power, int count)
{
    int best = 0;
    int i;

    for (i = 1; i < count; ++i)
        best = power[i] > power[best] ? i : best;
    return best;
}

static int standsOut(const double* power, int count, int best)
{
    int i;

    for (i = 0; i < count; ++i)
        if (i != best && power[i] * smallestDistance > power[best])
            return 0;
    return 1;
}

/* The key whose tones these are, or 0. */
static char keyOf(const double* power, double all)
{
    const int row = strongest(power, rows);
    const int column = strongest(power + rows, columns);
    const double a = power[row];
    const double b = power[rows + column];

    if (a < quietest || b < quietest || a > b * largestTwist || b > a * largestTwist || a + b < smallestShare * all)
        return 0;
    if (!standsOut(power, rows, row) || !standsOut(power + rows, columns, column))
        return 0;
    return keys[row][column];
}

static int measure(const Decoder* decoder, const Tarn16s* block, double* power, double* all)
{
    static Tarn32f weighted[longestBlock];
    const int len = 2 * decoder->half;
    Tarn32f root = 0;
    int i;
    TarnStatus status = tarnsConvert_16s32f(block, weighted, len);

    if (status == tarnStsNoErr)
        status = tarnsMul_32f_I(decoder->weights, weighted, len);
    for (i = 0; i < tones && status == tarnStsNoErr; ++i) {
        Tarn32fc bin = {0, 0};
        status = tarnsGoertz_32f(weighted, len, &bin, (Tarn32f)(hertz[i] / decoder->rate));
        power[i] = ((double)bin.re * bin.re + (double)bin.im * bin.im) * decoder->amplitude * decoder->amplitude / 2;
    }
    if (status == tarnStsNoErr)
        status = tarnsNorm_L2_32f(weighted, len, &root);
    *all = (double)root * (double)root / decoder->energy;
    return succeeded("measuring", status);
}

static double decibels(double power) { return 10 * log10(power > 5e-13 ? 2 * power : 1e-12); }

static int writeLevels(const Decoder* decoder, double seconds, const double* power, char key)
{
    int i;

    if (decoder->levels == NULL)
        return 1;
    fprintf(decoder->levels, "%.4f", seconds);
    for (i = 0; i < tones; ++i)
        fprintf(decoder->levels, " %.1f", decibels(power[i]));
    return fprintf(decoder->levels, " %c\n", key != 0 ? key : '-') > 0 ? 1 : fail("levels", strerror(errno));
}

/* Reads half a block at a time, wherever the stream is cut. A key counts once two blocks in a row agree on it, and
   again only after they have agreed on something else, or on silence. */
static int decode(const Decoder* decoder, Sound* sound)
{
    static Tarn16s block[longestBlock];
    const int half = decoder->half;
    char last = 0;
    char pressed = 0;
    int heard = 0;
    double samples = 0;
    int got;

    while ((got = readSound(sound, block + half, half)) == half) {
        double power[tones];
        double all;
        char key;

        if (!measure(decoder, block, power, &all))
            return 0;
        key = keyOf(power, all);
        if (key == last && key != pressed) {
            pressed = key;
            if (key != 0)
                putchar(key);
        }
        last = key;
        heard = heard || all > 0;
        if (!writeLevels(decoder, samples / decoder->rate, power, key))
            return 0;
        samples += half;
        memcpy(block, block + half, (size_t)half * sizeof block[0]);
    }
    putchar('\n');
    if (got < 0)
        return 0;
    return (heard || samples == 0 || fail("input", "silence")) && outputArrived();
}

static void parseOptions(int argc, char** argv, double* rate, const char** levels)
{
    const Option options[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP ", 4000 to 192000", rate, 4000, 192000, NULL},
        {textOption, "--levels", "FILE",
         "writes the levels of the tones in dB of full scale to FILE, a line a\n"
         "block: seconds, the four rows, the four columns, the key or -",
         levels, 0, 0, NULL},
    };
    const Program program = {
        "dtmf",  "[OPTION VALUE]... <RECORDING",     "Names the keys of a dialled number.\n" SOUND_HELP,
        options, sizeof options / sizeof options[0], 0,
        0};

    parseArguments(&program, argc, argv, NULL);
}

int main(int argc, char** argv)
{
    static Decoder decoder;
    const char* levels = NULL;
    double rate = 8000;
    Sound* sound;
    int ok;

    parseOptions(argc, argv, &rate, &levels);
    sound = openSound(NULL, &rate);
    ok = sound != NULL && ((rate >= 4000 && rate <= 192000) || fail("input", "4000 to 192000 samples a second"));
    ok = ok && makeDecoder(rate, &decoder);
    if (ok && levels != NULL && (decoder.levels = fopen(levels, "w")) == NULL)
        ok = fail(levels, strerror(errno));
    ok = ok && decode(&decoder, sound);
    if (decoder.levels != NULL && fclose(decoder.levels) != 0)
        ok = fail(levels, strerror(errno));
    closeSound(sound);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
