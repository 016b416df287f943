// Layouts of taps: as the block kernels multiply by them, and as the single-sample kernels do.
#pragma once

#include "frame/simd.h"

namespace tarn {

// How a tap of type T lies in the table of the block kernels, and how samples are multiplied by it. `width` is in
// parts.
template <typename T>
struct TapLayout;

// As often as 16 bytes hold it.
template <Float T>
struct TapLayout<T> {
    static constexpr int width = 16 / static_cast<int>(sizeof(T));

    static constexpr int tableLen(int tapsLen) { return width * tapsLen; }
    static void write(T tap, T* table) { store(table, splat<Pack<T, width>>(tap)); }
    static TARN_INLINE T multiply(T x, const T* table) { return mul(x, *table); }
    template <int N>
    static TARN_INLINE Pack<T, N> multiply(Pack<T, N> x, const T* table)
    {
        return mul(x, loadRepeated<N>(table));
    }
};

// The real part in all lanes, then the imaginary part with the sign that it has for each part of the product. Two lists
// of pairs in reversed order follow, (re, -im) and (im, re): a dot product with one of them is a part of the result.
template <>
struct TapLayout<Tarn32fc> {
    static constexpr int width = 8;

    static constexpr int pairLists = 2;
    static constexpr int listLen(int tapsLen) { return 8 * ((2 * tapsLen + 7) >> 3); }
    static constexpr int tableLen(int tapsLen) { return width * tapsLen + pairLists * listLen(tapsLen); }
    static void write(Tarn32fc tap, Tarn32f* table)
    {
        for (int i = 0; i < width / 2; i += 2) {
            store(table + i, tap.re);
            store(table + i + 1, tap.re);
            store(table + width / 2 + i, -tap.im);
            store(table + width / 2 + i + 1, tap.im);
        }
    }
    static TARN_INLINE Tarn32fc multiply(Tarn32fc x, const Tarn32f* table)
    {
        // A product with a negative rounds like the vectors' in every mode; a difference of products does not.
        return {add(mul(x.re, table[0]), mul(x.im, table[width / 2])),
                add(mul(x.im, table[1]), mul(x.re, table[width / 2 + 1]))};
    }
    template <int N>
    static TARN_INLINE Pack<Tarn32fc, N> multiply(Pack<Tarn32fc, N> x, const Tarn32f* table)
    {
        const auto byRe = mul(reinterpretPack<Tarn32f>(x), loadRepeated<2 * N>(table));
        const auto byIm = mul(reinterpretPack<Tarn32f>(swapParts(x)), loadRepeated<2 * N>(table + width / 2));
        return reinterpretPack<Tarn32fc>(add(byRe, byIm));
    }
};

// The tap, and the tap with its parts exchanged.
template <>
struct TapLayout<Tarn64fc> {
    static constexpr int width = 4;

    static constexpr int tableLen(int tapsLen) { return width * tapsLen; }
    static void write(Tarn64fc tap, Tarn64f* table)
    {
        const Tarn64f parts[width] = {tap.re, tap.im, tap.im, tap.re};
        std::memcpy(table, parts, sizeof parts);
    }
    static TARN_INLINE Tarn64fc multiply(Tarn64fc x, const Tarn64f* table)
    {
        return mulComplex(Tarn64fc{table[0], table[1]}, x);
    }
    template <int N>
    static TARN_INLINE Pack<Tarn64fc, N> multiply(Pack<Tarn64fc, N> x, const Tarn64f* table)
    {
        return mulSpread(x, loadRepeated<2 * N>(table), loadRepeated<2 * N>(table + width / 2));
    }
};

// Fills the table from taps in their natural order.
template <typename T>
void writeTapTable(const T* taps, int tapsLen, Part<T>* table)
{
    for (int k = 0; k < tapsLen; ++k) {
        TapLayout<T>::write(loadElement(taps + k), table + TapLayout<T>::width * k);
    }
    if constexpr (std::is_same_v<T, Tarn32fc>) {
        Tarn32f* const first = table + TapLayout<T>::width * tapsLen;
        Tarn32f* const second = first + TapLayout<T>::listLen(tapsLen);
        std::memset(first, 0, sizeof(Tarn32f) * static_cast<std::size_t>(4 * tapsLen + 12));
        for (int k = 0; k < tapsLen; ++k) {
            const Tarn32fc tap = loadElement(taps + tapsLen - 1 - k);
            first[2 * k] = tap.re;
            first[2 * k + 1] = -tap.im;
            second[2 * k] = tap.im;
            second[2 * k + 1] = tap.re;
        }
    }
}

} // namespace tarn
