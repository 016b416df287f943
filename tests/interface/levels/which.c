/* Prints which level of the library the program got: of the library that it was linked with, or of the file named. */
#include "tarncore.h"

#include <dlfcn.h>
#include <stdio.h>

typedef const TarnLibraryVersion* (*GetVersion)(void);

int main(int argc, char** argv)
{
    const TarnLibraryVersion* version = tarnsGetLibVersion();
    if (argc > 1) {
        void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
        void* symbol = library ? dlsym(library, "tarnsGetLibVersion") : NULL;
        if (!symbol) {
            fprintf(stderr, "%s\n", dlerror());
            return 1;
        }
        GetVersion get;
        *(void**)&get = symbol;
        version = get();
    }
    printf("%.4s %s", version->targetCpu, version->name);
    return 0;
}
