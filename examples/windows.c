/* Prints tables for a plotting program: the weights of the windows, the spectra that they have, or the response of a
   designed band-pass filter with each of them. */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"

enum { windowCount = 4, longest = 100000 };

static TarnStatus applyWindow(int window, Tarn64f* samples, int len)
{
    switch (window) {
    case 0:
        return tarnsWinBartlett_64f_I(samples, len);
    case 1:
        return tarnsWinHann_64f_I(samples, len);
    case 2:
        return tarnsWinHamming_64f_I(samples, len);
    default:
        return tarnsWinBlackmanStd_64f_I(samples, len);
    }
}

static const int designWindows[windowCount] = {tarnWinBartlett, tarnWinHann, tarnWinHamming, tarnWinBlackman};

/* The level of a sum of samples at a frequency in cycles per sample, cut off at -140 dB. */
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
    return magnitude > 1e-7 ? 20 * log10(magnitude) : -140;
}

static void printWeights(Tarn64f* const columns[], int len)
{
    int n;
    int window;

    for (n = 0; n < len; ++n) {
        printf("%d", n);
        for (window = 0; window < windowCount; ++window)
            printf(" %.5f", columns[window][n]);
        printf("\n");
    }
}

/* Levels from `first` to `last`, frequencies in cycles per sample, told in units of `unit`. */
static void printLevels(Tarn64f* const columns[], int len, double last, double unit)
{
    const int points = 400;
    int k;
    int window;

    for (k = 0; k <= points; ++k) {
        const double freq = last * k / points;

        printf("%.4f", freq * unit);
        for (window = 0; window < windowCount; ++window)
            printf(" %.2f", levelAt(columns[window], len, freq));
        printf("\n");
    }
}

/* Windows over ones, for spectra over ones that sum up to 1; or filters. */
static int fillColumns(const char* mode, Tarn64f* const columns[], int len)
{
    int window;

    for (window = 0; window < windowCount; ++window) {
        Tarn64f* const column = columns[window];
        TarnStatus status;

        if (strcmp(mode, "filter") == 0) {
            status = tarnsFIRGenBandpass_64f(300.0 / 8000, 3400.0 / 8000, column, len, designWindows[window], 1);
        } else {
            int n;

            for (n = 0; n < len; ++n)
                column[n] = 1;
            status = applyWindow(window, column, len);
            if (status == tarnStsNoErr && strcmp(mode, "spectra") == 0) {
                double sum = 0;

                for (n = 0; n < len; ++n)
                    sum += column[n];
                for (n = 0; n < len; ++n)
                    column[n] /= sum;
            }
        }
        if (!succeeded(mode, status))
            return 0;
    }
    return 1;
}

static int parseOperands(int argc, char** argv, const char** operands)
{
    const Program program = {"windows",
                             "weights|spectra|filter [LENGTH]",
                             "Prints a table with one column for each of Bartlett, Hann, Hamming and Blackman:\n\n"
                             "  weights  the LENGTH weights\n"
                             "  spectra  level in dB over frequency in bins, of windows of LENGTH elements\n"
                             "  filter   level in dB over frequency in Hz, of filters of LENGTH taps that pass\n"
                             "           300 to 3400 Hz at 8000 samples per second\n\n"
                             "LENGTH is 4 to 100000, 64 when not given; for filters 5 to 100000, 128 when not given.\n",
                             NULL,
                             0,
                             1,
                             2};

    return parseArguments(&program, argc, argv, operands);
}

int main(int argc, char** argv)
{
    Tarn64f* columns[windowCount] = {NULL, NULL, NULL, NULL};
    const char* operands[2];
    const int count = parseOperands(argc, argv, operands);
    const char* const mode = operands[0];
    const int isFilter = strcmp(mode, "filter") == 0;
    int len = isFilter ? 128 : 64;
    int window;
    int ok = isFilter || strcmp(mode, "weights") == 0 || strcmp(mode, "spectra") == 0 ||
             fail(mode, "neither weights nor spectra nor filter");

    if (ok && count == 2)
        len = parseWhole("LENGTH", operands[1], isFilter ? 5 : 4, longest);
    for (window = 0; window < windowCount && ok; ++window) {
        columns[window] = tarnsMalloc_64f(len);
        ok = columns[window] != NULL || fail(mode, "no memory");
    }
    ok = ok && fillColumns(mode, columns, len);
    if (ok) {
        if (strcmp(mode, "weights") == 0)
            printWeights(columns, len);
        else if (strcmp(mode, "spectra") == 0)
            printLevels(columns, len, 10.0 / len, len);
        else
            printLevels(columns, len, 0.5, 8000);
        ok = outputArrived();
    }
    for (window = 0; window < windowCount; ++window)
        tarnsFree(columns[window]);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
