// Front ends of the power-of-two transforms of 16-bit samples: in fixed point up to 8 points, through floats above.
#include "tarns/fftfixed.h"

#include "fft/psfft_creation.h"
#include "frame/integer_transform.h"
#include "levels/fft/psfft.h"
#include "levels/fft/psffti.h"

#include <algorithm>

using namespace tarn;

// -- Objects ---------------------------------------------------------------------------------------------------------

namespace tarn::fft {

// What an object of the fixed road owns; createTables() tells which kind has which.
enum FixedTable { fixedBitRevTab, fixedTwdTab, fixedRealTab, fixedTableCount };

template <typename FloatSpec>
struct IntegerSpec {
    int idCtx;
    int order;
    int fwdShift; // binary places of the flag's division, forward and inverse
    int invShift;
    int oddSqrt; // 1: a factor of sqrt(1/2) besides
    TarnHintAlgorithm hint;
    int bufSize;
    int useFixed;
    void* tables[fixedTableCount];
    FloatSpec* fltSpec;

    template <typename T>
    bool keep(FixedTable which, T* table)
    {
        tables[which] = table;
        return table != nullptr;
    }
    const Tarn16s* factors(FixedTable which) const { return static_cast<const Tarn16s*>(tables[which]); }
    const Tarn32s* reversal() const { return static_cast<const Tarn32s*>(tables[fixedBitRevTab]); }
};

} // namespace tarn::fft

struct TarnsFFTSpec_C_16sc : tarn::fft::IntegerSpec<TarnsFFTSpec_C_32fc> {
    static constexpr int identifier = 1;
    static constexpr bool isReal = false;
};
struct TarnsFFTSpec_C_16s : tarn::fft::IntegerSpec<TarnsFFTSpec_C_32f> {
    static constexpr int identifier = 2;
    static constexpr bool isReal = false;
};
struct TarnsFFTSpec_R_16s : tarn::fft::IntegerSpec<TarnsFFTSpec_R_32f> {
    static constexpr int identifier = 3;
    static constexpr bool isReal = true;
};

TARN_DEFINE_ALL_FLOAT_CALLS(FFT)

namespace tarn::fft {

template <typename Object>
void deleteSpec(Object* object)
{
    freeFloatSpec(*object);
    for (void* table : object->tables) {
        tarnsFree(table);
    }
    releaseObject(object);
}

namespace {

// Orders up to this one have the fixed road.
constexpr int lastFixedOrder = 3;

template <typename Object>
TarnStatus setShifts(Object& spec, int flag)
{
    const Division division = divisionOf(flag);
    const int places = division.byRoot ? spec.order / 2 : spec.order;
    spec.fwdShift = division.forward ? places : 0;
    spec.invShift = division.inverse ? places : 0;
    spec.oddSqrt = division.byRoot ? spec.order % 2 : 0;
    return division.isKnown ? tarnStsNoErr : tarnStsFftFlagErr;
}

// The tables of the fixed road, whose core is a complex transform.
template <typename Object>
TarnStatus createTables(Object& spec)
{
    const int order = Object::isReal ? spec.order - 1 : spec.order;
    if (!spec.keep(fixedBitRevTab, tarns_createTabBitRev(order))) {
        return tarnStsNoMemErr;
    }
    const Owned<Tarn16s[]> base(tarns_createTabTwdBase_16s(spec.order));
    if (!base || !spec.keep(fixedTwdTab, tarns_createTabTwd_R4_16s(order, base.get(), spec.order))) {
        return tarnStsNoMemErr;
    }
    if (Object::isReal && !spec.keep(fixedRealTab, createRealTable_16s(spec.order, base.get()))) {
        return tarnStsNoMemErr;
    }
    return tarnStsNoErr;
}

template <typename Object>
TarnStatus initAlloc(Object** ppSpec, int order, int flag, TarnHintAlgorithm hint)
{
    return createForOrder(ppSpec, order, hint, [=](Object& object) -> TarnStatus {
        if (const TarnStatus status = setShifts(object, flag)) {
            return status;
        }
        if (order == 0) {
            return tarnStsNoErr;
        }
        if (order > lastFixedOrder || (hint != tarnAlgHintNone && hint != tarnAlgHintFast)) {
            return createFloatSpec(object, 1 << order, order, flag, tarnAlgHintNone);
        }
        object.useFixed = 1;
        object.bufSize = Object::isReal ? (4 << order) + 24 : (12 << order) + workAlignment;
        return createTables(object);
    });
}

// -- Transforms ------------------------------------------------------------------------------------------------------

// Binary places of the samples in the words of the fixed road. Sums of N samples fit below the sign; from 8 points on
// an eighth of a turn may make a part larger by sqrt(2).
constexpr int fractionBits(int order) { return 16 - order - (order > 2 ? 1 : 0); }

template <bool forward, typename Object>
int lastShift(const Object& spec, int scaleFactor)
{
    constexpr int farEnough = 1000;
    return std::clamp(scaleFactor, -farEnough, farEnough) + (forward ? spec.fwdShift : spec.invShift) +
           fractionBits(spec.order);
}

// From natural order to natural order.
void transformWords(Tarn32s* words, int size, bool forward, const Tarn16s* factors, const Tarn32s* reversal)
{
    tarns_jFft_Core_16s(reinterpret_cast<Tarn32sc*>(words), size, forward ? 1 : -1, factors);
    tarns_BitRev1_8(words, size, reversal);
}

struct Family {
    static constexpr bool hasFixedRoad = true;

