#include "support/integer_transforms.h"

#include "support/compare.h"
#include "support/fpstate.h"
#include "support/guarded.h"
#include "tarns/dftfixed.h"
#include "tarns/fftfixed.h"

#include <climits>
#include <random>

namespace tarn::test {

namespace {

template <class Spec>
TransformKind makeKind(std::string name, int identifier, TarnStatus (*create)(Spec**, int, int, TarnHintAlgorithm),
                       TarnStatus (*free)(Spec*), TarnStatus (*getBufSize)(const Spec*, int*))
{
    return {std::move(name), identifier,
            [=](void** spec, int length, int flag, int hint) {
                return create(reinterpret_cast<Spec**>(spec), length, flag, hint);
            },
            [=](void* spec) { return free(static_cast<Spec*>(spec)); },
            [=](const void* spec, int* size) { return getBufSize(static_cast<const Spec*>(spec), size); }};
}

using Run = decltype(IntegerCase::run);

template <class Element, class Spec>
Run oneArray(TarnStatus (*call)(const Element*, Element*, const Spec*, int, Tarn8u*))
{
    return [=](const Tarn16s* const* src, Tarn16s* const* dst, const void* spec, int scaleFactor, Tarn8u* buffer) {
        return call(reinterpret_cast<const Element*>(src[0]), reinterpret_cast<Element*>(dst[0]),
                    static_cast<const Spec*>(spec), scaleFactor, buffer);
    };
}

template <class Spec>
Run twoArrays(TarnStatus (*call)(const Tarn16s*, const Tarn16s*, Tarn16s*, Tarn16s*, const Spec*, int, Tarn8u*))
{
    return [=](const Tarn16s* const* src, Tarn16s* const* dst, const void* spec, int scaleFactor, Tarn8u* buffer) {
        return call(src[0], src[1], dst[0], dst[1], static_cast<const Spec*>(spec), scaleFactor, buffer);
    };
}

#define TARN_INTEGER_KIND(FAMILY, KIND, ID) \
    makeKind(#KIND, ID, tarns##FAMILY##InitAlloc_##KIND, tarns##FAMILY##Free_##KIND, tarns##FAMILY##GetBufSize_##KIND)

// In the order of the cases of floats.
#define TARN_INTEGER_RUNS(FAMILY)                                                                       \
    {                                                                                                   \
        oneArray(tarns##FAMILY##Fwd_CToC_16sc_Sfs), oneArray(tarns##FAMILY##Inv_CToC_16sc_Sfs),         \
            twoArrays(tarns##FAMILY##Fwd_CToC_16s_Sfs), twoArrays(tarns##FAMILY##Inv_CToC_16s_Sfs),     \
            oneArray(tarns##FAMILY##Fwd_RToPerm_16s_Sfs), oneArray(tarns##FAMILY##Fwd_RToPack_16s_Sfs), \
            oneArray(tarns##FAMILY##Fwd_RToCCS_16s_Sfs), oneArray(tarns##FAMILY##Inv_PermToR_16s_Sfs),  \
            oneArray(tarns##FAMILY##Inv_PackToR_16s_Sfs), oneArray(tarns##FAMILY##Inv_CCSToR_16s_Sfs)   \
    }

std::vector<IntegerCase> makeCases(const std::vector<TransformCase<Tarn32f>>& floats,
                                   const std::vector<TransformCase<Tarn64f>>& exact,
                                   const std::vector<TransformKind>& kinds, const std::vector<Run>& runs)
{
    std::vector<IntegerCase> cases;
    for (std::size_t i = 0; i < runs.size(); ++i)
        cases.push_back({kinds[i < 2 ? 0 : i < 4 ? 1 : 2], floats[i], exact[i].model, runs[i]});
    return cases;
}

std::vector<const Tarn16s*> addresses(const Arrays<Tarn16s>& arrays)
{
    std::vector<const Tarn16s*> result;
    for (const auto& array : arrays)
        result.push_back(array.data());
    return result;
}

// In the test's rounding mode, to nearest or even.
Tarn16s nearestSample(double x) { return static_cast<Tarn16s>(std::nearbyint(std::fmin(std::fmax(x, -32768), 32767))); }

} // namespace

const std::vector<IntegerCase>& integerFftCases()
{
    static const std::vector<IntegerCase> cases = makeCases(
        transformCases<Tarn32f>(), transformCases<Tarn64f>(),
        {TARN_INTEGER_KIND(FFT, C_16sc, 1), TARN_INTEGER_KIND(FFT, C_16s, 2), TARN_INTEGER_KIND(FFT, R_16s, 3)},
        TARN_INTEGER_RUNS(FFT));
    return cases;
}

const std::vector<IntegerCase>& integerDftCases()
{
    static const std::vector<IntegerCase> cases = makeCases(
        anyTransformCases<Tarn32f>(), anyTransformCases<Tarn64f>(),
        {TARN_INTEGER_KIND(DFT, C_16sc, 10), TARN_INTEGER_KIND(DFT, C_16s, 11), TARN_INTEGER_KIND(DFT, R_16s, 12)},
        TARN_INTEGER_RUNS(DFT));
    return cases;
}

std::vector<TransformKind> kindsOf(const std::vector<IntegerCase>& cases)
{
    return {cases[0].kind, cases[2].kind, cases[4].kind};
}

Arrays<Tarn16s> samplesFor(const IntegerCase& transform, int length, unsigned seed, int range)
{
    std::mt19937 random(seed + 31u * static_cast<unsigned>(length));
    std::uniform_int_distribution<int> uniform(-range, range - 1);
    Arrays<Tarn16s> src(static_cast<std::size_t>(transform.floats.arrays));
    for (auto& array : src) {
        array.resize(transform.floats.srcReals(length));
        for (Tarn16s& x : array)
            x = static_cast<Tarn16s>(uniform(random));
    }
    return src;
}

IntegerSpec::IntegerSpec(TransformKind kind, int length, int flag, int hint) : kind(std::move(kind))
{
    EXPECT_EQ(tarnStsNoErr, this->kind.create(&spec, length, flag, hint)) << this->kind.name << " length " << length;
}

IntegerSpec::~IntegerSpec() { EXPECT_EQ(tarnStsNoErr, kind.free(spec)); }

int IntegerSpec::bufSize() const
{
    int size = -1;
    EXPECT_EQ(tarnStsNoErr, kind.getBufSize(spec, &size));
    return size;
}

Arrays<Tarn16s> runSamples(const IntegerCase& transform, const Arrays<Tarn16s>& src, const IntegerSpec& spec,
                           int length, int scaleFactor)
{
    Arrays<Tarn16s> dst(src.size(), std::vector<Tarn16s>(transform.floats.dstReals(length), 4711));
    std::vector<Tarn16s*> to;
    for (auto& array : dst)
        to.push_back(array.data());
    EXPECT_EQ(tarnStsNoErr, transform.run(addresses(src).data(), to.data(), spec.get(), scaleFactor, nullptr))
        << transform.name() << " length " << length;
    return dst;
}

void expectInAllPlaces(const IntegerCase& transform, const Arrays<Tarn16s>& src, const IntegerSpec& spec, int length,
                       int scaleFactor, const Arrays<Tarn16s>& expected)
{
    struct Layout {
        Placement src, dst, buffer;
        bool inPlace, ownBuffer;
    };
    const Placement end = Placement::atEnd();
    const Placement start = Placement::atStart();
    const auto at = [](unsigned bytes) { return Placement::offset(bytes); };
    const Layout layouts[] = {
        {at(0), at(0), at(0), false, false}, {end, end, end, false, false},      {start, start, at(13), false, false},
        {at(1), at(2), at(7), false, false}, {at(6), at(3), at(0), false, true}, {at(0), at(0), end, true, false},
        {at(0), end, at(1), true, false},    {at(0), at(5), at(0), true, true},
    };
    const std::size_t dstSamples = transform.floats.dstReals(length);
    for (const Layout& layout : layouts) {
        std::vector<std::unique_ptr<GuardedArray<Tarn16s>>> from;
        std::vector<std::unique_ptr<GuardedArray<Tarn16s>>> to;
        std::vector<const Tarn16s*> sources;
        std::vector<Tarn16s*> destinations;
        for (const auto& array : src) {
            const std::size_t samples = layout.inPlace ? std::max(dstSamples, array.size()) : dstSamples;
            to.push_back(std::make_unique<GuardedArray<Tarn16s>>(samples, layout.dst));
            destinations.push_back(to.back()->data());
            if (layout.inPlace) {
                to.back()->assign(array);
                sources.push_back(destinations.back());
            } else {
                from.push_back(std::make_unique<GuardedArray<Tarn16s>>(array, layout.src));
                sources.push_back(from.back()->data());
            }
        }
        const GuardedArray<Tarn8u> buffer(static_cast<std::size_t>(spec.bufSize()), layout.buffer);
        const FpState before = FpState::current();
        ASSERT_EQ(tarnStsNoErr, transform.run(sources.data(), destinations.data(), spec.get(), scaleFactor,
                                              layout.ownBuffer ? nullptr : buffer.data()));
        EXPECT_EQ("", before.changesSince());
        for (std::size_t i = 0; i < from.size(); ++i)
            EXPECT_EQ(src[i], from[i]->copy()) << "the source has changed";
        for (std::size_t i = 0; i < to.size(); ++i) {
            auto samples = to[i]->copy();
            samples.resize(dstSamples);
            ASSERT_EQ(expected[i], samples)
                << transform.name() << " length " << length << " layout " << &layout - layouts;
        }
    }
}

Arrays<Tarn16s> throughFloats(const IntegerCase& transform, const Arrays<Tarn16s>& src, int length, int flag,
                              int scaleFactor)
{
    const TransformSpec spec(transform.floats.kind, length, flag);
    Arrays<Tarn32f> from;
    for (const auto& array : src)
        from.emplace_back(array.begin(), array.end());
    Arrays<Tarn32f> to(src.size(), std::vector<Tarn32f>(transform.floats.dstReals(length)));
    const Tarn32f* sources[] = {from[0].data(), from.back().data()};
    Tarn32f* destinations[] = {to[0].data(), to.back().data()};
    EXPECT_EQ(tarnStsNoErr, transform.floats.run(sources, destinations, spec.get(), nullptr));
    const double factor = std::ldexp(1.0, -scaleFactor);
    Arrays<Tarn16s> result;
    for (const auto& array : to) {
        result.emplace_back();
        for (Tarn32f x : array)
            result.back().push_back(nearestSample(x * factor));
    }
    return result;
}

// -- Statuses --------------------------------------------------------------------------------------------------------

namespace {

void* const untouched = reinterpret_cast<void*>(std::uintptr_t{0x1234});

void expectCreationStatuses(const TransformKind& kind, std::span<const int> badLengths, TarnStatus badLength,
                            std::span<const int> goodLengths)
{
    EXPECT_EQ(tarnStsNullPtrErr, kind.create(nullptr, badLengths[0], 3, 0)) << kind.name;
    for (int length : badLengths) {
        void* spec = untouched;
        EXPECT_EQ(badLength, kind.create(&spec, length, 3, 0)) << kind.name << " length " << length;
        EXPECT_EQ(untouched, spec);
    }
    for (int length : goodLengths) {
        for (int flag : {0, 3, 5, 6, 7, 9, 16, -1, INT_MIN}) {
            void* spec = untouched;
            EXPECT_EQ(tarnStsFftFlagErr, kind.create(&spec, length, flag, 0)) << kind.name << " flag " << flag;
            EXPECT_EQ(untouched, spec);
        }
        for (int hint : {0, 1, 2, 77, -5, INT_MIN})
            const IntegerSpec spec(kind, length, TARN_FFT_NODIV_BY_ANY, hint);
    }
}

void expectObjectStatuses(const TransformKind& kind, const std::vector<TransformKind>& others, int length)
{
    const IntegerSpec spec(kind, length, TARN_FFT_NODIV_BY_ANY, 0);
    std::int32_t words[2];
    std::memcpy(words, spec.get(), sizeof words);
    EXPECT_EQ(kind.identifier, words[0]) << kind.name;
    EXPECT_EQ(length, words[1]) << kind.name;

    int size = 4711;
    EXPECT_EQ(tarnStsNullPtrErr, kind.getBufSize(nullptr, &size));
    EXPECT_EQ(tarnStsNullPtrErr, kind.getBufSize(spec.get(), nullptr));
    EXPECT_EQ(tarnStsNullPtrErr, kind.free(nullptr));
    for (const TransformKind& other : others)
        if (other.identifier != kind.identifier) {
            EXPECT_EQ(tarnStsContextMatchErr, other.getBufSize(spec.get(), &size));
            EXPECT_EQ(tarnStsNullPtrErr, other.getBufSize(spec.get(), nullptr)) << "pointers come first";
            EXPECT_EQ(tarnStsContextMatchErr, other.free(spec.get()));
        }
    EXPECT_EQ(4711, size);
}

// Every set of arrays that are missing, with the right object, a wrong one, a freed one and none.
void expectTransformStatuses(const IntegerCase& transform, const std::vector<TransformKind>& others, int length)
{
    const IntegerSpec spec(transform.kind, length, TARN_FFT_NODIV_BY_ANY, 0);
    alignas(16) const Tarn32s freed[64] = {};
    std::vector<Tarn16s> data(4 * std::max(transform.floats.dstReals(length), transform.floats.srcReals(length)), 3);
    const std::vector<Tarn16s> before = data;
    const int arrays = transform.floats.arrays;
    for (int missing = 0; missing < 1 << 2 * arrays; ++missing) {
        const Tarn16s* src[2];
        Tarn16s* dst[2];
        for (int i = 0; i < arrays; ++i) {
            src[i] = (missing >> i & 1) != 0 ? nullptr : data.data();
            dst[i] = (missing >> (arrays + i) & 1) != 0 ? nullptr : data.data();
        }
        EXPECT_EQ(tarnStsNullPtrErr, transform.run(src, dst, nullptr, 0, nullptr)) << transform.name();
        EXPECT_EQ(tarnStsContextMatchErr, transform.run(src, dst, freed, 0, nullptr)) << transform.name();
        for (const TransformKind& other : others) {
            if (other.identifier != transform.kind.identifier) {
                const IntegerSpec foreign(other, length, TARN_FFT_NODIV_BY_ANY, 0);
                EXPECT_EQ(tarnStsContextMatchErr, transform.run(src, dst, foreign.get(), 0, nullptr))
                    << transform.name() << " with " << other.name;
            }
        }
        if (missing != 0) {
            EXPECT_EQ(tarnStsNullPtrErr, transform.run(src, dst, spec.get(), 0, nullptr))
                << transform.name() << " missing " << missing;
        }
        EXPECT_EQ(before, data) << transform.name();
    }
}

} // namespace

void expectStatuses(const std::vector<IntegerCase>& cases, std::span<const int> badLengths, TarnStatus badLength,
                    std::span<const int> goodLengths)
{
    const auto kinds = kindsOf(cases);
    for (const TransformKind& kind : kinds)
        expectCreationStatuses(kind, badLengths, badLength, goodLengths);
    // Objects of floats are foreign too.
    auto others = kinds;
    others.push_back(cases[0].floats.kind);
    others.push_back(cases[4].floats.kind);
    for (int length : goodLengths) {
        for (const TransformKind& kind : kinds)
            expectObjectStatuses(kind, others, length);
        for (const IntegerCase& transform : cases)
            expectTransformStatuses(transform, others, length);
    }
}

} // namespace tarn::test
