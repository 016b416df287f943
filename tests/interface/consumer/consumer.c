/* Uses an installed tarns from C. */
#include <stdio.h>
#include <string.h>

#include <tarns.h>

int main(void)
{
    const Tarn16s a[3] = {30000, 1, 5};
    const Tarn16s b[3] = {30000, 2, -8};
    const Tarn16s expected[3] = {32767, 3, -3};
    Tarn16s* sum = tarnsMalloc_16s(3);
    TarnStatus status;
    int failed;

    if (sum == NULL) {
        fputs("no memory\n", stderr);
        return 1;
    }
    status = tarnsAdd_16s_Sfs(a, b, sum, 3, 0);
    failed = status != tarnStsNoErr || memcmp(sum, expected, sizeof expected) != 0;
    tarnsFree(sum);
    printf("C: %s: %s\n", failed ? "wrong" : "right", tarnGetStatusString(status));
    return failed;
}
