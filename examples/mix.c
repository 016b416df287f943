/* Mixes two 16-bit recordings: raw PCM in, raw PCM out. With scale factor 0 the sum saturates where it is too loud;
   with scale factor 1 it is halved, rounded, and never clips. */
#include <errno.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <tarns.h>

typedef struct {
    Tarn16s* samples;
    int len;
} Recording;

static const char usage[] = "usage: mix [--help] FIRST SECOND MIXED [SCALE]\n"
                            "\n"
                            "Adds the recordings FIRST and SECOND, divides by 2 to the power SCALE (0 when not\n"
                            "given), rounds to nearest and saturates. All files are headerless signed 16-bit\n"
                            "PCM in the machine's byte order, at the same rate and with the same channels.\n"
                            "Where one recording is longer, its end is mixed with silence.\n";

static int fail(const char* file, const char* reason)
{
    fprintf(stderr, "mix: %s: %s\n", file, reason);
    return 0;
}

/* Reads what follows in the open file; the number of samples comes from its size. */
static int readSamples(FILE* file, const char* name, Recording* recording)
{
    long bytes;

    /* A directory opens and even has a size, but does not read. */
    if (fgetc(file) == EOF)
        return fail(name, ferror(file) ? strerror(errno) : "empty");
    if (fseek(file, 0, SEEK_END) != 0 || (bytes = ftell(file)) < 0 || fseek(file, 0, SEEK_SET) != 0)
        return fail(name, strerror(errno));
    if (bytes % (long)sizeof(Tarn16s) != 0)
        return fail(name, "not 16-bit PCM: its size is odd");
    if (bytes / (long)sizeof(Tarn16s) > INT_MAX / (int)sizeof(Tarn16s))
        return fail(name, "too long");

    recording->len = (int)(bytes / (long)sizeof(Tarn16s));
    recording->samples = tarnsMalloc_16s(recording->len);
    if (recording->samples == NULL)
        return fail(name, "no memory");
    if (fread(recording->samples, sizeof(Tarn16s), (size_t)recording->len, file) != (size_t)recording->len)
        return fail(name, ferror(file) ? strerror(errno) : "shrank while it was read");
    return 1;
}

static int readRecording(const char* name, Recording* recording)
{
    FILE* file = fopen(name, "rb");
    int ok;

    if (file == NULL)
        return fail(name, strerror(errno));
    ok = readSamples(file, name, recording);
    fclose(file);
    return ok;
}

static int writeRecording(const char* name, const Recording* recording)
{
    FILE* file = fopen(name, "wb");
    size_t written;

    if (file == NULL)
        return fail(name, strerror(errno));
    written = fwrite(recording->samples, sizeof(Tarn16s), (size_t)recording->len, file);
    if (fclose(file) != 0 || written != (size_t)recording->len)
        return fail(name, strerror(errno));
    return 1;
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
    if (status != tarnStsNoErr)
        return fail("mixed recording", tarnGetStatusString(status));
    return 1;
}

static int parseScale(const char* text, int* scaleFactor)
{
    char* end;
    long value;

    errno = 0;
    value = strtol(text, &end, 10);
    if (end == text || *end != '\0' || errno != 0 || value < INT_MIN || value > INT_MAX)
        return fail(text, "the scale must be an integer");
    *scaleFactor = (int)value;
    return 1;
}

int main(int argc, char** argv)
{
    Recording a = {NULL, 0};
    Recording b = {NULL, 0};
    Recording mixed = {NULL, 0};
    int scaleFactor = 0;
    int ok;

    if (argc == 2 && strcmp(argv[1], "--help") == 0) {
        fputs(usage, stdout);
        return EXIT_SUCCESS;
    }
    if (argc != 4 && argc != 5) {
        fputs(usage, stderr);
        return EXIT_FAILURE;
    }

    ok = (argc == 4 || parseScale(argv[4], &scaleFactor)) && readRecording(argv[1], &a) && readRecording(argv[2], &b) &&
         mix(&a, &b, &mixed, scaleFactor) && writeRecording(argv[3], &mixed);
    tarnsFree(a.samples);
    tarnsFree(b.samples);
    tarnsFree(mixed.samples);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
