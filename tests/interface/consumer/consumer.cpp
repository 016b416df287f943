// Uses an installed tarns from C++.
#include <cstdio>
#include <limits>
#include <vector>

#include <tarns.h>

int main()
{
    std::vector<Tarn32f> data = {1.0F, -2.5F, 0.25F};
    const std::vector<Tarn32f> expected = {2.0F, -1.5F, 1.25F};
    const TarnStatus status = tarnsAddC_32f_I(1.0F, data.data(), static_cast<int>(data.size()));
    // A data object must be reachable as well as the functions.
    const bool right =
        status == tarnStsNoErr && data == expected && tarnConstantOfINF_32f == std::numeric_limits<Tarn32f>::infinity();
    std::printf("C++: %s: %s\n", right ? "right" : "wrong", tarnGetStatusString(status));
    return right ? 0 : 1;
}
