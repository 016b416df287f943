#include "psmedian_peer.h"

#include <algorithm>
#include <vector>

namespace tarn::bench {

template <class T>
void nthElementLoop(const T* src, T* dst, int len, int maskSize)
{
    const int half = maskSize / 2;
    std::vector<T> window(static_cast<std::size_t>(maskSize));
    std::copy_n(src, half, dst);
    for (int n = half; n < len - half; ++n) {
        std::copy_n(src + n - half, maskSize, window.begin());
        std::nth_element(window.begin(), window.begin() + half, window.end());
        dst[n] = window[static_cast<std::size_t>(half)];
    }
    std::copy_n(src + len - half, half, dst + len - half);
}
template void nthElementLoop(const Tarn8u*, Tarn8u*, int, int);
template void nthElementLoop(const Tarn16s*, Tarn16s*, int, int);
template void nthElementLoop(const Tarn32s*, Tarn32s*, int, int);
template void nthElementLoop(const Tarn32f*, Tarn32f*, int, int);
template void nthElementLoop(const Tarn64f*, Tarn64f*, int, int);

} // namespace tarn::bench
