/* Draws the envelope and the instantaneous frequency of a recording: sound from standard input, numbers to
   standard output. The analytic signal is made in overlapping blocks, of which only the middles count: a block is taken
   for a period, so that its ends disturb each other. */
#include <stdio.h>
#include <stdlib.h>

#include "program.h"
#include "sound.h"

enum { blockLen = 4096, margin = 512, middle = blockLen - 2 * margin };

static void parseOptions(int argc, char** argv, double* rate, int* step)
{
    const Option options[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, rate, 1, 1e9, NULL},
        {wholeOption, "--step", "N", "writes every Nth sample only, 1 to 100000", step, 1, 100000, NULL},
    };
    const Program program = {"envelope",
                             "[OPTION VALUE]... <RECORDING >TABLE",
                             "Writes a line for a sample: seconds, the sample, the envelope, both of full scale 1, and "
                             "the\ninstantaneous frequency in Hz.\n" SOUND_HELP,
                             options,
                             sizeof options / sizeof options[0],
                             0,
                             0};

    parseArguments(&program, argc, argv, NULL);
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
    return succeeded("the analytic signal", status);
}

static int writeStream(const TarnsHilbertSpec_32f32fc* spec, Sound* sound, double rate, int step)
{
    static Tarn32f samples[blockLen];
    static Tarn32f envelope[blockLen];
    static Tarn32f frequency[blockLen];
    double written = 0;
    double next = 0;
    /* Silence comes before the recording; the first block ends where its middle does, and one margin more. */
    int left = readFloats(sound, samples + margin, blockLen - margin);

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
        found = readFloats(sound, samples + 2 * margin, middle);
        if (found < 0)
            return 0;
        left += found - count;
    }
    if (left < 0)
        return 0;
    return outputArrived();
}

int main(int argc, char** argv)
{
    TarnsHilbertSpec_32f32fc* spec = NULL;
    double rate = 8000;
    int step = 1;
    Sound* sound;
    int ok;

    parseOptions(argc, argv, &rate, &step);
    sound = openSound(NULL, &rate);
    ok = sound != NULL &&
         succeeded("the analytic signal", tarnsHilbertInitAlloc_32f32fc(&spec, blockLen, tarnAlgHintNone)) &&
         writeStream(spec, sound, rate, step);
    if (spec != NULL)
        tarnsHilbertFree_32f32fc(spec);
    closeSound(sound);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
