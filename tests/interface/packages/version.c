/* Prints the version of the library that the program got. */
#include <stdio.h>
#include <tarncore.h>

int main(void)
{
    const TarnLibraryVersion* version = tarnsGetLibVersion();
    printf("%d.%d.%d.%d", version->major, version->minor, version->majorBuild, version->build);
    return 0;
}
