// The functions of the cosine transforms by direction and element type, behind one face.
#pragma once

#include "tarns/dct.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn::test {

/// `scaleFactor` counts for integers only.
struct DctKind {
    std::string name;
    bool forward;
    int identifier;
    std::size_t bytes; ///< of an element
    TarnStatus (*create)(void** ppSpec, int length, TarnHintAlgorithm hint);
    TarnStatus (*free)(void* spec);
    TarnStatus (*getBufSize)(const void* spec, int* size);
    TarnStatus (*run)(const void* src, void* dst, const void* spec, int scaleFactor, Tarn8u* buffer);
};

#define TARN_DCT_KIND(DIRECTION, FORWARD, TAG, ID, CALL)                                                      \
    DctKind                                                                                                   \
    {                                                                                                         \
#DIRECTION "_" #TAG, FORWARD, ID, sizeof(Tarn##TAG),                                                        \
            [](void** pp, int length, TarnHintAlgorithm hint) {                                                     \
                return tarnsDCT##DIRECTION##InitAlloc_##TAG(reinterpret_cast<TarnsDCT##DIRECTION##Spec_##TAG**>(pp), \
                                                            length, hint);                                          \
            },                                                                                                      \
            [](void* spec) {                                                                                        \
                return tarnsDCT##DIRECTION##Free_##TAG(static_cast<TarnsDCT##DIRECTION##Spec_##TAG*>(spec));        \
            },                                                                                                      \
            [](const void* spec, int* size) {                                                                       \
                return tarnsDCT##DIRECTION##GetBufSize_##TAG(                                                       \
                    static_cast<const TarnsDCT##DIRECTION##Spec_##TAG*>(spec), size);                               \
            },                                                                                                      \
            [](const void* src, void* dst, const void* s, [[maybe_unused]] int scaleFactor, Tarn8u* buffer) {       \
                const auto* pSrc = static_cast<const Tarn##TAG*>(src);                                              \
                auto* pDst = static_cast<Tarn##TAG*>(dst);                                                          \
                const auto* spec = static_cast<const TarnsDCT##DIRECTION##Spec_##TAG*>(s);                          \
                return CALL;                                                                                        \
            } \
    }

inline const std::vector<DctKind>& dctKinds()
{
    static const std::vector<DctKind> kinds = {
        TARN_DCT_KIND(Fwd, true, 16s, 19, tarnsDCTFwd_16s_Sfs(pSrc, pDst, spec, scaleFactor, buffer)),
        TARN_DCT_KIND(Inv, false, 16s, 20, tarnsDCTInv_16s_Sfs(pSrc, pDst, spec, scaleFactor, buffer)),
        TARN_DCT_KIND(Fwd, true, 32f, 21, tarnsDCTFwd_32f(pSrc, pDst, spec, buffer)),
        TARN_DCT_KIND(Inv, false, 32f, 22, tarnsDCTInv_32f(pSrc, pDst, spec, buffer)),
        TARN_DCT_KIND(Fwd, true, 64f, 23, tarnsDCTFwd_64f(pSrc, pDst, spec, buffer)),
        TARN_DCT_KIND(Inv, false, 64f, 24, tarnsDCTInv_64f(pSrc, pDst, spec, buffer)),
    };
    return kinds;
}
#undef TARN_DCT_KIND

/// An object with an owner.
class DctSpec {
public:
    DctSpec(const DctKind& kindOfSpec, int length, TarnHintAlgorithm hint = tarnAlgHintNone) : kind(kindOfSpec)
    {
        EXPECT_EQ(tarnStsNoErr, kind.create(&spec, length, hint)) << kind.name << " length " << length;
    }
    ~DctSpec() { EXPECT_EQ(tarnStsNoErr, kind.free(spec)); }
    DctSpec(const DctSpec&) = delete;
    DctSpec& operator=(const DctSpec&) = delete;

    const void* get() const { return spec; }
    int bufSize() const
    {
        int size = -1;
        EXPECT_EQ(tarnStsNoErr, kind.getBufSize(spec, &size));
        return size;
    }

private:
    const DctKind& kind;
    void* spec = nullptr;
};

} // namespace tarn::test
