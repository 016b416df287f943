// Front ends of the transforms of 16-bit samples of any length, all through floats.
#include "tarns/dftfixed.h"

#include "frame/integer_transform.h"
#include "tarns/dft.h"

// -- Objects ---------------------------------------------------------------------------------------------------------

namespace tarn::dft {

template <typename FloatSpec>
struct IntegerSpec {
    int idCtx;
    int length;
    TarnHintAlgorithm hint;
    int bufSize;
    FloatSpec* fltSpec; // null for a length of 1
};

} // namespace tarn::dft

struct TarnsDFTSpec_C_16sc : tarn::dft::IntegerSpec<TarnsDFTSpec_C_32fc> {
    static constexpr int identifier = 10;
    static constexpr bool isReal = false;
};
struct TarnsDFTSpec_C_16s : tarn::dft::IntegerSpec<TarnsDFTSpec_C_32f> {
    static constexpr int identifier = 11;
    static constexpr bool isReal = false;
};
struct TarnsDFTSpec_R_16s : tarn::dft::IntegerSpec<TarnsDFTSpec_R_32f> {
    static constexpr int identifier = 12;
    static constexpr bool isReal = true;
};

TARN_DEFINE_ALL_FLOAT_CALLS(DFT)

namespace tarn::dft {

template <typename Object>
void deleteSpec(Object* object)
{
    freeFloatSpec(*object);
    releaseObject(object);
}

namespace {

template <typename Object>
TarnStatus initAlloc(Object** ppSpec, int length, int flag, TarnHintAlgorithm hint)
{
    if (ppSpec == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (length < 1) {
        return tarnStsSizeErr;
    }
    return createSpec(ppSpec, [=](Object& object) -> TarnStatus {
        object.length = length;
        object.hint = hint;
        if (length == 1) {
            return divisionOf(flag).isKnown ? tarnStsNoErr : tarnStsFftFlagErr;
        }
        return createFloatSpec(object, length, length, flag, tarnAlgHintFast);
    });
}

struct Family {
    static constexpr bool hasFixedRoad = false;

    template <typename Object>
    static int sizeOf(const Object& spec)
    {
        return spec.length;
    }

    // As longer transforms do, where halves round to the even sample.
    static Tarn16s rescaled(Tarn16s x, int scaleFactor)
    {
        const Tarn32f value = x;
        Tarn16s result;
        tarnsConvert_32f16s_Sfs(&value, &result, 1, tarnRndNear, scaleFactor);
        return result;
    }
};

using Transforms = IntegerTransforms<Family>;

} // namespace
} // namespace tarn::dft

TARN_INTEGER_FRONT_ENDS(DFT, dft, length)
