// Specifications of transforms: one buffer or none, in place or not, and back again.
#include "fuzz/states/targets.h"

#include <tarns.h>

#include <cmath>
#include <cstring>
#include <memory>

namespace tarn::test::fuzz {
namespace {

using digest::Element;
using digest::Real;

/// A transform of N points as bytes.
class Transform {
public:
    virtual ~Transform() = default;
    virtual TarnStatus bufferSize(int* bytes) const = 0;
    virtual TarnStatus forward(const void* source, void* destination, Tarn8u* buffer) const = 0;
    virtual TarnStatus inverse(const void* source, void* destination, Tarn8u* buffer) const = 0;
};

struct Shape {
    Element source;
    Element spectrum;
    std::size_t sources;
    std::size_t bins;
    bool returns; ///< by normalisation and type
};

/// A buffer of the size that the transform asks for, wherever it begins.
std::unique_ptr<Elements> bufferFor(const Transform& transform, Bytes& bytes)
{
    std::unique_ptr<Elements> buffer;
    int size = -1;
    require(transform.bufferSize(&size) == tarnStsNoErr && size >= 0, "the size of a buffer is not told");
    if (!bytes.flag())
        buffer = std::make_unique<Elements>(Element{Real::u8, 1}, static_cast<std::size_t>(size), bytes);
    return buffer;
}

Tarn8u* addressOf(const std::unique_ptr<Elements>& buffer) { return buffer ? buffer->as<Tarn8u>() : nullptr; }

template <class T>
double largestDifference(const Elements& one, const Elements& other, std::size_t reals)
{
    double largest = 0;
    for (std::size_t i = 0; i < reals; ++i) {
        T a, b;
        std::memcpy(&a, one.bytes() + i * sizeof a, sizeof a);
        std::memcpy(&b, other.bytes() + i * sizeof b, sizeof b);
        largest = std::max(largest, std::abs(static_cast<double>(a) - static_cast<double>(b)));
    }
    return largest;
}

void compareReturned(const Elements& source, const Elements& back, const Shape& shape)
{
    const std::size_t reals = shape.sources * static_cast<std::size_t>(shape.source.parts);
    // Errors grow by less than a unit in the last place for each doubling of the length, by more in convolutions.
    if (shape.source.real == Real::f32)
        require(largestDifference<float>(source, back, reals) < 2e-4, "a signal does not come back");
    else if (shape.source.real == Real::f64)
        require(largestDifference<double>(source, back, reals) < 4e-13, "a signal does not come back");
}

void drive(const Transform& transform, const Shape& shape, Bytes& bytes)
{
    const bool tame = bytes.byte() % 4 != 0;
    Random random = bytes.random();
    Elements source(shape.source, shape.sources, bytes);
    source.fill(random, tame ? Values::unit : Values::mixed);
    const std::uint64_t before = source.hash();

    const std::unique_ptr<Elements> buffer = bufferFor(transform, bytes);
    Elements spectrum(shape.spectrum, shape.bins, bytes);
    require(transform.forward(source.bytes(), spectrum.bytes(), addressOf(buffer)) == tarnStsNoErr, "refused");
    require(source.hash() == before, "a source was changed");

    const std::unique_ptr<Elements> otherBuffer = bufferFor(transform, bytes);
    const std::size_t room = std::max(shape.sources, shape.bins);
    if (shape.source.size() == shape.spectrum.size()) {
        Elements inPlace(shape.source, room, bytes);
        std::memcpy(inPlace.bytes(), source.bytes(), source.byteSize());
        require(transform.forward(inPlace.bytes(), inPlace.bytes(), addressOf(otherBuffer)) == tarnStsNoErr, "refused");
        require(inPlace.hash(shape.bins) == spectrum.hash(), "in place, or with another buffer, the result is another");
        requireWhole(inPlace);
    }
    Elements back(shape.source, shape.sources, bytes);
    require(transform.inverse(spectrum.bytes(), back.bytes(), addressOf(otherBuffer)) == tarnStsNoErr, "refused");
    if (tame && shape.returns)
        compareReturned(source, back, shape);
    for (const Elements* array : {&source, &spectrum, &back})
        requireWhole(*array);
    for (const std::unique_ptr<Elements>* array : {&buffer, &otherBuffer})
        if (*array)
            requireWhole(**array);
}

// -- Types ------------------------------------------------------------------------------------------------------------

/// `points` is an order or a length. Those that are refused end here, as do those that would take the machine's memory.
template <class K>
void driveKind(Bytes& bytes, int points, int largest, Shape (*shapeOf)(int points))
{
    const int flag = bytes.byte() % 16 == 0 ? bytes.hostile(-1, 9) : 1 << bytes.between(0, 3);
    const auto hint = static_cast<TarnHintAlgorithm>(bytes.between(0, 3));
    if (points > largest && points < (1 << 30))
        points = largest;
    K kind(points, flag, hint, bytes.between(-4, 12));
    require((kind.status == tarnStsNoErr) == (kind.spec != nullptr),
            "a status does not tell whether there is an object");
    if (kind.spec == nullptr)
        return;
    Shape shape = shapeOf(points);
    shape.returns = shape.returns && flag != TARN_FFT_NODIV_BY_ANY;
    for (int i = 0; i < 3 && (i == 0 || !bytes.empty()); ++i)
        drive(kind, shape, bytes);
}

#define TRANSFORM(Name, FAMILY, KIND, FORWARD, INVERSE, Source, Spectrum, SCALE)                                   \
    class Name : public Transform {                                                                                \
    public:                                                                                                        \
        Name(int points, int flag, TarnHintAlgorithm hint, [[maybe_unused]] int scaleFactor)                       \
            : scale(scaleFactor), status(tarns##FAMILY##InitAlloc_##KIND(&spec, points, flag, hint))               \
        {                                                                                                          \
        }                                                                                                          \
        ~Name() override                                                                                           \
        {                                                                                                          \
            if (spec != nullptr)                                                                                   \
                require(tarns##FAMILY##Free_##KIND(spec) == tarnStsNoErr, "an object is not freed");               \
        }                                                                                                          \
        TarnStatus bufferSize(int* bytes) const override { return tarns##FAMILY##GetBufSize_##KIND(spec, bytes); } \
        TarnStatus forward(const void* source, void* destination, Tarn8u* buffer) const override                   \
        {                                                                                                          \
            return tarns##FAMILY##FORWARD(static_cast<const Source*>(source), static_cast<Spectrum*>(destination), \
                                          spec SCALE, buffer);                                                     \
        }                                                                                                          \
        TarnStatus inverse(const void* source, void* destination, Tarn8u* buffer) const override                   \
        {                                                                                                          \
            return tarns##FAMILY##INVERSE(static_cast<const Spectrum*>(source), static_cast<Source*>(destination), \
                                          spec SCALE, buffer);                                                     \
        }                                                                                                          \
        Tarns##FAMILY##Spec_##KIND* spec = nullptr;                                                                \
        [[maybe_unused]] const int scale;                                                                          \
        const TarnStatus status;                                                                                   \
    }

#define NOTHING
#define SCALE_ARGUMENT , scale
TRANSFORM(Fft_32fc, FFT, C_32fc, Fwd_CToC_32fc, Inv_CToC_32fc, Tarn32fc, Tarn32fc, NOTHING);
TRANSFORM(Fft_64f, FFT, R_64f, Fwd_RToPerm_64f, Inv_PermToR_64f, Tarn64f, Tarn64f, NOTHING);
TRANSFORM(Fft_32f, FFT, R_32f, Fwd_RToCCS_32f, Inv_CCSToR_32f, Tarn32f, Tarn32f, NOTHING);
TRANSFORM(Fft_16sc, FFT, C_16sc, Fwd_CToC_16sc_Sfs, Inv_CToC_16sc_Sfs, Tarn16sc, Tarn16sc, SCALE_ARGUMENT);
TRANSFORM(Fft_16s, FFT, R_16s, Fwd_RToPack_16s_Sfs, Inv_PackToR_16s_Sfs, Tarn16s, Tarn16s, SCALE_ARGUMENT);
TRANSFORM(Dft_64fc, DFT, C_64fc, Fwd_CToC_64fc, Inv_CToC_64fc, Tarn64fc, Tarn64fc, NOTHING);
TRANSFORM(Dft_32f, DFT, R_32f, Fwd_RToPack_32f, Inv_PackToR_32f, Tarn32f, Tarn32f, NOTHING);
TRANSFORM(Dft_64f, DFT, R_64f, Fwd_RToCCS_64f, Inv_CCSToR_64f, Tarn64f, Tarn64f, NOTHING);
TRANSFORM(Dft_16sc, DFT, C_16sc, Fwd_CToC_16sc_Sfs, Inv_CToC_16sc_Sfs, Tarn16sc, Tarn16sc, SCALE_ARGUMENT);

std::size_t pointsOfOrder(int order) { return std::size_t{1} << order; }

/// Packed formats have as many reals as samples, CCS one or two more.
std::size_t ccs(std::size_t points) { return points == 1 ? 2 : points + 2 - points % 2; }

/// Both directions of a cosine transform, which have an object each.
template <class Fwd, class Inv>
class CosineTransform : public Transform {
public:
    CosineTransform(int points, TarnHintAlgorithm hint, int scaleFactor)
        : forwards(points, hint, scaleFactor), inverses(points, hint, scaleFactor)
    {
    }
    TarnStatus bufferSize(int* bytes) const override
    {
        int first = 0;
        int second = 0;
        const TarnStatus status = forwards.bufferSize(&first);
        *bytes = inverses.bufferSize(&second) == tarnStsNoErr ? std::max(first, second) : -1;
        return status;
    }
    TarnStatus forward(const void* source, void* destination, Tarn8u* buffer) const override
    {
        return forwards.run(source, destination, buffer);
    }
    TarnStatus inverse(const void* source, void* destination, Tarn8u* buffer) const override
    {
        return inverses.run(source, destination, buffer);
    }
    bool made() const { return forwards.spec != nullptr && inverses.spec != nullptr; }

private:
    Fwd forwards;
    Inv inverses;
};

#define COSINE(Name, DIRECTION, TAG, SUFFIX, SCALE)                                                               \
    struct Name {                                                                                                 \
        Name(int points, TarnHintAlgorithm hint, int scaleFactor) : scale(scaleFactor)                            \
        {                                                                                                         \
            tarnsDCT##DIRECTION##InitAlloc_##TAG(&spec, points, hint);                                            \
        }                                                                                                         \
        ~Name()                                                                                                   \
        {                                                                                                         \
            if (spec != nullptr)                                                                                  \
                require(tarnsDCT##DIRECTION##Free_##TAG(spec) == tarnStsNoErr, "an object is not freed");         \
        }                                                                                                         \
        TarnStatus bufferSize(int* bytes) const { return tarnsDCT##DIRECTION##GetBufSize_##TAG(spec, bytes); }    \
        TarnStatus run(const void* source, void* destination, Tarn8u* buffer) const                               \
        {                                                                                                         \
            return tarnsDCT##DIRECTION##_##TAG##SUFFIX(static_cast<const Tarn##TAG*>(source),                     \
                                                       static_cast<Tarn##TAG*>(destination), spec SCALE, buffer); \
        }                                                                                                         \
        TarnsDCT##DIRECTION##Spec_##TAG* spec = nullptr;                                                          \
        [[maybe_unused]] const int scale;                                                                         \
    }
COSINE(DctFwd_32f, Fwd, 32f, , NOTHING);
COSINE(DctInv_32f, Inv, 32f, , NOTHING);
COSINE(DctFwd_64f, Fwd, 64f, , NOTHING);
COSINE(DctInv_64f, Inv, 64f, , NOTHING);
COSINE(DctFwd_16s, Fwd, 16s, _Sfs, SCALE_ARGUMENT);
COSINE(DctInv_16s, Inv, 16s, _Sfs, SCALE_ARGUMENT);

template <class Fwd, class Inv>
void driveCosine(Bytes& bytes, int points, Element element)
{
    const CosineTransform<Fwd, Inv> transform(points, static_cast<TarnHintAlgorithm>(bytes.between(0, 3)),
                                              bytes.between(-4, 12));
    require(transform.made() == (points >= 1), "a length makes an object or is refused");
    if (!transform.made())
        return;
    const auto length = static_cast<std::size_t>(points);
    for (int i = 0; i < 3 && (i == 0 || !bytes.empty()); ++i)
        drive(transform, {element, element, length, length, true}, bytes);
}

int lengthFrom(Bytes& bytes)
{
    const int length = bytes.byte() % 8 == 0 ? bytes.between(1, 2000) : bytes.between(1, 200);
    return bytes.byte() % 16 == 0 ? bytes.pick({0, -1, -2147483647 - 1}) : length;
}

} // namespace

void driveFft(Bytes& bytes)
{
    const int order =
        bytes.byte() % 16 == 0 ? bytes.pick({-1, 31, 32, 2147483647, -2147483647 - 1}) : bytes.between(0, 11);
    switch (bytes.byte() % 5) {
    case 0:
        return driveKind<Fft_32fc>(bytes, order, 11, [](int n) -> Shape {
            return {{Real::f32, 2}, {Real::f32, 2}, pointsOfOrder(n), pointsOfOrder(n), true};
        });
    case 1:
        return driveKind<Fft_64f>(bytes, order, 11, [](int n) -> Shape {
            return {{Real::f64, 1}, {Real::f64, 1}, pointsOfOrder(n), pointsOfOrder(n), true};
        });
    case 2:
        return driveKind<Fft_32f>(bytes, order, 11, [](int n) -> Shape {
            return {{Real::f32, 1}, {Real::f32, 1}, pointsOfOrder(n), ccs(pointsOfOrder(n)), true};
        });
    case 3:
        return driveKind<Fft_16sc>(bytes, order, 11, [](int n) -> Shape {
            return {{Real::s16, 2}, {Real::s16, 2}, pointsOfOrder(n), pointsOfOrder(n), false};
        });
    default:
        return driveKind<Fft_16s>(bytes, order, 11, [](int n) -> Shape {
            return {{Real::s16, 1}, {Real::s16, 1}, pointsOfOrder(n), pointsOfOrder(n), false};
        });
    }
}

void driveDft(Bytes& bytes)
{
    const int length = lengthFrom(bytes);
    switch (bytes.byte() % 4) {
    case 0:
        return driveKind<Dft_64fc>(bytes, length, 2000, [](int n) -> Shape {
            return {{Real::f64, 2}, {Real::f64, 2}, std::size_t(n), std::size_t(n), true};
        });
    case 1:
        return driveKind<Dft_32f>(bytes, length, 2000, [](int n) -> Shape {
            return {{Real::f32, 1}, {Real::f32, 1}, std::size_t(n), std::size_t(n), true};
        });
    case 2:
        return driveKind<Dft_64f>(bytes, length, 2000, [](int n) -> Shape {
            return {{Real::f64, 1}, {Real::f64, 1}, std::size_t(n), ccs(std::size_t(n)), true};
        });
    default:
        return driveKind<Dft_16sc>(bytes, length, 2000, [](int n) -> Shape {
            return {{Real::s16, 2}, {Real::s16, 2}, std::size_t(n), std::size_t(n), false};
        });
    }
}

void driveDct(Bytes& bytes)
{
    const int length = lengthFrom(bytes);
    switch (bytes.byte() % 3) {
    case 0:
        return driveCosine<DctFwd_32f, DctInv_32f>(bytes, length, {Real::f32, 1});
    case 1:
        return driveCosine<DctFwd_64f, DctInv_64f>(bytes, length, {Real::f64, 1});
    default:
        return driveCosine<DctFwd_16s, DctInv_16s>(bytes, length, {Real::s16, 1});
    }
}

void driveHilbert(Bytes& bytes)
{
    const int length = lengthFrom(bytes);
    TarnsHilbertSpec_32f32fc* spec = nullptr;
    const TarnStatus status =
        tarnsHilbertInitAlloc_32f32fc(&spec, length, static_cast<TarnHintAlgorithm>(bytes.between(0, 3)));
    require((status == tarnStsNoErr) == (length >= 1), "a length makes an object or is refused");
    if (status != tarnStsNoErr)
        return;
    const auto points = static_cast<std::size_t>(length);
    for (int i = 0; i < 3 && (i == 0 || !bytes.empty()); ++i) {
        const bool tame = bytes.byte() % 4 != 0;
        Random random = bytes.random();
        Elements source({Real::f32, 1}, points, bytes);
        source.fill(random, tame ? Values::unit : Values::mixed);
        Elements one({Real::f32, 2}, points, bytes);
        Elements other({Real::f32, 2}, points, bytes);
        for (const Elements* result : {&one, &other})
            require(tarnsHilbert_32f32fc(source.as<Tarn32f>(), result->as<Tarn32fc>(), spec) == tarnStsNoErr,
                    "refused");
        require(one.hash() == other.hash(), "two calls differ");
        for (std::size_t n = 0; n < points && tame; ++n) {
            Tarn32f x = 0;
            Tarn32fc y{};
            std::memcpy(&x, source.bytes() + n * sizeof x, sizeof x);
            std::memcpy(&y, one.bytes() + n * sizeof y, sizeof y);
            require(std::abs(y.re - x) < 2e-4f, "the real part is not the signal");
        }
        for (const Elements* array : {&source, &one, &other})
            requireWhole(*array);
    }
    require(tarnsHilbertFree_32f32fc(spec) == tarnStsNoErr, "an object is not freed");
}

} // namespace tarn::test::fuzz
