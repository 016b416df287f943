// Runs of transforms on arrays of their own, at chosen places, and how far off the results are.
#pragma once

#include "support/transforms.h"

namespace tarn::test {

/// Reals between -1 and 1.
template <class T>
std::vector<T> signal(std::size_t count, unsigned seed);

template <class T>
Arrays<T> inputFor(const TransformCase<T>& transform, int order);

/// Runs a transform on aligned arrays of its own.
template <class T>
Arrays<T> run(const TransformCase<T>& transform, const Arrays<T>& src, const TransformSpec& spec, int order);

/// Root mean square of the difference, relative to that of what is expected.
template <class T>
long double relativeError(const Arrays<long double>& expected, const Arrays<T>& actual, long double scale);

/// Where the arrays of a call lie; an offset is in bytes from a 64-byte boundary.
struct Places {
    unsigned src;
    unsigned dst;
    bool inPlace;
    enum class Buffer { null, aligned, odd, exact } buffer;
};

/// The same between pages that must not be touched. The source is to stay as it is, and so is the floating-point state.
template <class T>
Arrays<T> runAt(const TransformCase<T>& transform, const Arrays<T>& src, const TransformSpec& spec, int order,
                const Places& places);

/// Transforms of two arrays into two others: each part may take the place of its source alone.
template <class T>
void expectPartsInPlace(const TransformCase<T>& transform, const TransformSpec& spec, int order);

/// Several threads at once, each with arrays of its own, get what one alone gets.
template <class T>
void expectThreadsAgree(const TransformCase<T>& transform, const TransformSpec& spec, int order);

} // namespace tarn::test
