// The multi-rate FIR families behind one set of function pointers, with numbers for elements: one driver serves them
// all.
#pragma once

#include "tarns.h"

#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace tarn::test {

/// An element of any type, as numbers.
struct Number {
    double re = 0;
    double im = 0;
    friend bool operator==(const Number&, const Number&) = default;
};
using Numbers = std::vector<Number>;

/// How elements of a type lie in memory.
struct ElementType {
    std::size_t size;
    int integerBits; ///< of a part; 0 for floats
    bool isComplex;
    void (*put)(void* at, Number x);
    Number (*get)(const void* at);
};

template <class T>
ElementType elementTypeOf()
{
    struct Parts {
        static void put(void* at, Number x)
        {
            if constexpr (requires(T t) { t.re; }) {
                using Part = decltype(T::re);
                const T value = {static_cast<Part>(x.re), static_cast<Part>(x.im)};
                std::memcpy(at, &value, sizeof value);
            } else {
                const T value = static_cast<T>(x.re);
                std::memcpy(at, &value, sizeof value);
            }
        }
        static Number get(const void* at)
        {
            T value;
            std::memcpy(&value, at, sizeof value);
            if constexpr (requires(T t) { t.re; })
                return {static_cast<double>(value.re), static_cast<double>(value.im)};
            else
                return {static_cast<double>(value), 0};
        }
        static constexpr int integerBits()
        {
            if constexpr (requires(T t) { t.re; })
                return std::is_integral_v<decltype(T::re)> ? static_cast<int>(8 * sizeof(T::re)) : 0;
            else
                return std::is_integral_v<T> ? static_cast<int>(8 * sizeof(T)) : 0;
        }
    };
    return {sizeof(T), Parts::integerBits(), requires(T t){t.re;
}
, Parts::put, Parts::get
}; // namespace tarn::test
}

struct Rates {
    int taps, up, upPhase, down, downPhase;

    int history() const { return (taps + up - 1) / up; }
};

struct ErasedFir {
    std::string name;
    ElementType tap, sample;
    bool isIntegerTap; ///< kept as integers, whatever they are given as
    bool scaled;
    TarnStatus (*initAlloc)(void** state, const void* taps, const Rates& rates, const void* line);
    TarnStatus (*init)(void** state, const void* taps, const Rates& rates, const void* line, Tarn8u* buffer);
    TarnStatus (*size)(int taps, int up, int down, int* bytes);
    TarnStatus (*singleSize)(int taps, int* bytes);
    TarnStatus (*setTaps)(const void* taps, void* state);
    TarnStatus (*getTaps)(const void* state, void* taps);
    TarnStatus (*setDlyLine)(void* state, const void* line);
    TarnStatus (*getDlyLine)(const void* state, void* line);
    TarnStatus (*filter)(const void* src, void* dst, int n, void* state, int scaleFactor);
    TarnStatus (*inPlace)(void* srcDst, int n, void* state, int scaleFactor);
    TarnStatus (*one)(void* dst, void* state);
    TarnStatus (*free)(void* state);

    bool isRealFloatTap() const { return !isIntegerTap && !tap.isComplex; }
};

/// All sixteen.
const std::vector<ErasedFir>& erasedFirs();

/// The elements of an array, and an array of elements.
std::vector<unsigned char> packed(const ElementType& type, const Numbers& values);
Numbers unpacked(const ElementType& type, const unsigned char* bytes, std::size_t count);

} // namespace tarn::test
