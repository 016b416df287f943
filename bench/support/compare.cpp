// The state of the processor that a measurement starts from.
#include "support/compare.h"

#include <array>

namespace tarn::bench::detail {

void forgetWideRegisters()
{
#if defined(__i386__) || defined(__x86_64__)
    if (!__builtin_cpu_supports("avx"))
        return;
    // An image of 512 bytes and a header: zeroes there say that each component has its initial state. The control
    // register of the vector unit is loaded with them, so it is stored first.
    struct alignas(64) Image {
        std::array<unsigned char, 24> before;
        unsigned control;
        std::array<unsigned char, 4096 - 28> rest;
    };
    static Image image;
    asm volatile("stmxcsr %0" : "=m"(image.control));
    const unsigned upperParts = 0xe4; // of the 256-bit registers, the 512-bit ones, and the masks
    asm volatile("xrstor %0" : : "m"(image), "a"(upperParts), "d"(0) : "memory");
#endif
}

} // namespace tarn::bench::detail
