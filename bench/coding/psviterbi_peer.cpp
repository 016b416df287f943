#include "coding/psviterbi_peer.h"

namespace tarn::bench {
namespace {

inline int square(int a) { return a * a >> 4; }

} // namespace

void varPointLoop(const Tarn16sc* src, Tarn16sc* base, Tarn32u* errors, const Tarn8u* map, int states)
{
    const int dx = (src->re & 255) ^ 128;
    const int dy = (src->im & 255) ^ 128;
    *base = {static_cast<Tarn16s>(src->re - dx), static_cast<Tarn16s>(src->im - dy)};
    const int col = ((src->re - dx - 128) >> 8) + 258;
    const int row = ((src->im - dy - 128) >> 8) + 258;
    const int mask = states == 16 ? 3 : 7;
    const auto put = [&](int column, int line, int number, int error) {
        errors[map[(column & 3) + 4 * (line & 3)] & mask] = static_cast<Tarn32u>(error | number << 16);
    };
    put(col, row, 0, square(dx) + square(dy));
    put(col + 1, row, 1, square(256 - dx) + square(dy));
    put(col + 1, row + 1, 2, square(256 - dx) + square(256 - dy));
    put(col, row + 1, 3, square(dx) + square(256 - dy));
    if (states == 16)
        return;
    const int first[] = {square(dx) + square(512 - dy), square(256 - dx) + square(512 - dy),
                         square(512 - dx) + square(256 - dy), square(256 - dx) + square(dy + 256)};
    const int second[] = {square(dy) + square(512 - dx), square(dy) + square(dx + 256), square(dx) + square(dy + 256),
                          square(256 - dy) + square(dx + 256)};
    for (int i = 0; i < 4; ++i) {
        const bool isFirst = first[i] < second[i];
        const int column = col + (i == 1 || i == 2 ? 1 : 0);
        put(column, row + 2 + i / 2, isFirst ? 4 + i : 8 + i, isFirst ? first[i] : second[i]);
    }
}

void symbolTableLoop(const Tarn32u* errors, Tarn32u* table, int states)
{
    const int entries = states / 2;
    for (int i = 0; i < entries; ++i) {
        int best = 65536;
        Tarn32u code = 0;
        const auto consider = [&](int a, int b) {
            const auto error = static_cast<Tarn16s>(errors[a] + errors[8 + b]);
            if (error < best) {
                best = error;
                code = errors[a] >> 16 | errors[8 + b] >> 16 << 8;
            }
        };
        const auto considerEight = [&](int k) {
            const int a = k >> 2;
            const int b = (k + a) & 3;
            consider(a, b);
            consider((a + 4) & 7, b + 4);
        };
        if (states == 16) {
            const int a = i >> 2;
            const int b = (i + a) & 3;
            consider(a, b);
            consider((a + 2) & 3, (b + 2) & 3);
        } else if (states == 32) {
            const int k = i + 2 * (i & 8);
            considerEight(k ^ 8);
            considerEight(k);
        } else {
            considerEight(i);
        }
        table[i] = static_cast<Tarn32u>(best) << 16 | code;
    }
}

void calcStatesLoop(const Tarn16u* metrics, const Tarn8u* next, Tarn16u* newMetrics, const Tarn32u* table,
                    Tarn32u* survivors, int states)
{
    const int branches = states / 4;
    for (int s = 0; s < states; ++s) {
        for (int j = 0; j < branches; ++j) {
            const Tarn32u entry = table[(s & 1) + 2 * j];
            const int candidate = metrics[s] + static_cast<Tarn16s>(entry >> 16);
            const int t = next[s * branches + j];
            if (candidate < newMetrics[t]) {
                newMetrics[t] = static_cast<Tarn16u>(candidate);
                survivors[t] = static_cast<Tarn32u>(s) << 16 | (entry & 0xFFFF);
            }
        }
    }
}

void updateMetricsLoop(Tarn16u* newMetrics, Tarn16u* minimum, Tarn8u* state, Tarn16u* metrics, int states)
{
    int best = 0;
    for (int i = 1; i < states; ++i)
        if (newMetrics[i] < newMetrics[best])
            best = i;
    const Tarn16u smallest = newMetrics[best];
    for (int i = 0; i < states; ++i) {
        metrics[i] = static_cast<Tarn16u>(newMetrics[i] - smallest);
        newMetrics[i] = 65535;
    }
    *minimum = smallest;
    *state = static_cast<Tarn8u>(best);
}

} // namespace tarn::bench
