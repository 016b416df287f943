/* Removes from a recording what is known: music that played beside a speaker, the far end of a telephone line. The way
   that the interference took into the recording, through loudspeaker, room and microphone, is found by an adaptive
   filter; what the filter makes of the interference is subtracted, and what is left is the speaker. */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

enum { mostTaps = 4096 };

typedef struct {
    double rate;
    int taps;
    double step;
    const char* drawing;
    const char* interference;
} Options;

/* The powers of 1/20 s, for the drawing. */
typedef struct {
    FILE* script;
    double rate;
    double recorded;
    double left;
    int count;
    int interval;
    double seconds;
} Levels;

static void parseOptions(int argc, char** argv, Options* options)
{
    const Option list[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, &options->rate, 1, 1e9, NULL},
        {wholeOption, "--taps", "N", "length of the filter in samples: as long as the room echoes", &options->taps, 1,
         mostTaps, NULL},
        {numberOption, "--step", "STEP",
         "step size, of which 1 follows fastest and those near 0\nare disturbed least by the speaker", &options->step,
         aboveZero, 1.99, NULL},
        {textOption, "--draw", "FILE", "writes a script there with which gnuplot draws the levels", &options->drawing,
         0, 0, NULL},
    };
    const Program program = {"cancel",
                             "[OPTION VALUE]... INTERFERENCE <RECORDING >CLEANED",
                             "Removes a known interference from a recording. Both begin at the same time; the\n"
                             "interference may come into the recording late, weakened, and echoing.\n" SOUND_HELP,
                             list,
                             sizeof list / sizeof list[0],
                             1,
                             1};

    parseArguments(&program, argc, argv, &options->interference);
}

/* -- The drawing --------------------------------------------------------------------------------------------------- */

static double decibels(double power) { return 10 * log10(power + 1e-12); }

static int beginDrawing(Levels* levels, const Options* options)
{
    if (options->drawing == NULL)
        return 1;
    levels->script = fopen(options->drawing, "w");
    if (levels->script == NULL)
        return fail(options->drawing, strerror(errno));
    levels->rate = options->rate;
    levels->interval = options->rate > 20 ? (int)(options->rate / 20) : 1;
    fputs("$levels << END\n", levels->script);
    return 1;
}

static void addToDrawing(Levels* levels, const Tarn32f* recorded, const Tarn32f* left, int count)
{
    int i;

    for (i = 0; levels->script != NULL && i < count; ++i) {
        levels->recorded += (double)recorded[i] * (double)recorded[i];
        levels->left += (double)left[i] * (double)left[i];
        if (++levels->count == levels->interval) {
            levels->seconds += levels->count / levels->rate;
            fprintf(levels->script, "%.3f %.2f %.2f\n", levels->seconds, decibels(levels->recorded / levels->count),
                    decibels(levels->left / levels->count));
            levels->recorded = levels->left = 0;
            levels->count = 0;
        }
    }
}

static int endDrawing(Levels* levels, const char* path)
{
    int ok;

    if (levels->script == NULL)
        return 1;
    fputs("END\n"
          "set grid\n"
          "set xlabel \"time / s\"\n"
          "set ylabel \"level / dB of full scale\"\n"
          "plot $levels using 1:2 with lines title \"recording\", $levels using 1:3 with lines title \"cleaned\"\n",
          levels->script);
    ok = !ferror(levels->script);
    return (fclose(levels->script) == 0 && ok) || fail(path, strerror(errno));
}

/* -- The filter ---------------------------------------------------------------------------------------------------- */

/* Blocks are as long as the filter: the energies of a block and of the one before are then at least that of every
   window of samples that the taps meet, and a step divided by them is a safe one. */
static int cleanStream(const Options* options, Sound* recording, Sound* interference, Sound* cleaned, Levels* levels,
                       TarnsFIRLMSState_32f* state)
{
    static Tarn32f known[mostTaps];
    static Tarn32f recorded[mostTaps];
    static Tarn32f estimated[mostTaps];
    static Tarn32f left[mostTaps];
    static Tarn16s words[mostTaps];
    const int toNearest = 1;
    const int taps = options->taps;
    Tarn32f before = 0;
    int count;

    while ((count = readFloats(recording, recorded, taps)) > 0) {
        Tarn32f energy = 0;
        Tarn32f both;
        TarnStatus status;

        if (readFloats(interference, known, count) < 0)
            return 0;
        tarnsDotProd_32f(known, known, count, &energy);
        both = energy + before;
        before = energy;
        /* The textbooks' step is twice this one. */
        status = tarnsFIRLMS_32f(known, recorded, estimated, count, both > 0 ? (Tarn32f)options->step / (2 * both) : 0,
                                 state);
        if (status == tarnStsNoErr)
            status = tarnsSub_32f(estimated, recorded, left, count);
        if (status == tarnStsNoErr)
            status = tarnsConvert_32f16s_Sfs(left, words, count, toNearest, -15);
        if (!succeeded("the filter", status) || !writeSound(cleaned, words, count))
            return 0;
        addToDrawing(levels, recorded, left, count);
    }
    return count == 0;
}

int main(int argc, char** argv)
{
    Options options = {8000, 256, 0.1, NULL, NULL};
    TarnsFIRLMSState_32f* state = NULL;
    Levels levels = {NULL, 0, 0, 0, 0, 0, 0};
    Sound* recording = NULL;
    Sound* interference = NULL;
    Sound* cleaned = NULL;
    double otherRate;
    int ok;

    parseOptions(argc, argv, &options);
    recording = openSound(NULL, &options.rate);
    otherRate = options.rate;
    ok = recording != NULL && (interference = openSound(options.interference, &otherRate)) != NULL;
    if (ok && otherRate != options.rate)
        ok = fail(options.interference, "not of the recording's rate");
    ok = ok && (cleaned = makeSound(NULL, recording, options.rate)) != NULL &&
         succeeded("the filter", tarnsFIRLMSInitAlloc_32f(&state, NULL, options.taps, NULL, 0)) &&
         beginDrawing(&levels, &options);
    if (ok)
        ok = cleanStream(&options, recording, interference, cleaned, &levels, state);
    ok = endDrawing(&levels, options.drawing) && ok;
    tarnsFIRLMSFree_32f(state);
    ok = closeSound(cleaned) && ok;
    closeSound(interference);
    closeSound(recording);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
