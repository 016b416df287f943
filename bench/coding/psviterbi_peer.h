// The steps of a Viterbi decoder in plain loops.
#pragma once

#include "tarncore.h"

namespace tarn::bench {

void varPointLoop(const Tarn16sc* src, Tarn16sc* base, Tarn32u* errors, const Tarn8u* map, int states);
void symbolTableLoop(const Tarn32u* errors, Tarn32u* table, int states);
void calcStatesLoop(const Tarn16u* metrics, const Tarn8u* next, Tarn16u* newMetrics, const Tarn32u* table,
                    Tarn32u* survivors, int states);
void updateMetricsLoop(Tarn16u* newMetrics, Tarn16u* minimum, Tarn8u* state, Tarn16u* metrics, int states);

} // namespace tarn::bench
