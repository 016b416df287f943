// The Haar transform beside plain loops, and beside a copy of the same bytes.
#include "tarns.h"

#include "pswthaar_peer.h"
#include "support/compare.h"

#include <cstring>

namespace tarn::bench {
namespace {

template <class T>
auto prepareForward(TarnStatus (*forward)(const T*, int, T*, T*))
{
    return [forward](int n) {
        const auto* x = filledBuffer<T>(1, n, Fill::signal);
        auto* channels = filledBuffer<T>(0, n, Fill::signal);
        return [=] { return forward(x, n, channels, channels + n / 2); };
    };
}

template <class T>
auto prepareInverse(TarnStatus (*inverse)(const T*, const T*, T*, int))
{
    return [inverse](int n) {
        const auto* channels = filledBuffer<T>(1, n, Fill::signal);
        auto* x = filledBuffer<T>(0, n, Fill::signal);
        return [=] { return inverse(channels, channels + n / 2, x, n); };
    };
}

template <class T>
auto copyOfTheSameBytes()
{
    return peer("memcpy", [](int n) {
        const auto* x = filledBuffer<T>(1, n, Fill::signal);
        auto* y = filledBuffer<T>(0, n, Fill::signal);
        return [=] { return std::memcpy(y, x, static_cast<std::size_t>(n) * sizeof(T)); };
    });
}

template <class T>
void compareHaar(const std::string& tag, TarnStatus (*forward)(const T*, int, T*, T*),
                 TarnStatus (*inverse)(const T*, const T*, T*, int))
{
    comparePrepared(defaultSizes, "haarFwd_" + tag, prepareForward(forward), copyOfTheSameBytes<T>(),
                    peer("loop", prepareForward<T>(haarForwardLoop)));
    comparePrepared(defaultSizes, "haarInv_" + tag, prepareInverse(inverse), copyOfTheSameBytes<T>(),
                    peer("loop", prepareInverse<T>(haarInverseLoop)));
}

const Comparison haar = [] {
    compareHaar("8s", tarnsWTHaarFwd_8s, tarnsWTHaarInv_8s);
    compareHaar("16s", tarnsWTHaarFwd_16s, tarnsWTHaarInv_16s);
    compareHaar("32s", tarnsWTHaarFwd_32s, tarnsWTHaarInv_32s);
    compareHaar("64s", tarnsWTHaarFwd_64s, tarnsWTHaarInv_64s);
    compareHaar("32f", tarnsWTHaarFwd_32f, tarnsWTHaarInv_32f);
    compareHaar("64f", tarnsWTHaarFwd_64f, tarnsWTHaarInv_64f);
    return Comparison{};
}();

} // namespace
} // namespace tarn::bench
