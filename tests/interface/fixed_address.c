/* A program at a fixed address that takes the addresses of a function and of a kernel, and calls them. */
#include <tarns.h>

typedef void Kernel(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);
typedef TarnStatus Function(const Tarn32f* pSrc1, const Tarn32f* pSrc2, Tarn32f* pDst, int len);

Kernel ownsAdd_32f;

/* Initialised by the linker, not by code. */
Kernel* volatile kernel = ownsAdd_32f;
Function* volatile function = tarnsAdd_32f;

int main(void)
{
    const Tarn32f a[] = {1, 2, 3};
    Tarn32f viaKernel[3] = {0};
    Tarn32f viaFunction[3] = {0};
    kernel(a, a, viaKernel, 3);
    const TarnStatus status = function(a, a, viaFunction, 3);
    return status == tarnStsNoErr && viaKernel[2] == 6 && viaFunction[2] == 6 ? 0 : 1;
}
