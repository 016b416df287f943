/* Recordings for the example programs: 16-bit samples of one channel, from a sound file or headerless, read and written
   piece by piece. */
#ifndef EXAMPLES_SOUND_H
#define EXAMPLES_SOUND_H

#include <tarns.h>

/* What the helps of the programs say of their input. */
#define SOUND_HELP                                                                               \
    "A recording is a sound file of one channel (WAV, FLAC, ...), or headerless signed 16-bit\n" \
    "PCM in the machine's byte order.\n"

#define SOUND_RATE_HELP "samples per second of headerless PCM"

typedef struct Sound Sound;

/* Opens a file, or the standard input for a null path. `rate` is that of headerless samples, and becomes that of the
   file if it tells one. Null after a message. */
Sound* openSound(const char* path, double* rate);

/* Up to `count` samples; less only at the end, -1 after a message. On a terminal it shows how far it has come, if that
   takes long. */
int readSound(Sound* sound, Tarn16s* samples, int count);

/* The same as floats of full scale 1, and zeros behind the last of them. */
int readFloats(Sound* sound, Tarn32f* samples, int count);

/* All samples that are left, for tarnsFree. Null after a message: there has to be at least one. */
Tarn16s* readWholeSound(Sound* sound, int* len);

/* A file to write, or the standard output for a null path, in the format that another sound has: with a header, that of
   WAV, if the other has one. Null after a message. */
Sound* makeSound(const char* path, const Sound* like, double rate);

int writeSound(Sound* sound, const Tarn16s* samples, int count);

/* Ends it; 0 after a message, if what was written did not arrive. A null sound is no sound. */
int closeSound(Sound* sound);

#endif