    template <typename Object>
    static int sizeOf(const Object& spec)
    {
        return 1 << spec.order;
    }
    template <typename Object>
    static bool isFixed(const Object& spec)
    {
        return spec.useFixed != 0;
    }

    static Tarn16s rescaled(Tarn16s x, int scaleFactor)
    {
        const Tarn32s word = x;
        Tarn16s result;
        tarns_cnvrt_32s16s(&word, &result, 1, scaleFactor);
        return result;
    }

    template <bool forward>
    static void fixedPairs(const TarnsFFTSpec_C_16sc& spec, const Tarn16s* src, Tarn16s* dst, int scaleFactor,
                           const WorkBuffer& work)
    {
        const int size = sizeOf(spec);
        auto* words = work.as<Tarn32s>();
        tarns_cnvrt_16s32s(src, words, 2 * size, fractionBits(spec.order));
        transformWords(words, size, forward, spec.factors(fixedTwdTab), spec.reversal());
        narrow<forward>(spec, words, dst, 2 * size, scaleFactor);
    }

    // Samples of both arrays go through an array of pairs behind the words; the reversal is of pairs.
    template <bool forward>
    static void fixedParts(const TarnsFFTSpec_C_16s& spec, const Tarn16s* srcRe, const Tarn16s* srcIm, Tarn16s* dstRe,
                           Tarn16s* dstIm, int scaleFactor, const WorkBuffer& work)
    {
        const int size = sizeOf(spec);
        auto* words = work.as<Tarn32s>();
        auto* samples = reinterpret_cast<Tarn16s*>(words + 2 * size);
        auto* elements = reinterpret_cast<Tarn16sc*>(samples);
        tarns_vbFftMerge_16s(srcRe, srcIm, elements, size);
        tarns_cnvrt_16s32s(samples, words, 2 * size, fractionBits(spec.order));
        tarns_jFft_Core_16s(reinterpret_cast<Tarn32sc*>(words), size, forward ? 1 : -1, spec.factors(fixedTwdTab));
        narrow<forward>(spec, words, samples, 2 * size, scaleFactor);
        tarns_BitRev1_4(samples, size, spec.reversal());
        tarns_vbFftSplit_16s(elements, dstRe, dstIm, size);
    }

    static void fixedToPerm(const TarnsFFTSpec_R_16s& spec, const Tarn16s* src, Tarn16s* dst, int scaleFactor,
                            const WorkBuffer& work)
    {
        const int size = sizeOf(spec);
        auto* words = work.as<Tarn32s>();
        tarns_cnvrt_16s32s(src, words, size, fractionBits(spec.order));
        if (size > 2) {
            transformWords(words, size / 2, true, spec.factors(fixedTwdTab), spec.reversal());
            tarns_jRealRecombine_16s(words, size / 2, 1, spec.factors(fixedRealTab));
        }
        storeSumAndDifference(words, words[0], words[1]);
        narrow<true>(spec, words, dst, size, scaleFactor);
    }

    template <typename Packing>
    static void fixedFromPerm(const TarnsFFTSpec_R_16s& spec, const Tarn16s* src, Tarn16s* dst, int scaleFactor,
                              const WorkBuffer& work)
    {
        const int size = sizeOf(spec);
        Tarn16s perm[1 << lastFixedOrder];
        copyToPerm<Packing>(src, static_cast<Tarn16s*>(perm), size);
        auto* words = work.as<Tarn32s>();
        tarns_cnvrt_16s32s(static_cast<const Tarn16s*>(perm), words, size, fractionBits(spec.order));
        storeSumAndDifference(words, words[0], words[1]);
        if (size > 2) {
            tarns_jCcsRecombine_16s(words, size / 2, -1, spec.factors(fixedRealTab));
            transformWords(words, size / 2, false, spec.factors(fixedTwdTab), spec.reversal());
        }
        narrow<false>(spec, words, dst, size, scaleFactor);
    }

private:
    template <bool forward, typename Object>
    static void narrow(const Object& spec, Tarn32s* words, Tarn16s* dst, int len, int scaleFactor)
    {
        if (spec.oddSqrt != 0) {
            tarns_ibMpyBySqrt2_32s(words, len);
        }
        tarns_cnvrt_32s16s(words, dst, len, lastShift<forward>(spec, scaleFactor));
    }
};

using Transforms = IntegerTransforms<Family>;

} // namespace
} // namespace tarn::fft

TARN_INTEGER_FRONT_ENDS(FFT, fft, order)
