/* Mixes two 16-bit recordings. With scale factor 0 the sum saturates where it is too loud;
   with scale factor 1 it is halved, rounded, and never clips. */
#include <limits.h>
#include <stdlib.h>

#include "program.h"
#include "sound.h"

typedef struct {
    Tarn16s* samples;
    int len;
} Recording;

static int readRecording(Sound* sound, Recording* recording)
{
    return sound != NULL && (recording->samples = readWholeSound(sound, &recording->len)) != NULL;
}

static int mix(const Recording* a, const Recording* b, Recording* mixed, int scaleFactor)
{
    const Recording* longer = a->len >= b->len ? a : b;
    const int common = a->len < b->len ? a->len : b->len;
    const int rest = longer->len - common;
    TarnStatus status;

    mixed->len = longer->len;
    mixed->samples = tarnsMalloc_16s(mixed->len);
    if (mixed->samples == NULL)
        return fail("mixed recording", "no memory");
    status = tarnsAdd_16s_Sfs(a->samples, b->samples, mixed->samples, common, scaleFactor);
    if (status == tarnStsNoErr && rest > 0)
        status = tarnsAddC_16s_Sfs(longer->samples + common, 0, mixed->samples + common, rest, scaleFactor);
    return succeeded("mixed recording", status);
}

static int writeRecording(Sound* sound, const Recording* recording)
{
    const int ok = sound != NULL && writeSound(sound, recording->samples, recording->len);

    return closeSound(sound) && ok;
}

static int parseOperands(int argc, char** argv, const char** operands)
{
    const Program program = {"mix",
                             "FIRST SECOND MIXED [SCALE]",
                             "Adds the recordings FIRST and SECOND, divides by 2 to the power SCALE (0 when not "
                             "given),\nrounds to nearest and saturates. Where one recording is longer, its end is "
                             "mixed with silence.\nBoth are at the same rate.\n" SOUND_HELP,
                             NULL,
                             0,
                             3,
                             4};

    return parseArguments(&program, argc, argv, operands);
}

int main(int argc, char** argv)
{
    const char* operands[4];
    const int count = parseOperands(argc, argv, operands);
    const int scaleFactor = count == 4 ? parseWhole("SCALE", operands[3], INT_MIN, INT_MAX) : 0;
    double rates[2] = {48000, 48000};
    Sound* const first = openSound(operands[0], &rates[0]);
    Sound* const second = first != NULL ? openSound(operands[1], &rates[1]) : NULL;
    Recording a = {NULL, 0};
    Recording b = {NULL, 0};
    Recording mixed = {NULL, 0};
    int ok = readRecording(first, &a) && readRecording(second, &b);

    if (ok && rates[0] != rates[1])
        ok = fail(operands[1], "at another rate");
    ok = ok && mix(&a, &b, &mixed, scaleFactor) && writeRecording(makeSound(operands[2], first, rates[0]), &mixed);
    closeSound(first);
    closeSound(second);
    tarnsFree(a.samples);
    tarnsFree(b.samples);
    tarnsFree(mixed.samples);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
