/* Repairs clicks in a recording, from standard input to standard output, in blocks, so that a stream of any length
   needs no more memory than a short one. A median over twice the length of a click has nothing of it left. Where a
   sample is much farther from that median than the sound is rough around there, it is a click, and the median takes its
   place. All other samples stay as they are. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

/* How far the neighbourhood reaches by which a click is told, on either side, and how many samples are repaired at a
   time. */
enum { reach = 500, blockSamples = 16384 };

/* On a slope a click of n samples moves the medians beside it by up to n climbs from one sample to the next, and a tone
   climbs up to 1.42 times its median climb. And in digital silence the last bit is no click. */
static const Tarn32f climbsASample = 1.5f;
static const Tarn32f leastDeviation = 20;

typedef struct {
    double rate;
    int longest;
    double threshold;
    const char* clicksFile;
} Options;

/* A piece of the recording, with as much of what lies in front of it and behind it as its medians look at. */
typedef struct {
    int before; /* samples that are here for their neighbours */
    int count;  /* samples to repair, behind those */
    int len;    /* all samples */
    int longestClick;
    Tarn32f threshold;
    long long position; /* of the first one to repair, in the recording */
    Tarn16s* samples;
    Tarn32f* floats;
    Tarn32f* medians;
    Tarn32f* deviations; /* of the samples from their medians */
    Tarn32f* limits;     /* what a deviation is above in a click */
    Tarn32f* work;
} Block;

static void parseOptions(int argc, char** argv, Options* o)
{
    const Option options[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, &o->rate, 1, 1e6, NULL},
        {wholeOption, "--longest", "N", "samples of the longest click", &o->longest, 1, reach, NULL},
        {numberOption, "--threshold", "T",
         "how much farther a click is from the median than samples\n"
         "usually turn from a straight line",
         &o->threshold, 1, 1e6, NULL},
        {textOption, "--clicks", "FILE", "writes a line for each click to FILE: its first sample, its length",
         &o->clicksFile, 0, 0, NULL},
    };
    const Program program = {"declick",
                             "[OPTION VALUE]... <RECORDING >REPAIRED",
                             "Repairs clicks by a median, and nothing but clicks.\n" SOUND_HELP,
                             options,
                             sizeof options / sizeof options[0],
                             0,
                             0};

    parseArguments(&program, argc, argv, NULL);
}

/* What a repaired sample depends on, on either side. */
static int contextOf(const Options* options) { return reach + options->longest; }

static int makeBlock(const Options* options, Block* b)
{
    const int room = blockSamples + 2 * contextOf(options);

    b->longestClick = options->longest;
    b->threshold = (Tarn32f)options->threshold;
    b->samples = tarnsMalloc_16s(room);
    b->floats = tarnsMalloc_32f(room);
    b->medians = tarnsMalloc_32f(room);
    b->deviations = tarnsMalloc_32f(room);
    b->limits = tarnsMalloc_32f(room);
    b->work = tarnsMalloc_32f(room);
    return b->samples != NULL && b->floats != NULL && b->medians != NULL && b->deviations != NULL &&
                   b->limits != NULL && b->work != NULL
               ? 1
               : fail("block", "no memory");
}

static void freeBlock(Block* b)
{
    tarnsFree(b->samples);
    tarnsFree(b->floats);
    tarnsFree(b->medians);
    tarnsFree(b->deviations);
    tarnsFree(b->limits);
    tarnsFree(b->work);
}

/* `factor` times the median of |x[n]| around each place. Medians, since some clicks do not move them. */
static int scaleOf(Tarn32f* x, Tarn32f* scale, int len, Tarn32f factor)
{
    return succeeded("limits", tarnsAbs_32f_I(x, len)) &&
           succeeded("limits", tarnsFilterMedian_32f(x, scale, len, 2 * reach + 1)) &&
           succeeded("limits", tarnsMulC_32f_I(factor, scale, len));
}

/* How far a sample is from its median at most if it is none of a click: by how much the sound turns from a straight
   line around there, which is x[n - 1] - 2 x[n] + x[n + 1], and by how much it climbs from one sample to the next. */
