// The version record.
#include "tarncore.h"

static const TarnLibraryVersion s_LibVer = {
    .major = 4,
    .minor = 0,
    .majorBuild = 19,
    .build = 77,
    .targetCpu = {'t', '7', 0, 0},
    .name = "libtarnst7.so",
    .version = "v4.0",
    .buildDate = "Oct 16 2003",
};

const TarnLibraryVersion* tarnsGetLibVersion(void) { return &s_LibVer; }
