// Bitwise logic and shifts by a constant.
#include "tarns/logic.h"

#include "support/checks.h"
#include "support/sweep.h"

#include <gtest/gtest.h>

#include <climits>

namespace tarn::test {
namespace {

/// The logic of one bit, carried out bit by bit.
template <class T, class Bit>
T bitwise(T a, T b, Bit bit)
{
    unsigned long long result = 0;
    for (int i = 0; i < static_cast<int>(8 * sizeof(T)); ++i) {
        const bool x = (a / (1ULL << i)) % 2 != 0;
        const bool y = (b / (1ULL << i)) % 2 != 0;
        if (bit(x, y))
            result += 1ULL << i;
    }
    return static_cast<T>(result);
}

template <class T>
struct Logic {
    const char* name;
    TarnStatus (*vectors)(const T*, const T*, T*, int);
    TarnStatus (*vectorsInPlace)(const T*, T*, int);
    TarnStatus (*constant)(const T*, T, T*, int);
    TarnStatus (*constantInPlace)(T, T*, int);
    bool (*bit)(bool, bool);
};

constexpr auto bothBits = [](bool x, bool y) { return x && y; };
constexpr auto eitherBit = [](bool x, bool y) { return x || y; };
constexpr auto oneBit = [](bool x, bool y) { return x != y; };

template <class T>
void testLogic(const Logic<T>& logic)
{
    SCOPED_TRACE(logic.name);
    const auto model = [&](T a, T b) { return bitwise(a, b, logic.bit); };
    sweepElementwise<T, T, T>(logic.vectors, model);
    sweepInPlace<T, T>(logic.vectorsInPlace, model);
    expectChecks(logic.vectors);
    expectChecks(logic.vectorsInPlace);
    expectChecks(logic.constant);
    expectChecks(logic.constantInPlace);
    for (const T val : {T{0}, T{1}, static_cast<T>(0x5A), static_cast<T>(0x80C3A596), static_cast<T>(~T{0})}) {
        const auto withVal = [&](T a) { return bitwise(a, val, logic.bit); };
        const Depth depth = val == T{1} ? Depth::full : Depth::quick;
        sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return logic.constant(src, val, dst, len); },
                               withVal, {.depth = depth});
        sweepInPlace<T>([&](T* srcDst, int len) { return logic.constantInPlace(val, srcDst, len); }, withVal,
                        {.depth = depth});
    }
}

#define TARN_LOGIC(OP, TAG, BIT)                                                                                \
    Logic<Tarn##TAG>                                                                                            \
    {                                                                                                           \
#OP "_" #TAG, tarns##OP##_##TAG, tarns##OP##_##TAG##_I, tarns##OP##C_##TAG, tarns##OP##C_##TAG##_I, BIT \
    }

TEST(Logic, AndAgreesWithTheModel)
{
    testLogic(TARN_LOGIC(And, 8u, bothBits));
    testLogic(TARN_LOGIC(And, 16u, bothBits));
    testLogic(TARN_LOGIC(And, 32u, bothBits));
}

TEST(Logic, OrAgreesWithTheModel)
{
    testLogic(TARN_LOGIC(Or, 8u, eitherBit));
    testLogic(TARN_LOGIC(Or, 16u, eitherBit));
    testLogic(TARN_LOGIC(Or, 32u, eitherBit));
}

TEST(Logic, XorAgreesWithTheModel)
{
    testLogic(TARN_LOGIC(Xor, 8u, oneBit));
    testLogic(TARN_LOGIC(Xor, 16u, oneBit));
    testLogic(TARN_LOGIC(Xor, 32u, oneBit));
}

template <class T>
void testNot(TarnStatus (*call)(const T*, T*, int), TarnStatus (*inPlace)(T*, int))
{
    const auto model = [](T a) { return bitwise(a, a, [](bool x, bool) { return !x; }); };
    sweepElementwise<T, T>(call, model);
    sweepInPlace<T>(inPlace, model);
    expectChecks(call);
    expectChecks(inPlace);
}

TEST(Logic, NotAgreesWithTheModel)
{
    testNot(tarnsNot_8u, tarnsNot_8u_I);
    testNot(tarnsNot_16u, tarnsNot_16u_I);
    testNot(tarnsNot_32u, tarnsNot_32u_I);
}

