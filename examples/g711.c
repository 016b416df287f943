/* Codes a recording in A-law or mu-law, decodes it, or goes from one law to the other: from standard input to standard
   output, in blocks, so that it serves as a part of a pipe. */
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "program.h"
#include "sound.h"

enum { blockLen = 8192 };

/* In the order of their names. */
enum { linear, aLaw, muLaw };

static const char* const formats[] = {"linear", "a-law", "mu-law", NULL};

typedef struct {
    int from;
    int to;
} Options;

static void parseOptions(int argc, char** argv, Options* o)
{
    const Option options[] = {
        {choiceOption, "--from", "FORMAT", "linear, a-law or mu-law", &o->from, 0, 0, formats},
        {choiceOption, "--to", "FORMAT", "linear, a-law or mu-law", &o->to, 0, 0, formats},
    };
    const Program program = {"g711",
                             "[OPTION VALUE]... <IN >OUT",
                             "Codes and decodes the 8-bit sound of telephones, one byte a sample. What is\n"
                             "linear goes out as headerless signed 16-bit PCM in the machine's byte order, and\n"
                             "comes in as that or as a sound file of one channel.\n",
                             options,
                             sizeof options / sizeof options[0],
                             0,
                             0};

    parseArguments(&program, argc, argv, NULL);
}

static int writeAll(const void* elements, size_t size, int count)
{
    return fwrite(elements, size, (size_t)count, stdout) == (size_t)count || fail("output", strerror(errno));
}

static int encodeSound(Sound* in, int law)
{
    static Tarn16s samples[blockLen];
    static Tarn8u codes[blockLen];
    int count;

    while ((count = readSound(in, samples, blockLen)) > 0) {
        const TarnStatus status =
            law == aLaw ? tarnsLinToALaw_16s8u(samples, codes, count) : tarnsLinToMuLaw_16s8u(samples, codes, count);

        if (!succeeded("coding", status) || !writeAll(codes, sizeof codes[0], count))
            return 0;
    }
    return count == 0;
}

/* One block of codes, to samples or in place to the other law. */
static int convertCodes(const Options* options, Tarn8u* codes, int count)
{
    static Tarn16s samples[blockLen];
    TarnStatus status;

    if (options->to == linear) {
        status = options->from == aLaw ? tarnsALawToLin_8u16s(codes, samples, count)
                                       : tarnsMuLawToLin_8u16s(codes, samples, count);
        return succeeded("decoding", status) && writeAll(samples, sizeof samples[0], count);
    }
    status =
        options->from == aLaw ? tarnsALawToMuLaw_8u(codes, codes, count) : tarnsMuLawToALaw_8u(codes, codes, count);
    return succeeded("recoding", status) && writeAll(codes, sizeof codes[0], count);
}

static int convertStream(const Options* options)
{
    static Tarn8u codes[blockLen];
    size_t count;

    while ((count = fread(codes, sizeof codes[0], blockLen, stdin)) > 0) {
        if (!convertCodes(options, codes, (int)count))
            return 0;
    }
    return !ferror(stdin) || fail("input", strerror(errno));
}

int main(int argc, char** argv)
{
    Options options = {linear, aLaw};
    double rate = 8000; /* of no consequence here */
    int ok;

    parseOptions(argc, argv, &options);
    if (options.from == options.to) {
        ok = fail("--to", "the format that it has already");
    } else if (options.from == linear) {
        Sound* const in = openSound(NULL, &rate);

        ok = in != NULL && encodeSound(in, options.to);
        closeSound(in);
    } else {
        ok = convertStream(&options);
    }
    return ok && outputArrived() ? EXIT_SUCCESS : EXIT_FAILURE;
}
