// The Fourier transforms behind one interface: arrays of reals in, arrays of reals out.
#pragma once

#include "model/fft.h"
#include "model/spectrum.h"
#include "tarns/fft.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace tarn::test {

/// The values of all arrays of one side of a transform.
template <class T>
using Arrays = std::vector<std::vector<T>>;

/// One kind of object.
struct TransformKind {
    std::string name;
    int identifier;
    std::function<int(void** spec, int order, int flag, int hint)> create;
    std::function<int(void* spec)> free;
    std::function<int(const void* spec, int* size)> getBufSize;
};

/// One transform of a kind.
template <class T>
struct TransformCase {
    std::string name;
    TransformKind kind;
    bool forward;
    int arrays;
    std::function<std::size_t(int order)> srcReals;
    std::function<std::size_t(int order)> dstReals;
    std::function<int(const T* const* src, T* const* dst, const void* spec, Tarn8u* buffer)> run;
    /// The unscaled result for given arrays, in extended precision.
    std::function<Arrays<long double>(const Arrays<T>& src, int order)> model;
};

/// All transforms of a precision, Tarn32f or Tarn64f: of power-of-two lengths, and of any length, where what is called
/// an order here is the length itself.
template <class T>
const std::vector<TransformCase<T>>& transformCases();
template <class T>
const std::vector<TransformCase<T>>& anyTransformCases();
/// All kinds of a precision.
template <class T>
std::vector<TransformKind> transformKinds();

/// An object that frees itself.
class TransformSpec {
public:
    TransformSpec(const TransformKind& kind, int order, int flag);
    ~TransformSpec();
    TransformSpec(const TransformSpec&) = delete;
    TransformSpec& operator=(const TransformSpec&) = delete;

    void* get() const { return spec; }
    std::size_t bufSize() const;

private:
    TransformKind kind;
    void* spec = nullptr;
};

/// What a flag multiplies the results of a direction by.
inline long double scaleOf(int flag, bool forward, long double size)
{
    switch (flag) {
    case TARN_FFT_DIV_FWD_BY_N:
        return forward ? 1 / size : 1;
    case TARN_FFT_DIV_INV_BY_N:
        return forward ? 1 : 1 / size;
    case TARN_FFT_DIV_BY_SQRTN:
        return 1 / std::sqrt(size);
    default:
        return 1;
    }
}
inline long double scaleOf(int flag, bool forward, int order)
{
    return scaleOf(flag, forward, std::ldexp(1.0L, order));
}

inline constexpr int allFlags[] = {TARN_FFT_DIV_FWD_BY_N, TARN_FFT_DIV_INV_BY_N, TARN_FFT_DIV_BY_SQRTN,
                                   TARN_FFT_NODIV_BY_ANY};

} // namespace tarn::test
