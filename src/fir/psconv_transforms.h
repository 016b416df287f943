// Transforms that serve one call: a specification, and one block of memory for spectra and work, both for its length.
#pragma once

#include "fft/psfft_convolving.h"
#include "frame/bytes.h"
#include "frame/overlap_save.h"
#include "tarns/convert.h"

#include <bit>

namespace tarn {

// -- Elements and what is computed in ---------------------------------------------------------------------------------

// 16-bit integers are computed in single precision, all others in their own type.
template <typename S>
using ComputedIn = std::conditional_t<std::is_same_v<S, Tarn16s>, Tarn32f, S>;

inline void toComputed(const Tarn16s* src, Tarn32f* dst, int len) { tarnsConvert_16s32f(src, dst, len); }
template <typename T>
inline void toComputed(const T* src, T* dst, int len)
{
    copy(src, dst, len);
}

inline void toResults(const Tarn32f* src, Tarn16s* dst, int len, int scaleFactor)
{
    tarnsConvert_32f16s_Sfs(src, dst, len, tarnRndNear, scaleFactor);
}
template <typename T>
inline void toResults(const T* src, T* dst, int len, int /*scaleFactor*/)
{
    copy(src, dst, len);
}

// `len` elements, with zeros behind them up to `size`.
template <typename S, typename T>
inline void extendByZeros(const S* src, int len, T* dst, int size)
{
    toComputed(src, dst, len);
    zeroFill(dst + len, size - len);
}

// -- Transforms -------------------------------------------------------------------------------------------------------

// The order of the smallest power of two, from 2^least on, that is not below len.
inline int orderOfSize(long long len, int least)
{
    return std::max(least, static_cast<int>(std::bit_width(static_cast<unsigned long long>(len - 1))));
}

// `Calls` has the transform's functions; see TransformCalls.
template <typename T, typename Calls = TransformCalls<T>>
class OneCall {
public:
    using Spec = typename Calls::Spec;

    // The specification, and memory for so many blocks of 2^order elements, work areas, and elements more.
    TarnStatus prepare(int order, int blocks, int works = 1, int more = 0)
    {
        Spec* created = nullptr;
        if (const TarnStatus status = Calls::initAlloc(&created, order, TARN_FFT_DIV_INV_BY_N, tarnAlgHintNone)) {
            return status;
        }
        specification.reset(created);
        int workBytes = 0;
        if (const TarnStatus status = Calls::getBufSize(created, &workBytes)) {
            return status;
        }
        length = 1 << order;
        count = blocks;
        workLen = (workBytes + static_cast<int>(sizeof(T)) - 1) / static_cast<int>(sizeof(T));
        memory = allocate<T>(static_cast<long long>(length) * blocks + static_cast<long long>(workLen) * works + more);
        rest = static_cast<std::ptrdiff_t>(length) * blocks + static_cast<std::ptrdiff_t>(workLen) * works;
        return memory ? tarnStsNoErr : tarnStsNoMemErr;
    }

    int size() const { return length; }
    const Spec* spec() const { return specification.get(); }
    T* block(int index) const { return memory.get() + static_cast<std::ptrdiff_t>(length) * index; }
    Tarn8u* work(int index = 0) const
    {
        return reinterpret_cast<Tarn8u*>(block(count) + static_cast<std::ptrdiff_t>(workLen) * index);
    }
    T* more() const { return memory.get() + rest; }

    // In place.
    TarnStatus forward(T* data) const { return Calls::forward(data, data, spec(), work()); }
    TarnStatus inverse(T* data) const { return Calls::inverse(data, data, spec(), work()); }

private:
    struct ReleaseSpecification {
        void operator()(Spec* spec) const { Calls::free(spec); }
    };

    std::unique_ptr<Spec, ReleaseSpecification> specification;
    Owned<T[]> memory;
    int length = 0;
    int count = 0;
    int workLen = 0;
    std::ptrdiff_t rest = 0;
};

} // namespace tarn
