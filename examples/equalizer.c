/* Equalizes a recording from standard input to standard output, in blocks: every band is a biquad, and all of them are
   the sections of one filter with taps in double precision, whose delay line carries on from block to block. */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

enum { blockLen = 8192, maxBands = 32, tapsOfBand = 6, pointsOfResponse = 240 };

static const double pi = 3.14159265358979323846;

typedef enum { lowShelf, peak, highShelf, lowCut, highCut } Shape;
static const char* const shapes[] = {"low", "peak", "high", "lowcut", "highcut"};
enum { shapeCount = sizeof shapes / sizeof shapes[0] };

typedef struct {
    Shape shape;
    double frequency;
    double decibels; /* of shelves and peaks */
    double q;        /* of peaks and cuts */
} Band;

typedef struct {
    double rate;
    double gain;
    int response;
    Band bands[maxBands];
    int bandCount;
} Options;

/* A number, and that it ends where the next one begins or the text ends. */
static int parseNumber(const char** text, double* number)
{
    char* end;

    *number = strtod(*text, &end);
    if (end == *text || (*end != ':' && *end != '\0') || !isfinite(*number))
        return 0;
    *text = *end == ':' ? end + 1 : end;
    return 1;
}

/* SHAPE:HZ, then :DB for shelves and peaks, then :Q if that of a peak or a cut is not to be 0.7071. */
static int parseBand(const char* text, Band* band)
{
    const char* at = strchr(text, ':');
    int shape = 0;

    while (shape < shapeCount && (at == NULL || strncmp(text, shapes[shape], (size_t)(at - text)) != 0 ||
                                  strlen(shapes[shape]) != (size_t)(at - text)))
        ++shape;
    if (shape == shapeCount)
        return fail(text, "not a band like low:200:6, peak:1000:-4:2, high:5000:3, lowcut:80 or highcut:12000");
    band->shape = (Shape)shape;
    band->decibels = 0;
    band->q = sqrt(0.5);
    ++at;
    if (!parseNumber(&at, &band->frequency) || band->frequency <= 0)
        return fail(text, "a frequency above 0 is wanted");
    if (shape <= highShelf && (!parseNumber(&at, &band->decibels) || fabs(band->decibels) > 60))
        return fail(text, "a gain between -60 and 60 dB is wanted");
    if (*at != '\0' &&
        (shape == lowShelf || shape == highShelf || !parseNumber(&at, &band->q) || band->q < 0.01 || band->q > 1000))
        return fail(text, "a quality between 0.01 and 1000 is all that may follow, and only of peaks and cuts");
    return *at == '\0' || fail(text, "there is more than a band in it");
}

static int parseOptions(int argc, char** argv, Options* o)
{
    const Option options[] = {
        {numberOption, "--rate", "HZ", SOUND_RATE_HELP, &o->rate, aboveZero, 1e9, NULL},
        {numberOption, "--gain", "DB", "gain of the whole, to make room for what bands add", &o->gain, -120, 60, NULL},
        {flagOption, "--response", NULL,
         "filters nothing, and lists the response: frequency in Hz, level\n"
         "in dB",
         &o->response, 0, 0, NULL},
    };
    const Program program = {"equalizer",
                             "[OPTION VALUE]... BAND... <RECORDING >EQUALIZED",
                             "Raises and lowers bands of a recording. Up to 32 bands, each one of\n"
                             "  low:HZ:DB      all below a frequency, at which half of the decibels are reached\n"
                             "  high:HZ:DB     all above it\n"
                             "  peak:HZ:DB:Q   around it; Q is its distance from 0 in widths of the peak\n"
                             "  lowcut:HZ:Q    cuts off all below it, at 12 dB an octave\n"
                             "  highcut:HZ:Q   all above it\n"
                             "where :Q may be left out.\n" SOUND_HELP,
                             options,
                             sizeof options / sizeof options[0],
                             1,
                             maxBands};
    const char* texts[maxBands];
    int i;

    o->bandCount = parseArguments(&program, argc, argv, texts);
    for (i = 0; i < o->bandCount; ++i)
        if (!parseBand(texts[i], &o->bands[i]))
            return 0;
    return 1;
}

/* The taps b0, b1, b2, a0, a1, a2 of a band: an analog filter through the bilinear transform, which keeps what it has
   at the band's own frequency. */
