/* Recordings for the example programs, by libsndfile where that was there at the build. */
#define _POSIX_C_SOURCE 200809L

#include "sound.h"

#include "program.h"

#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

#ifdef EXAMPLES_SNDFILE
#include <sndfile.h>
#else
typedef struct SNDFILE_tag SNDFILE;
#endif

enum { headerBytes = 12 };

struct Sound {
    const char* name;
    FILE* file;
    FILE* target;                    /* of an output; where it has a header, the file is a temporary one */
    SNDFILE* decoded;                /* null for headerless samples */
    unsigned char head[headerBytes]; /* read already, to see what it is */
    size_t headLen;
    size_t headTaken;
    double rate;
    double samples;
    time_t begun;
    time_t shown;
};

/* -- Headers ------------------------------------------------------------------------------------------------------- */

static int hasHeader(const Sound* sound)
{
    static const char* const marks[] = {"RIFF", "RIFX", "RF64", "FORM", "fLaC", "OggS", ".snd", "caff"};
    size_t i;

    for (i = 0; i < sizeof marks / sizeof marks[0]; ++i) {
        if (sound->headLen == headerBytes && memcmp(sound->head, marks[i], 4) == 0)
            return 1;
    }
    return 0;
}

#ifdef EXAMPLES_SNDFILE
/* Decoders want to go back and forth, which a pipe cannot: its contents go to a temporary file first. */
static int makeSeekable(Sound* sound)
{
    static char bytes[65536];
    FILE* copy;
    size_t got;

    if (fseek(sound->file, 0, SEEK_SET) == 0)
        return 1;
    copy = tmpfile();
    if (copy == NULL)
        return fail("temporary file", strerror(errno));
    got = fwrite(sound->head, 1, sound->headLen, copy);
    while (got > 0 && (got = fread(bytes, 1, sizeof bytes, sound->file)) > 0)
        got = fwrite(bytes, 1, got, copy);
    if (ferror(sound->file) || fflush(copy) != 0 || fseek(copy, 0, SEEK_SET) != 0) {
        fclose(copy);
        return fail(sound->name, strerror(errno));
    }
    if (sound->file != stdin)
        fclose(sound->file);
    sound->file = copy;
    return 1;
}

static int openDecoder(Sound* sound, double* rate)
{
    SF_INFO info = {0};
    char reason[120];

    if (!makeSeekable(sound) || lseek(fileno(sound->file), 0, SEEK_SET) < 0)
        return fail(sound->name, strerror(errno));
    sound->decoded = sf_open_fd(fileno(sound->file), SFM_READ, &info, 0);
    if (sound->decoded == NULL)
        return fail(sound->name, sf_strerror(NULL));
    if (info.channels != 1) {
        snprintf(reason, sizeof reason, "%d channels, and one is wanted: sox IN OUT remix -", info.channels);
        return fail(sound->name, reason);
    }
    sf_command(sound->decoded, SFC_SET_SCALE_FLOAT_INT_READ, NULL, SF_TRUE);
    sf_command(sound->decoded, SFC_SET_CLIPPING, NULL, SF_TRUE);
    *rate = info.samplerate;
    return 1;
}
#else
static int openDecoder(Sound* sound, double* rate)
{
    (void)rate;
    return fail(sound->name, "a sound file, and this program was built without libsndfile: sox IN -t raw OUT");
}
#endif

/* -- Reading ------------------------------------------------------------------------------------------------------- */

static Sound* newSound(const char* soundName, FILE* file)
{
    Sound* const sound = calloc(1, sizeof *sound);

    if (sound == NULL || file == NULL) {
        fail(soundName, strerror(errno));
        free(sound);
        return NULL;
    }
    sound->name = soundName;
    sound->file = file;
    sound->begun = sound->shown = time(NULL);
    return sound;
}

Sound* openSound(const char* path, double* rate)
{
    Sound* const sound = path != NULL ? newSound(path, fopen(path, "rb")) : newSound("input", stdin);

    if (sound == NULL)
        return NULL;
    sound->headLen = fread(sound->head, 1, headerBytes, sound->file);
    if (hasHeader(sound) && !openDecoder(sound, rate)) {
        closeSound(sound);
        return NULL;
    }
    sound->rate = *rate;
    return sound;
}

/* Long work shows that it goes on, where somebody may look. */
static void showProgress(Sound* sound)
{
    const time_t now = time(NULL);

    if (now == sound->shown || now - sound->begun < 2 || !isatty(STDERR_FILENO))
        return;
    fprintf(stderr, "\r%s: %.0f seconds of sound ", programName(), sound->samples / sound->rate);
    sound->shown = now;
}

static void hideProgress(const Sound* sound)
{
    if (sound->shown != sound->begun)
        fprintf(stderr, "\r%60s\r", "");
}

/* fread ends within a sample only at the end of the input. */
static int readHeaderless(Sound* sound, Tarn16s* samples, int count)
{
    const size_t wanted = (size_t)count * sizeof *samples;
    size_t bytes = sound->headLen - sound->headTaken;

    if (bytes > wanted)
        bytes = wanted;
    memcpy(samples, sound->head + sound->headTaken, bytes);
    sound->headTaken += bytes;
    bytes += fread((char*)samples + bytes, 1, wanted - bytes, sound->file);
    if (ferror(sound->file))
        return fail(sound->name, strerror(errno)) - 1;
    if (bytes % sizeof *samples != 0)
        return fail(sound->name, "not 16-bit PCM: its last sample is cut in two") - 1;
    return (int)(bytes / sizeof *samples);
}

