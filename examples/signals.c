/* Prints tables for a plotting program: Kaiser windows of several shapes, their spectra, histograms of random numbers;
   or writes a chirp as raw 16-bit samples. */
#include <errno.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"

enum { shapes = 4, windowLen = 64, numbers = 1000000, bins = 80, chirpLen = 64000 };

static const double betas[shapes] = {2, 5, 8.6, 14};

/* The level of a sum of samples at a frequency in cycles per sample, cut off at -160 dB. */
static double levelAt(const Tarn64f* samples, int len, double freq)
{
    const double turn = 2 * 3.14159265358979323846 * freq;
    double re = 0;
    double im = 0;
    double magnitude;
    int n;

    for (n = 0; n < len; ++n) {
        re += samples[n] * cos(turn * n);
        im -= samples[n] * sin(turn * n);
    }
    magnitude = sqrt(re * re + im * im);
    return magnitude > 1e-8 ? 20 * log10(magnitude) : -160;
}

static int printKaiser(int asSpectra)
{
    static Tarn64f windows[shapes][windowLen];
    const int rows = asSpectra ? 601 : windowLen;
    int row;
    int shape;

    for (shape = 0; shape < shapes; ++shape) {
        Tarn64f* const w = windows[shape];
        TarnStatus status = tarnsSet_64f(1, w, windowLen);

        /* The shape that books call beta is alpha times half the number of intervals. */
        if (status == tarnStsNoErr)
            status = tarnsWinKaiser_64f_I(w, windowLen, (Tarn32f)(2 * betas[shape] / (windowLen - 1)));
        if (status == tarnStsNoErr && asSpectra) {
            Tarn64f sum = 0;

            status = tarnsSum_64f(w, windowLen, &sum);
            if (status == tarnStsNoErr)
                status = tarnsMulC_64f_I(1 / sum, w, windowLen);
        }
        if (status != tarnStsNoErr)
            return succeeded("tarns", status);
    }
    for (row = 0; row < rows; ++row) {
        const double bin = row * 15.0 / 600;

        printf("%g", asSpectra ? bin : row);
        for (shape = 0; shape < shapes; ++shape)
            printf(" %.5f", asSpectra ? levelAt(windows[shape], windowLen, bin / windowLen) : windows[shape][row]);
        printf("\n");
    }
    return 1;
}

/* Adds one to the bin of every number, from -4 to 4. */
static void count(const Tarn32f* x, int len, int* counts)
{
    int n;

    for (n = 0; n < len; ++n) {
        const int bin = (int)floor((x[n] + 4) * bins / 8);

        if (bin >= 0 && bin < bins)
            ++counts[bin];
    }
}

static int printHistogram(void)
{
    static int uniformCounts[bins];
    static int normalCounts[bins];
    Tarn32f* const x = tarnsMalloc_32f(numbers);
    unsigned int seed = 1;
    TarnStatus status;
    int bin;

    if (x == NULL)
        return fail("numbers", "no memory");
    status = tarnsRandUniform_Direct_32f(x, numbers, -1, 1, &seed);
    count(x, numbers, uniformCounts);
    if (status == tarnStsNoErr)
        status = tarnsRandGauss_Direct_32f(x, numbers, 0, 1, &seed);
    count(x, numbers, normalCounts);
    tarnsFree(x);
    if (status != tarnStsNoErr)
        return succeeded("tarns", status);
    for (bin = 0; bin < bins; ++bin) {
        const double width = 8.0 / bins;
        const double middle = -4 + (bin + 0.5) * width;
        const double expected = exp(-middle * middle / 2) / sqrt(2 * 3.14159265358979323846);

        printf("%.3f %.5f %.5f %.5f\n", middle, uniformCounts[bin] / (numbers * width),
               normalCounts[bin] / (numbers * width), expected);
    }
    return 1;
}

static int writeChirp(void)
{
    static Tarn16s samples[chirpLen];
    const TarnStatus status = tarnsVectorJaehne_16s(samples, chirpLen, 20000);

    if (status != tarnStsNoErr)
        return succeeded("tarns", status);
    return fwrite(samples, sizeof samples[0], chirpLen, stdout) == chirpLen || fail("output", strerror(errno));
}

static int parseOperands(int argc, char** argv, const char** operands)
{
    const Program program = {
        "signals",
        "weights|spectra|histogram|chirp",
        "Prints tables for a plotting program, or writes a chirp.\n\n"
        "  weights    64 weights of Kaiser windows, one column for each shape: 2, 5, 8.6, 14\n"
        "  spectra    their levels in dB over frequency in bins\n"
        "  histogram  how often 1000000 uniform numbers from -1 to 1, and as many normal ones of\n"
        "             deviation 1, fall into bins of 0.1, over what is expected of them\n"
        "  chirp      4 seconds of the Jaehne signal at 16000 samples a second, as headerless 16-bit\n"
        "             samples in the order of this machine\n",
        NULL,
        0,
        1,
        1};

    return parseArguments(&program, argc, argv, operands);
}

int main(int argc, char** argv)
{
    const char* mode;
    int ok;

    parseOperands(argc, argv, &mode);
    if (strcmp(mode, "weights") == 0)
        ok = printKaiser(0);
    else if (strcmp(mode, "spectra") == 0)
        ok = printKaiser(1);
    else if (strcmp(mode, "histogram") == 0)
        ok = printHistogram();
    else if (strcmp(mode, "chirp") == 0)
        ok = writeChirp();
    else
        ok = fail(mode, "neither weights nor spectra nor histogram nor chirp");
    return ok && outputArrived() ? EXIT_SUCCESS : EXIT_FAILURE;
}
