// The version record. The build says which level it is for.
#include "tarncore.h"

static const TarnLibraryVersion s_LibVer = {
    .major = 4,
    .minor = 0,
    .majorBuild = 19,
    .build = 77,
    .targetCpu = TARNS_LEVEL_MARK,
    .name = "libtarns" TARNS_LEVEL_MARK ".so",
    .version = "v4.0",
    .buildDate = "Oct 16 2003",
};

const TarnLibraryVersion* tarnsGetLibVersion(void) { return &s_LibVer; }
