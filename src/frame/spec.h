// The specifications of transforms: objects that are made once for a length, and only read afterwards.
#pragma once

#include "frame/object.h"
#include "tarns/fft.h"

#include <cmath>

namespace tarn {

// -- Normalisation ---------------------------------------------------------------------------------------------------

// Which directions of a transform of N points a flag has divided by N, or by its root; not known if it is no flag.
struct Division {
    bool isKnown;
    bool forward;
    bool inverse;
    bool byRoot;
};

constexpr Division divisionOf(int flag)
{
    switch (flag) {
    case TARN_FFT_DIV_FWD_BY_N:
        return {true, true, false, false};
    case TARN_FFT_DIV_INV_BY_N:
        return {true, false, true, false};
    case TARN_FFT_DIV_BY_SQRTN:
        return {true, true, true, true};
    default:
        return {flag == TARN_FFT_NODIV_BY_ANY, false, false, false};
    }
}

// Sets the fields `doFwdDiv`, `doInvDiv` and `normFactor` of a new specification, where all is zero.
template <typename Object>
inline TarnStatus setScaling(Object& spec, int flag, int size)
{
    using T = decltype(spec.normFactor);
    const Division division = divisionOf(flag);
    spec.doFwdDiv = division.forward ? 1 : 0;
    spec.doInvDiv = division.inverse ? 1 : 0;
    if (division.byRoot) {
        spec.normFactor = static_cast<T>(1.0 / std::sqrt(static_cast<double>(size)));
    } else if (division.forward || division.inverse) {
        spec.normFactor = T{1} / static_cast<T>(size);
    }
    return division.isKnown ? tarnStsNoErr : tarnStsFftFlagErr;
}

template <bool forward, typename Object>
inline bool isScaled(const Object& spec)
{
    return (forward ? spec.doFwdDiv : spec.doInvDiv) != 0;
}

// -- The object's life -----------------------------------------------------------------------------------------------

// A kind has, in its own namespace, a function deleteSpec(object) that frees what an object owns and then, by
// releaseObject(), the object. The field `bufSize` is the work memory of a transform (see workbuf.h).

// Makes an object that `build` completes, and hands it out; or frees what there is of it.
template <typename Object, typename Build>
inline TarnStatus createSpec(Object** ppSpec, Build build)
{
    Object* const object = createObject<Object>();
    if (object == nullptr) {
        return tarnStsNoMemErr;
    }
    if (const TarnStatus status = build(*object)) {
        deleteSpec(object);
        return status;
    }
    *ppSpec = object;
    return tarnStsNoErr;
}

template <typename Object>
inline TarnStatus freeSpec(Object* pSpec)
{
    if (const TarnStatus status = checkObject(pSpec)) {
        return status;
    }
    deleteSpec(pSpec);
    return tarnStsNoErr;
}

template <typename Object>
inline TarnStatus getBufSize(const Object* pSpec, int* pSize)
{
    if (pSpec == nullptr || pSize == nullptr) {
        return tarnStsNullPtrErr;
    }
    if (const TarnStatus status = checkObject(pSpec)) {
        return status;
    }
    *pSize = pSpec->bufSize;
    return tarnStsNoErr;
}

// -- Transforms ------------------------------------------------------------------------------------------------------

// The checks of a transform, which looks at the object first.
template <typename Object, typename... T>
inline TarnStatus checkTransform(const Object* pSpec, const T*... arrays)
{
    if (const TarnStatus status = checkObject(pSpec)) {
        return status;
    }
    return ((arrays == nullptr) || ...) ? tarnStsNullPtrErr : tarnStsNoErr;
}

} // namespace tarn