static int findLimits(Block* b)
{
    Tarn32f* const climbs = b->medians;
    Tarn32f* const turns = b->deviations;
    const int len = b->len;

    climbs[0] = 0;
    turns[0] = turns[len - 1] = 0;
    return (len < 3 || (succeeded("limits", tarnsSub_32f(b->floats, b->floats + 1, climbs + 1, len - 1)) &&
                        succeeded("limits", tarnsSub_32f(climbs + 1, climbs + 2, turns + 1, len - 2)))) &&
           scaleOf(turns, b->limits, len, b->threshold) &&
           scaleOf(climbs, b->work, len, climbsASample * (Tarn32f)b->longestClick) &&
           succeeded("limits", tarnsMaxEvery_32f_I(b->work, b->limits, len)) &&
           succeeded("limits", tarnsThreshold_LT_32f_I(b->limits, len, leastDeviation));
}

/* The median of each place, and how far the sample is from it. */
static int findDeviations(Block* b)
{
    return succeeded("medians", tarnsFilterMedian_32f(b->floats, b->medians, b->len, 2 * b->longestClick + 1)) &&
           succeeded("medians", tarnsSub_32f(b->medians, b->floats, b->deviations, b->len)) &&
           succeeded("medians", tarnsAbs_32f_I(b->deviations, b->len));
}

static int analyse(Block* b)
{
    return succeeded("conversion", tarnsConvert_16s32f(b->samples, b->floats, b->len)) && findLimits(b) &&
           findDeviations(b);
}

/* Puts medians into the places of clicks. `clicks` gets their places, unless it is null; `run` counts the samples of a
   click that the last block has begun. */
static void repair(Block* b, FILE* clicks, int* run)
{
    int i;

    for (i = b->before; i < b->before + b->count; i++) {
        const int isClick = b->deviations[i] > b->limits[i];

        if (isClick)
            b->samples[i] = (Tarn16s)b->medians[i];
        else if (*run > 0 && clicks != NULL)
            fprintf(clicks, "%lld %d\n", b->position + (i - b->before) - *run, *run);
        *run = isClick ? *run + 1 : 0;
    }
}

/* Repairs a recording block by block. The context in front of a block is as it was recorded, so that no result depends
   on where the blocks begin. */
static int repairSound(const Options* options, Sound* in, Sound* out, FILE* clicks)
{
    const int context = contextOf(options);
    Block b;
    Tarn16s* recorded = NULL;
    int behind = 0; /* samples in the block behind those to repair */
    int run = 0;
    int got = 1;
    int ok;

    memset(&b, 0, sizeof b);
    ok = makeBlock(options, &b) && ((recorded = tarnsMalloc_16s(context)) != NULL || fail("block", "no memory"));
    while (ok && (got > 0 || behind > 0)) {
        const int wanted = blockSamples + context - behind;

        /* What was read last time is repaired now, and as much again is read for its sake. */
        got = readSound(in, b.samples + b.before + behind, wanted);
        ok = got >= 0;
        if (!ok || behind + got == 0)
            break;
        b.len = b.before + behind + got;
        b.count = got < wanted ? behind + got : blockSamples;
        ok = analyse(&b);
        if (ok) {
            const int kept = b.before + b.count < context ? b.before + b.count : context;

            memcpy(recorded, b.samples + b.before + b.count - kept, (size_t)kept * sizeof *recorded);
            repair(&b, clicks, &run);
            ok = writeSound(out, b.samples + b.before, b.count);
            behind = b.len - b.before - b.count;
            memmove(b.samples + kept, b.samples + b.before + b.count, (size_t)behind * sizeof *b.samples);
            memcpy(b.samples, recorded, (size_t)kept * sizeof *b.samples);
            b.before = kept;
            b.position += b.count;
        }
    }
    if (ok && run > 0 && clicks != NULL)
        fprintf(clicks, "%lld %d\n", b.position - run, run);
    tarnsFree(recorded);
    freeBlock(&b);
    return ok;
}

int main(int argc, char** argv)
{
    Options options = {44100, 3, 20, NULL};
    Sound* in;
    Sound* out = NULL;
    FILE* clicks = NULL;
    int ok;

    parseOptions(argc, argv, &options);
    in = openSound(NULL, &options.rate);
    ok = in != NULL;
    if (ok && options.clicksFile != NULL)
        ok = (clicks = fopen(options.clicksFile, "w")) != NULL || fail(options.clicksFile, strerror(errno));
    ok = ok && (out = makeSound(NULL, in, options.rate)) != NULL && repairSound(&options, in, out, clicks);
    ok = closeSound(out) && ok;
    closeSound(in);
    if (clicks != NULL) {
        const int failed = ferror(clicks);

        if (fclose(clicks) != 0 || failed)
            ok = fail(options.clicksFile, strerror(errno));
    }
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
