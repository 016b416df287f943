// Plain loops beside normalization, joining and sampling.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void normalizeLoop(const Tarn32f* src, Tarn32f* dst, int len, Tarn32f vSub, Tarn32f vDiv);
void normalizeLoop(const Tarn16s* src, Tarn16s* dst, int len, Tarn16s vSub, int vDiv, int scaleFactor);
void joinLoop(const Tarn32f* const* src, int nChannels, int chanLen, Tarn16s* dst);
void sampleDownLoop(const Tarn16s* src, int srcLen, Tarn16s* dst, int factor, int phase);
void sampleDownLoop(const Tarn32f* src, int srcLen, Tarn32f* dst, int factor, int phase);
void sampleUpLoop(const Tarn16s* src, int srcLen, Tarn16s* dst, int factor, int phase);
void sampleUpLoop(const Tarn32f* src, int srcLen, Tarn32f* dst, int factor, int phase);

} // namespace tarn::bench
