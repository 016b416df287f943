#include "fuzz/states/targets.h"

#include <cstdio>
#include <cstdlib>

namespace tarn::test::fuzz {

const std::vector<Target>& targets()
{
    static const std::vector<Target> all = {
        {"fft", driveFft},           {"dft", driveDft},         {"dct", driveDct},     {"hilbert", driveHilbert},
        {"fir", driveFir},           {"firmr", driveFirRates},  {"iir", driveIir},     {"lms", driveLms},
        {"wavelets", driveWavelets}, {"random", driveRandom},   {"tones", driveTones}, {"median", driveMedian},
        {"goertzel", driveGoertzel}, {"viterbi", driveViterbi},
    };
    return all;
}

void require(bool condition, const char* reason)
{
    if (condition)
        return;
    std::fprintf(stderr, "fault: %s\n", reason);
    std::abort();
}

void requireWhole(const GuardedBytes& array)
{
    const std::string damage = array.redZoneDamage();
    require(damage.empty(), damage.c_str());
}

} // namespace tarn::test::fuzz