TEST(Logic, WorkedValues)
{
    Tarn8u x = 0x0F;
    EXPECT_EQ(tarnStsNoErr, tarnsNot_8u(&x, &x, 1));
    EXPECT_EQ(0xF0, x);
    x = 0xFF;
    EXPECT_EQ(tarnStsNoErr, tarnsLShiftC_8u(&x, 4, &x, 1));
    EXPECT_EQ(0xF0, x);
    Tarn16s signs[] = {-1, 1};
    EXPECT_EQ(tarnStsNoErr, tarnsRShiftC_16s_I(1, signs, 2));
    EXPECT_EQ(-1, signs[0]);
    EXPECT_EQ(0, signs[1]);
    signs[1] = 1;
    EXPECT_EQ(tarnStsNoErr, tarnsRShiftC_16s_I(16, signs, 2));
    EXPECT_EQ(-1, signs[0]);
    EXPECT_EQ(0, signs[1]);
    Tarn16u words[] = {0xFFFF, 0x8000};
    EXPECT_EQ(tarnStsNoErr, tarnsRShiftC_16u_I(16, words, 2));
    EXPECT_EQ(0, words[0]);
    EXPECT_EQ(0, words[1]);
}

template <class T>
T shiftedLeft(T x, int n)
{
    using U = std::make_unsigned_t<T>;
    U result = static_cast<U>(x);
    for (int i = 0; i < n && result != 0; ++i)
        result = static_cast<U>(result + result);
    return static_cast<T>(result);
}

/// Halved n times, each time rounded down.
template <class T>
T shiftedRight(T x, int n)
{
    long long result = x;
    for (int i = 0; i < n && result != 0 && result != -1; ++i)
        result = (result - (result % 2 != 0 && result < 0 ? 1 : 0)) / 2;
    return static_cast<T>(result);
}

template <class T, class Model>
void testShift(TarnStatus (*call)(const T*, int, T*, int), TarnStatus (*inPlace)(int, T*, int), Model model)
{
    constexpr int width = 8 * static_cast<int>(sizeof(T));
    std::vector<int> counts = {width + 1, 2 * width, 64, 255, 256, 65536, INT_MAX};
    for (int n = 0; n <= width; ++n)
        counts.push_back(n);
    for (const int n : counts) {
        SCOPED_TRACE("shift by " + std::to_string(n));
        const Depth depth = n == 3 || n == width ? Depth::full : Depth::quick;
        const auto expected = [&](T x) { return model(x, n); };
        sweepElementwise<T, T>([&](const T* src, T* dst, int len) { return call(src, n, dst, len); }, expected,
                               {.depth = depth});
        sweepInPlace<T>([&](T* srcDst, int len) { return inPlace(n, srcDst, len); }, expected, {.depth = depth});
    }
    const auto count = param(1, {-1, INT_MIN}, tarnStsShiftErr);
    expectChecks(call, {}, array, count, array, length);
    expectChecks(inPlace, {}, count, array, length);
}

TEST(Shift, LeftAgreesWithTheModel)
{
    testShift<Tarn8u>(tarnsLShiftC_8u, tarnsLShiftC_8u_I, shiftedLeft<Tarn8u>);
    testShift<Tarn16u>(tarnsLShiftC_16u, tarnsLShiftC_16u_I, shiftedLeft<Tarn16u>);
    testShift<Tarn16s>(tarnsLShiftC_16s, tarnsLShiftC_16s_I, shiftedLeft<Tarn16s>);
    testShift<Tarn32s>(tarnsLShiftC_32s, tarnsLShiftC_32s_I, shiftedLeft<Tarn32s>);
}

TEST(Shift, RightAgreesWithTheModel)
{
    testShift<Tarn8u>(tarnsRShiftC_8u, tarnsRShiftC_8u_I, shiftedRight<Tarn8u>);
    testShift<Tarn16u>(tarnsRShiftC_16u, tarnsRShiftC_16u_I, shiftedRight<Tarn16u>);
    testShift<Tarn16s>(tarnsRShiftC_16s, tarnsRShiftC_16s_I, shiftedRight<Tarn16s>);
    testShift<Tarn32s>(tarnsRShiftC_32s, tarnsRShiftC_32s_I, shiftedRight<Tarn32s>);
}

/// A shift by the width zero-fills: the source is not looked at.
TEST(Shift, OutOfTheElementReadsNothing)
{
    std::vector<Tarn8u> bytes(100, 7);
    EXPECT_EQ(tarnStsNoErr, tarnsLShiftC_8u(unreadable<Tarn8u>(), 8, bytes.data(), 100));
    EXPECT_EQ(std::vector<Tarn8u>(100), bytes);
    std::vector<Tarn16u> words(100, 7);
    EXPECT_EQ(tarnStsNoErr, tarnsRShiftC_16u(unreadable<Tarn16u>(), 16, words.data(), 100));
    EXPECT_EQ(std::vector<Tarn16u>(100), words);
    std::vector<Tarn32s> longs(100, 7);
    EXPECT_EQ(tarnStsNoErr, tarnsLShiftC_32s(unreadable<Tarn32s>(), 32, longs.data(), 100));
    EXPECT_EQ(std::vector<Tarn32s>(100), longs);
}

} // namespace
} // namespace tarn::test
