// The lines of wavelet filters, by which a block goes on where the last one ended.
#pragma once

#include "frame/delay_line.h"
#include "levels/coding/pswt_state.h"

#include <cstddef>

namespace tarn {

// Answers with the window of the line's newest samples.
TARN_INLINE const Tarn32f* enterSample(CircularLine& line, Tarn32f sample)
{
    return enterSample(line.pBuffer, line.pos, line.len, sample);
}

// Any number of samples, the oldest first.
inline void enterSamples(CircularLine& line, const Tarn32f* src, std::ptrdiff_t count)
{
    if (count < line.len) {
        for (std::ptrdiff_t i = 0; i < count; ++i) {
            enterSample(line, loadElement(src + i));
        }
        return;
    }
    copy(src + (count - line.len), line.pBuffer, line.len);
    copy(src + (count - line.len), line.pBuffer + line.len, line.len);
    line.pos = 0;
}

// The sum of x[i] w[i] in double precision, rounded once.
inline Tarn32f wideDotProduct(const Tarn32f* x, const Tarn32f* w, int len)
{
    Tarn64f sum = 0;
    for (int i = 0; i < len; ++i) {
        sum += static_cast<Tarn64f>(x[i]) * static_cast<Tarn64f>(w[i]);
    }
    return static_cast<Tarn32f>(sum);
}

} // namespace tarn
