// What a string of bytes can drive: one family of states each.
#pragma once

#include "fuzz/states/bytes.h"

#include <vector>

namespace tarn::test::fuzz {

struct Target {
    const char* name;
    void (*run)(Bytes&);
};

/// All of them.
const std::vector<Target>& targets();

void driveFft(Bytes& bytes);
void driveDft(Bytes& bytes);
void driveDct(Bytes& bytes);
void driveHilbert(Bytes& bytes);
void driveFir(Bytes& bytes);
void driveFirRates(Bytes& bytes);
void driveIir(Bytes& bytes);
void driveLms(Bytes& bytes);
void driveWavelets(Bytes& bytes);
void driveRandom(Bytes& bytes);
void driveTones(Bytes& bytes);
void driveMedian(Bytes& bytes);
void driveGoertzel(Bytes& bytes);
void driveViterbi(Bytes& bytes);

} // namespace tarn::test::fuzz
