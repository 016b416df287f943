/* Prints tables for a plotting program: the weights of the windows, the spectra that they have, or the response of a
   designed band-pass filter with each of them. */
#include <errno.h>
#include <limits.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tarns.h>

static const char usage[] = "usage: windows [--help] weights|spectra|filter [LENGTH]\n"
                            "\n"
                            "Prints a table with one column for each of Bartlett, Hann, Hamming and Blackman:\n"
                            "  weights   the LENGTH weights\n"
                            "  spectra   level in dB over frequency in bins, of windows of LENGTH elements\n"
                            "  filter    level in dB over frequency in Hz, of filters of LENGTH taps that pass\n"
                            "            300 to 3400 Hz at 8000 samples per second\n"
                            "LENGTH is 4 to 100000, 64 when not given; for filters 5 to 100000, 128 when not given.\n";

enum { windowCount = 4, longest = 100000 };

static int fail(const char* text, const char* reason)
{
    fprintf(stderr, "windows: %s: %s\n", text, reason);
    return EXIT_FAILURE;
}

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
        if (status != tarnStsNoErr)
            return fail(mode, tarnGetStatusString(status));
    }
    return EXIT_SUCCESS;
}

int main(int argc, char** argv)
{
    Tarn64f* columns[windowCount] = {NULL, NULL, NULL, NULL};
    const char* mode;
    long len;
    int shortest;
    int window;
    int result = EXIT_SUCCESS;

    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    if (argc < 2 || argc > 3) {
        fputs(usage, stderr);
        return EXIT_FAILURE;
    }
    mode = argv[1];
    if (strcmp(mode, "weights") != 0 && strcmp(mode, "spectra") != 0 && strcmp(mode, "filter") != 0)
        return fail(mode, "neither weights nor spectra nor filter");
    shortest = strcmp(mode, "filter") == 0 ? 5 : 4;
    len = strcmp(mode, "filter") == 0 ? 128 : 64;
    if (argc == 3) {
        char* end;

        errno = 0;
        len = strtol(argv[2], &end, 10);
        if (errno != 0 || end == argv[2] || *end != '\0' || len < shortest || len > longest)
            return fail(argv[2], shortest == 5 ? "the length must be 5 to 100000" : "the length must be 4 to 100000");
    }

    for (window = 0; window < windowCount && result == EXIT_SUCCESS; ++window) {
        columns[window] = tarnsMalloc_64f((int)len);
        if (columns[window] == NULL)
            result = fail(mode, "no memory");
    }
    if (result == EXIT_SUCCESS)
        result = fillColumns(mode, columns, (int)len);
    if (result == EXIT_SUCCESS) {
        if (strcmp(mode, "weights") == 0)
            printWeights(columns, (int)len);
        else if (strcmp(mode, "spectra") == 0)
            printLevels(columns, (int)len, 10.0 / (double)len, (double)len);
        else
            printLevels(columns, (int)len, 0.5, 8000);
        if (fflush(stdout) != 0 || ferror(stdout))
            result = fail("standard output", strerror(errno));
    }
    for (window = 0; window < windowCount; ++window)
        tarnsFree(columns[window]);
    return result;
}
