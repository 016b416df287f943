// The transforms of 16-bit samples behind one interface: arrays of samples in, arrays of samples out, whatever the
// family and the layout; and beside each the transform of floats that it may go through.
#pragma once

#include "support/transforms.h"

#include <span>

namespace tarn::test {

/// One transform of integers. Lengths are told as the family tells them: by an order, or by N.
struct IntegerCase {
    TransformKind kind;
    TransformCase<Tarn32f> floats;
    /// The unscaled result in extended precision.
    std::function<Arrays<long double>(const Arrays<Tarn64f>& src, int length)> model;
    std::function<int(const Tarn16s* const* src, Tarn16s* const* dst, const void* spec, int scaleFactor,
                      Tarn8u* buffer)>
        run;

    const std::string& name() const { return floats.name; }
    bool isReal() const { return kind.name[0] == 'R'; }
};

/// All transforms of power-of-two lengths, and all of any length.
const std::vector<IntegerCase>& integerFftCases();
const std::vector<IntegerCase>& integerDftCases();
/// The kinds of some cases, each once.
std::vector<TransformKind> kindsOf(const std::vector<IntegerCase>& cases);

/// The arrays of a case with random samples below `range`, at most 32768.
Arrays<Tarn16s> samplesFor(const IntegerCase& transform, int length, unsigned seed, int range = 32768);

/// An object of integers that frees itself.
class IntegerSpec {
public:
    IntegerSpec(TransformKind kind, int length, int flag, int hint);
    ~IntegerSpec();
    IntegerSpec(const IntegerSpec&) = delete;
    IntegerSpec& operator=(const IntegerSpec&) = delete;

    void* get() const { return spec; }
    int bufSize() const;

private:
    TransformKind kind;
    void* spec = nullptr;
};

/// Runs a transform on arrays of its own, without a buffer.
Arrays<Tarn16s> runSamples(const IntegerCase& transform, const Arrays<Tarn16s>& src, const IntegerSpec& spec,
                           int length, int scaleFactor);

/// Runs a transform with its arrays and its buffer in many places, some beside a page without access, in place and not,
/// and expects the same samples in each.
void expectInAllPlaces(const IntegerCase& transform, const Arrays<Tarn16s>& src, const IntegerSpec& spec, int length,
                       int scaleFactor, const Arrays<Tarn16s>& expected);

/// What the transform of floats gives, times 2^-scaleFactor, rounded to the nearest or the even sample and saturated.
Arrays<Tarn16s> throughFloats(const IntegerCase& transform, const Arrays<Tarn16s>& src, int length, int flag,
                              int scaleFactor);

/// Statuses of creation, of the size, of release and of transforms, in their order. `badLengths` are refused with
/// `badLength`.
void expectStatuses(const std::vector<IntegerCase>& cases, std::span<const int> badLengths, TarnStatus badLength,
                    std::span<const int> goodLengths);

} // namespace tarn::test
