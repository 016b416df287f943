// Wavelet banks beside plain loops. The number of taps of each channel stands in the case's name; a size is that of the
// signal at its full rate.
#include "tarns.h"

#include "pswt_peer.h"
#include "support/compare.h"

#include <memory>
#include <string>
#include <vector>

namespace tarn::bench {
namespace {

constexpr int history = 64;

// Of no wavelet in particular: what they cost is the same.
std::vector<Tarn32f> someTaps(int taps, bool high)
{
    std::vector<Tarn32f> values;
    for (int j = 0; j < taps; ++j)
        values.push_back((high && j % 2 == 1 ? -1.0F : 1.0F) / static_cast<Tarn32f>(j + 2));
    return values;
}

struct Buffers {
    Tarn32f *full, *low, *high;
};

Buffers buffersOf(int n)
{
    return {filledBuffer<Tarn32f>(0, n + history, Fill::signal) + history,
            filledBuffer<Tarn32f>(1, n / 2 + history, Fill::signal) + history,
            filledBuffer<Tarn32f>(2, n / 2 + history, Fill::signal) + history};
}

auto split(int taps)
{
    return [=](int n) {
        TarnsWTFwdState_32f* state = nullptr;
        tarnsWTFwdInitAlloc_32f(&state, someTaps(taps, false).data(), taps, 0, someTaps(taps, true).data(), taps, 0);
        const std::shared_ptr<TarnsWTFwdState_32f> owner(state, tarnsWTFwdFree_32f);
        const Buffers b = buffersOf(n);
        return [=] { return tarnsWTFwd_32f(b.full, b.low, b.high, n / 2, owner.get()); };
    };
}
auto join(int taps)
{
    return [=](int n) {
        TarnsWTInvState_32f* state = nullptr;
        tarnsWTInvInitAlloc_32f(&state, someTaps(taps, false).data(), taps, 0, someTaps(taps, true).data(), taps, 0);
        const std::shared_ptr<TarnsWTInvState_32f> owner(state, tarnsWTInvFree_32f);
        const Buffers b = buffersOf(n);
        return [=] { return tarnsWTInv_32f(b.low, b.high, n / 2, b.full, owner.get()); };
    };
}

template <class Loop>
auto splitBy(int taps, Loop loop)
{
    return [=](int n) {
        const Buffers b = buffersOf(n);
        return [=, low = someTaps(taps, false), high = someTaps(taps, true)] {
            loop(low.data(), high.data(), b.full, b.low, b.high, n / 2);
        };
    };
}
template <class Loop>
auto joinBy(int taps, Loop loop)
{
    return [=](int n) {
        const Buffers b = buffersOf(n);
        return [=, low = someTaps(taps, false), high = someTaps(taps, true)] {
            loop(low.data(), high.data(), b.low, b.high, b.full, n / 2);
        };
    };
}

const Comparison wavelets = [] {
    const Sizes lengths = sizes(64, 1024, 4096);
    comparePrepared(lengths, "wtFwd_32f_8_taps", split(8), peer("loop_of_8", splitBy(8, splitLoopOf8)));
    comparePrepared(lengths, "wtInv_32f_8_taps", join(8), peer("loop_of_8", joinBy(8, joinLoopOf8)));
    for (const int taps : {2, 8, 20}) {
        const std::string count = std::to_string(taps) + "_taps";
        comparePrepared(lengths, "wtFwd_32f_any_" + count, split(taps),
                        peer("loop", splitBy(taps, [=](auto low, auto high, auto x, auto toLow, auto toHigh, int n) {
                                 splitLoop(low, high, taps, x, toLow, toHigh, n);
                             })));
        comparePrepared(lengths, "wtInv_32f_any_" + count, join(taps),
                        peer("loop", joinBy(taps, [=](auto low, auto high, auto fromLow, auto fromHigh, auto y, int n) {
                                 joinLoop(low, high, taps, fromLow, fromHigh, y, n);
                             })));
    }
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