int readSound(Sound* sound, Tarn16s* samples, int count)
{
    int got;

#ifdef EXAMPLES_SNDFILE
    if (sound->decoded != NULL) {
        got = (int)sf_read_short(sound->decoded, samples, count);
        if (sf_error(sound->decoded) != SF_ERR_NO_ERROR)
            return fail(sound->name, sf_strerror(sound->decoded)) - 1;
    } else
#endif
        got = readHeaderless(sound, samples, count);
    if (got > 0)
        sound->samples += got;
    showProgress(sound);
    return got;
}

int readFloats(Sound* sound, Tarn32f* samples, int count)
{
    enum { piece = 4096 };
    static Tarn16s words[piece];
    int got = 0;
    int wanted;
    int found;

    tarnsZero_32f(samples, count);
    do {
        wanted = count - got < piece ? count - got : piece;
        found = readSound(sound, words, wanted);
        if (found > 0) {
            tarnsConvert_16s32f_Sfs(words, samples + got, found, 15);
            got += found;
        }
    } while (found == wanted && got < count);
    return found < 0 ? found : got;
}

Tarn16s* readWholeSound(Sound* sound, int* len)
{
    enum { longest = 0x1fffffff };
    Tarn16s* samples = NULL;
    int room = 0;
    int got = 1;

    *len = 0;
    while (got > 0) {
        if (*len == room) {
            const int more = room <= longest / 2 ? 2 * room + 65536 : 0;
            Tarn16s* const longer = more != 0 ? tarnsMalloc_16s(more) : NULL;

            if (longer != NULL && room > 0)
                tarnsCopy_16s(samples, longer, room);
            tarnsFree(samples);
            samples = longer;
            if (samples == NULL) {
                fail(sound->name, "too long");
                return NULL;
            }
            room = more;
        }
        got = readSound(sound, samples + *len, room - *len);
        if (got > 0)
            *len += got;
    }
    if (got == 0 && *len > 0)
        return samples;
    if (got == 0)
        fail(sound->name, "empty");
    tarnsFree(samples);
    return NULL;
}

/* -- Writing ------------------------------------------------------------------------------------------------------- */

Sound* makeSound(const char* path, const Sound* like, double rate)
{
    FILE* const target = path != NULL ? fopen(path, "wb") : stdout;
    Sound* const sound = newSound(path != NULL ? path : "output", target);

    if (sound == NULL)
        return NULL;
    sound->target = target;
    sound->rate = rate;
#ifdef EXAMPLES_SNDFILE
    if (like->decoded != NULL) {
        SF_INFO info = {0};
        FILE* const file = tmpfile();

        info.samplerate = (int)rate;
        info.channels = 1;
        info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
        if (file != NULL)
            sound->file = file;
        sound->decoded = file != NULL ? sf_open_fd(fileno(file), SFM_WRITE, &info, 0) : NULL;
        if (sound->decoded == NULL) {
            fail(sound->name, file != NULL ? sf_strerror(NULL) : strerror(errno));
            closeSound(sound);
            return NULL;
        }
    }
#else
    (void)like;
#endif
    return sound;
}

int writeSound(Sound* sound, const Tarn16s* samples, int count)
{
#ifdef EXAMPLES_SNDFILE
    if (sound->decoded != NULL)
        return sf_write_short(sound->decoded, samples, count) == count ||
               fail(sound->name, sf_strerror(sound->decoded));
#endif
    return fwrite(samples, sizeof *samples, (size_t)count, sound->file) == (size_t)count ||
           fail(sound->name, strerror(errno));
}

#ifdef EXAMPLES_SNDFILE
/* A header tells the length, so that the file could not be written to a pipe from the start. */
static int copyToTarget(const Sound* sound)
{
    static char bytes[65536];
    size_t got;

    rewind(sound->file);
    while ((got = fread(bytes, 1, sizeof bytes, sound->file)) > 0) {
        if (fwrite(bytes, 1, got, sound->target) != got)
            return fail(sound->name, strerror(errno));
    }
    return !ferror(sound->file) || fail(sound->name, strerror(errno));
}
#endif

static int closeFile(FILE* file, const char* fileName)
{
    const int arrived = file == stdout ? fflush(file) == 0 && !ferror(file) : file == stdin || fclose(file) == 0;

    return arrived || fail(fileName, strerror(errno));
}

int closeSound(Sound* sound)
{
    int ok = 1;

    if (sound == NULL)
        return 1;
    hideProgress(sound);
#ifdef EXAMPLES_SNDFILE
    if (sound->decoded != NULL) {
        ok = sf_close(sound->decoded) == 0 || fail(sound->name, "cannot be ended");
        if (ok && sound->target != NULL)
            ok = copyToTarget(sound);
    }
#endif
    if (sound->target != NULL && sound->target != sound->file)
        ok = closeFile(sound->target, sound->name) && ok;
    ok = closeFile(sound->file, sound->name) && ok;
    free(sound);
    return ok;
}
