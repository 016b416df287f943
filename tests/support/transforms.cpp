#include "support/transforms.h"

#include "model/chirp.h"
#include "tarns/dft.h"

#include <gtest/gtest.h>

#include <bit>
#include <complex>

namespace tarn::test {

namespace {

using model::Bin;
using model::Layout;

/// What the argument of a creation says of the length.
using SizeOf = std::size_t (*)(int);
std::size_t sizeOfOrder(int order) { return std::size_t{1} << order; }
std::size_t sizeOfLength(int length) { return static_cast<std::size_t>(length); }

std::vector<Bin> transformOf(const std::vector<Bin>& x, int sign)
{
    if (std::has_single_bit(x.size()))
        return model::transform(x, sign);
    std::vector<std::complex<long double>> points;
    for (Bin bin : x)
        points.emplace_back(bin.re, bin.im);
    std::vector<Bin> result;
    for (auto value : model::anyTransform(points, sign))
        result.push_back({value.real(), value.imag()});
    return result;
}

template <class T>
std::vector<Bin> binsOf(const std::vector<T>& pairs)
{
    std::vector<Bin> bins(pairs.size() / 2);
    for (std::size_t i = 0; i < bins.size(); ++i)
        bins[i] = {pairs[2 * i], pairs[2 * i + 1]};
    return bins;
}

template <class T>
Arrays<long double> modelOfPairs(const Arrays<T>& src, bool forward)
{
    std::vector<long double> result;
    for (Bin bin : transformOf(binsOf(src[0]), forward ? -1 : 1)) {
        result.push_back(bin.re);
        result.push_back(bin.im);
    }
    return {result};
}

template <class T>
Arrays<long double> modelOfParts(const Arrays<T>& src, bool forward)
{
    std::vector<Bin> bins(src[0].size());
    for (std::size_t i = 0; i < bins.size(); ++i)
        bins[i] = {src[0][i], src[1][i]};
    Arrays<long double> result(2);
    for (Bin bin : transformOf(bins, forward ? -1 : 1)) {
        result[0].push_back(bin.re);
        result[1].push_back(bin.im);
    }
    return result;
}

template <class T>
Arrays<long double> modelOfSignal(const std::vector<T>& signal, Layout layout)
{
    std::vector<Bin> bins(signal.size());
    for (std::size_t i = 0; i < bins.size(); ++i)
        bins[i] = {signal[i], 0};
    bins = transformOf(bins, -1);
    std::vector<long double> packed;
    for (model::Slot slot : model::slots(layout, signal.size())) {
        using enum model::Slot::Part;
        packed.push_back(slot.part == zero ? 0 : slot.part == real ? bins[slot.k].re : bins[slot.k].im);
    }
    return {packed};
}

template <class T>
Arrays<long double> modelOfSpectrum(const std::vector<T>& packed, Layout layout, std::size_t size)
{
    std::vector<Bin> bins(size);
    const auto slots = model::slots(layout, size);
    for (std::size_t i = 0; i < slots.size() && i < packed.size(); ++i) {
        using enum model::Slot::Part;
        if (slots[i].part == real)
            bins[slots[i].k].re = packed[i];
        else if (slots[i].part == imaginary)
            bins[slots[i].k].im = packed[i];
    }
    for (std::size_t k = 1; 2 * k < size; ++k)
        bins[size - k] = {bins[k].re, -bins[k].im};
    std::vector<long double> signal;
    for (Bin bin : transformOf(bins, 1))
        signal.push_back(bin.re);
    return {signal};
}

template <class Spec>
TransformKind makeKind(std::string name, int identifier, TarnStatus (*create)(Spec**, int, int, TarnHintAlgorithm),
                       TarnStatus (*free)(Spec*), TarnStatus (*getBufSize)(const Spec*, int*))
{
    return {std::move(name), identifier,
            [=](void** spec, int order, int flag, int hint) {
                return create(reinterpret_cast<Spec**>(spec), order, flag, hint);
            },
            [=](void* spec) { return free(static_cast<Spec*>(spec)); },
            [=](const void* spec, int* size) { return getBufSize(static_cast<const Spec*>(spec), size); }};
}

template <class T, class C, class Spec>
TransformCase<T> pairsCase(SizeOf sizeOf, TransformKind kind, bool forward,
                           TarnStatus (*call)(const C*, C*, const Spec*, Tarn8u*))
{
    const auto twiceSizeOf = [=](int order) { return 2 * sizeOf(order); };
    return {kind.name + (forward ? " Fwd" : " Inv"),
            kind,
            forward,
            1,
            twiceSizeOf,
            twiceSizeOf,
            [=](const T* const* src, T* const* dst, const void* spec, Tarn8u* buffer) {
                return call(reinterpret_cast<const C*>(src[0]), reinterpret_cast<C*>(dst[0]),
                            static_cast<const Spec*>(spec), buffer);
            },
            [=](const Arrays<T>& src, int) { return modelOfPairs(src, forward); }};
}

template <class T, class Spec>
TransformCase<T> partsCase(SizeOf sizeOf, TransformKind kind, bool forward,
                           TarnStatus (*call)(const T*, const T*, T*, T*, const Spec*, Tarn8u*))
{
    return {kind.name + (forward ? " Fwd" : " Inv"),
            kind,
            forward,
            2,
            sizeOf,
            sizeOf,
            [=](const T* const* src, T* const* dst, const void* spec, Tarn8u* buffer) {
                return call(src[0], src[1], dst[0], dst[1], static_cast<const Spec*>(spec), buffer);
            },
            [=](const Arrays<T>& src, int) { return modelOfParts(src, forward); }};
}

template <class T, class Spec>
TransformCase<T> realCase(SizeOf sizeOf, TransformKind kind, bool forward, Layout layout,
                          TarnStatus (*call)(const T*, T*, const Spec*, Tarn8u*))
{
    const auto packed = [=](int order) { return model::slots(layout, sizeOf(order)).size(); };
    // The inverse of a length of 1 reads one real in every layout.
    const auto read = [=](int order) { return sizeOf(order) == 1 ? std::size_t{1} : packed(order); };
    const char* const names[] = {"Perm", "Pack", "CCS"};
    return {kind.name + (forward ? " to " : " from ") + names[static_cast<int>(layout)],
            kind,
            forward,
            1,
            forward ? std::function<std::size_t(int)>(sizeOf) : read,
            forward ? packed : std::function<std::size_t(int)>(sizeOf),
            [=](const T* const* src, T* const* dst, const void* spec, Tarn8u* buffer) {
                return call(src[0], dst[0], static_cast<const Spec*>(spec), buffer);
            },
            [=](const Arrays<T>& src, int order) {
                return forward ? modelOfSignal(src[0], layout) : modelOfSpectrum(src[0], layout, sizeOf(order));
            }};
}

#define TARN_TRANSFORM_KIND(FAMILY, KIND, ID) \
    makeKind(#KIND, ID, tarns##FAMILY##InitAlloc_##KIND, tarns##FAMILY##Free_##KIND, tarns##FAMILY##GetBufSize_##KIND)

#define TARN_TRANSFORM_CASES(FAMILY, SIZE, T, FIRST_ID)                                 \
    [] {                                                                                \
        const TransformKind pairs = TARN_TRANSFORM_KIND(FAMILY, C_##T##c, FIRST_ID);    \
        const TransformKind parts = TARN_TRANSFORM_KIND(FAMILY, C_##T, (FIRST_ID) + 1); \
        const TransformKind real = TARN_TRANSFORM_KIND(FAMILY, R_##T, (FIRST_ID) + 2);  \
        using enum Layout;                                                              \
        return std::vector<TransformCase<Tarn##T>>{                                     \
            pairsCase<Tarn##T>(SIZE, pairs, true, tarns##FAMILY##Fwd_CToC_##T##c),      \
            pairsCase<Tarn##T>(SIZE, pairs, false, tarns##FAMILY##Inv_CToC_##T##c),     \
            partsCase(SIZE, parts, true, tarns##FAMILY##Fwd_CToC_##T),                  \
            partsCase(SIZE, parts, false, tarns##FAMILY##Inv_CToC_##T),                 \
            realCase(SIZE, real, true, perm, tarns##FAMILY##Fwd_RToPerm_##T),           \
            realCase(SIZE, real, true, pack, tarns##FAMILY##Fwd_RToPack_##T),           \
            realCase(SIZE, real, true, ccs, tarns##FAMILY##Fwd_RToCCS_##T),             \
            realCase(SIZE, real, false, perm, tarns##FAMILY##Inv_PermToR_##T),          \
            realCase(SIZE, real, false, pack, tarns##FAMILY##Inv_PackToR_##T),          \
            realCase(SIZE, real, false, ccs, tarns##FAMILY##Inv_CCSToR_##T)};           \
    }()

} // namespace

template <>
const std::vector<TransformCase<Tarn32f>>& transformCases<Tarn32f>()
{
    static const std::vector<TransformCase<Tarn32f>> cases = TARN_TRANSFORM_CASES(FFT, sizeOfOrder, 32f, 4);
    return cases;
}

template <>
const std::vector<TransformCase<Tarn64f>>& transformCases<Tarn64f>()
{
    static const std::vector<TransformCase<Tarn64f>> cases = TARN_TRANSFORM_CASES(FFT, sizeOfOrder, 64f, 7);
    return cases;
}

template <>
const std::vector<TransformCase<Tarn32f>>& anyTransformCases<Tarn32f>()
{
    static const std::vector<TransformCase<Tarn32f>> cases = TARN_TRANSFORM_CASES(DFT, sizeOfLength, 32f, 13);
    return cases;
}

template <>
const std::vector<TransformCase<Tarn64f>>& anyTransformCases<Tarn64f>()
{
    static const std::vector<TransformCase<Tarn64f>> cases = TARN_TRANSFORM_CASES(DFT, sizeOfLength, 64f, 16);
    return cases;
}

template <class T>
std::vector<TransformKind> transformKinds()
{
    const auto& cases = transformCases<T>();
    return {cases[0].kind, cases[2].kind, cases[4].kind};
}
template std::vector<TransformKind> transformKinds<Tarn32f>();
template std::vector<TransformKind> transformKinds<Tarn64f>();

TransformSpec::TransformSpec(const TransformKind& kind, int order, int flag) : kind(kind)
{
    EXPECT_EQ(tarnStsNoErr, kind.create(&spec, order, flag, tarnAlgHintNone)) << kind.name << " order " << order;
}

TransformSpec::~TransformSpec() { EXPECT_EQ(tarnStsNoErr, kind.free(spec)); }

std::size_t TransformSpec::bufSize() const
{
    int size = -1;
    EXPECT_EQ(tarnStsNoErr, kind.getBufSize(spec, &size));
    return static_cast<std::size_t>(size);
}

} // namespace tarn::test
