// A-law and mu-law, one byte or sample at a time: what the decoders give, the intervals of the coders, the steps of
// one law by those of the other.
#pragma once

#include "tarncore.h"

#include <array>

namespace tarn::test::model {

inline Tarn16s aLawValue(Tarn8u a)
{
    const int b = a ^ 0x55;
    const int m = b & 15;
    const int s = (b >> 4) & 7;
    const int t = s == 0 ? 16 * m + 8 : (16 * m + 264) << (s - 1);
    return static_cast<Tarn16s>((b & 128) != 0 ? t : -t);
}

inline Tarn16s muLawValue(Tarn8u u)
{
    const int b = ~u & 255;
    const int t = (8 * (b & 15) + 132) << ((b >> 4) & 7);
    return static_cast<Tarn16s>((b & 128) != 0 ? 132 - t : t - 132);
}

/// The value as a float: division by a power of two is exact.
inline Tarn32f asFloat(Tarn16s value) { return static_cast<Tarn32f>(value) / 32768; }

inline Tarn8u aLawOf(int s)
{
    int v = (s + 32768) / 8 - 4096; // towards minus infinity
    int mask = 0xD5;
    if (v < 0) {
        mask = 0x55;
        v = -v - 1;
    }
    int segment = 0;
    while (v > (32 << segment) - 1)
        ++segment;
    const int m = segment < 2 ? v / 2 % 16 : (v >> segment) % 16;
    return static_cast<Tarn8u>((segment * 16 + m) ^ mask);
}

/// The sign is given apart: a float that rounds to 0 keeps its own.
inline Tarn8u muLawOf(int s, bool positive)
{
    const int v = s < 0 ? -s - 1 : s;
    int x = v / 4 + 33;
    if (x > 8191)
        x = 8191;
    int k = 1;
    while (x >> (k + 5) != 0)
        ++k;
    const int byte = (8 - k) * 16 + 15 - (x >> k) % 16;
    return static_cast<Tarn8u>(byte + (positive ? 128 : 0));
}
inline Tarn8u muLawOf(int s) { return muLawOf(s, s >= 0); }

/// The sample nearest to a float of full scale 1; single precision, and the rounding mode that is in force.
inline int sampleOf(Tarn32f x)
{
    const Tarn32f v = x * 32768.0F;
    if (v > 32767.0F)
        return 32767;
    if (v < -32768.0F)
        return -32768;
    if (v >= 0) {
        const Tarn32f moved = v + 0.5F;
        return static_cast<int>(moved);
    }
    if (v < 0) {
        const Tarn32f moved = v - 0.5F;
        return static_cast<int>(moved);
    }
    return 0; // not a number
}

/// Steps of one law from zero up, as steps of the other: from `first` on, `across` of them for every `up` of the other.
struct Piece {
    int first;
    int value;
    int across;
    int up;
};

template <std::size_t N>
int stepOf(const std::array<Piece, N>& pieces, int step)
{
    const Piece* piece = pieces.data();
    while (piece + 1 != pieces.data() + N && piece[1].first <= step)
        ++piece;
    return piece->value + (step - piece->first) / piece->across * piece->up;
}

// A byte of A-law has its step below every other bit inverted, one of mu-law all of it; of both, the sign stays.
inline Tarn8u muLawOfALaw(Tarn8u a)
{
    static constexpr std::array<Piece, 8> pieces = {{{0, 1, 1, 2},
                                                     {8, 16, 1, 1},
                                                     {24, 32, 2, 1},
                                                     {32, 36, 1, 1},
                                                     {44, 48, 2, 1},
                                                     {48, 50, 1, 1},
                                                     {63, 64, 1, 1},
                                                     {80, 80, 1, 1}}};
    return static_cast<Tarn8u>(a / 128 * 128 + 127 - stepOf(pieces, a % 128 ^ 0x55));
}

inline Tarn8u aLawOfMuLaw(Tarn8u u)
{
    static constexpr std::array<Piece, 8> pieces = {{{0, 0, 2, 1},
                                                     {16, 8, 1, 1},
                                                     {32, 24, 1, 2},
                                                     {36, 32, 1, 1},
                                                     {48, 45, 1, 2},
                                                     {50, 48, 1, 1},
                                                     {64, 63, 1, 1},
                                                     {81, 81, 1, 1}}};
    return static_cast<Tarn8u>(u / 128 * 128 + (stepOf(pieces, 127 - u % 128) ^ 0x55));
}

} // namespace tarn::test::model