static int makeBand(const Band* band, double rate, Tarn64f* taps)
{
    const double w = 2 * pi * band->frequency / rate;
    const double c = cos(w);
    const double root = pow(10, band->decibels / 80);
    const double a = root * root;
    const double alpha = sin(w) / (2 * band->q);
    const double slope = root * sin(w) * sqrt(2);
    const double sign = band->shape == lowShelf || band->shape == lowCut ? 1 : -1;

    if (band->frequency >= rate / 2)
        return fail(shapes[band->shape], "a band lies above half the rate");
    switch (band->shape) {
    case lowShelf:
    case highShelf:
        taps[0] = a * ((a + 1) - sign * (a - 1) * c + slope);
        taps[1] = sign * 2 * a * ((a - 1) - sign * (a + 1) * c);
        taps[2] = a * ((a + 1) - sign * (a - 1) * c - slope);
        taps[3] = (a + 1) + sign * (a - 1) * c + slope;
        taps[4] = sign * -2 * ((a - 1) + sign * (a + 1) * c);
        taps[5] = (a + 1) + sign * (a - 1) * c - slope;
        break;
    case peak:
        taps[0] = 1 + alpha * a;
        taps[1] = -2 * c;
        taps[2] = 1 - alpha * a;
        taps[3] = 1 + alpha / a;
        taps[4] = -2 * c;
        taps[5] = 1 - alpha / a;
        break;
    case lowCut:
    case highCut:
        taps[0] = (1 + sign * c) / 2;
        taps[1] = sign * -2 * taps[0];
        taps[2] = taps[0];
        taps[3] = 1 + alpha;
        taps[4] = -2 * c;
        taps[5] = 1 - alpha;
        break;
    }
    return 1;
}

static int makeTaps(const Options* options, Tarn64f* taps)
{
    const double gain = pow(10, options->gain / 20);
    int i;

    for (i = 0; i < options->bandCount; ++i)
        if (!makeBand(&options->bands[i], options->rate, taps + tapsOfBand * i))
            return 0;
    for (i = 0; i < 3; ++i)
        taps[i] *= gain;
    return 1;
}

/* |t0 + t1 z + t2 z^2|^2 on the unit circle. */
static double powerAt(const Tarn64f* t, double w)
{
    const double re = t[0] + t[1] * cos(w) + t[2] * cos(2 * w);
    const double im = t[1] * sin(w) + t[2] * sin(2 * w);

    return re * re + im * im;
}

/* From 10 Hz, or a thousandth of the rate if that is less, to half the rate, in equal steps of pitch. */
static int listResponse(const Options* options, const Tarn64f* taps)
{
    const double half = options->rate / 2;
    const double from = half > 500 ? 10 : half / 500;
    int i;
    int band;

    for (i = 0; i <= pointsOfResponse; ++i) {
        const double frequency = from * pow(half / from, (double)i / pointsOfResponse);
        const double w = 2 * pi * frequency / options->rate;
        double decibels = 0;
        for (band = 0; band < options->bandCount; ++band)
            decibels += 10 * log10(powerAt(taps + tapsOfBand * band, w) / powerAt(taps + tapsOfBand * band + 3, w));
        printf("%10.2f %8.3f\n", frequency, decibels);
    }
    return outputArrived();
}

static int filterSound(Sound* in, Sound* out, TarnsIIRState64f_16s* filter)
{
    static Tarn16s block[blockLen];
    int samples;

    while ((samples = readSound(in, block, blockLen)) > 0) {
        if (!succeeded("filtering", tarnsIIR64f_16s_ISfs(block, samples, filter, 0)) ||
            !writeSound(out, block, samples))
            return 0;
    }
    return samples == 0;
}

static int equalize(Sound* in, const Options* options, const Tarn64f* taps)
{
    TarnsIIRState64f_16s* filter = NULL;
    Sound* out = NULL;
    int ok = succeeded("the filter", tarnsIIRInitAlloc64f_BiQuad_16s(&filter, taps, options->bandCount, NULL)) &&
             (out = makeSound(NULL, in, options->rate)) != NULL && filterSound(in, out, filter);

    ok = closeSound(out) && ok;
    if (filter != NULL)
        tarnsIIRFree64f_16s(filter);
    return ok;
}

int main(int argc, char** argv)
{
    static Options options = {.rate = 48000};
    Tarn64f taps[maxBands * tapsOfBand];
    Sound* in = NULL;
    int ok = parseOptions(argc, argv, &options);

    if (ok && options.response) {
        ok = makeTaps(&options, taps) && listResponse(&options, taps);
    } else if (ok) {
        ok = (in = openSound(NULL, &options.rate)) != NULL && makeTaps(&options, taps) && equalize(in, &options, taps);
        closeSound(in);
    }
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
