// Work memory of a call: the caller's buffer, or one of our own for the length of the call.
#pragma once

#include "frame/object.h"
#include "frame/simd_pack.h"

#include <cstdint>

namespace tarn {

// Bytes that a reported size holds above what is needed, so that a caller's buffer may begin anywhere.
inline constexpr int workAlignment = 16;
static_assert(workAlignment % registerBytes == 0);

class WorkBuffer {
public:
    // `bytes` includes the room for alignment; 0 if the call needs no work memory.
    WorkBuffer(Tarn8u* callers, int bytes)
    {
        if (bytes <= 0) {
            return;
        }
        if (callers == nullptr) {
            own = allocate<Tarn8u>(bytes);
            start = own.get();
            missing = start == nullptr;
        } else {
            start = callers + (0 - reinterpret_cast<std::uintptr_t>(callers)) % workAlignment;
        }
    }

    // True if memory was needed and could not be had.
    bool failed() const { return missing; }

    template <typename T>
    T* as() const
    {
        return reinterpret_cast<T*>(start);
    }

private:
    Owned<Tarn8u[]> own;
    Tarn8u* start = nullptr;
    bool missing = false;
};

} // namespace tarn
